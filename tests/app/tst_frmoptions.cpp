#include "core/Settings.h"
#include "app/frmOptions.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QtTest>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>

using namespace qly;

namespace {

template <typename W>
W *control(QWidget &dialog, const char *name)
{
    W *w = dialog.findChild<W *>(QString::fromLatin1(name));
    if (!w)
        qWarning("no control %s", name);
    return w;
}

QString setting(const char *section, const char *key)
{
    return core::ReadSetting(QString::fromLatin1(section), QString::fromLatin1(key));
}

} // namespace

class tst_frmOptions : public QObject
{
    Q_OBJECT
private slots:
    void showsTheStoredSettings();
    void controlsFollowTheirRules();
    void okWritesAndCancelDoesNot();
    void defaultBrowserIsMarkedAndWritten();
};

void tst_frmOptions::showsTheStoredSettings()
{
    test::TestEnv env;
    env.write(QStringLiteral("quillery.ini"),
              "[General]\r\nTarget=id\r\nRestore Last Session=yes\r\nAutoSave=10\r\n[Editing]\r\nColor HTML=No\r\n"
              "[File Locations]\r\nDocuments=/home/web\r\n[Publishing]\r\nDefault Extension=shtml\r\n");
    app::frmOptions d;
    QCOMPARE(d.windowTitle(), QStringLiteral("Quillery Options"));
    auto *tabs = control<QTabWidget>(d, "tbOptions");
    QStringList captions;
    for (int i = 0; i < tabs->count(); ++i)
        captions << tabs->tabText(i);
    QCOMPARE(captions, QStringList({QStringLiteral("General"), QStringLiteral("Editing"), QStringLiteral("Coloring"),
                                    QStringLiteral("Display"), QStringLiteral("Directories"), QStringLiteral("Spelling"),
                                    QStringLiteral("Save/Start"), QStringLiteral("External Browsers")}));
    QVERIFY(control<QCheckBox>(d, "chkGeneral(2)")->isChecked());    // absent, shown on
    QVERIFY(control<QCheckBox>(d, "chkGeneral(4)")->isChecked());
    QVERIFY(!control<QCheckBox>(d, "chkGeneral(9)")->isChecked());
    QCOMPARE(control<QComboBox>(d, "cmbAnchor")->currentText(), QStringLiteral("ID"));
    QCOMPARE(control<QComboBox>(d, "cmbExtension")->currentText(), QStringLiteral("shtml"));
    QCOMPARE(control<QComboBox>(d, "cmbExtension")->count(), 5);
    QCOMPARE(control<QLineEdit>(d, "txtFile(1)")->text(), QStringLiteral("/home/web"));
    QCOMPARE(control<QLineEdit>(d, "txtGeneral(0)")->text(), QStringLiteral("10"));
    QVERIFY(!control<QGroupBox>(d, "fraColourHTML")->isEnabled());
    QVERIFY(!control<QLineEdit>(d, "txtScout")->isEnabled());
}

void tst_frmOptions::controlsFollowTheirRules()
{
    test::TestEnv env;
    app::frmOptions d;
    control<QCheckBox>(d, "chkColourHTML")->setChecked(true);
    QVERIFY(control<QGroupBox>(d, "fraColourHTML")->isEnabled());

    auto *scout = control<QLineEdit>(d, "txtScout");
    control<QCheckBox>(d, "chkSCOUT")->setChecked(true);
    QVERIFY(scout->isEnabled());
    QCOMPARE(scout->text(), QStringLiteral("5"));
    scout->setText(QStringLiteral("-99"));
    emit scout->editingFinished();
    QCOMPARE(scout->text(), QStringLiteral("60"));

    auto *force = control<QCheckBox>(d, "chkForceDefaultExt");
    emit control<QComboBox>(d, "cmbDefaultDocExt")->textActivated(QStringLiteral("html"));
    QVERIFY(!force->isHidden());
    QVERIFY(force->isChecked());
    emit control<QComboBox>(d, "cmbDefaultDocExt")->textActivated(QStringLiteral("htm"));
    QVERIFY(force->isHidden());
    QVERIFY(!force->isChecked());
}

void tst_frmOptions::okWritesAndCancelDoesNot()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    {
        app::frmOptions d;
        control<QCheckBox>(d, "chkGeneral(2)")->setChecked(false);
        d.reject();
    }
    QVERIFY(!QFile::exists(env.ini()));

    app::frmOptions d;
    control<QCheckBox>(d, "chkGeneral(2)")->setChecked(false);
    control<QCheckBox>(d, "chkShowIE")->setChecked(true);
    auto *minutes = control<QLineEdit>(d, "txtGeneral(0)");
    minutes->setText(QStringLiteral("15"));
    emit minutes->textEdited(minutes->text());
    control<QComboBox>(d, "cmbFont(2)")->setCurrentText(QStringLiteral("-3"));
    control<QPushButton>(d, "cmdOptions(0)")->click();
    QCOMPARE(d.result(), int(QDialog::Accepted));
    QCOMPARE(setting("General", "Create BAK Files"), QStringLiteral("No"));
    QCOMPARE(setting("General", "Open New Document"), QStringLiteral("Yes"));
    QCOMPARE(setting("Display", "IE Favorites"), QStringLiteral("Yes"));
    QCOMPARE(setting("General", "AutoSave"), QStringLiteral("15"));
    QCOMPARE(setting("General", "Big First Letter Size"), QStringLiteral("-3"));
    QVERIFY(prompts.shown.isEmpty());   // a bookmark source is on
}

void tst_frmOptions::defaultBrowserIsMarkedAndWritten()
{
    test::TestEnv env;
    env.write(QStringLiteral("quillery.ini"), "[Browsers]\r\n1=/usr/bin/a\r\n2=/usr/bin/b\r\n");
    app::frmOptions d;
    auto *list = control<QListWidget>(d, "lstBrowsers");
    auto *remove = control<QPushButton>(d, "cmdDelete");
    QCOMPARE(list->count(), 2);
    QVERIFY(!remove->isEnabled());
    list->setCurrentRow(1);
    QVERIFY(remove->isEnabled());
    control<QPushButton>(d, "Command1")->click();
    QCOMPARE(list->item(1)->text(), QStringLiteral("*/usr/bin/b"));
    QCOMPARE(setting("File Locations", "Browser"), QStringLiteral("/usr/bin/b"));
    QCOMPARE(control<QLineEdit>(d, "txtFile(0)")->text(), QStringLiteral("/usr/bin/b"));
    list->setCurrentRow(0);
    remove->click();
    QCOMPARE(list->count(), 1);
}

QTEST_MAIN(tst_frmOptions)
#include "tst_frmoptions.moc"
