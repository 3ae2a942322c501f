#pragma once

#include "markup/TagCatalogue.h"

#include <QSet>
#include <QWidget>

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;
class QToolButton;

namespace qly::markup::ui {

// The tag tree of the resource manager's "Tags" tab: the catalogue's
// entries of the active filters, as one list (full view) or by group
// (tags view), with a box that finds a tag by typing.
class TagTree : public QWidget
{
    Q_OBJECT
public:
    enum View { FullView = 0, TagsView = 1, Reload = 2 };

    explicit TagTree(QWidget *parent = nullptr);

    QString TagStartText() const;
    QString TagEndText() const;
    bool IsDragging() const { return m_dragging; }
    // The tree sets this round a drag of one of its tags.
    void setDragging(bool dragging) { m_dragging = dragging; }
    QString DraggedTag() const;
    // The entry under the selection, or none.
    const TagEntry *currentEntry() const;

    int TagView() const { return m_view; }
    // 0 and 1 choose the view; 2 reads the catalogue again and keeps the view.
    void setTagView(int view);
    // Opens the catalogue's editor; on OK the tree shows what was stored.
    void EditTagList();
    QStringList FilterList() const;

    void setFilters(const QSet<QString> &filters);
    QSet<QString> filters() const { return m_filters; }
    // Names in capitals (the tree's upper-case switch) or in small letters.
    void setUpperCase(bool upper);
    const TagCatalogue &catalogue() const { return m_catalogue; }
    void setCatalogueFiles(const QString &file, const QString &custom);

    QTreeWidget *tree() const { return m_tree; }
    QLineEdit *findBox() const { return m_find; }

signals:
    void TagDblClick();
    // The view buttons were pressed: 1 tags view, 0 full view.
    void viewChosen(int view);
    void filterRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void rebuild();
    void applyFind(const QString &text);
    void startDrag();
    QString shownName(const TagEntry &entry) const;

    TagCatalogue m_catalogue;
    QString m_file;
    QString m_custom;
    QList<TagEntry> m_shown;
    QSet<QString> m_filters;
    int m_view = FullView;
    bool m_upper = true;
    bool m_dragging = false;
    QTreeWidget *m_tree = nullptr;
    QLineEdit *m_find = nullptr;
    QToolButton *m_cmdTags = nullptr;
    QToolButton *m_cmdViewFull = nullptr;
};

// The mime type of a tag dragged from the tree.
QString tagMimeType();

} // namespace qly::markup::ui
