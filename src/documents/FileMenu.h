#pragma once

namespace qly::documents {

// File > Open: the open dialog with multiple selection; each chosen file
// opens as a document, in order.
void mnuOpen_Click();

} // namespace qly::documents
