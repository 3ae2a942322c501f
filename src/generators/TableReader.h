#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace qly::generators {

class TableModel;

// Reading a selection back into the table model. Every search ignores case;
// what the reader cannot place it leaves out, and it never loops on its input.

// Fills the model from the selected text: a selection that holds a table is
// parsed into grid and fields; any other text is taken as tab-separated
// cells from the top left. `cancelled` is asked between rows; when it says
// yes the rows read so far stay.
void LoadTableFromSelection(TableModel &model, const QString &selection,
                            const std::function<bool()> &cancelled = {});

// The text from the first "<TABLE" through the end of the first "/TABLE>",
// or "" when either is missing or the end does not stand behind the start.
QString ExtractTableText(const QString &text);

// The attributes of a tag, split at blanks outside double quotes, each
// trimmed of blanks. Everything up to the first blank is dropped, and a ">"
// at the very end. An unbalanced quote runs to the end of the tag.
QStringList SplitTagAttributes(const QString &tag);

// The table tag's attributes into the fields: BORDER, HEIGHT, WIDTH,
// CELLSPACING, CELLPADDING, values as they stand; others are dropped.
void ReadTableTag(TableModel &model, const QString &tableText);
void ApplyTableAttribute(TableModel &model, const QString &attribute);

// The caption's text, and its place when the first attribute is exactly
// ALIGN=BOTTOM.
void ReadTableCaption(TableModel &model, const QString &tableText);

// The cell elements of the inside of one row: each from its "<TD" or "<TH"
// through the first closing tag of its kind.
QStringList NewSplitTags(const QString &rowText);

// One "<TR>...</TR>" as the next row; heading cells are marked with "*".
void ParseTableRow(TableModel &model, const QString &rowText);

// Puts `text` into column `columnNumber` (from 1) of the last row, growing
// the grid and the "Columns" field as needed.
void StoreParsedCell(TableModel &model, const QString &text, int columnNumber);

// Whole columns and whole rows of marked cells become the heading counts;
// the marks are removed.
void DetectTableHeadings(TableModel &model);

} // namespace qly::generators
