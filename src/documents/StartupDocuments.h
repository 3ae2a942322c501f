#pragma once

#include <QString>
#include <functional>

namespace qly::documents {

// The last step of start-up that opens documents.
struct StartupDocuments {
    std::function<void()> newDocument;   // an untitled document
    std::function<bool()> stop;          // true: open no more (the program is closing)
};
// The rest of the command line wins; otherwise the untitled document when
// [General] "Open New Document" is on, then the [Last Session] entries 1 to
// 99 up to the first empty one when "Restore Last Session" is on. A ".prj"
// entry goes through OpenDocumentFile like any other, which opens websites.
void OpenStartupDocuments(const QString &commandLineRest, const StartupDocuments &how);

} // namespace qly::documents
