#include "TestReportCommands.h"

#include "journal/ReportCommands.h"
#include "support/WorkspaceRig.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct ReportRig : WorkspaceRig
{
    ReportRig() { fillForm(2); }

    /// Asks for the report, and gives that file as the answer when answered.
    void ask(const QString &name)
    {
        prompts.expectFile(u"Select the file for the report:"_s, name);
        commands.cmdReport_Click();
    }
    [[nodiscard]] QString writtenReport() const { return QString::fromUtf8(contentOf(path)); }

    const QString path = folder.filePath(u"report.csv"_s);
    ReportCommands commands{w.form, w.recipients, clock, prompts, log};
};

} // namespace

void TestReportCommands::asksWhereToWrite()
{
    ReportRig rig;
    rig.ask({});
    QCOMPARE(rig.prompts.fileDialogs.size(), 1);
    const FileDialog dialog = rig.prompts.fileDialogs.front();
    QCOMPARE(dialog.kind, FileDialog::Kind::Save);
    QCOMPARE(dialog.filter, u"Report (*.csv)|*.csv|JSON (*.json)|*.json"_s);
    QCOMPARE(dialog.defaultExtension, u"csv"_s);
    QVERIFY(dialog.asksBeforeOverwriting);
    rig.prompts.answerAll();
}

void TestReportCommands::chosenFileGetsTheReport()
{
    ReportRig rig;
    rig.w.form.setProjectPath(u"/home/anna/christmas.svk"_s);
    rig.ask(rig.path);
    rig.prompts.answerAll();
    const QString report = rig.writtenReport();
    QVERIFY(report.contains(u"Report of the project;christmas.svk\r\nSubject;News\r\n"
                            "Sender;club@example.org\r\nMade;2026-11-21T09:00:00+01:00\r\n"
                            "Recipients;2\r\n"_s));
    QVERIFY(report.contains(u"\r\n1;Name 1;a1@example.net;yes;Waiting;"_s));
    QVERIFY(report.contains(u"\r\n2;Name 2;a2@example.net;yes;Waiting;"_s));
    QCOMPARE(rig.logged().constLast(), u"Report '%1' written"_s.arg(rig.path));
    QVERIFY(rig.prompts.takeNotices().isEmpty());
}

void TestReportCommands::choosingNothingWritesNothing()
{
    ReportRig rig;
    rig.ask({});
    rig.prompts.answerAll();
    QVERIFY(rig.logged().isEmpty());
    QVERIFY(rig.prompts.takeNotices().isEmpty());
}

void TestReportCommands::reportIsOfTheMomentOfTheAnswer()
{
    ReportRig rig;
    rig.ask(rig.path);
    rig.w.recipients.setState(1, u"Sent"_s);
    rig.clock.advanceMilliseconds(60'000);
    rig.prompts.answerAll();
    QVERIFY(rig.writtenReport().contains(u"\r\nSent;1\r\n"_s));
    QVERIFY(rig.writtenReport().contains(u"\r\nMade;2026-11-21T09:01:00+01:00\r\n"_s));
}

void TestReportCommands::runThatEndsMeanwhileIsStillTheProjects()
{
    ReportRig rig;
    rig.ask(rig.path);
    rig.w.form.countRunChanged();
    rig.prompts.answerAll();
    QVERIFY(QFile::exists(rig.path));
}

void TestReportCommands::answerAfterTheProjectWasReplacedIsIgnored()
{
    ReportRig rig;
    rig.ask(rig.path);
    rig.w.form.countProjectReplaced();
    rig.prompts.answerAll();
    QVERIFY(!QFile::exists(rig.path));
}

void TestReportCommands::fileThatCannotBeWrittenIsSaidInABox()
{
    ReportRig rig;
    const QString path = rig.folder.filePath(u"missing/report.csv"_s);
    rig.ask(path);
    rig.prompts.answerAll();
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices.front().icon, Icon::Critical);
    QCOMPARE(notices.front().title, u"Report"_s);
    QVERIFY(notices.front().text.startsWith(path + u": "_s));
    QVERIFY(rig.logged().isEmpty());
}
