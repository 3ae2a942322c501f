#pragma once

#include "generators/ui/FieldsDialog.h"

#include <array>

namespace qly::generators::ui {

// "Marquee": the scrolling text, its sizes, motion, colour and alignment.
class frmMarquee final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmMarquee(QWidget *parent = nullptr);
    QString text() const;

private:
    QLineEdit *m_txtText;
    std::array<QLineEdit *, 7> m_fields{};
    QComboBox *m_cmbBehavior, *m_cmbDirection, *m_cmbColor, *m_cmbAlign;
};

} // namespace qly::generators::ui
