#include "generators/TableModel.h"

#include "core/Feedback.h"
#include "core/Settings.h"

#include <algorithm>
#include <cmath>

namespace qly::generators {

namespace {

// What the grid holds at most; a larger number typed into a field is cut to it.
constexpr int MaxRows = 65536;
constexpr int MaxCols = 1024;

const QString CrLf = QStringLiteral("\r\n");

} // namespace

int NumericValue(const QString &text)
{
    qsizetype i = 0;
    while (i < text.size() && (text.at(i) == QLatin1Char(' ') || text.at(i) == QLatin1Char('\t')))
        ++i;
    bool negative = false;
    if (i < text.size() && (text.at(i) == QLatin1Char('-') || text.at(i) == QLatin1Char('+')))
        negative = text.at(i++) == QLatin1Char('-');
    double value = 0;
    while (i < text.size() && text.at(i).isDigit() && text.at(i).unicode() < 128 && value < 1e12)
        value = value * 10 + (text.at(i++).unicode() - '0');
    if (i < text.size() && text.at(i) == QLatin1Char('.')) {
        double scale = 0.1;
        for (++i; i < text.size() && text.at(i).unicode() >= '0' && text.at(i).unicode() <= '9'; ++i) {
            value += (text.at(i).unicode() - '0') * scale;
            scale /= 10;
        }
    }
    // Whole numbers as the old runtime rounded them: a half to the even neighbour.
    value = std::min(std::rint(value), 2147483647.0);
    return negative ? -int(value) : int(value);
}

QString TableProgressText(int row, int col)
{
    return QStringLiteral("Row: %1   Col: %2").arg(row).arg(col);
}

TableModel::TableModel()
{
    resize(2, 2);
    setField(Rows, QStringLiteral("6"));
    setField(Columns, QStringLiteral("2"));
}

void TableModel::resize(int rows, int cols)
{
    rows = std::clamp(rows, 1, MaxRows);
    cols = std::clamp(cols, 1, MaxCols);
    if (rows == m_rows && cols == m_cols)
        return;
    if (cols == m_cols) {
        m_cells.resize(size_t(rows) * size_t(cols));
    } else {
        std::vector<QString> cells(size_t(rows) * size_t(cols));
        const int keepRows = std::min(rows, m_rows);
        const int keepCols = std::min(cols, m_cols);
        for (int r = 0; r < keepRows; ++r)
            for (int c = 0; c < keepCols; ++c)
                cells[size_t(r) * size_t(cols) + size_t(c)] = std::move(m_cells[size_t(r) * size_t(m_cols) + size_t(c)]);
        m_cells = std::move(cells);
    }
    m_rows = rows;
    m_cols = cols;
    m_row = std::min(m_row, m_rows - 1);
    m_col = std::min(m_col, m_cols - 1);
    m_fixedRows = std::min(m_fixedRows, m_rows - 1);
    m_fixedCols = std::min(m_fixedCols, m_cols - 1);
}

void TableModel::setRowCount(int rows)
{
    resize(rows, m_cols);
}

void TableModel::setColCount(int cols)
{
    resize(m_rows, cols);
}

QString TableModel::cell(int row, int col) const
{
    if (row < 0 || col < 0 || row >= m_rows || col >= m_cols)
        return {};
    return m_cells[size_t(row) * size_t(m_cols) + size_t(col)];
}

void TableModel::setCell(int row, int col, const QString &text)
{
    if (row < 0 || col < 0 || row >= m_rows || col >= m_cols)
        return;
    m_cells[size_t(row) * size_t(m_cols) + size_t(col)] = text;
}

void TableModel::moveTo(int row, int col)
{
    m_row = std::clamp(row, 0, m_rows - 1);
    m_col = std::clamp(col, 0, m_cols - 1);
}

QString TableModel::field(int index) const
{
    return index >= 0 && index < FieldCount ? m_fields[index] : QString();
}

int TableModel::fieldValue(int index) const
{
    return NumericValue(field(index));
}

void TableModel::setField(int index, const QString &text)
{
    if (index < 0 || index >= FieldCount)
        return;
    m_fields[index] = text;
    const int value = NumericValue(text);
    switch (index) {
    case Columns:
        if (value > 0)
            setColCount(value);
        break;
    case Rows:
        if (value > 0)
            setRowCount(value);
        break;
    case HeadingCols:
        if (value < m_cols)
            m_fixedCols = std::max(value, 0);
        else
            setField(index, QString::number(m_cols - 1));
        break;
    case HeadingRows:
        if (value < m_rows)
            m_fixedRows = std::max(value, 0);
        else
            setField(index, QString::number(m_rows - 1));
        break;
    default:
        break;
    }
}

void TableModel::insertRow(int at)
{
    at = std::clamp(at, 0, m_rows);
    if (m_rows >= MaxRows)
        return;
    m_cells.insert(m_cells.begin() + qsizetype(at) * m_cols, size_t(m_cols), QString());
    ++m_rows;
    m_fields[Rows] = QString::number(m_rows);
}

void TableModel::removeRow(int at)
{
    if (m_rows <= 1 || at < 0 || at >= m_rows)
        return;
    const auto first = m_cells.begin() + qsizetype(at) * m_cols;
    m_cells.erase(first, first + m_cols);
    --m_rows;
    m_fields[Rows] = QString::number(m_rows);
    m_row = std::min(m_row, m_rows - 1);
    m_fixedRows = std::min(m_fixedRows, m_rows - 1);
}

void TableModel::insertCol(int at)
{
    at = std::clamp(at, 0, m_cols);
    if (m_cols >= MaxCols)
        return;
    std::vector<QString> cells;
    cells.reserve(size_t(m_rows) * size_t(m_cols + 1));
    for (int r = 0; r < m_rows; ++r)
        for (int c = 0; c <= m_cols; ++c)
            cells.push_back(c == at ? QString() : std::move(m_cells[size_t(r) * size_t(m_cols) + size_t(c > at ? c - 1 : c)]));
    m_cells = std::move(cells);
    ++m_cols;
    m_fields[Columns] = QString::number(m_cols);
}

void TableModel::removeCol(int at)
{
    if (m_cols <= 1 || at < 0 || at >= m_cols)
        return;
    std::vector<QString> cells;
    cells.reserve(size_t(m_rows) * size_t(m_cols - 1));
    for (int r = 0; r < m_rows; ++r)
        for (int c = 0; c < m_cols; ++c)
            if (c != at)
                cells.push_back(std::move(m_cells[size_t(r) * size_t(m_cols) + size_t(c)]));
    m_cells = std::move(cells);
    --m_cols;
    m_fields[Columns] = QString::number(m_cols);
    m_col = std::min(m_col, m_cols - 1);
    m_fixedCols = std::min(m_fixedCols, m_cols - 1);
}

QString TableModel::BuildTable() const
{
    QString out = QStringLiteral("<TABLE ").trimmed();
    const struct {
        const char *name;
        Field field;
    } attributes[] = {{" BORDER=", BorderWidth}, {" WIDTH=", Width}, {" HEIGHT=", Height},
                      {" CELLPADDING=", CellPadding}, {" CELLSPACING=", CellSpacing}};
    for (const auto &a : attributes)
        if (!m_fields[a.field].isEmpty())
            out += QLatin1String(a.name) + m_fields[a.field];
    out += QLatin1Char('>') + CrLf;
    if (!m_fields[Caption].isEmpty())
        out += QStringLiteral("<CAPTION ALIGN=") + (m_captionBottom ? QStringLiteral("bottom") : QStringLiteral("top"))
               + QLatin1Char('>') + m_fields[Caption] + QStringLiteral("</CAPTION>") + CrLf;

    const int headRows = fieldValue(HeadingRows);
    const int headCols = fieldValue(HeadingCols);
    for (int r = 0; r < m_rows; ++r) {
        out += QStringLiteral("<TR>") + CrLf;
        for (int c = 0; c < m_cols; ++c) {
            if (r % 20 == 0 && c == 0)
                core::ShowStatus(TableProgressText(r, c));
            const bool plain = r >= headRows && c >= headCols;
            out += plain ? QStringLiteral("\t<TD>") : QStringLiteral("\t<TH>");
            out += m_cells[size_t(r) * size_t(m_cols) + size_t(c)];
            out += plain ? QStringLiteral("</TD>") : QStringLiteral("</TH>");
            out += CrLf;
        }
        out += CrLf + QStringLiteral("</TR>") + CrLf;
    }
    out += QStringLiteral("</TABLE>") + CrLf;
    return out;
}

void TableModel::InsertText(const QString &text, bool setRowCount)
{
    // Lines end in CR LF in the system's own text; text from other programs
    // on this desktop ends them in LF, so every kind of line end counts.
    QString body = text;
    if (body.endsWith(CrLf))
        body.chop(2);
    else if (body.endsWith(QLatin1Char('\n')) || body.endsWith(QLatin1Char('\r')))
        body.chop(1);
    body.replace(CrLf, QStringLiteral("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    const QStringList lines = body.split(QLatin1Char('\n'));

    if (core::ReadSettingFlag(QStringLiteral("Editing"), QStringLiteral("No Parse For Table"))) {
        setText(lines.first());
        return;
    }
    if (lines.first().isEmpty())
        return;

    const int col0 = m_col;
    const int lineCount = int(lines.size());
    if (m_rows < lineCount + m_row)
        setField(Rows, QString::number(lineCount + m_row));
    for (int i = 0; i < lineCount; ++i) {
        const QStringList cells = lines.at(i).split(QLatin1Char('\t'));
        if (fieldValue(Columns) < int(cells.size()) + col0)
            setField(Columns, QString::number(int(cells.size()) + col0));
        for (int j = 0; j < int(cells.size()); ++j)
            setCell(m_row, col0 + j, cells.at(j));
        m_col = col0;
        if (i < lineCount - 1) {
            moveTo(m_row + 1, col0);
            if (m_row % 20 == 0 && m_col == 0)
                core::ShowStatus(TableProgressText(m_row, m_col));
        }
    }
    if (setRowCount)
        setField(Rows, QString::number(lineCount));
}

} // namespace qly::generators
