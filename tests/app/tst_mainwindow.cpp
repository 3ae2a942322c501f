// The real main window with real document windows, offscreen.
#include "core/Globals.h"
#include "core/Settings.h"
#include "core/Feedback.h"
#include "core/StatusText.h"
#include "core/ui/CommandTable.h"
#include "app/MainWindow.h"
#include "core/ui/StatusPanels.h"
#include "documents/DocumentList.h"
#include "documents/ui/DocumentWindow.h"
#include "documents/ui/ScintillaEdit.h"
#include "markup/CharacterCodes.h"
#include "markup/CharacterCommands.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <Qsci/qscicommandset.h>
#include <Qsci/qsciscintilla.h>

#include <QAction>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QtTest>

using namespace qly;
using documents::ui::DocumentWindow;

class tst_MainWindow : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void windowKindAndSettingsFollowTheConfiguration();
    void openedFileShowsItsTextAndPosition();
    void closeAsksAboutChangedDocuments();
    void commandsReachTheActiveDocument();
    void statusTextClearsAfterFourSeconds();
    void closeDuringStartupWaitsForTheStep();
    void everyKeyHasOneOwner();
    void windowMenuListsTheDocuments();
    void captionMarksUnsavedChanges();
    void keysDriveThePanelsAndTheTypingHook();
    void secondWindowAndTabsWhileLoading();

private:
    std::unique_ptr<test::TestEnv> m_env;
    std::unique_ptr<test::ScriptedPrompts> m_prompts;
    std::unique_ptr<app::frmMain> m_main;
};

void tst_MainWindow::init()
{
    m_env = std::make_unique<test::TestEnv>();
    m_prompts = std::make_unique<test::ScriptedPrompts>();
    m_main = test::showMainWindow();
}

void tst_MainWindow::cleanup()
{
    test::closeMainWindow(m_main);
    m_prompts.reset();
    m_env.reset();
}

void tst_MainWindow::windowKindAndSettingsFollowTheConfiguration()
{
    core::WriteSetting(QStringLiteral("Display"), QStringLiteral("WordWrap"), QStringLiteral("Yes"));
    core::WriteSetting(QStringLiteral("Editing"), QStringLiteral("Font Size"), QStringLiteral("14"));
    auto *sax = dynamic_cast<DocumentWindow *>(documents::CreateDocumentWindow());
    QVERIFY(sax);
    QCOMPARE(sax->kindName(), QStringLiteral("frmDocSax"));
    QVERIFY(sax->txtDoc().WordWrap());
    QCOMPARE(sax->txtDoc().FontName(), QStringLiteral("MS Sans Serif"));
    QCOMPARE(sax->txtDoc().FontSize(), 14);
    QCOMPARE(sax->txtDoc().ColorMode(), platform::ColorOff);
    QCOMPARE(sax->windowState(), 0);

    core::WriteSetting(QStringLiteral("Display"), QStringLiteral("Explorer Internal"), QStringLiteral("yes"));
    core::WriteSetting(QStringLiteral("Editing"), QStringLiteral("Always Maximize"), QStringLiteral("Yes"));
    core::gColorHTML = true;
    core::WriteSetting(QStringLiteral("Editing"), QStringLiteral("Quick Color"), QStringLiteral("1"));
    auto *web = dynamic_cast<DocumentWindow *>(documents::CreateDocumentWindow());
    QCOMPARE(web->kindName(), QStringLiteral("frmDocWeb"));
    QCOMPARE(web->windowState(), 2);
    // "1" as the status bar writes it reads as off: entire tags.
    QCOMPARE(web->txtDoc().ColorMode(), platform::ColorEntireTags);
    QCOMPARE(m_main->documentList().size(), 2);
    QCOMPARE(m_main->activeDocument(), web);
    core::gLoadingDocument = false;
}

void tst_MainWindow::openedFileShowsItsTextAndPosition()
{
    const QString file = m_env->write(QStringLiteral("page.html"), "<HTML>\r\n<BODY>caf\xe9</BODY>\r\n</HTML>\r\n");
    QVERIFY(documents::OpenDocumentFile(file));
    QVERIFY(!core::gLoadingDocument);
    auto *doc = dynamic_cast<DocumentWindow *>(m_main->activeDocument());
    QVERIFY(doc);
    QCOMPARE(doc->caption(), file);
    QCOMPARE(doc->LocalFileName, file);
    QVERIFY(doc->IsSaved());
    QCOMPARE(doc->txtDoc().Text(), QStringLiteral("<HTML>\r\n<BODY>café</BODY>\r\n</HTML>\r\n"));
    QVERIFY(!doc->txtDoc().Dirty());
    QVERIFY(doc->filenum != 0);
    doc->txtDoc().setSelStart(12);
    QCOMPARE(m_main->statusPanels().panel(QStringLiteral("Line"))->text(), QStringLiteral("Ln:2 Chr:5"));
    QCOMPARE(documents::SessionEntry(*doc).section(u',', 0, 1), file + QStringLiteral(",0"));
    // Keys of the editor's commands reach the commands, not the control's own bindings.
    QsciCommandSet *own = doc->edit()->view()->standardCommands();
    QVERIFY(!own->boundTo(QKeySequence(QKeySequence::Underline)[0].toCombined()));
    QVERIFY(!own->boundTo(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_L)[0].toCombined()));
    QVERIFY(own->boundTo(QKeySequence(Qt::CTRL | Qt::Key_L)[0].toCombined()));

    // A missing file: the box, and no window.
    QVERIFY(!documents::OpenDocumentFile(m_env->path(QStringLiteral("gone.html"))));
    QCOMPARE(m_prompts->texts().last(), m_env->path(QStringLiteral("gone.html")) + QStringLiteral(": File not found."));
    QCOMPARE(m_main->documentList().size(), 1);
}

void tst_MainWindow::closeAsksAboutChangedDocuments()
{
    const QString file = m_env->write(QStringLiteral("a.html"), "abc");
    QVERIFY(documents::OpenDocumentFile(file));
    auto *doc = dynamic_cast<DocumentWindow *>(m_main->activeDocument());
    doc->txtDoc().setSelStart(3);
    doc->txtDoc().setSelText(QStringLiteral("d"));

    m_prompts->answer(platform::Answer::Cancel);
    m_main->mdiArea()->currentSubWindow()->close();
    QCOMPARE(m_main->documentList().size(), 1);
    QCOMPARE(m_prompts->texts().last(), QStringLiteral("Do you want to save ") + file + u'?');

    m_prompts->answer(platform::Answer::Yes);
    m_main->commands().run(QStringLiteral("mnuClose"));
    QCOMPARE(m_main->documentList().size(), 0);
    QCOMPARE(m_env->read(file), QByteArray("abcd"));
    QCOMPARE(m_prompts->unanswered, 0);
}

void tst_MainWindow::commandsReachTheActiveDocument()
{
    QVERIFY(m_main->commands().run(QStringLiteral("EditSelectAll")));   // no document: nothing happens
    const QString file = m_env->write(QStringLiteral("b.html"), "<B>x</B>");
    QVERIFY(documents::OpenDocumentFile(file));
    platform::HTMLEdit &e = m_main->activeDocument()->txtDoc();
    QVERIFY(m_main->commands().run(QStringLiteral("EditSelectAll")));
    QCOMPARE(e.SelText(), QStringLiteral("<B>x</B>"));
    e.setSelStart(1);
    QVERIFY(m_main->commands().run(QStringLiteral("EditSelectTag")));
    QCOMPARE(e.SelText(), QStringLiteral("<B>"));
    e.setSelText(QStringLiteral("<I>"));
    QVERIFY(m_main->commands().run(QStringLiteral("EditUndo")));
    QCOMPARE(e.Text(), QStringLiteral("<B>x</B>"));
    QVERIFY(m_main->commands().run(QStringLiteral("mnuSave")));
    QCOMPARE(m_env->read(file), QByteArray("<B>x</B>"));
    QVERIFY(!e.Dirty());

    // Drop Caps on an empty line of the real buffer leaves its CR LF whole.
    e.setText(QStringLiteral("a\r\n\r\nb"));
    e.setSelStart(3);
    QVERIFY(m_main->commands().run(QStringLiteral("FormatDropCaps")));
    QCOMPARE(e.Text(), QStringLiteral("a\r\n<FONT SIZE=+2></FONT>\r\nb"));
}

void tst_MainWindow::statusTextClearsAfterFourSeconds()
{
    core::StatusText &status = core::StatusText::instance();
    core::ShowStatus(QStringLiteral("Working"));
    QCOMPARE(m_main->statusPanels().panel(QStringLiteral("Status"))->text(), QStringLiteral("Working"));
    QVERIFY(status.clearPending());
    core::ShowStatus(QStringLiteral("WORKING"));   // the same text in another case changes nothing
    QCOMPARE(status.text(), QStringLiteral("Working"));
    QTRY_COMPARE_WITH_TIMEOUT(m_main->statusPanels().panel(QStringLiteral("Status"))->text(), QString(), 6000);
    QVERIFY(!status.clearPending());
}

void tst_MainWindow::closeDuringStartupWaitsForTheStep()
{
    const QString file = m_env->write(QStringLiteral("c.html"), "c");
    QVERIFY(documents::OpenDocumentFile(file));
    m_main->activeDocument()->txtDoc().setSelText(QStringLiteral("x"));
    m_main->setStartingUp(true);

    // Before start-up has passed, the close is refused with its box.
    core::gStartupPassed = false;
    m_main->close();
    QCOMPARE(m_prompts->texts().last(), QStringLiteral(
        "Quillery has not yet finished its startup process. Please try again in a few seconds "));
    QVERIFY(!m_main->runPendingClose());
    QVERIFY(m_main->isVisible());

    // Later, it waits for the step at hand and then asks as usual: a cancel
    // keeps everything, and a second close ends the program.
    core::gStartupPassed = true;
    const qsizetype shown = m_prompts->shown.size();
    m_main->close();
    QVERIFY(m_main->isVisible());
    QCOMPARE(m_prompts->shown.size(), shown);
    m_prompts->answer(platform::Answer::Cancel);
    QVERIFY(!m_main->runPendingClose());
    QCOMPARE(m_prompts->texts().last(), QStringLiteral("Do you want to save ") + file + u'?');
    QCOMPARE(m_main->documentList().size(), 1);
    QVERIFY(!m_main->unloaded());

    m_main->close();
    m_prompts->answer(platform::Answer::No);
    QVERIFY(m_main->runPendingClose());
    QVERIFY(m_main->unloaded());
    QCOMPARE(m_main->documentList().size(), 0);
    QCOMPARE(m_env->read(file), QByteArray("c"));
}

void tst_MainWindow::everyKeyHasOneOwner()
{
    QVERIFY(documents::OpenDocumentFile(m_env->write(QStringLiteral("a.html"), "a")));
    QVERIFY(documents::OpenDocumentFile(m_env->write(QStringLiteral("b.html"), "b")));
    m_main->activeDocument()->setWindowState(2);   // maximized, its frame's menu sits in the menu bar
    // Every action of every widget, the document frames' own menus included.
    QSet<QAction *> actions;
    const auto add = [&actions](const QList<QAction *> &list) {
        for (QAction *a : list)
            actions.insert(a);
    };
    add(m_main->findChildren<QAction *>());
    for (QWidget *w : QApplication::allWidgets())
        add(w->actions());
    for (QMdiSubWindow *sub : m_main->mdiArea()->subWindowList())
        add(sub->systemMenu()->actions());
    QMultiHash<QString, QString> owners;
    for (QAction *a : std::as_const(actions)) {
        for (const QKeySequence &key : a->shortcuts())
            owners.insert(key.toString(), a->objectName() + a->text());
    }
    QVERIFY(owners.size() > 20);
    for (const QString &key : owners.uniqueKeys())
        QVERIFY2(owners.count(key) == 1, qPrintable(key + u' ' + owners.values(key).join(u',')));

    // Ctrl+W typed in the page closes that document, without a doubt about the key.
    QApplication::setActiveWindow(m_main.get());
    QVERIFY(m_main->isAncestorOf(QApplication::focusWidget()));
    const QString closing = m_main->activeDocument()->caption();
    QTest::failOnWarning(QRegularExpression(QStringLiteral("Ambiguous shortcut")));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(m_main->documentList().size(), 1);
    QVERIFY(m_main->documentList().first()->caption() != closing);
}

void tst_MainWindow::windowMenuListsTheDocuments()
{
    auto *menu = m_main->findChild<QMenu *>(QStringLiteral("Window"));
    const auto entries = [menu] {   // the entries behind the fixed ones, as the menu opens
        emit menu->aboutToShow();
        QList<QAction *> out;
        for (QAction *a : menu->actions())
            if (a->objectName().startsWith(QLatin1String("mnuWindowList")))
                out << a;
        return out;
    };
    QVERIFY(entries().isEmpty());
    const QString a = m_env->write(QStringLiteral("a.html"), "a");
    const QString b = m_env->write(QStringLiteral("b&c.html"), "b");
    QVERIFY(documents::OpenDocumentFile(a));
    QVERIFY(documents::OpenDocumentFile(b));
    QList<QAction *> list = entries();
    QCOMPARE(list.size(), 2);
    QCOMPARE(list[0]->text(), QStringLiteral("&1 ") + a);
    QCOMPARE(list[1]->text(), QStringLiteral("&2 ") + QString(b).replace(u'&', QLatin1String("&&")));
    QVERIFY(!list[0]->isChecked() && list[1]->isChecked());

    list[0]->trigger();
    QCOMPARE(m_main->activeDocument()->caption(), a);
    list = entries();
    QVERIFY(list[0]->isChecked() && !list[1]->isChecked());
    m_main->commands().run(QStringLiteral("mnuClose"));
    QCOMPARE(entries().size(), 1);
}

void tst_MainWindow::captionMarksUnsavedChanges()
{
    const QString file = m_env->write(QStringLiteral("page.html"), "text");
    QVERIFY(documents::OpenDocumentFile(file));
    documents::Document *doc = m_main->activeDocument();
    QMdiSubWindow *sub = m_main->mdiArea()->currentSubWindow();
    QVERIFY(sub->windowTitle().contains(QLatin1String("[*]")) && !sub->isWindowModified());
    doc->txtDoc().setSelText(QStringLiteral("!"));
    QVERIFY(sub->isWindowModified());
    QCOMPARE(doc->caption(), file);   // prompts and the session see the name alone
    QVERIFY(m_main->commands().run(QStringLiteral("mnuSave")));
    QVERIFY(!sub->isWindowModified());

    // Save As writes the file but leaves the document counted as changed:
    // the mark stays, and the exit will ask about it.
    doc->txtDoc().setSelText(QStringLiteral("?"));
    const QString other = m_env->path(QStringLiteral("other.html"));
    m_prompts->chooseFiles({other});
    QVERIFY(m_main->commands().run(QStringLiteral("mnuSaveAs")));
    QCOMPARE(m_env->read(other), QByteArray("!?text"));
    QVERIFY(sub->windowTitle().startsWith(other) && sub->isWindowModified());
}

namespace {

void send(QWidget *to, QEvent::Type type, int key, const QString &text = {}, quint32 nativeModifiers = 0)
{
    QKeyEvent event(type, key, Qt::NoModifier, 0, 0, nativeModifiers, text);
    QApplication::sendEvent(to, &event);
}

} // namespace

void tst_MainWindow::keysDriveThePanelsAndTheTypingHook()
{
    m_env->write(QStringLiteral("character.inf"), "233;&eacute;e acute\r\n188;&frac14;one quarter\r\n");
    markup::LoadCharacterCodes();
    QVERIFY(documents::OpenDocumentFile(m_env->write(QStringLiteral("sax.html"), "")));
    auto *sax = dynamic_cast<DocumentWindow *>(m_main->activeDocument());
    QsciScintilla *view = sax->edit()->view();
    QLabel *ins = m_main->statusPanels().panel(QStringLiteral("Ins"));
    QLabel *num = m_main->statusPanels().panel(QStringLiteral("Num"));

    // Every key counts as activity, also with translation off.
    const QDateTime before = QDateTime::currentDateTime();
    QTest::keyClick(view, Qt::Key_A, Qt::NoModifier);
    QVERIFY(markup::lastKeyTime() >= before);
    QCOMPARE(sax->txtDoc().Text(), QStringLiteral("a"));

    // Insert toggles overwrite in the control, and the panel says so.
    QTest::keyClick(view, Qt::Key_Insert);
    QVERIFY(view->overwriteMode());
    QCOMPARE(ins->text(), QStringLiteral("OVR"));
    QTest::keyClick(view, Qt::Key_Insert);
    QCOMPARE(ins->text(), QStringLiteral("INS"));

    // NUM follows the lock state that key events carry (Mod2 on X11).
    send(view, QEvent::KeyRelease, Qt::Key_Shift, {}, 0x10);
    QCOMPARE(num->text(), QStringLiteral("NUM"));
    send(view, QEvent::KeyPress, Qt::Key_NumLock, {}, 0x10);
    QCOMPARE(num->text(), QString());

    // Typed, composed by dead keys or an input method: the entity goes in.
    core::gTranslateWhileTyping = true;
    send(view, QEvent::KeyPress, Qt::Key_Eacute, QStringLiteral("\u00e9"));
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("x\u00e9"));
    QApplication::sendEvent(view, &composed);
    QCOMPARE(sax->txtDoc().Text(), QStringLiteral("a&eacute;x&eacute;"));
    // In this window kind the key going up is no character.
    QTest::keyClick(view, Qt::Key_Comma);
    QCOMPARE(sax->txtDoc().Text(), QStringLiteral("a&eacute;x&eacute;,"));

    // The other kind passes the key's code through the hook as it goes up:
    // "," is 188 there, a row of the table.
    core::WriteSetting(QStringLiteral("Display"), QStringLiteral("Explorer Internal"), QStringLiteral("Yes"));
    QVERIFY(documents::OpenDocumentFile(m_env->write(QStringLiteral("web.html"), "")));
    auto *web = dynamic_cast<DocumentWindow *>(m_main->activeDocument());
    QCOMPARE(web->kindName(), QStringLiteral("frmDocWeb"));
    QTest::keyClick(web->edit()->view(), Qt::Key_Comma);
    QCOMPARE(web->txtDoc().Text(), QStringLiteral(",&frac14;"));
    core::gTranslateWhileTyping = false;
}

void tst_MainWindow::secondWindowAndTabsWhileLoading()
{
    const QString file = m_env->write(QStringLiteral("twice.html"), "<P>x</P>");
    QVERIFY(documents::OpenDocumentFile(file));
    QVERIFY(documents::OpenDocumentFile(file));
    auto *second = dynamic_cast<DocumentWindow *>(m_main->activeDocument());
    QCOMPARE(second->caption(), file + QStringLiteral(":2"));
    QCOMPARE(second->windowTitle(), file + QStringLiteral(":2[*]"));   // the change mark shows only when changed

    // A tab switch while a document loads does not fill the preview.
    core::gLoadingDocument = true;
    second->selectTab(1);
    core::gLoadingDocument = false;
    QCOMPARE(second->currentTab(), 1);
    QVERIFY(second->scoutFile().isEmpty());
}

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
