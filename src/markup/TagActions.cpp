#include "markup/TagActions.h"

#include "documents/Document.h"
#include "documents/Workspace.h"
#include "markup/Selection.h"
#include "markup/TagCatalogue.h"
#include "markup/TagPrimitives.h"

namespace qly::markup {

void TagDblClick(const TagEntry &entry)
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return;
    const QString selection = GetSelection(Target(doc->txtDoc()));
    InsertMarkup(entry.startText + selection, entry.endText, true);
}

void DropTag(const TagEntry &entry)
{
    if (!documents::Workspace::CurrentDocument())
        return;
    // A plain tag goes the ordinary way of a dropped tag; an entry whose
    // texts say more (attributes, a script word) goes in as it stands.
    const bool plainTag = !entry.isScriptWord()
                          && entry.startText.compare(u'<' + entry.name + u'>', Qt::CaseInsensitive) == 0;
    if (plainTag)
        InsertTagItem(entry.itemText());
    else
        InsertMarkup(entry.startText, entry.endText);
}

} // namespace qly::markup
