#include "markup/TagCatalogue.h"

#include "core/Paths.h"

namespace qly::markup {

namespace {

QString unescape(const QString &s)
{
    if (!s.contains(u'\\'))
        return s;
    QString out;
    out.reserve(s.size());
    for (qsizetype i = 0; i < s.size(); ++i) {
        const QChar c = s.at(i);
        if (c != u'\\' || i + 1 >= s.size()) {
            out += c;
            continue;
        }
        const QChar n = s.at(++i);
        out += n == u't' ? QChar(u'\t') : n == u'n' ? QChar(u'\n') : n == u'r' ? QChar(u'\r') : n;
    }
    return out;
}

QString escape(QString s)
{
    s.replace(u'\\', QLatin1String("\\\\"));
    s.replace(u'\t', QLatin1String("\\t"));
    s.replace(u'\n', QLatin1String("\\n"));
    s.replace(u'\r', QLatin1String("\\r"));
    return s;
}

const QLatin1String kHeader(
    "; Quillery tag catalogue: one entry a line, fields separated by tabs:\r\n"
    "; name, group, end tag (Y/N), filters (comma list), start text, end text, description.\r\n"
    "; Texts take \\t, \\n and \\\\ for a tab, a line end and a backslash.\r\n");

} // namespace

QString TagEntry::itemText() const
{
    return name + u'\t' + description + u'\t' + (hasEndTag ? u'Y' : u'N');
}

QString TagCatalogue::catalogueFile()
{
    return core::JoinPath(core::ProgramDirectory(), QStringLiteral("tags.inf"));
}

QString TagCatalogue::customFile()
{
    return core::JoinPath(core::ProgramDirectory(), QStringLiteral("custom tags.inf"));
}

QList<TagEntry> TagCatalogue::parse(const QByteArray &bytes, bool custom)
{
    QList<TagEntry> out;
    const QString text = QString::fromUtf8(bytes);
    for (QStringView line : QStringView(text).split(u'\n')) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (line.trimmed().isEmpty() || line.startsWith(u';'))
            continue;
        const QList<QStringView> f = line.split(u'\t');
        TagEntry e;
        e.name = f.value(0).trimmed().toString();
        if (e.name.isEmpty())
            continue;
        e.group = f.value(1).trimmed().toString();
        e.hasEndTag = f.value(2).trimmed().startsWith(u'Y', Qt::CaseInsensitive);
        if (custom) {
            e.filters = {customFilterName()};
        } else {
            for (QStringView name : f.value(3).split(u',', Qt::SkipEmptyParts))
                e.filters << name.trimmed().toString();
        }
        e.startText = f.size() > 4 ? unescape(f.at(4).toString()) : u'<' + e.name + u'>';
        e.endText = f.size() > 5 ? unescape(f.at(5).toString())
                                 : (e.hasEndTag ? QStringLiteral("</") + e.name + u'>' : QString());
        e.description = unescape(f.value(6).toString());
        out << e;
    }
    return out;
}

QByteArray TagCatalogue::format(const QList<TagEntry> &entries)
{
    QString out = kHeader;
    for (const TagEntry &e : entries) {
        out += escape(e.name) + u'\t' + escape(e.group) + u'\t' + (e.hasEndTag ? u'Y' : u'N') + u'\t'
               + e.filters.join(u',') + u'\t' + escape(e.startText) + u'\t' + escape(e.endText) + u'\t'
               + escape(e.description) + QLatin1String("\r\n");
    }
    return out.toUtf8();
}

core::IoResult TagCatalogue::load(const QString &file, const QString &custom)
{
    m_entries.clear();
    QByteArray bytes;
    core::IoResult result;
    if (core::FileExists(file)) {
        result = core::readWholeFile(file, bytes);
        if (result.ok())
            m_entries = parse(bytes, false);
    }
    if (core::FileExists(custom) && core::readWholeFile(custom, bytes).ok())
        m_entries += parse(bytes, true);
    return result;
}

core::IoResult TagCatalogue::save(const QString &file, const QString &custom) const
{
    QList<TagEntry> mine, theirs;
    for (const TagEntry &e : m_entries)
        (e.filters == QStringList{customFilterName()} ? theirs : mine) << e;
    core::IoResult result = core::writeFileAtomically(file, format(mine));
    if (!result.ok())
        return result;
    if (theirs.isEmpty() && !core::FileExists(custom))
        return result;
    return core::writeFileAtomically(custom, format(theirs));
}

QList<TagEntry> TagCatalogue::visibleEntries(const QSet<QString> &filters) const
{
    QList<TagEntry> out;
    for (const TagEntry &e : m_entries) {
        for (const QString &f : e.filters) {
            if (filters.contains(f)) {
                out << e;
                break;
            }
        }
    }
    return out;
}

} // namespace qly::markup
