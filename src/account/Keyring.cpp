#include "account/Keyring.h"

#include <QAbstractEventDispatcher>

#include <qt6keychain/keychain.h>

namespace {

using QKeychain::Job;

const QLatin1String Service("Sorvanta");

QString keyOf(const QString &host, const QString &user)
{
    return user + u'@' + host.toLower();
}

// The library that talks to the keyring answers through GLib's event loop; in another one, chosen
// by QT_NO_GLIB, its answers would never come.
bool answersCanCome()
{
    const auto *const loop = QAbstractEventDispatcher::instance();
    return loop != nullptr && loop->inherits("QEventDispatcherGlib");
}

// Empty when the job succeeded.
QString failureOf(const Job *job)
{
    if (job == nullptr)
        return Keyring::tr("there is no keyring");
    return job->error() == QKeychain::NoError ? QString() : job->errorString();
}

} // namespace

// Starts the job, which ends itself; `ended` gets it when it is through, or nullptr when there is
// no keyring to be asked.
template <typename JobType, typename Ended>
static void run(QObject *owner, JobType *job, const QString &key, Ended ended)
{
    job->setInsecureFallback(false);
    job->setKey(key);
    if (answersCanCome()) {
        QObject::connect(job, &Job::finished, owner, [job, ended](Job *) { ended(job); });
        job->start();
    } else {
        job->deleteLater();
        QMetaObject::invokeMethod(
            owner, [ended] { ended(static_cast<JobType *>(nullptr)); }, Qt::QueuedConnection);
    }
}

void Keyring::isAvailable(std::function<void(bool)> then)
{
    // No password has this key: a keyring that is locked need not be opened to find that out.
    run(this, new QKeychain::ReadPasswordJob(Service), QStringLiteral("@"),
        [then = std::move(then)](const Job *job) {
            then(job != nullptr &&
                 (job->error() == QKeychain::NoError || job->error() == QKeychain::EntryNotFound));
        });
}

void Keyring::read(const QString &host, const QString &user,
                   std::function<void(std::optional<QString>)> then)
{
    run(this, new QKeychain::ReadPasswordJob(Service), keyOf(host, user),
        [then = std::move(then)](const QKeychain::ReadPasswordJob *job) {
            const bool found = job != nullptr && job->error() == QKeychain::NoError;
            then(found ? std::optional(job->textData()) : std::nullopt);
        });
}

void Keyring::write(const QString &host, const QString &user, const QString &password,
                    std::function<void(QString)> then)
{
    auto *const job = new QKeychain::WritePasswordJob(Service);
    job->setTextData(password);
    run(this, job, keyOf(host, user), [this, host, then = std::move(then)](const Job *ended) {
        if (ended != nullptr && ended->error() == QKeychain::NoError)
            tellOfChange(host);
        then(failureOf(ended));
    });
}

void Keyring::remove(const QString &host, const QString &user, std::function<void(QString)> then)
{
    run(this, new QKeychain::DeletePasswordJob(Service), keyOf(host, user),
        [this, host, then = std::move(then)](const Job *ended) {
            const bool wasThere = ended == nullptr || ended->error() != QKeychain::EntryNotFound;
            if (ended != nullptr && ended->error() == QKeychain::NoError)
                tellOfChange(host);
            then(wasThere ? failureOf(ended) : QString());
        });
}
