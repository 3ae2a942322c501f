#include "generators/AxTag.h"

#include "core/Settings.h"
#include "generators/AxObjects.h"

namespace qly::generators {

namespace {

const QString kSection = QStringLiteral("Options");

QString read(const char *key, const QString &fallback)
{
    const QString value = core::ReadSetting(kSection, QString::fromLatin1(key));
    return value.isEmpty() ? fallback : value;
}

} // namespace

AxTagOptions AxTagOptions::read()
{
    const AxTagOptions d;
    AxTagOptions o;
    o.classId = generators::read("TagClassID", QStringLiteral("ClassID")) != QLatin1String("ProgID");
    o.tag = generators::read("Obj", d.tag).toUpper() == QLatin1String("INSERT") ? QStringLiteral("INSERT")
                                                                                  : QStringLiteral("OBJECT");
    o.tagCase = generators::read("TagCase", d.tagCase);
    o.multiLine = generators::read("Lines", QStringLiteral("Single")) == QLatin1String("Multi");
    o.width = generators::read("Width", d.width);
    o.height = generators::read("Height", d.height);
    o.includeCode = generators::read("InclCode", QStringLiteral("No")).toLower() == QLatin1String("yes");
    o.code = generators::read("Code", d.code);
    return o;
}

void AxTagOptions::write() const
{
    core::WriteSetting(kSection, QStringLiteral("TagClassID"), classId ? QStringLiteral("ClassID") : QStringLiteral("ProgID"));
    core::WriteSetting(kSection, QStringLiteral("Obj"), tag);
    core::WriteSetting(kSection, QStringLiteral("TagCase"), tagCase);
    core::WriteSetting(kSection, QStringLiteral("Lines"), multiLine ? QStringLiteral("Multi") : QStringLiteral("Single"));
    core::WriteSetting(kSection, QStringLiteral("Width"), width);
    core::WriteSetting(kSection, QStringLiteral("Height"), height);
    core::WriteSetting(kSection, QStringLiteral("InclCode"), includeCode ? QStringLiteral("Yes") : QStringLiteral("No"));
    core::WriteSetting(kSection, QStringLiteral("Code"), code);
}

QString BuildObjTag(const AxTagOptions &o, const QString &id, const QString &clsid, const QString &progId,
                    const QList<QPair<QString, QString>> &values)
{
    auto name = [&o](const char *text) {
        const QString s = QString::fromLatin1(text);
        if (o.tagCase == QLatin1String("CAPS"))
            return s.toUpper();
        return o.tagCase == QLatin1String("lower") ? s.toLower() : s;
    };
    const QString crLf = QStringLiteral("\r\n");
    const QString sep = o.multiLine ? crLf + u'\t' : QStringLiteral(" ");
    const QString tag = o.tag == QLatin1String("INSERT") ? name("insert") : name("object");
    QString out = u'<' + tag + sep + name("id") + QStringLiteral("=\"") + id + u'"' + sep;
    out += o.classId ? name("CLASSID") + QStringLiteral("=\"ClsID:") + RemoveBraces(clsid) + u'"'
                     : name("CLASSID") + QStringLiteral("=\"ProgID:") + progId + u'"';
    out += sep + name("width") + u'=' + o.width + sep + name("height") + u'=' + o.height;
    if (o.includeCode && !o.code.isEmpty())
        out += sep + name("CodeBase") + QStringLiteral("=\"") + o.code + u'"';
    out += QStringLiteral(" >") + crLf;
    for (const auto &[property, value] : values) {
        if (!value.isEmpty())
            out += u'<' + name("param") + u' ' + name("name") + u'=' + property + u' ' + name("value") + u'=' + value
                   + u'>' + crLf;
    }
    return out + QStringLiteral("</") + tag + u'>';
}

QString AxPreviewPage(const QString &tag)
{
    return QStringLiteral("<HTML><HEAD><TITLE>ActiveX Preview</TITLE></HEAD><BODY>") + tag
           + QStringLiteral("</BODY></HTML>");
}

} // namespace qly::generators
