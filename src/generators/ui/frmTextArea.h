#pragma once

#include "generators/FormEditorModel.h"
#include "generators/ui/FieldsDialog.h"

namespace qly::generators::ui {

class frmTextArea final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmTextArea(QWidget *parent = nullptr);
    void ClearFields();
    void setElement(const FormElement &e);
    FormElement element() const;

private:
    QLineEdit *m_txtCaption, *m_txtName, *m_txtDefaultVal, *m_txtCols, *m_txtRows, *m_txtMaxChars;
};

} // namespace qly::generators::ui
