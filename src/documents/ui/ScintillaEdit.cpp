#include "documents/ui/ScintillaEdit.h"

#include "core/Feedback.h"
#include "core/FileIo.h"
#include "documents/TextSearch.h"
#include "documents/ui/EditColors.h"
#include "documents/ui/PrintSetup.h"

#include <Qsci/qscicommand.h>
#include <Qsci/qscicommandset.h>
#include <Qsci/qscilexerhtml.h>
#include <Qsci/qsciprinter.h>
#include <Qsci/qsciscintilla.h>

#include <QPrintDialog>

namespace qly::documents::ui {

using Base = QsciScintillaBase;

namespace {

int utf8Length(unsigned char lead)
{
    return lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
}

} // namespace

ScintillaEdit::ScintillaEdit(QWidget *parent)
    : QObject(parent)
    , m_sci(new QsciScintilla(parent))
{
    m_colors.fill(-1);
    m_sci->setUtf8(true);
    m_sci->setEolMode(QsciScintilla::EolWindows);
    m_sci->setMarginWidth(1, 0);
    m_sci->setCaretLineVisible(false);
    send(Base::SCI_ALLOCATELINECHARACTERINDEX, Base::SC_LINECHARACTERINDEX_UTF16);
    connect(m_sci, &QsciScintilla::selectionChanged, this, &ScintillaEdit::caretMoved);
    connect(m_sci, &QsciScintilla::cursorPositionChanged, this, [this](int, int) { emit caretMoved(); });
    connect(m_sci, &QsciScintilla::modificationChanged, this, [this](bool) { emit dirtyChanged(Dirty()); });
}

ScintillaEdit::~ScintillaEdit() = default;

long ScintillaEdit::send(unsigned int msg, unsigned long w, long l) const
{
    return m_sci->SendScintilla(msg, w, l);
}

const char *ScintillaEdit::bytes() const
{
    return static_cast<const char *>(m_sci->SendScintillaPtrResult(Base::SCI_GETCHARACTERPOINTER));
}

long ScintillaEdit::byteLength() const
{
    return send(Base::SCI_GETLENGTH);
}

bool ScintillaEdit::plainAscii() const
{
    // The UTF-16 length equals the byte length only when every byte is ASCII.
    const long lines = send(Base::SCI_GETLINECOUNT);
    const long lastStart = send(Base::SCI_POSITIONFROMLINE, lines - 1);
    const long units = send(Base::SCI_INDEXPOSITIONFROMLINE, lines - 1, Base::SC_LINECHARACTERINDEX_UTF16)
                       + send(Base::SCI_COUNTCODEUNITS, lastStart, byteLength());
    return units == byteLength();
}

int ScintillaEdit::toChar(long bytePos) const
{
    if (bytePos <= 0)
        return 0;
    const long line = send(Base::SCI_LINEFROMPOSITION, bytePos);
    const long lineStart = send(Base::SCI_POSITIONFROMLINE, line);
    return int(send(Base::SCI_INDEXPOSITIONFROMLINE, line, Base::SC_LINECHARACTERINDEX_UTF16)
               + send(Base::SCI_COUNTCODEUNITS, lineStart, bytePos));
}

long ScintillaEdit::toByte(int charPos) const
{
    if (charPos <= 0)
        return 0;
    const int total = GetTextLength();
    if (charPos >= total)
        return byteLength();
    const long line = send(Base::SCI_LINEFROMINDEXPOSITION, charPos, Base::SC_LINECHARACTERINDEX_UTF16);
    const long lineStart = send(Base::SCI_POSITIONFROMLINE, line);
    const long lineUnits = send(Base::SCI_INDEXPOSITIONFROMLINE, line, Base::SC_LINECHARACTERINDEX_UTF16);
    if (charPos == lineUnits)
        return lineStart;
    return send(Base::SCI_POSITIONRELATIVECODEUNITS, lineStart, charPos - lineUnits);
}

QString ScintillaEdit::Text() const
{
    return QString::fromUtf8(bytes(), byteLength());
}

void ScintillaEdit::setText(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    send(Base::SCI_BEGINUNDOACTION);
    send(Base::SCI_CLEARALL);
    m_sci->SendScintilla(Base::SCI_ADDTEXT, uintptr_t(utf8.size()), utf8.constData());
    send(Base::SCI_ENDUNDOACTION);
    send(Base::SCI_SETEMPTYSELECTION, 0);
}

QString ScintillaEdit::SelText() const
{
    const long start = send(Base::SCI_GETSELECTIONSTART);
    const long end = send(Base::SCI_GETSELECTIONEND);
    const auto *p = static_cast<const char *>(
        reinterpret_cast<void *>(send(Base::SCI_GETRANGEPOINTER, start, end - start)));
    return p ? QString::fromUtf8(p, end - start) : QString();
}

void ScintillaEdit::setSelText(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    send(Base::SCI_TARGETFROMSELECTION);
    m_sci->SendScintilla(Base::SCI_REPLACETARGET, uintptr_t(utf8.size()), utf8.constData());
    send(Base::SCI_SETEMPTYSELECTION, send(Base::SCI_GETTARGETEND));
    send(Base::SCI_SCROLLCARET);
}

int ScintillaEdit::SelStart() const
{
    return toChar(send(Base::SCI_GETSELECTIONSTART));
}

void ScintillaEdit::setSelStart(int start)
{
    send(Base::SCI_SETEMPTYSELECTION, toByte(std::max(start, 0)));
    send(Base::SCI_SCROLLCARET);
}

int ScintillaEdit::SelLength() const
{
    const long start = send(Base::SCI_GETSELECTIONSTART);
    const long end = send(Base::SCI_GETSELECTIONEND);
    if (start == end)
        return 0;
    const long line = send(Base::SCI_LINEFROMPOSITION, start);
    if (line == send(Base::SCI_LINEFROMPOSITION, end))
        return int(send(Base::SCI_COUNTCODEUNITS, start, end));
    return toChar(end) - toChar(start);
}

void ScintillaEdit::setSelLength(int length)
{
    const int start = SelStart();
    SetSel(start, start + std::max(length, 0));
}

void ScintillaEdit::SetSel(int start, int end)
{
    const int total = GetTextLength();
    if (end < 0)
        end = total;
    if (end < start)
        std::swap(start, end);
    start = std::clamp(start, 0, total);
    end = std::clamp(end, 0, total);
    send(Base::SCI_SETSEL, toByte(start), toByte(end));
}

int ScintillaEdit::GetTextLength() const
{
    const long lines = send(Base::SCI_GETLINECOUNT);
    const long lastStart = send(Base::SCI_POSITIONFROMLINE, lines - 1);
    return int(send(Base::SCI_INDEXPOSITIONFROMLINE, lines - 1, Base::SC_LINECHARACTERINDEX_UTF16)
               + send(Base::SCI_COUNTCODEUNITS, lastStart, byteLength()));
}

void ScintillaEdit::GetLineAndCol(int &line, int &column) const
{
    const long pos = send(Base::SCI_GETSELECTIONSTART);
    const long l = send(Base::SCI_LINEFROMPOSITION, pos);
    line = int(l) + 1;
    column = int(send(Base::SCI_COUNTCODEUNITS, send(Base::SCI_POSITIONFROMLINE, l), pos)) + 1;
}

int ScintillaEdit::Find(const QString &text, int start, int end, int options)
{
    if (text.isEmpty())
        return -1;
    const int total = GetTextLength();
    if (end < 0 || end > total)
        end = total;
    if (start < 0)
        start = 0;
    if (start >= end)
        return -1;
    if (!(options & platform::FindMatchCase)) {
        for (const QChar c : text) {
            if (c.unicode() >= 0x80)
                return findFolded(text, start, end, options);
        }
    }
    int flags = 0;
    if (options & platform::FindMatchCase)
        flags |= QsciScintillaBase::SCFIND_MATCHCASE;
    if (options & platform::FindWholeWord)
        flags |= QsciScintillaBase::SCFIND_WHOLEWORD;
    const QByteArray utf8 = text.toUtf8();
    send(Base::SCI_SETTARGETRANGE, toByte(start), toByte(end));
    send(Base::SCI_SETSEARCHFLAGS, flags);
    const long hit = m_sci->SendScintilla(Base::SCI_SEARCHINTARGET, uintptr_t(utf8.size()), utf8.constData());
    if (hit < 0)
        return -1;
    if (!(options & platform::FindNoHighlight))
        send(Base::SCI_SETSEL, hit, send(Base::SCI_GETTARGETEND));
    return toChar(hit);
}

int ScintillaEdit::findFolded(const QString &text, int start, int end, int options)
{
    // Scintilla folds only ASCII letters in a search; other letters are
    // compared here on the decoded range.
    const long from = toByte(start);
    const long to = toByte(end);
    const auto *p = reinterpret_cast<const char *>(send(Base::SCI_GETRANGEPOINTER, from, to - from));
    const QString range = QString::fromUtf8(p, to - from);
    const int local = findInText(range, text, 0, -1, options);
    if (local < 0)
        return -1;
    const int hit = start + local;
    if (!(options & platform::FindNoHighlight))
        SetSel(hit, hit + int(text.size()));
    return hit;
}

void ScintillaEdit::Span(const QString &characters, bool forward, bool negate)
{
    const char *p = bytes();
    const long n = byteLength();
    long start = send(Base::SCI_GETSELECTIONSTART);
    long end = send(Base::SCI_GETSELECTIONEND);
    auto spans = [&](long at, int len) {
        return characters.contains(QString::fromUtf8(p + at, len)) != negate;
    };
    if (forward) {
        while (end < n) {
            const int len = std::min<long>(utf8Length(static_cast<unsigned char>(p[end])), n - end);
            if (!spans(end, len))
                break;
            end += len;
        }
    } else {
        while (start > 0) {
            long from = start - 1;
            while (from > 0 && (static_cast<unsigned char>(p[from]) & 0xC0) == 0x80)
                --from;
            if (!spans(from, int(start - from)))
                break;
            start = from;
        }
    }
    send(Base::SCI_SETSEL, start, end);
}

bool ScintillaEdit::Dirty() const
{
    return m_forcedDirty || send(Base::SCI_GETMODIFY) != 0;
}

void ScintillaEdit::setDirty(bool dirty)
{
    const bool was = Dirty();
    m_forcedDirty = dirty;
    if (!dirty)
        send(Base::SCI_SETSAVEPOINT);
    if (was != Dirty())
        emit dirtyChanged(Dirty());
}

platform::IoResult ScintillaEdit::LoadFile(int, const QString &path)
{
    QByteArray data;
    const platform::IoResult result = core::readWholeFile(path, data);
    if (!result.ok())
        return result;
    m_encoding = core::detectEncoding(data);
    if (m_encoding == core::TextEncoding::Windows1252)
        data = core::windows1252ToUtf8(data);

    // New text keeps the file's own line ends.
    int eol = QsciScintillaBase::SC_EOL_CRLF;
    const qsizetype nl = data.indexOf('\n');
    const qsizetype cr = data.indexOf('\r');
    if (nl >= 0 && (cr < 0 || cr > nl))
        eol = QsciScintillaBase::SC_EOL_LF;
    else if (cr >= 0 && (cr + 1 >= data.size() || data.at(cr + 1) != '\n'))
        eol = QsciScintillaBase::SC_EOL_CR;
    send(Base::SCI_SETEOLMODE, eol);

    // Text put in with wrapping on is wrapped whole at once, which for a
    // large page takes seconds; wrapped afterwards, only the lines shown
    // are wrapped now and the rest while the program is idle.
    const long wrap = send(Base::SCI_GETWRAPMODE);
    if (wrap != Base::SC_WRAP_NONE)
        send(Base::SCI_SETWRAPMODE, Base::SC_WRAP_NONE);
    send(Base::SCI_SETUNDOCOLLECTION, 0);
    send(Base::SCI_CLEARALL);
    send(Base::SCI_ALLOCATE, data.size() + 1);
    m_sci->SendScintilla(Base::SCI_ADDTEXT, uintptr_t(data.size()), data.constData());
    if (wrap != Base::SC_WRAP_NONE)
        send(Base::SCI_SETWRAPMODE, wrap);
    send(Base::SCI_SETUNDOCOLLECTION, 1);
    send(Base::SCI_EMPTYUNDOBUFFER);
    send(Base::SCI_SETEMPTYSELECTION, 0);
    send(Base::SCI_SCROLLCARET);
    m_forcedDirty = false;
    send(Base::SCI_SETSAVEPOINT);
    emit dirtyChanged(false);
    return {};
}

platform::IoResult ScintillaEdit::SaveFile(int, const QString &path)
{
    QByteArray data(bytes(), byteLength());
    if (m_encoding == core::TextEncoding::Windows1252)
        data = core::utf8ToWindows1252(data);
    return core::writeFileAtomically(path, data);
}

void ScintillaEdit::Undo()
{
    send(Base::SCI_UNDO);
}

void ScintillaEdit::Redo()
{
    send(Base::SCI_REDO);
}

void ScintillaEdit::PrepareUndo()
{
    send(Base::SCI_BEGINUNDOACTION);
}

void ScintillaEdit::EndPUndo()
{
    send(Base::SCI_ENDUNDOACTION);
}

void ScintillaEdit::Cut()
{
    m_sci->cut();
}

void ScintillaEdit::Copy()
{
    m_sci->copy();
}

void ScintillaEdit::Paste()
{
    m_sci->paste();
}

void ScintillaEdit::setColorMode(int mode)
{
    m_colorMode = mode;
    if (mode == platform::ColorOff) {
        m_sci->setLexer(nullptr);
        delete m_lexer;
        m_lexer = nullptr;
        return;
    }
    if (!m_lexer) {
        m_lexer = new QsciLexerHTML(this);
        m_lexer->setFont(m_sci->font());
        m_sci->setLexer(m_lexer);
    }
    applyColors();
}

void ScintillaEdit::applyColors()
{
    if (m_lexer)
        applyEditColors(*m_lexer, m_colors, m_colorMode == platform::ColorEntireTags);
}

void ScintillaEdit::ColorHTML()
{
    if (!m_lexer)
        return;
    applyColors();
    // Scintilla styles lazily; recolour what is on screen now and let the rest follow.
    const long lastVisible = send(Base::SCI_GETFIRSTVISIBLELINE) + send(Base::SCI_LINESONSCREEN) + 1;
    send(Base::SCI_COLOURISE, 0, send(Base::SCI_GETLINEENDPOSITION, lastVisible));
}

void ScintillaEdit::InitColor(const platform::ColorTable &colors)
{
    m_colors = colors;
    applyColors();
}

void ScintillaEdit::SelectTag()
{
    const char *p = bytes();
    const long n = byteLength();
    const long pos = send(Base::SCI_GETSELECTIONSTART);
    long open = -1;
    if (pos < n && p[pos] == '<') {
        open = pos;
    } else {
        for (long i = pos - 1; i >= 0; --i) {
            if (p[i] == '>')
                return;
            if (p[i] == '<') {
                open = i;
                break;
            }
        }
    }
    if (open < 0)
        return;
    for (long i = std::max(open + 1, pos); i < n; ++i) {
        if (p[i] == '<')
            return;
        if (p[i] == '>') {
            send(Base::SCI_SETSEL, open, i + 1);
            return;
        }
    }
}

void ScintillaEdit::SetFontAndSize(const QString &name, int size)
{
    m_fontName = name;
    m_fontSize = size > 0 ? size : 10;
    QFont font(name, m_fontSize);
    font.setStyleHint(QFont::TypeWriter, QFont::PreferMatch);
    m_sci->setFont(font);
    if (m_lexer)
        m_lexer->setFont(font);
}

bool ScintillaEdit::WordWrap() const
{
    return m_sci->wrapMode() != QsciScintilla::WrapNone;
}

void ScintillaEdit::setWordWrap(bool wrap)
{
    m_sci->setWrapMode(wrap ? QsciScintilla::WrapWord : QsciScintilla::WrapNone);
    // QScintilla keeps the layout of every line of a wrapped document,
    // which a large page pays for in memory and time; the lines of a page
    // around the caret are enough. Colouring, which wrapping needs, goes on
    // while the program is idle.
    send(Base::SCI_SETLAYOUTCACHE, Base::SC_CACHE_PAGE);
    send(Base::SCI_SETIDLESTYLING, wrap ? Base::SC_IDLESTYLING_ALL : Base::SC_IDLESTYLING_NONE);
}

void ScintillaEdit::setSelIndent(int indent)
{
    m_indent = indent;
    // The stored indent is in twips, fifteen to a pixel.
    send(Base::SCI_SETMARGINLEFT, 0, std::max(indent, 0) / 15);
}

bool ScintillaEdit::PrintMe(const QString &jobName)
{
    QsciPrinter printer;
    ApplyPrintSetup(printer);
    printer.setDocName(jobName);
    QPrintDialog dialog(&printer, m_sci);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    KeepPrintSetup(printer);
    core::BeginWait();
    printer.printRange(m_sci);
    core::EndWait();
    return true;
}

void ScintillaEdit::releaseKeys(const QList<QKeySequence> &keys)
{
    QsciCommandSet *commands = m_sci->standardCommands();
    for (const QKeySequence &key : keys) {
        if (key.isEmpty())
            continue;
        const int combined = key[0].toCombined();
        while (QsciCommand *command = commands->boundTo(combined)) {
            if (command->key() == combined)
                command->setKey(0);
            if (command->alternateKey() == combined)
                command->setAlternateKey(0);
        }
    }
}

void ScintillaEdit::SetFocus()
{
    m_sci->setFocus();
}

} // namespace qly::documents::ui
