#include "generators/ui/FormCommands.h"

#include "core/ui/CommandTable.h"
#include "documents/Workspace.h"
#include "generators/ui/FormElementDialogs.h"
#include "generators/ui/frmFormEditor.h"
#include "markup/TagPrimitives.h"

namespace qly::generators::ui {

namespace {

// One element through its dialog, inserted at the selection on OK.
void insertElement(QWidget *window, int kind)
{
    FormElement element;
    if (NewFormElement(window, kind, element))
        markup::InsertMarkup(element.text(), QString());
}

} // namespace

void registerFormCommands(core::ui::CommandTable &t, QWidget *window)
{
    t.bind(QStringLiteral("InsertForm"), [window] {
        frmFormEditor editor(window);
        editor.exec();
    });
    const struct { const char *command; int kind; } elements[] = {
        {"InsertTextField", FormElement::TextField}, {"InsertRadioButton", FormElement::Radio},
        {"InsertCheckBox", FormElement::CheckBox},   {"InsertHiddenField", FormElement::Hidden},
        {"InsertPassword", FormElement::Password},   {"InsertTextArea", FormElement::TextArea},
        {"InsertFormList", FormElement::ListBox},    {"InsertFormImage", FormElement::Image},
        {"InsertSubmit", FormElement::Submit},       {"InsertReset", FormElement::Reset}};
    for (const auto &e : elements) {
        const int kind = e.kind;
        t.bind(QString::fromLatin1(e.command), [window, kind] { insertElement(window, kind); });
    }
}

} // namespace qly::generators::ui
