#include "app/MainWindow.h"

#include "app/Commands.h"
#include "app/ResourceManager.h"

#include "core/Feedback.h"
#include "core/FileIo.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/Startup.h"
#include "core/ui/CommandCatalogue.h"
#include "core/ui/CommandTable.h"
#include "core/ui/Divider.h"
#include "core/ui/Placement.h"
#include "core/ui/StatusPanels.h"
#include "core/ui/Toolbars.h"
#include "core/ui/Twips.h"
#include "core/ui/frmCustomize.h"
#include "documents/Coloring.h"
#include "documents/DocumentList.h"
#include "documents/ui/DocumentWindow.h"
#include "documents/ui/ScintillaEdit.h"
#include "platform/HTMLEdit.h"

#include <Qsci/qsciscintilla.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QStatusBar>

namespace qly::app {

using namespace core;
using namespace core::ui;
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
    // The resource manager comes first: the parts fill its tabs as they register.
    m_picDocs = new ResourceManager(this);
    addDockWidget(Qt::LeftDockWidgetArea, m_picDocs);
    registerCommands(*this);
    m_toolbars = new Toolbars(*this, *m_commands);
    m_picDocs->InitializeFileList();
    connect(m_picDocs, &ResourceManager::fileActivated, this, [](const QString &path) {
        documents::OpenDocumentFile(path);
    });
    QAction *viewResMan = m_commands->action(QStringLiteral("ViewResMan"));
    viewResMan->setCheckable(true);
    m_commands->bind(QStringLiteral("ViewResMan"), [this, viewResMan] {
        m_picDocs->setVisible(viewResMan->isChecked());
        WriteSetting(QStringLiteral("Display"), QStringLiteral("Link Checker"), YesNo(viewResMan->isChecked()));
    });
    connect(m_picDocs, &QDockWidget::visibilityChanged, this, [this, viewResMan] {
        if (isVisible())
            viewResMan->setChecked(m_picDocs->isVisibleTo(this));
    });
    m_commands->bind(QStringLiteral("ToolsCustomizeTB"), [this] { showCustomize(); });
    connect(m_panels, &StatusPanels::panelClicked, this, &frmMain::sbStatus_PanelClick);
    buildMenus();
    buildPopupMenu();
}

frmMain::~frmMain()
{
    if (documents::Workspace::instance() == this)
        documents::Workspace::setInstance(nullptr);
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
    // A new window takes most of the area, cascaded from the last one and
    // wholly inside the area, its title bar buttons in reach; stored
    // geometry, when there is some, comes later.
    const QRect area = m_mdi->viewport()->rect();
    const QSize size(std::max(400, area.width() * 3 / 4), std::max(300, area.height() * 3 / 4));
    sub->resize(size.expandedTo(sub->minimumSizeHint()));
    // Placed now, the window comes back here when a maximised one is restored.
    sub->setGeometry(core::ui::keepInside(sub->geometry(), area));
    sub->show();
    if (!sub->isMaximized())
        sub->setGeometry(core::ui::keepInside(sub->geometry(), area));
    m_mdi->setActiveSubWindow(sub);
    QList<QKeySequence> keys;
    for (const QString &name : m_commands->names())
        keys << m_commands->action(name)->shortcut();
    doc->edit()->releaseKeys(keys);
    connect(doc, &DocumentWindow::popupRequested, this, [this](const QPoint &at) { m_mnuPopupHd->popup(at); });
    connect(doc, &DocumentWindow::overwriteChanged, m_panels, &StatusPanels::setOverwrite);
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
    if (!doc)
        return;
    m_panels->setPosition(doc->positionText());
    focusDocument();
}

void frmMain::bringToFront()
{
    // Windows restored while the area was still being laid out leave
    // nothing of their earlier places behind.
    for (QMdiSubWindow *sub : m_mdi->subWindowList())
        sub->update();
    m_mdi->viewport()->update();
    if (isMinimized())
        setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

void frmMain::focusDocument()
{
    // A dialog or a list of the program that has the keyboard keeps it.
    QWidget *focus = QApplication::focusWidget();
    if (focus && focus->window() != this)
        return;
    if (auto *doc = dynamic_cast<DocumentWindow *>(activeDocument()))
        doc->edit()->view()->setFocus(Qt::OtherFocusReason);
}

void frmMain::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    // Coming back to the window puts the keyboard in the document, unless a
    // control of the window itself had it.
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        QWidget *focus = QApplication::focusWidget();
        if (!focus || focus == this || focus == m_mdi || qobject_cast<QMdiSubWindow *>(focus))
            focusDocument();
    }
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
    return JoinPath(UserConfigDirectory(), QStringLiteral("Quillery.tb"));
}

void frmMain::LoadToolbars()
{
    // The user's own layout; without one, the program directory's copy is
    // the default that an installation may ship.
    QString file = toolbarFile();
    if (!QFile::exists(file))
        file = JoinPath(ProgramDirectory(), QStringLiteral("Quillery.tb"));
    QByteArray layout;
    if (QFile::exists(file) && readWholeFile(file, layout).ok()) {
        if (!m_toolbars->loadLayout(layout))
            StepFailed(QStringLiteral("The toolbar layout in ") + file + QStringLiteral(" was not read"));
    }
    // The layout holds the docks too; whether the resource manager shows is
    // the setting's to say.
    DrawMainScreen();
    m_toolbars->updateViewChecks();
}

bool frmMain::SaveToolbars()
{
    QDir().mkpath(UserConfigDirectory());
    const IoResult saved = writeFileAtomically(toolbarFile(), m_toolbars->saveLayout());
    if (saved.ok())
        return true;
    StepFailed(QStringLiteral("Could not save the toolbar layout: ") + saved.message);
    ShowStatus(QStringLiteral("The toolbar layout could not be saved in ") + toolbarFile() + QStringLiteral(": ")
               + saved.message);
    return false;
}

void frmMain::setResourceTab(const QString &tab, QWidget *content)
{
    m_picDocs->setTabContent(tab, content);
}

void frmMain::DrawMainScreen()
{
    const int width = ReadSetting(QStringLiteral("Display"), QStringLiteral("Link Checker Width")).toInt();
    if (width > 200)
        resizeDocks({m_picDocs}, {fromTwips(width, this)}, Qt::Horizontal);
    const bool shown = ReadSetting(QStringLiteral("Display"), QStringLiteral("Link Checker"))
                           .compare(QLatin1String("Yes"), Qt::CaseInsensitive) == 0;
    m_picDocs->setVisible(shown);
    m_commands->action(QStringLiteral("ViewResMan"))->setChecked(shown);
}

void frmMain::StoreDisplayState()
{
    if (QAction *chars = m_commands->action(QStringLiteral("ViewSpecialCharacters")))
        WriteSetting(QStringLiteral("Display"), QStringLiteral("Chars List"), YesNo(chars->isChecked()));
    WriteSetting(QStringLiteral("Display"), QStringLiteral("Link Checker Width"),
                 QString::number(toTwips(m_picDocs->width(), this)));
    WriteSetting(QStringLiteral("Display"), QStringLiteral("Link Checker Height"),
                 QString::number(toTwips(m_picDocs->tabs()->height(), this)));
}

void frmMain::sbStatus_PanelClick(const QString &key)
{
    const bool syntax = key == QLatin1String("SyntaxColor");
    if (syntax || key == QLatin1String("TagColor")) {
        m_panels->showColoringMode(syntax);
        WriteSetting(QStringLiteral("Editing"), QStringLiteral("Quick Color"), syntax ? QStringLiteral("1") : QStringLiteral("0"));
        WriteSetting(QStringLiteral("Editing"), QStringLiteral("Color HTML"), QStringLiteral("Yes"));
        gColorHTML = true;
        documents::ChangeColoring(syntax ? platform::ColorTagSyntax : platform::ColorEntireTags);
        documents::ColorAll();
    } else if (key == QLatin1String("DateTime")) {
        m_commands->run(QStringLiteral("InsertDate2"));   // long date and time
    }
}

void frmMain::buildPopupMenu()
{
    m_mnuPopupHd = new QMenu(QStringLiteral("Quillery"), this);
    m_mnuPopupHd->setObjectName(QStringLiteral("mnuPopupHd"));
    QMenu *tags = m_mnuPopupHd->addMenu(QStringLiteral("Tags"));
    tags->setObjectName(QStringLiteral("mnuPopupTags"));
    QMenu *text = m_mnuPopupHd->addMenu(QStringLiteral("Text"));
    text->setObjectName(QStringLiteral("mnuPopupText"));
    for (const char *name : {"FormatBold", "FormatItalic", "FormatUnderline", "tlbHead1", "tlbHead2", "tlbHead3",
                             "tlbParagraph", "tlbBreak", "InsertURL", "InsertImage", "EditSelectTag"})
        tags->addAction(m_commands->action(QString::fromLatin1(name)));
    for (const char *name : {"EditUndo", "EditRedo", "EditCut", "EditCopy", "EditPaste", "EditSelectAll",
                             "EditTranslate", "EditFind"})
        text->addAction(m_commands->action(QString::fromLatin1(name)));
}

QMenu *frmMain::createPopupMenu()
{
    QMenu *menu = QMainWindow::createPopupMenu();
    if (!menu)
        menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mnuBar"));
    menu->addSeparator();
    QAction *customize = menu->addAction(QStringLiteral("Customize &Menu"));
    customize->setObjectName(QStringLiteral("mnuPopupCust"));
    connect(customize, &QAction::triggered, this, &frmMain::showCustomize);
    return menu;
}

void frmMain::showCustomize()
{
    frmCustomize dialog(*m_toolbars, this);
    // A layout the user just made is kept at once, not only at exit.
    if (dialog.exec() == QDialog::Accepted)
        SaveToolbars();
}

namespace {

// The resource manager's dividers and their keys in [Last Session].
const std::pair<const char *, const char *> kDividers[] = {{"Website", "WebSplit"}, {"Files", "FilesSplit"}};

} // namespace

void frmMain::RestoreDividers()
{
    for (const auto &[tab, key] : kDividers) {
        if (Divider *d = m_picDocs->divider(QString::fromLatin1(tab)))
            d->setPositionTwips(ReadSetting(QStringLiteral("Last Session"), QString::fromLatin1(key)).toInt());
    }
}

void frmMain::SaveMainWindowState()
{
    const bool normal = !(isMaximized() || isMinimized() || isFullScreen());
    WriteMainGeometry(normal, QRect(toTwips(pos().x(), this), toTwips(pos().y(), this),
                                    toTwips(width(), this), toTwips(height(), this)));
    for (const auto &[tab, key] : kDividers) {
        if (Divider *d = m_picDocs->divider(QString::fromLatin1(tab)))
            WriteSetting(QStringLiteral("Last Session"), QString::fromLatin1(key), QString::number(d->positionTwips()));
    }
    SaveToolbars();
}

void frmMain::UnloadAllForms()
{
    const QList<documents::Document *> docs = documentList();
    for (auto it = docs.crbegin(); it != docs.crend(); ++it) {
        auto *doc = static_cast<DocumentWindow *>(*it);
        ShowStatus(QStringLiteral("Unloading ") + doc->caption());
        doc->closeWithoutQuery();
    }
    m_unloaded = true;
    QCoreApplication::quit();
}

void frmMain::closeEvent(QCloseEvent *event)
{
    if (m_startingUp && gStartupPassed) {
        // Start-up is in the middle of a step (a page may be loading):
        // the close runs as soon as that step is over.
        m_closePending = true;
        event->ignore();
        return;
    }
    SaveMainWindowState();
    if (!CloseEverything(*this)) {
        event->ignore();
        DoEvents();
        return;
    }
    event->accept();
}

bool frmMain::runPendingClose()
{
    if (!m_closePending)
        return m_unloaded;
    m_closePending = false;
    const bool starting = m_startingUp;
    m_startingUp = false;
    close();
    m_startingUp = starting && !m_unloaded;
    return m_unloaded;
}

} // namespace qly::app
