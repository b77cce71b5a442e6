// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/secretstore.h"

#include <qt6keychain/keychain.h>

namespace {

const QString Service = QStringLiteral("Quake 4 Vantage");

} // namespace

void KeyringSecretStore::read(const QString& key, QObject* context,
                              std::function<void(Answer answer, const QString& value)> done)
{
    auto* job = new QKeychain::ReadPasswordJob(Service);
    job->setAutoDelete(true);
    job->setKey(key);
    QObject::connect(job, &QKeychain::Job::finished, context, [job, done = std::move(done)] {
        switch (job->error()) {
        case QKeychain::NoError:
            done(Answer::Found, job->textData());
            break;
        case QKeychain::EntryNotFound:
            done(Answer::Missing, QString());
            break;
        default: // no keyring, locked and not opened, access refused
            qInfo("keyring: %s", qPrintable(job->errorString()));
            done(Answer::Unavailable, QString());
            break;
        }
    });
    job->start();
}

void KeyringSecretStore::write(const QString& key, const QString& value, QObject* context,
                               std::function<void(bool ok)> done)
{
    auto* job = new QKeychain::WritePasswordJob(Service);
    job->setAutoDelete(true);
    job->setKey(key);
    job->setTextData(value);
    QObject::connect(job, &QKeychain::Job::finished, context,
                     [job, done = std::move(done)] { done(job->error() == QKeychain::NoError); });
    job->start();
}
