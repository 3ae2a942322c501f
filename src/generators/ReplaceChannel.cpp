#include "generators/ReplaceChannel.h"

#include "core/FileIo.h"
#include "core/Paths.h"
#include "markup/TextOps.h"
#include "platform/Prompts.h"

namespace qly::generators {

namespace {

void fill(QString &text, const char *marker, const QString &value)
{
    markup::ReplaceAll(text, QString::fromLatin1(marker), value);
}

} // namespace

QString FillNetCaster(QString text, const NetCasterFields &f)
{
    fill(text, "%URL%", f.url);
    fill(text, "%Name%", f.name);
    fill(text, "%Interval%", f.interval);
    fill(text, "%CacheSize%", f.cacheSize);
    fill(text, "%Depth%", f.depth);
    fill(text, "%Active%", QStringLiteral("1"));
    fill(text, "%Mode%", f.type);
    fill(text, "%Type%", QStringLiteral("1"));
    fill(text, "%ButtonName%", f.buttonName);
    return text;
}

QString FillActiveChannel(QString text, const ActiveChannelFields &f)
{
    fill(text, "%URL%", f.url);
    fill(text, "%Name%", f.name);
    fill(text, "%LongName%", f.longName);
    fill(text, "%Abstract%", f.abstract);
    fill(text, "%Self%", f.selfLocation);
    fill(text, "%Frequency%", f.interval);
    fill(text, "%ItemName%", f.itemName);
    fill(text, "%ItemURL%", f.itemUrl);
    return text;
}

QString FillChannelItem(QString text, const QString &itemName, const QString &itemUrl)
{
    fill(text, "%ItemName%", itemName);
    fill(text, "%ItemURL%", itemUrl);
    return text;
}

QString CheckChannelTemplate(const QString &name)
{
    return CheckTemplateFile(QStringLiteral("Templates"), name);
}

QString CheckTemplateFile(const QString &folder, const QString &name)
{
    const QString path = core::JoinPath(core::JoinPath(core::ProgramDirectory(), folder), name);
    if (core::FileExists(path))
        return path;
    platform::MsgBox(QStringLiteral("The template file") + path + QStringLiteral(" cannot be found."));
    return {};
}

QString ReadChannelTemplate(const QString &path)
{
    QByteArray bytes;
    if (path.isEmpty() || !core::readWholeFile(path, bytes).ok())
        return {};
    return QString::fromUtf8(bytes);
}

} // namespace qly::generators
