#pragma once

#include "texttools/TextToHtml.h"

#include <QString>

namespace qly::texttools {

// Where the conversion keeps its working files (the saved copy of the
// document, the result): a folder of the user's own in the temp directory.
QString ConversionDirectory();

// Converts the text file `inputPath` into the page `outputPath`, written in
// the input's encoding, replacing an older file atomically. A file that
// cannot be read or is no text is told to the user and nothing is written.
// `page`, when given, receives the page's text. False when nothing was written.
bool ConvertTextFile(const QString &inputPath, const QString &outputPath, const ConvertOptions &options,
                     QString *page = nullptr);

// Converts the text file `inputPath` into `outputName` in the input's
// directory (the current directory when that is gone), as ConvertTextFile
// does; `outputName` becomes the full path. With `loadResult` the page
// replaces the current document's text, as one undo step.
bool ConvertFile(const QString &inputPath, QString &outputName, bool loadResult, const ConvertOptions &options);

// Writes the current document's text under `name` in ConversionDirectory(),
// replacing an older file; without a name one is made: "~qly" + minutes
// and seconds + ".tmp". Returns the path, or "" on failure.
QString SaveCurrentDocumentTo(const QString &name = {});

// Insert > Text File: the file's text at the caret, characters of code 0
// taken out; inside <PRE> and </PRE> lines unless [General] "Preformat
// Text" is "no". The caret stays where it was. A missing file is told with
// the error box, a file that is no text with a message.
void InsertTextFile(const QString &path);

// Insert > Text File: asks for a file in the "Documents" location, then
// InsertTextFile. Nothing without a current document.
void InsertTextFile_Click();

// Lets a text file dropped on a document go in through InsertTextFile.
void installTextFileDrop();

} // namespace qly::texttools
