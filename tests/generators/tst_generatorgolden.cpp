#include "generators/AxTag.h"
#include "generators/FormEditorModel.h"
#include "generators/FormText.h"
#include "generators/JavaApplets.h"
#include "generators/ReplaceChannel.h"
#include "generators/ScriptTemplates.h"
#include "generators/TextEffectsModel.h"

#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QFile>
#include <QMultiMap>
#include <QtTest>

using namespace qly;
using namespace qly::generators;

// Every generator of forms, scripts, channels, text effects and object tags
// against the golden cases of tests/data/generators: each folder holds
// fields.txt (the dialog's fields, "key=value" a line, \n \r \t \\ escaped,
// keys may repeat) and expected.txt (the exact text, followed by a line
// "[title] text" for each message shown), with files the case needs beside
// them: a template ("template=" names a file of the case, or "shipped:" and
// a path under the program's data), and for the scripts that work on a page,
// page.html with "{caret}" where the selection stands.
class tst_GeneratorGolden : public QObject
{
    Q_OBJECT
private slots:
    void golden_data();
    void golden();
};

namespace {

const QString kCases = QStringLiteral(TEST_DATA_DIR "/generators");

using Fields = QMultiMap<QString, QString>;

QString unescape(const QString &s)
{
    QString out;
    for (qsizetype i = 0; i < s.size(); ++i) {
        if (s.at(i) != u'\\' || i + 1 == s.size()) {
            out += s.at(i);
            continue;
        }
        const QChar c = s.at(++i);
        out += c == u'n' ? QChar(u'\n') : c == u'r' ? QChar(u'\r') : c == u't' ? QChar(u'\t') : c;
    }
    return out;
}

Fields readFields(const QString &path)
{
    Fields fields;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fields;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (QString line : lines) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        const qsizetype eq = line.indexOf(u'=');
        if (eq > 0 && !line.startsWith(u'#'))
            fields.insert(line.left(eq), unescape(line.mid(eq + 1)));
    }
    return fields;
}

// The values of a repeated key, in file order.
QStringList all(const Fields &f, const QString &key)
{
    QStringList values = f.values(key);
    std::reverse(values.begin(), values.end());
    return values;
}

bool yes(const Fields &f, const QString &key)
{
    return f.value(key).compare(QLatin1String("yes"), Qt::CaseInsensitive) == 0;
}

FormElement element(const QString &spec)
{
    const QStringList parts = spec.split(u'|');
    FormElement e;
    e.kind = parts.value(0).toInt();
    e.caption = parts.value(1);
    for (int i = 0; i < 5; ++i)
        e.sub[i] = parts.value(i + 2);
    return e;
}

QString formText(const Fields &f)
{
    FormEditorModel m;
    m.toMail = yes(f, QStringLiteral("mail"));
    m.url = f.value(QStringLiteral("url"));
    m.mailAddress = f.value(QStringLiteral("address"));
    m.methodGet = f.value(QStringLiteral("method")) != QLatin1String("POST");
    m.mimeType = f.value(QStringLiteral("mime"));
    for (const QString &spec : all(f, QStringLiteral("element")))
        m.elements << element(spec);
    return m.generate();
}

unsigned color(const Fields &f, const QString &key, unsigned fallback)
{
    return f.contains(key) ? f.value(key).toUInt(nullptr, 16) : fallback;
}

QString textEffect(const Fields &f)
{
    TextEffectsModel m;
    for (auto it = f.begin(); it != f.end(); ++it) {
        if (it.key().startsWith(QLatin1String("txt")))
            m.fields.insert(it.key(), it.value());
    }
    auto set = [&f](QString &target, const char *key) {
        if (f.contains(QString::fromLatin1(key)))
            target = f.value(QString::fromLatin1(key));
    };
    set(m.effect, "effect");
    set(m.text, "text");
    set(m.fontName, "font");
    set(m.fontSize, "size");
    set(m.speed, "speed");
    set(m.alignment, "align");
    set(m.spearmintAlign, "spearmintAlign");
    set(m.minFont, "minFont");
    set(m.width, "width");
    set(m.height, "height");
    set(m.horizontal, "horizontal");
    set(m.vertical, "vertical");
    m.bold = yes(f, QStringLiteral("bold"));
    m.italic = yes(f, QStringLiteral("italic"));
    m.popcorn = !f.contains(QStringLiteral("popcorn")) || yes(f, QStringLiteral("popcorn"));
    m.spearmintEat = yes(f, QStringLiteral("spearmint"));
    m.gradient = yes(f, QStringLiteral("gradient"));
    m.foreground = color(f, QStringLiteral("color"), m.foreground);
    m.background = color(f, QStringLiteral("background"), m.background);
    m.border = yes(f, QStringLiteral("border"));
    m.border3D = yes(f, QStringLiteral("border3D"));
    m.borderColor = color(f, QStringLiteral("borderColor"), m.borderColor);
    QString out = m.CreateApplet(yes(f, QStringLiteral("fallback")));
    // The maker's text also goes back into the field.
    if (f.contains(QStringLiteral("expectText")) && m.text != f.value(QStringLiteral("expectText")))
        out += QStringLiteral("\nfield holds ") + m.text;
    return out;
}

QString marquee(const Fields &f)
{
    MarqueeFields m;
    for (int i = 0; i < 7; ++i)
        m.fields[size_t(i)] = f.value(QStringLiteral("field%1").arg(i + 1));
    m.behavior = f.value(QStringLiteral("behavior"), QStringLiteral("-1")).toInt();
    m.direction = f.value(QStringLiteral("direction"), QStringLiteral("-1")).toInt();
    m.bgColor = f.value(QStringLiteral("bgcolor"));
    m.align = f.value(QStringLiteral("align"));
    m.text = f.value(QStringLiteral("text"));
    return MarqueeText(m);
}

QString readText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString templateText(const QString &dir, const Fields &f)
{
    const QString name = f.value(QStringLiteral("template"));
    if (name.startsWith(QLatin1String("shipped:")))
        return readText(QStringLiteral(TEST_DATA_DIR "/../../data/") + name.mid(8));
    return readText(dir + u'/' + name);
}

// Runs a script that works on a page; the result is the page afterwards.
QString onPage(const QString &dir, const Fields &f, const QString &g)
{
    test::FakeWorkspace ws;
    QString page = readText(dir + QStringLiteral("/page.html"));
    const qsizetype caret = page.indexOf(QLatin1String("{caret}"));
    page.remove(QStringLiteral("{caret}"));
    test::FakeDocument *doc = ws.addDocument(QStringLiteral("page"), page);
    doc->edit.SetSel(int(caret), int(caret));
    const QString tmpl = templateText(dir, f);
    if (g == QLatin1String("Clock"))
        InsertClock(doc->edit, f.value(QStringLiteral("size")), tmpl);
    else if (g == QLatin1String("Scrolling"))
        InsertScrolling(doc->edit, f.value(QStringLiteral("message")), f.value(QStringLiteral("size")), tmpl);
    else
        InsertNoFrames(doc->edit);
    return doc->edit.Text();
}

QString scriptText(const QString &dir, const Fields &f, const QString &g)
{
    auto v = [&f](const char *key) { return f.value(QString::fromLatin1(key)); };
    if (g == QLatin1String("RandomBanner")) {
        QList<BannerRow> rows;
        for (const QString &spec : all(f, QStringLiteral("row"))) {
            const QStringList p = spec.split(u'|');
            rows << BannerRow{p.value(0), p.value(1), p.value(2)};
        }
        return RandomBannerText(templateText(dir, f), rows);
    }
    if (g == QLatin1String("SelectURL")) {
        QList<PickRow> rows;
        for (const QString &spec : all(f, QStringLiteral("row")))
            rows << PickRow{spec.section(u'|', 0, 0), spec.section(u'|', 1)};
        return SelectUrlText(rows);
    }
    if (g == QLatin1String("Popup")) {
        PopupFields p;
        p.url = v("url");
        p.caption = v("caption");
        p.width = v("width");
        p.height = v("height");
        const QStringList on = v("on").split(u',');
        p.toolbar = on.contains(QStringLiteral("toolbar"));
        p.directories = on.contains(QStringLiteral("directories"));
        p.status = on.contains(QStringLiteral("status"));
        p.menubar = on.contains(QStringLiteral("menubar"));
        p.scrollbars = on.contains(QStringLiteral("scrollbars"));
        p.resizable = on.contains(QStringLiteral("resizable"));
        return PopupText(p);
    }
    if (g == QLatin1String("NetCaster"))
        return FillNetCaster(templateText(dir, f), {v("name"), v("url"), v("interval"), v("cacheSize"), v("depth"),
                                                    v("type"), v("buttonName")});
    if (g == QLatin1String("ActiveChannel"))
        return FillActiveChannel(templateText(dir, f), {v("name"), v("interval"), v("url"), v("abstract"),
                                                        v("longName"), v("itemName"), v("itemUrl"), v("self")});
    if (g == QLatin1String("ChannelItem"))
        return FillChannelItem(templateText(dir, f), v("itemName"), v("itemUrl"));
    if (g == QLatin1String("LastUpdated"))
        return templateText(dir, f);
    return onPage(dir, f, g);
}

QString objectTag(const Fields &f)
{
    AxTagOptions o;
    o.classId = f.value(QStringLiteral("classId"), QStringLiteral("ClassID")) == QLatin1String("ClassID");
    o.tag = f.value(QStringLiteral("tag"), o.tag);
    o.tagCase = f.value(QStringLiteral("case"), o.tagCase);
    o.multiLine = f.value(QStringLiteral("lines")) == QLatin1String("Multi");
    o.width = f.value(QStringLiteral("width"), o.width);
    o.height = f.value(QStringLiteral("height"), o.height);
    o.includeCode = yes(f, QStringLiteral("inclCode"));
    o.code = f.value(QStringLiteral("code"), o.code);
    QList<QPair<QString, QString>> values;
    for (const QString &spec : all(f, QStringLiteral("param")))
        values << qMakePair(spec.section(u'|', 0, 0), spec.section(u'|', 1));
    return BuildObjTag(o, f.value(QStringLiteral("id")), f.value(QStringLiteral("clsid")),
                       f.value(QStringLiteral("progid")), values);
}

// One generator call by name with the fields as arguments.
QString generate(const QString &dir, const Fields &f)
{
    const QString g = f.value(QStringLiteral("generator"));
    auto v = [&f](const char *key) { return f.value(QString::fromLatin1(key)); };
    auto on = [&f](const char *key) { return yes(f, QString::fromLatin1(key)); };
    if (g == QLatin1String("form"))
        return formText(f);
    if (g == QLatin1String("FormCheckBox"))
        return FormCheckBox(v("caption"), v("name"), v("value"), on("checked"));
    if (g == QLatin1String("FormRadio"))
        return FormRadio(v("caption"), v("name"), v("value"), on("checked"));
    if (g == QLatin1String("FormListBox"))
        return FormListBox(v("caption"), v("name"), v("value"), v("items"), on("multiple"));
    if (g == QLatin1String("FormInput"))
        return FormInput(v("caption"), v("name"), v("value"), v("cols"), v("size"), on("password"), on("hidden"));
    if (g == QLatin1String("FormTextArea"))
        return FormTextArea(v("caption"), v("name"), v("value"), v("cols"), v("size"), v("rows"));
    if (g == QLatin1String("FormSubmit"))
        return FormSubmit(v("caption"));
    if (g == QLatin1String("FormReset"))
        return FormReset(v("caption"));
    if (g == QLatin1String("FormFile"))
        return FormFile(v("caption"), v("name"));
    if (g == QLatin1String("FormImage"))
        return FormImage(v("url"));
    if (g == QLatin1String("TextEffect"))
        return textEffect(f);
    if (g == QLatin1String("ObjectTag"))
        return objectTag(f);
    if (g == QLatin1String("Marquee"))
        return marquee(f);
    if (g == QLatin1String("JavaLED"))
        return JavaLEDText(v("caption"), color(f, QStringLiteral("color"), 0), color(f, QStringLiteral("backcolor"), 0),
                           on("fallback"));
    if (g == QLatin1String("JavaHRule")) {
        JavaHRuleFields h{v("width"), v("height"), v("gradientsize"), v("change"),
                          color(f, QStringLiteral("color"), 0), on("border")};
        return JavaHRuleText(h, on("fallback"));
    }
    return scriptText(dir, f, g);
}

} // namespace

void tst_GeneratorGolden::golden_data()
{
    QTest::addColumn<QString>("dir");
    const QStringList cases = QDir(kCases).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    QVERIFY(cases.size() > 10);
    for (const QString &c : cases)
        QTest::newRow(qPrintable(c)) << QDir(kCases).filePath(c);
}

void tst_GeneratorGolden::golden()
{
    QFETCH(QString, dir);
    const Fields fields = readFields(dir + QStringLiteral("/fields.txt"));
    QVERIFY2(fields.contains(QStringLiteral("generator")), qPrintable(dir));
    QFile expectedFile(dir + QStringLiteral("/expected.txt"));
    QVERIFY(expectedFile.open(QIODevice::ReadOnly));
    const QString expected = QString::fromUtf8(expectedFile.readAll());
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    QString actual = generate(dir, fields);
    for (const test::ScriptedPrompts::Shown &shown : std::as_const(prompts.shown))
        actual += QStringLiteral("\n[") + shown.title + QStringLiteral("] ") + shown.text;
    QCOMPARE(actual, expected);
}

QTEST_GUILESS_MAIN(tst_GeneratorGolden)
#include "tst_generatorgolden.moc"
