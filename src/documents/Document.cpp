#include "documents/Document.h"

#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "documents/FileFilter.h"
#include "documents/FileRegistry.h"
#include "documents/Workspace.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"

#include <QFileInfo>

namespace qly::documents {

using namespace qly::core;

namespace {

// Tells why a save failed. A read-only file gets the box users know; other
// failures say what went wrong. The old file is whole in every case, since
// saves are atomic.
void reportSaveFailure(const QString &path, const IoResult &result)
{
    const QFileInfo info(path);
    const QString dir = info.absolutePath();
    QString text;
    if (result.error == ErrFileAccess && info.exists()) {
        text = QStringLiteral("This file is read-only and Quillery 4.01 cannot save any changes to it.");
    } else if (!DirExists(dir)) {
        text = QStringLiteral("Quillery 4.01 could not save ") + path + QStringLiteral(": the folder ") + dir
               + QStringLiteral(" does not exist. Nothing has been written.");
    } else {
        text = QStringLiteral("Quillery 4.01 could not save ") + path + QStringLiteral(": ") + result.message
               + QStringLiteral(". Any earlier version of the file is unchanged.");
    }
    platform::MsgBox(text, platform::Buttons::Ok, platform::Icon::Exclamation,
                     QStringLiteral("Problem Saving File"));
}

// The text between <TITLE> and </TITLE> as it stands, found without regard to case.
QString pageTitle(const QString &text)
{
    const qsizetype open = text.indexOf(QLatin1String("<TITLE>"), 0, Qt::CaseInsensitive);
    if (open < 0)
        return {};
    const qsizetype from = open + 7;
    const qsizetype close = text.indexOf(QLatin1String("</TITLE>"), from, Qt::CaseInsensitive);
    if (close < 0)
        return {};
    return text.mid(from, close - from);
}

} // namespace

DocumentHooks &documentHooks()
{
    static DocumentHooks hooks;
    return hooks;
}

bool Document::IsSaved() const
{
    return FileExists(LocalFileName);
}

bool Document::LoadFile(const QString &path)
{
    const IoResult result = txtDoc().LoadFile(1, path);
    LocalFileName = path;
    FileRegistry &registry = FileRegistry::instance();
    if (filenum != 0)
        registry.ForgetFile(filenum);
    const QString cap = caption();
    const bool untitled = cap.startsWith(QLatin1String("Untitled"), Qt::CaseInsensitive) && cap.size() > 8;
    filenum = registry.AddFile(untitled ? cap : path);
    registry.SetFileName(filenum, path);
    bNeedsPreview = false;
    return result.ok();
}

bool Document::Save()
{
    BeginWait();
    bool ok = true;
    if (FileExists(LocalFileName)) {
        const QString path = LocalFileName;
        ShowStatus(QStringLiteral("Saving ") + path);
        const IoResult result = txtDoc().SaveFile(1, path);
        FileRegistry::instance().SetFileName(filenum, path);
        if (!result.ok()) {
            EndWait();
            reportSaveFailure(path, result);
            ok = false;
        } else if (bRemote && documentHooks().sendRemote && !documentHooks().sendRemote(*this)) {
            // Written here but not on the server: still a change to save.
            ok = false;
        } else {
            if (documentHooks().addRecentFile)
                documentHooks().addRecentFile(path);
            txtDoc().setDirty(false);
        }
    } else {
        // A file whose folder has gone since it was opened: say so before the
        // dialog asks for a new place.
        const QString dir = LocalFileName.isEmpty() ? QString() : QFileInfo(LocalFileName).absolutePath();
        if (!dir.isEmpty() && !DirExists(dir)) {
            EndWait();
            platform::MsgBox(QStringLiteral("The folder ") + dir + QStringLiteral(" no longer exists. Choose where to save ")
                                 + FileNameOf(LocalFileName) + u'.',
                             platform::Buttons::Ok, platform::Icon::Exclamation);
        }
        ok = SaveAs();
    }
    EndWait();
    ShowStatus(QString());
    return ok;
}

bool Document::SaveAs()
{
    platform::FileRequest request;
    request.directory = GetFileLocation(QStringLiteral("Documents"));
    request.title = versionCaption() + QStringLiteral(" - Save File As");
    request.filter = FileFilter();
    // The web pages' filter only when the default extension is forced; the
    // second one, "Text Files", otherwise, as the Open dialog.
    request.filterIndex = ReadSettingFlag(QStringLiteral("Editing"), QStringLiteral("Force DefaultExt")) ? 1 : 2;
    request.promptOverwrite = true;
    request.fileName = pageTitle(txtDoc().Text());
    EndWait();
    const platform::FileAnswer answer = platform::prompts().saveFile(request);
    if (!answer.accepted())
        return false;
    return NamedSaveAs(answer.files.first());
}

bool Document::NamedSaveAs(const QString &chosen)
{
    QString path = chosen;
    if (GetFileExt(path).isEmpty()) {
        QString ext = ReadSetting(QStringLiteral("Editing"), QStringLiteral("Default Document Extension"));
        if (ext.isEmpty())
            ext = QStringLiteral("HTM");
        path += u'.' + ext;
    }
    // What the document was, should the write fail: it then keeps its old name.
    const QString oldFile = LocalFileName;
    const QString oldShow = ShowFileName;
    const QString oldCaption = caption();
    const bool oldRemote = bRemote;

    LocalFileName = path;
    FileRegistry::instance().SetFileName(filenum, path);
    ShowCaptionAndTab(path);
    ShowFileName = path;
    bRemote = false;
    // Dirty is left as it was, unlike in Save: a document that has only been
    // through Save As still counts as changed, keeps the "*" of its caption,
    // and the exit asks about it.
    const IoResult result = txtDoc().SaveFile(1, path);
    if (!result.ok()) {
        reportSaveFailure(path, result);
        LocalFileName = oldFile;
        FileRegistry::instance().SetFileName(filenum, oldFile);
        ShowCaptionAndTab(oldCaption);
        ShowFileName = oldShow;
        bRemote = oldRemote;
        return false;
    }
    return true;
}

bool Document::SaveRemote()
{
    return documentHooks().saveRemote && documentHooks().saveRemote(*this);
}

IoResult Document::RawSaveFile(const QString &path)
{
    return txtDoc().SaveFile(1, path);
}

void Document::ShowCaptionAndTab(const QString &name, bool)
{
    // A second window of the same file is told apart by ":2", a third by ":3" ...
    QList<int> taken;
    if (Workspace *ws = Workspace::instance()) {
        for (const Document *other : ws->documentList()) {
            if (other == this || StripDocSuffix(other->caption()) != name)
                continue;
            const QString caption = other->caption();
            taken << (caption == name ? 1 : caption.mid(caption.lastIndexOf(u':') + 1).trimmed().toInt());
        }
    }
    QString caption = name;
    if (!taken.isEmpty()) {
        int n = 2;
        while (taken.contains(n))
            ++n;
        caption += u':' + QString::number(n);
    }
    setCaption(caption);
    ShowFileName = name;
}

QString Document::captionPath() const
{
    return StripDocSuffix(caption());
}

QString StripDocSuffix(const QString &caption)
{
    const qsizetype colon = caption.lastIndexOf(u':');
    if (colon < 2)
        return caption;
    qsizetype i = colon + 1;
    while (i < caption.size() && caption.at(i) == u' ')
        ++i;
    qsizetype j = i;
    while (j < caption.size() && caption.at(j).isDigit())
        ++j;
    return (j > i && caption.mid(i, j - i).toLongLong() > 0) ? caption.left(colon) : caption;
}

} // namespace qly::documents
