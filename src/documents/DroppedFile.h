#pragma once

#include <QString>

namespace qly::documents {

class Document;

// What a file dropped from the desktop onto a document becomes.
enum class DropKind {
    Link,    // HTM, HT3, SHT, PUB, HTML, SHTML: a link to it
    Image,   // GIF, JPG, XBM: an image tag
    Text,    // TXT: its text
    Other,   // the user is asked
};
DropKind DroppedFileKind(const QString &path);

// The reference to `path` as it stands in the document: relative to the
// document's directory with "/" separators, or a file URL while the
// document has no file.
QString DroppedFileLink(const Document &document, const QString &path);

// Inserts the dropped file at the caret: "<A HREF="link">" with the
// selection or the file name and "</A>", "<IMG SRC="link">", or for a TXT
// file what documentHooks().insertTextFile makes of it. For other kinds the user chooses: Yes links to the file,
// No opens it as a document, Cancel does nothing.
void txtDoc_DropFileOnMe(Document &document, const QString &path);

// A file dragged from one of the editor's own views (the file view
// "adcFiles") onto a document: the document becomes
// the active one and at its caret goes "<IMG SRC=link>" for a GIF or JPG
// file, "<A HREF=link>name</A>" for any other, the link being the file's
// reference as seen from the document (markup::RelativeLink) and quoted
// only when it holds a blank or a quote. Nothing is asked and nothing is
// opened. Returns the text inserted.
QString InsertDroppedResource(Document &document, const QString &path);
// The text that InsertDroppedResource puts in, for a link already made.
QString DroppedResourceMarkup(const QString &path, const QString &link);

} // namespace qly::documents
