#pragma once

#include "generators/FormEditorModel.h"
#include "generators/ui/FieldsDialog.h"

namespace qly::generators::ui {

class frmListBox final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmListBox(QWidget *parent = nullptr);
    void ClearFields();
    void setElement(const FormElement &e);
    FormElement element() const;

private:
    QLineEdit *m_txtCaption, *m_txtName, *m_txtDefaultVal;
    QCheckBox *m_chkMultiple;
    QPlainTextEdit *m_txtListItems;
};

} // namespace qly::generators::ui
