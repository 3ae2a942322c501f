#pragma once

#include <QList>
#include <QString>
#include <array>

namespace qly::generators {

// One row of the form editor's element list. The kind number is the row's
// only type field; the caption and five further columns hold the rest:
//  1 check box, 2 radio button: name, default value, "Checked"/"Not Checked"
//  3 text field, 5 hidden field, 6 password: name, default value, max chars, size
//  4 text area: name, default value, columns, max chars, rows
//  7 list box: name, value, "Multiple"/"Single", the item lines
//  8 submit, 9 reset: caption only; 10 image submit: the URL as caption
//  11 file: name
struct FormElement {
    enum Kind { CheckBox = 1, Radio, TextField, TextArea, Hidden, Password, ListBox, Submit, Reset, Image, File };

    int kind = TextField;
    QString caption;
    std::array<QString, 5> sub;   // sub-items 1 to 5 at 0 to 4

    // The element's text, from the generator of its kind.
    QString text() const;
    // The "Misc" column of the list: the kind and the values besides caption and name.
    QString misc() const;
    static QString kindName(int kind);
};

// The form editor: where the form goes, and its elements in order.
class FormEditorModel
{
public:
    bool toMail = false;        // "Send form data to an e-mail address"
    QString url;                // cmbURL(0)
    QString mailAddress;        // cmbURL(1)
    bool methodGet = true;      // radMethod(0) "Get", else "Post"
    QString mimeType;           // shown for e-mail forms; not written
    QList<FormElement> elements;

    // The whole <FORM> block.
    QString generate() const;

    // Moves the element at `row` one place up or down; false at the ends.
    bool moveUp(int row);
    bool moveDown(int row);
    // Removes the rows given (in any order).
    void remove(QList<int> rows);
};

} // namespace qly::generators
