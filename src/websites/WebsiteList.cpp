#include "websites/WebsiteList.h"

#include "websites/ProjectFile.h"

namespace qly::websites {

WebsiteList::WebsiteList()
{
    documents::FileRegistry::setInstance(this);
}

WebsiteList::~WebsiteList()
{
    if (&documents::FileRegistry::instance() == this)
        documents::FileRegistry::setInstance(nullptr);
}

WebsiteList &WebsiteList::instance()
{
    static WebsiteList list;
    return list;
}

int WebsiteList::AddWebsite(const QString &name)
{
    const int id = m_nextId++;
    m_sites[id].name = name;
    m_current = id;
    emit changed();
    return id;
}

void WebsiteList::RemoveWebsite(int id)
{
    if (m_sites.erase(id) == 0)
        return;
    if (m_current == id)
        m_current = m_sites.empty() ? -1 : m_sites.begin()->first;
    emit changed();
}

bool WebsiteList::AddWebsiteFile(int id, const QString &path)
{
    Website *w = website(id);
    if (!w || path.isEmpty())
        return false;
    if (w->files.contains(path, Qt::CaseSensitive))
        return true;
    if (w->files.size() > MaxProjectFileIndex)
        return false;
    w->files << path;
    emit changed();
    return true;
}

void WebsiteList::RemoveWebsiteFile(int id, int index)
{
    Website *w = website(id);
    if (!w || index < 0 || index >= w->files.size())
        return;
    w->files.removeAt(index);
    emit changed();
}

int WebsiteList::WebsiteFileCount(int id) const
{
    const Website *w = website(id);
    return w ? int(w->files.size()) : 0;
}

QString WebsiteList::WebsiteFileName(int id, int index) const
{
    const Website *w = website(id);
    return (w && index >= 0 && index < w->files.size()) ? w->files.at(index) : QString();
}

int WebsiteList::WebsiteIdAt(int index) const
{
    auto it = m_sites.begin();
    for (int i = 0; it != m_sites.end() && i < index; ++i)
        ++it;
    return it == m_sites.end() ? -1 : it->first;
}

int WebsiteList::CurrentWebsite() const
{
    return m_sites.count(m_current) ? m_current : -1;
}

void WebsiteList::setCurrentWebsite(int id)
{
    m_current = id;
}

const WebsiteList::Website *WebsiteList::website(int id) const
{
    auto it = m_sites.find(id);
    return it == m_sites.end() ? nullptr : &it->second;
}

WebsiteList::Website *WebsiteList::website(int id)
{
    auto it = m_sites.find(id);
    return it == m_sites.end() ? nullptr : &it->second;
}

qint16 WebsiteList::AddFile(const QString &name)
{
    const qint16 num = FileRegistry::AddFile(name);
    m_order << num;
    emit changed();
    return num;
}

void WebsiteList::SetFileName(qint16 filenum, const QString &path)
{
    FileRegistry::SetFileName(filenum, path);
    emit changed();
}

void WebsiteList::ForgetFile(qint16 filenum)
{
    FileRegistry::ForgetFile(filenum);
    m_order.removeAll(filenum);
    m_results.remove(filenum);
    emit changed();
}

QList<qint16> WebsiteList::openFiles() const
{
    return m_order;
}

void WebsiteList::ClearLinkResults(qint16 filenum)
{
    m_results.remove(filenum);
    emit changed();
}

void WebsiteList::PutLinkResults(qint16 filenum, const LinkRecords &result)
{
    m_results[filenum] += result;
    emit changed();
}

void WebsiteList::PutFileLinkResults(const QString &path, const LinkRecords &result)
{
    m_fileResults.insert(path, result);
    emit changed();
}

void WebsiteList::PutAddressResults(const QHash<QString, ExternalResult> &results)
{
    m_addresses.insert(results);
    emit changed();
}

const ExternalResult *WebsiteList::addressResult(const QString &address) const
{
    auto it = m_addresses.constFind(address.trimmed());
    return it == m_addresses.constEnd() ? nullptr : &*it;
}

} // namespace qly::websites
