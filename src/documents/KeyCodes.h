#pragma once

namespace qly::documents {

// The key code the key-up hook of a document window passes on: the code
// the first design's keyboard gave for a key (letters and digits as their
// upper-case characters, F1 = 112, "," = 188, ...), from Qt's key and
// whether it came from the keypad. 0 for a key without such a code.
int windowsKeyCode(int qtKey, bool keypad);

} // namespace qly::documents
