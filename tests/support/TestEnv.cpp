#include "TestEnv.h"

#include "core/Globals.h"
#include "core/Paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace qly::test {

TestEnv::TestEnv()
    : m_oldCurrent(QDir::currentPath())
    , m_oldConfigHome(qgetenv("XDG_CONFIG_HOME"))
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(path(QStringLiteral("config"))));
    core::setProgramDirectory(m_dir.path());
    core::gIniFile = ini();
    core::gTrapErrors = false;
    core::gClosing = false;
    core::gLoadingDocument = false;
    core::gStartupPassed = true;
    core::gUntitledCount = 1;
    core::gColorHTML = false;
    QDir::setCurrent(m_dir.path());
}

TestEnv::~TestEnv()
{
    QDir::setCurrent(m_oldCurrent);
    core::gIniFile.clear();
    if (m_oldConfigHome.isNull())
        qunsetenv("XDG_CONFIG_HOME");
    else
        qputenv("XDG_CONFIG_HOME", m_oldConfigHome);
}

QString TestEnv::write(const QString &name, const QByteArray &bytes) const
{
    const QString p = path(name);
    QDir().mkpath(QFileInfo(p).absolutePath());
    QFile f(p);
    if (f.open(QIODevice::WriteOnly))
        f.write(bytes);
    return p;
}

QByteArray TestEnv::read(const QString &name) const
{
    QFile f(QFileInfo(name).isAbsolute() ? name : path(name));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace qly::test
