#pragma once

#include <QRect>
#include <QString>

namespace qly::core {

// The configuration file at start: quillery.ini in the program directory,
// else in the user's configuration directory. When neither exists, the
// program's default file is copied to the user's directory first, so a new
// user starts with the shipped settings and no warning.
QString ChooseIniFile();

// Takes the first "/ini:" switch (any case) out of the command line. When the
// named file exists it becomes gIniFile; otherwise the user is told and
// gIniFile stays. Returns the rest of the line.
QString ProcessCommandLine(const QString &commandLine);

// The main window's stored geometry: "Window State" "Normal" with the
// position keys (twips, each only where stored), otherwise maximized.
struct MainGeometry {
    bool normal = false;
    int width = -1;    // -1: not stored
    int height = -1;
    int left = -1;
    int top = -1;
};
MainGeometry ReadMainGeometry();
// Writes the state; the position keys only for a normal window.
void WriteMainGeometry(bool normal, const QRect &twips);

// Reads gTranslateWhileTyping, gColorOnLeavingLine and gColorHTML.
void ReadGlobalEditingFlags();

} // namespace qly::core
