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

    // Picks where memchr looks first: the term's character whose bytes are
    // rarest in `sample`.
    void tune(const char *sample, qsizetype size);
    // The first hit that starts in [from, limit) and ends within `size`:
    // its start, and its byte length in `length`; -1 when there is none.
    qsizetype find(const char *data, qsizetype size, qsizetype from, qsizetype limit, qsizetype &length) const;
    // The most bytes a hit can take.
    qsizetype maxLength() const { return m_maxLength; }

private:
    enum class Mode { Exact, Folded1252, FoldedUtf8 };
    // A character of the term whose every form starts with one of at most
    // three bytes, with what comes before it in a hit: so many bytes, or in
    // UTF-8 without regard to case so many characters (their forms may
    // differ in length).
    struct Anchor {
        qsizetype before = 0;
        std::array<unsigned char, 3> bytes{};
        int count = 0;
    };
    void addAnchor(qsizetype before, std::vector<unsigned char> bytes);
    qsizetype hitLength(const unsigned char *at, const unsigned char *end) const;
    qsizetype startBefore(const unsigned char *text, qsizetype anchor, qsizetype from) const;
    qsizetype findAnchored(const unsigned char *text, qsizetype size, qsizetype from, qsizetype limit,
                           qsizetype &length) const;

    Mode m_mode = Mode::Exact;
    QByteArray m_bytes;                   // the term in the text's encoding
    qsizetype m_maxLength = 0;
    std::vector<Anchor> m_anchors;        // the term's usable anchors
    Anchor m_anchor;                      // the one looked for; none: every byte is tried with m_first
    std::array<bool, 256> m_first{};      // bytes a hit without regard to case starts with
    std::vector<char32_t> m_folded;       // the term's folded characters
};

} // namespace qly::publish
