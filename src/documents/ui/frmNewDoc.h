#pragma once

#include "documents/NewDocModel.h"

#include <QDialog>

class QButtonGroup;
class QComboBox;
class QListWidget;

namespace qly::documents::ui {

// The New Document dialog: one of five kinds of start, with a list for
// the Advanced kind and one for the user's templates. OK closes the dialog;
// the caller then makes the document from model().
class frmNewDoc final : public QDialog
{
    Q_OBJECT
public:
    explicit frmNewDoc(QWidget *parent = nullptr);

    const NewDocModel &model() const { return m_model; }

private:
    void setKind(int kind);
    void OK_Click();

    NewDocModel m_model;
    QButtonGroup *m_kinds = nullptr;
    QListWidget *m_advSel = nullptr;
    QComboBox *m_cmbUserSel = nullptr;
};

} // namespace qly::documents::ui
