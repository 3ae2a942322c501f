#pragma once

#include <QObject>
#include <functional>

class QSocketNotifier;

namespace qly::app {

// Turns SIGTERM and SIGHUP into a call on the event loop, so that they take
// the ordinary way out of the program.
class TermSignal : public QObject
{
    Q_OBJECT
public:
    TermSignal(std::function<void()> onSignal, QObject *parent = nullptr);
    ~TermSignal() override;

private:
    std::function<void()> m_onSignal;
    QSocketNotifier *m_notifier = nullptr;
};

} // namespace qly::app
