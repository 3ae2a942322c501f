#pragma once

#include <QList>
#include <QString>

namespace qly::documents {

class Document;

// All document windows of the workspace, first opened first.
QList<Document *> AllDocuments();

// Makes a document window of the configured kind, applies the window
// state (the "Always Maximize" rule), word wrap and font, and leaves
// gLoadingDocument set for the caller's open sequence.
Document *CreateDocumentWindow(int windowState = -1);
void ApplyDocumentFont(Document &document);
void ApplyWordWrap(Document &document);

// Opens a path, or a session entry "path,state,width,height,left,top[,tab]".
// A .prj path opens a website. False when nothing was opened.
bool OpenDocumentFile(const QString &argument, const QString &showName = {});

// The session entry of a document window.
QString SessionEntry(const Document &document);

// Saves every changed document, asking first when `ask`; rewrites the
// [Last Session] list from the documents that have files. With `collect`,
// `names` receives the captions, one a line. False when the user cancelled
// or a save failed.
bool SaveAllDocuments(bool ask, bool collect = false, QString *names = nullptr);

// Window > Close All: saves the changed documents (asking first), then
// closes every document window. False when the user cancelled.
bool CloseAllDocuments();

// The question before a document window closes; true to keep it open.
bool DocumentCloseQuery(Document &document);

} // namespace qly::documents
