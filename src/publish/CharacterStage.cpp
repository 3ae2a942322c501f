#include "publish/CharacterStage.h"

#include "markup/CharacterCodes.h"

#include <algorithm>
#include <cstring>

namespace qly::publish {

namespace {

using core::TextEncoding;

bool continuation(unsigned char b)
{
    return (b & 0xC0) == 0x80;
}

} // namespace

CharacterStage::CharacterStage(TextEncoding encoding)
    : m_encoding(encoding)
{
    m_byte.fill(-1);
    for (const auto &[cp, text] : markup::CharacterTranslations()) {
        const int index = int(m_outputs.size());
        m_outputs << core::encodeText(text, encoding);
        if (encoding == TextEncoding::Windows1252) {
            const QByteArray byte = core::encodeText(QString::fromUcs4(&cp, 1), encoding);
            if (byte.size() == 1)
                m_byte[static_cast<unsigned char>(byte[0])] = index;
        } else if (cp < 0x80) {
            m_byte[cp] = index;
        } else if (cp < 0x10000) {
            if (m_wide.size() <= cp - 0x80)
                m_wide.resize(cp - 0x80 + 1, -1);
            m_wide[cp - 0x80] = index;
        } else {
            m_astral.insert(cp, index);
        }
    }
    const bool anyWide = !m_wide.empty() || !m_astral.isEmpty();
    for (int b = 0; b < 256; ++b)
        m_stop[b] = m_byte[b] >= 0 || (encoding == TextEncoding::Utf8 && b >= 0x80 && anyWide);
    m_plainAscii = std::none_of(m_stop.begin(), m_stop.begin() + 0x80, [](bool stop) { return stop; });
}

int CharacterStage::translationOf(const unsigned char *at, int length) const
{
    if (length == 1)
        return m_byte[at[0]];
    const char32_t c = core::decodeUtf8(at, length);
    if (c >= 0x10000)
        return m_astral.value(c, -1);
    return c - 0x80 < m_wide.size() ? m_wide[c - 0x80] : -1;
}

void CharacterStage::translateOne(QByteArray &in, QByteArray &out) const
{
    const QString one = core::decodeText(in, m_encoding);
    out.append(core::encodeText(markup::TranslateOneCharacter(one), m_encoding));
    in.resize(0);
}

void CharacterStage::run(QByteArray &in, bool last, QByteArray &out)
{
    const auto *data = reinterpret_cast<const unsigned char *>(in.constData());
    const qsizetype n = in.size();
    const bool utf8 = m_encoding == TextEncoding::Utf8;
    if (!m_started) {
        int characters = 0;
        for (qsizetype i = 0; i < n && characters < 2; ++i)
            characters += utf8 && continuation(data[i]) ? 0 : 1;
        if (characters < 2) {
            if (!last)
                return;
            if (characters == 1)
                translateOne(in, out);
            return;
        }
        m_started = true;
    }
    // A character cut off at the end waits for the rest of it.
    qsizetype end = n;
    if (utf8 && !last) {
        qsizetype lead = n;
        while (lead > 0 && n - lead < 4 && continuation(data[lead - 1]))
            --lead;
        if (lead > 0 && data[lead - 1] >= 0xC0 && core::utf8SequenceLength(data[lead - 1]) > n - lead + 1)
            end = lead - 1;
    }
    qsizetype copied = 0;
    for (qsizetype i = 0; i < end;) {
        if (m_plainAscii) {
            // Eight bytes at a time while no byte has its high bit.
            while (end - i >= 8) {
                quint64 word;
                std::memcpy(&word, data + i, 8);
                if (word & 0x8080808080808080ULL)
                    break;
                i += 8;
            }
            if (i >= end)
                break;
        }
        if (!m_stop[data[i]]) {
            ++i;
            continue;
        }
        const int length = utf8 ? core::utf8SequenceLength(data[i]) : 1;
        const int index = translationOf(data + i, length);
        if (index >= 0) {
            out.append(reinterpret_cast<const char *>(data + copied), i - copied);
            out.append(m_outputs.at(index));
            copied = i + length;
        }
        i += length;
    }
    out.append(reinterpret_cast<const char *>(data + copied), end - copied);
    in.remove(0, end);
}

} // namespace qly::publish
