#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace qly::documents {

// Counts UTF-16 code units over UTF-8 bytes: where the n-th character of a
// buffer stands and how many stand before a byte. It remembers the count at
// every block of bytes, so a question costs one block, however long the
// line; a change forgets only the blocks behind it.
class Utf16Index
{
public:
    // Hands out `length` bytes from `position`.
    using Reader = std::function<const char *(std::int64_t position, std::int64_t length)>;

    explicit Utf16Index(Reader reader) : m_read(std::move(reader)) {}

    // Bytes [position, position + length) were put in (read them now) or are
    // about to go (read them before they go).
    void inserted(std::int64_t position, std::int64_t length);
    void removing(std::int64_t position, std::int64_t length);
    // The whole buffer was replaced by `length` bytes.
    void reset(std::int64_t length);

    std::int64_t unitsBefore(std::int64_t bytePosition);
    // The byte where the character holding code unit `units` starts; the
    // length for units at or past the end.
    std::int64_t byteOf(std::int64_t units);
    std::int64_t totalUnits() const { return m_total; }
    std::int64_t length() const { return m_length; }

    static std::int64_t countUnits(const char *bytes, std::int64_t length);

    static constexpr std::int64_t kBlock = 64 * 1024;

private:
    // Makes the count at the start of block `block` known.
    void extendTo(std::int64_t block);
    void forgetFrom(std::int64_t position);

    Reader m_read;
    std::vector<std::int64_t> m_blocks{0};   // units before each block start
    std::int64_t m_length = 0;
    std::int64_t m_total = 0;
};

} // namespace qly::documents
