#include "automation/QuilleryApp.h"

#include "core/Paths.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "documents/FileMenu.h"
#include "documents/NewDocument.h"
#include "documents/Workspace.h"
#include "markup/TagPrimitives.h"
#include "platform/HTMLEdit.h"

#include <QFileInfo>

namespace qly::automation {

using documents::Document;
using documents::Workspace;

namespace {

bool isNameChar(QChar c)
{
    return c.isLetterOrNumber() || c == u'-' || c == u':';
}

// Puts `text` into the current document at the place AddPosition finds.
void addAt(const QString &stem, QChar marker, const QString &text)
{
    Document *doc = Workspace::CurrentDocument();
    if (!doc)
        return;
    platform::HTMLEdit &edit = doc->txtDoc();
    const qsizetype at = AddPosition(edit.Text(), stem, marker);
    if (at < 0)
        return;
    edit.SetSel(int(at), int(at));
    markup::InsertMarkup(text, QString(), true);
}

} // namespace

qsizetype AddPosition(const QString &text, const QString &stem, QChar marker)
{
    const bool endTag = stem.startsWith(QLatin1String("</"));
    for (qsizetype at = text.indexOf(stem, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(stem, at + 1, Qt::CaseInsensitive)) {
        const qsizetype behind = at + stem.size();
        // The stem and its last letter make the whole name: "<HEADER" is no "<HEAD".
        if (behind >= text.size() || text.at(behind).toUpper() != marker.toUpper())
            continue;
        if (behind + 1 < text.size() && isNameChar(text.at(behind + 1)))
            continue;
        if (endTag)
            return at;
        const qsizetype close = text.indexOf(u'>', behind);
        return close < 0 ? -1 : close + 1;
    }
    return -1;
}

QString QuilleryApp::AppPath() const
{
    return core::ProgramDirectory();
}

QString QuilleryApp::TEPICurrentDocFilePath() const
{
    const Document *doc = Workspace::CurrentDocument();
    return doc && doc->IsSaved() ? doc->LocalFileName : QString();
}

bool QuilleryApp::CloseAllDocs()
{
    return documents::CloseAllDocuments();
}

bool QuilleryApp::TEPINewDoc()
{
    return documents::NewDocument(QString()) != nullptr;
}

bool QuilleryApp::TEPIOpenDoc(const QString &Filename)
{
    if (Filename.isEmpty()) {
        documents::mnuOpen_Click();
        return true;
    }
    if (!documents::OpenDocumentFile(Filename))
        return false;
    const QString wanted = QFileInfo(Filename).absoluteFilePath();
    for (Document *doc : documents::AllDocuments()) {
        if (QFileInfo(doc->LocalFileName).absoluteFilePath() == wanted) {
            doc->activate();
            break;
        }
    }
    return true;
}

bool QuilleryApp::TEPISaveAllDocs()
{
    return documents::SaveAllDocuments(false, false);
}

qint16 QuilleryApp::TEPIGetNumDocuments() const
{
    return Workspace::CurrentDocument() ? 1 : 0;
}

qint16 QuilleryApp::TEPIGetCurrentDocument() const
{
    return Workspace::CurrentDocument() ? 1 : 0;
}

QString QuilleryApp::TEPIGetText() const
{
    Document *doc = Workspace::CurrentDocument();
    return doc ? doc->txtDoc().Text() : QString();
}

void QuilleryApp::TEPISetText(const QString &text)
{
    if (Document *doc = Workspace::CurrentDocument())
        doc->txtDoc().setText(text);
}

void QuilleryApp::TEPIReplaceText(const QString &text)
{
    markup::InsertMarkup(text, QString());
}

void QuilleryApp::TEPIAddBody(const QString &bodyText)
{
    addAt(QStringLiteral("<BOD"), u'Y', bodyText);
}

void QuilleryApp::TEPIAddEndBody(const QString &bodyText)
{
    addAt(QStringLiteral("</BOD"), u'Y', bodyText);
}

void QuilleryApp::TEPIAddHead(const QString &text)
{
    addAt(QStringLiteral("<HEA"), u'D', text);
}

void QuilleryApp::TEPIAddEndHead(const QString &text)
{
    addAt(QStringLiteral("</HEA"), u'D', text);
}

} // namespace qly::automation
