#pragma once

#include "account/Keyring.h"
#include "support/FakeServer.h"

#include <QTest>

/// A keyring whose answers are waited for.
class KeyringAnswers
{
public:
    [[nodiscard]] bool isAvailable()
    {
        return waitedFor<bool>([this](auto then) { m_keyring.isAvailable(then); });
    }
    /// "nothing" when there is none.
    [[nodiscard]] QString read(const QString &host, const QString &user)
    {
        const auto found = waitedFor<std::optional<QString>>(
            [this, host, user](auto then) { m_keyring.read(host, user, then); });
        return found.value_or(QStringLiteral("nothing"));
    }
    [[nodiscard]] QString write(const QString &host, const QString &user, const QString &password)
    {
        return waitedFor<QString>([this, host, user, password](auto then) {
            m_keyring.write(host, user, password, then);
        });
    }
    [[nodiscard]] QString remove(const QString &host, const QString &user)
    {
        return waitedFor<QString>(
            [this, host, user](auto then) { m_keyring.remove(host, user, then); });
    }

private:
    template <typename Result, typename Begin>
    static Result waitedFor(Begin begin)
    {
        std::optional<Result> result;
        begin(std::function<void(Result)>([&result](const Result &given) { result = given; }));
        if (result)
            QTest::qFail("the answer came from inside the call", __FILE__, __LINE__);
        if (!FakeServer::waitUntil([&result] { return result.has_value(); })) {
            QTest::qFail("no answer comes", __FILE__, __LINE__);
            return {};
        }
        return *result;
    }

    Keyring m_keyring;
};
