#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>

namespace qly::transfer {

class FtpClient;
class UploadList;

// Sends the rows of an upload list through a session: connects, makes the
// remote directories, and puts every file, several at once, telling its
// progress in bytes and files as it goes.
class Uploader final : public QObject
{
    Q_OBJECT
public:
    Uploader(FtpClient &ftp, UploadList &list);

    // Send only files whose size or time differ from the server's copy.
    bool onlyChanged = false;

    // The whole upload: `connectToHost` opens the session when it is not
    // open, `directory` (may be empty) is the remote base. False when
    // nothing was sent.
    bool Send(const std::function<bool()> &connectToHost, const QString &directory);
    bool CreateRemoteDirectories();
    void SendFiles();

    // After SendFiles.
    int sent() const { return m_sent; }
    int skipped() const { return m_skipped; }
    QStringList failed() const { return m_failed; }
    QString base() const { return m_base; }

signals:
    void status(const QString &text);
    // "3/12": the file being sent of all.
    void which(const QString &text);
    void progress(int percent, qint64 bytes, qint64 total, int filesDone, int files);

private:
    FtpClient &m_ftp;
    UploadList &m_list;
    QString m_base = QStringLiteral("/");
    int m_sent = 0;
    int m_skipped = 0;
    QStringList m_failed;
};

} // namespace qly::transfer
