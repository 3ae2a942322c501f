#include "publish/AliasStage.h"

#include "publish/Aliases.h"

#include <algorithm>

namespace qly::publish {

AliasStage::AliasStage(const Alias &alias, core::TextEncoding encoding)
    : m_finder(alias.term, alias.matchesCase(), encoding)
    , m_replacement(core::encodeText(alias.replacement, encoding))
    , m_skipUnits(std::max<qsizetype>(alias.replacement.size(), 1))
    , m_wholeWord(alias.wholeWordOnly())
    , m_utf8(encoding == core::TextEncoding::Utf8)
{
    for (const char *d = kWordDelimiters; *d; ++d)
        m_delimiter[static_cast<unsigned char>(*d)] = true;
}

// Passes m_unitsToPass UTF-16 units of the text from `from`; returns where the
// search goes on. A lead byte of four counts two units, other continuation
// bytes none, so the count needs no whole character; a hit cannot start on
// a continuation byte.
qsizetype AliasStage::passUnits(const QByteArray &in, qsizetype from)
{
    const qsizetype n = in.size();
    if (!m_utf8) {
        const qsizetype step = std::min(m_unitsToPass, n - from);
        m_unitsToPass -= step;
        return from + step;
    }
    const auto *data = reinterpret_cast<const unsigned char *>(in.constData());
    while (m_unitsToPass > 0 && from < n) {
        const unsigned char b = data[from++];
        if ((b & 0xC0) != 0x80)
            m_unitsToPass -= b >= 0xF0 ? 2 : 1;
    }
    m_unitsToPass = std::max<qsizetype>(m_unitsToPass, 0);
    return from;
}

void AliasStage::run(QByteArray &in, bool last, QByteArray &out)
{
    if (!m_tuned && !in.isEmpty()) {
        m_finder.tune(in.constData(), in.size());
        m_tuned = true;
    }
    const char *data = in.constData();
    const qsizetype n = in.size();
    // Hits that start before `limit` can be judged now, with the byte behind
    // them; the others wait for the next piece.
    const qsizetype limit = last ? n : std::max<qsizetype>(0, n - m_finder.maxLength() - 1);
    qsizetype copied = 0;
    qsizetype from = passUnits(in, 0);
    while (m_unitsToPass == 0) {
        qsizetype length = 0;
        const qsizetype hit = m_finder.find(data, n, from, limit, length);
        if (hit < 0)
            break;
        if (m_wholeWord) {
            const bool atStart = hit == copied && !m_wroteAny;
            const char before = hit > copied ? data[hit - 1] : m_lastWritten;
            const qsizetype end = hit + length;
            const bool skip = (!atStart && !m_delimiter[static_cast<unsigned char>(before)])
                || (end < n && !m_delimiter[static_cast<unsigned char>(data[end])]);
            if (skip) {
                m_unitsToPass = m_skipUnits;
                from = passUnits(in, hit);
                continue;
            }
        }
        if (hit > copied) {
            out.append(data + copied, hit - copied);
            m_lastWritten = data[hit - 1];
            m_wroteAny = true;
        }
        if (!m_replacement.isEmpty()) {
            out.append(m_replacement);
            m_lastWritten = m_replacement.back();
            m_wroteAny = true;
        }
        copied = from = hit + length;
    }
    const qsizetype done = std::max(from, limit);
    if (done > copied) {
        out.append(data + copied, done - copied);
        m_lastWritten = data[done - 1];
        m_wroteAny = true;
    }
    in.remove(0, done);
}

} // namespace qly::publish
