#include "documents/Utf16Index.h"

#include <algorithm>

namespace qly::documents {

using I = std::int64_t;

I Utf16Index::countUnits(const char *bytes, I length)
{
    // Every byte but a continuation byte starts a character of one unit;
    // a four-byte lead stands for two.
    I units = 0;
    const auto *p = reinterpret_cast<const unsigned char *>(bytes);
    for (I k = 0; k < length; ++k)
        units += ((p[k] & 0xC0) != 0x80) + (p[k] >= 0xF0);
    return units;
}

void Utf16Index::forgetFrom(I position)
{
    // The count at a block start stays right when the change lies after it.
    const size_t keep = size_t(position / kBlock) + 1;
    if (m_blocks.size() > keep)
        m_blocks.resize(keep);
}

void Utf16Index::inserted(I position, I length)
{
    if (length <= 0)
        return;
    forgetFrom(position);
    m_total += countUnits(m_read(position, length), length);
    m_length += length;
}

void Utf16Index::removing(I position, I length)
{
    if (length <= 0)
        return;
    forgetFrom(position);
    m_total -= countUnits(m_read(position, length), length);
    m_length -= length;
}

void Utf16Index::reset(I length)
{
    m_blocks.assign(1, 0);
    m_length = length;
    m_total = length > 0 ? countUnits(m_read(0, length), length) : 0;
}

void Utf16Index::extendTo(I block)
{
    while (I(m_blocks.size()) <= block) {
        const I start = I(m_blocks.size() - 1) * kBlock;
        const I end = std::min(start + kBlock, m_length);
        m_blocks.push_back(m_blocks.back() + countUnits(m_read(start, end - start), end - start));
    }
}

I Utf16Index::unitsBefore(I bytePosition)
{
    bytePosition = std::clamp<I>(bytePosition, 0, m_length);
    if (bytePosition == m_length)
        return m_total;
    const I block = bytePosition / kBlock;
    extendTo(block);
    const I start = block * kBlock;
    return m_blocks[size_t(block)] + countUnits(m_read(start, bytePosition - start), bytePosition - start);
}

I Utf16Index::byteOf(I units)
{
    if (units <= 0)
        return 0;
    if (units >= m_total)
        return m_length;
    // The last block that starts at or before the unit.
    const I lastBlock = (m_length - 1) / kBlock;
    while (m_blocks.back() <= units && I(m_blocks.size()) - 1 < lastBlock)
        extendTo(I(m_blocks.size()));
    const auto it = std::upper_bound(m_blocks.begin(), m_blocks.end(), units);
    const I block = I(it - m_blocks.begin()) - 1;
    const I start = block * kBlock;
    const I end = std::min(start + kBlock, m_length);
    const auto *p = reinterpret_cast<const unsigned char *>(m_read(start, end - start));
    I count = m_blocks[size_t(block)];
    for (I k = 0; k < end - start; ++k) {
        if ((p[k] & 0xC0) == 0x80)
            continue;
        const I width = 1 + (p[k] >= 0xF0);
        if (count + width > units)
            return start + k;
        count += width;
    }
    return end;
}

} // namespace qly::documents
