#include "TestResults.h"

#include "support/WorkspaceRig.h"

#include <QTest>

#include <limits>

namespace {

const QString Waiting = QStringLiteral("Waiting");
const QString Sending = QStringLiteral("Sending...");
const QString Sent = QStringLiteral("Sent");
const QString Error = QStringLiteral("Error!");

ServerReply reply(int code, const QString &text)
{
    return {SmtpVerb::Rcpt, code, {}, text};
}

} // namespace

void TestResults::aRefusedMessageDoesNotStopTheRun()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.startSending();
    rig.smtp.raiseDone(false);
    QCOMPARE(rig.state(1), Error);
    QCOMPARE(rig.logged().last(),
             QStringLiteral("Message 'News' to 'a1@example.net' (1) not sent."));
    QCOMPARE(rig.w.engine.nextRecipientIndex(), 2);
    rig.smtp.raiseReady();
    rig.finishMessage();
    QCOMPARE(rig.states(), (QStringList{Error, Sent}));
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList{QStringLiteral("Sending ended.")});
}

void TestResults::aRefusedGroupMarksAndLogsEveryRow()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.w.form.setChecked(Control::chkMultiSend, true);
    rig.startSending();
    rig.logged();
    rig.smtp.raiseDone(false);
    QCOMPARE(rig.states(), (QStringList{Error, Error, Error}));
    QCOMPARE(rig.logged(),
             (QStringList{QStringLiteral("Message 'News' to 'a1@example.net' (1) not sent."),
                          QStringLiteral("Message 'News' to 'a2@example.net' (2) not sent."),
                          QStringLiteral("Message 'News' to 'a3@example.net' (3) not sent.")}));
}

void TestResults::ofAGroupOnlyTheRefusedRowsAreErrors()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.w.form.setChecked(Control::chkMultiSend, true);
    rig.startSending();
    rig.logged();
    rig.smtp.raiseDone(true, {reply(250, QStringLiteral("ok")), reply(550, QStringLiteral("no")),
                              reply(250, QStringLiteral("ok"))});
    QCOMPARE(rig.states(), (QStringList{Sent, Error, Sent}));
    QCOMPARE(rig.logged(),
             (QStringList{QStringLiteral("Message 'News' to 'a1@example.net' (1) sent."),
                          QStringLiteral("Message 'News' to 'a2@example.net' (2) not sent."),
                          QStringLiteral("Message 'News' to 'a3@example.net' (3) sent.")}));
}

void TestResults::theCursorStopsAtAnUncheckedLastRow()
{
    WorkspaceRig rig;
    rig.fillForm(4);
    for (const int position : {2, 3, 4})
        rig.uncheck(position);
    rig.startSending();
    rig.smtp.raiseDone(true);
    QCOMPARE(rig.w.engine.nextRecipientIndex(), 4);
}

void TestResults::theCursorPassesUncheckedRowsInBetween()
{
    WorkspaceRig rig;
    rig.fillForm(4);
    rig.uncheck(2);
    rig.uncheck(3);
    rig.startSending();
    rig.smtp.raiseDone(true);
    QCOMPARE(rig.w.engine.nextRecipientIndex(), 4);
    rig.smtp.raiseReady();
    rig.smtp.raiseDone(true);
    QCOMPARE(rig.w.engine.nextRecipientIndex(), 5);
}

void TestResults::theDurationOfTheMessageIsKept()
{
    WorkspaceRig rig;
    rig.formats.sign = u',';
    rig.fillForm(2);
    rig.startSending();
    QCOMPARE(rig.w.form.tag(Control::lblRimanente), QStringLiteral("-"));
    rig.clock.advanceMilliseconds(2734);
    rig.smtp.raiseDone(true);
    QCOMPARE(rig.w.form.tag(Control::lblRimanente), QStringLiteral("2,734"));
}

void TestResults::aTickCounterThatWrapsMeasuresOn()
{
    WorkspaceRig rig;
    rig.clock.ticks = std::numeric_limits<quint32>::max() - 499;
    rig.fillForm(2);
    rig.startSending();
    rig.clock.advanceMilliseconds(1500);
    rig.smtp.raiseDone(true);
    QCOMPARE(rig.w.form.tag(Control::lblRimanente), QStringLiteral("1.5"));
}

void TestResults::theReplyIsKeptWithTheRow()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.startSending();
    const ServerReply refusal{SmtpVerb::Rcpt, 550, QStringLiteral("5.1.1"),
                              QStringLiteral("no such user")};
    rig.smtp.raiseDone(false, {refusal});
    QCOMPARE(rig.w.recipients.at(1).attempt.reply, refusal);
}

void TestResults::anErrorWhileConnectingStopsTheRun()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.start();
    rig.Timer.tick();
    rig.logged();
    rig.smtp.raiseError(4, QStringLiteral("connection refused"));
    QCOMPARE(rig.logged(), (QStringList{QStringLiteral("SMTP Error: connection refused(4)"),
                                        QStringLiteral("Sending procedure stopped")}));
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.front().text, QStringLiteral("SMTP: Errorconnection refused"));
    QCOMPARE(notices.front().title, QStringLiteral("Error"));
    QVERIFY(notices.front().icon == Icon::Critical);
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
    QCOMPARE(rig.states(), (QStringList{Waiting, Waiting}));
}

void TestResults::aNegativeNumberKeepsItsSign()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.start();
    rig.Timer.tick();
    rig.logged();
    rig.smtp.raiseError(-7, QStringLiteral("odd"));
    QCOMPARE(rig.logged().front(), QStringLiteral("SMTP Error: odd(-7)"));
}

void TestResults::anErrorInATransferLeavesTheRowInDoubt()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.startSending();
    rig.smtp.raiseError(10, QStringLiteral("no answer"));
    QCOMPARE(rig.states(), (QStringList{Sending, Waiting}));
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
}

void TestResults::aMessageThatWasNeverTakenGoesBackToWaiting()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.startSending();
    rig.smtp.raiseError(9, QStringLiteral("not taken"), false);
    QCOMPARE(rig.states(), (QStringList{Waiting, Waiting}));
}

void TestResults::rowsAlreadyRefusedAreErrorsWhenTheSessionFails()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.w.form.setChecked(Control::chkMultiSend, true);
    rig.startSending();
    rig.smtp.raiseError(10, QStringLiteral("no answer"), true,
                        {reply(250, QStringLiteral("ok")), reply(550, QStringLiteral("no")),
                         reply(250, QStringLiteral("ok"))});
    QCOMPARE(rig.states(), (QStringList{Sending, Error, Sending}));
}

void TestResults::theErrorIsLoggedBeforeTheRunStops()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.startSending();
    rig.logged();
    rig.smtp.raiseError(10, QStringLiteral("no answer"));
    QCOMPARE(rig.logged(), (QStringList{QStringLiteral("SMTP Error: no answer(10)"),
                                        QStringLiteral("Sending procedure stopped")}));
    // What the dead session says afterwards is nobody's concern.
    rig.smtp.raiseError(6, QStringLiteral("closed"));
    QCOMPARE(rig.logged(), QStringList());
    QCOMPARE(rig.prompts.takeNotices().size(), 1);
}
