// The Window menu's list of documents and the change mark of a document's
// caption, in the real main window.
#include "app/MainWindow.h"
#include "core/ui/CommandTable.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "documents/Workspace.h"
#include "documents/ui/DocumentWindow.h"
#include "platform/HTMLEdit.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QtTest>

using namespace qly;
using documents::ui::DocumentWindow;

class tst_WindowMenu : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void listsTheOpenDocuments();
    void captionMarksUnsavedChanges();

private:
    QList<QAction *> listEntries() const;
    std::unique_ptr<test::TestEnv> m_env;
    std::unique_ptr<test::ScriptedPrompts> m_prompts;
    std::unique_ptr<app::frmMain> m_main;
};

void tst_WindowMenu::init()
{
    m_env = std::make_unique<test::TestEnv>();
    m_prompts = std::make_unique<test::ScriptedPrompts>();
    m_main = std::make_unique<app::frmMain>();
    documents::Workspace::setInstance(m_main.get());
    m_main->resize(900, 700);
    m_main->show();
}

void tst_WindowMenu::cleanup()
{
    for (documents::Document *d : m_main->documentList())
        m_main->unloadDocument(d);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_main.reset();
    m_prompts.reset();
    m_env.reset();
}

// The entries behind the fixed ones, as the menu shows them when it opens.
QList<QAction *> tst_WindowMenu::listEntries() const
{
    auto *menu = m_main->findChild<QMenu *>(QStringLiteral("Window"));
    if (!menu)
        return {};
    emit menu->aboutToShow();
    QList<QAction *> out;
    for (QAction *a : menu->actions()) {
        if (a->objectName().startsWith(QLatin1String("mnuWindowList")))
            out << a;
    }
    return out;
}

void tst_WindowMenu::listsTheOpenDocuments()
{
    QVERIFY(listEntries().isEmpty());
    const QString a = m_env->write(QStringLiteral("a.html"), "a");
    const QString b = m_env->write(QStringLiteral("b & c.html"), "b");
    QVERIFY(documents::OpenDocumentFile(a));
    QVERIFY(documents::OpenDocumentFile(b));

    QList<QAction *> entries = listEntries();
    QCOMPARE(entries.size(), 2);
    QCOMPARE(entries[0]->text(), QStringLiteral("&1 ") + a);
    QCOMPARE(entries[1]->text(), QStringLiteral("&2 ") + QString(b).replace(u'&', QLatin1String("&&")));
    QVERIFY(!entries[0]->isChecked());
    QVERIFY(entries[1]->isChecked());
    // The fixed entries stay ahead of the list.
    auto *menu = m_main->findChild<QMenu *>(QStringLiteral("Window"));
    QCOMPARE(menu->actions().first(), m_main->commands().action(QStringLiteral("mnuWindow0")));

    // A click on an entry activates its document.
    entries[0]->trigger();
    QCOMPARE(m_main->activeDocument()->caption(), a);
    entries = listEntries();
    QCOMPARE(entries.size(), 2);
    QVERIFY(entries[0]->isChecked());
    QVERIFY(!entries[1]->isChecked());

    // A closed document leaves the list.
    m_main->commands().run(QStringLiteral("mnuClose"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    entries = listEntries();
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries[0]->text(), QStringLiteral("&1 ") + QString(b).replace(u'&', QLatin1String("&&")));
}

void tst_WindowMenu::captionMarksUnsavedChanges()
{
    const QString file = m_env->write(QStringLiteral("page.html"), "text");
    QVERIFY(documents::OpenDocumentFile(file));
    auto *doc = dynamic_cast<DocumentWindow *>(m_main->activeDocument());
    QVERIFY(doc);
    auto *sub = qobject_cast<QMdiSubWindow *>(doc->parentWidget());
    QVERIFY(sub);
    QVERIFY(sub->windowTitle().contains(QLatin1String("[*]")));
    QVERIFY(!sub->isWindowModified());
    QCOMPARE(doc->caption(), file);   // the name that prompts and the session use has no mark

    doc->txtDoc().setSelStart(4);
    doc->txtDoc().setSelText(QStringLiteral("!"));
    QVERIFY(sub->isWindowModified());
    QCOMPARE(doc->caption(), file);
    QVERIFY(m_main->commands().run(QStringLiteral("mnuSave")));
    QCOMPARE(m_env->read(file), QByteArray("text!"));
    QVERIFY(!sub->isWindowModified());

    // Undo back to the saved text takes the mark away as well.
    doc->txtDoc().setSelText(QStringLiteral("?"));
    QVERIFY(sub->isWindowModified());
    doc->txtDoc().Undo();
    QVERIFY(!sub->isWindowModified());

    // Save As writes the file under its new name but leaves the document
    // counted as changed, so the mark stays and the exit asks about it.
    doc->txtDoc().setSelText(QStringLiteral("?"));
    const QString other = m_env->path(QStringLiteral("other.html"));
    m_prompts->chooseFiles({other});
    QVERIFY(m_main->commands().run(QStringLiteral("mnuSaveAs")));
    QCOMPARE(doc->caption(), other);
    QCOMPARE(m_env->read(other), QByteArray("text!?"));
    QVERIFY(doc->txtDoc().Dirty());
    QVERIFY(sub->isWindowModified());
    QVERIFY(sub->windowTitle().startsWith(other));
}

QTEST_MAIN(tst_WindowMenu)
#include "tst_windowmenu.moc"
