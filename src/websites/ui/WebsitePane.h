#pragma once

#include "core/ui/Divider.h"

class QTextBrowser;

namespace qly::core::ui {
class CommandTable;
}

namespace qly::websites::ui {

class WebsiteTree;

// The "Website" tab: the website tree above, the details of the selected
// entry below, and the divider between them ([Last Session] "WebSplit").
class WebsitePane : public core::ui::Divider
{
    Q_OBJECT
public:
    explicit WebsitePane(core::ui::CommandTable *commands = nullptr, QWidget *parent = nullptr);

    WebsiteTree *tree() const { return m_tree; }
    QTextBrowser *details() const { return m_details; }

private:
    WebsiteTree *m_tree = nullptr;
    QTextBrowser *m_details = nullptr;
};

} // namespace qly::websites::ui
