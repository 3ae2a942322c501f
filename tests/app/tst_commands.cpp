// Commands of the main window that need no document: the website messages,
// the plug-in slots, help and web pages, the hosting panel's setup.
#include "app/MainWindow.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/ui/CommandCatalogue.h"
#include "core/ui/CommandTable.h"
#include "core/ui/Help.h"
#include "publish/ui/frmHostPanel.h"
#include "core/ui/DialogFlags.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QAction>
#include <QDesktopServices>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

using namespace qly;

// Records the addresses the desktop is asked to open.
class UrlRecorder : public QObject
{
    Q_OBJECT
public:
    QList<QUrl> urls;
public slots:
    void open(const QUrl &url) { urls << url; }
};

class tst_Commands : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void websiteCommandsAskForAWebsite();
    void pluginSlotsAreDeclaredDisabled();
    void helpAndWebPagesOpenInTheBrowser();
    void hostPanelSetupWritesItsSettings();

private:
    std::unique_ptr<test::TestEnv> m_env;
    std::unique_ptr<test::ScriptedPrompts> m_prompts;
    std::unique_ptr<app::frmMain> m_main;
    UrlRecorder m_recorder;
};

void tst_Commands::init()
{
    m_env = std::make_unique<test::TestEnv>();
    m_prompts = std::make_unique<test::ScriptedPrompts>();
    m_main = std::make_unique<app::frmMain>();
    for (const char *scheme : {"file", "http", "https"})
        QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), &m_recorder, "open");
    m_recorder.urls.clear();
}

void tst_Commands::cleanup()
{
    for (const char *scheme : {"file", "http", "https"})
        QDesktopServices::unsetUrlHandler(QString::fromLatin1(scheme));
    m_main.reset();
    m_prompts.reset();
    m_env.reset();
}

void tst_Commands::websiteCommandsAskForAWebsite()
{
    QVERIFY(m_main->commands().run(QStringLiteral("FileAddFiles")));
    QVERIFY(m_main->commands().run(QStringLiteral("mnuUploadProject")));
    QCOMPARE(m_prompts->texts(), QStringList({QStringLiteral("Please select a Website before adding files to it."),
                                              QStringLiteral("Please select a Website before uploading it.")}));
    QCOMPARE(m_prompts->shown[0].title, platform::programTitle());
}

void tst_Commands::pluginSlotsAreDeclaredDisabled()
{
    auto *menu = m_main->findChild<QMenu *>(QStringLiteral("plugin"));
    QVERIFY(menu);
    QStringList captions;
    for (QAction *a : menu->actions()) {
        captions << a->text();
        QVERIFY(!a->isEnabled());
    }
    QCOMPARE(captions.size(), 10);
    QCOMPARE(captions.first(), QStringLiteral("Not Installed"));
    QCOMPARE(captions[1], QStringLiteral("Plug-in 2"));
    QCOMPARE(captions.last(), QStringLiteral("Plug-in 10"));
    QCOMPARE(m_main->commands().action(QStringLiteral("plug9"))->text(), QStringLiteral("Plug-in 10"));
}

void tst_Commands::helpAndWebPagesOpenInTheBrowser()
{
    core::ui::CommandTable &t = m_main->commands();
    QVERIFY(t.run(QStringLiteral("HelpContents")));
    QVERIFY(t.run(QStringLiteral("HelpSearch")));
    QVERIFY(t.run(core::ui::toolCommand(QStringLiteral("tlbDomain"))));
    for (const char *name : {"HelpHTML", "HelpInternet", "HelpLumenfold", "HelpSupport", "HelpLumenserve"})
        QVERIFY2(t.run(QString::fromLatin1(name)), name);
    QCOMPARE(m_recorder.urls.size(), 8);
    const QUrl help = QUrl::fromLocalFile(core::JoinPath(core::ProgramDirectory(), QStringLiteral("help/index.html")));
    QCOMPARE(m_recorder.urls[0], help);
    QCOMPARE(m_recorder.urls[1], help);
    for (int i = 2; i < 8; ++i)
        QVERIFY(m_recorder.urls[i].toString().startsWith(QStringLiteral("https://quillery.example.org/")));
    QCOMPARE(m_recorder.urls[2].path(), QStringLiteral("/tools/domain-lookup/"));
    QVERIFY(m_prompts->shown.isEmpty());

    // Without the desktop's handler: the configured browser, or a message when there is none.
    QVERIFY(!core::ui::StartConfiguredBrowser(help));
    QCOMPARE(m_prompts->shown.size(), 1);
    QVERIFY(m_prompts->shown[0].text.startsWith(QStringLiteral("There is no browser to show ")));
    core::WriteSetting(QStringLiteral("File Locations"), QStringLiteral("Browser"), QStringLiteral("/bin/true"));
    QVERIFY(core::ui::StartConfiguredBrowser(help));
    QCOMPARE(m_prompts->shown.size(), 1);
}

void tst_Commands::hostPanelSetupWritesItsSettings()
{
    core::WriteSetting(QStringLiteral("Lumenserve"), QStringLiteral("URL"), QStringLiteral("http://host.example"));
    // The command shows the dialog over the main window with the stored address.
    QString shown;
    bool plainFrame = false;
    bool helpIcon = false;
    QTimer::singleShot(0, this, [&] {
        auto *dialog = qobject_cast<publish::ui::frmHostPanel *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        shown = dialog->findChild<QLineEdit *>(QStringLiteral("txtURL"))->text();
        // Only a title and a close box: window managers add no minimise or maximise box then.
        const Qt::WindowFlags flags = dialog->windowFlags();
        plainFrame = (flags & core::ui::kDialogFlags) == core::ui::kDialogFlags
                     && !(flags & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint));
        helpIcon = !dialog->findChild<QPushButton *>(QStringLiteral("cmdHelp"))->icon().isNull();
        dialog->reject();
    });
    QVERIFY(m_main->commands().run(QStringLiteral("HostPanelSetup")));
    QVERIFY(plainFrame);
    QVERIFY(helpIcon);
    QCOMPARE(shown, QStringLiteral("http://host.example"));

    publish::ui::frmHostPanel dialog;
    dialog.findChild<QLineEdit *>(QStringLiteral("txtURL"))->setText(QStringLiteral(" https://panel.example/cp "));
    dialog.findChild<QLineEdit *>(QStringLiteral("txtUserName"))->setText(QStringLiteral("ann"));
    dialog.findChild<QLineEdit *>(QStringLiteral("txtPassword"))->setText(QStringLiteral("s3cret"));
    QCOMPARE(dialog.findChild<QLineEdit *>(QStringLiteral("txtPassword"))->echoMode(), QLineEdit::Password);
    dialog.findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
    QCOMPARE(core::ReadSetting(QStringLiteral("Lumenserve"), QStringLiteral("URL")), QStringLiteral("https://panel.example/cp"));
    QCOMPARE(core::ReadSetting(QStringLiteral("Lumenserve"), QStringLiteral("UserName")), QStringLiteral("ann"));
    QCOMPARE(core::ReadSetting(QStringLiteral("Lumenserve"), QStringLiteral("Password")), QStringLiteral("s3cret"));
}

QTEST_MAIN(tst_Commands)
#include "tst_commands.moc"
