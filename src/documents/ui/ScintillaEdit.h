#pragma once

#include "core/TextCodec.h"
#include "documents/Utf16Index.h"
#include "platform/HTMLEdit.h"

#include <QKeySequence>
#include <QList>
#include <QObject>

class QsciScintilla;
class QTimer;

namespace qly::documents::ui {

class HtmlColouring;

// The document's edit control: a Scintilla view behind the buffer interface.
// Scintilla holds the text as UTF-8 and counts bytes; this class speaks in
// characters and keeps the file's own bytes on load and save.
class ScintillaEdit final : public QObject, public platform::HTMLEdit
{
    Q_OBJECT
public:
    explicit ScintillaEdit(QWidget *parent = nullptr);
    ~ScintillaEdit() override;

    QsciScintilla *view() const { return m_sci; }

    QString Text() const override;
    void setText(const QString &text) override;
    QString SelText() const override;
    void setSelText(const QString &text) override;
    int SelStart() const override;
    void setSelStart(int start) override;
    int SelLength() const override;
    void setSelLength(int length) override;
    void SetSel(int start, int end) override;
    int GetTextLength() const override;
    void GetLineAndCol(int &line, int &column) const override;
    int Find(const QString &text, int start, int end, int options) override;
    void Span(const QString &characters, bool forward, bool negate) override;
    bool Dirty() const override;
    void setDirty(bool dirty) override;
    platform::IoResult LoadFile(int mode, const QString &path) override;
    platform::IoResult SaveFile(int mode, const QString &path) override;
    void Undo() override;
    void Redo() override;
    void PrepareUndo() override;
    void EndPUndo() override;
    void Cut() override;
    void Copy() override;
    void Paste() override;
    int ColorMode() const override { return m_colorMode; }
    void setColorMode(int mode) override;
    void ColorHTML() override;
    void InitColor(const platform::ColorTable &colors) override;
    void SelectTag() override;
    void SetFontAndSize(const QString &name, int size) override;
    QString FontName() const override { return m_fontName; }
    int FontSize() const override { return m_fontSize; }
    bool WordWrap() const override;
    void setWordWrap(bool wrap) override;
    int SelIndent() const override { return m_indent; }
    void setSelIndent(int indent) override;
    bool PrintMe(const QString &jobName) override;
    void SetFocus() override;

    core::TextEncoding encoding() const { return m_encoding; }
    HtmlColouring *colouring() const { return m_lexer; }
    // True once every byte of the page is coloured (or colouring is off).
    bool colouringComplete() const;
    // Gives keys that the editor's commands use back to those commands:
    // the control's own binding of each is dropped.
    void releaseKeys(const QList<QKeySequence> &keys);

signals:
    // The caret or the selection moved.
    void caretMoved();
    // Dirty changed.
    void dirtyChanged(bool dirty);

private:
    long send(unsigned int msg, unsigned long w = 0, long l = 0) const;
    const char *bytes() const;
    long byteLength() const;
    Utf16Index &index() const;
    int toChar(long bytePos) const;
    long toByte(int charPos) const;
    void applyColors();
    // Where the last line on screen ends.
    long screenEnd() const;
    bool longLineAt(long position) const;
    void colourAhead();
    void startColouringAhead(int delay);
    int findFolded(const QString &text, int start, int end, int options);

    QsciScintilla *m_sci = nullptr;
    HtmlColouring *m_lexer = nullptr;
    // Character positions of the bytes, kept up to date with each change.
    mutable Utf16Index m_index;
    mutable std::pair<long, long> m_pendingInsert;
    // Colours the page past the screen a piece at a time once typing pauses.
    QTimer *m_colourAhead = nullptr;
    qint64 m_lastChange = 0;
    long m_caretLine = 0;
    long m_caretPos = -1;
    core::TextEncoding m_encoding = core::TextEncoding::Utf8;
    bool m_forcedDirty = false;
    bool m_loading = false;   // a file is going in: nothing is coloured yet
    int m_colorMode = platform::ColorOff;
    platform::ColorTable m_colors;
    QString m_fontName;
    int m_fontSize = 10;
    int m_indent = 0;
};

} // namespace qly::documents::ui
