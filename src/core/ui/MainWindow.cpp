#include "core/ui/MainWindow.h"

#include "core/Feedback.h"
#include "core/FileIo.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "core/Shutdown.h"
#include "core/Startup.h"
#include "core/ui/CommandCatalogue.h"
#include "core/ui/CommandTable.h"
#include "core/ui/Commands.h"
#include "core/ui/StatusPanels.h"
#include "core/ui/Twips.h"
#include "documents/ui/DocumentWindow.h"
#include "documents/ui/ScintillaEdit.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QStatusBar>

namespace qly::core::ui {

using documents::ui::DocumentWindow;

frmMain::frmMain(QWidget *parent)
    : QMainWindow(parent)
    , m_mdi(new QMdiArea(this))
    , m_commands(new CommandTable(this))
{
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Quillery"));
    m_mdi->setObjectName(QStringLiteral("mdiArea"));
    setCentralWidget(m_mdi);
    m_panels = new StatusPanels(statusBar());
    connect(m_mdi, &QMdiArea::subWindowActivated, this, &frmMain::onSubWindowActivated);
    registerCommands(*m_commands, *this);
    buildMenus();
}

frmMain::~frmMain()
{
    if (Workspace::instance() == this)
        Workspace::setInstance(nullptr);
}

void frmMain::buildMenus()
{
    for (const MenuLayout &menu : menuLayout()) {
        QMenu *top = menuBar()->addMenu(menu.caption);
        top->setObjectName(menu.name);
        QMenu *m = top;
        for (const QString &name : menu.commands) {
            if (name.isEmpty()) {
                m->addSeparator();
            } else if (name.startsWith(u'>')) {
                const QStringList parts = name.mid(1).split(u'|');
                m = top->addMenu(parts.value(1));
                m->setObjectName(parts.value(0));
            } else if (name == QLatin1String("<")) {
                m = top;
            } else if (QAction *a = m_commands->action(name)) {
                m->addAction(a);
            }
        }
    }
}

documents::Document *frmMain::activeDocument() const
{
    QMdiSubWindow *sub = m_mdi->currentSubWindow();
    auto *doc = sub ? qobject_cast<DocumentWindow *>(sub->widget()) : nullptr;
    return (doc && !doc->isClosing()) ? doc : nullptr;
}

QList<documents::Document *> frmMain::documentList() const
{
    QList<documents::Document *> docs;
    for (QMdiSubWindow *sub : m_mdi->subWindowList(QMdiArea::CreationOrder)) {
        auto *doc = qobject_cast<DocumentWindow *>(sub->widget());
        if (doc && !doc->isClosing())
            docs << doc;
    }
    return docs;
}

documents::Document *frmMain::makeDocumentWindow(bool explorerInternal)
{
    DocumentWindow *doc = explorerInternal ? static_cast<DocumentWindow *>(new documents::ui::frmDocWeb)
                                           : static_cast<DocumentWindow *>(new documents::ui::frmDocSax);
    QMdiSubWindow *sub = m_mdi->addSubWindow(doc);
    sub->setAttribute(Qt::WA_DeleteOnClose);
    // A new window takes most of the area; stored geometry, when there is some, comes later.
    const QSize area = m_mdi->viewport()->size();
    sub->resize(std::max(400, area.width() * 3 / 4), std::max(300, area.height() * 3 / 4));
    sub->show();
    m_mdi->setActiveSubWindow(sub);
    return doc;
}

void frmMain::unloadDocument(documents::Document *document)
{
    if (auto *doc = dynamic_cast<DocumentWindow *>(document))
        doc->closeWithoutQuery();
}

void frmMain::setPositionText(const QString &text)
{
    m_panels->setPosition(text);
}

void frmMain::onSubWindowActivated(QMdiSubWindow *sub)
{
    auto *doc = sub ? qobject_cast<DocumentWindow *>(sub->widget()) : nullptr;
    if (doc)
        m_panels->setPosition(doc->positionText());
}

void frmMain::InitMainWindow()
{
    const MainGeometry g = ReadMainGeometry();
    if (!g.normal) {
        setWindowState(Qt::WindowMaximized);
        return;
    }
    setWindowState(Qt::WindowNoState);
    QRect r = geometry();
    if (g.width >= 0)
        r.setWidth(fromTwips(g.width, this));
    if (g.height >= 0)
        r.setHeight(fromTwips(g.height, this));
    resize(r.size());
    QPoint pos = this->pos();
    if (g.top >= 0)
        pos.setY(fromTwips(g.top, this));
    if (g.left >= 0)
        pos.setX(fromTwips(g.left, this));
    move(pos);
}

QString frmMain::toolbarFile() const
{
    return JoinPath(ProgramDirectory(), QStringLiteral("Quillery.tb"));
}

void frmMain::LoadToolbars()
{
    QByteArray layout;
    if (QFile::exists(toolbarFile()) && readWholeFile(toolbarFile(), layout).ok())
        restoreState(layout);
}

void frmMain::SaveMainWindowState()
{
    const bool normal = !(isMaximized() || isMinimized() || isFullScreen());
    WriteMainGeometry(normal, QRect(toTwips(pos().x(), this), toTwips(pos().y(), this),
                                    toTwips(width(), this), toTwips(height(), this)));
    const IoResult saved = writeFileAtomically(toolbarFile(), saveState());
    if (!saved.ok())
        StepFailed(QStringLiteral("Could not save the toolbar layout: ") + saved.message);
}

void frmMain::UnloadAllForms()
{
    const QList<documents::Document *> docs = documentList();
    for (auto it = docs.crbegin(); it != docs.crend(); ++it) {
        auto *doc = static_cast<DocumentWindow *>(*it);
        ShowStatus(QStringLiteral("Unloading ") + doc->caption());
        doc->closeWithoutQuery();
    }
    QCoreApplication::quit();
}

void frmMain::closeEvent(QCloseEvent *event)
{
    SaveMainWindowState();
    if (!CloseEverything()) {
        event->ignore();
        DoEvents();
        return;
    }
    event->accept();
}

} // namespace qly::core::ui
