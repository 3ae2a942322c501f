#pragma once

#include <QString>

namespace qly::generators {

// The text of each form element, exactly as the form editor writes it. Every
// text argument is trimmed first; an empty one leaves its attribute out.
// Check, radio and input elements write `name = "..."` even for an empty name.
// The submit, reset, file and image texts end without a line end, so several
// of them in a row share a line.

QString FormCheckOrRadio(const QString &kind, const QString &caption, const QString &name,
                         const QString &value, bool checked);
QString FormCheckBox(const QString &caption, const QString &name, const QString &value, bool checked);
QString FormRadio(const QString &caption, const QString &name, const QString &value, bool checked);
// `items` holds one item a line; empty lines give no <OPTION>.
QString FormListBox(const QString &caption, const QString &name, const QString &value, const QString &items,
                    bool multiple);
// Kind "HIDDEN" if hidden, else "PASSWORD" if password, else "TEXT". `cols` is
// the field's maximum of characters, written as COLS.
QString FormInput(const QString &caption, const QString &name, const QString &value, const QString &cols,
                  const QString &size, bool password, bool hidden);
// A text area: no closing tag is written.
QString FormTextArea(const QString &caption, const QString &name, const QString &value, const QString &cols,
                     const QString &size, const QString &rows);
QString FormSubmit(const QString &caption);
QString FormReset(const QString &caption);
QString FormFile(const QString &caption, const QString &name);
QString FormImage(const QString &url);

} // namespace qly::generators
