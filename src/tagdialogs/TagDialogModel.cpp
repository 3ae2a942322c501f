#include "tagdialogs/TagDialogModel.h"

#include "documents/Document.h"
#include "documents/Workspace.h"
#include "markup/Selection.h"
#include "markup/TagPrimitives.h"
#include "platform/HTMLEdit.h"

namespace qly::tagdialogs {

void TagDialogModel::open()
{
    QString selected;
    if (documents::Document *doc = documents::Workspace::CurrentDocument())
        markup::HasSelection(markup::Target(doc->txtDoc()), selected);
    open(selected);
}

void TagDialogModel::open(const QString &selection)
{
    m_values.clear();
    m_notes.clear();
    m_readBack = false;
    m_selection = selection;
    setDefaults();
    if (!selection.trimmed().isEmpty())
        read(selection);
}

bool TagDialogModel::flag(const QString &field) const
{
    return m_values.value(field) == QLatin1String("1");
}

void TagDialogModel::setFlag(const QString &field, bool on)
{
    m_values.insert(field, on ? QStringLiteral("1") : QStringLiteral("0"));
}

void TagDialogModel::note(const QString &text)
{
    if (!m_notes.contains(text))
        m_notes << text;
}

TagReading TagDialogModel::readOwnTag(const QString &selection, const QStringList &names, const QString &missing)
{
    TagReading tag = ReadTag(OneLine(selection), names);
    if (tag.name.isEmpty()) {
        note(missing);
        return tag;
    }
    m_readBack = true;
    m_notes << tag.problems;
    return tag;
}

void TagDialogModel::insertAroundSelection(const QString &start, const QString &end)
{
    if (m_readBack || m_selection.isEmpty())
        markup::InsertMarkup(start, end, true);
    else
        markup::InsertMarkup(start + m_selection, end, true);
}

} // namespace qly::tagdialogs
