#pragma once

#include <QObject>

namespace qly::core::ui {

// Notes an Escape key pressed anywhere in the program while it lives, so
// long work that lets the event loop run can stop when the user asks.
class EscapeWatch final : public QObject
{
public:
    EscapeWatch();
    ~EscapeWatch() override;
    bool pressed() const { return m_pressed; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_pressed = false;
};

} // namespace qly::core::ui
