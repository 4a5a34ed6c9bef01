#include "TestDrops.h"

#include "WindowRig.h"
#include "ui/AttachmentView.h"
#include "ui/RecipientView.h"

#include <QDropEvent>
#include <QMimeData>

using namespace Qt::StringLiterals;

namespace {

struct Drag
{
    explicit Drag(const QStringList &paths)
    {
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
    }

    /// Drags over the widget and lets go there, as the window system does: what a widget refuses is
    /// offered to its parent. Returns whether it was taken.
    bool dropOnto(QWidget &target)
    {
        for (QWidget *widget = &target; widget; widget = widget->parentWidget()) {
            if (!widget->acceptDrops())
                continue;
            QDragEnterEvent enter({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                                  Qt::NoModifier);
            QCoreApplication::sendEvent(widget, &enter);
            if (!enter.isAccepted())
                continue;
            QDropEvent drop({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                            Qt::NoModifier);
            QCoreApplication::sendEvent(widget, &drop);
            return drop.isAccepted() && drop.dropAction() == Qt::CopyAction;
        }
        return false;
    }

    QMimeData data;
};

struct Rig : WindowRig
{
    Rig() { show(); }

    QWidget &recipients() { return *get<RecipientView>("lstDestinatari").viewport(); }
    QWidget &attachments() { return *get<AttachmentView>("lstAllegati").viewport(); }
    /// A saved project with two recipients; the window shows an empty one.
    QString savedProject()
    {
        core->fillForm(2);
        const QString path = core->folder.filePath(u"list.svk"_s);
        core->w.projectFile.SaveProject(path, [](bool saved) { QVERIFY(saved); });
        core->w.form.setProjectModified(false);
        core->w.projectCommands.cmdNuovo_Click();
        core->w.form.setProjectModified(false);
        return path;
    }
};

} // namespace

void TestDrops::projectOnTheWindowIsOpened()
{
    Rig rig;
    const QString path = rig.savedProject();
    QVERIFY(Drag({path}).dropOnto(*rig.window));
    QCOMPARE(rig.core->w.form.projectPath(), path);
    QCOMPARE(rig.core->w.recipients.count(), 2);
}

void TestDrops::projectOnAListIsOpenedToo()
{
    Rig rig;
    const QString path = rig.savedProject();
    QVERIFY(Drag({path}).dropOnto(rig.recipients()));
    QCOMPARE(rig.core->w.form.projectPath(), path);
}

void TestDrops::openingADroppedProjectAsksAboutChanges()
{
    Rig rig;
    const QString path = rig.savedProject();
    rig.core->w.form.setText(Control::txtOggetto, u"Unsaved"_s);
    rig.core->prompts.expectAnswer(Topic::SaveBeforeOpen, Answer::Cancel);
    QVERIFY(Drag({path}).dropOnto(*rig.window));
    rig.core->prompts.answerAll();
    QCOMPARE(rig.core->w.form.projectPath(), QString());
    rig.core->prompts.expectAnswer(Topic::SaveBeforeOpen, Answer::No);
    QVERIFY(Drag({path}).dropOnto(*rig.window));
    rig.core->prompts.answerAll();
    QCOMPARE(rig.core->w.form.projectPath(), path);
}

void TestDrops::filesOnTheAttachmentsAreAttachedInOrder()
{
    Rig rig;
    const QStringList paths{rig.core->file(u"z.pdf"_s, "z"), rig.core->file(u"a.pdf"_s, "a")};
    QVERIFY(Drag(paths).dropOnto(rig.attachments()));
    QCOMPARE(rig.core->w.attachments.paths(), paths);
    QVERIFY(rig.core->logged().contains(u"Attachment file '"_s + paths[1] + u"' added"_s));
}

void TestDrops::textFileOnTheRecipientsIsImported()
{
    Rig rig;
    const QString path = rig.core->file(u"members.txt"_s, "Anna;anna@example.net\r\n");
    QVERIFY(Drag({path}).dropOnto(rig.recipients()));
    QCOMPARE(rig.core->w.recipients.count(), 1);
    QCOMPARE(rig.core->w.form.tag(Control::txtDestinatari), path);
}

void TestDrops::severalFilesOnTheRecipientsAreRefused()
{
    Rig rig;
    const QString one = rig.core->file(u"one.txt"_s, "Anna;anna@example.net\r\n");
    const QString two = rig.core->file(u"two.txt"_s, "Bruno;bruno@example.net\r\n");
    QVERIFY(!Drag({one, two}).dropOnto(rig.recipients()));
    QCOMPARE(rig.core->w.recipients.count(), 0);
}

void TestDrops::foldersAndAddressesAreRefused()
{
    Rig rig;
    QVERIFY(!Drag({rig.core->folder.path()}).dropOnto(rig.attachments()));
    Drag web({});
    web.data.setUrls({QUrl(u"https://www.example.org/list.svk"_s)});
    QVERIFY(!web.dropOnto(*rig.window));
    QVERIFY(rig.core->w.attachments.paths().isEmpty());
}

void TestDrops::dropsAreRefusedDuringARun()
{
    Rig rig;
    const QString project = rig.savedProject();
    const QString text = rig.core->file(u"members.txt"_s, "Anna;anna@example.net\r\n");
    rig.core->fillForm(3);
    rig.core->startSending();
    QVERIFY(!Drag({project}).dropOnto(*rig.window));
    QVERIFY(!Drag({text}).dropOnto(rig.recipients()));
    QVERIFY(!Drag({text}).dropOnto(rig.attachments()));
    QCOMPARE(rig.core->w.recipients.count(), 3);
}
