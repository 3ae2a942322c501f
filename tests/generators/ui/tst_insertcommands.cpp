#include "app/MainWindow.h"
#include "core/ui/CommandTable.h"
#include "documents/Document.h"
#include "documents/NewDocument.h"
#include "documents/Workspace.h"
#include "platform/HTMLEdit.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace qly;

// The Insert menu's forms, scripts, channels, effects and objects in the
// real main window.
class tst_InsertCommands : public QObject
{
    Q_OBJECT
private slots:
    void everyEntryIsBound();
    void singleElementAndScriptIntoADocument();
};

namespace {

void answerNextDialog(std::function<void(QWidget *)> fill)
{
    QTimer::singleShot(0, [fill] {
        QWidget *dialog = QApplication::activeModalWidget();
        QVERIFY(dialog);
        fill(dialog);
        dialog->findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
    });
}

} // namespace

void tst_InsertCommands::everyEntryIsBound()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    std::unique_ptr<app::frmMain> w = test::showMainWindow();
    QStringList names = {QStringLiteral("InsertForm"),        QStringLiteral("InsertTextField"),
                         QStringLiteral("InsertRadioButton"), QStringLiteral("InsertCheckBox"),
                         QStringLiteral("InsertHiddenField"), QStringLiteral("InsertPassword"),
                         QStringLiteral("InsertTextArea"),    QStringLiteral("InsertFormList"),
                         QStringLiteral("InsertFormImage"),   QStringLiteral("InsertSubmit"),
                         QStringLiteral("InsertReset"),       QStringLiteral("InsertActiveX"),
                         QStringLiteral("InsertTextEffects"), QStringLiteral("InsertJavaHR"),
                         QStringLiteral("InsertJavaLED"),     QStringLiteral("InsertMarquee"),
                         QStringLiteral("InsertNetCaster"),   QStringLiteral("InsertACSubscribe"),
                         QStringLiteral("InsertChannelDef"),  QStringLiteral("InsertChannelItem")};
    for (int i = 0; i <= 7; ++i)
        names << QStringLiteral("InsertJS%1").arg(i);
    for (const QString &name : names) {
        QAction *a = w->commands().action(name);
        QVERIFY2(a && a->isEnabled(), qPrintable(name));
    }
    test::closeMainWindow(w);
}

void tst_InsertCommands::singleElementAndScriptIntoADocument()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    std::unique_ptr<app::frmMain> w = test::showMainWindow();
    documents::Document *doc = documents::NewDocument(env.write(QStringLiteral("t.tpl"), "<BODY>\r\n</BODY>"));
    QVERIFY(doc);
    platform::HTMLEdit &edit = doc->txtDoc();
    edit.SetSel(6, 6);
    answerNextDialog([](QWidget *d) {
        d->findChild<QLineEdit *>(QStringLiteral("txtName"))->setText(QStringLiteral("pw"));
        QVERIFY(d->findChild<QCheckBox *>(QStringLiteral("chkPassword"))->isChecked());
    });
    QVERIFY(w->commands().run(QStringLiteral("InsertPassword")));
    QCOMPARE(edit.Text(), QStringLiteral("<BODY> <INPUT TYPE=\"PASSWORD\" name = \"pw\"> <BR>\r\n\r\n</BODY>"));

    // "No Frames" works on the body tag; "Credits..." does nothing.
    QVERIFY(w->commands().run(QStringLiteral("InsertJS6")));
    QVERIFY(w->commands().run(QStringLiteral("InsertJS4")));
    QVERIFY(edit.Text().startsWith(QLatin1String("<BODY onLoad=\"top.location.href = document.location.href\" >")));
    QVERIFY(prompts.shown.isEmpty());

    // A missing script template is told, and nothing changes.
    const QString before = edit.Text();
    QVERIFY(w->commands().run(QStringLiteral("InsertJS2")));
    QCOMPARE(edit.Text(), before);
    QCOMPARE(prompts.texts().size(), 1);
    QVERIFY(prompts.texts().first().endsWith(QLatin1String("LastUpdated.tpl cannot be found.")));

    // The subscribe button is the ordinary link: around the selection, else with the button's text.
    documents::Document *page = documents::NewDocument(env.write(QStringLiteral("s.tpl"), "<P>Join</P>"));
    QVERIFY(page);
    const QString link = QStringLiteral("<A HREF=\"news.cdf\">");
    for (const auto &[from, to] : {std::pair{3, 7}, std::pair{0, 0}}) {
        page->txtDoc().SetSel(from, to);
        answerNextDialog([](QWidget *d) {
            d->findChild<QLineEdit *>(QStringLiteral("txtButtonName"))->setText(QStringLiteral("Add"));
            d->findChild<QLineEdit *>(QStringLiteral("txtURL"))->setText(QStringLiteral("news.cdf"));
        });
        QVERIFY(w->commands().run(QStringLiteral("InsertACSubscribe")));
    }
    QCOMPARE(page->txtDoc().Text(), link + QStringLiteral("Add</A><P>") + link + QStringLiteral("Join</A></P>"));
    test::closeMainWindow(w);
}

QTEST_MAIN(tst_InsertCommands)
#include "tst_insertcommands.moc"
