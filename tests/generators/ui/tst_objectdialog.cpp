#include "core/Settings.h"
#include "generators/ui/frmAXObjects.h"
#include "generators/ui/frmaxOptions.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QCheckBox>
#include <QFile>
#include <QGroupBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

using namespace qly;
using namespace qly::generators::ui;

// The object dialog over the shipped file of known objects, and its options.
class tst_ObjectDialog : public QObject
{
    Q_OBJECT
private slots:
    void listFiltersAndTagOfChangedProperties();
    void optionsShowASampleAndAreStored();
};

namespace {

void installKnownObjects(const test::TestEnv &env)
{
    QFile shipped(QStringLiteral(TEST_DATA_DIR "/../../data/axobjects.inf"));
    QVERIFY(shipped.open(QIODevice::ReadOnly));
    env.write(QStringLiteral("axobjects.inf"), shipped.readAll());
}

QStringList rows(QListWidget *list)
{
    QStringList out;
    for (int i = 0; i < list->count(); ++i)
        out << list->item(i)->text();
    return out;
}

} // namespace

void tst_ObjectDialog::listFiltersAndTagOfChangedProperties()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    installKnownObjects(env);
    frmAXObjects dialog;
    auto *list = dialog.findChild<QListWidget *>(QStringLiteral("lstControls"));
    // Controls only, without the names that end in " object"; a class without ProgID never shows.
    const QStringList controls = rows(list);
    QVERIFY(controls.contains(QStringLiteral("Shockwave Flash")));
    QVERIFY(!controls.contains(QStringLiteral("Label Object")));
    QVERIFY(!controls.contains(QStringLiteral("Microsoft Excel Application")));
    dialog.findChild<QCheckBox *>(QStringLiteral("chkShowax"))->setChecked(false);
    const QStringList everything = rows(list);
    QVERIFY(everything.contains(QStringLiteral("Label Object")));
    QVERIFY(everything.contains(QStringLiteral("Microsoft Excel Application")));
    QVERIFY(!everything.contains(QStringLiteral("Internet Explorer (no ProgID)")));

    // A control whose server is unknown is told by name.
    dialog.chooseControl(int(everything.indexOf(QStringLiteral("Microsoft Office Spreadsheet 9.0"))));
    QCOMPARE(prompts.texts(), QStringList{QStringLiteral("Cannot find ActiveX: Microsoft Office Spreadsheet 9.0")});
    QVERIFY(dialog.tagText().isEmpty());

    dialog.chooseControl(int(everything.indexOf(QStringLiteral("Shockwave Flash"))));
    QCOMPARE(dialog.findChild<QGroupBox *>(QStringLiteral("fraInfo"))->title(),
             QStringLiteral("ActiveX Parameters [Shockwave Flash]"));
    dialog.setValue(0, QStringLiteral("intro.swf"));
    dialog.setValue(3, QStringLiteral("high"));
    QCOMPARE(dialog.tagText(), QStringLiteral("<object id=\"ShockwaveFlash\" CLASSID=\"ClsID:D27CDB6E-AE6D-11CF-96B8-"
                                              "444553540000\" width=100 height=100 >\r\n"
                                              "<param name=Movie value=intro.swf>\r\n"
                                              "<param name=Quality value=high>\r\n</object>"));
}

void tst_ObjectDialog::optionsShowASampleAndAreStored()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    {
        frmaxOptions empty({});
        QCOMPARE(empty.findChild<QPlainTextEdit *>(QStringLiteral("txtPreview"))->toPlainText(),
                 QStringLiteral("No controls registered."));
    }
    frmaxOptions dialog({QStringLiteral("MSCAL.Calendar.7"), QStringLiteral("{8E27C92B-1264-101C-8A2F-040224009C02}"),
                         QStringLiteral("Calendar Control 8.0"), QStringLiteral("MSCAL.OCX")});
    auto *sample = dialog.findChild<QPlainTextEdit *>(QStringLiteral("txtPreview"));
    dialog.findChild<QRadioButton *>(QStringLiteral("optTag0"))->setChecked(true);
    dialog.findChild<QRadioButton *>(QStringLiteral("optCase2"))->setChecked(true);
    dialog.findChild<QRadioButton *>(QStringLiteral("optID1"))->setChecked(true);
    QCOMPARE(sample->toPlainText(),
             QStringLiteral("<insert id=\"CalendarControl8.0\" classid=\"ProgID:MSCAL.Calendar.7\" width=100 height=100 "
                            ">\n</insert>"));
    QTimer::singleShot(0, &dialog, [&dialog] { dialog.findChild<QPushButton *>(QStringLiteral("cmdOK"))->click(); });
    QVERIFY(dialog.ask());
    QCOMPARE(core::ReadSetting(QStringLiteral("Options"), QStringLiteral("Obj")), QStringLiteral("INSERT"));
    QCOMPARE(core::ReadSetting(QStringLiteral("Options"), QStringLiteral("TagCase")), QStringLiteral("lower"));
    QCOMPARE(core::ReadSetting(QStringLiteral("Options"), QStringLiteral("TagClassID")), QStringLiteral("ProgID"));
    QCOMPARE(core::ReadSetting(QStringLiteral("Options"), QStringLiteral("InclCode")), QStringLiteral("No"));
}

QTEST_MAIN(tst_ObjectDialog)
#include "tst_objectdialog.moc"
