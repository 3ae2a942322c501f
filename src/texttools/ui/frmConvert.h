#pragma once

#include "texttools/TextToHtmlModel.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace qly::texttools::ui {

// Convert to HTML: the rules of TextToHtmlModel, applied to a saved copy of
// the current document (Apply, OK, Cancel puts it back) or to text files.
// Modeless; one at a time.
class frmConvert final : public QDialog
{
    Q_OBJECT
public:
    explicit frmConvert(QWidget *parent = nullptr);

    // Shows the dialog for the current document; nothing without one.
    static void showFor(QWidget *parent);

    TextToHtmlModel &model() { return m_model; }
    // Runs a button as a click does: fields into the model, then its work.
    void press(TextToHtmlModel::Button button);

protected:
    void reject() override;

private:
    void readFields();
    void showTarget();
    QComboBox *combo(const char *name, const QStringList &items, int current);

    TextToHtmlModel m_model;
    QCheckBox *m_chkPre = nullptr;
    QRadioButton *m_rbcols[3] = {};
    QCheckBox *m_chkMakePara = nullptr;
    QCheckBox *m_chkMakeList = nullptr;
    QComboBox *m_cmbListType = nullptr;
    QLineEdit *m_txtBullet = nullptr;
    QComboBox *m_cmbListAction = nullptr;
    QCheckBox *m_chkFirstHead = nullptr;
    QCheckBox *m_chkOtherHead = nullptr;
    QComboBox *m_cmbFirstHead = nullptr;
    QComboBox *m_cmbOtherHead = nullptr;
    QComboBox *m_cmbIsolate = nullptr;
    QCheckBox *m_chkMakeBreak = nullptr;
    QRadioButton *m_rbFiles = nullptr;
    QPushButton *m_cmdOptions[5] = {};
};

} // namespace qly::texttools::ui
