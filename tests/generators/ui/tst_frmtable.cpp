// The table editor and its templates on the real main window, offscreen.
#include "app/MainWindow.h"
#include "core/Paths.h"
#include "core/ui/CommandTable.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "generators/ui/FixedTemplateDialog.h"
#include "generators/ui/PreviewPane.h"
#include "generators/ui/UpDown.h"
#include "generators/ui/frmTable.h"
#include "platform/HTMLEdit.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QtTest>

using namespace qly;
using generators::TableModel;
using generators::ui::frmTable;

class tst_frmTable : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void opensOnSelectedTableAndReplacesIt();
    void typingFieldsSpinnersAndCells();
    void clipboardCellsFillTheGrid();
    void brokenSelectionsStillOpen();
    void previewPageBesideTheDocument();
    void commandsOpenTheDialogs();
    void templatesInsertOrTellTheMissingFile();

private:
    platform::HTMLEdit &open(const QByteArray &text);

    std::unique_ptr<test::TestEnv> m_env;
    std::unique_ptr<test::ScriptedPrompts> m_prompts;
    std::unique_ptr<app::frmMain> m_main;
};

void tst_frmTable::init()
{
    m_env = std::make_unique<test::TestEnv>();
    m_prompts = std::make_unique<test::ScriptedPrompts>();
    m_main = test::showMainWindow();
}

void tst_frmTable::cleanup()
{
    test::closeMainWindow(m_main);
    m_prompts.reset();
    m_env.reset();
}

platform::HTMLEdit &tst_frmTable::open(const QByteArray &text)
{
    const QString file = m_env->write(QStringLiteral("page.html"), text);
    if (!documents::OpenDocumentFile(file))
        qFatal("cannot open the page");
    platform::HTMLEdit &e = m_main->activeDocument()->txtDoc();
    e.SetSel(0, 0);
    return e;
}

void tst_frmTable::opensOnSelectedTableAndReplacesIt()
{
    const QByteArray table = "<table border=\"1\"><caption align=bottom>C</caption>"
                             "<tr><th>h</th><td>a</td></tr><tr><th>i</th><td>b</td></tr></table>";
    platform::HTMLEdit &e = open("<p>x</p>\r\n" + table + "\r\n<p>y</p>\r\n");
    e.SetSel(10, 10 + int(table.size()));

    frmTable dialog(m_main.get(), false);
    QCOMPARE(dialog.field(TableModel::BorderWidth)->text(), QStringLiteral("\"1\""));
    QCOMPARE(dialog.field(TableModel::Rows)->text(), QStringLiteral("2"));
    QCOMPARE(dialog.field(TableModel::HeadingCols)->text(), QStringLiteral("1"));
    QCOMPARE(dialog.field(TableModel::Caption)->text(), QStringLiteral("C"));
    QCOMPARE(dialog.grid()->model()->rowCount(), 2);
    QCOMPARE(dialog.grid()->model()->index(1, 1).data().toString(), QStringLiteral("b"));

    dialog.cmdOptions_Click(0);
    QCOMPARE(dialog.Tag(), QStringLiteral("1"));
    QCOMPARE(e.Text(), QStringLiteral("<p>x</p>\r\n<TABLE BORDER=\"1\">\r\n<CAPTION ALIGN=bottom>C</CAPTION>\r\n"
                                      "<TR>\r\n\t<TH>h</TH>\r\n\t<TD>a</TD>\r\n\r\n</TR>\r\n"
                                      "<TR>\r\n\t<TH>i</TH>\r\n\t<TD>b</TD>\r\n\r\n</TR>\r\n</TABLE>\r\n"
                                      "\r\n<p>y</p>\r\n"));
}

void tst_frmTable::typingFieldsSpinnersAndCells()
{
    open("");
    frmTable dialog(m_main.get(), false);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(dialog.grid()->model()->rowCount(), 6);

    QLineEdit *rows = dialog.field(TableModel::Rows);
    rows->selectAll();
    QTest::keyClicks(rows, QStringLiteral("3"));
    QCOMPARE(dialog.grid()->model()->rowCount(), 3);
    dialog.spinner(TableModel::Columns)->step(2);
    QCOMPARE(dialog.field(TableModel::Columns)->text(), QStringLiteral("4"));
    QCOMPARE(dialog.grid()->model()->columnCount(), 4);
    // The border spinner stops at 10; a value typed beyond stands as typed.
    QLineEdit *border = dialog.field(TableModel::BorderWidth);
    QTest::keyClicks(border, QStringLiteral("12"));
    dialog.spinner(TableModel::BorderWidth)->step(1);
    QCOMPARE(border->text(), QStringLiteral("12"));
    dialog.spinner(TableModel::BorderWidth)->step(-1);
    QCOMPARE(border->text(), QStringLiteral("9"));
    // Heading rows at the size are cut to one less.
    QLineEdit *headRows = dialog.field(TableModel::HeadingRows);
    QTest::keyClicks(headRows, QStringLiteral("7"));
    QCOMPARE(headRows->text(), QStringLiteral("2"));
    QCOMPARE(dialog.model().fixedRows(), 2);

    // Typing into a cell, then Ctrl+X empties it into the clipboard.
    dialog.grid()->setFocus();
    dialog.grid()->setCurrentIndex(dialog.grid()->model()->index(2, 1));
    QTest::keyClick(dialog.grid(), Qt::Key_H);
    auto *editor = dialog.grid()->findChild<QLineEdit *>();
    QVERIFY(editor);
    QTest::keyClicks(editor, QStringLiteral("ello"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(dialog.model().cell(2, 1), QStringLiteral("hello"));
    // A key on a cell with text adds to it; Backspace takes the last character.
    dialog.grid()->setFocus();
    QTest::keyClick(dialog.grid(), Qt::Key_Backspace);
    QCOMPARE(dialog.model().cell(2, 1), QStringLiteral("hell"));
    QTest::keyClick(dialog.grid(), Qt::Key_O);
    editor = dialog.grid()->findChild<QLineEdit *>();
    QVERIFY(editor);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(dialog.model().cell(2, 1), QStringLiteral("hello"));
    dialog.grid()->setFocus();
    QTest::keyClick(dialog.grid(), Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("hello"));
    QCOMPARE(dialog.model().cell(2, 1), QString());

    // Lines per row set every row's height.
    QTest::keyClicks(dialog.linesField(), QStringLiteral("3"));
    QCOMPARE(dialog.grid()->verticalHeader()->defaultSectionSize(), 13 * dialog.oneLineHeight());
}

void tst_frmTable::clipboardCellsFillTheGrid()
{
    open("");
    frmTable dialog(m_main.get(), false);
    dialog.show();
    dialog.grid()->setFocus();
    dialog.grid()->setCurrentIndex(dialog.grid()->model()->index(5, 1));
    QApplication::clipboard()->setText(QStringLiteral("Q1\t10\t11\nQ2\t20\t21\n"));
    QTest::keyClick(dialog.grid(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(dialog.grid()->model()->rowCount(), 7);
    QCOMPARE(dialog.grid()->model()->columnCount(), 4);
    QCOMPARE(dialog.model().cell(6, 3), QStringLiteral("21"));
    QCOMPARE(dialog.field(TableModel::Columns)->text(), QStringLiteral("4"));
    QCOMPARE(dialog.field(TableModel::Rows)->text(), QStringLiteral("7"));

    // Files dropped on cells: a link relative to the page, an image tag.
    QDir(m_env->dir()).mkpath(QStringLiteral("img"));
    dialog.dropFile(m_env->write(QStringLiteral("img/logo.gif"), "GIF89a"), dialog.grid()->model()->index(0, 0));
    dialog.dropFile(m_env->write(QStringLiteral("other.htm"), "<p>"), dialog.grid()->model()->index(0, 0));
    QCOMPARE(dialog.model().cell(0, 0), QStringLiteral("<IMG SRC=\"img/logo.gif\"><A HREF=\"other.htm\">other.htm</A>"));
}

void tst_frmTable::brokenSelectionsStillOpen()
{
    // 1,000 rows without end tags, with spans and a nested table.
    QByteArray page = "<TABLE border=2>";
    for (int r = 0; r < 1000; ++r)
        page += "<TR><TD rowspan=2>" + QByteArray::number(r) + "<TD colspan=\"2\"><table><tr><td>n";
    page += "</TABLE>";
    platform::HTMLEdit &e = open(page);
    e.SetSel(0, e.GetTextLength());
    frmTable dialog(m_main.get(), false);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(dialog.field(TableModel::BorderWidth)->text(), QStringLiteral("2"));
    QVERIFY(dialog.grid()->model()->rowCount() >= 1);
}

void tst_frmTable::previewPageBesideTheDocument()
{
    open("");
    m_main->activeDocument()->txtDoc().setSelText(QStringLiteral("a\tb"));
    m_main->activeDocument()->txtDoc().SetSel(0, 3);
    QString path;
    {
        frmTable dialog(m_main.get(), false);
        QVERIFY(dialog.preview()->refreshInterval() >= 1000);
        QVERIFY(dialog.preview()->refreshNow());
        path = dialog.preview()->pagePath();
        QCOMPARE(QFileInfo(path).absolutePath(), QFileInfo(m_env->path(QStringLiteral("page.html"))).absolutePath());
        QVERIFY(QFileInfo(path).fileName().startsWith(QStringLiteral("~qly")));
        const QByteArray bytes = m_env->read(QFileInfo(path).fileName());
        QVERIFY(bytes.startsWith("\xEF\xBB\xBF<HTML><BODY><TITLE>Table Preview</TITLE>\r\n<TABLE>\r\n<TR>\r\n\t<TD>a</TD>"));
        QVERIFY(bytes.endsWith("</TABLE>\r\n</BODY></HTML>"));
    }
    QVERIFY(!QFile::exists(path));
}

void tst_frmTable::commandsOpenTheDialogs()
{
    open("");
    for (const char *name : {"InsertTable", "InsertTableTemp"}) {
        QString seen;
        QTimer::singleShot(0, this, [&seen] {
            if (QWidget *modal = QApplication::activeModalWidget()) {
                seen = modal->objectName();
                static_cast<QDialog *>(modal)->reject();
            }
        });
        QVERIFY(m_main->commands().run(QString::fromLatin1(name)));
        QCOMPARE(seen, QString::fromLatin1(name) == QStringLiteral("InsertTable") ? QStringLiteral("frmTable")
                                                                                   : QStringLiteral("frmTableTemp"));
    }
}

void tst_frmTable::templatesInsertOrTellTheMissingFile()
{
    platform::HTMLEdit &e = open("");
    QDir(m_env->dir()).mkpath(QStringLiteral("Templates"));
    m_env->write(QStringLiteral("Templates/TableTemplate3.tpl"), "<TABLE>cal</TABLE>\r\n");
    {
        generators::ui::frmTableTemp dialog(m_main.get());
        dialog.cmdTemplate_Click(2);
        QCOMPARE(e.Text(), QStringLiteral("<TABLE>cal</TABLE>\r\n"));
        dialog.cmdTemplate_Click(5);
        QCOMPARE(m_prompts->texts().last(),
                 QStringLiteral("Template file not found: ") + core::ProgramDirectory() + QStringLiteral("/Templates/TableTemplate6.tpl"));
    }
    // The six files that ship with the program are all there.
    for (int i = 1; i <= 6; ++i)
        QVERIFY(QFile::exists(QStringLiteral(PROGRAM_DATA_DIR "/Templates/TableTemplate%1.tpl").arg(i)));
}

QTEST_MAIN(tst_frmTable)
#include "tst_frmtable.moc"
