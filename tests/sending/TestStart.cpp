#include "TestStart.h"

#include "support/WorkspaceRig.h"

#include <QTest>

namespace {

const QString FillFields = QStringLiteral("Fill all the fields to be able to send the messages");
const QString PacketNumbers =
    QStringLiteral("Specify the number of messages per packet and the delay between every packet");
const QString ValidNumber = QStringLiteral("Specify a valid number of messages per packet");

} // namespace

void TestStart::refusals_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("refusal");
    const auto row = [](const char *name, const char *control, const char *text,
                        const QString &refusal) {
        QTest::newRow(name) << QString::fromLatin1(control) << QString::fromLatin1(text) << refusal;
    };
    row("no server", "txtServer", "", FillFields);
    row("no sender name", "txtMittente", "", FillFields);
    row("no sender address", "txtEmailMittente", "", FillFields);
    row("no subject", "txtOggetto", "", FillFields);
    row("no packet size", "txtNMsg", "", PacketNumbers);
    row("no delay", "txtPausa", "", PacketNumbers);
    row("a packet size of zero", "txtNMsg", "0", ValidNumber);
    row("a packet size that is no number", "txtNMsg", "ten", ValidNumber);
    row("a packet size beyond 16 bits", "txtNMsg", "32768", ValidNumber);
    row("a delay that is no number", "txtPausa", "5 min", PacketNumbers);
    row("a negative delay", "txtPausa", "-1", PacketNumbers);
    row("a delay whose seconds exceed 32 bits", "txtPausa", "35791395", PacketNumbers);
    row("an invalid sender", "txtEmailMittente", "club@example",
        QStringLiteral("'club@example' isn't a valid e-mail address."));
}

void TestStart::refusals()
{
    QFETCH(QString, control);
    QFETCH(QString, text);
    QFETCH(QString, refusal);
    WorkspaceRig rig;
    rig.fillForm(2);
    const int key = QMetaEnum::fromType<Control>().keyToValue(control.toLatin1().constData());
    QVERIFY(key >= 0);
    rig.w.form.setText(static_cast<Control>(key), text);
    rig.w.engine.cmdAvvio_Click();
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.front().text, refusal);
    QCOMPARE(notices.front().title, QStringLiteral("Start"));
    QVERIFY(notices.front().icon == Icon::Exclamation);
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
    QCOMPARE(rig.logged(), QStringList());
    QVERIFY(rig.prompts.questions.isEmpty());
}

void TestStart::anInvalidSenderIsReportedBeforeTheControlAddress()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.form.setText(Control::txtEmailMittente, QStringLiteral("club"));
    rig.w.form.setText(Control::txtControl, QStringLiteral("also wrong"));
    rig.w.engine.cmdAvvio_Click();
    QCOMPARE(rig.prompts.takeNoticeTexts(),
             QStringList{QStringLiteral("'club' isn't a valid e-mail address.")});
}

void TestStart::anInvalidControlAddressIsRefused()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.form.setText(Control::txtControl, QStringLiteral("a@b@c.it"));
    rig.w.engine.cmdAvvio_Click();
    QCOMPARE(rig.prompts.takeNoticeTexts(),
             QStringList{QStringLiteral("'a@b@c.it' isn't a valid e-mail address.")});
    QCOMPARE(rig.w.recipients.count(), 1);
}

void TestStart::aNegativePacketSizePasses()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.form.setText(Control::txtNMsg, QStringLiteral("-3"));
    rig.start();
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList());
    QCOMPARE(rig.w.form.runState(), RunState::Waiting);
    // Each packet is full before it begins.
    rig.Timer.tick();
    rig.smtp.raiseReady();
    QVERIFY(rig.smtp.sent.isEmpty());
    QCOMPARE(rig.logged().last(), QStringLiteral("Waiting for next packet..."));
}

void TestStart::aTypedHtmlTextWithoutAFilePassesTheCheckAndEndsWhenItIsLoaded()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.form.setText(Control::txtHTML, QStringLiteral("typed by hand"));
    rig.start();
    QCOMPARE(rig.prompts.takeNoticeTexts(),
             QStringList{QStringLiteral("Unable to load the specified message!")});
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
    QVERIFY(rig.smtp.calls.isEmpty());
}

void TestStart::linkedPicturesThatWillNotTravelAreAskedAbout()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.useHtmlMessage("<img src=\"missing.gif\">");
    rig.w.form.setProjectModified(false);
    rig.prompts.expectAnswer(Topic::LinkedImages, Answer::Yes);
    rig.w.engine.cmdAvvio_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.w.form.runState(), RunState::Waiting);
    const Question question = rig.prompts.questions.value(0);
    QCOMPARE(question.title, QStringLiteral("Start"));
    QVERIFY(question.icon == Icon::Exclamation);
    QVERIFY(question.buttons == Buttons::YesNo);
    QCOMPARE(question.text,
             QStringLiteral(
                 "Some image files linked to the HTML document aren't in the same folder of the "
                 "document or they are linked with an absolute path. These images won't be sent "
                 "correctly. Do you want to continue?"));
}

void TestStart::noToThePicturesStartsNothing()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.useHtmlMessage("<img src=\"http://www.example.org/a.gif\">");
    rig.prompts.expectAnswer(Topic::LinkedImages, Answer::No);
    rig.w.engine.cmdAvvio_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
    QCOMPARE(rig.state(1), QStringLiteral("Waiting"));
}

void TestStart::savingIsOfferedOnlyForAModifiedProject()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.engine.cmdAvvio_Click();
    QVERIFY(rig.prompts.questions.isEmpty());
    QCOMPARE(rig.w.form.runState(), RunState::Waiting);
}

void TestStart::theAnswerNoStartsAndTheFlagStays()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.form.setProjectModified(true);
    rig.prompts.expectAnswer(Topic::SaveBeforeStart, Answer::No);
    rig.w.engine.cmdAvvio_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.w.form.runState(), RunState::Waiting);
    QVERIFY(rig.w.form.projectModified());
    QCOMPARE(rig.prompts.questions.value(0).title, QStringLiteral("Save"));
    QCOMPARE(rig.prompts.questions.value(0).text,
             QStringLiteral("Save changes before start sending?"));
}

void TestStart::cancelStartsNothing()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.form.setProjectModified(true);
    rig.prompts.expectAnswer(Topic::SaveBeforeStart, Answer::Cancel);
    rig.w.engine.cmdAvvio_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
}

void TestStart::aSaveThatFailsStartsNothing()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.form.setProjectPath(rig.folder.filePath(QStringLiteral("no such folder/p.svk")));
    rig.w.form.setProjectModified(true);
    rig.prompts.expectAnswer(Topic::SaveBeforeStart, Answer::Yes);
    rig.w.engine.cmdAvvio_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
    const QStringList texts = rig.prompts.takeNoticeTexts();
    QCOMPARE(texts.size(), 1);
    QVERIFY(texts.front().startsWith(rig.w.form.projectPath()));
}

void TestStart::aCancelledSaveAsGoesOn()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.form.setProjectModified(true);
    rig.prompts.expectAnswer(Topic::SaveBeforeStart, Answer::Yes);
    rig.prompts.expectFile(QStringLiteral("Select the file to save:"), {});
    rig.w.engine.cmdAvvio_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.w.form.runState(), RunState::Waiting);
}

void TestStart::anAnswerForAnotherProjectChangesNothing()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.form.setProjectModified(true);
    rig.prompts.expectAnswer(Topic::SaveBeforeStart, Answer::No);
    rig.w.engine.cmdAvvio_Click();
    rig.w.form.countProjectReplaced();
    rig.prompts.answerAll();
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
}

void TestStart::everyRowIsResetAndOnlyCheckedOnesAreCounted()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    rig.uncheck(2);
    for (int position = 1; position <= 3; ++position)
        rig.w.recipients.setState(position, QStringLiteral("Sent"));
    rig.startSending();
    QCOMPARE(rig.states(), (QStringList{QStringLiteral("Sending..."), QStringLiteral("Waiting"),
                                        QStringLiteral("Waiting")}));
    // Two recipients at 10 seconds a message: one is left after the first.
    rig.clock.advanceMilliseconds(10'000);
    rig.smtp.raiseDone(true);
    rig.Timer2.tick();
    QCOMPARE(rig.label(Control::lblRimanente), QStringLiteral("00:11"));
}

void TestStart::theControlRowComesAndGoes()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.w.form.setText(Control::txtControl, QStringLiteral("me@example.org"));
    rig.start();
    QCOMPARE(rig.w.recipients.count(), 3);
    const Recipient &control = rig.w.recipients.at(3);
    QCOMPARE(control.number, QStringLiteral("3"));
    QCOMPARE(control.name, QStringLiteral("Control Address"));
    QCOMPARE(control.address, QStringLiteral("me@example.org"));
    QCOMPARE(control.state, QStringLiteral("Waiting"));
    QVERIFY(control.checked);
    rig.Timer.tick();
    rig.smtp.raiseReady();
    rig.finishMessage();
    rig.finishMessage();
    rig.finishMessage();
    QCOMPARE(rig.addressesSent().last(), QStringLiteral("me@example.org"));
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
    QCOMPARE(rig.w.recipients.count(), 2);
}

void TestStart::theControlRowGoesWhenAMessageFileIsMissing()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.w.form.setText(Control::txtControl, QStringLiteral("me@example.org"));
    rig.w.form.setTag(Control::txtEmail, QStringLiteral("/no/such/message.txt"));
    rig.start();
    QCOMPARE(rig.w.recipients.count(), 2);
    QCOMPARE(rig.w.recipients.at(2).address, QStringLiteral("a2@example.net"));
}

void TestStart::aVanishedMessageFileEndsTheStart_data()
{
    QTest::addColumn<QString>("control");
    QTest::newRow("text") << QStringLiteral("txtEmail");
    QTest::newRow("HTML") << QStringLiteral("txtHTML");
}

void TestStart::aVanishedMessageFileEndsTheStart()
{
    QFETCH(QString, control);
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.useHtmlMessage("<p>Dear *NOME*</p>");
    const int key = QMetaEnum::fromType<Control>().keyToValue(control.toLatin1().constData());
    rig.w.form.setTag(static_cast<Control>(key), rig.folder.path());
    rig.logged();
    rig.start();
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.last().text, QStringLiteral("Unable to load the specified message!"));
    QCOMPARE(notices.last().title, QStringLiteral("Message"));
    QVERIFY(notices.last().icon == Icon::Critical);
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
    QVERIFY(rig.logged().contains(QStringLiteral("Unable to find message files")));
    QVERIFY(!rig.smtp.calls.contains(QStringLiteral("Connect")));
}

void TestStart::anHtmlFileWhoseTextWasEmptiedSendsNoHtml()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.useHtmlMessage("<p>Dear *NOME*</p>");
    rig.w.form.setText(Control::txtHTML, {});
    rig.startSending();
    QCOMPARE(rig.smtp.sent.size(), 1);
    QCOMPARE(rig.smtp.sent.front().message.HtmlBody, QString());
    QCOMPARE(rig.smtp.sent.front().message.TextBody, QStringLiteral("Dear Name 1,\r\n"));
}

void TestStart::theRunIsArmedForTheNextTick()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.start();
    QVERIFY(rig.Timer.isEnabled());
    QVERIFY(rig.Timer2.isEnabled());
    QVERIFY(rig.smtp.calls.isEmpty());
    QCOMPARE(rig.logged(),
             (QStringList{
                 QStringLiteral("Message file '%1' loaded").arg(rig.w.form.tag(Control::txtEmail)),
                 QStringLiteral("User started sending messages")}));
    rig.Timer.tick();
    QCOMPARE(rig.smtp.calls, (QStringList{QStringLiteral("Reset"), QStringLiteral("Connect")}));
}

void TestStart::aStartedRunCannotBeStartedAgain()
{
    WorkspaceRig rig;
    rig.fillForm(2);
    rig.startSending();
    rig.w.engine.cmdAvvio_Click();
    QCOMPARE(rig.state(1), QStringLiteral("Sending..."));
    QCOMPARE(rig.smtp.sent.size(), 1);
}

void TestStart::serverAndPort_data()
{
    QTest::addColumn<QString>("server");
    QTest::addColumn<QString>("connection");
    QTest::newRow("a host alone") << QStringLiteral("mail.example.org")
                                  << QStringLiteral("mail.example.org:25");
    QTest::newRow("a host and a port")
        << QStringLiteral("mail.example.org:2525") << QStringLiteral("mail.example.org:2525");
    QTest::newRow("blanks around the port")
        << QStringLiteral("mail.example.org: 587 ") << QStringLiteral("mail.example.org:587");
}

void TestStart::serverAndPort()
{
    QFETCH(QString, server);
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.form.setText(Control::txtServer, server);
    rig.start();
    rig.Timer.tick();
    QTEST(rig.smtp.connections.value(0), "connection");
}

void TestStart::aPortThatIsNoNumberIsAnErrorOfTheSession_data()
{
    QTest::addColumn<QString>("port");
    for (const char *port : {"", "smtp", "0", "-25", "65536", "25x", "99999999999999999999"})
        QTest::newRow(port) << QString::fromLatin1(port);
}

void TestStart::aPortThatIsNoNumberIsAnErrorOfTheSession()
{
    QFETCH(QString, port);
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.form.setText(Control::txtServer, QStringLiteral("mail.example.org:") + port);
    rig.start();
    rig.Timer.tick();
    QVERIFY(!rig.smtp.calls.contains(QStringLiteral("Connect")));
    QCOMPARE(rig.w.form.runState(), RunState::Idle);
    const QStringList texts = rig.prompts.takeNoticeTexts();
    QCOMPARE(texts.size(), 1);
    QVERIFY(texts.front().startsWith(QStringLiteral("SMTP: Error")));
    QVERIFY(texts.front().contains(u'\'' + port + u'\''));
}

void TestStart::connectingIsLogged()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.start();
    rig.logged();
    rig.Timer.tick();
    QCOMPARE(rig.logged(), QStringList{QStringLiteral("Sending procedure started")});
    QCOMPARE(rig.label(Control::lblTimer), QStringLiteral("Sending..."));
}
