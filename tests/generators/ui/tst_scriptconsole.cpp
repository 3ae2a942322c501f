// The scripts the templates produce, run in the browser engine: no error
// reaches the console and the clock and the scrolling field do their work.
// It needs a real display for the engine: it runs under Xvfb (see
// tests/CMakeLists.txt).
#include "generators/JavaApplets.h"
#include "generators/ReplaceChannel.h"
#include "generators/ScriptTemplates.h"
#include "generators/TextEffectsModel.h"
#include "markup/TagPrimitives.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QFile>
#include <QWebEnginePage>
#include <QtTest>

using namespace qly;
using namespace qly::generators;

class tst_ScriptConsole : public QObject
{
    Q_OBJECT
private slots:
    void clockBannerAndChannelPage();
    void scrollingField();
};

namespace {

QString shipped(const QString &path)
{
    QFile file(QStringLiteral(TEST_DATA_DIR "/../../data/") + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

const QString kPage = QStringLiteral("<HTML>\r\n<HEAD>\r\n<TITLE>t</TITLE>\r\n</HEAD>\r\n<body bgcolor=\"#FFFFFF\">\r\n"
                                     "\r\n</BODY>\r\n</HTML>\r\n");

class ConsolePage : public QWebEnginePage
{
public:
    QStringList errors;
    QStringList all;

protected:
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString &message, int line,
                                  const QString &) override
    {
        all << message;
        if (level == ErrorMessageLevel)
            errors << QStringLiteral("%1: %2").arg(line).arg(message);
    }
    bool javaScriptConfirm(const QUrl &, const QString &) override { return false; }
    void javaScriptAlert(const QUrl &, const QString &msg) override { errors << QStringLiteral("alert ") + msg; }
};

// Loads the page and gives its timers time to run.
void load(ConsolePage &page, const QString &html)
{
    QSignalSpy loaded(&page, &QWebEnginePage::loadFinished);
    page.setHtml(html, QUrl(QStringLiteral("file:///tmp/page.html")));
    QVERIFY(loaded.wait(20000));
    QVERIFY(loaded.first().first().toBool());
    QTest::qWait(1500);
}

QString evaluate(QWebEnginePage &page, const QString &script)
{
    QString result;
    bool done = false;
    page.runJavaScript(script, [&](const QVariant &v) {
        result = v.toString();
        done = true;
    });
    QElapsedTimer timer;
    timer.start();
    while (!done && timer.elapsed() < 10000)
        QTest::qWait(20);
    return done ? result : QStringLiteral("(no answer)");
}

} // namespace

void tst_ScriptConsole::clockBannerAndChannelPage()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("page"), kPage);
    const int caret = int(kPage.indexOf(QLatin1String("\r\n</BODY>")));
    doc->edit.SetSel(caret, caret);
    QVERIFY(InsertClock(doc->edit, QStringLiteral("10"), shipped(QStringLiteral("JavaScripts/Clock.tpl"))));

    QString extra = RandomBannerText(shipped(QStringLiteral("JavaScripts/AdSpace.tpl")),
                                     {{QStringLiteral("a.gif"), QStringLiteral("a.html"), QStringLiteral("<B>\"Big\" sale</B>")},
                                      {QStringLiteral("b.gif"), QStringLiteral("b.html"), QString()}});
    extra += shipped(QStringLiteral("JavaScripts/LastUpdated.tpl"));
    extra += SelectUrlText({{QStringLiteral("Home"), QStringLiteral("index.html")}});
    PopupFields popup;
    popup.url = QStringLiteral("help.html");
    popup.width = QStringLiteral("300");
    popup.height = QStringLiteral("200");
    extra += PopupText(popup);
    NetCasterFields nc;
    nc.name = QStringLiteral("News");
    nc.interval = QStringLiteral("60");
    nc.cacheSize = QStringLiteral("1000");
    nc.depth = QStringLiteral("1");
    nc.buttonName = QStringLiteral("Add");
    extra += FillNetCaster(shipped(QStringLiteral("Templates/NetCasterButton.tpl")), nc);
    TextEffectsModel effect;
    effect.effect = QStringLiteral("Wave");
    extra += effect.CreateApplet(true) + JavaLEDText(QStringLiteral("Sale"), 0xFF0000, 0, true);
    const int end = int(doc->edit.Text().indexOf(QLatin1String("</BODY>")));
    doc->edit.SetSel(end, end);
    markup::InsertMarkup(extra, QString(), true);
    QVERIFY(prompts.shown.isEmpty());

    ConsolePage page;
    load(page, doc->edit.Text());
    QVERIFY2(page.errors.isEmpty(), qPrintable(page.errors.join(u'\n')));
    QVERIFY(QRegularExpression(QStringLiteral("^\\d+:\\d\\d:\\d\\d$"))
                .match(evaluate(page, QStringLiteral("document.lfcinput.lfcname.value")))
                .hasMatch());
    QCOMPARE(evaluate(page, QStringLiteral("String(document.querySelectorAll('a img').length)")), QStringLiteral("1"));
    QVERIFY(evaluate(page, QStringLiteral("document.body.innerText")).contains(QLatin1String("Last updated: ")));
    QCOMPARE(evaluate(page, QStringLiteral("typeof addChannel")), QStringLiteral("function"));
    // The fallbacks are shown and move.
    QCOMPARE(evaluate(page, QStringLiteral("String(document.getAnimations().length)")), QStringLiteral("2"));
}

void tst_ScriptConsole::scrollingField()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace ws;
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("page"), kPage);
    const int caret = int(kPage.indexOf(QLatin1String("\r\n</BODY>")));
    doc->edit.SetSel(caret, caret);
    QVERIFY(InsertScrolling(doc->edit, QStringLiteral("Welcome to our \"new\" site"), QStringLiteral("30"),
                            shipped(QStringLiteral("JavaScripts/Scrolling.tpl"))));
    ConsolePage page;
    load(page, doc->edit.Text());
    QVERIFY2(page.errors.isEmpty(), qPrintable(page.errors.join(u'\n')));
    // The text runs through the field (a page without a view gets its timers slowly).
    QStringList seen;
    for (int i = 0; i < 40 && seen.size() < 3; ++i) {
        const QString value = evaluate(page, QStringLiteral("document.scrollform.scrolling.value"));
        if (!value.isEmpty() && !seen.contains(value))
            seen << value;
        QTest::qWait(250);
    }
    QVERIFY2(seen.size() == 3, qPrintable(seen.join(u'|')));
    // Each value is the message turned round by some places, quotes and all.
    for (const QString &value : seen)
        QVERIFY2((value + value).contains(QLatin1String("Welcome to our \"new\" site")), qPrintable(value));
}

QTEST_MAIN(tst_ScriptConsole)
#include "tst_scriptconsole.moc"
