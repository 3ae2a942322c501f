#pragma once

#include "transfer/SiteDownload.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace qly::transfer::ui {

// "Auto Download Website": fetches a whole site from an FTP server, from
// its index page, into a folder, and makes a website project of it. The
// download runs inside Download with the window live; Escape or Close
// stop it at its next step.
class frmAutoDown final : public QDialog
{
    Q_OBJECT
public:
    explicit frmAutoDown(QWidget *parent = nullptr);
    ~frmAutoDown() override;

    // What the fields hold now.
    SiteDownloadFields fields() const;
    void setFields(const SiteDownloadFields &fields);

    // Checks the fields, then fetches the site over the shared session.
    void btnFetch_Click();
    void btnEditServers_Click();
    void btnClose_Click();
    void FTPStatus(const QString &text);
    bool running() const { return m_run != nullptr; }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void reject() override;

private:
    QWidget *buildServer();
    QWidget *buildSite();

    QComboBox *m_cmbHost = nullptr;
    QLineEdit *m_txtRemoteDirectory = nullptr;
    QLineEdit *m_txtLoginAs = nullptr;
    QLineEdit *m_txtPassword = nullptr;
    QLineEdit *m_txtIndexURL = nullptr;
    QLineEdit *m_txtsavedirectory = nullptr;
    QLineEdit *m_txtprojectname = nullptr;
    QCheckBox *m_chkfetchimages = nullptr;
    QCheckBox *m_chkoverwrite = nullptr;
    QLabel *m_status = nullptr;
    QLabel *m_counts = nullptr;
    QPushButton *m_btnFetch = nullptr;
    SiteDownload *m_run = nullptr;
    bool m_closeAfterRun = false;
};

// Tools > Download site via FTP: the dialog, modal.
void ShowAutoDown(QWidget *parent);

} // namespace qly::transfer::ui
