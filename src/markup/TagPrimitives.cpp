#include "markup/TagPrimitives.h"

#include "core/Settings.h"
#include "documents/Workspace.h"
#include "documents/Document.h"
#include "markup/Selection.h"
#include "markup/TextOps.h"
#include "platform/HTMLEdit.h"

#include <QLocale>

namespace qly::markup {

namespace {

bool editingFlag(const char *key)
{
    return core::ReadSettingFlag(QStringLiteral("Editing"), QString::fromLatin1(key));
}

void insertIntoHolder(TextHolder &holder, const QString &startText, const QString &endText)
{
    holder.setText(holder.kind() == TextHolder::Kind::ComboBox ? startText + endText : startText);
}

} // namespace

void InsertMarkup(QString startText, QString endText, bool skipRepeatTest, const Target &given)
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return;
    Target target = given;
    if (target.absent()) {
        target = Target(doc->txtDoc());
        doc->txtDoc().setDirty(true);
    }
    if (editingFlag("Lower Case Tags")) {
        if (startText.contains(u'<'))
            startText = LowerCaseTags(startText);
        if (endText.contains(u'<'))
            endText = LowerCaseTags(endText);
    }
    if (TextHolder *holder = target.holder()) {
        insertIntoHolder(*holder, startText, endText);
        return;
    }

    platform::HTMLEdit &edit = *target.edit();
    KeepLineEndsWhole(edit);
    const int selStart = edit.SelStart();
    const QString selected = edit.SelText();
    const bool hadSelection = !selected.isEmpty();
    const bool emptyPair = !startText.isEmpty() && !endText.isEmpty() && !hadSelection;

    const bool repeated = !skipRepeatTest && StripRepeatedTags(startText, endText);
    const int startLength = int(startText.size());
    const int endLength = int(endText.size());

    // After a repeat hit the selection stays as it was: nothing to write.
    if (!repeated) {
        edit.PrepareUndo();
        edit.setSelText(startText + endText);
        edit.EndPUndo();
    }
    if (editingFlag("Color HTML"))
        edit.ColorHTML();

    if (emptyPair)
        edit.SetSel(selStart + startLength, selStart + startLength);
    else if (hadSelection)
        edit.SetSel(selStart, selStart + startLength + endLength);
    else
        edit.SetSel(selStart + startLength + endLength, selStart + startLength + endLength);
    edit.SetFocus();
}

void WrapSelection(const QString &startTag, const QString &endTag, bool skipRepeatTest)
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return;
    InsertMarkup(startTag + GetSelection(doc->txtDoc()), endTag, skipRepeatTest);
}

bool StripRepeatedTags(QString &startText, QString &endText)
{
    const QString s = startText + endText;
    const qsizetype close = s.indexOf(u'>');
    const QString firstTag = close < 0 ? QString() : s.left(close + 1);
    const int open = FindLast(0, s, QStringLiteral("<"));
    const QString lastTag = open == 0 ? QString() : s.mid(open - 1);
    if (!IsWholeTag(firstTag) || !IsWholeTag(lastTag))
        return false;

    const qsizetype innerLength = s.size() - firstTag.size() - lastTag.size();
    QString inner = innerLength > 0 ? s.mid(firstTag.size(), innerLength) : QString();
    bool hit = false;
    if (inner.contains(firstTag, Qt::CaseInsensitive)) {
        ReplaceAll(inner, firstTag, QString(), TextCompare);
        startText = inner;
        hit = true;
    }
    if (inner.contains(lastTag, Qt::CaseInsensitive)) {
        ReplaceAll(inner, lastTag, QString(), TextCompare);
        startText = inner;
        endText.clear();
        hit = true;
    }
    return hit;
}

void InsertTagItem(const QString &item)
{
    const QStringList fields = item.split(u'\t');
    const QString name = fields.value(0);
    const QString flag = fields.value(2);
    const QString endTag = flag.startsWith(u'Y', Qt::CaseInsensitive)
                               ? QStringLiteral("</") + name + u'>'
                               : QString();
    InsertMarkup(u'<' + name + u'>', endTag);
}

QString DateText(int kind, const QDateTime &moment)
{
    const QLocale locale;
    const QString time = locale.toString(moment.time(), QLocale::ShortFormat);
    switch (kind) {
    case 1:
        return locale.toString(moment.date(), QLocale::ShortFormat);
    case 2:
        return locale.toString(moment.date(), QLocale::ShortFormat) + u' ' + time;
    case 3:
        return locale.toString(moment.date(), QLocale::LongFormat);
    case 4:
        return locale.toString(moment.date(), QLocale::LongFormat) + u' ' + time;
    default:
        return {};
    }
}

void InsertDate(int kind)
{
    const QString text = DateText(kind, QDateTime::currentDateTime());
    if (!text.isEmpty())
        InsertMarkup(text, QString());
}

} // namespace qly::markup
