#pragma once

#include "texttools/SearchPattern.h"

#include <QObject>
#include <QPointer>

class QsciScintilla;

namespace qly::texttools::ui {

// Marks every hit of the search text in the visible lines of one edit view
// with a box. Only the lines on screen are searched, after each scroll,
// edit or change of the pattern, so a long document costs no more than a
// short one.
class HitHighlighter final : public QObject
{
    Q_OBJECT
public:
    explicit HitHighlighter(QObject *parent = nullptr);

    // The view to mark (null: none); the marks leave the old view.
    void setView(QsciScintilla *view);
    void setPattern(const SearchPattern &pattern);
    void clear();

private:
    void schedule();
    void refresh();

    QPointer<QsciScintilla> m_view;
    SearchPattern m_pattern{QString(), false, false, false};
    bool m_pending = false;
};

} // namespace qly::texttools::ui
