#pragma once

#include "generators/ui/FieldsDialog.h"

namespace qly::generators {
class TextEffectsModel;
}

namespace qly::generators::ui {

// "Applet Size": width, height and the spacing around the applet.
class frmTEAppSize final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmTEAppSize(TextEffectsModel &model, QWidget *parent = nullptr);

private:
    bool confirm() override;
    TextEffectsModel &m_model;
    QLineEdit *m_width, *m_height, *m_horizontal, *m_vertical;
};

} // namespace qly::generators::ui
