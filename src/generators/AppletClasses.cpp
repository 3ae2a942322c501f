#include "generators/AppletClasses.h"

#include "core/FileIo.h"
#include "core/Paths.h"
#include "markup/Attributes.h"

#include <QFileInfo>

namespace qly::generators {

QStringList AppletClassFiles(const QString &page)
{
    static const QStringList withCompanions = {
        QStringLiteral("wavy.class"),  QStringLiteral("spread.class"),      QStringLiteral("scroller.class"),
        QStringLiteral("bounce.class"), QStringLiteral("mexicanwave.class"), QStringLiteral("jumpman.class")};
    static const QStringList companions = {QStringLiteral("ver.class"), QStringLiteral("myfont.class"),
                                           QStringLiteral("createcolor.class")};
    QStringList classes;
    auto add = [&classes](const QString &name) {
        if (!name.isEmpty() && !classes.contains(name, Qt::CaseInsensitive))
            classes << name;
    };
    qsizetype from = 0;
    while ((from = page.indexOf(QLatin1String("<applet"), from, Qt::CaseInsensitive)) >= 0) {
        const qsizetype end = page.indexOf(u'>', from);
        if (end < 0)
            break;
        QString code = markup::GetAttributeValue(page.mid(from, end - from + 1), QStringLiteral("code"));
        from = end;
        if (code.isEmpty())
            continue;
        if (QFileInfo(code).suffix().isEmpty())
            code += QStringLiteral(".class");
        add(code);
        if (withCompanions.contains(code, Qt::CaseInsensitive)) {
            for (const QString &c : companions)
                add(c);
        }
    }
    return classes;
}

QStringList CopyAppletClasses(const QString &page, const QString &directory)
{
    QStringList copied;
    const QString source = core::JoinPath(core::ProgramDirectory(), QStringLiteral("classes"));
    for (const QString &name : AppletClassFiles(page)) {
        const QString target = core::JoinPath(directory, name);
        if (QFileInfo::exists(target))
            continue;
        QByteArray bytes;
        if (!core::readWholeFile(core::JoinPath(source, name), bytes).ok())
            continue;
        if (core::writeFileAtomically(target, bytes).ok())
            copied << name;
    }
    return copied;
}

} // namespace qly::generators
