#pragma once

#include "documents/FileRegistry.h"
#include "websites/ExternalCheck.h"
#include "websites/LinkRecord.h"

#include <QHash>
#include <QObject>
#include <QStringList>
#include <map>

namespace qly::websites {

// The open websites and the open files, as the website tree shows them:
// each website by a small id (from 0) with its details and its list of
// files, each open document by the number it was given (its filenum), and
// the link check results of documents and of website files. It is the
// process's file registry while it lives. The tree widget draws it and
// follows `changed`.
class WebsiteList : public QObject, public documents::FileRegistry
{
    Q_OBJECT
public:
    WebsiteList();
    ~WebsiteList() override;

    // The process's one list; created on first use.
    static WebsiteList &instance();

    struct Website {
        QString name, projectFile, localDirectory, host, remoteDirectory, login, password;
        QStringList files;
        // Files of the project file beyond the most the list holds: not
        // listed, and left in the project file as they are.
        int leftOut = 0;
    };

    int AddWebsite(const QString &name);
    void RemoveWebsite(int id);
    // False when the file could not join: no such website, an empty path,
    // or the list is full (MaxProjectFileIndex + 1 files). A file listed
    // already counts as joined.
    bool AddWebsiteFile(int id, const QString &path);
    void RemoveWebsiteFile(int id, int index);
    int WebsiteFileCount(int id) const;
    QString WebsiteFileName(int id, int index) const;
    int WebsiteCount() const { return int(m_sites.size()); }
    int WebsiteIdAt(int index) const;
    // The selected website; negative when none is.
    int CurrentWebsite() const;
    void setCurrentWebsite(int id);
    // The details; a website that is not open reads as empty.
    const Website *website(int id) const;
    Website *website(int id);
    void detailsChanged() { emit changed(); }

    // Open documents by filenum.
    qint16 AddFile(const QString &name) override;
    void SetFileName(qint16 filenum, const QString &path) override;
    void ForgetFile(qint16 filenum) override;
    QString DocumentFileName(qint16 filenum) const { return FileName(filenum); }
    QList<qint16> openFiles() const;

    // Link check results: of an open document, and of a file scanned from disk.
    void ClearLinkResults(qint16 filenum);
    void PutLinkResults(qint16 filenum, const LinkRecords &result);
    LinkRecords linkResults(qint16 filenum) const { return m_results.value(filenum); }
    void PutFileLinkResults(const QString &path, const LinkRecords &result);
    LinkRecords fileLinkResults(const QString &path) const { return m_fileResults.value(path); }
    bool hasFileLinkResults(const QString &path) const { return m_fileResults.contains(path); }
    // What the web servers said of addresses, when those are checked.
    void PutAddressResults(const QHash<QString, ExternalResult> &results);
    const ExternalResult *addressResult(const QString &address) const;
    // Asks the view to bring results into view.
    void ShowLinkResults(const LinkRecords &result) { emit showResults(result); }

signals:
    void changed();
    void showResults(const LinkRecords &result);

private:
    std::map<int, Website> m_sites;
    int m_nextId = 0;
    int m_current = -1;
    QList<qint16> m_order;
    QHash<qint16, LinkRecords> m_results;
    QHash<QString, LinkRecords> m_fileResults;
    QHash<QString, ExternalResult> m_addresses;
};

} // namespace qly::websites
