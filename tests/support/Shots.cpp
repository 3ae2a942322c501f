#include "support/Shots.h"

#include <QCoreApplication>
#include <QDir>
#include <QPixmap>
#include <QWidget>

namespace qly::test {

void saveShot(QWidget *widget, const QString &name)
{
    const QString folder = qEnvironmentVariable("QLY_SHOT_DIR");
    if (folder.isEmpty() || !widget)
        return;
    QDir().mkpath(folder);
    QCoreApplication::processEvents();
    widget->window()->grab().save(QDir(folder).filePath(name + QStringLiteral(".png")));
}

} // namespace qly::test
