#pragma once

#include "transfer/RemoteOpen.h"

#include <QDialog>

class QComboBox;
class QLineEdit;

namespace qly::transfer::ui {

// "Open from Server": the server, login and path of a file to edit as a
// remote document. Open connects the shared session and opens the file;
// on a failure the window stays for another try.
class frmOpenRemote final : public QDialog
{
    Q_OBJECT
public:
    explicit frmOpenRemote(QWidget *parent = nullptr);

    RemoteOpenFields fields() const;
    void btnOpen_Click();

private:
    QComboBox *m_cmbHost = nullptr;
    QLineEdit *m_txtLoginAs = nullptr;
    QLineEdit *m_txtPassword = nullptr;
    QLineEdit *m_txtRemoteFile = nullptr;
};

// File > Open from Server: the dialog, modal.
void ShowOpenRemote(QWidget *parent);

} // namespace qly::transfer::ui
