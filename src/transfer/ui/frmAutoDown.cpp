#include "transfer/ui/frmAutoDown.h"

#include "core/Feedback.h"
#include "core/HistoryList.h"
#include "core/ui/Help.h"
#include "core/ui/HistoryCombo.h"
#include "platform/Prompts.h"
#include "transfer/FtpClient.h"
#include "transfer/FtpSession.h"
#include "transfer/ui/ServerFields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace qly::transfer::ui {

frmAutoDown::frmAutoDown(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmAutoDown"));
    setWindowTitle(QStringLiteral("Auto Download Website"));
    setModal(true);

    auto *status = new QHBoxLayout;
    auto *caption = new QLabel(QStringLiteral("FTP Status"), this);
    caption->setObjectName(QStringLiteral("lblftpstatus"));
    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("lblStatus"));
    m_status->setFrameShape(QFrame::StyledPanel);
    m_status->setMinimumWidth(m_status->fontMetrics().averageCharWidth() * 40);
    m_counts = new QLabel(this);
    m_counts->setObjectName(QStringLiteral("lblCounts"));
    status->addWidget(caption);
    status->addWidget(m_status, 1);

    auto *buttons = new QDialogButtonBox(this);
    const auto add = [buttons](const QString &caption, QDialogButtonBox::ButtonRole role, const char *name) {
        QPushButton *b = buttons->addButton(caption, role);
        b->setObjectName(QString::fromLatin1(name));
        return b;
    };
    m_btnFetch = add(QStringLiteral("Download"), QDialogButtonBox::ActionRole, "btnFetch");
    m_btnFetch->setDefault(true);
    connect(m_btnFetch, &QPushButton::clicked, this, &frmAutoDown::btnFetch_Click);
    connect(add(QStringLiteral("Edit Server List"), QDialogButtonBox::ActionRole, "btnEditServers"),
            &QPushButton::clicked, this, &frmAutoDown::btnEditServers_Click);
    connect(add(QStringLiteral("Close"), QDialogButtonBox::ActionRole, "btnClose"), &QPushButton::clicked, this,
            &frmAutoDown::btnClose_Click);
    connect(add(QStringLiteral("Help"), QDialogButtonBox::HelpRole, "Command1"), &QPushButton::clicked, this,
            [this] { core::ui::OpenHelp(objectName()); });

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(buildServer());
    layout->addWidget(buildSite());
    layout->addLayout(status);
    layout->addWidget(m_counts);
    layout->addWidget(buttons);
    m_cmbHost->setFocus();
}

frmAutoDown::~frmAutoDown() = default;

QWidget *frmAutoDown::buildServer()
{
    auto *box = new QGroupBox(QStringLiteral("Web Server"), this);
    m_cmbHost = serverCombo(box);
    m_cmbHost->setEditText(QString());
    m_txtRemoteDirectory = namedField(box, "txtRemoteDirectory");
    m_txtLoginAs = namedField(box, "txtLoginAs");
    m_txtPassword = namedField(box, "txtPassword");
    m_txtPassword->setEchoMode(QLineEdit::Password);
    m_txtIndexURL = namedField(box, "txtIndexURL");
    m_txtIndexURL->setPlaceholderText(QStringLiteral("index.htm"));
    auto *form = new QFormLayout(box);
    form->addRow(QStringLiteral("Host"), m_cmbHost);
    form->addRow(QStringLiteral("Directory"), m_txtRemoteDirectory);
    form->addRow(QStringLiteral("Login As"), m_txtLoginAs);
    form->addRow(QStringLiteral("Password"), m_txtPassword);
    form->addRow(QStringLiteral("Name of Index Page"), m_txtIndexURL);
    return box;
}

QWidget *frmAutoDown::buildSite()
{
    auto *box = new QGroupBox(QStringLiteral("Save To"), this);
    m_txtsavedirectory = namedField(box, "txtsavedirectory");
    auto *browse = new QToolButton(box);
    browse->setObjectName(QStringLiteral("btnBrowse"));
    browse->setText(QStringLiteral("..."));
    browse->setToolTip(QStringLiteral("Choose the folder"));
    connect(browse, &QToolButton::clicked, this, [this] {
        const QString dir = platform::prompts().chooseDirectory(QStringLiteral("Save the Site In"),
                                                                m_txtsavedirectory->text());
        if (!dir.isEmpty())
            m_txtsavedirectory->setText(dir);
    });
    auto *directory = new QHBoxLayout;
    directory->addWidget(m_txtsavedirectory, 1);
    directory->addWidget(browse);
    m_txtprojectname = namedField(box, "txtprojectname");
    m_chkfetchimages = new QCheckBox(QStringLiteral("Fetch Images"), box);
    m_chkfetchimages->setObjectName(QStringLiteral("chkfetchimages"));
    m_chkfetchimages->setChecked(true);
    m_chkoverwrite = new QCheckBox(QStringLiteral("Overwrite Existing Files"), box);
    m_chkoverwrite->setObjectName(QStringLiteral("chkoverwrite"));
    auto *checks = new QHBoxLayout;
    checks->addWidget(m_chkfetchimages);
    checks->addWidget(m_chkoverwrite);
    checks->addStretch();
    auto *form = new QFormLayout(box);
    form->addRow(QStringLiteral("Directory"), directory);
    form->addRow(QStringLiteral("Website Name"), m_txtprojectname);
    form->addRow(checks);
    return box;
}

SiteDownloadFields frmAutoDown::fields() const
{
    SiteDownloadFields f;
    f.host = m_cmbHost->currentText().trimmed();
    f.remoteDirectory = m_txtRemoteDirectory->text().trimmed();
    f.login = m_txtLoginAs->text();
    f.password = m_txtPassword->text();
    f.indexUrl = m_txtIndexURL->text().trimmed();
    f.saveDirectory = m_txtsavedirectory->text().trimmed();
    f.projectName = m_txtprojectname->text().trimmed();
    f.fetchImages = m_chkfetchimages->isChecked();
    f.overwrite = m_chkoverwrite->isChecked();
    return f;
}

void frmAutoDown::setFields(const SiteDownloadFields &f)
{
    m_cmbHost->setEditText(f.host);
    m_txtRemoteDirectory->setText(f.remoteDirectory);
    m_txtLoginAs->setText(f.login);
    m_txtPassword->setText(f.password);
    m_txtIndexURL->setText(f.indexUrl);
    m_txtsavedirectory->setText(f.saveDirectory);
    m_txtprojectname->setText(f.projectName);
    m_chkfetchimages->setChecked(f.fetchImages);
    m_chkoverwrite->setChecked(f.overwrite);
}

void frmAutoDown::FTPStatus(const QString &text)
{
    m_status->setText(text);
}

void frmAutoDown::btnFetch_Click()
{
    if (m_run)
        return;
    SiteDownloadFields f = fields();
    const QString fault = validateSiteDownload(f);
    if (!f.saveDirectory.isEmpty())
        m_txtsavedirectory->setText(f.saveDirectory);
    if (!fault.isEmpty()) {
        if (auto *w = findChild<QWidget *>(fault))
            w->setFocus();
        return;
    }
    core::ui::StoreHistoryCombo(m_cmbHost, serversHistory());

    FtpClient &ftp = sharedSession();
    // The shared session may be open on another server, or as another user.
    if (ftp.Connected()
        && (ftp.HostName.compare(f.host, Qt::CaseInsensitive) != 0 || ftp.UserName != f.login))
        ftp.Quit();
    SiteDownload run(ftp, f);
    m_run = &run;
    connect(&run, &SiteDownload::status, this, &frmAutoDown::FTPStatus);
    connect(&run, &SiteDownload::progress, this, [this](int pagesDone, int pagesKnown, int filesFetched) {
        m_counts->setText(QStringLiteral("%1 of %2 pages read, %3 files fetched")
                              .arg(pagesDone + 1)
                              .arg(pagesKnown + 1)
                              .arg(filesFetched));
    });
    m_btnFetch->setEnabled(false);
    m_counts->clear();
    core::BeginWait();
    run.run();
    core::EndWait();
    m_run = nullptr;
    m_btnFetch->setEnabled(true);
    if (m_closeAfterRun)
        QDialog::reject();
}

void frmAutoDown::btnEditServers_Click()
{
    QDialog edit(this);
    edit.setObjectName(QStringLiteral("frmEditServers"));
    edit.setWindowTitle(QStringLiteral("Edit Server List"));
    auto *text = new QPlainTextEdit(&edit);
    text->setObjectName(QStringLiteral("txtServers"));
    text->setPlainText(core::ReadHistory(serversHistory()).join(u'\n'));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &edit);
    connect(buttons, &QDialogButtonBox::accepted, &edit, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &edit, &QDialog::reject);
    auto *layout = new QVBoxLayout(&edit);
    layout->addWidget(new QLabel(QStringLiteral("One server a line, the most used first:"), &edit));
    layout->addWidget(text);
    layout->addWidget(buttons);
    if (edit.exec() != QDialog::Accepted)
        return;
    QStringList servers;
    for (const QString &line : text->toPlainText().split(u'\n'))
        servers << line.trimmed();
    core::WriteHistory(serversHistory(), servers);
    core::ui::FillHistoryCombo(m_cmbHost, serversHistory());
}

void frmAutoDown::btnClose_Click()
{
    if (m_run) {
        // The run returns at its next step, and the window closes then.
        m_run->cancel();
        m_closeAfterRun = true;
        return;
    }
    QDialog::reject();
}

void frmAutoDown::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_run) {
        // Stops the download; the window stays.
        m_run->cancel();
        FTPStatus(QStringLiteral("Cancelling..."));
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

void frmAutoDown::reject()
{
    btnClose_Click();
}

void ShowAutoDown(QWidget *parent)
{
    frmAutoDown dialog(parent);
    dialog.exec();
}

} // namespace qly::transfer::ui
