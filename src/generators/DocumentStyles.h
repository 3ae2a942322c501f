#pragma once

#include "generators/StyleText.h"

#include <QString>
#include <QStringList>

namespace qly::platform {
class HTMLEdit;
}

namespace qly::generators {

class StyleLibrary;

// The library styles and imported sheets a page uses, as its style block
// names them. The block is the first stretch from <STYLE TYPE="text/css">
// to </STYLE>; its styles are the comments "/* Quillery Style Name=... */",
// its imports the "@import url(...);" lines. Rules without such a comment
// are not seen.
struct DocumentStyles {
    QStringList styles;    // DocStyles
    QStringList imports;   // DocImports, as written between "url(" and ")"
    // The block starts but never ends: it cannot be rewritten safely.
    bool brokenBlock = false;
};

DocumentStyles ReadDocumentStyles(const QString &text);

// The whole <STYLE> block for these styles and imports, CR LF line ends.
QString StyleBlock(const DocumentStyles &doc, const StyleLibrary &library, const LinkFunction &link = {});

enum class StyleWrite { Replaced, Inserted, AtSelection, Refused };

// Puts the block into the page: over the old block; else, with a head,
// before </HEAD> (or with a </HEAD> of its own before <BODY> when the head
// has none); with no head at all at the selection. A block that lost its
// </STYLE> is told and nothing is changed (Refused). One undo step.
StyleWrite WriteDocumentStyles(platform::HTMLEdit &edit, const DocumentStyles &doc, const StyleLibrary &library,
                               const LinkFunction &link = {});

// Adds "@import url(URL);" to the page's block behind its opening comment,
// or writes a new block with the page's styles and this import.
StyleWrite AddStyleImport(platform::HTMLEdit &edit, const QString &url, const StyleLibrary &library,
                          const LinkFunction &link = {});

} // namespace qly::generators
