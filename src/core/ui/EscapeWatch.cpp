#include "core/ui/EscapeWatch.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace qly::core::ui {

EscapeWatch::EscapeWatch()
{
    QCoreApplication::instance()->installEventFilter(this);
}

EscapeWatch::~EscapeWatch()
{
    QCoreApplication::instance()->removeEventFilter(this);
}

bool EscapeWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        m_pressed = true;
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace qly::core::ui
