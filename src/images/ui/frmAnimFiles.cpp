#include "images/ui/frmAnimFiles.h"

#include "core/Paths.h"
#include "core/Settings.h"
#include "core/ui/DialogFlags.h"
#include "core/ui/Help.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QHeaderView>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTreeView>

namespace qly::images::ui {

namespace {

const QString kSection = QStringLiteral("Animator");
const QString kFolderKey = QStringLiteral("Frame Folder");

struct FileType {
    const char *caption;
    QStringList patterns;
};

const QList<FileType> &types()
{
    static const QList<FileType> list{
        {"Animation Frames (*.gif, *.jpg)", {QStringLiteral("*.gif"), QStringLiteral("*.jpg"), QStringLiteral("*.GIF"), QStringLiteral("*.JPG")}},
        {"GIF Files (*.gif)", {QStringLiteral("*.gif"), QStringLiteral("*.GIF")}},
        {"JPEG Files (*.jpg)", {QStringLiteral("*.jpg"), QStringLiteral("*.JPG")}},
        {"All Files (*.*)", {QStringLiteral("*")}},
    };
    return list;
}

} // namespace

frmAnimFiles::frmAnimFiles(QWidget *parent, const QString &start)
    : QDialog(parent, core::ui::kDialogFlags)
{
    setObjectName(QStringLiteral("frmAnimFiles"));
    setWindowTitle(QStringLiteral("Add Animation Frames"));
    m_dirs = new QFileSystemModel(this);
    m_dirs->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    m_dirs->setRootPath(QDir::rootPath());
    m_files = new QFileSystemModel(this);
    m_files->setFilter(QDir::Files);
    m_files->setNameFilterDisables(false);

    m_dirTree = new QTreeView;
    m_dirTree->setModel(m_dirs);
    for (int c = 1; c < m_dirs->columnCount(); ++c)
        m_dirTree->hideColumn(c);
    m_dirTree->header()->hide();
    m_fileList = new QListView;
    m_fileList->setModel(m_files);
    m_fileList->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_fileList->setMouseTracking(true);
    m_txtName = new QLineEdit;
    m_cmbTypes = new QComboBox;
    for (const FileType &t : types())
        m_cmbTypes->addItem(QString::fromLatin1(t.caption));
    m_preview = new QLabel;
    m_preview->setFixedSize(180, 150);
    m_preview->setAlignment(Qt::AlignCenter);
    m_preview->setFrameShape(QFrame::StyledPanel);

    auto *buttons = new QDialogButtonBox;
    QPushButton *add = buttons->addButton(QStringLiteral("&Add"), QDialogButtonBox::AcceptRole);
    add->setDefault(true);
    buttons->addButton(QDialogButtonBox::Cancel);
    core::ui::addHelpButton(buttons, this, QStringLiteral("cmdOptions2"));

    auto *grid = new QGridLayout(this);
    grid->addWidget(new QLabel(QStringLiteral("Folders:")), 0, 0);
    grid->addWidget(new QLabel(QStringLiteral("Files:")), 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("Preview:")), 0, 2);
    grid->addWidget(m_dirTree, 1, 0);
    grid->addWidget(m_fileList, 1, 1);
    grid->addWidget(m_preview, 1, 2, Qt::AlignTop);
    grid->addWidget(new QLabel(QStringLiteral("File Name:")), 2, 0);
    grid->addWidget(m_txtName, 2, 1, 1, 2);
    grid->addWidget(new QLabel(QStringLiteral("Files of Type:")), 3, 0);
    grid->addWidget(m_cmbTypes, 3, 1, 1, 2);
    grid->addWidget(buttons, 4, 0, 1, 3);
    grid->setColumnStretch(0, 2);
    grid->setColumnStretch(1, 3);
    resize(720, 420);

    connect(buttons, &QDialogButtonBox::accepted, this, &frmAnimFiles::cmdAdd_Click);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_cmbTypes, &QComboBox::currentIndexChanged, this, [this] { cmbTypes_Click(); });
    connect(m_dirTree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &index) { setDirectory(m_dirs->filePath(index)); });
    connect(m_fileList->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        QStringList names;
        for (const QModelIndex &index : m_fileList->selectionModel()->selectedIndexes())
            if (index.column() == 0)
                names << QLatin1Char('"') + m_files->fileName(index) + QLatin1Char('"');
        m_txtName->setText(names.size() == 1 ? names.first().mid(1).chopped(1) : names.join(QLatin1Char(' ')));
    });
    connect(m_fileList->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &index) { preview(m_files->filePath(index)); });
    connect(m_fileList, &QListView::entered, this, [this](const QModelIndex &index) { preview(m_files->filePath(index)); });
    connect(m_fileList, &QListView::doubleClicked, this, &frmAnimFiles::cmdAdd_Click);
    // The tree fills in as folders are read: the chosen one is shown when it is there.
    connect(m_dirs, &QFileSystemModel::directoryLoaded, this, [this] {
        m_dirTree->scrollTo(m_dirTree->currentIndex(), QAbstractItemView::PositionAtCenter);
    });

    QString dir = start.isEmpty() ? core::ReadSetting(kSection, kFolderKey) : start;
    if (dir.isEmpty() || !QDir(dir).exists())
        dir = core::GetFileLocation(QStringLiteral("Documents"), true);
    cmbTypes_Click();
    setDirectory(dir);
    m_txtName->setFocus();
}

void frmAnimFiles::cmdAdd_Click()
{
    // A folder typed into the name box is opened rather than added.
    const QString typed = m_txtName->text().trimmed();
    if (typed.isEmpty())
        return;
    const QString folder = QDir::isAbsolutePath(typed) ? typed : core::JoinPath(directory(), typed);
    if (!typed.isEmpty() && !typed.contains(QLatin1Char('"')) && QFileInfo(folder).isDir()) {
        setDirectory(QDir::cleanPath(folder));
        m_txtName->clear();
        return;
    }
    accept();
}

void frmAnimFiles::cmbTypes_Click()
{
    m_files->setNameFilters(types().value(m_cmbTypes->currentIndex()).patterns);
}

void frmAnimFiles::setDirectory(const QString &dir)
{
    m_fileList->setRootIndex(m_files->setRootPath(dir));
    const QModelIndex index = m_dirs->index(dir);
    if (m_dirTree->currentIndex() != index) {
        m_dirTree->setCurrentIndex(index);
        for (QModelIndex up = index.parent(); up.isValid(); up = up.parent())
            m_dirTree->expand(up);
        m_dirTree->scrollTo(index, QAbstractItemView::PositionAtCenter);
    }
}

QString frmAnimFiles::directory() const
{
    return m_files->rootPath();
}

void frmAnimFiles::preview(const QString &file)
{
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    QImage image = reader.read();
    if (image.isNull()) {
        m_preview->clear();
        return;
    }
    if (image.width() > m_preview->width() - 4 || image.height() > m_preview->height() - 4)
        image = image.scaled(m_preview->size() - QSize(4, 4), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    m_preview->setPixmap(QPixmap::fromImage(image));
}

QStringList frmAnimFiles::files() const
{
    QStringList out;
    const QString text = m_txtName->text().trimmed();
    // Quoted names from a selection of several, else one typed name.
    const QStringList names = text.contains(QLatin1Char('"'))
                                  ? text.split(QLatin1Char('"'), Qt::SkipEmptyParts)
                                  : QStringList{text};
    for (const QString &name : names) {
        if (name.trimmed().isEmpty())
            continue;
        out << (QDir::isAbsolutePath(name) ? name : core::JoinPath(directory(), name.trimmed()));
    }
    return out;
}

QStringList frmAnimFiles::pick(QWidget *parent)
{
    frmAnimFiles dialog(parent);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    core::WriteSetting(kSection, kFolderKey, dialog.directory());
    return dialog.files();
}

} // namespace qly::images::ui
