#pragma once

#include "core/TextCodec.h"
#include "publish/ByteStage.h"

#include <QHash>
#include <QList>

#include <array>
#include <vector>

namespace qly::publish {

// The character table (TranslateCharacters) over the bytes of a text: each
// character that the table changes replaced by its result. A text of one
// character goes through TranslateOneCharacter, as it does as characters;
// so the first two characters wait until it is clear there is a second.
class CharacterStage : public ByteStage
{
public:
    explicit CharacterStage(core::TextEncoding encoding);
    void run(QByteArray &in, bool last, QByteArray &out) override;

private:
    int translationOf(const unsigned char *at, int length) const;
    void translateOne(QByteArray &in, QByteArray &out) const;

    core::TextEncoding m_encoding;
    std::array<bool, 256> m_stop{};   // bytes that start a character to look up
    bool m_plainAscii = false;        // no ASCII character is in the table
    std::array<int, 256> m_byte{};    // index into m_outputs per single-byte character, -1 none
    std::vector<int> m_wide;          // the same per code point from 0x80, UTF-8 only
    QHash<char32_t, int> m_astral;
    QList<QByteArray> m_outputs;
    bool m_started = false;
};

} // namespace qly::publish
