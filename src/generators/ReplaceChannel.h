#pragma once

#include <QString>

namespace qly::generators {

// The channel dialogs' fields and the filling of the channel templates.

struct NetCasterFields {
    QString name;
    QString url = QStringLiteral("http://");
    QString interval;      // minutes
    QString cacheSize;     // bytes
    QString depth;
    QString type = QStringLiteral("window");   // "window" or "webtop"
    QString buttonName;
};

struct ActiveChannelFields {
    QString name;
    QString interval;      // hours
    QString url = QStringLiteral("http://");
    QString abstract;
    QString longName;
    QString itemName;
    QString itemUrl;
    QString selfLocation = QStringLiteral("http://");
};

// Replace the markers, without regard to case, in the fixed order.
QString FillNetCaster(QString text, const NetCasterFields &f);
QString FillActiveChannel(QString text, const ActiveChannelFields &f);
QString FillChannelItem(QString text, const QString &itemName, const QString &itemUrl);

// The path of a template in a folder of the program's data; when it is
// missing the user is told "The template file" and the path " cannot be
// found." and "" is returned.
QString CheckTemplateFile(const QString &folder, const QString &name);
// The same for "Templates".
QString CheckChannelTemplate(const QString &name);
// The text of a template file ("" when missing).
QString ReadChannelTemplate(const QString &path);

} // namespace qly::generators
