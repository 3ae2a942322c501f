// Where the editor's windows come up, on the real main window offscreen:
// message boxes above the splash, document windows inside the workspace,
// the special characters list beside the page.
#include "app/MainWindow.h"
#include "core/Globals.h"
#include "core/Settings.h"
#include "core/ui/Twips.h"
#include "documents/DocumentList.h"
#include "documents/ui/DocumentWindow.h"
#include "documents/ui/ScintillaEdit.h"
#include "markup/ui/frmEntities.h"
#include "platform/ui/QtPrompts.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <Qsci/qsciscintilla.h>

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QTreeWidget>
#include <QtTest>

using namespace qly;
using documents::ui::DocumentWindow;

class tst_WindowPlacement : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void startupBoxClosesTheSplash();
    void newAndRestoredWindowsStayInsideTheWorkspace();
    void alwaysMaximizeRestoresOneMaximisedWindowAtATime();
    void specialCharactersOpenBesideThePageAndGiveBackTheKeyboard();

private:
    QRect area() const { return m_main->findChild<QMdiArea *>()->viewport()->rect(); }
    QList<QMdiSubWindow *> windows() const { return m_main->findChild<QMdiArea *>()->subWindowList(); }
    // A session entry: path, state, width, height, left, top in twips.
    QString sessionEntry(const QString &path, int state, const QRect &pixels) const;

    std::unique_ptr<test::TestEnv> m_env;
    std::unique_ptr<test::ScriptedPrompts> m_prompts;
    std::unique_ptr<app::frmMain> m_main;
};

void tst_WindowPlacement::init()
{
    m_env = std::make_unique<test::TestEnv>();
    m_prompts = std::make_unique<test::ScriptedPrompts>();
    m_main = test::showMainWindow();
    QVERIFY(QTest::qWaitForWindowExposed(m_main.get()));
}

void tst_WindowPlacement::cleanup()
{
    if (auto *list = markup::ui::frmEntities::instance())
        delete list;
    test::closeMainWindow(m_main);
    m_prompts.reset();
    m_env.reset();
}

QString tst_WindowPlacement::sessionEntry(const QString &path, int state, const QRect &pixels) const
{
    const QRect t = core::ui::toTwips(pixels, m_main.get());
    return QStringLiteral("%1,%2,%3,%4,%5,%6,0").arg(path).arg(state).arg(t.width()).arg(t.height()).arg(t.left()).arg(t.top());
}

void tst_WindowPlacement::startupBoxClosesTheSplash()
{
    QWidget splash(nullptr, Qt::SplashScreen | Qt::WindowStaysOnTopHint);
    splash.setObjectName(QStringLiteral("frmSplash"));
    splash.show();
    platform::ui::QtPrompts prompts(m_main.get());
    bool splashUpWhileAsked = true;
    QTimer::singleShot(0, this, [&] {
        splashUpWhileAsked = splash.isVisible();
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            box->accept();
    });
    prompts.message(QStringLiteral("Quillery"), QStringLiteral("Error retrieving x: File not found."),
                    platform::Buttons::Ok, platform::Icon::Critical);
    QVERIFY(!splashUpWhileAsked);
}

void tst_WindowPlacement::newAndRestoredWindowsStayInsideTheWorkspace()
{
    // New windows, one after another, each wholly inside.
    for (int i = 0; i < 5; ++i) {
        QVERIFY(documents::CreateDocumentWindow());
        core::gLoadingDocument = false;
    }
    for (QMdiSubWindow *sub : windows())
        QVERIFY(area().contains(sub->geometry()));
    for (documents::Document *d : m_main->documentList())
        m_main->unloadDocument(d);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    // Restored windows from a larger screen are brought inside; one that
    // fits keeps its place.
    const QString page = m_env->write(QStringLiteral("a.html"), "<P>a</P>");
    QVERIFY(documents::OpenDocumentFile(sessionEntry(page, 0, QRect(1400, 900, 800, 600))));
    QVERIFY(documents::OpenDocumentFile(sessionEntry(page, 0, QRect(-300, -50, 2500, 300))));
    QVERIFY(documents::OpenDocumentFile(sessionEntry(page, 0, QRect(20, 30, 300, 200))));
    QCOMPARE(windows().size(), 3);
    for (QMdiSubWindow *sub : windows())
        QVERIFY(area().contains(sub->geometry()));
    QCOMPARE(windows().at(2)->geometry(), QRect(20, 30, 300, 200));
}

void tst_WindowPlacement::alwaysMaximizeRestoresOneMaximisedWindowAtATime()
{
    core::WriteSetting(QStringLiteral("Editing"), QStringLiteral("Always Maximize"), QStringLiteral("Yes"));
    const QString page = m_env->write(QStringLiteral("b.html"), "<P>b</P>");
    for (int i = 0; i < 3; ++i)
        QVERIFY(documents::OpenDocumentFile(sessionEntry(page, 0, QRect(40 * i, 30 * i, 500, 400))));
    QCoreApplication::processEvents();
    QMdiSubWindow *active = m_main->findChild<QMdiArea *>()->activeSubWindow();
    QVERIFY(active && active->isMaximized());
    QCOMPARE(active->geometry(), area());
    // It stands over the others, and every window keeps the whole area.
    QCOMPARE(m_main->findChild<QMdiArea *>()->subWindowList(QMdiArea::StackingOrder).last(), active);
    for (QMdiSubWindow *sub : windows())
        QVERIFY(area().contains(sub->geometry()));
}

void tst_WindowPlacement::specialCharactersOpenBesideThePageAndGiveBackTheKeyboard()
{
    QVERIFY(QFile::copy(QStringLiteral(TEST_DATA_DIR "/../../data/character.inf"), m_env->path(QStringLiteral("character.inf"))));
    m_main->activateWindow();
    const QString page = m_env->write(QStringLiteral("c.html"), "<P>x</P>");
    QVERIFY(documents::OpenDocumentFile(page));
    auto *doc = dynamic_cast<DocumentWindow *>(m_main->activeDocument());
    QVERIFY(doc);

    auto *list = markup::ui::frmEntities::showList(m_main.get());
    QVERIFY(list);
    const QRect menuBar(m_main->menuBar()->mapToGlobal(QPoint(0, 0)), m_main->menuBar()->size());
    const QRect page_(doc->mapToGlobal(QPoint(0, 0)), doc->size());
    const QRect placed = list->frameGeometry();
    QVERIFY(!placed.intersects(menuBar));
    QVERIFY(placed.top() >= page_.top());
    QVERIFY(list->screen()->availableGeometry().contains(list->geometry()));

    // A double click inserts and hands the keyboard back to the page.
    list->activateWindow();
    list->list()->setFocus();
    QTreeWidgetItem *item = list->list()->topLevelItem(0);
    list->list()->setCurrentItem(item);
    emit list->list()->itemDoubleClicked(item, 0);
    QVERIFY(doc->txtDoc().Text().startsWith(QStringLiteral("&nbsp;")));
    QTRY_VERIFY(doc->edit()->view()->hasFocus());

    // A stored place off every screen is not used.
    list->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    core::WriteSetting(QStringLiteral("Display"), QStringLiteral("Chars List Left"), QStringLiteral("900000"));
    core::WriteSetting(QStringLiteral("Display"), QStringLiteral("Chars List Top"), QStringLiteral("900000"));
    list = markup::ui::frmEntities::showList(m_main.get());
    QVERIFY(list->screen()->availableGeometry().contains(list->geometry()));
}

QTEST_MAIN(tst_WindowPlacement)
#include "tst_windowplacement.moc"
