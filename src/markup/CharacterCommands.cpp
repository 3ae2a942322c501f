#include "markup/CharacterCommands.h"

#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/Settings.h"
#include "documents/Workspace.h"
#include "documents/Document.h"
#include "markup/CharacterCodes.h"
#include "markup/TagPrimitives.h"
#include "platform/HTMLEdit.h"
#include "platform/Prompts.h"

namespace qly::markup {

namespace {

QDateTime g_lastKey;


} // namespace

void TranslateKey(int &keyAscii)
{
    if (keyAscii != 13 && core::gTranslateWhileTyping && keyAscii > 0) {
        EnsureCharacterCodes();
        const char32_t cp = char32_t(keyAscii);
        const QString typed = QString::fromUcs4(&cp, 1);
        const QString result = TranslateOneCharacter(typed);
        if (result.compare(typed, Qt::CaseInsensitive) != 0) {
            InsertMarkup(result, QString());
            keyAscii = 0;
        }
    }
    NoteKey();
}

void NoteKey()
{
    g_lastKey = QDateTime::currentDateTime();
}

QDateTime lastKeyTime()
{
    return g_lastKey;
}

void TranslateSelection(platform::HTMLEdit &target)
{
    core::ShowStatus(QStringLiteral("Translating..."));
    target.setSelText(TranslateCharacters(target.SelText()));
    core::ShowStatus(QString());
}

void EditTranslate_Click()
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return;
    EnsureCharacterCodes();
    platform::HTMLEdit &edit = doc->txtDoc();
    if (!edit.SelText().isEmpty()) {
        TranslateSelection(edit);
        return;
    }
    const platform::Answer answer =
        platform::MsgBox(QStringLiteral("Would you like to translate all extended characters in this document ?"),
                         platform::Buttons::YesNoCancel, platform::Icon::Question,
                         QStringLiteral("Translate Whole Document ?"));
    if (answer != platform::Answer::Yes)
        return;
    const int start = edit.SelStart();
    const QString text = edit.Text();
    const QString translated = TranslateCharacters(text);
    if (translated != text) {
        edit.PrepareUndo();
        edit.setText(translated);
        edit.EndPUndo();
        edit.setDirty(true);
    }
    edit.SetFocus();
    edit.ColorHTML();
    edit.setSelStart(start);
}

QString entityListLine(int row)
{
    const CharacterCode &c = CharacterCodes().at(size_t(row));
    const char32_t cp = characterValue(c.code);
    const QString character = cp > 0 ? QString::fromUcs4(&cp, 1) : QString();
    return c.code + u'\t' + character + u'\t' + c.entity + u'\t' + c.description;
}

QString HTMLToAdd(const QString &listLine)
{
    const QString line = listLine.trimmed();
    qsizetype from = line.indexOf(u'&');
    if (from < 0)
        from = line.indexOf(u'<');
    QString html = line.mid(std::max<qsizetype>(from, 0));
    const qsizetype semicolon = html.indexOf(u';');
    if (semicolon >= 0)
        html.truncate(semicolon + 1);
    if (html.contains(QLatin1String(">tm<")))
        html.chop(1);
    return html;
}

void InsertEntity(const QString &html)
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return;
    InsertMarkup(html, doc->txtDoc().SelText());
}

} // namespace qly::markup
