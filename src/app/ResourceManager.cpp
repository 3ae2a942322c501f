#include "app/ResourceManager.h"

#include "core/Paths.h"
#include "core/Settings.h"
#include "core/ui/Divider.h"
#include "documents/FileFilter.h"
#include "documents/ui/FileDrops.h"

#include <QComboBox>
#include <QDir>
#include <QListView>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLabel>
#include <QTabWidget>
#include <QTreeView>
#include <QVBoxLayout>

namespace qly::app {

using namespace core;
using core::ui::Divider;

namespace {

// The file view's files; a drag of them says that it comes from the view.
class ResourceFiles : public QFileSystemModel
{
public:
    using QFileSystemModel::QFileSystemModel;
    // Files are dragged; folders are gone into with a double-click.
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        const Qt::ItemFlags f = QFileSystemModel::flags(index);
        return isDir(index) ? f & ~Qt::ItemIsDragEnabled : f;
    }
    QMimeData *mimeData(const QModelIndexList &indexes) const override
    {
        QMimeData *mime = QFileSystemModel::mimeData(indexes);
        documents::ui::MarkResourceDrag(mime, QStringLiteral("adcFiles"));
        return mime;
    }
};

} // namespace

ResourceManager::ResourceManager(QWidget *parent)
    : QDockWidget(tr("Resource Manager"), parent)
{
    setObjectName(QStringLiteral("picDocs"));
    setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
    m_tabMain = new QTabWidget(this);
    m_tabMain->setObjectName(QStringLiteral("tabMain"));
    m_tabMain->addTab(buildFilesTab(), QStringLiteral("Files"));
    m_tabMain->addTab(placeholder(tr("The website tree appears here once website projects are available.")),
                      QStringLiteral("Website"));
    m_tabMain->addTab(placeholder(tr("The tag tree appears here once the tag catalogue is available.")),
                      QStringLiteral("Tags"));
    m_tabMain->addTab(placeholder(tr("Browser bookmarks appear here once bookmark views are available.")),
                      QStringLiteral("Bookmarks"));
    setWidget(m_tabMain);
}

QWidget *ResourceManager::placeholder(const QString &text)
{
    auto *label = new QLabel(text);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    label->setMargin(8);
    label->setEnabled(false);
    return label;
}

void ResourceManager::setTabContent(const QString &tab, QWidget *content)
{
    for (int i = 0; i < m_tabMain->count(); ++i) {
        if (m_tabMain->tabText(i) != tab)
            continue;
        QWidget *old = m_tabMain->widget(i);
        m_tabMain->removeTab(i);
        m_tabMain->insertTab(i, content, tab);
        old->deleteLater();
        return;
    }
}

QWidget *ResourceManager::buildFilesTab()
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(2, 2, 2, 2);
    m_folders = new QFileSystemModel(page);
    m_folders->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
    m_folders->setRootPath(QString());
    connect(m_folders, &QFileSystemModel::directoryLoaded, this, [this](const QString &path) {
        // After the sort that follows the load.
        if (m_shownFolder.startsWith(path))
            QMetaObject::invokeMethod(this, &ResourceManager::showFolder, Qt::QueuedConnection);
    });
    m_folderView = new QTreeView;
    m_folderView->setObjectName(QStringLiteral("adcFolders"));
    m_folderView->setModel(m_folders);
    for (int column = 1; column < m_folders->columnCount(); ++column)
        m_folderView->hideColumn(column);
    m_folderView->header()->hide();
    m_files = new ResourceFiles(page);
    m_files->setFilter(QDir::AllDirs | QDir::Files | QDir::NoDotAndDotDot);
    m_files->setNameFilterDisables(false);
    m_fileList = new QListView;
    m_fileList->setObjectName(QStringLiteral("lstFiles"));
    m_fileList->setModel(m_files);
    // A file dragged onto a document becomes a link or an image tag there.
    m_fileList->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_fileList->setDragEnabled(true);
    m_fileList->setDragDropMode(QAbstractItemView::DragOnly);
    connect(m_folderView, &QTreeView::clicked, this,
            [this](const QModelIndex &index) { setFilesRoot(m_folders->filePath(index)); });
    connect(m_fileList, &QListView::doubleClicked, this, [this](const QModelIndex &index) {
        if (m_files->isDir(index))
            setFilesRoot(m_files->filePath(index));
        else
            emit fileActivated(m_files->filePath(index));
    });
    auto *adcFiles = new Divider(m_folderView, m_fileList);
    adcFiles->setObjectName(QStringLiteral("adcFiles"));
    m_cmbFileType = new QComboBox(page);
    m_cmbFileType->setObjectName(QStringLiteral("cmbFileType"));
    connect(m_cmbFileType, &QComboBox::currentIndexChanged, this, &ResourceManager::applyFileType);
    layout->addWidget(adcFiles, 1);
    layout->addWidget(m_cmbFileType);
    const QString documents = ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Documents"));
    setFilesRoot(DirExists(documents) ? documents : QDir::homePath());
    return page;
}

void ResourceManager::setFilesRoot(const QString &directory)
{
    m_fileList->setRootIndex(m_files->setRootPath(directory));
    m_shownFolder = QDir::cleanPath(directory);
    showFolder();
}

void ResourceManager::showFolder()
{
    // The folders load as they are read; the chosen one is shown once its
    // parents are there.
    const QModelIndex folder = m_folders->index(m_shownFolder);
    if (!folder.isValid())
        return;
    if (m_folderView->currentIndex() != folder)
        m_folderView->setCurrentIndex(folder);
    m_folderView->scrollTo(folder, QAbstractItemView::PositionAtCenter);
}

QString ResourceManager::filesRoot() const
{
    return m_files->rootPath();
}

core::ui::Divider *ResourceManager::divider(const QString &tab) const
{
    for (int i = 0; i < m_tabMain->count(); ++i) {
        if (m_tabMain->tabText(i) == tab) {
            QWidget *page = m_tabMain->widget(i);
            if (auto *own = qobject_cast<Divider *>(page))
                return own;
            return page->findChild<Divider *>();
        }
    }
    return nullptr;
}

void ResourceManager::InitializeFileList()
{
    const QString masks = documents::WebPageMasks();
    m_cmbFileType->clear();
    m_cmbFileType->addItem(QStringLiteral("Web Pages (") + masks + u')');
    m_cmbFileType->addItem(QStringLiteral("Graphics (*.jpg;*.gif)"));
    m_cmbFileType->addItem(QStringLiteral("All Files (*.*)"));
    for (const QString &line : ReadSection(QStringLiteral("Extra File Types"))) {
        const qsizetype eq = line.indexOf(u'=');
        if (eq > 0)
            m_cmbFileType->addItem(line.left(eq) + QStringLiteral(" (") + line.mid(eq + 1) + u')');
    }
    m_cmbFileType->setCurrentIndex(0);
    applyFileType();
}

void ResourceManager::applyFileType()
{
    // The mask between the parentheses of the chosen line, or the line itself.
    const QString line = m_cmbFileType->currentText();
    const qsizetype open = line.indexOf(u'(');
    const qsizetype close = line.lastIndexOf(u')');
    QString mask = (open >= 0 && close > open) ? line.mid(open + 1, close - open - 1) : line;
    QStringList filters = mask.split(u';', Qt::SkipEmptyParts);
    for (QString &f : filters) {
        f = f.trimmed();
        if (f == QLatin1String("*.*"))
            f = QStringLiteral("*");
    }
    m_files->setNameFilters(filters);
}

} // namespace qly::app
