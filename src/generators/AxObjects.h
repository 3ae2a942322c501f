#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace qly::generators {

// The known objects of the program's "axobjects.inf", which stands in for
// the system's list of controls: sections by CLSID with ProgID, Name,
// Server, Control and one "Property=name|type|description[|values]" line per
// property (values parted by ";", each "value - text").

struct AxProperty {
    QString name;
    QString type;          // "STRING", "LONG", "BOOL", "LIST", "SUB"
    QString description;
    QStringList values;    // for "LIST": "value - text"
    bool isColor() const;
};

struct AxClass {
    QString clsid;
    QString progId;
    QString name;
    QString server;
    bool control = false;
    QList<AxProperty> properties;
};

// ControlTable: one row per control, columns 0 ProgID, 1 CLSID, 2 name,
// 3 server path.
using ControlRow = QStringList;

class AxObjects
{
public:
    // Reads the file; a missing file gives no classes.
    void load(const QString &path);
    // The program's file.
    void loadInstalled();
    const QList<AxClass> &classes() const { return m_classes; }

    // The registry scan: controls (or, with `onlyActiveX` off, every class)
    // with a ProgID; with `onlyActiveX` a name ending in " object" is passed
    // over. The status shows "Building Component List...".
    QList<ControlRow> BuildComponentList(bool onlyActiveX) const;
    // The properties of the class served by `server`; null when no class has
    // that server (an empty server is never found).
    const AxClass *classOfServer(const QString &server) const;

private:
    QList<AxClass> m_classes;
};

// "{...}" taken off a CLSID.
QString RemoveBraces(const QString &clsid);
// The value a list choice writes: its text up to " -".
QString ListChoiceValue(const QString &choice);

} // namespace qly::generators
