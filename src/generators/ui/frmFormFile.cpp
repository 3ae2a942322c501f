#include "generators/ui/frmFormFile.h"

#include <QLineEdit>

namespace qly::generators::ui {

frmFormFile::frmFormFile(QWidget *parent)
    : FieldsDialog(QStringLiteral("frmFormFile"), QStringLiteral("File Field"), parent)
{
    m_txtCaption = addLine(QStringLiteral("txtCaption"), QStringLiteral("Caption:"));
    m_txtName = addLine(QStringLiteral("txtName"), QStringLiteral("Name:"));
}

void frmFormFile::ClearFields()
{
    setElement({});
}

void frmFormFile::setElement(const FormElement &e)
{
    m_txtCaption->setText(e.caption);
    m_txtName->setText(e.sub[0]);
}

FormElement frmFormFile::element() const
{
    FormElement e;
    e.kind = FormElement::File;
    e.caption = m_txtCaption->text();
    e.sub[0] = m_txtName->text();
    return e;
}

} // namespace qly::generators::ui
