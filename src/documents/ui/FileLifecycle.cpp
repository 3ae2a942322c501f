#include "documents/ui/FileLifecycle.h"

#include "documents/Workspace.h"
#include "core/ui/CommandTable.h"
#include "core/ui/Shell.h"
#include "core/ui/StartupSteps.h"
#include "documents/AutoSave.h"
#include "documents/DocumentList.h"
#include "documents/NewDocument.h"
#include "documents/RecentFiles.h"
#include "documents/TemplateSave.h"
#include "documents/ui/DocumentWindow.h"
#include "documents/ui/FileDrops.h"
#include "documents/ui/frmNewDoc.h"
#include "documents/ui/frmTemplate.h"

#include <QAction>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QTimer>

namespace qly::documents::ui {

namespace {

constexpr int kAutoSaveInterval = 60000;

void startAutoSave(QObject *window)
{
    auto *timer = new QTimer(window);
    timer->setObjectName(QStringLiteral("timAutoSave"));
    timer->setInterval(kAutoSaveInterval);
    QObject::connect(timer, &QTimer::timeout, timer, [] { AutoSaveTick(); });
    autoSaveTimerSwitch() = [timer](bool on) {
        if (on)
            timer->start();
        else
            timer->stop();
    };
    timer->start();
    AutoSaveTick();
}

void newStartupDocument()
{
    Document *doc = NewDocument(QString());
    auto *window = dynamic_cast<DocumentWindow *>(doc);
    if (!window)
        return;
    if (auto *sub = qobject_cast<QMdiSubWindow *>(window->parentWidget()))
        sub->resize(500, 400);
}

void updatePositionPanel()
{
    documents::Workspace *ws = documents::Workspace::instance();
    if (auto *doc = dynamic_cast<DocumentWindow *>(documents::Workspace::CurrentDocument()))
        ws->setPositionText(doc->positionText());
}

} // namespace

void InstallFileLifecycle(core::ui::Shell &shell)
{
    core::ui::CommandTable *commands = &shell.commands();
    recentFileView() = [commands](int n, const QString &caption) {
        if (QAction *a = commands->action(QStringLiteral("FileRecent") + QString::number(n))) {
            a->setText(caption);
            a->setVisible(true);
        }
    };
    documentHooks().addRecentFile = [](const QString &path) { AddRecentFile(path); };

    using core::ui::StartupStep;
    core::ui::StartupSteps &steps = shell.startupSteps();
    QMainWindow *window = shell.mainWindow();
    steps.add(StartupStep::MainWindowLoaded, [window] { startAutoSave(window); });
    steps.add(StartupStep::RecentFiles, [] { LoadRecentFiles(); });
    steps.add(StartupStep::NewDocument, [] { newStartupDocument(); });

    AcceptFileDrops(window, [](const QString &path) { OpenDocumentFile(path); });
}

void mnuNew_Click(QWidget *parent)
{
    frmNewDoc dialog(parent);
    if (dialog.exec() == QDialog::Accepted)
        dialog.model().create();
    updatePositionPanel();
}

void mnuSaveTemplate_Click(QWidget *parent)
{
    Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return;
    frmTemplate dialog(parent);
    dialog.exec();
    if (dialog.Tag() == QLatin1String("1"))
        SaveAsTemplate(*doc, dialog.templateName());
}

} // namespace qly::documents::ui
