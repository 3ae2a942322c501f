#pragma once

#include "core/FileIo.h"

#include <QString>
#include <array>

namespace qly::platform {

using core::IoResult;

// Colour slots handed to the buffer, numbered as the tag tree numbers them:
// 0 tags, 1 attributes, 2 unfinished attribute values, 3 values, 4 text,
// 5 methods, 6 properties, 7 statements, 8 objects, 9 text, 10 text, 11 errors.
// Each is a colour as stored in the configuration (red + 256*green + 65536*blue),
// or -1 for the buffer's own default.
using ColorTable = std::array<int, 12>;

// Find options, combinable.
inline constexpr int FindWholeWord = 2;
inline constexpr int FindMatchCase = 4;
inline constexpr int FindNoHighlight = 8;

// Colouring modes.
inline constexpr int ColorEntireTags = 0;
inline constexpr int ColorTagSyntax = 1;
inline constexpr int ColorOff = 3;

// The text buffer of a document: text, selection, undo, colouring, files.
//
// Positions count from 0 in characters of the decoded text (UTF-16 code units,
// as QString counts them). A file is bytes: the buffer shows them as UTF-8 when
// they are valid UTF-8, otherwise as Windows-1252, and saves them back in the
// same encoding, so an unchanged buffer saves the bytes it loaded. Line ends
// stay as the file has them.
class HTMLEdit
{
public:
    virtual ~HTMLEdit() = default;

    virtual QString Text() const = 0;
    virtual void setText(const QString &text) = 0;

    // Writing the selection replaces it, leaving the caret behind the new
    // text with nothing selected; with nothing selected it inserts at the caret.
    virtual QString SelText() const = 0;
    virtual void setSelText(const QString &text) = 0;

    // Setting SelStart moves the caret and clears the selection; setting
    // SelLength selects that many characters from SelStart.
    virtual int SelStart() const = 0;
    virtual void setSelStart(int start) = 0;
    virtual int SelLength() const = 0;
    virtual void setSelLength(int length) = 0;
    virtual void SetSel(int start, int end) = 0;

    virtual int GetTextLength() const = 0;
    // Caret line and column, both counted from 1.
    virtual void GetLineAndCol(int &line, int &column) const = 0;

    // Searches `text` in [start, end) (end < 0: to the end of the text),
    // without regard to case unless FindMatchCase is given. Selects the hit
    // unless FindNoHighlight is given. Returns its position or -1.
    virtual int Find(const QString &text, int start, int end, int options) = 0;

    // Extends the selection forwards (its end) or backwards (its start) over
    // characters of `characters`, or with `negate` up to the first one of them.
    virtual void Span(const QString &characters, bool forward, bool negate) = 0;

    virtual bool Dirty() const = 0;
    virtual void setDirty(bool dirty) = 0;

    // mode 1 is plain text, the only mode there is. Loading resets Dirty and
    // the undo history. Saving has no other effect and writes atomically;
    // a read-only target gives error 75.
    virtual IoResult LoadFile(int mode, const QString &path) = 0;
    virtual IoResult SaveFile(int mode, const QString &path) = 0;

    virtual void Undo() = 0;
    virtual void Redo() = 0;
    // Everything between the two calls is one undo step.
    virtual void PrepareUndo() = 0;
    virtual void EndPUndo() = 0;

    virtual void Cut() = 0;
    virtual void Copy() = 0;
    virtual void Paste() = 0;

    virtual int ColorMode() const = 0;
    virtual void setColorMode(int mode) = 0;
    virtual void ColorHTML() = 0;
    virtual void InitColor(const ColorTable &colors) = 0;

    // Selects the tag that encloses the caret; nothing happens outside a tag.
    virtual void SelectTag() = 0;

    virtual void SetFontAndSize(const QString &name, int size) = 0;
    virtual QString FontName() const = 0;
    virtual int FontSize() const = 0;
    virtual bool WordWrap() const = 0;
    virtual void setWordWrap(bool wrap) = 0;
    virtual int SelIndent() const = 0;
    virtual void setSelIndent(int indent) = 0;

    // Prints the text through the system's print dialog; false when cancelled.
    virtual bool PrintMe(const QString &jobName) = 0;

    virtual void SetFocus() = 0;
};

} // namespace qly::platform
