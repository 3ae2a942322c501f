#pragma once

#include "core/TextCodec.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <vector>

namespace qly::publish {

// Finds a term in the bytes of a text, as QString::indexOf finds it in the
// decoded text: either the term's own bytes, or, without regard to case,
// character by character through Unicode case folding. In UTF-8 a hit
// without regard to case may then differ from the term in byte length
// ("K" and the Kelvin sign).
class TermFinder
{
public:
    TermFinder(const QString &term, bool matchCase, core::TextEncoding encoding);

    // Picks the term's byte to look for first: its rarest in `sample`.
    void tune(const char *sample, qsizetype size);
    // The first hit that starts in [from, limit) and ends within `size`:
    // its start, and its byte length in `length`; -1 when there is none.
    qsizetype find(const char *data, qsizetype size, qsizetype from, qsizetype limit, qsizetype &length) const;
    // The most bytes a hit can take.
    qsizetype maxLength() const { return m_maxLength; }

private:
    enum class Mode { Exact, Folded1252, FoldedUtf8 };
    qsizetype foldedLength(const unsigned char *at, const unsigned char *end) const;

    Mode m_mode = Mode::Exact;
    QByteArray m_bytes;                   // the term in the text's encoding
    qsizetype m_anchor = 0;               // index of the byte memchr looks for
    qsizetype m_maxLength = 0;
    std::array<bool, 256> m_first{};      // bytes a hit without regard to case starts with
    std::vector<char32_t> m_folded;       // the term's folded characters
};

} // namespace qly::publish
