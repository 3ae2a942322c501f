#include "texttools/ui/HitHighlighter.h"

#include <Qsci/qsciscintilla.h>
#include <QScrollBar>
#include <QTimer>

namespace qly::texttools::ui {

namespace {

// A container indicator of our own, above the lexer's range.
constexpr int HitIndicator = 9;

} // namespace

HitHighlighter::HitHighlighter(QObject *parent) : QObject(parent) {}

void HitHighlighter::setView(QsciScintilla *view)
{
    if (view == m_view)
        return;
    clear();
    if (m_view)
        disconnect(m_view, nullptr, this, nullptr);
    m_view = view;
    if (!m_view)
        return;
    m_view->SendScintilla(QsciScintilla::SCI_INDICSETSTYLE, HitIndicator, QsciScintilla::INDIC_ROUNDBOX);
    m_view->SendScintilla(QsciScintilla::SCI_INDICSETFORE, HitIndicator, 0x00a5ff);   // orange (BGR)
    m_view->SendScintilla(QsciScintilla::SCI_INDICSETALPHA, HitIndicator, 90);
    m_view->SendScintilla(QsciScintilla::SCI_INDICSETUNDER, HitIndicator, 1);
    connect(m_view, &QsciScintilla::textChanged, this, &HitHighlighter::schedule);
    connect(m_view->verticalScrollBar(), &QScrollBar::valueChanged, this, &HitHighlighter::schedule);
    connect(m_view, &QsciScintilla::SCN_UPDATEUI, this, [this](int updated) {
        if (updated & QsciScintilla::SC_UPDATE_V_SCROLL)
            schedule();
    });
    schedule();
}

void HitHighlighter::setPattern(const SearchPattern &pattern)
{
    m_pattern = pattern;
    schedule();
}

void HitHighlighter::clear()
{
    if (!m_view)
        return;
    m_view->SendScintilla(QsciScintilla::SCI_SETINDICATORCURRENT, HitIndicator);
    m_view->SendScintilla(QsciScintilla::SCI_INDICATORCLEARRANGE, 0UL,
                          m_view->SendScintilla(QsciScintilla::SCI_GETLENGTH));
}

void HitHighlighter::schedule()
{
    if (m_pending)
        return;
    m_pending = true;
    QTimer::singleShot(0, this, [this] {
        m_pending = false;
        refresh();
    });
}

void HitHighlighter::refresh()
{
    if (!m_view)
        return;
    clear();
    if (m_pattern.isEmpty() || !m_pattern.isValid())
        return;
    // The lines on screen, one more above and below for a hit that spans them.
    const long first = m_view->SendScintilla(QsciScintilla::SCI_GETFIRSTVISIBLELINE);
    const long shown = m_view->SendScintilla(QsciScintilla::SCI_LINESONSCREEN);
    const long firstDoc = m_view->SendScintilla(QsciScintilla::SCI_DOCLINEFROMVISIBLE, (unsigned long)first);
    const long lastDoc = m_view->SendScintilla(QsciScintilla::SCI_DOCLINEFROMVISIBLE, (unsigned long)(first + shown + 1));
    const long start = m_view->SendScintilla(QsciScintilla::SCI_POSITIONFROMLINE, (unsigned long)std::max(0L, firstDoc - 1));
    const long end = m_view->SendScintilla(QsciScintilla::SCI_GETLINEENDPOSITION, (unsigned long)(lastDoc + 1));
    if (end <= start)
        return;
    // Scintilla keeps UTF-8; hits are found in characters and mapped back to bytes.
    QByteArray bytes(end - start + 1, '\0');
    m_view->SendScintilla(QsciScintilla::SCI_GETTEXTRANGE, start, end, bytes.data());
    bytes.truncate(end - start);
    const QString text = QString::fromUtf8(bytes);
    m_view->SendScintilla(QsciScintilla::SCI_SETINDICATORCURRENT, HitIndicator);
    int charAt = 0;
    long byteAt = start;
    for (Hit h = m_pattern.next(text, 0, -1); h.found(); h = m_pattern.next(text, h.position + h.length, -1)) {
        byteAt += QStringView(text).mid(charAt, h.position - charAt).toUtf8().size();
        const long length = QStringView(text).mid(h.position, h.length).toUtf8().size();
        m_view->SendScintilla(QsciScintilla::SCI_INDICATORFILLRANGE, (unsigned long)byteAt, length);
        byteAt += length;
        charAt = h.position + h.length;
    }
}

} // namespace qly::texttools::ui
