#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/ui/CommandTable.h"
#include "app/MainWindow.h"
#include "documents/DocumentList.h"
#include "documents/ui/DocumentWindow.h"
#include "documents/ui/ScintillaEdit.h"
#include "support/TestEnv.h"

#include <Qsci/qsciscintilla.h>

#include <QtTest>

using namespace qly;

class tst_FormatCommands : public QObject
{
    Q_OBJECT
private slots:
    void commandsOnRealControl();
};

void tst_FormatCommands::commandsOnRealControl()
{
    test::TestEnv env;
    app::frmMain w;
    documents::Workspace::setInstance(&w);
    auto *doc = dynamic_cast<documents::ui::DocumentWindow *>(documents::CreateDocumentWindow());
    QVERIFY(doc);
    core::EndWait();
    core::gLoadingDocument = false;
    QVERIFY(w.findChild<QObject *>(QStringLiteral("Format")));  // the menu
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

    documents::Workspace::setInstance(nullptr);
}

QTEST_MAIN(tst_FormatCommands)
#include "tst_formatcommands.moc"
