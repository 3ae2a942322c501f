#include "markup/ui/MarkupCommands.h"

#include "core/ui/CommandTable.h"
#include "core/ui/Shell.h"
#include "core/ui/StartupSteps.h"
#include "markup/CharacterCommands.h"
#include "markup/FormatMenu.h"
#include "markup/LinkCommands.h"
#include "markup/TagPrimitives.h"
#include "markup/ui/MarkupActions.h"
#include "markup/ui/frmEntities.h"

#include <QAction>
#include <QMainWindow>

namespace qly::markup::ui {

namespace {

QString N(const char *name)
{
    return QString::fromLatin1(name);
}

void registerFormatCommands(core::ui::CommandTable &t)
{
    t.bind(N("FormatLeft"), [] { FormatLeft_Click(); });
    t.bind(N("FormatCenter"), [] { FormatCenter_Click(); });
    t.bind(N("FormatRight"), [] { FormatRight_Click(); });
    t.bind(N("FormatBigger"), [] { FormatBigger_Click(); });
    t.bind(N("FormatSmaller"), [] { FormatSmaller_Click(); });
    t.bind(N("FormatBold"), [] { FormatBold_Click(); });
    t.bind(N("FormatItalic"), [] { FormatItalic_Click(); });
    t.bind(N("FormatUnderline"), [] { FormatUnderline_Click(); });
    t.bind(N("FormatDropCaps"), [] { FormatDropCaps_Click(); });
    for (int level = 1; level <= 6; ++level)
        t.bind(QStringLiteral("tlbHead%1").arg(level), [level] { tlbHead_Click(level); });
    t.bind(N("tlbBreak"), [] { tlbBreak_Click(); });
    t.bind(N("tlbParagraph"), [] { tlbParagraph_Click(); });
    t.bind(N("tlbNBSP"), [] { tlbNBSP_Click(); });
    t.bind(N("tlbIndent"), [] { tlbIndent_Click(); });
    t.bind(N("tlbOutdent"), [] { tlbOutdent_Click(); });

    // Short date, long date, long date and time (the time panel's entry).
    const int dateKinds[3] = {1, 3, 4};
    for (int entry = 0; entry <= 2; ++entry) {
        const int kind = dateKinds[entry];
        t.bind(QStringLiteral("InsertDate%1").arg(entry), [kind] { InsertDate(kind); });
    }
}

void registerTextCommands(core::ui::Shell &shell)
{
    core::ui::CommandTable &t = shell.commands();
    QMainWindow *w = shell.mainWindow();
    t.bind(N("EditTranslate"), [] { EditTranslate_Click(); });
    t.bind(N("EditAbsToRel"), [] { EditAbsToRel_Click(); });
    t.bind(N("EditRelToAbs"), [] { EditRelToAbs_Click(); });
    t.bind(N("EditRemoveLinks"), [] { RemoveMarkupWithEscape(QStringLiteral("LINK")); });
    t.bind(N("EditRemoveHTML"), [] { RemoveMarkupWithEscape(QStringLiteral("ALL")); });
    t.bind(N("ToolsFindDup"), [w] { FindDuplicateLinks(w); });

    QAction *chars = t.action(N("ViewSpecialCharacters"));
    chars->setCheckable(true);
    t.bind(N("ViewSpecialCharacters"), [w, chars] { frmEntities::toggle(w, chars); });
    shell.startupSteps().add(core::ui::StartupStep::CharsList, [w, chars] { frmEntities::showList(w, chars); });
}

} // namespace

void registerMarkupCommands(core::ui::Shell &shell)
{
    registerFormatCommands(shell.commands());
    registerTextCommands(shell);
}

} // namespace qly::markup::ui
