#include "core/Paths.h"
#include "generators/AppletClasses.h"
#include "generators/AppletFallback.h"
#include "generators/EffectChecks.h"
#include "generators/TextEffectsModel.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QFile>
#include <QtTest>

using namespace qly;
using namespace qly::generators;

// What the text effects do besides writing their text: the checks of typed
// values, and the class files a page's applets need.
class tst_TextEffects : public QObject
{
    Q_OBJECT
private slots:
    void validationMessages();
    void classFilesOfAPage();
    void classesAreCopiedOnceAndNeverOverwritten();
    void fallbackFollowsTheStoredOption();
};

void tst_TextEffects::validationMessages()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    QVERIFY(ValidNumericInput(QStringLiteral("0"), {0, 1000}));
    QVERIFY(!ValidNumericInput(QStringLiteral("1001"), {0, 1000}));
    QVERIFY(!ValidNumericInput(QString(), {1, 2000}));
    QVERIFY(ValidFontName(QStringLiteral("Courier New")));
    QVERIFY(!ValidFontName(QStringLiteral("courier new")));
    QVERIFY(ValidFontSize(QStringLiteral("72")));
    QVERIFY(!ValidFontSize(QStringLiteral("5")));
    QCOMPARE(prompts.shown.size(), 4);
    QCOMPARE(prompts.shown[0].title, QStringLiteral("Warning Invalid Input Entered"));
    // The numbers keep the blank that number formatting puts before them.
    QCOMPARE(prompts.shown[0].text, QStringLiteral("Enter a Number between 0 and  1000"));
    QCOMPARE(prompts.shown[1].text, QStringLiteral("Enter a Number between 1 and  2000"));
    QCOMPARE(prompts.shown[2].title, QStringLiteral("Warning Invalid Font Type Entered"));
    QCOMPARE(prompts.shown[2].text, QStringLiteral("Enter a correct Font type"));
    QCOMPARE(prompts.shown[3].title, QStringLiteral("Warning Invalid Font Size Entered"));
    QCOMPARE(prompts.shown[3].text, QStringLiteral("Enter a Fontsize between 6 and  72"));
}

void tst_TextEffects::classFilesOfAPage()
{
    const QString page = QStringLiteral(
        "<P><APPLET CODE=\"lfled.class\" WIDTH=600><applet code=bounce width=3>"
        "<applet code=\"LFLED.CLASS\"><applet width=4><applet code=\"lib/x.jar\">");
    QCOMPARE(AppletClassFiles(page),
             (QStringList{QStringLiteral("lfled.class"), QStringLiteral("bounce.class"), QStringLiteral("ver.class"),
                          QStringLiteral("myfont.class"), QStringLiteral("createcolor.class"),
                          QStringLiteral("lib/x.jar")}));
}

void tst_TextEffects::classesAreCopiedOnceAndNeverOverwritten()
{
    test::TestEnv env;
    env.write(QStringLiteral("classes/lfwave.class"), "wave");
    env.write(QStringLiteral("classes/lfled.class"), "led");
    env.write(QStringLiteral("site/lfled.class"), "mine");
    TextEffectsModel m;
    m.effect = QStringLiteral("Wave");
    const QString page = m.previewPage(m.CreateApplet(false)) + QStringLiteral("<applet code=\"lfled.class\">")
                         + QStringLiteral("<applet code=\"gone.class\">");
    const QString site = env.path(QStringLiteral("site"));
    // The missing class is passed over; the user's own copy stays.
    QCOMPARE(CopyAppletClasses(page, site), QStringList{QStringLiteral("lfwave.class")});
    QCOMPARE(env.read(QStringLiteral("site/lfwave.class")), QByteArray("wave"));
    QCOMPARE(env.read(QStringLiteral("site/lfled.class")), QByteArray("mine"));
    QCOMPARE(CopyAppletClasses(page, site), QStringList());

}

void tst_TextEffects::fallbackFollowsTheStoredOption()
{
    test::TestEnv env;
    TextEffectsModel m;
    m.text.clear();
    const QString plain = m.CreateApplet();
    QVERIFY(!plain.contains(QLatin1String("<div")));
    QCOMPARE(m.text, QStringLiteral("Lumenfold Software"));
    SetAppletFallback(true);
    const QString withFallback = m.CreateApplet();
    QVERIFY(withFallback.contains(QLatin1String(">Lumenfold Software</span>\r\n</div>\r\n</applet>\r\n")));
    // Only the fallback is added: the applet's own text is the same.
    QCOMPARE(withFallback.left(withFallback.indexOf(QLatin1String("<div"))), plain.chopped(11));
}

QTEST_GUILESS_MAIN(tst_TextEffects)
#include "tst_texteffects.moc"
