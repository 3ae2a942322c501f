#include "documents/ui/HtmlColouring.h"

#include "documents/KnownWords.h"

#include <Qsci/qsciscintilla.h>

#include <algorithm>
#include <cstring>

namespace qly::documents::ui {

using Base = QsciScintillaBase;
using I = std::int64_t;

namespace {

// The distance between two remembered states of the lexer.
constexpr I kCheckpointEvery = 32 * 1024;
// How far past the range asked for the lexer may read to finish a token.
constexpr I kReadAhead = 1024 * 1024;

// Collects the styles of one run of the lexer and hands them to Scintilla:
// the range asked for in one piece, and repaints of earlier bytes (a value
// found unfinished) as they come.
class ScintillaSink final : public StyleSink
{
public:
    ScintillaSink(QsciScintilla *sci, I keepFrom) : m_sci(sci), m_from(keepFrom) {}

    void paint(I from, I to, std::uint8_t style) override
    {
        if (to <= m_from)
            return;   // bytes before the change keep the styles they have
        if (from < m_from) {
            flushEarlier(from, m_from, style);
            from = m_from;
        }
        const size_t end = size_t(to - m_from);
        if (m_styles.size() < end)
            m_styles.resize(end, 0);
        std::memset(m_styles.data() + (from - m_from), style, size_t(to - from));
    }

    void commit()
    {
        if (m_styles.empty())
            return;
        m_sci->SendScintilla(Base::SCI_STARTSTYLING, uintptr_t(m_from));
        m_sci->SendScintilla(Base::SCI_SETSTYLINGEX, uintptr_t(m_styles.size()), m_styles.data());
    }

private:
    void flushEarlier(I from, I to, std::uint8_t style)
    {
        m_sci->SendScintilla(Base::SCI_STARTSTYLING, uintptr_t(from));
        m_sci->SendScintilla(Base::SCI_SETSTYLING, uintptr_t(to - from), long(style));
    }

    QsciScintilla *m_sci;
    I m_from;
    std::vector<char> m_styles;
};

} // namespace

HtmlColouring::HtmlColouring(QObject *parent)
    : QsciLexerCustom(parent)
{
}

QString HtmlColouring::description(int style) const
{
    static const char *const names[HtmlStyle::Count] = {
        "Text", "Tag", "Attribute", "Value", "Unfinished value", "Unknown tag", "Comment", "Script text",
        "Script statement", "Script object", "Script method", "Script property", "Script string",
        "Script comment", "Style sheet", "Declaration",
    };
    return (style >= 0 && style < HtmlStyle::Count) ? QString::fromLatin1(names[style]) : QString();
}

void HtmlColouring::setEditor(QsciScintilla *editor)
{
    if (QsciScintilla *old = this->editor())
        disconnect(old, nullptr, this, nullptr);
    QsciLexerCustom::setEditor(editor);
    m_checkpoints.clear();
    forgetOldColouring();
    if (editor) {
        connect(editor, &QsciScintillaBase::SCN_MODIFIED, this,
                [this](int position, int type, const char *, int length, int, int, int, int, int, int) {
                    textChanged(position, type, length);
                });
    }
}

void HtmlColouring::textChanged(int position, int modificationType, int length)
{
    // Each change is taken from the notice before it, while the colouring
    // still reaches as far as it did.
    const bool inserting = modificationType & Base::SC_MOD_BEFOREINSERT;
    if (!inserting && !(modificationType & Base::SC_MOD_BEFOREDELETE))
        return;
    const I p = position;
    const I removed = inserting ? 0 : length;
    const I shift = inserting ? length : -I(length);
    const I changeEnd = p + removed;

    // What the lexer knew past the change stays, moved with the text.
    const I coloured = std::max<I>(endStyled(), m_oldColouredTo);
    std::vector<Checkpoint> old;
    if (coloured > changeEnd + kLookahead) {
        auto keep = [&](const Checkpoint &cp) {
            if (cp.first > changeEnd + kLookahead)
                old.emplace_back(cp.first + shift, cp.second);
        };
        for (const Checkpoint &cp : m_checkpoints)
            keep(cp);
        for (std::size_t k = m_nextOld; k < m_oldCheckpoints.size(); ++k)
            keep(m_oldCheckpoints[k]);
        m_oldColouredTo = coloured + shift;
    } else {
        m_oldColouredTo = 0;
    }
    m_oldCheckpoints = std::move(old);
    m_nextOld = 0;
    if (m_changedTo > changeEnd)
        m_changedTo += shift;
    else if (m_changedTo > p)
        m_changedTo = p;
    m_changedTo = std::max(m_changedTo, p + std::max<I>(shift, 0));

    // Decisions look a few bytes ahead: a state just before the change may
    // rest on bytes that changed.
    const I valid = p - kLookahead;
    const auto cut = std::upper_bound(m_checkpoints.begin(), m_checkpoints.end(), valid,
                                      [](I pos, const auto &cp) { return pos < cp.first; });
    m_checkpoints.erase(cut, m_checkpoints.end());
}

I HtmlColouring::nextMeeting(I pos)
{
    while (m_nextOld < m_oldCheckpoints.size()
           && (m_oldCheckpoints[m_nextOld].first < pos || m_oldCheckpoints[m_nextOld].first < m_changedTo + kLookahead))
        ++m_nextOld;
    return m_nextOld < m_oldCheckpoints.size() ? m_oldCheckpoints[m_nextOld].first : -1;
}

bool HtmlColouring::meets(I pos, const LexState &state) const
{
    if (m_nextOld >= m_oldCheckpoints.size() || m_oldCheckpoints[m_nextOld].first != pos)
        return false;
    // Only where nothing is open that a later byte could colour again (a
    // value found unfinished); where the start of a token is not part of
    // what the lexer goes on from.
    switch (state.mode) {
    case LexState::QuotedValue:
    case LexState::InComment:
    case LexState::InDeclaration:
        return false;
    case LexState::InScript:
        if (state.script != LexState::ScriptCode)
            return false;
        break;
    default:
        break;
    }
    LexState old = m_oldCheckpoints[m_nextOld].second;
    old.tokenStart = state.tokenStart;
    return old == state;
}

void HtmlColouring::takeOldColouring()
{
    for (std::size_t k = m_nextOld; k < m_oldCheckpoints.size(); ++k)
        if (m_checkpoints.empty() || m_checkpoints.back().first < m_oldCheckpoints[k].first)
            m_checkpoints.push_back(m_oldCheckpoints[k]);
    editor()->SendScintilla(Base::SCI_STARTSTYLING, uintptr_t(m_oldColouredTo));
    forgetOldColouring();
}

void HtmlColouring::forgetOldColouring()
{
    m_oldCheckpoints.clear();
    m_nextOld = 0;
    m_oldColouredTo = 0;
    m_changedTo = -1;
}

std::pair<I, LexState> HtmlColouring::restartBefore(I position) const
{
    const auto it = std::upper_bound(m_checkpoints.begin(), m_checkpoints.end(), position,
                                     [](I pos, const auto &cp) { return pos < cp.first; });
    if (it == m_checkpoints.begin())
        return {0, LexState()};
    return *std::prev(it);
}

long HtmlColouring::endStyled() const
{
    return editor() ? editor()->SendScintilla(Base::SCI_GETENDSTYLED) : 0;
}

void HtmlColouring::restyleAll()
{
    m_checkpoints.clear();
    forgetOldColouring();
    if (editor())
        editor()->SendScintilla(Base::SCI_STARTSTYLING, uintptr_t(0));
}

void HtmlColouring::styleText(int, int end)
{
    // Scintilla offers the start of the line that holds the first byte not
    // styled; on a page of one line that is the page's start. Styling goes
    // on from that byte instead.
    styleTo(end);
}

void HtmlColouring::styleTo(long end)
{
    QsciScintilla *sci = editor();
    if (!sci)
        return;
    if (m_wordsGeneration != knownWordsGeneration()) {
        m_wordsGeneration = knownWordsGeneration();
        restyleAll();
    }
    const I length = sci->SendScintilla(Base::SCI_GETLENGTH);
    const I from = endStyled();
    end = std::min<I>(end, length);
    if (from >= end)
        return;
    auto [pos, state] = restartBefore(from);
    // The bytes from the restart point are read in one piece, with room for
    // the lexer to finish a token past the end; Scintilla moves its gap only
    // when it lies inside them, and then only to their start.
    const I readable = std::min<I>(length, end + kReadAhead);
    const char *text = reinterpret_cast<const char *>(
                           sci->SendScintilla(Base::SCI_GETRANGEPOINTER, uintptr_t(pos), long(readable - pos)))
                       - pos;
    ScintillaSink sink(sci, std::max<I>(from - kLookahead, pos));
    const KnownWords &words = knownWords();
    while (pos < end) {
        I step = std::min<I>(end, (pos / kCheckpointEvery + 1) * kCheckpointEvery);
        const I meeting = nextMeeting(pos + 1);
        if (meeting > pos && meeting < step)
            step = meeting;
        pos = lexHtml(text, readable, readable == length, pos, step, state, sink, words);
        if (m_checkpoints.empty() || m_checkpoints.back().first < pos)
            m_checkpoints.emplace_back(pos, state);
        // Past every change (and what the lexer looks ahead at), or at the
        // end of the page: nothing changed is left to colour.
        if (m_changedTo >= 0 && (pos >= m_changedTo + kLookahead || pos >= length))
            m_changedTo = -1;
        nextMeeting(pos);
        if (meets(pos, state)) {
            // From here on the page is coloured as it was before the change.
            sink.commit();
            const I to = m_oldColouredTo;
            takeOldColouring();
            if (to < end)
                styleTo(end);
            return;
        }
    }
    sink.commit();
}

} // namespace qly::documents::ui
