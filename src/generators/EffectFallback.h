#pragma once

#include <QString>

namespace qly::generators {

class TextEffectsModel;

// Markup that today's browsers show inside an <applet> they cannot run: the
// effect's text with a CSS animation, inside the chosen border; a CSS
// marquee for the LED sign; an animated gradient bar for the rule. Every
// line ends in CR LF.
QString TextEffectFallback(const TextEffectsModel &model);
QString LedFallback(const QString &text, unsigned color, unsigned backColor);
QString HRuleFallback(const QString &width, const QString &height, unsigned color, bool border);

} // namespace qly::generators
