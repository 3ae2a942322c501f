#pragma once

#include <QList>
#include <QPair>
#include <QSet>
#include <QStringList>

namespace qly::markup {

class TagCatalogue;

// Every filter the tag tree knows, as [Filters] names them, with "HTML 5"
// for today's elements.
QStringList FilterList();
// The rows of frmFilterKeys: the filters less "IE 3" and "IE 4".
QStringList FilterDialogRows();

// The filters that are on: a filter is on when its [Filters] key reads
// "True" exactly; a missing key is off.
QSet<QString> LoadFilters(const QStringList &names = FilterList());
// Writes each row's state as "True" or "False" under its name.
void SaveFilters(const QList<QPair<QString, bool>> &rows);

// Hands the colouring the tags and script words of the active filters.
void PublishKnownWords(const TagCatalogue &catalogue, const QSet<QString> &filters);

} // namespace qly::markup
