#include "preflight/FormFindings.h"

#include "base/modMain.h"
#include "preflight/AddressRules.h"
#include "sending/StartRefusals.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Preflight)
};

using Kind = Finding::Kind;

QList<Refusal> refusalsNow(const Form &form, int recipientCount)
{
    if (form.runState() == RunState::Idle)
        return refusalsOfStart(form, recipientCount);
    const auto packetNumbers = refusalOfPacketNumbers(form);
    return packetNumbers ? QList{*packetNumbers} : QList<Refusal>();
}

// What Start lets pass and no server does.
QString faultOfAccepted(const QString &address)
{
    return IsValidEmail(address) ? faultOfAddress(address) : QString();
}

} // namespace

bool isInCapitalsOnly(const QString &subject)
{
    constexpr qsizetype ShortestThatCounts = 10;
    const QString text = subject.simplified();
    const bool hasLetter =
        std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
    return text.size() >= ShortestThatCounts && text.contains(u' ') && hasLetter &&
           text == text.toUpper();
}

QList<Finding> findingsInForm(const Form &form, int recipientCount,
                              const tl::expected<ServerAddress, QString> &server)
{
    QList<Finding> findings;
    for (const Refusal &refusal : refusalsNow(form, recipientCount))
        findings.append({Kind::Refused, refusal.text, refusal.control});
    if (!server && !form.text(Control::txtServer).isEmpty())
        findings.append(
            {Kind::Fails, Texts::tr("The server: %1").arg(server.error()), Control::txtServer});
    const QString sender = form.text(Control::txtEmailMittente);
    if (const QString fault = faultOfAccepted(sender); !fault.isEmpty()) {
        findings.append(
            {Kind::Fails,
             Texts::tr("No server takes the sender's address \"%1\": %2.").arg(sender, fault),
             Control::txtEmailMittente});
    }
    if (const QString control = form.text(Control::txtControl), fault = faultOfAccepted(control);
        !fault.isEmpty()) {
        findings.append(
            {Kind::Advice,
             Texts::tr("No server takes the control address \"%1\": %2.").arg(control, fault),
             Control::txtControl});
    }
    if (isInCapitalsOnly(form.text(Control::txtOggetto))) {
        findings.append({Kind::Advice,
                         Texts::tr("The subject is in capital letters only; spam filters hold "
                                   "that against a message."),
                         Control::txtOggetto});
    }
    const QString provider = server ? foreignProvider(sender, server->host) : QString();
    if (!provider.isEmpty()) {
        findings.append({Kind::Advice,
                         Texts::tr("The sender's address is one of %1, and the server is not: many "
                                   "receivers refuse such a message or take it for spam.")
                             .arg(provider),
                         Control::txtEmailMittente});
    }
    return findings;
}
