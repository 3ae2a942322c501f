#include "core/OptionsHooks.h"

namespace qly::core {

OptionsHooks &optionsHooks()
{
    static OptionsHooks hooks;
    return hooks;
}

} // namespace qly::core
