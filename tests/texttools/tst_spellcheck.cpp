#include "core/Settings.h"
#include "core/TextCodec.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"
#include "texttools/SpellCheck.h"

#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

using namespace qly;
using texttools::SpellAction;

namespace {

const QString kPage = QStringLiteral(TEST_DATA_DIR "/spell/page.html");
const QStringList kPlanted = {QStringLiteral("recieve"), QStringLiteral("seperate"), QStringLiteral("Daisys"),
                              QStringLiteral("occured"), QStringLiteral("Zürich"), QStringLiteral("naïve")};

QByteArray readBytes(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QStringList words(const QString &text)
{
    QStringList out;
    for (auto w = texttools::NextSpellWord(text, 0); w.found(); w = texttools::NextSpellWord(text, w.position + w.length))
        out << text.mid(w.position, w.length);
    return out;
}

// The unknown words of a text, in order, with every one ignored.
QStringList unknownWords(const QString &text)
{
    QString error;
    auto checker = texttools::SpellChecker::open(texttools::MainDictionary(), error);
    if (!checker) {
        qWarning() << error;
        return {QStringLiteral("no dictionary")};
    }
    texttools::SpellSession session(text, std::move(checker), nullptr);
    QStringList out;
    while (session.next()) {
        out << session.word();
        session.act(SpellAction::Ignore);
    }
    return out;
}

} // namespace

class tst_SpellCheck : public QObject
{
    Q_OBJECT
private slots:
    void init() { QStandardPaths::setTestModeEnabled(true); }
    void wordsOfThePageOnly();
    void plantedMisspellingsInBothEncodings();
    void agreesWithHunspell();
    void answers();
    void cancelAndDictionaries();
    void eightBitDictionary();
};

void tst_SpellCheck::wordsOfThePageOnly()
{
    const QString page = QStringLiteral(
        "<P CLASS=\"wrng\" TITLE='a > b'>Na\u00efve caf&eacute; it\u2019s don't 42 h2o</P><!-- comnt <b>x</b> -->"
        "<script type=\"x\">var mispeled;</script><STYLE>p { colr: red }</STYLE>&amp;&nbsp;end&nbsp; "
        "<scripted>kept</scripted> A&B caf&#233; na&#xEF;ve one&mdash;two&#160;three");
    // Entities for letters join the word they touch, which is then passed
    // over; other entities part words as blanks do.
    QCOMPARE(words(page), QStringList({QStringLiteral("Na\u00efve"), QStringLiteral("it\u2019s"), QStringLiteral("don't"),
                                       QStringLiteral("h2o"), QStringLiteral("end"), QStringLiteral("kept"),
                                       QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("one"),
                                       QStringLiteral("two"), QStringLiteral("three")}));
}

void tst_SpellCheck::plantedMisspellingsInBothEncodings()
{
    test::TestEnv env;
    const QByteArray utf8 = readBytes(kPage);
    QCOMPARE(unknownWords(core::decodeFile(utf8).text), kPlanted);
    // The same page saved as Windows-1252 shows the same words.
    const core::DecodedFile cp1252 = core::decodeFile(core::utf8ToWindows1252(utf8));
    QCOMPARE(cp1252.encoding, core::TextEncoding::Windows1252);
    QCOMPARE(unknownWords(cp1252.text), kPlanted);
}

void tst_SpellCheck::agreesWithHunspell()
{
    if (QStandardPaths::findExecutable(QStringLiteral("hunspell")).isEmpty())
        QSKIP("hunspell (the program) is not installed");
    test::TestEnv env;
    QProcess p;
    p.start(QStringLiteral("hunspell"), {QStringLiteral("-i"), QStringLiteral("utf-8"), QStringLiteral("-l"),
                                         QStringLiteral("-H"), QStringLiteral("-d"), QStringLiteral("en_US"), kPage});
    QVERIFY(p.waitForFinished(30000));
    const QStringList theirs = QString::fromUtf8(p.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(unknownWords(QString::fromUtf8(readBytes(kPage))), theirs);
}

void tst_SpellCheck::answers()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    const QString customPath = env.write(QStringLiteral("words.dic"), "Quillery\n");
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Custom Dictionary"), customPath);
    test::FakeWorkspace ws;
    const QString text = QStringLiteral("<B TITLE=\"teh\">Quillery teh wrold</B> teh wrold Zork flim\r\nZork teh flim");
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("a.html"), text);
    doc->edit.setDirty(false);

    QStringList asked;
    texttools::CheckSpelling([&](texttools::SpellSession &s, QString &replacement) {
        asked << s.word();
        switch (asked.size()) {
        case 1:   // teh
            replacement = QStringLiteral("the");
            return SpellAction::ChangeAll;
        case 2:   // wrold
            replacement = s.suggestions().value(0);
            return SpellAction::Change;
        case 3:   // wrold again
            return SpellAction::Ignore;
        case 4:   // Zork
            return SpellAction::Add;
        default:  // flim
            return SpellAction::IgnoreAll;
        }
    });
    QCOMPARE(asked, QStringList({QStringLiteral("teh"), QStringLiteral("wrold"), QStringLiteral("wrold"),
                                 QStringLiteral("Zork"), QStringLiteral("flim")}));
    QCOMPARE(doc->edit.Text(),
             QStringLiteral("<B TITLE=\"teh\">Quillery the world</B> the wrold Zork flim\r\nZork the flim"));
    QVERIFY(doc->edit.Dirty());
    QCOMPARE(env.read(customPath), QByteArray("Quillery\nZork\n"));
    doc->edit.Undo();
    QCOMPARE(doc->edit.Text(), text);
    QVERIFY(prompts.shown.isEmpty());
}

void tst_SpellCheck::cancelAndDictionaries()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    const QString text = QStringLiteral("teh wrold");
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("a.html"), text);
    const auto changeThenCancel = [](texttools::SpellSession &s, QString &replacement) {
        replacement = QStringLiteral("X");
        return s.word() == QLatin1String("teh") ? SpellAction::Change : SpellAction::Cancel;
    };

    // A named word list that is missing is made on request.
    const QString customPath = env.path(QStringLiteral("lists/mine.dic"));
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Custom Dictionary"), customPath);
    prompts.answer(platform::Answer::Yes);   // create the list
    prompts.answer(platform::Answer::No);    // keep the changes after Cancel?
    texttools::CheckSpelling(changeThenCancel);
    QCOMPARE(prompts.shown.at(0).title, QStringLiteral("Create New Custom Dictionary ?"));
    QCOMPARE(prompts.shown.at(0).text,
             QStringLiteral("Custom dictionary ") + customPath + QStringLiteral(" does not exist.  Create it now ?"));
    QVERIFY(QFile::exists(customPath));
    QCOMPARE(prompts.shown.at(1).text, QStringLiteral("Do you still want to apply the changes you made ?"));
    QCOMPARE(doc->edit.Text(), text);

    prompts.answer(platform::Answer::Yes);
    texttools::CheckSpelling(changeThenCancel);
    QCOMPARE(doc->edit.Text(), QStringLiteral("X wrold"));

    // A missing or damaged main dictionary is named, with the way to get one.
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Standard Dictionary"), QStringLiteral("xx_XX"));
    int asked = 0;
    const auto count = [&asked](texttools::SpellSession &, QString &) {
        ++asked;
        return SpellAction::Ignore;
    };
    texttools::CheckSpelling(count);
    QCOMPARE(prompts.shown.last().title, QStringLiteral("Default Dictionary Not Found"));
    QVERIFY(prompts.shown.last().text.startsWith(QStringLiteral("Couldn't find /usr/share/hunspell/xx_XX.aff and "
                                                                "/usr/share/hunspell/xx_XX.dic")));
    QVERIFY(prompts.shown.last().text.contains(QStringLiteral("apt-get install hunspell-en-us")));
    env.write(QStringLiteral("bad.aff"), "SET UTF-8\n");
    env.write(QStringLiteral("bad.dic"), "\x7f" "ELF garbage");
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Standard Dictionary"), env.path(QStringLiteral("bad.dic")));
    texttools::CheckSpelling(count);
    QVERIFY(prompts.shown.last().text.contains(QStringLiteral("is damaged")));
    QCOMPARE(asked, 0);
    QCOMPARE(doc->edit.Text(), QStringLiteral("X wrold"));
}

void tst_SpellCheck::eightBitDictionary()
{
    test::TestEnv env;
    env.write(QStringLiteral("dict/fr_XX.aff"), "SET ISO8859-1\nTRY e\n");
    env.write(QStringLiteral("dict/fr_XX.dic"), "2\ncaf\xe9\nna\xefve\n");
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Standard Dictionary"),
                       env.path(QStringLiteral("dict/fr_XX.dic")));
    QString error;
    auto checker = texttools::SpellChecker::open(texttools::MainDictionary(), error);
    QVERIFY2(checker, qPrintable(error));
    QVERIFY(checker->check(QStringLiteral("caf\u00e9")));
    QVERIFY(!checker->check(QStringLiteral("cafe")));
    QVERIFY(!checker->check(QStringLiteral("caf\u0119")));   // not in the 8-bit set
    QVERIFY(checker->suggest(QStringLiteral("cafe")).contains(QStringLiteral("caf\u00e9")));
}

QTEST_GUILESS_MAIN(tst_SpellCheck)
#include "tst_spellcheck.moc"
