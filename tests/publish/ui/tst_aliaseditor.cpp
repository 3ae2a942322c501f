#include "publish/Aliases.h"
#include "publish/ui/AliasEditor.h"
#include "support/TestEnv.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

using namespace qly;

class tst_AliasEditor : public QObject
{
    Q_OBJECT
private slots:
    void editsAndWritesTheFileFormat();
};

void tst_AliasEditor::editsAndWritesTheFileFormat()
{
    test::TestEnv env;
    env.write(QStringLiteral("aliases.inf"), "sig\x02line1NL_line2\x02yes\x02no\r\n# a note\r\nold\x02gone\x02\r\n");
    publish::ui::AliasEditor editor;
    editor.load();
    QTableWidget *grid = editor.grid();
    QCOMPARE(grid->rowCount(), 2);
    QCOMPARE(grid->item(0, 1)->text(), QStringLiteral("line1NL_line2"));
    QCOMPARE(editor.aliasText()->toPlainText(), QStringLiteral("line1\nline2"));

    // The second alias goes, a new one comes with a two-line replacement.
    grid->setCurrentCell(1, 0);
    editor.deleteButton()->click();
    editor.newButton()->click();
    QCOMPARE(grid->rowCount(), 2);
    grid->item(1, 0)->setText(QStringLiteral("w"));
    editor.aliasText()->setPlainText(QStringLiteral("a\nb"));
    QCOMPARE(grid->item(1, 1)->text(), QStringLiteral("aNL_b"));
    grid->item(1, 3)->setCheckState(Qt::Checked);
    editor.newButton()->click();   // left without a term: not written
    QVERIFY(editor.save());

    QCOMPARE(env.read(QStringLiteral("aliases.inf")),
             QByteArray("sig\x02line1NL_line2\x02yes\x02no\r\n# a note\r\nw\x02" "aNL_b\x02No\x02Yes\r\n"));
    QVERIFY(publish::LoadAliases());
    QCOMPARE(publish::Aliases().size(), size_t(2));
    QCOMPARE(publish::Aliases()[1].replacement, QStringLiteral("a\r\nb"));
    QVERIFY(publish::Aliases()[1].wholeWordOnly());
}

QTEST_MAIN(tst_AliasEditor)
#include "tst_aliaseditor.moc"
