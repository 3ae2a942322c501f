#pragma once

#include <QWidget>

class QToolButton;

namespace qly::generators::ui {

// A spinner of two arrow buttons beside a text field: it steps its value
// within its range and reports each step; the field keeps whatever is typed.
class UpDown final : public QWidget
{
    Q_OBJECT
public:
    UpDown(int minimum, int maximum, QWidget *parent = nullptr);

    int value() const { return m_value; }
    // Takes a value without reporting it; values outside the range are cut to it.
    void setValue(int value);
    void step(int by);

signals:
    void valueChanged(int value);

private:
    int m_minimum;
    int m_maximum;
    int m_value;
};

} // namespace qly::generators::ui
