#include "websites/SiteCheck.h"

#include "core/Paths.h"
#include "websites/LinkScanner.h"
#include "websites/ProjectFile.h"

namespace qly::websites {

QStringList PagesToCheck(const QString &path, QString *problem)
{
    if (core::GetFileExt(path).compare(QLatin1String("prj"), Qt::CaseInsensitive) != 0)
        return {path};
    QString why = core::FileExists(path) ? ProjectFileProblem(path)
                                         : QStringLiteral("The website project %1 does not exist.").arg(path);
    if (problem)
        *problem = why;
    return why.isEmpty() ? ReadProjectFiles(path) : QStringList();
}

void CheckPages(const QStringList &pages, const std::function<void(const PageLinks &)> &onPage)
{
    const QStringList attributes = ParseForAttributes();
    LinkClassifier classifier;
    for (const QString &page : pages) {
        PageLinks p;
        p.page = page;
        p.readable = ScanFileLinks(page, attributes, p.records, classifier);
        onPage(p);
    }
}

QList<PageLinks> CheckPages(const QStringList &pages)
{
    QList<PageLinks> out;
    out.reserve(pages.size());
    CheckPages(pages, [&out](const PageLinks &p) { out << p; });
    return out;
}

} // namespace qly::websites
