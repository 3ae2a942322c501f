#include "markup/TagFilters.h"

#include "core/Settings.h"
#include "documents/KnownWords.h"
#include "markup/TagCatalogue.h"

namespace qly::markup {

namespace {

const QString kFilters = QStringLiteral("Filters");

documents::ScriptWordClass classOf(const QString &group)
{
    using C = documents::ScriptWordClass;
    if (group.endsWith(QLatin1String("Statements")))
        return C::Statement;
    if (group.endsWith(QLatin1String("Objects")))
        return C::Object;
    if (group.endsWith(QLatin1String("Methods")))
        return C::Method;
    return C::Property;
}

} // namespace

QStringList FilterList()
{
    return {QStringLiteral("Cold Fusion"),          QStringLiteral("WebTV"),
            QStringLiteral("Custom Keywords"),      QStringLiteral("HTML 2"),
            QStringLiteral("HTML 3.2"),             QStringLiteral("HTML 4"),
            QStringLiteral("HTML 5"),               QStringLiteral("IE 3"),
            QStringLiteral("IE 4"),                 QStringLiteral("JavaScript"),
            QStringLiteral("JScript"),              QStringLiteral("Netscape Navigator 1"),
            QStringLiteral("Netscape Navigator 2"), QStringLiteral("Netscape Navigator 3"),
            QStringLiteral("Netscape Navigator 4")};
}

QStringList FilterDialogRows()
{
    return {QStringLiteral("Cold Fusion"),          QStringLiteral("Custom Keywords"),
            QStringLiteral("HTML 2"),               QStringLiteral("HTML 3.2"),
            QStringLiteral("HTML 4"),               QStringLiteral("HTML 5"),
            QStringLiteral("JavaScript"),           QStringLiteral("JScript"),
            QStringLiteral("Netscape Navigator 1"), QStringLiteral("Netscape Navigator 2"),
            QStringLiteral("Netscape Navigator 3"), QStringLiteral("Netscape Navigator 4"),
            QStringLiteral("WebTV")};
}

QSet<QString> LoadFilters(const QStringList &names)
{
    QSet<QString> on;
    for (const QString &name : names) {
        if (core::ReadSetting(kFilters, name) == QLatin1String("True"))
            on.insert(name);
    }
    return on;
}

void SaveFilters(const QList<QPair<QString, bool>> &rows)
{
    for (const auto &[name, checked] : rows)
        core::WriteSetting(kFilters, name, checked ? QStringLiteral("True") : QStringLiteral("False"));
}

void PublishKnownWords(const TagCatalogue &catalogue, const QSet<QString> &filters)
{
    documents::KnownWords words;
    for (const TagEntry &e : catalogue.visibleEntries(filters)) {
        if (e.isScriptWord())
            words.scriptWords.insert(e.name.toUtf8(), classOf(e.group));
        else
            words.tags.insert(e.name.toLower().toUtf8());
    }
    documents::setKnownWords(std::move(words));
}

} // namespace qly::markup
