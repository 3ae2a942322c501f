// The style library: the exact style sheet text of a record, a page's style
// block read and rewritten, imports, and the .qns file (round trip, cut and
// damaged files), against golden folders under tests/data/styles.

#include "core/Settings.h"
#include "generators/DocumentStyles.h"
#include "generators/StyleFile.h"
#include "generators/StyleLibrary.h"
#include "generators/StyleText.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QtTest>

using namespace qly;
using namespace qly::generators;

namespace {

QString dataDir()
{
    return QStringLiteral(TEST_DATA_DIR "/styles");
}

QByteArray readFile(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// "Field=Value" lines over a reset record; arrays as "Margin(0)".
StyleRecord parseRecord(const QString &text)
{
    QHash<QString, QString> values;
    for (const QString &line : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        values.insert(line.section(QLatin1Char('='), 0, 0), line.section(QLatin1Char('='), 1));
    StyleRecord r;
    const QStringList names = styleFieldNames();
    int i = 0;
    r.visit(
        [&](QString &s) {
            s = values.value(names.at(i++), s);
        },
        [&](qint16 &n) {
            n = qint16(values.value(names.at(i), QString::number(n)).toInt());
            ++i;
        });
    return r;
}

StyleLibrary libraryFrom(const test::TestEnv &env)
{
    StyleLibrary library(env.path(QStringLiteral("Styles")));
    const QDir dir(dataDir() + QStringLiteral("/library"));
    for (const QString &file : dir.entryList({QStringLiteral("*.txt")}))
        library.WriteStyleFile(parseRecord(QString::fromUtf8(readFile(dir.filePath(file)))));
    library.LoadStyleList();
    return library;
}

QString identity(const QString &s)
{
    return s;
}

StyleRecord randomRecord(QRandomGenerator &rng)
{
    StyleRecord r;
    r.visit(
        [&rng](QString &s) {
            const int length = rng.bounded(0, 40);
            s.clear();
            for (int i = 0; i < length; ++i)
                s += QChar(char16_t(rng.bounded(2) ? rng.bounded(0x20, 0x7F) : rng.bounded(0xA0, 0x100)));
        },
        [&rng](qint16 &n) { n = qint16(rng.bounded(-32768, 32768)); });
    return r;
}

} // namespace

class TestStyleSheets : public QObject
{
    Q_OBJECT
private slots:
    void styleText_data();
    void styleText();
    void readDocumentStyles_data();
    void readDocumentStyles();
    void writeDocumentStyles_data();
    void writeDocumentStyles();
    void libraryKeepsItsFiles();
    void qnsRoundTripAndDamage();
    void shippedStylesRead();
};

static void addCases(const QString &needing)
{
    QTest::addColumn<QString>("dir");
    const QDir root(dataDir());
    for (const QString &c : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (QFile::exists(root.filePath(c + QLatin1Char('/') + needing)))
            QTest::newRow(qPrintable(c)) << root.filePath(c);
    }
}

void TestStyleSheets::styleText_data()
{
    addCases(QStringLiteral("style.css"));
}

void TestStyleSheets::styleText()
{
    QFETCH(QString, dir);
    test::TestEnv env;
    StyleLibrary library(env.path(QStringLiteral("Styles")));
    QString name = QString::fromUtf8(readFile(dir + QStringLiteral("/name.txt"))).trimmed();
    if (QFile::exists(dir + QStringLiteral("/record.txt"))) {
        const StyleRecord record = parseRecord(QString::fromUtf8(readFile(dir + QStringLiteral("/record.txt"))));
        name = record.StyleName;
        // Through the file and back, as the editor meets it.
        QVERIFY(library.WriteStyleFile(record));
    }
    QCOMPARE(StyleText(name, library, identity).toUtf8(), readFile(dir + QStringLiteral("/style.css")));
}

void TestStyleSheets::readDocumentStyles_data()
{
    addCases(QStringLiteral("found.txt"));
}

void TestStyleSheets::readDocumentStyles()
{
    QFETCH(QString, dir);
    const DocumentStyles doc = ReadDocumentStyles(QString::fromUtf8(readFile(dir + QStringLiteral("/page.html"))));
    QString found;
    for (const QString &s : doc.styles)
        found += QStringLiteral("style\t") + s + QLatin1Char('\n');
    for (const QString &s : doc.imports)
        found += QStringLiteral("import\t") + s + QLatin1Char('\n');
    if (doc.brokenBlock)
        found += QStringLiteral("broken\n");
    QCOMPARE(found.toUtf8(), readFile(dir + QStringLiteral("/found.txt")));
}

void TestStyleSheets::writeDocumentStyles_data()
{
    addCases(QStringLiteral("expected.html"));
}

void TestStyleSheets::writeDocumentStyles()
{
    QFETCH(QString, dir);
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    StyleLibrary library = libraryFrom(env);
    const QString page = QString::fromUtf8(readFile(dir + QStringLiteral("/page.html")));
    test::FakeDocument *doc = workspace.addDocument(QStringLiteral("p"), page, env.path(QStringLiteral("p.htm")));
    doc->edit.SetSel(int(page.size()), int(page.size()));
    if (QFile::exists(dir + QStringLiteral("/import.txt"))) {
        AddStyleImport(doc->edit, QString::fromUtf8(readFile(dir + QStringLiteral("/import.txt"))).trimmed(),
                       library, identity);
    } else {
        DocumentStyles uses;
        for (const QString &line : QString::fromUtf8(readFile(dir + QStringLiteral("/uses.txt"))).split(
                 QLatin1Char('\n'), Qt::SkipEmptyParts))
            (line.startsWith(QLatin1String("import")) ? uses.imports : uses.styles) << line.section(QLatin1Char('\t'), 1);
        WriteDocumentStyles(doc->edit, uses, library, identity);
    }
    QCOMPARE(doc->edit.Text().toUtf8(), readFile(dir + QStringLiteral("/expected.html")));
    const QByteArray message = readFile(dir + QStringLiteral("/message.txt"));
    QCOMPARE(prompts.shown.isEmpty() ? QByteArray() : prompts.shown.last().text.toUtf8() + '\n', message);
    // What was written reads back as what was asked for.
    if (message.isEmpty() && QFile::exists(dir + QStringLiteral("/uses.txt")))
        QVERIFY(!ReadDocumentStyles(doc->edit.Text()).styles.isEmpty());
}

void TestStyleSheets::libraryKeepsItsFiles()
{
    test::TestEnv env;
    StyleLibrary library = libraryFrom(env);
    QCOMPARE(library.StyleNames(), (QStringList{QStringLiteral("Plain List"), QStringLiteral("Warning")}));
    QCOMPARE(library.StyleTags(), (QStringList{QStringLiteral("UL"), QStringLiteral("[none]")}));
    QCOMPARE(library.StyleClasses(), (QStringList{QStringLiteral("[none]"), QStringLiteral("warning")}));

    // A cut file and a file of other bytes: listed by name, told as damaged,
    // read as a reset record, and left as they are.
    const QString warning = library.fileOf(QStringLiteral("Warning"));
    const QByteArray good = readFile(warning);
    QVERIFY(good.size() % kStyleSlotLength == 0);
    const QString cut = library.fileOf(QStringLiteral("Cut"));
    QFile(warning).copy(cut);
    QFile::resize(cut, good.size() - kStyleSlotLength);
    const QString binary = library.fileOf(QStringLiteral("Binary"));
    QFile b(binary);
    QVERIFY(b.open(QIODevice::WriteOnly));
    b.write(QByteArray(3000, '\xA5'));
    b.close();
    library.LoadStyleList();
    QCOMPARE(library.StyleCount(), 4);
    QCOMPARE(library.damaged(), (QStringList{QStringLiteral("Binary"), QStringLiteral("Cut")}));
    StyleRecord r;
    QCOMPARE(library.ReadStyleFile(QStringLiteral("Cut"), r), StyleFileStatus::Damaged);
    QVERIFY(r == StyleRecord());
    QCOMPARE(readFile(binary), QByteArray(3000, '\xA5'));
    QCOMPARE(library.ReadStyleFile(QStringLiteral("Nobody"), r), StyleFileStatus::Missing);

    QVERIFY(library.RenameStyle(QStringLiteral("Warning"), QStringLiteral("Alert")));
    QVERIFY(!QFile::exists(warning));
    QCOMPARE(StyleFromList(QStringLiteral("Alert"), library).ClassName, QStringLiteral("warning"));
    QCOMPARE(core::ReadSetting(QStringLiteral("Styles"), QStringLiteral("Names")),
             QStringLiteral("Alert,Binary,Cut,Plain List"));
    library.DeleteStyle(QStringLiteral("Cut"));
    QVERIFY(!QFile::exists(cut));
    QCOMPARE(core::ReadSetting(QStringLiteral("Editing"), QStringLiteral("Styles")),
             QStringLiteral("Alert,Binary,Plain List"));
    QVERIFY(StyleFromList(QStringLiteral("[none]"), library) == StyleRecord());
}

// Random records survive the file; cut, flipped and random bytes never
// crash the reader, and a cut file is never taken for a good one.
void TestStyleSheets::qnsRoundTripAndDamage()
{
    QRandomGenerator rng(4242);
    for (int round = 0; round < 200; ++round) {
        const StyleRecord record = randomRecord(rng);
        const QByteArray bytes = encodeStyleFile(record);
        StyleRecord back;
        QCOMPARE(decodeStyleFile(bytes, back), StyleFileStatus::Ok);
        QVERIFY(back == record);

        const QByteArray cut = bytes.left(rng.bounded(int(bytes.size()) - kStyleSlotLength + 1));
        QCOMPARE(decodeStyleFile(cut, back), StyleFileStatus::Damaged);
        QVERIFY(back == StyleRecord());

        QByteArray flipped = bytes;
        for (int i = 0; i < 8; ++i)
            flipped[rng.bounded(int(flipped.size()))] = char(rng.bounded(256));
        decodeStyleFile(flipped, back);   // either answer; no crash, no hang

        QByteArray noise(rng.bounded(0, 5000), '\0');
        for (char &c : noise)
            c = char(rng.bounded(256));
        QCOMPARE(decodeStyleFile(noise, back), StyleFileStatus::Damaged);
    }
    // A reset record fills more than one slot; the end marker follows it.
    const QByteArray reset = encodeStyleFile(StyleRecord());
    QCOMPARE(reset.size(), 6 * kStyleSlotLength);
    QCOMPARE(reset.mid(kStyleSlotLength, 18), QByteArray("\x10\x00Style Definition", 18));
    QCOMPARE(reset.mid(5 * kStyleSlotLength, 22), QByteArray("\x14\x00" "End Style Definition", 22));
}

// The styles shipped in the program's data are whole files and give the
// rules they were written for.
void TestStyleSheets::shippedStylesRead()
{
    StyleLibrary shipped(QStringLiteral(TEST_DATA_DIR "/../../data/Styles"));
    shipped.LoadStyleList();
    QVERIFY(shipped.StyleCount() >= 5);
    QVERIFY(shipped.damaged().isEmpty());
    for (const QString &name : shipped.StyleNames())
        QCOMPARE(StyleText(name, shipped, identity).toUtf8(),
                 readFile(dataDir() + QStringLiteral("/shipped/") + name + QStringLiteral(".css")));
}

QTEST_GUILESS_MAIN(TestStyleSheets)
#include "tst_stylesheets.moc"
