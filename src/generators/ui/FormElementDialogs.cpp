#include "generators/ui/FormElementDialogs.h"

#include "generators/ui/frmCheckBox.h"
#include "generators/ui/frmFormFile.h"
#include "generators/ui/frmFormImage.h"
#include "generators/ui/frmInputField.h"
#include "generators/ui/frmListBox.h"
#include "generators/ui/frmSubmit.h"
#include "generators/ui/frmTextArea.h"

namespace qly::generators::ui {

namespace {

template <class Dialog>
bool run(Dialog &dialog, FormElement &element)
{
    dialog.setElement(element);
    if (!dialog.ask())
        return false;
    element = dialog.element();
    return true;
}

} // namespace

bool EditFormElement(QWidget *parent, FormElement &element)
{
    switch (element.kind) {
    case FormElement::CheckBox:
    case FormElement::Radio: {
        frmCheckBox d(element.kind == FormElement::Radio, parent);
        return run(d, element);
    }
    case FormElement::TextField:
    case FormElement::Hidden:
    case FormElement::Password: {
        frmInputField d(parent);
        return run(d, element);
    }
    case FormElement::TextArea: {
        frmTextArea d(parent);
        return run(d, element);
    }
    case FormElement::ListBox: {
        frmListBox d(parent);
        return run(d, element);
    }
    case FormElement::Submit:
    case FormElement::Reset: {
        frmSubmit d(element.kind, parent);
        return run(d, element);
    }
    case FormElement::Image: {
        frmFormImage d(parent);
        return run(d, element);
    }
    case FormElement::File: {
        frmFormFile d(parent);
        return run(d, element);
    }
    default:
        return false;
    }
}

bool NewFormElement(QWidget *parent, int kind, FormElement &element)
{
    element = FormElement();
    element.kind = kind;
    return EditFormElement(parent, element);
}

} // namespace qly::generators::ui
