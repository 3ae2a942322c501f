#include "texttools/GrepModel.h"

#include "core/Feedback.h"
#include "core/FileIo.h"
#include "core/TextCodec.h"
#include "platform/Prompts.h"
#include "texttools/FileEntries.h"
#include "texttools/WriteQueue.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

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
    int done = 0;
    for (const QStringList &files : lists) {
        for (const QString &path : files) {
            if ((s.cancelled = progress.cancelled()))
                break;
            progress.processing(path, done++, total);
            QByteArray bytes;
            bool endEntry = false;
            if (!readListed(path, bytes, endEntry)) {
                if (endEntry)
                    break;
                continue;
            }
            if (LooksBinary(bytes))
                continue;
            const QString text = core::decodeFile(bytes).text;
            for (const Term &t : terms) {
                if (!t.find.isEmpty() && text.contains(t.find, Qt::CaseInsensitive)) {
                    progress.addToFoundList(path);
                    ++s.files;
                    break;
                }
            }
        }
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

// Writes one rewritten file: its backup first, then the text to its target,
// then the target's name in the asked case. An empty result is success.
QString writeRewritten(const QString &path, const QByteArray &original, const QByteArray &output,
                       const RewriteOptions &options)
{
    if (options.backup) {
        const core::IoResult b = core::writeFileAtomically(BackupPath(path), original);
        if (!b.ok())
            return path + QStringLiteral(": the backup could not be written (") + b.message + QStringLiteral(")");
    }
    const QString target = TargetPath(path, options.htmToHtml);
    const core::IoResult w = core::writeFileAtomically(target, output);
    if (!w.ok())
        return target + QStringLiteral(": ") + (w.message.isEmpty() ? QStringLiteral("cannot be written") : w.message);
    const QString cased = CasedPath(target, options.nameCase);
    // A rename is whole or not at all; another file by that name stays.
    if (cased != target && (QFileInfo::exists(cased) || !QFile::rename(target, cased)))
        return target + QStringLiteral(": could not be renamed to ") + cased;
    return {};
}

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
    // Files are read and rewritten here, one after the other, and written by
    // the queue, several at once unless their paths meet.
    std::vector<QString> early(total);      // failures before any write
    std::vector<long> counts(total, 0);
    std::vector<bool> queued(total, false);
    std::vector<QString> paths(total);
    int done = 0;
    {
        WriteQueue writes(pathsMeet(lists, options) ? 1 : WriterCount);
        for (const QStringList &files : lists) {
            for (const QString &path : files) {
                if ((s.cancelled = progress.cancelled()))
                    break;
                const int index = done++;
                paths[index] = path;
                progress.processing(path, index, total);
                QByteArray bytes;
                bool endEntry = false;
                if (!readListed(path, bytes, endEntry)) {
                    if (endEntry)
                        break;
                    early[index] = path + QStringLiteral(": cannot be read");
                    continue;
                }
                if (LooksBinary(bytes)) {
                    early[index] = path + QStringLiteral(": a binary file, not rewritten");
                    continue;
                }
                core::DecodedFile decoded = core::decodeFile(bytes);
                counts[index] = RewriteText(decoded.text, terms, options.conversion);
                QByteArray output = core::encodeText(decoded.text, decoded.encoding);
                if (!options.backup)
                    bytes.clear();
                queued[index] = true;
                writes.add(index, [path, bytes = std::move(bytes), output = std::move(output), o = options] {
                    return writeRewritten(path, bytes, output, o);
                });
            }
            if (s.cancelled)
                break;
        }
        const std::vector<QString> &written = writes.finish();
        for (int i = 0; i < done; ++i) {
            const QString failure = queued[i] && i < int(written.size()) ? written[i] : early[i];
            if (!failure.isEmpty()) {
                s.failures << failure;
            } else if (queued[i]) {
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
