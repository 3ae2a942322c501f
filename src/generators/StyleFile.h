#pragma once

#include "generators/StyleRecord.h"

#include <QByteArray>
#include <QString>

namespace qly::generators {

// The .qns file of one style: fixed-length slots, little-endian, each item
// at the start of its slot: the program title, "Style Definition", the
// version, the record, "End Style Definition". A slot is 426 bytes (twice
// the length of the four marker texts, plus 320). A record longer than one
// slot runs on into the next ones and the end marker takes the slot after
// it. Texts are a 16-bit length and single-byte (Windows-1252) characters.

inline constexpr int kStyleSlotLength = 426;

QByteArray encodeStyleFile(const StyleRecord &record);

enum class StyleFileStatus { Ok, Missing, Damaged };

// Decodes a .qns file. A file that is not one (no "Style Definition" in
// its second slot), or is cut short (the record runs past the end, or the
// end marker is missing behind it), is Damaged; `record` is then reset.
StyleFileStatus decodeStyleFile(const QByteArray &bytes, StyleRecord &record);

} // namespace qly::generators
