#include "texttools/TextToHtml.h"

#include <algorithm>

namespace qly::texttools {

namespace {

const QString kCRLF = QStringLiteral("\r\n");

QString closingTag(const QString &tag)
{
    return tag.isEmpty() ? QString() : QStringLiteral("</") + tag.mid(1);
}

bool startsWithBullet(const QString &line, const QString &bullet)
{
    return !bullet.isEmpty() && !line.isEmpty() && line.at(0) == bullet.at(0);
}

bool hasTextOutsideTags(const QString &line)
{
    bool open = false;
    for (const QChar c : line) {
        if (c == u'<')
            open = true;
        else if (c == u'>')
            open = false;
        else if (!open)
            return true;
    }
    return false;
}

void addNote(Notes &notes, qsizetype index, const QString &text)
{
    notes.emplace(index, text);   // a second note for the same index is dropped
}

// Reads lines as the old line reader did, from a position in the text.
class LineReader
{
public:
    explicit LineReader(QStringView text) : m_text(text) {}
    bool atEnd() const { return m_pos >= m_text.size(); }
    QString next()
    {
        const qsizetype start = m_pos;
        const auto end = std::find_if(m_text.begin() + start, m_text.end(),
                                      [](QChar c) { return c == u'\r' || c == u'\n'; });
        m_pos = end - m_text.begin();
        QString line = m_text.mid(start, m_pos - start).toString();
        if (m_pos < m_text.size()) {
            const bool cr = m_text.at(m_pos) == u'\r';
            ++m_pos;
            if (cr && m_pos < m_text.size() && m_text.at(m_pos) == u'\n')
                ++m_pos;
        }
        return line;
    }

private:
    QStringView m_text;
    qsizetype m_pos = 0;
};

} // namespace

void MarkIsolatedLines(QStringList &lines, const ConvertOptions &o)
{
    if (!o.firstHead && !o.otherHead)
        return;
    const bool needAbove = o.isolate == 0 || o.isolate == 2;
    const bool needBelow = o.isolate == 1 || o.isolate == 2;
    const QString firstTag = o.firstTag.isEmpty() ? o.otherTag : o.firstTag;
    const QString firstClose = closingTag(firstTag);
    const QString otherClose = closingTag(o.otherTag);
    const qsizetype last = lines.size() - 1;
    bool first = true;
    for (qsizetype i = 0; i <= last; ++i) {
        QString &line = lines[i];
        if (line.isEmpty() || startsWithBullet(line, o.bullet))
            continue;
        const bool above = i > 0 && lines.at(i - 1).isEmpty();
        const bool below = i < last && lines.at(i + 1).isEmpty();
        if ((needAbove && !above) || (needBelow && !below))
            continue;
        if (first) {
            line = firstTag + line + firstClose;
            first = false;
        } else {
            line = o.otherTag + line + otherClose;
        }
    }
}

void MarkParagraphs(QStringList &lines)
{
    bool inBlank = false;
    for (QString &line : lines) {
        if (!line.isEmpty()) {
            inBlank = false;
        } else if (!inBlank) {
            line = QStringLiteral("<P>");
            inBlank = true;
        } else {
            line = kSkipLine;
        }
    }
}

void MarkLists(QStringList &lines, const ConvertOptions &o, Notes &notes)
{
    const QString startTag = o.listType == 1 ? QStringLiteral("<OL>") : QStringLiteral("<UL>");
    const QString endTag = o.listType == 1 ? QStringLiteral("</OL>") : QStringLiteral("</UL>");
    const qsizetype from = o.listAction == 1 ? 0 : 1;
    bool inList = false;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QString &line = lines[i];
        if (startsWithBullet(line, o.bullet)) {
            line = QStringLiteral("<LI>") + line.mid(from);
            if (!inList) {
                addNote(notes, i, startTag);
                inList = true;
            }
        } else if (inList) {
            addNote(notes, i, endTag);
            inList = false;
        }
    }
    if (inList)
        addNote(notes, lines.size(), endTag);
}

void MarkBreaks(QStringList &lines)
{
    for (QString &line : lines) {
        if (hasTextOutsideTags(line))
            line += QStringLiteral("<BR>");
    }
}

void ProcessLines(QStringList &lines, const ConvertOptions &o, QString &out,
                  const std::function<void(QString &)> &flush)
{
    Notes notes;
    if (!o.pre) {
        MarkIsolatedLines(lines, o);
        if (o.makePara)
            MarkParagraphs(lines);
        if (o.makeList)
            MarkLists(lines, o, notes);
        if (o.makeBreak)
            MarkBreaks(lines);
    }
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (const auto note = notes.find(i); note != notes.end()) {
            out += note->second;
            out += kCRLF;
        }
        if (lines.at(i) != kSkipLine) {
            out += lines.at(i);
            out += kCRLF;
        }
        if (out.size() > kFlushLimit)
            flush(out);
    }
    if (const auto note = notes.find(lines.size()); note != notes.end()) {
        out += note->second;
        out += kCRLF;
    }
}

QString ConvertText(QStringView text, const ConvertOptions &o)
{
    QString page;
    page.reserve(text.size() + text.size() / 4 + 256);
    page += QStringLiteral("<HTML>\r\n<HEAD>\r\n<TITLE> type_Document_Title_here </TITLE>\r\n</HEAD>\r\n<BODY>\r\n");
    if (o.pre)
        page += QStringLiteral("<PRE WIDTH=\"%1\">\r\n").arg(o.width);

    const auto flush = [&page](QString &out) {
        page += out;
        out.clear();
    };
    LineReader reader(text);
    QString out;
    bool done = false;
    while (!done) {
        QStringList lines;
        qsizetype size = 0;
        while (size <= kChunkLimit && !reader.atEnd()) {
            lines << reader.next();
            size += lines.constLast().size() + 2;
        }
        done = reader.atEnd();
        // The last piece behind the chunk's final line end is a line too;
        // only the chunk that ends the text drops it.
        if (!done || lines.isEmpty())
            lines << QString();
        ProcessLines(lines, o, out, flush);
        flush(out);
    }

    if (o.pre)
        page += QStringLiteral("</PRE>\r\n");
    page += QStringLiteral("</BODY>\r\n</HTML>\r\n");
    return page;
}

bool IsMostlyControlBytes(const QByteArray &bytes)
{
    const qsizetype sample = std::min<qsizetype>(bytes.size(), 64 * 1024);
    qsizetype odd = 0;
    for (qsizetype i = 0; i < sample; ++i) {
        const uchar c = uchar(bytes.at(i));
        if (c < 0x20 && c != '\t' && c != '\n' && c != '\r' && c != '\f' && c != 0x1b)
            ++odd;
    }
    return odd > std::max<qsizetype>(8, sample / 100);
}

} // namespace qly::texttools
