#include "documents/MemoryEdit.h"

#include "documents/TextSearch.h"

#include <QFileInfo>

namespace qly::documents {

namespace {
QString &clipboard()
{
    static QString text;
    return text;
}
} // namespace

void MemoryEdit::replace(int position, int length, const QString &text)
{
    if (length == 0 && text.isEmpty())
        return;
    const int group = m_groupDepth > 0 ? m_openGroup : m_nextGroup++;
    m_undo.push_back({position, m_text.mid(position, length), text, group});
    m_redo.clear();
    m_text.replace(position, length, text);
    m_dirty = true;
}

void MemoryEdit::clampSelection()
{
    const int n = int(m_text.size());
    m_selStart = std::clamp(m_selStart, 0, n);
    m_selLength = std::clamp(m_selLength, 0, n - m_selStart);
}

void MemoryEdit::setText(const QString &text)
{
    replace(0, int(m_text.size()), text);
    m_selStart = 0;
    m_selLength = 0;
}

QString MemoryEdit::SelText() const
{
    return m_text.mid(m_selStart, m_selLength);
}

void MemoryEdit::setSelText(const QString &text)
{
    replace(m_selStart, m_selLength, text);
    m_selStart += int(text.size());
    m_selLength = 0;
}

void MemoryEdit::setSelStart(int start)
{
    m_selStart = start;
    m_selLength = 0;
    clampSelection();
}

void MemoryEdit::setSelLength(int length)
{
    m_selLength = length;
    clampSelection();
}

void MemoryEdit::SetSel(int start, int end)
{
    if (end < 0)
        end = int(m_text.size());
    if (end < start)
        std::swap(start, end);
    m_selStart = start;
    m_selLength = end - start;
    clampSelection();
}

void MemoryEdit::GetLineAndCol(int &line, int &column) const
{
    lineAndColumn(m_text, m_selStart, line, column);
}

int MemoryEdit::Find(const QString &text, int start, int end, int options)
{
    const int hit = findInText(m_text, text, start, end, options);
    if (hit >= 0 && !(options & platform::FindNoHighlight))
        SetSel(hit, hit + int(text.size()));
    return hit;
}

void MemoryEdit::Span(const QString &characters, bool forward, bool negate)
{
    int start = m_selStart;
    int end = m_selStart + m_selLength;
    spanSelection(m_text, characters, forward, negate, start, end);
    SetSel(start, end);
}

platform::IoResult MemoryEdit::LoadFile(int, const QString &path)
{
    QByteArray bytes;
    const platform::IoResult result = core::readWholeFile(path, bytes);
    if (!result.ok())
        return result;
    const core::DecodedFile file = core::decodeFile(bytes);
    m_text = file.text;
    m_encoding = file.encoding;
    m_undo.clear();
    m_redo.clear();
    m_selStart = 0;
    m_selLength = 0;
    m_dirty = false;
    return {};
}

platform::IoResult MemoryEdit::SaveFile(int, const QString &path)
{
    return core::writeFileAtomically(path, core::encodeText(m_text, m_encoding));
}

void MemoryEdit::applyUndo(const Change &c)
{
    m_text.replace(c.position, c.inserted.size(), c.removed);
    m_selStart = c.position;
    m_selLength = int(c.removed.size());
}

void MemoryEdit::Undo()
{
    if (m_undo.empty())
        return;
    const int group = m_undo.back().group;
    while (!m_undo.empty() && m_undo.back().group == group) {
        applyUndo(m_undo.back());
        m_redo.push_back(m_undo.back());
        m_undo.pop_back();
    }
    m_dirty = true;
}

void MemoryEdit::Redo()
{
    if (m_redo.empty())
        return;
    const int group = m_redo.back().group;
    while (!m_redo.empty() && m_redo.back().group == group) {
        const Change c = m_redo.back();
        m_redo.pop_back();
        m_text.replace(c.position, c.removed.size(), c.inserted);
        m_selStart = c.position + int(c.inserted.size());
        m_selLength = 0;
        m_undo.push_back(c);
    }
    m_dirty = true;
}

void MemoryEdit::PrepareUndo()
{
    if (m_groupDepth++ == 0)
        m_openGroup = m_nextGroup++;
}

void MemoryEdit::EndPUndo()
{
    if (m_groupDepth > 0)
        --m_groupDepth;
}

void MemoryEdit::Cut()
{
    if (m_selLength == 0)
        return;
    clipboard() = SelText();
    setSelText(QString());
}

void MemoryEdit::Copy()
{
    if (m_selLength > 0)
        clipboard() = SelText();
}

void MemoryEdit::Paste()
{
    setSelText(clipboard());
}

void MemoryEdit::SelectTag()
{
    int start = 0;
    int end = 0;
    if (enclosingTag(m_text, m_selStart, start, end))
        SetSel(start, end);
}

void MemoryEdit::SetFontAndSize(const QString &name, int size)
{
    m_fontName = name;
    m_fontSize = size;
}

bool MemoryEdit::PrintMe(const QString &jobName)
{
    m_printJob = jobName;
    return true;
}

} // namespace qly::documents
