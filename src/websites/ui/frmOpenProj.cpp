#include "websites/ui/frmOpenProj.h"

#include "core/Globals.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/ui/Help.h"
#include "platform/Prompts.h"
#include "websites/ProjectFile.h"
#include "websites/ui/frmProjectManager.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace qly::websites::ui {

frmOpenProj::frmOpenProj(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmOpenProj"));
    setWindowTitle(QStringLiteral("Open Website"));
    auto *layout = new QVBoxLayout(this);
    auto *top = new QHBoxLayout;
    m_path = new QLineEdit(this);
    m_path->setObjectName(QStringLiteral("Dir1"));
    auto *browse = new QPushButton(QStringLiteral("&Folder..."), this);
    top->addWidget(m_path, 1);
    top->addWidget(browse);
    layout->addLayout(top);
    m_files = new QTreeWidget(this);
    m_files->setObjectName(QStringLiteral("File1"));
    m_files->setHeaderLabels({QStringLiteral("File"), QStringLiteral("Website Name")});
    m_files->setRootIsDecorated(false);
    m_files->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    layout->addWidget(m_files, 1);
    m_txtFile = new QLineEdit(this);
    m_txtFile->setObjectName(QStringLiteral("txtFile"));
    layout->addWidget(m_txtFile);
    m_cmbTypes = new QComboBox(this);
    m_cmbTypes->setObjectName(QStringLiteral("cmbTypes"));
    m_cmbTypes->addItem(QStringLiteral("Project Files (*.PRJ)"), QStringLiteral("*.PRJ"));
    m_cmbTypes->addItem(QStringLiteral("All Files (*.*)"), QStringLiteral("*.*"));
    layout->addWidget(m_cmbTypes);
    m_chkOpenFiles = new QCheckBox(QStringLiteral("Open all website files"), this);
    m_chkOpenFiles->setObjectName(QStringLiteral("chkOpenFiles"));
    m_chkOpenFiles->setChecked(core::ReadSettingFlag(QStringLiteral("General"), QStringLiteral("Open All Proj Files")));
    layout->addWidget(m_chkOpenFiles);
    auto *buttons = new QDialogButtonBox(this);
    const QStringList captions = {QStringLiteral("&Open"), QStringLiteral("Cancel"), QString(),
                                  QStringLiteral("Website &Manager..."), QStringLiteral("Help")};
    for (int i = 0; i < captions.size(); ++i) {
        if (captions.at(i).isEmpty())
            continue;
        QPushButton *b = buttons->addButton(captions.at(i), QDialogButtonBox::ActionRole);
        b->setObjectName(QStringLiteral("cmdOptions%1").arg(i));
        connect(b, &QPushButton::clicked, this, [this, i] { cmdOptions_Click(i); });
        if (i == 0)
            b->setDefault(true);
    }
    layout->addWidget(buttons);

    connect(browse, &QPushButton::clicked, this, [this] {
        const QString dir = platform::prompts().chooseDirectory(core::versionCaption() + QStringLiteral(" - Choose Directory"), m_dir);
        if (!dir.isEmpty())
            setDirectory(dir);
    });
    connect(m_path, &QLineEdit::editingFinished, this, [this] { setDirectory(m_path->text()); });
    connect(m_cmbTypes, &QComboBox::currentIndexChanged, this, &frmOpenProj::fill);
    connect(m_files, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *item) {
        if (item)
            m_txtFile->setText(item->data(0, Qt::UserRole).toString());
    });
    connect(m_files, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem *item) {
        if (item->data(0, Qt::UserRole + 1).toBool())
            setDirectory(item->data(0, Qt::UserRole).toString());
        else
            cmdOptions_Click(0);
    });
    connect(m_chkOpenFiles, &QCheckBox::toggled, this, [](bool on) {
        core::WriteSetting(QStringLiteral("General"), QStringLiteral("Open All Proj Files"), core::YesNo(on));
    });
    setDirectory(core::ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Documents")));
    resize(560, 420);
}

void frmOpenProj::setDirectory(const QString &dir)
{
    m_dir = core::DirExists(dir) ? QDir(dir).absolutePath() : QDir::homePath();
    m_path->setText(m_dir);
    fill();
}

void frmOpenProj::fill()
{
    m_files->clear();
    QDir dir(m_dir);
    if (!dir.isRoot()) {
        auto *up = new QTreeWidgetItem(m_files, QStringList{QStringLiteral("[..]")});
        up->setData(0, Qt::UserRole, QDir(m_dir + QStringLiteral("/..")).absolutePath());
        up->setData(0, Qt::UserRole + 1, true);
    }
    for (const QFileInfo &info : dir.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase)) {
        auto *item = new QTreeWidgetItem(m_files, QStringList{QStringLiteral("[%1]").arg(info.fileName())});
        item->setData(0, Qt::UserRole, info.absoluteFilePath());
        item->setData(0, Qt::UserRole + 1, true);
    }
    const QString pattern = m_cmbTypes->currentData().toString();
    QStringList filters;
    if (pattern != QLatin1String("*.*"))
        filters << pattern.toLower() << pattern;
    for (const QFileInfo &info : dir.entryInfoList(filters, QDir::Files, QDir::Name | QDir::IgnoreCase)) {
        const QString name = ReadProjectValue(info.absoluteFilePath(), QStringLiteral("Details"), QStringLiteral("Name"));
        auto *item = new QTreeWidgetItem(m_files, QStringList{info.fileName(), name});
        item->setData(0, Qt::UserRole, info.absoluteFilePath());
    }
}

void frmOpenProj::cmdOptions_Click(int index)
{
    switch (index) {
    case 0: m_tag = m_txtFile->text(); break;
    case 1: m_tag = QStringLiteral("CANCEL"); break;
    case 3: m_tag = QStringLiteral("/PROJMANG/") + m_txtFile->text(); break;
    default: core::ui::OpenHelp(objectName()); return;
    }
    if (index == 0 && m_tag.isEmpty())
        return;
    if (index != 1 && !m_tag.contains(u'/'))
        m_tag = (index == 3 ? QStringLiteral("/PROJMANG/") : QString()) + core::JoinPath(m_dir, m_txtFile->text());
    accept();
}

void frmOpenProj::keyPressEvent(QKeyEvent *event)
{
    QTreeWidgetItem *item = m_files->currentItem();
    if (event->key() == Qt::Key_Delete && m_files->hasFocus() && item && !item->data(0, Qt::UserRole + 1).toBool()) {
        const QString path = item->data(0, Qt::UserRole).toString();
        if (platform::MsgBox(QStringLiteral("Are you sure you want to delete the file ") + core::FileNameOf(path)
                                 + u'?',
                             platform::Buttons::YesNo, platform::Icon::Question, QStringLiteral("Delete File?"))
            == platform::Answer::Yes) {
            QFile::remove(path);
            fill();
        }
        return;
    }
    QDialog::keyPressEvent(event);
}

QString ChooseWebsiteFile(QWidget *parent)
{
    frmOpenProj dialog(parent);
    dialog.exec();
    const QString tag = dialog.tag();
    if (tag.isEmpty() || tag == QLatin1String("CANCEL"))
        return {};
    if (tag.startsWith(QLatin1String("/PROJMANG/"))) {
        ShowProjectManagerFor(tag.mid(10), parent);
        return {};
    }
    return tag;
}

} // namespace qly::websites::ui
