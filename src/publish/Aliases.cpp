#include "publish/Aliases.h"

#include "core/Feedback.h"
#include "core/FileIo.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "core/TextCodec.h"
#include "platform/Prompts.h"

#include <QFileInfo>

#include <cstring>

namespace qly::publish {

namespace {

std::vector<Alias> g_aliases;

bool isYes(const QString &value)
{
    return value.compare(QLatin1String("yes"), Qt::CaseInsensitive) == 0;
}

bool isDelimiter(QChar c)
{
    return c.unicode() < 0x80 && c.unicode() != 0 && std::strchr(kWordDelimiters, char(c.unicode()));
}

QString fromStored(QString field)
{
    return field.replace(QLatin1String("NL_"), QLatin1String("\r\n"));
}

QString toStored(QString field)
{
    field.replace(QLatin1String("\r\n"), QLatin1String("NL_"));
    // A lone line end would break the line; it is stored as a whole one.
    field.replace(u'\n', QLatin1String("NL_"));
    field.remove(u'\r');
    return field;
}

// The substitution itself, in one pass over the text: the result is built
// in a new string, with the text before the cursor `k` already in `out`,
// so the text as it stands is always `out` + the rest of the original.
int replaceInText(QString &text, const QString &term, const QString &replacement, bool matchCase,
                  bool wholeWord, bool confirm)
{
    if (term.isEmpty())
        return 0;
    const Qt::CaseSensitivity cs = matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const QString src = text;
    const qsizetype n = src.size();
    const qsizetype termLength = term.size();
    // A skipped hit is passed by the replacement's length; an empty one would
    // find the same hit again forever, so it moves on by one.
    const qsizetype skipStep = std::max<qsizetype>(replacement.size(), 1);
    QString out;
    qsizetype k = 0;
    qsizetype from = 0;
    int count = 0;
    for (qsizetype hit; (hit = src.indexOf(term, from, cs)) >= 0;) {
        bool skip = false;
        if (wholeWord) {
            // The start of the text counts as a delimiter; before the cursor
            // stands what was already written, a replacement perhaps.
            const bool atStart = hit == k && out.isEmpty();
            const QChar before = atStart ? QChar() : (hit > k ? src.at(hit - 1) : out.back());
            const qsizetype end = hit + termLength;
            skip = (!atStart && !isDelimiter(before)) || (end < n && !isDelimiter(src.at(end)));
        }
        if (!skip && confirm) {
            const platform::Answer answer =
                platform::MsgBox(QStringLiteral("Replace this text?"), platform::Buttons::YesNoCancel,
                                 platform::Icon::Question, core::versionCaption());
            if (answer == platform::Answer::Cancel)
                break;
            skip = answer != platform::Answer::Yes;
        }
        if (skip) {
            from = hit + skipStep;
            continue;
        }
        if (count == 0)
            out.reserve(n + std::max<qsizetype>(0, replacement.size() - termLength) * 16);
        out.append(QStringView(src).mid(k, hit - k));
        out.append(replacement);
        k = hit + termLength;
        from = k;
        ++count;
    }
    if (count > 0) {
        out.append(QStringView(src).mid(k));
        text = out;
    }
    return count;
}

} // namespace

bool Alias::matchesCase() const
{
    return isYes(matchCase);
}

bool Alias::wholeWordOnly() const
{
    return isYes(wholeWord);
}

std::vector<Alias> &Aliases()
{
    return g_aliases;
}

QString aliasFilePath()
{
    return core::JoinPath(core::ProgramDirectory(), QStringLiteral("aliases.inf"));
}

bool parseAliasLine(const QString &line, Alias &alias)
{
    if (line.size() < 3)
        return false;
    const qsizetype first = line.indexOf(kAliasSeparator);
    if (first < 0)
        return false;
    const qsizetype second = line.indexOf(kAliasSeparator, first + 1);
    if (second < 0 || first == 0)
        return false;
    alias = Alias();
    alias.term = fromStored(line.left(first));
    alias.replacement = fromStored(line.mid(first + 1, second - first - 1));
    const qsizetype third = line.indexOf(kAliasSeparator, second + 1);
    if (third >= 0) {
        alias.matchCase = line.mid(second + 1, third - second - 1);
        alias.wholeWord = line.mid(third + 1);
    }
    return true;
}

QString formatAliasLine(const Alias &alias)
{
    const QChar sep(kAliasSeparator);
    return toStored(alias.term) + sep + toStored(alias.replacement) + sep + alias.matchCase + sep + alias.wholeWord;
}

bool LoadAliases()
{
    g_aliases.clear();
    const QString path = aliasFilePath();
    const QFileInfo info(path);
    if (!info.isFile() || info.size() == 0)
        return true;
    QByteArray bytes;
    const core::IoResult read = core::readWholeFile(path, bytes);
    if (!read.ok()) {
        core::ErrorBox(QStringLiteral("Could not read ") + path + QStringLiteral(": ") + read.message);
        return false;
    }
    const QString text = core::decodeFile(bytes).text;
    Alias alias;
    for (QStringView view : QStringView(text).split(u'\n')) {
        if (view.endsWith(u'\r'))
            view.chop(1);
        if (parseAliasLine(view.toString(), alias))
            g_aliases.push_back(alias);
    }
    return true;
}

int ReplaceInText(QString &text, const QString &term, const QString &replacement, bool matchCase,
                  bool wholeWord, bool confirm)
{
    core::BeginWait();
    const int count = replaceInText(text, term, replacement, matchCase, wholeWord, confirm);
    core::EndWait();
    return count;
}

void ApplyAliases(QString &text)
{
    for (const Alias &alias : g_aliases)
        replaceInText(text, alias.term, alias.replacement, alias.matchesCase(), alias.wholeWordOnly(), false);
}

void aliasesToUnixLineEnds()
{
    for (Alias &alias : g_aliases) {
        alias.term.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        alias.replacement.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    }
}

} // namespace qly::publish
