#pragma once

#include <QString>

namespace qly::publish {

// The fields of the hosting control panel's setup: [Lumenserve] "URL",
// "UserName" and "Password".
struct HostPanelModel {
    QString url;
    QString userName;
    QString password;

    static HostPanelModel load();
    // Writes the three keys; an empty field removes its key.
    void save() const;
};

} // namespace qly::publish
