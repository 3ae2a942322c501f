#pragma once

#include "platform/Prompts.h"

namespace qly::platform {

// Prompts for a process without windows: texts go to standard error and
// every question gets its safe answer (No, Cancel, nothing chosen).
class ConsolePrompts final : public Prompts
{
public:
    Answer message(const QString &title, const QString &text, Buttons buttons, Icon icon) override;
    FileAnswer openFile(const FileRequest &request) override;
    FileAnswer saveFile(const FileRequest &request) override;
    QString chooseDirectory(const QString &title, const QString &start) override;
    std::optional<QString> inputText(const QString &title, const QString &prompt,
                                     const QString &initial) override;
    void setBusy(bool) override {}
};

} // namespace qly::platform
