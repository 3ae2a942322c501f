#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <functional>
#include <map>

namespace qly::texttools {

// The rules of a text to HTML conversion, as the Convert dialog sets them.
struct ConvertOptions {
    bool pre = false;           // the whole text inside <PRE WIDTH="width">, no other rule
    int width = 80;             // 40, 80 or 132
    bool makePara = false;      // a run of blank lines becomes one <P>
    bool makeList = false;      // lines starting with the bullet become list items
    int listType = 0;           // 0 <UL>, 1 <OL>
    QString bullet;             // only its first character counts
    int listAction = 0;         // 0 removes the bullet, 1 keeps it
    bool firstHead = false;     // either of the two turns the isolated-line rule on
    bool otherHead = false;
    QString firstTag;           // "<H1>" ... "<B>"; empty takes otherTag
    QString otherTag;
    int isolate = 1;            // blank line 0 above, 1 below, 2 above and below
    bool makeBreak = false;     // <BR> behind each line with text outside tags
};

// Stands in the lines for one that is left out of the output.
inline const QString kSkipLine = QStringLiteral("<SKIPOVERMEQUINCE31415>");
// A chunk takes lines while it holds at most this many characters.
inline constexpr qsizetype kChunkLimit = 5000;
// ProcessLines hands its output on whenever it grows past this.
inline constexpr qsizetype kFlushLimit = 60000;

// Extra output lines placed before the line of their index; only the first
// note given for an index counts.
using Notes = std::map<qsizetype, QString>;

// The rewriting passes over one chunk's lines, in place.
void MarkIsolatedLines(QStringList &lines, const ConvertOptions &options);
void MarkParagraphs(QStringList &lines);
void MarkLists(QStringList &lines, const ConvertOptions &options, Notes &notes);
void MarkBreaks(QStringList &lines);

// One chunk: the passes (none with `pre`), then every line and note with
// CR LF appended to `out`; whenever `out` holds more than kFlushLimit
// characters it goes to `flush`, which takes it and leaves it empty.
void ProcessLines(QStringList &lines, const ConvertOptions &options, QString &out,
                  const std::function<void(QString &)> &flush);

// The page for a whole text: head, the text chunk by chunk, tail. Lines end
// at CR LF, LF or CR; a line end at the very end makes no further line. The
// input is cut into chunks of whole lines of about kChunkLimit characters,
// each processed on its own: a chunk that does not end the text ends in an
// empty line, and each chunk has its own first isolated line.
QString ConvertText(QStringView text, const ConvertOptions &options);

// Refuses bytes that are no text: control bytes (NUL included) beyond tab,
// line ends, form feed and escape, more than 8 of them and more than 1 %
// of the first 64 KiB.
bool IsMostlyControlBytes(const QByteArray &bytes);

} // namespace qly::texttools
