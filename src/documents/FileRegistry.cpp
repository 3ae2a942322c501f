#include "documents/FileRegistry.h"

namespace qly::documents {

namespace {
FileRegistry *g_registry = nullptr;
}

qint16 FileRegistry::AddFile(const QString &name)
{
    const qint16 num = m_next++;
    if (m_next <= 0)
        m_next = 1;
    m_names.insert(num, name);
    return num;
}

void FileRegistry::SetFileName(qint16 filenum, const QString &path)
{
    if (m_names.contains(filenum))
        m_names[filenum] = path;
}

void FileRegistry::ForgetFile(qint16 filenum)
{
    m_names.remove(filenum);
}

FileRegistry &FileRegistry::instance()
{
    static FileRegistry plain;
    return g_registry ? *g_registry : plain;
}

void FileRegistry::setInstance(FileRegistry *registry)
{
    g_registry = registry;
}

} // namespace qly::documents
