#pragma once

#include <QWidget>

class QAction;
class QTreeWidget;
class QTreeWidgetItem;

namespace qly::markup::ui {

// The floating list of special characters: one row per line of the
// character table; a double click puts the row's HTML in front of the
// document's selection. It floats above the main window and keeps its
// geometry in [Display] "Chars List ...".
class frmEntities final : public QWidget
{
    Q_OBJECT
public:
    // The open list, or null.
    static frmEntities *instance();
    // Opens the list over `owner`, or closes it when open. `check` (the
    // menu entry) follows whether the list is open.
    static void toggle(QWidget *owner, QAction *check = nullptr);
    // Opens the list unless it is open; null when the table is empty.
    static frmEntities *showList(QWidget *owner, QAction *check = nullptr);

    ~frmEntities() override;

    // The HTML of the chosen row; empty when none is chosen.
    QString GetHTMLToAdd() const;
    QTreeWidget *list() const { return m_lstChars; }

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    explicit frmEntities(QWidget *owner);
    bool fill();
    void restoreGeometryKeys();
    void placeBesidePage();
    void saveGeometryKeys();
    void insertChosen();

    QTreeWidget *m_lstChars = nullptr;
    bool m_saved = false;
    bool m_placed = false;   // shown where the user left it
};

} // namespace qly::markup::ui
