#include "core/TextCodec.h"
#include "markup/CharacterCodes.h"
#include "publish/Aliases.h"
#include "publish/Publish.h"
#include "publish/PublishStream.h"
#include "support/PublishRules.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>

using namespace qly;
using core::TextEncoding;

namespace {

QString ucs4(char32_t c)
{
    return QString::fromUcs4(&c, 1);
}

// The passes on characters, each the obvious way: the line ends and the
// table's rows replaced one after the other over the whole text, the aliases
// by the rule, one after the other in table order.
QString publishedByRule(QString text, const publish::PassSettings &s, const std::vector<markup::CharacterCode> &rows,
                        std::vector<publish::Alias> aliases)
{
    if (s.convertLineEnds)
        text.replace(QStringLiteral("\r\n"), QStringLiteral("<BR>"));
    if (s.stripLineEnds)
        text.replace(QStringLiteral("\r\n"), QString());
    if (s.unixText)
        text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    if (s.translateCharacters) {
        const QList<uint> characters = text.toUcs4();
        if (characters.size() == 1) {
            // One character: its own row's text, unless its code is below 123.
            for (const auto &row : rows) {
                if (characters[0] >= 123 && markup::characterValue(row.code) == characters[0]) {
                    text = row.entity;
                    break;
                }
            }
        } else {
            for (const auto &row : rows)
                text.replace(ucs4(markup::characterValue(row.code)), row.entity);
        }
    }
    if (s.useAliases) {
        for (publish::Alias &a : aliases) {
            if (s.unixText) {
                a.term.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
                a.replacement.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
            }
            text = test::replaceByRule(text, a.term, a.replacement, a.matchesCase(), a.wholeWordOnly());
        }
    }
    if (s.unixSlashes)
        text = test::slashesByRule(text);
    return text;
}

QByteArray publishedAsBytes(const QByteArray &page, TextEncoding encoding, const publish::PassSettings &settings,
                            qsizetype pieceSize)
{
    QByteArray out;
    const bool ok = publish::publishBytes(page, encoding, settings, [&out](const char *data, qsizetype size) {
        out.append(data, size);
        return true;
    }, pieceSize);
    return ok ? out : QByteArray("<sink refused>");
}

// Pieces of text that make the rules meet: delimiters, tags, line ends and
// lone CR/LF, letters in both cases, and characters whose folding is another
// (ß, the Kelvin sign and long s that fold to ASCII, Š of Windows-1252's
// 0x80-0x9F, a pair of Deseret letters beyond U+FFFF).
QStringList pieces(TextEncoding encoding)
{
    QStringList list = {QStringLiteral("a"), QStringLiteral("A"), QStringLiteral("b"), QStringLiteral("k"),
                        QStringLiteral("K"), QStringLiteral("s"), QStringLiteral(" "), QStringLiteral(","),
                        QStringLiteral("."), QStringLiteral("<"), QStringLiteral(">"), QStringLiteral("\\"),
                        QStringLiteral("/"), QStringLiteral("&"), QStringLiteral("\r\n"), QStringLiteral("\r\n"),
                        QStringLiteral("\r"), QStringLiteral("\n"), QStringLiteral("\t"), ucs4(0xE9), ucs4(0xC9),
                        ucs4(0xDF), ucs4(0x160), ucs4(0x161), ucs4(0x20AC), ucs4(0xFF), ucs4(0x178), ucs4(0x81)};
    if (encoding == TextEncoding::Utf8)
        list << ucs4(0x212A) << ucs4(0x17F) << ucs4(0x1E9E) << ucs4(0x10400) << ucs4(0x10428) << ucs4(0x2192);
    return list;
}

} // namespace

class tst_PublishStream : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void matchesTheRulesOnRandomPages();
    void aliasOutsideTheCodePageGoesAsCharacters();
    void bigPageInBlocks();

private:
    test::TestEnv *m_env = nullptr;
    test::ScriptedPrompts *m_prompts = nullptr;
};

void tst_PublishStream::init()
{
    m_env = new test::TestEnv;
    m_prompts = new test::ScriptedPrompts;
    platform::setPrompts(m_prompts);
    m_env->write(QStringLiteral("character.inf"), "");
    markup::LoadCharacterCodes();
}

void tst_PublishStream::cleanup()
{
    platform::setPrompts(nullptr);
    publish::Aliases().clear();
    delete m_prompts;
    delete m_env;
}

void tst_PublishStream::matchesTheRulesOnRandomPages()
{
    auto *rng = QRandomGenerator::global();
    const qsizetype pieceSizes[] = {1, 2, 3, 5, 8, 64 * 1024};
    for (int round = 0; round < 15000; ++round) {
        const TextEncoding encoding = rng->bounded(2) ? TextEncoding::Utf8 : TextEncoding::Windows1252;
        // A few pieces a round, so that hits meet and overlap.
        QStringList alphabet = pieces(encoding);
        std::shuffle(alphabet.begin(), alphabet.end(), *rng);
        alphabet = alphabet.mid(0, 2 + rng->bounded(5));
        auto randomText = [&](int min, int max) {
            QString s;
            for (int i = min + int(rng->bounded(max - min + 1)); i > 0; --i)
                s += alphabet.at(int(rng->bounded(alphabet.size())));
            return s;
        };
        auto flag = [&] { return rng->bounded(2) == 1; };
        publish::PassSettings settings{flag(), rng->bounded(4) == 0, flag(), flag(), rng->bounded(4) != 0, flag()};

        // A table whose later rows may rewrite what earlier ones wrote.
        std::vector<markup::CharacterCode> rows;
        for (int i = int(rng->bounded(4)); i > 0; --i) {
            const QList<uint> c = randomText(1, 1).toUcs4();
            rows.push_back({QString::number(c[0]), QString(), randomText(0, 3)});
        }
        markup::setCharacterCodes(rows);

        // Aliases whose replacement may hold another one's term.
        std::vector<publish::Alias> aliases;
        for (int i = int(rng->bounded(5)); i > 0; --i) {
            QString replacement = randomText(0, 3);
            if (!aliases.empty() && rng->bounded(3) == 0)
                replacement += aliases[rng->bounded(int(aliases.size()))].term + randomText(0, 1);
            aliases.push_back({randomText(1, 3), replacement, flag() ? QStringLiteral("YES") : QString(),
                               flag() ? QStringLiteral("yes") : QStringLiteral("no")});
        }
        if (rng->bounded(2)) {
            // Earlier terms in later replacements too.
            for (size_t i = 0; i + 1 < aliases.size(); ++i)
                aliases[i].replacement += aliases[i + 1].term;
        }
        publish::Aliases() = aliases;

        const QString text = rng->bounded(20) == 0 ? randomText(1, 1) : randomText(0, 40);
        const QByteArray page = core::encodeText(text, encoding);
        const qsizetype pieceSize = pieceSizes[rng->bounded(int(std::size(pieceSizes)))];
        QVERIFY(publish::canPublishBytes(settings, encoding));
        const QByteArray expected = core::encodeText(publishedByRule(text, settings, rows, aliases), encoding);
        const QByteArray actual = publishedAsBytes(page, encoding, settings, pieceSize);
        if (actual != expected) {
            QString what;
            for (const auto &a : aliases)
                what += QStringLiteral("[%1|%2|%3|%4] ").arg(a.term, a.replacement, a.matchCase, a.wholeWord);
            for (const auto &r : rows)
                what += QStringLiteral("{%1>%2} ").arg(r.code, r.entity);
            qWarning() << "round" << round << "utf8" << (encoding == TextEncoding::Utf8) << "piece" << pieceSize
                       << settings.convertLineEnds << settings.stripLineEnds << settings.unixText
                       << settings.translateCharacters << settings.useAliases << settings.unixSlashes << what
                       << "\npage" << page << "\nexpected" << expected << "\nactual  " << actual;
        }
        QCOMPARE(actual, expected);
    }
    QVERIFY(m_prompts->shown.isEmpty());
}

void tst_PublishStream::aliasOutsideTheCodePageGoesAsCharacters()
{
    // "->" has no byte in Windows-1252: the page takes it as a reference,
    // after a later alias has seen it as the character.
    m_env->write(QStringLiteral("aliases.inf"), "TO\x02\xe2\x86\x92\x02yes\x02yes\r\n\xe2\x86\x92 \x02(arrow) \x02\r\n");
    m_env->write(QStringLiteral("quillery.ini"), "[Publishing]\r\nUse Aliases=Yes\r\n");
    QVERIFY(publish::LoadAliases());
    publish::PassSettings settings;
    settings.useAliases = true;
    QVERIFY(!publish::canPublishBytes(settings, TextEncoding::Windows1252));
    QVERIFY(publish::canPublishBytes(settings, TextEncoding::Utf8));

    const QString source = m_env->write(QStringLiteral("page.html"), "caf\xe9 TO go, TOGO");
    QVERIFY(publish::PublishFile(source, m_env->path(QStringLiteral("out.html"))));
    QCOMPARE(m_env->read(QStringLiteral("out.html")), QByteArray("caf\xe9 (arrow) go, TOGO"));
    m_env->write(QStringLiteral("aliases.inf"), "TO\x02\xe2\x86\x92\x02yes\x02yes\r\n");
    QVERIFY(publish::PublishFile(source, m_env->path(QStringLiteral("out.html"))));
    QCOMPARE(m_env->read(QStringLiteral("out.html")), QByteArray("caf\xe9 &#8594; go, TOGO"));
}

void tst_PublishStream::bigPageInBlocks()
{
    // Pieces, blocks and hits across their borders, with the real table.
    QFile table(QStringLiteral(PROGRAM_DATA_DIR "/character.inf"));
    QVERIFY(table.open(QIODevice::ReadOnly));
    m_env->write(QStringLiteral("character.inf"), table.readAll());
    markup::LoadCharacterCodes();
    publish::Aliases() = {{QStringLiteral("NAME"), QStringLiteral("Jos\u00e9 & NAME2"), QStringLiteral("yes"),
                           QStringLiteral("yes")},
                          {QStringLiteral("NAME2"), QStringLiteral("Co"), QStringLiteral("yes"), QStringLiteral("yes")}};
    // The lines share nothing (a line end is a delimiter), so the page's
    // result is the result of one line, over and over.
    const QString line = QStringLiteral("<P CLASS=a\\b>NAME, caf\u00e9 \u2014 NAME\r\n");
    const QString text = line.repeated(40000);
    const publish::PassSettings settings{false, false, true, true, true, true};
    const QByteArray expected =
        publishedByRule(line, settings, markup::CharacterCodes(), publish::Aliases()).toUtf8().repeated(40000);
    QCOMPARE(publishedAsBytes(text.toUtf8(), TextEncoding::Utf8, settings, 64 * 1024), expected);
    QVERIFY(expected.size() > 1024 * 1024);   // more than one block to the sink
}

QTEST_GUILESS_MAIN(tst_PublishStream)
#include "tst_publishstream.moc"
