#include "documents/HtmlLexer.h"

#include "documents/KnownWords.h"

#include <cstring>

namespace qly::documents {

namespace {

using I = std::int64_t;

inline bool isLetter(unsigned char c)
{
    return (c | 0x20) >= 'a' && (c | 0x20) <= 'z';
}

inline bool isNameChar(unsigned char c)
{
    return isLetter(c) || (c >= '0' && c <= '9') || c == '-' || c == ':' || c == '_' || c == '.';
}

inline bool isSpace(unsigned char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f';
}

inline bool isWordChar(unsigned char c)
{
    return isLetter(c) || (c >= '0' && c <= '9') || c == '_' || c == '$' || c >= 0x80;
}

bool equalsFolded(const char *p, I n, const char *lower)
{
    for (I k = 0; k < n; ++k) {
        if (!lower[k] || (static_cast<unsigned char>(p[k]) | 0x20) != static_cast<unsigned char>(lower[k]))
            return false;
    }
    return lower[n] == 0;
}

class Lexer
{
public:
    Lexer(const char *t, I n, bool pageEnds, LexState &st, StyleSink &sink, const KnownWords &words)
        : t(t), n(n), pageEnds(pageEnds), st(st), sink(sink), words(words)
    {
    }

    I run(I i, I to);

private:
    unsigned char at(I k) const { return k < n ? static_cast<unsigned char>(t[k]) : 0; }
    void paint(I from, I to, std::uint8_t style)
    {
        if (to > from)
            sink.paint(from, to, style);
    }
    std::uint8_t tagStyle() const { return (st.flags & LexState::TagUnknown) ? HtmlStyle::ErrorTag : HtmlStyle::Tag; }
    // "</name" followed by the end of a name, at i.
    bool closesRaw(I i, const char *name, I nameLength) const
    {
        if (at(i) != '<' || at(i + 1) != '/' || i + 2 + nameLength > n)
            return false;
        return equalsFolded(t + i + 2, nameLength, name) && !isNameChar(at(i + 2 + nameLength));
    }
    // The first '<' in [i, to) or to.
    I findLess(I i, I to) const
    {
        const void *p = std::memchr(t + i, '<', size_t(to - i));
        return p ? I(static_cast<const char *>(p) - t) : to;
    }

    I text(I i, I to);
    I openTag(I i);
    I inTag(I i, I to);
    I quotedValue(I i, I to);
    I comment(I i, I to);
    I declaration(I i, I to);
    I script(I i, I to);
    I style(I i, I to);

    const char *t;
    I n;
    bool pageEnds;
    LexState &st;
    StyleSink &sink;
    const KnownWords &words;
};

I Lexer::run(I i, I to)
{
    if (to > n)
        to = n;
    while (i < to) {
        switch (st.mode) {
        case LexState::InText: i = text(i, to); break;
        case LexState::InTag:
        case LexState::AfterAttribute:
        case LexState::BeforeValue: i = inTag(i, to); break;
        case LexState::QuotedValue: i = quotedValue(i, to); break;
        case LexState::InComment: i = comment(i, to); break;
        case LexState::InDeclaration: i = declaration(i, to); break;
        case LexState::InScript: i = script(i, to); break;
        case LexState::InStyle: i = style(i, to); break;
        }
    }
    // A value still open at the end of the page never closes.
    if (i >= n && pageEnds && st.mode == LexState::QuotedValue) {
        paint(st.tokenStart, n, HtmlStyle::Unfinished);
        st.mode = LexState::InText;
    }
    return i;
}

I Lexer::text(I i, I to)
{
    const I less = findLess(i, to);
    paint(i, less, HtmlStyle::Text);
    return less < to ? openTag(less) : to;
}

// At a '<' of text: a tag, an end tag, a comment, a declaration, or text.
I Lexer::openTag(I i)
{
    const unsigned char c = at(i + 1);
    if (c == '!' || c == '?') {
        st.tokenStart = i;
        if (c == '!' && at(i + 2) == '-' && at(i + 3) == '-') {
            st.mode = LexState::InComment;
            paint(i, std::min(i + 4, n), HtmlStyle::Comment);
            return std::min(i + 4, n);
        }
        st.mode = LexState::InDeclaration;
        paint(i, i + 2, HtmlStyle::Declaration);
        return i + 2;
    }
    const bool end = c == '/';
    const I nameStart = end ? i + 2 : i + 1;
    if (!isLetter(at(nameStart))) {
        paint(i, i + 1, HtmlStyle::Text);
        return i + 1;
    }
    I j = nameStart;
    while (j < n && isNameChar(at(j)))
        ++j;
    const I nameLength = j - nameStart;
    st.flags = end ? LexState::EndTag : 0;
    if (!words.knowsTag(t + nameStart, int(std::min<I>(nameLength, 64))))
        st.flags |= LexState::TagUnknown;
    if (!end && equalsFolded(t + nameStart, nameLength, "script"))
        st.flags |= LexState::OpensScript;
    else if (!end && equalsFolded(t + nameStart, nameLength, "style"))
        st.flags |= LexState::OpensStyle;
    st.mode = LexState::InTag;
    paint(i, j, tagStyle());
    return j;
}

I Lexer::inTag(I i, I to)
{
    while (i < to) {
        const unsigned char c = at(i);
        if (isSpace(c)) {
            I j = i + 1;
            while (j < to && isSpace(at(j)))
                ++j;
            paint(i, j, tagStyle());
            i = j;
            continue;
        }
        if (c == '>') {
            paint(i, i + 1, tagStyle());
            st.mode = (st.flags & LexState::OpensScript) ? LexState::InScript
                      : (st.flags & LexState::OpensStyle) ? LexState::InStyle
                                                          : LexState::InText;
            st.script = LexState::ScriptCode;
            return i + 1;
        }
        if (c == '<') {
            // A tag left open: the next one starts here.
            st.mode = LexState::InText;
            return i;
        }
        if (st.mode == LexState::AfterAttribute && c == '=') {
            paint(i, i + 1, HtmlStyle::Attribute);
            st.mode = LexState::BeforeValue;
            ++i;
            continue;
        }
        if (c == '"' || c == '\'') {
            st.mode = LexState::QuotedValue;
            st.quote = char(c);
            st.tokenStart = i;
            paint(i, i + 1, HtmlStyle::Value);
            return i + 1;
        }
        if (st.mode == LexState::BeforeValue) {
            I j = i;
            while (j < n && !isSpace(at(j)) && at(j) != '>' && at(j) != '<')
                ++j;
            paint(i, j, HtmlStyle::Value);
            st.mode = LexState::InTag;
            i = j;
            continue;
        }
        if (c == '/' || c == '=') {
            paint(i, i + 1, tagStyle());
            st.mode = LexState::InTag;
            ++i;
            continue;
        }
        I j = i;
        while (j < n && !isSpace(at(j)) && at(j) != '>' && at(j) != '<' && at(j) != '=' && at(j) != '/'
               && at(j) != '"' && at(j) != '\'')
            ++j;
        paint(i, j, HtmlStyle::Attribute);
        st.mode = LexState::AfterAttribute;
        i = j;
    }
    return i;
}

I Lexer::quotedValue(I i, I to)
{
    const void *q = std::memchr(t + i, st.quote, size_t(to - i));
    const I quote = q ? I(static_cast<const char *>(q) - t) : to;
    const I less = findLess(i, quote);
    if (less < quote) {
        // A '<' before the quote closes: the value was never finished.
        paint(st.tokenStart, less, HtmlStyle::Unfinished);
        st.mode = LexState::InText;
        return less;
    }
    if (quote < to) {
        paint(i, quote + 1, HtmlStyle::Value);
        st.mode = LexState::InTag;
        return quote + 1;
    }
    paint(i, to, HtmlStyle::Value);
    return to;
}

I Lexer::comment(I i, I to)
{
    const I bodyStart = st.tokenStart + 4;
    I k = i;
    while (k < to) {
        const void *p = std::memchr(t + k, '>', size_t(to - k));
        if (!p)
            break;
        const I gt = I(static_cast<const char *>(p) - t);
        if (gt - 2 >= bodyStart && t[gt - 1] == '-' && t[gt - 2] == '-') {
            paint(i, gt + 1, HtmlStyle::Comment);
            st.mode = LexState::InText;
            return gt + 1;
        }
        k = gt + 1;
    }
    paint(i, to, HtmlStyle::Comment);
    return to;
}

I Lexer::declaration(I i, I to)
{
    for (I k = i; k < to; ++k) {
        const unsigned char c = at(k);
        if (c == '>' || c == '<') {
            const I end = c == '>' ? k + 1 : k;
            paint(i, end, HtmlStyle::Declaration);
            st.mode = LexState::InText;
            return end;
        }
    }
    paint(i, to, HtmlStyle::Declaration);
    return to;
}

I Lexer::style(I i, I to)
{
    I k = i;
    while (k < to) {
        k = findLess(k, to);
        if (k < to && closesRaw(k, "style", 5)) {
            paint(i, k, HtmlStyle::StyleText);
            st.mode = LexState::InText;
            return openTag(k);
        }
        if (k < to)
            ++k;
    }
    paint(i, to, HtmlStyle::StyleText);
    return to;
}

I Lexer::script(I i, I to)
{
    while (i < to) {
        const unsigned char c = at(i);
        if (c == '<' && closesRaw(i, "script", 6)) {
            st.mode = LexState::InText;
            st.script = LexState::ScriptCode;
            return openTag(i);
        }
        switch (st.script) {
        case LexState::ScriptCode: {
            if (isWordChar(c)) {
                I j = i + 1;
                while (j < n && isWordChar(at(j)))
                    ++j;
                std::uint8_t s = HtmlStyle::ScriptText;
                if (j - i <= 64) {
                    switch (words.scriptWord(t + i, int(j - i))) {
                    case ScriptWordClass::Statement: s = HtmlStyle::Statement; break;
                    case ScriptWordClass::Object: s = HtmlStyle::Object; break;
                    case ScriptWordClass::Method: s = HtmlStyle::Method; break;
                    case ScriptWordClass::Property: s = HtmlStyle::Property; break;
                    case ScriptWordClass::None: break;
                    }
                }
                paint(i, j, s);
                i = j;
            } else if (c == '"' || c == '\'' || c == '`') {
                st.script = c == '`' ? LexState::Template : LexState::String;
                st.quote = char(c);
                paint(i, i + 1, HtmlStyle::ScriptString);
                ++i;
            } else if (c == '/' && (at(i + 1) == '/' || at(i + 1) == '*')) {
                st.script = at(i + 1) == '/' ? LexState::LineComment : LexState::BlockComment;
                st.tokenStart = i;
                paint(i, i + 2, HtmlStyle::ScriptComment);
                i += 2;
            } else {
                I j = i + 1;
                while (j < to && !isWordChar(at(j)) && at(j) != '"' && at(j) != '\'' && at(j) != '`'
                       && at(j) != '/' && at(j) != '<')
                    ++j;
                paint(i, j, HtmlStyle::ScriptText);
                i = j;
            }
            break;
        }
        case LexState::LineComment:
        case LexState::BlockComment: {
            I j = i;
            bool closed = false;
            while (j < to) {
                const unsigned char d = at(j);
                if (d == '<' && closesRaw(j, "script", 6))
                    break;
                if (st.script == LexState::LineComment && (d == '\n' || d == '\r')) {
                    closed = true;
                    break;
                }
                ++j;
                if (st.script == LexState::BlockComment && d == '/' && j - 2 >= st.tokenStart + 2 && t[j - 2] == '*') {
                    closed = true;
                    break;
                }
            }
            paint(i, j, HtmlStyle::ScriptComment);
            if (closed)
                st.script = LexState::ScriptCode;
            i = j;
            break;
        }
        case LexState::String:
        case LexState::Template: {
            I j = i;
            bool closed = false;
            while (j < to) {
                const unsigned char d = at(j);
                if (d == '<' && closesRaw(j, "script", 6))
                    break;
                if (st.script == LexState::String && (d == '\n' || d == '\r')) {
                    closed = true;   // a string does not run over a line end
                    break;
                }
                if (d == '\\') {
                    j = std::min(j + 2, n);
                    continue;
                }
                ++j;
                if (d == static_cast<unsigned char>(st.quote)) {
                    closed = true;
                    break;
                }
            }
            paint(i, j, HtmlStyle::ScriptString);
            if (closed)
                st.script = LexState::ScriptCode;
            i = j;
            break;
        }
        }
    }
    return i;
}

} // namespace

std::int64_t lexHtml(const char *text, std::int64_t length, bool pageEnds, std::int64_t from, std::int64_t to,
                     LexState &state, StyleSink &sink, const KnownWords &words)
{
    Lexer lexer(text, length, pageEnds, state, sink, words);
    return lexer.run(from, to);
}

} // namespace qly::documents
