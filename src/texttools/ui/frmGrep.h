#pragma once

#include "texttools/GrepModel.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTableWidget;

namespace qly::texttools::ui {

class frmFilesFound;

// "Multi-File Find and Replace": a file chooser, the list of files and
// patterns to search, the grid of terms and the options. It fills a
// GrepModel and runs it, with a progress window that can stop the run.
class frmGrep final : public QDialog
{
    Q_OBJECT
public:
    explicit frmGrep(QWidget *parent = nullptr);

    static frmGrep &instance(QWidget *parent);

    // Copies the window's fields into the model (LoadArray and the options).
    GrepModel &loadModel();
    void FindAndPresentFiles();
    void NewReplace();

    // The chooser's directory; an unreadable one is refused with a message
    // and the last good one stays.
    bool setDirectory(const QString &directory);
    void addEntry(const QString &entry);

    QListWidget *filesList() const { return m_lstFiles; }
    QTableWidget *grid() const { return m_grdGrep; }
    QLineEdit *termField() const { return m_txtTerm; }
    frmFilesFound *filesFound() const { return m_found; }

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *buildChooser();
    QWidget *buildTerms();
    QWidget *buildOptions();
    void refreshFiles();
    void enterTerm();
    void clearGrid();

    GrepModel m_model;
    QString m_directory;
    QLineEdit *m_txtDir = nullptr;
    QListWidget *m_file1 = nullptr;
    QLineEdit *m_txtFilename = nullptr;
    QComboBox *m_cmbTypes = nullptr;
    QListWidget *m_lstFiles = nullptr;
    QTableWidget *m_grdGrep = nullptr;
    QLineEdit *m_txtTerm = nullptr;
    QCheckBox *m_chkBackup = nullptr;
    QRadioButton *m_rbConversion[3] = {};
    QCheckBox *m_chkHTMToHTML = nullptr;
    QRadioButton *m_rbCase[3] = {};
    frmFilesFound *m_found = nullptr;
};

} // namespace qly::texttools::ui
