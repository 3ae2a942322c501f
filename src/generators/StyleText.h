#pragma once

#include "generators/StyleRecord.h"

#include <QString>
#include <functional>

namespace qly::generators {

class StyleLibrary;

// How a background picture is referred to from the page; RelativeLink when
// none is given.
using LinkFunction = std::function<QString(const QString &)>;

// The declarations of a style's text block, one a line ("name: value;" and
// CR LF), in the library's fixed order. Values stand in double quotes where
// the style sheets of this editor always put them.
QString TextProperties(const StyleRecord &record);
// The declarations of the box block; a background picture goes through `link`.
QString BoxProperties(const StyleRecord &record, const LinkFunction &link = {});

// The whole rule of a library style with the comment that names it:
// "/* Quillery Style Name="name" */", then the rule, and one more rule for a
// pseudo element and for a link state. A name not in the library gives an
// empty rule with no selector.
QString StyleText(const QString &name, const StyleLibrary &library, const LinkFunction &link = {});
QString StyleText(const QString &name, const StyleRecord &record, const LinkFunction &link = {});

} // namespace qly::generators
