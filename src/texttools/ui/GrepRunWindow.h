#pragma once

#include "texttools/GrepModel.h"

#include <QPointer>

class QProgressDialog;
class QWidget;

namespace qly::texttools::ui {

class frmFilesFound;

// The window side of a multi-file run: a progress window with Cancel that
// shows after a moment, the status text, the event loop kept running, and
// found files going into the found list as they come.
class GrepRunWindow final : public GrepProgress
{
public:
    GrepRunWindow(QWidget *parent, frmFilesFound *found);
    ~GrepRunWindow() override;

    void processing(const QString &path, int done, int total) override;
    bool cancelled() override;
    void addToFoundList(const QString &line) override;

private:
    QProgressDialog *m_progress = nullptr;
    QPointer<frmFilesFound> m_found;
};

} // namespace qly::texttools::ui
