#include "texttools/ui/frmGrep.h"

#include "platform/Prompts.h"
#include "texttools/FileEntries.h"
#include "texttools/ui/GrepRunWindow.h"
#include "texttools/ui/frmFilesFound.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTableWidget>
#include <QVBoxLayout>

namespace qly::texttools::ui {

namespace {

QPointer<frmGrep> g_instance;
constexpr int GridRows = 12;

// The chooser's types and the patterns they stand for.
const std::pair<const char *, const char *> kTypes[] = {
    {"All Files(*.*)", "*"}, {"HTM (*.htm)", "*.htm"}, {"HTML (*.html)", "*.html"},
    {"Graphics", "*.gif *.jpg *.xbm"}, {"Text Files", "*.txt"}};

QPushButton *button(const QString &caption, QWidget *parent, const char *name)
{
    auto *b = new QPushButton(caption, parent);
    b->setObjectName(QString::fromLatin1(name));
    b->setAutoDefault(false);
    return b;
}

} // namespace

frmGrep::frmGrep(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmGrep"));
    setWindowTitle(QStringLiteral("Multi-File Find and Replace"));
    setAcceptDrops(true);
    m_found = new frmFilesFound(this);

    auto *top = new QHBoxLayout;
    top->addWidget(buildChooser(), 1);
    auto *filesBox = new QGroupBox(QStringLiteral("Files to Search"), this);
    m_lstFiles = new QListWidget(filesBox);
    m_lstFiles->setObjectName(QStringLiteral("lstFiles"));
    m_lstFiles->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_lstFiles->installEventFilter(this);
    m_lstFiles->setToolTip(QStringLiteral("Drop files or folders here; Delete removes the chosen entries"));
    QPushButton *remove = button(QStringLiteral("Remo&ve"), filesBox, "imgTrash");
    connect(remove, &QPushButton::clicked, this, [this] { qDeleteAll(m_lstFiles->selectedItems()); });
    auto *filesLayout = new QVBoxLayout(filesBox);
    filesLayout->addWidget(m_lstFiles);
    filesLayout->addWidget(remove, 0, Qt::AlignRight);
    top->addWidget(filesBox, 1);

    auto *bottom = new QHBoxLayout;
    bottom->addWidget(buildTerms(), 2);
    bottom->addWidget(buildOptions(), 1);

    auto *actions = new QHBoxLayout;
    QPushButton *find = button(QStringLiteral("&Find Files"), this, "btnFind");
    QPushButton *replace = button(QStringLiteral("&Replace in Files"), this, "btnReplace");
    QPushButton *close = button(QStringLiteral("Cl&ose"), this, "btnClose");
    connect(find, &QPushButton::clicked, this, &frmGrep::FindAndPresentFiles);
    connect(replace, &QPushButton::clicked, this, &frmGrep::NewReplace);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    actions->addStretch();
    actions->addWidget(find);
    actions->addWidget(replace);
    actions->addWidget(close);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top, 1);
    layout->addLayout(bottom, 1);
    layout->addLayout(actions);
    setDirectory(QDir::currentPath());
    m_grdGrep->setMinimumHeight(m_grdGrep->fontMetrics().height() * 5);
    if (const QScreen *screen = this->screen()) {
        const QSize room = screen->availableGeometry().size() * 9 / 10;
        resize(sizeHint().boundedTo(room));
    }
}

frmGrep &frmGrep::instance(QWidget *parent)
{
    if (!g_instance)
        g_instance = new frmGrep(parent);
    return *g_instance;
}

QWidget *frmGrep::buildChooser()
{
    auto *box = new QGroupBox(QStringLiteral("Choose Files"), this);
    m_txtDir = new QLineEdit(box);
    m_txtDir->setObjectName(QStringLiteral("Dir1"));
    QPushButton *browse = button(QStringLiteral("&Browse..."), box, "btnBrowse");
    m_file1 = new QListWidget(box);
    m_file1->setObjectName(QStringLiteral("File1"));
    m_file1->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_txtFilename = new QLineEdit(box);
    m_txtFilename->setObjectName(QStringLiteral("txtFilename"));
    m_cmbTypes = new QComboBox(box);
    m_cmbTypes->setObjectName(QStringLiteral("cmbTypes"));
    for (const auto &[caption, pattern] : kTypes)
        m_cmbTypes->addItem(QString::fromLatin1(caption), QString::fromLatin1(pattern));
    QPushButton *addFile = button(QStringLiteral("&Add"), box, "btnAddFile");
    QPushButton *addDir = button(QStringLiteral("Add Fol&der"), box, "btnAddDir");

    connect(m_txtDir, &QLineEdit::editingFinished, this, [this] { setDirectory(m_txtDir->text()); });
    connect(browse, &QPushButton::clicked, this, [this] {
        const QString d = QFileDialog::getExistingDirectory(this, QStringLiteral("Choose a Folder"), m_directory);
        if (!d.isEmpty())
            setDirectory(d);
    });
    connect(m_cmbTypes, &QComboBox::currentIndexChanged, this, [this] {
        m_txtFilename->setText(m_cmbTypes->currentData().toString().section(u' ', 0, 0));
        refreshFiles();
    });
    connect(m_file1, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem *item) { addEntry(QDir(m_directory).filePath(item->text())); });
    // The chosen files, or else the name or pattern typed, in the folder.
    connect(addFile, &QPushButton::clicked, this, [this] {
        const QList<QListWidgetItem *> chosen = m_file1->selectedItems();
        for (const QListWidgetItem *item : chosen)
            addEntry(QDir(m_directory).filePath(item->text()));
        if (chosen.isEmpty() && !m_txtFilename->text().isEmpty())
            addEntry(QDir(m_directory).filePath(m_txtFilename->text()));
    });
    connect(addDir, &QPushButton::clicked, this, [this] { addEntry(DirectoryEntry(m_directory)); });

    auto *grid = new QGridLayout(box);
    grid->addWidget(m_txtDir, 0, 0);
    grid->addWidget(browse, 0, 1);
    grid->addWidget(m_file1, 1, 0, 1, 2);
    grid->addWidget(m_txtFilename, 2, 0);
    grid->addWidget(addFile, 2, 1);
    grid->addWidget(m_cmbTypes, 3, 0);
    grid->addWidget(addDir, 3, 1);
    return box;
}

QWidget *frmGrep::buildTerms()
{
    auto *box = new QGroupBox(QStringLiteral("Terms"), this);
    m_grdGrep = new QTableWidget(GridRows, 2, box);
    m_grdGrep->setObjectName(QStringLiteral("grdGrep"));
    m_grdGrep->setHorizontalHeaderLabels({QStringLiteral("Find"), QStringLiteral("Replace With")});
    m_grdGrep->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_txtTerm = new QLineEdit(box);
    m_txtTerm->setObjectName(QStringLiteral("txtTerm"));
    QPushButton *enter = button(QStringLiteral("&Enter Term"), box, "cmdOptions");
    QPushButton *clear = button(QStringLiteral("C&lear"), box, "btnClear");
    connect(enter, &QPushButton::clicked, this, &frmGrep::enterTerm);
    connect(m_txtTerm, &QLineEdit::returnPressed, this, &frmGrep::enterTerm);
    connect(clear, &QPushButton::clicked, this, &frmGrep::clearGrid);
    connect(m_grdGrep, &QTableWidget::currentCellChanged, this, [this](int row, int column) {
        const QTableWidgetItem *item = m_grdGrep->item(row, column);
        m_txtTerm->setText(item ? item->text() : QString());
    });
    auto *grid = new QGridLayout(box);
    grid->addWidget(m_grdGrep, 0, 0, 1, 3);
    grid->addWidget(m_txtTerm, 1, 0);
    grid->addWidget(enter, 1, 1);
    grid->addWidget(clear, 1, 2);
    return box;
}

QWidget *frmGrep::buildOptions()
{
    auto *box = new QWidget(this);
    m_chkBackup = new QCheckBox(QStringLiteral("Create &backups of files"), box);
    m_chkBackup->setObjectName(QStringLiteral("chkBackup"));
    auto *conversion = new QGroupBox(QStringLiteral("Doc. Conversion"), box);
    auto *convLayout = new QVBoxLayout(conversion);
    const QString convCaptions[3] = {QStringLiteral("None"), QStringLiteral("DOS to UNIX"), QStringLiteral("UNIX to DOS ")};
    const char *convNames[3] = {"rbNone", "rbDosToUnix", "rbUnixToDos"};
    for (int i = 0; i < 3; ++i) {
        m_rbConversion[i] = new QRadioButton(convCaptions[i], conversion);
        m_rbConversion[i]->setObjectName(QString::fromLatin1(convNames[i]));
        convLayout->addWidget(m_rbConversion[i]);
    }
    m_rbConversion[0]->setChecked(true);
    m_chkHTMToHTML = new QCheckBox(QStringLiteral("Change .HTM to .HTML"), box);
    m_chkHTMToHTML->setObjectName(QStringLiteral("chkHTMToHTML"));
    auto *nameCase = new QGroupBox(QStringLiteral("Filename Case"), box);
    auto *caseLayout = new QVBoxLayout(nameCase);
    const QString caseCaptions[3] = {QStringLiteral("Don't Change"), QStringLiteral("lower case"), QStringLiteral("Mixed Case")};
    const char *caseNames[3] = {"rbDontChange", "rbLowerCase", "rbMixedCase"};
    for (int i = 0; i < 3; ++i) {
        m_rbCase[i] = new QRadioButton(caseCaptions[i], nameCase);
        m_rbCase[i]->setObjectName(QString::fromLatin1(caseNames[i]));
        caseLayout->addWidget(m_rbCase[i]);
    }
    m_rbCase[0]->setChecked(true);
    // The two groups side by side keep the window short enough for a small
    // screen at a large scale.
    auto *layout = new QGridLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_chkBackup, 0, 0, 1, 2);
    layout->addWidget(m_chkHTMToHTML, 1, 0, 1, 2);
    layout->addWidget(conversion, 2, 0);
    layout->addWidget(nameCase, 2, 1);
    layout->setRowStretch(3, 1);
    return box;
}

bool frmGrep::setDirectory(const QString &directory)
{
    const QDir d(directory);
    if (!d.exists() || !d.isReadable() || !QFileInfo(directory).isExecutable()) {
        platform::MsgBox(QStringLiteral("Quillery is unable to read from the specified drive.  For floppy drives, make "
                                        "sure a disk is in the drive.  For network drives, make sure the drive is "
                                        "available."),
                         platform::Buttons::Ok, platform::Icon::Exclamation);
        m_txtDir->setText(m_directory);
        return false;
    }
    m_directory = d.absolutePath();
    m_txtDir->setText(m_directory);
    refreshFiles();
    return true;
}

void frmGrep::refreshFiles()
{
    m_file1->clear();
    const QStringList patterns = m_cmbTypes->currentData().toString().split(u' ', Qt::SkipEmptyParts);
    m_file1->addItems(QDir(m_directory).entryList(patterns, QDir::Files, QDir::Name | QDir::IgnoreCase));
}

void frmGrep::addEntry(const QString &entry)
{
    if (m_lstFiles->findItems(entry, Qt::MatchExactly).isEmpty())
        m_lstFiles->addItem(entry);
}

void frmGrep::enterTerm()
{
    int row = std::max(m_grdGrep->currentRow(), 0);
    const int column = std::max(m_grdGrep->currentColumn(), 0);
    m_grdGrep->setItem(row, column, new QTableWidgetItem(m_txtTerm->text()));
    // On to the next cell: Find, then Replace With, then the next row.
    if (column == 1 && ++row >= m_grdGrep->rowCount())
        m_grdGrep->insertRow(row);
    m_grdGrep->setCurrentCell(row, 1 - column);
    m_txtTerm->setFocus();
}

void frmGrep::clearGrid()
{
    loadModel();
    if (m_model.clearTerms())
        m_grdGrep->clearContents();
}

GrepModel &frmGrep::loadModel()
{
    m_model.entries.clear();
    for (int i = 0; i < m_lstFiles->count(); ++i)
        m_model.entries << m_lstFiles->item(i)->text();
    m_model.terms.clear();
    for (int row = 0; row < m_grdGrep->rowCount(); ++row) {
        const QTableWidgetItem *find = m_grdGrep->item(row, 0);
        const QTableWidgetItem *with = m_grdGrep->item(row, 1);
        if (find || with)
            m_model.terms << Term{find ? find->text() : QString(), with ? with->text() : QString()};
    }
    RewriteOptions &o = m_model.options;
    o.backup = m_chkBackup->isChecked();
    o.conversion = m_rbConversion[1]->isChecked()   ? LineEndConversion::DosToUnix
                   : m_rbConversion[2]->isChecked() ? LineEndConversion::UnixToDos
                                                    : LineEndConversion::None;
    o.htmToHtml = m_chkHTMToHTML->isChecked();
    o.nameCase = m_rbCase[1]->isChecked()   ? NameCase::Lower
                 : m_rbCase[2]->isChecked() ? NameCase::Mixed
                                            : NameCase::DontChange;
    return m_model;
}

void frmGrep::FindAndPresentFiles()
{
    loadModel();
    m_found->clearList();
    GrepRunWindow run(this, m_found);
    m_model.FindAndPresentFiles(run);
}

void frmGrep::NewReplace()
{
    loadModel();
    {
        GrepRunWindow run(this, nullptr);
        m_model.NewReplace(run);
    }
    refreshFiles();
}

void frmGrep::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void frmGrep::dropEvent(QDropEvent *event)
{
    for (const QUrl &url : event->mimeData()->urls()) {
        const QString path = url.toLocalFile();
        if (path.isEmpty())
            continue;
        addEntry(QFileInfo(path).isDir() ? DirectoryEntry(path) : path);
    }
    event->acceptProposedAction();
}

bool frmGrep::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_lstFiles && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete) {
        qDeleteAll(m_lstFiles->selectedItems());
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace qly::texttools::ui
