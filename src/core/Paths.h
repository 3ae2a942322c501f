#pragma once

#include <QString>
#include <QStringList>

namespace qly::core {

// The directory that holds the program's data (Templates, classes, Styles,
// character.inf, ...): beside the executable in a build or portable tree;
// for an installed program, a copy in the user's data directory made on the
// first start from the installed data.
QString ProgramDirectory();
void setProgramDirectory(const QString &dir);
QString locateProgramDirectory();

// The user's configuration directory: $XDG_CONFIG_HOME/quillery.
QString UserConfigDirectory();

// The file dialog filter for choosing a program (a browser): programs
// carry ".exe" only on Windows; elsewhere every file is offered.
QString ProgramFileFilter();

// Joins a directory and a name with one separator; an empty directory gives
// the name alone, which then stands for the current directory.
QString JoinPath(const QString &dir, const QString &name);
// False for an empty path and for a path holding "*". Paths on the old
// floppy drives "A:" and "B:" are not touched: `answer` is returned.
bool FileExists(const QString &path, bool answer = true);
bool DirExists(const QString &path);
// The extension of the file name part, without its point.
QString GetFileExt(const QString &path);
// The path less the extension of its file name part.
QString StripExtension(const QString &path);
// The part after the last separator ("/" or "\").
QString FileNameOf(const QString &path);
// The part before the last separator, without it.
QString DirectoryOf(const QString &path);
// Splits `text` at each `delimiter`; returns the number of pieces.
int SplitList(const QString &text, const QString &delimiter, QStringList &out);

} // namespace qly::core
