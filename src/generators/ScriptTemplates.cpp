#include "generators/ScriptTemplates.h"

#include "markup/Selection.h"
#include "markup/TagPrimitives.h"
#include "markup/TextOps.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"

namespace qly::generators {

namespace {

const QString kCrLf = QStringLiteral("\r\n");

// A number as the old number formatting writes it: a blank before it.
QString signedNumber(qsizetype n)
{
    return n < 0 ? QString::number(n) : u' ' + QString::number(n);
}

void replaceMarker(QString &text, const char *marker, const QString &value)
{
    markup::ReplaceAll(text, QString::fromLatin1(marker), value);
}

void noHeadBox()
{
    platform::MsgBox(QStringLiteral("Could not build the clock because the </HEAD> tag has not been defined.  "
                                    "Please insert it and try again."),
                     platform::Buttons::Ok, platform::Icon::Information, QStringLiteral("Could Not Add Clock"));
}

// The form goes in at the selection, and the script before </HEAD>.
bool insertFormAndScript(platform::HTMLEdit &edit, const QString &form, const QString &script)
{
    markup::InsertMarkup(form, QString(), true, markup::Target(edit));
    QString head = script + kCrLf + QStringLiteral("</HEAD>");
    if (markup::ReplaceBetween(edit, QStringLiteral("</HEAD"), QStringLiteral(">"), head))
        return true;
    noHeadBox();
    return false;
}

} // namespace

bool getForEachText(QString &tmpl, QString &suffix, QString &block)
{
    const QString start = QStringLiteral("%FOREACH%");
    const QString end = QStringLiteral("%ENDFOREACH%");
    const qsizetype from = tmpl.indexOf(start);
    const qsizetype to = from < 0 ? -1 : tmpl.indexOf(end, from + start.size());
    if (from < 0 || to < 0) {
        block.clear();
        suffix.clear();
        platform::MsgBox(QStringLiteral("The template for this script was not valid"));
        return false;
    }
    block = tmpl.mid(from + start.size(), to - from - start.size());
    suffix = tmpl.mid(to + end.size());
    tmpl.truncate(from);
    return true;
}

QString RandomBannerText(QString tmpl, const QList<BannerRow> &rows)
{
    replaceMarker(tmpl, "%QLNumOfAds%", signedNumber(rows.size()));
    QString suffix;
    QString block;
    getForEachText(tmpl, suffix, block);
    int n = 0;
    for (const BannerRow &row : rows) {
        QString copy = block;
        replaceMarker(copy, "%IMAGEURL%", row.imageUrl);
        replaceMarker(copy, "%URL%", row.linkUrl);
        replaceMarker(copy, "%NUM%", signedNumber(++n));
        replaceMarker(copy, "%IMAGETEXT%", row.caption.isEmpty() ? QString() : QStringLiteral("<BR>") + row.caption);
        tmpl += copy;
    }
    return tmpl + suffix;
}

QString SelectUrlText(const QList<PickRow> &rows)
{
    QString out = QStringLiteral("<!--") + kCrLf + QStringLiteral("    Select List JavaScript") + kCrLf
                  + QStringLiteral("    Created by Lumenfold Quillery") + kCrLf
                  + QStringLiteral("    Quillery, the HTML editor for hand-written pages") + kCrLf
                  + QStringLiteral("-->") + kCrLf + QStringLiteral("<form>") + kCrLf
                  + QStringLiteral("<select name=\"list\">") + kCrLf;
    bool first = true;
    for (const PickRow &row : rows) {
        out += (first ? QStringLiteral("<option selected value=\"") : QStringLiteral("<option value=\"")) + row.url
               + QStringLiteral("\">") + row.text + kCrLf;
        first = false;
    }
    return out + QStringLiteral("<select>") + kCrLf + QStringLiteral("<input type=button value=\"Go\"") + kCrLf
           + QStringLiteral("onClick=\"top.location.href=this.form.list.options[this.form.list.selectedIndex].value\">")
           + kCrLf + QStringLiteral("</form>") + kCrLf;
}

QString PopupText(const PopupFields &f)
{
    auto flag = [](const char *name, bool on) { return QString::fromLatin1(name) + (on ? u'1' : u'0') + u','; };
    const QString features = flag("toolbar=", f.toolbar) + QStringLiteral("location=1,")
                             + flag("directories=", f.directories) + flag("status=", f.status)
                             + flag("menubar=", f.menubar) + flag("scrollbars=", f.scrollbars)
                             + flag("resizable=", f.resizable) + QStringLiteral("width=") + f.width
                             + QStringLiteral(",height=") + f.height;
    return QStringLiteral("<Form> <input type=button value=\"") + f.caption
           + QStringLiteral("\" onclick=window.open(\"") + f.url + QStringLiteral("\",\"Popup\",\"") + features
           + QStringLiteral("\")></Form>");
}

bool InsertClock(platform::HTMLEdit &edit, const QString &size, const QString &clockTemplate)
{
    edit.PrepareUndo();
    const QString form = QStringLiteral("<form name=\"lfcinput\">") + kCrLf
                         + QStringLiteral("<input type=\"text\" name=\"lfcname\" size=") + size + u'>' + kCrLf
                         + QStringLiteral("</form>");
    bool done = insertFormAndScript(edit, form, clockTemplate);
    if (done) {
        QString body = QStringLiteral("<BODY onLoad=\"lfcstart()\" onunload=\"lfcstop()\" ");
        markup::ReplaceBetween(edit, QStringLiteral("<BOD"), QStringLiteral("Y"), body);
    }
    edit.EndPUndo();
    return done;
}

bool InsertScrolling(platform::HTMLEdit &edit, const QString &message, const QString &size,
                     const QString &scrollingTemplate)
{
    if (message.isEmpty())
        return false;
    edit.PrepareUndo();
    const QString form = QStringLiteral("<form name=\"scrollform\">") + kCrLf
                         + QStringLiteral("<input type=\"text\" name=\"scrolling\" size=") + size + u'>' + kCrLf
                         + QStringLiteral("</form>");
    QString script = scrollingTemplate;
    replaceMarker(script, "%MESSAGE%", message);
    const bool done = insertFormAndScript(edit, form, script);
    if (done && markup::SelectBetween(edit, QStringLiteral("<BODY"), QStringLiteral(">")) > 0) {
        QString body = edit.SelText();
        body.chop(1);
        body += QStringLiteral(" onload=\"lfscrolling()\">");
        markup::ReplaceBetween(edit, QStringLiteral("<BODY"), QStringLiteral(">"), body);
    }
    edit.EndPUndo();
    return done;
}

bool InsertNoFrames(platform::HTMLEdit &edit)
{
    QString body = QStringLiteral("<BODY onLoad=\"top.location.href = document.location.href\" ");
    return markup::ReplaceBetween(edit, QStringLiteral("<BOD"), QStringLiteral("Y"), body);
}

} // namespace qly::generators
