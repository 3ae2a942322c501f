#pragma once

#include "generators/FormEditorModel.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QRadioButton;
class QTreeWidget;
class QWidget;

namespace qly::generators::ui {

// "Form Editor": where the form sends its data and its list of elements,
// which the buttons add, edit, delete and reorder. OK inserts the form.
class frmFormEditor final : public QDialog
{
    Q_OBJECT
public:
    explicit frmFormEditor(QWidget *parent = nullptr);

    QString Tag() const { return m_tag; }
    // The model as the fields now stand.
    FormEditorModel model() const;
    // Adds an element as if a dialog had given it (also used by tests).
    void addElement(const FormElement &element);

private:
    void buildDestination(QWidget *page);
    void addKind(int kind);
    void editSelected();
    void deleteSelected();
    void move(int delta);
    void refreshList(int select);
    void showType();
    void finish();

    FormEditorModel m_model;
    QRadioButton *m_radType[2] = {};
    QRadioButton *m_radMethod[2] = {};
    QComboBox *m_cmbURL[2] = {};
    QComboBox *m_cmbMIME = nullptr;
    QWidget *m_urlRows = nullptr;
    QWidget *m_mailRows = nullptr;
    QTreeWidget *m_lstControls = nullptr;
    QString m_tag;
};

} // namespace qly::generators::ui
