#include "documents/ui/frmNewDoc.h"

#include "core/ui/DialogFlags.h"
#include "core/ui/Help.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace qly::documents::ui {

frmNewDoc::frmNewDoc(QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags)
    , m_kinds(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("frmNewDoc"));
    setWindowTitle(QStringLiteral("New Document"));
    auto *layout = new QVBoxLayout(this);
    auto *frame = new QGroupBox(QStringLiteral("Select a template to start with "), this);
    auto *inner = new QVBoxLayout(frame);
    layout->addWidget(frame);

    const char *names[] = {"Normal", "Advanced", "UserDefined", "NetCaster", "ActiveChannel"};
    for (int kind = NewDocModel::Normal; kind <= NewDocModel::ActiveChannel; ++kind) {
        auto *option = new QRadioButton(NewDocModel::kindCaption(kind), frame);
        option->setObjectName(QString::fromLatin1(names[kind - 1]));
        m_kinds->addButton(option, kind);
        inner->addWidget(option);
        if (kind == NewDocModel::Advanced) {
            m_advSel = new QListWidget(frame);
            m_advSel->setObjectName(QStringLiteral("AdvSel"));
            m_advSel->addItems(NewDocModel::advancedRows());
            m_advSel->setCurrentRow(0);
            inner->addWidget(m_advSel);
        } else if (kind == NewDocModel::UserDefined) {
            m_cmbUserSel = new QComboBox(frame);
            m_cmbUserSel->setObjectName(QStringLiteral("cmbUserSel"));
            m_cmbUserSel->addItems(m_model.userTemplates());
            m_cmbUserSel->setCurrentIndex(m_model.userTemplates().isEmpty() ? -1 : 0);
            inner->addWidget(m_cmbUserSel);
        }
    }
    connect(m_kinds, &QButtonGroup::idClicked, this, &frmNewDoc::setKind);
    connect(m_advSel, &QListWidget::itemDoubleClicked, this, &frmNewDoc::OK_Click);

    auto *buttons = new QDialogButtonBox(this);
    QPushButton *ok = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("OK"));
    ok->setDefault(true);
    buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole)->setObjectName(QStringLiteral("Cancel"));
    core::ui::addHelpButton(buttons, this, QStringLiteral("Command1"));
    connect(buttons, &QDialogButtonBox::accepted, this, &frmNewDoc::OK_Click);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);

    m_kinds->button(NewDocModel::Normal)->setChecked(true);
    setKind(NewDocModel::Normal);
    // Centred over the main window.
    if (parent) {
        adjustSize();
        move(parent->window()->geometry().center() - rect().center());
    }
}

void frmNewDoc::setKind(int kind)
{
    m_model.kind = kind;
    m_advSel->setEnabled(m_model.advancedListEnabled());
    m_cmbUserSel->setEnabled(m_model.userListEnabled());
}

void frmNewDoc::OK_Click()
{
    m_model.kind = m_kinds->checkedId();
    m_model.advancedRow = m_advSel->currentRow();
    m_model.userTemplate = m_cmbUserSel->currentText();
    accept();
}

} // namespace qly::documents::ui
