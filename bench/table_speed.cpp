// The table editor's reader and generator on a large table.
//   bench_table_speed generate FILE [ROWS COLS]   writes the markup of a table
//   bench_table_speed run FILE [ROUNDS]            reads it back and regenerates it
#include "generators/TableModel.h"
#include "generators/TableReader.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace qly;
using generators::TableModel;

namespace {

// A table as the editor makes it: a caption, one heading row and column,
// cells of a few words with some markup in them.
QString makeTable(int rows, int cols)
{
    TableModel m;
    m.setField(TableModel::Rows, QString::number(rows));
    m.setField(TableModel::Columns, QString::number(cols));
    m.setField(TableModel::BorderWidth, QStringLiteral("1"));
    m.setField(TableModel::Width, QStringLiteral("\"100%\""));
    m.setField(TableModel::Caption, QStringLiteral("Stock list"));
    m.setField(TableModel::HeadingRows, QStringLiteral("1"));
    m.setField(TableModel::HeadingCols, QStringLiteral("1"));
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < cols; ++c)
            m.setCell(r, c, r == 0   ? QStringLiteral("Column %1").arg(c + 1)
                            : c == 0 ? QStringLiteral("Item %1").arg(r)
                                     : QStringLiteral("<B>%1</B> pieces, caf\u00e9 &amp; bar").arg(r * cols + c));
    return m.BuildTable();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() >= 3 && args.at(1) == QStringLiteral("generate")) {
        const int rows = args.size() > 3 ? args.at(3).toInt() : 1000;
        const int cols = args.size() > 4 ? args.at(4).toInt() : 10;
        QFile f(args.at(2));
        if (!f.open(QIODevice::WriteOnly))
            return 1;
        f.write(makeTable(rows, cols).toUtf8());
        return 0;
    }
    if (args.size() < 3 || args.at(1) != QStringLiteral("run")) {
        std::fprintf(stderr, "usage: bench_table_speed generate FILE [ROWS COLS] | run FILE [ROUNDS]\n");
        return 2;
    }
    QFile f(args.at(2));
    if (!f.open(QIODevice::ReadOnly))
        return 1;
    const QString markup = QString::fromUtf8(f.readAll());
    const int rounds = args.size() > 3 ? args.at(3).toInt() : 5;
    std::vector<double> read;
    std::vector<double> build;
    int rows = 0;
    int cols = 0;
    for (int i = 0; i < rounds; ++i) {
        TableModel m;
        QElapsedTimer clock;
        clock.start();
        generators::LoadTableFromSelection(m, markup);
        read.push_back(double(clock.nsecsElapsed()) / 1e6);
        clock.restart();
        const QString again = m.BuildTable();
        build.push_back(double(clock.nsecsElapsed()) / 1e6);
        if (again != markup) {
            std::fprintf(stderr, "the regenerated table differs from the input\n");
            return 1;
        }
        rows = m.rowCount();
        cols = m.colCount();
    }
    std::sort(read.begin(), read.end());
    std::sort(build.begin(), build.end());
    std::printf("table %d x %d, %.2f MB: read back %.1f-%.1f ms, regenerate %.1f-%.1f ms, together at most %.1f ms"
                " (%d rounds, output identical)\n",
                rows, cols, double(markup.toUtf8().size()) / 1048576.0, read.front(), read.back(), build.front(),
                build.back(), read.back() + build.back(), rounds);
    return 0;
}
