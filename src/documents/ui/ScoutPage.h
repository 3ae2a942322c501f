#pragma once

#include <QWebEnginePage>

namespace qly::documents::ui {

// The page of the preview tab's browser. Before it goes to a sound or a
// film ("wav", "mov") it asks the user first.
class ScoutPage final : public QWebEnginePage
{
    Q_OBJECT
public:
    using QWebEnginePage::QWebEnginePage;

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
};

} // namespace qly::documents::ui
