#pragma once

#include <QString>

namespace qly::core {

// Process-wide values, set during start-up and read everywhere.
extern QString gIniFile;            // the configuration file used when no file is named
extern QString gStylesDir;          // program directory joined with "Styles"
extern const QString gCRLF;         // carriage return and line feed
extern bool gTrapErrors;            // [Debug] "Trap Errors": failures are shown, not passed over
extern qint16 gUntitledCount;       // next number of an untitled document
extern bool gTranslateWhileTyping;  // [Editing] "Translate While Typing"
extern bool gColorOnLeavingLine;    // [Editing] "Color On Leaving Line"
extern bool gColorHTML;             // [Editing] "Color HTML"
extern bool gMainReady;             // the main window may lay itself out
extern bool gStartupPassed;         // closing is allowed
extern bool gClosing;               // the program is closing: documents are asked once only
extern bool gLoadingDocument;       // a document window is being created and filled

// The version shown in captions.
QString versionCaption();           // "Quillery 4.01"

} // namespace qly::core
