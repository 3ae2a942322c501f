#include "texttools/ui/GrepRunWindow.h"

#include "core/Feedback.h"
#include "texttools/ui/frmFilesFound.h"

#include <QProgressDialog>

namespace qly::texttools::ui {

GrepRunWindow::GrepRunWindow(QWidget *parent, frmFilesFound *found) : m_found(found)
{
    m_progress = new QProgressDialog(QStringLiteral("Beginning Search..."), QStringLiteral("&Cancel"), 0, 0, parent);
    m_progress->setObjectName(QStringLiteral("grepProgress"));
    m_progress->setWindowTitle(QStringLiteral("Multi-File Find and Replace"));
    m_progress->setWindowModality(Qt::WindowModal);
    m_progress->setMinimumDuration(400);
    m_progress->setAutoReset(false);
    m_progress->setAutoClose(false);
}

GrepRunWindow::~GrepRunWindow()
{
    delete m_progress;
}

void GrepRunWindow::processing(const QString &path, int done, int total)
{
    GrepProgress::processing(path, done, total);
    m_progress->setMaximum(total);
    m_progress->setValue(done);   // lets the event loop run once the window shows
    m_progress->setLabelText(QStringLiteral("Processing ") + path);
    if (done % 16 == 0)
        core::DoEvents();
}

bool GrepRunWindow::cancelled()
{
    return m_progress->wasCanceled();
}

void GrepRunWindow::addToFoundList(const QString &line)
{
    if (m_found)
        m_found->addLine(line);
    core::DoEvents();
}

} // namespace qly::texttools::ui
