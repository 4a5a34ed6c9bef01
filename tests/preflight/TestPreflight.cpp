#include "TestPreflight.h"

#include "PreflightRig.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

using Kind = Finding::Kind;

namespace {

// "refused: text"
QString shown(const Finding &finding)
{
    static const QStringList Names{u"refused: "_s, u"fails: "_s, u"asked: "_s, u"advice: "_s};
    return Names.at(static_cast<qsizetype>(finding.kind)) + finding.text;
}

QStringList shown(const Preflight &preflight)
{
    QStringList all;
    for (const Finding &finding : preflight.findings())
        all += shown(finding);
    return all;
}

// What a look finds.
QStringList found(PreflightRig &rig)
{
    rig.preflight.look();
    return shown(rig.preflight);
}

void setRow(PreflightRig &rig, int position, const QString &name, const QString &address)
{
    std::vector<Recipient> rows = rig.w.recipients.rows();
    Recipient &row = rows[static_cast<std::size_t>(position - 1)];
    row.name = name;
    row.address = address;
    rig.w.recipients.replaceAll(rows);
}

const QByteArray ManyWords = QByteArray("word ").repeated(100);

} // namespace

void TestPreflight::nothingIsFoundWhereAllIsWell()
{
    PreflightRig rig;
    rig.fillForm(3);
    rig.useHtmlMessage("<p>Dear *NOME*, " + ManyWords + "<img src=\"a.gif\">");
    rig.file(u"a.gif"_s, "GIF");
    rig.w.attachments.replaceAll({rig.file(u"a.pdf"_s, "a")});
    rig.w.form.setText(Control::txtControl, u"me@example.org"_s);
    QCOMPARE(found(rig), QStringList());
}

void TestPreflight::allThatStartRefusesIsFound()
{
    PreflightRig rig;
    rig.w.form.setText(Control::txtControl, u"nobody"_s);
    QCOMPARE(
        found(rig),
        (QStringList{
            u"refused: The server is missing."_s, u"refused: The sender's name is missing."_s,
            u"refused: The sender's address is missing."_s, u"refused: The subject is missing."_s,
            u"refused: Specify one or more recipients for the message"_s,
            u"refused: Specify the number of messages per packet and the delay between every packet"_s,
            u"refused: Select at least on type of message (text or HTML) and specify the message file."_s,
            u"refused: 'nobody' isn't a valid e-mail address."_s}));
    QList<std::optional<Control>> places;
    for (const Finding &finding : rig.preflight.findings())
        places += finding.control;
    QCOMPARE(places, (QList<std::optional<Control>>{Control::txtServer, Control::txtMittente,
                                                    Control::txtEmailMittente, Control::txtOggetto,
                                                    Control::lstDestinatari, Control::txtNMsg,
                                                    Control::txtEmail, Control::txtControl}));
}

void TestPreflight::aPauseIsHeldToWhatResumeRefuses()
{
    PreflightRig rig;
    rig.fillForm(1);
    rig.start();
    rig.w.engine.cmdPausa_Click();
    rig.w.form.setText(Control::txtMittente, {});
    rig.w.form.setText(Control::txtNMsg, u"0"_s);
    QCOMPARE(found(rig), QStringList{u"refused: Specify a valid number of messages per packet"_s});
}

void TestPreflight::fieldFindings_data()
{
    QTest::addColumn<Control>("control");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("finding");
    QTest::newRow("port") << Control::txtServer << u"mail:smtp"_s
                          << u"fails: The server: 'smtp' is not a port number from 1 to 65535"_s;
    QTest::newRow("blank server") << Control::txtServer << u" "_s
                                  << u"fails: The server: no server is named"_s;
    QTest::newRow("sender")
        << Control::txtEmailMittente << u"a b@example.org"_s
        << u"fails: No server takes the sender's address \"a b@example.org\": it holds a blank."_s;
    QTest::newRow("control address")
        << Control::txtControl << u"a b@example.org"_s
        << u"advice: No server takes the control address \"a b@example.org\": it holds a blank."_s;
    QTest::newRow("capitals")
        << Control::txtOggetto << u"OUR GREAT NEWS"_s
        << u"advice: The subject is in capital letters only; spam filters hold that against a message."_s;
    QTest::newRow("free mail")
        << Control::txtEmailMittente << u"club@gmail.com"_s
        << u"advice: The sender's address is one of gmail.com, and the server is not: many receivers refuse such a message or take it for spam."_s;
}

void TestPreflight::fieldFindings()
{
    QFETCH(Control, control);
    QFETCH(QString, text);
    QFETCH(QString, finding);
    PreflightRig rig;
    rig.fillForm(1);
    rig.w.form.setText(control, text);
    QCOMPARE(found(rig), QStringList{finding});
    QCOMPARE(rig.preflight.findings().front().control, std::optional(control));
}

void TestPreflight::aMessageFileThatCannotBeReadIsRefused_data()
{
    QTest::addColumn<Control>("control");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("text") << Control::txtEmail << true;
    QTest::newRow("HTML") << Control::txtHTML << true;
    QTest::newRow("HTML whose text was emptied") << Control::txtHTML << false;
}

void TestPreflight::aMessageFileThatCannotBeReadIsRefused()
{
    QFETCH(Control, control);
    QFETCH(bool, isShown);
    PreflightRig rig;
    rig.fillForm(1);
    const QString path = rig.folder.filePath(u"missing.htm"_s);
    rig.w.form.setTag(control, path);
    rig.w.form.setText(control, isShown ? path : QString());
    QCOMPARE(
        found(rig),
        QStringList{
            u"refused: The message file cannot be read: %1: the file does not exist"_s.arg(path)});
    QCOMPARE(rig.preflight.findings().front().control, std::optional(control));
}

void TestPreflight::messageFindings_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("html");
    QTest::addColumn<QStringList>("findings");
    const QString misspelt =
        u"advice: The message says \"%1\", which stays as it is: the name is put in the place of \"*NOME*\" only."_s;
    const QString fewWords =
        u"advice: The HTML message has a picture and few words; spam filters hold that against it."_s;
    QTest::newRow("other spellings, each once")
        << QByteArray("*nome* *Nome* *nome* *NOME*") << QByteArray()
        << QStringList{misspelt.arg(u"*nome*"), misspelt.arg(u"*Nome*")};
    QTest::newRow("other spelling in the HTML")
        << QByteArray("Hello") << QByteArray("<p>*nOME*</p>")
        << QStringList{misspelt.arg(u"*nOME*")};
    QTest::newRow("empty text") << QByteArray(" \r\n") << QByteArray()
                                << QStringList{u"advice: The text message is empty."_s};
    QTest::newRow("empty HTML") << QByteArray("Hello") << QByteArray("<html><body></body></html>")
                                << QStringList{u"advice: The HTML message is empty."_s};
    QTest::newRow("picture and few words")
        << QByteArray("Hello") << QByteArray("<p>Hello<img alt=\"x\">") << QStringList{fewWords};
    QTest::newRow("picture and many words")
        << QByteArray("Hello") << "<img alt=\"x\">" + ManyWords << QStringList();
    QTest::newRow("few words alone")
        << QByteArray("Hello") << QByteArray("<p>Hello") << QStringList();
}

void TestPreflight::messageFindings()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, html);
    QFETCH(QStringList, findings);
    PreflightRig rig;
    rig.fillForm(1);
    rig.useTextMessage(text);
    if (!html.isEmpty())
        rig.useHtmlMessage(html);
    QCOMPARE(found(rig), findings);
}

void TestPreflight::anHtmlMessageAloneWantsATextMessage()
{
    PreflightRig rig;
    rig.fillForm(1);
    rig.w.form.setTag(Control::txtEmail, {});
    rig.w.form.setText(Control::txtEmail, {});
    rig.useHtmlMessage("<p>Hello");
    QCOMPARE(
        found(rig),
        QStringList{
            u"advice: The HTML message has no text message beside it: who sees no HTML gets nothing to read, and spam filters hold that against it."_s});
}

void TestPreflight::eachAttachmentThatCannotBeReadIsNamed()
{
    PreflightRig rig;
    rig.fillForm(1);
    rig.composer.failure = u"an attachment cannot be read"_s; // as a client would say
    const QString folder = rig.folder.path();
    rig.w.attachments.replaceAll({rig.file(u"a.pdf"_s, "a"), folder + u"/b.pdf"_s, folder});
    QCOMPARE(found(rig),
             (QStringList{
                 u"fails: The attachment cannot be read: %1/b.pdf: the file does not exist"_s.arg(
                     folder),
                 u"fails: The attachment cannot be read: %1: it is a folder"_s.arg(folder)}));
}

void TestPreflight::eachPictureThatStaysBehindIsNamed()
{
    PreflightRig rig;
    rig.fillForm(1);
    rig.useHtmlMessage("<img src=\"a.gif\"><img src=\"http://www.example.org/b.gif\">"
                       "<img src=\"sub/c.gif\"><img src=\"d.gif\"><img src=\"d.gif\">" +
                       ManyWords);
    rig.file(u"a.gif"_s, "GIF");
    QVERIFY(QDir(rig.folder.path()).mkdir(u"sub"_s));
    rig.file(u"sub/c.gif"_s, "GIF");
    // A client takes what it can read.
    rig.trialClient.takeRelatedFile = [](const QString &path) {
        return QFileInfo::exists(path) ? u"cid:one"_s : QString();
    };
    const QString missing =
        u"asked: The picture \"%1\" is not sent with the message: it is not in the folder of the HTML file."_s;
    QCOMPARE(
        found(rig),
        (QStringList{
            missing.arg(u"http://www.example.org/b.gif"), missing.arg(u"d.gif"),
            u"advice: The picture \"sub/c.gif\" is not sent with the message: it cannot be read, or it is in a subfolder."_s}));
}

void TestPreflight::noPictureIsAskedAboutInAPause()
{
    PreflightRig rig;
    rig.fillForm(1);
    rig.useHtmlMessage("<img src=\"a.gif\">" + ManyWords);
    rig.trialClient.takeRelatedFile = [](const QString &) { return QString(); };
    QCOMPARE(found(rig).filter(u"asked"_s).size(), 1);
    rig.w.engine.EnterPausedState();
    QCOMPARE(
        found(rig),
        QStringList{
            u"advice: The picture \"a.gif\" is not sent with the message: it is not in the folder of the HTML file."_s});
}

void TestPreflight::aMessageThatCannotBeBuiltFails()
{
    PreflightRig rig;
    rig.fillForm(1);
    rig.composer.failure = u"its parts do not fit"_s;
    QCOMPARE(found(rig), QStringList{u"fails: The message cannot be made: its parts do not fit"_s});
}

void TestPreflight::whoGetsItTwiceIsFound()
{
    PreflightRig rig;
    rig.fillForm(4);
    setRow(rig, 3, u"Ann"_s, u" A1@Example.NET "_s);
    setRow(rig, 4, u"Ann"_s, u"a1@example.net"_s);
    QCOMPARE(
        found(rig),
        (QStringList{u"advice: \" A1@Example.NET \" would get the message twice: rows 1 and 3."_s,
                     u"advice: \"a1@example.net\" would get the message twice: rows 1 and 4."_s}));
    QCOMPARE(rig.preflight.findings().front().row, rig.w.recipients.at(3).id);
    QCOMPARE(rig.preflight.findings().front().control, std::optional(Control::lstDestinatari));
}

void TestPreflight::theControlAddressAmongTheRowsIsFound()
{
    PreflightRig rig;
    rig.fillForm(2);
    rig.w.form.setText(Control::txtControl, u"A2@example.net"_s);
    QCOMPARE(
        found(rig),
        QStringList{
            u"advice: The control address is in row 2 too, and would get the message twice."_s});
    rig.start();
    rig.w.engine.cmdPausa_Click();
    QCOMPARE(
        found(rig),
        QStringList{u"advice: \"A2@example.net\" would get the message twice: rows 2 and 3."_s});
}

void TestPreflight::uncheckedRowsAreLeftOut()
{
    PreflightRig rig;
    rig.fillForm(3);
    setRow(rig, 2, {}, u"a1@example.net"_s);
    setRow(rig, 3, {}, u"nobody"_s);
    rig.uncheck(2);
    rig.uncheck(3);
    QCOMPARE(found(rig), QStringList());
}

void TestPreflight::rowsWithoutANameAreFoundWhereTheMessageUsesIt()
{
    PreflightRig rig;
    rig.fillForm(2);
    setRow(rig, 2, u" "_s, u"a2@example.net"_s);
    QCOMPARE(
        found(rig),
        QStringList{
            u"advice: Row 2 has no name, and the message has a place for it: \"a2@example.net\"."_s});
    QCOMPARE(rig.preflight.findings().front().row, rig.w.recipients.at(2).id);
    rig.useTextMessage("Dear friend");
    QCOMPARE(found(rig), QStringList());
    rig.useHtmlMessage("<p>Dear *NOME*");
    QCOMPARE(found(rig).size(), 1);
}

void TestPreflight::addressesThatNoServerTakesAreFound()
{
    PreflightRig rig;
    rig.fillForm(2);
    setRow(rig, 2, u"Ann"_s, u"ann@localhost"_s);
    QCOMPARE(
        found(rig),
        QStringList{
            u"advice: Row 2: no server takes the address \"ann@localhost\": its domain is not complete."_s});
    QCOMPARE(rig.preflight.findings().front().row, rig.w.recipients.at(2).id);
}

void TestPreflight::whoGotItAlreadyIsFound()
{
    PreflightRig rig;
    rig.fillForm(4);
    rig.w.recipients.setState(1, u"Sent"_s);
    rig.w.recipients.setState(2, u"Invio..."_s);
    rig.w.recipients.setState(3, u"Error!"_s);
    QCOMPARE(
        found(rig),
        QStringList{
            u"advice: 2 checked recipients have got the message, or may have: Start sends it to them again."_s});
    rig.w.engine.EnterPausedState();
    QCOMPARE(found(rig), QStringList());
}

void TestPreflight::nobodyCheckedIsFound()
{
    PreflightRig rig;
    rig.fillForm(1);
    rig.uncheck(1);
    QCOMPARE(found(rig),
             QStringList{u"advice: No recipient is checked: nobody gets the message."_s});
}

void TestPreflight::manyFindingsOfOneKindAreCapped()
{
    PreflightRig rig;
    rig.fillForm(32'767);
    std::vector<Recipient> rows = rig.w.recipients.rows();
    for (Recipient &row : rows) {
        row.name.clear();
        row.address = u"nobody"_s;
    }
    rig.w.recipients.replaceAll(rows);
    const QStringList all = found(rig);
    QCOMPARE(all.size(), 3 * 21);
    QVERIFY(all.contains(u"advice: 32746 more rows hold an address for a second time."_s));
    QVERIFY(all.contains(u"advice: No server takes the addresses of 32747 more rows."_s));
    QVERIFY(all.contains(u"advice: 32747 more rows have no name."_s));
    QCOMPARE(rig.preflight.findings().at(20).row, 0U);
}

void TestPreflight::theGravestComeFirst()
{
    PreflightRig rig;
    rig.fillForm(2);
    setRow(rig, 2, u"Ann"_s, u"nobody"_s);                       // advice
    rig.useHtmlMessage("<img src=\"missing.gif\">" + ManyWords); // asked
    rig.trialClient.takeRelatedFile = [](const QString &) { return QString(); };
    rig.w.attachments.replaceAll({u"/missing"_s});        // fails
    rig.w.form.setText(Control::txtControl, u"nobody"_s); // refused
    found(rig);
    QList<Kind> kinds;
    for (const Finding &finding : rig.preflight.findings())
        kinds += finding.kind;
    QCOMPARE(kinds, (QList{Kind::Refused, Kind::Fails, Kind::Asked, Kind::Advice, Kind::Advice}));
}

void TestPreflight::theServerIsAsked()
{
    PreflightRig rig;
    rig.fillForm(1);
    rig.w.form.setText(Control::txtOggetto, {});
    QSignalSpy changed(&rig.preflight, &Preflight::findingsChanged);
    QSignalSpy finished(&rig.preflight, &Preflight::finished);
    rig.preflight.begin();
    QCOMPARE(rig.probe.begun, (QList{ServerAddress{u"mail.example.org"_s, 25}}));
    QVERIFY(rig.preflight.isRunning());
    QCOMPARE(changed.size(), 1);
    QCOMPARE(shown(rig.preflight), QStringList{u"refused: The subject is missing."_s});
    rig.probe.raiseProgressed(rig.probe.goodReport());
    QVERIFY(rig.preflight.isRunning());
    rig.probe.raiseFinished(rig.probe.goodReport());
    QVERIFY(!rig.preflight.isRunning());
    QCOMPARE(finished.size(), 1);
    QCOMPARE(shown(rig.preflight), QStringList{u"refused: The subject is missing."_s});
}

void TestPreflight::whatTheServerSaysIsFound_data()
{
    QTest::addColumn<QString>("failure");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QStringList>("findings");
    QTest::newRow("failure") << u"connection refused"_s << QString()
                             << QStringList{u"fails: mail.example.org:25: connection refused"_s};
    QTest::newRow("login as somebody else")
        << QString() << u"ann@example.org"_s
        << QStringList{
               u"advice: You log in as \"ann@example.org\" and send as \"club@example.org\"; some servers refuse that."_s};
    QTest::newRow("login as the sender") << QString() << u"Club@example.org"_s << QStringList();
    QTest::newRow("login that is no address") << QString() << u"ann"_s << QStringList();
}

void TestPreflight::whatTheServerSaysIsFound()
{
    QFETCH(QString, failure);
    QFETCH(QString, user);
    QFETCH(QStringList, findings);
    PreflightRig rig;
    rig.fillForm(1);
    rig.preflight.begin();
    ServerReport report = rig.probe.goodReport();
    report.failure = failure;
    report.login = LoginState::Accepted;
    report.loginUser = user;
    rig.probe.raiseFinished(report);
    QCOMPARE(shown(rig.preflight), findings);
}

void TestPreflight::theLargestMessageIsHeldAgainstTheComposedOne()
{
    PreflightRig rig;
    rig.fillForm(2);
    rig.uncheck(1);
    const qint64 size = rig.trial.compose(2, u"club@example.org"_s).value_or(QByteArray()).size();
    QVERIFY(size > 0);
    rig.preflight.begin();
    ServerReport report = rig.probe.goodReport();
    report.largestMessage = size;
    rig.probe.raiseFinished(report);
    QCOMPARE(shown(rig.preflight), QStringList());
    rig.preflight.begin();
    report.largestMessage = size - 1;
    rig.probe.raiseFinished(report);
    QCOMPARE(shown(rig.preflight),
             QStringList{u"fails: The message has %1 bytes, and the server takes no more than %2."_s
                             .arg(size)
                             .arg(size - 1)});
}

void TestPreflight::withoutAServerItFinishesFromTheEventLoop()
{
    PreflightRig rig;
    QSignalSpy finished(&rig.preflight, &Preflight::finished);
    rig.preflight.begin();
    QVERIFY(rig.preflight.isRunning());
    QCOMPARE(finished.size(), 0);
    rig.preflight.begin();
    rig.settle();
    QCOMPARE(finished.size(), 1);
    QVERIFY(!rig.preflight.isRunning());
    QVERIFY(rig.probe.begun.isEmpty());
    QVERIFY(!rig.preflight.findings().isEmpty());
}

void TestPreflight::lookingAsksNoServer()
{
    PreflightRig rig;
    rig.fillForm(1);
    rig.preflight.begin();
    rig.preflight.look();
    QVERIFY(!rig.probe.isRunning());
    QVERIFY(!rig.preflight.isRunning());
    QCOMPARE(rig.probe.begun.size(), 1);
}

void TestPreflight::beginningAnewAsksAnew()
{
    PreflightRig rig;
    rig.fillForm(1);
    QSignalSpy finished(&rig.preflight, &Preflight::finished);
    rig.preflight.begin();
    rig.w.form.setText(Control::txtServer, u"other.example.org:587"_s);
    rig.preflight.begin();
    QCOMPARE(rig.probe.timesGivenUp, 1);
    QCOMPARE(rig.probe.begun.last(), (ServerAddress{u"other.example.org"_s, 587}));
    rig.probe.raiseFinished(rig.probe.goodReport());
    QCOMPARE(finished.size(), 1);
}

void TestPreflight::givingUpSaysNothingMore()
{
    PreflightRig rig;
    rig.fillForm(1);
    QSignalSpy finished(&rig.preflight, &Preflight::finished);
    rig.preflight.giveUp();
    QCOMPARE(rig.probe.timesGivenUp, 0);
    rig.preflight.begin();
    rig.preflight.giveUp();
    QVERIFY(!rig.preflight.isRunning());
    QVERIFY(!rig.probe.isRunning());
    rig.probe.raiseFinished(rig.probe.goodReport()); // of somebody else's
    rig.w.form.setText(Control::txtServer, {});
    rig.preflight.begin();
    rig.preflight.giveUp();
    rig.settle();
    QCOMPARE(finished.size(), 0);
}

void TestPreflight::findingsOfAnotherProjectAreDropped()
{
    PreflightRig rig;
    rig.fillForm(1);
    rig.w.form.setText(Control::txtOggetto, {});
    QSignalSpy finished(&rig.preflight, &Preflight::finished);
    rig.preflight.begin();
    rig.w.form.countProjectReplaced();
    ServerReport report = rig.probe.goodReport();
    report.failure = u"connection refused"_s;
    rig.probe.raiseFinished(report);
    QCOMPARE(shown(rig.preflight), QStringList());
    QCOMPARE(finished.size(), 1);
}

void TestPreflight::lookingChangesNothing()
{
    PreflightRig rig;
    rig.fillForm(2);
    rig.w.form.setText(Control::txtControl, u"me@example.org"_s);
    rig.w.form.setProjectModified(false);
    rig.logged();
    rig.preflight.begin();
    rig.probe.raiseFinished(rig.probe.goodReport());
    QVERIFY(rig.smtp.calls.isEmpty());
    QVERIFY(rig.trialClient.connections.isEmpty());
    QVERIFY(!rig.w.form.projectModified());
    QCOMPARE(rig.w.recipients.count(), 2);
    QCOMPARE(rig.logged(), QStringList());
    QVERIFY(rig.prompts.takeNotices().isEmpty());
}
