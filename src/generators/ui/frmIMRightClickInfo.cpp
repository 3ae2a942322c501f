#include "generators/ui/frmIMRightClickInfo.h"

#include "core/ui/DialogFlags.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace qly::generators::ui {

frmIMRightClickInfo::frmIMRightClickInfo(QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags)
{
    setObjectName(QStringLiteral("frmIMRightClickInfo"));
    setWindowTitle(QStringLiteral("Client-Side Image Map Information"));
    auto *form = new QFormLayout(this);
    m_lblSummary = new QLabel(this);
    m_lblSummary->setObjectName(QStringLiteral("lblSummary"));
    form->addRow(m_lblSummary);
    m_txtMapName = new QLineEdit(this);
    m_txtMapName->setObjectName(QStringLiteral("txtMapName"));
    form->addRow(QStringLiteral("&Map name:"), m_txtMapName);
    m_txtURL = new QLineEdit(this);
    m_txtURL->setObjectName(QStringLiteral("txtURL"));
    m_txtURL->setMinimumWidth(280);
    form->addRow(QStringLiteral("&URL:"), m_txtURL);
    m_txtTarget = new QLineEdit(this);
    m_txtTarget->setObjectName(QStringLiteral("txtTarget"));
    form->addRow(QStringLiteral("&Target:"), m_txtTarget);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmIMRightClickInfo::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmIMRightClickInfo::reject);
    form->addRow(buttons);
}

bool frmIMRightClickInfo::edit(QWidget *parent, QString &mapName, QString *url, QString *target,
                               const QString &summary)
{
    frmIMRightClickInfo dialog(parent);
    dialog.m_lblSummary->setText(summary);
    dialog.m_lblSummary->setVisible(!summary.isEmpty());
    dialog.m_txtMapName->setText(mapName);
    dialog.m_txtURL->setText(url ? *url : QString());
    dialog.m_txtTarget->setText(target ? *target : QString());
    dialog.m_txtURL->setEnabled(url);
    dialog.m_txtTarget->setEnabled(target);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    mapName = dialog.m_txtMapName->text().trimmed();
    if (url)
        *url = dialog.m_txtURL->text().trimmed();
    if (target)
        *target = dialog.m_txtTarget->text().trimmed();
    return true;
}

} // namespace qly::generators::ui
