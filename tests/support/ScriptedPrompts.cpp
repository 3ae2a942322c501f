#include "ScriptedPrompts.h"

namespace qly::test {

ScriptedPrompts::ScriptedPrompts()
{
    platform::setPrompts(this);
}

ScriptedPrompts::~ScriptedPrompts()
{
    platform::setPrompts(nullptr);
}

QStringList ScriptedPrompts::texts() const
{
    QStringList out;
    for (const Shown &s : shown)
        out << s.text;
    return out;
}

platform::Answer ScriptedPrompts::message(const QString &title, const QString &text, platform::Buttons buttons,
                                          platform::Icon icon)
{
    shown << Shown{title, text, buttons, icon};
    if (buttons == platform::Buttons::Ok)
        return platform::Answer::Ok;
    if (m_answers.isEmpty()) {
        ++unanswered;
        return platform::Answer::Cancel;
    }
    return m_answers.takeFirst();
}

platform::FileAnswer ScriptedPrompts::nextFiles(const platform::FileRequest &request)
{
    fileRequests << request;
    platform::FileAnswer answer;
    if (m_files.isEmpty()) {
        ++unanswered;
        return answer;
    }
    answer.files = m_files.takeFirst();
    answer.filterIndex = request.filterIndex;
    return answer;
}

platform::FileAnswer ScriptedPrompts::openFile(const platform::FileRequest &request)
{
    return nextFiles(request);
}

platform::FileAnswer ScriptedPrompts::saveFile(const platform::FileRequest &request)
{
    return nextFiles(request);
}

QString ScriptedPrompts::chooseDirectory(const QString &title, const QString &start)
{
    platform::FileRequest r;
    r.title = title;
    r.directory = start;
    const platform::FileAnswer a = nextFiles(r);
    return a.files.isEmpty() ? QString() : a.files.first();
}

std::optional<QString> ScriptedPrompts::inputText(const QString &title, const QString &prompt, const QString &)
{
    shown << Shown{title, prompt, platform::Buttons::OkCancel, platform::Icon::None};
    if (m_inputs.isEmpty()) {
        ++unanswered;
        return std::nullopt;
    }
    return m_inputs.takeFirst();
}

} // namespace qly::test
