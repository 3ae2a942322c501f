#pragma once

#include <QList>
#include <QString>

namespace qly::platform {
class HTMLEdit;
}

namespace qly::generators {

class StyleLibrary;
struct DocumentStyles;

// The toolbar's style combo: the page's styles that carry a class, "[none]"
// first, and the class of the tag under the caret.

struct StyleChoice {
    QString name;    // the style's name, as listed
    QString tag;     // its tag, "" when any
    QString cls;     // its class
};

// The page's styles that have a class. With `documentSpecific` only those
// whose tag is the tag of `selectedTag` ("<P ...>") or that name no tag.
QList<StyleChoice> StyleComboEntries(const DocumentStyles &doc, const StyleLibrary &library,
                                     bool documentSpecific, const QString &selectedTag);

// The row of the combo for the CLASS of `selection`: 1 + the index of the
// entry with that class, or 0 for no class or an unknown one.
int ClassRow(const QList<StyleChoice> &entries, const QString &selection);

// `tag` with its CLASS attribute set to `cls`, added behind the tag's name
// when missing, removed when `cls` is empty. An end tag or a text that is
// no tag comes back unchanged.
QString SetClassAttribute(const QString &tag, const QString &cls);

// Applies `cls` to the tag under the selection (the selected tag, or the
// start tag that holds the caret or stands before it). False when there is
// no such tag.
bool ApplyStyleClass(platform::HTMLEdit &edit, const QString &cls);

} // namespace qly::generators
