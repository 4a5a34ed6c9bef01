#include "TestRunNotification.h"

#include "../Languages.h"
#include "../WindowRig.h"
#include "FakeServices.h"
#include "ui/RunNotification.h"

using namespace Qt::StringLiterals;

namespace {

/// A window that nobody has looked at yet, with three recipients.
struct NotificationRig : WindowRig
{
    explicit NotificationRig(Language language = Language::English) : WindowRig(language)
    {
        new RunNotification(core->w.engine, core->w.recipients, language, *window);
        window->Form_Load({});
        core->fillForm(3);
    }
    void run()
    {
        core->startSending();
        core->finishMessage();
        core->finishMessage(false);
        core->finishMessage();
        QCOMPARE(core->w.form.runState(), RunState::Idle);
        static_cast<void>(core->prompts.takeNotices());
    }

    FakeNotifications desktop;
};

} // namespace

void TestRunNotification::theEndOfARunIsSaid_data()
{
    addLanguages();
}

void TestRunNotification::theEndOfARunIsSaid()
{
    QFETCH(const Language, language);
    const bool italian = language == Language::Italian;
    NotificationRig rig(language);
    rig.run();
    QTRY_COMPARE(rig.desktop.shown.size(), 1);
    const ShownNotification &shown = rig.desktop.shown.front();
    QCOMPARE(shown.summary, italian ? u"L'invio è terminato"_s : u"The mailing is over"_s);
    QCOMPARE(shown.body, italian ? u"2 di 3 inviati, 1 rifiutato"_s : u"2 of 3 sent, 1 refused"_s);
    QCOMPARE(shown.icon, u"sorvanta"_s);
    QCOMPARE(shown.replaces, 0U);
    QCOMPARE(shown.actions, (QStringList{u"default"_s, italian ? u"Mostra"_s : u"Show"_s}));
    QCOMPARE(shown.hints.value(u"desktop-entry"_s).toString(), u"sorvanta"_s);
}

void TestRunNotification::aRunThatBrokeOffIsSaidWithItsReason()
{
    NotificationRig rig;
    rig.core->startSending();
    rig.core->finishMessage();
    rig.core->smtp.raiseError(10054, u"<gone> & lost"_s);
    static_cast<void>(rig.core->prompts.takeNotices());
    QTRY_COMPARE(rig.desktop.shown.size(), 1);
    QCOMPARE(rig.desktop.shown.front().summary, u"The mailing broke off"_s);
    QCOMPARE(rig.desktop.shown.front().body,
             u"&lt;gone&gt; &amp; lost\n1 of 3 sent, 1 in doubt, 1 left"_s);
}

void TestRunNotification::nothingIsSaidToWhoLooks()
{
    NotificationRig rig;
    rig.window->show();
    rig.window->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), rig.window.get());
    rig.run();
    // What is asked of the desktop comes in order: this comes behind what should not be there.
    rig.window->hide();
    QTRY_VERIFY(QApplication::activeWindow() == nullptr);
    rig.core->fillForm(3);
    rig.run();
    QTRY_VERIFY(!rig.desktop.shown.isEmpty());
    QCOMPARE(rig.desktop.shown.size(), 1);
}

void TestRunNotification::theNextReplacesTheLast()
{
    NotificationRig rig;
    rig.run();
    QTRY_COMPARE(rig.desktop.shown.size(), 1);
    // The desktop's answer says what is to be replaced.
    QVERIFY(FakeNotifications::hasAnsweredAll());
    rig.core->fillForm(3);
    rig.run();
    QTRY_COMPARE(rig.desktop.shown.size(), 2);
    QCOMPARE(rig.desktop.shown.back().replaces, FakeNotifications::Id);
}

void TestRunNotification::aClickBringsTheWindowToTheFront()
{
    NotificationRig rig;
    rig.window->showMinimized();
    QTRY_VERIFY(QApplication::activeWindow() == nullptr);
    rig.run();
    QTRY_COMPARE(rig.desktop.shown.size(), 1);
    Q_EMIT rig.desktop.ActionInvoked(FakeNotifications::Id + 1, u"default"_s);
    Q_EMIT rig.desktop.ActionInvoked(FakeNotifications::Id, u"default"_s);
    QTRY_VERIFY(!rig.window->isMinimized());
    QTRY_COMPARE(QApplication::activeWindow(), rig.window.get());
}
