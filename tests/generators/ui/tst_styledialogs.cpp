// The style sheet dialogs as a user drives them: the style editor keeps a
// style's text through its pages and refuses a style without a name or a
// selector; the library list removes a style; the page's styles and imports
// are written into the document; the toolbar's combo follows and applies
// classes. With QLY_SHOT_DIR set, the editor's pages are saved as pictures.

#include "app/MainWindow.h"
#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "core/ui/CommandTable.h"
#include "documents/DocumentList.h"
#include "documents/ui/DocumentWindow.h"
#include "generators/DocumentStyles.h"
#include "generators/StyleLibrary.h"
#include "generators/StyleText.h"
#include "generators/ui/StyleComboBinder.h"
#include "generators/ui/frmCSSDocStyles.h"
#include "generators/ui/frmCSSEditor.h"
#include "generators/ui/frmCSSImport.h"
#include "generators/ui/frmCSSSimple.h"
#include "platform/HTMLEdit.h"
#include "support/Shots.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStandardPaths>
#include <QTabWidget>
#include <QtTest>

using namespace qly;
using namespace qly::generators;
using namespace qly::generators::ui;

namespace {

QString identity(const QString &s)
{
    return s;
}

StyleRecord boxStyle()
{
    StyleRecord r;
    r.StyleName = QStringLiteral("Side Box");
    r.HTMLTag = QStringLiteral("DIV");
    r.ClassName = QStringLiteral("side");
    r.Description = QStringLiteral("A box at the side");
    r.FontFamily = QStringLiteral("Georgia");
    r.FontSize = QStringLiteral("12");
    r.FontSizeUnit = QStringLiteral("pt");
    r.ColorR = 0x12, r.ColorG = 0x34, r.ColorB = 0xAB;
    r.Underline = r.Overline = 1;
    r.LinkState = 2;
    r.TextAlign = QStringLiteral("Center");
    r.ListStyle = QStringLiteral("Square");
    r.ListImage = QStringLiteral("dot.gif");
    r.BoxSize[0] = QStringLiteral("200");
    r.BoxSizeUnit[0] = QStringLiteral("px");
    r.BackImage = QStringLiteral("paper.jpg");
    r.BackRepeat = 2;
    r.BackPos[1] = QStringLiteral("20");
    r.BackPosUnit[1] = QStringLiteral("px");
    r.BackR = 255, r.BackG = 248, r.BackB = 220;
    r.VerticalAlign = QStringLiteral("SubScript");
    r.Margin[0] = QStringLiteral("4");
    r.Margin[2] = QStringLiteral("8");
    r.MarginUnit[0] = r.MarginUnit[2] = QStringLiteral("mm");
    r.Padding[1] = QStringLiteral("3");
    r.PaddingUnit[1] = QStringLiteral("cm");
    r.BorderSize[3] = QStringLiteral("Thick");
    r.BorderStyle[3] = QStringLiteral("No Border");
    r.FlowSide = QStringLiteral("Right");
    r.FlowWrap = QStringLiteral("Contour");
    r.Clear = QStringLiteral("Both");
    return r;
}

template <typename T>
T *child(QWidget *parent, const char *name)
{
    T *w = parent->findChild<T *>(QString::fromLatin1(name));
    if (!w)
        qWarning("no child %s", name);
    return w;
}

} // namespace

class TestStyleDialogs : public QObject
{
    Q_OBJECT
private slots:
    void init() { QStandardPaths::setTestModeEnabled(true); }
    void editorKeepsAStyleAndChecksIt();
    void libraryListRemoves();
    void documentStylesAndImports();
    void toolbarComboFollowsTheCaret();
};

void TestStyleDialogs::editorKeepsAStyleAndChecksIt()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    core::setProgramDirectory(env.dir());
    const StyleRecord style = boxStyle();
    frmCSSEditor editor;
    editor.Initialize(style);
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    QCOMPARE(StyleText(style.StyleName, editor.record(), identity), StyleText(style.StyleName, style, identity));
    for (int i = 0; i < editor.pages()->count(); ++i) {
        editor.pages()->setCurrentIndex(i);
        test::saveShot(&editor, QStringLiteral("imagemap-css-page%1").arg(i + 1));
    }
    QVERIFY(!editor.changed());

    child<QLineEdit>(&editor, "txtName")->clear();
    QVERIFY(!editor.SaveStyle());
    QCOMPARE(prompts.shown.last().text, QStringLiteral("You must enter a name to save a style"));
    child<QLineEdit>(&editor, "txtName")->setText(QStringLiteral("Loose"));
    child<QComboBox>(&editor, "cmbHTMLTag")->setCurrentIndex(0);
    child<QLineEdit>(&editor, "txtClass")->clear();
    QVERIFY(!editor.SaveStyle());
    QCOMPARE(prompts.shown.last().text,
             QStringLiteral("You must enter either an HTML tag or a class name to save a style"));
    QVERIFY(!QFile::exists(StyleLibrary::instance().fileOf(QStringLiteral("Loose"))));

    child<QLineEdit>(&editor, "txtClass")->setText(QStringLiteral("loose"));
    QTest::keyClick(child<QLineEdit>(&editor, "txtSize(0)"), Qt::Key_3);   // edits mark the style changed
    QVERIFY(editor.changed());
    QVERIFY(editor.SaveStyle());
    StyleRecord saved;
    QCOMPARE(StyleLibrary::instance().ReadStyleFile(QStringLiteral("Loose"), saved), StyleFileStatus::Ok);
    QCOMPARE(saved.ClassName, QStringLiteral("loose"));
    QCOMPARE(saved.FontSize, QStringLiteral("123"));
    QCOMPARE(StyleLibrary::instance().StyleNames(), QStringList{QStringLiteral("Loose")});

    // Closing with changes asks; Cancel keeps the editor open.
    QTest::keyClick(child<QLineEdit>(&editor, "txtSize(0)"), Qt::Key_4);
    prompts.answer(platform::Answer::Cancel);
    editor.reject();
    QVERIFY(editor.isVisible());
    QCOMPARE(prompts.shown.last().text, QStringLiteral("Save changes to Style?"));
    prompts.answer(platform::Answer::No);
    editor.reject();
    QVERIFY(!editor.isVisible());
    core::setProgramDirectory(QString());
}

void TestStyleDialogs::libraryListRemoves()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    core::setProgramDirectory(env.dir());
    StyleLibrary &library = StyleLibrary::instance();
    StyleRecord a = boxStyle();
    StyleRecord b;
    b.StyleName = QStringLiteral("Alert");
    b.ClassName = QStringLiteral("alert");
    b.Description = QStringLiteral("Red words");
    QVERIFY(library.WriteStyleFile(a) && library.WriteStyleFile(b));
    frmCSSSimple list;
    auto *names = child<QListWidget>(&list, "lstStyles");
    QCOMPARE(names->count(), 2);
    QCOMPARE(names->item(0)->text(), QStringLiteral("Alert"));
    QVERIFY(child<QLabel>(&list, "lblDescription")->text().contains(QStringLiteral("Red words")));
    prompts.answer(platform::Answer::No);
    list.removeStyle();
    QCOMPARE(names->count(), 2);
    QCOMPARE(prompts.shown.last().text, QStringLiteral("Remove style Alert?"));
    prompts.answer(platform::Answer::Yes);
    list.removeStyle();
    QCOMPARE(names->count(), 1);
    QVERIFY(!QFile::exists(library.fileOf(QStringLiteral("Alert"))));
    core::setProgramDirectory(QString());
}

void TestStyleDialogs::documentStylesAndImports()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    core::setProgramDirectory(env.dir());
    StyleLibrary &library = StyleLibrary::instance();
    StyleRecord b;
    b.StyleName = QStringLiteral("Alert");
    b.ClassName = QStringLiteral("alert");
    b.Bold = 1;
    QVERIFY(library.WriteStyleFile(boxStyle()) && library.WriteStyleFile(b));
    const QString page = QStringLiteral("<HTML><HEAD><TITLE>T</TITLE></HEAD><BODY>x</BODY></HTML>");
    test::FakeDocument *doc = workspace.addDocument(QStringLiteral("p"), page, env.path(QStringLiteral("p.htm")));

    {
        frmCSSImport import(doc->edit);
        import.setURL(QStringLiteral("site.css"));
        import.accept();
    }
    QCOMPARE(ReadDocumentStyles(doc->edit.Text()).imports, QStringList{QStringLiteral("site.css")});

    frmCSSDocStyles styles(doc->edit);
    QCOMPARE(styles.listed(), (QStringList{QStringLiteral("Alert"), QStringLiteral("Side Box")}));
    prompts.answer(platform::Answer::No);
    QVERIFY(styles.tick(QStringLiteral("Alert"), true));
    QCOMPARE(prompts.shown.last().title, QStringLiteral("Imported Style Sheet Detected."));
    QVERIFY(styles.ticked().isEmpty());   // No takes the tick back
    prompts.answer(platform::Answer::Yes);
    styles.tick(QStringLiteral("Side Box"), true);
    styles.tick(QStringLiteral("Alert"), true);
    QCOMPARE(prompts.shown.size(), 2);
    styles.accept();
    const DocumentStyles written = ReadDocumentStyles(doc->edit.Text());
    QCOMPARE(written.styles, (QStringList{QStringLiteral("Alert"), QStringLiteral("Side Box")}));
    QCOMPARE(written.imports, QStringList{QStringLiteral("site.css")});
    QVERIFY(doc->edit.Text().contains(QStringLiteral(".alert {\r\nfont-weight: \"bold\";\r\n}")));
    core::setProgramDirectory(QString());
}

void TestStyleDialogs::toolbarComboFollowsTheCaret()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    core::setProgramDirectory(env.dir());
    StyleRecord alert;
    alert.StyleName = QStringLiteral("Alert");
    alert.ClassName = QStringLiteral("alert");
    StyleRecord note;
    note.StyleName = QStringLiteral("Note");
    note.HTMLTag = QStringLiteral("P");
    note.ClassName = QStringLiteral("note");
    QVERIFY(StyleLibrary::instance().WriteStyleFile(alert) && StyleLibrary::instance().WriteStyleFile(note));

    app::frmMain w;
    w.LoadToolbars();
    w.show();
    documents::Workspace::setInstance(&w);
    auto *doc = dynamic_cast<documents::ui::DocumentWindow *>(documents::CreateDocumentWindow());
    core::EndWait();
    core::gLoadingDocument = false;
    DocumentStyles uses;
    uses.styles = QStringList{QStringLiteral("Alert"), QStringLiteral("Note")};
    const QString page = QStringLiteral("<HTML><HEAD></HEAD><BODY>\r\n<P CLASS=\"note\">One</P>\r\n<P>Two</P>\r\n"
                                        "</BODY></HTML>");
    doc->txtDoc().setText(page);
    WriteDocumentStyles(doc->txtDoc(), uses, StyleLibrary::instance(), identity);
    for (const char *command : {"InsertImageMap", "FormatEditStyles", "FormatSetStyle", "FormatSetURLStyle"})
        QVERIFY2(w.commands().action(QString::fromLatin1(command))->isEnabled(), command);
    StyleComboBinder *binder = StyleComboBinder::instance();
    QVERIFY(binder);
    binder->refresh();
    QComboBox *box = binder->combo();
    QVERIFY(box && box->isEnabled());
    QCOMPARE(box->count(), 3);
    QCOMPARE(box->itemText(0), QStringLiteral("[none]"));

    const QString text = doc->txtDoc().Text();
    const int first = int(text.indexOf(QStringLiteral("<P CLASS")));
    doc->txtDoc().SetSel(first, first + 16);   // the tag <P CLASS="note">
    QTRY_COMPARE(box->currentText(), QStringLiteral("Note"));
    const int second = int(text.indexOf(QStringLiteral("<P>Two")));
    doc->txtDoc().SetSel(second + 4, second + 4);
    QTRY_COMPARE(box->currentIndex(), 0);
    doc->txtDoc().SetSel(first + 3, first + 3);   // the caret inside the tag, nothing selected
    QTRY_COMPARE(box->currentText(), QStringLiteral("Note"));
    doc->txtDoc().SetSel(second + 4, second + 4);

    binder->apply(box->findText(QStringLiteral("Alert")));
    QVERIFY(doc->txtDoc().Text().contains(QStringLiteral("<P CLASS=\"alert\">Two</P>")));
    binder->apply(0);
    QVERIFY(doc->txtDoc().Text().contains(QStringLiteral("<P>Two</P>")));
    w.close();
    core::setProgramDirectory(QString());
}

QTEST_MAIN(TestStyleDialogs)
#include "tst_styledialogs.moc"
