#pragma once

#include <QString>

namespace qly::platform {
class HTMLEdit;
}

namespace qly::markup {

// A box that can receive generated text in place of a document: a dialog's
// text box or combo box. Only its text and its selected text are used.
class TextHolder
{
public:
    enum class Kind {
        TextBox,   // receives the start text of an insertion alone
        ComboBox,  // receives start and end text joined
    };

    virtual ~TextHolder() = default;

    virtual Kind kind() const = 0;
    virtual QString text() const = 0;
    virtual void setText(const QString &text) = 0;
    // The selected part of the text; empty when nothing is selected.
    virtual QString selectedText() const = 0;
};

// Where an insertion goes: a document's buffer, a text holder, or nothing
// given (for InsertMarkup, the current document's buffer).
class Target
{
public:
    Target() = default;
    Target(platform::HTMLEdit &edit) : m_edit(&edit) {}
    Target(TextHolder &holder) : m_holder(&holder) {}

    platform::HTMLEdit *edit() const { return m_edit; }
    TextHolder *holder() const { return m_holder; }
    bool absent() const { return !m_edit && !m_holder; }

private:
    platform::HTMLEdit *m_edit = nullptr;
    TextHolder *m_holder = nullptr;
};

} // namespace qly::markup
