#pragma once

#include "account/PasswordStore.h"

#include <QCoreApplication>
#include <QMap>
#include <QStringList>

/// A keyring in memory. Answers are posted.
class FakePasswordStore : public PasswordStore
{
public:
    void isAvailable(std::function<void(bool)> then) override
    {
        post([this, then = std::move(then)] { then(available); });
    }
    void read(const QString &host, const QString &user,
              std::function<void(std::optional<QString>)> then) override
    {
        const QString key = user + u'@' + host;
        reads.append(key);
        post([this, key, then = std::move(then)] {
            const bool found = available && passwords.contains(key);
            then(found ? std::optional(passwords.value(key)) : std::nullopt);
        });
    }
    void write(const QString &host, const QString &user, const QString &password,
               std::function<void(QString)> then) override
    {
        if (failure.isEmpty()) {
            passwords.insert(user + u'@' + host, password);
            tellOfChange(host);
        }
        post([this, then = std::move(then)] { then(failure); });
    }
    void remove(const QString &host, const QString &user,
                std::function<void(QString)> then) override
    {
        if (failure.isEmpty() && passwords.remove(user + u'@' + host) > 0)
            tellOfChange(host);
        post([this, then = std::move(then)] { then(failure); });
    }

    bool available = true;
    QString failure;                  ///< of every change; empty: it succeeds
    QMap<QString, QString> passwords; ///< by "user@host"
    QStringList reads;                ///< what was asked for

private:
    static void post(std::function<void()> answer)
    {
        QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(answer),
                                  Qt::QueuedConnection);
    }
};
