#pragma once

namespace qly::documents {

// Connects the documents to the settings that speak of them: the active
// document's folder becomes the last fallback of GetFileLocation, and
// confirming the Options dialog gives every open document the font, word
// wrap and colours just stored, and the keyboard back to the active one.
void InstallDocumentOptionHooks();

// Every open document takes the stored editing settings.
void ApplyOptionsToDocuments();

// Every open document takes the stored colours and is coloured again; with
// [Editing] "Color HTML" off, colouring stops in each.
void ApplyColorOptions();

} // namespace qly::documents
