#include "markup/ui/frmEntities.h"

#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/Settings.h"
#include "core/ui/Placement.h"
#include "core/ui/Twips.h"
#include "documents/Document.h"
#include "documents/Workspace.h"
#include "markup/CharacterCodes.h"
#include "markup/CharacterCommands.h"
#include "platform/HTMLEdit.h"

#include <QAction>
#include <QCloseEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMainWindow>
#include <QPointer>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace qly::markup::ui {

namespace {

QPointer<frmEntities> g_open;

QString display(const char *key)
{
    return QStringLiteral("Chars List ") + QString::fromLatin1(key);
}

void follow(QAction *check, frmEntities *list)
{
    if (!check)
        return;
    check->setChecked(list != nullptr);
    if (list)
        QObject::connect(list, &QObject::destroyed, check, [check] { check->setChecked(false); });
}

} // namespace

frmEntities *frmEntities::instance()
{
    return g_open.data();
}

void frmEntities::toggle(QWidget *owner, QAction *check)
{
    if (g_open) {
        g_open->close();
        if (check)
            check->setChecked(false);
        return;
    }
    showList(owner, check);
}

frmEntities *frmEntities::showList(QWidget *owner, QAction *check)
{
    if (!g_open) {
        auto *list = new frmEntities(owner);
        if (!list->fill()) {
            core::ErrorBox(QStringLiteral("No special characters found! Check the file CHARACTER.INF."));
            list->m_saved = true;
            delete list;
            follow(check, nullptr);
            return nullptr;
        }
        g_open = list;
        list->restoreGeometryKeys();
        follow(check, list);
    }
    const bool opening = !g_open->isVisible();
    g_open->show();
    if (opening && !g_open->m_placed)
        g_open->placeBesidePage();
    g_open->raise();
    core::WriteSetting(QStringLiteral("Display"), QStringLiteral("Chars List"), core::YesNo(true));
    return g_open;
}

frmEntities::frmEntities(QWidget *owner)
    : QWidget(owner, Qt::Tool | Qt::WindowStaysOnTopHint | Qt::CustomizeWindowHint | Qt::WindowTitleHint
                         | Qt::WindowCloseButtonHint)
{
    setObjectName(QStringLiteral("frmEntities"));
    setWindowTitle(tr("Special Characters"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_lstChars = new QTreeWidget(this);
    m_lstChars->setObjectName(QStringLiteral("lstChars"));
    m_lstChars->setHeaderLabels({tr("Code"), tr("Char"), tr("HTML"), tr("Description")});
    m_lstChars->setRootIsDecorated(false);
    m_lstChars->setUniformRowHeights(true);
    m_lstChars->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    layout->addWidget(m_lstChars);
    connect(m_lstChars, &QTreeWidget::itemDoubleClicked, this, [this] { insertChosen(); });
    resize(360, 420);
}

frmEntities::~frmEntities()
{
    if (!m_saved)
        saveGeometryKeys();
}

bool frmEntities::fill()
{
    core::ShowStatus(QStringLiteral("Loading Character List..."));
    LoadCharacterCodes();
    const auto &rows = CharacterCodes();
    for (int row = 1; row < int(rows.size()); ++row) {
        if (rows[size_t(row)].code.isEmpty())
            continue;
        const QString line = entityListLine(row);
        auto *item = new QTreeWidgetItem(m_lstChars, line.split(u'\t'));
        item->setData(0, Qt::UserRole, line);
    }
    core::ShowStatus(QString());
    return m_lstChars->topLevelItemCount() > 0;
}

QString frmEntities::GetHTMLToAdd() const
{
    const QTreeWidgetItem *item = m_lstChars->currentItem();
    return item ? HTMLToAdd(item->data(0, Qt::UserRole).toString()) : QString();
}

void frmEntities::insertChosen()
{
    const QString html = GetHTMLToAdd();
    if (html.isEmpty())
        return;
    InsertEntity(html);
    // The user goes on typing in the page; the list stays open beside it.
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return;
    if (auto *window = dynamic_cast<QWidget *>(doc))
        window->activateWindow();
    doc->txtDoc().SetFocus();
}

void frmEntities::restoreGeometryKeys()
{
    using core::ui::fromTwips;
    auto read = [](const char *key) {
        bool ok = false;
        const int v = core::ReadSetting(QStringLiteral("Display"), display(key)).toInt(&ok);
        return ok ? v : -1;
    };
    const int w = read("Width"), h = read("Height"), l = read("Left"), t = read("Top");
    if (w > 0 && h > 0)
        resize(fromTwips(w, this), fromTwips(h, this));
    const QRect stored(fromTwips(l, this), fromTwips(t, this), width(), height());
    m_placed = l >= 0 && t >= 0 && core::ui::onSomeScreen(stored);
    if (m_placed)
        move(stored.topLeft());
    else
        placeBesidePage();
}

void frmEntities::placeBesidePage()
{
    // No place of its own yet, or one on a screen that is gone: beside the
    // page being written, clear of the menu bar and the toolbars. Once
    // shown, the window's frame counts too.
    documents::Document *doc = documents::Workspace::CurrentDocument();
    auto *anchor = dynamic_cast<QWidget *>(doc);
    if (!anchor || !anchor->isVisible()) {
        // No page yet: the workspace under the main window's bars.
        auto *main = qobject_cast<QMainWindow *>(parentWidget());
        anchor = main && main->centralWidget() ? main->centralWidget() : parentWidget();
    }
    if (!anchor || !anchor->isVisible())
        return;
    const QSize frame = isVisible() ? frameGeometry().size() : size();
    move(core::ui::besideWidget(frame, anchor).topLeft());
}

void frmEntities::saveGeometryKeys()
{
    m_saved = true;
    const QRect r = core::ui::toTwips(QRect(pos(), size()), this);
    auto write = [](const char *key, int v) {
        core::WriteSetting(QStringLiteral("Display"), display(key), QString::number(v));
    };
    write("Height", r.height());
    write("Width", r.width());
    write("Left", r.left());
    write("Top", r.top());
}

void frmEntities::closeEvent(QCloseEvent *event)
{
    saveGeometryKeys();
    // Closed by the user: not open at the next start. At shutdown the
    // window goes with the main window and the key stays "Yes".
    if (!core::gClosing)
        core::WriteSetting(QStringLiteral("Display"), QStringLiteral("Chars List"), core::YesNo(false));
    event->accept();
}

void frmEntities::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        insertChosen();
        return;
    }
    QWidget::keyPressEvent(event);
}

} // namespace qly::markup::ui
