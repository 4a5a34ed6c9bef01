#include "TestDispatch.h"

#include "support/WorkspaceRig.h"

#include <QSet>
#include <QTest>

namespace {

const QString Waiting = QStringLiteral("Waiting");
const QString Sending = QStringLiteral("Sending...");
const QString Sent = QStringLiteral("Sent");
const QString NotSent = QStringLiteral("Not sent");

void setPacketSize(WorkspaceRig &rig, int size)
{
    rig.w.form.setText(Control::txtNMsg, QString::number(size));
}

void sendInGroups(WorkspaceRig &rig)
{
    rig.w.form.setChecked(Control::chkMultiSend, true);
}

} // namespace

void TestDispatch::otherCodesChangeNothing()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.start();
    rig.Timer.tick();
    const QStringList calls = rig.smtp.calls;
    rig.logged();
    for (const qint32 code : {0, 1, 1008, -1007, -1009})
        Q_EMIT rig.smtp.StatusChanged(code);
    QCOMPARE(rig.smtp.calls, calls);
    QCOMPARE(rig.states(), QStringList{Waiting});
    QCOMPARE(rig.logged(), QStringList());
}

void TestDispatch::packetsOfThreeWithFiveRows()
{
    WorkspaceRig rig;
    rig.fillForm(5);
    setPacketSize(rig, 3);
    rig.startSending();
    for (int i = 0; i < 3; ++i)
        rig.finishMessage();
    QCOMPARE(rig.smtp.sent.size(), 3);
    QCOMPARE(rig.smtp.calls.last(), QStringLiteral("Disconnect"));
    QCOMPARE(rig.logged().last(), QStringLiteral("Waiting for next packet..."));
    QCOMPARE(rig.w.form.runState(), RunState::Waiting);
    rig.Timer.tick();
    QCOMPARE(rig.smtp.connections.size(), 2);
    rig.smtp.raiseReady();
    rig.finishMessage();
    rig.finishMessage();
    QCOMPARE(rig.smtp.sent.size(), 5);
    QCOMPARE(rig.smtp.calls.last(), QStringLiteral("Disconnect"));
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList{QStringLiteral("Sending ended.")});
    QCOMPARE(rig.states(), (QStringList{Sent, Sent, Sent, Sent, Sent}));
}

void TestDispatch::aPacketFilledByTheLastMessageEndsTheRun()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    setPacketSize(rig, 2);
    rig.startSending();
    rig.finishMessage();
    rig.finishMessage();
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.front().text, QStringLiteral("Sending of the messages ended."));
    QCOMPARE(notices.front().title, QStringLiteral("Sending"));
    QVERIFY(notices.front().icon == Icon::Information);
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
    QCOMPARE(rig.smtp.connections.size(), 1);
}

void TestDispatch::aPacketFilledBeforeUncheckedRowsNeedsOneMore()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.uncheck(3);
    setPacketSize(rig, 2);
    rig.startSending();
    rig.finishMessage();
    rig.finishMessage();
    QCOMPARE(rig.w.form.runState(), RunState::Waiting);
    rig.Timer.tick();
    rig.smtp.raiseReady();
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList{QStringLiteral("Sending ended.")});
    QCOMPARE(rig.states(), (QStringList{Sent, Sent, NotSent}));
    QCOMPARE(rig.smtp.connections.size(), 2);
}

void TestDispatch::uncheckedRowsPassedOverAreNotSent()
{
    WorkspaceRig rig;
    rig.fillForm(4);
    rig.uncheck(1);
    rig.uncheck(3);
    rig.startSending();
    QCOMPARE(rig.states(), (QStringList{NotSent, Sending, Waiting, Waiting}));
    rig.finishMessage();
    QCOMPARE(rig.states(), (QStringList{NotSent, Sent, NotSent, Sending}));
    QCOMPARE(rig.addressesSent(),
             (QStringList{QStringLiteral("a2@example.net"), QStringLiteral("a4@example.net")}));
}

void TestDispatch::uncheckedRowsAtTheEndAreMarkedByALaterSearch()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.uncheck(2);
    rig.uncheck(3);
    rig.startSending();
    rig.smtp.raiseDone(true);
    QCOMPARE(rig.states(), (QStringList{Sent, Waiting, Waiting}));
    rig.smtp.raiseReady();
    QCOMPARE(rig.states(), (QStringList{Sent, NotSent, NotSent}));
}

void TestDispatch::noCheckedRowConnectsAndEnds()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.uncheck(1);
    rig.uncheck(2);
    rig.startSending();
    QVERIFY(rig.smtp.sent.isEmpty());
    QCOMPARE(rig.smtp.connections.size(), 1);
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList{QStringLiteral("Sending ended.")});
    QCOMPARE(rig.states(), (QStringList{NotSent, NotSent}));
}

void TestDispatch::aGroupOfTwoPassesOverTheUncheckedRow()
{
    WorkspaceRig rig;
    rig.fillForm(4);
    rig.uncheck(2);
    setPacketSize(rig, 2);
    sendInGroups(rig);
    rig.startSending();
    QCOMPARE(rig.addressesSent(), QStringList{QStringLiteral("a1@example.net,a3@example.net")});
    QVERIFY(rig.smtp.sent.front().message.RecipientList);
    QCOMPARE(rig.states(), (QStringList{Sending, NotSent, Sending, Waiting}));
    QCOMPARE(rig.logged().last(),
             QStringLiteral("Sending message 'News' to ',a1@example.net,a3@example.net"));
    rig.smtp.raiseDone(true);
    QCOMPARE(rig.states(), (QStringList{Sent, NotSent, Sent, Waiting}));
    rig.smtp.raiseReady();
    QCOMPARE(rig.logged().last(), QStringLiteral("Waiting for next packet..."));
}

void TestDispatch::aGroupIsThePacketSizeNotTheRoomLeft()
{
    WorkspaceRig rig;
    rig.fillForm(5);
    setPacketSize(rig, 3);
    sendInGroups(rig);
    rig.startSending();
    rig.finishMessage();
    rig.Timer.tick();
    rig.smtp.raiseReady();
    QCOMPARE(rig.addressesSent(),
             (QStringList{QStringLiteral("a1@example.net,a2@example.net,a3@example.net"),
                          QStringLiteral("a4@example.net,a5@example.net")}));
}

void TestDispatch::everyMemberOfAGroupGetsTheFirstName()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.uncheck(1);
    sendInGroups(rig);
    rig.startSending();
    QCOMPARE(rig.smtp.sent.front().message.TextBody, QStringLiteral("Dear Name 2,\r\n"));
}

void TestDispatch::theNameReplacesEveryToken()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.useTextMessage("*NOME*, *NOME*!\r\n**NOME**");
    rig.useHtmlMessage("<p title='*NOME*'>*NOME*</p>");
    rig.startSending();
    QCOMPARE(rig.smtp.sent.front().message.TextBody,
             QStringLiteral("Name 1, Name 1!\r\n*Name 1*\r\n"));
    QCOMPARE(rig.smtp.sent.front().message.HtmlBody,
             QStringLiteral("<p title='Name 1'>Name 1</p>\r\n"));
}

void TestDispatch::anEmptyNameRemovesTheToken()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    Recipient row = rig.w.recipients.at(1);
    row.name.clear();
    rig.w.recipients.replaceAll({row});
    rig.startSending();
    QCOMPARE(rig.smtp.sent.front().message.TextBody, QStringLiteral("Dear ,\r\n"));
}

void TestDispatch::aTokenInLowerCaseStays()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.useTextMessage("Dear *nome* and *Nome*");
    rig.startSending();
    QCOMPARE(rig.smtp.sent.front().message.TextBody, QStringLiteral("Dear *nome* and *Nome*\r\n"));
}

void TestDispatch::withoutATextMessageTheBodySaysSo()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.useHtmlMessage("<p>Hello</p>");
    rig.w.form.setTag(Control::txtEmail, {});
    rig.startSending();
    QCOMPARE(rig.smtp.sent.front().message.TextBody, QStringLiteral("Unable to show the message"));
}

void TestDispatch::withoutAnHtmlMessageTheHtmlBodyIsNotWritten()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.start();
    rig.Timer.tick();
    rig.smtp.HtmlBody = QStringLiteral("what it held before");
    rig.smtp.raiseReady();
    QCOMPARE(rig.smtp.sent.front().message.HtmlBody, QStringLiteral("what it held before"));
}

void TestDispatch::theMessageIsFilledFromTheForm()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.startSending();
    const OutgoingMessage &message = rig.smtp.sent.front().message;
    QCOMPARE(message.RecipientAddress, QStringLiteral("a1@example.net"));
    QVERIFY(!message.RecipientList);
    QCOMPARE(message.FromName, QStringLiteral("The Club"));
    QCOMPARE(message.FromAddress, QStringLiteral("club@example.org"));
    QCOMPARE(message.Subject, QStringLiteral("News"));
    QCOMPARE(message.Mailer, QStringLiteral("Sorvanta - www.calvessa.example"));
    QCOMPARE(message.DateText, QStringLiteral("Sat, 21 Nov 2026 09:00:00"));
    QCOMPARE(message.ExtraHeaders,
             QStringLiteral("Message-ID: <08000000000021112026@shop-pc>\r\n"));
    QVERIFY(!message.RequestReceipt);
}

void TestDispatch::aReceiptIsRequestedForTheSender()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.form.setChecked(Control::chkRicevuta, true);
    rig.startSending();
    QVERIFY(rig.smtp.sent.front().message.RequestReceipt);
    QCOMPARE(rig.smtp.sent.front().message.ReceiptAddress, QStringLiteral("club@example.org"));
}

void TestDispatch::attachmentsAreAddedToEveryMessageInOrder()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    const QStringList paths{QStringLiteral("/b.pdf"), QStringLiteral("/a.pdf"),
                            QStringLiteral("/b.pdf")};
    rig.w.attachments.replaceAll(paths);
    rig.startSending();
    rig.finishMessage();
    QCOMPARE(rig.smtp.sent.size(), 2);
    QCOMPARE(rig.smtp.sent.at(0).attachments, paths);
    QCOMPARE(rig.smtp.sent.at(1).attachments, paths);
}

void TestDispatch::everyMessageHasItsOwnIdentifier()
{
    constexpr int Count = 50;
    WorkspaceRig rig;
    rig.fillForm(Count);
    rig.startSending();
    for (int i = 0; i < Count; ++i)
        rig.finishMessage();
    QSet<QString> identifiers;
    for (const FakeSmtp::SentMessage &message : rig.smtp.sent)
        identifiers.insert(message.message.ExtraHeaders);
    QCOMPARE(identifiers.size(), Count);
}

void TestDispatch::theRowSentToIsTheCurrentOne()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.uncheck(3);
    rig.startSending();
    QCOMPARE(rig.w.recipients.currentRow(), 1);
    rig.finishMessage();
    QCOMPARE(rig.w.recipients.currentRow(), 2);
    rig.finishMessage();
    QCOMPARE(rig.w.recipients.currentRow(), 2);
    QCOMPARE(rig.w.recipients.rowInView(), 3);
}

void TestDispatch::handingOverMarksTheProjectModified()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.start();
    rig.Timer.tick();
    QVERIFY(!rig.w.form.projectModified());
    rig.smtp.raiseReady();
    QVERIFY(rig.w.form.projectModified());
}

void TestDispatch::theLogNamesEveryMessage()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.startSending();
    QCOMPARE(rig.logged().last(), QStringLiteral("Sending message 'News' to 'a1@example.net' (1)"));
}

void TestDispatch::theWholeLogOfARun()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    setPacketSize(rig, 2);
    rig.logged();
    rig.startSending();
    rig.finishMessage();
    rig.finishMessage(false);
    rig.Timer.tick();
    rig.smtp.raiseReady();
    rig.finishMessage();
    QCOMPARE(rig.logged(),
             (QStringList{
                 QStringLiteral("Message file '%1' loaded").arg(rig.w.form.tag(Control::txtEmail)),
                 QStringLiteral("User started sending messages"),
                 QStringLiteral("Sending procedure started"),
                 QStringLiteral("Sending message 'News' to 'a1@example.net' (1)"),
                 QStringLiteral("Message 'News' to 'a1@example.net' (1) sent."),
                 QStringLiteral("Sending message 'News' to 'a2@example.net' (2)"),
                 QStringLiteral("Message 'News' to 'a2@example.net' (2) not sent."),
                 QStringLiteral("Waiting for next packet..."),
                 QStringLiteral("Sending procedure started"),
                 QStringLiteral("Sending message 'News' to 'a3@example.net' (3)"),
                 QStringLiteral("Message 'News' to 'a3@example.net' (3) sent."),
                 QStringLiteral("Sending ended without problems"),
                 QStringLiteral("Sending procedure stopped")}));
}
