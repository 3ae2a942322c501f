#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace qly::platform {

// The one way in which code without a window asks the user something.
// The editor answers with real dialogs; tests answer from a script and
// record every text shown.

enum class Icon { None, Information, Exclamation, Question, Critical };
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Cancel, Yes, No };

struct FileRequest {
    QString title;
    QString directory;
    QString fileName;      // proposed name
    QString filter;        // "Description|*.a;*.b|All Files|*.*"
    int filterIndex = 1;   // counted from 1
    QString defaultSuffix;
    bool multiple = false;
    bool promptOverwrite = false;
};

struct FileAnswer {
    QStringList files;     // empty when the user cancelled
    int filterIndex = 1;
    bool accepted() const { return !files.isEmpty(); }
};

class Prompts
{
public:
    virtual ~Prompts() = default;

    virtual Answer message(const QString &title, const QString &text, Buttons buttons, Icon icon) = 0;
    virtual FileAnswer openFile(const FileRequest &request) = 0;
    virtual FileAnswer saveFile(const FileRequest &request) = 0;
    virtual QString chooseDirectory(const QString &title, const QString &start) = 0;
    virtual std::optional<QString> inputText(const QString &title, const QString &prompt,
                                             const QString &initial) = 0;
    // An input whose text is masked as it is typed (passwords); empty default.
    virtual std::optional<QString> inputPassword(const QString &title, const QString &prompt)
    {
        return inputText(title, prompt, QString());
    }
    // The hourglass: true while long work runs.
    virtual void setBusy(bool busy) = 0;
};

// The process's prompts; a console fall-back until an editor or a test sets one.
Prompts &prompts();
void setPrompts(Prompts *prompts);

// The program's name, the title of message boxes unless a caller says otherwise.
QString programTitle();

// Shorthands over prompts().message().
Answer MsgBox(const QString &text, Buttons buttons = Buttons::Ok, Icon icon = Icon::None,
              const QString &title = programTitle());

} // namespace qly::platform
