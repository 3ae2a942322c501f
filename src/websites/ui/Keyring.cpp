#include "websites/ui/Keyring.h"

#include "websites/Password.h"

#ifdef QLY_HAVE_KEYCHAIN
#include <qt6keychain/keychain.h>

#include <QEventLoop>
#endif

namespace qly::websites::ui {

#ifdef QLY_HAVE_KEYCHAIN
namespace {

const QString Service = QStringLiteral("Quillery");

// Runs a keychain job to its end; the window stays live meanwhile.
bool run(QKeychain::Job &job)
{
    QEventLoop loop;
    QObject::connect(&job, &QKeychain::Job::finished, &loop, &QEventLoop::quit);
    job.setAutoDelete(false);
    job.start();
    loop.exec();
    return job.error() == QKeychain::NoError;
}

} // namespace
#endif

void InstallKeyring()
{
#ifdef QLY_HAVE_KEYCHAIN
    SecretStore &store = secretStore();
    store.write = [](const QString &key, const QString &secret) {
        QKeychain::WritePasswordJob job(Service);
        job.setKey(key);
        job.setTextData(secret);
        return run(job);
    };
    store.read = [](const QString &key) -> std::optional<QString> {
        QKeychain::ReadPasswordJob job(Service);
        job.setKey(key);
        if (!run(job))
            return std::nullopt;
        return job.textData();
    };
    store.remove = [](const QString &key) {
        QKeychain::DeletePasswordJob job(Service);
        job.setKey(key);
        run(job);
    };
#endif
}

} // namespace qly::websites::ui
