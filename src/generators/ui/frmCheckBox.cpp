#include "generators/ui/frmCheckBox.h"

#include <QCheckBox>
#include <QLineEdit>

namespace qly::generators::ui {

frmCheckBox::frmCheckBox(bool radio, QWidget *parent)
    : FieldsDialog(QStringLiteral("frmCheckBox"), radio ? QStringLiteral("Radio Button") : QStringLiteral("Check Box"),
                   parent)
    , m_radio(radio)
{
    m_txtCaption = addLine(QStringLiteral("txtCaption"), QStringLiteral("Caption:"));
    m_txtName = addLine(QStringLiteral("txtName"), QStringLiteral("Name:"));
    m_txtDefaultVal = addLine(QStringLiteral("txtDefaultVal"), QStringLiteral("Value:"));
    m_chkChecked = addCheck(QStringLiteral("chkChecked"), QStringLiteral("Checked"));
}

void frmCheckBox::ClearFields()
{
    setElement({});
}

void frmCheckBox::setElement(const FormElement &e)
{
    m_txtCaption->setText(e.caption);
    m_txtName->setText(e.sub[0]);
    m_txtDefaultVal->setText(e.sub[1]);
    m_chkChecked->setChecked(e.sub[2] == QLatin1String("Checked"));
}

FormElement frmCheckBox::element() const
{
    FormElement e;
    e.kind = m_radio ? FormElement::Radio : FormElement::CheckBox;
    e.caption = m_txtCaption->text();
    e.sub[0] = m_txtName->text();
    e.sub[1] = m_txtDefaultVal->text();
    e.sub[2] = m_chkChecked->isChecked() ? QStringLiteral("Checked") : QStringLiteral("Not Checked");
    return e;
}

} // namespace qly::generators::ui
