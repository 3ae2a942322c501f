#pragma once

#include <QString>

class QDialogButtonBox;
class QPushButton;
class QUrl;
class QWidget;

namespace qly::core::ui {

// Shows a web address or a local page in the desktop's browser; when the
// desktop has no handler, in the browser of [File Locations] "Browser";
// when there is none, says so. False when nothing could show it.
bool OpenInBrowser(const QUrl &url);

// Starts the browser of [File Locations] "Browser" with `url`; says so and
// returns false when there is no such browser or it does not start.
bool StartConfiguredBrowser(const QUrl &url);

// The help page, help/index.html in the program's data.
QString helpPagePath();
// The page of a topic, help/TOPIC.html (a dialog's topic is its object
// name, "frmFind"); the contents page when the topic has none.
QString helpTopicPath(const QString &topic);
bool OpenHelp(const QString &topic = {});

// Adds a Help button with the desktop's help icon to `box`; it opens the
// help topic of `dialog` (its object name).
QPushButton *addHelpButton(QDialogButtonBox *box, QWidget *dialog, const QString &objectName);

} // namespace qly::core::ui
