#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>

#include <cstdint>

namespace qly::documents {

enum class ScriptWordClass : std::uint8_t { None, Statement, Object, Method, Property };

// The words the colouring knows: the tags and script words of the active
// tag filters. Until a list is set every tag counts as known.
struct KnownWords {
    QSet<QByteArray> tags;                           // lower-case names
    QHash<QByteArray, ScriptWordClass> scriptWords;  // as written
    bool complete = false;                           // false: every tag is known

    bool knowsTag(const char *name, int length) const;
    ScriptWordClass scriptWord(const char *word, int length) const;
};

const KnownWords &knownWords();
void setKnownWords(KnownWords words);
// Grows by one with each setKnownWords, so that a colouring can tell.
int knownWordsGeneration();

} // namespace qly::documents
