#include "app/MainWindow.h"
#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/Settings.h"
#include "core/ui/CommandTable.h"
#include "documents/DocumentList.h"
#include "documents/ui/DocumentWindow.h"
#include "platform/HTMLEdit.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"
#include "texttools/ui/frmConvert.h"
#include "texttools/ui/frmSpeller.h"

#include <Qsci/qsciscintilla.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStandardPaths>
#include <QtTest>

using namespace qly;

namespace {

template <typename T>
T *child(QWidget *parent, const char *name)
{
    return parent->findChild<T *>(QString::fromLatin1(name));
}

} // namespace

class tst_TextToolsDialogs : public QObject
{
    Q_OBJECT
private slots:
    void init() { QStandardPaths::setTestModeEnabled(true); }
    void convertDialog();
    void spellerDialog();
    void spellerSwitchesDictionaryMidCheck();

private:
    platform::HTMLEdit *openDocument(app::frmMain &w, const QString &text);
};

platform::HTMLEdit *tst_TextToolsDialogs::openDocument(app::frmMain &w, const QString &text)
{
    documents::Workspace::setInstance(&w);
    auto *doc = dynamic_cast<documents::ui::DocumentWindow *>(documents::CreateDocumentWindow());
    core::EndWait();
    core::gLoadingDocument = false;
    doc->txtDoc().setText(text);
    return &doc->txtDoc();
}

void tst_TextToolsDialogs::convertDialog()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    app::frmMain w;
    platform::HTMLEdit *edit = openDocument(w, QStringLiteral("Notes\r\n\r\n- one\r\n- two"));
    QVERIFY(w.commands().run(QStringLiteral("ToolsConvertToHTML")));
    auto *dialog = w.findChild<texttools::ui::frmConvert *>(QStringLiteral("frmConvert"));
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(child<QComboBox>(dialog, "cmbIsolate")->currentText(), QStringLiteral("below"));

    // A list without its type: the box, and the list is opened for a choice.
    child<QCheckBox>(dialog, "chkMakeList")->setChecked(true);
    child<QPushButton>(dialog, "cmdOptions(0)")->click();
    QCOMPARE(prompts.shown.size(), 1);
    QCOMPARE(prompts.shown.at(0).title, QStringLiteral("No List Type"));
    auto *listType = child<QComboBox>(dialog, "cmbListType");
    listType->hidePopup();
    listType->setCurrentIndex(0);
    child<QLineEdit>(dialog, "txtBullet")->setText(QStringLiteral("-"));
    child<QCheckBox>(dialog, "chkFirstHead")->setChecked(true);
    child<QComboBox>(dialog, "cmbFirstHead")->setCurrentIndex(1);
    child<QPushButton>(dialog, "cmdOptions(2)")->click();
    QCOMPARE(edit->Text(), QStringLiteral("<HTML>\r\n<HEAD>\r\n<TITLE> type_Document_Title_here </TITLE>\r\n</HEAD>\r\n"
                                          "<BODY>\r\n<H2>Notes</H2>\r\n\r\n<UL>\r\n<LI> one\r\n<LI> two\r\n</UL>\r\n"
                                          "</BODY>\r\n</HTML>\r\n"));
    QTRY_VERIFY(!w.findChild<texttools::ui::frmConvert *>(QStringLiteral("frmConvert")));
    QVERIFY(w.commands().run(QStringLiteral("EditUndo")));
    QCOMPARE(edit->Text(), QStringLiteral("Notes\r\n\r\n- one\r\n- two"));
    documents::Workspace::setInstance(nullptr);
}

void tst_TextToolsDialogs::spellerDialog()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    app::frmMain w;
    platform::HTMLEdit *edit = openDocument(w, QStringLiteral("<A HREF=\"teh.html\">teh</A> wrold teh"));
    // Unknown words of the text are underlined as they stand, those in tags not.
    auto *view = w.findChild<QsciScintilla *>();
    const auto underlined = [view](int position) {
        return view->SendScintilla(QsciScintillaBase::SCI_INDICATORVALUEAT, 8, position) != 0;
    };
    QTRY_VERIFY(underlined(20));
    QVERIFY(underlined(28) && underlined(34) && !underlined(10) && !underlined(24) && !underlined(32));
    QStringList shownWords;
    QList<std::pair<int, QString>> selected;
    // Answers each question of the dialog as a user does: the first word is
    // changed everywhere to a longer word, the second ignored. The word asked
    // about is selected in the document, where it stands there.
    std::function<void()> answer = [&] {
        auto *speller = qobject_cast<texttools::ui::frmSpeller *>(QApplication::activeModalWidget());
        if (!speller) {
            QTimer::singleShot(20, answer);
            return;
        }
        shownWords << child<QLineEdit>(speller, "txtWord")->text();
        selected << std::pair{edit->SelStart(), edit->SelText()};
        const bool first = shownWords.size() == 1;
        if (first) {
            QCOMPARE(child<QLineEdit>(speller, "txtChange")->text(),
                     child<QListWidget>(speller, "lstSuggest")->item(0)->text());
            child<QLineEdit>(speller, "txtChange")->setText(QStringLiteral("thee"));
        }
        child<QPushButton>(speller, first ? "cmdChangeAll" : "cmdIgnore")->click();
        if (first)
            QTimer::singleShot(20, answer);
    };
    QTimer::singleShot(20, answer);
    QVERIFY(w.commands().run(QStringLiteral("ToolsSpellCheck")));
    QCOMPARE(shownWords, QStringList({QStringLiteral("teh"), QStringLiteral("wrold")}));
    QCOMPARE(selected, (QList<std::pair<int, QString>>{{19, QStringLiteral("teh")}, {27, QStringLiteral("wrold")}}));
    QCOMPARE(edit->Text(), QStringLiteral("<A HREF=\"teh.html\">thee</A> wrold thee"));
    // The whole check is one step back.
    edit->Undo();
    QCOMPARE(edit->Text(), QStringLiteral("<A HREF=\"teh.html\">teh</A> wrold teh"));
    documents::Workspace::setInstance(nullptr);
}

void tst_TextToolsDialogs::spellerSwitchesDictionaryMidCheck()
{
    // A second dictionary beside the program that knows "teh" and "zork":
    // chosen while "teh" is asked about, it lets "teh" pass at once, and the
    // check goes on with it from there.
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    env.write(QStringLiteral("dictionaries/xx_XX.aff"), "SET UTF-8\n");
    env.write(QStringLiteral("dictionaries/xx_XX.dic"), "2\nteh\nzork\n");
    app::frmMain w;
    platform::HTMLEdit *edit = openDocument(w, QStringLiteral("<P>teh zork blorp</P>"));
    QStringList asked;
    QStringList dictionaries;
    std::function<void()> answer = [&] {
        auto *speller = qobject_cast<texttools::ui::frmSpeller *>(QApplication::activeModalWidget());
        if (!speller) {
            QTimer::singleShot(20, answer);
            return;
        }
        auto *combo = child<QComboBox>(speller, "cmbDictionary");
        asked << child<QLineEdit>(speller, "txtWord")->text();
        dictionaries << combo->currentText();
        if (asked.size() == 1) {
            const int other = combo->findText(QStringLiteral("xx_XX"));
            QVERIFY(other >= 0);
            combo->setCurrentIndex(other);
            emit combo->activated(other);   // as a choice with the mouse does
            QTimer::singleShot(20, answer);
            return;
        }
        child<QPushButton>(speller, "cmdIgnore")->click();
    };
    QTimer::singleShot(20, answer);
    QVERIFY(w.commands().run(QStringLiteral("ToolsSpellCheck")));
    QCOMPARE(asked, (QStringList{QStringLiteral("teh"), QStringLiteral("blorp")}));
    QCOMPARE(dictionaries, (QStringList{QStringLiteral("en_US"), QStringLiteral("xx_XX")}));
    QCOMPARE(core::ReadSetting(QStringLiteral("General"), QStringLiteral("Standard Dictionary")), QStringLiteral("xx_XX"));
    QCOMPARE(edit->Text(), QStringLiteral("<P>teh zork blorp</P>"));
    documents::Workspace::setInstance(nullptr);
}

QTEST_MAIN(tst_TextToolsDialogs)
#include "tst_texttoolsdialogs.moc"
