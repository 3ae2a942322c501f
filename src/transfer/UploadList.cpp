#include "transfer/UploadList.h"

#include "core/Settings.h"

#include <QFileInfo>
#include <QStringList>

namespace qly::transfer {

QString UploadList::StripLocation(const QString &name)
{
    // A drive form ("C:\...") keeps its first colon; a Linux path has none.
    const qsizetype drive = name.indexOf(QLatin1String(":\\"));
    const qsizetype colon = name.indexOf(u':', drive >= 0 ? drive + 2 : 0);
    if (colon < 0)
        return name;
    if (drive >= 0 || name.mid(colon + 1).toInt() > 0)
        return name.left(colon);
    return name;
}

bool UploadList::addRow(const QString &text, qint64 size)
{
    for (const Row &row : rows) {
        if (row.text == text)
            return false;
    }
    rows.push_back({text, size});
    return true;
}

void UploadList::AddFileToSend(const QString &given, bool, const QString &)
{
    const QString name = StripLocation(given);
    const QFileInfo info(name.trimmed());
    const bool exists = info.isFile();
    const QString row = exists ? name + u'\t' : QStringLiteral("ERROR: File not found\t");
    if (!addRow(row, exists ? info.size() : 0))
        return;
    if (!collectLinkedFiles())
        return;
    QString parseFor = core::ReadSetting(QStringLiteral("General"), QStringLiteral("Parse For"));
    if (parseFor.isEmpty())
        parseFor = QStringLiteral("href,src,background,lowsrc");
    for (const QString &attribute : parseFor.split(u',')) {
        if (!attribute.isEmpty())
            collectLinkedFiles()(*this, name, attribute + u'=');
    }
}

void UploadList::AddLinkedFile(const QString &name)
{
    const QFileInfo info(name.trimmed());
    const bool exists = info.isFile();
    addRow(QStringLiteral("   ") + (exists ? name : QStringLiteral("ERROR: File not found")) + u'\t',
           exists ? info.size() : 0);
}

qint64 UploadList::GetTotalBytes() const
{
    qint64 total = 0;
    for (const Row &row : rows)
        total += row.size;
    return total;
}

UploadList::LinkCollector &UploadList::collectLinkedFiles()
{
    static LinkCollector collector;
    return collector;
}

} // namespace qly::transfer
