#include "core/Settings.h"
#include "documents/KnownWords.h"
#include "markup/TagCatalogue.h"
#include "markup/TagFilters.h"
#include "support/TestEnv.h"

#include <QtTest>

using namespace qly;
using markup::TagCatalogue;
using markup::TagEntry;

class tst_TagCatalogue : public QObject
{
    Q_OBJECT
private slots:
    void fileFormatRoundTrip();
    void userEntriesKeepTheirOwnFile();
    void shippedCatalogueCoversTheSpecifications();
    void filtersReadOnlyTrueExactly();
    void colouringKnowsTheActiveFiltersWords();
};

namespace {

QByteArray shippedCatalogue()
{
    QFile f(QStringLiteral(TEST_DATA_DIR "/../../data/tags.inf"));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QSet<QString> namesIn(const QList<TagEntry> &entries, bool scriptWords = false)
{
    QSet<QString> names;
    for (const TagEntry &e : entries) {
        if (e.isScriptWord() == scriptWords)
            names.insert(e.name);
    }
    return names;
}

QSet<QString> words(const char *text)
{
    const QStringList list = QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
    return QSet<QString>(list.begin(), list.end());
}

} // namespace

void tst_TagCatalogue::fileFormatRoundTrip()
{
    TagEntry odd;
    odd.name = QStringLiteral("SNIPPET");
    odd.group = QStringLiteral("HTML: Text");
    odd.hasEndTag = true;
    odd.filters = {QStringLiteral("HTML 4"), QStringLiteral("IE 4")};
    odd.startText = QStringLiteral("<DIV CLASS=\"a\\b\">\r\n\t");
    odd.endText = QStringLiteral("\r\n</DIV>");
    odd.description = QStringLiteral("Tab\tand back\\slash");
    TagEntry plain;
    plain.name = QStringLiteral("BR");
    plain.filters = {QStringLiteral("HTML 2")};
    plain.startText = QStringLiteral("<BR>");
    const QByteArray bytes = TagCatalogue::format({odd, plain});
    QCOMPARE(TagCatalogue::parse(bytes, false), (QList<TagEntry>{odd, plain}));
    QCOMPARE(plain.itemText(), QStringLiteral("BR\t\tN"));

    // Short lines take the ordinary texts; comments and blank lines are passed over.
    const QList<TagEntry> shortLines = TagCatalogue::parse("; note\r\n\r\nFOO\tX\tY\r\nBAR\r\n", false);
    QCOMPARE(shortLines.size(), 2);
    QCOMPARE(shortLines[0].startText, QStringLiteral("<FOO>"));
    QCOMPARE(shortLines[0].endText, QStringLiteral("</FOO>"));
    QCOMPARE(shortLines[1].endText, QString());
}

void tst_TagCatalogue::userEntriesKeepTheirOwnFile()
{
    test::TestEnv env;
    TagCatalogue none;
    QVERIFY(none.load().ok());   // neither file there: empty, no error
    QVERIFY(none.entries().isEmpty());

    env.write(QStringLiteral("tags.inf"), "P\tHTML: Text\tY\tHTML 2\t<P>\t</P>\tParagraph\r\n");
    env.write(QStringLiteral("custom tags.inf"), "MYTAG\tMine\tN\tHTML 4\t<MYTAG>\t\tmine\r\n");
    TagCatalogue c;
    QVERIFY(c.load().ok());
    QCOMPARE(c.entries().size(), 2);
    // Whatever the user's file says, its entries are custom keywords.
    QCOMPARE(c.entries()[1].filters, QStringList{markup::customFilterName()});
    QCOMPARE(namesIn(c.visibleEntries({QStringLiteral("HTML 4")})), QSet<QString>());

    QList<TagEntry> entries = c.entries();
    entries[0].description = QStringLiteral("Changed");
    TagEntry extra = entries[1];
    extra.name = QStringLiteral("OTHER");
    entries << extra;
    c.setEntries(entries);
    QVERIFY(c.save().ok());
    QVERIFY(!env.read(QStringLiteral("tags.inf")).contains("MYTAG"));
    QVERIFY(env.read(QStringLiteral("tags.inf")).contains("Changed"));
    QVERIFY(env.read(QStringLiteral("custom tags.inf")).contains("OTHER"));
    TagCatalogue again;
    again.load();
    QCOMPARE(again.entries(), entries);
    // Nothing is left beside the files from the atomic writes.
    QCOMPARE(QDir(env.dir()).entryList({QStringLiteral("*tags*")}, QDir::Files).size(), 2);
}

void tst_TagCatalogue::shippedCatalogueCoversTheSpecifications()
{
    const QList<TagEntry> all = TagCatalogue::parse(shippedCatalogue(), false);
    QVERIFY(all.size() > 400);
    TagCatalogue c;
    c.setEntries(all);
    const auto tagsOf = [&](const char *filter) { return namesIn(c.visibleEntries({QString::fromLatin1(filter)})); };

    const QSet<QString> html4 = words(
        "A ABBR ACRONYM ADDRESS APPLET AREA B BASE BASEFONT BDO BIG BLOCKQUOTE BODY BR BUTTON CAPTION CENTER "
        "CITE CODE COL COLGROUP DD DEL DFN DIR DIV DL DT EM FIELDSET FONT FORM FRAME FRAMESET H1 H2 H3 H4 H5 H6 "
        "HEAD HR HTML I IFRAME IMG INPUT INS ISINDEX KBD LABEL LEGEND LI LINK MAP MENU META NOFRAMES NOSCRIPT "
        "OBJECT OL OPTGROUP OPTION P PARAM PRE Q S SAMP SCRIPT SELECT SMALL SPAN STRIKE STRONG STYLE SUB SUP "
        "TABLE TBODY TD TEXTAREA TFOOT TH THEAD TITLE TR TT U UL VAR");
    QCOMPARE(html4.size(), 91);
    QCOMPARE(tagsOf("HTML 4"), html4);
    QCOMPARE(tagsOf("HTML 2").size(), 49);   // RFC 1866, H1 to H6 counted one by one
    QVERIFY(tagsOf("HTML 2").contains(QStringLiteral("NEXTID")));
    QVERIFY(!tagsOf("HTML 2").contains(QStringLiteral("TABLE")));
    QVERIFY(tagsOf("HTML 3.2").contains(QStringLiteral("TABLE")));
    QVERIFY(!tagsOf("HTML 3.2").contains(QStringLiteral("FRAME")));
    for (const char *t : {"ARTICLE", "SECTION", "VIDEO", "TEMPLATE", "MAIN", "PICTURE", "DIALOG"})
        QVERIFY2(tagsOf("HTML 5").contains(QString::fromLatin1(t)), t);
    QVERIFY(!tagsOf("HTML 5").contains(QStringLiteral("FONT")));
    QVERIFY(tagsOf("Netscape Navigator 4").contains(QStringLiteral("LAYER")));
    QVERIFY(tagsOf("Netscape Navigator 4").contains(QStringLiteral("BLINK")));
    QVERIFY(tagsOf("IE 3").contains(QStringLiteral("MARQUEE")));
    QVERIFY(!tagsOf("Netscape Navigator 1").contains(QStringLiteral("MARQUEE")));
    QVERIFY(tagsOf("Cold Fusion").contains(QStringLiteral("CFOUTPUT")));
    QVERIFY(tagsOf("WebTV").contains(QStringLiteral("AUDIOSCOPE")));

    const QStringList filterList = markup::FilterList();
    const QSet<QString> filters(filterList.begin(), filterList.end());
    for (const TagEntry &e : all) {
        QVERIFY2(!e.filters.isEmpty(), qPrintable(e.name));
        for (const QString &f : e.filters)
            QVERIFY2(filters.contains(f), qPrintable(e.name + u' ' + f));
        if (!e.isScriptWord()) {
            QCOMPARE(e.startText, u'<' + e.name + u'>');
            QCOMPARE(e.endText, e.hasEndTag ? QStringLiteral("</") + e.name + u'>' : QString());
        }
    }
    const QSet<QString> js = namesIn(c.visibleEntries({QStringLiteral("JavaScript")}), true);
    const QSet<QString> jscript = namesIn(c.visibleEntries({QStringLiteral("JScript")}), true);
    QVERIFY(js.contains(QStringLiteral("getElementById")) && jscript.contains(QStringLiteral("getElementById")));
    QVERIFY(jscript.contains(QStringLiteral("ActiveXObject")) && !js.contains(QStringLiteral("ActiveXObject")));
    QVERIFY(js.contains(QStringLiteral("let")) && !jscript.contains(QStringLiteral("let")));
}

void tst_TagCatalogue::filtersReadOnlyTrueExactly()
{
    test::TestEnv env;
    const QString section = QStringLiteral("Filters");
    core::WriteSetting(section, QStringLiteral("HTML 2"), QStringLiteral("True"));
    core::WriteSetting(section, QStringLiteral("HTML 4"), QStringLiteral("true"));
    core::WriteSetting(section, QStringLiteral("IE 3"), QStringLiteral("yes"));
    QCOMPARE(markup::LoadFilters(), QSet<QString>{QStringLiteral("HTML 2")});

    markup::SaveFilters({{QStringLiteral("HTML 2"), false}, {QStringLiteral("WebTV"), true}});
    QCOMPARE(core::ReadSetting(section, QStringLiteral("HTML 2")), QStringLiteral("False"));
    QCOMPARE(core::ReadSetting(section, QStringLiteral("WebTV")), QStringLiteral("True"));
    QCOMPARE(markup::LoadFilters(), QSet<QString>{QStringLiteral("WebTV")});
    // The dialog's rows are the filters less the two Internet Explorer sets.
    QStringList rows = markup::FilterDialogRows();
    rows << QStringLiteral("IE 3") << QStringLiteral("IE 4");
    const QStringList all = markup::FilterList();
    QCOMPARE(QSet<QString>(rows.begin(), rows.end()), QSet<QString>(all.begin(), all.end()));
}

void tst_TagCatalogue::colouringKnowsTheActiveFiltersWords()
{
    TagCatalogue c;
    c.setEntries(TagCatalogue::parse(shippedCatalogue(), false));
    const int before = documents::knownWordsGeneration();
    markup::PublishKnownWords(c, {QStringLiteral("HTML 2"), QStringLiteral("JavaScript")});
    QVERIFY(documents::knownWordsGeneration() > before);
    const documents::KnownWords &k = documents::knownWords();
    QVERIFY(k.knowsTag("Body", 4));
    QVERIFY(k.knowsTag("nextid", 6));
    QVERIFY(!k.knowsTag("table", 5));   // not in HTML 2
    QVERIFY(!k.knowsTag("averyveryveryverylongtagnamethatnoonewrites", 43));
    using C = documents::ScriptWordClass;
    QCOMPARE(k.scriptWord("while", 5), C::Statement);
    QCOMPARE(k.scriptWord("document", 8), C::Object);
    QCOMPARE(k.scriptWord("alert", 5), C::Method);
    QCOMPARE(k.scriptWord("innerHTML", 9), C::Property);
    QCOMPARE(k.scriptWord("While", 5), C::None);   // script words keep their case
    QCOMPARE(k.scriptWord("ActiveXObject", 13), C::None);
}

QTEST_MAIN(tst_TagCatalogue)
#include "tst_tagcatalogue.moc"
