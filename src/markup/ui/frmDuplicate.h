#pragma once

#include "markup/DuplicateLinks.h"

#include <QDialog>

class QLineEdit;

namespace qly::markup::ui {

// Shows one duplicate link and asks how to go on: the next occurrence of
// this link, the next link, or stop. Closing the dialog stops.
class frmDuplicate final : public QDialog
{
    Q_OBJECT
public:
    explicit frmDuplicate(const QString &link, QWidget *parent = nullptr);

    DuplicateChoice choice() const { return m_choice; }
    // Shows the dialog for `link` and returns the choice.
    static DuplicateChoice ask(const QString &link, QWidget *parent = nullptr);

private:
    void choose(DuplicateChoice choice);

    QLineEdit *m_txtDup = nullptr;
    DuplicateChoice m_choice = DuplicateChoice::CancelAll;
};

} // namespace qly::markup::ui
