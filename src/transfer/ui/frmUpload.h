#pragma once

#include "transfer/UploadList.h"

#include <QDialog>

class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;

namespace qly::transfer {
class FtpClient;
}

namespace qly::transfer::ui {

// "Upload Files": the files of a website, each with the files its links
// name, sent by FTP to the website's server. The window has its own
// session, opened by Upload and left open until Close. One window at a
// time, not modal.
class frmUpload final : public QDialog
{
    Q_OBJECT
public:
    explicit frmUpload(QWidget *parent = nullptr);
    ~frmUpload() override;

    // The one window, or null when none is open.
    static frmUpload *instance();

    // The website uploaded; 0 until the caller sets it.
    int websiteId = 0;

    // The website's name and remote directory, and the list: every file of
    // the website with what its links name, while a document window is open.
    void Form_Load();
    void AddFileToSend(const QString &name, bool flag = true, const QString &directory = {});
    // Connects when needed, makes the remote directories and sends the list.
    void btnSend_Click();
    // Ends the session and closes the window.
    void btnClose_Click();
    void FTPStatus(const QString &text);

    FtpClient &ftp() const { return *m_ftp; }
    const UploadList &list() const { return m_list; }
    bool sending() const { return m_sending; }

protected:
    void closeEvent(QCloseEvent *event) override;
    void reject() override;

private:
    void showRows();

    FtpClient *m_ftp = nullptr;
    UploadList m_list;
    QListWidget *m_lstFilesToSend = nullptr;
    QPushButton *m_btnSend = nullptr;
    QProgressBar *m_pbProgress = nullptr;
    QLabel *m_website = nullptr;
    QLabel *m_hostDir = nullptr;
    QLabel *m_which = nullptr;
    QLabel *m_status = nullptr;
    QString m_directory;
    bool m_sending = false;
    bool m_closing = false;
};

// Shows the upload window for website `id` (made when there is none; a
// window that is sending keeps its website), brought to the front.
frmUpload &ShowUpload(int id, QWidget *parent);

} // namespace qly::transfer::ui
