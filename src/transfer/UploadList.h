#pragma once

#include <QString>
#include <functional>
#include <vector>

namespace qly::transfer {

// The files an upload sends: one row a file, as the upload window lists
// them. A row is an indent (three blanks for a file found through a link,
// none for a file of the list itself), the local path, a tab, and a remote
// directory (empty: the session's own). Each row knows the file's size.
class UploadList
{
public:
    struct Row {
        QString text;
        qint64 size = 0;
    };

    // Cuts a trailing position such as ":25" from a name.
    static QString StripLocation(const QString &name);

    // Adds the row of `name` and then the files its links name, one level
    // deep; a row that is there already is not added again. `flag` is kept
    // for callers and not used; `directory` is not written into the row.
    void AddFileToSend(const QString &name, bool flag = true, const QString &directory = {});
    // A file found through a link of another: an indented row.
    void AddLinkedFile(const QString &name);
    // The sum of the rows' sizes.
    qint64 GetTotalBytes() const;

    // The link walk of the website part: called for each attribute of
    // [General] "Parse For" with the file and "attribute=", it adds the
    // files it finds with AddLinkedFile. Empty until that part fills it.
    using LinkCollector = std::function<void(UploadList &list, const QString &file, const QString &attribute)>;
    static LinkCollector &collectLinkedFiles();

    std::vector<Row> rows;

private:
    bool addRow(const QString &text, qint64 size);
};

} // namespace qly::transfer
