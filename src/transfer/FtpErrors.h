#pragma once

#include <QString>

namespace qly::transfer {

// The error codes of the FTP session, as its callers test them.
inline constexpr int ErrNotConnected = 22013;   // disconnect while not connected
inline constexpr int ErrSocket = 22014;         // the network failed under the session
inline constexpr int ErrTimedOut = 22020;       // the server did not answer in time
inline constexpr int ErrAborted = 22029;        // the user stopped the transfer
inline constexpr int ErrConnectionLost = 22030; // the server dropped the connection, twice
inline constexpr int ErrHostKey = 22031;        // an SSH host key was refused
inline constexpr int ErrLogin = 22047;          // login refused, or no connection allowed
inline constexpr int ErrRemoteName = 22049;     // no such remote directory or file
inline constexpr int ErrPermission = 22051;     // the server refused a write

// What a request was doing when it failed: the same failure of the library
// means a bad name for a directory change and a refusal for a write.
enum class FtpOp { Connect, ChangeDir, MakeDir, Put, Get, Stat };

// The session's code for a failure of libcurl (`curlCode`, a CURLcode) with
// the server's last reply code `replyCode` (0 when none).
int mapCurlError(int curlCode, int replyCode, FtpOp op);

// True for the failures after which one new connection may succeed: a
// dropped connection, a transient 4xx refusal of a transfer.
bool isRetryable(int curlCode, int replyCode);

} // namespace qly::transfer
