// Publishes a large page with every pass on and reports the time and the
// peak memory:
//   bench_publish_speed generate FILE [MB]    writes the page and its aliases.inf beside it
//   bench_publish_speed publish FILE TARGET   publishes with the program data of FILE's directory
#include "core/Globals.h"
#include "core/Paths.h"
#include "platform/ConsolePrompts.h"
#include "publish/Publish.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include "BenchPage.h"

#include <cstdio>

namespace {

// A bakery's site as its author keeps it: short upper-case terms in the
// sources, whole words and exact case, replaced by names, addresses, links
// and the copyright line. FOOTER brings in COPYLINE and PHONE, which come
// later in the file and so are replaced in its output too; MAILTO comes
// before it and stays as written there. COPYLINE brings in SITENAME.
const char *const kAliases[] = {
    "SITEURL\x02https://www.harbourlane.example/",
    "MAILTO\x02<A HREF=\"mailto:orders@harbourlane.example\">orders@harbourlane.example</A>",
    "FOOTER\x02<HR>NL_<P CLASS=\"foot\">NL_COPYLINENL_MAILTO | PHONENL_</P>",
    "COPYLINE\x02" "Copyright &copy; 2024 SITENAME. All rights reserved.",
    "SITENAME\x02Harbour Lane Bakery",
    "TAGLINE\x02" "fresh bread since 1987 \xc2\xb7 Portsmouth",
    "CHEF\x02Mar&iacute;a Fern&aacute;ndez",
    "PHONE\x02+44 20 7946 0321",
    "WEBMASTER\x02<A HREF=\"mailto:webmaster@harbourlane.example\">webmaster@harbourlane.example</A>",
    "OPENHOURS\x02Monday to Saturday, 7 am to 6 pm",
    "ADDRESS1\x02" "12 Harbour Lane, Portsmouth PO1 2AB",
    "LOGOIMG\x02<IMG SRC=\"images\\logo.gif\" WIDTH=120 HEIGHT=40 ALT=\"Harbour Lane Bakery\">",
    "MENUPDF\x02<A HREF=\"files\\menu-2024.pdf\">our menu (PDF)</A>",
    "MAPLINK\x02<A HREF=\"https://maps.example/?q=Harbour+Lane+Portsmouth\">map</A>",
    "NEWSURL\x02https://www.harbourlane.example/news/",
    "SHOPNAME\x02Harbour Lane Caf&eacute;",
    "TWITTER\x02@harbourlane",
    "VATNO\x02VAT GB 123 4567 89",
    "BOOKLINK\x02<A HREF=\"https://www.harbourlane.example/book.html\">book a table</A>",
    "LASTUPD\x02Last updated 14 March 2024",
};

// Rows with the terms as whole words, near misses that stay (inside a tag's
// text, longer words, other case), UTF-8 characters for the entity pass and
// backslashes inside and outside tags.
const QByteArrayList kRows = {
    "<P CLASS=\"intro\">Welcome to SITENAME, TAGLINE. Caf\xc3\xa9 cr\xc3\xa8me and pain au chocolat "
    "\xe2\x80\x94 baked by CHEF.</P>\r\n",
    "<P>Call us on PHONE or write to WEBMASTER; we are open OPENHOURS (ADDRESS1).</P>\r\n",
    "<TABLE BORDER=0><TR><TD> LOGOIMG </TD><TD><A HREF=\"menu\\today.html#bread\">today\xe2\x80\x99s "
    "bread</A> \xc2\xa9 2024, see MENUPDF or MAPLINK</TD></TR></TABLE>\r\n",
    "<P CLASS=\"news\">News at NEWSURL: SHOPNAME now serves SITENAMES-style brunch; follow TWITTER. "
    "The word sitename is no alias, nor is <B>SITENAME</B>. C:\\recipes\\bread.txt</P>\r\n",
    "<UL><LI> BOOKLINK </LI><LI>MAILTO</LI><LI>(VATNO)</LI></UL>\r\n",
    "<P>Stra\xc3\x9f" "e, na\xc3\xafve, \xc2\xbd kg flour at \xc2\xa3" "3.20 \xe2\x80\x93 "
    "<IMG SRC=\"images\\flour.jpg\" ALT=\"flour\"> see SITEURL for more.</P>\r\n",
    "<DIV CLASS=\"foot\">\r\nFOOTER\r\nLASTUPD.\r\n</DIV>\r\n",
};

int generate(const QString &path, int megabytes)
{
    if (!qly::bench::writeGeneratedPage(path, megabytes, kRows))
        return 1;
    QFile aliases(QFileInfo(path).dir().filePath(QStringLiteral("aliases.inf")));
    if (!aliases.open(QIODevice::WriteOnly))
        return 1;
    for (const char *line : kAliases)
        aliases.write(QByteArray(line) + "\x02yes\x02yes\r\n");
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s generate FILE [MB] | publish FILE TARGET\n", argv[0]);
        return 2;
    }
    const QString mode = QString::fromLocal8Bit(argv[1]);
    const QString file = QString::fromLocal8Bit(argv[2]);
    if (mode == QLatin1String("generate"))
        return generate(file, argc > 3 ? std::atoi(argv[3]) : 20);
    if (argc < 4)
        return 2;
    qly::platform::ConsolePrompts prompts;
    qly::platform::setPrompts(&prompts);
    const QString dir = QFileInfo(file).absolutePath();
    qly::core::setProgramDirectory(dir);
    qly::core::gIniFile = QDir(dir).filePath(QStringLiteral("bench.ini"));
    QFile ini(qly::core::gIniFile);
    if (!ini.open(QIODevice::WriteOnly))
        return 1;
    ini.write("[Publishing]\r\nTranslate Extended Characters=Yes\r\nUse Aliases=Yes\r\nUse UNIX Slashes=Yes\r\n"
              "Publish as UNIX Text=Yes\r\n[General]\r\nCreate BAK Files=Yes\r\n");
    ini.close();
    const long before = qly::bench::peakKiB();
    QElapsedTimer timer;
    timer.start();
    const bool ok = qly::publish::PublishFile(file, QString::fromLocal8Bit(argv[3]));
    const qint64 ms = timer.elapsed();
    const qint64 bytes = QFileInfo(file).size();
    const long peak = qly::bench::peakKiB();
    std::printf("quillery  publish %6lld ms  bytes %lld  peak %ld MiB (%.1f x the page; %ld MiB before publishing)\n",
                ms, bytes, peak / 1024, double(peak) * 1024.0 / double(bytes), before / 1024);
    return ok ? 0 : 1;
}
