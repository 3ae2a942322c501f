#include "generators/ui/EffectCommands.h"

#include "core/ui/CommandTable.h"
#include "documents/Document.h"
#include "documents/Workspace.h"
#include "generators/AppletClasses.h"
#include "generators/ui/frmJavaHRule.h"
#include "generators/ui/frmJavaLED.h"
#include "generators/ui/frmMarquee.h"
#include "generators/ui/frmTextEffects.h"
#include "markup/TagPrimitives.h"

#include <QFileInfo>

namespace qly::generators::ui {

namespace {

// Inserts an applet and copies its classes beside the document when it
// has a file.
void insertApplet(const QString &text)
{
    markup::InsertMarkup(text, QString());
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (doc && !doc->LocalFileName.isEmpty())
        CopyAppletClasses(text, QFileInfo(doc->LocalFileName).absolutePath());
}

} // namespace

void registerEffectCommands(core::ui::CommandTable &t, QWidget *window)
{
    t.bind(QStringLiteral("InsertTextEffects"), [window] {
        frmTextEffects dialog(window);
        if (dialog.ask())
            insertApplet(dialog.appletText());
    });
    t.bind(QStringLiteral("InsertJavaHR"), [window] {
        frmJavaHRule dialog(window);
        if (dialog.ask())
            insertApplet(dialog.text());
    });
    t.bind(QStringLiteral("InsertJavaLED"), [window] {
        frmJavaLED dialog(window);
        if (dialog.ask())
            insertApplet(dialog.text());
    });
    t.bind(QStringLiteral("InsertMarquee"), [window] {
        frmMarquee dialog(window);
        if (dialog.ask())
            markup::InsertMarkup(dialog.text(), QString());
    });
}

} // namespace qly::generators::ui
