#pragma once

#include <QString>

namespace qly::publish {

// The six passes over a document's text, in this order, each switched by a
// [Publishing] key read at each run: "Convert CRLF" (line ends to "<BR>"),
// "Strip CRLF", "Publish as UNIX Text" (CR LF to LF), "Translate Extended
// Characters" (the character table), "Use Aliases" (the alias table, made
// UNIX-style first when the text is) and "Use UNIX Slashes" (inside tags).
// Changes `text` and returns it.
QString PublishText(QString &text);

// Inside tags only ("<" to the next ">"): "TOUNIX" turns "\" into "/",
// "TODOS" "/" into "\"; any other direction changes nothing. Changes `text`
// and returns it.
QString ConvertSlashes(QString &text, const QString &direction);

// The file PublishFile reads: `source` itself (reported when missing), or
// for an empty `source` a temporary copy of the current document's text,
// unsaved changes included, in the publish directory or the document's own.
// Empty when there is no document or no place for the copy.
QString PrepareSource(const QString &source);

// Reads `source` (empty: the current document), publishes its text and
// writes `target`. An existing target is first copied to its ".bak" name
// unless [General] "Create BAK Files" is on. The file keeps the encoding
// of its source. False when the source could not be read or nothing could
// be written; the user has then been told.
bool PublishFile(const QString &source, const QString &target);

} // namespace qly::publish
