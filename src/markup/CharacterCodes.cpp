#include "markup/CharacterCodes.h"

#include "core/Feedback.h"
#include "core/FileIo.h"
#include "core/Paths.h"
#include "core/TextCodec.h"

#include <QHash>

#include <algorithm>

namespace qly::markup {

namespace {

std::vector<CharacterCode> g_rows(1);
bool g_loaded = false;

// The table folded into one map: what each character finally becomes when
// the rows are applied one after the other. Applying the rows in turn is a
// composition of single-character substitutions, so the whole table is one
// substitution and a text needs one pass only.
struct CompiledTable {
    bool built = false;
    char32_t lowest = 0x110000;
    std::vector<int> bmp;                // index into `outputs` per BMP code, -1 none
    QHash<char32_t, int> astral;         // the same above U+FFFF
    QStringList outputs;
};
CompiledTable g_compiled;

QString characterText(char32_t cp)
{
    return QString::fromUcs4(&cp, 1);
}

const CompiledTable &compiled()
{
    CompiledTable &c = g_compiled;
    if (c.built)
        return c;
    c = CompiledTable();
    c.built = true;
    c.bmp.assign(0x10000, -1);
    std::vector<char32_t> codes;
    for (const CharacterCode &row : g_rows) {
        const char32_t cp = characterValue(row.code);
        if (cp > 0 && std::find(codes.begin(), codes.end(), cp) == codes.end())
            codes.push_back(cp);
    }
    for (char32_t cp : codes) {
        QString s = characterText(cp);
        for (const CharacterCode &row : g_rows) {
            const char32_t rc = characterValue(row.code);
            if (rc > 0)
                s.replace(characterText(rc), row.entity, Qt::CaseSensitive);
        }
        if (s == characterText(cp))
            continue;
        const int index = int(c.outputs.size());
        c.outputs << s;
        if (cp < 0x10000)
            c.bmp[cp] = index;
        else
            c.astral.insert(cp, index);
        c.lowest = std::min(c.lowest, cp);
    }
    return c;
}

} // namespace

const std::vector<CharacterCode> &CharacterCodes()
{
    return g_rows;
}

void setCharacterCodes(std::vector<CharacterCode> rows)
{
    g_rows.assign(1, CharacterCode());
    g_rows.insert(g_rows.end(), rows.begin(), rows.end());
    g_compiled.built = false;
}

QString characterFilePath()
{
    return core::JoinPath(core::ProgramDirectory(), QStringLiteral("character.inf"));
}

bool parseCharacterLine(const QString &line, CharacterCode &row)
{
    const QString text = line.trimmed();
    const qsizetype p = text.indexOf(u';');
    if (p < 0 || p == text.size() - 1)
        return false;
    const qsizetype q = text.indexOf(u';', p + 1);
    if (q < 0 || q == text.size() - 1)
        return false;
    row.code = text.left(p);
    row.entity = text.mid(p + 1, q - p);
    row.description = text.mid(q + 1);
    return true;
}

void EnsureCharacterCodes()
{
    if (!g_loaded)
        LoadCharacterCodes();
}

void LoadCharacterCodes()
{
    g_loaded = true;
    setCharacterCodes({});
    core::ShowStatus(QStringLiteral("Reading character codes..."));
    const QString path = characterFilePath();
    if (!core::FileExists(path)) {
        core::ErrorBox(QStringLiteral("File not found.") + QStringLiteral(": ") + path);
        return;
    }
    QByteArray bytes;
    const core::IoResult read = core::readWholeFile(path, bytes);
    if (!read.ok()) {
        core::ErrorBox(QStringLiteral("Could not read ") + path + QStringLiteral(": ") + read.message);
        return;
    }
    const QString text = core::decodeFile(bytes).text;
    std::vector<CharacterCode> rows;
    CharacterCode row;
    for (QStringView line : QStringView(text).split(u'\n')) {
        if (parseCharacterLine(line.toString(), row))
            rows.push_back(row);
        core::DoEvents();
    }
    setCharacterCodes(std::move(rows));
}

char32_t characterValue(const QString &code)
{
    const QString digits = code.trimmed();
    quint64 value = 0;
    for (QChar ch : digits) {
        if (ch < u'0' || ch > u'9')
            break;
        value = value * 10 + (ch.unicode() - u'0');
        if (value > 0x10FFFF)
            return 0;
    }
    if (value >= 0xD800 && value <= 0xDFFF)
        return 0;
    return char32_t(value);
}

QString TranslateCharacters(const QString &text)
{
    const qsizetype n = text.size();
    const bool oneCharacter = n == 1 || (n == 2 && text.at(0).isHighSurrogate() && text.at(1).isLowSurrogate());
    if (oneCharacter)
        return TranslateOneCharacter(text);
    if (g_rows.size() < 2)
        return text;
    const CompiledTable &c = compiled();
    if (c.outputs.isEmpty())
        return text;

    const char16_t *src = reinterpret_cast<const char16_t *>(text.constData());
    QString out;
    qsizetype copied = 0;   // text before this is in `out`
    for (qsizetype i = 0; i < n; ++i) {
        const char16_t u = src[i];
        if (u < c.lowest && !QChar::isHighSurrogate(u))
            continue;
        int index = -1;
        qsizetype width = 1;
        if (QChar::isHighSurrogate(u) && i + 1 < n && QChar::isLowSurrogate(src[i + 1])) {
            index = c.astral.value(QChar::surrogateToUcs4(u, src[i + 1]), -1);
            width = 2;
        } else {
            index = c.bmp[u];
        }
        if (index >= 0) {
            if (out.isNull())
                out.reserve(n + n / 8);
            out.append(QStringView(src + copied, i - copied));
            out.append(c.outputs.at(index));
            copied = i + width;
        }
        i += width - 1;
    }
    if (out.isNull())
        return text;
    out.append(QStringView(src + copied, n - copied));
    return out;
}

std::vector<std::pair<char32_t, QString>> CharacterTranslations()
{
    std::vector<std::pair<char32_t, QString>> list;
    if (g_rows.size() < 2)
        return list;
    const CompiledTable &c = compiled();
    for (char32_t cp = c.lowest; cp < 0x10000; ++cp) {
        if (c.bmp[cp] >= 0)
            list.emplace_back(cp, c.outputs.at(c.bmp[cp]));
    }
    for (auto it = c.astral.cbegin(); it != c.astral.cend(); ++it)
        list.emplace_back(it.key(), c.outputs.at(it.value()));
    std::sort(list.begin(), list.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    return list;
}

QString TranslateOneCharacter(const QString &text)
{
    if (text.isEmpty())
        return text;
    const qsizetype width = (text.size() > 1 && text.at(0).isHighSurrogate() && text.at(1).isLowSurrogate()) ? 2 : 1;
    const QString first = text.left(width);
    const char32_t cp = width == 2 ? QChar::surrogateToUcs4(text.at(0), text.at(1)) : text.at(0).unicode();
    if (cp < 123)
        return first;
    for (const CharacterCode &row : g_rows) {
        if (characterValue(row.code) == cp)
            return row.entity;
    }
    return first;
}

} // namespace qly::markup
