#include "texttools/TextToHtmlFile.h"

#include "core/Feedback.h"
#include "core/FileIo.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/TextCodec.h"
#include "documents/Document.h"
#include "documents/Workspace.h"
#include "markup/TagPrimitives.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace qly::texttools {

using namespace qly::core;

namespace {

void tellNotText(const QString &path)
{
    platform::MsgBox(path + QStringLiteral(" holds binary data, not text; it was left alone."),
                     platform::Buttons::Ok, platform::Icon::Exclamation);
}

// Reads a text file; tells the user and gives false when it cannot be read
// or is no text.
bool readText(const QString &path, DecodedFile &decoded)
{
    QByteArray bytes;
    const IoResult read = readWholeFile(path, bytes);
    if (!read.ok()) {
        ErrorBox(read.message + QStringLiteral(": ") + path);
        return false;
    }
    if (IsMostlyControlBytes(bytes)) {
        tellNotText(path);
        return false;
    }
    decoded = decodeFile(bytes);
    return true;
}

// Replaces the current document's text with the page, as one undo step.
void loadIntoCurrentDocument(const QString &page)
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return;
    platform::HTMLEdit &edit = doc->txtDoc();
    edit.PrepareUndo();
    edit.setText(page);
    edit.EndPUndo();
    edit.setDirty(true);
}

} // namespace

QString ConversionDirectory()
{
    QString user = qEnvironmentVariable("USER");
    if (user.isEmpty())
        user = QStringLiteral("user");
    const QString dir = QDir::temp().filePath(QStringLiteral("quillery-") + user);
    QDir().mkpath(dir);
    return dir;
}

bool ConvertTextFile(const QString &inputPath, const QString &outputPath, const ConvertOptions &options,
                     QString *page)
{
    DecodedFile input;
    if (!readText(inputPath, input))
        return false;
    input.text.remove(QChar(0));
    const QString result = ConvertText(input.text, options);
    const IoResult written = writeFileAtomically(outputPath, encodeText(result, input.encoding));
    if (!written.ok()) {
        ErrorBox(written.message + QStringLiteral(": ") + outputPath);
        return false;
    }
    if (page)
        *page = result;
    return true;
}

bool ConvertFile(const QString &inputPath, QString &outputName, bool loadResult, const ConvertOptions &options)
{
    QString dir = DirectoryOf(inputPath);
    if (!DirExists(dir))
        dir = QDir::currentPath();
    outputName = JoinPath(dir, outputName);
    ShowStatus(QStringLiteral("Writing ") + outputName);
    QString page;
    if (!ConvertTextFile(inputPath, outputName, options, loadResult ? &page : nullptr))
        return false;
    if (loadResult)
        loadIntoCurrentDocument(page);
    return true;
}

QString SaveCurrentDocumentTo(const QString &name)
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return {};
    const QString fileName = name.isEmpty()
                                 ? QStringLiteral("~qly") + QDateTime::currentDateTime().toString(QStringLiteral("mmss"))
                                       + QStringLiteral(".tmp")
                                 : name;
    const QString path = JoinPath(ConversionDirectory(), fileName);
    QFile::remove(path);
    return doc->txtDoc().SaveFile(1, path).ok() ? path : QString();
}

void InsertTextFile(const QString &path)
{
    if (!FileExists(path) || !QFileInfo(path).isFile()) {
        ErrorBox(QStringLiteral("File not found.") + QStringLiteral(": ") + path);
        return;
    }
    DecodedFile decoded;
    if (!readText(path, decoded))
        return;
    QString text = decoded.text.remove(QChar(0));
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return;
    const int selStart = doc->txtDoc().SelStart();
    if (ReadSetting(QStringLiteral("General"), QStringLiteral("Preformat Text")).toLower() != QLatin1String("no"))
        text = QStringLiteral("<PRE>\r\n") + text + QStringLiteral("\r\n</PRE>");
    markup::InsertMarkup(text, QString());
    doc->txtDoc().setSelStart(selStart);
}

void InsertTextFile_Click()
{
    if (!documents::Workspace::CurrentDocument())
        return;
    platform::FileRequest request;
    request.title = QStringLiteral("Insert Text File");
    request.filter = QStringLiteral("Text Files (*.txt)|*.txt|All Files (*.*)|*.*");
    request.directory = GetFileLocation(QStringLiteral("Documents"), true);
    const platform::FileAnswer answer = platform::prompts().openFile(request);
    if (answer.accepted())
        InsertTextFile(answer.files.first());
}

void installTextFileDrop()
{
    documents::documentHooks().insertTextFile = [](const QString &path) { InsertTextFile(path); };
}

} // namespace qly::texttools
