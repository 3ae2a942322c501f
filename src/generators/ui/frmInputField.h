#pragma once

#include "generators/FormEditorModel.h"
#include "generators/ui/FieldsDialog.h"

namespace qly::generators::ui {

// A text field, hidden field or password: the two ticks exclude each other.
class frmInputField final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmInputField(QWidget *parent = nullptr);
    void ClearFields();
    void setElement(const FormElement &e);
    FormElement element() const;

private:
    QLineEdit *m_txtCaption, *m_txtName, *m_txtDefaultVal, *m_txtSize, *m_txtMaxChars;
    QCheckBox *m_chkHidden, *m_chkPassword;
};

} // namespace qly::generators::ui
