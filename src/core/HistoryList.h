#pragma once

#include <QString>
#include <QStringList>

namespace qly::core {

// The drop-down histories of the dialogs ("Links", "Images", "E-Mail
// Addresses", ...). Each is kept in the configuration under its own section,
// newest first, as keys "1", "2", ...; a text appears once.
inline constexpr int HistoryLength = 20;

QStringList ReadHistory(const QString &name);
// Puts `text` at the top of the history (moving it up when it is already
// there); an empty or blank text changes nothing. The oldest entries beyond
// HistoryLength drop off.
void RememberHistory(const QString &name, const QString &text);
// Writes a whole list as the history, cut to HistoryLength and without
// repeats or empty entries.
void WriteHistory(const QString &name, const QStringList &entries);

} // namespace qly::core
