#pragma once

#include <QDialog>

class QListWidget;

namespace qly::markup::ui {

class TagTree;

// "Filter Keywords": which keyword sets the tag tree shows and the
// colouring knows. OK stores the check marks and reloads the tree; Cancel
// changes nothing.
class frmFilterKeys : public QDialog
{
    Q_OBJECT
public:
    explicit frmFilterKeys(TagTree &tree, QWidget *parent = nullptr);

    QListWidget *lstFilter() const { return m_list; }

    void SaveFilters() const;
    void LoadFilters();

private:
    void frmOK_Click();

    TagTree &m_tree;
    QListWidget *m_list = nullptr;
};

// LoadFilters for the tree: its filters from the configuration, and the
// colouring told which tags and words they know.
void LoadTreeFilters(TagTree &tree);

} // namespace qly::markup::ui
