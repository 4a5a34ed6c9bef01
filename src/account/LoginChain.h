#pragma once

#include "account/Accounts.h"
#include "account/CommandOutput.h"
#include "account/PasswordStore.h"
#include "prompts/LoginPrompt.h"
#include "smtp/LoginSource.h"

#include <QHash>
#include <QObject>

#include <memory>
#include <vector>

/// What the chain looks for logins in.
struct LoginParts
{
    Accounts &accounts;
    PasswordStore &keyring;
    Prompts &prompts;
    QString netrcPath;
    LoginPrompt *prompt = nullptr; ///< nullptr: there is nobody to ask
    QString passwordCommand = {};  ///< prints the password of every account; empty: none
    std::chrono::milliseconds commandLimit = CommandOutput::UsualLimit;
};

/// Looks for a login where it costs a person the least: one that was accepted before, the account's
/// command for tokens, the command for passwords, the keyring, the netrc file, the person. After a
/// refusal only the person is asked again, as long as the session lasts.
class LoginChain final : public QObject, public LoginSource
{
    Q_OBJECT

public:
    explicit LoginChain(LoginParts parts);
    ~LoginChain() override;

    void find(const LoginRequest &request, std::function<void(LoginAnswer)> then) override;
    void dropStale() override;
    void accepted(const ServerAddress &server, const Login &login) override;
    void refused(const ServerAddress &server, const Login &login) override;

private:
    struct Search;
    using SearchPtr = std::shared_ptr<Search>;
    struct Entered
    {
        QString user;
        bool remember = false;
    };

    template <typename Next>
    [[nodiscard]] auto whileWanted(const SearchPtr &search, Next next);
    void runCommand(const SearchPtr &search, const QString &command, Login::Kind kind);
    void lookIntoKeyring(const SearchPtr &search);
    void lookIntoNetrc(const SearchPtr &search);
    void askPerson(const SearchPtr &search);
    void showLoginBox(const SearchPtr &search, bool canRemember);
    void answer(const SearchPtr &search, const LoginAnswer &answer);
    void answerOthers(const QString &host, const Login &login);
    void drop(const SearchPtr &search);
    void keepEntered(const QString &host, const Login &login);

    LoginParts m_parts;
    std::vector<SearchPtr> m_searches;  ///< those without an answer
    QHash<QString, Login> m_accepted;   ///< by host, as long as the program runs
    QHash<QString, Entered> m_entered;  ///< by host: what the person said about the last login
    QHash<QString, QString> m_lastUser; ///< by host: who was refused, to begin the next box with
    bool m_netrcWasRefused = false;
};
