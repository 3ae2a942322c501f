#include "core/ProfileFile.h"

#include "core/FileIo.h"
#include "core/TextCodec.h"

#include <QFileInfo>
#include <QDir>

namespace qly::core {

namespace {

// "[name]" gives name; anything else gives a null string.
QString sectionOf(const QString &line)
{
    const QString t = line.trimmed();
    if (!t.startsWith(u'['))
        return {};
    const qsizetype close = t.indexOf(u']');
    const QString name = (close < 0 ? t.mid(1) : t.mid(1, close - 1)).trimmed();
    return name.isNull() ? QStringLiteral("") : name;
}

bool splitKey(const QString &line, QString &key, QString &value)
{
    const qsizetype eq = line.indexOf(u'=');
    if (eq < 0)
        return false;
    key = line.left(eq).trimmed();
    value = line.mid(eq + 1).trimmed();
    return true;
}

bool sameName(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

struct SectionRange {
    qsizetype header = -1;   // index of the "[...]" line, -1 when absent
    qsizetype end = 0;       // one past the last line that belongs to it
};

template <typename Lines>
SectionRange findSection(const Lines &lines, const QString &section)
{
    SectionRange r;
    for (qsizetype i = 0; i < qsizetype(lines.size()); ++i) {
        const QString name = sectionOf(lines[i].text);
        if (name.isNull())
            continue;
        if (r.header >= 0) {
            r.end = i;
            return r;
        }
        if (sameName(name, section))
            r.header = i;
    }
    r.end = qsizetype(lines.size());
    return r;
}

} // namespace

ProfileFile::ProfileFile(const QString &path)
    : m_path(path)
{
}

bool ProfileFile::exists() const
{
    return QFileInfo(m_path).isFile();
}

bool ProfileFile::load(std::vector<Line> &lines, QString &newline) const
{
    lines.clear();
    newline = QStringLiteral("\r\n");
    QByteArray bytes;
    if (m_path.isEmpty() || !readWholeFile(m_path, bytes).ok())
        return false;
    const QString text = decodeFile(bytes).text;
    qsizetype start = 0;
    bool sawNewline = false;
    const qsizetype n = text.size();
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = text.at(i);
        if (c != u'\n' && c != u'\r')
            continue;
        qsizetype endLen = (c == u'\r' && i + 1 < n && text.at(i + 1) == u'\n') ? 2 : 1;
        Line line{text.mid(start, i - start), text.mid(i, endLen)};
        if (!sawNewline) {
            newline = line.ending;
            sawNewline = true;
        }
        lines.push_back(std::move(line));
        i += endLen - 1;
        start = i + 1;
    }
    if (start < n)
        lines.push_back({text.mid(start), QString()});
    return true;
}

bool ProfileFile::save(const std::vector<Line> &lines) const
{
    QString text;
    for (const Line &line : lines)
        text += line.text + line.ending;
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    return writeFileAtomically(m_path, text.toUtf8()).ok();
}

QString ProfileFile::value(const QString &section, const QString &key) const
{
    std::vector<Line> lines;
    QString nl;
    if (!load(lines, nl))
        return {};
    const SectionRange r = findSection(lines, section);
    if (r.header < 0)
        return {};
    for (qsizetype i = r.header + 1; i < r.end; ++i) {
        QString k, v;
        if (splitKey(lines[i].text, k, v) && sameName(k, key))
            return v.isNull() ? QStringLiteral("") : v;
    }
    return {};
}

QStringList ProfileFile::section(const QString &section) const
{
    std::vector<Line> lines;
    QString nl;
    QStringList out;
    if (!load(lines, nl))
        return out;
    const SectionRange r = findSection(lines, section);
    if (r.header < 0)
        return out;
    for (qsizetype i = r.header + 1; i < r.end; ++i) {
        const QString t = lines[i].text.trimmed();
        if (t.isEmpty() || t.startsWith(u';'))
            continue;
        QString k, v;
        out << (splitKey(t, k, v) ? k + u'=' + v : t);
    }
    return out;
}

QStringList ProfileFile::sectionNames() const
{
    std::vector<Line> lines;
    QString nl;
    QStringList out;
    load(lines, nl);
    for (const Line &line : lines) {
        const QString name = sectionOf(line.text);
        if (!name.isNull())
            out << name;
    }
    return out;
}

void ProfileFile::appendSection(std::vector<Line> &lines, const QString &nl, const QString &section,
                                const std::vector<Line> &body)
{
    // A new section stands at the end, after one blank line.
    if (!lines.empty()) {
        if (lines.back().ending.isEmpty())
            lines.back().ending = nl;
        if (!lines.back().text.trimmed().isEmpty())
            lines.push_back({QString(), nl});
    }
    lines.push_back({u'[' + section + u']', nl});
    lines.insert(lines.end(), body.begin(), body.end());
}

bool ProfileFile::setValue(const QString &section, const QString &key, const QString &value)
{
    if (value.isEmpty())
        return removeKey(section, key);
    std::vector<Line> lines;
    QString nl;
    load(lines, nl);
    const QString entry = key + u'=' + value;
    SectionRange r = findSection(lines, section);
    if (r.header < 0) {
        appendSection(lines, nl, section, {Line{entry, nl}});
        return save(lines);
    }
    qsizetype lastContent = r.header;
    for (qsizetype i = r.header + 1; i < r.end; ++i) {
        QString k, v;
        if (splitKey(lines[i].text, k, v) && sameName(k, key)) {
            lines[i].text = k + u'=' + value;
            return save(lines);
        }
        if (!lines[i].text.trimmed().isEmpty())
            lastContent = i;
    }
    if (lines[lastContent].ending.isEmpty())
        lines[lastContent].ending = nl;
    lines.insert(lines.begin() + lastContent + 1, Line{entry, nl});
    return save(lines);
}

bool ProfileFile::removeKey(const QString &section, const QString &key)
{
    std::vector<Line> lines;
    QString nl;
    if (!load(lines, nl))
        return true;
    const SectionRange r = findSection(lines, section);
    if (r.header < 0)
        return true;
    for (qsizetype i = r.header + 1; i < r.end; ++i) {
        QString k, v;
        if (splitKey(lines[i].text, k, v) && sameName(k, key)) {
            lines.erase(lines.begin() + i);
            return save(lines);
        }
    }
    return true;
}

bool ProfileFile::setSection(const QString &section, const QStringList &entries)
{
    std::vector<Line> lines;
    QString nl;
    const bool existed = load(lines, nl);
    const SectionRange r = findSection(lines, section);
    std::vector<Line> body;
    for (const QString &e : entries) {
        if (!e.isEmpty())
            body.push_back({e, nl});
    }
    if (r.header < 0) {
        if (body.empty())
            return true;
        appendSection(lines, nl, section, body);
        return save(lines);
    }
    // Keep the blank lines that separate this section from the next one.
    qsizetype tail = r.end;
    while (tail > r.header + 1 && lines[tail - 1].text.trimmed().isEmpty())
        --tail;
    if (body.empty()) {
        lines.erase(lines.begin() + r.header, lines.begin() + r.end);
    } else {
        lines.erase(lines.begin() + r.header + 1, lines.begin() + tail);
        lines.insert(lines.begin() + r.header + 1, body.begin(), body.end());
    }
    return existed ? save(lines) : true;
}

} // namespace qly::core
