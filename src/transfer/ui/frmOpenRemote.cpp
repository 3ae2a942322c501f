#include "transfer/ui/frmOpenRemote.h"

#include "core/ui/Help.h"

#include "core/ui/HistoryCombo.h"
#include "transfer/FtpSession.h"
#include "transfer/ui/ServerFields.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace qly::transfer::ui {

frmOpenRemote::frmOpenRemote(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmOpenRemote"));
    setWindowTitle(QStringLiteral("Open from Server"));
    setModal(true);

    m_cmbHost = serverCombo(this);
    m_txtLoginAs = namedField(this, "txtLoginAs");
    m_txtPassword = namedField(this, "txtPassword");
    m_txtPassword->setEchoMode(QLineEdit::Password);
    m_txtPassword->setPlaceholderText(QStringLiteral("asked for when empty"));
    m_txtRemoteFile = namedField(this, "txtRemoteFile");
    m_txtRemoteFile->setPlaceholderText(QStringLiteral("www/index.htm"));

    auto *form = new QFormLayout;
    form->addRow(QStringLiteral("Host"), m_cmbHost);
    form->addRow(QStringLiteral("Login As"), m_txtLoginAs);
    form->addRow(QStringLiteral("Password"), m_txtPassword);
    form->addRow(QStringLiteral("File on Server"), m_txtRemoteFile);

    auto *buttons = new QDialogButtonBox(this);
    QPushButton *open = buttons->addButton(QStringLiteral("Open"), QDialogButtonBox::AcceptRole);
    open->setObjectName(QStringLiteral("btnOpen"));
    open->setDefault(true);
    QPushButton *cancel = buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("btnCancel"));
    connect(open, &QPushButton::clicked, this, &frmOpenRemote::btnOpen_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    core::ui::addHelpButton(buttons, this, QStringLiteral("btnHelp"));

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
    m_cmbHost->setFocus();
}

RemoteOpenFields frmOpenRemote::fields() const
{
    return {m_cmbHost->currentText().trimmed(), m_txtLoginAs->text(), m_txtPassword->text(),
            m_txtRemoteFile->text().trimmed()};
}

void frmOpenRemote::btnOpen_Click()
{
    const RemoteOpenFields f = fields();
    if (!f.host.isEmpty())
        core::ui::StoreHistoryCombo(m_cmbHost, serversHistory());
    if (OpenFromServer(f, sharedSession()))
        accept();
}

void ShowOpenRemote(QWidget *parent)
{
    frmOpenRemote dialog(parent);
    dialog.exec();
}

} // namespace qly::transfer::ui
