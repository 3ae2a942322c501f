#include "transfer/RemoteDocuments.h"

#include "core/Feedback.h"
#include "core/Paths.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "documents/TempFiles.h"
#include "documents/Workspace.h"
#include "platform/Prompts.h"
#include "transfer/FtpClient.h"
#include "transfer/FtpSession.h"

#include <QFile>

namespace qly::transfer {

namespace {

// The name a remote document shows: "ftp://host/dir/file".
QString shownName(const QString &host, const QString &path)
{
    const HostAddress address = parseHost(host);
    return QString::fromUtf8(address.baseUrl()) + path;
}

} // namespace

QString remoteNameOf(const documents::Document &document)
{
    const QString shown = document.ShowFileName;
    const qsizetype scheme = shown.indexOf(QLatin1String("://"));
    if (scheme > 0) {
        const qsizetype path = shown.indexOf(u'/', scheme + 3);
        if (path > 0)
            return shown.mid(path);
    }
    // A local document saved to a server keeps its own name there.
    return absoluteRemote(QStringLiteral("/"), joinRemote(document.RemoteDir, core::FileNameOf(document.LocalFileName)));
}

bool OpenRemoteDocument(FtpClient &ftp, const QString &remotePath)
{
    const QString path = absoluteRemote(ftp.RemoteDir.isEmpty() ? QStringLiteral("/") : ftp.RemoteDir, remotePath);
    const QString local = documents::GetTempName(core::GetFileExt(path));
    SetTransferMode(ftp, core::GetFileExt(path));
    const bool blocking = ftp.Blocking;
    ftp.Blocking = true;
    ftp.LastError = 0;
    ftp.GetFile(path, local);
    ftp.Blocking = blocking;
    if (ftp.LastError != 0 || !documents::OpenDocumentFile(local, shownName(ftp.HostName, path))) {
        QFile::remove(local);
        return false;
    }
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return false;
    doc->bRemote = true;
    doc->HostName = ftp.HostName;
    doc->UserName = ftp.UserName;
    doc->password = ftp.password;
    doc->RemoteDir = remoteParent(path);
    return true;
}

bool SaveRemote(documents::Document &doc, FtpClient &ftp)
{
    if (!doc.HostName.isEmpty()) {
        const QString name = remoteNameOf(doc);
        const QString here = ftp.RemoteDir.isEmpty() ? QStringLiteral("/") : ftp.RemoteDir;
        if (ftp.Connected() && here != remoteParent(name)) {
            const QString moved = joinRemote(here, remoteFileName(name));
            const platform::Answer answer = platform::MsgBox(
                QStringLiteral("Would you like to save ") + name + QStringLiteral(" as ") + moved
                    + QStringLiteral("\r\n  If you choose 'No' then the file will be saved in its original location."),
                platform::Buttons::YesNoCancel, platform::Icon::Question);
            if (answer == platform::Answer::Cancel)
                return false;
            if (answer == platform::Answer::Yes) {
                doc.RemoteDir = here;
                doc.ShowCaptionAndTab(shownName(doc.HostName, moved));
            }
        }
        doc.bRemote = true;
        return doc.Save();
    }
    if (!ftp.Connected()) {
        platform::MsgBox(QStringLiteral("You must be connected to an FTP server before using this function."),
                         platform::Buttons::Ok, platform::Icon::None, QStringLiteral("Not Connected To Web Server"));
        return false;
    }
    doc.RemoteDir = ftp.RemoteDir;
    doc.HostName = ftp.HostName;
    doc.UserName = ftp.UserName;
    doc.password = ftp.password;
    doc.bRemote = true;
    return doc.Save();
}

bool SendRemoteDocument(documents::Document &doc, FtpClient &ftp)
{
    if (!ConnectToFtp(doc.HostName, doc.UserName, doc.password, ftp))
        return false;
    const QString name = remoteNameOf(doc);
    ftp.LastError = 0;
    ftp.ChangeDirectory(remoteParent(name));
    if (ftp.LastError != 0)
        return false;
    SetTransferMode(ftp, core::GetFileExt(name));
    int result = -1;
    auto ended = QObject::connect(&ftp, &FtpClient::transferEnded,
                                  [&](const QString &, const QString &, int code) { result = code; });
    const bool blocking = ftp.Blocking;
    ftp.Blocking = true;
    ftp.LocalFile = doc.LocalFileName;
    ftp.RemoteFile = remoteFileName(name);
    core::ShowStatus(QStringLiteral("Putting ") + name);
    ftp.setAction(FtpClient::SendFile);
    ftp.Blocking = blocking;
    QObject::disconnect(ended);
    if (result != 0)
        return false;
    core::ShowStatus(QStringLiteral("Saved ") + shownName(doc.HostName, name));
    return true;
}

void installRemoteDocumentHooks()
{
    documents::documentHooks().sendRemote = [](documents::Document &doc) {
        return SendRemoteDocument(doc, sharedSession());
    };
    documents::documentHooks().saveRemote = [](documents::Document &doc) { return SaveRemote(doc, sharedSession()); };
}

} // namespace qly::transfer
