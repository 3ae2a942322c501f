#include "documents/ui/frmTemplate.h"

#include "core/ui/DialogFlags.h"
#include "core/ui/Help.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

namespace qly::documents::ui {

frmTemplate::frmTemplate(QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags)
    , m_txtName(new QLineEdit(this))
{
    setObjectName(QStringLiteral("frmTemplate"));
    setWindowTitle(QStringLiteral("Save as Template"));
    auto *layout = new QFormLayout(this);
    m_txtName->setObjectName(QStringLiteral("txtName"));
    layout->addRow(QStringLiteral("Template name:"), m_txtName);

    auto *buttons = new QDialogButtonBox(this);
    QPushButton *ok = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    ok->setEnabled(false);
    buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole)->setObjectName(QStringLiteral("cmdCancel"));
    core::ui::addHelpButton(buttons, this, QStringLiteral("cmdHelp"));
    layout->addRow(buttons);

    connect(m_txtName, &QLineEdit::textChanged, ok, [ok](const QString &text) { ok->setEnabled(!text.trimmed().isEmpty()); });
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        m_tag = QStringLiteral("1");
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] {
        m_tag = QStringLiteral("0");
        reject();
    });
}

QString frmTemplate::templateName() const
{
    return m_txtName->text().trimmed();
}

} // namespace qly::documents::ui
