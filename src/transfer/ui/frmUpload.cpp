#include "transfer/ui/frmUpload.h"

#include "core/Feedback.h"
#include "documents/Workspace.h"
#include "platform/Prompts.h"
#include "transfer/FtpClient.h"
#include "transfer/FtpSession.h"
#include "transfer/Uploader.h"
#include "transfer/WebsiteProjects.h"
#include "websites/WebsiteList.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace qly::transfer::ui {

namespace {

QPointer<frmUpload> g_upload;

QLabel *label(const QString &text, QWidget *parent, const char *name = nullptr)
{
    auto *l = new QLabel(text, parent);
    if (name)
        l->setObjectName(QString::fromLatin1(name));
    return l;
}

} // namespace

frmUpload::frmUpload(QWidget *parent) : QDialog(parent), m_ftp(new FtpClient(this))
{
    setObjectName(QStringLiteral("frmUpload"));
    setWindowTitle(QStringLiteral("Upload Files"));
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(false);
    g_upload = this;

    QLabel *intro = label(QStringLiteral("Upload your website, including its graphics, sound files, and Java animations."),
                          this, "lblIntro");
    intro->setWordWrap(true);

    // Captions on the left, what they describe on the right.
    auto *details = new QGridLayout;
    m_website = label(QString(), this, "lblWebsiteName");
    m_hostDir = label(QString(), this, "lblHostDirName");
    m_which = label(QString(), this, "lblWhichFile");
    m_status = label(QString(), this, "lblStatus");
    for (QLabel *value : {m_website, m_hostDir, m_which, m_status})
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    details->addWidget(label(QStringLiteral("Website:"), this, "lblWebsite"), 0, 0);
    details->addWidget(m_website, 0, 1);
    details->addWidget(label(QStringLiteral("Host Dir:"), this, "lblHostDir"), 1, 0);
    details->addWidget(m_hostDir, 1, 1);
    details->setColumnStretch(1, 1);

    m_lstFilesToSend = new QListWidget(this);
    m_lstFilesToSend->setObjectName(QStringLiteral("lstFilesToSend"));
    m_lstFilesToSend->setMinimumSize(m_lstFilesToSend->fontMetrics().averageCharWidth() * 60,
                                     m_lstFilesToSend->fontMetrics().height() * 10);

    auto *progress = new QGridLayout;
    progress->addWidget(label(QStringLiteral("Current File:"), this, "lblWhich"), 0, 0);
    progress->addWidget(m_which, 0, 1);
    progress->addWidget(label(QStringLiteral("Progress:"), this, "lblftpstatus"), 1, 0);
    progress->addWidget(m_status, 1, 1);
    progress->setColumnStretch(1, 1);
    m_pbProgress = new QProgressBar(this);
    m_pbProgress->setObjectName(QStringLiteral("pbProgress"));
    m_pbProgress->setRange(0, 100);
    m_pbProgress->setVisible(false);
    // The bar keeps its room while hidden, so the window does not jump.
    QSizePolicy keep = m_pbProgress->sizePolicy();
    keep.setRetainSizeWhenHidden(true);
    m_pbProgress->setSizePolicy(keep);

    m_btnSend = new QPushButton(QStringLiteral("Upload"), this);
    m_btnSend->setObjectName(QStringLiteral("btnSend"));
    m_btnSend->setDefault(true);
    auto *close = new QPushButton(QStringLiteral("Close"), this);
    close->setObjectName(QStringLiteral("btnClose"));
    close->setAutoDefault(false);
    connect(m_btnSend, &QPushButton::clicked, this, &frmUpload::btnSend_Click);
    connect(close, &QPushButton::clicked, this, &frmUpload::btnClose_Click);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_btnSend);
    buttons->addWidget(close);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addLayout(details);
    layout->addWidget(m_lstFilesToSend, 1);
    layout->addLayout(progress);
    layout->addWidget(m_pbProgress);
    layout->addLayout(buttons);

    FtpClient &ftp = *m_ftp;
    connect(m_ftp, &FtpClient::ftp_Connect, this, [this] { FTPStatus(QStringLiteral("Connected")); });
    connect(m_ftp, &FtpClient::ftp_Disconnect, this, [this] { FTPStatus(QStringLiteral("Disconnected")); });
    connect(m_ftp, &FtpClient::ftp_LastError, this, [this, &ftp](int code, QString &text) {
        // A transfer stopped by Close is no news to the user closing.
        if (m_closing)
            return;
        const FtpErrorReport report = uploadErrorReport(code, text, ftp);
        if (report.box)
            platform::MsgBox(report.text, platform::Buttons::Ok, report.icon, report.title);
        text = report.status;
        FTPStatus(report.status);
    });
}

frmUpload::~frmUpload() = default;

frmUpload *frmUpload::instance()
{
    return g_upload.data();
}

void frmUpload::FTPStatus(const QString &text)
{
    m_status->setText(text);
}

void frmUpload::Form_Load()
{
    const websites::WebsiteList &sites = websites::WebsiteList::instance();
    const websites::WebsiteList::Website *site = sites.website(websiteId);
    m_website->setText(site ? site->name : QString());
    m_hostDir->setText(site ? site->remoteDirectory : QString());
    m_list = UploadList();
    // The list is filled only while a document window is open.
    if (documents::Workspace::CurrentDocument()) {
        for (int i = 0; i < sites.WebsiteFileCount(websiteId); ++i) {
            const QString name = sites.WebsiteFileName(websiteId, i);
            if (!name.isEmpty())
                m_list.AddFileToSend(name, true, QString());
        }
    }
    showRows();
}

void frmUpload::AddFileToSend(const QString &name, bool flag, const QString &directory)
{
    m_list.AddFileToSend(name, flag, directory);
    showRows();
}

void frmUpload::showRows()
{
    m_lstFilesToSend->clear();
    for (const UploadList::Row &row : m_list.rows) {
        auto *item = new QListWidgetItem(row.text, m_lstFilesToSend);
        item->setData(Qt::UserRole, row.size);
    }
}

void frmUpload::btnSend_Click()
{
    if (m_sending)
        return;
    m_sending = true;
    m_btnSend->setEnabled(false);
    Uploader uploader(*m_ftp, m_list);
    connect(&uploader, &Uploader::status, this, &frmUpload::FTPStatus);
    connect(&uploader, &Uploader::which, m_which, &QLabel::setText);
    connect(&uploader, &Uploader::progress, this,
            [this](int percent, qint64 bytes, qint64 total, int filesDone, int files) {
                m_pbProgress->setVisible(true);
                m_pbProgress->setValue(percent);
                const QLocale locale;
                m_pbProgress->setFormat(QStringLiteral("%p%   %1 of %2, %3/%4 files")
                                            .arg(locale.formattedDataSize(bytes), locale.formattedDataSize(total))
                                            .arg(filesDone)
                                            .arg(files));
            });
    const websites::WebsiteList::Website *site = websites::WebsiteList::instance().website(websiteId);
    const QString projectFile = site ? site->projectFile : QString();
    // Send reads the directory after connecting, which is when ConnectToHost
    // has read it from the project.
    m_directory.clear();
    uploader.Send([this, projectFile] { return ConnectToHost(*m_ftp, projectFile, &m_directory); }, m_directory);
    m_pbProgress->setVisible(false);
    m_pbProgress->setValue(0);
    showRows();
    m_sending = false;
    m_btnSend->setEnabled(true);
    if (m_closing)
        btnClose_Click();
}

void frmUpload::btnClose_Click()
{
    m_closing = true;
    if (m_sending) {
        // The send returns once the transfers have stopped, and closes then.
        m_ftp->AbortTransfer();
        return;
    }
    core::EndWait();
    if (m_ftp->Connected() && !m_ftp->HostName.trimmed().isEmpty()) {
        m_ftp->setAction(FtpClient::Disconnect);
        m_ftp->Quit();
    }
    close();
}

void frmUpload::closeEvent(QCloseEvent *event)
{
    if (m_closing && !m_sending) {
        event->accept();
        return;
    }
    event->ignore();
    btnClose_Click();
}

void frmUpload::reject()
{
    btnClose_Click();
}

frmUpload &ShowUpload(int id, QWidget *parent)
{
    frmUpload *w = frmUpload::instance();
    if (!w)
        w = new frmUpload(parent);
    if (!w->sending()) {
        // A session on another website's server is not reused for this one.
        if (id != w->websiteId && w->ftp().Connected())
            w->ftp().Quit();
        w->websiteId = id;
        w->Form_Load();
    }
    w->show();
    w->raise();
    w->activateWindow();
    return *w;
}

} // namespace qly::transfer::ui
