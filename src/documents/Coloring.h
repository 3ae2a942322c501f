#pragma once

namespace qly::documents {

// Sets the colouring mode of every open document's buffer.
void ChangeColoring(int mode);
// Recolours every open document.
void ColorAll();

} // namespace qly::documents
