#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QTreeWidget;

namespace qly::websites::ui {

// "Open Website": the project files of a folder with their website names.
// The result is in tag(): a chosen file, "CANCEL", or "/PROJMANG/" and a
// file for the Website Manager.
class frmOpenProj : public QDialog
{
    Q_OBJECT
public:
    explicit frmOpenProj(QWidget *parent = nullptr);
    QString tag() const { return m_tag; }
    void setDirectory(const QString &dir);
    QString directory() const { return m_dir; }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void fill();
    void cmdOptions_Click(int index);
    QString m_dir, m_tag;
    QLineEdit *m_path = nullptr;
    QTreeWidget *m_files = nullptr;
    QLineEdit *m_txtFile = nullptr;
    QComboBox *m_cmbTypes = nullptr;
    QCheckBox *m_chkOpenFiles = nullptr;
};

// Shows the dialog and returns the chosen project file; empty after a
// cancel or after the Website Manager was asked for (which is then shown).
QString ChooseWebsiteFile(QWidget *parent);

} // namespace qly::websites::ui
