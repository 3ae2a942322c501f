#include "documents/ui/ScintillaEdit.h"

#include "core/Feedback.h"
#include "core/FileIo.h"
#include "core/TextCodec.h"
#include "core/Globals.h"
#include "documents/TextSearch.h"
#include "documents/ui/EditColors.h"
#include "documents/ui/HtmlColouring.h"
#include "documents/ui/PrintSetup.h"

#include <Qsci/qscicommand.h>
#include <Qsci/qscicommandset.h>
#include <Qsci/qsciprinter.h>
#include <Qsci/qsciscintilla.h>

#include <QAccessibleWidget>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QPrintDialog>
#include <QTimer>

#include <cstring>

namespace qly::documents::ui {

using Base = QsciScintillaBase;

namespace {

// A pause in typing this long lets the colouring go on past the screen.
constexpr int kTypingPauseMs = 300;
// Bytes coloured past the screen in one go, a few milliseconds' work.
constexpr long kColourAheadBytes = 1024 * 1024;

// QScintilla's own accessible text counts characters from the start of the
// page for each caret move, a second a move on a large page. While no
// assistive technology listens, the control is offered as a plain editable
// widget instead. Factories installed later are asked first.
QAccessibleInterface *plainAccessible(const QString &, QObject *object)
{
    auto *sci = qobject_cast<QsciScintillaBase *>(object);
    if (sci && !QAccessible::isActive())
        return new QAccessibleWidget(sci, QAccessible::EditableText);
    return nullptr;
}

void keepAccessibilityCheap()
{
    static bool installed = false;
    if (!installed) {
        installed = true;
        QAccessible::installFactory(plainAccessible);
    }
}

// A file goes into the control in pieces of this many bytes.
constexpr qint64 kLoadPiece = 256 * 1024;

// The length of `bytes` up to the start of a character that the bytes do
// not finish (all of it when they end on a whole character).
qsizetype completeUtf8Prefix(QByteArrayView bytes)
{
    const qsizetype n = bytes.size();
    for (qsizetype k = n - 1; k >= 0 && k >= n - 4; --k) {
        const auto c = static_cast<unsigned char>(bytes[k]);
        if ((c & 0xC0) == 0x80)
            continue;
        const int need = c >= 0xF0 ? 4 : c >= 0xE0 ? 3 : c >= 0xC0 ? 2 : 1;
        return n - k >= need ? n : k;
    }
    return n;
}

// The line ends of a file as it streams by: the first LF, the first CR
// and the byte after that CR.
struct FileLines {
    qint64 seen = 0;
    qint64 lf = -1;
    qint64 cr = -1;
    int afterCr = -1;   // -1 while unknown or at the end

    void see(const QByteArray &piece)
    {
        if (cr >= 0 && cr == seen - 1 && !piece.isEmpty())
            afterCr = static_cast<unsigned char>(piece[0]);
        if (lf < 0) {
            const qsizetype at = piece.indexOf('\n');
            if (at >= 0)
                lf = seen + at;
        }
        if (cr < 0) {
            const qsizetype at = piece.indexOf('\r');
            if (at >= 0) {
                cr = seen + at;
                if (at + 1 < piece.size())
                    afterCr = static_cast<unsigned char>(piece[at + 1]);
            }
        }
        seen += piece.size();
    }

    // New text keeps the file's own line ends.
    int eolMode() const
    {
        if (lf >= 0 && (cr < 0 || cr > lf))
            return QsciScintillaBase::SC_EOL_LF;
        if (cr >= 0 && afterCr != '\n')
            return QsciScintillaBase::SC_EOL_CR;
        return QsciScintillaBase::SC_EOL_CRLF;
    }
};

platform::IoResult streamInto(QsciScintilla *sci, QFile &file, core::TextEncoding &encoding, FileLines &lines)
{
    // Pieces end on whole characters: a valid page is valid in each piece.
    const bool asUtf8 = encoding == core::TextEncoding::Utf8;
    sci->SendScintilla(Base::SCI_CLEARALL);
    sci->SendScintilla(Base::SCI_ALLOCATE, uintptr_t(file.size() + 1));
    QByteArray buffer(kLoadPiece + 4, Qt::Uninitialized);
    qsizetype carried = 0;   // the start of a character that the next piece ends
    for (;;) {
        const qint64 got = file.read(buffer.data() + carried, kLoadPiece);
        if (got < 0 || file.error() != QFileDevice::NoError)
            return {core::ErrIo, file.errorString()};
        const qsizetype size = carried + qsizetype(got);
        const bool last = got == 0 || file.atEnd();
        if (size == 0)
            break;
        const qsizetype whole = last ? size : completeUtf8Prefix(QByteArrayView(buffer.constData(), size));
        QByteArray piece = QByteArray::fromRawData(buffer.constData(), whole);
        if (asUtf8 && !core::isValidUtf8(piece)) {
            encoding = core::TextEncoding::Windows1252;
            return {};
        }
        if (!asUtf8)
            piece = core::windows1252ToUtf8(piece);
        lines.see(piece);
        sci->SendScintilla(Base::SCI_APPENDTEXT, uintptr_t(piece.size()), piece.constData());
        if (last)
            break;
        carried = size - whole;
        std::memmove(buffer.data(), buffer.constData() + whole, size_t(carried));
    }
    return {};
}

// The notices asked for at all times.
constexpr int kBeforeChange = QsciScintillaBase::SC_MOD_BEFOREINSERT | QsciScintillaBase::SC_MOD_BEFOREDELETE;
// A line this long costs more to lay out again than the count of the
// characters before a change that QScintilla makes for a notice of it.
constexpr long kLongLine = 64 * 1024;

int utf8Length(unsigned char lead)
{
    return lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
}

} // namespace

ScintillaEdit::ScintillaEdit(QWidget *parent)
    : QObject(parent)
    , m_sci(new QsciScintilla(parent))
    , m_index([this](std::int64_t pos, std::int64_t length) {
        return reinterpret_cast<const char *>(send(Base::SCI_GETRANGEPOINTER, pos, long(length)));
    })
{
    m_colors.fill(-1);
    m_sci->setUtf8(true);
    m_sci->setEolMode(QsciScintilla::EolWindows);
    m_sci->setMarginWidth(1, 0);
    m_sci->setCaretLineVisible(false);
    // The caret's line keeps its layout while the other lines on screen are
    // drawn, so that a key on a long line lays out only what it changed.
    send(Base::SCI_SETLAYOUTCACHE, Base::SC_CACHE_PAGE);
    // Every change reaches the character index and the colouring before it
    // is made. Only those two notices are asked for: QScintilla answers a
    // notice of inserted or deleted text by counting the characters from
    // the start of the page, which on a large page costs a second a key.
    // (A change on a long line asks for its one notice after the change.)
    send(Base::SCI_SETMODEVENTMASK, kBeforeChange);
    connect(m_sci, &QsciScintillaBase::SCN_MODIFIED, this,
            [this](int position, int type, const char *, int length, int, int, int, int, int, int) {
                if (type & (Base::SC_MOD_INSERTTEXT | Base::SC_MOD_DELETETEXT)) {
                    send(Base::SCI_SETMODEVENTMASK, kBeforeChange);
                    if (m_lexer)
                        m_lexer->styleTo(screenEnd());
                    return;
                }
                // Scintilla lays out a changed line once to place the caret
                // and again on the paint if the colouring changed it in
                // between. A long line is coloured as soon as the change is
                // in, so that it is laid out once.
                if (m_lexer && !m_loading && longLineAt(position))
                    send(Base::SCI_SETMODEVENTMASK, kBeforeChange | Base::SC_MOD_INSERTTEXT | Base::SC_MOD_DELETETEXT);
                // The text to come is not handed over: it is counted once it
                // is in, at the next notice or question.
                index();
                if (type & Base::SC_MOD_BEFOREINSERT)
                    m_pendingInsert = {position, length};
                else if ((type & Base::SC_MOD_BEFOREDELETE) && position == 0 && length >= m_index.length())
                    m_index.reset(0);
                else if (type & Base::SC_MOD_BEFOREDELETE)
                    m_index.removing(position, length);
            });
    keepAccessibilityCheap();
    connect(m_sci, &QsciScintilla::selectionChanged, this, &ScintillaEdit::caretMoved);
    // The caret's line, without its column: QScintilla's cursorPositionChanged
    // counts the column from the start of the line, too slow on a long one.
    connect(m_sci, &QsciScintillaBase::SCN_UPDATEUI, this, [this](int) {
        const long pos = send(Base::SCI_GETCURRENTPOS);
        if (pos == m_caretPos)
            return;
        m_caretPos = pos;
        const int line = int(send(Base::SCI_LINEFROMPOSITION, pos));
        // Leaving a line recolours the page when [Editing] "Color On Leaving Line" says so.
        if (line != m_caretLine && core::gColorOnLeavingLine)
            ColorHTML();
        m_caretLine = line;
        emit caretMoved();
    });
    m_colourAhead = new QTimer(this);
    m_colourAhead->setSingleShot(true);
    connect(m_colourAhead, &QTimer::timeout, this, &ScintillaEdit::colourAhead);
    connect(m_sci, &QsciScintilla::textChanged, this, [this] {
        m_lastChange = QDateTime::currentMSecsSinceEpoch();
        startColouringAhead(kTypingPauseMs);
    });
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

Utf16Index &ScintillaEdit::index() const
{
    if (m_pendingInsert.second > 0) {
        m_index.inserted(m_pendingInsert.first, m_pendingInsert.second);
        m_pendingInsert = {};
    }
    return m_index;
}

int ScintillaEdit::toChar(long bytePos) const
{
    return int(index().unitsBefore(bytePos));
}

long ScintillaEdit::toByte(int charPos) const
{
    return long(index().byteOf(charPos));
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
    return int(index().totalUnits());
}

void ScintillaEdit::GetLineAndCol(int &line, int &column) const
{
    const long pos = send(Base::SCI_GETSELECTIONSTART);
    const long l = send(Base::SCI_LINEFROMPOSITION, pos);
    line = int(l) + 1;
    column = toChar(pos) - toChar(send(Base::SCI_POSITIONFROMLINE, l)) + 1;
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
    QFile file(path);
    if (!QFileInfo(path).isFile())
        return {QFileInfo::exists(path) ? core::ErrFileAccess : core::ErrFileNotFound,
                QStringLiteral("File not found.")};
    if (!file.open(QIODevice::ReadOnly))
        return {core::ErrFileAccess, file.errorString()};

    // Text put in with wrapping on is wrapped whole at once, which for a
    // large page takes seconds; wrapped afterwards, only the lines shown
    // are wrapped now and the rest while the program is idle.
    const long wrap = send(Base::SCI_GETWRAPMODE);
    if (wrap != Base::SC_WRAP_NONE)
        send(Base::SCI_SETWRAPMODE, Base::SC_WRAP_NONE);
    send(Base::SCI_SETUNDOCOLLECTION, 0);
    // The file goes in a piece at a time, so that no second copy of a large
    // page is held beside the control's own. A file that is not UTF-8 is
    // read again as Windows-1252.
    FileLines lines;
    m_encoding = core::TextEncoding::Utf8;
    m_loading = true;
    platform::IoResult result = streamInto(m_sci, file, m_encoding, lines);
    if (result.ok() && m_encoding == core::TextEncoding::Windows1252) {
        file.seek(0);
        lines = {};
        result = streamInto(m_sci, file, m_encoding, lines);
    }
    m_loading = false;
    if (!result.ok()) {
        send(Base::SCI_CLEARALL);
        send(Base::SCI_SETUNDOCOLLECTION, 1);
        if (wrap != Base::SC_WRAP_NONE)
            send(Base::SCI_SETWRAPMODE, wrap);
        return result;
    }
    send(Base::SCI_SETEOLMODE, lines.eolMode());
    if (wrap != Base::SC_WRAP_NONE)
        send(Base::SCI_SETWRAPMODE, wrap);
    send(Base::SCI_SETUNDOCOLLECTION, 1);
    send(Base::SCI_EMPTYUNDOBUFFER);
    send(Base::SCI_SETEMPTYSELECTION, 0);
    send(Base::SCI_SCROLLCARET);
    m_forcedDirty = false;
    send(Base::SCI_SETSAVEPOINT);
    emit dirtyChanged(false);
    startColouringAhead(0);
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
        m_colourAhead->stop();
        m_sci->setLexer(nullptr);
        delete m_lexer;
        m_lexer = nullptr;
        return;
    }
    if (!m_lexer) {
        m_lexer = new HtmlColouring(this);
        m_sci->setLexer(m_lexer);
    }
    applyColors();
    startColouringAhead(0);
}

void ScintillaEdit::applyColors()
{
    if (m_lexer)
        applyEditColors(*m_lexer, m_colors, m_colorMode == platform::ColorEntireTags, m_sci->font());
}

bool ScintillaEdit::colouringComplete() const
{
    return !m_lexer || m_lexer->endStyled() >= byteLength();
}

void ScintillaEdit::startColouringAhead(int delay)
{
    if (m_lexer && !colouringComplete())
        m_colourAhead->start(delay);
}

void ScintillaEdit::colourAhead()
{
    if (!m_lexer)
        return;
    const qint64 sinceChange = QDateTime::currentMSecsSinceEpoch() - m_lastChange;
    if (sinceChange < kTypingPauseMs) {
        m_colourAhead->start(int(kTypingPauseMs - sinceChange));
        return;
    }
    m_lexer->styleTo(m_lexer->endStyled() + kColourAheadBytes);
    startColouringAhead(0);
}

void ScintillaEdit::ColorHTML()
{
    if (!m_lexer)
        return;
    applyColors();
    // What is on screen is coloured now, the rest while the program is idle.
    m_lexer->styleTo(screenEnd());
    startColouringAhead(0);
}

bool ScintillaEdit::longLineAt(long position) const
{
    const long line = send(Base::SCI_LINEFROMPOSITION, position);
    return send(Base::SCI_POSITIONFROMLINE, line + 1) - send(Base::SCI_POSITIONFROMLINE, line) > kLongLine;
}

long ScintillaEdit::screenEnd() const
{
    const long lastVisible = send(Base::SCI_GETFIRSTVISIBLELINE) + send(Base::SCI_LINESONSCREEN) + 1;
    return send(Base::SCI_GETLINEENDPOSITION, send(Base::SCI_DOCLINEFROMVISIBLE, lastVisible));
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
    // A family this desktop lacks ("MS Sans Serif" of older settings) is
    // matched to one face for measuring and another for drawing, which puts
    // selected text out of place; the desktop's fixed font stands in for it.
    if (!QFontDatabase::hasFamily(name)) {
        font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        font.setPointSize(m_fontSize);
    }
    m_sci->setFont(font);
    applyColors();
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
