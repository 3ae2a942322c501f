#include "texttools/GrepModel.h"

#include "core/Feedback.h"
#include "core/FileIo.h"
#include "core/TextCodec.h"
#include "platform/Prompts.h"
#include "texttools/FileEntries.h"
#include "texttools/ScanAhead.h"
#include "texttools/StagedWrites.h"
#include "texttools/TermMatcher.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qly::texttools {

using platform::Buttons;
using platform::Icon;

void GrepProgress::processing(const QString &path, int, int)
{
    core::ShowStatus(QStringLiteral("Processing ") + path);
}

void GrepProgress::addToFoundList(const QString &) {}

namespace {

// Reads one file of an entry. A file that went away since the listing
// is told and ends its entry (false with `endEntry`).
bool readListed(const QString &path, QByteArray &bytes, bool &endEntry)
{
    endEntry = false;
    const core::IoResult r = core::readWholeFile(path, bytes);
    if (r.ok())
        return true;
    if (!QFileInfo::exists(path)) {
        core::ErrorBox(QStringLiteral("File not found.") + QStringLiteral(": ") + path);
        endEntry = true;
    }
    return false;
}

// Reads a whole file into `buffer`, which keeps its memory from file to
// file: a search reads thousands of small pages. 0 or the system's error.
int readInto(const QString &path, QByteArray &buffer)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return errno;
    struct stat st {};
    qsizetype used = 0;
    int error = ::fstat(fd, &st) == 0 ? 0 : errno;
    if (error == 0)
        buffer.resize(qsizetype(st.st_size) + 1);   // one more, to see the end
    while (error == 0) {
        if (used == buffer.size())
            buffer.resize(buffer.size() * 2);
        const ssize_t got = ::read(fd, buffer.data() + used, size_t(buffer.size() - used));
        if (got < 0 && errno != EINTR)
            error = errno;
        else if (got == 0)
            break;
        else if (got > 0)
            used += got;
    }
    ::close(fd);
    buffer.resize(used);
    return error;
}

// The failures of a run, told once at its end.
void tellFailures(const QStringList &failures)
{
    if (!failures.isEmpty())
        core::ErrorBox(QStringLiteral("These files were left as they were:\r\n") +
                       failures.join(QStringLiteral("\r\n")));
}

} // namespace

bool GrepModel::hasTerms() const
{
    for (const Term &t : terms) {
        if (!t.find.isEmpty())
            return true;
    }
    return false;
}

bool GrepModel::clearTerms()
{
    if (platform::MsgBox(QStringLiteral("Are you sure you want to clear the grid ?"), Buttons::YesNo,
                         Icon::Question) != platform::Answer::Yes)
        return false;
    terms.clear();
    return true;
}

bool GrepModel::ready(bool conversionOnly)
{
    if (entries.isEmpty()) {
        platform::MsgBox(QStringLiteral("No files have been specified."), Buttons::Ok, Icon::Information);
        return false;
    }
    core::BeginWait();
    core::ShowStatus(QStringLiteral("Beginning Search..."));
    if (!hasTerms() && !conversionOnly) {
        core::EndWait();
        core::ErrorBox(QStringLiteral("There's nothing to search for!"));
        return false;
    }
    return true;
}

QList<QStringList> GrepModel::expandEntries(int &total) const
{
    QList<QStringList> out;
    total = 0;
    for (const QString &e : entries) {
        out << ExpandEntry(e);
        total += int(out.last().size());
    }
    return out;
}

GrepSummary GrepModel::FindAndPresentFiles(GrepProgress &progress)
{
    GrepSummary s;
    if (!ready(false))
        return s;
    int total = 0;
    const QList<QStringList> lists = expandEntries(total);
    // Files are read and searched on every core ahead of this loop, which
    // keeps the listing, the progress and the messages in the entries' order.
    enum Found { Hit, Miss, Unreadable, Missing };
    const TermMatcher matcher(terms);
    QStringList flat;
    for (const QStringList &files : lists)
        flat << files;
    ScanAhead scan(flat, [&matcher](const QString &path) {
        thread_local QByteArray buffer;
        const int error = readInto(path, buffer);
        if (error != 0)
            return error == ENOENT ? Missing : Unreadable;
        return !LooksBinary(buffer) && matcher.matches(buffer) ? Hit : Miss;
    });
    int done = 0;
    for (const QStringList &files : lists) {
        const int first = done;
        for (const QString &path : files) {
            if ((s.cancelled = progress.cancelled()))
                break;
            progress.processing(path, done++, total);
            const int found = scan.take(done - 1);
            if (found == Hit) {
                progress.addToFoundList(path);
                ++s.files;
            } else if (found != Miss) {
                s.failures << path + QStringLiteral(": cannot be read");
                if (found == Missing) {
                    // A file that went away since the listing ends its entry.
                    core::ErrorBox(QStringLiteral("File not found.") + QStringLiteral(": ") + path);
                    break;
                }
            }
        }
        done = first + int(files.size());
        if (s.cancelled)
            break;
    }
    core::EndWait();
    if (s.files > 0) {
        progress.addToFoundList(QString());
        progress.addToFoundList(QStringLiteral("------End of Search Results------"));
        progress.addToFoundList(QString());
    } else if (!s.cancelled) {
        platform::MsgBox(QStringLiteral("No matching files found."), Buttons::Ok, Icon::Information);
    }
    core::ShowStatus(QString());
    return s;
}

namespace {

// True when two files of the run would write the same path (a backup, a new
// extension or a new case), so their order matters and they go one by one.
bool pathsMeet(const QList<QStringList> &lists, const RewriteOptions &options)
{
    if (!options.backup && !options.htmToHtml && options.nameCase == NameCase::DontChange)
        return false;
    QSet<QString> seen;
    for (const QStringList &files : lists) {
        for (const QString &path : files) {
            const QString target = TargetPath(path, options.htmToHtml);
            QStringList written{path, target, CasedPath(target, options.nameCase)};
            if (options.backup)
                written << BackupPath(path);
            written.removeDuplicates();
            for (const QString &w : written) {
                const QString key = w.toLower();
                if (seen.contains(key))
                    return true;
                seen.insert(key);
            }
        }
    }
    return false;
}

} // namespace

GrepSummary GrepModel::NewReplace(GrepProgress &progress)
{
    GrepSummary s;
    if (!ready(options.conversion != LineEndConversion::None))
        return s;
    int total = 0;
    const QList<QStringList> lists = expandEntries(total);
    // Files are read and rewritten one after the other. Their new texts are
    // staged and committed together, unless two files of the run write the
    // same path (a backup, a new extension or a new case): then each file is
    // written before the next one is read.
    const bool oneByOne = pathsMeet(lists, options);
    std::vector<QString> failures(total);
    std::vector<long> counts(total, 0);
    std::vector<bool> written(total, false);
    int done = 0;
    {
        StagedWrites staged(options);
        for (const QStringList &files : lists) {
            for (const QString &path : files) {
                if ((s.cancelled = progress.cancelled()))
                    break;
                const int index = done++;
                progress.processing(path, index, total);
                QByteArray bytes;
                bool endEntry = false;
                if (!readListed(path, bytes, endEntry)) {
                    if (endEntry)
                        break;
                    failures[index] = path + QStringLiteral(": cannot be read");
                    continue;
                }
                if (LooksBinary(bytes)) {
                    failures[index] = path + QStringLiteral(": a binary file, not rewritten");
                    continue;
                }
                core::DecodedFile decoded = core::decodeFile(bytes);
                counts[index] = RewriteText(decoded.text, terms, options.conversion);
                const QByteArray output = core::encodeText(decoded.text, decoded.encoding);
                if (oneByOne)
                    failures[index] = WriteRewritten(path, bytes, output, options);
                else
                    staged.add(index, path, options.backup ? bytes : QByteArray(), output);
                written[index] = true;
            }
            if (s.cancelled)
                break;
        }
        const std::vector<QString> &late = staged.finish();
        for (int i = 0; i < done; ++i) {
            const QString &failure = failures[i].isEmpty() && i < int(late.size()) ? late[i] : failures[i];
            if (!failure.isEmpty()) {
                s.failures << failure;
            } else if (written[i]) {
                s.replacements += counts[i];
                ++s.files;
            }
        }
    }
    core::EndWait();
    core::ShowStatus(QString());
    tellFailures(s.failures);
    platform::MsgBox(QString::number(s.replacements) + QStringLiteral(" replacements made") +
                         QStringLiteral("\r\n\r\n") + QString::number(s.files) + QStringLiteral(" files processed."),
                     Buttons::Ok, Icon::Information);
    return s;
}

} // namespace qly::texttools
