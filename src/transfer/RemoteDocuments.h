#pragma once

#include <QString>

namespace qly::documents {
class Document;
}

namespace qly::transfer {

class FtpClient;

// Documents that live on an FTP server: fetched into a "~qn" temporary
// file, edited there, and sent back on every save. The temporary file is
// removed only when the document closes with nothing left unsent.

// The path on the server that a remote document saves to.
QString remoteNameOf(const documents::Document &document);

// Fetches `remotePath` (relative to the session's directory) and opens it
// as a remote document of the session's host; false when it could not be
// fetched or opened.
bool OpenRemoteDocument(FtpClient &ftp, const QString &remotePath);

// Document::SaveRemote over the session `ftp`.
bool SaveRemote(documents::Document &document, FtpClient &ftp);

// The remote part of Document::Save: connects if needed and sends the file
// just written; true only when the server has confirmed all of it.
bool SendRemoteDocument(documents::Document &document, FtpClient &ftp);

// Fills the documents' hooks with the two above over the shared session.
void installRemoteDocumentHooks();

} // namespace qly::transfer
