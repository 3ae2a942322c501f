#include "texttools/ui/SpellUnderline.h"

#include "core/Settings.h"
#include "core/ui/Shell.h"
#include "texttools/SpellWords.h"

#include <Qsci/qsciscintilla.h>

#include <QMdiArea>
#include <QMdiSubWindow>

namespace qly::texttools::ui {

namespace {

constexpr int kIndicator = 8;            // the first indicator left to containers
constexpr qsizetype kLargestText = 1024 * 1024;
// One per main window's document area; gone with it.
QPointer<SpellUnderline> g_instance;

bool enabled()
{
    return core::ReadSetting(QStringLiteral("General"), QStringLiteral("Spell Check As You Type")).toLower()
           != QLatin1String("no");
}

// UTF-8 bytes of a stretch of UTF-16 text: Scintilla counts its positions so.
qsizetype utf8Length(QStringView text)
{
    qsizetype n = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text.at(i).unicode();
        if (c < 0x80)
            n += 1;
        else if (c < 0x800)
            n += 2;
        else if (QChar::isHighSurrogate(c) && i + 1 < text.size() && QChar::isLowSurrogate(text.at(i + 1).unicode())) {
            n += 4;
            ++i;
        } else
            n += 3;
    }
    return n;
}

} // namespace

SpellUnderline::SpellUnderline(QObject *parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(500);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (m_pending)
            underline(m_pending);
    });
}

void SpellUnderline::install(core::ui::Shell &shell)
{
    QMdiArea *area = shell.mdiArea();
    if (!area || g_instance)
        return;
    g_instance = new SpellUnderline(area);
    connect(area, &QMdiArea::subWindowActivated, g_instance.data(), [](QMdiSubWindow *window) {
        if (QsciScintilla *view = window ? window->findChild<QsciScintilla *>() : nullptr)
            g_instance->watch(view);
    });
}

void SpellUnderline::forget()
{
    if (g_instance) {
        g_instance->m_known.clear();
        g_instance->m_checkerFor.clear();
    }
}

void SpellUnderline::watch(QsciScintilla *view)
{
    if (!view->property("qlySpellWatched").toBool()) {
        view->setProperty("qlySpellWatched", true);
        view->SendScintilla(QsciScintillaBase::SCI_INDICSETSTYLE, kIndicator, QsciScintillaBase::INDIC_SQUIGGLE);
        view->SendScintilla(QsciScintillaBase::SCI_INDICSETFORE, kIndicator, 0x2020d0);
        connect(view, &QsciScintilla::textChanged, this, [this, view] {
            m_pending = view;
            m_timer.start();
        });
    }
    m_pending = view;
    m_timer.start();
}

bool SpellUnderline::known(const QString &word)
{
    if (const auto hit = m_known.constFind(word); hit != m_known.constEnd())
        return hit.value();
    const bool ok = m_checker->check(word);
    m_known.insert(word, ok);
    return ok;
}

void SpellUnderline::underline(QsciScintilla *view)
{
    view->SendScintilla(QsciScintillaBase::SCI_SETINDICATORCURRENT, kIndicator);
    view->SendScintilla(QsciScintillaBase::SCI_INDICATORCLEARRANGE, 0L,
                        view->SendScintilla(QsciScintillaBase::SCI_GETLENGTH));
    // A character takes at most three bytes for each of its UTF-16 units:
    // a page of more bytes than that is too long without a copy of it.
    const long byteLength = view->SendScintilla(QsciScintillaBase::SCI_GETLENGTH);
    if (!enabled() || byteLength > 3 * kLargestText)
        return;
    const QString text = view->text();
    if (text.size() > kLargestText)
        return;
    const DictionaryFiles files = MainDictionary();
    if (m_checkerFor != files.dic) {
        QString error;
        m_checker = SpellChecker::open(files, error);
        m_checkerFor = files.dic;
        m_known.clear();
        if (m_checker) {
            const CustomDictionary custom(CustomDictionaryPath());
            for (const QString &w : custom.words())
                m_checker->accept(w);
        }
    }
    if (!m_checker)
        return;
    qsizetype done = 0;   // characters counted so far
    qsizetype bytes = 0;  // their UTF-8 length
    for (SpellWord w = NextSpellWord(text, 0); w.found(); w = NextSpellWord(text, w.position + w.length)) {
        const QString word = text.mid(w.position, w.length);
        if (known(word))
            continue;
        bytes += utf8Length(QStringView(text).mid(done, w.position - done));
        const qsizetype length = utf8Length(word);
        view->SendScintilla(QsciScintillaBase::SCI_INDICATORFILLRANGE, long(bytes), long(length));
        bytes += length;
        done = w.position + w.length;
    }
}

} // namespace qly::texttools::ui
