#pragma once

#include "generators/ui/FieldsDialog.h"

#include <QStringList>

namespace qly::generators::ui {

// "Add URL to List" (text and address) and, with `image`, "Add Image"
// (frmAddImage: picture, link and caption).
class frmAddURL final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmAddURL(bool image, QWidget *parent = nullptr);
    // The row's values: text and URL, or picture, link and caption.
    QStringList values() const;

private:
    void browse();
    bool confirm() override;
    bool m_image;
    QLineEdit *m_txtText = nullptr;
    QComboBox *m_cmbFileURL[2] = {};
};

} // namespace qly::generators::ui
