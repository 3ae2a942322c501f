#include "core/Settings.h"
#include "core/HistoryList.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"
#include "tagdialogs/TagDialogModel.h"
#include "tagdialogs/TagText.h"

#include <QDir>
#include <QtTest>

using namespace qly;

// The tag dialogs' golden cases, one folder each under data/tagdialogs:
//   dialog     the dialog's name
//   settings   optional: the configuration file
//   files      optional: files to make, one path a line, below the test's folder
//   document   optional: the page (site/page.html), the selection between [| and |]
//   read       optional: fields as the dialog opens, name=value a line
//   notes      optional: what the dialog says it could not read, a line each
//   fields     optional: what the user then types, name=value ("\n" a line end)
//   expected   the page after OK; absent: the page is unchanged
//   messages   optional: the boxes shown on OK, a text a line (then the dialog stays)
//   titles     optional: their titles
//   history    optional: section=first entry of a history after OK
// "$DIR" stands for the test's folder. Line ends in files are made CR LF.
class tst_TagDialogs : public QObject
{
    Q_OBJECT
private slots:
    void golden_data();
    void golden();
    void escapesAndColours();
};

namespace {

QString dataDir()
{
    return QStringLiteral(TEST_DATA_DIR "/tagdialogs");
}

QString readText(const QString &path, bool *exists = nullptr)
{
    QFile f(path);
    if (exists)
        *exists = f.exists();
    if (!f.open(QIODevice::ReadOnly))
        return QString();
    QString s = QString::fromUtf8(f.readAll());
    s.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return s;
}

QString crlf(QString s)
{
    return s.replace(u'\n', QStringLiteral("\r\n"));
}

QList<QPair<QString, QString>> pairs(const QString &text, const QString &dir)
{
    QList<QPair<QString, QString>> out;
    for (const QString &line : text.split(u'\n')) {
        const qsizetype eq = line.indexOf(u'=');
        if (line.isEmpty() || eq < 0)
            continue;
        QString v = line.mid(eq + 1);
        v.replace(QStringLiteral("\\n"), QStringLiteral("\n"));
        v.replace(QStringLiteral("$DIR"), dir);
        out << qMakePair(line.left(eq), v);
    }
    return out;
}

QStringList lines(const QString &text)
{
    QStringList out = text.split(u'\n');
    while (!out.isEmpty() && out.last().isEmpty())
        out.removeLast();
    return out;
}

} // namespace

void tst_TagDialogs::golden_data()
{
    QTest::addColumn<QString>("folder");
    const QStringList cases = QDir(dataDir()).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    QVERIFY(cases.size() >= 20);
    for (const QString &c : cases)
        QTest::newRow(qPrintable(c)) << dataDir() + u'/' + c;
}

void tst_TagDialogs::golden()
{
    QFETCH(QString, folder);
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    const QString dir = env.dir();
    const auto in = [&folder](const char *name, bool *exists = nullptr) {
        return readText(folder + u'/' + QLatin1String(name), exists);
    };

    bool has = false;
    const QString settings = in("settings", &has);
    if (has)
        env.write(QStringLiteral("quillery.ini"), crlf(settings).toUtf8());
    for (const QString &file : lines(in("files"))) {
        QDir(dir).mkpath(QFileInfo(dir + u'/' + file).path());
        env.write(file, QByteArray("GIF89a"));
    }
    QDir(dir).mkpath(QStringLiteral("site"));
    QString page = crlf(in("document")).replace(QStringLiteral("$DIR"), dir);
    const qsizetype selStart = page.indexOf(QLatin1String("[|"));
    if (selStart >= 0)
        page.remove(selStart, 2);
    const qsizetype selEnd = page.indexOf(QLatin1String("|]"));
    if (selEnd >= 0)
        page.remove(selEnd, 2);
    test::FakeDocument *doc = workspace.addDocument(QStringLiteral("page.html"), page, dir + QStringLiteral("/site/page.html"));
    if (selStart >= 0)
        doc->edit.SetSel(int(selStart), int(selEnd >= 0 ? selEnd : selStart));

    auto model = tagdialogs::makeTagDialogModel(lines(in("dialog")).value(0));
    QVERIFY(model);
    model->open();
    for (const auto &field : pairs(in("read"), dir))
        QCOMPARE(field.first + u'=' + model->value(field.first), field.first + u'=' + field.second);
    QCOMPARE(model->notes(), lines(in("notes")));

    for (const auto &field : pairs(in("fields"), dir))
        model->setValue(field.first, field.second);
    const QStringList messages = lines(in("messages"));
    for (int i = 0; i < messages.size(); ++i)
        prompts.answer(platform::Answer::Ok);
    const bool accepted = model->accept();
    QCOMPARE(prompts.texts(), messages);
    if (QFile::exists(folder + QStringLiteral("/titles"))) {
        QStringList titles;
        for (const auto &shown : std::as_const(prompts.shown))
            titles << shown.title;
        QCOMPARE(titles, lines(in("titles")));
    }
    QCOMPARE(accepted, messages.isEmpty());
    const QString expected = in("expected", &has);
    QCOMPARE(doc->edit.Text(), has ? crlf(expected).replace(QStringLiteral("$DIR"), dir) : page);
    for (const auto &h : pairs(in("history"), dir))
        QCOMPARE(core::ReadHistory(h.first).value(0), h.second);
}

void tst_TagDialogs::escapesAndColours()
{
    using namespace tagdialogs;
    QCOMPARE(EscapeAddress(QStringLiteral("my page.htm")), QStringLiteral("my%20page.htm"));
    QCOMPARE(EscapeAddress(QStringLiteral("café/\"x\".gif")), QStringLiteral("caf%C3%A9/%22x%22.gif"));
    QCOMPARE(EscapeAddress(QStringLiteral("a%20b?q=1&r=2")), QStringLiteral("a%20b?q=1&r=2"));
    QCOMPARE(QuoteValue(QStringLiteral("\"already\"")), QStringLiteral("\"already\""));
    QCOMPARE(QuoteValue(QStringLiteral("say \"hi\" now")), QStringLiteral("\"say &quot;hi&quot; now\""));
    QCOMPARE(QuoteValue(QString()), QStringLiteral("\"\""));
    QCOMPARE(ColorHex(QStringLiteral("255")), QStringLiteral("#FF0000"));      // stored red
    QCOMPARE(ColorHex(QStringLiteral("16711680")), QStringLiteral("#0000FF")); // stored blue
    QCOMPARE(ColorHex(QStringLiteral("#c0c0c0")), QStringLiteral("#C0C0C0"));
    QCOMPARE(ColorHex(QStringLiteral("#ff")), QStringLiteral("#0000FF"));
    QCOMPARE(ColorHex(QStringLiteral("fuchsia")), QStringLiteral("#FF00FF"));
    QCOMPARE(ColorHex(QStringLiteral("c0ffee")), QStringLiteral("#C0FFEE"));
    QCOMPARE(ColorHex(QStringLiteral("mauve")), QString());
    QCOMPARE(FileSizeText(1023), QStringLiteral("1023 bytes"));
    QCOMPARE(FileSizeText(1536), QStringLiteral("1.50 K"));
    QCOMPARE(PlainValue(QStringLiteral("50%")), QStringLiteral("50%"));
    QCOMPARE(PlainValue(QStringLiteral("50 px")), QStringLiteral("\"50 px\""));
}

QTEST_GUILESS_MAIN(tst_TagDialogs)
#include "tst_tagdialogs.moc"
