#pragma once

#include "prompts/Prompts.h"

#include <optional>

/// A box for the login to a server.
struct LoginBox
{
    QString server;           ///< "host:port"
    QString user;             ///< as far as it is known
    QString refusal;          ///< why the server refused the last one; empty the first time
    bool canRemember = false; ///< there is a keyring to remember the password in
};

/// What was entered into it.
struct LoginEntry
{
    QString user;
    QString password;
    bool remember = false;
};

/// Asks a person for a login. The box does not block the window: a run that waits for it can be
/// paused and stopped meanwhile.
class LoginPrompt
{
public:
    LoginPrompt() = default;
    LoginPrompt(const LoginPrompt &) = delete;
    LoginPrompt &operator=(const LoginPrompt &) = delete;
    virtual ~LoginPrompt() = default;

    /// Nothing is Cancel. The answer is posted, and not given at all when the condition no longer
    /// holds.
    virtual void askLogin(const LoginBox &box, Stands stands,
                          std::function<void(std::optional<LoginEntry>)> then) = 0;
    /// Withdraws the boxes whose condition no longer holds.
    virtual void closeStale() = 0;
};
