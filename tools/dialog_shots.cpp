// Pictures of the generator dialogs of forms, scripts, channels, text effects
// and object tags, for checking their layout at any scale, with a list of
// the labels and buttons that are smaller than their text needs.
//   bash scripts/dialog-shots.sh OUT_DIR [SCALE] [BUILD_DIR] [NAME...]
#include "core/Paths.h"
#include "generators/TextEffectsModel.h"
#include "generators/ui/frmAXObjects.h"
#include "generators/ui/frmAddURL.h"
#include "generators/ui/frmChannel.h"
#include "generators/ui/frmCheckBox.h"
#include "generators/ui/frmFormEditor.h"
#include "generators/ui/frmFormFile.h"
#include "generators/ui/frmFormImage.h"
#include "generators/ui/frmInputField.h"
#include "generators/ui/frmJSClock.h"
#include "generators/ui/frmJSPopup.h"
#include "generators/ui/frmJavaHRule.h"
#include "generators/ui/frmJavaLED.h"
#include "generators/ui/frmListBox.h"
#include "generators/ui/frmMarquee.h"
#include "generators/ui/frmPickList.h"
#include "generators/ui/frmSubmit.h"
#include "generators/ui/frmTEAppSize.h"
#include "generators/ui/frmTextArea.h"
#include "generators/ui/frmTextEffects.h"
#include "generators/ui/frmaxOptions.h"
#include "support/TestEnv.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QScreen>
#include <QAbstractScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <cstdio>
#include <functional>
#include <memory>

using namespace qly::generators;
using namespace qly::generators::ui;

namespace {

// True when `w` stands in a scrolling area, where part of it may be out of sight.
bool scrolls(const QWidget *w, const QWidget *dialog)
{
    for (const QWidget *p = w->parentWidget(); p && p != dialog; p = p->parentWidget()) {
        if (qobject_cast<const QAbstractScrollArea *>(p))
            return true;
    }
    return false;
}

// The widgets of `dialog` that show less than their text needs.
QStringList cutOff(QWidget *dialog)
{
    QStringList out;
    for (QWidget *w : dialog->findChildren<QWidget *>()) {
        if (!w->isVisible() || !(qobject_cast<QLabel *>(w) || qobject_cast<QAbstractButton *>(w))
            || qobject_cast<QTabBar *>(w->parentWidget()))
            continue;
        const QRect inDialog(w->mapTo(dialog, QPoint(0, 0)), w->size());
        if (!dialog->rect().contains(inDialog) && !scrolls(w, dialog))
            out << QStringLiteral("%1 \"%2\" beyond the dialog's edge").arg(w->objectName(), w->property("text").toString());
        const QSize need = w->minimumSizeHint().expandedTo(QSize(0, 0));
        if (w->width() < need.width() || w->height() < need.height())
            out << QStringLiteral("%1 \"%2\" %3x%4 < %5x%6")
                       .arg(w->objectName(), w->property("text").toString())
                       .arg(w->width()).arg(w->height()).arg(need.width()).arg(need.height());
    }
    const QSize screen = dialog->screen()->availableGeometry().size();
    if (dialog->width() > screen.width() || dialog->height() > screen.height())
        out << QStringLiteral("dialog %1x%2 beyond the screen %3x%4")
                   .arg(dialog->width()).arg(dialog->height()).arg(screen.width()).arg(screen.height());
    return out;
}

int shoot(const QString &file, QWidget *dialog)
{
    dialog->show();
    QTest::qWait(200);
    const bool saved = dialog->grab().save(file);
    const QStringList problems = cutOff(dialog);
    std::printf("%s %s %dx%d\n", saved ? "saved" : "FAILED", qPrintable(file), dialog->width(), dialog->height());
    for (const QString &p : problems)
        std::printf("  cut off: %s\n", qPrintable(p));
    dialog->close();
    return saved && problems.isEmpty() ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 2) {
        std::fputs("usage: dialog_shots OUT_DIR [NAME...]\n", stderr);
        return 2;
    }
    QDir().mkpath(args.at(1));
    qly::test::TestEnv env;
    qly::core::setProgramDirectory(QStringLiteral(PROGRAM_DATA_DIR));
    TextEffectsModel size;
    const std::pair<const char *, std::function<QWidget *()>> dialogs[] = {
        {"frmJSRandomAd", [] { return new frmJSRandomAd; }},
        {"frmAddImage", [] { return new frmAddURL(true); }},
        {"frmPickList", [] { return new frmPickList; }},
        {"frmAddURL", [] { return new frmAddURL(false); }},
        {"frmJSClock", [] { return new frmJSClock(false); }},
        {"frmJSScrolling", [] { return new frmJSClock(true); }},
        {"frmJSPopup", [] { return new frmJSPopup; }},
        {"frmNetCaster", [] { return new frmNetCaster; }},
        {"frmActiveChannel", [] { return new frmActiveChannel; }},
        {"frmACItem", [] { return new frmACItem(false); }},
        {"frmACSubscribe", [] { return new frmACItem(true); }},
        {"frmFormEditor", [] { return new frmFormEditor; }},
        {"frmCheckBox", [] { return new frmCheckBox(false); }},
        {"frmRadio", [] { return new frmCheckBox(true); }},
        {"frmListBox", [] { return new frmListBox; }},
        {"frmInputField", [] { return new frmInputField; }},
        {"frmTextArea", [] { return new frmTextArea; }},
        {"frmSubmit", [] { return new frmSubmit; }},
        {"frmFormFile", [] { return new frmFormFile; }},
        {"frmFormImage", [] { return new frmFormImage; }},
        {"frmTextEffects", [] { return new frmTextEffects; }},
        {"frmTEAppSize", [&size] { return new frmTEAppSize(size); }},
        {"frmJavaHRule", [] { return new frmJavaHRule; }},
        {"frmJavaLED", [] { return new frmJavaLED; }},
        {"frmMarquee", [] { return new frmMarquee; }},
        {"frmAXObjects", [] { return new frmAXObjects; }},
        {"frmaxOptions", [] {
             return new frmaxOptions({QStringLiteral("Shape.Circle"), QStringLiteral("{0D5B0E2C-1C13-11D0-8C3D-00A0C90FFFC0}"),
                                      QStringLiteral("Circle Shape Control")});
         }},
    };
    int failed = 0;
    for (const auto &[name, make] : dialogs) {
        const QString topic = QString::fromLatin1(name);
        if (args.size() > 2 && !args.mid(2).contains(topic))
            continue;
        std::unique_ptr<QWidget> dialog(make());
        failed += shoot(QDir(args.at(1)).filePath(topic + QStringLiteral(".png")), dialog.get());
        // Each page of a tabbed dialog.
        if (auto *tabs = dialog->findChild<QTabWidget *>()) {
            const int shown = tabs->currentIndex();
            for (int i = 0; i < tabs->count(); ++i) {
                if (i == shown)
                    continue;
                tabs->setCurrentIndex(i);
                failed += shoot(QDir(args.at(1)).filePath(topic + QString::number(i) + QStringLiteral(".png")),
                                dialog.get());
            }
        }
        // The dialogs with a preview, once more with the preview showing.
        auto *effects = qobject_cast<frmTextEffects *>(dialog.get());
        auto *objects = qobject_cast<frmAXObjects *>(dialog.get());
        if (effects || objects) {
            dialog->show();
            if (effects)
                effects->preview();
            if (objects) {
                objects->chooseControl(0);
                objects->preview();
            }
            QTest::qWait(3000);
            failed += shoot(QDir(args.at(1)).filePath(topic + QStringLiteral("-preview.png")), dialog.get());
        }
    }
    return failed == 0 ? 0 : 1;
}
