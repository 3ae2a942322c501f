#include "publish/TermFinder.h"

#include <QChar>
#include <QList>

#include <algorithm>
#include <cstring>
#include <functional>
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

// Unicode's simple case folding, as QString compares without regard to case.
char32_t foldCase(char32_t c)
{
    if (c < 0x80)
        return c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c;
    return QChar::toCaseFolded(c);
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
    if (matchCase) {
        for (qsizetype i = 0; i < m_bytes.size(); ++i)
            addAnchor(i, {static_cast<unsigned char>(m_bytes[i])});
    } else if (encoding == TextEncoding::Windows1252) {
        m_mode = Mode::Folded1252;
        const auto &folded = foldedBytes();
        for (qsizetype i = 0; i < m_bytes.size(); ++i) {
            m_folded.push_back(folded[static_cast<unsigned char>(m_bytes[i])]);
            std::vector<unsigned char> forms;
            for (int b = 0; b < 256; ++b) {
                if (folded[b] == m_folded.back())
                    forms.push_back(static_cast<unsigned char>(b));
            }
            if (i == 0) {
                for (const unsigned char b : forms)
                    m_first[b] = true;
            }
            addAnchor(i, forms);
        }
    } else {
        m_mode = Mode::FoldedUtf8;
        const auto &all = unfoldings();
        for (const char32_t c : term.toUcs4()) {
            const char32_t f = QChar::toCaseFolded(c);
            std::vector<char32_t> forms;
            if (QChar::toCaseFolded(f) == f)
                forms.push_back(f);
            auto it = std::lower_bound(all.begin(), all.end(), std::pair<char32_t, char32_t>(f, 0));
            for (; it != all.end() && it->first == f; ++it)
                forms.push_back(it->second);
            std::vector<unsigned char> leads;
            for (const char32_t form : forms) {
                leads.push_back(static_cast<unsigned char>(QString::fromUcs4(&form, 1).toUtf8().at(0)));
                if (m_folded.empty())
                    m_first[leads.back()] = true;
            }
            addAnchor(qsizetype(m_folded.size()), leads);
            m_folded.push_back(f);
        }
        m_maxLength = qsizetype(m_folded.size()) * 4;
    }
    if (!m_anchors.empty())
        m_anchor = m_anchors.front();
}

void TermFinder::addAnchor(qsizetype before, std::vector<unsigned char> bytes)
{
    std::sort(bytes.begin(), bytes.end());
    bytes.erase(std::unique(bytes.begin(), bytes.end()), bytes.end());
    if (bytes.empty() || bytes.size() > 3)
        return;
    Anchor anchor;
    anchor.before = before;
    anchor.count = int(bytes.size());
    std::copy(bytes.begin(), bytes.end(), anchor.bytes.begin());
    m_anchors.push_back(anchor);
}

void TermFinder::tune(const char *sample, qsizetype size)
{
    if (m_anchors.empty())
        return;
    std::array<qsizetype, 256> count{};
    for (qsizetype i = 0; i < size; ++i)
        ++count[static_cast<unsigned char>(sample[i])];
    auto seen = [&count](const Anchor &a) {
        qsizetype sum = 0;
        for (int i = 0; i < a.count; ++i)
            sum += count[a.bytes[i]];
        return sum;
    };
    for (const Anchor &a : m_anchors) {
        if (seen(a) < seen(m_anchor))
            m_anchor = a;
    }
}

// The length of a hit that starts at `at`, or -1 when none does.
qsizetype TermFinder::hitLength(const unsigned char *at, const unsigned char *end) const
{
    const unsigned char *p = at;
    switch (m_mode) {
    case Mode::Exact: {
        const auto *term = reinterpret_cast<const unsigned char *>(m_bytes.constData());
        const qsizetype n = m_bytes.size();
        if (end - at < n || at[0] != term[0] || at[n - 1] != term[n - 1] || std::memcmp(at, term, size_t(n)) != 0)
            return -1;
        return n;
    }
    case Mode::Folded1252: {
        if (end - p < qsizetype(m_folded.size()))
            return -1;
        const auto &folded = foldedBytes();
        for (const char32_t f : m_folded) {
            if (folded[*p++] != f)
                return -1;
        }
        return p - at;
    }
    case Mode::FoldedUtf8:
        for (const char32_t f : m_folded) {
            if (p >= end)
                return -1;
            int length = 0;
            const char32_t c = decodeAt(p, end, length);
            if (length == 0 || foldCase(c) != f)
                return -1;
            p += length;
        }
        return p - at;
    }
    return -1;
}

// Where a hit whose anchor character is at `anchor` starts; -1 when that
// would be before `from`.
qsizetype TermFinder::startBefore(const unsigned char *text, qsizetype anchor, qsizetype from) const
{
    if (m_mode != Mode::FoldedUtf8)
        return anchor - m_anchor.before;
    qsizetype p = anchor;
    for (qsizetype i = 0; i < m_anchor.before; ++i) {
        do {
            if (--p < from)
                return -1;
        } while ((text[p] & 0xC0) == 0x80);
    }
    return p;
}

// Looks for the anchor's bytes with memchr, each from where the last look
// for it ended, and tries a hit at each one found. Hits come in order of
// their anchors, and so of their starts: every hit has the same number of
// characters before its anchor.
qsizetype TermFinder::findAnchored(const unsigned char *text, qsizetype size, qsizetype from, qsizetype limit,
                                   qsizetype &length) const
{
    const qsizetype widest = m_mode == Mode::FoldedUtf8 ? 4 * m_anchor.before : m_anchor.before;
    const qsizetype end = std::min(limit + widest, size);
    qsizetype next[3] = {-1, -1, -1};
    for (qsizetype at = from + m_anchor.before; at < end;) {
        qsizetype candidate = end;
        for (int i = 0; i < m_anchor.count; ++i) {
            if (next[i] < at) {
                const void *found = std::memchr(text + at, m_anchor.bytes[i], size_t(end - at));
                next[i] = found ? static_cast<const unsigned char *>(found) - text : end;
            }
            candidate = std::min(candidate, next[i]);
        }
        if (candidate >= end)
            return -1;
        at = candidate + 1;
        const qsizetype start = startBefore(text, candidate, from);
        if (start < 0)
            continue;
        if (start >= limit)
            return -1;
        const qsizetype hit = hitLength(text + start, text + size);
        if (hit >= 0) {
            length = hit;
            return start;
        }
    }
    return -1;
}

qsizetype TermFinder::find(const char *data, qsizetype size, qsizetype from, qsizetype limit, qsizetype &length) const
{
    if (m_bytes.isEmpty() || from >= limit)
        return -1;
    const auto *text = reinterpret_cast<const unsigned char *>(data);
    if (m_anchor.count > 0)
        return findAnchored(text, size, from, limit, length);
    for (qsizetype i = from; i < limit; ++i) {
        if (!m_first[text[i]])
            continue;
        const qsizetype hit = hitLength(text + i, text + size);
        if (hit >= 0) {
            length = hit;
            return i;
        }
    }
    return -1;
}

} // namespace qly::publish
