#include "documents/HtmlLexer.h"
#include "documents/KnownWords.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QtTest>

#include <vector>

using namespace qly::documents;
namespace S = HtmlStyle;

class tst_HtmlLexer : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void stylesOfAPage();
    void unfinishedAndUnknown();
    void randomBytesLexTheSameInPieces();
    void hostileInputEndsQuickly();
};

namespace {

struct Styles final : StyleSink {
    explicit Styles(std::int64_t n) : bytes(size_t(n), 0xFF) {}
    void paint(std::int64_t from, std::int64_t to, std::uint8_t style) override
    {
        QVERIFY(from >= 0 && to <= std::int64_t(bytes.size()) && from < to);
        std::fill(bytes.begin() + from, bytes.begin() + to, style);
    }
    std::vector<std::uint8_t> bytes;
};

std::vector<std::uint8_t> lexWhole(const QByteArray &page)
{
    Styles s(page.size());
    LexState state;
    const auto end = lexHtml(page.constData(), page.size(), true, 0, page.size(), state, s, knownWords());
    [&] { QCOMPARE(end, std::int64_t(page.size())); }();
    return s.bytes;
}

// The style of the first byte of `piece` in `page`, and a check that the
// whole piece has it.
std::uint8_t styleOf(const QByteArray &page, const std::vector<std::uint8_t> &styles, const char *piece, int from = 0)
{
    const qsizetype at = page.indexOf(piece, from);
    if (at < 0)
        return 0xFE;
    for (qsizetype k = at; k < at + qsizetype(qstrlen(piece)); ++k) {
        if (styles[size_t(k)] != styles[size_t(at)])
            return 0xFD;
    }
    return styles[size_t(at)];
}

QByteArray randomPage(QRandomGenerator &rng, int size)
{
    static const char *const pieces[] = {"<", ">", "\"", "'", "/", "-", "!", "=", " ", "\n", "*", "`", "\\", "<!--",
                                         "-->", "<script>", "</script>", "<style>", "</style", "a", "b", "if",
                                         "alert", "<?", "<!", "//", "/*", "*/", "\r\n", "x", "div"};
    QByteArray page;
    while (page.size() < size) {
        if (rng.bounded(8) == 0)
            page += char(rng.bounded(256));
        else
            page += pieces[rng.bounded(int(std::size(pieces)))];
    }
    return page;
}

} // namespace

void tst_HtmlLexer::initTestCase()
{
    KnownWords words;
    for (const char *t : {"html", "body", "p", "a", "b", "div", "script", "style", "img"})
        words.tags.insert(t);
    words.scriptWords.insert("if", ScriptWordClass::Statement);
    words.scriptWords.insert("document", ScriptWordClass::Object);
    words.scriptWords.insert("alert", ScriptWordClass::Method);
    words.scriptWords.insert("length", ScriptWordClass::Property);
    setKnownWords(words);
}

void tst_HtmlLexer::stylesOfAPage()
{
    const QByteArray page = "<!DOCTYPE html>\r\n<P CLASS=\"x\" id=y>Text &amp; more<!-- a <b> note -->"
                            "<script>if (document.length) alert('<b>'); // done\r\n/* block */ foo</SCRIPT >"
                            "<style>p { color: red }</style><img src=a.gif/>";
    const auto st = lexWhole(page);
    QVERIFY(std::find(st.begin(), st.end(), 0xFF) == st.end());   // every byte painted
    QCOMPARE(styleOf(page, st, "<!DOCTYPE html>"), S::Declaration);
    QCOMPARE(styleOf(page, st, "<P"), S::Tag);
    QCOMPARE(styleOf(page, st, "CLASS="), S::Attribute);
    QCOMPARE(styleOf(page, st, "\"x\""), S::Value);
    QCOMPARE(styleOf(page, st, "id="), S::Attribute);
    QCOMPARE(styleOf(page, st, "y"), S::Value);
    QCOMPARE(styleOf(page, st, "Text &amp; more"), S::Text);
    QCOMPARE(styleOf(page, st, "<!-- a <b> note -->"), S::Comment);
    QCOMPARE(styleOf(page, st, "if"), S::Statement);
    QCOMPARE(styleOf(page, st, "document"), S::Object);
    QCOMPARE(styleOf(page, st, "length"), S::Property);
    QCOMPARE(styleOf(page, st, "alert"), S::Method);
    QCOMPARE(styleOf(page, st, "'<b>'"), S::ScriptString);
    QCOMPARE(styleOf(page, st, "// done"), S::ScriptComment);
    QCOMPARE(styleOf(page, st, "/* block */"), S::ScriptComment);
    QCOMPARE(styleOf(page, st, "foo"), S::ScriptText);
    QCOMPARE(styleOf(page, st, "</SCRIPT >"), S::Tag);
    QCOMPARE(styleOf(page, st, "p { color: red }"), S::StyleText);
    QCOMPARE(styleOf(page, st, "</style>"), S::Tag);
    QCOMPARE(styleOf(page, st, "a.gif/"), S::Value);
}

void tst_HtmlLexer::unfinishedAndUnknown()
{
    const QByteArray page = "<blink>x</blink><a href=\"open.html>more text\r\n<b>bold</b> a < b <p title='never";
    const auto st = lexWhole(page);
    QCOMPARE(styleOf(page, st, "<blink>"), S::ErrorTag);
    QCOMPARE(styleOf(page, st, "</blink>"), S::ErrorTag);
    // A quote still open when the next tag starts is unfinished, and the tag after it is whole.
    QCOMPARE(styleOf(page, st, "\"open.html>more text\r\n"), S::Unfinished);
    QCOMPARE(styleOf(page, st, "<b>"), S::Tag);
    QCOMPARE(styleOf(page, st, " a < b "), S::Text);
    QCOMPARE(styleOf(page, st, "'never"), S::Unfinished);
}

void tst_HtmlLexer::randomBytesLexTheSameInPieces()
{
    QRandomGenerator rng(20261123);
    for (int round = 0; round < 300; ++round) {
        const QByteArray page = randomPage(rng, 50 + rng.bounded(3000));
        const auto whole = lexWhole(page);
        QVERIFY(std::find(whole.begin(), whole.end(), 0xFF) == whole.end());

        // In pieces, each going on from the state the last one left, and
        // again from any of those states over bytes already styled.
        Styles pieces(page.size());
        std::vector<std::pair<std::int64_t, LexState>> states{{0, LexState()}};
        LexState state;
        std::int64_t pos = 0;
        while (pos < page.size()) {
            const std::int64_t to = std::min<std::int64_t>(page.size(), pos + 1 + rng.bounded(200));
            pos = lexHtml(page.constData(), page.size(), true, pos, to, state, pieces, knownWords());
            states.emplace_back(pos, state);
        }
        QVERIFY2(pieces.bytes == whole, qPrintable(QStringLiteral("round %1").arg(round)));

        const auto [from, at] = states[size_t(rng.bounded(int(states.size())))];
        Styles again = pieces;
        LexState resumed = at;
        lexHtml(page.constData(), page.size(), true, from, page.size(), resumed, again, knownWords());
        QVERIFY2(again.bytes == whole, qPrintable(QStringLiteral("round %1 from %2").arg(round).arg(from)));
    }
}

void tst_HtmlLexer::hostileInputEndsQuickly()
{
    QRandomGenerator rng(7);
    QByteArray binary(4 * 1024 * 1024, Qt::Uninitialized);
    for (char &c : binary)
        c = char(rng.bounded(256));
    const QByteArray line(20 * 1024 * 1024, 'x');
    const QList<QByteArray> pages = {
        binary,
        "<p>" + line,                                  // one 20 MB line
        "<!-- " + line,                                // a comment that never closes
        "<a href=\"" + line,                           // a quote that never closes
        "<a href='" + line + "<b>",                    // ... up to the next tag
        "<script>var s = `" + line,                    // a script and a string that never end
        "<script>/*" + line,
        "<" + line,                                    // a tag name of 20 MB
        QByteArray(5 * 1024 * 1024, '<'),
    };
    for (const QByteArray &page : pages) {
        QElapsedTimer timer;
        timer.start();
        const auto st = lexWhole(page);
        QVERIFY(std::find(st.begin(), st.end(), 0xFF) == st.end());
        QVERIFY2(timer.elapsed() < 3000, qPrintable(QString::number(timer.elapsed())));
    }
}

QTEST_MAIN(tst_HtmlLexer)
#include "tst_htmllexer.moc"
