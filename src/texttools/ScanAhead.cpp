#include "texttools/ScanAhead.h"

#include <algorithm>

namespace qly::texttools {

ScanAhead::ScanAhead(QStringList paths, Check check, int window)
    : m_paths(std::move(paths))
    , m_check(std::move(check))
    , m_window(std::max(1, window))
    , m_answers(m_paths.size(), 0)
    , m_ready(m_paths.size(), false)
{
    const unsigned cores = std::max(1u, std::thread::hardware_concurrency());
    const int count = int(std::min<qsizetype>(cores, m_paths.size()));
    for (int i = 0; i < count; ++i)
        m_workers.emplace_back([this] { work(); });
}

ScanAhead::~ScanAhead()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_changed.notify_all();
    for (std::thread &t : m_workers)
        t.join();
}

void ScanAhead::work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_stopping || m_next >= int(m_paths.size()) || m_next < m_taken + m_window; });
        if (m_stopping || m_next >= int(m_paths.size()))
            return;
        const int index = m_next++;
        lock.unlock();
        const int answer = m_check(m_paths.at(index));
        lock.lock();
        m_answers[index] = answer;
        m_ready[index] = true;
        m_changed.notify_all();
    }
}

int ScanAhead::take(int index)
{
    std::unique_lock lock(m_mutex);
    m_taken = std::max(m_taken, index);
    m_changed.notify_all();
    m_changed.wait(lock, [this, index] { return bool(m_ready[index]); });
    return m_answers[index];
}

} // namespace qly::texttools
