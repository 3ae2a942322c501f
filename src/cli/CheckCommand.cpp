#include "cli/Commands.h"

#include "websites/ExternalCheck.h"
#include "websites/SiteCheck.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace qly::cli {

namespace {

struct CheckOptions {
    QStringList inputs;
    bool json = false;
    bool external = false;
};

bool parse(const QStringList &arguments, CheckOptions &o)
{
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &a = arguments.at(i);
        if (a == QLatin1String("--format") && i + 1 < arguments.size()) {
            const QString f = arguments.at(++i);
            if (f != QLatin1String("json") && f != QLatin1String("text"))
                return false;
            o.json = f == QLatin1String("json");
        } else if (a == QLatin1String("--format=json")) {
            o.json = true;
        } else if (a == QLatin1String("--format=text")) {
            o.json = false;
        } else if (a == QLatin1String("--external")) {
            o.external = true;
        } else if (a.startsWith(u'-') && a.size() > 1) {
            return false;
        } else {
            o.inputs << a;
        }
    }
    return !o.inputs.isEmpty();
}

// The web addresses of a check, looked up over the network.
struct ExternalSummary {
    QHash<QString, websites::ExternalResult> results;
    QString statusOf(const websites::LinkRecord &r) const
    {
        auto it = results.constFind(r.link.trimmed());
        return it == results.constEnd() ? QString() : websites::ExternalStatusName(it->status);
    }
    QString summary() const
    {
        int broken = 0, unverified = 0;
        for (const websites::ExternalResult &r : results) {
            broken += r.status == websites::ExternalStatus::Broken ? 1 : 0;
            unverified += r.status == websites::ExternalStatus::Unverified ? 1 : 0;
        }
        return QStringLiteral("; %1 web addresses: %2 broken, %3 could not be verified")
            .arg(results.size()).arg(broken).arg(unverified);
    }
};

ExternalSummary checkExternal(const QList<websites::PageLinks> &pages)
{
    QStringList addresses;
    for (const websites::PageLinks &p : pages)
        for (const websites::LinkRecord &r : p.records)
            if (websites::IsCheckableAddress(r.link.trimmed()))
                addresses << r.link.trimmed();
    return {websites::CheckExternalLinks(addresses)};
}

void print(FILE *to, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), to);
}

} // namespace

// check [--external] [--format text|json] SITE.prj|PAGE...
int checkCommand(const QStringList &arguments)
{
    using namespace websites;
    CheckOptions o;
    if (!parse(arguments, o)) {
        print(stderr, QStringLiteral("quillery-cli check: usage: check [--external] [--format text|json] SITE.prj|PAGE...\n"));
        return ExitUsage;
    }
    QStringList pages;
    for (const QString &input : o.inputs) {
        QString problem;
        const QStringList found = PagesToCheck(input, &problem);
        if (!problem.isEmpty()) {
            print(stderr, QStringLiteral("quillery-cli check: ") + problem + u'\n');
            return ExitUsage;
        }
        pages += found;
    }
    // Text without web addresses goes out page by page; the others need
    // every link first.
    const bool stream = !o.json && !o.external;
    QList<PageLinks> result;
    int pageCount = 0, links = 0, broken = 0, unreadable = 0;
    QJsonArray records;
    ExternalSummary external;
    auto report = [&](const PageLinks &p) {
        ++pageCount;
        unreadable += p.readable ? 0 : 1;
        QString text;
        for (const LinkRecord &r : p.records) {
            ++links;
            const QString status = o.external ? external.statusOf(r) : QString();
            const bool bad = IsBroken(r.kind) || status == QLatin1String("broken");
            broken += bad ? 1 : 0;
            QString kind = LinkKindName(r.kind);
            if (!status.isEmpty())
                kind += u'/' + status;
            if (o.json) {
                QJsonObject j{{QStringLiteral("kind"), LinkKindName(r.kind)}, {QStringLiteral("page"), p.page},
                              {QStringLiteral("line"), r.line}, {QStringLiteral("link"), r.link},
                              {QStringLiteral("attribute"), r.attribute}, {QStringLiteral("broken"), bad}};
                if (!r.localPath.isEmpty())
                    j.insert(QStringLiteral("file"), r.localPath);
                if (!status.isEmpty())
                    j.insert(QStringLiteral("external"), status);
                records.append(j);
            } else {
                text += QStringLiteral("%1\t%2\t%3\t%4\n").arg(kind, p.page).arg(r.line).arg(r.link);
            }
        }
        print(stdout, text);
    };
    if (stream) {
        CheckPages(pages, report);
    } else {
        result = CheckPages(pages);
        if (o.external)
            external = checkExternal(result);
        for (const PageLinks &p : result)
            report(p);
    }

    const QString summary = QStringLiteral("%1 pages, %2 links, %3 broken%4%5")
                                .arg(pageCount).arg(links).arg(broken)
                                .arg(unreadable ? QStringLiteral(", %1 pages unreadable").arg(unreadable) : QString())
                                .arg(o.external ? external.summary() : QString());
    if (o.json) {
        QJsonObject all{{QStringLiteral("pages"), pageCount}, {QStringLiteral("links"), links},
                        {QStringLiteral("broken"), broken}, {QStringLiteral("unreadable"), unreadable},
                        {QStringLiteral("records"), records}};
        print(stdout, QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Indented)));
    }
    print(stderr, summary + u'\n');
    return (broken > 0 || unreadable > 0) ? ExitFailed : ExitOk;
}

} // namespace qly::cli
