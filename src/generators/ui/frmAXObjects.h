#pragma once

#include "generators/AxObjects.h"
#include "generators/ui/FieldsDialog.h"

class QGroupBox;
class QListWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace qly::generators::ui {

class PreviewPane;

// "ActiveX Parameters": the known controls, the properties of the chosen
// one with the values the user gives them, and the object tag they make.
class frmAXObjects final : public FieldsDialog
{
    Q_OBJECT
public:
    explicit frmAXObjects(QWidget *parent = nullptr);

    // The tag for the chosen control; "" when none is chosen.
    QString tagText() const;
    // Chooses the control of the list's row (as a click does).
    void chooseControl(int row);
    // Sets the value of a property row (as its editor does).
    void setValue(int row, const QString &value);
    // Shows the tag's page in the dialog; it then follows the values.
    void preview();
    PreviewPane *previewPane() const { return m_preview; }

private:
    void fillControls();
    void ClearValues();
    void ShowAxInfo(const AxClass &c);
    void showEditor(QTreeWidgetItem *item);
    void BuildEnumCombo(const QStringList &values);
    bool confirm() override;

    AxObjects m_objects;
    QList<ControlRow> m_controlTable;
    int m_current = -1;
    QListWidget *m_lstControls;
    QCheckBox *m_chkShowax;
    QGroupBox *m_frame;
    QTreeWidget *m_lstInfo;
    QLineEdit *m_txtName, *m_txtValue;
    QCheckBox *m_chkValue;
    QComboBox *m_cmbCombo;
    QPushButton *m_imgCol;
    PreviewPane *m_preview;
};

} // namespace qly::generators::ui
