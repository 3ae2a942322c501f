// The main window's command table, toolbars, status panels and resource
// manager, on the real window offscreen.
#include "core/Globals.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/StatusText.h"
#include "core/ui/CommandCatalogue.h"
#include "core/ui/CommandTable.h"
#include "app/MainWindow.h"
#include "app/ResourceManager.h"
#include "core/ui/StatusPanels.h"
#include "core/ui/Toolbars.h"
#include "core/ui/frmCustomize.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "platform/HTMLEdit.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>
#include <QToolBar>
#include <QToolButton>
#include <QtTest>

using namespace qly;
using app::frmMain;

class tst_Toolbars : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void everyLaidOutNameIsACommand();
    void everyToolShowsItsOwnPictureAndTip();
    void viewEntriesFollowAndStoreTheBands();
    void customisedLayoutSurvivesARestart();
    void customizeShowsCaptionsAndPictures();
    void colouringPanelsWriteAndRecolour();
    void resourceManagerFollowsItsKeys();
    void popupAndDateTimeReachTheDocument();

private:
    std::unique_ptr<test::TestEnv> m_env;
    std::unique_ptr<test::ScriptedPrompts> m_prompts;
    std::unique_ptr<frmMain> m_main;
    void newMain();
};

void tst_Toolbars::newMain()
{
    m_main = test::showMainWindow({1000, 700});
}

void tst_Toolbars::init()
{
    m_env = std::make_unique<test::TestEnv>();
    m_prompts = std::make_unique<test::ScriptedPrompts>();
    newMain();
}

void tst_Toolbars::cleanup()
{
    test::closeMainWindow(m_main);
    m_prompts.reset();
    m_env.reset();
}

void tst_Toolbars::everyLaidOutNameIsACommand()
{
    core::ui::CommandTable &t = m_main->commands();
    QCOMPARE(t.names().size(), qsizetype(core::ui::commandCatalogue().size()));
    for (const core::ui::MenuLayout &menu : core::ui::menuLayout()) {
        for (const QString &name : menu.commands) {
            if (!name.isEmpty() && !name.startsWith(u'>') && name != QLatin1String("<"))
                QVERIFY2(t.contains(name), qPrintable(name));
        }
    }
    for (const core::ui::BandLayout &band : core::ui::toolbarLayout()) {
        QVERIFY(m_main->toolbars().band(band.name));
        for (const QString &tool : band.tools) {
            if (!tool.isEmpty() && tool != QLatin1String("cmbApplyStyle"))
                QVERIFY2(t.contains(core::ui::toolCommand(tool)), qPrintable(tool));
        }
    }
    // A tool and its menu entry are one command; a command with no work shows disabled.
    QCOMPARE(core::ui::toolCommand(QStringLiteral("tlbSave")), QStringLiteral("mnuSave"));
    QVERIFY(m_main->toolbars().band(QStringLiteral("File"))->actions().contains(t.action(QStringLiteral("mnuSave"))));
    // The thesaurus is no part of the editor: its entry stays, disabled.
    QVERIFY(!t.action(QStringLiteral("ToolThes"))->isEnabled());
    QVERIFY(!t.run(QStringLiteral("ToolThes")));
}

namespace {

// How many pixels of a picture are clearly visible.
int visiblePixels(const QImage &image)
{
    int visible = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            visible += qAlpha(image.pixel(x, y)) > 128;
    }
    return visible;
}

} // namespace

void tst_Toolbars::everyToolShowsItsOwnPictureAndTip()
{
    // Our own pictures are what a machine without an icon theme shows; each
    // tool has one of its own, drawn at both sizes.
    QHash<QByteArray, QString> seen;
    for (const core::ui::BandLayout &band : core::ui::toolbarLayout()) {
        QToolBar *bar = m_main->toolbars().band(band.name);
        for (const QString &tool : band.tools) {
            if (tool.isEmpty() || tool == QLatin1String("cmbApplyStyle"))
                continue;
            QAction *action = m_main->commands().action(core::ui::toolCommand(tool));
            QVERIFY2(!action->icon().isNull(), qPrintable(tool));
            for (const QIcon &icon : {action->icon(), core::ui::ownToolIcon(tool)}) {
                for (int size : {16, 32}) {
                    const QImage image = icon.pixmap(QSize(size, size)).toImage();
                    QVERIFY2(!image.isNull(), qPrintable(tool));
                    QCOMPARE(image.size(), QSize(size, size));
                    QVERIFY2(visiblePixels(image) >= size * size / 10, qPrintable(tool));
                }
            }
            const QImage own = core::ui::ownToolIcon(tool).pixmap(QSize(32, 32)).toImage();
            const QByteArray bits(reinterpret_cast<const char *>(own.constBits()), own.sizeInBytes());
            QVERIFY2(!seen.contains(bits), qPrintable(tool + QLatin1String(" looks like ") + seen.value(bits)));
            seen.insert(bits, tool);

            auto *button = qobject_cast<QToolButton *>(bar->widgetForAction(action));
            QVERIFY2(button, qPrintable(tool));
            QVERIFY2(!button->toolTip().isEmpty(), qPrintable(tool));
            QCOMPARE(button->toolTip(), action->toolTip());
        }
    }
    QCOMPARE(m_main->commands().action(QStringLiteral("InsertTable"))->toolTip(), QStringLiteral("Table Editor"));
}

void tst_Toolbars::viewEntriesFollowAndStoreTheBands()
{
    core::ui::CommandTable &t = m_main->commands();
    QAction *insertView = t.action(QStringLiteral("ViewTB2"));
    QToolBar *insert = m_main->toolbars().band(QStringLiteral("Insert"));
    QVERIFY(insertView->isChecked());
    insertView->trigger();
    QVERIFY(!insert->isVisible());
    QCOMPARE(core::ReadSetting(QStringLiteral("Display"), QStringLiteral("Insert")), QStringLiteral("No"));
    insertView->trigger();
    QVERIFY(insert->isVisible());
    QCOMPARE(core::ReadSetting(QStringLiteral("Display"), QStringLiteral("Insert")), QStringLiteral("Yes"));
    // A band hidden another way unchecks its entry.
    m_main->toolbars().band(QStringLiteral("Style"))->hide();
    QVERIFY(!t.action(QStringLiteral("ViewTB4"))->isChecked());
}

void tst_Toolbars::customisedLayoutSurvivesARestart()
{
    const QString file = core::JoinPath(core::UserConfigDirectory(), QStringLiteral("Quillery.tb"));
    const QString shipped = core::JoinPath(core::ProgramDirectory(), QStringLiteral("Quillery.tb"));
    m_main->LoadToolbars();   // no file: the design layout
    QCOMPARE(m_main->toolbars().shownTools(QStringLiteral("Properties")),
             m_main->toolbars().allTools(QStringLiteral("Properties")));

    {
        core::ui::frmCustomize dialog(m_main->toolbars());
        auto *band = dialog.findChild<QComboBox *>(QStringLiteral("cmbBand"));
        auto *tools = dialog.findChild<QListWidget *>(QStringLiteral("lstTools"));
        band->setCurrentText(QStringLiteral("Properties"));
        tools->item(0)->setCheckState(Qt::Unchecked);   // tlbHead1 goes
        tools->setCurrentRow(2);                        // tlbHead3 moves up
        dialog.findChild<QPushButton *>(QStringLiteral("cmdUp"))->click();
        dialog.apply();
    }
    const QStringList shown = m_main->toolbars().shownTools(QStringLiteral("Properties"));
    QCOMPARE(shown.mid(0, 2), (QStringList{QStringLiteral("tlbHead3"), QStringLiteral("tlbHead2")}));
    QVERIFY(!shown.contains(QStringLiteral("tlbHead1")));
    m_main->toolbars().band(QStringLiteral("Text Property"))->hide();

    m_main->SaveMainWindowState();
    QVERIFY(QFile::exists(file));   // the user's own, not the program's
    QVERIFY(!QFile::exists(shipped));
    m_main.reset();
    newMain();
    m_main->LoadToolbars();
    QCOMPARE(m_main->toolbars().shownTools(QStringLiteral("Properties")), shown);
    QVERIFY(!m_main->toolbars().band(QStringLiteral("Text Property"))->isVisibleTo(m_main.get()));
    // Bands filled anew keep the style box.
    QComboBox *style = m_main->toolbars().styleCombo();
    QCOMPARE(m_main->findChild<QComboBox *>(QStringLiteral("cmbApplyStyle")), style);
    QCOMPARE(style->parentWidget(), m_main->toolbars().band(QStringLiteral("Style")));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(m_main->findChild<QComboBox *>(QStringLiteral("cmbApplyStyle")));
    QVERIFY(style->isVisibleTo(m_main->toolbars().band(QStringLiteral("Style"))));
    QVERIFY(!m_main->commands().action(QStringLiteral("ViewTB1"))->isChecked());

    // A user without a layout gets the program directory's copy.
    QVERIFY(QFile::rename(file, shipped));
    newMain();
    m_main->LoadToolbars();
    QCOMPARE(m_main->toolbars().shownTools(QStringLiteral("Properties")), shown);
    QVERIFY(QFile::copy(shipped, file));

    // A damaged file leaves the design layout.
    QFile::resize(file, 10);
    newMain();
    m_main->LoadToolbars();
    QCOMPARE(m_main->toolbars().shownTools(QStringLiteral("Properties")),
             m_main->toolbars().allTools(QStringLiteral("Properties")));

    // A layout that cannot be written is told in the status bar.
    QVERIFY(QFile::remove(file));
    QVERIFY(QDir(core::UserConfigDirectory()).removeRecursively());
    m_env->write(QStringLiteral("config/quillery"), "a file where the folder should be");
    QVERIFY(!m_main->SaveToolbars());
    QVERIFY2(core::StatusText::instance().text().startsWith(QStringLiteral("The toolbar layout could not be saved")),
             qPrintable(core::StatusText::instance().text()));
}

void tst_Toolbars::customizeShowsCaptionsAndPictures()
{
    core::ui::frmCustomize dialog(m_main->toolbars());
    auto *band = dialog.findChild<QComboBox *>(QStringLiteral("cmbBand"));
    auto *tools = dialog.findChild<QListWidget *>(QStringLiteral("lstTools"));
    band->setCurrentText(QStringLiteral("File"));
    QStringList captions;
    for (int i = 0; i < tools->count(); ++i) {
        captions << tools->item(i)->text();
        QVERIFY(!tools->item(i)->icon().isNull());
    }
    QCOMPARE(captions.mid(0, 2), (QStringList{QStringLiteral("New"), QStringLiteral("Open...")}));
    QVERIFY(captions.contains(QStringLiteral("Edit Browser List...")));
    // Hiding a tool by its caption still stores the tool's name.
    tools->item(0)->setCheckState(Qt::Unchecked);
    dialog.apply();
    QVERIFY(!m_main->toolbars().shownTools(QStringLiteral("File")).contains(QStringLiteral("tlbNew")));
    QVERIFY(m_main->toolbars().shownTools(QStringLiteral("File")).contains(QStringLiteral("tlbOpen")));

    // The preview tool carries the browser menu on its arrow.
    QToolBar *file = m_main->toolbars().band(QStringLiteral("File"));
    auto *preview = qobject_cast<QToolButton *>(
        file->widgetForAction(m_main->commands().action(core::ui::toolCommand(QStringLiteral("tlbPreview")))));
    QVERIFY(preview);
    QCOMPARE(preview->popupMode(), QToolButton::MenuButtonPopup);
    QVERIFY(preview->menu()->actions().contains(m_main->commands().action(QStringLiteral("Preview0"))));
    QVERIFY(preview->menu()->actions().contains(m_main->commands().action(QStringLiteral("PreviewAll"))));
    QVERIFY(preview->menu()->actions().contains(m_main->commands().action(QStringLiteral("EditBrowsers"))));
}

void tst_Toolbars::colouringPanelsWriteAndRecolour()
{
    core::ui::StatusPanels &panels = m_main->statusPanels();
    // No document: the settings are written all the same.
    QTest::mouseClick(panels.panel(QStringLiteral("SyntaxColor")), Qt::LeftButton);
    QCOMPARE(core::ReadSetting(QStringLiteral("Editing"), QStringLiteral("Quick Color")), QStringLiteral("1"));
    QCOMPARE(core::ReadSetting(QStringLiteral("Editing"), QStringLiteral("Color HTML")), QStringLiteral("Yes"));
    QVERIFY(!panels.panel(QStringLiteral("SyntaxColor"))->isEnabled());

    const QString file = m_env->write(QStringLiteral("c.html"), "<B>x</B>");
    QVERIFY(documents::OpenDocumentFile(file));
    platform::HTMLEdit &e = m_main->activeDocument()->txtDoc();
    QTest::mouseClick(panels.panel(QStringLiteral("TagColor")), Qt::LeftButton);
    QCOMPARE(e.ColorMode(), platform::ColorEntireTags);
    QCOMPARE(core::ReadSetting(QStringLiteral("Editing"), QStringLiteral("Quick Color")), QStringLiteral("0"));
    // The panel of the mode in force takes no click.
    QTest::mouseClick(panels.panel(QStringLiteral("TagColor")), Qt::LeftButton);
    QCOMPARE(core::ReadSetting(QStringLiteral("Editing"), QStringLiteral("Quick Color")), QStringLiteral("0"));
    QTest::mouseClick(panels.panel(QStringLiteral("SyntaxColor")), Qt::LeftButton);
    QCOMPARE(e.ColorMode(), platform::ColorTagSyntax);
    QCOMPARE(e.Text(), QStringLiteral("<B>x</B>"));
}

void tst_Toolbars::resourceManagerFollowsItsKeys()
{
    core::WriteSetting(QStringLiteral("Display"), QStringLiteral("Link Checker"), QStringLiteral("YES"));
    m_main->DrawMainScreen();
    QVERIFY(m_main->resourceManager().isVisibleTo(m_main.get()));
    QVERIFY(m_main->commands().action(QStringLiteral("ViewResMan"))->isChecked());
    m_main->commands().action(QStringLiteral("ViewResMan"))->trigger();
    QVERIFY(!m_main->resourceManager().isVisibleTo(m_main.get()));
    QCOMPARE(core::ReadSetting(QStringLiteral("Display"), QStringLiteral("Link Checker")), QStringLiteral("No"));

    // A layout saved with the panel hidden does not hide it when the key says "Yes".
    QVERIFY(m_main->SaveToolbars());
    core::WriteSetting(QStringLiteral("Display"), QStringLiteral("Link Checker"), QStringLiteral("Yes"));
    newMain();
    m_main->DrawMainScreen();
    m_main->LoadToolbars();
    QVERIFY(m_main->resourceManager().isVisibleTo(m_main.get()));
    QVERIFY(m_main->commands().action(QStringLiteral("ViewResMan"))->isChecked());
    QStringList tabs;
    for (int i = 0; i < m_main->resourceManager().tabs()->count(); ++i)
        tabs << m_main->resourceManager().tabs()->tabText(i);
    QCOMPARE(tabs, (QStringList{QStringLiteral("Files"), QStringLiteral("Website"), QStringLiteral("Tags"),
                                QStringLiteral("Bookmarks")}));

    core::WriteSetting(QStringLiteral("Extra File Types"), QStringLiteral("Scripts"), QStringLiteral("*.js;*.vbs"));
    m_main->resourceManager().InitializeFileList();
    QComboBox *types = m_main->resourceManager().fileTypes();
    QCOMPARE(types->itemText(1), QStringLiteral("Graphics (*.jpg;*.gif)"));
    QCOMPARE(types->itemText(types->count() - 1), QStringLiteral("Scripts (*.js;*.vbs)"));

    // At the close the panel's state is stored.
    m_main->StoreDisplayState();
    QVERIFY(core::ReadSetting(QStringLiteral("Display"), QStringLiteral("Link Checker Width")).toInt() > 0);
    QCOMPARE(core::ReadSetting(QStringLiteral("Display"), QStringLiteral("Chars List")), QStringLiteral("No"));
}

void tst_Toolbars::popupAndDateTimeReachTheDocument()
{
    QMenu *popup = m_main->popupMenu();
    QCOMPARE(popup->title(), QStringLiteral("Quillery"));
    QVERIFY(popup->findChild<QMenu *>(QStringLiteral("mnuPopupTags")));
    QVERIFY(popup->findChild<QMenu *>(QStringLiteral("mnuPopupText")));

    const QString file = m_env->write(QStringLiteral("d.html"), "");
    QVERIFY(documents::OpenDocumentFile(file));
    QTest::mouseClick(m_main->statusPanels().panel(QStringLiteral("DateTime")), Qt::LeftButton);
    const QString text = m_main->activeDocument()->txtDoc().Text();
    QVERIFY2(text.contains(QString::number(QDate::currentDate().year())), qPrintable(text));
}

QTEST_MAIN(tst_Toolbars)
#include "tst_toolbars.moc"
