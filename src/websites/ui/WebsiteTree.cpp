#include "websites/ui/WebsiteTree.h"

#include "core/Paths.h"
#include "core/Settings.h"
#include "core/ui/CommandTable.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "documents/Workspace.h"
#include "documents/ui/FileDrops.h"
#include "platform/HTMLEdit.h"
#include "websites/LinkedFiles.h"
#include "websites/ProjectFile.h"
#include "websites/WebsiteList.h"
#include "websites/WebsitePublish.h"
#include "websites/Websites.h"
#include "websites/ui/frmProjectManager.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QUrl>
#include <QSet>
#include <functional>
#include <QStyle>
#include <QTabWidget>

namespace qly::websites::ui {

namespace {

documents::Document *openDocument(const QString &path)
{
    for (documents::Document *d : documents::AllDocuments()) {
        if (!path.isEmpty() && d->LocalFileName == path)
            return d;
    }
    return nullptr;
}

documents::Document *documentByNumber(qint16 filenum)
{
    for (documents::Document *d : documents::AllDocuments()) {
        if (d->filenum == filenum)
            return d;
    }
    return nullptr;
}

QTreeWidgetItem *entry(QTreeWidgetItem *parent, WebsiteTree::Entry kind, const QString &text)
{
    auto *item = new QTreeWidgetItem(parent, QStringList{text});
    item->setData(0, WebsiteTree::KindRole, int(kind));
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled
                   | (kind == WebsiteTree::Entry::WebsiteFile ? Qt::ItemIsDragEnabled : Qt::NoItemFlags));
    return item;
}

QString counted(int n, const char *one, const char *many)
{
    return QString::number(n) + u' ' + QString::fromLatin1(n == 1 ? one : many);
}

WebsiteTree::Entry kindOf(const QTreeWidgetItem *item)
{
    return WebsiteTree::Entry(item->data(0, WebsiteTree::KindRole).toInt());
}

} // namespace

WebsiteTree::WebsiteTree(core::ui::CommandTable *commands, QWidget *parent)
    : QTreeWidget(parent), m_commands(commands)
{
    setObjectName(QStringLiteral("tvFiles"));
    setHeaderHidden(true);
    setColumnCount(1);
    WebsiteList &list = WebsiteList::instance();
    // Many changes in a row make one rebuild.
    connect(&list, &WebsiteList::changed, this, [this] {
        if (!m_refreshPending) {
            m_refreshPending = true;
            QMetaObject::invokeMethod(this, [this] { m_refreshPending = false; refresh(); }, Qt::QueuedConnection);
        }
    });
    connect(&list, &WebsiteList::showResults, this, &WebsiteTree::showResults);
    connect(this, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem *item) { onDoubleClick(item); });
    connect(this, &QTreeWidget::itemSelectionChanged, this, &WebsiteTree::onSelection);
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragOnly);
    refresh();
}

QStringList WebsiteTree::mimeTypes() const
{
    return {QStringLiteral("text/uri-list")};
}

QMimeData *WebsiteTree::mimeData(const QList<QTreeWidgetItem *> &items) const
{
    QList<QUrl> urls;
    for (const QTreeWidgetItem *item : items) {
        if (kindOf(item) == Entry::WebsiteFile)
            urls << QUrl::fromLocalFile(item->data(0, PathRole).toString());
    }
    if (urls.isEmpty())
        return nullptr;
    auto *mime = new QMimeData;
    mime->setUrls(urls);
    documents::ui::MarkResourceDrag(mime, QStringLiteral("tvFiles"));
    return mime;
}

void WebsiteTree::addLinks(QTreeWidgetItem *parent, const LinkRecords &records, const QString &page)
{
    for (const LinkRecord &r : records) {
        QTreeWidgetItem *item = entry(parent, Entry::Link, r.link);
        const QString kind = LinkKindName(r.kind);
        item->setData(0, LinkRole, kind);
        item->setData(0, PathRole, page);
        item->setData(0, LineRole, r.line);
        item->setToolTip(0, QStringLiteral("%1, line %2%3").arg(kind).arg(r.line)
                                .arg(r.localPath.isEmpty() ? QString() : QStringLiteral(": ") + r.localPath));
        QStyle::StandardPixmap icon = QStyle::SP_FileLinkIcon;
        switch (r.kind) {
        case LinkKind::ExtLink: case LinkKind::NetItem: icon = QStyle::SP_DriveNetIcon; break;
        case LinkKind::Image: icon = QStyle::SP_FileIcon; break;
        case LinkKind::BrokenLocal: case LinkKind::BrokenImage: icon = QStyle::SP_MessageBoxWarning; break;
        case LinkKind::LocLink: break;
        }
        bool broken = IsBroken(r.kind);
        if (const ExternalResult *web = WebsiteList::instance().addressResult(r.link)) {
            // The server's answer: broken, or at least not confirmed.
            item->setData(0, AddressRole, ExternalStatusName(web->status));
            item->setToolTip(0, item->toolTip(0) + QStringLiteral(": ") + ExternalStatusName(web->status)
                                    + (web->reason.isEmpty() ? QString() : QStringLiteral(" (") + web->reason + u')'));
            broken = broken || web->status == ExternalStatus::Broken;
            if (web->status == ExternalStatus::Unverified) {
                icon = QStyle::SP_MessageBoxQuestion;
                item->setForeground(0, QColor(0x8a, 0x6d, 0x00));
            }
        }
        if (broken) {
            icon = QStyle::SP_MessageBoxWarning;
            item->setForeground(0, QColor(0xb0, 0x20, 0x20));
        }
        item->setIcon(0, style()->standardIcon(icon));
    }
}

void WebsiteTree::refresh()
{
    if (m_refreshing)
        return;
    m_refreshing = true;
    // Keep what was open and selected across the rebuild.
    QSet<QString> expanded;
    QString selected;
    std::function<QString(QTreeWidgetItem *)> keyOf = [&](QTreeWidgetItem *i) {
        return (i->parent() ? keyOf(i->parent()) + u'/' : QString()) + i->text(0);
    };
    for (QTreeWidgetItemIterator it(this); *it; ++it) {
        if ((*it)->isExpanded())
            expanded.insert(keyOf(*it));
        if ((*it)->isSelected())
            selected = keyOf(*it);
    }
    clear();
    WebsiteList &list = WebsiteList::instance();
    for (int i = 0; i < list.WebsiteCount(); ++i) {
        const int id = list.WebsiteIdAt(i);
        const WebsiteList::Website *w = list.website(id);
        QTreeWidgetItem *site = entry(invisibleRootItem(), Entry::Website, w->name);
        site->setData(0, IdRole, id);
        site->setIcon(0, style()->standardIcon(QStyle::SP_DirHomeIcon));
        site->setToolTip(0, w->projectFile);
        for (int f = 0; f < w->files.size(); ++f) {
            QTreeWidgetItem *file = entry(site, Entry::WebsiteFile, core::FileNameOf(w->files.at(f)));
            file->setData(0, IdRole, id);
            file->setData(0, IndexRole, f);
            file->setData(0, PathRole, w->files.at(f));
            file->setToolTip(0, w->files.at(f));
            if (QFileInfo::exists(w->files.at(f))) {
                file->setIcon(0, style()->standardIcon(QStyle::SP_FileIcon));
            } else {
                file->setIcon(0, style()->standardIcon(QStyle::SP_MessageBoxWarning));
                file->setForeground(0, QColor(0xb0, 0x20, 0x20));
                file->setToolTip(0, w->files.at(f) + tr(" (missing)"));
            }
            addLinks(file, list.fileLinkResults(w->files.at(f)), w->files.at(f));
        }
    }
    const QList<qint16> open = list.openFiles();
    if (!open.isEmpty()) {
        QTreeWidgetItem *docs = entry(invisibleRootItem(), Entry::Documents, tr("Open Documents"));
        for (qint16 num : open) {
            const QString name = list.DocumentFileName(num);
            QTreeWidgetItem *doc = entry(docs, Entry::Document, core::FileNameOf(name));
            doc->setData(0, FilenumRole, int(num));
            doc->setData(0, PathRole, name);
            doc->setToolTip(0, name);
            addLinks(doc, list.linkResults(num), name);
        }
    }
    // A website that was just opened brings its tab to the front.
    if (list.WebsiteCount() > m_shownWebsites)
        bringTabToFront();
    m_shownWebsites = list.WebsiteCount();
    for (QTreeWidgetItemIterator it(this); *it; ++it) {
        const QString key = keyOf(*it);
        if (expanded.contains(key) || !(*it)->parent())
            (*it)->setExpanded(true);
        if (key == selected)
            (*it)->setSelected(true);
    }
    m_refreshing = false;
    const QList<QTreeWidgetItem *> chosen = selectedItems();
    emit described(describe(chosen.isEmpty() ? nullptr : chosen.first()));
}

void WebsiteTree::bringTabToFront()
{
    QTabWidget *tabs = nullptr;
    for (QWidget *w = parentWidget(); w && !tabs; w = w->parentWidget())
        tabs = qobject_cast<QTabWidget *>(w);
    if (!tabs)
        return;
    // The tab's page is this tree or the pane that holds it.
    for (QWidget *page = this; page; page = page->parentWidget()) {
        if (tabs->indexOf(page) >= 0) {
            tabs->setCurrentWidget(page);
            return;
        }
    }
}

QList<QTreeWidgetItem *> WebsiteTree::linkItems(const QString &kind) const
{
    QList<QTreeWidgetItem *> out;
    for (QTreeWidgetItemIterator it(const_cast<WebsiteTree *>(this)); *it; ++it) {
        if (kindOf(*it) == Entry::Link && (kind.isEmpty() || (*it)->data(0, LinkRole).toString() == kind))
            out << *it;
    }
    return out;
}

void WebsiteTree::showResults(const LinkRecords &)
{
    refresh();
    for (QTreeWidgetItem *item : linkItems()) {
        const QString kind = item->data(0, LinkRole).toString();
        if (kind.startsWith(QLatin1String("broken"))) {
            scrollToItem(item);
            break;
        }
    }
}

void WebsiteTree::onSelection()
{
    const QList<QTreeWidgetItem *> items = selectedItems();
    emit described(describe(items.isEmpty() ? nullptr : items.first()));
    if (items.isEmpty())
        return;
    QTreeWidgetItem *item = items.first();
    while (item->parent() && kindOf(item) != Entry::Website)
        item = item->parent();
    if (kindOf(item) == Entry::Website)
        WebsiteList::instance().setCurrentWebsite(item->data(0, IdRole).toInt());
}

void WebsiteTree::WSOpenFile(const QString &path)
{
    if (documents::Document *d = openDocument(path))
        d->activate();
    else
        documents::OpenDocumentFile(path);
}

void WebsiteTree::WSOpenAll(int id)
{
    WebsiteList &list = WebsiteList::instance();
    for (int i = 0; i < list.WebsiteFileCount(id); ++i)
        WSOpenFile(list.WebsiteFileName(id, i));
}

void WebsiteTree::WSCheckAll(int id)
{
    CheckWebsiteLinks(id);
    refresh();
    for (QTreeWidgetItem *site = topLevelItem(0); site; site = itemBelow(site)) {
        if (kindOf(site) == Entry::Website && site->data(0, IdRole).toInt() == id)
            for (int i = 0; i < site->childCount(); ++i)
                site->child(i)->setExpanded(true);
    }
}

void WebsiteTree::WSRefresh(int id)
{
    RefreshWebsite(id);
    refresh();
}

void WebsiteTree::WSPublish(int id)
{
    ShowWebsitePublish(id);
}

QString WebsiteTree::describe(const QTreeWidgetItem *item) const
{
    WebsiteList &list = WebsiteList::instance();
    QStringList lines;
    if (!item) {
        lines << counted(list.WebsiteCount(), "website", "websites") + QStringLiteral(" open.");
        if (list.WebsiteCount() == 0)
            lines << tr("New Website or Open Website (right-click here, or the File menu's Websites) "
                        "lists a website's files here.");
        return lines.join(u'\n');
    }
    const QString path = item->data(0, PathRole).toString();
    switch (kindOf(item)) {
    case Entry::Website: {
        const WebsiteList::Website *w = list.website(item->data(0, IdRole).toInt());
        if (!w)
            break;
        lines << w->name << tr("Project file: %1").arg(w->projectFile);
        if (!w->localDirectory.isEmpty())
            lines << tr("Folder: %1").arg(w->localDirectory);
        if (!w->host.isEmpty())
            lines << tr("FTP server: %1%2").arg(w->host, w->remoteDirectory.isEmpty() ? QString() : u' ' + w->remoteDirectory);
        int missing = 0;
        for (const QString &f : w->files)
            missing += QFileInfo::exists(f) ? 0 : 1;
        lines << counted(int(w->files.size()), "file", "files")
                     + (missing ? QStringLiteral(", %1 missing on disk").arg(missing) : QString());
        if (w->leftOut > 0)
            lines << tr("%1 more files of the project file are not listed: a website holds %2 at most. "
                        "They stay in the project file.").arg(w->leftOut).arg(MaxProjectFileIndex + 1);
        break;
    }
    case Entry::WebsiteFile:
    case Entry::Document: {
        lines << path;
        if (!path.isEmpty() && kindOf(item) == Entry::WebsiteFile && !QFileInfo::exists(path))
            lines << tr("The file is missing on disk.");
        int broken = 0;
        for (int i = 0; i < item->childCount(); ++i)
            broken += item->child(i)->data(0, LinkRole).toString().startsWith(QLatin1String("broken")) ? 1 : 0;
        if (item->childCount() == 0)
            lines << tr("Links not checked, or none found.");
        else
            lines << counted(item->childCount(), "link", "links") + QStringLiteral(", %1 broken").arg(broken);
        break;
    }
    case Entry::Documents:
        lines << counted(item->childCount(), "document", "documents") + QStringLiteral(" open.");
        break;
    case Entry::Link:
        lines << item->text(0) << item->toolTip(0);
        break;
    }
    return lines.join(u'\n');
}

void WebsiteTree::FileOpenLink(QTreeWidgetItem *linkItem)
{
    // Opening a page rebuilds the tree: take what the entry says first.
    const QString page = linkItem->data(0, PathRole).toString();
    const QString link = linkItem->text(0);
    const int num = linkItem->parent() ? linkItem->parent()->data(0, FilenumRole).toInt() : 0;
    documents::Document *doc = num ? documentByNumber(qint16(num)) : nullptr;
    if (!doc) {
        WSOpenFile(page);
        doc = openDocument(page);
    }
    if (!doc)
        return;
    doc->activate();
    doc->txtDoc().SetSel(0, 0);
    LocateLink(doc->txtDoc(), link);
    doc->txtDoc().SetFocus();
}

void WebsiteTree::onDoubleClick(QTreeWidgetItem *item)
{
    switch (kindOf(item)) {
    case Entry::WebsiteFile: WSOpenFile(item->data(0, PathRole).toString()); break;
    case Entry::Document:
        if (documents::Document *d = documentByNumber(qint16(item->data(0, FilenumRole).toInt())))
            d->activate();
        break;
    case Entry::Link: FileOpenLink(item); break;
    case Entry::Website: case Entry::Documents: break;
    }
}

void WebsiteTree::contextMenuEvent(QContextMenuEvent *event)
{
    QTreeWidgetItem *item = itemAt(event->pos());
    QMenu menu(this);
    auto command = [&](const char *name) {
        if (m_commands)
            if (QAction *a = m_commands->action(QString::fromLatin1(name)))
                menu.addAction(a);
    };
    command("mnuProjectMan");
    command("mnuOpenProject");
    QAction *web = menu.addAction(tr("Check Web Addresses Too"));
    web->setCheckable(true);
    web->setChecked(CheckWebAddresses());
    connect(web, &QAction::toggled, this, [](bool on) {
        core::WriteSetting(QStringLiteral("General"), QStringLiteral("Check Web Addresses"), core::YesNo(on));
    });
    if (item) {
        menu.addSeparator();
        const Entry kind = kindOf(item);
        const int id = item->data(0, IdRole).toInt();
        const QString path = item->data(0, PathRole).toString();
        const qint16 num = qint16(item->data(0, FilenumRole).toInt());
        if (kind == Entry::Website) {
            menu.addAction(tr("Add Files..."), this, [id] { WebsiteAddFiles(id); });
            menu.addAction(tr("Open All Files"), this, [this, id] { WSOpenAll(id); });
            menu.addAction(tr("Check All Links"), this, [this, id] { WSCheckAll(id); });
            menu.addAction(tr("Properties..."), this, [this, id] { ShowWebsiteProperties(id, this); });
            menu.addAction(tr("Refresh"), this, [this, id] { WSRefresh(id); });
            menu.addAction(tr("Publish Website..."), this, [this, id] { WSPublish(id); });
            command("mnuUploadProject");
            menu.addAction(tr("Close Website"), this, [id] { CloseWebsite(id); });
        } else if (kind == Entry::WebsiteFile) {
            menu.addAction(tr("Open"), this, [this, path] { WSOpenFile(path); });
            menu.addAction(tr("Check Links"), this, [this, path] { ScanNodeLinks(path); refresh(); });
            const int index = item->data(0, IndexRole).toInt();
            menu.addAction(tr("Remove from Website"), this,
                           [id, index] { WebsiteList::instance().RemoveWebsiteFile(id, index); });
        } else if (kind == Entry::Document) {
            menu.addAction(tr("Check Links"), this, [num] { FileCheck(num); });
            menu.addAction(tr("Check All Open Documents"), this, [] { FileCheckAllLinks(); });
            menu.addAction(tr("Save"), this, [num] {
                if (documents::Document *d = documentByNumber(num))
                    d->Save();
            });
            menu.addAction(tr("Save As..."), this, [num] {
                if (documents::Document *d = documentByNumber(num))
                    d->SaveAs();
            });
            menu.addAction(tr("Save All"), this, [] { documents::SaveAllDocuments(false); });
            menu.addAction(tr("Close"), this, [num] {
                if (documents::Document *d = documentByNumber(num))
                    if (auto *ws = documents::Workspace::instance(); ws && !documents::DocumentCloseQuery(*d))
                        ws->unloadDocument(d);
            });
        } else if (kind == Entry::Link) {
            menu.addAction(tr("Go to Link"), this, [this, item] { FileOpenLink(item); });
        }
    }
    menu.exec(event->globalPos());
}

} // namespace qly::websites::ui
