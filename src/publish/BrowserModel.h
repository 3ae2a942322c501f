#pragma once

#include <QString>
#include <QStringList>

namespace qly::publish {

// The browser chooser (frmBrowser): the list of [Browsers] with the default
// browser marked by a leading "*", and what its buttons do.
class BrowserModel
{
public:
    BrowserModel();

    // Fills the list from [Browsers] and marks [File Locations] "Browser".
    void LoadBrowserList();
    QStringList rows() const { return m_rows; }
    // The row of the default browser, or -1.
    int defaultRow() const;
    // The path of a row, without its mark.
    QString path(int row) const;

    // Asks for a program, starting in the "Documents" location, and adds it.
    // Returns the new row, or -1.
    int btnAdd_Click();
    void btnremove_Click(int row);
    // Writes the row as [File Locations] "Browser" and moves the mark to it.
    void btnSetDefault_Click(int row);
    // OK: with `noChoose` stops asking before previews; an added or removed
    // browser is kept in [Browsers]; then previews with all browsers, or with
    // the chosen row.
    void confirm(int row, bool noChoose, bool useAll);

private:
    QStringList m_rows;
    bool m_changed = false;
};

} // namespace qly::publish
