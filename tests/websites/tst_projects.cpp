#include "core/Settings.h"
#include "websites/Password.h"
#include "websites/ProjectFile.h"
#include "websites/ProjectManagerModel.h"
#include "websites/TimeSpent.h"
#include "websites/WebsiteList.h"
#include "websites/Websites.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace qly;
using namespace qly::websites;

class tst_Projects : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { CloseAllWebsites(); }
    void passwords();
    void timeSpent();
    void openAndCloseKeepTheKeyZeroRule();
    void damagedProjectsAreNamedAndLeftAlone_data();
    void damagedProjectsAreNamedAndLeftAlone();
    void readerSurvivesRandomBytes();
    void managerSavesANewWebsite();
    void passwordInTheSecretStore();
};

void tst_Projects::passwords()
{
    const QString enc = QStringLiteral("ENC"), dec = QStringLiteral("DEC");
    QCOMPARE(ScramblePassword(QStringLiteral("abc"), enc), QStringLiteral("42,7,6"));
    QCOMPARE(ScramblePassword(QStringLiteral("42,7,6"), dec), QStringLiteral("abc"));
    for (const QString &p : {QStringLiteral("secret password longer than the key"), QStringLiteral("Grüße €")})
        QCOMPARE(ScramblePassword(ScramblePassword(p, enc), dec), p);
    // One character gives one code, which unscrambles to itself: no ",".
    QCOMPARE(ScramblePassword(QStringLiteral("a"), enc), QStringLiteral("42"));
    QCOMPARE(ScramblePassword(QStringLiteral("42"), dec), QStringLiteral("42"));
    QCOMPARE(ScramblePassword(QString(), enc), QString());
    QCOMPARE(XorWithKey(XorWithKey(QStringLiteral("xyz"))), QStringLiteral("xyz"));
    QVERIFY(IsWellFormedScrambled(QStringLiteral("clear")));
    QVERIFY(!IsWellFormedScrambled(QStringLiteral("42,7,")));
    QVERIFY(!IsWellFormedScrambled(QStringLiteral("42,700")));
}

void tst_Projects::timeSpent()
{
    const QList<QPair<const char *, const char *>> cases = {
        {"59", "59 minutes"}, {"60", "60 minutes"}, {"61", "1 hours 1 minutes"}, {"90", "2 hours "},
        {"1500", "25 hours "}, {"0", ""}, {"", ""}, {"150", "2 hours 30 minutes"}, {"200000", "3333 hours 20 minutes"}};
    for (const auto &[in, out] : cases)
        QCOMPARE(CalculateTimeSpent(QString::fromLatin1(in)), QString::fromLatin1(out));
}

void tst_Projects::openAndCloseKeepTheKeyZeroRule()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    const QString a = env.write(QStringLiteral("site/a.htm"), "a"), b = env.write(QStringLiteral("site/b.htm"), "b"),
                  c = env.write(QStringLiteral("site/c.htm"), "c");
    // Key 0 missing: the list starts at 1; two missing keys end it.
    const QString prj = env.write(QStringLiteral("site.prj"),
                                  ("[Details]\r\nName=My Site\r\nLocal Directory=" + env.path(QStringLiteral("site")).toUtf8()
                                   + "\r\nPassword=42,7,6\r\n[Files]\r\n1=" + a.toUtf8() + "\r\n2=" + b.toUtf8()
                                   + "\r\n4=" + c.toUtf8() + "\r\n"));
    QVERIFY(OpenWebsite(prj));
    WebsiteList &list = WebsiteList::instance();
    const int id = list.CurrentWebsite();
    QVERIFY(id >= 0);
    QCOMPARE(list.website(id)->name, QStringLiteral("My Site"));
    QCOMPARE(list.website(id)->password, QStringLiteral("abc"));
    QCOMPARE(list.website(id)->files, QStringList({a, b}));
    QVERIFY(!ReadProjectValue(prj, QStringLiteral("Details"), QStringLiteral("Last Opened")).isEmpty());
    QVERIFY(prompts.shown.isEmpty());
    // Opening it again selects it.
    QVERIFY(OpenWebsite(prj));
    QCOMPARE(list.WebsiteCount(), 1);

    // Closing writes from key 0; key 4 survives although no file is there.
    list.RemoveWebsiteFile(id, 0);
    CloseWebsite(id);
    QCOMPARE(list.WebsiteCount(), 0);
    QCOMPARE(ReadProjectValue(prj, QStringLiteral("Files"), QStringLiteral("0")), b);
    QCOMPARE(ReadProjectValue(prj, QStringLiteral("Files"), QStringLiteral("2")), b);
    QCOMPARE(ReadProjectValue(prj, QStringLiteral("Files"), QStringLiteral("4")), c);
    QCOMPARE(ReadProjectFiles(prj), QStringList({b, a, b}));

    // A website without files joins the tree but reports false.
    const QString empty = env.write(QStringLiteral("empty.prj"), "[Details]\nName=Empty\n");
    QVERIFY(!OpenWebsite(empty));
    QCOMPARE(list.WebsiteCount(), 1);
    // A missing folder is told, naming the project.
    const QString lost = env.write(QStringLiteral("lost.prj"), "[Details]\nName=Lost\nLocal Directory=/no/such/dir\n");
    OpenWebsite(lost);
    QCOMPARE(prompts.shown.size(), 1);
    QVERIFY(prompts.shown.first().text.contains(lost));
    // A byte order mark in front is no damage.
    QVERIFY(OpenWebsite(env.write(QStringLiteral("bom.prj"), "\xEF\xBB\xBF[Details]\r\nName=Bom\r\n[Files]\r\n0=" + a.toUtf8() + "\r\n")));
    QCOMPARE(prompts.shown.size(), 1);
    // A path that does not exist stops silently.
    QVERIFY(!OpenWebsite(env.path(QStringLiteral("none.prj"))));
    QCOMPARE(prompts.shown.size(), 1);
}

void tst_Projects::damagedProjectsAreNamedAndLeftAlone_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    QTest::newRow("cut short") << QByteArray("[Details]\r\nName=Site\r\n[Fil") << QStringLiteral("cut short");
    QTest::newRow("cut in a key") << QByteArray("[Details]\r\nName=Site\r\n[Files]\r\n0") << QStringLiteral("cut short");
    QTest::newRow("duplicate") << QByteArray("[Details]\nName=Site\n[Files]\n0=a\n0=b\n") << QStringLiteral("twice");
    QTest::newRow("no name") << QByteArray("[Details]\nHost=h\n") << QStringLiteral("no website name");
    QTest::newRow("binary") << QByteArray("\x7f" "ELF\x02\x01\x01\0\0\0", 10) << QStringLiteral("binary");
    QTest::newRow("password") << QByteArray("[Details]\nName=Site\nPassword=42,7,6,\n") << QStringLiteral("password");
}

void tst_Projects::damagedProjectsAreNamedAndLeftAlone()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    const QString prj = env.write(QStringLiteral("bad.prj"), bytes);
    QVERIFY(!OpenWebsite(prj));
    QCOMPARE(WebsiteList::instance().WebsiteCount(), 0);
    QCOMPARE(prompts.shown.size(), 1);
    QVERIFY2(prompts.shown.first().text.contains(prj) && prompts.shown.first().text.contains(reason),
             qPrintable(prompts.shown.first().text));
    QCOMPARE(env.read(QStringLiteral("bad.prj")), bytes);
}

void tst_Projects::readerSurvivesRandomBytes()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    const QList<QByteArray> pieces = {"[Details]", "[Files]", "Name=", "Site", "0=", "1=", "Password=", "42,", "7",
                                      "\r\n", "\n", "=", "[", "]", "\0", "\xff", " ", ";c"};
    QRandomGenerator rng(99);
    for (int round = 0; round < 400; ++round) {
        QByteArray bytes;
        for (int i = rng.bounded(0, 30); i > 0; --i)
            bytes += pieces.at(rng.bounded(int(pieces.size())));
        const QString prj = env.write(QStringLiteral("r.prj"), bytes);
        const QString problem = ProjectFileProblem(prj);
        const bool opened = OpenWebsite(prj) || WebsiteList::instance().WebsiteCount() > 0;
        // A file is either refused with its name, or it opens.
        QVERIFY(problem.isEmpty() == opened || (problem.isEmpty() && ReadProjectFiles(prj).isEmpty()));
        if (!problem.isEmpty())
            QCOMPARE(env.read(QStringLiteral("r.prj")), bytes);
        CloseAllWebsites();
    }
}

void tst_Projects::managerSavesANewWebsite()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    core::WriteSetting(QStringLiteral("General"), QStringLiteral("Default Web Server"), QStringLiteral("ftp.example.com"));
    ProjectManagerModel m;
    m.LoadWebsiteForm();
    QCOMPARE(m.txtWebServer, QStringLiteral("ftp.example.com"));
    // No name: told, and the dialog stays.
    QVERIFY(!m.SaveWebsiteForm());
    QCOMPARE(prompts.shown.last().title, QStringLiteral("Website Name Missing"));
    m.txtName = QStringLiteral("  Spaced  ");
    m.txtPassword = QStringLiteral("abc");
    m.txtDocuments = QStringLiteral("/docs");
    m.WriteProjINI(QStringLiteral("Details"), QStringLiteral("Host"), QStringLiteral("x"));
    QCOMPARE(prompts.shown.last().text, QStringLiteral("That project setting will cannot be saved. Sorry"));
    const QString prj = env.path(QStringLiteral("Spaced.prj"));
    prompts.chooseFiles({prj});
    QVERIFY(m.SaveWebsiteForm());
    QCOMPARE(prompts.fileRequests.last().fileName, QStringLiteral("  Spaced  "));
    QCOMPARE(ReadProjectValue(prj, QStringLiteral("Details"), QStringLiteral("Name")), QStringLiteral("Spaced"));
    QCOMPARE(ReadProjectValue(prj, QStringLiteral("Details"), QStringLiteral("Password")), QStringLiteral("42,7,6"));
    QCOMPARE(ReadProjectValue(prj, QStringLiteral("Directories"), QStringLiteral("Documents")), QStringLiteral("/docs"));
    QVERIFY(!ReadProjectValue(prj, QStringLiteral("Details"), QStringLiteral("Created")).isEmpty());
    QCOMPARE(WebsiteList::instance().website(m.id())->password, QStringLiteral("abc"));
    // The timer reset asks first.
    prompts.answer(platform::Answer::Yes);
    m.ResetTimer();
    QCOMPARE(ReadProjectValue(prj, QStringLiteral("Details"), QStringLiteral("Time Spent")), QStringLiteral("0"));
    QCOMPARE(prompts.unanswered, 0);
}

void tst_Projects::passwordInTheSecretStore()
{
    test::TestEnv env;
    QHash<QString, QString> vault;
    SecretStore &store = secretStore();
    store.write = [&](const QString &k, const QString &v) { vault.insert(k, v); return true; };
    store.read = [&](const QString &k) -> std::optional<QString> { return vault.value(k); };
    store.remove = [&](const QString &k) { vault.remove(k); };
    const QString prj = env.write(QStringLiteral("s.prj"), "[Details]\r\nName=S\r\nPassword=42,7,6\r\n");
    QVERIFY(StoreProjectPassword(prj, QStringLiteral("new secret"), true));
    QVERIFY(!env.read(QStringLiteral("s.prj")).contains("Password="));
    QVERIFY(env.read(QStringLiteral("s.prj")).contains("Password Store=keyring"));
    QCOMPARE(ProjectPassword(prj), QStringLiteral("new secret"));
    QCOMPARE(vault.size(), 1);
    // Back to the file: scrambled there, gone from the store.
    QVERIFY(!StoreProjectPassword(prj, QStringLiteral("abc"), false));
    QCOMPARE(ReadProjectValue(prj, QStringLiteral("Details"), QStringLiteral("Password")), QStringLiteral("42,7,6"));
    QVERIFY(vault.isEmpty());
    QCOMPARE(ProjectPassword(prj), QStringLiteral("abc"));
    store = SecretStore{};
    // Without a store the wish falls back to the file.
    QVERIFY(!StoreProjectPassword(prj, QStringLiteral("abc"), true));
    QCOMPARE(ProjectPassword(prj), QStringLiteral("abc"));
}

QTEST_GUILESS_MAIN(tst_Projects)
#include "tst_projects.moc"
