#pragma once

#include "generators/ui/FieldsDialog.h"

namespace qly::generators::ui {

// "JavaScript Clock" and, with a message field, "JavaScript Scrolling Field"
// (frmJSScrolling): the size of the field the script writes into.
class frmJSClock final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmJSClock(bool scrolling, QWidget *parent = nullptr);
    QString size() const;
    QString message() const;

private:
    QComboBox *m_cmbSize;
    QLineEdit *m_txtMessage = nullptr;
};

} // namespace qly::generators::ui
