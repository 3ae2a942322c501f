#include "texttools/TextToHtmlModel.h"

#include "core/Feedback.h"
#include "core/FileIo.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/TextCodec.h"
#include "documents/Document.h"
#include "documents/Workspace.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"
#include "texttools/TextToHtmlFile.h"

#include <QDir>

namespace qly::texttools {

using namespace qly::core;

namespace {

const QString kSavedName = QStringLiteral("ctlcurr.qnc");
const QString kResultName = QStringLiteral("newcnvrt.htm");

platform::HTMLEdit *currentEdit()
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    return doc ? &doc->txtDoc() : nullptr;
}

QString pick(const QStringList &list, int index)
{
    return index >= 0 && index < list.size() ? list.at(index) : QString();
}

// The files a name stands for: itself, or what its wildcards match.
QStringList expand(const QString &name)
{
    if (!name.contains(u'*') && !name.contains(u'?'))
        return {name};
    const QDir dir(DirectoryOf(name).isEmpty() ? QDir::currentPath() : DirectoryOf(name));
    QStringList files;
    for (const QString &f : dir.entryList({FileNameOf(name)}, QDir::Files, QDir::Name))
        files << dir.filePath(f);
    return files;
}

} // namespace

QStringList TextToHtmlModel::listTypes()
{
    return {QStringLiteral("Bullet"), QStringLiteral("Numbered")};
}

QStringList TextToHtmlModel::listActions()
{
    return {QStringLiteral("remove that character"), QStringLiteral("leave it in the document")};
}

QStringList TextToHtmlModel::headTags()
{
    return {QStringLiteral("<H1>"), QStringLiteral("<H2>"), QStringLiteral("<H3>"),
            QStringLiteral("<H4>"), QStringLiteral("<I>"),  QStringLiteral("<B>")};
}

QStringList TextToHtmlModel::isolations()
{
    return {QStringLiteral("above"), QStringLiteral("below"), QStringLiteral("above & below")};
}

int TextToHtmlModel::widthOf(int column)
{
    return column == 0 ? 40 : column == 2 ? 132 : 80;
}

ConvertOptions TextToHtmlModel::options() const
{
    ConvertOptions o;
    o.pre = chkPre;
    o.width = widthOf(rbcols);
    o.makePara = chkMakePara;
    o.makeList = chkMakeList;
    o.listType = cmbListType == 1 ? 1 : 0;
    o.bullet = txtBullet.left(1);
    o.listAction = cmbListAction == 1 ? 1 : 0;
    o.firstHead = chkFirstHead;
    o.otherHead = chkOtherHead;
    o.firstTag = pick(headTags(), cmbFirstHead);
    o.otherTag = pick(headTags(), cmbOtherHead);
    o.isolate = cmbIsolate < 0 ? 1 : cmbIsolate;
    o.makeBreak = chkMakeBreak;
    return o;
}

bool TextToHtmlModel::open()
{
    ShowStatus(QStringLiteral("Saving current document..."));
    m_savedDocument = SaveCurrentDocumentTo(kSavedName);
    ShowStatus(QString());
    if (platform::HTMLEdit *edit = currentEdit())
        m_wasDirty = edit->Dirty();
    if (m_savedDocument.isEmpty()) {
        platform::MsgBox(QStringLiteral("Quillery could not save the current document.  Please use the Tools/Options "
                                        "form to specify a valid 'Temporary' directory.")
                         + QStringLiteral("  Text to HTML Conversion requires the use of a valid temporary storage "
                                          "directory to work in."));
        return false;
    }
    return true;
}

TextToHtmlModel::MissingChoice TextToHtmlModel::validate() const
{
    MissingChoice missing = MissingChoice::None;
    QString text;
    if (chkMakeList && cmbListType < 0) {
        missing = MissingChoice::ListType;
        text = QStringLiteral("You have not selected the type of list you want created");
    } else if (chkFirstHead && cmbFirstHead < 0) {
        missing = MissingChoice::FirstHead;
        text = QStringLiteral("You have not selected the action to perform on the first isolated line");
    } else if (chkOtherHead && cmbOtherHead < 0) {
        missing = MissingChoice::OtherHead;
        text = QStringLiteral("You have not selected the action to perform on the first isolated line");
    }
    if (missing != MissingChoice::None)
        platform::MsgBox(text, platform::Buttons::Ok, platform::Icon::Exclamation, QStringLiteral("No List Type"));
    return missing;
}

TextToHtmlModel::MissingChoice TextToHtmlModel::press(Button button, bool &close)
{
    close = false;
    platform::HTMLEdit *edit = currentEdit();
    const int selStart = edit ? edit->SelStart() : 0;
    const MissingChoice missing = validate();
    if (missing != MissingChoice::None)
        return missing;
    BeginWait();
    switch (button) {
    case Apply:
        apply();
        break;
    case Cancel:
        restore();
        close = true;
        break;
    case OkDocument:
        okDocument();
        close = true;
        break;
    case OkFiles:
        convertFiles();
        close = true;
        break;
    }
    if (platform::HTMLEdit *now = currentEdit(); now && now == edit)
        now->setSelStart(selStart);
    ShowStatus(QString());
    EndWait();
    return MissingChoice::None;
}

void TextToHtmlModel::apply()
{
    QString output = kResultName;
    if (ConvertFile(m_savedDocument, output, true, options()))
        m_applied = true;
}

void TextToHtmlModel::restore()
{
    platform::HTMLEdit *edit = currentEdit();
    if (!edit || m_savedDocument.isEmpty())
        return;
    ShowStatus(QStringLiteral("Restoring original document..."));
    QByteArray bytes;
    const IoResult read = readWholeFile(m_savedDocument, bytes);
    if (!read.ok()) {
        platform::MsgBox(read.message, platform::Buttons::Ok, platform::Icon::Exclamation,
                         QStringLiteral("Error restoring original file"));
        return;
    }
    const QString original = decodeFile(bytes).text;
    if (edit->Text() != original) {
        edit->PrepareUndo();
        edit->setText(original);
        edit->EndPUndo();
    }
    edit->setDirty(m_wasDirty);
}

void TextToHtmlModel::okDocument()
{
    platform::HTMLEdit *edit = currentEdit();
    if (!edit || m_applied)
        return;
    edit->PrepareUndo();
    QString output = kResultName;
    ConvertFile(m_savedDocument, output, true, options());
    edit->EndPUndo();
}

void TextToHtmlModel::convertFiles()
{
    platform::FileRequest request;
    request.title = QStringLiteral("Select File(s) To Convert.  Wildcards (e.g \"*.txt\") are OK.");
    request.filter = QStringLiteral("Text Files (*.txt)|*.txt|All (*.*)|*.*");
    request.directory = GetFileLocation(QStringLiteral("Documents"));
    request.multiple = true;
    const platform::FileAnswer answer = platform::prompts().openFile(request);
    if (!answer.accepted())
        return;
    const QString extension = ReadSetting(QStringLiteral("Editing"), QStringLiteral("Default Document Extension"));
    int count = 0;
    for (const QString &name : answer.files) {
        for (const QString &file : expand(name)) {
            QString output = FileNameOf(StripExtension(file)) + u'.' + extension;
            if (ConvertFile(file, output, false, options()))
                ++count;
        }
    }
    if (count > 0)
        platform::MsgBox(QString::number(count) + QStringLiteral(" files converted."), platform::Buttons::Ok,
                         platform::Icon::Information, QStringLiteral("Operation Completed"));
}

} // namespace qly::texttools
