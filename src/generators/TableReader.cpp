#include "generators/TableReader.h"

#include "core/Feedback.h"
#include "generators/TableModel.h"

#include <vector>

namespace qly::generators {

namespace {

constexpr Qt::CaseSensitivity NoCase = Qt::CaseInsensitive;

QString L(const char *text)
{
    return QString::fromLatin1(text);
}

// Trims blanks only, as the tag walk does; tabs and line ends stay.
QString TrimBlanks(const QString &text)
{
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && text.at(start) == QLatin1Char(' '))
        ++start;
    while (end > start && text.at(end - 1) == QLatin1Char(' '))
        --end;
    return text.mid(start, end - start);
}

void RaiseField(TableModel &model, int index)
{
    model.setField(index, QString::number(model.fieldValue(index) + 1));
}

} // namespace

QString ExtractTableText(const QString &text)
{
    const qsizetype start = text.indexOf(L("<TABLE"), 0, NoCase);
    const qsizetype end = text.indexOf(L("/TABLE>"), 0, NoCase);
    if (start < 0 || end < 0 || end <= start)
        return {};
    return text.mid(start, end + 7 - start);
}

QStringList SplitTagAttributes(const QString &tag)
{
    QStringList attributes;
    if (tag.isEmpty())
        return attributes;
    QString text = tag.mid(tag.indexOf(QLatin1Char(' ')) + 1);
    if (text.endsWith(QLatin1Char('>')))
        text.chop(1);

    QString current;
    bool inQuotes = false;
    for (const QChar c : std::as_const(text)) {
        if (c != QLatin1Char(' ') || inQuotes) {
            current += c;
            if (c == QLatin1Char('"'))
                inQuotes = !inQuotes;
        } else if (!TrimBlanks(current).isEmpty()) {
            attributes << TrimBlanks(current);
            current.clear();
        }
    }
    if (!TrimBlanks(current).isEmpty())
        attributes << TrimBlanks(current);
    return attributes;
}

void ApplyTableAttribute(TableModel &model, const QString &attribute)
{
    const qsizetype equals = attribute.indexOf(QLatin1Char('='));
    const QString name = equals < 0 ? attribute : attribute.left(equals);
    const QString value = equals < 0 ? QString() : attribute.mid(equals + 1);
    static const struct {
        const char *name;
        int field;
    } known[] = {{"BORDER", TableModel::BorderWidth}, {"HEIGHT", TableModel::Height},
                 {"WIDTH", TableModel::Width}, {"CELLSPACING", TableModel::CellSpacing},
                 {"CELLPADDING", TableModel::CellPadding}};
    for (const auto &k : known)
        if (name.compare(QLatin1String(k.name), NoCase) == 0)
            model.setField(k.field, value);
}

void ReadTableTag(TableModel &model, const QString &tableText)
{
    const qsizetype close = tableText.indexOf(QLatin1Char('>'));
    const QStringList attributes = SplitTagAttributes(close < 0 ? tableText : tableText.left(close + 1));
    for (const QString &attribute : attributes)
        ApplyTableAttribute(model, attribute);
}

void ReadTableCaption(TableModel &model, const QString &tableText)
{
    const qsizetype start = tableText.indexOf(L("<CAPTION"), 0, NoCase);
    if (start < 0)
        return;
    const qsizetype end = tableText.indexOf(L("</CAPTION>"), start, NoCase);
    // Without its end tag the caption reads as empty.
    const QString captionText = end < 0 ? QString() : tableText.mid(start, end - start);
    const qsizetype open = captionText.indexOf(QLatin1Char('>'));
    if (open < 0)
        return;
    model.setField(TableModel::Caption, captionText.mid(open + 1));
    const QStringList attributes = SplitTagAttributes(captionText.left(open + 1));
    if (!attributes.isEmpty() && attributes.first().toUpper() == L("ALIGN=BOTTOM"))
        model.setCaptionAtBottom(true);
}

QStringList NewSplitTags(const QString &rowText)
{
    QStringList cells;
    qsizetype pos = 0;
    while (pos < rowText.size()) {
        const qsizetype td = rowText.indexOf(L("<TD"), pos, NoCase);
        const qsizetype th = rowText.indexOf(L("<TH"), pos, NoCase);
        const bool heading = th >= 0 && (td < 0 || th < td);
        const qsizetype open = heading ? th : td;
        if (open < 0)
            break;
        const qsizetype close = rowText.indexOf(heading ? L("</TH>") : L("</TD>"), open, NoCase);
        if (close < 0)
            break;
        cells << rowText.mid(open, close + 5 - open);
        pos = close + 5;
    }
    return cells;
}

void StoreParsedCell(TableModel &model, const QString &text, int columnNumber)
{
    model.setRowCount(model.fieldValue(TableModel::Rows));
    if (model.colCount() < columnNumber)
        model.setColCount(columnNumber);
    model.setCell(model.rowCount() - 1, columnNumber - 1, text);
    if (model.fieldValue(TableModel::Columns) < columnNumber)
        model.setField(TableModel::Columns, QString::number(columnNumber));
}

void ParseTableRow(TableModel &model, const QString &rowText)
{
    const QString inside = rowText.size() >= 9 ? rowText.mid(4, rowText.size() - 9) : QString();
    const QStringList cells = NewSplitTags(inside);
    RaiseField(model, TableModel::Rows);
    for (int i = 0; i < int(cells.size()); ++i) {
        const QString &element = cells.at(i);
        const qsizetype open = element.indexOf(QLatin1Char('>')) + 1;
        qsizetype close = element.indexOf(L("</TD"), open, NoCase);
        if (close < 0)
            close = element.indexOf(L("</TH"), open, NoCase);
        if (open <= 0 || close < open)
            continue;
        const QString text = element.mid(open, close - open);
        if (element.startsWith(L("<TD"), NoCase))
            StoreParsedCell(model, text, i + 1);
        else if (element.startsWith(L("<TH"), NoCase))
            StoreParsedCell(model, QLatin1Char('*') + text, i + 1);
    }
}

void DetectTableHeadings(TableModel &model)
{
    const int rows = model.rowCount();
    const int cols = model.colCount();
    const QChar mark = QLatin1Char('*');
    std::vector<bool> rowMarked(size_t(rows), true);
    int headCols = 0;
    for (int c = 0; c < cols; ++c) {
        bool whole = true;
        for (int r = 0; r < rows; ++r) {
            const bool marked = model.cell(r, c).startsWith(mark);
            whole = whole && marked;
            rowMarked[size_t(r)] = rowMarked[size_t(r)] && marked;
        }
        headCols += whole ? 1 : 0;
    }
    int headRows = 0;
    for (int r = 0; r < rows; ++r)
        headRows += rowMarked[size_t(r)] ? 1 : 0;
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < cols; ++c) {
            const QString text = model.cell(r, c);
            if (text.startsWith(mark))
                model.setCell(r, c, text.mid(1));
        }
    model.setField(TableModel::HeadingRows, QString::number(headRows));
    model.setField(TableModel::HeadingCols, QString::number(headCols));
}

void LoadTableFromSelection(TableModel &model, const QString &selection, const std::function<bool()> &cancelled)
{
    const QString table = ExtractTableText(selection);
    if (table.isEmpty()) {
        model.moveTo(0, 0);
        model.InsertText(selection, true);
        return;
    }
    ReadTableTag(model, table);
    ReadTableCaption(model, table);
    for (const int field : {TableModel::Rows, TableModel::Columns, TableModel::HeadingRows, TableModel::HeadingCols})
        model.setField(field, QStringLiteral("0"));

    qsizetype pos = table.indexOf(L("<TR"), 0, NoCase);
    while (pos >= 0) {
        if (cancelled && cancelled()) {
            core::ShowStatus(QStringLiteral("Cancelling action..."));
            break;
        }
        const qsizetype end = table.indexOf(L("</TR>"), pos + 3, NoCase);
        if (end < 0) {
            // No end tag behind it: a row without cells, and on to the next row.
            ParseTableRow(model, QString());
            pos = table.indexOf(L("<TR"), pos + 3, NoCase);
            continue;
        }
        ParseTableRow(model, table.mid(pos, end + 5 - pos));
        pos = table.indexOf(L("<TR"), end + 5, NoCase);
    }
    DetectTableHeadings(model);
}

} // namespace qly::generators
