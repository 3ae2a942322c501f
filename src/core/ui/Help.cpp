#include "core/ui/Help.h"

#include "core/Paths.h"
#include "core/Settings.h"
#include "platform/Prompts.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QIcon>
#include <QProcess>
#include <QPushButton>
#include <QStyle>
#include <QUrl>

namespace qly::core::ui {

bool StartConfiguredBrowser(const QUrl &url)
{
    const QString browser = ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Browser"));
    if (!browser.isEmpty() && QFileInfo(browser).isExecutable()
        && QProcess::startDetached(browser, {url.toString()}))
        return true;
    const QString text = browser.isEmpty()
        ? QStringLiteral("There is no browser to show ") + url.toString()
              + QStringLiteral(". Please choose one in Tools, Options, External Browsers.")
        : QStringLiteral("The browser ") + browser + QStringLiteral(" could not be started to show ")
              + url.toString() + u'.';
    platform::MsgBox(text, platform::Buttons::Ok, platform::Icon::Exclamation);
    return false;
}

bool OpenInBrowser(const QUrl &url)
{
    if (QDesktopServices::openUrl(url))
        return true;
    return StartConfiguredBrowser(url);
}

QString helpPagePath()
{
    return JoinPath(ProgramDirectory(), QStringLiteral("help/index.html"));
}

QString helpTopicPath(const QString &topic)
{
    if (!topic.isEmpty() && !topic.contains(u'/') && !topic.contains(u'.')) {
        const QString page = JoinPath(ProgramDirectory(), QStringLiteral("help/") + topic + QStringLiteral(".html"));
        if (QFileInfo(page).isFile())
            return page;
    }
    return helpPagePath();
}

bool OpenHelp(const QString &topic)
{
    return OpenInBrowser(QUrl::fromLocalFile(helpTopicPath(topic)));
}

QPushButton *addHelpButton(QDialogButtonBox *box, QWidget *dialog, const QString &objectName)
{
    QPushButton *help = box->addButton(QStringLiteral("Help"), QDialogButtonBox::HelpRole);
    help->setObjectName(objectName);
    help->setIcon(QIcon::fromTheme(QStringLiteral("help-contents"),
                                   dialog->style()->standardIcon(QStyle::SP_DialogHelpButton)));
    QObject::connect(help, &QPushButton::clicked, dialog, [dialog] { OpenHelp(dialog->objectName()); });
    return help;
}

} // namespace qly::core::ui
