#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <map>

typedef void CURL;
typedef void CURLM;

class QSocketNotifier;

namespace qly::transfer {

// libcurl's multi interface driven by the Qt event loop: after every step
// the sockets curl waits on get socket notifiers and its next deadline a
// timer. Nothing blocks; requests run while the event loop does.
//
// The sockets are asked of curl after each step (curl_multi_fdset) rather
// than announced by its socket callback: libcurl 7.88 does not announce the
// control socket of a reused FTP connection, nor the data connection opened
// on it, so a transfer on a kept connection would wait for its time-out.
class CurlLoop final : public QObject
{
public:
    // Called once a request has ended, with its CURLcode; never from inside
    // a call into libcurl, so it may show a dialog or start new requests.
    using Finished = std::function<void(CURL *easy, int curlCode)>;

    explicit CurlLoop(QObject *parent = nullptr);
    ~CurlLoop() override;

    // Starts `easy`; `done` runs when it has ended. The caller keeps and
    // later cleans up the handle.
    void add(CURL *easy, Finished done);
    // Stops `easy` without calling its `done`.
    void remove(CURL *easy);
    int running() const { return int(m_done.size()); }

private:
    struct Watch;
    void step();
    void watchSockets();
    void collect();

    CURLM *m_multi = nullptr;
    QTimer m_timer;
    std::map<CURL *, Finished> m_done;
    std::map<int, Watch> m_watches;
    bool m_stepping = false;
};

} // namespace qly::transfer
