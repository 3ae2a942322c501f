#include "platform/ui/Browser.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QVariant>
#include <QWidget>

#include <dlfcn.h>

namespace qly::platform::ui {

namespace {

// Where the library is, seen from the program's own folder: beside it in
// the build tree's layout of bin/ and lib/, and so in an installation.
QStringList libraryCandidates()
{
    const QString dir = QCoreApplication::applicationDirPath();
    const QString name = QString::fromLatin1(browser::kBrowserLibraryName);
    return {QDir::cleanPath(dir + QStringLiteral("/" QLY_BROWSER_DIR "/") + name), dir + u'/' + name};
}

browser::CreateBrowserFn resolveCreateBrowser(QString *error)
{
    static browser::CreateBrowserFn create = nullptr;
    static QString failure;
    if (!create && failure.isEmpty()) {
        // A program that links the library has it already.
        create = reinterpret_cast<browser::CreateBrowserFn>(dlsym(RTLD_DEFAULT, browser::kCreateBrowserSymbol));
        const QStringList candidates = libraryCandidates();
        for (const QString &path : candidates) {
            if (create || !QFileInfo::exists(path))
                continue;
            QLibrary library(path);
            if (library.load())
                create = reinterpret_cast<browser::CreateBrowserFn>(library.resolve(browser::kCreateBrowserSymbol));
            if (!create)
                failure = library.errorString();
        }
        if (!create && failure.isEmpty())
            failure = QStringLiteral("%1 is not in %2.")
                          .arg(QString::fromLatin1(browser::kBrowserLibraryName),
                               QFileInfo(candidates.first()).absolutePath());
    }
    if (!create && error)
        *error = failure;
    return create;
}

} // namespace

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
