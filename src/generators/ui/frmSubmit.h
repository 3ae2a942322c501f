#pragma once

#include "generators/FormEditorModel.h"
#include "generators/ui/FieldsDialog.h"

namespace qly::generators::ui {

// The caption of a submit button, or of a reset button as frmReset.
class frmSubmit final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmSubmit(int kind = FormElement::Submit, QWidget *parent = nullptr);
    void ClearFields();
    void setElement(const FormElement &e);
    FormElement element() const;

private:
    int m_kind;
    QLineEdit *m_txtCaption;
};

} // namespace qly::generators::ui
