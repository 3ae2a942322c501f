#include "websites/ExternalCheck.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QSet>
#include <QUrl>

#include <curl/curl.h>

#include <ctime>
#include <deque>
#include <map>

namespace qly::websites {

namespace {

struct Job {
    QString url;
    QString host;
    bool get = false;          // HEAD refused: ask with GET
    int attempts = 0;
    qint64 notBefore = 0;      // ms on the run's clock
    long retryAfter = -1;      // seconds, from the last answer
    CURL *handle = nullptr;
};

size_t onHeader(char *data, size_t size, size_t count, void *user)
{
    auto *job = static_cast<Job *>(user);
    const QByteArray line = QByteArray(data, qsizetype(size * count)).trimmed();
    if (line.startsWith("HTTP/"))
        job->retryAfter = -1;   // a new answer (after a redirection)
    if (line.toLower().startsWith("retry-after:")) {
        const QByteArray value = line.mid(12).trimmed();
        bool ok = false;
        const long seconds = value.toLong(&ok);
        if (ok) {
            job->retryAfter = std::max(0L, seconds);
        } else {
            const QDateTime when = QDateTime::fromString(QString::fromLatin1(value), Qt::RFC2822Date);
            if (when.isValid())
                job->retryAfter = std::max<qint64>(0, QDateTime::currentDateTimeUtc().secsTo(when));
        }
    }
    return size * count;
}

// The body is not wanted: the first byte of it ends the transfer.
size_t onBody(char *, size_t, size_t, void *)
{
    return 0;
}

ExternalResult judge(CURLcode code, long http, const Job &job)
{
    ExternalResult r;
    r.httpCode = http;
    if (code != CURLE_OK && code != CURLE_WRITE_ERROR) {
        r.status = ExternalStatus::Unverified;
        r.reason = QString::fromUtf8(curl_easy_strerror(code));
        return r;
    }
    if (http >= 200 && http < 400) {
        r.status = ExternalStatus::Ok;
        return r;
    }
    r.reason = QStringLiteral("HTTP %1").arg(http);
    const bool unsure = http == 401 || http == 403 || http == 408 || http == 429 || http >= 500 || http < 200;
    r.status = unsure ? ExternalStatus::Unverified : ExternalStatus::Broken;
    Q_UNUSED(job);
    return r;
}

} // namespace

QString ExternalStatusName(ExternalStatus status)
{
    switch (status) {
    case ExternalStatus::Ok: return QStringLiteral("ok");
    case ExternalStatus::Broken: return QStringLiteral("broken");
    case ExternalStatus::Unverified: return QStringLiteral("unverified");
    }
    return {};
}

bool IsCheckableAddress(const QString &link)
{
    return link.startsWith(QLatin1String("http://"), Qt::CaseInsensitive)
           || link.startsWith(QLatin1String("https://"), Qt::CaseInsensitive);
}

QHash<QString, ExternalResult> CheckExternalLinks(const QStringList &addresses, const ExternalCheckOptions &o)
{
    static const bool initialised = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
    QHash<QString, ExternalResult> results;
    std::deque<Job> jobs;   // stable addresses for the callbacks
    std::deque<Job *> waiting;
    QSet<QString> seen;
    for (const QString &a : addresses) {
        const QString url = a.trimmed();
        if (!IsCheckableAddress(url) || seen.contains(url))
            continue;
        seen.insert(url);
        jobs.push_back(Job{url, QUrl(url).host().toLower()});
        waiting.push_back(&jobs.back());
    }
    if (!initialised) {
        for (const Job &j : jobs)
            results.insert(j.url, {ExternalStatus::Unverified, 0, QStringLiteral("no network library")});
        return results;
    }
    CURLM *multi = curl_multi_init();
    QElapsedTimer clock;
    clock.start();
    std::map<QString, int> active;          // per host
    std::map<QString, qint64> hostResumes;  // a host that asked to wait
    int running = 0, done = 0;
    const int all = int(jobs.size());

    auto start = [&](Job *job) {
        CURL *h = curl_easy_init();
        job->handle = h;
        const QByteArray url = job->url.toUtf8();
        curl_easy_setopt(h, CURLOPT_URL, url.constData());
        curl_easy_setopt(h, CURLOPT_NOBODY, job->get ? 0L : 1L);
        curl_easy_setopt(h, CURLOPT_FOLLOWLOCATION, 1L);
        curl_easy_setopt(h, CURLOPT_MAXREDIRS, 10L);
        curl_easy_setopt(h, CURLOPT_TIMEOUT_MS, long(o.timeoutMs));
        curl_easy_setopt(h, CURLOPT_NOSIGNAL, 1L);
        curl_easy_setopt(h, CURLOPT_USERAGENT, "Quillery link check");
        curl_easy_setopt(h, CURLOPT_HEADERFUNCTION, onHeader);
        curl_easy_setopt(h, CURLOPT_HEADERDATA, job);
        curl_easy_setopt(h, CURLOPT_WRITEFUNCTION, onBody);
        curl_easy_setopt(h, CURLOPT_PRIVATE, job);
        curl_multi_add_handle(multi, h);
        ++active[job->host];
        ++running;
        ++job->attempts;
    };

    bool stopped = false;
    while ((!waiting.empty() || running > 0) && !stopped) {
        const qint64 now = clock.elapsed();
        // Start what the limits allow, in order; a job that must wait stays.
        for (auto it = waiting.begin(); it != waiting.end() && running < o.total;) {
            Job *job = *it;
            const qint64 resume = hostResumes.count(job->host) ? hostResumes[job->host] : 0;
            if (job->notBefore > now || resume > now || active[job->host] >= o.perHost) {
                ++it;
                continue;
            }
            it = waiting.erase(it);
            start(job);
        }
        int still = 0;
        curl_multi_perform(multi, &still);
        int left = 0;
        while (CURLMsg *msg = curl_multi_info_read(multi, &left)) {
            if (msg->msg != CURLMSG_DONE)
                continue;
            CURL *h = msg->easy_handle;
            Job *job = nullptr;
            curl_easy_getinfo(h, CURLINFO_PRIVATE, &job);
            long http = 0;
            curl_easy_getinfo(h, CURLINFO_RESPONSE_CODE, &http);
            const CURLcode code = msg->data.result;
            curl_multi_remove_handle(multi, h);
            curl_easy_cleanup(h);
            job->handle = nullptr;
            --active[job->host];
            --running;
            const bool answered = code == CURLE_OK || code == CURLE_WRITE_ERROR;
            if (answered && (http == 429 || (http == 503 && job->retryAfter >= 0)) && job->attempts <= o.retries) {
                const long wait = job->retryAfter < 0 ? 1 : job->retryAfter;
                if (wait <= o.maxRetryAfterSeconds) {
                    job->notBefore = clock.elapsed() + wait * 1000;
                    hostResumes[job->host] = std::max(hostResumes[job->host], job->notBefore);
                    waiting.push_back(job);
                    continue;
                }
            }
            if (answered && !job->get && http >= 400 && http != 404 && http != 410 && http != 429) {
                job->get = true;   // servers that refuse HEAD
                waiting.push_front(job);
                continue;
            }
            ExternalResult r = judge(code, http, *job);
            if (http == 429)
                r.reason = QStringLiteral("rate limited (HTTP 429)");
            results.insert(job->url, r);
            ++done;
            if (o.progress && o.progress(done, all))
                stopped = true;
        }
        if (o.idle)
            o.idle();
        if (running > 0) {
            curl_multi_poll(multi, nullptr, 0, 50, nullptr);
        } else if (!waiting.empty()) {
            // Everything waits for a Retry-After: sleep a little.
            struct timespec ts{0, 20 * 1000 * 1000};
            nanosleep(&ts, nullptr);
        }
    }
    for (Job &job : jobs) {
        if (job.handle) {
            curl_multi_remove_handle(multi, job.handle);
            curl_easy_cleanup(job.handle);
        }
        if (!results.contains(job.url))
            results.insert(job.url, {ExternalStatus::Unverified, 0, QStringLiteral("not checked")});
    }
    curl_multi_cleanup(multi);
    return results;
}

} // namespace qly::websites
