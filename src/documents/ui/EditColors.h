#pragma once

#include "platform/HTMLEdit.h"

#include <QColor>

class QFont;

namespace qly::documents::ui {

class HtmlColouring;

// The colour a slot has when its [Editing] key is empty: tones that read on
// a light and on a dark desktop palette; text takes the palette's own.
QColor defaultSlotColor(int slot);

// Gives the colouring's styles the colours of the slots over the palette's
// base. With `entireTags` a whole tag (attributes, values, unknown names)
// takes the tag colour and script words stay text.
void applyEditColors(HtmlColouring &lexer, const platform::ColorTable &colors, bool entireTags, const QFont &font);

} // namespace qly::documents::ui
