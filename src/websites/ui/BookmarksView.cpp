#include "websites/ui/BookmarksView.h"

#include "core/Feedback.h"
#include "core/Settings.h"
#include "documents/Document.h"
#include "documents/Workspace.h"
#include "markup/TagPrimitives.h"
#include "platform/HTMLEdit.h"

#include <QCheckBox>
#include <QListWidget>
#include <QMimeData>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace qly::websites::ui {

namespace {

// Rows carry their address; a drag carries the link's markup as text.
class FavesList : public QListWidget
{
public:
    using QListWidget::QListWidget;

protected:
    QMimeData *mimeData(const QList<QListWidgetItem *> &items) const override
    {
        auto *mime = new QMimeData;
        QString text;
        for (const QListWidgetItem *item : items)
            text += BookmarkMarkup({item->text(), item->data(Qt::UserRole).toString()});
        mime->setText(text);
        return mime;
    }
};

const QString Display = QStringLiteral("Display");

} // namespace

BookmarksView::BookmarksView(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("Bookmarks"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    m_netscape = new QCheckBox(tr("Browser bookmarks (bookmarks.html)"), this);
    m_netscape->setObjectName(QStringLiteral("lblNetscape"));
    m_favorites = new QCheckBox(tr("Favourites folder (.url files)"), this);
    m_favorites->setObjectName(QStringLiteral("lblIE"));
    m_lstFaves = new FavesList(this);
    m_lstFaves->setObjectName(QStringLiteral("lstFaves"));
    m_lstFaves->setDragEnabled(true);
    m_lstFaves->setDragDropMode(QAbstractItemView::DragOnly);
    layout->addWidget(m_netscape);
    layout->addWidget(m_favorites);
    layout->addWidget(m_lstFaves, 1);
    auto toggled = [this](const QString &key, bool on) {
        core::WriteSetting(Display, key, core::YesNo(on));
        if (on && key == QLatin1String("Netscape Bookmarks"))
            core::DeleteSetting(QStringLiteral("General"), QStringLiteral("Netscape Bookmark"));
        UpdateBookmarks();
    };
    connect(m_netscape, &QCheckBox::toggled, this, [toggled](bool on) { toggled(QStringLiteral("Netscape Bookmarks"), on); });
    connect(m_favorites, &QCheckBox::toggled, this, [toggled](bool on) { toggled(QStringLiteral("IE Favorites"), on); });
    connect(m_lstFaves, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem *item) { lstFaves_DblClick(m_lstFaves->row(item)); });
}

void BookmarksView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!m_read)
        UpdateBookmarks();
}

void BookmarksView::UpdateBookmarks()
{
    if (!m_read) {
        // The switches are read at the first look: the window is made before
        // the configuration file of the command line is known.
        const QSignalBlocker a(m_netscape), b(m_favorites);
        m_netscape->setChecked(core::ReadSettingFlag(Display, QStringLiteral("Netscape Bookmarks")));
        m_favorites->setChecked(core::ReadSettingFlag(Display, QStringLiteral("IE Favorites")));
    }
    m_read = true;
    core::BeginWait();
    m_lstFaves->clear();
    QList<Bookmark> rows;
    if (m_netscape->isChecked()) {
        const QString file = NetscapeBookmarkFile();
        if (!file.isEmpty())
            rows += ReadNetscapeBookmarks(file);
    }
    if (m_favorites->isChecked())
        rows += ReadFavorites(FavoritesFolder());
    for (const Bookmark &b : rows) {
        auto *item = new QListWidgetItem(b.title, m_lstFaves);
        item->setData(Qt::UserRole, b.address);
        item->setToolTip(b.address);
    }
    core::ShowStatus(QString());
    core::EndWait();
}

Bookmark BookmarksView::bookmarkAt(int row) const
{
    const QListWidgetItem *item = m_lstFaves->item(row);
    return item ? Bookmark{item->text(), item->data(Qt::UserRole).toString()} : Bookmark{};
}

void BookmarksView::lstFaves_DblClick(int row)
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    const Bookmark b = bookmarkAt(row);
    if (!doc || b.address.isEmpty())
        return;
    markup::InsertMarkup(BookmarkMarkup(b, doc->txtDoc().SelText()), QString(), true);
}

} // namespace qly::websites::ui
