#pragma once

#include "generators/FormEditorModel.h"
#include "generators/ui/FieldsDialog.h"

namespace qly::generators::ui {

class frmFormFile final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmFormFile(QWidget *parent = nullptr);
    void ClearFields();
    void setElement(const FormElement &e);
    FormElement element() const;

private:
    QLineEdit *m_txtCaption, *m_txtName;
};

} // namespace qly::generators::ui
