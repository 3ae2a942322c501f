#pragma once

#include <QString>
#include <QStringList>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace qly::texttools {

// Runs a check over a list of files on the machine's cores, ahead of the
// caller, who takes the answers in the list's order. The workers stay at
// most `window` files ahead of the last answer taken, which bounds the
// memory to a few files at a time.
class ScanAhead
{
public:
    using Check = std::function<int(const QString &path)>;

    ScanAhead(QStringList paths, Check check, int window = 256);
    ~ScanAhead();
    ScanAhead(const ScanAhead &) = delete;
    ScanAhead &operator=(const ScanAhead &) = delete;

    // The answer for file `index`, waiting for it when needed. Indexes go up.
    int take(int index);

private:
    void work();

    const QStringList m_paths;
    const Check m_check;
    const int m_window;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<int> m_answers;
    std::vector<bool> m_ready;
    int m_next = 0;
    int m_taken = 0;
    bool m_stopping = false;
    std::vector<std::thread> m_workers;
};

} // namespace qly::texttools
