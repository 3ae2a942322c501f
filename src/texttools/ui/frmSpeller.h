#pragma once

#include "texttools/SpellCheck.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace qly::texttools::ui {

// The spelling dialog: one unknown word at a time, in its line, with the
// dictionary's suggestions; Ignore, Ignore All, Change, Change All, Add and
// Cancel answer for it. The main dictionary can be switched on the way.
class frmSpeller final : public QDialog
{
    Q_OBJECT
public:
    explicit frmSpeller(QWidget *parent = nullptr);

    // Shows the session's current word and waits for the answer; Change and
    // Change All give the new text in `replacement`.
    SpellAction ask(SpellSession &session, QString &replacement);

    // Runs Tools > Spell Check on the current document with this dialog.
    static void run(QWidget *parent);

private:
    void answer(SpellAction action);
    void fillSuggestions();
    void switchDictionary(int index);

    SpellSession *m_session = nullptr;
    SpellAction m_action = SpellAction::Cancel;
    QLabel *m_lblContext = nullptr;
    QLineEdit *m_txtWord = nullptr;
    QLineEdit *m_txtChange = nullptr;
    QListWidget *m_lstSuggest = nullptr;
    QComboBox *m_cmbDictionary = nullptr;
};

} // namespace qly::texttools::ui
