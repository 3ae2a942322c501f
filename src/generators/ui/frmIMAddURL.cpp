#include "generators/ui/frmIMAddURL.h"

#include "core/Globals.h"
#include "core/Settings.h"
#include "core/ui/DialogFlags.h"
#include "core/ui/HistoryCombo.h"
#include "generators/ImageMapRules.h"
#include "markup/Links.h"
#include "platform/Prompts.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace qly::generators::ui {

frmIMAddURL::frmIMAddURL(QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags)
{
    setObjectName(QStringLiteral("frmIMAddURL"));
    setWindowTitle(QStringLiteral("Add Hotspot URL"));
    auto *form = new QFormLayout(this);
    m_cmbURL = new QComboBox(this);
    m_cmbURL->setObjectName(QStringLiteral("cmbURL"));
    m_cmbURL->setEditable(true);
    m_cmbURL->setMinimumContentsLength(36);
    core::ui::FillHistoryCombo(m_cmbURL, QStringLiteral("Links"));
    m_cmbURL->setEditText(QString());
    auto *browse = new QToolButton(this);
    browse->setObjectName(QStringLiteral("Picture1"));
    browse->setText(QStringLiteral("..."));
    browse->setToolTip(QStringLiteral("Choose a file"));
    connect(browse, &QToolButton::clicked, this, &frmIMAddURL::browse);
    auto *row = new QHBoxLayout;
    row->addWidget(m_cmbURL, 1);
    row->addWidget(browse);
    form->addRow(QStringLiteral("&URL:"), row);
    m_txtTarget = new QLineEdit(this);
    m_txtTarget->setObjectName(QStringLiteral("txtTarget"));
    form->addRow(QStringLiteral("&Target:"), m_txtTarget);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOkay"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &frmIMAddURL::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmIMAddURL::reject);
    form->addRow(buttons);
}

void frmIMAddURL::browse()
{
    platform::FileRequest request;
    request.title = core::versionCaption() + QStringLiteral(" - Select File");
    request.directory = core::GetFileLocation(QStringLiteral("Documents"));
    request.filter = QStringLiteral("All Files (*.*)|*.*");
    const platform::FileAnswer answer = platform::prompts().openFile(request);
    if (!answer.accepted())
        return;
    const QString link = markup::RelativeLink(answer.files.first());
    m_cmbURL->setEditText(link.isEmpty() ? answer.files.first() : link);
}

void frmIMAddURL::accept()
{
    if (!CheckHotspotURL(m_cmbURL->currentText())) {
        m_cmbURL->setFocus();
        return;
    }
    core::ui::StoreHistoryCombo(m_cmbURL, QStringLiteral("Links"));
    QDialog::accept();
}

bool frmIMAddURL::ask(QWidget *parent, QString &url, QString &target)
{
    frmIMAddURL dialog(parent);
    dialog.m_cmbURL->setEditText(url);
    dialog.m_txtTarget->setText(target);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    url = dialog.m_cmbURL->currentText().trimmed();
    target = dialog.m_txtTarget->text().trimmed();
    return true;
}

} // namespace qly::generators::ui
