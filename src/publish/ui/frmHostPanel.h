#pragma once

#include <QDialog>

class QLineEdit;

namespace qly::publish::ui {

// Setup of the hosting control panel: its address, user name and password.
// OK writes them to [Lumenserve]; Cancel leaves them.
class frmHostPanel final : public QDialog
{
    Q_OBJECT
public:
    explicit frmHostPanel(QWidget *parent = nullptr);

    void accept() override;

private:
    QLineEdit *m_txtURL = nullptr;
    QLineEdit *m_txtUserName = nullptr;
    QLineEdit *m_txtPassword = nullptr;
};

} // namespace qly::publish::ui
