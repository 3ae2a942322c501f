#pragma once

#include "websites/LinkRecord.h"

#include <QByteArray>
#include <QHash>
#include <QStringList>

namespace qly::websites {

// The attributes that name other files: [General] "Parse For", split at ","
// and used untrimmed, empty entries skipped; "href,src,background,lowsrc"
// when the key is empty.
QStringList ParseForAttributes();

// True when the extension of the path's file name (behind its last ".";
// empty when there is none) occurs in "gifjpg", ignoring case: "gif",
// "jpg", "g" and no extension count; "jpeg" and "png" do not.
bool IsImageExtension(const QString &path);

// Sorts one attribute value found in `page` into its kind and resolves it
// to a local file. Remembers which files exist, so a site's many links to
// the same file cost one look at the disk.
class LinkClassifier
{
public:
    LinkRecord classify(const QString &value, const QString &page);
    bool exists(const QString &path);

private:
    QHash<QString, bool> m_exists;
};

// The links of a page's bytes (UTF-8 when valid, otherwise Windows-1252),
// found as text wherever an attribute stands in a line, `attributes` in
// their order: all links of the first attribute, then of the second, ...
// Each line is read once for all attributes, with the rule of reading one
// attribute at a time: the first place of the name in the line (with or
// without "=") is where the value's length is counted from, and the line
// goes on behind it; a first place without a value ends the line for that
// attribute. The values of "code" and "codebase" without an extension get
// ".class". Lines end at CR, LF or CR LF. Time and memory are linear in the
// page and the records, whatever the page holds.
LinkRecords ScanLinks(const QByteArray &page, const QString &pageFile, const QStringList &attributes,
                      LinkClassifier &classifier);

// Scans a file. When it cannot be read, the message "Error: " and the
// reason is shown with the file as title, and false comes back.
bool ScanFileLinks(const QString &file, const QStringList &attributes, LinkRecords &out,
                   LinkClassifier &classifier);

// The links of a document's text, with its file as the base of relative links.
LinkRecords CheckLinks(const QString &text, const QString &documentFile);

} // namespace qly::websites
