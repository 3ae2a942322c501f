#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"
#include "texttools/FileEntries.h"
#include "texttools/GrepModel.h"
#include "texttools/StagedWrites.h"
#include "texttools/TermMatcher.h"
#include "core/TextCodec.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace qly;
using namespace qly::texttools;

class tst_MultiFile : public QObject
{
    Q_OBJECT
private slots:
    void entriesKeepTheExtensionLength();
    void findListsEachFileOnce();
    void byteSearchAgreesWithDecodedSearch();
    void findMessages();
    void replaceWithBackupsAndConversions();
    void namesChangeExtensionAndCase();
    void failuresAreToldAndTheRestGoesOn();
    void cancelStops();
    void stagedWritesKeepWhatIsNotTheirs();
    void vanishedFileEndsItsEntry();
    void commandLineTwin();
};

namespace {

// Records what a run shows and stops after `stopAfter` files when asked.
struct Recorder : GrepProgress {
    QStringList found;
    QStringList processed;
    int stopAfter = -1;
    QString removeWhenAt;    // takes a file away while the run goes on
    QString removed;
    void processing(const QString &path, int, int) override
    {
        processed << path;
        if (path == removeWhenAt)
            QFile::remove(removed);
    }
    bool cancelled() override { return stopAfter >= 0 && processed.size() >= stopAfter; }
    void addToFoundList(const QString &line) override { found << line; }
};

QString name(const QString &path)
{
    return QFileInfo(path).fileName();
}

} // namespace

void tst_MultiFile::byteSearchAgreesWithDecodedSearch()
{
    // Random pages in both encodings from an alphabet with the characters
    // that fold across the ASCII line (KELVIN SIGN, LONG S), accents and
    // cp1252's own letters; random terms, ASCII and not. The byte search must
    // give what a search of the decoded text gives.
    const QString alphabet = QStringLiteral("aAkKsSiIzZ <>=\"\r\n") + QChar(0x212A) + QChar(0x17F) + QChar(0xE9) +
                             QChar(0xC9) + QChar(0x160) + QChar(0x161) + QChar(0x130) + QChar(0x131);
    QRandomGenerator rng(20261123);
    auto randomText = [&](int length) {
        QString t;
        for (int i = 0; i < length; ++i)
            t += alphabet.at(rng.bounded(int(alphabet.size())));
        return t;
    };
    int hits = 0;
    for (int round = 0; round < 3000; ++round) {
        QList<Term> terms;
        const int count = 1 + rng.bounded(2);
        for (int i = 0; i < count; ++i)
            terms << Term{randomText(1 + rng.bounded(3)), {}};
        const QString page = randomText(rng.bounded(60));
        const auto encoding = rng.bounded(2) ? core::TextEncoding::Utf8 : core::TextEncoding::Windows1252;
        const QByteArray bytes = core::encodeText(page, encoding);
        const QString decoded = core::decodeFile(bytes).text;
        bool expected = false;
        for (const Term &t : terms)
            expected = expected || decoded.contains(t.find, Qt::CaseInsensitive);
        hits += expected;
        QVERIFY2(TermMatcher(terms).matches(bytes) == expected,
                 qPrintable(QStringLiteral("terms %1 in %2").arg(terms.first().find, decoded)));
    }
    QVERIFY(hits > 300 && hits < 2700);   // both answers were exercised
}

void tst_MultiFile::entriesKeepTheExtensionLength()
{
    test::TestEnv env;
    QDir().mkpath(env.path(QStringLiteral("w/sub")));
    for (const char *n : {"w/a.htm", "w/b.html", "w/c.HTM", "w/README", "w/d.txt"})
        env.write(QString::fromLatin1(n), "x");
    QStringList names;
    for (const QString &p : ExpandEntry(env.path(QStringLiteral("w/*.htm"))))
        names << name(p);
    QCOMPARE(names, (QStringList{QStringLiteral("a.htm"), QStringLiteral("c.HTM")}));
    names.clear();
    for (const QString &p : ExpandEntry(DirectoryEntry(env.path(QStringLiteral("w")))))
        names << name(p);
    // "*.*" takes every file, with a point or without; not the directory.
    QCOMPARE(names.size(), 5);
    QVERIFY(names.contains(QStringLiteral("README")));
    QCOMPARE(ExpandEntry(env.path(QStringLiteral("w/d.txt"))), QStringList{env.path(QStringLiteral("w/d.txt"))});
    // "*.ht?" would take both on the file system; the length test keeps only three-letter extensions.
    QCOMPARE(ExpandEntry(env.path(QStringLiteral("w/*.ht?"))).size(), 2);
}

void tst_MultiFile::findListsEachFileOnce()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    env.write(QStringLiteral("w/a.htm"), "<B>Hello</B> world");
    env.write(QStringLiteral("w/b.htm"), "nothing here");
    env.write(QStringLiteral("w/c.htm"), "HELLO");
    env.write(QStringLiteral("w/e.htm"), QByteArray("hello\0binary", 12));
    GrepModel m;
    m.entries << env.path(QStringLiteral("w/*.htm"));
    m.terms << Term{QStringLiteral("hello"), {}} << Term{QStringLiteral("world"), {}} << Term{{}, QStringLiteral("x")};
    Recorder r;
    const GrepSummary s = m.FindAndPresentFiles(r);
    // A file that two terms match is listed once; the binary file is passed over.
    QCOMPARE(s.files, 2);
    QCOMPARE(r.found, (QStringList{env.path(QStringLiteral("w/a.htm")), env.path(QStringLiteral("w/c.htm")), QString(),
                                   QStringLiteral("------End of Search Results------"), QString()}));
    QVERIFY(prompts.shown.isEmpty());
}

void tst_MultiFile::findMessages()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    env.write(QStringLiteral("w/a.htm"), "text");
    GrepModel m;
    Recorder r;
    m.FindAndPresentFiles(r);
    QCOMPARE(prompts.texts(), QStringList{QStringLiteral("No files have been specified.")});
    m.entries << env.path(QStringLiteral("w/*.*"));
    m.FindAndPresentFiles(r);
    QCOMPARE(prompts.texts().last(), QStringLiteral("There's nothing to search for!"));
    m.terms << Term{QStringLiteral("absent"), {}};
    m.FindAndPresentFiles(r);
    QCOMPARE(prompts.texts().last(), QStringLiteral("No matching files found."));
    QVERIFY(r.found.isEmpty());
}

void tst_MultiFile::replaceWithBackupsAndConversions()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    env.write(QStringLiteral("w/a.htm"), "<A HREF=\"x\\y.htm\">Old</A>\r\nold\r\n");
    env.write(QStringLiteral("w/b.htm"), "no term\r\n");
    env.write(QStringLiteral("w/c.htm"), "caf\xe9 OLD\r\n");   // Windows-1252 stays Windows-1252
    GrepModel m;
    m.entries << env.path(QStringLiteral("w/*.htm"));
    m.terms << Term{QStringLiteral("old"), QStringLiteral("new")};
    m.options.backup = true;
    m.options.conversion = LineEndConversion::DosToUnix;
    Recorder r;
    const GrepSummary s = m.NewReplace(r);
    QCOMPARE(s.replacements, 3L);
    QCOMPARE(s.files, 3);
    QCOMPARE(prompts.texts(), QStringList{QStringLiteral("3 replacements made\r\n\r\n3 files processed.")});
    QCOMPARE(env.read(QStringLiteral("w/a.htm")), QByteArray("<A HREF=\"x/y.htm\">new</A>\nnew\n"));
    QCOMPARE(env.read(QStringLiteral("w/b.htm")), QByteArray("no term\n"));
    QCOMPARE(env.read(QStringLiteral("w/c.htm")), QByteArray("caf\xe9 new\n"));
    // Every file has its backup, changed or not, with the old bytes.
    QCOMPARE(env.read(QStringLiteral("w/a.bak")), QByteArray("<A HREF=\"x\\y.htm\">Old</A>\r\nold\r\n"));
    QCOMPARE(env.read(QStringLiteral("w/b.bak")), QByteArray("no term\r\n"));

    // No terms with a conversion: the files are converted, 0 replacements.
    prompts.shown.clear();
    m.terms.clear();
    m.options.backup = false;
    m.options.conversion = LineEndConversion::UnixToDos;
    QCOMPARE(m.NewReplace(r).replacements, 0L);
    QCOMPARE(prompts.texts(), QStringList{QStringLiteral("0 replacements made\r\n\r\n3 files processed.")});
    QCOMPARE(env.read(QStringLiteral("w/a.htm")), QByteArray("<A HREF=\"x\\y.htm\">new<\\A>\r\nnew\r\n"));
    // No terms and no conversion: nothing to do.
    m.options.conversion = LineEndConversion::None;
    m.NewReplace(r);
    QCOMPARE(prompts.texts().last(), QStringLiteral("There's nothing to search for!"));
}

void tst_MultiFile::namesChangeExtensionAndCase()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    env.write(QStringLiteral("w/My Page.HTM"), "a");
    env.write(QStringLiteral("w/OTHER.txt"), "a");
    GrepModel m;
    m.entries << env.path(QStringLiteral("w/*.*"));
    m.terms << Term{QStringLiteral("a"), QStringLiteral("b")};
    m.options.htmToHtml = true;
    m.options.nameCase = NameCase::Mixed;
    Recorder r;
    QCOMPARE(m.NewReplace(r).files, 2);
    QStringList names = QDir(env.path(QStringLiteral("w"))).entryList(QDir::Files, QDir::Name);
    // The .htm is written as .html beside the old file, then renamed.
    QCOMPARE(names, (QStringList{QStringLiteral("My Page.HTM"), QStringLiteral("My Page.html"), QStringLiteral("Other.txt")}));
    QCOMPARE(env.read(QStringLiteral("w/My Page.html")), QByteArray("b"));
    QCOMPARE(CasedPath(QStringLiteral("/A/B/Index Of PAGES.HTML"), NameCase::Lower), QStringLiteral("/A/B/index of pages.html"));
}

void tst_MultiFile::failuresAreToldAndTheRestGoesOn()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    env.write(QStringLiteral("w/a.htm"), "old");
    const QString locked = env.write(QStringLiteral("w/b.htm"), "old");
    env.write(QStringLiteral("w/c.htm"), "old");
    env.write(QStringLiteral("w/d.htm"), QByteArray("old\0\1\2", 6));
    QFile::setPermissions(locked, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    GrepModel m;
    m.entries << env.path(QStringLiteral("w/*.htm"));
    m.terms << Term{QStringLiteral("old"), QStringLiteral("new")};
    Recorder r;
    const GrepSummary s = m.NewReplace(r);
    QFile::setPermissions(locked, QFile::ReadOwner | QFile::WriteOwner);
    QCOMPARE(s.files, 2);
    QCOMPARE(s.failures.size(), 2);
    QVERIFY(s.failures.at(0).startsWith(locked + QStringLiteral(": ")));
    QVERIFY(s.failures.at(1).contains(QStringLiteral("binary")));
    QCOMPARE(env.read(QStringLiteral("w/a.htm")), QByteArray("new"));
    QCOMPARE(env.read(QStringLiteral("w/b.htm")), QByteArray("old"));
    QCOMPARE(env.read(QStringLiteral("w/c.htm")), QByteArray("new"));
    QCOMPARE(env.read(QStringLiteral("w/d.htm")), QByteArray("old\0\1\2", 6));
    // One error box names them, then the count box.
    QCOMPARE(prompts.shown.size(), 2);
    QVERIFY(prompts.shown.at(0).text.contains(locked));
    QCOMPARE(prompts.shown.at(1).text, QStringLiteral("2 replacements made\r\n\r\n2 files processed."));
    // No temporary file is left beside the files.
    QCOMPARE(QDir(env.path(QStringLiteral("w"))).entryList(QDir::Files).size(), 4);
}

void tst_MultiFile::cancelStops()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    for (int i = 0; i < 5; ++i)
        env.write(QStringLiteral("w/%1.htm").arg(i), "old");
    GrepModel m;
    m.entries << env.path(QStringLiteral("w/*.htm"));
    m.terms << Term{QStringLiteral("old"), QStringLiteral("new")};
    Recorder r;
    r.stopAfter = 2;
    const GrepSummary s = m.NewReplace(r);
    QVERIFY(s.cancelled);
    QCOMPARE(s.files, 2);
    QCOMPARE(env.read(QStringLiteral("w/1.htm")), QByteArray("new"));
    QCOMPARE(env.read(QStringLiteral("w/2.htm")), QByteArray("old"));
}

void tst_MultiFile::stagedWritesKeepWhatIsNotTheirs()
{
    // Batches of two, so old files left by the exchanges are reused as the
    // later temporaries: the texts must all be right, a page with a second
    // name must not have its old inode reused, modes stay, nothing is left.
    test::TestEnv env;
    QStringList pages;
    QList<ino_t> oldInodes;
    auto inode = [](const QString &path) {
        struct stat st {};
        return ::stat(QFile::encodeName(path).constData(), &st) == 0 ? st.st_ino : ino_t(0);
    };
    for (int i = 0; i < 7; ++i) {
        pages << env.write(QStringLiteral("w/p%1.html").arg(i), "old " + QByteArray::number(i));
        oldInodes << inode(pages.last());
    }
    QFile::setPermissions(pages[0], QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    const QString link = env.path(QStringLiteral("link.txt"));
    QCOMPARE(::link(QFile::encodeName(pages[1]).constData(), QFile::encodeName(link).constData()), 0);
    {
        StagedWrites writes(RewriteOptions{}, 2);
        for (int i = 0; i < pages.size(); ++i)
            writes.add(i, pages[i], {}, "new " + QByteArray::number(i) + QByteArray(i * 1000, 'x'));
        for (const QString &failure : writes.finish())
            QVERIFY2(failure.isEmpty(), qPrintable(failure));
    }
    bool reused = false;
    for (int i = 0; i < pages.size(); ++i) {
        QCOMPARE(env.read(QStringLiteral("w/p%1.html").arg(i)), "new " + QByteArray::number(i) + QByteArray(i * 1000, 'x'));
        QVERIFY(inode(pages[i]) != oldInodes[1]);
        reused = reused || oldInodes.contains(inode(pages[i]));
    }
    QVERIFY(reused);
    QCOMPARE(env.read(QStringLiteral("link.txt")), QByteArray("old 1"));
    struct stat st {};
    QCOMPARE(::stat(QFile::encodeName(pages[0]).constData(), &st), 0);
    QCOMPARE(st.st_mode & 0777, mode_t(0640));
    QCOMPARE(QDir(env.path(QStringLiteral("w"))).entryList(QDir::Files | QDir::Hidden).size(), pages.size());
}

void tst_MultiFile::vanishedFileEndsItsEntry()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    for (const char *n : {"w/a.htm", "w/b.htm", "w/c.htm", "v/d.htm"})
        env.write(QString::fromLatin1(n), "old");
    GrepModel m;
    m.entries << env.path(QStringLiteral("w/*.htm")) << env.path(QStringLiteral("v/*.htm"));
    m.terms << Term{QStringLiteral("old"), QStringLiteral("new")};
    Recorder r;
    r.removeWhenAt = env.path(QStringLiteral("w/a.htm"));
    r.removed = env.path(QStringLiteral("w/b.htm"));
    const GrepSummary s = m.NewReplace(r);
    // b.htm went away after the listing: told, and c.htm of that entry is not
    // reached; the next entry goes on.
    QCOMPARE(prompts.shown.at(0).text, QStringLiteral("File not found.: ") + r.removed);
    QCOMPARE(s.files, 2);
    QCOMPARE(env.read(QStringLiteral("w/c.htm")), QByteArray("old"));
    QCOMPARE(env.read(QStringLiteral("v/d.htm")), QByteArray("new"));
}

void tst_MultiFile::commandLineTwin()
{
    test::TestEnv env;
    env.write(QStringLiteral("w/a.htm"), "Old\r\n");
    env.write(QStringLiteral("w/b.html"), "old");
    env.write(QStringLiteral("w/c.htm"), "none");
    const QString cli = QStringLiteral(PROGRAM_DATA_DIR "/quillery-cli");
    auto run = [&](const QStringList &arguments, QByteArray &out, QByteArray &err) {
        QProcess p;
        p.start(cli, QStringList{QStringLiteral("--ini"), env.ini()} + arguments);
        p.waitForFinished(60000);
        out = p.readAllStandardOutput();
        err = p.readAllStandardError();
        return p.exitCode();
    };
    env.write(QStringLiteral("quillery.ini"), "");
    QByteArray out, err;
    const QString entry = env.path(QStringLiteral("w/*.htm"));
    QCOMPARE(run({QStringLiteral("find"), QStringLiteral("-e"), QStringLiteral("OLD"), entry}, out, err), 0);
    QCOMPARE(out, (env.path(QStringLiteral("w/a.htm")) + QStringLiteral("\n")).toLocal8Bit());
    QCOMPARE(run({QStringLiteral("replace"), QStringLiteral("--backup"), QStringLiteral("--dos-to-unix"),
                  QStringLiteral("--htm-to-html"), QStringLiteral("-e"), QStringLiteral("old"), QStringLiteral("new"),
                  entry},
                 out, err),
             0);
    QVERIFY(err.contains("1 replacements made"));
    QCOMPARE(env.read(QStringLiteral("w/a.html")), QByteArray("new\n"));
    QCOMPARE(env.read(QStringLiteral("w/a.bak")), QByteArray("Old\r\n"));
    QCOMPARE(env.read(QStringLiteral("w/b.html")), QByteArray("old"));
    QCOMPARE(run({QStringLiteral("find"), QStringLiteral("-e"), QStringLiteral("zzz"), entry}, out, err), 1);
    QCOMPARE(run({QStringLiteral("replace"), QStringLiteral("--bogus"), entry}, out, err), 2);
}

QTEST_GUILESS_MAIN(tst_MultiFile)
#include "tst_multifile.moc"
