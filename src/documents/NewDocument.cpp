#include "documents/NewDocument.h"

#include "core/Feedback.h"
#include "core/FileIo.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "platform/HTMLEdit.h"

namespace qly::documents {

using namespace qly::core;

namespace {

bool isNameChar(QChar c)
{
    return c.isLetterOrNumber() || c == u'-' || c == u'_' || c == u':' || c == u'.';
}

// Lower-cases the names of tags ("<TABLE", "</TD", "<!DOCTYPE" stays as it
// is) in one pass; comments, attributes and text are left alone.
QString lowerCaseTagNames(const QString &text)
{
    QString out = text;
    const qsizetype n = out.size();
    qsizetype i = 0;
    while (i < n) {
        if (out.at(i) != u'<') {
            ++i;
            continue;
        }
        if (out.mid(i, 4) == QLatin1String("<!--")) {
            const qsizetype end = out.indexOf(QLatin1String("-->"), i + 4);
            if (end < 0)
                break;
            i = end + 3;
            continue;
        }
        qsizetype j = i + 1;
        if (j < n && out.at(j) == u'/')
            ++j;
        if (j >= n || !out.at(j).isLetter()) {
            i = j;
            continue;
        }
        while (j < n && isNameChar(out.at(j))) {
            out[j] = out.at(j).toLower();
            ++j;
        }
        i = j;
    }
    return out;
}

} // namespace

QString TemplatesDirectory()
{
    return JoinPath(ProgramDirectory(), QStringLiteral("Templates"));
}

QString CustomTemplatesDirectory()
{
    return JoinPath(ProgramDirectory(), QStringLiteral("Custom Templates"));
}

QString DefaultTemplateText()
{
    return QStringList{QStringLiteral("<HTML>"), QStringLiteral("<HEAD>"),
                       QStringLiteral("<TITLE> type_Document_Title_here </TITLE>"), QStringLiteral("</HEAD>"),
                       QStringLiteral("<BODY>"), QString(), QStringLiteral("</BODY>"), QStringLiteral("</HTML>")}
        .join(gCRLF);
}

Document *NewDocument(const QString &templateIn)
{
    QString templatePath = templateIn;
    if (!templatePath.isEmpty()) {
        if (!FileExists(templatePath)) {
            ErrorBox(templatePath + QStringLiteral(": ") + QStringLiteral("File not found."));
            return nullptr;
        }
    } else {
        templatePath = JoinPath(TemplatesDirectory(), QStringLiteral("HTML32.tpl"));
        if (!FileExists(templatePath)) {
            QString name = ReadSetting(QStringLiteral("Templates"), QStringLiteral("Normal"));
            if (name.isEmpty())
                name = QStringLiteral("NORMAL.tpl");
            // An empty directory: the file lands in the current directory.
            templatePath = JoinPath(QString(), name);
            const IoResult written = writeFileAtomically(templatePath, DefaultTemplateText().toUtf8());
            if (!written.ok())
                StepFailed(QStringLiteral("Could not write the default template ") + templatePath + QStringLiteral(": ")
                           + written.message);
        }
    }

    Document *doc = CreateDocumentWindow();
    if (!doc) {
        gLoadingDocument = false;
        EndWait();
        return nullptr;
    }
    const QString name = QStringLiteral("Untitled-") + QString::number(gUntitledCount);
    ++gUntitledCount;
    doc->ShowFileName = name;
    doc->ShowCaptionAndTab(name, true);
    if (!doc->LoadFile(templatePath))
        StepFailed(QStringLiteral("Could not read the template ") + templatePath);
    doc->LocalFileName.clear();
    ApplyDocumentFont(*doc);

    platform::HTMLEdit &edit = doc->txtDoc();
    if (ReadSettingFlag(QStringLiteral("Editing"), QStringLiteral("Lower Case Tags"))) {
        const QString lowered = lowerCaseTagNames(edit.Text());
        if (lowered != edit.Text()) {
            edit.setText(lowered);
            edit.SetSel(0, 0);
        }
        // A fresh document has nothing to save yet.
        edit.setDirty(false);
    }
    edit.ColorHTML();
    edit.SetFocus();
    edit.SetFocus();
    ShowStatus(QString());
    gLoadingDocument = false;
    EndWait();
    return doc;
}

} // namespace qly::documents
