#include "publish/BrowserModel.h"

#include "core/Globals.h"
#include "core/OptionsHooks.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "platform/Prompts.h"
#include "publish/Preview.h"

namespace qly::publish {

using namespace qly::core;

BrowserModel::BrowserModel()
{
    LoadBrowserList();
}

void BrowserModel::LoadBrowserList()
{
    m_rows.clear();
    m_changed = false;
    const QString current = ReadSetting(QStringLiteral("File Locations"), QStringLiteral("Browser"));
    bool marked = false;
    for (const QString &line : ReadSection(QStringLiteral("Browsers"))) {
        const QString p = line.mid(line.indexOf(u'=') + 1).trimmed();
        if (p.isEmpty())
            continue;
        const bool isDefault = !marked && p == current;
        marked = marked || isDefault;
        m_rows << (isDefault ? u'*' + p : p);
    }
}

int BrowserModel::defaultRow() const
{
    for (int i = 0; i < m_rows.size(); ++i) {
        if (m_rows.at(i).startsWith(u'*'))
            return i;
    }
    return -1;
}

QString BrowserModel::path(int row) const
{
    const QString r = m_rows.value(row);
    return r.startsWith(u'*') ? r.mid(1) : r;
}

int BrowserModel::btnAdd_Click()
{
    platform::FileRequest request;
    request.title = versionCaption() + QStringLiteral(" - Choose Browser");
    request.filter = ProgramFileFilter();
    request.directory = GetFileLocation(QStringLiteral("Documents"));
    const platform::FileAnswer answer = platform::prompts().openFile(request);
    if (!answer.accepted())
        return -1;
    const QString chosen = answer.files.first();
    for (int i = 0; i < m_rows.size(); ++i) {
        if (path(i) == chosen)
            return i;
    }
    m_rows << chosen;
    m_changed = true;
    return int(m_rows.size()) - 1;
}

void BrowserModel::btnremove_Click(int row)
{
    if (row < 0 || row >= m_rows.size())
        return;
    m_rows.removeAt(row);
    m_changed = true;
}

void BrowserModel::btnSetDefault_Click(int row)
{
    if (row < 0 || row >= m_rows.size())
        return;
    const QString chosen = path(row);
    for (int i = 0; i < m_rows.size(); ++i)
        m_rows[i] = path(i);
    m_rows[row] = u'*' + chosen;
    WriteSetting(QStringLiteral("File Locations"), QStringLiteral("Browser"), chosen);
}

void BrowserModel::confirm(int row, bool noChoose, bool useAll)
{
    if (noChoose)
        WriteSetting(QStringLiteral("General"), QStringLiteral("Choose Browser Before Preview"), QStringLiteral("No"));
    if (m_changed) {
        QStringList lines;
        for (int i = 0; i < m_rows.size(); ++i)
            lines << QString::number(i + 1) + u'=' + path(i);
        WriteSection(QStringLiteral("Browsers"), lines.join(u'\n'));
        m_changed = false;
        if (optionsHooks().loadBrowserMenu)
            optionsHooks().loadBrowserMenu();
    }
    if (useAll)
        PreviewDocument(QStringLiteral("dummy"), QStringLiteral("ALL"));
    else if (row >= 0 && row < m_rows.size())
        PreviewDocument(path(row));
}

} // namespace qly::publish
