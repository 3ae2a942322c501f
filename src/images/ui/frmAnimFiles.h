#pragma once

#include <QDialog>

class QComboBox;
class QFileSystemModel;
class QLabel;
class QLineEdit;
class QListView;
class QTreeView;

namespace qly::images::ui {

// Picks frame files for the animator: folders, the files of the chosen
// type in the folder, a name box, and a preview of the picture under the
// pointer or the cursor.
class frmAnimFiles final : public QDialog
{
    Q_OBJECT
public:
    explicit frmAnimFiles(QWidget *parent = nullptr, const QString &start = {});

    // The chosen files, with full paths.
    QStringList files() const;
    void setDirectory(const QString &dir);
    QString directory() const;
    // Shows `file`'s picture in the preview.
    void preview(const QString &file);
    QLabel *previewLabel() const { return m_preview; }
    QLineEdit *nameBox() const { return m_txtName; }

    // Runs the dialog; the files chosen with Add, or none.
    static QStringList pick(QWidget *parent);

    // Add: a typed folder is opened, files close the dialog.
    void cmdAdd_Click();

private:
    void cmbTypes_Click();

    QFileSystemModel *m_dirs = nullptr;
    QFileSystemModel *m_files = nullptr;
    QTreeView *m_dirTree = nullptr;
    QListView *m_fileList = nullptr;
    QLineEdit *m_txtName = nullptr;
    QComboBox *m_cmbTypes = nullptr;
    QLabel *m_preview = nullptr;
};

} // namespace qly::images::ui
