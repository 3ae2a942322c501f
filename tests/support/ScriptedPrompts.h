#pragma once

#include "platform/Prompts.h"

#include <QList>
#include <QStringList>

namespace qly::test {

// Prompts for tests: answers come from a script, in order, and every text
// shown is recorded. A question with no scripted answer fails the test.
class ScriptedPrompts final : public platform::Prompts
{
public:
    ScriptedPrompts();
    ~ScriptedPrompts() override;

    struct Shown {
        QString title;
        QString text;
        platform::Buttons buttons;
        platform::Icon icon;
    };

    // Scripted answers.
    void answer(platform::Answer a) { m_answers << a; }
    void chooseFiles(const QStringList &files) { m_files << files; }
    void chooseNothing() { m_files << QStringList(); }
    void input(const std::optional<QString> &text) { m_inputs << text; }

    QList<Shown> shown;
    QList<platform::FileRequest> fileRequests;
    QStringList texts() const;
    int unanswered = 0;     // questions asked with no scripted answer

    platform::Answer message(const QString &title, const QString &text, platform::Buttons buttons,
                             platform::Icon icon) override;
    platform::FileAnswer openFile(const platform::FileRequest &request) override;
    platform::FileAnswer saveFile(const platform::FileRequest &request) override;
    QString chooseDirectory(const QString &title, const QString &start) override;
    std::optional<QString> inputText(const QString &title, const QString &prompt, const QString &initial) override;
    void setBusy(bool busy) override { busyNow = busy; }
    bool busyNow = false;

private:
    platform::FileAnswer nextFiles(const platform::FileRequest &request);

    QList<platform::Answer> m_answers;
    QList<QStringList> m_files;
    QList<std::optional<QString>> m_inputs;
};

} // namespace qly::test
