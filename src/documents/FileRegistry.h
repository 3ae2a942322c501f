#pragma once

#include <QHash>
#include <QString>

namespace qly::documents {

// Gives each open file the number under which link check results and the
// website tree know it. The website manager takes this role when websites
// are open; until then the plain registry below numbers files itself.
class FileRegistry
{
public:
    virtual ~FileRegistry() = default;

    virtual qint16 AddFile(const QString &name);
    virtual void SetFileName(qint16 filenum, const QString &path);
    virtual void ForgetFile(qint16 filenum);
    virtual QString FileName(qint16 filenum) const { return m_names.value(filenum); }

    static FileRegistry &instance();
    static void setInstance(FileRegistry *registry);

private:
    QHash<qint16, QString> m_names;
    qint16 m_next = 1;
};

} // namespace qly::documents
