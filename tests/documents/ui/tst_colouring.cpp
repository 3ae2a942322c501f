#include "documents/HtmlLexer.h"
#include "documents/KnownWords.h"
#include "documents/ui/EditColors.h"
#include "documents/ui/HtmlColouring.h"
#include "documents/ui/ScintillaEdit.h"
#include "support/TestEnv.h"

#include <Qsci/qsciscintilla.h>

#include <QRandomGenerator>
#include <QtTest>

using namespace qly;
using documents::ui::ScintillaEdit;
namespace S = documents::HtmlStyle;
using Base = QsciScintillaBase;

class tst_Colouring : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void editsRecolourAsAWholeLexWould();
    void typingOnMinifiedPagesColoursAsAWholeLex();
    void modesAndColours();
    void knownWordsChangeRecolours();
    void colouringGoesOnWhileIdle();
    void longLinesAreLaidOutAsAWhole();

private:
    QByteArray styles() const;
    QByteArray freshStyles() const;
    void styleAll();

    std::unique_ptr<test::TestEnv> m_env;
    std::unique_ptr<QWidget> m_host;
    ScintillaEdit *m_edit = nullptr;
};

namespace {

struct Collect final : documents::StyleSink {
    explicit Collect(qsizetype n) : bytes(n, '\0') {}
    void paint(std::int64_t from, std::int64_t to, std::uint8_t style) override
    {
        std::fill(bytes.begin() + from, bytes.begin() + to, char(style));
    }
    QByteArray bytes;
};

QColor fromTable(int v)
{
    return QColor(v & 0xFF, (v >> 8) & 0xFF, (v >> 16) & 0xFF);
}

} // namespace

void tst_Colouring::init()
{
    m_env = std::make_unique<test::TestEnv>();
    documents::KnownWords words;
    for (const char *t : {"p", "b", "a", "div", "script"})
        words.tags.insert(t);
    words.scriptWords.insert("alert", documents::ScriptWordClass::Method);
    documents::setKnownWords(words);
    m_host = std::make_unique<QWidget>();
    m_edit = new ScintillaEdit(m_host.get());
    m_edit->view()->resize(500, 300);
    m_host->show();
    m_edit->setColorMode(platform::ColorTagSyntax);
}

void tst_Colouring::cleanup()
{
    m_host.reset();
    m_env.reset();
}

QByteArray tst_Colouring::styles() const
{
    QsciScintilla *sci = m_edit->view();
    const long n = sci->SendScintilla(Base::SCI_GETLENGTH);
    QByteArray out(n, '\0');
    for (long i = 0; i < n; ++i)
        out[qsizetype(i)] = char(sci->SendScintilla(Base::SCI_GETSTYLEAT, i));
    return out;
}

QByteArray tst_Colouring::freshStyles() const
{
    const QByteArray page = m_edit->view()->text().toUtf8();
    Collect c(page.size());
    documents::LexState state;
    documents::lexHtml(page.constData(), page.size(), true, 0, page.size(), state, c, documents::knownWords());
    return c.bytes;
}

void tst_Colouring::styleAll()
{
    m_edit->colouring()->styleTo(m_edit->view()->SendScintilla(Base::SCI_GETLENGTH));
}

void tst_Colouring::editsRecolourAsAWholeLexWould()
{
    // One long line, edited here and there: what the colouring keeps from
    // before each edit and what it redoes must match a lex of the whole page.
    QByteArray page;
    for (int i = 0; i < 4000; ++i)
        page += "<p class=\"c\">text <b>bold</b> <!-- note --> <script>alert('x')</script> ";
    m_edit->setText(QString::fromUtf8(page));
    styleAll();
    QCOMPARE(styles(), freshStyles());

    QRandomGenerator rng(99);
    const char *const inserts[] = {"<", ">", "\"", "'", "-->", "<!--", "</script>", "<script>", " ", "b", "=", "/*"};
    QsciScintilla *sci = m_edit->view();
    for (int round = 0; round < 60; ++round) {
        // One to four edits before anything is coloured again (a paste, a
        // replace, an undo), anywhere on the line.
        long at = 0;
        for (int edits = 1 + rng.bounded(4); edits > 0; --edits) {
            const long n = sci->SendScintilla(Base::SCI_GETLENGTH);
            at = rng.bounded(int(n));
            if (rng.bounded(6) == 0) {
                sci->SendScintilla(Base::SCI_UNDO);
                at = sci->SendScintilla(Base::SCI_GETCURRENTPOS);
            } else if (rng.bounded(3) == 0) {
                sci->SendScintilla(Base::SCI_DELETERANGE, at, std::min<long>(1 + rng.bounded(12), n - at));
            } else {
                const char *text = inserts[rng.bounded(int(std::size(inserts)))];
                sci->SendScintilla(Base::SCI_INSERTTEXT, uintptr_t(at), text);
            }
        }
        // The screen asks for a little; the rest follows.
        m_edit->colouring()->styleTo(at + 100);
        styleAll();
        QVERIFY2(styles() == freshStyles(), qPrintable(QStringLiteral("round %1 at %2").arg(round).arg(at)));
    }

    // A value left open over several remembered states and found unfinished
    // far on: an edit inside it must not let the colouring take the old
    // colours back halfway, since the whole value is coloured again at its end.
    QByteArray open = QByteArray("<p>x</p>").repeated(2500) + "<a href=\"" + QByteArray("v ").repeated(40000)
                      + "<b>x</b>" + QByteArray("<i>y</i> ").repeated(3000);
    m_edit->setText(QString::fromUtf8(open));
    styleAll();
    QCOMPARE(styles(), freshStyles());
    for (long at : {45000L, 70000L, 21000L}) {
        sci->SendScintilla(Base::SCI_INSERTTEXT, uintptr_t(at), "w");
        m_edit->colouring()->styleTo(at + 100);
        styleAll();
        QVERIFY2(styles() == freshStyles(), qPrintable(QStringLiteral("open value, edit at %1").arg(at)));
    }
}

void tst_Colouring::typingOnMinifiedPagesColoursAsAWholeLex()
{
    // Pages of one long line put together from random pieces of markup,
    // opened from a file and typed on through the control: the colours on
    // screen after each key, and after the rest is coloured, are those of
    // a lex of the whole page.
    const char *const pieces[] = {
        "<div class=\"a\">", "</div>", "<p>", "text ", "caf\xc3\xa9 \xe2\x82\xac ", "<img src=x alt='y'>",
        "<!-- c -->", "<script>alert(\"x\");/* c */</script>", "<style>p{}</style>", "<unknown a=b>",
        "<a href=\"", "\">", "<!DOCTYPE html>", "<b>", "</b>", "&amp;", "\xf0\x9f\x98\x80", "'", "<", ">",
    };
    const char *const typed[] = {"<", ">", "\"", "'", "-->", "<!--", "</script>", "<script>", "x", "=", "\xc3\xa9"};
    QsciScintilla *sci = m_edit->view();
    for (quint32 seed : {7u, 8u, 9u}) {
        QRandomGenerator rng(seed);
        QByteArray page;
        while (page.size() < 200 * 1024)
            page += pieces[rng.bounded(int(std::size(pieces)))];
        QVERIFY(m_edit->LoadFile(1, m_env->write(QStringLiteral("min.html"), page)).ok());
        QCOMPARE(m_edit->encoding(), core::TextEncoding::Utf8);
        QCOMPARE(sci->SendScintilla(Base::SCI_GETLENGTH), long(page.size()));
        for (int key = 0; key < 25; ++key) {
            const long n = sci->SendScintilla(Base::SCI_GETLENGTH);
            long at = rng.bounded(int(n));
            while (at > 0 && (char(sci->SendScintilla(Base::SCI_GETCHARAT, at)) & 0xC0) == 0x80)
                --at;
            sci->SendScintilla(Base::SCI_GOTOPOS, at);
            if (rng.bounded(4) == 0) {
                sci->SendScintilla(Base::SCI_DELETEBACK);
            } else {
                for (const QChar c : QString::fromUtf8(typed[rng.bounded(int(std::size(typed)))])) {
                    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
                    QApplication::sendEvent(sci, &press);
                }
            }
            QApplication::processEvents();
            const long screen = sci->SendScintilla(Base::SCI_GETENDSTYLED);
            const QByteArray fresh = freshStyles();
            QVERIFY2(styles().left(screen) == fresh.left(screen),
                     qPrintable(QStringLiteral("seed %1 key %2 at %3").arg(seed).arg(key).arg(at)));
            if (key % 5 == 4) {
                styleAll();
                QVERIFY2(styles() == fresh, qPrintable(QStringLiteral("seed %1 key %2").arg(seed).arg(key)));
            }
        }
    }
}

void tst_Colouring::modesAndColours()
{
    platform::ColorTable table;
    table.fill(-1);
    table[0] = 0x0000FF;     // tags red
    table[1] = 0x00FF00;     // attributes green
    table[11] = 0xFF0000;    // errors blue
    m_edit->InitColor(table);
    m_edit->setText(QStringLiteral("<p align=left><blink>x</blink>"));
    m_edit->ColorHTML();
    auto *lexer = m_edit->colouring();
    QCOMPARE(lexer->color(S::Tag), fromTable(table[0]));
    QCOMPARE(lexer->color(S::Attribute), fromTable(table[1]));
    QCOMPARE(lexer->color(S::ErrorTag), fromTable(table[11]));
    QCOMPARE(lexer->color(S::Value), documents::ui::defaultSlotColor(3));
    QCOMPARE(m_edit->view()->SendScintilla(Base::SCI_GETSTYLEAT, 16), long(S::ErrorTag));

    // Entire tags: one colour for all of a tag.
    m_edit->setColorMode(platform::ColorEntireTags);
    for (int style : {S::Tag, S::Attribute, S::Value, S::Unfinished, S::ErrorTag})
        QCOMPARE(lexer->color(style), fromTable(table[0]));
    QCOMPARE(m_edit->colouring(), lexer);

    m_edit->setColorMode(platform::ColorOff);
    QVERIFY(!m_edit->colouring());
    QVERIFY(!m_edit->view()->lexer());
    QVERIFY(m_edit->colouringComplete());
}

void tst_Colouring::knownWordsChangeRecolours()
{
    m_edit->setText(QStringLiteral("<blink>x</blink>"));
    m_edit->ColorHTML();
    QsciScintilla *sci = m_edit->view();
    QCOMPARE(sci->SendScintilla(Base::SCI_GETSTYLEAT, 1), long(S::ErrorTag));
    documents::KnownWords words = documents::knownWords();
    words.tags.insert("blink");
    documents::setKnownWords(words);
    m_edit->ColorHTML();
    QCOMPARE(sci->SendScintilla(Base::SCI_GETSTYLEAT, 1), long(S::Tag));
}

void tst_Colouring::colouringGoesOnWhileIdle()
{
    QByteArray page;
    while (page.size() < 3 * 1024 * 1024)
        page += "<div class=\"row\"><a href=\"x.html\">link</a></div>\r\n";
    page += "<blink>end</blink>";
    m_env->write(QStringLiteral("big.html"), page);
    QVERIFY(m_edit->LoadFile(1, m_env->path(QStringLiteral("big.html"))).ok());
    QVERIFY(!m_edit->colouringComplete());
    QTRY_VERIFY_WITH_TIMEOUT(m_edit->colouringComplete(), 10000);
    QCOMPARE(m_edit->view()->SendScintilla(Base::SCI_GETSTYLEAT, uintptr_t(page.size() - 15)), long(S::ErrorTag));
}

void tst_Colouring::longLinesAreLaidOutAsAWhole()
{
    // A key on a long line lays out again only the part it changed and
    // moves the rest: every character must stand where a layout of the
    // whole line puts it, whatever was typed (tabs, a line break, several
    // bytes at once, undo) and wherever; coloured, and as plain text where
    // the line is one long run of one style.
    QsciScintilla *sci = m_edit->view();
    auto xs = [sci](long around) {
        const long n = sci->SendScintilla(Base::SCI_GETLENGTH);
        QList<long> out;
        for (long pos : {0L, around - 400, around - 40, around - 1, around, around + 1, around + 7, around + 300,
                         around + 2000, n / 3, n / 2, n - 5000, n - 1, n}) {
            pos = sci->SendScintilla(Base::SCI_POSITIONBEFORE, std::clamp(pos + 1, 1L, n));
            out << sci->SendScintilla(Base::SCI_POINTXFROMPOSITION, 0UL, pos)
                << sci->SendScintilla(Base::SCI_POINTYFROMPOSITION, 0UL, pos);
        }
        return out;
    };
    auto key = [sci](const QString &text) {
        for (const QChar c : text) {
            QKeyEvent press(QEvent::KeyPress, c == u'\t' ? Qt::Key_Tab : c == u'\r' ? Qt::Key_Return : 0,
                            Qt::NoModifier, QString(c));
            QApplication::sendEvent(sci, &press);
        }
    };
    const QStringList typed = {QStringLiteral("x"), QStringLiteral("<b>"), QStringLiteral("\""),
                               QStringLiteral("\u00e9\u20ac"), QStringLiteral("<!--"), QStringLiteral("\t"),
                               QStringLiteral("\r"), QStringLiteral("-->"), QStringLiteral(" "),
                               QStringLiteral("  word ")};
    QList<QByteArrayList> pages = {
        {"<div class=\"a\">", "</div>", "text ", "caf\xc3\xa9 ", "<!-- c -->", "<script>alert('x');</script>",
         "<b>", "</b>", "&amp;", "wordwordword "},
        {"plain words ", "of a long line ", "with no markup at all, ", "a", "  ", "longerwordthanmost "},
        {},
    };
    // And bytes of every kind but line ends (control characters, broken
    // UTF-8, shown as little boxes), between words.
    QRandomGenerator bytes(11);
    for (int k = 0; k < 64; ++k) {
        QByteArray piece;
        for (int n = 1 + bytes.bounded(12); n > 0; --n) {
            char b = char(bytes.bounded(256));
            piece += (b == '\n' || b == '\r') ? ' ' : b;
        }
        pages.last() << piece << "word " << "  ";
    }
    for (int mode : {platform::ColorTagSyntax, platform::ColorOff}) {
        for (const QByteArrayList &pieces : pages) {
            QRandomGenerator rng(5);
            QByteArray page;
            while (page.size() < (&pieces == &pages.last() ? 40 : 120) * 1024)
                page += pieces[rng.bounded(int(pieces.size()))];
            m_edit->setColorMode(mode);
            QVERIFY(m_edit->LoadFile(1, m_env->write(QStringLiteral("one-line.html"), page)).ok());
            for (int round = 0; round < 30; ++round) {
                const long n = sci->SendScintilla(Base::SCI_GETLENGTH);
                const long at = sci->SendScintilla(Base::SCI_POSITIONBEFORE, rng.bounded(int(n)) + 1);
                sci->SendScintilla(Base::SCI_GOTOPOS, at);
                const int what = rng.bounded(10);
                if (what == 0)
                    sci->SendScintilla(Base::SCI_DELETEBACK);
                else if (what == 1)
                    sci->SendScintilla(Base::SCI_UNDO);
                else
                    key(typed[rng.bounded(int(typed.size()))]);
                QApplication::processEvents();
                const long caret = sci->SendScintilla(Base::SCI_GETCURRENTPOS);
                const QList<long> kept = xs(caret);
                // The same tab width again makes the control lay every line out anew.
                sci->SendScintilla(Base::SCI_SETTABWIDTH, sci->SendScintilla(Base::SCI_GETTABWIDTH));
                const QList<long> whole = xs(caret);
                for (qsizetype i = 0; i < whole.size(); ++i)
                    QVERIFY2(std::abs(kept[i] - whole[i]) <= 1,
                             qPrintable(QStringLiteral("mode %1 round %2 at %3: sample %4 is %5, a whole layout says %6")
                                            .arg(mode).arg(round).arg(at).arg(i).arg(kept[i]).arg(whole[i])));
            }
        }
    }
}

QTEST_MAIN(tst_Colouring)
#include "tst_colouring.moc"
