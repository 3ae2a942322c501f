#pragma once

namespace qly::websites::ui {

// Fills websites::secretStore() with the desktop's secret store (QtKeychain)
// when the editor was built with it; without it site passwords stay in the
// project files.
void InstallKeyring();

} // namespace qly::websites::ui
