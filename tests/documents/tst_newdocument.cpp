#include "core/Globals.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "documents/Document.h"
#include "documents/NewDocModel.h"
#include "documents/NewDocument.h"
#include "documents/TemplateSave.h"
#include "generators/ReplaceChannel.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QRegularExpression>
#include <QtTest>

using namespace qly;
using documents::NewDocModel;
using documents::NewDocument;

// New documents from templates, the New Document dialog's model, saving as
// a template, and the shipped template files.
class tst_NewDocument : public QObject
{
    Q_OBJECT
private slots:
    void untitledCounterIsNeverReused();
    void defaultTemplateWhenNormalIsMissing();
    void lowerCaseTagsOnNewDocuments();
    void dialogKinds_data();
    void dialogKinds();
    void channelPagesAreFilledThroughTheirDialogs();
    void saveAsTemplate();
    void shippedTemplates_data();
    void shippedTemplates();
};

namespace {

// The source tree's data, found from the test data directory by name alone.
const QString kShipped = QDir::cleanPath(QStringLiteral(TEST_DATA_DIR "/../../data/Templates"));

void installTemplate(const test::TestEnv &env, const QString &name, const QByteArray &text)
{
    env.write(QStringLiteral("Templates/") + name, text);
}

} // namespace

void tst_NewDocument::untitledCounterIsNeverReused()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    installTemplate(env, QStringLiteral("HTML32.tpl"), "<HTML>\r\n</HTML>");
    for (int n = 1; n <= 3; ++n) {
        documents::Document *doc = NewDocument(QString());
        QVERIFY(doc);
        QCOMPARE(doc->caption(), QStringLiteral("Untitled-%1").arg(n));
        QVERIFY(!doc->IsSaved());
        QVERIFY(!doc->txtDoc().Dirty());
        QCOMPARE(doc->txtDoc().Text(), QStringLiteral("<HTML>\r\n</HTML>"));
    }
    QVERIFY(!core::gLoadingDocument);
    while (ws.count() > 0)
        ws.unloadDocument(ws.document(0));
    QCOMPARE(NewDocument(QString())->caption(), QStringLiteral("Untitled-4"));
    QCOMPARE(prompts.shown.size(), 0);

    // A named template must exist; the counter does not move then.
    const QString missing = env.path(QStringLiteral("nothing.tpl"));
    QVERIFY(!NewDocument(missing));
    QCOMPARE(prompts.texts(), QStringList{missing + QStringLiteral(": File not found.")});
    QCOMPARE(NewDocument(QString())->caption(), QStringLiteral("Untitled-5"));
}

void tst_NewDocument::defaultTemplateWhenNormalIsMissing()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    const QString expected = QStringLiteral(
        "<HTML>\r\n<HEAD>\r\n<TITLE> type_Document_Title_here </TITLE>\r\n</HEAD>\r\n<BODY>\r\n\r\n</BODY>\r\n</HTML>");
    QCOMPARE(documents::DefaultTemplateText(), expected);

    // Written to the current directory, replacing what was there.
    env.write(QStringLiteral("work/NORMAL.tpl"), "stale");
    QDir::setCurrent(env.path(QStringLiteral("work")));
    documents::Document *doc = NewDocument(QString());
    QVERIFY(doc);
    QCOMPARE(doc->txtDoc().Text(), expected);
    QCOMPARE(env.read(QStringLiteral("work/NORMAL.tpl")), expected.toUtf8());

    // [Templates] "Normal" names the file.
    core::WriteSetting(QStringLiteral("Templates"), QStringLiteral("Normal"), QStringLiteral("mine.tpl"));
    QVERIFY(NewDocument(QString()));
    QCOMPARE(env.read(QStringLiteral("work/mine.tpl")), expected.toUtf8());
    QVERIFY(ws.document(1)->LocalFileName.isEmpty());
}

void tst_NewDocument::lowerCaseTagsOnNewDocuments()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    const QByteArray text = "<HTML><BODY>Text <B>BOLD</B><A HREF=\"UP.HTML\">UP</A></BODY></HTML>";
    installTemplate(env, QStringLiteral("HTML32.tpl"), text);
    core::WriteSetting(QStringLiteral("Editing"), QStringLiteral("Lower Case Tags"), QStringLiteral("yes"));
    documents::Document *doc = NewDocument(QString());
    QCOMPARE(doc->txtDoc().Text(), QStringLiteral("<html><body>Text <b>BOLD</b><a href=\"UP.HTML\">UP</a></body></html>"));
    QVERIFY(!doc->txtDoc().Dirty());
    QCOMPARE(env.read(QStringLiteral("Templates/HTML32.tpl")), text);
}

void tst_NewDocument::dialogKinds_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QStringList>("installed");   // templates present in Templates/
    QTest::addColumn<QString>("text");            // the new document's text; "" for none
    QTest::addColumn<QString>("message");
    const QStringList all = {QStringLiteral("HTML32.tpl"), QStringLiteral("IE4.tpl"), QStringLiteral("Blank.tpl"),
                             QStringLiteral("NetCaster.tpl"), QStringLiteral("ActiveChannel.tpl")};
    QTest::newRow("normal") << 1 << 0 << "" << all << "HTML32.tpl" << "";
    QTest::newRow("normal, template missing") << 1 << 0 << "" << QStringList() << "default" << "";
    QTest::newRow("advanced IE4") << 2 << 6 << "" << all << "IE4.tpl" << "";
    QTest::newRow("advanced missing is silent") << 2 << 2 << "" << all << "" << "";
    QTest::newRow("user defined") << 3 << 0 << "mine.txt" << all << "custom" << "";
    QTest::newRow("user defined missing") << 3 << 0 << "gone.tpl" << all << ""
                                          << "The specified file does not exist";
    QTest::newRow("netcaster missing") << 4 << 0 << "" << QStringList() << ""
                                       << "Quillery cannot find the template file for NetCaster Channels";
    QTest::newRow("active channel missing") << 5 << 0 << "" << QStringList() << ""
                                            << "Quillery cannot find the template file for Active Channels";
}

void tst_NewDocument::dialogKinds()
{
    QFETCH(int, kind);
    QFETCH(int, row);
    QFETCH(QString, user);
    QFETCH(QStringList, installed);
    QFETCH(QString, text);
    QFETCH(QString, message);
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    for (const QString &name : installed) {
        const QByteArray body = name.startsWith(QStringLiteral("Net")) || name.startsWith(QStringLiteral("Active"))
                                    ? name.toUtf8() + " %Name%"
                                    : name.toUtf8();
        installTemplate(env, name, body);
    }
    env.write(QStringLiteral("Custom Templates/mine.txt"), "custom");

    NewDocModel model;
    model.kind = kind;
    model.advancedRow = row;
    model.userTemplate = user;
    documents::Document *doc = model.create();
    QCOMPARE(prompts.texts(), message.isEmpty() ? QStringList() : QStringList{message});
    if (text.isEmpty()) {
        QVERIFY(!doc);
        QCOMPARE(ws.count(), 0);
        return;
    }
    QVERIFY(doc);
    if (text == QLatin1String("default"))
        QCOMPARE(doc->txtDoc().Text(), documents::DefaultTemplateText());
    else
        QCOMPARE(doc->txtDoc().Text(), text);
    QCOMPARE(doc->caption(), QStringLiteral("Untitled-1"));
    QVERIFY(doc->LocalFileName.isEmpty());
}

void tst_NewDocument::channelPagesAreFilledThroughTheirDialogs()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    installTemplate(env, QStringLiteral("NetCaster.tpl"),
                    "<TITLE>%Name%</TITLE>\r\n%url% every %Interval% min, %CacheSize% bytes, depth %Depth%, "
                    "%Active%/%Mode%/%Type%: %ButtonName%");
    installTemplate(env, QStringLiteral("ActiveChannel.tpl"),
                    "<CHANNEL HREF=\"%URL%\" SELF=\"%Self%\"><TITLE>%Name%</TITLE>%LongName%|%Abstract%|"
                    "%Frequency%|%ItemName%|%ItemURL%");
    QList<int> asked;
    bool cancel = false;
    documents::documentHooks().askChannelPage = [&](int kind) -> documents::DocumentHooks::PageFiller {
        asked << kind;
        if (cancel)
            return {};
        if (kind == NewDocModel::NetCaster) {
            const generators::NetCasterFields f{QStringLiteral("Daily"), QStringLiteral("http://x/"),
                                                QStringLiteral("30"), QStringLiteral("1024"), QStringLiteral("2"),
                                                QStringLiteral("webtop"), QStringLiteral("Add")};
            return [f](const QString &t) { return generators::FillNetCaster(t, f); };
        }
        const generators::ActiveChannelFields f{QStringLiteral("Ex"), QStringLiteral("4"), QStringLiteral("http://e/"),
                                                QStringLiteral("About"), QStringLiteral("Example"),
                                                QStringLiteral("Front"), QStringLiteral("f.html"),
                                                QStringLiteral("http://e/e.cdf")};
        return [f](const QString &t) { return generators::FillActiveChannel(t, f); };
    };
    NewDocModel model;
    model.kind = NewDocModel::NetCaster;
    documents::Document *doc = model.create();
    QVERIFY(doc);
    QCOMPARE(doc->txtDoc().Text(),
             QStringLiteral("<TITLE>Daily</TITLE>\r\nhttp://x/ every 30 min, 1024 bytes, depth 2, 1/webtop/1: Add"));
    model.kind = NewDocModel::ActiveChannel;
    doc = model.create();
    QVERIFY(doc);
    QCOMPARE(doc->txtDoc().Text(), QStringLiteral("<CHANNEL HREF=\"http://e/\" SELF=\"http://e/e.cdf\"><TITLE>Ex</TITLE>"
                                                  "Example|About|4|Front|f.html"));
    // Cancelling the dialog makes no document and says nothing.
    cancel = true;
    QVERIFY(!model.create());
    QCOMPARE(ws.count(), 2);
    QCOMPARE(asked, (QList<int>{NewDocModel::NetCaster, NewDocModel::ActiveChannel, NewDocModel::ActiveChannel}));
    QVERIFY(prompts.shown.isEmpty());
    documents::documentHooks().askChannelPage = nullptr;
}

void tst_NewDocument::saveAsTemplate()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("Untitled-1"), QStringLiteral("<P>mine</P>"));
    QVERIFY(!documents::SaveAsTemplate(*doc, QStringLiteral("  ")));
    QVERIFY(documents::SaveAsTemplate(*doc, QStringLiteral("Letter")));
    const QString path = core::JoinPath(documents::CustomTemplatesDirectory(), QStringLiteral("Letter.HTM"));
    QCOMPARE(doc->LocalFileName, path);
    QCOMPARE(doc->caption(), path);
    QCOMPARE(env.read(path), QByteArray("<P>mine</P>"));
}

void tst_NewDocument::shippedTemplates_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("markers");   // placeholders it must hold, and no others
    const QStringList pages = {QStringLiteral("HTML32.tpl"), QStringLiteral("Blank.tpl"), QStringLiteral("HTML1.tpl"),
                               QStringLiteral("HTML2.tpl"), QStringLiteral("HTML4.tpl"), QStringLiteral("IE3.tpl"),
                               QStringLiteral("IE4.tpl")};
    for (const QString &p : pages)
        QTest::newRow(qPrintable(p)) << p << QStringList();
    const QStringList netcaster = {QStringLiteral("%URL%"), QStringLiteral("%Name%"), QStringLiteral("%Interval%"),
                                   QStringLiteral("%CacheSize%"), QStringLiteral("%Depth%"), QStringLiteral("%Active%"),
                                   QStringLiteral("%Mode%"), QStringLiteral("%Type%"), QStringLiteral("%ButtonName%")};
    const QStringList channel = {QStringLiteral("%URL%"), QStringLiteral("%Name%"), QStringLiteral("%LongName%"),
                                 QStringLiteral("%Abstract%"), QStringLiteral("%Self%"), QStringLiteral("%Frequency%"),
                                 QStringLiteral("%ItemName%"), QStringLiteral("%ItemURL%")};
    QTest::newRow("NetCaster") << "NetCaster.tpl" << netcaster;
    QTest::newRow("NetCasterButton") << "NetCasterButton.tpl" << netcaster;
    QTest::newRow("ActiveChannel") << "ActiveChannel.tpl" << channel;
    QTest::newRow("ActiveChannelDef") << "ActiveChannelDef.tpl" << channel;
    QTest::newRow("ActiveChannelItem") << "ActiveChannelItem.tpl"
                                       << QStringList{QStringLiteral("%ItemName%"), QStringLiteral("%ItemURL%")};
}

void tst_NewDocument::shippedTemplates()
{
    QFETCH(QString, name);
    QFETCH(QStringList, markers);
    QFile file(kShipped + u'/' + name);
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
    const QString text = QString::fromLatin1(file.readAll());
    QVERIFY(!text.isEmpty());
    // Every line ends in CR LF.
    QCOMPARE(text.count(u'\n'), text.count(QStringLiteral("\r\n")));
    QCOMPARE(text.count(u'\r'), text.count(QStringLiteral("\r\n")));
    // Exactly the named placeholders, each in the case written.
    QStringList found;
    QRegularExpressionMatchIterator it = QRegularExpression(QStringLiteral("%[A-Za-z]+%")).globalMatch(text);
    while (it.hasNext())
        found << it.next().captured(0);
    found.removeDuplicates();
    found.sort();
    QStringList expected = markers;
    expected.sort();
    QCOMPARE(found, expected);
    // Pages are whole pages; each opening tag of the frame is closed.
    if (text.contains(QLatin1String("<HTML>"))) {
        for (const char *tag : {"HTML", "HEAD", "TITLE", "BODY"}) {
            const QString t = QString::fromLatin1(tag);
            QCOMPARE(text.count(u'<' + t + u'>') + text.count(u'<' + t + u' '), 1);
            QCOMPARE(text.count(QStringLiteral("</") + t + u'>'), 1);
        }
    }
}

QTEST_GUILESS_MAIN(tst_NewDocument)
#include "tst_newdocument.moc"
