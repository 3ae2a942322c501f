#include "core/StatusText.h"

namespace qly::core {

StatusText &StatusText::instance()
{
    static StatusText status;
    return status;
}

StatusText::StatusText()
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(4000);
    connect(&m_timer, &QTimer::timeout, this, [this] { show(QString()); });
}

void StatusText::show(const QString &text)
{
    if (text.compare(m_text, Qt::CaseInsensitive) == 0)
        return;
    m_text = text;
    emit changed(m_text);
    m_timer.stop();
    if (!text.isEmpty())
        m_timer.start();
}

} // namespace qly::core
