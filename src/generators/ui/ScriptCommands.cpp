#include "generators/ui/ScriptCommands.h"

#include "core/Paths.h"
#include "core/ui/CommandTable.h"
#include "documents/Document.h"
#include "documents/NewDocModel.h"
#include "documents/Workspace.h"
#include "generators/ReplaceChannel.h"
#include "generators/ScriptTemplates.h"
#include "generators/ui/frmChannel.h"
#include "generators/ui/frmJSClock.h"
#include "generators/ui/frmJSPopup.h"
#include "generators/ui/frmPickList.h"
#include "markup/TagPrimitives.h"
#include "platform/HTMLEdit.h"
#include "tagdialogs/LinkModels.h"

namespace qly::generators::ui {

namespace {

platform::HTMLEdit *currentEdit()
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    return doc ? &doc->txtDoc() : nullptr;
}

// A script template's text, or nothing (the user is told) when it is missing.
bool scriptTemplate(const QString &name, QString &text)
{
    const QString path = CheckTemplateFile(QStringLiteral("JavaScripts"), name);
    if (path.isEmpty())
        return false;
    text = ReadChannelTemplate(path);
    return true;
}

void clock(QWidget *window, bool scrolling)
{
    platform::HTMLEdit *edit = currentEdit();
    if (!edit)
        return;
    frmJSClock dialog(scrolling, window);
    QString tmpl;
    if (!dialog.ask() || !scriptTemplate(scrolling ? QStringLiteral("Scrolling.tpl") : QStringLiteral("Clock.tpl"), tmpl))
        return;
    if (scrolling)
        InsertScrolling(*edit, dialog.message(), dialog.size(), tmpl);
    else
        InsertClock(*edit, dialog.size(), tmpl);
}

void randomBanner(QWidget *window)
{
    frmJSRandomAd dialog(window);
    QString tmpl;
    if (!dialog.ask() || !scriptTemplate(QStringLiteral("AdSpace.tpl"), tmpl))
        return;
    QList<BannerRow> rows;
    for (const QStringList &r : dialog.rows())
        rows << BannerRow{r.value(0), r.value(1), r.value(2)};
    markup::InsertMarkup(RandomBannerText(tmpl, rows), QString());
}

void selectUrl(QWidget *window)
{
    frmPickList dialog(window);
    if (!dialog.ask())
        return;
    QList<PickRow> rows;
    for (const QStringList &r : dialog.rows())
        rows << PickRow{r.value(0), r.value(1)};
    markup::InsertMarkup(SelectUrlText(rows), QString());
}

void runScript(int index, QWidget *window)
{
    QString tmpl;
    switch (index) {
    case 0: clock(window, false); break;
    case 1: randomBanner(window); break;
    case 2:
        if (scriptTemplate(QStringLiteral("LastUpdated.tpl"), tmpl))
            markup::InsertMarkup(tmpl, QString());
        break;
    case 3: clock(window, true); break;
    case 5: selectUrl(window); break;
    case 6:
        if (platform::HTMLEdit *edit = currentEdit())
            InsertNoFrames(*edit);
        break;
    case 7: {
        frmJSPopup dialog(window);
        if (dialog.ask())
            markup::InsertMarkup(PopupText(dialog.fields()), QString());
        break;
    }
    default: break;   // "Credits..." has no action
    }
    if (platform::HTMLEdit *edit = currentEdit()) {
        edit->SetFocus();
        edit->ColorHTML();
    }
}

// Shows a channel dialog; on OK inserts its template filled in.
template <class Dialog, class Fill>
void channel(QWidget *window, const QString &templateName, Fill fill)
{
    const QString path = CheckChannelTemplate(templateName);
    if (path.isEmpty())
        return;
    Dialog dialog(window);
    if (dialog.ask())
        markup::InsertMarkup(fill(ReadChannelTemplate(path), dialog), QString());
}

// The subscribe button: the ordinary link to the channel file, around the
// selection or with the button's text.
void subscribe(QWidget *window)
{
    frmACItem dialog(true, window);
    if (dialog.ask())
        tagdialogs::InsertLinkTag(dialog.url(), QString(), dialog.name());
}

documents::DocumentHooks::PageFiller askChannelPage(QWidget *window, int kind)
{
    if (kind == documents::NewDocModel::NetCaster) {
        frmNetCaster dialog(window);
        if (!dialog.ask())
            return {};
        const NetCasterFields f = dialog.fields();
        return [f](const QString &text) { return FillNetCaster(text, f); };
    }
    frmActiveChannel dialog(window);
    if (!dialog.ask())
        return {};
    const ActiveChannelFields f = dialog.fields();
    return [f](const QString &text) { return FillActiveChannel(text, f); };
}

} // namespace

void registerScriptCommands(core::ui::CommandTable &t, QWidget *window)
{
    for (int index = 0; index <= 7; ++index)
        t.bind(QStringLiteral("InsertJS%1").arg(index), [window, index] { runScript(index, window); });
    t.bind(QStringLiteral("InsertNetCaster"), [window] {
        channel<frmNetCaster>(window, QStringLiteral("NetCasterButton.tpl"),
                              [](const QString &text, const frmNetCaster &d) { return FillNetCaster(text, d.fields()); });
    });
    t.bind(QStringLiteral("InsertChannelDef"), [window] {
        channel<frmActiveChannel>(window, QStringLiteral("ActiveChannelDef.tpl"),
                                  [](const QString &text, const frmActiveChannel &d) {
                                      return FillActiveChannel(text, d.fields());
                                  });
    });
    t.bind(QStringLiteral("InsertChannelItem"), [window] {
        const QString path = CheckChannelTemplate(QStringLiteral("ActiveChannelItem.tpl"));
        if (path.isEmpty())
            return;
        frmACItem dialog(false, window);
        if (dialog.ask())
            markup::InsertMarkup(FillChannelItem(ReadChannelTemplate(path), dialog.name(), dialog.url()), QString());
    });
    t.bind(QStringLiteral("InsertACSubscribe"), [window] { subscribe(window); });
    documents::documentHooks().askChannelPage = [window](int kind) { return askChannelPage(window, kind); };
}

} // namespace qly::generators::ui
