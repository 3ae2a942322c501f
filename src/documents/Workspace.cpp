#include "documents/Workspace.h"

#include "documents/DocumentOptions.h"

namespace qly::documents {

namespace {
Workspace *g_workspace = nullptr;
}

Workspace *Workspace::instance()
{
    return g_workspace;
}

void Workspace::setInstance(Workspace *workspace)
{
    g_workspace = workspace;
    if (workspace)
        InstallDocumentOptionHooks();
}

Document *Workspace::CurrentDocument()
{
    return g_workspace ? g_workspace->activeDocument() : nullptr;
}

} // namespace qly::documents
