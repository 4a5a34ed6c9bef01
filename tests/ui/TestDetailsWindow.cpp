#include "TestDetailsWindow.h"

#include "Languages.h"
#include "WindowRig.h"
#include "ui/RecipientView.h"
#include "ui/frmDetails.h"

#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr int StateColumn = static_cast<int>(Column::State);

/// A shown window with three recipients; the second was refused.
struct DetailsRig : WindowRig
{
    explicit DetailsRig(Language language = Language::English) : WindowRig(language)
    {
        show();
        core->fillForm(3);
        list().setAttempt(2, {Outcome::Refused,
                              {SmtpVerb::Rcpt, 550, u"5.1.1"_s, u"<a2@example.net> is unknown"_s},
                              core->clock.milliseconds(),
                              1,
                              u"1@shop-pc"_s});
        list().setState(2, stateWord(RowState::Error, language));
    }

    RecipientList &list() { return core->w.recipients; }
    RecipientView &view() { return get<RecipientView>("lstDestinatari"); }
    void doubleClick(int position, int column)
    {
        const QModelIndex cell = view().model()->index(position - 1, column);
        const QPoint place = view().visualRect(cell).center();
        // As a mouse does: the second click comes behind a first one.
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, place);
    }
    void open(int position) { doubleClick(position, StateColumn); }
    [[nodiscard]] QList<frmDetails *> boxes() const
    {
        QList<frmDetails *> shown;
        for (frmDetails *box : window->findChildren<frmDetails *>()) {
            if (box->isVisible())
                shown.append(box);
        }
        return shown;
    }
    [[nodiscard]] frmDetails *box() const { return boxes().value(0); }
    template <typename Widget>
    [[nodiscard]] Widget &part(const char *name) const
    {
        return *box()->findChild<Widget *>(QLatin1String(name));
    }
    /// What stands in the window, the lines of the table one after the other.
    [[nodiscard]] QString text() const
    {
        return box() == nullptr ? QString() : part<QTextEdit>("txtDetails").toPlainText();
    }
    /// The menu of the list, and its entry.
    QAction *details()
    {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {20, 20},
                                view().mapToGlobal(QPoint(20, 20)));
        QCoreApplication::sendEvent(view().viewport(), &event);
        for (QAction *entry : view().findChild<QMenu *>(u"recipientMenu"_s)->actions()) {
            if (entry->text() == u"Details..."_s)
                return entry;
        }
        return nullptr;
    }
};

} // namespace

void TestDetailsWindow::aDoubleClickOnTheStateOpensIt_data()
{
    QTest::addColumn<RunState>("state");
    for (const RunState state :
         {RunState::Idle, RunState::Waiting, RunState::Sending, RunState::Paused})
        QTest::newRow(nameOf(state)) << state;
}

void TestDetailsWindow::aDoubleClickOnTheStateOpensIt()
{
    QFETCH(RunState, state);
    DetailsRig rig;
    if (state == RunState::Waiting)
        rig.core->start();
    else if (state != RunState::Idle)
        rig.core->startSending();
    if (state == RunState::Paused)
        QTest::mouseClick(&rig.get<QPushButton>("cmdPausa"), Qt::LeftButton);
    QCOMPARE(rig.core->w.form.runState(), state);
    rig.open(2);
    QVERIFY(rig.box());
    QCOMPARE(rig.box()->windowTitle(), u"Details of Name 2"_s);
    QVERIFY(rig.text().contains(u"is unknown"_s));
}

void TestDetailsWindow::otherColumnsAndEnterDoNot()
{
    DetailsRig rig;
    for (int column = 0; column < StateColumn; ++column)
        rig.doubleClick(2, column);
    QTest::keyClick(&rig.view(), Qt::Key_Return);
    QVERIFY(!rig.box());
}

void TestDetailsWindow::theMenuOpensItForTheCurrentRow()
{
    DetailsRig rig;
    rig.view().goTo(3);
    rig.details()->trigger();
    QVERIFY(rig.box());
    QCOMPARE(rig.box()->windowTitle(), u"Details of Name 3"_s);
}

void TestDetailsWindow::withoutARowTheMenuHasNoDetails()
{
    DetailsRig rig;
    rig.list().clear();
    QVERIFY(!rig.details()->isEnabled());
}

void TestDetailsWindow::itSaysWhatIsKnown_data()
{
    addLanguages();
}

void TestDetailsWindow::itSaysWhatIsKnown()
{
    QFETCH(Language, language);
    DetailsRig rig(language);
    rig.open(2);
    const QStringList english{u"Number:"_s,
                              u"2"_s,
                              u"Name:"_s,
                              u"Name 2"_s,
                              u"Address:"_s,
                              u"a2@example.net"_s,
                              u"State:"_s,
                              u"Error!"_s,
                              u"Outcome:"_s,
                              u"refused"_s,
                              u"Server's reply:"_s,
                              u"<a2@example.net> is unknown"_s,
                              u"Reply code:"_s,
                              u"550"_s,
                              u"Enhanced code:"_s,
                              u"5.1.1"_s,
                              u"Reply to the command:"_s,
                              u"RCPT"_s,
                              u"Time:"_s,
                              u"21/11/2026 09:00:00"_s,
                              u"Tries:"_s,
                              u"1"_s,
                              u"Message identifier:"_s,
                              u"1@shop-pc"_s};
    const QStringList italian{u"Numero:"_s,
                              u"2"_s,
                              u"Nome:"_s,
                              u"Name 2"_s,
                              u"Indirizzo E-Mail:"_s,
                              u"a2@example.net"_s,
                              u"Stato:"_s,
                              u"Errore!"_s,
                              u"Esito:"_s,
                              u"rifiutato"_s,
                              u"Risposta del server:"_s,
                              u"<a2@example.net> is unknown"_s,
                              u"Codice di risposta:"_s,
                              u"550"_s,
                              u"Codice esteso:"_s,
                              u"5.1.1"_s,
                              u"Risposta al comando:"_s,
                              u"RCPT"_s,
                              u"Data e ora:"_s,
                              u"21/11/2026 09:00:00"_s,
                              u"Tentativi:"_s,
                              u"1"_s,
                              u"Identificativo del messaggio:"_s,
                              u"1@shop-pc"_s};
    const bool isItalian = language == Language::Italian;
    QCOMPARE(rig.text().split(u'\n', Qt::SkipEmptyParts), isItalian ? italian : english);
    QCOMPARE(rig.part<QPushButton>("cmdCopy").text(), isItalian ? u"Copia"_s : u"Copy"_s);
    QCOMPARE(rig.part<QPushButton>("cmdClose").text(), isItalian ? u"Chiudi"_s : u"Close"_s);
}

void TestDetailsWindow::itIsOneWindowForWhicheverRow()
{
    DetailsRig rig;
    rig.open(1);
    const frmDetails *const first = rig.box();
    rig.open(3);
    QCOMPARE(rig.boxes(), QList<frmDetails *>{rig.box()});
    QCOMPARE(rig.box(), first);
    QCOMPARE(rig.box()->windowTitle(), u"Details of Name 3"_s);
}

void TestDetailsWindow::itBlocksNothing()
{
    DetailsRig rig;
    rig.open(2);
    QVERIFY(!rig.box()->isModal());
    rig.core->prompts.expectAnswer(Topic::SaveBeforeStart, Answer::No);
    rig.core->w.form.setProjectModified(true);
    QTest::mouseClick(&rig.get<QPushButton>("cmdAvvio"), Qt::LeftButton);
    rig.core->prompts.answerAll();
    QCOMPARE(rig.core->w.form.runState(), RunState::Waiting);
    QVERIFY(rig.box());
}

void TestDetailsWindow::itFollowsTheRowThroughARun()
{
    DetailsRig rig;
    rig.open(1);
    QVERIFY(rig.text().contains(u"nothing was sent yet"_s));
    rig.core->startSending();
    QTRY_VERIFY(rig.text().contains(u"on its way: the server has not answered yet"_s));
    rig.core->smtp.raiseDone(true, {{SmtpVerb::Content, 250, {}, u"Ok: queued as 9Q"_s}});
    QTRY_VERIFY(rig.text().contains(u"sent: the server accepted the message"_s));
    QVERIFY(rig.text().contains(u"\n9Q"_s));
}

void TestDetailsWindow::itFollowsTheRowWhereverItMoves()
{
    DetailsRig rig;
    rig.open(2);
    rig.core->w.recipientCommands.lstDestinatari_ColumnClick(2);
    rig.core->w.recipientCommands.lstDestinatari_ColumnClick(2);
    rig.core->w.recipientCommands.cmdRemove_Click({1});
    QCOMPARE(rig.list().at(1).name, u"Name 2"_s);
    rig.list().setState(1, u"Sent"_s);
    QTRY_VERIFY(rig.text().contains(u"sent: the server accepted the message"_s));
    QVERIFY(!rig.part<QLabel>("lblGone").isVisible());
}

void TestDetailsWindow::itSaysThatTheRowIsGone()
{
    DetailsRig rig;
    rig.open(2);
    QVERIFY(!rig.part<QLabel>("lblGone").isVisible());
    rig.core->w.recipientCommands.cmdRemove_Click({2});
    QVERIFY(rig.part<QLabel>("lblGone").isVisible());
    QCOMPARE(rig.part<QLabel>("lblGone").text(), u"This recipient is no longer in the list."_s);
    // What was known can still be read.
    QVERIFY(rig.text().contains(u"is unknown"_s));
    rig.open(1);
    QVERIFY(!rig.part<QLabel>("lblGone").isVisible());
    QCOMPARE(rig.box()->windowTitle(), u"Details of Name 1"_s);
}

void TestDetailsWindow::itClosesWhenTheProjectIsReplaced()
{
    DetailsRig rig;
    rig.open(2);
    rig.core->startSending();
    QVERIFY(rig.box());
    rig.core->w.engine.StopSending();
    QVERIFY(rig.box());
    rig.core->w.form.countProjectReplaced();
    QVERIFY(!rig.box());
}

void TestDetailsWindow::itCloses_data()
{
    QTest::addColumn<QString>("how");
    for (const char *how : {"Esc", "Close", "title bar"})
        QTest::newRow(how) << QString::fromLatin1(how);
}

void TestDetailsWindow::itCloses()
{
    QFETCH(QString, how);
    DetailsRig rig;
    rig.open(2);
    const QPointer<frmDetails> box = rig.box();
    if (how == u"Esc")
        QTest::keyClick(&rig.part<QTextEdit>("txtDetails"), Qt::Key_Escape);
    else if (how == u"Close")
        QTest::mouseClick(&rig.part<QPushButton>("cmdClose"), Qt::LeftButton);
    else
        box->close();
    QTRY_VERIFY(!box);
}

void TestDetailsWindow::everythingIsCopied()
{
    DetailsRig rig;
    rig.open(1);
    QTest::mouseClick(&rig.part<QPushButton>("cmdCopy"), Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             u"Number: 1\nName: Name 1\nAddress: a1@example.net\nState: Waiting\n"
             "Outcome: nothing was sent yet\n"_s);
}

void TestDetailsWindow::aPartCanBeSelectedByKeyboardAndCopied()
{
    DetailsRig rig;
    rig.open(2);
    auto &text = rig.part<QTextEdit>("txtDetails");
    QVERIFY(text.find(u"550"_s));
    QTest::keyClick(&text, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"550"_s);
    QTest::keyClick(&text, Qt::Key_A, Qt::ControlModifier);
    QVERIFY(text.textCursor().selectedText().contains(u"a2@example.net"_s));
    // Nothing can be written into it.
    const QString before = rig.text();
    QTest::keyClicks(&text, u"x"_s);
    QCOMPARE(rig.text(), before);
}

void TestDetailsWindow::longTextsWrap()
{
    DetailsRig rig;
    const QString address = QString(200, u'a') + u"@example.net"_s;
    const QString reply = u"a reply of many words "_s.repeated(60);
    rig.list().setAttempt(
        3, {Outcome::Refused, {SmtpVerb::Rcpt, 550, {}, reply + address}, 1, 1, address});
    rig.list().setState(3, u"Error!"_s);
    rig.open(3);
    const auto &text = rig.part<QTextEdit>("txtDetails");
    QCOMPARE(text.horizontalScrollBar()->maximum(), 0);
    QVERIFY(text.document()->size().width() <= text.viewport()->width());
    QVERIFY(text.verticalScrollBar()->maximum() > 0);
    QVERIFY(rig.text().contains(address));
}

void TestDetailsWindow::whatServersSayIsNoMarkup()
{
    DetailsRig rig;
    const QString reply = u"<img src='http://x.example/a.png'> <b>see</b> &amp; %1"_s;
    rig.list().setAttempt(3, {Outcome::Refused, {SmtpVerb::Rcpt, 550, {}, reply}, 1, 1, {}});
    rig.list().setState(3, u"Error!"_s);
    rig.open(3);
    QVERIFY2(rig.text().contains(reply), qPrintable(rig.text()));
}

void TestDetailsWindow::tabVisitsTextAndButtons()
{
    DetailsRig rig;
    rig.open(2);
    QVERIFY(QTest::qWaitForWindowActive(rig.box()));
    rig.part<QTextEdit>("txtDetails").setFocus();
    QStringList visited;
    for (int step = 0; step < 3; ++step) {
        visited.append(rig.box()->focusWidget()->objectName());
        QTest::keyClick(rig.box()->windowHandle(), Qt::Key_Tab);
    }
    QCOMPARE(visited, QStringList({u"txtDetails"_s, u"cmdCopy"_s, u"cmdClose"_s}));
}
