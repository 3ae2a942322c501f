#include "texttools/StagedWrites.h"

#include "core/FileIo.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <cstdio>
#include <unistd.h>

namespace qly::texttools {

QString WriteRewritten(const QString &path, const QByteArray &original, const QByteArray &output,
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

namespace {

// Writes all of `bytes` to an open file and closes it; false on failure.
// The file is cut to the new length afterwards, not emptied first: a file
// emptied and written again is flushed at once when it is closed (ext4 does
// so to protect programs that rewrite in place), and here the flush of the
// whole batch comes later.
bool writeAndClose(int fd, const QByteArray &bytes, unsigned mode)
{
    bool ok = ::fchmod(fd, mode_t(mode)) == 0;
    for (qsizetype done = 0; ok && done < bytes.size();) {
        const ssize_t n = ::pwrite(fd, bytes.constData() + done, size_t(bytes.size() - done), off_t(done));
        if (n < 0 && errno == EINTR)
            continue;
        ok = n > 0;
        done += ok ? n : 0;
    }
    ok = ok && ::ftruncate(fd, off_t(bytes.size())) == 0;
    return ::close(fd) == 0 && ok;
}

// True when a file left over by an exchange may hold another page's text:
// no other name links to it, it is ours, and it carries no extended
// attributes (access lists, labels) that belonged to the old page.
bool reusable(const QByteArray &path)
{
    struct stat st {};
    return ::lstat(path.constData(), &st) == 0 && S_ISREG(st.st_mode) && st.st_nlink == 1 &&
           st.st_uid == ::geteuid() && st.st_gid == ::getegid() && ::llistxattr(path.constData(), nullptr, 0) == 0;
}

// The permission bits of an existing file, or `fallback`.
unsigned modeOf(const QString &path, unsigned fallback)
{
    struct stat st {};
    return ::stat(QFile::encodeName(path).constData(), &st) == 0 ? unsigned(st.st_mode & 07777) : fallback;
}

// Makes every file written so far in the folders' file systems durable: one
// flush per file system. False when that could not be done.
bool flushFileSystems(const QSet<QString> &folders)
{
    QSet<dev_t> flushed;
    for (const QString &folder : folders) {
        const int fd = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (fd < 0)
            return false;
        struct stat st {};
        bool ok = ::fstat(fd, &st) == 0;
        if (ok && !flushed.contains(st.st_dev)) {
            ok = ::syncfs(fd) == 0;
            flushed.insert(st.st_dev);
        }
        ::close(fd);
        if (!ok)
            return false;
    }
    return true;
}

void removeFile(const QString &path)
{
    if (!path.isEmpty())
        ::unlink(QFile::encodeName(path).constData());
}

} // namespace

StagedWrites::StagedWrites(const RewriteOptions &options, int batch)
    : m_options(options)
    , m_batch(std::max(1, batch))
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    m_newFileMode = 0666u & ~unsigned(mask);
}

StagedWrites::~StagedWrites()
{
    for (const Staged &s : m_staged) {
        removeFile(s.temporary);
        removeFile(s.backupTemporary);
    }
    for (const Spare &spare : m_spares)
        removeFile(spare.path);
}

unsigned long StagedWrites::deviceOf(const QString &folder)
{
    auto it = m_devices.constFind(folder);
    if (it != m_devices.constEnd())
        return *it;
    struct stat st {};
    const unsigned long device =
        ::stat(QFile::encodeName(folder).constData(), &st) == 0 ? static_cast<unsigned long>(st.st_dev) : ~0ul;
    m_devices.insert(folder, device);
    return device;
}

QString StagedWrites::writeTemporary(const QString &target, const QByteArray &bytes, unsigned mode)
{
    const QFileInfo info(target);
    const unsigned long device = deviceOf(info.absolutePath());
    for (auto it = m_spares.begin(); it != m_spares.end(); ++it) {
        if (it->device != device)
            continue;
        const QString path = it->path;
        m_spares.erase(it);
        const int fd = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC | O_NOFOLLOW);
        if (fd >= 0 && writeAndClose(fd, bytes, mode))
            return path;
        removeFile(path);
        break;
    }
    QByteArray pattern = QFile::encodeName(info.absolutePath() + QStringLiteral("/.") + info.fileName() +
                                           QStringLiteral(".~qlyXXXXXX"));
    const int fd = ::mkostemp(pattern.data(), O_CLOEXEC);
    if (fd < 0)
        return {};
    if (!writeAndClose(fd, bytes, mode)) {
        ::unlink(pattern.constData());
        return {};
    }
    return QFile::decodeName(pattern);
}

bool StagedWrites::replace(const QString &temporary, const QString &target)
{
    const QByteArray from = QFile::encodeName(temporary);
    const QByteArray to = QFile::encodeName(target);
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_EXCHANGE) == 0) {
        // The temporary's name now holds the old text.
        if (reusable(from))
            m_spares.push_back({temporary, deviceOf(QFileInfo(target).absolutePath())});
        else
            ::unlink(from.constData());
        return true;
    }
    // A new file, or a file system that cannot exchange: a plain rename,
    // which also replaces the target in one step.
    return ::rename(from.constData(), to.constData()) == 0;
}

QString &StagedWrites::result(int index)
{
    if (int(m_results.size()) <= index)
        m_results.resize(index + 1);
    return m_results[index];
}

void StagedWrites::add(int index, const QString &path, const QByteArray &original, const QByteArray &output)
{
    result(index).clear();
    Staged s{index, path, TargetPath(path, m_options.htmToHtml), {}, {}};
    const QFileInfo target(s.target);
    // A file without any write permission stays as it is, as single saves do.
    constexpr auto anyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    if (target.exists() && (!target.isFile() || !target.isWritable() || !(target.permissions() & anyWrite))) {
        result(index) = s.target + QStringLiteral(": Permission denied");
        return;
    }
    // Links and folders where nothing new can be made are written one by one.
    const unsigned mode = modeOf(s.target, modeOf(path, m_newFileMode));
    if (!target.isSymLink()) {
        s.temporary = writeTemporary(s.target, output, mode);
        if (!s.temporary.isEmpty() && m_options.backup) {
            s.backupTemporary = writeTemporary(BackupPath(path), original, mode);
            if (s.backupTemporary.isEmpty()) {
                removeFile(s.temporary);
                s.temporary.clear();
            }
        }
    }
    if (s.temporary.isEmpty()) {
        result(index) = WriteRewritten(path, original, output, m_options);
        return;
    }
    m_staged.push_back(s);
    if (int(m_staged.size()) >= m_batch)
        commit();
}

void StagedWrites::fail(const Staged &s, const QString &failure)
{
    removeFile(s.temporary);
    removeFile(s.backupTemporary);
    result(s.index) = failure;
}

void StagedWrites::commit()
{
    QSet<QString> folders;
    for (const Staged &s : m_staged)
        folders.insert(QFileInfo(s.target).absolutePath());
    const bool durable = flushFileSystems(folders);
    for (const Staged &s : m_staged) {
        if (!durable) {
            fail(s, s.target + QStringLiteral(": cannot be written (the disk could not be flushed)"));
            continue;
        }
        if (!s.backupTemporary.isEmpty() && ::rename(QFile::encodeName(s.backupTemporary).constData(),
                                                     QFile::encodeName(BackupPath(s.path)).constData()) != 0) {
            fail(s, s.path + QStringLiteral(": the backup could not be written"));
            continue;
        }
        if (!replace(s.temporary, s.target)) {
            fail(s, s.target + QStringLiteral(": cannot be written"));
            continue;
        }
        const QString cased = CasedPath(s.target, m_options.nameCase);
        if (cased != s.target && (QFileInfo::exists(cased) || !QFile::rename(s.target, cased)))
            result(s.index) = s.target + QStringLiteral(": could not be renamed to ") + cased;
    }
    m_staged.clear();
}

const std::vector<QString> &StagedWrites::finish()
{
    commit();
    for (const Spare &spare : m_spares)
        removeFile(spare.path);
    m_spares.clear();
    return m_results;
}

} // namespace qly::texttools
