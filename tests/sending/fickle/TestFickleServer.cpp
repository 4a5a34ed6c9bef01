#include "TestFickleServer.h"

#include "FickleServer.h"
#include "recipients/Totals.h"
#include "smtp/ClientFakes.h"
#include "smtp/client/SmtpClient.h"
#include "support/FakeServer.h"
#include "support/WorkspaceRig.h"

#include <QTest>
#include <QTimer>

#include <rapidcheck.h>

namespace {

struct ClientParts
{
    SystemClock clientClock;
    ClientFakes fakes;
};

/// With the client of the program, whose patience ends before the test's.
struct Rig : ClientParts, RigWith<ScriptedPrompts, SmtpClient>
{
    Rig() : RigWith(Language::English, clientClock, fakes.surroundings(limits()))
    {
        fakes.trace.isWanted = false;
    }

    static Limits limits()
    {
        constexpr std::chrono::milliseconds Patience(50);
        Limits limits;
        for (auto limit :
             {&Limits::opening, &Limits::hello, &Limits::reset, &Limits::mail, &Limits::recipient,
              &Limits::dataCommand, &Limits::dataBlock, &Limits::content, &Limits::quit})
            limits.*limit = Patience;
        return limits;
    }
};

/// What all the runs together met.
struct Met
{
    int runs = 0;
    int failedRuns = 0;
    int sent = 0;
    int refused = 0;
    int inDoubtAndDelivered = 0;
    int inDoubtAndNot = 0;
};

struct Mailing
{
    int recipients = 0;
    int packet = 0;
    bool inGroups = false;
    bool pipelining = false;
    bool chunking = false;
    std::deque<Whim> whims;
};

Mailing anyMailing()
{
    constexpr int MostRecipients = 8;
    constexpr int MostOfAPacket = 5;
    const auto whim = rc::gen::weightedElement<Whim>({{60, Whim::Accept},
                                                      {5, Whim::RefuseForNow},
                                                      {5, Whim::RefuseForGood},
                                                      {2, Whim::EndService},
                                                      {4, Whim::Linger},
                                                      {3, Whim::Drop},
                                                      {4, Whim::DropWhenDone},
                                                      {2, Whim::AnswerAndDrop},
                                                      {2, Whim::AnswerHalfAndDrop},
                                                      {2, Whim::Babble},
                                                      {1, Whim::Silence}});
    Mailing mailing;
    mailing.recipients = *rc::gen::inRange(1, MostRecipients + 1);
    mailing.packet = *rc::gen::inRange(1, MostOfAPacket + 1);
    mailing.inGroups = *rc::gen::arbitrary<bool>();
    mailing.pipelining = *rc::gen::arbitrary<bool>();
    mailing.chunking = *rc::gen::arbitrary<bool>();
    mailing.whims = *rc::gen::container<std::deque<Whim>>(whim);
    return mailing;
}

/// One run, from Start to its end.
void run(Rig &rig)
{
    QTimer seconds; // each is over at once
    seconds.callOnTimeout(&seconds, [&rig] { rig.Timer.tick(); });
    seconds.start(0);
    rig.start();
    RC_ASSERT(FakeServer::waitUntil([&rig] { return rig.w.form.runState() == RunState::Idle; }));
}

int countOf(const QStringList &lines, const QString &what)
{
    return static_cast<int>(lines.filter(what).size());
}

/// Holds the rows and the log of a run against what the server knows.
void check(Rig &rig, const Mailing &mailing, const FickleServer &server, Met &met)
{
    const QStringList logged = rig.logged();
    const bool hasFailed = countOf(logged, QStringLiteral("SMTP Error: ")) > 0;
    int sending = 0;
    for (const Recipient &row : rig.w.recipients.rows()) {
        const QByteArray address = row.address.toLatin1();
        const bool isDelivered = server.delivered().contains(address);
        RC_ASSERT(server.delivered().value(address) <= 1);
        RC_ASSERT(countOf(logged, QStringLiteral("to '%1' (").arg(row.address)) <= 2);
        if (!row.checked)
            continue;
        const std::optional<RowState> state = stateOfWord(row.state);
        RC_ASSERT(state.has_value());
        switch (*state) {
        case RowState::Sent:
            RC_ASSERT(server.confirmed().contains(address));
            ++met.sent;
            break;
        case RowState::Sending:
            RC_ASSERT(hasFailed);
            RC_ASSERT(isInDoubt(row));
            ++sending;
            ++(isDelivered ? met.inDoubtAndDelivered : met.inDoubtAndNot);
            break;
        case RowState::Error:
            RC_ASSERT(!isDelivered);
            ++met.refused;
            break;
        case RowState::Waiting:
            RC_ASSERT(hasFailed);
            RC_ASSERT(!isDelivered);
            break;
        case RowState::NotSent:
            RC_FAIL("a checked row was passed over");
        }
    }
    RC_ASSERT(sending <= (mailing.inGroups ? mailing.packet : 1));
    const Totals totals = totalsOfChecked(rig.w.recipients.rows());
    RC_ASSERT(countOf(logged, QStringLiteral(") sent.")) == totals.sent);
    RC_ASSERT(countOf(logged, QStringLiteral(") not sent.")) == totals.refused);
    RC_ASSERT(totals.inDoubt == sending);
    ++met.runs;
    met.failedRuns += hasFailed ? 1 : 0;
}

/// Whoever may have the message is left out of the next run. Whether anybody is left.
bool leaveOutThoseSent(Rig &rig)
{
    bool anyLeft = false;
    for (int position = 1; position <= rig.w.recipients.count(); ++position) {
        const Recipient &row = rig.w.recipients.at(position);
        if (mayHaveTheMessage(row))
            rig.w.recipientCommands.lstDestinatari_ItemCheck(position, false);
        anyLeft = anyLeft || rig.w.recipients.at(position).checked;
    }
    return anyLeft;
}

} // namespace

void TestFickleServer::everyRowSaysWhatBecameOfItsMessage()
{
    Met met;
    const bool holds = rc::check([&met] {
        const Mailing mailing = anyMailing();
        FickleServer server(mailing.whims, mailing.pipelining, mailing.chunking);
        Rig rig;
        rig.fillForm(mailing.recipients);
        rig.w.form.setText(Control::txtServer,
                           QStringLiteral("127.0.0.1:%1").arg(server.serverPort()));
        rig.w.form.setText(Control::txtNMsg, QString::number(mailing.packet));
        rig.w.form.setChecked(Control::chkMultiSend, mailing.inGroups);
        static_cast<void>(rig.logged());
        do {
            server.forgetConfirmed();
            run(rig);
            static_cast<void>(rig.prompts.takeNotices());
            check(rig, mailing, server, met);
        } while (leaveOutThoseSent(rig));
    });
    QVERIFY(holds);

    qInfo("%d runs, %d of them broken off; rows sent %d, refused %d, in doubt %d who have it and "
          "%d who do not",
          met.runs, met.failedRuns, met.sent, met.refused, met.inDoubtAndDelivered,
          met.inDoubtAndNot);
    // The runs must have met what they are made for.
    QVERIFY(met.failedRuns > 0);
    QVERIFY(met.sent > 0);
    QVERIFY(met.refused > 0);
    QVERIFY(met.inDoubtAndDelivered > 0);
    QVERIFY(met.inDoubtAndNot > 0);
}
