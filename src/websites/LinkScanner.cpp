#include "websites/LinkScanner.h"

#include "core/FileIo.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/TextCodec.h"
#include "markup/Links.h"
#include "markup/TextOps.h"
#include "platform/Prompts.h"

#include <array>
#include <vector>

namespace qly::websites {

namespace {

inline uchar lowerAscii(uchar c)
{
    return (c >= 'A' && c <= 'Z') ? uchar(c + 32) : c;
}

// One attribute while a page is read: its name as bytes and where it
// stands in the line at hand.
struct Attribute {
    QString text;
    QByteArray lower;              // the name in the page's encoding, ASCII letters lowered
    bool code = false;             // "code" or "codebase"
    std::vector<qsizetype> places; // every place of the name in the line, ascending
    LinkRecords found;
};

class PageScan
{
public:
    PageScan(const QByteArray &page, const QString &file, const QStringList &attributes, LinkClassifier &c)
        : m_b(reinterpret_cast<const uchar *>(page.constData())), m_size(page.size()), m_file(file),
          m_classifier(c)
    {
        const bool utf8 = core::detectEncoding(page) == core::TextEncoding::Utf8;
        m_utf8 = utf8;
        for (const QString &a : attributes) {
            if (a.isEmpty())
                continue;
            Attribute at;
            at.text = a;
            at.lower = utf8 ? a.toUtf8() : core::encodeText(a, core::TextEncoding::Windows1252);
            for (char &ch : at.lower)
                ch = char(lowerAscii(uchar(ch)));
            at.code = a.compare(QLatin1String("code"), Qt::CaseInsensitive) == 0
                      || a.compare(QLatin1String("codebase"), Qt::CaseInsensitive) == 0;
            m_first[uchar(at.lower.at(0))] = true;
            m_attrs.push_back(std::move(at));
        }
    }

    LinkRecords run()
    {
        qsizetype pos = 0;
        int line = 0;
        while (pos < m_size || (pos == m_size && line == 0 && m_size > 0)) {
            ++line;
            const qsizetype end = sweepLine(pos);
            for (Attribute &a : m_attrs) {
                if (!a.places.empty())
                    scanAttribute(a, pos, end, line);
            }
            if (end >= m_size)
                break;
            pos = end + ((m_b[end] == '\r' && end + 1 < m_size && m_b[end + 1] == '\n') ? 2 : 1);
        }
        LinkRecords all;
        for (Attribute &a : m_attrs)
            all += a.found;
        return all;
    }

private:
    // Finds the end of the line that starts at `pos` and every place of
    // every attribute's name in it.
    qsizetype sweepLine(qsizetype pos)
    {
        for (Attribute &a : m_attrs)
            a.places.clear();
        qsizetype i = pos;
        for (; i < m_size; ++i) {
            const uchar c = m_b[i];
            if (c == '\n' || c == '\r')
                break;
            if (!m_first[lowerAscii(c)])
                continue;
            for (Attribute &a : m_attrs) {
                const qsizetype n = a.lower.size();
                if (i + n > m_size)
                    continue;
                qsizetype k = 0;
                while (k < n && lowerAscii(m_b[i + k]) == uchar(a.lower.at(k)))
                    ++k;
                if (k == n)
                    a.places.push_back(i);
            }
        }
        return i;
    }

    // UTF-16 units in [from, to).
    qsizetype chars(qsizetype from, qsizetype to) const
    {
        if (!m_utf8)
            return to - from;
        qsizetype n = 0;
        for (qsizetype i = from; i < to; ++i) {
            const uchar c = m_b[i];
            if ((c & 0xC0) != 0x80)
                n += c >= 0xF0 ? 2 : 1;
        }
        return n;
    }

    // The place `units` UTF-16 units behind `from`, at most `limit`.
    qsizetype advance(qsizetype from, qsizetype units, qsizetype limit) const
    {
        if (!m_utf8)
            return std::min(from + units, limit);
        qsizetype i = from;
        while (i < limit && units > 0) {
            const uchar c = m_b[i];
            const int len = core::utf8SequenceLength(c);
            units -= c >= 0xF0 ? 2 : 1;
            i += len;
        }
        return std::min(i, limit);
    }

    QString decode(qsizetype from, qsizetype to) const
    {
        const char *p = reinterpret_cast<const char *>(m_b + from);
        if (m_utf8)
            return QString::fromUtf8(p, to - from);
        return core::decodeText(QByteArray::fromRawData(p, to - from), core::TextEncoding::Windows1252);
    }

    // The value of "name=" in [t0, t1) by the attribute reader's rule: the
    // first "name=" decides; a digit 1 to 9 before it refuses it.
    QString valueAt(qsizetype hit, qsizetype t0, qsizetype t1, qsizetype nameLength) const
    {
        if (hit < 0 || (hit > t0 && m_b[hit - 1] >= '1' && m_b[hit - 1] <= '9'))
            return {};
        const qsizetype start = hit + nameLength + 1;
        if (start >= t1)
            return {};
        const bool quoted = m_b[start] == '"';
        qsizetype i = start + 1;
        for (; i < t1; ++i) {
            const uchar c = m_b[i];
            if (c == '"' || c == '>' || c == 0)
                break;
            if (!quoted && (c == ' ' || c == '\r' || c == '\n'))
                break;
        }
        qsizetype a = start, z = i;
        while (a < z && m_b[a] == ' ')
            ++a;
        while (z > a && m_b[z - 1] == ' ')
            --z;
        if (a < z && m_b[a] == '"')
            ++a;
        if (z > a && m_b[z - 1] == '"')
            --z;
        return decode(a, z);
    }

    void scanAttribute(Attribute &a, qsizetype lineStart, qsizetype lineEnd, int line)
    {
        const qsizetype n = a.lower.size();
        const std::vector<qsizetype> &places = a.places;
        size_t pi = 0;      // first place at or behind the line's start
        size_t ei = 0;      // first place followed by "=" at or behind the trimmed start
        qsizetype cur = lineStart, end = lineEnd;
        while (true) {
            while (pi < places.size() && places[pi] < cur)
                ++pi;
            if (pi == places.size() || places[pi] + n > end)
                return;
            const qsizetype p = places[pi];
            qsizetype t0 = cur, t1 = end;
            while (t0 < t1 && m_b[t0] == ' ')
                ++t0;
            while (t1 > t0 && m_b[t1 - 1] == ' ')
                --t1;
            while (ei < places.size()
                   && (places[ei] < t0 || places[ei] + n >= t1 || m_b[places[ei] + n] != '='))
                ++ei;
            const qsizetype hit = ei < places.size() ? places[ei] : -1;
            QString value = valueAt(hit, t0, t1, n);
            if (a.code && core::GetFileExt(value).isEmpty())
                value += QStringLiteral(".class");
            if (value.isEmpty())
                return;
            LinkRecord r = m_classifier.classify(value, m_file);
            r.attribute = a.text;
            r.line = line;
            a.found << r;
            // The line goes on behind the name, "=" and the value, counted
            // from the name's place in the line as it was before trimming.
            const qsizetype units = chars(cur, p) + a.text.size() + value.size() + 1;
            cur = advance(t0, units, t1);
            end = t1;
            if (cur >= end)
                return;
        }
    }

    const uchar *m_b;
    qsizetype m_size;
    QString m_file;
    LinkClassifier &m_classifier;
    bool m_utf8 = true;
    std::array<bool, 256> m_first{};
    std::vector<Attribute> m_attrs;
};

} // namespace

QStringList ParseForAttributes()
{
    QString list = core::ReadSetting(QStringLiteral("General"), QStringLiteral("Parse For"));
    if (list.isEmpty())
        list = QStringLiteral("href,src,background,lowsrc");
    return list.split(u',', Qt::SkipEmptyParts);
}

bool IsImageExtension(const QString &path)
{
    const QString name = core::FileNameOf(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    const QString ext = dot < 0 ? QString() : name.mid(dot + 1);
    return QStringLiteral("gifjpg").contains(ext, Qt::CaseInsensitive);
}

bool LinkClassifier::exists(const QString &path)
{
    auto it = m_exists.constFind(path);
    if (it != m_exists.constEnd())
        return *it;
    const bool found = core::FileExists(path);
    m_exists.insert(path, found);
    return found;
}

LinkRecord LinkClassifier::classify(const QString &value, const QString &page)
{
    LinkRecord r;
    r.link = value;
    QString v = value;
    if (v.contains(QLatin1String("file:///"), Qt::CaseInsensitive))
        v = markup::FileUrlToPath(v);
    if (v.contains(QLatin1String("//")) || v.contains(QLatin1String("mailto:"), Qt::CaseInsensitive)) {
        r.kind = v.startsWith(QLatin1String("http://"), Qt::CaseInsensitive) ? LinkKind::ExtLink : LinkKind::NetItem;
        return r;
    }
    if (v.contains(u':')) {
        r.localPath = v;
    } else {
        const QString link = markup::StripQuotes(v);
        const QString dir = core::DirectoryOf(page);
        r.localPath = dir.isEmpty() ? link : markup::ResolveRelativePath(link, dir);
    }
    const bool missing = !r.localPath.isEmpty() && !exists(r.localPath);
    const bool image = IsImageExtension(r.localPath);
    if (missing)
        r.kind = v.contains(u'#') ? LinkKind::LocLink : image ? LinkKind::BrokenImage : LinkKind::BrokenLocal;
    else
        r.kind = image ? LinkKind::Image : LinkKind::LocLink;
    return r;
}

LinkRecords ScanLinks(const QByteArray &page, const QString &pageFile, const QStringList &attributes,
                      LinkClassifier &classifier)
{
    return PageScan(page, pageFile, attributes, classifier).run();
}

bool ScanFileLinks(const QString &file, const QStringList &attributes, LinkRecords &out,
                   LinkClassifier &classifier)
{
    QByteArray bytes;
    const core::IoResult read = core::readWholeFile(file, bytes);
    if (!read.ok()) {
        platform::MsgBox(QStringLiteral("Error: ") + read.message, platform::Buttons::Ok,
                         platform::Icon::Exclamation, file);
        return false;
    }
    out += ScanLinks(bytes, file, attributes, classifier);
    return true;
}

LinkRecords CheckLinks(const QString &text, const QString &documentFile)
{
    LinkClassifier classifier;
    return ScanLinks(text.toUtf8(), documentFile, ParseForAttributes(), classifier);
}

QString LinkKindName(LinkKind kind)
{
    switch (kind) {
    case LinkKind::ExtLink: return QStringLiteral("extlink");
    case LinkKind::NetItem: return QStringLiteral("netitem");
    case LinkKind::LocLink: return QStringLiteral("loclink");
    case LinkKind::Image: return QStringLiteral("image");
    case LinkKind::BrokenLocal: return QStringLiteral("brokenlocal");
    case LinkKind::BrokenImage: return QStringLiteral("brokenimage");
    }
    return {};
}

bool IsBroken(LinkKind kind)
{
    return kind == LinkKind::BrokenLocal || kind == LinkKind::BrokenImage;
}

} // namespace qly::websites
