#pragma once

#include "browser/BrowserHooks.h"

#include <QString>
#include <QUrl>

class QWidget;

namespace qly::platform::ui {

// The page view of the previews: Qt WebEngine's view, from the program's
// browser library. The library is loaded with the first view, not when the
// program starts: the engine costs tens of megabytes once it is loaded.
// Returns null, with the reason in `error`, when the library is missing or
// cannot be loaded.
QWidget *createBrowser(QWidget *parent, const browser::BrowserHooks &hooks, QString *error = nullptr);
// What a preview says in its place when createBrowser() gave `error`.
QString browserUnavailable(const QString &error);

// What the editor does with such a view.
void browserOpen(QWidget *view, const QUrl &url);
QUrl browserUrl(const QWidget *view);
void browserBack(QWidget *view);
void browserForward(QWidget *view);
void browserStop(QWidget *view);
void browserReload(QWidget *view);

} // namespace qly::platform::ui
