#include "core/Settings.h"
#include "app/frmOptions.h"
#include "core/ui/DialogFlags.h"
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
#include <QTableWidget>

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
    void aliasesAreWrittenOnlyWhenEditedAndFirst();
    void publishCaptionsAndHelpButton();
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
    QVERIFY(!QFile::exists(env.path(QStringLiteral("aliases.inf"))));   // no alias edited: none made
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

void tst_frmOptions::aliasesAreWrittenOnlyWhenEditedAndFirst()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    // Windows-1252, a line that is no alias, "yes" in lower case, no line end at the end.
    const QByteArray file("caf\xe9\x02" "coffee \x80\x02yes\x02no\r\n; \xe9t\xe9\r\nx\x02y\x02");
    env.write(QStringLiteral("aliases.inf"), file);
    {
        app::frmOptions d;
        control<QCheckBox>(d, "chkGeneral(2)")->setChecked(false);
        control<QPushButton>(d, "cmdOptions(0)")->click();
        QCOMPARE(d.result(), int(QDialog::Accepted));
        QCOMPARE(env.read(QStringLiteral("aliases.inf")), file);
    }
    {
        // An edit rewrites the edited alias's line only.
        app::frmOptions d;
        auto *grid = control<QTableWidget>(d, "grdAliases");
        QCOMPARE(grid->rowCount(), 2);
        grid->item(1, 3)->setCheckState(Qt::Checked);
        control<QPushButton>(d, "cmdOptions(0)")->click();
        QCOMPARE(d.result(), int(QDialog::Accepted));
        QCOMPARE(env.read(QStringLiteral("aliases.inf")),
                 QByteArray("caf\xe9\x02" "coffee \x80\x02yes\x02no\r\n; \xe9t\xe9\r\nx\x02y\x02No\x02Yes"));
    }

    // The aliases cannot be written: the dialog stays, and no setting was written.
    test::TestEnv blocked;
    QVERIFY(QDir(blocked.dir()).mkdir(QStringLiteral("aliases.inf")));
    app::frmOptions d;
    control<QCheckBox>(d, "chkGeneral(2)")->setChecked(false);
    control<QPushButton>(d, "btnNew")->click();
    control<QTableWidget>(d, "grdAliases")->item(0, 0)->setText(QStringLiteral("w"));
    const qsizetype shown = prompts.shown.size();
    control<QPushButton>(d, "cmdOptions(0)")->click();
    QVERIFY(d.result() != int(QDialog::Accepted));
    QCOMPARE(prompts.shown.size(), shown + 1);
    QVERIFY(prompts.shown.last().text.startsWith(QStringLiteral("Could not save the aliases")));
    QVERIFY(!QFile::exists(blocked.ini()));
}

void tst_frmOptions::publishCaptionsAndHelpButton()
{
    test::TestEnv env;
    app::frmOptions d;
    QStringList captions;
    for (const char *name : {"chkPublish(0)", "chkPublish(1)", "chkPublish(2)", "chkPublish(3)"})
        captions << control<QCheckBox>(d, name)->text();
    QCOMPARE(captions, QStringList({QStringLiteral("Remove all carriage returns"),
                                    QStringLiteral("Publish as UNIX text file"),
                                    QStringLiteral("Convert extended characters to HTML codes"),
                                    QStringLiteral("Replace \\ with / in file names")}));
    QVERIFY(!control<QPushButton>(d, "cmdOptions(2)")->icon().isNull());
    // Only a title and a close box: window managers add no minimise or maximise box then.
    QVERIFY((d.windowFlags() & core::ui::kDialogFlags) == core::ui::kDialogFlags);
    QVERIFY(!(d.windowFlags() & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint)));
}

QTEST_MAIN(tst_frmOptions)
#include "tst_frmoptions.moc"
