#include "documents/DocumentList.h"

#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "documents/Workspace.h"
#include "documents/ColorTable.h"
#include "documents/Document.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"

#include <QDir>
#include <QFile>

namespace qly::documents {

using namespace qly::core;

namespace {

const QString kLastSession = QStringLiteral("Last Session");
constexpr int kSessionLimit = 99;

bool hasDirectory(const QString &caption)
{
    return caption.contains(u'/') || caption.contains(u'\\');
}

platform::Answer askToSave(const QString &caption)
{
    return platform::MsgBox(QStringLiteral("Do you want to save ") + caption + u'?',
                            platform::Buttons::YesNoCancel, platform::Icon::Question, versionCaption());
}

// What the window does as it loads: state, indent and colouring mode.
void initDocumentWindow(Document &doc)
{
    const bool maximise = ReadSetting(QStringLiteral("Editing"), QStringLiteral("Always Maximise")).toLower()
                          == QLatin1String("yes");
    doc.setWindowState(maximise ? 2 : 0);
    doc.txtDoc().setSelIndent(ReadSetting(QStringLiteral("Editing"), QStringLiteral("Indent")).toInt());
    if (gColorHTML)
        doc.txtDoc().setColorMode(ReadSettingFlag(QStringLiteral("Editing"), QStringLiteral("Quick Color")) ? 1 : 0);
    else
        doc.txtDoc().setColorMode(platform::ColorOff);
}

} // namespace

QList<Document *> AllDocuments()
{
    Workspace *ws = Workspace::instance();
    return ws ? ws->documentList() : QList<Document *>();
}

void ApplyDocumentFont(Document &document)
{
    QString name = ReadSetting(QStringLiteral("Editing"), QStringLiteral("Font Name")).trimmed();
    if (name.isEmpty())
        name = QStringLiteral("MS Sans Serif");
    int size = ReadSetting(QStringLiteral("Editing"), QStringLiteral("Font Size")).trimmed().toInt();
    if (size <= 0)
        size = 10;
    platform::HTMLEdit &edit = document.txtDoc();
    if (edit.FontName() != name || edit.FontSize() != size)
        edit.SetFontAndSize(name, size);
}

void ApplyWordWrap(Document &document)
{
    document.txtDoc().setWordWrap(ReadSettingFlag(QStringLiteral("Display"), QStringLiteral("WordWrap")));
}

Document *CreateDocumentWindow(int windowState)
{
    Workspace *ws = Workspace::instance();
    if (!ws)
        return nullptr;
    gLoadingDocument = true;
    Document *doc = ws->makeDocumentWindow(ReadSettingFlag(QStringLiteral("Display"), QStringLiteral("Explorer Internal")));
    initDocumentWindow(*doc);
    doc->txtDoc().InitColor(ColorTableFromSettings());
    if (ReadSettingFlag(QStringLiteral("Editing"), QStringLiteral("Always Maximize")))
        windowState = 2;
    if (windowState > 0)
        doc->setWindowState(windowState);
    doc->setCaption(QString());
    BeginWait();
    ShowStatus(QStringLiteral("Setting font"));
    ApplyWordWrap(*doc);
    ApplyDocumentFont(*doc);
    return doc;
}

bool OpenDocumentFile(const QString &argument, const QString &showNameIn)
{
    BeginWait();
    auto finish = [](bool result) {
        ShowStatus(QString());
        EndWait();
        DoEvents();
        return result;
    };
    if (argument.isEmpty())
        return finish(false);
    if (GetFileExt(argument).compare(QLatin1String("PRJ"), Qt::CaseInsensitive) == 0) {
        if (documentHooks().openWebsite)
            return finish(documentHooks().openWebsite(argument));
        ErrorBox(argument + QStringLiteral(" is a website project. This version of Quillery cannot open "
                                           "website projects yet, so it was not opened."));
        return finish(false);
    }

    QString path = argument;
    bool session = false;
    int state = 0;
    int tab = 0;
    QRect twips;
    if (argument.contains(u',')) {
        const QStringList parts = argument.split(u',');
        if (parts.size() >= 6) {
            session = true;
            path = parts[0];
            if (path.isEmpty())
                return finish(false);
            state = parts[1].trimmed().toInt();
            twips = QRect(parts[4].trimmed().toInt(), parts[5].trimmed().toInt(),
                          parts[2].trimmed().toInt(), parts[3].trimmed().toInt());
            tab = parts.size() > 6 ? parts[6].trimmed().toInt() : 0;
        }
    }
    if (!FileExists(path)) {
        ErrorBox(path + QStringLiteral(": File not found."));
        return finish(false);
    }
    const QString showName = showNameIn.isEmpty() ? path : showNameIn;
    Document *doc = CreateDocumentWindow(state);
    if (!doc) {
        gLoadingDocument = false;
        return finish(false);
    }
    if (session && state != 2 && twips.width() > 0 && twips.height() > 0)
        doc->setGeometryTwips(twips);
    ShowStatus(QStringLiteral("Opening file ") + FileNameOf(showName) + QStringLiteral("..."));
    if (!doc->LoadFile(path)) {
        Workspace::instance()->unloadDocument(doc);
        gLoadingDocument = false;
        return finish(false);
    }
    if (ReadSettingFlag(QStringLiteral("General"), QStringLiteral("Create BAK Files"))) {
        const QString bak = StripExtension(path) + QStringLiteral(".bak");
        if (bak.compare(path, Qt::CaseInsensitive) != 0) {
            QFile::remove(bak);
            if (!QFile::copy(path, bak))
                StepFailed(QStringLiteral("Could not make the backup ") + bak);
        }
    }
    doc->LocalFileName = path;
    doc->ShowFileName = showName;
    doc->ShowCaptionAndTab(showName, true);
    if (tab != 0)
        doc->selectTab(tab);
    if (documentHooks().addRecentFile)
        documentHooks().addRecentFile(path);
    gLoadingDocument = false;
    if (ReadSettingFlag(QStringLiteral("General"), QStringLiteral("Use Scout Tab")))
        doc->selectTab(1);
    return finish(true);
}

QString SessionEntry(const Document &document)
{
    const QRect g = document.geometryTwips();
    return QStringList{document.captionPath(), QString::number(document.windowState()),
                       QString::number(g.width()), QString::number(g.height()),
                       QString::number(g.x()), QString::number(g.y())}
        .join(u',');
}

bool SaveAllDocuments(bool ask, bool collect, QString *names)
{
    bool result = true;
    QStringList session;
    const QList<Document *> docs = AllDocuments();
    if (!docs.isEmpty()) {
        BeginWait();
        for (auto it = docs.crbegin(); it != docs.crend(); ++it) {
            Document &doc = **it;
            if (doc.txtDoc().Dirty()) {
                platform::Answer answer = platform::Answer::Yes;
                if (ask) {
                    EndWait();
                    answer = askToSave(doc.caption());
                }
                BeginWait();
                if (answer == platform::Answer::Cancel) {
                    result = false;
                    break;
                }
                if (answer == platform::Answer::Yes && !doc.Save()) {
                    result = false;
                    break;
                }
            }
            if (hasDirectory(doc.caption()))
                session << SessionEntry(doc);
            if (collect && names)
                *names += doc.caption() + gCRLF;
        }
    }
    for (int n = 1; n <= kSessionLimit; ++n) {
        const QString key = QString::number(n);
        if (ReadSetting(kLastSession, key).isEmpty())
            break;
        DeleteSetting(kLastSession, key);
    }
    for (int n = 0; n < session.size(); ++n)
        WriteSetting(kLastSession, QString::number(n + 1), session[n]);
    EndWait();
    return result;
}

bool DocumentCloseQuery(Document &document)
{
    if (gClosing)
        return false;
    if (document.txtDoc().Dirty()) {
        document.activate();
        const platform::Answer answer = askToSave(document.caption());
        if (answer == platform::Answer::Cancel)
            return true;
        if (answer == platform::Answer::Yes && !document.Save())
            return true;
    }
    if (document.bRemote) {
        const QString stem = StripExtension(FileNameOf(document.LocalFileName));
        const QString autosave = QDir::current().filePath(stem + QStringLiteral(".qnb"));
        if (QFile::exists(autosave))
            QFile::remove(autosave);
        if (FileNameOf(document.LocalFileName).startsWith(QLatin1String("~qn"), Qt::CaseInsensitive))
            QFile::remove(document.LocalFileName);
    }
    return false;
}

bool CloseAllDocuments()
{
    if (!SaveAllDocuments(true))
        return false;
    Workspace *ws = Workspace::instance();
    for (Document *d : AllDocuments())
        ws->unloadDocument(d);
    return true;
}

} // namespace qly::documents
