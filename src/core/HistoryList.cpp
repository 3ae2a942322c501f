#include "core/HistoryList.h"

#include "core/Settings.h"

#include <algorithm>

namespace qly::core {

namespace {

QStringList tidy(const QStringList &entries)
{
    QStringList out;
    for (const QString &e : entries) {
        if (e.trimmed().isEmpty() || out.contains(e))
            continue;
        out.append(e);
        if (out.size() == HistoryLength)
            break;
    }
    return out;
}

} // namespace

QStringList ReadHistory(const QString &name)
{
    // Keys are numbers; order by them, whatever order the file has.
    QList<std::pair<int, QString>> numbered;
    for (const QString &line : ReadSection(name)) {
        const qsizetype eq = line.indexOf(QLatin1Char('='));
        bool ok = false;
        const int n = line.left(eq).trimmed().toInt(&ok);
        if (eq > 0 && ok)
            numbered.append({n, line.mid(eq + 1)});
    }
    std::stable_sort(numbered.begin(), numbered.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    QStringList entries;
    for (const auto &[n, value] : numbered)
        entries.append(value);
    return tidy(entries);
}

void WriteHistory(const QString &name, const QStringList &entries)
{
    const QStringList kept = tidy(entries);
    QStringList lines;
    for (qsizetype i = 0; i < kept.size(); ++i)
        lines.append(QString::number(i + 1) + QLatin1Char('=') + kept.at(i));
    WriteSection(name, lines.join(QLatin1Char('\n')));
}

void RememberHistory(const QString &name, const QString &text)
{
    if (text.trimmed().isEmpty())
        return;
    QStringList entries = ReadHistory(name);
    entries.removeAll(text);
    entries.prepend(text);
    WriteHistory(name, entries);
}

} // namespace qly::core
