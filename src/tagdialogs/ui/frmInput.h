#pragma once

#include "tagdialogs/InputModel.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace qly::tagdialogs::ui {

// frmInput, the general input box ("Input"): free text in txtInput (with a
// password character when the caller wants one) or a choice in cmbInput.
// OK and Cancel hide it without destroying it; the caller reads `model().Tag`.
class frmInput final : public QDialog
{
    Q_OBJECT
public:
    explicit frmInput(QWidget *parent = nullptr);

    void setPrompt(const QString &prompt);
    // Shows the text box (with `password` masking it) or, given a list, the list.
    void askText(const QString &initial, bool password = false);
    void askChoice(const QStringList &items, int current = 0);

    InputModel &model() { return m_model; }
    QLineEdit *txtInput() const { return m_txtInput; }
    QComboBox *cmbInput() const { return m_cmbInput; }

    void accept() override;
    void reject() override;

private:
    InputModel m_model;
    QLabel *m_prompt = nullptr;
    QLineEdit *m_txtInput = nullptr;
    QComboBox *m_cmbInput = nullptr;
    QPushButton *m_cmdOptions[3] = {};
};

// Makes frmInput the box in which the program asks for a text or a password
// (platform::ui::QtPrompts::inputBox).
void installInputBox();

} // namespace qly::tagdialogs::ui
