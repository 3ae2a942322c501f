#pragma once

#include <cstdint>

namespace qly::documents {

struct KnownWords;

// The style of each byte of a page, as the colouring paints it.
namespace HtmlStyle {
enum : std::uint8_t {
    Text,
    Tag,          // brackets and name of a known tag
    Attribute,    // attribute names and their "="
    Value,        // attribute values
    Unfinished,   // a quoted value whose quote never closes
    ErrorTag,     // a tag the active filters do not know
    Comment,
    ScriptText,   // script text that is no known word
    Statement,
    Object,
    Method,
    Property,
    ScriptString,
    ScriptComment,
    StyleText,    // the body of a STYLE element
    Declaration,  // <!DOCTYPE ...>, <?xml ...?>
    Count
};
}

// Where the lexer stands between two bytes: enough to go on from there.
struct LexState {
    enum Mode : std::uint8_t {
        InText,
        InTag,         // after a tag's name, between attributes
        AfterAttribute,
        BeforeValue,
        QuotedValue,
        InComment,
        InDeclaration,
        InScript,
        InStyle,
    };
    enum ScriptMode : std::uint8_t { ScriptCode, LineComment, BlockComment, String, Template };
    enum Flags : std::uint8_t { TagUnknown = 1, OpensScript = 2, OpensStyle = 4, EndTag = 8 };

    Mode mode = InText;
    ScriptMode script = ScriptCode;
    std::uint8_t flags = 0;
    char quote = 0;
    std::int64_t tokenStart = 0;   // the comment, value, string or declaration being read

    bool operator==(const LexState &) const = default;
};

// Receives the styles: every byte from where lexing starts to where it
// stops is painted at least once. A later paint over bytes already painted
// (a value found unfinished, a tag found unknown) wins.
class StyleSink
{
public:
    virtual ~StyleSink() = default;
    virtual void paint(std::int64_t from, std::int64_t to, std::uint8_t style) = 0;
};

// Lexes `text` from `from`, where it stands in `state`, up to at least `to`.
// Bytes up to `length` may be read; `pageEnds` tells whether the page ends
// there. Short tokens (names, words, escapes) are finished past `to`; long
// ones (text, comments, values, strings) stop at `to` and go on from the
// returned state. Returns where it stopped; `state` is the state there.
// Decisions look at most kLookahead bytes ahead of the byte they style.
std::int64_t lexHtml(const char *text, std::int64_t length, bool pageEnds, std::int64_t from, std::int64_t to,
                     LexState &state, StyleSink &sink, const KnownWords &words);

inline constexpr std::int64_t kLookahead = 16;

} // namespace qly::documents
