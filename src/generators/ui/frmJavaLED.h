#pragma once

#include "generators/ui/FieldsDialog.h"

namespace qly::generators::ui {

// "LED Sign": a caption and two colours.
class frmJavaLED final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmJavaLED(QWidget *parent = nullptr);
    QString text() const;

private:
    QLineEdit *m_txtCaption;
    QPushButton *m_color, *m_backColor;
};

} // namespace qly::generators::ui
