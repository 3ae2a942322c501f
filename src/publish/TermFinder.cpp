#include "publish/TermFinder.h"

#include <QChar>
#include <QList>

#include <algorithm>
#include <cstring>
#include <utility>

namespace qly::publish {

namespace {

using core::TextEncoding;

// Windows-1252 bytes by their folded character.
const std::array<char32_t, 256> &foldedBytes()
{
    static const std::array<char32_t, 256> table = [] {
        std::array<char32_t, 256> t{};
        for (int b = 0; b < 256; ++b) {
            const QString c = core::decodeText(QByteArray(1, char(b)), TextEncoding::Windows1252);
            t[b] = QChar::toCaseFolded(char32_t(c.at(0).unicode()));
        }
        return t;
    }();
    return table;
}

// Every character whose folding is another, sorted by the folded one.
const std::vector<std::pair<char32_t, char32_t>> &unfoldings()
{
    static const std::vector<std::pair<char32_t, char32_t>> list = [] {
        std::vector<std::pair<char32_t, char32_t>> l;
        for (char32_t c = 0; c < 0x110000; ++c) {
            if (c == 0xD800)
                c = 0xE000;
            const char32_t f = QChar::toCaseFolded(c);
            if (f != c)
                l.emplace_back(f, c);
        }
        std::sort(l.begin(), l.end());
        return l;
    }();
    return list;
}

unsigned char leadByte(char32_t c)
{
    const QByteArray utf8 = QString::fromUcs4(&c, 1).toUtf8();
    return static_cast<unsigned char>(utf8.at(0));
}

// The character at `at` of valid UTF-8, and its length; 0 when it is cut off by `end`.
char32_t decodeAt(const unsigned char *at, const unsigned char *end, int &length)
{
    length = core::utf8SequenceLength(at[0]);
    if (end - at < length) {
        length = 0;
        return 0;
    }
    return core::decodeUtf8(at, length);
}

} // namespace

TermFinder::TermFinder(const QString &term, bool matchCase, TextEncoding encoding)
    : m_bytes(core::encodeText(term, encoding))
{
    m_maxLength = m_bytes.size();
    if (matchCase || m_bytes.isEmpty())
        return;
    if (encoding == TextEncoding::Windows1252) {
        m_mode = Mode::Folded1252;
        const auto &folded = foldedBytes();
        for (const char b : std::as_const(m_bytes))
            m_folded.push_back(folded[static_cast<unsigned char>(b)]);
        for (int b = 0; b < 256; ++b)
            m_first[b] = folded[b] == m_folded.front();
        return;
    }
    m_mode = Mode::FoldedUtf8;
    for (const char32_t c : term.toUcs4())
        m_folded.push_back(QChar::toCaseFolded(c));
    m_maxLength = qsizetype(m_folded.size()) * 4;
    const char32_t first = m_folded.front();
    if (QChar::toCaseFolded(first) == first)
        m_first[leadByte(first)] = true;
    const auto &all = unfoldings();
    auto it = std::lower_bound(all.begin(), all.end(), std::pair<char32_t, char32_t>(first, 0));
    for (; it != all.end() && it->first == first; ++it)
        m_first[leadByte(it->second)] = true;
}

void TermFinder::tune(const char *sample, qsizetype size)
{
    if (m_mode != Mode::Exact || m_bytes.isEmpty())
        return;
    std::array<qsizetype, 256> count{};
    for (qsizetype i = 0; i < size; ++i)
        ++count[static_cast<unsigned char>(sample[i])];
    for (qsizetype i = 1; i < m_bytes.size(); ++i) {
        if (count[static_cast<unsigned char>(m_bytes[i])] < count[static_cast<unsigned char>(m_bytes[m_anchor])])
            m_anchor = i;
    }
}

qsizetype TermFinder::foldedLength(const unsigned char *at, const unsigned char *end) const
{
    const unsigned char *p = at;
    if (m_mode == Mode::Folded1252) {
        if (end - p < qsizetype(m_folded.size()))
            return -1;
        const auto &folded = foldedBytes();
        for (const char32_t f : m_folded) {
            if (folded[*p++] != f)
                return -1;
        }
        return p - at;
    }
    for (const char32_t f : m_folded) {
        if (p >= end)
            return -1;
        int length = 0;
        const char32_t c = decodeAt(p, end, length);
        if (length == 0 || QChar::toCaseFolded(c) != f)
            return -1;
        p += length;
    }
    return p - at;
}

qsizetype TermFinder::find(const char *data, qsizetype size, qsizetype from, qsizetype limit, qsizetype &length) const
{
    const qsizetype termLength = m_bytes.size();
    if (termLength == 0 || from >= limit)
        return -1;
    if (m_mode == Mode::Exact) {
        const char anchor = m_bytes[m_anchor];
        const char *term = m_bytes.constData();
        limit = std::min(limit, size - termLength + 1);
        if (from >= limit)
            return -1;
        // The anchor byte of a hit that starts in [from, limit).
        const char *p = data + from + m_anchor;
        const char *end = data + limit + m_anchor;
        while (p < end) {
            p = static_cast<const char *>(std::memchr(p, anchor, size_t(end - p)));
            if (!p)
                return -1;
            const char *start = p - m_anchor;
            if (start[0] == term[0] && start[termLength - 1] == term[termLength - 1]
                && std::memcmp(start, term, size_t(termLength)) == 0) {
                length = termLength;
                return start - data;
            }
            ++p;
        }
        return -1;
    }
    const auto *text = reinterpret_cast<const unsigned char *>(data);
    for (qsizetype i = from; i < limit; ++i) {
        if (!m_first[text[i]])
            continue;
        const qsizetype hit = foldedLength(text + i, text + size);
        if (hit >= 0) {
            length = hit;
            return i;
        }
    }
    return -1;
}

} // namespace qly::publish
