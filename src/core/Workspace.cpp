#include "core/Workspace.h"

namespace qly::core {

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
}

documents::Document *Workspace::CurrentDocument()
{
    return g_workspace ? g_workspace->activeDocument() : nullptr;
}

} // namespace qly::core
