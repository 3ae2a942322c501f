#include "generators/AxObjects.h"

#include "core/FileIo.h"
#include "core/Paths.h"
#include "core/Feedback.h"

namespace qly::generators {

bool AxProperty::isColor() const
{
    return name.contains(QLatin1String("color"), Qt::CaseInsensitive)
           || name.contains(QLatin1String("colour"), Qt::CaseInsensitive);
}

void AxObjects::load(const QString &path)
{
    m_classes.clear();
    QByteArray bytes;
    if (!core::readWholeFile(path, bytes).ok())
        return;
    const QStringList lines = QString::fromUtf8(bytes).split(u'\n');
    for (QString line : lines) {
        line = line.trimmed();
        if (line.isEmpty() || line.startsWith(u';'))
            continue;
        if (line.startsWith(u'[') && line.endsWith(u']')) {
            m_classes << AxClass{line.mid(1, line.size() - 2), {}, {}, {}, false, {}};
            continue;
        }
        const qsizetype eq = line.indexOf(u'=');
        if (eq < 0 || m_classes.isEmpty())
            continue;
        AxClass &c = m_classes.last();
        const QString key = line.left(eq).trimmed();
        const QString value = line.mid(eq + 1).trimmed();
        if (key.compare(QLatin1String("ProgID"), Qt::CaseInsensitive) == 0)
            c.progId = value;
        else if (key.compare(QLatin1String("Name"), Qt::CaseInsensitive) == 0)
            c.name = value;
        else if (key.compare(QLatin1String("Server"), Qt::CaseInsensitive) == 0)
            c.server = value;
        else if (key.compare(QLatin1String("Control"), Qt::CaseInsensitive) == 0)
            c.control = value.compare(QLatin1String("yes"), Qt::CaseInsensitive) == 0;
        else if (key.compare(QLatin1String("Property"), Qt::CaseInsensitive) == 0) {
            const QStringList parts = value.split(u'|');
            AxProperty p{parts.value(0).trimmed(), parts.value(1).trimmed().toUpper(), parts.value(2).trimmed(), {}};
            if (parts.size() > 3) {
                for (const QString &v : parts.value(3).split(u';', Qt::SkipEmptyParts))
                    p.values << v.trimmed();
            }
            if (!p.name.isEmpty())
                c.properties << p;
        }
    }
}

void AxObjects::loadInstalled()
{
    load(core::JoinPath(core::ProgramDirectory(), QStringLiteral("axobjects.inf")));
}

QList<ControlRow> AxObjects::BuildComponentList(bool onlyActiveX) const
{
    core::ShowStatus(QStringLiteral("Building Component List..."));
    QList<ControlRow> table;
    for (const AxClass &c : m_classes) {
        if (onlyActiveX && !c.control)
            continue;
        if (c.progId.isEmpty())
            continue;
        if (onlyActiveX && c.name.toLower().endsWith(QLatin1String(" object")))
            continue;
        table << ControlRow{c.progId, c.clsid, c.name, c.server};
    }
    return table;
}

const AxClass *AxObjects::classOfServer(const QString &server) const
{
    if (server.isEmpty())
        return nullptr;
    for (const AxClass &c : m_classes) {
        if (c.server.compare(server, Qt::CaseInsensitive) == 0)
            return &c;
    }
    return nullptr;
}

QString RemoveBraces(const QString &clsid)
{
    QString out = clsid;
    out.remove(u'{');
    out.remove(u'}');
    return out;
}

QString ListChoiceValue(const QString &choice)
{
    const qsizetype dash = choice.indexOf(QLatin1String(" -"));
    return dash < 0 ? choice : choice.left(dash);
}

} // namespace qly::generators
