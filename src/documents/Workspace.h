#pragma once

#include <QList>
#include <QString>

namespace qly::documents {

class Document;

// What the program asks of its main window: the document windows in it.
// The editor's main window implements it; tests use a fake that keeps
// documents over in-memory buffers.
class Workspace
{
public:
    virtual ~Workspace() = default;

    // The active document window, or null.
    virtual Document *activeDocument() const = 0;
    // All document windows, first opened first.
    virtual QList<Document *> documentList() const = 0;
    // Makes a bare document window of the kind asked for; see CreateDocumentWindow.
    virtual Document *makeDocumentWindow(bool explorerInternal) = 0;
    // Closes a document window without asking.
    virtual void unloadDocument(Document *document) = 0;
    // The status bar's position panel.
    virtual void setPositionText(const QString &) {}

    static Workspace *instance();
    // Makes `workspace` the process's one; the first one also connects the
    // documents to the settings that speak of them (the current document's
    // folder as a file location, the Options dialog's editing settings).
    static void setInstance(Workspace *workspace);
    // The active document of the process's workspace, or null.
    static Document *CurrentDocument();
};

} // namespace qly::documents
