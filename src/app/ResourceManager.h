#pragma once

#include <QDockWidget>

class QComboBox;
class QFileSystemModel;
class QListView;
class QTabWidget;
class QTreeView;

namespace qly::core::ui {
class Divider;
}

namespace qly::app {

// The resource manager at the left of the main window: the tabs "Files",
// "Website", "Tags" and "Bookmarks". The "Files" tab is the file view
// `adcFiles`: folders above, the chosen folder's subfolders and files below
// (the files filtered by `cmbFileType`), a divider between them. A file dragged from it onto a
// document becomes a link or an image tag there; a double-click opens it.
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
    // Shows this folder's files and selects it among the folders.
    void setFilesRoot(const QString &directory);
    QString filesRoot() const;
    QListView *fileList() const { return m_fileList; }
    // The divider of a tab's two panes ("Files", "Website"); null when the
    // tab has none.
    core::ui::Divider *divider(const QString &tab) const;

signals:
    void fileActivated(const QString &path);

private:
    QWidget *placeholder(const QString &text);
    QWidget *buildFilesTab();
    void applyFileType();
    void showFolder();

    QTabWidget *m_tabMain = nullptr;
    QComboBox *m_cmbFileType = nullptr;
    QFileSystemModel *m_folders = nullptr;
    QFileSystemModel *m_files = nullptr;
    QTreeView *m_folderView = nullptr;
    QListView *m_fileList = nullptr;
    QString m_shownFolder;
};

} // namespace qly::app
