#pragma once

#include <QDialog>

class QComboBox;
class QLineEdit;

namespace qly::generators::ui {

// "Add Hotspot URL": the URL (with the "Links" history) and frame target of
// a region just drawn.
class frmIMAddURL final : public QDialog
{
    Q_OBJECT
public:
    explicit frmIMAddURL(QWidget *parent = nullptr);

    // Shows the dialog; true with `url` and `target` filled on OK.
    static bool ask(QWidget *parent, QString &url, QString &target);

    void accept() override;

private:
    void browse();

    QComboBox *m_cmbURL = nullptr;
    QLineEdit *m_txtTarget = nullptr;
};

} // namespace qly::generators::ui
