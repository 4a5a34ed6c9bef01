#include "TestMessageFiller.h"

#include "support/WorkspaceRig.h"

#include <QTest>

using namespace Qt::StringLiterals;

void TestMessageFiller::aSingleMessageHasOneAddressAndItsName()
{
    WorkspaceRig rig;
    rig.fillForm(3);
    QVERIFY(rig.w.engine.loadBodies());
    rig.w.filler.fill(rig.smtp, rig.w.bodies, {{u"a2@example.net"_s}, u"Name 2"_s});
    QCOMPARE(rig.smtp.RecipientAddress, u"a2@example.net"_s);
    QVERIFY(!rig.smtp.RecipientList);
    QCOMPARE(rig.smtp.TextBody, u"Dear Name 2,\r\n"_s);
    QVERIFY(rig.smtp.sent.isEmpty());
    QCOMPARE(rig.state(2), u"Waiting"_s);
}

void TestMessageFiller::aGroupOfOneIsAList()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.filler.fill(rig.smtp, rig.w.bodies, {{u"a1@example.net"_s}, u"Name 1"_s, true});
    QVERIFY(rig.smtp.RecipientList);
    QCOMPARE(rig.smtp.RecipientAddress, u"a1@example.net"_s);
}

void TestMessageFiller::identifiersNeverRepeatAcrossClients()
{
    WorkspaceRig rig; // its clock stands
    rig.fillForm(1);
    FakeSmtp other;
    rig.w.filler.fill(rig.smtp, rig.w.bodies, {});
    rig.w.filler.fill(other, rig.w.bodies, {});
    QVERIFY(rig.smtp.ExtraHeaders.startsWith(u"Message-ID: <"));
    QVERIFY(other.ExtraHeaders.startsWith(u"Message-ID: <"));
    QVERIFY(rig.smtp.ExtraHeaders != other.ExtraHeaders);
}

void TestMessageFiller::whatAMessageDoesNotNeedIsNotWritten()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.smtp.HtmlBody = u"before"_s;
    rig.smtp.ReceiptAddress = u"before"_s;
    rig.smtp.RecipientList = true;
    rig.w.filler.fill(rig.smtp, rig.w.bodies, {});
    QCOMPARE(rig.smtp.HtmlBody, u"before"_s);
    QCOMPARE(rig.smtp.ReceiptAddress, u"before"_s);
    QVERIFY(rig.smtp.RecipientList);
}

void TestMessageFiller::attachmentsComeInTheirOrder()
{
    WorkspaceRig rig;
    rig.fillForm(1);
    rig.w.attachments.replaceAll({u"b"_s, u"a"_s, u"b"_s});
    rig.w.filler.fill(rig.smtp, rig.w.bodies, {});
    QCOMPARE(rig.smtp.attachments, (QStringList{u"b"_s, u"a"_s, u"b"_s}));
}
