#pragma once

#include <QString>
#include <QStringList>

namespace qly::publish {

// The web addresses that commands open in the browser, by command name
// (the Help menu's pages of the product site, the domain look-up); empty
// for a command that has none.
QString webAddress(const QString &command);
QStringList webAddressCommands();

// The local start page of the Web Cornucopia collection under the program directory.
QString cornucopiaPage();

} // namespace qly::publish
