#include "core/Paths.h"
#include "markup/CharacterCodes.h"
#include "publish/Publish.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QFile>
#include <QProcess>
#include <QtTest>

using namespace qly;

namespace {

const QString kCli = QStringLiteral(PROGRAM_DATA_DIR "/quillery-cli");

int runCli(const QStringList &arguments, QByteArray *errors = nullptr)
{
    QProcess p;
    p.start(kCli, arguments);
    if (!p.waitForFinished(60000))
        return -1;
    if (errors)
        *errors = p.readAllStandardError();
    return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
}

} // namespace

class tst_Cli : public QObject
{
    Q_OBJECT
private slots:
    void publishesLikeTheEditor();
    void missingSourceFails();
    void usageErrors();
};

void tst_Cli::publishesLikeTheEditor()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    // The same program data as the command-line program beside it.
    core::setProgramDirectory(QStringLiteral(PROGRAM_DATA_DIR));
    markup::LoadCharacterCodes();
    env.write(QStringLiteral("quillery.ini"),
              "[Publishing]\r\nTranslate Extended Characters=Yes\r\nUse Aliases=Yes\r\nUse UNIX Slashes=Yes\r\n"
              "Publish as UNIX Text=yes\r\n");
    const QString page = env.write(QStringLiteral("page.html"),
                                   "<HTML>\r\n<P>Caf\xc3\xa9 \xe2\x80\x94 %%EMAIL%%</P>\r\n%%FOOTER%%\r\n"
                                   "<IMG SRC=\"img\\a.gif\"> C:\\dir\r\n</HTML>\r\n");
    QVERIFY(publish::PublishFile(page, env.path(QStringLiteral("editor.html"))));
    QByteArray errors;
    QCOMPARE(runCli({QStringLiteral("publish"), page, env.path(QStringLiteral("cli.html")), QStringLiteral("--ini"),
                     env.ini()},
                    &errors),
             0);
    const QByteArray editor = env.read(QStringLiteral("editor.html"));
    QVERIFY(editor.contains("Caf&eacute;"));
    QVERIFY(editor.contains("webmaster@example.com"));
    QVERIFY(editor.contains("<IMG SRC=\"img/a.gif\"> C:\\dir\n"));
    QCOMPARE(env.read(QStringLiteral("cli.html")), editor);
    QVERIFY(prompts.shown.isEmpty());
}

void tst_Cli::missingSourceFails()
{
    test::TestEnv env;
    env.write(QStringLiteral("quillery.ini"), "[Publishing]\r\n");
    const QString target = env.write(QStringLiteral("out.html"), "kept");
    QByteArray errors;
    QCOMPARE(runCli({QStringLiteral("--ini"), env.ini(), QStringLiteral("publish"),
                     env.path(QStringLiteral("missing.html")), target},
                    &errors),
             1);
    QVERIFY(errors.contains("File not found."));
    QCOMPARE(env.read(target), QByteArray("kept"));
}

void tst_Cli::usageErrors()
{
    test::TestEnv env;
    QCOMPARE(runCli({QStringLiteral("--help")}), 0);
    QCOMPARE(runCli({}), 2);
    QCOMPARE(runCli({QStringLiteral("nosuchcommand")}), 2);
    QCOMPARE(runCli({QStringLiteral("--ini"), env.path(QStringLiteral("none.ini")), QStringLiteral("publish"),
                     QStringLiteral("a"), QStringLiteral("b")}),
             2);
    QCOMPARE(runCli({QStringLiteral("--ini"), env.ini(), QStringLiteral("publish"), QStringLiteral("a")}), 2);
}

QTEST_GUILESS_MAIN(tst_Cli)
#include "tst_cli.moc"
