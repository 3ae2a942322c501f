// Keyboard shortcuts of the real main window: every key belongs to one action,
// and the keys shown in the menus do what the menus say.
#include "app/MainWindow.h"
#include "core/ui/CommandTable.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "documents/Workspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMultiHash>
#include <QSet>
#include <QtTest>

using namespace qly;

class tst_Shortcuts : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void everyKeyBelongsToOneAction();
    void ctrlWClosesTheActiveDocument();

private:
    std::unique_ptr<test::TestEnv> m_env;
    std::unique_ptr<test::ScriptedPrompts> m_prompts;
    std::unique_ptr<app::frmMain> m_main;
};

void tst_Shortcuts::init()
{
    m_env = std::make_unique<test::TestEnv>();
    m_prompts = std::make_unique<test::ScriptedPrompts>();
    m_main = std::make_unique<app::frmMain>();
    documents::Workspace::setInstance(m_main.get());
    m_main->resize(900, 700);
    m_main->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_main.get()));
}

void tst_Shortcuts::cleanup()
{
    for (documents::Document *d : m_main->documentList())
        m_main->unloadDocument(d);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_main.reset();
    m_prompts.reset();
    m_env.reset();
}

void tst_Shortcuts::everyKeyBelongsToOneAction()
{
    // Two documents, so that the document windows' own actions are there too.
    QVERIFY(documents::OpenDocumentFile(m_env->write(QStringLiteral("a.html"), "a")));
    QVERIFY(documents::OpenDocumentFile(m_env->write(QStringLiteral("b.html"), "b")));
    m_main->activeDocument()->setWindowState(2);   // a maximized window shows its own menu in the bar

    // Every action the window can reach: its own children, every widget's
    // actions, and the system menus of the document windows.
    QSet<QAction *> actions;
    for (QAction *a : m_main->findChildren<QAction *>())
        actions.insert(a);
    for (QWidget *w : QApplication::allWidgets()) {
        for (QAction *a : w->actions())
            actions.insert(a);
    }
    for (QMdiSubWindow *sub : m_main->mdiArea()->subWindowList()) {
        if (sub->systemMenu()) {
            for (QAction *a : sub->systemMenu()->actions())
                actions.insert(a);
        }
    }
    QVERIFY(actions.size() > 100);

    QMultiHash<QString, QString> owners;   // key -> who holds it
    int keys = 0;
    for (QAction *a : std::as_const(actions)) {
        for (const QKeySequence &key : a->shortcuts()) {
            if (key.isEmpty())
                continue;
            ++keys;
            const QString who = a->objectName().isEmpty() ? a->text() : a->objectName();
            owners.insert(key.toString(QKeySequence::PortableText), who);
        }
    }
    QVERIFY(keys > 20);
    QStringList clashes;
    for (const QString &key : owners.uniqueKeys()) {
        const QStringList who = owners.values(key);
        if (who.size() > 1)
            clashes << key + QStringLiteral(": ") + who.join(QStringLiteral(", "));
    }
    QVERIFY2(clashes.isEmpty(), qPrintable(clashes.join(QStringLiteral("; "))));

    // The key shown beside File > Close is the one that closes.
    QAction *close = m_main->commands().action(QStringLiteral("mnuClose"));
    QVERIFY(close->shortcuts().contains(QKeySequence(Qt::CTRL | Qt::Key_W)));
}

void tst_Shortcuts::ctrlWClosesTheActiveDocument()
{
    QVERIFY(documents::OpenDocumentFile(m_env->write(QStringLiteral("a.html"), "a")));
    QVERIFY(documents::OpenDocumentFile(m_env->write(QStringLiteral("b.html"), "b")));
    QCOMPARE(m_main->documentList().size(), 2);
    m_main->activateWindow();
    QApplication::setActiveWindow(m_main.get());
    QWidget *edit = QApplication::focusWidget();
    QVERIFY(edit);
    QVERIFY(m_main->isAncestorOf(edit));
    const QString active = m_main->activeDocument()->caption();

    QTest::failOnWarning(QRegularExpression(QStringLiteral("Ambiguous shortcut")));
    QTest::keyClick(edit, Qt::Key_W, Qt::ControlModifier);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_main->documentList().size(), 1);
    QVERIFY(m_main->documentList().first()->caption() != active);
    QCOMPARE(m_prompts->unanswered, 0);
}

QTEST_MAIN(tst_Shortcuts)
#include "tst_shortcuts.moc"
