#include "generators/ui/frmInputField.h"

#include <QCheckBox>
#include <QLineEdit>

namespace qly::generators::ui {

frmInputField::frmInputField(QWidget *parent)
    : FieldsDialog(QStringLiteral("frmInputField"), QStringLiteral("Input Field"), parent)
{
    m_txtCaption = addLine(QStringLiteral("txtCaption"), QStringLiteral("Caption:"));
    m_txtName = addLine(QStringLiteral("txtName"), QStringLiteral("Name:"));
    m_txtDefaultVal = addLine(QStringLiteral("txtDefaultVal"), QStringLiteral("Default value:"));
    m_txtSize = addLine(QStringLiteral("txtSize"), QStringLiteral("Size:"), true);
    m_txtMaxChars = addLine(QStringLiteral("txtMaxChars"), QStringLiteral("Max. characters:"), true);
    m_chkHidden = addCheck(QStringLiteral("chkHidden"), QStringLiteral("Hidden field"));
    m_chkPassword = addCheck(QStringLiteral("chkPassword"), QStringLiteral("Password field"));
    connect(m_chkHidden, &QCheckBox::toggled, this, [this](bool on) {
        if (on)
            m_chkPassword->setChecked(false);
    });
    connect(m_chkPassword, &QCheckBox::toggled, this, [this](bool on) {
        if (on)
            m_chkHidden->setChecked(false);
    });
}

void frmInputField::ClearFields()
{
    setElement({});
}

void frmInputField::setElement(const FormElement &e)
{
    m_txtCaption->setText(e.caption);
    m_txtName->setText(e.sub[0]);
    m_txtDefaultVal->setText(e.sub[1]);
    m_txtMaxChars->setText(e.sub[2]);
    m_txtSize->setText(e.sub[3]);
    m_chkHidden->setChecked(e.kind == FormElement::Hidden);
    m_chkPassword->setChecked(e.kind == FormElement::Password);
}

FormElement frmInputField::element() const
{
    FormElement e;
    e.kind = m_chkHidden->isChecked()     ? FormElement::Hidden
             : m_chkPassword->isChecked() ? FormElement::Password
                                          : FormElement::TextField;
    e.caption = m_txtCaption->text();
    e.sub[0] = m_txtName->text();
    e.sub[1] = m_txtDefaultVal->text();
    e.sub[2] = m_txtMaxChars->text();
    e.sub[3] = m_txtSize->text();
    return e;
}

} // namespace qly::generators::ui
