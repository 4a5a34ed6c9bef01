#include "TestCheckWindow.h"

#include "Languages.h"
#include "WindowRig.h"
#include "ui/LineList.h"
#include "ui/RecipientView.h"
#include "ui/frmCheck.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// A window with a project that could be sent at once, and its check.
struct CheckRig : WindowRig
{
    explicit CheckRig(int recipients = 3, Language language = Language::English)
        : WindowRig(language)
    {
        show();
        core->fillForm(recipients);
    }

    void check() { get<QAction>("mnuCheck").trigger(); }
    /// The server answers that all is well.
    void answer() { side->probe.raiseFinished(side->probe.goodReport()); }
    [[nodiscard]] frmCheck *box() const
    {
        for (frmCheck *box : window->findChildren<frmCheck *>()) {
            if (box->isVisible())
                return box;
        }
        return nullptr;
    }
    [[nodiscard]] LineList &list() const { return *box()->findChild<LineList *>(); }
    [[nodiscard]] QString state() const
    {
        return box()->findChild<QLabel *>(u"lblState"_s)->text();
    }
    [[nodiscard]] QPushButton &button(const char *name) const
    {
        return *box()->findChild<QPushButton *>(QLatin1String(name));
    }
    [[nodiscard]] QStringList texts() const
    {
        QStringList all;
        for (const ShownLine &line : list().lines())
            all.append(line.text);
        return all;
    }
    /// The place of the finding that begins with these words.
    [[nodiscard]] int placeOf(const QString &words) const
    {
        const QStringList all = texts();
        for (int place = 0; place < all.size(); ++place) {
            if (all.at(place).startsWith(words))
                return place;
        }
        QTest::qFail(qPrintable(u"no finding '%1' among: %2"_s.arg(words, all.join(u'\n'))),
                     __FILE__, __LINE__);
        return -1;
    }
    void click(int place) const
    {
        list().scrollToItem(list().item(place));
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          list().visualItemRect(list().item(place)).center());
    }
};

// Asks a widget for its menu. Qt shows it from an event loop of its own, in which this is done.
void openMenu(QWidget &widget, QContextMenuEvent::Reason reason,
              const std::function<void(QMenu *menu)> &inMenu)
{
    const QPoint place = widget.rect().center();
    QMetaObject::invokeMethod(
        &widget,
        [inMenu] {
            auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            inMenu(menu);
            if (menu)
                menu->close();
        },
        Qt::QueuedConnection);
    QContextMenuEvent event(reason, place, widget.mapToGlobal(place));
    QCoreApplication::sendEvent(&widget, &event);
    QCoreApplication::processEvents();
}

} // namespace

void TestCheckWindow::theMenuOpensByMouseAndMenuKey_data()
{
    QTest::addColumn<int>("reason");
    QTest::newRow("mouse") << int{QContextMenuEvent::Mouse};
    QTest::newRow("menu key") << int{QContextMenuEvent::Keyboard};
}

void TestCheckWindow::theMenuOpensByMouseAndMenuKey()
{
    QFETCH(int, reason);
    CheckRig rig;
    QStringList entries;
    openMenu(rig.get<QPushButton>("cmdAvvio"), static_cast<QContextMenuEvent::Reason>(reason),
             [&entries](QMenu *menu) {
                 QVERIFY(menu);
                 for (const QAction *action : menu->actions())
                     entries.append(action->objectName());
                 QTest::keyClick(menu, 'C');
             });
    QCOMPARE(entries, QStringList({u"mnuCheck"_s, u"mnuTest"_s}));
    QVERIFY(rig.box());
}

void TestCheckWindow::aRunHasNoMenu()
{
    CheckRig rig;
    rig.core->start();
    bool isOpen = true;
    openMenu(rig.get<QPushButton>("cmdAvvio"), QContextMenuEvent::Mouse,
             [&isOpen](QMenu *menu) { isOpen = menu != nullptr; });
    QVERIFY(!isOpen);
    QVERIFY(!rig.get<QAction>("mnuCheck").isEnabled());
    QVERIFY(!rig.get<QAction>("mnuTest").isEnabled());
}

void TestCheckWindow::theToolTipSaysThatThereIsAMenu()
{
    CheckRig rig;
    const QString toolTip = rig.get<QPushButton>("cmdAvvio").toolTip();
    for (const char *entry : {"mnuCheck", "mnuTest"})
        QVERIFY(toolTip.contains(rig.get<QAction>(entry).text().remove(u'&')));
}

void TestCheckWindow::itSpeaksTheLanguageOfTheWindow_data()
{
    addLanguages();
}

void TestCheckWindow::itSpeaksTheLanguageOfTheWindow()
{
    QFETCH(Language, language);
    const bool isItalian = language == Language::Italian;
    CheckRig rig(3, language);
    rig.check();
    QCOMPARE(rig.box()->windowTitle(),
             isItalian ? u"Verifica prima dell'invio"_s : u"Check before sending"_s);
    QCOMPARE(rig.button("cmdAgain").text(), isItalian ? u"Verifica di nuovo"_s : u"Check again"_s);
    QCOMPARE(rig.button("cmdClose").text(), isItalian ? u"Chiudi"_s : u"Close"_s);
    QCOMPARE(rig.list().accessibleName(), isItalian ? u"Risultati"_s : u"Findings"_s);
    QCOMPARE(rig.state(),
             isItalian ? u"Il server viene interrogato..."_s : u"Asking the server..."_s);
}

void TestCheckWindow::everyKindHasAPictureAndAWord()
{
    CheckRig rig;
    rig.core->w.form.setText(Control::txtPausa, {});
    rig.core->w.form.setText(Control::txtOggetto, u"BUY THIS NOW"_s);
    rig.core->useHtmlMessage("<p>Hello <img src=\"a.png\"> and words enough to be read</p>");
    rig.side->trialClient.takeRelatedFile = [](const QString &) { return QString(); };
    rig.check();
    ServerReport report = rig.side->probe.goodReport();
    report.failure = u"nobody answers"_s;
    rig.side->probe.raiseFinished(report);
    const QList<ShownLine> &lines = rig.list().lines();
    QStringList signs;
    for (const ShownLine &line : lines) {
        const QString sign = QLatin1String(line.picture) + u' ' + line.text.section(u':', 0, 0);
        QCOMPARE(line.spoken, line.text);
        if (!signs.contains(sign))
            signs.append(sign);
    }
    QCOMPARE(signs, QStringList({u"bad Start refuses"_s, u"bad The run would fail"_s,
                                 u"warning Start asks"_s, u"note Advice"_s}));
    for (int row = 0; row < rig.list().count(); ++row)
        QVERIFY(!rig.list().item(row)->icon().isNull());
}

void TestCheckWindow::itSaysThatTheServerIsAsked()
{
    CheckRig rig;
    rig.check();
    QCOMPARE(rig.state(), u"Asking the server..."_s);
    QCOMPARE(rig.side->probe.begun, QList<ServerAddress>({{u"mail.example.org"_s, 25}}));
    rig.answer();
    QVERIFY(rig.state() != u"Asking the server..."_s);
}

void TestCheckWindow::nothingToObjectIsSaid()
{
    CheckRig rig;
    rig.check();
    rig.answer();
    QCOMPARE(rig.texts(), QStringList());
    QCOMPARE(rig.state(), u"Nothing to object."_s);
}

void TestCheckWindow::whatTheServerSaysIsAdded()
{
    CheckRig rig;
    rig.check();
    QCOMPARE(rig.texts(), QStringList());
    ServerReport report = rig.side->probe.goodReport();
    report.failure = u"nobody answers"_s;
    rig.side->probe.raiseFinished(report);
    QCOMPARE(rig.texts().size(), 1);
    QVERIFY(rig.texts().constFirst().startsWith(u"The run would fail: "_s));
    QVERIFY(rig.texts().constFirst().contains(u"nobody answers"_s));
    QCOMPARE(rig.state(), u"Click on a line, or press Enter, to go where it is put right."_s);
}

void TestCheckWindow::itCanBeCheckedAgain()
{
    CheckRig rig;
    rig.core->w.form.setText(Control::txtOggetto, {});
    rig.check();
    rig.answer();
    QCOMPARE(rig.texts().size(), 1);
    rig.core->w.form.setText(Control::txtOggetto, u"News"_s);
    QTest::mouseClick(&rig.button("cmdAgain"), Qt::LeftButton);
    QCOMPARE(rig.state(), u"Asking the server..."_s);
    rig.answer();
    QCOMPARE(rig.texts(), QStringList());
    QCOMPARE(rig.side->probe.begun.size(), 2);
}

void TestCheckWindow::linesCanBeCopied()
{
    CheckRig rig;
    rig.core->w.form.setText(Control::txtOggetto, {});
    rig.check();
    rig.list().setCurrentRow(0);
    QTest::keyClick(&rig.list(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), rig.texts().constFirst());
}

void TestCheckWindow::aFindingLeadsToItsField_data()
{
    QTest::addColumn<QString>("field");
    for (const char *field : {"txtServer", "txtMittente", "txtOggetto", "txtEmailMittente"})
        QTest::newRow(field) << QString::fromLatin1(field);
}

void TestCheckWindow::aFindingLeadsToItsField()
{
    QFETCH(QString, field);
    CheckRig rig;
    const int place = QMetaEnum::fromType<Control>().keyToValue(qPrintable(field));
    rig.core->w.form.setText(static_cast<Control>(place), {});
    rig.get<RecipientView>("lstDestinatari").setFocus();
    rig.check();
    rig.click(rig.placeOf(u"Start refuses"_s));
    QCOMPARE(rig.window->focusWidget()->objectName(), field);
    QTRY_COMPARE(QApplication::activeWindow(), rig.window.get());
    QVERIFY(rig.box());
}

void TestCheckWindow::enterLeadsThereToo()
{
    CheckRig rig;
    rig.core->w.form.setText(Control::txtControl, u"nobody"_s);
    rig.check();
    rig.list().setFocus();
    rig.list().setCurrentRow(rig.placeOf(u"Start refuses"_s));
    QTest::keyClick(rig.box()->windowHandle(), Qt::Key_Return);
    QCOMPARE(rig.window->focusWidget()->objectName(), u"txtControl"_s);
    // Enter presses no button besides.
    QVERIFY(rig.box());
    QCOMPARE(rig.side->probe.begun.size(), 1);
}

void TestCheckWindow::aFindingLeadsToItsRow()
{
    CheckRig rig(200);
    std::vector<Recipient> rows = rig.core->w.recipients.rows();
    rows[149].address = u"no body@example.net"_s;
    rig.core->w.recipients.replaceAll(rows);
    rig.get<QLineEdit>("txtOggetto").setFocus();
    rig.check();
    rig.click(rig.placeOf(u"Advice: Row 150"_s));
    auto &view = rig.get<RecipientView>("lstDestinatari");
    QCOMPARE(rig.window->focusWidget(), &view);
    QCOMPARE(view.currentPosition(), 150);
    QCOMPARE(view.selectedPositions(), std::vector<int>{150});
    QVERIFY(view.viewport()->rect().contains(view.visualRect(view.currentIndex()).center()));
}

void TestCheckWindow::aRowThatIsGoneIsNowhere()
{
    CheckRig rig;
    std::vector<Recipient> rows = rig.core->w.recipients.rows();
    rows[1].address = u"no body@example.net"_s;
    rig.core->w.recipients.replaceAll(rows);
    rig.check();
    const int place = rig.placeOf(u"Advice: Row 2"_s);
    rig.core->w.recipients.remove({2});
    rig.get<QLineEdit>("txtOggetto").setFocus();
    rig.click(place);
    QCOMPARE(rig.window->focusWidget()->objectName(), u"txtOggetto"_s);
    QVERIFY(rig.get<RecipientView>("lstDestinatari").selectedPositions().empty());
}

void TestCheckWindow::theLastOfAllRowsIsFound()
{
    constexpr int Most = 32767;
    CheckRig rig(Most);
    std::vector<Recipient> rows = rig.core->w.recipients.rows();
    rows.back().address = u"no body@example.net"_s;
    rig.core->w.recipients.replaceAll(rows);
    rig.check();
    rig.click(rig.placeOf(u"Advice: Row 32767"_s));
    QCOMPARE(rig.get<RecipientView>("lstDestinatari").currentPosition(), Most);
}

void TestCheckWindow::itBlocksNothing()
{
    CheckRig rig;
    rig.check();
    QVERIFY(!rig.box()->isModal());
    QTest::mouseClick(&rig.get<QLineEdit>("txtOggetto"), Qt::LeftButton);
    QTest::keyClicks(&rig.get<QLineEdit>("txtOggetto"), u" of May"_s);
    QVERIFY(rig.core->w.form.text(Control::txtOggetto).contains(u" of May"_s));
}

void TestCheckWindow::itIsOpenOnce()
{
    CheckRig rig;
    rig.check();
    rig.check();
    QCOMPARE(rig.window->findChildren<frmCheck *>().size(), 1);
    QCOMPARE(rig.side->probe.begun.size(), 2);
    rig.box()->close();
    // At once, while the closed one is still about to be deleted.
    rig.check();
    QTRY_COMPARE(rig.window->findChildren<frmCheck *>().size(), 1);
    QVERIFY(rig.box());
}

void TestCheckWindow::itClosesWhenARunStarts()
{
    CheckRig rig;
    rig.check();
    rig.core->start();
    QCOMPARE(rig.core->w.form.runState(), RunState::Waiting);
    QVERIFY(!rig.box());
    QVERIFY(!rig.side->probe.isRunning());
}

void TestCheckWindow::itClosesWhenTheProjectIsReplaced()
{
    CheckRig rig;
    rig.check();
    rig.get<QPushButton>("cmdNuovo").click();
    QVERIFY(!rig.box());
}

void TestCheckWindow::closingGivesTheServerUp_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("Close") << 0;
    QTest::newRow("Escape") << 1;
    QTest::newRow("the title bar") << 2;
}

void TestCheckWindow::closingGivesTheServerUp()
{
    QFETCH(int, way);
    CheckRig rig;
    rig.check();
    if (way == 0)
        rig.button("cmdClose").click();
    else if (way == 1)
        QTest::keyClick(rig.box(), Qt::Key_Escape);
    else
        rig.box()->close();
    QVERIFY(!rig.box());
    QVERIFY(!rig.side->probe.isRunning());
    QTRY_VERIFY(rig.window->findChildren<frmCheck *>().isEmpty());
}
