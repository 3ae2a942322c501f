// The find and replace dialogs on the real main window, offscreen, typed into.
#include "app/MainWindow.h"
#include "core/ui/CommandTable.h"
#include "documents/DocumentList.h"
#include "documents/ui/DocumentWindow.h"
#include "documents/ui/ScintillaEdit.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"
#include "texttools/ui/frmFilesFound.h"
#include "texttools/ui/frmFind.h"
#include "texttools/ui/frmGrep.h"

#include <Qsci/qsciscintilla.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QDir>
#include <QProcess>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

using namespace qly;
using texttools::ui::frmFind;
using texttools::ui::frmGrep;

class tst_frmFind : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void findGuiseTypedAndF3();
    void replaceGuiseWithRegex();
    void multiFileDialogFindsFiles();
    void dialogAndCommandLineAgree();

private:
    frmFind *dialog() const { return m_main->findChild<frmFind *>(); }
    platform::HTMLEdit &open(const QByteArray &text, const char *name = "page.html");

    std::unique_ptr<test::TestEnv> m_env;
    std::unique_ptr<test::ScriptedPrompts> m_prompts;
    std::unique_ptr<app::frmMain> m_main;
};

void tst_frmFind::init()
{
    m_env = std::make_unique<test::TestEnv>();
    m_prompts = std::make_unique<test::ScriptedPrompts>();
    m_main = test::showMainWindow();
}

void tst_frmFind::cleanup()
{
    test::closeMainWindow(m_main);
    m_prompts.reset();
    m_env.reset();
}

namespace {

// A click on the box itself, where a user clicks, not in the middle of a wide row.
void tick(QCheckBox *box)
{
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(6, box->height() / 2));
}

} // namespace

platform::HTMLEdit &tst_frmFind::open(const QByteArray &text, const char *name)
{
    const QString file = m_env->write(QString::fromLatin1(name), text);
    if (!documents::OpenDocumentFile(file))
        qFatal("cannot open the page");
    platform::HTMLEdit &e = m_main->activeDocument()->txtDoc();
    e.SetSel(0, 0);
    return e;
}

void tst_frmFind::findGuiseTypedAndF3()
{
    platform::HTMLEdit &e = open("<p>alpha beta alpha</p>\r\n<p>ALPHA</p>\r\n");
    // F3 and Shift+F3 are their own keys, used by no other command.
    core::ui::CommandTable &t = m_main->commands();
    QCOMPARE(t.action(QStringLiteral("EditFindNext"))->shortcut(), QKeySequence(QStringLiteral("F3")));
    QCOMPARE(t.action(QStringLiteral("EditFindPrevious"))->shortcut(), QKeySequence(QStringLiteral("Shift+F3")));
    QCOMPARE(t.action(QStringLiteral("EditReplace"))->shortcut(), QKeySequence(QStringLiteral("Ctrl+H")));
    for (const char *key : {"F3", "Shift+F3", "Ctrl+F", "Ctrl+H"}) {
        int users = 0;
        for (QAction *a : m_main->findChildren<QAction *>())
            users += a->shortcut() == QKeySequence(QString::fromLatin1(key)) ? 1 : 0;
        QVERIFY2(users == 1, key);
    }

    QVERIFY(t.run(QStringLiteral("EditFind")));
    frmFind *f = dialog();
    QVERIFY(f && f->isVisible());
    QCOMPARE(f->windowTitle(), QStringLiteral("Find Text"));
    QVERIFY(!f->replaceField()->isVisible());
    QVERIFY(!f->button(1)->isVisible());
    QTest::keyClicks(f->findField()->lineEdit(), QStringLiteral("alpha"));
    QCOMPARE(f->button(0)->text(), QStringLiteral("&Find First"));
    tick(f->optionBox(3));   // case sensitive
    QVERIFY(f->optionBox(3)->isChecked());
    QTest::mouseClick(f->button(0), Qt::LeftButton);
    QCOMPARE(e.SelStart(), 3);
    QCOMPARE(f->button(0)->text(), QStringLiteral("&Find Next"));
    QCOMPARE(f->findField()->count(), 1);   // the history took the text

    // Every visible hit carries the mark, the upper-case one too once case is off.
    auto *sci = dynamic_cast<documents::ui::ScintillaEdit *>(&e)->view();
    auto marked = [sci](int byte) { return sci->SendScintilla(QsciScintilla::SCI_INDICATORVALUEAT, 9UL, long(byte)); };
    QTRY_VERIFY(marked(14) != 0);
    QCOMPARE(marked(9), 0L);
    QCOMPARE(marked(28), 0L);
    tick(f->optionBox(3));
    QTRY_VERIFY(marked(28) != 0);

    QVERIFY(t.run(QStringLiteral("EditFindNext")));
    QCOMPARE(e.SelStart(), 14);
    QVERIFY(t.run(QStringLiteral("EditFindNext")));
    QCOMPARE(e.SelStart(), 28);
    QVERIFY(t.run(QStringLiteral("EditFindPrevious")));
    QCOMPARE(e.SelStart(), 14);
    QVERIFY(m_prompts->shown.isEmpty());

    // The marks follow the document that becomes current.
    platform::HTMLEdit &other = open("xx alpha", "other.html");
    auto *otherView = dynamic_cast<documents::ui::ScintillaEdit *>(&other)->view();
    QTRY_VERIFY(otherView->SendScintilla(QsciScintilla::SCI_INDICATORVALUEAT, 9UL, 3L) != 0);
    QCOMPARE(marked(14), 0L);

    // Escape closes the dialog and takes the marks away.
    QTest::keyClick(f, Qt::Key_Escape);
    QVERIFY(!f->isVisible());
    QTRY_COMPARE(otherView->SendScintilla(QsciScintilla::SCI_INDICATORVALUEAT, 9UL, 3L), 0L);
}

void tst_frmFind::replaceGuiseWithRegex()
{
    platform::HTMLEdit &e = open("<img src=a1.gif> <img src=b22.gif>");
    QVERIFY(m_main->commands().run(QStringLiteral("EditReplace")));
    frmFind *f = dialog();
    QCOMPARE(f->windowTitle(), QStringLiteral("Replace Text"));
    QVERIFY(f->replaceField()->isVisible());
    QCOMPARE(f->button(0)->text(), QStringLiteral("&Replace One"));
    QCOMPARE(f->button(1)->text(), QStringLiteral("Replace &All"));
    QTest::keyClicks(f->findField()->lineEdit(), QStringLiteral("src=([a-z]+)(\\d+)"));
    QTest::keyClicks(f->replaceField()->lineEdit(), QStringLiteral("src=\\2\\1"));
    tick(f->regexBox());
    QTest::mouseClick(f->button(1), Qt::LeftButton);
    QCOMPARE(e.Text(), QStringLiteral("<img src=1a.gif> <img src=22b.gif>"));
    QCOMPARE(m_prompts->texts(), QStringList{QStringLiteral("2 replacements made")});
    // Regular expressions off again: the same text is plain and is not there.
    tick(f->regexBox());
    QTest::mouseClick(f->button(1), Qt::LeftButton);
    QCOMPARE(m_prompts->texts().last(), QStringLiteral("src=([a-z]+)(\\d+) was not found"));
}

void tst_frmFind::multiFileDialogFindsFiles()
{
    m_env->write(QStringLiteral("site/a.htm"), "Hello");
    m_env->write(QStringLiteral("site/b.html"), "hello");
    m_env->write(QStringLiteral("site/c.htm"), "bye");
    QVERIFY(m_main->commands().run(QStringLiteral("EditMFReplace")));
    frmGrep *g = m_main->findChild<frmGrep *>();
    QVERIFY(g && g->isVisible());
    QCOMPARE(g->windowTitle(), QStringLiteral("Multi-File Find and Replace"));
    QVERIFY(g->setDirectory(m_env->path(QStringLiteral("site"))));
    QVERIFY(!g->setDirectory(m_env->path(QStringLiteral("missing"))));
    QVERIFY(m_prompts->texts().last().startsWith(QStringLiteral("Quillery is unable to read from the specified drive.")));
    g->addEntry(m_env->path(QStringLiteral("site/*.htm")));
    g->grid()->setCurrentCell(0, 0);
    QTest::keyClicks(g->termField(), QStringLiteral("HELLO"));
    QTest::mouseClick(g->findChild<QPushButton *>(QStringLiteral("cmdOptions")), Qt::LeftButton);
    QCOMPARE(g->grid()->item(0, 0)->text(), QStringLiteral("HELLO"));
    QTest::mouseClick(g->findChild<QPushButton *>(QStringLiteral("btnFind")), Qt::LeftButton);
    QListWidget *found = g->filesFound()->list();
    QTRY_VERIFY(g->filesFound()->isVisible());
    QCOMPARE(found->count(), 4);
    QCOMPARE(found->item(0)->text(), m_env->path(QStringLiteral("site/a.htm")));
    QCOMPARE(found->item(2)->text(), QStringLiteral("------End of Search Results------"));
    // Open takes the chosen file into a document.
    found->setCurrentRow(0);
    QTest::mouseClick(g->filesFound()->findChild<QPushButton *>(QStringLiteral("btnOpen")), Qt::LeftButton);
    QTRY_VERIFY(m_main->activeDocument());
    QCOMPARE(m_main->activeDocument()->txtDoc().Text(), QStringLiteral("Hello"));
}

void tst_frmFind::dialogAndCommandLineAgree()
{
    // The same site twice: the dialog works on one copy, quillery-cli on the
    // other, with the same entries and terms; the lists and the rewritten
    // files must be the same.
    const QList<std::pair<const char *, QByteArray>> pages = {
        {"a.htm", "Hello"}, {"b.html", "hello"}, {"c.htm", "bye\r\n"},
        {"d.htm", "say HELLO, then hello\r\nand Caf\xc3\xa9"}, {"e.htm", "Caf\xe9 hello"}, {"f.txt", "hello"}};
    for (const char *copy : {"ui", "cli"}) {
        for (const auto &[name, bytes] : pages)
            m_env->write(QStringLiteral("%1/%2").arg(QLatin1String(copy), QLatin1String(name)), bytes);
    }
    if (!QFileInfo::exists(m_env->ini()))
        m_env->write(QStringLiteral("quillery.ini"), "");
    auto cli = [&](const QStringList &arguments) {
        QProcess p;
        p.start(QStringLiteral(PROGRAM_DATA_DIR "/quillery-cli"), QStringList{QStringLiteral("--ini"), m_env->ini()} + arguments);
        p.waitForFinished(60000);
        return QString::fromLocal8Bit(p.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    };
    QVERIFY(m_main->commands().run(QStringLiteral("EditMFReplace")));
    frmGrep *g = m_main->findChild<frmGrep *>();
    g->addEntry(m_env->path(QStringLiteral("ui/*.htm")));
    g->addEntry(m_env->path(QStringLiteral("ui/*.txt")));
    g->grid()->setCurrentCell(0, 0);
    for (const QString &term : {QStringLiteral("HELLO"), QStringLiteral("Howdy")}) {
        QTest::keyClicks(g->termField(), term);
        QTest::mouseClick(g->findChild<QPushButton *>(QStringLiteral("cmdOptions")), Qt::LeftButton);
        g->termField()->clear();
    }
    QTest::mouseClick(g->findChild<QPushButton *>(QStringLiteral("btnFind")), Qt::LeftButton);
    QTRY_VERIFY(g->filesFound()->isVisible());
    QStringList shown;
    for (int i = 0; i < g->filesFound()->list()->count(); ++i) {
        const QString line = g->filesFound()->list()->item(i)->text();
        if (!line.isEmpty() && !line.startsWith(u'-'))
            shown << QDir(m_env->path(QStringLiteral("ui"))).relativeFilePath(line);
    }
    QStringList printed;
    for (const QString &line : cli({QStringLiteral("find"), QStringLiteral("-e"), QStringLiteral("HELLO"),
                                    m_env->path(QStringLiteral("cli/*.htm")), m_env->path(QStringLiteral("cli/*.txt"))}))
        printed << QDir(m_env->path(QStringLiteral("cli"))).relativeFilePath(line);
    QCOMPARE(shown, (QStringList{QStringLiteral("a.htm"), QStringLiteral("d.htm"), QStringLiteral("e.htm"), QStringLiteral("f.txt")}));
    QCOMPARE(printed, shown);

    QTest::mouseClick(g->findChild<QPushButton *>(QStringLiteral("btnReplace")), Qt::LeftButton);
    QTRY_VERIFY(m_prompts->texts().contains(QStringLiteral("5 replacements made\r\n\r\n5 files processed.")));
    cli({QStringLiteral("replace"), QStringLiteral("-e"), QStringLiteral("HELLO"), QStringLiteral("Howdy"),
         m_env->path(QStringLiteral("cli/*.htm")), m_env->path(QStringLiteral("cli/*.txt"))});
    for (const auto &[name, bytes] : pages) {
        const QString n = QLatin1String(name);
        QCOMPARE(m_env->read(QStringLiteral("ui/") + n), m_env->read(QStringLiteral("cli/") + n));
    }
    QCOMPARE(m_env->read(QStringLiteral("ui/e.htm")), QByteArray("Caf\xe9 Howdy"));
    QCOMPARE(m_env->read(QStringLiteral("ui/b.html")), QByteArray("hello"));
}

QTEST_MAIN(tst_frmFind)
#include "tst_frmfind.moc"
