#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace qly::generators {

// The table editor's model: a grid of plain cell strings with a cursor, the
// ten parameter fields and the caption's place. It produces the <TABLE>
// markup and takes tab-separated text; TableReader fills it from markup.
class TableModel
{
public:
    // The parameter fields, by index.
    enum Field {
        Caption = 0,
        BorderWidth = 1,
        Columns = 2,
        Rows = 3,
        HeadingCols = 4,
        HeadingRows = 5,
        Height = 6,
        Width = 7,
        CellPadding = 8,
        CellSpacing = 9,
        FieldCount = 10
    };

    // As the dialog opens: 6 rows by 2 columns, "Columns" "2", "Rows" "6".
    TableModel();

    // Grid size and cells.
    int rowCount() const { return m_rows; }
    int colCount() const { return m_cols; }
    void setRowCount(int rows);
    void setColCount(int cols);
    QString cell(int row, int col) const;
    void setCell(int row, int col, const QString &text);

    // The cursor.
    int row() const { return m_row; }
    int col() const { return m_col; }
    void moveTo(int row, int col);
    QString text() const { return cell(m_row, m_col); }
    void setText(const QString &text) { setCell(m_row, m_col, text); }

    // The heading bands shown in the grid.
    int fixedRows() const { return m_fixedRows; }
    int fixedCols() const { return m_fixedCols; }

    // The fields. Setting one has its effect on the grid: "Columns" and
    // "Rows" above 0 resize it; "Heading Cols" and "Heading Rows" set the
    // bands, or are rewritten one less than the size when they reach it.
    QString field(int index) const;
    void setField(int index, const QString &text);
    // The field's numeric value; text that is no number counts as 0.
    int fieldValue(int index) const;

    bool captionAtBottom() const { return m_captionBottom; }
    void setCaptionAtBottom(bool bottom) { m_captionBottom = bottom; }

    // Rows and columns put in or taken out at an index; the "Rows" and
    // "Columns" fields follow. The last row or column is never removed.
    void insertRow(int at);
    void removeRow(int at);
    void insertCol(int at);
    void removeCol(int at);

    // The markup of the model, CR LF line ends. Every 20th row is reported
    // in the status text.
    QString BuildTable() const;

    // Puts lines of tab-separated text into the grid from the cursor on,
    // growing it where the text needs more room. With `setRowCount` the
    // "Rows" field becomes the number of lines. With [Editing] "No Parse For
    // Table" on, the first line alone goes into the cursor's cell.
    void InsertText(const QString &text, bool setRowCount);

private:
    void resize(int rows, int cols);

    int m_rows = 0;
    int m_cols = 0;
    std::vector<QString> m_cells;   // row by row
    int m_row = 0;
    int m_col = 0;
    int m_fixedRows = 0;
    int m_fixedCols = 0;
    QString m_fields[FieldCount];
    bool m_captionBottom = false;
};

// The numeric value of a field as the dialog reads it: leading blanks, a
// sign and digits; anything else ends the number, and no number gives 0.
int NumericValue(const QString &text);

// "Row: " row "   Col: " column, the progress text of long table work.
QString TableProgressText(int row, int col);

} // namespace qly::generators
