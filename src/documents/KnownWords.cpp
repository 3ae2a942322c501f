#include "documents/KnownWords.h"

namespace qly::documents {

namespace {

KnownWords &current()
{
    static KnownWords words;
    return words;
}

int g_generation = 0;

} // namespace

bool KnownWords::knowsTag(const char *name, int length) const
{
    if (!complete)
        return true;
    char lower[32];
    if (length <= 0 || length > int(sizeof lower))
        return false;
    for (int i = 0; i < length; ++i) {
        const char c = name[i];
        lower[i] = (c >= 'A' && c <= 'Z') ? char(c + 32) : c;
    }
    return tags.contains(QByteArray::fromRawData(lower, length));
}

ScriptWordClass KnownWords::scriptWord(const char *word, int length) const
{
    return scriptWords.value(QByteArray::fromRawData(word, length), ScriptWordClass::None);
}

const KnownWords &knownWords()
{
    return current();
}

void setKnownWords(KnownWords words)
{
    words.complete = true;
    current() = std::move(words);
    ++g_generation;
}

int knownWordsGeneration()
{
    return g_generation;
}

} // namespace qly::documents
