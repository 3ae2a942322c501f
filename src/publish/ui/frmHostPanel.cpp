#include "publish/ui/frmHostPanel.h"

#include "core/ui/DialogFlags.h"
#include "core/ui/Help.h"
#include "publish/HostPanelModel.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace qly::publish::ui {

frmHostPanel::frmHostPanel(QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags)
{
    setObjectName(QStringLiteral("frmHostPanel"));
    setWindowTitle(QStringLiteral("Hosting Control Panel Setup"));
    const HostPanelModel model = HostPanelModel::load();
    auto *layout = new QFormLayout(this);
    auto *intro = new QLabel(QStringLiteral("Where your web host's control panel is, and how you log in to it."), this);
    intro->setWordWrap(true);
    layout->addRow(intro);

    const auto field = [this, layout](const char *name, const QString &label, const QString &value) {
        auto *edit = new QLineEdit(value, this);
        edit->setObjectName(QString::fromLatin1(name));
        edit->setMinimumWidth(320);
        layout->addRow(label, edit);
        return edit;
    };
    m_txtURL = field("txtURL", QStringLiteral("Control panel &address:"), model.url);
    m_txtURL->setPlaceholderText(QStringLiteral("http://www.example.com/webmaster"));
    m_txtUserName = field("txtUserName", QStringLiteral("&User name:"), model.userName);
    m_txtPassword = field("txtPassword", QStringLiteral("&Password:"), model.password);
    m_txtPassword->setEchoMode(QLineEdit::Password);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    core::ui::addHelpButton(buttons, this, QStringLiteral("cmdHelp"));
    connect(buttons, &QDialogButtonBox::accepted, this, &frmHostPanel::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addRow(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void frmHostPanel::accept()
{
    HostPanelModel{m_txtURL->text(), m_txtUserName->text(), m_txtPassword->text()}.save();
    QDialog::accept();
}

} // namespace qly::publish::ui
