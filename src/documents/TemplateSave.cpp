#include "documents/TemplateSave.h"

#include "core/Paths.h"
#include "documents/Document.h"
#include "documents/NewDocument.h"

#include <QDir>

namespace qly::documents {

bool SaveAsTemplate(Document &document, const QString &name)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return false;
    // An installed program may not have made the directory yet.
    QDir().mkpath(CustomTemplatesDirectory());
    return document.NamedSaveAs(core::JoinPath(CustomTemplatesDirectory(), trimmed));
}

} // namespace qly::documents
