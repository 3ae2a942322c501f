#include "app/ResourceManager.h"

#include "core/Settings.h"
#include "documents/FileFilter.h"

#include <QComboBox>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLabel>
#include <QTabWidget>
#include <QTreeView>
#include <QVBoxLayout>

namespace qly::app {

using namespace core;

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
    m_files = new QFileSystemModel(page);
    m_files->setNameFilterDisables(false);
    m_adcFiles = new QTreeView(page);
    m_adcFiles->setObjectName(QStringLiteral("adcFiles"));
    m_adcFiles->setModel(m_files);
    for (int column = 1; column < m_files->columnCount(); ++column)
        m_adcFiles->hideColumn(column);
    m_adcFiles->header()->hide();
    // A file dragged onto a document becomes a link or an image tag there.
    m_adcFiles->setDragEnabled(true);
    m_adcFiles->setDragDropMode(QAbstractItemView::DragOnly);
    connect(m_adcFiles, &QTreeView::doubleClicked, this, [this](const QModelIndex &index) {
        if (!m_files->isDir(index))
            emit fileActivated(m_files->filePath(index));
    });
    m_cmbFileType = new QComboBox(page);
    m_cmbFileType->setObjectName(QStringLiteral("cmbFileType"));
    connect(m_cmbFileType, &QComboBox::currentIndexChanged, this, &ResourceManager::applyFileType);
    layout->addWidget(m_adcFiles, 1);
    layout->addWidget(m_cmbFileType);
    return page;
}

void ResourceManager::setFilesRoot(const QString &directory)
{
    m_adcFiles->setRootIndex(m_files->setRootPath(directory));
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
