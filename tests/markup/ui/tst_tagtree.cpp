#include "app/MainWindow.h"
#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/Settings.h"
#include "core/ui/CommandTable.h"
#include "documents/DocumentList.h"
#include "documents/KnownWords.h"
#include "documents/ui/DocumentWindow.h"
#include "documents/ui/ScintillaEdit.h"
#include "markup/TagFilters.h"
#include "markup/ui/TagCommands.h"
#include "markup/ui/TagTree.h"
#include "markup/ui/frmEditTags.h"
#include "markup/ui/frmFilterKeys.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <Qsci/qsciscintilla.h>

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QTableWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

using namespace qly;
using markup::ui::TagTree;

class tst_TagTree : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void showsExactlyTheTagsOfTheCheckedFilters();
    void doubleClickWrapsTheSelection();
    void droppedTagInsertsStartAndEndText();
    void filterDialogCancelChangesNothing();
    void filterDialogOkStoresAndReloads();
    void viewButtonsAndFindBox();
    void editorWritesTheCatalogue();

private:
    documents::ui::DocumentWindow *newDocument();
    QStringList shownNames() const;
    bool select(const QString &name);

    std::unique_ptr<test::TestEnv> m_env;
    std::unique_ptr<app::frmMain> m_window;
    TagTree *m_tree = nullptr;
};

namespace {

const QByteArray kCatalogue = "B\tHTML: Text\tY\tHTML 2,HTML 4\t<B>\t</B>\tBold\r\n"
                              "TABLE\tHTML: Tables\tY\tHTML 3.2,HTML 4\t<TABLE>\t</TABLE>\tTable\r\n"
                              "BR\tHTML: Text\tN\tHTML 2\t<BR>\t\tBreak\r\n"
                              "MARQUEE\tHTML: Text\tY\tIE 3\t<MARQUEE>\t</MARQUEE>\tScrolling\r\n"
                              "LINK\tHTML: Links\tY\tHTML 4\t<A HREF=\"\">\t</A>\tA link\r\n"
                              "alert\tScript Methods\tN\tJavaScript\talert(\t)\tScript method\r\n";

} // namespace

void tst_TagTree::init()
{
    m_env = std::make_unique<test::TestEnv>();
    m_env->write(QStringLiteral("tags.inf"), kCatalogue);
    core::WriteSetting(QStringLiteral("Filters"), QStringLiteral("HTML 2"), QStringLiteral("True"));
    core::WriteSetting(QStringLiteral("Filters"), QStringLiteral("JavaScript"), QStringLiteral("True"));
    m_window = test::showMainWindow();
    m_tree = m_window->findChild<TagTree *>();
    QVERIFY(m_tree);
    QVERIFY(m_tree->isVisibleTo(m_window.get()) || m_tree->parentWidget());
    m_window->startupSteps().run(core::ui::StartupStep::TagTree);
}

void tst_TagTree::cleanup()
{
    test::closeMainWindow(m_window);
    m_env.reset();
}

documents::ui::DocumentWindow *tst_TagTree::newDocument()
{
    auto *doc = dynamic_cast<documents::ui::DocumentWindow *>(documents::CreateDocumentWindow());
    core::EndWait();
    core::gLoadingDocument = false;
    return doc;
}

QStringList tst_TagTree::shownNames() const
{
    QStringList names;
    QTreeWidget *t = m_tree->tree();
    for (int i = 0; i < t->topLevelItemCount(); ++i) {
        QTreeWidgetItem *top = t->topLevelItem(i);
        if (top->childCount() == 0)
            names << top->text(0);
        for (int c = 0; c < top->childCount(); ++c)
            names << top->child(c)->text(0);
    }
    return names;
}

bool tst_TagTree::select(const QString &name)
{
    const auto hits = m_tree->tree()->findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
    if (hits.isEmpty())
        return false;
    m_tree->tree()->setCurrentItem(hits.first());
    return true;
}

void tst_TagTree::showsExactlyTheTagsOfTheCheckedFilters()
{
    // The tree stands on the resource manager's "Tags" tab.
    QCOMPARE(m_tree->FilterList(), markup::FilterList());
    QCOMPARE(shownNames(), (QStringList{QStringLiteral("alert"), QStringLiteral("B"), QStringLiteral("BR")}));
    // The colouring knows the same tags.
    QVERIFY(documents::knownWords().knowsTag("br", 2));
    QVERIFY(!documents::knownWords().knowsTag("table", 5));

    // "Lower Case Tags" shows and inserts names in small letters; script words keep theirs.
    core::WriteSetting(QStringLiteral("Editing"), QStringLiteral("Lower Case Tags"), QStringLiteral("Yes"));
    markup::ui::BuildTagTree(*m_tree);
    QCOMPARE(shownNames(), (QStringList{QStringLiteral("alert"), QStringLiteral("b"), QStringLiteral("br")}));
    QVERIFY(select(QStringLiteral("b")));
    QCOMPARE(m_tree->TagStartText(), QStringLiteral("<b>"));
    QCOMPARE(m_tree->DraggedTag(), QStringLiteral("b\tBold\tY"));

    // A filter with no key is off; IE 3 written by hand counts.
    core::WriteSetting(QStringLiteral("Filters"), QStringLiteral("IE 3"), QStringLiteral("True"));
    core::WriteSetting(QStringLiteral("Filters"), QStringLiteral("JavaScript"), QStringLiteral("False"));
    markup::ui::BuildTagTree(*m_tree);
    QCOMPARE(shownNames(), (QStringList{QStringLiteral("b"), QStringLiteral("br"), QStringLiteral("marquee")}));
}

void tst_TagTree::doubleClickWrapsTheSelection()
{
    // No document: nothing happens.
    QVERIFY(select(QStringLiteral("B")));
    emit m_tree->TagDblClick();

    auto *doc = newDocument();
    QVERIFY(doc);
    QsciScintilla *view = doc->edit()->view();
    doc->txtDoc().setText(QStringLiteral("one word here"));
    doc->txtDoc().SetSel(4, 8);
    emit m_tree->TagDblClick();
    QCOMPARE(view->text(), QStringLiteral("one <B>word</B> here"));
    // The repeat test is not run: wrapping again nests the tag.
    emit m_tree->TagDblClick();
    QCOMPARE(view->text(), QStringLiteral("one <B><B>word</B></B> here"));

    // A double-click on a row of the tree does the same.
    doc->txtDoc().SetSel(0, 3);
    QTreeWidgetItem *br = m_tree->tree()->findItems(QStringLiteral("BR"), Qt::MatchExactly).first();
    m_tree->tree()->setCurrentItem(br);
    emit m_tree->tree()->itemDoubleClicked(br, 0);
    QVERIFY(view->text().startsWith(QStringLiteral("<BR>one ")));
}

void tst_TagTree::droppedTagInsertsStartAndEndText()
{
    auto *doc = newDocument();
    QsciScintilla *view = doc->edit()->view();
    doc->txtDoc().setText(QStringLiteral("xy"));
    QVERIFY(select(QStringLiteral("B")));
    QMimeData mime;
    mime.setData(markup::ui::tagMimeType(), m_tree->DraggedTag().toUtf8());
    const auto drop = [&] {
        // A drop goes to the widget that took the drag's entry.
        QDragEnterEvent enter(QPoint(1, 1), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &enter);
        QDropEvent event(QPointF(1, 1), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &event);
        return event.isAccepted();
    };
    // Only while the tree drags does a document take the tag.
    m_tree->setDragging(false);
    drop();
    QCOMPARE(view->text(), QStringLiteral("xy"));
    m_tree->setDragging(true);
    QVERIFY(drop());
    QCOMPARE(view->text(), QStringLiteral("<B></B>xy"));
    // A script word goes in as its texts stand.
    core::WriteSetting(QStringLiteral("Filters"), QStringLiteral("HTML 4"), QStringLiteral("True"));
    markup::ui::BuildTagTree(*m_tree);
    QVERIFY(select(QStringLiteral("alert")));
    QVERIFY(drop());
    QCOMPARE(view->text(), QStringLiteral("alert()<B></B>xy"));
    // An entry whose start text says more than its name goes in as it stands.
    QVERIFY(select(QStringLiteral("LINK")));
    QVERIFY(drop());
    QCOMPARE(view->text(), QStringLiteral("<A HREF=\"\"></A>alert()<B></B>xy"));
    m_tree->setDragging(false);
}

void tst_TagTree::filterDialogCancelChangesNothing()
{
    const QByteArray iniBefore = m_env->read(QStringLiteral("quillery.ini"));
    const QStringList shown = shownNames();
    markup::ui::frmFilterKeys dialog(*m_tree, m_window.get());
    QListWidget *list = dialog.lstFilter();
    QCOMPARE(list->count(), 13);
    QVERIFY(list->findItems(QStringLiteral("IE 3"), Qt::MatchExactly).isEmpty());
    QCOMPARE(list->findItems(QStringLiteral("HTML 2"), Qt::MatchExactly).first()->checkState(), Qt::Checked);
    QCOMPARE(list->findItems(QStringLiteral("HTML 4"), Qt::MatchExactly).first()->checkState(), Qt::Unchecked);
    for (int i = 0; i < list->count(); ++i)
        list->item(i)->setCheckState(Qt::Checked);
    dialog.findChild<QPushButton *>(QStringLiteral("frmCancel"))->click();
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(m_env->read(QStringLiteral("quillery.ini")), iniBefore);
    QCOMPARE(shownNames(), shown);
}

void tst_TagTree::filterDialogOkStoresAndReloads()
{
    markup::ui::frmFilterKeys dialog(*m_tree, m_window.get());
    QListWidget *list = dialog.lstFilter();
    list->findItems(QStringLiteral("HTML 2"), Qt::MatchExactly).first()->setCheckState(Qt::Unchecked);
    list->findItems(QStringLiteral("HTML 3.2"), Qt::MatchExactly).first()->setCheckState(Qt::Checked);
    // The catalogue changed on disk meanwhile: OK reloads it.
    m_env->write(QStringLiteral("tags.inf"), kCatalogue + "CENTER\tHTML: Text\tY\tHTML 3.2\t<CENTER>\t</CENTER>\t\r\n");
    dialog.findChild<QPushButton *>(QStringLiteral("frmOK"))->click();
    QCOMPARE(core::ReadSetting(QStringLiteral("Filters"), QStringLiteral("HTML 2")), QStringLiteral("False"));
    QCOMPARE(core::ReadSetting(QStringLiteral("Filters"), QStringLiteral("HTML 3.2")), QStringLiteral("True"));
    QCOMPARE(core::ReadSetting(QStringLiteral("Filters"), QStringLiteral("Cold Fusion")), QStringLiteral("False"));
    QCOMPARE(core::ReadSetting(QStringLiteral("Filters"), QStringLiteral("IE 3")), QString());
    QCOMPARE(shownNames(), (QStringList{QStringLiteral("alert"), QStringLiteral("CENTER"), QStringLiteral("TABLE")}));
    QVERIFY(documents::knownWords().knowsTag("center", 6));
    QVERIFY(!documents::knownWords().knowsTag("br", 2));
}

void tst_TagTree::viewButtonsAndFindBox()
{
    m_tree->findChild<QToolButton *>(QStringLiteral("cmdTags"))->click();
    QCOMPARE(m_tree->TagView(), int(TagTree::TagsView));
    QCOMPARE(core::ReadSetting(QStringLiteral("Display"), QStringLiteral("Tag View")), QStringLiteral("1"));
    QTreeWidget *t = m_tree->tree();
    QStringList groups;
    for (int i = 0; i < t->topLevelItemCount(); ++i)
        groups << t->topLevelItem(i)->text(0);
    QCOMPARE(groups, (QStringList{QStringLiteral("HTML: Text"), QStringLiteral("Script Methods")}));
    // The grouped view comes back at the next start.
    markup::ui::BuildTagTree(*m_tree);
    QCOMPARE(m_tree->TagView(), int(TagTree::TagsView));

    // Typing finds a tag in the groups; Enter acts as a double-click.
    QSignalSpy dbl(m_tree, &TagTree::TagDblClick);
    QTest::keyClicks(m_tree->findBox(), QStringLiteral("br"));
    QCOMPARE(m_tree->currentEntry()->name, QStringLiteral("BR"));
    QVERIFY(t->topLevelItem(1)->isHidden());   // no script word holds "br"
    QTest::keyClick(m_tree->findBox(), Qt::Key_Return);
    QCOMPARE(dbl.count(), 1);
    m_tree->findBox()->clear();
    QVERIFY(!t->topLevelItem(1)->isHidden());

    m_tree->findChild<QToolButton *>(QStringLiteral("cmdViewFull"))->click();
    QCOMPARE(m_tree->TagView(), int(TagTree::FullView));
    QCOMPARE(core::ReadSetting(QStringLiteral("Display"), QStringLiteral("Tag View")), QStringLiteral("0"));
    QCOMPARE(t->topLevelItemCount(), 3);
}

void tst_TagTree::editorWritesTheCatalogue()
{
    markup::ui::frmEditTags editor(m_tree->catalogue(), m_env->path(QStringLiteral("tags.inf")),
                                   m_env->path(QStringLiteral("custom tags.inf")));
    QTableWidget *table = editor.table();
    QCOMPARE(table->rowCount(), 6);
    table->item(0, 6)->setText(QStringLiteral("Bold type"));
    editor.findChild<QPushButton *>(QStringLiteral("btnNew"))->click();
    table->item(6, 0)->setText(QStringLiteral("MYTAG"));
    table->item(6, 2)->setCheckState(Qt::Checked);
    editor.accept();
    QCOMPARE(editor.result(), int(QDialog::Accepted));
    QVERIFY(m_env->read(QStringLiteral("tags.inf")).contains("Bold type"));
    QVERIFY(m_env->read(QStringLiteral("custom tags.inf")).contains("MYTAG\t\tY\tCustom Keywords\t<MYTAG>\t</MYTAG>"));

    // A catalogue that cannot be written is told, and the dialog stays.
    test::ScriptedPrompts prompts;
    markup::ui::frmEditTags blocked(m_tree->catalogue(), m_env->path(QStringLiteral("no/such/dir/tags.inf")),
                                    m_env->path(QStringLiteral("custom tags.inf")));
    blocked.accept();
    QCOMPARE(blocked.result(), int(QDialog::Rejected));
    QCOMPARE(prompts.texts().size(), 1);

    // Custom keywords show once their filter is on.
    core::WriteSetting(QStringLiteral("Filters"), QStringLiteral("Custom Keywords"), QStringLiteral("True"));
    markup::ui::BuildTagTree(*m_tree);
    QVERIFY(shownNames().contains(QStringLiteral("MYTAG")));
}

QTEST_MAIN(tst_TagTree)
#include "tst_tagtree.moc"
