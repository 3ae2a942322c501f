#include "core/Globals.h"
#include "documents/Workspace.h"
#include "core/ui/CommandTable.h"
#include "core/ui/StartupSteps.h"
#include "app/MainWindow.h"
#include "documents/AutoSave.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "documents/RecentFiles.h"
#include "documents/ui/DocumentWindow.h"
#include "documents/ui/FileLifecycle.h"
#include "documents/ui/ScintillaEdit.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <Qsci/qsciscintilla.h>

#include <QAction>
#include <QFontDatabase>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTimer>
#include <QtTest>

using namespace qly;

// The file lifecycle in the real main window with the real edit control.
class tst_FileWindow : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void roundTripIsByteExact_data();
    void roundTripIsByteExact();
    void recentEntriesInTheFileMenu();
    void startupDocumentAndTimer();
    void droppedFiles();
    void fontTheDesktopLacks();

private:
    std::unique_ptr<test::TestEnv> m_env;
    std::unique_ptr<test::ScriptedPrompts> m_prompts;
    std::unique_ptr<app::frmMain> m_window;
};

void tst_FileWindow::init()
{
    m_env = std::make_unique<test::TestEnv>();
    m_prompts = std::make_unique<test::ScriptedPrompts>();
    m_window = test::showMainWindow({1000, 800});
}

void tst_FileWindow::cleanup()
{
    test::closeMainWindow(m_window);
    documents::documentHooks() = {};
    documents::recentFileView() = nullptr;
    documents::autoSaveTimerSwitch() = nullptr;
    m_prompts.reset();
    m_env.reset();
}

void tst_FileWindow::roundTripIsByteExact_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QByteArray binary;
    for (int round = 0; round < 64; ++round) {
        for (int b = 0; b < 256; ++b)
            binary += char(b);
        binary += QByteArray(17, '\0');
    }
    QTest::newRow("binary, all bytes and NULs") << binary;
    QByteArray big;
    const QByteArray line = "<TR><TD>row</TD><TD>caf\xc3\xa9 \xe2\x82\xac</TD></TR>\r\n";
    big.reserve(50 * 1024 * 1024 + line.size());
    while (big.size() < 50 * 1024 * 1024)
        big += line;
    QTest::newRow("50 MB page") << big;
}

void tst_FileWindow::roundTripIsByteExact()
{
    QFETCH(QByteArray, bytes);
    const QString path = m_env->write(QStringLiteral("file.htm"), bytes);
    QVERIFY(documents::OpenDocumentFile(path));
    documents::Document *doc = documents::Workspace::CurrentDocument();
    QVERIFY(doc);
    QVERIFY(dynamic_cast<documents::ui::ScintillaEdit *>(&doc->txtDoc()));
    QVERIFY(!doc->txtDoc().Dirty());

    // Saved as it stands, and again after an edit that is undone.
    QVERIFY(doc->Save());
    QVERIFY(m_env->read(path) == bytes);
    doc->txtDoc().SetSel(0, 0);
    doc->txtDoc().setSelText(QStringLiteral("x"));
    QVERIFY(doc->txtDoc().Dirty());
    doc->txtDoc().Undo();
    QVERIFY(doc->Save());
    QVERIFY(!doc->txtDoc().Dirty());
    QVERIFY(m_env->read(path) == bytes);
    QCOMPARE(m_prompts->shown.size(), 0);
}

void tst_FileWindow::recentEntriesInTheFileMenu()
{
    core::ui::CommandTable &commands = m_window->commands();
    QAction *first = commands.action(QStringLiteral("FileRecent1"));
    QVERIFY(first && !first->isVisible());
    QMenu *file = m_window->menuBar()->findChild<QMenu *>(QStringLiteral("mnuFile"));
    QVERIFY(file);
    const QList<QAction *> items = file->actions();
    const qsizetype exit = items.indexOf(commands.action(QStringLiteral("mnuExit")));
    QVERIFY(items.at(exit - 1)->isSeparator());
    QCOMPARE(items.at(exit - 2), commands.action(QStringLiteral("FileRecent4")));
    QCOMPARE(items.at(exit - 5), first);

    const QString path = m_env->write(QStringLiteral("seen.htm"), "x");
    QVERIFY(documents::OpenDocumentFile(path));
    QVERIFY(first->isVisible());
    QCOMPARE(first->text(), QStringLiteral("&1 ") + documents::ShortenPath(path));
    QVERIFY(!commands.action(QStringLiteral("FileRecent2"))->isVisible());

    // The entry opens its file again, in a second window.
    first->trigger();
    QCOMPARE(m_window->documentList().size(), 2);
    QCOMPARE(m_window->documentList().last()->LocalFileName, path);
}

void tst_FileWindow::startupDocumentAndTimer()
{
    using core::ui::StartupStep;
    core::ui::StartupSteps &steps = m_window->startupSteps();
    QVERIFY(steps.has(StartupStep::NewDocument) && steps.has(StartupStep::MainWindowLoaded)
            && steps.has(StartupStep::RecentFiles));
    steps.run(StartupStep::NewDocument);
    documents::Document *doc = documents::Workspace::CurrentDocument();
    QVERIFY(doc);
    QCOMPARE(doc->caption(), QStringLiteral("Untitled-1"));
    QCOMPARE(m_window->mdiArea()->activeSubWindow()->size(), QSize(500, 400));

    steps.run(StartupStep::MainWindowLoaded);
    auto *timer = m_window->findChild<QTimer *>(QStringLiteral("timAutoSave"));
    QVERIFY(timer);
    QCOMPARE(timer->interval(), 60000);
    QVERIFY(timer->isActive());
}

void tst_FileWindow::droppedFiles()
{
    const QString page = m_env->write(QStringLiteral("site/page.htm"), "<BODY></BODY>");
    const QString image = m_env->write(QStringLiteral("site/img/logo.gif"), "GIF89a");
    auto drop = [](QWidget *target, const QString &file) {
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent enter(QPoint(20, 20), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent event(QPointF(20, 20), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &event);
        QCoreApplication::processEvents();
        return event.isAccepted();
    };

    // Onto the main window: the file opens.
    QVERIFY(drop(m_window.get(), page));
    QCOMPARE(m_window->documentList().size(), 1);
    auto *doc = dynamic_cast<documents::ui::DocumentWindow *>(m_window->documentList().first());
    QCOMPARE(doc->LocalFileName, page);

    // Onto the document: an image tag at the caret, relative to the page.
    doc->txtDoc().SetSel(6, 6);
    QVERIFY(drop(doc->edit()->view()->viewport(), image));
    QCOMPARE(doc->txtDoc().Text(), QStringLiteral("<BODY><IMG SRC=\"img/logo.gif\"></BODY>"));
    QVERIFY(doc->txtDoc().Dirty());
    QCOMPARE(m_window->documentList().size(), 1);
}

void tst_FileWindow::fontTheDesktopLacks()
{
    // Older settings name "MS Sans Serif", which Linux desktops lack; the
    // face matched for it is measured one way and drawn another, so the
    // desktop's fixed font stands in. The setting itself is kept.
    documents::Document *doc = documents::CreateDocumentWindow();
    core::gLoadingDocument = false;
    auto *window = dynamic_cast<documents::ui::DocumentWindow *>(doc);
    QVERIFY(!QFontDatabase::hasFamily(QStringLiteral("MS Sans Serif")));
    doc->txtDoc().SetFontAndSize(QStringLiteral("MS Sans Serif"), 12);
    QCOMPARE(doc->txtDoc().FontName(), QStringLiteral("MS Sans Serif"));
    const QFont shown = window->edit()->view()->font();
    QCOMPARE(shown.family(), QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    QCOMPARE(shown.pointSize(), 12);
    // A family the desktop has is used as it is.
    const QString present = QFontDatabase::families().value(0);
    doc->txtDoc().SetFontAndSize(present, 11);
    QCOMPARE(window->edit()->view()->font().family(), present);
}

QTEST_MAIN(tst_FileWindow)
#include "tst_filewindow.moc"
