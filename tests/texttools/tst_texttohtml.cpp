#include "core/Settings.h"
#include "documents/Document.h"
#include "documents/DroppedFile.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"
#include "texttools/TextToHtmlArguments.h"
#include "texttools/TextToHtmlFile.h"
#include "texttools/TextToHtmlModel.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QtTest>

using namespace qly;
using texttools::TextToHtmlModel;

namespace {

const QString kCases = QStringLiteral(TEST_DATA_DIR "/texttohtml");

QByteArray readBytes(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

texttools::ConvertOptions caseOptions(const QString &dir)
{
    texttools::ConvertOptions options;
    QString error;
    const QStringList words =
        QString::fromUtf8(readBytes(dir + QStringLiteral("/options"))).split(u'\n', Qt::SkipEmptyParts);
    if (!texttools::ParseConvertArguments(words, options, error))
        qWarning() << error;
    return options;
}

const QString kHead = QStringLiteral("<HTML>\r\n<HEAD>\r\n<TITLE> type_Document_Title_here </TITLE>\r\n</HEAD>\r\n"
                                     "<BODY>\r\n");
const QString kTail = QStringLiteral("</BODY>\r\n</HTML>\r\n");

} // namespace

class tst_TextToHtml : public QObject
{
    Q_OBJECT
private slots:
    void goldenCases_data();
    void goldenCases();
    void commandLine();
    void badInput();
    void dialogOnDocument();
    void dialogChecksAndFiles();
    void insertTextFile();
};

void tst_TextToHtml::goldenCases_data()
{
    QTest::addColumn<QString>("dir");
    const QStringList cases = QDir(kCases).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    QVERIFY(cases.size() >= 15);
    for (const QString &c : cases)
        QTest::newRow(qPrintable(c)) << kCases + u'/' + c;
}

void tst_TextToHtml::goldenCases()
{
    QFETCH(QString, dir);
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    const QString out = env.path(QStringLiteral("out.html"));
    QVERIFY(texttools::ConvertTextFile(dir + QStringLiteral("/input.txt"), out, caseOptions(dir)));
    QCOMPARE(env.read(out), readBytes(dir + QStringLiteral("/expected.html")));
    QVERIFY(prompts.shown.isEmpty());
}

void tst_TextToHtml::commandLine()
{
    test::TestEnv env;
    const QString cli = QStringLiteral(PROGRAM_DATA_DIR "/quillery-cli");
    const QString dir = kCases + QStringLiteral("/chunk-boundary");
    QStringList arguments = {QStringLiteral("convert"), dir + QStringLiteral("/input.txt"),
                             env.path(QStringLiteral("cli.html"))};
    arguments << QString::fromUtf8(readBytes(dir + QStringLiteral("/options"))).split(u'\n', Qt::SkipEmptyParts);
    QProcess p;
    p.start(cli, arguments);
    QVERIFY(p.waitForFinished(60000));
    QCOMPARE(p.exitCode(), 0);
    QCOMPARE(env.read(QStringLiteral("cli.html")), readBytes(dir + QStringLiteral("/expected.html")));

    p.start(cli, {QStringLiteral("--help")});
    QVERIFY(p.waitForFinished(60000));
    const QByteArray help = p.readAllStandardOutput();
    QVERIFY(help.contains("convert IN.txt OUT.html"));
    QVERIFY(help.contains("--first-heading=TAG"));

    p.start(cli, {QStringLiteral("convert"), dir + QStringLiteral("/input.txt"), env.path(QStringLiteral("x.html")),
                  QStringLiteral("--isolate=sideways")});
    QVERIFY(p.waitForFinished(60000));
    QCOMPARE(p.exitCode(), 2);
    QVERIFY(p.readAllStandardError().contains("--isolate=sideways"));
    QVERIFY(!QFile::exists(env.path(QStringLiteral("x.html"))));
}

void tst_TextToHtml::badInput()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;

    // A binary file is refused by name and an older page stays as it was.
    QByteArray binary(4096, '\0');
    for (int i = 0; i < binary.size(); i += 3)
        binary[i] = char(i % 251);
    const QString bin = env.write(QStringLiteral("image.txt"), binary);
    const QString kept = env.write(QStringLiteral("page.html"), "old page");
    QVERIFY(!texttools::ConvertTextFile(bin, kept, {}));
    QCOMPARE(prompts.shown.size(), 1);
    QVERIFY(prompts.shown.at(0).text.startsWith(bin + QStringLiteral(" holds binary data, not text")));
    QCOMPARE(env.read(kept), QByteArray("old page"));

    // One line of 10 MB goes through whole, in about the time of a copy. It
    // ends the first chunk, so the chunk's empty last line follows it.
    const QByteArray line(10 * 1024 * 1024, 'x');
    const QString big = env.write(QStringLiteral("big.txt"), "Head\r\n\r\n" + line + "\r\n- item\r\n");
    texttools::ConvertOptions o;
    o.makeBreak = o.makePara = o.makeList = o.firstHead = true;
    o.bullet = QStringLiteral("-");
    o.firstTag = QStringLiteral("<H1>");
    QElapsedTimer timer;
    timer.start();
    QVERIFY(texttools::ConvertTextFile(big, env.path(QStringLiteral("big.html")), o));
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    const QByteArray page = env.read(QStringLiteral("big.html"));
    QCOMPARE(page, kHead.toLatin1() + "<H1>Head</H1><BR>\r\n<P>\r\n" + line + "<BR>\r\n<P>\r\n<UL>\r\n<LI> item<BR>\r\n</UL>\r\n"
                       + kTail.toLatin1());
    QCOMPARE(prompts.shown.size(), 1);
}

void tst_TextToHtml::dialogOnDocument()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    const QString original = QStringLiteral("Title\r\n\r\n* one\r\n* two\r\ntext");
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("notes.txt"), original);
    doc->edit.setDirty(false);
    doc->edit.SetSel(7, 7);

    TextToHtmlModel model;
    QVERIFY(model.open());
    QCOMPARE(readBytes(model.savedDocument()), original.toUtf8());
    model.chkMakeList = true;
    model.cmbListType = 0;
    model.txtBullet = QStringLiteral("*");
    model.chkFirstHead = true;
    model.cmbFirstHead = 0;
    const QString converted = kHead + QStringLiteral("<H1>Title</H1>\r\n\r\n<UL>\r\n<LI> one\r\n<LI> two\r\n</UL>\r\n"
                                                     "text\r\n")
                              + kTail;
    bool close = true;
    // Apply twice starts from the same saved copy; the caret stays put.
    QCOMPARE(model.press(TextToHtmlModel::Apply, close), TextToHtmlModel::MissingChoice::None);
    QVERIFY(!close);
    QCOMPARE(model.press(TextToHtmlModel::Apply, close), TextToHtmlModel::MissingChoice::None);
    QCOMPARE(doc->edit.Text(), converted);
    QCOMPARE(doc->edit.SelStart(), 7);
    QVERIFY(doc->edit.Dirty());
    // Cancel puts the text and its saved state back.
    model.press(TextToHtmlModel::Cancel, close);
    QVERIFY(close);
    QCOMPARE(doc->edit.Text(), original);
    QVERIFY(!doc->edit.Dirty());

    // OK without Apply converts as one undo step.
    TextToHtmlModel again;
    QVERIFY(again.open());
    again.chkMakeList = true;
    again.cmbListType = 1;
    again.txtBullet = QStringLiteral("*x");
    again.cmbListAction = 1;
    again.press(TextToHtmlModel::OkDocument, close);
    QVERIFY(doc->edit.Text().contains(QStringLiteral("<OL>\r\n<LI>* one\r\n<LI>* two\r\n</OL>")));
    doc->edit.Undo();
    QCOMPARE(doc->edit.Text(), original);
    QVERIFY(prompts.shown.isEmpty());
}

void tst_TextToHtml::dialogChecksAndFiles()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    ws.addDocument(QStringLiteral("a.txt"), QStringLiteral("x"));
    TextToHtmlModel model;
    QVERIFY(model.open());

    // Each missing choice is told in a "No List Type" box and stops the button.
    bool close = false;
    model.chkMakeList = true;
    QCOMPARE(model.press(TextToHtmlModel::Apply, close), TextToHtmlModel::MissingChoice::ListType);
    model.cmbListType = 0;
    model.chkOtherHead = true;
    QCOMPARE(model.press(TextToHtmlModel::OkDocument, close), TextToHtmlModel::MissingChoice::OtherHead);
    QVERIFY(!close);
    QCOMPARE(prompts.shown.size(), 2);
    QCOMPARE(prompts.shown.at(0).title, QStringLiteral("No List Type"));
    QCOMPARE(prompts.shown.at(0).text, QStringLiteral("You have not selected the type of list you want created"));
    QCOMPARE(prompts.shown.at(1).text,
             QStringLiteral("You have not selected the action to perform on the first isolated line"));
    QVERIFY(!model.applied());
    model.chkMakeList = model.chkOtherHead = false;

    // Convert files: a wildcard takes every match; pages get the default extension.
    core::WriteSetting(QStringLiteral("Editing"), QStringLiteral("Default Document Extension"), QStringLiteral("htm"));
    env.write(QStringLiteral("in/one.txt"), "1");
    env.write(QStringLiteral("in/two.txt"), "2");
    env.write(QStringLiteral("in/skip.dat"), "3");
    prompts.chooseFiles({env.path(QStringLiteral("in/*.txt"))});
    prompts.answer(platform::Answer::Ok);
    model.press(TextToHtmlModel::OkFiles, close);
    QVERIFY(close);
    QCOMPARE(prompts.fileRequests.at(0).title,
             QStringLiteral("Select File(s) To Convert.  Wildcards (e.g \"*.txt\") are OK."));
    QCOMPARE(prompts.shown.last().title, QStringLiteral("Operation Completed"));
    QCOMPARE(prompts.shown.last().text, QStringLiteral("2 files converted."));
    QCOMPARE(env.read(QStringLiteral("in/two.htm")), (kHead + QStringLiteral("2\r\n") + kTail).toLatin1());
    QVERIFY(!QFile::exists(env.path(QStringLiteral("in/skip.htm"))));
    QCOMPARE(ws.document(0)->edit.Text(), QStringLiteral("x"));
}

void tst_TextToHtml::insertTextFile()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("p.html"), QStringLiteral("[]"),
                                             env.path(QStringLiteral("p.html")));
    doc->edit.SetSel(1, 1);
    const QString text = env.write(QStringLiteral("t.txt"), QByteArray("a\0b\r\nc", 6));

    // Unless "Preformat Text" is "no" the text is preformatted; the caret stays.
    texttools::InsertTextFile(text);
    QCOMPARE(doc->edit.Text(), QStringLiteral("[<PRE>\r\nab\r\nc\r\n</PRE>]"));
    QCOMPARE(doc->edit.SelStart(), 1);

    // A dropped text file takes the same road.
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Preformat Text"), QStringLiteral("No"));
    doc->edit.setText(QStringLiteral("[]"));
    doc->edit.SetSel(1, 1);
    texttools::installTextFileDrop();
    documents::txtDoc_DropFileOnMe(*doc, text);
    QCOMPARE(doc->edit.Text(), QStringLiteral("[ab\r\nc]"));

    texttools::InsertTextFile(env.path(QStringLiteral("gone.txt")));
    QCOMPARE(prompts.texts().last(), QStringLiteral("File not found.: ") + env.path(QStringLiteral("gone.txt")));
    QCOMPARE(doc->edit.Text(), QStringLiteral("[ab\r\nc]"));
    documents::documentHooks().insertTextFile = nullptr;
}

QTEST_GUILESS_MAIN(tst_TextToHtml)
#include "tst_texttohtml.moc"
