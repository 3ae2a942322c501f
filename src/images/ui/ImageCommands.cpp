#include "images/ui/ImageCommands.h"

#include "core/ui/CommandTable.h"
#include "core/ui/Shell.h"
#include "images/AnimatorModel.h"
#include "images/PictureSize.h"
#include "images/ui/ImageCodec.h"
#include "images/ui/frmAnimator.h"
#include "images/ui/frmTabbuster.h"

#include <QImageReader>
#include <QMainWindow>

namespace qly::images::ui {

void installImageHooks()
{
    pictureSizeHook() = [](const QString &file) {
        QImageReader reader(file);
        reader.setDecideFormatFromContent(true);
        return reader.size();
    };
    AnimatorModel::convertFrame() = [](const QString &file, const QString &gif) {
        return SaveGif(LoadImage(file), gif);
    };
}

void registerImageCommands(core::ui::Shell &shell)
{
    installImageHooks();
    QMainWindow *w = shell.mainWindow();
    shell.commands().bind(QStringLiteral("InsertAnimation"), [w] { frmAnimator::showFor(w); });
    shell.commands().bind(QStringLiteral("ToolsOptimizeDL"), [w] { frmTabbuster::showFor(w); });
}

} // namespace qly::images::ui
