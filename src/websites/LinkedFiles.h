#pragma once

#include <QString>
#include <QStringList>

namespace qly::platform {
class HTMLEdit;
}

namespace qly::websites {

// The files a page takes along when it is sent to a server: for each
// `attributeWithEquals` ("href=", "src=", ...) found in a line, the text up
// to the first blank or ">" behind it, quotes included, resolved against
// the page. Links to pages (".htm"), anchors ("#"), "mailto:" and other
// addresses ("//") are not followed, except "file:///" addresses, which are
// taken as files. Each file comes once, in the order first found. A page
// that cannot be read gives nothing.
QStringList CollectLinkedFiles(const QString &page, const QString &attributeWithEquals);
// The same for every Parse For attribute in turn.
QStringList CollectLinkedFiles(const QString &page);

// The file a tag refers to: the value of "src" when " src=" is in it, else of
// "href" when " href=" is; a tag with neither gives its own text. "file://"
// values become paths; others are resolved against `baseFile`.
QString LinkTargetOfTag(const QString &tagText, const QString &baseFile);

// The local file of a link, or empty: addresses with "http://", "mailto:"
// or "ftp:" give empty, and so does a resolved file that does not exist.
QString GetLocalName(const QString &link, const QString &baseFile);

// Selects the next place of `link` in the text, behind the selection when
// there is one. False when there is none.
bool LocateLink(platform::HTMLEdit &txtDoc, const QString &link);

} // namespace qly::websites
