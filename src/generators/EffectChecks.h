#pragma once

#include <QString>

namespace qly::generators {

// The checks of the text effects' fields. Each tells the user what is wrong
// through the prompts and returns false; the caller then clears the field.

struct NumberRange {
    int low = 0;
    int high = 0;
};
// The range of a numeric field of the text effects or applet size dialogs
// by its name (txtSpeed, txtappletwidth, txtStartpos, ...).
NumberRange EffectFieldRange(const QString &fieldName);
// The font sizes the size list admits.
inline constexpr NumberRange kFontSizes{6, 72};

// "Warning Invalid Input Entered": "Enter a Number between 1 and  100".
bool ValidNumericInput(const QString &value, NumberRange range);
// Only the four font names of the list; "Warning Invalid Font Type Entered".
bool ValidFontName(const QString &name);
// "Warning Invalid Font Size Entered".
bool ValidFontSize(const QString &size);
// A number as the old number formatting writes it: a blank before a
// positive number, "-" before a negative one.
QString FormattedNumber(long long n);

} // namespace qly::generators
