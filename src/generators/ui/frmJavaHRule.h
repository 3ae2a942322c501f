#pragma once

#include "generators/ui/FieldsDialog.h"

namespace qly::generators::ui {

// "Java Horizontal Rule": size, gradient, change, colour and border.
class frmJavaHRule final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmJavaHRule(QWidget *parent = nullptr);
    QString text() const;

private:
    QLineEdit *m_txtWidth, *m_txtHeight, *m_txtGradient, *m_txtChange;
    QPushButton *m_color;
    QCheckBox *m_chkBorder;
};

} // namespace qly::generators::ui
