#pragma once

#include <QString>
#include <QStringView>

namespace qly::texttools {

// A word of a page's text: where it stands and how long it is.
struct SpellWord {
    qsizetype position = -1;   // -1: no more words
    qsizetype length = 0;
    bool found() const { return position >= 0; }
};

// The next word at or behind `from` in the text a reader of the page sees:
// tags (with their names and attribute values), comments, the contents of
// SCRIPT and STYLE elements and entities are passed over, and so is a word
// that an entity for a letter touches ("caf&eacute;"), which cannot be judged
// alone; other entities ("&nbsp;", "&amp;") part words as blanks do.
// A word is a run of letters and digits with single apostrophes inside
// ("don't"); runs without a letter are no words. `from` must not stand
// inside a tag or a word.
SpellWord NextSpellWord(QStringView text, qsizetype from);

} // namespace qly::texttools
