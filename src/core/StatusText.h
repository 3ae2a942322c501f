#pragma once

#include <QObject>
#include <QTimer>

namespace qly::core {

// The text of the status bar's first panel. A new text stays 4000 ms and is
// then cleared; setting the same text again, in any case, changes nothing.
class StatusText : public QObject
{
    Q_OBJECT
public:
    static StatusText &instance();

    void show(const QString &text);
    QString text() const { return m_text; }
    bool clearPending() const { return m_timer.isActive(); }

signals:
    void changed(const QString &text);

private:
    StatusText();

    QString m_text;
    QTimer m_timer;
};

} // namespace qly::core
