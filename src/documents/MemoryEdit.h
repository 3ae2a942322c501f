#pragma once

#include "core/TextCodec.h"
#include "platform/HTMLEdit.h"

#include <vector>

namespace qly::documents {

// A text buffer without a window. It answers every operation the edit
// control answers, in the same way, so logic can run and be tested without
// a screen; the shared buffer tests hold it to the real control.
class MemoryEdit final : public platform::HTMLEdit
{
public:
    MemoryEdit() = default;

    QString Text() const override { return m_text; }
    void setText(const QString &text) override;
    QString SelText() const override;
    void setSelText(const QString &text) override;
    int SelStart() const override { return m_selStart; }
    void setSelStart(int start) override;
    int SelLength() const override { return m_selLength; }
    void setSelLength(int length) override;
    void SetSel(int start, int end) override;
    int GetTextLength() const override { return int(m_text.size()); }
    void GetLineAndCol(int &line, int &column) const override;
    int Find(const QString &text, int start, int end, int options) override;
    void Span(const QString &characters, bool forward, bool negate) override;
    bool Dirty() const override { return m_dirty; }
    void setDirty(bool dirty) override { m_dirty = dirty; }
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
    void setColorMode(int mode) override { m_colorMode = mode; }
    void ColorHTML() override { ++m_colorPasses; }
    void InitColor(const platform::ColorTable &colors) override { m_colors = colors; }
    void SelectTag() override;
    void SetFontAndSize(const QString &name, int size) override;
    QString FontName() const override { return m_fontName; }
    int FontSize() const override { return m_fontSize; }
    bool WordWrap() const override { return m_wordWrap; }
    void setWordWrap(bool wrap) override { m_wordWrap = wrap; }
    int SelIndent() const override { return m_indent; }
    void setSelIndent(int indent) override { m_indent = indent; }
    bool PrintMe(const QString &jobName) override;
    void SetFocus() override {}

    // For tests: how often the text was recoloured, and the last print job.
    int colorPasses() const { return m_colorPasses; }
    QString lastPrintJob() const { return m_printJob; }
    core::TextEncoding encoding() const { return m_encoding; }

private:
    struct Change {
        int position;
        QString removed;
        QString inserted;
        int group;
    };

    void replace(int position, int length, const QString &text);
    void applyUndo(const Change &c);
    void clampSelection();

    QString m_text;
    int m_selStart = 0;
    int m_selLength = 0;
    bool m_dirty = false;
    core::TextEncoding m_encoding = core::TextEncoding::Utf8;
    std::vector<Change> m_undo;
    std::vector<Change> m_redo;
    int m_groupDepth = 0;
    int m_openGroup = 0;
    int m_nextGroup = 1;
    int m_colorMode = platform::ColorOff;
    int m_colorPasses = 0;
    platform::ColorTable m_colors{};
    QString m_fontName;
    int m_fontSize = 10;
    bool m_wordWrap = false;
    int m_indent = 0;
    QString m_printJob;
};

} // namespace qly::documents
