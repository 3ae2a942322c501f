#include "tagdialogs/ui/TagDialogCommands.h"

#include "core/ui/CommandTable.h"
#include "core/ui/Shell.h"
#include "documents/Workspace.h"
#include "markup/TagPrimitives.h"
#include "tagdialogs/ui/SimpleDialogs.h"
#include "tagdialogs/ui/frmImage.h"
#include "tagdialogs/ui/frmInput.h"
#include "tagdialogs/ui/frmProperties.h"

#include <QMainWindow>

namespace qly::tagdialogs::ui {

namespace {

QString S(const char *text)
{
    return QString::fromLatin1(text);
}

// Shows a dialog modally for the current document; nothing without one.
void run(QWidget *parent, const QString &name, int kind = 0, int tab = -1)
{
    if (!documents::Workspace::CurrentDocument())
        return;
    TagDialog *dialog = makeTagDialog(name, parent, kind);
    if (!dialog)
        return;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->load();
    if (auto *properties = qobject_cast<frmProperties *>(dialog); properties && tab >= 0)
        properties->showTab(frmProperties::Tab(tab));
    dialog->exec();
}

} // namespace

QStringList tagDialogNames()
{
    return {S("frmImage"), S("frmLink"), S("frmFTPLink"), S("frmNews"), S("frmMail"), S("frmAnchor"),
            S("frmHR"), S("frmFont"), S("frmBaseFont"), S("frmList"), S("frmBackSound"), S("frmProperties")};
}

TagDialog *makeTagDialog(const QString &name, QWidget *parent, int kind)
{
    const auto is = [&name](const char *n) { return name == QLatin1String(n); };
    if (is("frmImage"))
        return new frmImage(parent);
    if (is("frmLink"))
        return new frmLink(parent);
    if (is("frmFTPLink"))
        return new frmSchemeLink(0, parent);
    if (is("frmNews"))
        return new frmSchemeLink(1, parent);
    if (is("frmMail"))
        return new frmSchemeLink(2, parent);
    if (is("frmAnchor"))
        return new frmAnchor(parent);
    if (is("frmHR"))
        return new frmHR(parent);
    if (is("frmFont"))
        return new frmFont(parent);
    if (is("frmBaseFont"))
        return new frmBaseFont(parent);
    if (is("frmList"))
        return new frmList(kind, parent);
    if (is("frmBackSound"))
        return new frmBackSound(parent);
    if (is("frmProperties"))
        return new frmProperties(parent);
    return nullptr;
}

void InsertColor(QWidget *parent)
{
    if (!documents::Workspace::CurrentDocument())
        return;
    const QString picked = PickColour(parent, QString());
    if (!picked.isEmpty())
        markup::InsertMarkup(S("\"#") + picked + u'"', QString(), true);
}

void registerTagDialogCommands(core::ui::Shell &shell)
{
    core::ui::CommandTable &t = shell.commands();
    QWidget *w = shell.mainWindow();
    installInputBox();
    const QList<QPair<const char *, const char *>> commands = {
        {"InsertImage", "frmImage"},  {"InsertURL", "frmLink"},     {"InsertFTP", "frmFTPLink"},
        {"InsertEMail", "frmMail"},   {"InsertNews", "frmNews"},    {"InsertAnchor", "frmAnchor"},
        {"InsertHLine", "frmHR"},     {"InsertList", "frmList"},    {"IBackSound", "frmBackSound"},
        {"FormatFont", "frmFont"},    {"FormatBaseFont", "frmBaseFont"}, {"ViewProperties", "frmProperties"},
    };
    for (const auto &c : commands) {
        const QString dialog = S(c.second);
        t.bind(S(c.first), [w, dialog] { run(w, dialog); });
    }
    t.bind(S("tlbBList"), [w] { run(w, S("frmList"), 0); });
    t.bind(S("tlbNList"), [w] { run(w, S("frmList"), 1); });
    t.bind(S("tlbBackground"), [w] { run(w, S("frmProperties"), 0, frmProperties::Body); });
    t.bind(S("InsertColor"), [w] { InsertColor(w); });
}

} // namespace qly::tagdialogs::ui
