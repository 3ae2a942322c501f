#pragma once

#include <QString>

namespace qly::markup {

// Path arithmetic for references between files. Paths are native ("/"
// separators, "/home/..."); the old drive forms "C:\dir\name" and
// "file:///C|/dir/name" are accepted everywhere, so old pages still work.

// True for "C:..." (a drive letter and a colon).
bool hasDrive(const QString &path);
// True when `a` and `b` can reach each other by a relative path: the same
// drive in the old form, or both native absolute paths.
bool sameRoot(const QString &a, const QString &b);

// `target` as seen from the directory of the file `base`: "b/c.htm",
// "../../b/c.htm"; empty when both are the same file. Directory names are
// compared without regard to case for drive paths and exactly for native
// ones. The result uses "\" when `target` does, otherwise "/".
QString RelativePath(const QString &target, const QString &base);

// The reference to `target` as it must stand in the current document:
// relative where possible, otherwise "file:///..." (old drive paths as
// "file:///C|/..."). Empty with no document.
QString RelativeLink(const QString &target);

// The full path of a relative `reference` in `directory`, with "." and ".."
// resolved. An absolute reference comes back as it is.
QString ResolveRelativePath(const QString &reference, const QString &directory);

// "file:///home/a.htm" -> "/home/a.htm"; "file:///C|/a/b.htm" -> "C:\a\b.htm".
// Double quotes are removed.
QString FileUrlToPath(const QString &url);

// "/home/a.htm" -> "file:///home/a.htm"; "C:\a\b.htm" -> "file:///C:/a/b.htm";
// a relative path only has its "\" turned into "/".
QString PathToFileUrl(const QString &path);

} // namespace qly::markup
