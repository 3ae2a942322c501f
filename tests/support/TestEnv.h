#pragma once

#include <QString>
#include <QTemporaryDir>

namespace qly::test {

// A clean place for one test: a temporary directory that serves as the
// program directory and holds the configuration file, which gIniFile names.
// The global flags are reset, and the user's configuration directory is
// "config" inside it, so nothing of the real user's is read or written.
class TestEnv
{
public:
    TestEnv();
    ~TestEnv();

    QString path(const QString &name) const { return m_dir.filePath(name); }
    QString dir() const { return m_dir.path(); }
    QString ini() const { return path(QStringLiteral("quillery.ini")); }
    // Writes a file with the given bytes and returns its path.
    QString write(const QString &name, const QByteArray &bytes) const;
    QByteArray read(const QString &name) const;

private:
    QTemporaryDir m_dir;
    QString m_oldCurrent;
    QByteArray m_oldConfigHome;
};

} // namespace qly::test
