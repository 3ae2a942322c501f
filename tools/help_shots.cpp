// Pictures of the dialogs for the help pages: runs the real main window,
// opens each dialog through its command as a user would from the menu, and
// saves a picture of it as help/images/TOPIC.png.
//   xvfb-run build/tests/help_shots DATA_HELP_DIR [TOPIC...]
#include "app/MainWindow.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "core/ui/CommandTable.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "platform/HTMLEdit.h"
#include "support/MainWindowHost.h"
#include "support/TestEnv.h"
#include "websites/Websites.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QThread>
#include <QTimer>
#include <QWidget>

#include <cstdio>

using namespace qly;

namespace {

struct Shot {
    const char *topic;     // the dialog's object name and help page
    const char *command;   // the command that opens it
};

// The dialogs with a help page, and how a user opens each.
const Shot kShots[] = {
    {"frmOptions", "ToolsOptions"},      {"frmFind", "EditFind"},
    {"frmGrep", "EditMFReplace"},        {"frmConvert", "ToolsConvertToHTML"},
    {"frmCustomize", "ToolsCustomizeTB"}, {"frmNewDoc", "mnuNew"},
    {"frmTemplate", "mnuSaveTemplate"},  {"frmEntities", "ViewSpecialCharacters"},
    {"frmHostPanel", "HostPanelSetup"},  {"frmImage", "InsertImage"},
    {"frmLink", "InsertURL"},            {"frmFTPLink", "InsertFTP"},
    {"frmMail", "InsertEMail"},          {"frmNews", "InsertNews"},
    {"frmAnchor", "InsertAnchor"},       {"frmHR", "InsertHLine"},
    {"frmFont", "FormatFont"},           {"frmBaseFont", "FormatBaseFont"},
    {"frmList", "InsertList"},           {"frmBackSound", "IBackSound"},
    {"frmProperties", "ViewProperties"}, {"frmTable", "InsertTable"},
    {"frmTableTemp", "InsertTableTemp"}, {"frmImageMap", "InsertImageMap"},
    {"frmFormEditor", "InsertForm"},     {"frmTextEffects", "InsertTextEffects"},
    {"frmAXObjects", "InsertActiveX"},   {"frmProjectManager", "mnuProjectMan"},
    {"frmFilterKeys", "FilterTags"},     {"frmEditTags", "EditTags"},
    {"frmOpenProj", "mnuOpenProject"},   {"frmTabbuster", "ToolsOptimizeDL"},
    {"frmJSClock", "InsertJS0"},         {"frmJSRandomAd", "InsertJS1"},
    {"frmJSScrolling", "InsertJS3"},     {"frmPickList", "InsertJS5"},
    {"frmJSPopup", "InsertJS7"},         {"frmJavaHRule", "InsertJavaHR"},
    {"frmJavaLED", "InsertJavaLED"},     {"frmMarquee", "InsertMarquee"},
    {"frmNetCaster", "InsertNetCaster"}, {"frmACSubscribe", "InsertACSubscribe"},
    {"frmActiveChannel", "InsertChannelDef"}, {"frmACItem", "InsertChannelItem"},
    {"frmCSSSimple", "FormatEditStyles"}, {"frmCSSDocStyles", "FormatSetStyle"},
    {"frmCSSImport", "FormatSetURLStyle"}, {"frmNewFrames", "InsertFrame"},
    {"frmInputField", "InsertTextField"}, {"frmCheckBox", "InsertCheckBox"},
    {"frmTextArea", "InsertTextArea"},   {"frmListBox", "InsertFormList"},
    {"frmFormImage", "InsertFormImage"}, {"frmSubmit", "InsertSubmit"},
    {"frmReset", "InsertReset"},         {"frmAnimator", "InsertAnimation"},
    {"frmUpload", "ToolsUploadFiles"},   {"frmAutoDown", "ToolsDownload"},
    {"frmOpenRemote", "FileOpenRemote"},
};

// The dialog named `topic` once it shows: pictured, then closed.
void pictureWhenShown(const QString &topic, const QString &file, bool &taken, int triesLeft = 100)
{
    QTimer::singleShot(50, [=, &taken] {
        for (QWidget *w : QApplication::topLevelWidgets()) {
            QWidget *dialog = w->objectName() == topic ? w : w->findChild<QWidget *>(topic);
            if (!dialog || !dialog->isVisible())
                continue;
            QTimer::singleShot(400, [=, &taken] {
                taken = dialog->window()->grab().save(file);
                if (auto *d = qobject_cast<QDialog *>(dialog->window()))
                    d->reject();
                else
                    dialog->window()->close();
            });
            return;
        }
        if (triesLeft > 0)
            pictureWhenShown(topic, file, taken, triesLeft - 1);
    });
}

// A small website, open and selected, for the pictures of the upload window.
void openExampleWebsite(const test::TestEnv &env)
{
    env.write(QStringLiteral("site/logo.gif"), "GIF89a");
    const QByteArray index = env.write(QStringLiteral("site/index.htm"), "<img src=\"logo.gif\">\n").toUtf8();
    const QByteArray about = env.write(QStringLiteral("site/about.htm"), "<p>About</p>\n").toUtf8();
    websites::OpenWebsite(env.write(QStringLiteral("site/site.prj"),
                                    "[Details]\r\nName=My Site\r\nHost=ftp.example.com\r\nDirectory=www\r\n"
                                    "[Files]\r\n0=" + index + "\r\n1=" + about + "\r\n"));
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 2) {
        std::fputs("usage: help_shots DATA_HELP_DIR [TOPIC...]\n", stderr);
        return 2;
    }
    const QString images = QDir(args.at(1)).filePath(QStringLiteral("images"));
    QDir().mkpath(images);
    test::TestEnv env;
    core::setProgramDirectory(QStringLiteral(PROGRAM_DATA_DIR));
    auto window = test::showMainWindow({1000, 700});
    documents::Document *doc = documents::CreateDocumentWindow();
    core::gLoadingDocument = false;
    doc->txtDoc().setText(QStringLiteral("<HTML>\r\n<BODY>\r\n<P>A page.</P>\r\n</BODY>\r\n</HTML>\r\n"));
    openExampleWebsite(env);
    int failed = 0;
    for (const Shot &shot : kShots) {
        const QString topic = QString::fromLatin1(shot.topic);
        if (args.size() > 2 && !args.mid(2).contains(topic))
            continue;
        bool taken = false;
        const QString file = QDir(images).filePath(topic + QStringLiteral(".png"));
        pictureWhenShown(topic, file, taken);
        window->commands().run(QString::fromLatin1(shot.command));
        // A dialog that is not modal returns at once: wait for its picture.
        for (int i = 0; i < 100 && !taken; ++i) {
            QApplication::processEvents(QEventLoop::AllEvents, 50);
            QThread::msleep(20);
        }
        std::printf("%s %s\n", taken ? "saved" : "FAILED", qPrintable(file));
        failed += taken ? 0 : 1;
    }
    test::closeMainWindow(window);
    return failed == 0 ? 0 : 1;
}
