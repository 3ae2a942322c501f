#include "texttools/TextToHtmlArguments.h"

namespace qly::texttools {

namespace {

bool headTag(const QString &value, QString &tag)
{
    static const QStringList tags = {QStringLiteral("H1"), QStringLiteral("H2"), QStringLiteral("H3"),
                                     QStringLiteral("H4"), QStringLiteral("I"),  QStringLiteral("B")};
    QString name = value.toUpper();
    if (name.startsWith(u'<') && name.endsWith(u'>'))
        name = name.mid(1, name.size() - 2);
    if (!tags.contains(name))
        return false;
    tag = u'<' + name + u'>';
    return true;
}

} // namespace

bool ParseConvertArguments(const QStringList &words, ConvertOptions &o, QString &error)
{
    for (const QString &word : words) {
        const qsizetype eq = word.indexOf(u'=');
        const QString name = eq < 0 ? word : word.left(eq);
        const QString value = eq < 0 ? QString() : word.mid(eq + 1);
        bool ok = true;
        if (name == QLatin1String("--pre")) {
            o.pre = true;
            if (eq >= 0) {
                o.width = value.toInt(&ok);
                ok = ok && (o.width == 40 || o.width == 80 || o.width == 132);
            }
        } else if (word == QLatin1String("--paragraphs")) {
            o.makePara = true;
        } else if (name == QLatin1String("--list")) {
            o.makeList = true;
            ok = value == QLatin1String("bullet") || value == QLatin1String("numbered");
            o.listType = value == QLatin1String("numbered") ? 1 : 0;
        } else if (name == QLatin1String("--bullet")) {
            o.bullet = value.left(1);
            ok = !o.bullet.isEmpty();
        } else if (word == QLatin1String("--keep-bullet")) {
            o.listAction = 1;
        } else if (name == QLatin1String("--first-heading")) {
            o.firstHead = true;
            ok = headTag(value, o.firstTag);
        } else if (name == QLatin1String("--other-heading")) {
            o.otherHead = true;
            ok = headTag(value, o.otherTag);
        } else if (name == QLatin1String("--isolate")) {
            const QStringList kinds = {QStringLiteral("above"), QStringLiteral("below"), QStringLiteral("both")};
            o.isolate = int(kinds.indexOf(value));
            ok = o.isolate >= 0;
        } else if (word == QLatin1String("--breaks")) {
            o.makeBreak = true;
        } else {
            ok = false;
        }
        if (!ok) {
            error = QStringLiteral("unknown or incomplete option: ") + word;
            return false;
        }
    }
    return true;
}

QString ConvertArgumentsHelp()
{
    return QStringLiteral("      --pre[=40|80|132]     the whole text inside <PRE WIDTH=...> (80), no other rule\n"
                          "      --paragraphs          one or more blank lines become <P>\n"
                          "      --list=bullet|numbered --bullet=C [--keep-bullet]\n"
                          "                            lines starting with C become <UL> or <OL> items\n"
                          "      --first-heading=TAG   the first isolated line in TAG (H1 H2 H3 H4 I B)\n"
                          "      --other-heading=TAG   the other isolated lines in TAG\n"
                          "      --isolate=above|below|both  where an isolated line has a blank line (below)\n"
                          "      --breaks              <BR> behind each line with text\n");
}

} // namespace qly::texttools
