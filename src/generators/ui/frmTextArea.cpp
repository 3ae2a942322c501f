#include "generators/ui/frmTextArea.h"

#include <QLineEdit>

namespace qly::generators::ui {

frmTextArea::frmTextArea(QWidget *parent)
    : FieldsDialog(QStringLiteral("frmTextArea"), QStringLiteral("Text Area"), parent)
{
    m_txtCaption = addLine(QStringLiteral("txtCaption"), QStringLiteral("Caption:"));
    m_txtName = addLine(QStringLiteral("txtName"), QStringLiteral("Name:"));
    m_txtDefaultVal = addLine(QStringLiteral("txtDefaultVal"), QStringLiteral("Default value:"));
    m_txtCols = addLine(QStringLiteral("txtCols"), QStringLiteral("Columns:"), true);
    m_txtRows = addLine(QStringLiteral("txtRows"), QStringLiteral("Rows:"), true);
    m_txtMaxChars = addLine(QStringLiteral("txtMaxChars"), QStringLiteral("Max. characters:"), true);
}

void frmTextArea::ClearFields()
{
    setElement({});
}

void frmTextArea::setElement(const FormElement &e)
{
    m_txtCaption->setText(e.caption);
    m_txtName->setText(e.sub[0]);
    m_txtDefaultVal->setText(e.sub[1]);
    m_txtCols->setText(e.sub[2]);
    m_txtMaxChars->setText(e.sub[3]);
    m_txtRows->setText(e.sub[4]);
}

FormElement frmTextArea::element() const
{
    FormElement e;
    e.kind = FormElement::TextArea;
    e.caption = m_txtCaption->text();
    e.sub = {m_txtName->text(), m_txtDefaultVal->text(), m_txtCols->text(), m_txtMaxChars->text(), m_txtRows->text()};
    return e;
}

} // namespace qly::generators::ui
