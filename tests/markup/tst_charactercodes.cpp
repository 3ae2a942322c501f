#include "core/Globals.h"
#include "markup/CharacterCodes.h"
#include "markup/CharacterCommands.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QFile>
#include <QRandomGenerator>
#include <QtTest>

using namespace qly;
using markup::CharacterCode;

namespace {

QString shippedTable()
{
    return QStringLiteral(TEST_DATA_DIR "/../../data/character.inf");
}

void useTable(const std::vector<std::pair<int, QString>> &rows)
{
    std::vector<CharacterCode> table;
    for (const auto &[code, entity] : rows)
        table.push_back({QString::number(code), QStringLiteral("d"), entity});
    markup::setCharacterCodes(table);
}

// The rows applied one after the other over the whole text, as the table's
// order demands; the one-pass translation must give the same.
QString sequential(QString text)
{
    for (const CharacterCode &row : markup::CharacterCodes()) {
        const char32_t cp = markup::characterValue(row.code);
        if (cp > 0)
            text.replace(QString::fromUcs4(&cp, 1), row.entity);
    }
    return text;
}

} // namespace

class tst_CharacterCodes : public QObject
{
    Q_OBJECT
private slots:
    void parsesLines_data();
    void parsesLines();
    void shippedTableCoversLatin1();
    void translatesUtf8WithoutSplitting();
    void laterRowsRewriteEarlierOutput();
    void onePassEqualsRowByRow();
    void oneCharacterUsesTheLimit();
    void missingFileLeavesEmptyTable();
    void typingTranslatesAndSwallowsKey();
    void wholeDocumentKeepsCaretNumber();
    void listLineGivesHtml_data();
    void listLineGivesHtml();
    void entityGoesBeforeSelection();
};

void tst_CharacterCodes::parsesLines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("kept");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("entity");
    QTest::addColumn<QString>("description");
    QTest::newRow("plain") << "233;&eacute;e acute" << true << "233" << "&eacute;" << "e acute";
    QTest::newRow("trimmed") << "  233;&eacute;e acute \r" << true << "233" << "&eacute;" << "e acute";
    QTest::newRow("no description") << "233;&eacute;" << false << "" << "" << "";
    QTest::newRow("first is last") << "233;" << false << "" << "" << "";
    QTest::newRow("one semicolon") << "233;&eacute" << false << "" << "" << "";
    QTest::newRow("none") << "nothing here" << false << "" << "" << "";
    QTest::newRow("not an entity") << "00;<SUP>tm</SUP>;trade; mark" << true << "00" << "<SUP>tm</SUP>;"
                                   << "trade; mark";
}

void tst_CharacterCodes::parsesLines()
{
    QFETCH(QString, line);
    QFETCH(bool, kept);
    CharacterCode row;
    QCOMPARE(markup::parseCharacterLine(line, row), kept);
    if (kept) {
        QTEST(row.code, "code");
        QTEST(row.entity, "entity");
        QTEST(row.description, "description");
    }
}

void tst_CharacterCodes::shippedTableCoversLatin1()
{
    test::TestEnv env;
    QVERIFY(QFile::copy(shippedTable(), env.path(QStringLiteral("character.inf"))));
    QVERIFY(env.read(QStringLiteral("character.inf")).contains("\r\n"));
    markup::LoadCharacterCodes();
    QString all;
    for (char32_t c = 160; c <= 255; ++c)
        all += QString::fromUcs4(&c, 1);
    const QString out = markup::TranslateCharacters(all);
    for (QChar c : out)
        QVERIFY2(c.unicode() < 128, qPrintable(out));
    QVERIFY(out.startsWith(QLatin1String("&nbsp;&iexcl;")));
    QVERIFY(out.endsWith(QLatin1String("&thorn;&yuml;")));
    for (const CharacterCode &row : markup::CharacterCodes())
        QVERIFY(row.code.isEmpty() || !row.description.isEmpty());
}

void tst_CharacterCodes::translatesUtf8WithoutSplitting()
{
    useTable({{233, QStringLiteral("&eacute;")}, {128512, QStringLiteral("&#128512;")}, {0x3042, QStringLiteral("[a]")}});
    const QString text = QString::fromUtf8("caf\xc3\xa9 \xf0\x9f\x98\x80 \xe3\x81\x82 \xf0\x9f\x98\x81!");
    QCOMPARE(markup::TranslateCharacters(text), QString::fromUtf8("caf&eacute; &#128512; [a] \xf0\x9f\x98\x81!"));
}

void tst_CharacterCodes::laterRowsRewriteEarlierOutput()
{
    const QString text = QString::fromUtf8("\xc3\xa9&");
    useTable({{233, QStringLiteral("&eacute;")}, {38, QStringLiteral("&amp;")}});
    QCOMPARE(markup::TranslateCharacters(text), QStringLiteral("&amp;eacute;&amp;"));
    useTable({{38, QStringLiteral("&amp;")}, {233, QStringLiteral("&eacute;")}});
    QCOMPARE(markup::TranslateCharacters(text), QStringLiteral("&eacute;&amp;"));
}

void tst_CharacterCodes::onePassEqualsRowByRow()
{
    // Small alphabets, so rows chain into each other and repeat codes.
    auto *rng = QRandomGenerator::global();
    const QString alphabet = QString::fromUtf8("ab&;\xc3\xa9\xc3\xbc\xf0\x9f\x98\x80");
    const QList<uint> codes = alphabet.toUcs4();
    for (int round = 0; round < 300; ++round) {
        std::vector<std::pair<int, QString>> rows;
        for (int r = int(rng->bounded(5)); r >= 0; --r) {
            QString entity;
            for (int i = int(rng->bounded(4)); i >= 0; --i) {
                const char32_t c = codes.at(int(rng->bounded(codes.size())));
                entity += QString::fromUcs4(&c, 1);
            }
            rows.emplace_back(int(codes.at(int(rng->bounded(codes.size())))), entity);
        }
        useTable(rows);
        QString text;
        for (int i = 2 + int(rng->bounded(20)); i > 0; --i) {
            const char32_t c = codes.at(int(rng->bounded(codes.size())));
            text += QString::fromUcs4(&c, 1);
        }
        if (text.toUcs4().size() == 1)
            continue;
        QCOMPARE(markup::TranslateCharacters(text), sequential(text));
    }
}

void tst_CharacterCodes::oneCharacterUsesTheLimit()
{
    useTable({{38, QStringLiteral("&amp;")}, {233, QStringLiteral("&eacute;")}});
    QCOMPARE(markup::TranslateCharacters(QStringLiteral("&")), QStringLiteral("&"));
    QCOMPARE(markup::TranslateCharacters(QStringLiteral("&&")), QStringLiteral("&amp;&amp;"));
    QCOMPARE(markup::TranslateCharacters(QString::fromUtf8("\xc3\xa9")), QStringLiteral("&eacute;"));
    QCOMPARE(markup::TranslateOneCharacter(QString::fromUtf8("\xc3\xa9xyz")), QStringLiteral("&eacute;"));
    QCOMPARE(markup::TranslateOneCharacter(QStringLiteral("z&")), QStringLiteral("z"));
}

void tst_CharacterCodes::missingFileLeavesEmptyTable()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    useTable({{233, QStringLiteral("&eacute;")}});
    markup::LoadCharacterCodes();
    QCOMPARE(prompts.texts(), QStringList{QStringLiteral("File not found.: ") + markup::characterFilePath()});
    QCOMPARE(markup::CharacterCodes().size(), size_t(1));
    QCOMPARE(markup::TranslateCharacters(QString::fromUtf8("\xc3\xa9\xc3\xa9")), QString::fromUtf8("\xc3\xa9\xc3\xa9"));
}

void tst_CharacterCodes::typingTranslatesAndSwallowsKey()
{
    test::TestEnv env;
    QFile::copy(shippedTable(), env.path(QStringLiteral("character.inf")));
    markup::LoadCharacterCodes();
    test::FakeWorkspace workspace;
    test::FakeDocument *doc = workspace.addDocument(QStringLiteral("Untitled-1"), QStringLiteral("ab"));
    doc->edit.SetSel(1, 1);
    core::gTranslateWhileTyping = true;
    int key = 233;
    markup::TranslateKey(key);
    QCOMPARE(key, 0);
    QCOMPARE(doc->edit.Text(), QStringLiteral("a&eacute;b"));
    QCOMPARE(doc->edit.SelStart(), 9);
    QVERIFY(doc->edit.Dirty());
    for (int plain : {122, 13, int(u'{')}) {
        key = plain;
        markup::TranslateKey(key);
        QCOMPARE(key, plain);
    }
    core::gTranslateWhileTyping = false;
    key = 233;
    markup::TranslateKey(key);
    QCOMPARE(key, 233);
    QCOMPARE(doc->edit.Text(), QStringLiteral("a&eacute;b"));
    QVERIFY(markup::lastKeyTime().isValid());
}

void tst_CharacterCodes::wholeDocumentKeepsCaretNumber()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    useTable({{233, QStringLiteral("&eacute;")}});
    test::FakeWorkspace workspace;
    const QString text = QString::fromUtf8("\xc3\xa9t\xc3\xa9 caf\xc3\xa9");
    test::FakeDocument *doc = workspace.addDocument(QStringLiteral("Untitled-1"), text);
    doc->edit.setSelStart(6);
    prompts.answer(platform::Answer::No);
    markup::EditTranslate_Click();
    QCOMPARE(doc->edit.Text(), text);
    prompts.answer(platform::Answer::Yes);
    markup::EditTranslate_Click();
    QCOMPARE(doc->edit.Text(), QStringLiteral("&eacute;t&eacute; caf&eacute;"));
    QCOMPARE(doc->edit.SelStart(), 6);
    QCOMPARE(prompts.shown.last().title, QStringLiteral("Translate Whole Document ?"));
    QCOMPARE(prompts.shown.last().buttons, platform::Buttons::YesNoCancel);
    // A selection is translated without asking.
    doc->edit.setText(text);
    doc->edit.SetSel(0, 3);
    markup::EditTranslate_Click();
    QCOMPARE(doc->edit.Text(), QString::fromUtf8("&eacute;t&eacute; caf\xc3\xa9"));
    QCOMPARE(prompts.shown.size(), 2);
}

void tst_CharacterCodes::listLineGivesHtml_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("html");
    QTest::newRow("entity") << QString::fromUtf8("233\t\xc3\xa9\t&eacute;\tsmall e; acute") << "&eacute;";
    QTest::newRow("trademark") << "00\t\t<SUP>tm</SUP>;\ttrademark" << "<SUP>tm</SUP>";
    QTest::newRow("no-break space") << QString::fromUtf8("160\t\xc2\xa0\t&nbsp;\tno-break space ")
                                    << "&nbsp;";
}

void tst_CharacterCodes::listLineGivesHtml()
{
    QFETCH(QString, line);
    QTEST(markup::HTMLToAdd(line), "html");
}

void tst_CharacterCodes::entityGoesBeforeSelection()
{
    test::TestEnv env;
    test::FakeWorkspace workspace;
    test::FakeDocument *doc = workspace.addDocument(QStringLiteral("Untitled-1"), QStringLiteral("abc"));
    doc->edit.SetSel(1, 2);
    markup::InsertEntity(QStringLiteral("&copy;"));
    QCOMPARE(doc->edit.Text(), QStringLiteral("a&copy;bc"));
    QCOMPARE(doc->edit.SelText(), QStringLiteral("&copy;b"));
}

QTEST_GUILESS_MAIN(tst_CharacterCodes)
#include "tst_charactercodes.moc"
