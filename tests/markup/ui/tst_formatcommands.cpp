#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/Settings.h"
#include "core/ui/CommandTable.h"
#include "core/ui/MainWindow.h"
#include "documents/DocumentList.h"
#include "documents/ui/DocumentWindow.h"
#include "documents/ui/ScintillaEdit.h"
#include "support/TestEnv.h"

#include <Qsci/qsciscintilla.h>

#include <QMenu>
#include <QtTest>

using namespace qly;

class tst_FormatCommands : public QObject
{
    Q_OBJECT
private slots:
    void commandsOnRealControl();
    void menuListsFormatCommands();
};

void tst_FormatCommands::commandsOnRealControl()
{
    test::TestEnv env;
    core::ui::frmMain w;
    core::Workspace::setInstance(&w);
    auto *doc = dynamic_cast<documents::ui::DocumentWindow *>(documents::CreateDocumentWindow());
    QVERIFY(doc);
    core::EndWait();
    core::gLoadingDocument = false;
    QsciScintilla *view = doc->edit()->view();
    platform::HTMLEdit &edit = doc->txtDoc();

    // Positions count characters, also after non-ASCII text.
    edit.setText(QStringLiteral("Gr\u00fc\u00dfe Welt\r\nSecond line\r\nend"));
    edit.SetSel(6, 10);
    QVERIFY(w.commands().run(QStringLiteral("FormatBold")));
    QCOMPARE(view->text(), QStringLiteral("Gr\u00fc\u00dfe <STRONG>Welt</STRONG>\r\nSecond line\r\nend"));
    QCOMPARE(view->selectedText(), QStringLiteral("<STRONG>Welt</STRONG>"));

    // A whole selected line loses its line break, and the change is one undo step.
    const QString before = view->text();
    const int line = int(before.indexOf(QStringLiteral("Second")));
    edit.SetSel(line, line + 13);
    QVERIFY(w.commands().run(QStringLiteral("tlbHead2")));
    QCOMPARE(view->text(), QStringLiteral("Gr\u00fc\u00dfe <STRONG>Welt</STRONG>\r\n<H2>Second line</H2>end"));
    QCOMPARE(view->selectedText(), QStringLiteral("<H2>Second line</H2>"));
    QVERIFY(edit.Dirty());
    QVERIFY(w.commands().run(QStringLiteral("EditUndo")));
    QCOMPARE(view->text(), before);

    // Nothing selected: the caret lands between the tags.
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Strong and Emphasis"), QStringLiteral("No"));
    edit.SetSel(0, 0);
    QVERIFY(w.commands().run(QStringLiteral("FormatItalic")));
    QVERIFY(view->text().startsWith(QStringLiteral("<I></I>Gr")));
    QCOMPARE(edit.SelStart(), 3);
    QVERIFY(!view->hasSelectedText());

    // With no document left the commands do nothing.
    doc->closeWithoutQuery();
    QTRY_VERIFY(w.documentList().isEmpty());
    QVERIFY(w.commands().run(QStringLiteral("FormatDropCaps")));
    QVERIFY(w.commands().run(QStringLiteral("tlbParagraph")));
    core::Workspace::setInstance(nullptr);
}

void tst_FormatCommands::menuListsFormatCommands()
{
    test::TestEnv env;
    core::ui::frmMain w;
    auto *menu = w.findChild<QMenu *>(QStringLiteral("Format"));
    QVERIFY(menu);
    QStringList captions;
    for (QAction *a : menu->actions())
        captions << a->text();
    QVERIFY(captions.contains(QStringLiteral("&Bold")));
    QVERIFY(captions.contains(QStringLiteral("Heading &6")));
    QVERIFY(w.commands().action(QStringLiteral("tlbOutdent"))->isEnabled());
}

QTEST_MAIN(tst_FormatCommands)
#include "tst_formatcommands.moc"
