#pragma once

#include "texttools/FileRewrite.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <vector>

namespace qly::texttools {

// Writes one rewritten file on its own: its backup first, then the text to
// its target, then the target's name in the asked case, each write whole or
// not at all and flushed. An empty result is success, otherwise the failure
// with its path.
QString WriteRewritten(const QString &path, const QByteArray &original, const QByteArray &output,
                       const RewriteOptions &options);

// Writes the files of a large replacement whole or not at all, and quickly.
// Each new text (and backup) goes to a temporary file beside its target; at
// the end of a batch one flush of the file system makes the batch durable,
// and only then each temporary trades places with its target in one step
// (an exchange of names). A crash or a cancel leaves every file either old or
// new; a flush per file, as single saves do, would cost a disk commit for
// each of thousands of pages. The old file that an exchange leaves behind is
// reused as a later temporary when it is plainly ours (one link, our owner,
// no extended attributes): making thousands of new files is the other large
// cost of a replacement.
class StagedWrites
{
public:
    explicit StagedWrites(const RewriteOptions &options, int batch = 250);
    ~StagedWrites();
    StagedWrites(const StagedWrites &) = delete;
    StagedWrites &operator=(const StagedWrites &) = delete;

    // Stages file number `index`; `original` matters only with backups.
    void add(int index, const QString &path, const QByteArray &original, const QByteArray &output);
    // Commits what is staged; the failure text of each file, by index.
    const std::vector<QString> &finish();

private:
    struct Staged {
        int index;
        QString path;
        QString target;
        QString temporary;
        QString backupTemporary;
    };
    struct Spare {
        QString path;
        unsigned long device;
    };
    void commit();
    void fail(const Staged &s, const QString &failure);
    QString &result(int index);
    // Writes `bytes` to a temporary for `target` (a spare when there is one
    // on its disk); its path, or nothing when it could not be written.
    QString writeTemporary(const QString &target, const QByteArray &bytes, unsigned mode);
    // Replaces the target by the temporary in one step; keeps the old file
    // as a spare when it may be reused. False on failure.
    bool replace(const QString &temporary, const QString &target);
    unsigned long deviceOf(const QString &folder);

    RewriteOptions m_options;
    int m_batch;
    unsigned m_newFileMode;
    std::vector<Staged> m_staged;
    std::vector<Spare> m_spares;
    QHash<QString, unsigned long> m_devices;   // folder -> its disk
    std::vector<QString> m_results;
};

} // namespace qly::texttools
