#pragma once

#include <QString>

namespace qly::websites {

// The Website Manager's fields and what its buttons do, without the window.
class ProjectManagerModel
{
public:
    static constexpr int NoWebsite = 65535;

    // Fields as the dialog shows them.
    QString txtName, txtProjectDirectory, txtWebServer, txtWebDirectory, txtLoginAs, txtPassword;
    QString txtDocuments, txtGraphics;
    QString lblProjectCreated, lblLastOpened, lblTimeSpent;
    QString lblProjFile, lblNumberOfFiles, lblSize, lblDateModified;
    bool changed = false;
    // Keep the password in the desktop's secret store rather than the file.
    bool keepInKeyring = false;

    // The website the dialog edits (NoWebsite: none yet) and its project file.
    int id() const { return m_id; }
    QString projectFile() const { return m_projectFile; }
    // Edits an open website.
    void setWebsite(int id);
    // Edits a project file that is not open (the Open Website dialog's
    // manager button): it is opened in the tree first.
    void setProjectFile(const QString &path);

    // Fills the fields from the project file, or with the defaults of the
    // configuration for a new website.
    void LoadWebsiteForm();
    // Save: false while the dialog must stay (no name given).
    bool SaveWebsiteForm();
    // One key of the project file; refused with a message without a website.
    void WriteProjINI(const QString &section, const QString &key, const QString &value);
    // Asks, then sets the time spent to "0".
    void ResetTimer();
    // Before closing: offers to save changed details.
    void CloseQuery();

private:
    void showFacts();
    int m_id = NoWebsite;
    QString m_projectFile;
};

} // namespace qly::websites
