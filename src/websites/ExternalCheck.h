#pragma once

#include "websites/LinkRecord.h"

#include <QHash>
#include <QStringList>
#include <functional>

namespace qly::websites {

// Web addresses checked over the network (libcurl). "broken" only when a
// server answered that the address does not exist (404, 410 and other
// client errors but 401, 403, 408 and 429); time-outs, refused or failed
// connections, unknown hosts, server errors and a rate limit that outlasts
// its waits are "unverified", never "broken".
enum class ExternalStatus { Ok, Broken, Unverified };
QString ExternalStatusName(ExternalStatus status);   // "ok", "broken", "unverified"

struct ExternalResult {
    ExternalStatus status = ExternalStatus::Unverified;
    long httpCode = 0;      // the last answer's status, 0 without one
    QString reason;         // a short text for a result that is not ok
};

struct ExternalCheckOptions {
    int perHost = 2;              // requests at a time to one host
    int total = 16;               // requests at a time in all
    int timeoutMs = 15000;        // per request
    int retries = 2;              // after a 429 or 503 that asks to wait
    int maxRetryAfterSeconds = 30;
    // Called as each address is done; true stops.
    std::function<bool(int done, int total)> progress;
    // Called every 50 ms or so while requests run (the editor lets its
    // window paint).
    std::function<void()> idle;
};

// True for "http://" and "https://" addresses, the ones checked.
bool IsCheckableAddress(const QString &link);

// Checks each distinct address once, with HEAD and, when the server
// refuses HEAD, GET (only the head of the answer is read). Redirections are
// followed. A 429 or 503 with Retry-After waits as asked (up to the limit)
// before the address is asked again, and holds back its host meanwhile.
QHash<QString, ExternalResult> CheckExternalLinks(const QStringList &addresses, const ExternalCheckOptions &options = {});

} // namespace qly::websites
