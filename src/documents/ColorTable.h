#pragma once

#include "platform/HTMLEdit.h"

namespace qly::documents {

// The colour slots from the [Editing] keys; -1 where a key is empty.
platform::ColorTable ColorTableFromSettings();

// The [Editing] key of each slot.
QString colorKeyOfSlot(int slot);

} // namespace qly::documents
