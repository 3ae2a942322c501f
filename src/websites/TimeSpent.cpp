#include "websites/TimeSpent.h"

#include "websites/ProjectFile.h"

#include <cmath>

namespace qly::websites {

namespace {

// The number at the start of a text, as the old runtime's Val reads it.
double leadingValue(const QString &text)
{
    QString digits;
    bool point = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == u' ' || c == u'\t')
            continue;
        if ((c == u'-' || c == u'+') && digits.isEmpty())
            digits += c;
        else if (c.isDigit())
            digits += c;
        else if (c == u'.' && !point)
            point = true, digits += c;
        else
            break;
    }
    bool ok = false;
    const double v = digits.toDouble(&ok);
    return ok ? v : 0.0;
}

} // namespace

QString CalculateTimeSpent(const QString &minutesText)
{
    double r = leadingValue(minutesText);
    double hours = 0;
    if (r > 60) {
        hours = std::nearbyint(r / 60);   // the default rounding: ties to even
        r -= hours * 60;
    }
    const double minutes = std::nearbyint(r);
    QString text;
    if (hours > 0)
        text += QString::number(qint64(hours)) + QStringLiteral(" hours ");
    if (minutes > 0)
        text += QString::number(qint64(minutes)) + QStringLiteral(" minutes");
    return text;
}

QString ProjectTimeSpent(const QString &projectFile)
{
    return CalculateTimeSpent(ReadProjectValue(projectFile, QStringLiteral("Details"), QStringLiteral("Time Spent")));
}

} // namespace qly::websites
