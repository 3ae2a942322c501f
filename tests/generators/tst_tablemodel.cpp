#include "core/Settings.h"
#include "generators/TableModel.h"
#include "generators/TableReader.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QtTest>

using namespace qly;
using generators::TableModel;

namespace {

const QString kCases = QStringLiteral(TEST_DATA_DIR "/tables");

const char *const kFieldNames[] = {"Caption", "Border Width", "Columns", "Rows", "Heading Cols",
                                   "Heading Rows", "Height", "Width", "Cell Padding", "Cell Spacing"};

QByteArray readBytes(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QString escaped(QString text)
{
    return text.replace(QStringLiteral("\\"), QStringLiteral("\\\\"))
        .replace(QStringLiteral("\t"), QStringLiteral("\\t"))
        .replace(QStringLiteral("\r"), QStringLiteral("\\r"))
        .replace(QStringLiteral("\n"), QStringLiteral("\\n"));
}

QString unescaped(const QString &text)
{
    QString out;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) != u'\\' || i + 1 == text.size()) {
            out += text.at(i);
            continue;
        }
        const QChar c = text.at(++i);
        out += c == u't' ? QChar(u'\t') : c == u'r' ? QChar(u'\r') : c == u'n' ? QChar(u'\n') : c;
    }
    return out;
}

// The model as the golden files write it: the fields, the caption's place,
// the grid's size and heading bands, then one line of cells per row (tabs
// between cells, escapes for tabs and line ends inside them).
QString dump(const TableModel &m)
{
    QString out;
    for (int i = 0; i < TableModel::FieldCount; ++i)
        out += QLatin1String(kFieldNames[i]) + u'=' + escaped(m.field(i)) + u'\n';
    out += QStringLiteral("Caption Place=%1\n").arg(m.captionAtBottom() ? u"bottom" : u"top");
    out += QStringLiteral("Grid=%1x%2\nBands=%3x%4\n").arg(m.rowCount()).arg(m.colCount()).arg(m.fixedRows()).arg(m.fixedCols());
    for (int r = 0; r < m.rowCount(); ++r) {
        QStringList cells;
        for (int c = 0; c < m.colCount(); ++c)
            cells << escaped(m.cell(r, c));
        out += cells.join(u'\t') + u'\n';
    }
    return out;
}

// Reads the same form; "Grid" sizes the grid before the cells go in.
void load(TableModel &m, const QString &text)
{
    const QStringList lines = text.split(u'\n');
    int row = -1;
    for (const QString &line : lines) {
        if (row >= 0 && !line.startsWith(QStringLiteral("Bands="))) {
            if (line.isEmpty())
                break;
            const QStringList cells = line.split(u'\t');
            for (int c = 0; c < int(cells.size()); ++c)
                m.setCell(row, c, unescaped(cells.at(c)));
            ++row;
            continue;
        }
        const QString key = line.section(u'=', 0, 0);
        const QString value = unescaped(line.section(u'=', 1));
        for (int i = 0; i < TableModel::FieldCount; ++i)
            if (key == QLatin1String(kFieldNames[i]))
                m.setField(i, value);
        if (key == QStringLiteral("Caption Place"))
            m.setCaptionAtBottom(value == QStringLiteral("bottom"));
        if (key == QStringLiteral("Grid")) {
            m.setRowCount(value.section(u'x', 0, 0).toInt());
            m.setColCount(value.section(u'x', 1).toInt());
            row = 0;
            continue;
        }
    }
}

// A random cell text that the markup can carry: no tags, no leading star.
QString randomText(QRandomGenerator &rng, int maxLength)
{
    static const QString alphabet = QStringLiteral("abcXYZ019 &;\"'>=.\t\r\n\u00e9\u20ac");
    QString s;
    const int n = int(rng.bounded(maxLength + 1));
    for (int i = 0; i < n; ++i)
        s += alphabet.at(rng.bounded(int(alphabet.size())));
    return s;
}

} // namespace

class tst_TableModel : public QObject
{
    Q_OBJECT
private slots:
    void goldenCases_data();
    void goldenCases();
    void fieldsDriveTheGrid();
    void pastedTextGrowsTheGrid();
    void noParseForTable();
    void rowsAndColumnsAddedAndRemoved();
    void splitTagAttributes_data();
    void splitTagAttributes();
    void builtTablesReadBack();
    void randomInputNeverBreaksTheReader();
    void largeBrokenTablesStayFast();
    void cancelKeepsRowsRead();
};

// Each case folder holds a model ("model.txt") or a selection
// ("selection.html") as input, and what must come of it: the markup
// ("expected.html", CR LF as generated) and for a selection the model read
// ("expected-model.txt").
void tst_TableModel::goldenCases_data()
{
    QTest::addColumn<QString>("dir");
    const QStringList cases = QDir(kCases).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    QVERIFY(cases.size() >= 20);
    for (const QString &c : cases)
        QTest::newRow(qPrintable(c)) << kCases + u'/' + c;
}

void tst_TableModel::goldenCases()
{
    QFETCH(QString, dir);
    test::TestEnv env;
    TableModel model;
    if (QFile::exists(dir + QStringLiteral("/model.txt"))) {
        load(model, QString::fromUtf8(readBytes(dir + QStringLiteral("/model.txt"))));
    } else {
        generators::LoadTableFromSelection(model, QString::fromUtf8(readBytes(dir + QStringLiteral("/selection.html"))));
        QCOMPARE(dump(model), QString::fromUtf8(readBytes(dir + QStringLiteral("/expected-model.txt"))));
    }
    if (QFile::exists(dir + QStringLiteral("/expected.html")))
        QCOMPARE(model.BuildTable(), QString::fromUtf8(readBytes(dir + QStringLiteral("/expected.html"))));
}

void tst_TableModel::fieldsDriveTheGrid()
{
    test::TestEnv env;
    TableModel m;
    QCOMPARE(m.rowCount(), 6);
    QCOMPARE(m.colCount(), 2);
    QCOMPARE(m.field(TableModel::Rows), QStringLiteral("6"));

    // Nothing above 0 leaves the grid as it is; the field keeps the text typed.
    m.setField(TableModel::Rows, QStringLiteral("abc"));
    QCOMPARE(m.rowCount(), 6);
    QCOMPARE(m.field(TableModel::Rows), QStringLiteral("abc"));
    m.setField(TableModel::Columns, QStringLiteral(" 4x"));
    QCOMPARE(m.colCount(), 4);
    m.setCell(5, 3, QStringLiteral("kept"));
    m.setField(TableModel::Rows, QStringLiteral("9"));
    QCOMPARE(m.cell(5, 3), QStringLiteral("kept"));

    // Heading bands stay below the size: the field is rewritten one less.
    m.setField(TableModel::HeadingCols, QStringLiteral("4"));
    QCOMPARE(m.field(TableModel::HeadingCols), QStringLiteral("3"));
    QCOMPARE(m.fixedCols(), 3);
    m.setField(TableModel::HeadingRows, QStringLiteral("2"));
    QCOMPARE(m.fixedRows(), 2);
    m.setField(TableModel::Rows, QStringLiteral("2"));
    QCOMPARE(m.fixedRows(), 1);

    // A huge number is cut to the grid's limit rather than exhausting memory.
    m.setField(TableModel::Rows, QStringLiteral("99999999999"));
    QCOMPARE(m.rowCount(), 65536);
    QCOMPARE(generators::NumericValue(QStringLiteral("2.5")), 2);
    QCOMPARE(generators::NumericValue(QStringLiteral("3.5")), 4);
    QCOMPARE(generators::NumericValue(QStringLiteral("-7 rows")), -7);
}

void tst_TableModel::pastedTextGrowsTheGrid()
{
    test::TestEnv env;
    TableModel m;
    m.moveTo(4, 1);
    // Spreadsheet text: LF line ends, tab-separated, more rows and columns than the grid.
    m.InsertText(QStringLiteral("a\tb\tc\nd\te\tf\ng\n"), false);
    QCOMPARE(m.rowCount(), 7);
    QCOMPARE(m.colCount(), 4);
    QCOMPARE(m.field(TableModel::Columns), QStringLiteral("4"));
    QCOMPARE(m.cell(4, 1), QStringLiteral("a"));
    QCOMPARE(m.cell(5, 3), QStringLiteral("f"));
    QCOMPARE(m.cell(6, 1), QStringLiteral("g"));
    QCOMPARE(m.row(), 6);
    QCOMPARE(m.col(), 1);
    // A smaller paste never shrinks it.
    m.moveTo(0, 0);
    m.InsertText(QStringLiteral("x\r\n"), false);
    QCOMPARE(m.rowCount(), 7);
    QCOMPARE(m.colCount(), 4);
    QCOMPARE(m.cell(0, 0), QStringLiteral("x"));
}

void tst_TableModel::noParseForTable()
{
    test::TestEnv env;
    core::WriteSetting(QStringLiteral("Editing"), QStringLiteral("No Parse For Table"), QStringLiteral("Yes"));
    TableModel m;
    m.moveTo(1, 1);
    m.InsertText(QStringLiteral("one\ttwo\r\nthree\r\n"), true);
    QCOMPARE(m.cell(1, 1), QStringLiteral("one\ttwo"));
    QCOMPARE(m.rowCount(), 6);
    QCOMPARE(m.field(TableModel::Rows), QStringLiteral("6"));
}

void tst_TableModel::rowsAndColumnsAddedAndRemoved()
{
    test::TestEnv env;
    TableModel m;
    m.setField(TableModel::Rows, QStringLiteral("2"));
    m.setCell(0, 0, QStringLiteral("a"));
    m.setCell(1, 1, QStringLiteral("d"));
    m.insertRow(1);
    m.insertCol(0);
    QCOMPARE(m.field(TableModel::Rows), QStringLiteral("3"));
    QCOMPARE(m.field(TableModel::Columns), QStringLiteral("3"));
    QCOMPARE(m.cell(0, 1), QStringLiteral("a"));
    QCOMPARE(m.cell(2, 2), QStringLiteral("d"));
    m.removeRow(0);
    m.removeCol(1);
    QCOMPARE(m.cell(1, 1), QStringLiteral("d"));
    QCOMPARE(m.rowCount(), 2);
    QCOMPARE(m.colCount(), 2);
    m.removeCol(0);
    m.removeCol(0);
    QCOMPARE(m.colCount(), 1);
    QCOMPARE(m.cell(1, 0), QStringLiteral("d"));
}

void tst_TableModel::splitTagAttributes_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QStringList>("attributes");
    QTest::newRow("plain") << QStringLiteral("<TABLE BORDER=1  WIDTH=\"50%\">")
                           << QStringList{QStringLiteral("BORDER=1"), QStringLiteral("WIDTH=\"50%\"")};
    QTest::newRow("blank in quotes") << QStringLiteral("<table summary=\"a b\" x>")
                                     << QStringList{QStringLiteral("summary=\"a b\""), QStringLiteral("x")};
    QTest::newRow("unbalanced quote runs to the end") << QStringLiteral("<TABLE A=\"x B=2>")
                                                      << QStringList{QStringLiteral("A=\"x B=2")};
    QTest::newRow("no blank keeps the name") << QStringLiteral("<TABLE>") << QStringList{QStringLiteral("<TABLE")};
    QTest::newRow("empty") << QString() << QStringList();
    QTest::newRow("tab is no blank") << QStringLiteral("<TABLE BORDER=1\tWIDTH=2>")
                                     << QStringList{QStringLiteral("BORDER=1\tWIDTH=2")};
}

void tst_TableModel::splitTagAttributes()
{
    QFETCH(QString, tag);
    QFETCH(QStringList, attributes);
    QCOMPARE(generators::SplitTagAttributes(tag), attributes);
}

// A table the model builds reads back into the same model.
void tst_TableModel::builtTablesReadBack()
{
    test::TestEnv env;
    QRandomGenerator rng(15);
    for (int round = 0; round < 300; ++round) {
        TableModel m;
        const int rows = 1 + int(rng.bounded(12));
        const int cols = 1 + int(rng.bounded(7));
        m.setField(TableModel::Rows, QString::number(rows));
        m.setField(TableModel::Columns, QString::number(cols));
        for (int r = 0; r < rows; ++r)
            for (int c = 0; c < cols; ++c)
                m.setCell(r, c, randomText(rng, 8).remove(QRegularExpression(QStringLiteral("^\\*+"))));
        for (const int f : {TableModel::BorderWidth, TableModel::Height, TableModel::Width, TableModel::CellPadding,
                            TableModel::CellSpacing})
            if (rng.bounded(2))
                m.setField(f, rng.bounded(2) ? QString::number(rng.bounded(500)) : QStringLiteral("\"50%\""));
        if (rng.bounded(2)) {
            m.setField(TableModel::Caption, QStringLiteral("Cap ") + randomText(rng, 10));
            m.setCaptionAtBottom(rng.bounded(2));
        }
        m.setField(TableModel::HeadingRows, QString::number(rng.bounded(rows)));
        m.setField(TableModel::HeadingCols, QString::number(rng.bounded(cols)));
        m.moveTo(0, 0);

        TableModel back;
        generators::LoadTableFromSelection(back, QStringLiteral("<p>before</p>\r\n") + m.BuildTable());
        // "Rows" and "Columns" come back as the grid's size.
        m.setField(TableModel::Rows, QString::number(rows));
        m.setField(TableModel::Columns, QString::number(cols));
        back.moveTo(0, 0);
        QCOMPARE(dump(back), dump(m));
    }
}

// Bytes of any kind, and fragments of tables in any order: the reader keeps
// what it can, makes a grid of sane size and returns.
void tst_TableModel::randomInputNeverBreaksTheReader()
{
    test::TestEnv env;
    QRandomGenerator rng(1015);
    static const char *const pieces[] = {"<TABLE", "<table border=\"1\" ", "<TR", "<tr>", "</TR>", "<TD", "<td>",
                                         "</TD>", "<TH>", "</th>", "<CAPTION", "</CAPTION>", "/TABLE>", "</table>",
                                         ">", "\"", " ", "*", "\t", "\r\n", "x", "=", "<"};
    QElapsedTimer clock;
    clock.start();
    for (int round = 0; round < 3000; ++round) {
        QString input;
        const int n = int(rng.bounded(200));
        if (round % 2) {
            QByteArray bytes(n, 0);
            for (char &b : bytes)
                b = char(rng.bounded(256));
            input = QStringLiteral("<TABLE ") + QString::fromLatin1(bytes) + QStringLiteral("</TABLE>");
        } else {
            for (int i = 0; i < n; ++i)
                input += QLatin1String(pieces[rng.bounded(int(std::size(pieces)))]);
        }
        TableModel m;
        generators::LoadTableFromSelection(m, input);
        QVERIFY(m.rowCount() >= 1 && m.rowCount() <= 256);
        QVERIFY(m.colCount() >= 1 && m.colCount() <= 256);
        QVERIFY(m.BuildTable().endsWith(QStringLiteral("</TABLE>\r\n")));
    }
    QVERIFY2(clock.elapsed() < 60000, "the reader took too long on random input");
}

void tst_TableModel::largeBrokenTablesStayFast()
{
    test::TestEnv env;
    // 1,000 rows with every end tag missing, then 1,000 with spans and
    // nested tables: each reads in well under the time a user would wait.
    QString noEnds = QStringLiteral("<TABLE BORDER=1>");
    QString spans = QStringLiteral("<TABLE>");
    for (int r = 0; r < 1000; ++r) {
        noEnds += QStringLiteral("<TR><TD>%1<TD>b").arg(r);
        spans += QStringLiteral("<TR><TD ROWSPAN=2>%1</TD><TD COLSPAN=\"3\">x</TD><TH>h</TH></TR>\r\n").arg(r);
    }
    noEnds += QStringLiteral("</TABLE>");
    spans += QStringLiteral("</TABLE>");
    QElapsedTimer clock;
    clock.start();
    TableModel a;
    generators::LoadTableFromSelection(a, noEnds);
    // Rows without end tags come as rows without cells.
    QCOMPARE(a.rowCount(), 1000);
    QCOMPARE(a.cell(0, 0), QString());
    TableModel b;
    generators::LoadTableFromSelection(b, spans);
    QCOMPARE(b.rowCount(), 1000);
    QCOMPARE(b.colCount(), 3);
    QCOMPARE(b.cell(999, 0), QStringLiteral("999"));
    QCOMPARE(b.field(TableModel::HeadingCols), QStringLiteral("1"));
    QCOMPARE(b.cell(999, 2), QStringLiteral("h"));
    QVERIFY(clock.elapsed() < 5000);
}

void tst_TableModel::cancelKeepsRowsRead()
{
    test::TestEnv env;
    QString table = QStringLiteral("<TABLE>");
    for (int r = 0; r < 50; ++r)
        table += QStringLiteral("<TR><TD>%1</TD></TR>").arg(r);
    table += QStringLiteral("</TABLE>");
    int asked = 0;
    TableModel m;
    generators::LoadTableFromSelection(m, table, [&asked] { return ++asked > 10; });
    QCOMPARE(m.rowCount(), 10);
    QCOMPARE(m.cell(9, 0), QStringLiteral("9"));
}

QTEST_GUILESS_MAIN(tst_TableModel)
#include "tst_tablemodel.moc"
