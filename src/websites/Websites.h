#pragma once

#include "websites/LinkRecord.h"

#include <QString>
#include <functional>

namespace qly::websites {

// What the website work needs of the windows; the website tree's part of
// the editor fills it.
struct WebsiteHooks {
    // The Open Website dialog: a chosen project file, or empty.
    std::function<QString()> chooseWebsiteFile;
    // The website tree's ShowWebsiteUpload: the upload window for a website.
    std::function<void(int id)> showWebsiteUpload;
};
WebsiteHooks &websiteHooks();

// Opens a project file as a website in the tree: its files are listed (and
// opened as documents when [General] "Open All Proj Files" is "Yes"), its
// [Details] "Last Opened" is stamped and it goes into the recent files,
// when it has files. An empty path asks with the Open Website dialog. A
// path that does not exist, or a cancel, stops silently; a damaged project
// file is named in a message and left as it is. A project file that lists
// more files than a website holds has the rest left out of the tree, with
// a message; they stay in the file. True when it has files.
bool OpenWebsite(const QString &path);

// The tree's upload event: hands the website to ShowWebsiteUpload.
void WebsiteMan_WSUpload(int id);

// Writes the website's files back to [Files] (the key-0 rule of
// WriteProjectFiles) and removes the website from the tree.
void CloseWebsite(int id);
// Every open website, first to last: the program's exit.
void CloseAllWebsites();

// Re-reads the website's details from its project file and checks again
// the files whose links were checked; the tree redraws. The file list is
// the tree's own while the website is open and stays as it is.
void RefreshWebsite(int id);

// False when the website's list is full (see WebsiteList::AddWebsiteFile).
bool AddFiletoList(const QString &path, int id);
// Add Files: a file dialog in the website's directory; every chosen file
// joins the website. Files beyond the most a website holds are named in a
// message.
void WebsiteAddFiles(int id);
// The menu's Add Files: the selected website, or a message when there is none.
void FileAddFiles();

// [General] "Check Web Addresses": whether checks also ask web servers
// about http(s) addresses. Off unless set.
bool CheckWebAddresses();
// Asks the web servers about the http(s) addresses among `records` and
// keeps their answers for the tree; the window stays live meanwhile.
void CheckAddressesOf(const LinkRecords &records);

// The links of one file on disk, stored under it for the tree.
LinkRecords ScanNodeLinks(const QString &file);
// Every file of a website scanned; the number of broken links.
int CheckWebsiteLinks(int id);
// The links of the open document with this number, from its text.
void FileCheck(qint16 filenum);
// Every open document in turn; earlier results are kept.
void FileCheckAllLinks();

} // namespace qly::websites
