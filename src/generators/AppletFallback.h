#pragma once

namespace qly::generators {

// "Fallback for today's browsers": when on, generated <applet> elements also
// hold markup that browsers without applets show instead. Off by default, so
// the generated text stays as it always was. Kept in [Generators]
// "Applet Fallback" as "Yes"/"No".
bool AppletFallbackOn();
void SetAppletFallback(bool on);

} // namespace qly::generators
