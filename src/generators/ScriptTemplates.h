#pragma once

#include <QList>
#include <QString>

namespace qly::platform {
class HTMLEdit;
}

namespace qly::generators {

// The ready-made scripts of the Insert menu, from the templates of the
// program's "JavaScripts" folder. Markers are replaced without regard to
// case; only %FOREACH% and %ENDFOREACH% must stand in capitals.

// Splits `tmpl` at "%FOREACH%" and "%ENDFOREACH%" (case respected): `tmpl`
// keeps the head, `block` receives the text between, `suffix` the rest.
// When either marker is missing, `block` and `suffix` are cleared, the user
// is told "The template for this script was not valid", and false returned.
bool getForEachText(QString &tmpl, QString &suffix, QString &block);

// A row of the random banner's list.
struct BannerRow {
    QString imageUrl;
    QString linkUrl;
    QString caption;
};
QString RandomBannerText(QString tmpl, const QList<BannerRow> &rows);

// A row of the Select URL list.
struct PickRow {
    QString text;
    QString url;
};
QString SelectUrlText(const QList<PickRow> &rows);

struct PopupFields {
    QString url;
    QString caption = QStringLiteral("Popup");
    QString width;
    QString height;
    bool toolbar = false, directories = false, status = false, menubar = false, scrollbars = false,
         resizable = false;
};
QString PopupText(const PopupFields &f);

// The clock and the scrolling field: the form goes in at the selection, the
// script before </HEAD> and the start into the BODY tag, as one undo step.
// Without </HEAD> the form stays, the user is told, and false is returned.
bool InsertClock(platform::HTMLEdit &edit, const QString &size, const QString &clockTemplate);
// Does nothing (and returns false) for an empty message.
bool InsertScrolling(platform::HTMLEdit &edit, const QString &message, const QString &size,
                     const QString &scrollingTemplate);
// The page leaves any frame it is shown in.
bool InsertNoFrames(platform::HTMLEdit &edit);

} // namespace qly::generators
