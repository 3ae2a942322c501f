#include "platform/ConsolePrompts.h"

#include <cstdio>

namespace qly::platform {

Answer ConsolePrompts::message(const QString &title, const QString &text, Buttons buttons, Icon)
{
    const QByteArray line = (title.isEmpty() ? text : title + QStringLiteral(": ") + text).toLocal8Bit();
    std::fprintf(stderr, "%s\n", line.constData());
    switch (buttons) {
    case Buttons::Ok: return Answer::Ok;
    case Buttons::OkCancel: return Answer::Cancel;
    case Buttons::YesNo: return Answer::No;
    case Buttons::YesNoCancel: return Answer::Cancel;
    }
    return Answer::Cancel;
}

FileAnswer ConsolePrompts::openFile(const FileRequest &)
{
    return {};
}

FileAnswer ConsolePrompts::saveFile(const FileRequest &)
{
    return {};
}

QString ConsolePrompts::chooseDirectory(const QString &, const QString &)
{
    return {};
}

std::optional<QString> ConsolePrompts::inputText(const QString &, const QString &, const QString &)
{
    return std::nullopt;
}

} // namespace qly::platform
