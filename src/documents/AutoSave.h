#pragma once

#include <QString>
#include <functional>

namespace qly::documents {

// One minute of the auto-save timer. A minute counter rises with each call;
// the pass runs when the counter reaches the threshold, which is the leading
// number of the auto-save *directory* (GetFileLocation("AutoSave")), so an
// ordinary directory gives 0 and no auto-save at all. The minutes the user
// enters in the Options dialog do not reach this test: a kept trait.
// A pass writes every changed document as "<stem>.qnb" (untitled ones as
// "quillery<index>.qnb") without touching Dirty or the document's names.
void AutoSaveTick();

// The leading number of a text as the old runtime read it: blanks, an
// optional sign, digits and a fraction, rounded; 0 when there is none.
int LeadingNumber(const QString &text);

// Switches the timer off during a pass and on after it; set by the main window.
using AutoSaveTimerSwitch = std::function<void(bool enabled)>;
AutoSaveTimerSwitch &autoSaveTimerSwitch();

// The minute counter, for the main window's start and for tests.
int autoSaveMinutes();
void resetAutoSaveMinutes();

} // namespace qly::documents
