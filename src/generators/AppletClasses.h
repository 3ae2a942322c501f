#pragma once

#include <QString>
#include <QStringList>

namespace qly::generators {

// The class files the <applet> tags of `page` name ("code", with ".class"
// added when it has no extension), each once, in order of appearance; the
// old text classes bring their three companions.
QStringList AppletClassFiles(const QString &page);

// Copies those classes from the program's "classes" folder into `directory`
// unless a file of that name is there already. A class that is missing or
// cannot be copied is passed over (the applet stays in the page). Returns
// the names copied.
QStringList CopyAppletClasses(const QString &page, const QString &directory);

} // namespace qly::generators
