#include "documents/MemoryEdit.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"
#include "texttools/FindModel.h"

#include <QtTest>

using namespace qly;
using namespace qly::texttools;
using platform::Answer;

class tst_FindModel : public QObject
{
    Q_OBJECT
private slots:
    void findWalksHitsAndWraps();
    void wholeWordCaseAndDirection();
    void placeHolders();
    void searchInSelection();
    void replaceAllCountsAndEnds();
    void replaceOneAsksAtEachHit();
    void replaceAllCancelAndUndo();
    void regexOnAndOff();
    void guisesAndHistory();
};

namespace {

struct Fixture {
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    documents::MemoryEdit edit;
    FindModel model;
    explicit Fixture(const QString &text)
    {
        edit.setText(text);
        edit.SetSel(0, 0);
    }
    QString sel() const { return QStringLiteral("%1:%2").arg(edit.SelStart()).arg(edit.SelLength()); }
};

} // namespace

void tst_FindModel::findWalksHitsAndWraps()
{
    Fixture f(QStringLiteral("one two one two one"));
    f.model.setFindText(QStringLiteral("one"));
    QCOMPARE(f.model.buttonCaption(), QStringLiteral("&Find First"));
    QVERIFY(f.model.FindNext(f.edit));
    QCOMPARE(f.sel(), QStringLiteral("0:3"));
    QCOMPARE(f.model.buttonCaption(), QStringLiteral("&Find Next"));
    QVERIFY(f.model.FindNext(f.edit));
    QCOMPARE(f.sel(), QStringLiteral("8:3"));
    QVERIFY(f.model.FindNext(f.edit));
    QCOMPARE(f.sel(), QStringLiteral("16:3"));
    // Past the last hit: the box, and the button starts over.
    QVERIFY(!f.model.FindNext(f.edit));
    QCOMPARE(f.prompts.shown.last().title, QStringLiteral("Find Text"));
    QCOMPARE(f.prompts.shown.last().text, QStringLiteral("Search text not found."));
    QCOMPARE(f.model.buttonCaption(), QStringLiteral("&Find First"));
    // With "Start from top" the first press goes back to the top, the next goes on.
    f.model.setOption(FindModel::FromTop, true);
    QVERIFY(f.model.FindNext(f.edit));
    QCOMPARE(f.sel(), QStringLiteral("0:3"));
    QVERIFY(f.model.FindNext(f.edit));
    QCOMPARE(f.sel(), QStringLiteral("8:3"));
    // A changed search text starts again with "Find First".
    f.model.setFindText(QStringLiteral("two"));
    QCOMPARE(f.model.buttonCaption(), QStringLiteral("&Find First"));
    QVERIFY(f.model.FindNext(f.edit));
    QCOMPARE(f.sel(), QStringLiteral("4:3"));
}

void tst_FindModel::wholeWordCaseAndDirection()
{
    Fixture f(QStringLiteral("Cat concat cat CAT"));
    f.model.setFindText(QStringLiteral("cat"));
    f.model.setOption(FindModel::WholeWord, true);
    QVERIFY(f.model.FindNext(f.edit));
    QCOMPARE(f.sel(), QStringLiteral("0:3"));
    QVERIFY(f.model.FindNext(f.edit));
    QCOMPARE(f.sel(), QStringLiteral("11:3"));   // "concat" is passed over
    f.model.setOption(FindModel::MatchCase, true);
    f.edit.SetSel(0, 0);
    QVERIFY(f.model.FindNext(f.edit));
    QCOMPARE(f.sel(), QStringLiteral("11:3"));
    QVERIFY(!f.model.FindNext(f.edit));          // "CAT" differs in case
    // Backwards from the end: the last hit before the caret, then the one before.
    f.model.setOption(FindModel::MatchCase, false);
    f.edit.SetSel(18, 18);
    QVERIFY(f.model.FindNext(f.edit, true));
    QCOMPARE(f.sel(), QStringLiteral("15:3"));
    QVERIFY(f.model.FindNext(f.edit, true));
    QCOMPARE(f.sel(), QStringLiteral("11:3"));
    QVERIFY(f.model.FindNext(f.edit, true));
    QCOMPARE(f.sel(), QStringLiteral("0:3"));
    QVERIFY(!f.model.FindNext(f.edit, true));
}

void tst_FindModel::placeHolders()
{
    QCOMPARE(ExpandSearchText(QStringLiteral("a[End Of Line Character]b"), QStringLiteral("x\r\ny")),
             QStringLiteral("a\r\nb"));
    QCOMPARE(ExpandSearchText(QStringLiteral("[end of line character]"), QStringLiteral("x\ny")), QStringLiteral("\n"));
    QCOMPARE(ExpandSearchText(QStringLiteral("[End Of Line Character]"), QStringLiteral("x\ry")), QStringLiteral("\r"));

    Fixture f(QStringLiteral("a\tb\r\nc"));
    f.model.setFindText(QStringLiteral("[Tab Character]"));
    QVERIFY(f.model.FindNext(f.edit));
    QCOMPARE(f.sel(), QStringLiteral("1:1"));
    f.model.setFindText(QStringLiteral("[End Of Line Character]"));
    QVERIFY(f.model.FindNext(f.edit));
    QCOMPARE(f.sel(), QStringLiteral("3:2"));
    // In the replacement too: lines joined by tabs.
    f.model.setReplaceText(QStringLiteral("[Tab Character]"));
    f.model.setOption(FindModel::FromTop, true);
    QCOMPARE(f.model.Replace(f.edit, FindModel::Mode::All), 1);
    QCOMPARE(f.edit.Text(), QStringLiteral("a\tb\tc"));
}

void tst_FindModel::searchInSelection()
{
    Fixture f(QStringLiteral("x x [x x] x"));
    f.model.setFindText(QStringLiteral("x"));
    f.model.setOption(FindModel::InSelection, true);
    f.edit.SetSel(4, 9);
    QVERIFY(f.model.FindNext(f.edit));
    QCOMPARE(f.sel(), QStringLiteral("5:1"));
    QVERIFY(f.model.FindNext(f.edit));   // the range is kept while the hit is selected
    QCOMPARE(f.sel(), QStringLiteral("7:1"));
    QVERIFY(!f.model.FindNext(f.edit));
    f.edit.SetSel(4, 9);
    f.model.setReplaceText(QStringLiteral("yy"));
    QCOMPARE(f.model.Replace(f.edit, FindModel::Mode::All), 2);
    QCOMPARE(f.edit.Text(), QStringLiteral("x x [yy yy] x"));
}

void tst_FindModel::replaceAllCountsAndEnds()
{
    Fixture f(QStringLiteral("a b a b a"));
    f.model.setGuise(QStringLiteral("r"));
    f.model.setFindText(QStringLiteral("a"));
    f.model.setReplaceText(QStringLiteral("aa"));
    // "a" by "aa" ends, as each search resumes behind the replacement.
    QCOMPARE(f.model.Replace(f.edit, FindModel::Mode::All), 3);
    QCOMPARE(f.edit.Text(), QStringLiteral("aa b aa b aa"));
    QCOMPARE(f.prompts.shown.last().text, QStringLiteral("3 replacements made"));
    QCOMPARE(f.prompts.shown.last().icon, platform::Icon::Information);
    // Nothing to replace: the search text and " was not found", no count box.
    f.prompts.shown.clear();
    f.model.setFindText(QStringLiteral("zz[Tab Character]"));
    QCOMPARE(f.model.Replace(f.edit, FindModel::Mode::All), 0);
    QCOMPARE(f.prompts.texts(), QStringList{QStringLiteral("zz\t was not found")});
    QCOMPARE(f.prompts.shown.last().icon, platform::Icon::Exclamation);
    // Without "Start from top" the walk begins at the caret.
    f.model.setFindText(QStringLiteral("b"));
    f.model.setReplaceText(QStringLiteral("c"));
    f.edit.SetSel(5, 5);
    QCOMPARE(f.model.Replace(f.edit, FindModel::Mode::All), 1);
    QCOMPARE(f.edit.Text(), QStringLiteral("aa b aa c aa"));
}

void tst_FindModel::replaceOneAsksAtEachHit()
{
    Fixture f(QStringLiteral("cat cat cat cat"));
    f.model.setGuise(QStringLiteral("r"));
    f.model.setFindText(QStringLiteral("cat"));
    f.model.setReplaceText(QStringLiteral("dog"));
    f.prompts.answer(Answer::Yes);
    f.prompts.answer(Answer::No);    // the hit stays, the walk goes on behind it
    f.prompts.answer(Answer::Yes);
    f.prompts.answer(Answer::Cancel);
    QCOMPARE(f.model.Replace(f.edit, FindModel::Mode::One), 2);
    QCOMPARE(f.edit.Text(), QStringLiteral("dog cat dog cat"));
    QCOMPARE(f.prompts.texts().count(QStringLiteral("Replace this occurrence ?")), 4);
    QCOMPARE(f.prompts.shown.at(0).buttons, platform::Buttons::YesNoCancel);
    QCOMPARE(f.prompts.shown.at(0).icon, platform::Icon::Question);
    QCOMPARE(f.prompts.texts().last(), QStringLiteral("2 replacements made"));
    QCOMPARE(f.prompts.unanswered, 0);
    // The hit is selected while the question is up: the last one asked about.
    QCOMPARE(f.sel(), QStringLiteral("12:3"));
}

void tst_FindModel::replaceAllCancelAndUndo()
{
    const QString text = QStringLiteral("a ").repeated(1000);
    Fixture f(text);
    f.model.setFindText(QStringLiteral("a"));
    f.model.setReplaceText(QStringLiteral("b"));
    // The cancel key is looked at every 256 hits; here it is down at the second look.
    int asked = 0;
    QCOMPARE(f.model.Replace(f.edit, FindModel::Mode::All, [&asked] { return ++asked > 1; }), 256);
    QCOMPARE(f.edit.Text(), QStringLiteral("b ").repeated(256) + QStringLiteral("a ").repeated(744));
    QCOMPARE(f.prompts.texts().last(), QStringLiteral("256 replacements made"));
    // Replace All is one step to undo.
    f.edit.Undo();
    QCOMPARE(f.edit.Text(), text);
}

void tst_FindModel::regexOnAndOff()
{
    Fixture f(QStringLiteral("id=12 x=7 [a-z]=3"));
    f.model.setFindText(QStringLiteral("[a-z]+=(\\d+)"));
    f.model.setReplaceText(QStringLiteral("<\\1>"));
    f.model.setOption(FindModel::FromTop, true);
    // Off (the default): the text is plain, brackets and all.
    QVERIFY(!f.model.regex());
    QVERIFY(!f.model.FindNext(f.edit));
    f.model.setFindText(QStringLiteral("[a-z]="));
    QVERIFY(f.model.FindNext(f.edit));
    QCOMPARE(f.sel(), QStringLiteral("10:6"));
    // On: a pattern with groups in the replacement.
    f.model.setRegex(true);
    f.model.setFindText(QStringLiteral("[a-z]+=(\\d+)"));
    f.edit.SetSel(0, 0);
    QCOMPARE(f.model.Replace(f.edit, FindModel::Mode::All), 2);
    QCOMPARE(f.edit.Text(), QStringLiteral("<12> <7> [a-z]=3"));
    // Whole word applies to the pattern's hit; a broken pattern is reported.
    f.model.setOption(FindModel::WholeWord, true);
    f.model.setFindText(QStringLiteral("\\d"));
    f.edit.SetSel(0, 0);
    QVERIFY(f.model.FindNext(f.edit));
    QCOMPARE(f.sel(), QStringLiteral("6:1"));
    f.model.setFindText(QStringLiteral("(unclosed"));
    QVERIFY(!f.model.FindNext(f.edit));
    QVERIFY(f.prompts.texts().last().startsWith(QStringLiteral("The regular expression is not valid")));
}

void tst_FindModel::guisesAndHistory()
{
    test::TestEnv env;
    FindModel m;
    m.setGuise(QStringLiteral("f"));
    QCOMPARE(m.title(), QStringLiteral("Find Text"));
    QVERIFY(!m.replaceGuise());
    m.setGuise(QStringLiteral("r"));
    QCOMPARE(m.title(), QStringLiteral("Replace Text"));
    QCOMPARE(m.buttonCaption(), QStringLiteral("&Replace One"));
    for (int i = 0; i < FindModel::HistoryLength + 5; ++i)
        m.rememberFind(QString::number(i));
    m.rememberFind(QStringLiteral("10"));
    QCOMPARE(m.findHistory().size(), FindModel::HistoryLength);
    QCOMPARE(m.findHistory().first(), QStringLiteral("10"));
    QCOMPARE(m.findHistory().count(QStringLiteral("10")), 1);
    QCOMPARE(m.findHistory().at(1), QStringLiteral("24"));
    // The next session's dialog finds the same list.
    QCOMPARE(FindModel().findHistory().first(), QStringLiteral("10"));
}

QTEST_GUILESS_MAIN(tst_FindModel)
#include "tst_findmodel.moc"
