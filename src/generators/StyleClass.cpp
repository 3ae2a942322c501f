#include "generators/StyleClass.h"

#include "documents/TextSearch.h"
#include "generators/DocumentStyles.h"
#include "generators/StyleLibrary.h"
#include "markup/Attributes.h"
#include "platform/HTMLEdit.h"

#include <QRegularExpression>

namespace qly::generators {

namespace {

QString tagName(const QString &tag)
{
    static const QRegularExpression name(QStringLiteral("^<\\s*([A-Za-z][A-Za-z0-9]*)"));
    const QRegularExpressionMatch m = name.match(tag);
    return m.hasMatch() ? m.captured(1) : QString();
}

// The start tag under the selection, as [start, end) in `text`.
bool tagUnderSelection(const QString &text, int selStart, int selLength, int &start, int &end)
{
    if (selLength > 0) {
        const QString sel = text.mid(selStart, selLength);
        if (sel.startsWith(QLatin1Char('<')) && sel.endsWith(QLatin1Char('>')) && !tagName(sel).isEmpty()) {
            start = selStart;
            end = selStart + selLength;
            return true;
        }
    }
    if (documents::enclosingTag(text, selStart, start, end) && !tagName(text.mid(start, end - start)).isEmpty())
        return true;
    for (int at = int(text.lastIndexOf(QLatin1Char('<'), selStart - 1)); at >= 0;
         at = int(text.lastIndexOf(QLatin1Char('<'), at - 1))) {
        const int close = int(text.indexOf(QLatin1Char('>'), at));
        if (close < 0)
            return false;
        if (!tagName(text.mid(at, close + 1 - at)).isEmpty()) {
            start = at;
            end = close + 1;
            return true;
        }
        if (at == 0)
            break;
    }
    return false;
}

} // namespace

QList<StyleChoice> StyleComboEntries(const DocumentStyles &doc, const StyleLibrary &library,
                                     bool documentSpecific, const QString &selectedTag)
{
    QList<StyleChoice> entries;
    const QString selected = tagName(selectedTag);
    for (const QString &name : doc.styles) {
        const StyleRecord r = StyleFromList(name, library);
        if (!isSet(r.ClassName))
            continue;
        const QString tag = isSet(r.HTMLTag) ? r.HTMLTag : QString();
        if (documentSpecific && !tag.isEmpty() && tag.compare(selected, Qt::CaseInsensitive) != 0)
            continue;
        entries.append({name, tag, r.ClassName});
    }
    return entries;
}

int ClassRow(const QList<StyleChoice> &entries, const QString &selection)
{
    const QString cls = markup::GetAttributeValue(selection, QStringLiteral("CLASS"));
    if (cls.isEmpty())
        return 0;
    for (int i = 0; i < entries.size(); ++i) {
        if (entries.at(i).cls.compare(cls, Qt::CaseInsensitive) == 0)
            return i + 1;
    }
    return 0;
}

QString SetClassAttribute(const QString &tag, const QString &cls)
{
    const QString name = tagName(tag);
    if (name.isEmpty() || !tag.endsWith(QLatin1Char('>')))
        return tag;
    static const QRegularExpression existing(
        QStringLiteral("\\s+CLASS\\s*=\\s*(\"[^\"]*\"|'[^']*'|[^\\s>]*)"), QRegularExpression::CaseInsensitiveOption);
    QString out = tag;
    const QRegularExpressionMatch m = existing.match(out);
    if (m.hasMatch()) {
        out.replace(m.capturedStart(), m.capturedLength(),
                    cls.isEmpty() ? QString() : QStringLiteral(" CLASS=\"") + cls + QLatin1Char('"'));
        return out;
    }
    if (cls.isEmpty())
        return tag;
    const qsizetype at = tag.indexOf(name) + name.size();
    return out.insert(at, QStringLiteral(" CLASS=\"") + cls + QLatin1Char('"'));
}

bool ApplyStyleClass(platform::HTMLEdit &edit, const QString &cls)
{
    const QString text = edit.Text();
    int start = 0, end = 0;
    if (!tagUnderSelection(text, edit.SelStart(), edit.SelLength(), start, end))
        return false;
    const QString tag = text.mid(start, end - start);
    const QString changed = SetClassAttribute(tag, cls);
    if (changed == tag)
        return true;
    edit.PrepareUndo();
    edit.SetSel(start, end);
    edit.setSelText(changed);
    edit.EndPUndo();
    edit.SetSel(start, start + int(changed.size()));
    edit.setDirty(true);
    return true;
}

} // namespace qly::generators
