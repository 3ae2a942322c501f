#include "generators/ui/ObjectCommands.h"

#include "core/ui/CommandTable.h"
#include "generators/ui/frmAXObjects.h"
#include "markup/TagPrimitives.h"

namespace qly::generators::ui {

void registerObjectCommands(core::ui::CommandTable &t, QWidget *window)
{
    // InsertAXDef: the tag goes in at the selection.
    t.bind(QStringLiteral("InsertActiveX"), [window] {
        frmAXObjects dialog(window);
        if (dialog.ask())
            markup::InsertMarkup(dialog.tagText(), QString());
    });
}

} // namespace qly::generators::ui
