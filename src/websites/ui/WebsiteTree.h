#pragma once

#include "websites/LinkRecord.h"

#include <QTreeWidget>

namespace qly::core::ui {
class CommandTable;
}

namespace qly::websites::ui {

// The website tree on the resource manager's "Website" tab: every open
// website with its files, the open documents, and under each the links
// that a check found, by kind. It draws the process's WebsiteList and
// turns the user's actions into the website operations.
class WebsiteTree : public QTreeWidget
{
    Q_OBJECT
public:
    // Item data: what an entry stands for.
    enum Role { KindRole = Qt::UserRole, IdRole, PathRole, IndexRole, FilenumRole, LineRole, LinkRole, AddressRole };
    enum class Entry { Website, WebsiteFile, Documents, Document, Link };

    explicit WebsiteTree(core::ui::CommandTable *commands = nullptr, QWidget *parent = nullptr);

    // Rebuilds the entries from the website list.
    void refresh();
    // The entries of links with this kind word ("brokenlocal", ...).
    QList<QTreeWidgetItem *> linkItems(const QString &kind = {}) const;
    // What the details pane shows of an entry, as plain lines.
    QString describe(const QTreeWidgetItem *item) const;

    // The events of the tree, also reachable from its context menu.
    void WSOpenFile(const QString &path);
    void WSOpenAll(int id);
    void WSCheckAll(int id);
    // Re-reads the website's project file and redraws.
    void WSRefresh(int id);
    // Publishes the website's files into a folder the user chooses.
    void WSPublish(int id);
    void FileOpenLink(QTreeWidgetItem *linkItem);

signals:
    // The details of the selected entry changed, or another was selected.
    void described(const QString &text);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    // A website's files are dragged as files of the editor's own: onto a
    // document they become a link or an image tag, onto the window's
    // background they open.
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QList<QTreeWidgetItem *> &items) const override;

private:
    void addLinks(QTreeWidgetItem *parent, const LinkRecords &records, const QString &page);
    void onDoubleClick(QTreeWidgetItem *item);
    void onSelection();
    void showResults(const LinkRecords &records);
    void bringTabToFront();

    core::ui::CommandTable *m_commands = nullptr;
    bool m_refreshing = false;
    int m_shownWebsites = 0;
    bool m_refreshPending = false;
};

} // namespace qly::websites::ui
