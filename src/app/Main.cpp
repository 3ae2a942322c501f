#include "app/Main.h"

#include "app/MainWindow.h"
#include "app/SingleInstance.h"
#include "app/TermSignal.h"
#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/Startup.h"
#include "core/ui/Splash.h"
#include "core/ui/StatusPanels.h"
#include "documents/DocumentList.h"
#include "documents/StartupDocuments.h"
#include "platform/ui/QtPrompts.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

#include <unistd.h>

namespace qly::app {

using namespace core;
using core::ui::StartupStep;

namespace {

QtMessageHandler gQtMessages = nullptr;

// The preview draws in software: the browser engine otherwise makes an
// OpenGL context at start-up, which loads the desktop's GL driver (with a
// software GL, tens of megabytes of compiler) before any page is shown.
// QUILLERY_PREVIEW_GPU=1 gives the preview the GPU.
void drawPreviewInSoftware()
{
    if (qEnvironmentVariableIntValue("QUILLERY_PREVIEW_GPU") != 0)
        return;
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
    // The engine still asks for its context once, and reports what it got;
    // that it gets none is what was wanted, and not worth lines on the
    // terminal.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext.info=false"));
    gQtMessages = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &context, const QString &text) {
        if (type == QtWarningMsg && text.contains(QLatin1String("Cannot create platform OpenGL context")))
            return;
        gQtMessages(type, context, text);
    });
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
    w.startupSteps().run(StartupStep::MainWindowLoaded);
    w.DrawMainScreen();
    w.startupSteps().run(StartupStep::PlugIns);
}

// Files that other copies handed over: opened at once once start-up is
// over, kept until then.
class HandedFiles
{
public:
    explicit HandedFiles(frmMain &window) : m_window(window) {}
    void receive(const QString &file)
    {
        if (m_ready)
            open(file);
        else
            m_waiting << file;
    }
    void startupDone()
    {
        m_ready = true;
        for (const QString &file : std::exchange(m_waiting, {}))
            open(file);
    }

private:
    void open(const QString &file)
    {
        m_window.bringToFront();
        if (!file.isEmpty())
            documents::OpenDocumentFile(file);
        m_window.focusDocument();
    }

    frmMain &m_window;
    QStringList m_waiting;
    bool m_ready = false;
};

} // namespace

int Main(int argc, char **argv)
{
    // The preview browser refuses to run as root inside its sandbox.
    if (::geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    drawPreviewInSoftware();
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillery"));
    QApplication::setApplicationVersion(QStringLiteral("4.01"));
    // Every window is closed by the program's own exit, which ends the loop.
    app.setQuitOnLastWindowClosed(false);

    platform::ui::QtPrompts prompts;
    platform::setPrompts(&prompts);

    // 1. The configuration file, before the main window reads anything.
    gMainReady = false;
    gIniFile = ChooseIniFile();

    // 2. The main window loads, with its settings from that file.
    frmMain window;
    prompts.setParent(&window);
    documents::Workspace::setInstance(&window);
    window.setStartingUp(true);
    loadMainWindow(window);

    // 3. The splash stays until the tag tree is up.
    core::ui::Splash splash;
    splash.show();
    DoEvents();

    // 4.
    BeginWait();
    gUntitledCount = 1;
    const QString startDir = QDir::currentPath();
    const QString commandLine = commandLineOf(argc, argv);

    // 5. - 7.
    window.RestoreDividers();
    window.startupSteps().run(StartupStep::BrowserMenu);
    gStylesDir = JoinPath(ProgramDirectory(), QStringLiteral("Styles"));
    QDir().mkpath(gStylesDir);

    // 8. - 10. From here on gIniFile may be another file.
    const QString rest = ProcessCommandLine(commandLine);
    if (!QFileInfo::exists(gIniFile)) {
        platform::MsgBox(QStringLiteral("Warning: Cannot find ") + gIniFile, platform::Buttons::Ok,
                         platform::Icon::Exclamation);
    }
    gTrapErrors = ReadSettingFlag(QStringLiteral("Debug"), QStringLiteral("Trap Errors"));

    // 11. A second copy hands its file to the first and ends here.
    SingleInstance single;
    if (single.anotherCopyRunning(rest, startDir)) {
        EndWait();
        return 0;
    }
    HandedFiles handed(window);
    QObject::connect(&single, &SingleInstance::fileHandedOver, &window,
                     [&handed](const QString &file) { handed.receive(file); });

    // From here a close of the window is the ordinary close; it runs
    // between two steps, and ends the program without the rest of them.
    const auto closed = [&window] { return window.runPendingClose(); };

    // 12. - 16.
    DoEvents();
    gStartupPassed = true;
    if (closed())
        return 0;
    window.startupSteps().run(StartupStep::TagTree);
    BeginWait();
    ReadGlobalEditingFlags();
    window.statusPanels().showColoringMode(ReadSettingFlag(QStringLiteral("Editing"), QStringLiteral("Quick Color")));
    splash.close();
    DoEvents();
    if (closed())
        return 0;

    // 17. - 20.
    ShowStatus(QStringLiteral("Setting up Toolbars"));
    window.LoadToolbars();
    window.startupSteps().run(StartupStep::RecentFiles);
    window.startupSteps().run(StartupStep::StyleList);
    window.setWindowTitle(versionCaption());
    if (ReadSettingFlag(QStringLiteral("Display"), QStringLiteral("Chars List")))
        window.startupSteps().run(StartupStep::CharsList);
    if (ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Browser")).isEmpty())
        window.startupSteps().run(StartupStep::FindBrowsers);
    if (closed())
        return 0;

    // 21. Documents; a close may come while one loads.
    documents::OpenStartupDocuments(rest, {[&window] { window.startupSteps().run(StartupStep::NewDocument); },
                                           closed});
    if (closed())
        return 0;

    // 22. - 23.
    QDir::setCurrent(startDir);
    gMainReady = true;
    gStartupPassed = true;
    ShowStatus(QString());
    EndWait();
    window.setStartingUp(false);
    window.bringToFront();
    window.focusDocument();
    handed.startupDone();
    window.startupSteps().run(StartupStep::Automation);

    // SIGTERM, SIGHUP and the session's end close the window the ordinary way.
    TermSignal term([&window] { window.close(); });
    QObject::connect(&app, &QGuiApplication::commitDataRequest, &window, [&window](QSessionManager &) {
        window.close();
    });
    const int code = window.unloaded() ? 0 : app.exec();
    platform::setPrompts(nullptr);
    documents::Workspace::setInstance(nullptr);
    return code;
}

} // namespace qly::app
