#pragma once

#include "account/PasswordStore.h"

#include <QCoreApplication>
#include <QObject>

/// The keyring of the user's desktop. Without one, nothing is found and nothing can be kept; there
/// is no other place to which it would write.
class Keyring final : public QObject, public PasswordStore
{
    Q_DECLARE_TR_FUNCTIONS(Keyring)

public:
    void isAvailable(std::function<void(bool)> then) override;
    void read(const QString &host, const QString &user,
              std::function<void(std::optional<QString>)> then) override;
    void write(const QString &host, const QString &user, const QString &password,
               std::function<void(QString)> then) override;
    void remove(const QString &host, const QString &user,
                std::function<void(QString)> then) override;
};
