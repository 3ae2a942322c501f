#pragma once

#include "websites/LinkRecord.h"

#include <QStringList>
#include <functional>

namespace qly::websites {

// The links of one page of a check.
struct PageLinks {
    QString page;
    bool readable = true;
    LinkRecords records;
};

// The pages a check covers: the files of a project (".prj", whatever the
// case of its extension), or the page itself. A damaged project gives no
// pages and its problem in `problem`.
QStringList PagesToCheck(const QString &path, QString *problem = nullptr);

// Scans each page once for every Parse For attribute; the existence of each
// linked file is looked up once for the whole run. A page that cannot be
// read is marked and told through the prompts.
QList<PageLinks> CheckPages(const QStringList &pages);
// The same, handing each page's links over as soon as it is read, so that
// memory holds one page and its links at a time.
void CheckPages(const QStringList &pages, const std::function<void(const PageLinks &)> &onPage);

} // namespace qly::websites
