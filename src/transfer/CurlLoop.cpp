#include "transfer/CurlLoop.h"

#include <QSocketNotifier>
#include <curl/curl.h>
#include <sys/select.h>
#include <vector>

namespace qly::transfer {

struct CurlLoop::Watch {
    QSocketNotifier *read = nullptr;
    QSocketNotifier *write = nullptr;
};

namespace {

void dropNotifier(QSocketNotifier *&n)
{
    if (!n)
        return;
    // It may be the notifier whose signal is running now.
    n->setEnabled(false);
    n->deleteLater();
    n = nullptr;
}

} // namespace

CurlLoop::CurlLoop(QObject *parent) : QObject(parent)
{
    static const bool initialised = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
    Q_UNUSED(initialised);
    m_multi = curl_multi_init();
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &CurlLoop::step);
}

CurlLoop::~CurlLoop()
{
    for (auto &[easy, done] : m_done)
        curl_multi_remove_handle(m_multi, easy);
    m_done.clear();
    curl_multi_cleanup(m_multi);
    for (auto &[fd, w] : m_watches) {
        delete w.read;
        delete w.write;
    }
}

void CurlLoop::add(CURL *easy, Finished done)
{
    m_done[easy] = std::move(done);
    curl_multi_add_handle(m_multi, easy);
    m_timer.start(0);
}

void CurlLoop::remove(CURL *easy)
{
    if (m_done.erase(easy))
        curl_multi_remove_handle(m_multi, easy);
}

void CurlLoop::step()
{
    if (m_stepping)
        return;
    m_stepping = true;
    int still = 0;
    curl_multi_perform(m_multi, &still);
    m_stepping = false;
    collect();
    watchSockets();
}

void CurlLoop::watchSockets()
{
    fd_set r, w, e;
    FD_ZERO(&r);
    FD_ZERO(&w);
    FD_ZERO(&e);
    int maxFd = -1;
    curl_multi_fdset(m_multi, &r, &w, &e, &maxFd);
    for (auto it = m_watches.begin(); it != m_watches.end();) {
        const int fd = it->first;
        if (fd > maxFd || !FD_ISSET(fd, &r))
            dropNotifier(it->second.read);
        if (fd > maxFd || !FD_ISSET(fd, &w))
            dropNotifier(it->second.write);
        if (!it->second.read && !it->second.write)
            it = m_watches.erase(it);
        else
            ++it;
    }
    for (int fd = 0; fd <= maxFd; ++fd) {
        const bool wantRead = FD_ISSET(fd, &r);
        const bool wantWrite = FD_ISSET(fd, &w);
        if (!wantRead && !wantWrite)
            continue;
        Watch &watch = m_watches[fd];
        if (wantRead && !watch.read) {
            watch.read = new QSocketNotifier(fd, QSocketNotifier::Read, this);
            connect(watch.read, &QSocketNotifier::activated, this, &CurlLoop::step);
        }
        if (wantWrite && !watch.write) {
            watch.write = new QSocketNotifier(fd, QSocketNotifier::Write, this);
            connect(watch.write, &QSocketNotifier::activated, this, &CurlLoop::step);
        }
    }
    if (m_done.empty()) {
        m_timer.stop();
        return;
    }
    long ms = -1;
    curl_multi_timeout(m_multi, &ms);
    // No deadline, or no socket to wait on yet: look again soon.
    if (ms < 0 || maxFd < 0)
        ms = ms < 0 ? 50 : std::min(ms, 50L);
    m_timer.start(int(ms));
}

void CurlLoop::collect()
{
    // Take every ended request out of curl first, then tell the callers:
    // their handlers may run the event loop and come back here.
    std::vector<std::pair<CURL *, int>> ended;
    int left = 0;
    while (CURLMsg *msg = curl_multi_info_read(m_multi, &left)) {
        if (msg->msg == CURLMSG_DONE)
            ended.emplace_back(msg->easy_handle, int(msg->data.result));
    }
    for (auto [easy, code] : ended) {
        auto it = m_done.find(easy);
        if (it == m_done.end())
            continue;
        Finished done = std::move(it->second);
        m_done.erase(it);
        curl_multi_remove_handle(m_multi, easy);
        done(easy, code);
    }
}

} // namespace qly::transfer
