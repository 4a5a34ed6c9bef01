#include "TestTrialMessage.h"

#include "PreflightRig.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray composed(PreflightRig &rig, int position, const QString &address = u"me@example.org"_s)
{
    return rig.trial.compose(position, address).value_or(QByteArrayLiteral("failed"));
}

} // namespace

void TestTrialMessage::aRowIsComposedWithItsName()
{
    PreflightRig rig;
    rig.fillForm(3);
    QCOMPARE(composed(rig, 2),
             QByteArray("To: me@example.org\r\nSubject: News\r\n\r\nDear Name 2,\r\n"));
    QVERIFY(rig.trialClient.calls.filter(u"Send"_s).isEmpty());
}

void TestTrialMessage::noRowIsAMessageWithoutAName()
{
    PreflightRig rig;
    rig.fillForm(1);
    QVERIFY(composed(rig, 0).endsWith("Dear ,\r\n"));
    QVERIFY(composed(rig, 2).endsWith("Dear ,\r\n"));
    rig.w.recipients.clear();
    QVERIFY(composed(rig, 1).endsWith("Dear ,\r\n"));
}

void TestTrialMessage::groupsMakeNoDifference()
{
    PreflightRig rig;
    rig.fillForm(3);
    rig.w.form.setChecked(Control::chkMultiSend, true);
    QVERIFY(composed(rig, 1).startsWith("To: me@example.org\r\n"));
    QVERIFY(!rig.trialClient.RecipientList);
}

void TestTrialMessage::nothingOfTheMessageBeforeIsLeft()
{
    PreflightRig rig;
    rig.fillForm(1);
    rig.useHtmlMessage("<p>Dear *NOME*</p>");
    rig.w.form.setChecked(Control::chkRicevuta, true);
    composed(rig, 1);
    QCOMPARE(rig.trialClient.HtmlBody, u"<p>Dear Name 1</p>\r\n"_s);
    QVERIFY(rig.trialClient.RequestReceipt);
    rig.w.form.setTag(Control::txtHTML, {});
    rig.w.form.setText(Control::txtHTML, {});
    rig.w.form.setChecked(Control::chkRicevuta, false);
    composed(rig, 1);
    QCOMPARE(rig.trialClient.HtmlBody, QString());
    QVERIFY(!rig.trialClient.RequestReceipt);
    QCOMPARE(rig.trialClient.ReceiptAddress, QString());
}

void TestTrialMessage::attachmentsDoNotPileUp()
{
    PreflightRig rig;
    rig.fillForm(1);
    rig.w.attachments.replaceAll({rig.file(u"a.pdf"_s, "a")});
    composed(rig, 1);
    QVERIFY(rig.trial.fill(1, u"me@example.org"_s).has_value());
    QCOMPARE(rig.trialClient.attachments, rig.w.attachments.paths());
}

void TestTrialMessage::picturesGetTheirContentIdsInItsOwnClient()
{
    PreflightRig rig;
    rig.fillForm(1);
    rig.useHtmlMessage("<img src=\"a.gif\">");
    rig.file(u"a.gif"_s, "GIF");
    QByteArray taken;
    rig.trialClient.takeRelatedFile = [&taken](const QString &path) {
        taken = WorkspaceRig::contentOf(path);
        return u"cid:one"_s;
    };
    composed(rig, 1);
    QCOMPARE(rig.trialClient.HtmlBody, u"<img src=\"cid:one\">\r\n"_s);
    QCOMPARE(taken, QByteArray("GIF"));
    QVERIFY(rig.smtp.calls.isEmpty());
}

void TestTrialMessage::theWorkingFolderOfAPausedRunStays()
{
    PreflightRig rig;
    rig.fillForm(2);
    rig.useHtmlMessage("<img src=\"a.gif\">");
    rig.file(u"a.gif"_s, "before");
    rig.startSending();
    rig.w.engine.cmdPausa_Click();
    rig.finishMessage();
    rig.file(u"a.gif"_s, "after");
    composed(rig, 1);
    QCOMPARE(rig.contentOf(rig.folder.filePath(u"Temp/a.gif"_s)), QByteArray("before"));
}

void TestTrialMessage::aMessageFileThatIsMissingIsAReason()
{
    PreflightRig rig;
    rig.fillForm(1);
    const QString path = rig.w.form.tag(Control::txtEmail);
    QVERIFY(QFile::remove(path));
    const auto message = rig.trial.compose(1, u"me@example.org"_s);
    QVERIFY(!message.has_value());
    QCOMPARE(message.error(), path + u": the file does not exist"_s);
    QCOMPARE(rig.composer.count, 0);
}

void TestTrialMessage::whyAMessageCannotBeBuiltIsSaid()
{
    PreflightRig rig;
    rig.fillForm(1);
    rig.composer.failure = u"it cannot be built"_s;
    const auto message = rig.trial.compose(1, u"me@example.org"_s);
    QVERIFY(!message.has_value());
    QCOMPARE(message.error(), u"it cannot be built"_s);
}

void TestTrialMessage::theRunAndTheProjectAreLeftAlone()
{
    PreflightRig rig;
    rig.fillForm(2);
    rig.startSending();
    const QStringList calls = rig.smtp.calls;
    const QStringList states = rig.states();
    const QString body = rig.smtp.TextBody;
    rig.w.form.setProjectModified(false);
    rig.logged();
    rig.useTextMessage("Changed");
    rig.w.form.setProjectModified(false);
    composed(rig, 2);
    QCOMPARE(rig.smtp.calls, calls);
    QCOMPARE(rig.smtp.TextBody, body);
    QCOMPARE(rig.states(), states);
    QCOMPARE(rig.w.bodies.textBody(), u"Dear *NOME*,\r\n"_s);
    QCOMPARE(rig.logged(), QStringList());
    QVERIFY(!rig.w.form.projectModified());
    QVERIFY(rig.prompts.takeNotices().isEmpty());
}

void TestTrialMessage::servers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");
    QTest::newRow("name") << u"mail.example.org"_s << u"mail.example.org:25"_s;
    QTest::newRow("port") << u"mail.example.org:587"_s << u"mail.example.org:587"_s;
    QTest::newRow("none") << u" "_s << u"no server is named"_s;
    QTest::newRow("bad port") << u"mail.example.org:x"_s
                              << u"'x' is not a port number from 1 to 65535"_s;
}

void TestTrialMessage::servers()
{
    QFETCH(QString, text);
    QFETCH(QString, result);
    PreflightRig rig;
    rig.w.form.setText(Control::txtServer, text);
    const auto server = rig.trial.server();
    QCOMPARE(server ? server->toText() : server.error(), result);
}
