#pragma once

#include <QList>
#include <QString>

namespace qly::websites {

// The six kinds of link a check reports.
enum class LinkKind {
    ExtLink,       // "extlink": an address that begins "http://"
    NetItem,       // "netitem": any other address with "//" or "mailto:"
    LocLink,       // "loclink": a local file that exists, or any local link with "#"
    Image,         // "image": a local image that exists
    BrokenLocal,   // "brokenlocal": a missing local file that is no image
    BrokenImage,   // "brokenimage": a missing local image
};

// The kind's word, "extlink" to "brokenimage".
QString LinkKindName(LinkKind kind);
bool IsBroken(LinkKind kind);

// One link found in a page.
struct LinkRecord {
    LinkKind kind = LinkKind::LocLink;
    QString link;        // the value as found
    QString localPath;   // the resolved file; empty for extlink and netitem
    QString attribute;   // the Parse For entry that found it
    int line = 0;        // counted from 1
    bool operator==(const LinkRecord &) const = default;
};

using LinkRecords = QList<LinkRecord>;

} // namespace qly::websites
