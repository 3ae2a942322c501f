#include "core/Paths.h"
#include "core/ui/Help.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QUrl>
#include <QUrlQuery>
#include <QWebEnginePage>
#include <QtTest>

using namespace qly;

// The help as shipped: topics by name, and the search page, which runs in
// the same browser engine the preview uses.
class tst_Help : public QObject
{
    Q_OBJECT
private slots:
    void topicsFallBackToTheContents();
    void searchFindsThePagesThatHoldAllWords();
};

void tst_Help::topicsFallBackToTheContents()
{
    core::setProgramDirectory(QStringLiteral(PROGRAM_DATA_DIR));
    const QString help = QStringLiteral(PROGRAM_DATA_DIR "/help/");
    QCOMPARE(core::ui::helpTopicPath(QStringLiteral("frmFind")), help + QStringLiteral("frmFind.html"));
    QCOMPARE(core::ui::helpTopicPath(QStringLiteral("frmNoSuchDialog")), help + QStringLiteral("index.html"));
    QCOMPARE(core::ui::helpTopicPath(QStringLiteral("../help/frmFind")), help + QStringLiteral("index.html"));
    QCOMPARE(core::ui::helpTopicPath(QString()), help + QStringLiteral("index.html"));
    // Every page the contents link to is there.
    QFile index(help + QStringLiteral("index.html"));
    QVERIFY(index.open(QIODevice::ReadOnly));
    const QString contents = QString::fromUtf8(index.readAll());
    static const QRegularExpression link(QStringLiteral("href=\"([^\"#]+\\.html)\""));
    int links = 0;
    for (auto it = link.globalMatch(contents); it.hasNext(); ++links) {
        const QString target = it.next().captured(1);
        QVERIFY2(QFile::exists(help + target), qPrintable(target));
    }
    QVERIFY(links >= 20);
}

void tst_Help::searchFindsThePagesThatHoldAllWords()
{
    QWebEnginePage page;
    auto results = [&page](const QString &words) {
        QUrl url = QUrl::fromLocalFile(QStringLiteral(PROGRAM_DATA_DIR "/help/search.html"));
        url.setQuery(QStringLiteral("q=") + QString::fromLatin1(QUrl::toPercentEncoding(words)));
        QSignalSpy loaded(&page, &QWebEnginePage::loadFinished);
        page.load(url);
        if (!loaded.wait(20000))
            return QStringList{QStringLiteral("not loaded")};
        QStringList pages;
        bool done = false;
        page.runJavaScript(QStringLiteral("Array.from(document.querySelectorAll('#results a'))"
                                          ".map(function (a) { return a.getAttribute('href'); })"),
                           [&](const QVariant &v) {
                               pages = v.toStringList();
                               done = true;
                           });
        QElapsedTimer waited;
        waited.start();
        while (!done && waited.elapsed() < 10000)
            QTest::qWait(20);
        return done ? pages : QStringList{QStringLiteral("no answer")};
    };
    const QStringList spelling = results(QStringLiteral("Dictionary word"));
    QVERIFY(spelling.contains(QStringLiteral("frmSpeller.html")));
    QVERIFY(!spelling.contains(QStringLiteral("menu-window.html")));
    // The title counts more: the page named for the words comes first.
    QCOMPARE(results(QStringLiteral("multi-file")).value(0), QStringLiteral("frmGrep.html"));
    QVERIFY(results(QStringLiteral("zzyzx")).isEmpty());
}

QTEST_MAIN(tst_Help)
#include "tst_help.moc"
