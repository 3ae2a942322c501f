#pragma once

#include "generators/FormEditorModel.h"
#include "generators/ui/FieldsDialog.h"

namespace qly::generators::ui {

// The picture of an image submit button, typed or chosen with imgAddURL.
class frmFormImage final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmFormImage(QWidget *parent = nullptr);
    void ClearFields();
    void setElement(const FormElement &e);
    FormElement element() const;

private:
    void browse();
    QLineEdit *m_txtURL;
};

} // namespace qly::generators::ui
