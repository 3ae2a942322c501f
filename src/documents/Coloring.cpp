#include "documents/Coloring.h"

#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "platform/HTMLEdit.h"

namespace qly::documents {

void ChangeColoring(int mode)
{
    for (Document *doc : AllDocuments())
        doc->txtDoc().setColorMode(mode);
}

void ColorAll()
{
    for (Document *doc : AllDocuments())
        doc->txtDoc().ColorHTML();
}

} // namespace qly::documents
