#include "app/TermSignal.h"

#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace qly::app {


namespace {

int g_fds[2] = {-1, -1};

void handler(int)
{
    const char byte = 1;
    [[maybe_unused]] const auto n = ::write(g_fds[0], &byte, 1);
}

} // namespace

TermSignal::TermSignal(std::function<void()> onSignal, QObject *parent)
    : QObject(parent)
    , m_onSignal(std::move(onSignal))
{
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, g_fds) != 0)
        return;
    m_notifier = new QSocketNotifier(g_fds[1], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        char byte;
        [[maybe_unused]] const auto n = ::read(g_fds[1], &byte, 1);
        if (m_onSignal)
            m_onSignal();
    });
    struct sigaction action {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGHUP, &action, nullptr);
}

TermSignal::~TermSignal()
{
    signal(SIGTERM, SIG_DFL);
    signal(SIGHUP, SIG_DFL);
}

} // namespace qly::app
