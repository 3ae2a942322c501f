#include "generators/ui/UpDown.h"

#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace qly::generators::ui {

UpDown::UpDown(int minimum, int maximum, QWidget *parent)
    : QWidget(parent), m_minimum(minimum), m_maximum(maximum), m_value(minimum)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (const Qt::ArrowType arrow : {Qt::UpArrow, Qt::DownArrow}) {
        auto *button = new QToolButton(this);
        button->setArrowType(arrow);
        button->setAutoRepeat(true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
        button->setFixedWidth(fontMetrics().height());
        button->setMaximumHeight(fontMetrics().height());
        layout->addWidget(button);
        connect(button, &QToolButton::clicked, this, [this, arrow] { step(arrow == Qt::UpArrow ? 1 : -1); });
    }
}

void UpDown::setValue(int value)
{
    m_value = std::clamp(value, m_minimum, m_maximum);
}

void UpDown::step(int by)
{
    const int next = std::clamp(m_value + by, m_minimum, m_maximum);
    if (next == m_value)
        return;
    m_value = next;
    emit valueChanged(m_value);
}

} // namespace qly::generators::ui
