#include "websites/ui/WebsiteCommands.h"

#include "core/ui/CommandTable.h"
#include "core/ui/Shell.h"
#include "documents/Document.h"
#include "websites/WebsiteList.h"
#include "websites/Websites.h"
#include "websites/ui/BookmarksView.h"
#include "websites/ui/Keyring.h"
#include "websites/ui/WebsitePane.h"
#include "websites/ui/frmOpenProj.h"
#include "websites/ui/frmProjectManager.h"

#include <QEvent>
#include <QMainWindow>

namespace qly::websites::ui {

namespace {

// The open websites are written back and closed before the main window's
// own close runs.
class CloseWatch : public QObject
{
public:
    using QObject::QObject;
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Close)
            CloseAllWebsites();
        return false;
    }
};

} // namespace

WebsiteViews registerWebsiteCommands(core::ui::Shell &shell)
{
    WebsiteList::instance();   // the file registry from now on
    InstallKeyring();
    QMainWindow *window = shell.mainWindow();
    core::ui::CommandTable &t = shell.commands();
    t.bind(QStringLiteral("mnuProjectMan"), [window] { ShowProjectManager(window); });
    t.bind(QStringLiteral("mnuOpenProject"), [] { OpenWebsite(QString()); });
    t.bind(QStringLiteral("FileAddFiles"), [] { FileAddFiles(); });
    documents::documentHooks().openWebsite = [](const QString &path) { return OpenWebsite(path); };
    websiteHooks().chooseWebsiteFile = [window] { return ChooseWebsiteFile(window); };
    if (window)
        window->installEventFilter(new CloseWatch(window));

    WebsiteViews views;
    views.website = new WebsitePane(&t);
    views.bookmarks = new BookmarksView;
    return views;
}

} // namespace qly::websites::ui
