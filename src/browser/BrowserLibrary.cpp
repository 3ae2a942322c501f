// The browser library: Qt WebEngine behind one function, so that the
// program loads the engine with its first preview instead of at start-up.
#include "browser/BrowserHooks.h"

#include <QWebEnginePage>
#include <QWebEngineView>

namespace qly::browser {
namespace {

// Asks the editor before each page is opened.
class GuardedPage final : public QWebEnginePage
{
public:
    GuardedPage(std::function<bool(const QUrl &)> allow, QObject *parent);

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;

private:
    std::function<bool(const QUrl &)> m_allow;
};

GuardedPage::GuardedPage(std::function<bool(const QUrl &)> allow, QObject *parent)
    : QWebEnginePage(parent)
    , m_allow(std::move(allow))
{
}

bool GuardedPage::acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame)
{
    if (m_allow && !m_allow(url))
        return false;
    return QWebEnginePage::acceptNavigationRequest(url, type, isMainFrame);
}

} // namespace
} // namespace qly::browser

extern "C" Q_DECL_EXPORT QWidget *qlyCreateBrowser(QWidget *parent, const qly::browser::BrowserHooks &hooks)
{
    auto *view = new QWebEngineView(parent);
    if (hooks.allowNavigation)
        view->setPage(new qly::browser::GuardedPage(hooks.allowNavigation, view));
    if (hooks.urlChanged)
        QObject::connect(view, &QWebEngineView::urlChanged, view, hooks.urlChanged);
    if (hooks.loadFinished)
        QObject::connect(view, &QWebEngineView::loadFinished, view, hooks.loadFinished);
    if (hooks.linkHovered)
        QObject::connect(view->page(), &QWebEnginePage::linkHovered, view, hooks.linkHovered);
    return view;
}
