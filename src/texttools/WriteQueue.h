#pragma once

#include <QMutex>
#include <QSemaphore>
#include <QString>
#include <QThreadPool>
#include <functional>
#include <vector>

namespace qly::texttools {

// Runs the writing of many files beside the work that prepares them. Each
// job writes one file (atomically) and returns a failure text or an empty
// string. A file write waits mostly on the disk's flush, and flushes that
// overlap are committed together, so a few writers at once finish a large
// run many times sooner. At most `inFlight` jobs wait at a time, which bounds
// the memory held. With one writer the jobs run one after the other, in order.
class WriteQueue
{
public:
    explicit WriteQueue(int writers, int inFlight = 64);
    ~WriteQueue();

    // Queues job number `index`; blocks while the queue is full.
    void add(int index, std::function<QString()> job);
    // Waits for every job; the failure text of each, by index.
    const std::vector<QString> &finish();

private:
    QThreadPool m_pool;
    QSemaphore m_room;
    QMutex m_mutex;
    std::vector<QString> m_results;
    bool m_serial;
};

} // namespace qly::texttools
