#include "generators/ui/frmSubmit.h"

#include <QLineEdit>

namespace qly::generators::ui {

frmSubmit::frmSubmit(int kind, QWidget *parent)
    : FieldsDialog(kind == FormElement::Reset ? QStringLiteral("frmReset") : QStringLiteral("frmSubmit"),
                   FormElement::kindName(kind), parent)
    , m_kind(kind)
{
    m_txtCaption = addLine(QStringLiteral("txtCaption"), QStringLiteral("Caption:"));
}

void frmSubmit::ClearFields()
{
    m_txtCaption->clear();
}

void frmSubmit::setElement(const FormElement &e)
{
    m_txtCaption->setText(e.caption);
}

FormElement frmSubmit::element() const
{
    FormElement e;
    e.kind = m_kind;
    e.caption = m_txtCaption->text();
    return e;
}

} // namespace qly::generators::ui
