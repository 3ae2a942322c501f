#include "websites/ui/frmProjectManager.h"

#include "core/Globals.h"
#include "core/Paths.h"
#include "platform/Prompts.h"
#include "websites/Password.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QAction>
#include <QStyle>

namespace qly::websites::ui {

frmProjectManager::frmProjectManager(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmProjectManager"));
    setWindowTitle(QStringLiteral("Website Manager"));
    auto *layout = new QVBoxLayout(this);
    m_form = new QFormLayout;
    layout->addLayout(m_form);
    using M = ProjectManagerModel;
    field(QStringLiteral("txtName"), QStringLiteral("Website Name:"), &M::txtName);
    QLineEdit *dir = field(QStringLiteral("txtProjectDirectory"), QStringLiteral("Website Dir:"), &M::txtProjectDirectory);
    field(QStringLiteral("txtWebServer"), QStringLiteral("FTP Server:"), &M::txtWebServer);
    field(QStringLiteral("txtWebDirectory"), QStringLiteral("FTP Directory:"), &M::txtWebDirectory);
    field(QStringLiteral("txtLoginAs"), QStringLiteral("Login As:"), &M::txtLoginAs);
    field(QStringLiteral("txtPassword"), QStringLiteral("Password:"), &M::txtPassword)->setEchoMode(QLineEdit::Password);
    QLineEdit *docs = field(QStringLiteral("txtFile1"), QStringLiteral("Documents:"), &M::txtDocuments);
    QLineEdit *graphics = field(QStringLiteral("txtFile2"), QStringLiteral("Graphics Files:"), &M::txtGraphics);
    // The browse buttons pick a directory.
    auto browse = [this](QLineEdit *target, bool fromProjectDir) {
        const QString start = fromProjectDir && core::DirExists(m_model.txtProjectDirectory) ? m_model.txtProjectDirectory
                                                                                             : target->text();
        const QString dir = platform::prompts().chooseDirectory(
            core::versionCaption() + QStringLiteral(" - Choose Directory"), start);
        if (!dir.isEmpty())
            target->setText(dir);
    };
    for (auto [edit, fromProject] : {std::pair{dir, false}, std::pair{docs, true}, std::pair{graphics, true}}) {
        QAction *action = edit->addAction(style()->standardIcon(QStyle::SP_DirOpenIcon), QLineEdit::TrailingPosition);
        action->setToolTip(QStringLiteral("Choose Directory"));
        connect(action, &QAction::triggered, this, [browse, edit, fromProject] { browse(edit, fromProject); });
    }
    if (secretStore().available()) {
        m_keyring = new QCheckBox(QStringLiteral("Keep the password in the desktop's key ring"), this);
        m_keyring->setObjectName(QStringLiteral("chkKeyring"));
        m_form->addRow(QString(), m_keyring);
        connect(m_keyring, &QCheckBox::toggled, this, [this](bool on) {
            m_model.keepInKeyring = on;
            if (!m_loading)
                m_model.changed = true;
        });
    }
    m_facts = new QLabel(this);
    m_facts->setObjectName(QStringLiteral("lblFacts"));
    m_facts->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(m_facts);
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *save = buttons->addButton(QStringLiteral("&Save"), QDialogButtonBox::AcceptRole);
    save->setObjectName(QStringLiteral("btnSave"));
    QPushButton *reset = buttons->addButton(QStringLiteral("Reset Timer"), QDialogButtonBox::ActionRole);
    reset->setObjectName(QStringLiteral("btnReset"));
    QPushButton *close = buttons->addButton(QStringLiteral("&Close"), QDialogButtonBox::RejectRole);
    close->setObjectName(QStringLiteral("btnClose"));
    connect(save, &QPushButton::clicked, this, &frmProjectManager::btnSave_Click);
    connect(reset, &QPushButton::clicked, this, [this] { m_model.ResetTimer(); showLabels(); });
    connect(close, &QPushButton::clicked, this, &frmProjectManager::reject);
    layout->addWidget(buttons);
    resize(520, sizeHint().height());
}

QLineEdit *frmProjectManager::field(const QString &name, const QString &caption, QString ProjectManagerModel::*member)
{
    auto *edit = new QLineEdit(this);
    edit->setObjectName(name);
    m_form->addRow(caption, edit);
    m_fields.append({edit, member});
    connect(edit, &QLineEdit::textChanged, this, [this, member](const QString &text) {
        m_model.*member = text;
        if (!m_loading)
            m_model.changed = true;
    });
    return edit;
}

void frmProjectManager::load()
{
    m_loading = true;
    m_model.LoadWebsiteForm();
    for (auto &[edit, member] : m_fields)
        edit->setText(m_model.*member);
    if (m_keyring)
        m_keyring->setChecked(m_model.keepInKeyring);
    m_loading = false;
    m_model.changed = false;
    showLabels();
}

void frmProjectManager::showLabels()
{
    const ProjectManagerModel &m = m_model;
    QStringList lines;
    auto add = [&](const QString &label, const QString &value) {
        if (!value.isEmpty())
            lines << label + QStringLiteral(": ") + value;
    };
    add(QStringLiteral("Project file"), m.lblProjFile);
    add(QStringLiteral("Created"), m.lblProjectCreated);
    add(QStringLiteral("Last opened"), m.lblLastOpened);
    add(QStringLiteral("Time spent"), m.lblTimeSpent);
    add(QStringLiteral("Files"), m.lblNumberOfFiles);
    add(QStringLiteral("Size"), m.lblSize);
    add(QStringLiteral("Modified"), m.lblDateModified);
    m_facts->setText(lines.join(u'\n'));
}

void frmProjectManager::btnSave_Click()
{
    if (m_model.SaveWebsiteForm())
        accept();
    else if (m_model.txtName.isEmpty())
        findChild<QLineEdit *>(QStringLiteral("txtName"))->setFocus();
}

void frmProjectManager::reject()
{
    m_model.CloseQuery();
    QDialog::reject();
}

void ShowProjectManager(QWidget *parent)
{
    frmProjectManager dialog(parent);
    dialog.load();
    dialog.exec();
}

void ShowWebsiteProperties(int id, QWidget *parent)
{
    frmProjectManager dialog(parent);
    dialog.model().setWebsite(id);
    dialog.load();
    dialog.exec();
}

void ShowProjectManagerFor(const QString &projectFile, QWidget *parent)
{
    frmProjectManager dialog(parent);
    dialog.model().setProjectFile(projectFile);
    dialog.load();
    dialog.exec();
}

} // namespace qly::websites::ui
