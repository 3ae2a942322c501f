#pragma once

#include <QString>
#include <functional>
#include <optional>

namespace qly::websites {

// The stored form of a site password: the characters XORed with a fixed key
// and written as their decimal Windows-1252 codes joined by ",". This keeps
// project files readable by older copies; it is no protection at all.
// `mode` "ENC" scrambles; any other mode unscrambles. A text without ","
// is returned unchanged by "DEC", so clear passwords of old files pass.
QString ScramblePassword(const QString &text, const QString &mode);

// Each character XORed with "Keep it behind bars", on Windows-1252 codes.
// Its own inverse.
QString XorWithKey(const QString &text);

// True when a stored value unscrambles without loss: no "," at all, or
// pieces that are each a number 0 to 255.
bool IsWellFormedScrambled(const QString &stored);

// The desktop's secret store, when the editor has one (filled by the
// windows part when it was built with QtKeychain); empty functions else.
struct SecretStore {
    std::function<bool(const QString &key, const QString &secret)> write;
    std::function<std::optional<QString>(const QString &key)> read;
    std::function<void(const QString &key)> remove;
    bool available() const { return bool(write) && bool(read); }
};
SecretStore &secretStore();

// The site password of a project: from the secret store when [Details]
// "Password Store" is "keyring", otherwise [Details] "Password" unscrambled.
QString ProjectPassword(const QString &projectFile);
bool PasswordInKeyring(const QString &projectFile);
// Keeps a site password: in the secret store when asked and possible (the
// file then holds no password, only "Password Store=keyring"), else
// scrambled in the file. True when it went to the secret store.
bool StoreProjectPassword(const QString &projectFile, const QString &password, bool keyring);

} // namespace qly::websites
