#include "cli/Commands.h"

#include <QDate>

#include <cstdio>

namespace qly::cli {

namespace {

// Text for roff: backslashes doubled, a leading point or quote protected.
QString roff(QString text)
{
    text.replace(u'\\', QStringLiteral("\\e"));
    text.replace(u'-', QStringLiteral("\\-"));
    QStringList lines = text.split(u'\n');
    for (QString &line : lines) {
        line = line.trimmed();
        if (line.startsWith(u'.') || line.startsWith(u'\''))
            line.prepend(QStringLiteral("\\&"));
    }
    return lines.join(u'\n');
}

QString header(const QString &name, const QString &summary)
{
    return QStringLiteral(".TH %1 1 \"%2\" \"Quillery 4.01\" \"User Commands\"\n.SH NAME\n%3 \\- %4\n")
        .arg(name.toUpper(), QStringLiteral("November 2026"), roff(name), roff(summary));
}

QString editorPage()
{
    QString page = header(QStringLiteral("quillery"), QStringLiteral("an editor for HTML written by hand"));
    page += QStringLiteral(
        ".SH SYNOPSIS\n.B quillery\n[\\fB/ini:\\fIFILE\\fR] [\\fIFILE\\fR]\n"
        ".SH DESCRIPTION\n"
        "Quillery edits HTML, text and template files as coloured text in a multi\\-document window. "
        "Markup goes in through a tag tree, toolbars and generator dialogs; pages are previewed in "
        "browsers and in a preview tab; websites are kept as projects, checked and uploaded.\n"
        ".PP\nOnly one copy runs for each user: a second start with a file hands the file to the "
        "running copy, which opens it; a second start without a file ends at once.\n"
        ".SH OPTIONS\n"
        ".TP\n\\fB/ini:\\fIFILE\\fR\nUse \\fIFILE\\fR as the configuration file for the rest of the run.\n"
        ".TP\n\\fIFILE\\fR\nOpens the file as a document. A website project (\\fI.prj\\fR) opens as a website.\n"
        ".SH FILES\n"
        ".TP\n\\fI$XDG_CONFIG_HOME/quillery/quillery.ini\\fR\nThe configuration, made from the shipped "
        "\\fIquillery.default.ini\\fR on the first start, unless a \\fIquillery.ini\\fR stands beside the "
        "program's data (a portable installation).\n"
        ".TP\n\\fI$XDG_DATA_HOME/quillery\\fR\nThe program's data for an installed program: templates, "
        "styles, the character table, the custom dictionary. It is copied from the installed data on "
        "the first start; files added by a newer version are copied when missing.\n"
        ".SH AUTOMATION\nOther programs drive the running editor over the session bus (name "
        "\\fIorg.quillery.Quillery\\fR, object \\fI/QuilleryApp\\fR); see \\fBquillery\\-cli\\fR(1), "
        "command \\fBapp\\fR.\n"
        ".SH SIGNALS\nSIGTERM and SIGHUP close the program the ordinary way, asking about unsaved "
        "documents.\n"
        ".SH SEE ALSO\n\\fBquillery\\-cli\\fR(1)\n");
    return page;
}

QString commandLinePage()
{
    QString page = header(QStringLiteral("quillery-cli"), QStringLiteral("Quillery's batch work without a window"));
    page += QStringLiteral(".SH SYNOPSIS\n.B quillery\\-cli\n[\\fB\\-\\-ini\\fR \\fIFILE\\fR] \\fICOMMAND\\fR "
                           "[\\fIARGUMENTS\\fR]\n.SH DESCRIPTION\nRuns the editor's batch work on files, with "
                           "the same rules and settings as the editor. Messages go to standard error.\n"
                           ".SH OPTIONS\n.TP\n\\fB\\-\\-ini\\fR \\fIFILE\\fR\nUse \\fIFILE\\fR as the configuration "
                           "file.\n.TP\n\\fB\\-\\-help\\fR, \\fB\\-h\\fR\nShow the commands.\n.SH COMMANDS\n");
    for (const Subcommand &c : subcommands()) {
        page += QStringLiteral(".TP\n\\fB%1\\fR %2\n%3\n")
                    .arg(roff(c.name), roff(c.arguments).replace(u'\n', u' '), roff(c.summary));
    }
    page += QStringLiteral(".SH EXIT STATUS\n0 on success, 1 when the work failed or found nothing, 2 on a "
                           "usage error; each command above tells its own meaning.\n"
                           ".SH SEE ALSO\n\\fBquillery\\fR(1)\n");
    return page;
}

} // namespace

int printManPage(const QString &program)
{
    QString page;
    if (program == QLatin1String("quillery"))
        page = editorPage();
    else if (program == QLatin1String("quillery-cli"))
        page = commandLinePage();
    else
        return ExitUsage;
    std::fputs(page.toUtf8().constData(), stdout);
    return ExitOk;
}

} // namespace qly::cli
