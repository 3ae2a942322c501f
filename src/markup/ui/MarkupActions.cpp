#include "markup/ui/MarkupActions.h"

#include "core/ui/EscapeWatch.h"
#include "markup/LinkCommands.h"
#include "markup/ui/frmDuplicate.h"

namespace qly::markup::ui {

void RemoveMarkupWithEscape(const QString &mode)
{
    core::ui::EscapeWatch escape;
    RemoveMarkup(mode, [&escape] { return escape.pressed(); });
}

void FindDuplicateLinks(QWidget *parent)
{
    ToolsFindDup_Click([parent](const QString &tag) { return frmDuplicate::ask(tag, parent); });
}

} // namespace qly::markup::ui
