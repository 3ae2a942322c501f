#include "publish/Preview.h"

#include "core/Feedback.h"
#include "core/FileIo.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "documents/Workspace.h"
#include "documents/Document.h"
#include "documents/TempFiles.h"
#include "markup/Attributes.h"
#include "markup/TextOps.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"
#include "publish/Publish.h"

#include <QDir>
#include <QFileInfo>
#include <QTime>

namespace qly::publish {

using namespace qly::core;

namespace {

const QString kGeneral = QStringLiteral("General");

QString classesDirectory()
{
    return JoinPath(ProgramDirectory(), QStringLiteral("classes"));
}

// The class file in the program's "classes" folder: the name as written,
// or, since pages were written for file systems that ignore case, the one
// file whose name matches it without regard to case.
QString findClass(const QString &name)
{
    const QString exact = JoinPath(classesDirectory(), name);
    if (FileExists(exact) || name.contains(u'/') || name.contains(u'\\'))
        return FileExists(exact) ? exact : QString();
    const QStringList entries = QDir(classesDirectory()).entryList(QDir::Files);
    for (const QString &entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return JoinPath(classesDirectory(), entry);
    }
    return QString();
}

// Copies a class from the program's folder to `directory` under `asName`.
// Unless `overwrite`, a file already there is kept. True when copied.
bool copyClass(const QString &name, const QString &directory, const QString &asName, bool overwrite = false)
{
    const QString target = JoinPath(directory, asName);
    if (!overwrite && FileExists(target))
        return false;
    const QString source = findClass(name);
    if (source.isEmpty())
        return false;
    QByteArray bytes;
    const IoResult read = readWholeFile(source, bytes);
    QDir().mkpath(QFileInfo(target).absolutePath());
    const IoResult written = read.ok() ? writeFileAtomically(target, bytes) : read;
    if (!written.ok()) {
        StepFailed(QStringLiteral("Could not copy ") + source + QStringLiteral(" to ") + target + QStringLiteral(": ")
                   + written.message);
        return false;
    }
    return true;
}

} // namespace

QString GetPreviewDirectory()
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    const QString docDir = doc ? DirectoryOf(doc->captionPath()) : QString();
    const bool publishFirst = ReadSettingFlag(kGeneral, QStringLiteral("Publish Previews"));
    QString dir = docDir;
    if (!DirExists(docDir) && !publishFirst) {
        const QString documents = ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Documents"));
        dir = DirExists(documents) ? documents : ProgramDirectory();
    }
    if (publishFirst) {
        const QString publish = ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Publish"));
        if (DirExists(publish))
            dir = publish;
        else if (!DirExists(docDir))
            dir = QStringLiteral("ERROR:Cannot find 'Publish' directory to allow 'Publish Before Preview' option to "
                                 "work correctly.");
    }
    return dir;
}

QString PreviewFileName(const QString &directory)
{
    if (ReadSettingFlag(kGeneral, QStringLiteral("Fixed Temp File Name")))
        return JoinPath(directory, QStringLiteral("~qlytemp.htm"));
    return JoinPath(directory, QStringLiteral("~qly") + QTime::currentTime().toString(QStringLiteral("mmss"))
                                   + QStringLiteral(".htm"));
}

void CopyAppletClasses(const QString &directory)
{
    for (const char *name : {"ver.class", "myfont.class", "createcolor.class"})
        copyClass(QString::fromLatin1(name), directory, QString::fromLatin1(name));
}

void CopyNeededApplets(const QString &text, const QString &directory, const QString &helperName)
{
    static const QStringList effects = {
        QStringLiteral("wavy.class"),   QStringLiteral("spread.class"),      QStringLiteral("scroller.class"),
        QStringLiteral("bounce.class"), QStringLiteral("mexicanwave.class"), QStringLiteral("jumpman.class"),
    };
    QStringList tags;
    markup::CollectSpans(text, QStringLiteral("<applet"), QStringLiteral(">"), tags);
    for (const QString &tag : std::as_const(tags)) {
        QString code = markup::GetAttributeValue(tag, QStringLiteral("code"));
        if (code.isEmpty())
            continue;
        if (GetFileExt(code).isEmpty())
            code += QStringLiteral(".class");
        if (effects.contains(code.toLower()))
            CopyAppletClasses(directory);
        const bool copied = copyClass(code, directory, code);
        if (copied && code.compare(QLatin1String("lfled.class"), Qt::CaseInsensitive) == 0)
            copyClass(QStringLiteral("lfledhelp.class"), directory, helperName, true);
    }
}

void PreviewDocument(const QString &browser, const QString &mode)
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return;
    if (doc->bRemote) {
        ShowStatus(QStringLiteral("Quillery cannot preview remote documents"));
        return;
    }
    BeginWait();
    const bool all = mode.compare(QLatin1String("ALL"), Qt::CaseInsensitive) == 0;
    const QString dir = GetPreviewDirectory();
    if (dir.startsWith(QLatin1String("ERROR:"))) {
        EndWait();
        platform::MsgBox(dir.mid(6), platform::Buttons::Ok, platform::Icon::Exclamation);
        return;
    }
    documents::CleanTempFiles(dir);
    const QString tempFile = PreviewFileName(dir);
    CopyNeededApplets(doc->txtDoc().Text(), dir, QStringLiteral("lfledhelp.class"));

    bool ok = true;
    if (ReadSettingFlag(kGeneral, QStringLiteral("Publish Previews"))) {
        ok = PublishFile(QString(), tempFile);
        BeginWait();
    } else {
        const IoResult saved = doc->RawSaveFile(tempFile);
        ok = saved.ok();
    }
    if (!ok) {
        ErrorBox(QStringLiteral("Unable to save file.") + QStringLiteral(": ") + tempFile);
        EndWait();
        return;
    }

    QString current = browser;
    for (int i = 1;; ++i) {
        if (all)
            current = ReadSetting(QStringLiteral("Browsers"), QString::number(i)).trimmed();
        if (FileExists(current)) {
            ShowStatus(QStringLiteral("Previewing with ") + current);
            OpenInBrowser(current, tempFile);
        } else if (!current.isEmpty()) {
            platform::MsgBox(QStringLiteral("Cannot find ") + current, platform::Buttons::Ok,
                             platform::Icon::Exclamation, QStringLiteral("WWW Browser Not Found"));
        }
        if (current.isEmpty() || !all)
            break;
    }
    DoEvents();
    EndWait();
}

} // namespace qly::publish

namespace qly::publish {

void tlbPreview_Click(const std::function<void()> &chooseBrowser)
{
    if (!documents::Workspace::CurrentDocument())
        return;
    const QString browser = core::ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Browser"));
    if (browser.isEmpty()) {
        platform::MsgBox(QStringLiteral("Please choose a browser to preview with, use the triangle to the left of "
                                        "this button to get the menu."),
                         platform::Buttons::Ok, platform::Icon::Information);
    } else if (chooseBrowser && core::ReadSettingFlag(QStringLiteral("General"),
                                                      QStringLiteral("Choose Browser Before Preview"))) {
        chooseBrowser();
    } else {
        PreviewDocument(browser);
    }
}

} // namespace qly::publish
