#pragma once

#include <QDialog>

class QListWidget;

namespace qly::texttools::ui {

// The files a multi-file search found; Open (or a double click) opens the
// chosen one as a document.
class frmFilesFound final : public QDialog
{
    Q_OBJECT
public:
    explicit frmFilesFound(QWidget *parent = nullptr);

    // Appends a line, showing the list with its first line (AddToFoundList).
    void addLine(const QString &line);
    void clearList();
    QListWidget *list() const { return m_lstFiles; }

private:
    void openChosen();

    QListWidget *m_lstFiles = nullptr;
};

} // namespace qly::texttools::ui
