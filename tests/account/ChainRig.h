#pragma once

#include "account/LoginChain.h"
#include "settings/RegFileStore.h"
#include "support/DiskFiles.h"
#include "support/FakeLoginPrompt.h"
#include "support/FakePasswordStore.h"
#include "support/FakeServer.h"
#include "support/ScriptedPrompts.h"

#include <QTemporaryDir>

#include <memory>

/// A chain in which every place to look into does what the test says.
class ChainRig
{
public:
    explicit ChainRig(const QString &passwordCommand = {}) : m_passwordCommand(passwordCommand)
    {
        makeChain(&prompt);
    }

    /// A chain with nobody to ask.
    void sendPersonAway() { makeChain(nullptr); }

    void writeNetrc(const QByteArray &content, QFile::Permissions others = {}) const
    {
        const QString path = folder.filePath(QStringLiteral(".netrc"));
        writeFile(path, content);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | others);
    }

    void setAccount(const QString &user, const QString &tokenCommand = {})
    {
        ServerAccount account = accounts.account(server.host);
        account.user = user;
        account.tokenCommand = tokenCommand;
        accounts.setAccount(server.host, account);
    }

    /// Looks for a login; what comes is in `answers`.
    void find(int refusals = 0, const QString &refusal = {})
    {
        chain->find({server, refusals, refusal,
                     [this] {
                         ++standsAsked;
                         return stands;
                     }},
                    [this](const LoginAnswer &answer) { answers.append(textOf(answer)); });
    }
    /// Looks for it until the answer comes and returns that.
    QString found(int refusals = 0, const QString &refusal = {})
    {
        const auto before = answers.size();
        find(refusals, refusal);
        return FakeServer::waitUntil([this, before] { return answers.size() > before; })
                   ? answers.constLast()
                   : QStringLiteral("no answer");
    }
    /// Looks for it, and the person enters this.
    QString foundByAsking(const std::optional<LoginEntry> &entry, int refusals = 0,
                          const QString &refusal = {})
    {
        const auto before = answers.size();
        find(refusals, refusal);
        FakeServer::settle();
        prompt.answer(entry);
        FakeServer::settle();
        return answers.size() == before + 1 ? answers.constLast() : QStringLiteral("no answer");
    }

    void accept(const QString &user, const QString &secret,
                Login::Kind kind = Login::Kind::Password) const
    {
        chain->accepted(server, {kind, user, secret});
        FakeServer::settle();
    }
    void refuse(const QString &user, const QString &secret) const
    {
        chain->refused(server, {Login::Kind::Password, user, secret});
        FakeServer::settle();
    }

    QTemporaryDir folder;
    QString settingsFile = folder.filePath(QStringLiteral("settings.reg"));
    CodePage codePage{"windows-1252"};
    RegFileStore store{settingsFile.toStdString()};
    Accounts accounts{store, codePage};
    FakePasswordStore keyring;
    ScriptedPrompts prompts;
    FakeLoginPrompt prompt;
    ServerAddress server{QStringLiteral("Smtp.example.org"), 587};
    bool stands = true;
    int standsAsked = 0; ///< how often the chain wanted to know that
    /// "password user secret", "token user secret", or a reason.
    QStringList answers;
    std::unique_ptr<LoginChain> chain;

private:
    void makeChain(LoginPrompt *whom)
    {
        chain.reset(); // two at a time would listen to one keyring
        chain = std::make_unique<LoginChain>(LoginParts{accounts, keyring, prompts,
                                                        folder.filePath(QStringLiteral(".netrc")),
                                                        whom, m_passwordCommand});
    }

    static QString textOf(const LoginAnswer &answer)
    {
        if (!answer)
            return answer.error();
        const bool isToken = answer->kind == Login::Kind::Token;
        return (isToken ? QStringLiteral("token ") : QStringLiteral("password ")) + answer->user +
               u' ' + answer->secret;
    }

    QString m_passwordCommand;
};
