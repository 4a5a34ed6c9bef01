#pragma once

#include <QString>

#include <functional>
#include <optional>

/// Where passwords are kept for a user: the desktop's keyring. Answers are posted and may take as
/// long as the user takes to unlock it.
class PasswordStore
{
public:
    PasswordStore() = default;
    PasswordStore(const PasswordStore &) = delete;
    PasswordStore &operator=(const PasswordStore &) = delete;
    virtual ~PasswordStore() = default;

    /// Whether there is one that can be used.
    virtual void isAvailable(std::function<void(bool)> then) = 0;
    /// The password of that user at that host; nothing when there is none, or no store.
    virtual void read(const QString &host, const QString &user,
                      std::function<void(std::optional<QString>)> then) = 0;
    /// Keeps it; the reason, in plain words, when that fails, else an empty text.
    virtual void write(const QString &host, const QString &user, const QString &password,
                       std::function<void(QString)> then) = 0;
    /// Removes it; one that is not there is no failure.
    virtual void remove(const QString &host, const QString &user,
                        std::function<void(QString)> then) = 0;

    /// Called when a password of that host was kept or removed, before the answer.
    std::function<void(const QString &host)> onChange;

protected:
    void tellOfChange(const QString &host) const
    {
        if (onChange)
            onChange(host);
    }
};
