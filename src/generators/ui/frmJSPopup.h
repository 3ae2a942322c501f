#pragma once

#include "generators/ScriptTemplates.h"
#include "generators/ui/FieldsDialog.h"

namespace qly::generators::ui {

// "JavaScript Pop-up Window": the page, the button's caption, the window's
// size and features.
class frmJSPopup final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmJSPopup(QWidget *parent = nullptr);
    PopupFields fields() const;

private:
    bool confirm() override;
    QComboBox *m_cmbURL;
    QLineEdit *m_txtCaption, *m_txtWidth, *m_txtHeight;
    QCheckBox *m_chk[6] = {};
};

} // namespace qly::generators::ui
