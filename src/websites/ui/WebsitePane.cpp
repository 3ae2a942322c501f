#include "websites/ui/WebsitePane.h"

#include "websites/ui/WebsiteTree.h"

#include <QTextBrowser>

namespace qly::websites::ui {

namespace {

QTextBrowser *makeDetails()
{
    auto *details = new QTextBrowser;
    details->setObjectName(QStringLiteral("WebsiteDetails"));
    details->setOpenLinks(false);
    details->setLineWrapMode(QTextEdit::WidgetWidth);
    return details;
}

} // namespace

WebsitePane::WebsitePane(core::ui::CommandTable *commands, QWidget *parent)
    : Divider(new WebsiteTree(commands), makeDetails(), parent)
{
    setObjectName(QStringLiteral("WebsiteMan"));
    m_tree = static_cast<WebsiteTree *>(widget(0));
    m_details = static_cast<QTextBrowser *>(widget(1));
    connect(m_tree, &WebsiteTree::described, m_details, &QTextBrowser::setPlainText);
    m_details->setPlainText(m_tree->describe(nullptr));
    // The tree takes most of the room until the user moves the divider.
    setSizes({300, 90});
}

} // namespace qly::websites::ui
