#include "core/ui/StartupSteps.h"

namespace qly::core::ui {

void StartupSteps::add(StartupStep step, std::function<void()> work)
{
    m_work[step].push_back(std::move(work));
}

void StartupSteps::run(StartupStep step) const
{
    const auto it = m_work.find(step);
    if (it == m_work.end())
        return;
    for (const std::function<void()> &work : it->second)
        work();
}

} // namespace qly::core::ui
