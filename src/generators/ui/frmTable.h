#pragma once

#include "generators/TableModel.h"

#include <QDialog>

class QLineEdit;
class QPushButton;
class QRadioButton;
class QTableView;

namespace qly::generators::ui {

class PreviewPane;
class TableGridModel;
class UpDown;

// "Table Editor": the table model in a grid with its ten fields. It opens on
// the current document's selection (a table read back, or tab-separated
// text), and OK puts the table in place of the selection.
class frmTable final : public QDialog
{
    Q_OBJECT
public:
    // `livePreview` shows the preview browser from the start.
    explicit frmTable(QWidget *parent = nullptr, bool livePreview = true);

    // Opens the dialog modally over the current document.
    static void showFor(QWidget *parent);

    TableModel &model() { return m_model; }
    QTableView *grid() const { return m_grid; }
    QLineEdit *field(int index) const { return m_txtTable[index]; }
    UpDown *spinner(int index) const { return m_udTxt[index]; }
    QLineEdit *linesField() const { return m_txtLines; }
    PreviewPane *preview() const { return m_preview; }
    int oneLineHeight() const { return m_oneLine; }
    // "1" after OK, "0" after Cancel, "" before.
    QString Tag() const { return m_tag; }

    // The buttons by index: 0 OK, 1 Cancel, 2 Help, 3 preview.
    void cmdOptions_Click(int index);
    // Clipboard text into the grid at the cursor.
    void pasteCells();
    // A file dropped on a cell: a link to it, or an image tag for a picture,
    // added to the cell's text.
    void dropFile(const QString &path, const QModelIndex &at);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void LoadTableFromSelection();
    void txtTable_Change(int index);
    void txtLines_Change();
    void showModel();
    void SetTableCellWidth();
    void gridChanged();
    void changeShape(void (TableModel::*change)(int), bool rows);

    TableModel m_model;
    TableGridModel *m_gridModel = nullptr;
    QTableView *m_grid = nullptr;
    QLineEdit *m_txtTable[TableModel::FieldCount] = {};
    UpDown *m_udTxt[TableModel::FieldCount] = {};
    QRadioButton *m_optCaption[2] = {};
    QLineEdit *m_txtLines = nullptr;
    UpDown *m_upDown1 = nullptr;
    PreviewPane *m_preview = nullptr;
    int m_oneLine = 0;
    bool m_showing = false;
    QString m_tag;
};

} // namespace qly::generators::ui
