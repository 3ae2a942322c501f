#pragma once

#include <QDateTime>
#include <QString>

namespace qly::platform {
class HTMLEdit;
}

namespace qly::markup {

// The typing hook of the document windows. `keyAscii` is the character's
// code; Enter (13) is never translated. With "Translate While Typing" on, a
// character whose translation differs goes in as its entity and `keyAscii`
// becomes 0, so the buffer does not insert the key itself. Every call
// records the moment of the last key.
void TranslateKey(int &keyAscii);
// Records the present moment as that of the last key in a document.
void NoteKey();
// When the last key in a document went down or up: project timing, colouring
// and the preview's idle test wait on it.
QDateTime lastKeyTime();

// Replaces the selection of `target` with its translation.
void TranslateSelection(platform::HTMLEdit &target);

// The menu command: the selection, or, after asking, the whole document.
void EditTranslate_Click();

// The line of the special characters list for one table row: code, the
// character itself (nothing for "00"), entity and description, tab-separated.
QString entityListLine(int row);

// The HTML a list line stands for: from the first "&" (or, without one, the
// first "<") through the first semicolon; a trademark entry (">tm<") loses
// that semicolon, which only separates it in the file.
QString HTMLToAdd(const QString &listLine);

// Puts `html` in front of the current document's selection, which stays.
void InsertEntity(const QString &html);

} // namespace qly::markup
