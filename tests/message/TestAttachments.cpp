#include "TestAttachments.h"

#include "MessageRig.h"
#include "base/modMain.h"
#include "settings/Settings.h"
#include "support/ItalianTexts.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

void TestAttachments::addingAsksForTheFile()
{
    MessageRig rig;
    rig.prompts.expectFile(u"Select the file to attach:"_s, {});
    rig.attachmentCommands.cmdAggiungi_Click();
    rig.prompts.answerAll();
    const FileDialog &dialog = rig.prompts.fileDialogs[0];
    QCOMPARE(dialog.kind, FileDialog::Kind::Open);
    QCOMPARE(dialog.filter, u"All files (*.*)|*.*"_s);
    QCOMPARE(dialog.defaultExtension, u"*"_s);
    QCOMPARE(dialog.initialFolder, QString());
}

void TestAttachments::addingInItalian()
{
    const ItalianTexts italian;
    MessageRig rig(Language::Italian);
    rig.prompts.expectFile(u"Selezionare il file da allegare:"_s, {});
    rig.attachmentCommands.cmdAggiungi_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.prompts.fileDialogs[0].filter, u"Tutti i file (*.*)|*.*"_s);
}

void TestAttachments::addedFileIsLastAndLogged()
{
    MessageRig rig;
    rig.attachments.add(u"/missing/first.pdf"_s);
    const QString path = rig.document(u"a.pdf"_s, QByteArray(1025, 'x'));
    rig.prompts.expectFile(u"Select the file to attach:"_s, path);
    rig.attachmentCommands.cmdAggiungi_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.attachments.paths(), (QStringList{u"/missing/first.pdf"_s, path}));
    QVERIFY(rig.form.projectModified());
    QCOMPARE(rig.form.text(Control::lblSize), u"1.00 KB"_s); // the missing one counts -1
    QCOMPARE(rig.logged(), QStringList{u"Attachment file '"_s + path + u"' added"_s});
}

void TestAttachments::addingNothingChangesNothing()
{
    MessageRig rig;
    rig.prompts.expectFile(u"Select the file to attach:"_s, {});
    rig.attachmentCommands.cmdAggiungi_Click();
    rig.prompts.answerAll();
    QVERIFY(rig.attachments.paths().isEmpty());
    QVERIFY(!rig.form.projectModified());
    QCOMPARE(rig.logged(), QStringList());
}

void TestAttachments::addingLeavesTheDocumentFolder()
{
    MessageRig rig;
    rig.attachmentCommands.attach(rig.document(u"a.pdf"_s, "x"));
    QCOMPARE(Settings::ReadDefaultDocPath(rig.settings), std::string("C:\\Documenti Sorvanta\\"));
}

void TestAttachments::sameAttachmentAddedTwiceCountsTwiceAndIsListedTwice()
{
    MessageRig rig;
    const QString path = rig.document(u"a.pdf"_s, QByteArray(1024, 'x'));
    rig.attachmentCommands.attach(path);
    rig.attachmentCommands.attach(path);
    QCOMPARE(rig.attachments.paths(), (QStringList{path, path}));
    QCOMPARE(rig.form.text(Control::lblSize), u"2.00 KB"_s);
}

void TestAttachments::shownTextIsShortened()
{
    const QString path = u"/home/mario/mailings/spring/catalogue/prices-for-2027.pdf"_s;
    QCOMPARE(Attachments::shownText(path), u"/.../mailings/spring/catalogue/prices-for-2027.pdf"_s);
    QCOMPARE(Attachments::shownText(path), Wrap(path, 50));
}

void TestAttachments::answerAfterTheProjectWasReplacedIsIgnored()
{
    MessageRig rig;
    rig.prompts.expectFile(u"Select the file to attach:"_s, u"/a.pdf"_s);
    rig.attachmentCommands.cmdAggiungi_Click();
    rig.form.countProjectReplaced();
    rig.prompts.answerAll();
    rig.prompts.expectFile(u"Select the file to attach:"_s, u"/a.pdf"_s);
    rig.attachmentCommands.cmdAggiungi_Click();
    rig.form.setRunState(RunState::Waiting, "a test");
    rig.prompts.answerAll();
    QVERIFY(rig.attachments.paths().isEmpty());
}

void TestAttachments::removingLogsTheShownText()
{
    MessageRig rig;
    const QString path = u"/home/mario/mailings/spring/catalogue/prices-for-2027.pdf"_s;
    rig.attachments.replaceAll({u"/a.pdf"_s, path, u"/b.pdf"_s});
    rig.attachmentCommands.cmdRimuovi_Click(1);
    QCOMPARE(rig.attachments.paths(), (QStringList{u"/a.pdf"_s, u"/b.pdf"_s}));
    QVERIFY(rig.form.projectModified());
    QCOMPARE(rig.form.text(Control::lblSize), u"0.00 KB"_s);
    QCOMPARE(rig.logged(),
             QStringList{u"Attachment file '/.../mailings/spring/catalogue/prices-for-2027.pdf' "
                         "removed"_s});
}

void TestAttachments::removingWithAnEmptyListLogsAnEmptyNameAndMarksTheProject()
{
    MessageRig rig;
    rig.attachmentCommands.cmdRimuovi_Click(-1);
    QVERIFY(rig.form.projectModified());
    QCOMPARE(rig.form.text(Control::lblSize), u"0.00 KB"_s);
    QCOMPARE(rig.logged(), QStringList{u"Attachment file '' removed"_s});
}

void TestAttachments::removingWithNothingSelectedIsAsWithAnEmptyList()
{
    for (const int selected : {-1, 1, 99}) {
        MessageRig rig;
        rig.attachments.replaceAll({u"/a.pdf"_s});
        rig.attachmentCommands.cmdRimuovi_Click(selected);
        QCOMPARE(rig.attachments.paths(), QStringList{u"/a.pdf"_s});
        QVERIFY(rig.form.projectModified());
        QCOMPARE(rig.logged(), QStringList{u"Attachment file '' removed"_s});
    }
}

void TestAttachments::listSaysWhenItChanges()
{
    Attachments attachments;
    const QSignalSpy changes(&attachments, &Attachments::changed);
    attachments.add(u"/a.pdf"_s);
    attachments.removeAt(0);
    attachments.replaceAll({u"/b.pdf"_s});
    QCOMPARE(changes.size(), 3);
}
