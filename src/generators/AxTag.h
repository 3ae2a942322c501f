#pragma once

#include <QList>
#include <QPair>
#include <QString>

namespace qly::generators {

// The object tag's form, kept in [Options] by the options dialog.
struct AxTagOptions {
    bool classId = true;                      // "TagClassID": "ClassID" or "ProgID"
    QString tag = QStringLiteral("OBJECT");   // "Obj": "INSERT" or "OBJECT"
    QString tagCase = QStringLiteral("Mixed"); // "TagCase": "Mixed", "CAPS", "lower"
    bool multiLine = false;                   // "Lines": "Single" or "Multi"
    QString width = QStringLiteral("100");
    QString height = QStringLiteral("100");
    bool includeCode = false;                 // "InclCode"
    QString code = QStringLiteral("http://"); // "Code"

    static AxTagOptions read();
    void write() const;
};

// BuildObjTag: the object's tag with one <param> per property that has a
// value (name and value, in list order).
QString BuildObjTag(const AxTagOptions &options, const QString &id, const QString &clsid, const QString &progId,
                    const QList<QPair<QString, QString>> &values);
// The preview page around a tag.
QString AxPreviewPage(const QString &tag);

} // namespace qly::generators
