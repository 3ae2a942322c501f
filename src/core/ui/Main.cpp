#include "core/ui/Main.h"

#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/Shutdown.h"
#include "core/Startup.h"
#include "core/ui/MainWindow.h"
#include "core/ui/SingleInstance.h"
#include "core/ui/StatusPanels.h"
#include "core/ui/Splash.h"
#include "core/ui/TermSignal.h"
#include "documents/Document.h"
#include "documents/ui/FileLifecycle.h"
#include "platform/ui/QtPrompts.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>

#include <unistd.h>

namespace qly::core::ui {

StartupSteps &startupSteps()
{
    static StartupSteps steps;
    return steps;
}

namespace {

void step(const std::function<void(frmMain &)> &f, frmMain &w)
{
    if (f)
        f(w);
}

QString commandLineOf(int argc, char **argv)
{
    QStringList args;
    for (int i = 1; i < argc; ++i)
        args << QString::fromLocal8Bit(argv[i]);
    return args.join(u' ');
}

// What the main window does as it loads, before anything else is shown.
void loadMainWindow(frmMain &w)
{
    ShowStatus(QStringLiteral("Initializing Quillery ..."));
    w.InitMainWindow();
    w.show();
    gMainReady = true;
    step(startupSteps().autoSaveTick, w);
    w.DrawMainScreen();
    step(startupSteps().drawMainScreen, w);
    step(startupSteps().loadPlugIns, w);
}

} // namespace

int Main(int argc, char **argv)
{
    // The preview browser refuses to run as root inside its sandbox.
    if (::geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillery"));
    QApplication::setApplicationVersion(QStringLiteral("4.01"));

    platform::ui::QtPrompts prompts;
    platform::setPrompts(&prompts);

    // 1. The configuration file, before the main window reads anything.
    gMainReady = false;
    gIniFile = ChooseIniFile();

    // 2. The main window loads, with its settings from that file.
    frmMain window;
    prompts.setParent(&window);
    Workspace::setInstance(&window);
    documents::ui::InstallFileLifecycle(window);
    loadMainWindow(window);

    // 3. The splash stays until the tag tree is up.
    Splash splash;
    splash.show();
    DoEvents();

    // 4.
    BeginWait();
    gUntitledCount = 1;
    const QString startDir = QDir::currentPath();
    const QString commandLine = commandLineOf(argc, argv);

    // 5. - 7.
    step(startupSteps().restoreSplits, window);
    step(startupSteps().loadBrowserMenu, window);
    step(startupSteps().loadFilterMenu, window);
    gStylesDir = JoinPath(ProgramDirectory(), QStringLiteral("Styles"));
    QDir().mkpath(gStylesDir);

    // 8. - 10. From here on gIniFile may be another file.
    const QString rest = ProcessCommandLine(commandLine);
    if (!QFileInfo::exists(gIniFile)) {
        platform::MsgBox(QStringLiteral("Warning: Cannot find ") + gIniFile, platform::Buttons::Ok,
                         platform::Icon::Exclamation);
    }
    gTrapErrors = ReadSettingFlag(QStringLiteral("Debug"), QStringLiteral("Trap Errors"));

    // 11. A second copy ends here, silently.
    SingleInstance single;
    if (single.anotherCopyRunning()) {
        EndWait();
        return 0;
    }

    // 12. - 16.
    DoEvents();
    gStartupPassed = true;
    step(startupSteps().buildTagTree, window);
    BeginWait();
    ReadGlobalEditingFlags();
    window.statusPanels().showColoringMode(ReadSettingFlag(QStringLiteral("Editing"), QStringLiteral("Quick Color")));
    step(startupSteps().setupTagTree, window);
    splash.close();
    DoEvents();

    // 17. - 20.
    ShowStatus(QStringLiteral("Setting up Toolbars"));
    window.LoadToolbars();
    step(startupSteps().loadRecentFiles, window);
    ShowStatus(QStringLiteral("Loading Style Information"));
    step(startupSteps().loadStyleList, window);
    window.setWindowTitle(versionCaption());
    if (ReadSettingFlag(QStringLiteral("Display"), QStringLiteral("Chars List")))
        step(startupSteps().showEntities, window);
    if (ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Browser")).isEmpty())
        step(startupSteps().findBrowsers, window);

    // 21. Documents.
    shutdownHooks().unloadAllForms = [&window] { window.UnloadAllForms(); };
    documents::documentHooks().openWebsite = startupSteps().openWebsite;
    OpenStartupDocuments(rest, {startupSteps().newDocument, startupSteps().openWebsite});

    // 22. - 23.
    QDir::setCurrent(startDir);
    gMainReady = true;
    gStartupPassed = true;
    ShowStatus(QString());
    EndWait();
    if (ReadSettingFlag(QStringLiteral("Handy Hints"), QStringLiteral("Show Hints at Startup")))
        step(startupSteps().showHints, window);

    // SIGTERM, SIGHUP and the session's end close the window the ordinary way.
    TermSignal term([&window] { window.close(); });
    QObject::connect(&app, &QGuiApplication::commitDataRequest, &window, [&window](QSessionManager &) {
        window.close();
    });
    app.setQuitOnLastWindowClosed(false);
    const int code = app.exec();
    platform::setPrompts(nullptr);
    Workspace::setInstance(nullptr);
    return code;
}

} // namespace qly::core::ui
