#include "core/ProfileFile.h"
#include "core/Settings.h"
#include "support/TestEnv.h"

#include <QtTest>

using namespace qly;

class tst_Profile : public QObject
{
    Q_OBJECT
private slots:
    void readsCaseBlind();
};

void tst_Profile::readsCaseBlind()
{
    test::TestEnv env;
    env.write(QStringLiteral("quillery.ini"), "[General]\r\nCreate BAK Files=Yes\r\n");
    QCOMPARE(core::ReadSetting(QStringLiteral("general"), QStringLiteral("create bak files")), QStringLiteral("Yes"));
}

QTEST_GUILESS_MAIN(tst_Profile)
#include "tst_profile.moc"
