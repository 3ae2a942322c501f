#include "platform/ui/Browser.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QVariant>
#include <QWidget>

namespace qly::platform::ui {

namespace {

// The library's place, seen from the program's folder: the same in the
// build tree's layout of bin/ and lib/ as in an installation.
QString libraryPath()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/" QLY_BROWSER_DIR "/")
                           + QString::fromLatin1(browser::kBrowserLibraryName));
}

browser::CreateBrowserFn resolveCreateBrowser(QString *error)
{
    static browser::CreateBrowserFn create = nullptr;
    static QString failure;
    if (!create && failure.isEmpty()) {
        const QString path = libraryPath();
        if (!QFileInfo::exists(path)) {
            failure = QStringLiteral("%1 is not in %2.")
                          .arg(QString::fromLatin1(browser::kBrowserLibraryName), QFileInfo(path).absolutePath());
        } else {
            QLibrary library(path);
            if (library.load())
                create = reinterpret_cast<browser::CreateBrowserFn>(library.resolve(browser::kCreateBrowserSymbol));
            if (!create)
                failure = library.errorString();
        }
    }
    if (!create && error)
        *error = failure;
    return create;
}

} // namespace

QString browserUnavailable(const QString &error)
{
    return QStringLiteral("The preview is not available: ") + error;
}

QWidget *createBrowser(QWidget *parent, const browser::BrowserHooks &hooks, QString *error)
{
    const browser::CreateBrowserFn create = resolveCreateBrowser(error);
    return create ? create(parent, hooks) : nullptr;
}

void browserOpen(QWidget *view, const QUrl &url)
{
    view->setProperty("url", url);
}

QUrl browserUrl(const QWidget *view)
{
    return view->property("url").toUrl();
}

void browserBack(QWidget *view)
{
    QMetaObject::invokeMethod(view, "back");
}

void browserForward(QWidget *view)
{
    QMetaObject::invokeMethod(view, "forward");
}

void browserStop(QWidget *view)
{
    QMetaObject::invokeMethod(view, "stop");
}

void browserReload(QWidget *view)
{
    QMetaObject::invokeMethod(view, "reload");
}

} // namespace qly::platform::ui
