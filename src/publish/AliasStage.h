#pragma once

#include "core/TextCodec.h"
#include "publish/ByteStage.h"
#include "publish/TermFinder.h"

#include <array>

namespace qly::publish {

struct Alias;

// One alias over the bytes of a text, with the rules of ReplaceInText: a
// whole-word hit needs a delimiter (or the text's end) on both sides, where
// the character before may be the end of a replacement just written; the
// search goes on behind the replacement, and past a skipped hit by the
// replacement's length in characters, counted as QString counts them.
class AliasStage : public ByteStage
{
public:
    AliasStage(const Alias &alias, core::TextEncoding encoding);
    void run(QByteArray &in, bool last, QByteArray &out) override;

private:
    qsizetype passUnits(const QByteArray &in, qsizetype from);

    TermFinder m_finder;
    QByteArray m_replacement;
    qsizetype m_skipUnits;            // UTF-16 units a skipped hit is passed by
    bool m_wholeWord;
    bool m_utf8;
    std::array<bool, 256> m_delimiter{};

    bool m_tuned = false;
    qsizetype m_unitsToPass = 0;      // of a skip that ran past the end of `in`
    bool m_wroteAny = false;          // what this stage has written so far
    char m_lastWritten = 0;
};

} // namespace qly::publish
