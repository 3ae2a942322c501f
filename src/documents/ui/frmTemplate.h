#pragma once

#include <QDialog>

class QLineEdit;

namespace qly::documents::ui {

// Asks for the name under which the document is kept as a custom
// template. Tag() is "1" after OK, "0" after Cancel, "" before.
class frmTemplate final : public QDialog
{
    Q_OBJECT
public:
    explicit frmTemplate(QWidget *parent = nullptr);

    QString Tag() const { return m_tag; }
    QString templateName() const;

private:
    QLineEdit *m_txtName = nullptr;
    QString m_tag;
};

} // namespace qly::documents::ui
