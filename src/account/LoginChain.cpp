#include "account/LoginChain.h"

#include "account/Netrc.h"

#include <QPointer>

#include <utility>

struct LoginChain::Search
{
    LoginRequest request;
    std::function<void(LoginAnswer)> then;
    QString host; ///< in lower case
    QString user; ///< as far as it is known
    std::unique_ptr<CommandOutput> command = {};

    [[nodiscard]] bool isWanted() const { return !request.stands || request.stands(); }
};

namespace {

// An account without a user is anybody's.
bool isOf(const QString &user, const Login &login)
{
    return user.isEmpty() || user == login.user;
}

} // namespace

LoginChain::LoginChain(LoginParts parts) : m_parts(std::move(parts))
{
    // What the keyring has now is better than what was right before.
    m_parts.keyring.onChange = [this](const QString &host) { m_accepted.remove(host.toLower()); };
}

LoginChain::~LoginChain()
{
    m_parts.keyring.onChange = nullptr;
}

// What comes back from outside finds a search that is over, or that nobody waits for: then it is
// not gone on with.
template <typename Next>
auto LoginChain::whileWanted(const SearchPtr &search, Next next)
{
    return [this, weak = std::weak_ptr(search), next = std::move(next)](auto &&...result) {
        const SearchPtr open = weak.lock();
        if (!open)
            return;
        if (open->isWanted())
            next(open, result...);
        else
            drop(open);
    };
}

void LoginChain::find(const LoginRequest &request, std::function<void(LoginAnswer)> then)
{
    const ServerAccount account = m_parts.accounts.account(request.server.host);
    const auto search = std::make_shared<Search>(
        Search{request, std::move(then), request.server.host.toLower(), account.user});
    m_searches.push_back(search);
    const auto known = m_accepted.constFind(search->host);
    if (request.refusals > 0) {
        askPerson(search);
    } else if (known != m_accepted.cend() && account.tokenCommand.isEmpty() &&
               isOf(account.user, *known)) {
        answer(search, *known);
    } else if (!account.tokenCommand.isEmpty()) {
        runCommand(search, account.tokenCommand, Login::Kind::Token);
    } else if (!m_parts.passwordCommand.isEmpty()) {
        runCommand(search, m_parts.passwordCommand, Login::Kind::Password);
    } else {
        lookIntoKeyring(search);
    }
}

void LoginChain::runCommand(const SearchPtr &search, const QString &command, Login::Kind kind)
{
    if (search->user.isEmpty()) {
        answer(search, tl::unexpected(tr("the account has no user name; set it with: sorvanta-cli "
                                         "account %1 User NAME")
                                          .arg(search->request.server.host)));
        return;
    }
    const auto then =
        whileWanted(search, [this, kind](const SearchPtr &open, const CommandOutput::Answer &line) {
            if (line)
                answer(open, Login{kind, open->user, *line});
            else
                answer(open, tl::unexpected(line.error()));
        });
    search->command = std::make_unique<CommandOutput>(command, m_parts.commandLimit, then);
}

void LoginChain::lookIntoKeyring(const SearchPtr &search)
{
    if (search->user.isEmpty()) {
        lookIntoNetrc(search);
        return;
    }
    m_parts.keyring.read(
        search->host, search->user,
        whileWanted(search, [this](const SearchPtr &open, const std::optional<QString> &password) {
            if (password)
                answer(open, Login{Login::Kind::Password, open->user, *password});
            else
                lookIntoNetrc(open);
        }));
}

void LoginChain::lookIntoNetrc(const SearchPtr &search)
{
    const auto entries = readNetrc(m_parts.netrcPath);
    if (!entries) {
        if (!std::exchange(m_netrcWasRefused, true))
            m_parts.prompts.notice({Icon::Exclamation, tr("Login"), entries.error()});
    } else if (const auto entry = netrcEntryFor(*entries, search->host, search->user)) {
        answer(search, Login{Login::Kind::Password, entry->login, entry->password});
        return;
    }
    askPerson(search);
}

void LoginChain::askPerson(const SearchPtr &search)
{
    if (m_parts.prompt == nullptr) {
        const bool isRefused = search->request.refusals > 0;
        answer(search,
               tl::unexpected(isRefused ? search->request.refusal
                                        : tr("no login is known; put one into the file .netrc of "
                                             "your home folder, or name a command that prints "
                                             "the password with --password-command")));
        return;
    }
    m_parts.keyring.isAvailable(
        whileWanted(search, [this](const SearchPtr &open, bool canRemember) {
            showLoginBox(open, canRemember);
        }));
}

void LoginChain::showLoginBox(const SearchPtr &search, bool canRemember)
{
    const LoginRequest &request = search->request;
    const QString user = search->user.isEmpty() ? m_lastUser.value(search->host) : search->user;
    const auto stands = [weak = std::weak_ptr(search)] {
        const SearchPtr open = weak.lock();
        return open && open->isWanted();
    };
    const auto then = [this](const SearchPtr &open, const std::optional<LoginEntry> &entry) {
        if (!entry) {
            answer(open, tl::unexpected(tr("the login was cancelled")));
            return;
        }
        m_entered.insert(open->host, {entry->user, entry->remember});
        answer(open, Login{Login::Kind::Password, entry->user, entry->password});
    };
    m_parts.prompt->askLogin({request.server.toText(), user, request.refusal, canRemember}, stands,
                             whileWanted(search, then));
}

void LoginChain::answer(const SearchPtr &search, const LoginAnswer &answer)
{
    drop(search);
    const auto deliver = [request = search->request, then = search->then, answer] {
        if (!request.stands || request.stands())
            then(answer);
    };
    QMetaObject::invokeMethod(this, deliver, Qt::QueuedConnection);
}

void LoginChain::drop(const SearchPtr &search)
{
    std::erase(m_searches, search);
}

void LoginChain::accepted(const ServerAddress &server, const Login &login)
{
    const QString host = server.host.toLower();
    // A token is soon out of date, and its command knows when.
    if (login.kind == Login::Kind::Password) {
        m_accepted.insert(host, login);
        answerOthers(host, login);
    }
    m_lastUser.remove(host);
    keepEntered(host, login);
}

// Nobody is to enter twice what two sessions ask for at the same time.
void LoginChain::answerOthers(const QString &host, const Login &login)
{
    for (const SearchPtr &search : std::vector(m_searches)) {
        if (search->host == host && search->request.refusals == 0 && !search->command &&
            isOf(search->user, login))
            answer(search, login);
    }
    dropStale();
}

void LoginChain::keepEntered(const QString &host, const Login &login)
{
    const Entered entered = m_entered.take(host);
    if (login.kind != Login::Kind::Password || entered.user != login.user || login.user.isEmpty())
        return;
    ServerAccount account = m_parts.accounts.account(host);
    account.user = login.user;
    m_parts.accounts.setAccount(host, account);
    if (!entered.remember)
        return;
    const auto written = [self = QPointer(this)](const QString &failure) {
        if (self && !failure.isEmpty()) {
            self->m_parts.prompts.notice(
                {Icon::Exclamation, tr("Login"),
                 tr("The password could not be remembered: %1").arg(failure)});
        }
    };
    m_parts.keyring.write(host, login.user, login.secret, written);
}

void LoginChain::refused(const ServerAddress &server, const Login &login)
{
    const QString host = server.host.toLower();
    m_lastUser.insert(host, login.user);
    m_entered.remove(host);
    // Another session may meanwhile have found a better one.
    const auto known = m_accepted.constFind(host);
    if (known != m_accepted.cend() && known->user == login.user && known->secret == login.secret)
        m_accepted.erase(known);
}

void LoginChain::dropStale()
{
    std::erase_if(m_searches, [](const SearchPtr &search) { return !search->isWanted(); });
    // From the event loop: the box may be what is being answered.
    if (m_parts.prompt != nullptr)
        QMetaObject::invokeMethod(
            this, [prompt = m_parts.prompt] { prompt->closeStale(); }, Qt::QueuedConnection);
}
