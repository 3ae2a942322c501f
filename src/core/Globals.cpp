#include "core/Globals.h"

namespace qly::core {

QString gIniFile;
QString gStylesDir;
const QString gCRLF = QStringLiteral("\r\n");
bool gTrapErrors = false;
qint16 gUntitledCount = 1;
bool gTranslateWhileTyping = false;
bool gColorOnLeavingLine = false;
bool gColorHTML = false;
bool gMainReady = false;
bool gStartupPassed = false;
bool gClosing = false;
bool gLoadingDocument = false;

QString versionCaption()
{
    return QStringLiteral("Quillery 4.01");
}

} // namespace qly::core
