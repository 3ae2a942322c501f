#include "markup/FormatMenu.h"

#include "core/Globals.h"
#include "core/Settings.h"
#include "documents/Workspace.h"
#include "documents/Document.h"
#include "markup/Selection.h"
#include "markup/TagPrimitives.h"
#include "markup/TextOps.h"
#include "platform/HTMLEdit.h"

namespace qly::markup {

namespace {

constexpr bool SkipRepeatTest = true;

platform::HTMLEdit *currentBuffer()
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    return doc ? &doc->txtDoc() : nullptr;
}

// STRONG and EM unless [General] "Strong and Emphasis" is "no".
bool strongAndEmphasis()
{
    return core::ReadSetting(QStringLiteral("General"), QStringLiteral("Strong and Emphasis"))
               .compare(QLatin1String("no"), Qt::CaseInsensitive) != 0;
}

// Characters that end a word when Drop Caps looks for its first letter.
bool endsWord(QChar c)
{
    return QStringView(u" :;,.<>/\n").contains(c);
}

} // namespace

void FormatBold_Click()
{
    if (strongAndEmphasis())
        WrapSelection(QStringLiteral("<STRONG>"), QStringLiteral("</STRONG>"), SkipRepeatTest);
    else
        WrapSelection(QStringLiteral("<B>"), QStringLiteral("</B>"), SkipRepeatTest);
}

void FormatItalic_Click()
{
    if (strongAndEmphasis())
        WrapSelection(QStringLiteral("<EM>"), QStringLiteral("</EM>"), SkipRepeatTest);
    else
        WrapSelection(QStringLiteral("<I>"), QStringLiteral("</I>"), SkipRepeatTest);
}

void FormatUnderline_Click()
{
    WrapSelection(QStringLiteral("<U>"), QStringLiteral("</U>"), SkipRepeatTest);
}

// The end tag of Bigger and Smaller carries SIZE, as pages made with this
// editor have always had it.
void FormatBigger_Click()
{
    WrapSelection(QStringLiteral("<FONT SIZE=+1>"), QStringLiteral("</FONT SIZE>"), SkipRepeatTest);
}

void FormatSmaller_Click()
{
    WrapSelection(QStringLiteral("<FONT SIZE=-1>"), QStringLiteral("</FONT SIZE>"), SkipRepeatTest);
}

// Left and Right have tags of their own name, not an ALIGN attribute.
void FormatLeft_Click()
{
    WrapSelection(QStringLiteral("<LEFT>"), QStringLiteral("</LEFT>"));
}

void FormatCenter_Click()
{
    WrapSelection(QStringLiteral("<CENTER>"), QStringLiteral("</CENTER>"));
}

void FormatRight_Click()
{
    WrapSelection(QStringLiteral("<RIGHT>"), QStringLiteral("</RIGHT>"));
}

void tlbHead_Click(int level)
{
    const QString n = QString::number(level);
    WrapSelection(QStringLiteral("<H") + n + u'>', QStringLiteral("</H") + n + u'>');
}

void tlbIndent_Click()
{
    WrapSelection(QStringLiteral("<BLOCKQUOTE>"), QStringLiteral("</BLOCKQUOTE>"));
}

void tlbOutdent_Click()
{
    tlbIndent_Click();
}

void tlbNBSP_Click()
{
    InsertMarkup(QStringLiteral("&nbsp;"), QString());
}

void tlbBreak_Click()
{
    platform::HTMLEdit *edit = currentBuffer();
    if (!edit)
        return;
    QString sel;
    if (!HasSelection(*edit, sel)) {
        InsertMarkup(QStringLiteral("<BR>"), GetSelection(*edit));
        return;
    }
    sel = GetSelection(*edit);
    ReplaceAll(sel, core::gCRLF, QStringLiteral("<BR>") + core::gCRLF, BinaryCompare);
    InsertMarkup(sel, QString(), SkipRepeatTest);
}

void tlbParagraph_Click()
{
    platform::HTMLEdit *edit = currentBuffer();
    if (!edit)
        return;
    const bool container = core::ReadSettingFlag(QStringLiteral("General"), QStringLiteral("P is a Container"));
    const QString before = container ? QStringLiteral("<P>") : QString();
    const QString after = container ? QStringLiteral("</P>") : QStringLiteral("<P>");
    QString sel;
    if (!HasSelection(*edit, sel)) {
        InsertMarkup(before, after);
        return;
    }
    sel = GetSelection(*edit);
    QString newText;
    newText.reserve(sel.size() * 2);
    for (const QStringView piece : QStringView(sel).split(core::gCRLF)) {
        newText += before;
        newText += piece;
        newText += after + core::gCRLF;
    }
    InsertMarkup(newText, QString(), SkipRepeatTest);
}

void FormatDropCaps_Click()
{
    platform::HTMLEdit *edit = currentBuffer();
    if (!edit)
        return;
    const int remembered = edit->SelStart();
    QString sel = GetSelection(*edit);
    if (sel.isEmpty()) {
        const QString text = edit->Text();
        int pos = edit->SelStart();
        while (pos != 0 && !endsWord(text.at(pos - 1)))
            --pos;
        edit->setSelStart(pos);
        edit->setSelLength(1);
        sel = GetSelection(*edit);   // at an empty line's end: nothing, not half the line break
    }
    QString size = core::ReadSetting(QStringLiteral("General"), QStringLiteral("Big First Letter Size"));
    if (size.isEmpty())
        size = QStringLiteral("+2");
    const QString font = QStringLiteral("<FONT SIZE=") + size + u'>';
    if (sel.size() > 1)
        InsertMarkup(font + sel.at(0) + QStringLiteral("</FONT>") + sel.mid(1), QString());
    else
        InsertMarkup(font + sel, QStringLiteral("</FONT>"));
    edit->setSelStart(remembered);
}

} // namespace qly::markup
