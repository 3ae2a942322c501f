#include "documents/NewDocument.h"

#include "core/Feedback.h"
#include "core/FileIo.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "markup/TextOps.h"
#include "platform/HTMLEdit.h"

namespace qly::documents {

using namespace qly::core;

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
        const QString lowered = markup::LowerCaseTags(edit.Text());
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
