#pragma once

#include "texttools/FileRewrite.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace qly::texttools {

// What a long multi-file run tells its window while it goes, and how the
// window stops it. The default tells nothing and never stops.
class GrepProgress
{
public:
    virtual ~GrepProgress() = default;
    // Before each file: how many are done of how many in all.
    virtual void processing(const QString &path, int done, int total);
    // True when the user asked to stop; asked before each file.
    virtual bool cancelled() { return false; }
    // A line for the found list (AddToFoundList); the first one shows it.
    virtual void addToFoundList(const QString &line);
};

// What a run did.
struct GrepSummary {
    long replacements = 0;
    int files = 0;            // files processed (replacement) or found (search)
    QStringList failures;     // "path: reason", one a file
    bool cancelled = false;
};

// The multi-file find and replace dialog without its window: the list of
// entries, the grid of terms, the options, and the two runs.
class GrepModel
{
public:
    QStringList entries;      // "Files to Search"
    QList<Term> terms;        // the grid: "Find", "Replace With"
    RewriteOptions options;

    // Lists the files that contain a term (without regard to case).
    GrepSummary FindAndPresentFiles(GrepProgress &progress);
    // Replaces every term in every file, with the conversions; every write
    // is whole or not at all, and a file that fails is told with its path
    // while the rest go on.
    GrepSummary NewReplace(GrepProgress &progress);

    bool hasTerms() const;
    // "Are you sure you want to clear the grid ?"; true when it was cleared.
    bool clearTerms();

private:
    // Checks common to both runs; false when there is nothing to do.
    bool ready(bool conversionOnly);
    // Every entry expanded; an entry's files stay together.
    QList<QStringList> expandEntries(int &total) const;
};

} // namespace qly::texttools
