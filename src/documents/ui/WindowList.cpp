#include "documents/ui/WindowList.h"

#include "documents/ui/DocumentWindow.h"

#include <QAction>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPointer>

#include <memory>

namespace qly::documents::ui {

namespace {

// Entries the list added, known by this property, so a refresh removes only them.
constexpr const char *kListEntry = "qlyWindowListEntry";

QString entryCaption(int number, const QMdiSubWindow *sub)
{
    const auto *doc = qobject_cast<const DocumentWindow *>(sub->widget());
    const QString name = doc ? doc->caption() : sub->windowTitle();
    // Numbers 1 to 9 get an access key; an "&" of the name shows as itself.
    const QString prefix = number < 10 ? QStringLiteral("&%1 ").arg(number) : QStringLiteral("%1 ").arg(number);
    return prefix + QString(name).replace(u'&', QLatin1String("&&"));
}

void refresh(QMenu *menu, QMdiArea *mdi)
{
    for (QAction *a : menu->actions()) {
        if (a->property(kListEntry).toBool()) {
            menu->removeAction(a);
            a->deleteLater();
        }
    }
    const QList<QMdiSubWindow *> subs = mdi->subWindowList(QMdiArea::CreationOrder);
    if (subs.isEmpty())
        return;
    QAction *separator = menu->addSeparator();
    separator->setProperty(kListEntry, true);
    int number = 0;
    for (QMdiSubWindow *sub : subs) {
        QAction *entry = menu->addAction(entryCaption(++number, sub));
        entry->setProperty(kListEntry, true);
        entry->setObjectName(QStringLiteral("mnuWindowList%1").arg(number));
        entry->setCheckable(true);
        entry->setChecked(sub == mdi->activeSubWindow());
        QPointer<QMdiSubWindow> target(sub);
        QObject::connect(entry, &QAction::triggered, mdi, [mdi, target] {
            if (target) {
                mdi->setActiveSubWindow(target);
                target->widget()->setFocus();
            }
        });
    }
}

} // namespace

void InstallWindowList(QMainWindow *window, QMdiArea *mdi)
{
    // The menu bar is built after the commands are registered, so the
    // Window menu is looked up when first needed.
    auto hooked = std::make_shared<QPointer<QMenu>>();
    auto update = [window, mdi, hooked] {
        if (!*hooked) {
            *hooked = window->findChild<QMenu *>(QStringLiteral("Window"));
            if (!*hooked)
                return;
            QMenu *menu = *hooked;
            QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, mdi] { refresh(menu, mdi); });
        }
        refresh(*hooked, mdi);
    };
    QObject::connect(mdi, &QMdiArea::subWindowActivated, window, update);
}

} // namespace qly::documents::ui
