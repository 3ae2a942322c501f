#pragma once

#include <QDockWidget>

class QComboBox;
class QFileSystemModel;
class QTabWidget;
class QTreeView;

namespace qly::app {

// The resource manager at the left of the main window: the tabs "Files",
// "Website", "Tags" and "Bookmarks".
class ResourceManager : public QDockWidget
{
    Q_OBJECT
public:
    explicit ResourceManager(QWidget *parent = nullptr);

    QTabWidget *tabs() const { return m_tabMain; }
    // A tab's content, for the part of the editor that fills it.
    void setTabContent(const QString &tab, QWidget *content);
    // The file type list: web pages, graphics, all files, then [Extra File Types].
    void InitializeFileList();
    QComboBox *fileTypes() const { return m_cmbFileType; }
    void setFilesRoot(const QString &directory);

signals:
    void fileActivated(const QString &path);

private:
    QWidget *placeholder(const QString &text);
    QWidget *buildFilesTab();
    void applyFileType();

    QTabWidget *m_tabMain = nullptr;
    QComboBox *m_cmbFileType = nullptr;
    QFileSystemModel *m_files = nullptr;
    QTreeView *m_adcFiles = nullptr;
};

} // namespace qly::app
