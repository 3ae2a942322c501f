#pragma once

#include "platform/Prompts.h"

#include <functional>

class QWidget;

namespace qly::platform::ui {

// Prompts answered by message boxes and file dialogs over the main window.
class QtPrompts final : public Prompts
{
public:
    explicit QtPrompts(QWidget *parent = nullptr) : m_parent(parent) {}
    void setParent(QWidget *parent) { m_parent = parent; }

    Answer message(const QString &title, const QString &text, Buttons buttons, Icon icon) override;
    FileAnswer openFile(const FileRequest &request) override;
    FileAnswer saveFile(const FileRequest &request) override;
    QString chooseDirectory(const QString &title, const QString &start) override;
    std::optional<QString> inputText(const QString &title, const QString &prompt,
                                     const QString &initial) override;
    std::optional<QString> inputPassword(const QString &title, const QString &prompt) override;
    void setBusy(bool busy) override;

    // The program's own input box, when one is installed: it asks for a
    // text (masked when `password`) and gives nothing when cancelled.
    // Without one, Qt's input dialog asks.
    using InputBox = std::function<std::optional<QString>(QWidget *parent, const QString &title,
                                                          const QString &prompt, const QString &initial,
                                                          bool password)>;
    static InputBox &inputBox();

private:
    QWidget *m_parent = nullptr;
    bool m_busy = false;
};

// "Web Pages (*.htm)|*.htm|All Files|*.*" as Qt writes filters.
QStringList toQtFilters(const QString &filter);

} // namespace qly::platform::ui
