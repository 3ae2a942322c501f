#include "documents/ui/ScoutPage.h"

#include "publish/Preview.h"

namespace qly::documents::ui {

bool ScoutPage::acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame)
{
    if (!publish::AllowPreviewNavigation(url.toString()))
        return false;
    return QWebEnginePage::acceptNavigationRequest(url, type, isMainFrame);
}

} // namespace qly::documents::ui
