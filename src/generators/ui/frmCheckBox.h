#pragma once

#include "generators/FormEditorModel.h"
#include "generators/ui/FieldsDialog.h"

namespace qly::generators::ui {

// A check box or, with `radio`, a radio button ("Radio Button" caption).
class frmCheckBox final : public FieldsDialog
{
    Q_OBJECT
public:
    frmCheckBox(bool radio, QWidget *parent = nullptr);
    void ClearFields();
    void setElement(const FormElement &e);
    FormElement element() const;

private:
    bool m_radio;
    QLineEdit *m_txtCaption, *m_txtName, *m_txtDefaultVal;
    QCheckBox *m_chkChecked;
};

} // namespace qly::generators::ui
