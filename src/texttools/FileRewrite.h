#pragma once

#include <QList>
#include <QString>

namespace qly::texttools {

// One row of the terms grid.
struct Term {
    QString find;
    QString replacement;
};

enum class LineEndConversion { None, DosToUnix, UnixToDos };
enum class NameCase { DontChange, Lower, Mixed };

// How the multi-file replacement rewrites each file.
struct RewriteOptions {
    bool backup = false;
    LineEndConversion conversion = LineEndConversion::None;
    bool htmToHtml = false;
    NameCase nameCase = NameCase::DontChange;
};

// Every term replaced in `text`, without regard to case, rows with an empty
// "Find" passed over; then the line-end conversion with its slashes.
// Returns the number of replacements.
long RewriteText(QString &text, const QList<Term> &terms, LineEndConversion conversion);

// The name the text is written to: ".htm" becomes ".html" when asked.
QString TargetPath(const QString &path, bool htmToHtml);
// The file name part in lower case or with each word's first letter capital
// and the rest small; the directory stays as it is.
QString CasedPath(const QString &path, NameCase nameCase);
// The backup of a file: the same path with the extension ".bak".
QString BackupPath(const QString &path);

// True when the bytes look like a binary file (a NUL byte in the first 8 KB).
bool LooksBinary(const QByteArray &bytes);

} // namespace qly::texttools
