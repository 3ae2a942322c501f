#include "texttools/WriteQueue.h"

namespace qly::texttools {

WriteQueue::WriteQueue(int writers, int inFlight) : m_room(inFlight), m_serial(writers <= 1)
{
    m_pool.setMaxThreadCount(std::max(1, writers));
}

WriteQueue::~WriteQueue()
{
    m_pool.waitForDone();
}

void WriteQueue::add(int index, std::function<QString()> job)
{
    {
        QMutexLocker lock(&m_mutex);
        if (int(m_results.size()) <= index)
            m_results.resize(index + 1);
    }
    if (m_serial) {
        m_results[index] = job();
        return;
    }
    m_room.acquire();
    m_pool.start([this, index, job = std::move(job)] {
        const QString result = job();
        {
            QMutexLocker lock(&m_mutex);
            m_results[index] = result;
        }
        m_room.release();
    });
}

const std::vector<QString> &WriteQueue::finish()
{
    m_pool.waitForDone();
    return m_results;
}

} // namespace qly::texttools
