#include "TestItalianRun.h"

#include "support/ItalianTexts.h"
#include "support/WorkspaceRig.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A workspace of the Italian window.
struct ItalianRig
{
    const ItalianTexts texts;
    WorkspaceRig rig{Language::Italian};
};

} // namespace

void TestItalianRun::refusalsOfStart_data()
{
    QTest::addColumn<int>("control");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("box");
    const auto row = [](const char *name, Control control, const QString &text,
                        const QString &title, const QString &box) {
        QTest::newRow(name) << static_cast<int>(control) << text << title << box;
    };
    const QString numbersMissing =
        u"Specificare il numero di messaggi per pacchetto e l'attesa tra un pacchetto e l'altro"_s;
    row("empty field", Control::txtOggetto, u""_s, u"Avvio"_s,
        u"Riempire tutti i campi per poter inviare il messaggio"_s);
    row("no packet size", Control::txtNMsg, u""_s, u"Avvio"_s, numbersMissing);
    row("no delay", Control::txtPausa, u""_s, u"Avvio"_s, numbersMissing);
    row("packets of none", Control::txtNMsg, u"0"_s, u"Avvio"_s,
        u"Specificare un numero valido di messaggi per pacchetto"_s);
    // The titles of these two stay English.
    row("sender", Control::txtEmailMittente, u"club"_s, u"Start"_s,
        u"'club' non è un indirizzo e-mail valido."_s);
    row("control address", Control::txtControl, u"me"_s, u"Start"_s,
        u"'me' non è un indirizzo e-mail valido."_s);
}

void TestItalianRun::refusalsOfStart()
{
    QFETCH(const int, control);
    QFETCH(const QString, text);
    QFETCH(const QString, title);
    QFETCH(const QString, box);
    ItalianRig italian;
    WorkspaceRig &rig = italian.rig;
    rig.fillForm(1);
    rig.w.form.setText(static_cast<Control>(control), text);
    rig.w.engine.cmdAvvio_Click();
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices[0].title, title);
    QCOMPARE(notices[0].text, box);
}

void TestItalianRun::titleOfTheLinkedPicturesStaysEnglish()
{
    ItalianRig italian;
    WorkspaceRig &rig = italian.rig;
    rig.fillForm(1);
    rig.useHtmlMessage("<img src=\"missing.gif\">");
    rig.prompts.expectAnswer(Topic::LinkedImages, Answer::No);
    rig.w.engine.cmdAvvio_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.prompts.questions[0].title, u"Start"_s);
    QVERIFY(rig.prompts.questions[0].text.startsWith(u"Alcune immagini presenti nel documento"_s));
}

void TestItalianRun::savingBeforeTheStart()
{
    ItalianRig italian;
    WorkspaceRig &rig = italian.rig;
    rig.fillForm(1);
    rig.w.form.setProjectModified(true);
    rig.prompts.expectAnswer(Topic::SaveBeforeStart, Answer::Cancel);
    rig.w.engine.cmdAvvio_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.prompts.questions[0].title, u"Salva"_s);
    QCOMPARE(rig.prompts.questions[0].text, u"Salvare i cambiamenti prima di inviare?"_s);
}

void TestItalianRun::labelsAndEndOfARun()
{
    ItalianRig italian;
    WorkspaceRig &rig = italian.rig;
    QCOMPARE(rig.label(Control::lblTimer), u"Non Avviato"_s);
    rig.fillForm(2);
    rig.w.form.setText(Control::txtNMsg, u"1"_s);
    rig.w.form.setText(Control::txtPausa, u"2"_s);
    rig.startSending();
    QCOMPARE(rig.label(Control::lblTimer), u"Invio..."_s);
    rig.finishMessage();
    rig.Timer.tick();
    QCOMPARE(rig.label(Control::lblTimer), u"1 minuti..."_s);
    for (int second = 0; second < 60; ++second)
        rig.Timer.tick();
    QCOMPARE(rig.label(Control::lblTimer), u"59 secondi..."_s);
    rig.w.engine.cmdPausa_Click();
    QCOMPARE(rig.label(Control::lblTimer), u"Pausa..."_s);
    QCOMPARE(rig.w.form.tag(Control::cmdPausa), u"Riprendi"_s);
    rig.w.engine.cmdPausa_Click();
    QCOMPARE(rig.label(Control::lblTimer), u"59 secondi..."_s);
    QCOMPARE(rig.w.form.tag(Control::cmdPausa), u"Pausa"_s);
    for (int second = 0; second < 59; ++second)
        rig.Timer.tick();
    rig.smtp.raiseReady();
    rig.finishMessage();
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices[0].title, u"Invio"_s);
    QCOMPARE(notices[0].text, u"Invio dei messaggi terminato."_s);
    QCOMPARE(rig.label(Control::lblTimer), u"Non Avviato"_s);
}

void TestItalianRun::statesOfTheRows()
{
    ItalianRig italian;
    WorkspaceRig &rig = italian.rig;
    rig.fillForm(4);
    rig.uncheck(3);
    rig.w.form.setText(Control::txtControl, u"me@example.org"_s);
    rig.startSending();
    QCOMPARE(rig.w.recipients.at(5).name, u"Indirizzo di controllo"_s);
    rig.finishMessage(true);
    rig.finishMessage(false);
    QCOMPARE(rig.states(), (QStringList{u"Inviato"_s, u"Errore!"_s, u"Non inviato"_s, u"Invio..."_s,
                                        u"Attesa"_s}));
}

void TestItalianRun::stopQuestion()
{
    ItalianRig italian;
    WorkspaceRig &rig = italian.rig;
    rig.fillForm(1);
    rig.start();
    rig.prompts.expectAnswer(Topic::StopProcedure, Answer::Cancel);
    rig.w.engine.cmdStop_Click();
    rig.prompts.answerAll();
    QCOMPARE(rig.prompts.questions.last().title, u"Stop"_s);
    QCOMPARE(rig.prompts.questions.last().text, u"Fermare la procedura?"_s);
}

void TestItalianRun::boxOfTheServersErrorStaysEnglish()
{
    ItalianRig italian;
    WorkspaceRig &rig = italian.rig;
    rig.fillForm(1);
    rig.startSending();
    rig.smtp.raiseError(7, u"connection lost"_s);
    const QList<Notice> notices = rig.prompts.takeNotices();
    QCOMPARE(notices.size(), 1);
    QCOMPARE(notices[0].title, u"Error"_s);
    QCOMPARE(notices[0].text, u"SMTP: Errorconnection lost"_s);
}

void TestItalianRun::bodyOfAMessageWithoutText()
{
    ItalianRig italian;
    WorkspaceRig &rig = italian.rig;
    rig.fillForm(1);
    rig.w.form.setTag(Control::txtEmail, {});
    rig.useHtmlMessage("<p>News</p>");
    rig.startSending();
    QCOMPARE(rig.smtp.sent[0].message.TextBody, u"Impossibile visualizzare il documento"_s);
}

void TestItalianRun::captionOfAProjectWithoutAName()
{
    ItalianRig italian;
    italian.rig.w.projectCommands.UpdateCaption();
    QVERIFY(italian.rig.w.form.caption().startsWith(u"Senza Nome - Sorvanta ver. "_s));
}

void TestItalianRun::logStaysEnglish()
{
    ItalianRig italian;
    WorkspaceRig &rig = italian.rig;
    rig.fillForm(1);
    rig.startSending();
    rig.finishMessage();
    QCOMPARE(rig.prompts.takeNoticeTexts(), QStringList{u"Invio terminato."_s});
    QCOMPARE(rig.logged().mid(1),
             (QStringList{u"User started sending messages"_s, u"Sending procedure started"_s,
                          u"Sending message 'News' to 'a1@example.net' (1)"_s,
                          u"Message 'News' to 'a1@example.net' (1) sent."_s,
                          u"Sending ended without problems"_s, u"Sending procedure stopped"_s}));
}
