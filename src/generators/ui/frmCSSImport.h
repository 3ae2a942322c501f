#pragma once

#include <QDialog>

class QComboBox;

namespace qly::platform {
class HTMLEdit;
}

namespace qly::generators::ui {

// "Import Style Sheet": an "@import" of an outside style sheet, or, with
// text selected, the sheet's reference at the selection.
class frmCSSImport final : public QDialog
{
    Q_OBJECT
public:
    frmCSSImport(platform::HTMLEdit &edit, QWidget *parent = nullptr);

    void setURL(const QString &url);
    void accept() override;

private:
    void browse();

    platform::HTMLEdit &m_edit;
    QComboBox *m_cmbURL = nullptr;
};

} // namespace qly::generators::ui
