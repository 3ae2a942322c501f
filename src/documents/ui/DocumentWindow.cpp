#include "documents/ui/DocumentWindow.h"

#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "core/ui/Placement.h"
#include "core/ui/Twips.h"
#include "documents/Workspace.h"
#include "documents/DocumentList.h"
#include "documents/DroppedFile.h"
#include "documents/FileRegistry.h"
#include "documents/TempFiles.h"
#include "documents/ui/FileDrops.h"
#include "documents/ui/ScintillaEdit.h"
#include "documents/KeyCodes.h"
#include "markup/CharacterCodes.h"
#include "markup/CharacterCommands.h"
#include "markup/Links.h"
#include "markup/Selection.h"
#include "markup/TagPrimitives.h"
#include "markup/TextOps.h"
#include "platform/Prompts.h"
#include "platform/ui/Browser.h"
#include "publish/Preview.h"

#include <Qsci/qsciscintilla.h>

#include <QAction>
#include <QCloseEvent>
#include <QFile>
#include <QComboBox>
#include <QFileInfo>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace qly::documents::ui {

DocumentWindow::DocumentWindow(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_tabDoc = new QTabWidget(this);
    m_tabDoc->setObjectName(QStringLiteral("tabDoc"));
    m_tabDoc->setTabPosition(QTabWidget::South);
    m_tabDoc->setDocumentMode(true);
    layout->addWidget(m_tabDoc);

    m_edit = new ScintillaEdit(m_tabDoc);
    m_edit->setObjectName(QStringLiteral("txtDoc"));
    m_edit->view()->setObjectName(QStringLiteral("txtDoc"));
    m_tabDoc->addTab(m_edit->view(), tr("Edit"));

    m_previewPage = new QWidget(m_tabDoc);
    buildPreviewPage(m_previewPage);
    m_tabDoc->addTab(m_previewPage, tr("Preview"));

    m_edit->view()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_edit->view(), &QWidget::customContextMenuRequested, this, [this](const QPoint &pos) {
        emit popupRequested(m_edit->view()->mapToGlobal(pos));
    });
    m_edit->view()->installEventFilter(this);
    m_edit->view()->viewport()->installEventFilter(this);
    connect(m_edit, &ScintillaEdit::caretMoved, this, &DocumentWindow::updatePosition);
    connect(m_edit, &ScintillaEdit::dirtyChanged, this, &QWidget::setWindowModified);
    connect(m_tabDoc, &QTabWidget::currentChanged, this, &DocumentWindow::onTabChanged);
    setFocusProxy(m_edit->view());
    // Files dropped from the desktop are put into the text by their kind;
    // files from the editor's file view become a link or an image tag.
    AcceptFileDrops(
        m_edit->view()->viewport(), [this](const QString &path) { txtDoc_DropFileOnMe(*this, path); },
        [this](const QString &path) { InsertDroppedResource(*this, path); });
}

DocumentWindow::~DocumentWindow()
{
    removeScoutFile();
    if (filenum != 0)
        FileRegistry::instance().ForgetFile(filenum);
}

void DocumentWindow::buildPreviewPage(QWidget *page)
{
    m_previewLayout = new QVBoxLayout(page);
    m_previewLayout->setContentsMargins(0, 0, 0, 0);
    auto *toolbar = new QWidget(page);
    toolbar->setObjectName(QStringLiteral("picToolbar"));
    auto *row = new QHBoxLayout(toolbar);
    row->setContentsMargins(2, 2, 2, 2);
    auto addButton = [&](const char *name, const QString &text, auto slot) {
        auto *b = new QToolButton(toolbar);
        b->setObjectName(QString::fromLatin1(name));
        b->setText(text);
        connect(b, &QToolButton::clicked, this, slot);
        row->addWidget(b);
    };
    addButton("cmdBack", tr("Back"), [this] { runBrowserCommand(BrowserCommand::Back); });
    addButton("cmdForward", tr("Forward"), [this] { runBrowserCommand(BrowserCommand::Forward); });
    addButton("cmdStop", tr("Stop"), [this] { runBrowserCommand(BrowserCommand::Stop); });
    addButton("cmdRefresh", tr("Refresh"), [this] { runBrowserCommand(BrowserCommand::Refresh); });
    addButton("cmdHome", tr("Home"), [this] { runBrowserCommand(BrowserCommand::Home); });

    m_lblHistory = new QLabel(QStringLiteral("History:"), toolbar);
    m_lblHistory->setObjectName(QStringLiteral("lblHistory"));
    m_lblHistory->installEventFilter(this);
    row->addWidget(m_lblHistory);
    m_cmbHistory = new QComboBox(toolbar);
    m_cmbHistory->setObjectName(QStringLiteral("cmbHistory"));
    m_cmbHistory->setEditable(true);
    m_cmbHistory->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(m_cmbHistory->lineEdit(), &QLineEdit::returnPressed, this, [this] {
        openInBrowser(QUrl::fromUserInput(m_cmbHistory->currentText()));
    });
    row->addWidget(m_cmbHistory, 1);
    m_cmdLinkTo = new QPushButton(QStringLiteral("Link To:"), toolbar);
    m_cmdLinkTo->setObjectName(QStringLiteral("cmdLinkTo"));
    connect(m_cmdLinkTo, &QPushButton::clicked, this, &DocumentWindow::cmdLinkTo_Click);
    row->addWidget(m_cmdLinkTo);
    m_previewLayout->addWidget(toolbar);
}

QWidget *DocumentWindow::browser()
{
    // Made on first use: the browser engine is costly, and most documents are never previewed.
    if (!m_browser) {
        browser::BrowserHooks hooks;
        hooks.allowNavigation = [](const QUrl &url) { return publish::AllowPreviewNavigation(url.toString()); };
        hooks.linkHovered = [](const QString &url) { core::ShowStatus(url); };
        hooks.urlChanged = [this](const QUrl &url) {
            const QString text = url.toString();
            if (url.scheme() == QLatin1String("data") || text.isEmpty())
                return;
            if (m_cmbHistory->findText(text) < 0)
                m_cmbHistory->insertItem(0, text);
            m_cmbHistory->setCurrentText(text);
        };
        // Once the browser has read the page and what it links in, the copy
        // need not stay among the user's files.
        hooks.loadFinished = [this](bool) {
            if (!m_scoutFile.isEmpty() && platform::ui::browserUrl(m_browser) == m_scoutUrl)
                removeScoutFile();
        };
        QString error;
        m_browser = platform::ui::createBrowser(m_previewPage, hooks, &error);
        if (!m_browser) {
            auto *message = new QLabel(platform::ui::browserUnavailable(error), m_previewPage);
            message->setWordWrap(true);
            message->setAlignment(Qt::AlignCenter);
            m_browser = message;
            m_browserMissing = true;
        }
        m_browser->setObjectName(QStringLiteral("wbScout"));
        m_previewLayout->addWidget(m_browser, 1);
    }
    return m_browser;
}

void DocumentWindow::openInBrowser(const QUrl &url)
{
    QWidget *view = browser();
    if (!m_browserMissing)
        platform::ui::browserOpen(view, url);
}

platform::HTMLEdit &DocumentWindow::txtDoc()
{
    return *m_edit;
}

QMdiSubWindow *DocumentWindow::subWindow() const
{
    return qobject_cast<QMdiSubWindow *>(parentWidget());
}

// In its frame, the window's own menu gives up its keys: closing and the
// rest have their keys on the editor's commands, and one key has one owner.
bool DocumentWindow::event(QEvent *event)
{
    if (event->type() == QEvent::ParentChange) {
        if (QMdiSubWindow *sub = subWindow(); sub && sub->systemMenu()) {
            for (QAction *a : sub->systemMenu()->actions())
                a->setShortcuts({});
        }
    }
    return QWidget::event(event);
}

QString DocumentWindow::caption() const
{
    return m_caption;
}

// The title carries the mark "[*]": the window shows a "*" there while the
// text has unsaved changes.
void DocumentWindow::setCaption(const QString &caption)
{
    m_caption = caption;
    setWindowTitle(QString(caption).replace(QLatin1String("[*]"), QLatin1String("[*][*]"))
                   + QStringLiteral("[*]"));
}

int DocumentWindow::windowState() const
{
    const QWidget *w = subWindow() ? static_cast<const QWidget *>(subWindow()) : this;
    if (w->isMinimized())
        return 1;
    if (w->isMaximized())
        return 2;
    return 0;
}

void DocumentWindow::setWindowState(int state)
{
    QWidget *w = subWindow() ? static_cast<QWidget *>(subWindow()) : this;
    switch (state) {
    case 1: w->showMinimized(); break;
    case 2: w->showMaximized(); break;
    default: w->showNormal(); break;
    }
}

QRect DocumentWindow::geometryTwips() const
{
    const QWidget *w = subWindow() ? static_cast<const QWidget *>(subWindow()) : this;
    return core::ui::toTwips(w->geometry(), w);
}

void DocumentWindow::setGeometryTwips(const QRect &twips)
{
    QMdiSubWindow *sub = subWindow();
    if (!sub) {
        setGeometry(core::ui::fromTwips(twips, this));
        return;
    }
    // A maximised window keeps filling the area; a stored rectangle from
    // another screen or a larger window is brought inside it.
    if (sub->isMaximized())
        return;
    const QRect pixels = core::ui::fromTwips(twips, sub);
    sub->setGeometry(sub->mdiArea() ? core::ui::keepInside(pixels, sub->mdiArea()->viewport()->rect()) : pixels);
}

int DocumentWindow::currentTab() const
{
    return m_tabDoc->currentIndex();
}

void DocumentWindow::selectTab(int tab)
{
    if (tab >= 0 && tab < m_tabDoc->count())
        m_tabDoc->setCurrentIndex(tab);
}

void DocumentWindow::activate()
{
    if (QMdiSubWindow *sub = subWindow()) {
        if (sub->mdiArea())
            sub->mdiArea()->setActiveSubWindow(sub);
    }
    m_edit->SetFocus();
}

void DocumentWindow::ShowMyScout(bool)
{
    core::BeginWait();
    removeScoutFile();
    // Beside the document, so that its relative links and images resolve;
    // an untitled document's page goes to the temp directory.
    QString path = GetTempName(QStringLiteral("htm"));
    m_scoutStub = core::StripExtension(path) + QStringLiteral(".tmp");
    if (IsSaved()) {
        const QString dir = QFileInfo(LocalFileName).absolutePath();
        path = core::JoinPath(dir, core::FileNameOf(path));
        CleanTempFiles(dir);
    }
    if (!RawSaveFile(path).ok()) {
        QFile::remove(m_scoutStub);
        path = GetTempName(QStringLiteral("htm"));
        m_scoutStub = core::StripExtension(path) + QStringLiteral(".tmp");
        const core::IoResult again = RawSaveFile(path);
        if (!again.ok())
            core::StepFailed(QStringLiteral("Could not write ") + path + QStringLiteral(": ") + again.message);
    }
    m_scoutFile = path;
    m_scoutUrl = QUrl::fromLocalFile(path);
    core::ShowStatus(QStringLiteral("Preview"));
    publish::CopyNeededApplets(m_edit->Text(), QFileInfo(path).absolutePath(), appletHelperFile());
    openInBrowser(m_scoutUrl);
    bNeedsPreview = false;
    core::EndWait();
}

void DocumentWindow::removeScoutFile()
{
    if (!m_scoutFile.isEmpty())
        QFile::remove(m_scoutFile);
    if (!m_scoutStub.isEmpty())
        QFile::remove(m_scoutStub);
    m_scoutFile.clear();
    m_scoutStub.clear();
}

void DocumentWindow::runBrowserCommand(BrowserCommand command)
{
    if (command == BrowserCommand::Home) {
        if (currentTab() == 1)
            ShowMyScout(true);
        else
            selectTab(1);
        return;
    }
    // Before the first preview there is nothing to go back to or stop.
    if (!m_browser || m_browserMissing)
        return;
    // The copy of the page is gone once shown: a refresh writes it anew.
    if (command == BrowserCommand::Refresh && platform::ui::browserUrl(m_browser) == m_scoutUrl
        && m_scoutFile.isEmpty()) {
        ShowMyScout(true);
        return;
    }
    switch (command) {
    case BrowserCommand::Back: platform::ui::browserBack(m_browser); break;
    case BrowserCommand::Forward: platform::ui::browserForward(m_browser); break;
    case BrowserCommand::Stop: platform::ui::browserStop(m_browser); break;
    case BrowserCommand::Refresh: platform::ui::browserReload(m_browser); break;
    case BrowserCommand::Home: break;
    }
}

void DocumentWindow::cmdLinkTo_Click()
{
    QString target = m_cmbHistory->currentText().trimmed();
    if (target.isEmpty())
        return;
    const QUrl url(target);
    if (url.isLocalFile())
        target = url.toLocalFile();
    const QString link = markup::RelativeLink(target);
    markup::InsertMarkup(QStringLiteral("<A HREF=") + markup::AddQuotes(link) + u'>'
                             + markup::GetSelection(markup::Target(*m_edit)),
                         QStringLiteral("</A>"));
}

bool DocumentWindow::inputMethodCommit(QInputMethodEvent *event)
{
    const QString commit = event->commitString();
    if (m_forwardingInput || commit.isEmpty())
        return false;
    markup::NoteKey();
    if (!core::gTranslateWhileTyping)
        return false;
    // Characters composed with dead keys or an input method go through the
    // typing hook one by one, as typed characters do.
    const QList<uint> chars = commit.toUcs4();
    markup::EnsureCharacterCodes();
    const bool translates = std::any_of(chars.begin(), chars.end(), [](uint c) {
        const char32_t cp = c;
        const QString one = QString::fromUcs4(&cp, 1);
        return c != 13 && markup::TranslateOneCharacter(one).compare(one, Qt::CaseInsensitive) != 0;
    });
    if (!translates)
        return false;
    // The control ends its composition first, without the committed text.
    QInputMethodEvent ended;
    m_forwardingInput = true;
    QCoreApplication::sendEvent(m_edit->view(), &ended);
    m_forwardingInput = false;
    for (uint c : chars) {
        int keyAscii = int(c);
        markup::TranslateKey(keyAscii);
        if (keyAscii != 0) {
            const char32_t cp = c;
            m_edit->setSelText(QString::fromUcs4(&cp, 1));
        }
    }
    return true;
}

void DocumentWindow::onTabChanged(int tab)
{
    const int old = m_lastTab;
    m_lastTab = tab;
    // The open sequence picks the tab it wants; what a switch does waits until it is over.
    if (core::gLoadingDocument)
        return;
    if (old == 1 && m_browser && !m_browserMissing)
        platform::ui::browserStop(m_browser);
    if (tab == 0) {
        m_edit->SetFocus();
        m_lblHistory->setVisible(false);
        m_cmdLinkTo->setVisible(false);
    } else if (tab == 1) {
        m_lblHistory->setVisible(true);
        m_cmdLinkTo->setVisible(true);
        ShowMyScout();
    }
}

void DocumentWindow::closeWithoutQuery()
{
    m_skipQuery = true;
    if (QMdiSubWindow *sub = subWindow())
        sub->close();
    else
        close();
}

void DocumentWindow::closeEvent(QCloseEvent *event)
{
    if (!m_skipQuery && DocumentCloseQuery(*this)) {
        event->ignore();
        return;
    }
    m_closing = true;
    event->accept();
}

QString DocumentWindow::positionText() const
{
    int line = 0;
    int column = 0;
    m_edit->GetLineAndCol(line, column);
    return QStringLiteral("Ln:") + QString::number(line) + QStringLiteral(" Chr:") + QString::number(column);
}

void DocumentWindow::updatePosition()
{
    const QString text = positionText();
    emit positionChanged(text);
    documents::Workspace *ws = documents::Workspace::instance();
    if (ws && ws->activeDocument() == this)
        ws->setPositionText(text);
}

bool DocumentWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_lblHistory && event->type() == QEvent::MouseButtonRelease) {
        platform::MsgBox(QStringLiteral("I don't do anything, please don't click on me"));
        return true;
    }
    switch (event->type()) {
    case QEvent::KeyPress: {
        // A typed character may go in as its entity instead; every key counts as activity.
        const QList<uint> typed = static_cast<QKeyEvent *>(event)->text().toUcs4();
        int keyAscii = typed.size() == 1 ? int(typed.first()) : 0;
        markup::TranslateKey(keyAscii);
        if (typed.size() == 1 && keyAscii == 0)
            return true;
        break;
    }
    case QEvent::KeyRelease: {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool held = key->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
        if (key->key() != Qt::Key_Right && !held && m_edit->Dirty())
            bNeedsPreview = true;
        if (runsKeyHookOnKeyUp()) {
            // The hook sees the key's code as if it were a character.
            int keyCode = windowsKeyCode(key->key(), key->modifiers() & Qt::KeypadModifier);
            markup::TranslateKey(keyCode);
        } else {
            markup::NoteKey();
        }
        emit overwriteChanged(m_edit->view()->overwriteMode());
        updatePosition();
        break;
    }
    case QEvent::InputMethod:
        if (inputMethodCommit(static_cast<QInputMethodEvent *>(event)))
            return true;
        break;
    case QEvent::FocusIn:
        updatePosition();
        emit overwriteChanged(m_edit->view()->overwriteMode());
        emit activated();
        break;
    case QEvent::MouseButtonPress: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        m_altClick = mouse->button() == Qt::LeftButton && (mouse->modifiers() & Qt::AltModifier)
                     && m_edit->SelLength() == 0;
        break;
    }
    case QEvent::MouseButtonRelease:
        if (m_altClick) {
            m_altClick = false;
            m_edit->SelectTag();
        }
        updatePosition();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace qly::documents::ui
