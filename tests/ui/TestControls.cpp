#include "TestControls.h"

#include "Languages.h"
#include "WindowRig.h"
#include "settings/IOReg.h"
#include "settings/Settings.h"
#include "ui/AttachmentView.h"
#include "ui/RecipientView.h"

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDropEvent>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOptionViewItem>
#include <QUrl>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Line
{
    const char *name = "";
    const char *kind = ""; ///< the class of the widget or entry
    const char *english = "";
    const char *italian = "";

    [[nodiscard]] QString caption(Language language) const
    {
        return QString::fromUtf8(language == Language::Italian ? italian : english);
    }
};

const std::array Widgets{
    Line{"chkMultiSend", "QCheckBox", "Send to more recipients at the same time",
         "Invia a più destinatari contemporaneamente"},
    Line{"Frame4", "QFrame"},
    Line{"cmdSaveAs", "QPushButton", "Save as...", "Salva con nome..."},
    Line{"cmdSave", "QPushButton", "Save", "Salva"},
    Line{"cmdApri", "QPushButton", "Open", "Apri"},
    Line{"cmdNuovo", "QPushButton", "New", "Nuovo"},
    Line{"cmdStop", "QPushButton", "Stop", "Stop"},
    Line{"cmdPausa", "QPushButton", "Pause", "Pausa"},
    Line{"cmdAvvio", "QPushButton", "Start", "Avvia"},
    Line{"Frame3", "QGroupBox", "Attachments:", "Allegati:"},
    Line{"cmdAggiungi", "QPushButton", "Add...", "Aggiungi..."},
    Line{"cmdRimuovi", "QPushButton", "Remove", "Rimuovi"},
    Line{"lstAllegati", "AttachmentView"},
    Line{"Label13", "QLabel", "Message Size:", "Dimensione messaggio:"},
    Line{"lblSize", "QLabel", "0 KB", "0 KB"},
    Line{"cmdCancellaHTML", "QPushButton", "Clear", "Cancella"},
    Line{"cmdCancellaTXT", "QPushButton", "Clear", "Cancella"},
    Line{"cmdPreviewHTML", "QPushButton", "New/Edit", "Nuovo/Modifica"},
    Line{"cmdPreviewTXT", "QPushButton", "New/Edit", "Nuovo/Modifica"},
    Line{"Frame1", "QGroupBox", "Recipients:", "Destinatari:"},
    Line{"cmdFromRubrica", "QPushButton", "Import from address book...",
         "Importa dalla rubrica..."},
    Line{"txtDestinatari", "QLineEdit"},
    Line{"txtControl", "QLineEdit"},
    Line{"cmdUncheckAll", "QPushButton", "Uncheck", "Deseleziona"},
    Line{"cmdCheckAll", "QPushButton", "Check", "Seleziona"},
    Line{"cmdRemove", "QPushButton", "Remove", "Rimuovi"},
    Line{"cmdAdd", "QPushButton", "Add", "Aggiungi"},
    Line{"cmdDestinatari", "QPushButton", "Import from text file...",
         "Importa da un file di testo..."},
    Line{"lstDestinatari", "RecipientView"},
    Line{"Label11", "QLabel", "Control E-Mail:", "E-Mail controllo:"},
    Line{"txtHTML", "QLineEdit"},
    Line{"cmdHTML", "QPushButton", "Browse...", "Sfoglia..."},
    Line{"cmdEmail", "QPushButton", "Browse...", "Sfoglia..."},
    Line{"txtEmailMittente", "QLineEdit"},
    Line{"txtServer", "QLineEdit"},
    Line{"cmdAccount", "QToolButton"},
    Line{"txtOggetto", "QLineEdit"},
    Line{"txtPausa", "DigitsEdit"},
    Line{"txtNMsg", "DigitsEdit"},
    Line{"chkRicevuta", "QCheckBox", "Return Receipt", "Ricevuta di ritorno"},
    Line{"txtEmail", "QLineEdit"},
    Line{"txtMittente", "QLineEdit"},
    Line{"Label4", "QLabel", "Remaining:", "Tempo rimanente:"},
    Line{"Label5", "QLabel", "Total time:", "Tempo trascorso:"},
    Line{"lblRimanente", "QLabel", "--:--", "--:--"},
    Line{"lblTrascorso", "QLabel", "--:--", "--:--"},
    Line{"lblTimer", "QLabel", "Not started", "Non Avviato"},
    Line{"Label10", "QLabel", "HTML Message:", "Messaggio HTML:"},
    Line{"Label9", "QLabel", "Sender E-Mail:", "E-Mail Mittente:"},
    Line{"Label8", "QLabel", "SMTP Server:", "Server SMTP:"},
    Line{"Label7", "QLabel", "Delay between packets [min]:", "Attesa tra i pacchetti [min]:"},
    Line{"Label6", "QLabel", "N° of messages in a packet:", "N° di messaggi per pacchetto:"},
    Line{"Label3", "QLabel", "Subject:", "Oggetto:"},
    Line{"Label2", "QLabel", "Text Message:", "Messaggio Testo:"},
    Line{"Label1", "QLabel", "Sender Name:", "Nome Mittente:"},
};

// Of the bar under the recipients, each shown when there is something to do with it.
const std::array WidgetsOfTheBar{
    Line{"lblBar", "QLabel"},
    Line{"cmdUncheckSent", "QPushButton", "Uncheck those sent", "Deseleziona gli inviati"},
    Line{"cmdShowRest", "QPushButton", "Show the rest", "Mostra i rimanenti"},
    Line{"cmdCheckRefused", "QPushButton", "Check only the refused", "Seleziona solo i rifiutati"},
    Line{"cmdReport", "QPushButton", "Report...", "Resoconto..."},
};

// In the order in which they are shown; each menu is followed by its entries.
const std::array Entries{
    Line{"mnuFile", "menu", "&File", "&File"},
    Line{"mnuNuovo", "entry", "&New", "&Nuovo"},
    Line{"mnuApri", "entry", "&Open", "&Apri"},
    Line{"mnuSalva", "entry", "&Save", "&Salva"},
    Line{"mnuSalvaConNome", "entry", "S&ave as...", "S&alva con nome..."},
    Line{"mnuSep1", "separator"},
    Line{"mnuEditor", "entry", "Select &editor...", "Selezione &editor..."},
    Line{"mnuSep4", "separator"},
    Line{"mnuEsci", "entry", "&Exit", "&Esci"},
    Line{"mnuRubrica", "entry", "&Address Book", "&Rubrica"},
    Line{"mnuHelp", "menu", "&?", "&?"},
    Line{"mnuCominciare", "entry", "Getting started...", "&Come cominciare..."},
    Line{"mnuContenuti", "entry", "&Help...", "&Guida..."},
    Line{"mnuSep2", "separator"},
    Line{"mnuAbout", "entry", "&About...", "&Informazioni su Sorvanta..."},
};

// The menu of Start, opened by the right mouse button or the menu key.
const std::array EntriesOfStart{
    Line{"mnuCheck", "entry", "&Check", "&Verifica"},
    Line{"mnuTest", "entry", "Send a &test to me", "Inviami una &prova"},
};

// From top to bottom and from left to right: the message, the recipients, the run.
const QStringList ReadingOrder{
    u"txtMittente"_s,     u"txtEmailMittente"_s, u"txtServer"_s,       u"cmdAccount"_s,
    u"txtOggetto"_s,      u"txtEmail"_s,         u"cmdEmail"_s,        u"cmdPreviewTXT"_s,
    u"cmdCancellaTXT"_s,  u"txtHTML"_s,          u"cmdHTML"_s,         u"cmdPreviewHTML"_s,
    u"cmdCancellaHTML"_s, u"chkRicevuta"_s,      u"chkMultiSend"_s,    u"txtNMsg"_s,
    u"txtPausa"_s,        u"lstAllegati"_s,      u"cmdAggiungi"_s,     u"cmdRimuovi"_s,
    u"txtDestinatari"_s,  u"cmdDestinatari"_s,   u"cmdFromRubrica"_s,  u"lstDestinatari"_s,
    u"cmdUncheckSent"_s,  u"cmdShowRest"_s,      u"cmdCheckRefused"_s, u"cmdReport"_s,
    u"cmdAdd"_s,          u"cmdRemove"_s,        u"cmdCheckAll"_s,     u"cmdUncheckAll"_s,
    u"txtControl"_s,      u"cmdNuovo"_s,         u"cmdApri"_s,         u"cmdSave"_s,
    u"cmdSaveAs"_s,       u"cmdAvvio"_s,         u"cmdPausa"_s,        u"cmdStop"_s,
};

QString lineOf(const QString &name, const QString &kind, const QString &caption)
{
    return name + u" | "_s + kind + u" | "_s + caption;
}

template <typename Table>
QStringList linesOf(const Table &table, Language language)
{
    QStringList lines;
    for (const Line &line : table) {
        lines.append(lineOf(QString::fromLatin1(line.name), QString::fromLatin1(line.kind),
                            line.caption(language)));
    }
    return lines;
}

QStringList namesOfControls()
{
    const auto controls = QMetaEnum::fromType<Control>();
    QStringList names;
    for (int place = 0; place < controls.keyCount(); ++place)
        names.append(QString::fromLatin1(controls.key(place)));
    return names;
}

QString captionOf(const QWidget &widget)
{
    for (const char *property : {"text", "title"}) {
        if (widget.property(property).isValid())
            return widget.property(property).toString();
    }
    return {};
}

// The widgets that can be operated: those that Tab visits, in its order from the first field on.
QList<QWidget *> inputsOf(frmMain &window)
{
    auto *const first = window.findChild<QWidget *>(ReadingOrder.front());
    QList<QWidget *> inputs;
    QWidget *widget = first;
    do {
        if ((widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->isWindow())
            inputs.append(widget);
        widget = widget->nextInFocusChain();
    } while (widget != first);
    return inputs;
}

QStringList namesOf(const QList<QWidget *> &widgets)
{
    QStringList names;
    for (const QWidget *widget : widgets)
        names.append(widget->objectName());
    return names;
}

// What somebody who cannot see the window is told.
QStringList spokenNamesOf(frmMain &window)
{
    QStringList names;
    for (QWidget *widget : inputsOf(window))
        names.append(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name));
    return names;
}

void appendEntries(QStringList &lines, const QList<QAction *> &actions)
{
    for (const QAction *action : actions) {
        if (const QMenu *menu = action->menu()) {
            lines.append(lineOf(menu->objectName(), u"menu"_s, menu->title()));
            appendEntries(lines, menu->actions());
        } else {
            lines.append(lineOf(action->objectName(),
                                action->isSeparator() ? u"separator"_s : u"entry"_s,
                                action->text()));
        }
    }
}

// More recipients than the list can show at once.
constexpr int ManyRecipients = 120;

void bringTo(RunState state, WindowRig &rig)
{
    rig.core->fillForm(ManyRecipients);
    if (state != RunState::Idle)
        rig.core->start();
    if (state == RunState::Sending || state == RunState::Paused) {
        rig.core->Timer.tick();
        rig.core->smtp.raiseReady();
    }
    if (state == RunState::Paused)
        QTest::mouseClick(&rig.get<QPushButton>("cmdPausa"), Qt::LeftButton);
    QCOMPARE(rig.core->w.form.runState(), state);
}

void addRunStates()
{
    QTest::addColumn<RunState>("state");
    for (const RunState state :
         {RunState::Idle, RunState::Waiting, RunState::Sending, RunState::Paused})
        QTest::newRow(nameOf(state)) << state;
}

void drop(QWidget &target, const QString &path)
{
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(path)});
    // What no widget lets in is never dropped.
    const QPoint place = target.rect().center();
    QDragEnterEvent entering(place, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &entering);
    QDropEvent dropping(place, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &dropping);
}

/// Something that the user does to the lists.
struct Gesture
{
    const char *name = "";
    std::function<void()> make;
};

std::vector<Gesture> gesturesOn(WindowRig &rig)
{
    auto &recipients = rig.get<RecipientView>("lstDestinatari");
    auto &attachments = rig.get<AttachmentView>("lstAllegati");
    const auto press = [](QWidget &list, Qt::Key key) {
        return [&list, key] { QTest::keyClick(&list, key); };
    };
    return {
        {"heading click",
         [&recipients] {
             QHeaderView &header = *recipients.header();
             const int x = header.sectionViewportPosition(2) + header.sectionSize(2) / 2;
             QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, {x, header.height() / 2});
         }},
        {"check box click",
         [&recipients] {
             QStyleOptionViewItem item;
             item.initFrom(&recipients);
             item.rect = recipients.visualRect(recipients.model()->index(0, 0));
             item.features = QStyleOptionViewItem::HasCheckIndicator;
             const QRect box = recipients.style()->subElementRect(
                 QStyle::SE_ItemViewItemCheckIndicator, &item, &recipients);
             QTest::mouseClick(recipients.viewport(), Qt::LeftButton, {}, box.center());
         }},
        {"space", press(recipients, Qt::Key_Space)},
        {"delete", press(recipients, Qt::Key_Delete)},
        {"insert", press(recipients, Qt::Key_Insert)},
        {"context menu",
         [&recipients] {
             const QPoint place = recipients.viewport()->rect().center();
             QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                     recipients.viewport()->mapToGlobal(place));
             QCoreApplication::sendEvent(recipients.viewport(), &event);
         }},
        {"drop of recipients",
         [&rig, &recipients] {
             drop(*recipients.viewport(), rig.core->file(u"list.txt"_s, "Ann;ann@example.org\r\n"));
         }},
        {"drop of an attachment",
         [&rig, &attachments] {
             drop(*attachments.viewport(), rig.core->file(u"more.pdf"_s, "more"));
         }},
        {"insert of an attachment", press(attachments, Qt::Key_Insert)},
        {"delete of an attachment", press(attachments, Qt::Key_Delete)},
    };
}

// What a gesture could change: the lists, boxes and menus.
QStringList traces(const WindowRig &rig)
{
    const Workspace &w = rig.core->w;
    QStringList all = w.attachments.paths();
    for (const Recipient &row : w.recipients.rows())
        all.append(row.name + (row.checked ? u" x"_s : QString()));
    all.append(QString::number(static_cast<int>(w.recipients.sortColumn())));
    all.append(QString::number(rig.core->prompts.openBoxes()));
    if (const QWidget *menu = QApplication::activePopupWidget())
        all.append(menu->objectName());
    return all;
}

// What the user would notice after an entry was chosen.
QStringList noticed(const WindowRig &rig)
{
    QStringList all;
    for (const Question &question : rig.core->prompts.questions)
        all.append(question.text);
    for (const FileDialog &dialog : rig.core->prompts.fileDialogs)
        all.append(dialog.title);
    for (const QString &address : rig.shell.opened)
        all.append(address.section(u'/', -1));
    for (const QDialog *dialog : rig.window->findChildren<QDialog *>()) {
        if (dialog->isVisible())
            all.append(dialog->objectName());
    }
    if (QFile::exists(rig.core->w.form.projectPath()))
        all.append(u"saved"_s);
    if (rig.endings > 0)
        all.append(u"ended"_s);
    return all;
}

} // namespace

void TestControls::theWindowHasTheNameOfItsLanguage()
{
    QCOMPARE(WindowRig(Language::English).window->objectName(), u"frmMain"_s);
    QCOMPARE(WindowRig(Language::Italian).window->objectName(), u"frmMainIta"_s);
}

void TestControls::everyControlHasItsKindAndCaption_data()
{
    addLanguages();
}

void TestControls::everyControlHasItsKindAndCaption()
{
    QFETCH(const Language, language);
    WindowRig rig(language);
    rig.show();
    const auto linesShown = [&rig](const auto &table, bool visible) {
        QStringList lines;
        for (const Line &line : table) {
            const auto &widget = rig.get<QWidget>(line.name);
            if (widget.isVisible() == visible)
                lines.append(lineOf(widget.objectName(),
                                    QString::fromLatin1(widget.metaObject()->className()),
                                    captionOf(widget)));
        }
        return lines;
    };
    QCOMPARE(linesShown(Widgets, true), linesOf(Widgets, language));
    QCOMPARE(linesShown(WidgetsOfTheBar, false), linesOf(WidgetsOfTheBar, language));
    // The frame without a caption holds the buttons of the project and of the run.
    const auto &frame = rig.get<QFrame>("Frame4");
    for (const char *button :
         {"cmdNuovo", "cmdApri", "cmdSave", "cmdSaveAs", "cmdAvvio", "cmdPausa", "cmdStop"})
        QVERIFY2(frame.isAncestorOf(&rig.get<QPushButton>(button)), button);
}

void TestControls::theListsHaveTheirColumns_data()
{
    addLanguages();
}

void TestControls::theListsHaveTheirColumns()
{
    QFETCH(const Language, language);
    WindowRig rig(language);
    const auto headings = [&rig](const char *list) {
        const QAbstractItemModel &model = *rig.get<QTreeView>(list).model();
        QStringList texts;
        for (int column = 0; column < model.columnCount(); ++column)
            texts.append(model.headerData(column, Qt::Horizontal).toString());
        return texts;
    };
    const QStringList english{u"N°"_s, u"Name"_s, u"Address"_s, u"State"_s};
    const QStringList italian{u"N°"_s, u"Nome"_s, u"Indirizzo E-Mail"_s, u"Stato"_s};
    QCOMPARE(headings("lstDestinatari"), language == Language::Italian ? italian : english);
    QCOMPARE(headings("lstAllegati"), QStringList{u"File"_s});
}

void TestControls::theMenusHoldTheirEntriesInOrder_data()
{
    addLanguages();
}

void TestControls::theMenusHoldTheirEntriesInOrder()
{
    QFETCH(const Language, language);
    WindowRig rig(language);
    QStringList shown;
    appendEntries(shown, rig.window->menuBar()->actions());
    QCOMPARE(shown, linesOf(Entries, language));
    shown.clear();
    appendEntries(shown, rig.get<QPushButton>("cmdAvvio").actions());
    QCOMPARE(shown, linesOf(EntriesOfStart, language));
}

void TestControls::bothWindowsHoldTheSame()
{
    const auto contentOf = [](Language language) {
        WindowRig rig(language);
        QStringList content;
        for (const QObject *object : rig.window->findChildren<QObject *>()) {
            if (!object->objectName().isEmpty())
                content.append(lineOf(object->objectName(),
                                      QString::fromLatin1(object->metaObject()->className()), {}));
        }
        return content + namesOf(inputsOf(*rig.window));
    };
    QCOMPARE(contentOf(Language::Italian), contentOf(Language::English));
}

void TestControls::whatCanBeOperatedIsAControl()
{
    WindowRig rig;
    const QStringList controls = namesOfControls();
    for (const QWidget *widget : rig.window->findChildren<QWidget *>()) {
        if (widget->focusPolicy() != Qt::NoFocus && widget->focusProxy() == nullptr)
            QVERIFY2(controls.contains(widget->objectName()), qPrintable(widget->objectName()));
    }
    for (const QAction *action : rig.window->findChildren<QAction *>()) {
        if (!action->isSeparator() && action->menu() == nullptr)
            QVERIFY2(controls.contains(action->objectName()), qPrintable(action->text()));
    }
    // And each control is one of the tables above.
    QStringList tables;
    for (const Line &line : Widgets)
        tables.append(QString::fromLatin1(line.name));
    for (const Line &line : WidgetsOfTheBar)
        tables.append(QString::fromLatin1(line.name));
    for (const Line &line : Entries)
        tables.append(QString::fromLatin1(line.name));
    for (const Line &line : EntriesOfStart)
        tables.append(QString::fromLatin1(line.name));
    for (const QString &control : controls)
        QCOMPARE(tables.count(control), 1);
}

void TestControls::theWindowLoadsWithTheSettingsAndAnEmptyProject_data()
{
    addLanguages();
}

void TestControls::theWindowLoadsWithTheSettingsAndAnEmptyProject()
{
    QFETCH(const Language, language);
    const bool isItalian = language == Language::Italian;
    WindowRig rig(language);
    {
        IOReg reg(rig.core->store);
        reg.Init(CurrentUserRoot, Settings::Folder);
        reg.WriteStr(Settings::Server, "mail.example.org:2525");
        reg.WriteStr(Settings::Mittente, "The Club");
        reg.WriteStr(Settings::EmailMittente, "club@example.org");
        reg.WriteStr(Settings::Cotrollo, "me@example.org");
        reg.WriteStr(Settings::nMsg, "50");
        reg.WriteStr(Settings::Pausa, "3");
        reg.WriteInt(Settings::Ricevuta, 1);
        reg.WriteInt(Settings::MultiSend, 0);
    }
    rig.show();
    const auto text = [&rig](const char *name) { return captionOf(rig.get<QWidget>(name)); };
    QCOMPARE(rig.window->windowTitle(),
             isItalian ? u"Senza Nome - Sorvanta ver. 2.0"_s : u"No Name - Sorvanta ver. 2.0"_s);
    QCOMPARE(text("txtServer"), u"mail.example.org:2525"_s);
    QCOMPARE(text("txtMittente"), u"The Club"_s);
    QCOMPARE(text("txtEmailMittente"), u"club@example.org"_s);
    QCOMPARE(text("txtControl"), u"me@example.org"_s);
    QCOMPARE(text("txtNMsg"), u"50"_s);
    QCOMPARE(text("txtPausa"), u"3"_s);
    QVERIFY(rig.get<QCheckBox>("chkRicevuta").isChecked());
    QVERIFY(!rig.get<QCheckBox>("chkMultiSend").isChecked());
    for (const char *box : {"txtOggetto", "txtEmail", "txtHTML", "txtDestinatari"})
        QCOMPARE(text(box), QString());
    QCOMPARE(text("lblTrascorso"), u"--:--"_s);
    QCOMPARE(text("lblRimanente"), u"--:--"_s);
    QCOMPARE(text("lblTimer"), isItalian ? u"Non Avviato"_s : u"Not started"_s);
    QCOMPARE(text("lblSize"), u"0 KB"_s);
    for (const char *list : {"lstDestinatari", "lstAllegati"})
        QCOMPARE(rig.get<QTreeView>(list).model()->rowCount(), 0);
    QVERIFY(!rig.core->w.form.projectModified());
}

void TestControls::accessKeysReachTheEntries_data()
{
    QTest::addColumn<Language>("language");
    QTest::addColumn<char>("menuKey");
    // Where two entries share a key it goes from one to the other, and Return chooses.
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QStringList>("result");
    const auto english = [](const char *name, char menuKey, const char *keys,
                            const QStringList &result) {
        QTest::newRow(name) << Language::English << menuKey << QByteArray(keys) << result;
    };
    const auto italian = [](const char *name, char menuKey, const char *keys,
                            const QStringList &result) {
        QTest::addRow("Italian %s", name)
            << Language::Italian << menuKey << QByteArray(keys) << result;
    };
    english("new", 'F', "N", {u"Save changes before create a new project?"_s});
    english("open", 'F', "O", {u"Save changes before open another project?"_s});
    english("save", 'F', "S", {u"saved"_s});
    english("save as", 'F', "A", {u"Select the file to save:"_s});
    english("editor", 'F', "E\r", {u"frmEditor"_s});
    english("exit", 'F', "EE\r", {u"ended"_s});
    english("address book", 'A', "", {u"frmRubrica"_s});
    english("getting started", '?', "\r", {u"come_cominciare.htm"_s});
    english("help", '?', "H", {u"ita_help.htm"_s});
    english("about", '?', "A", {u"frmAbout"_s});
    italian("new", 'F', "N", {u"Salvare le modifiche prima di creare un nuovo progetto?"_s});
    italian("open", 'F', "A\r", {u"Salvare le modifiche prima di aprire un altro progetto?"_s});
    italian("save", 'F', "S", {u"saved"_s});
    italian("save as", 'F', "AA\r", {u"Selezionare il file da salvare:"_s});
    italian("editor", 'F', "E\r", {u"frmEditor"_s});
    italian("exit", 'F', "EE\r", {u"ended"_s});
    italian("address book", 'R', "", {u"frmRubrica"_s});
    italian("getting started", '?', "C", {u"come_cominciare.htm"_s});
    italian("help", '?', "G", {u"ita_help.htm"_s});
    italian("about", '?', "I", {u"frmAbout"_s});
}

void TestControls::accessKeysReachTheEntries()
{
    QFETCH(const Language, language);
    QFETCH(const char, menuKey);
    QFETCH(const QByteArray, keys);
    QFETCH(const QStringList, result);
    WindowRig rig(language);
    rig.show();
    QVERIFY(QTest::qWaitForWindowActive(rig.window.get()));
    rig.core->w.form.setProjectModified(true);
    rig.core->w.form.setProjectPath(rig.core->folder.filePath(u"club.svk"_s));
    QTest::keyClick(rig.window.get(), menuKey, Qt::AltModifier);
    for (const char key : keys) {
        QWidget *const menu = QApplication::activePopupWidget();
        QVERIFY(menu);
        QTest::keyClick(menu, key);
    }
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    QCOMPARE(noticed(rig), result);
}

void TestControls::everyInputHasANameOfItsOwn_data()
{
    addLanguages();
}

void TestControls::everyInputHasANameOfItsOwn()
{
    QFETCH(const Language, language);
    WindowRig rig(language);
    const QStringList names = spokenNamesOf(*rig.window);
    QCOMPARE(names.size(), ReadingOrder.size());
    for (const QString &name : names) {
        QVERIFY(!name.trimmed().isEmpty());
        QVERIFY2(names.count(name) == 1, qPrintable(name));
    }
}

void TestControls::theNamesAreInTheLanguageOfTheWindow()
{
    WindowRig english(Language::English);
    const QStringList englishNames = spokenNamesOf(*english.window);
    WindowRig italian(Language::Italian);
    const QStringList italianNames = spokenNamesOf(*italian.window);
    QStringList same;
    for (qsizetype place = 0; place < englishNames.size(); ++place) {
        if (englishNames.at(place) == italianNames.at(place))
            same.append(englishNames.at(place));
    }
    QCOMPARE(same, QStringList{u"Stop"_s});
}

void TestControls::labelsAreTheBuddiesOfTheirFields()
{
    struct Pair
    {
        const char *label;
        const char *field;
    };
    WindowRig rig;
    for (const Pair &pair : {
             Pair{"Label1", "txtMittente"},
             Pair{"Label9", "txtEmailMittente"},
             Pair{"Label8", "txtServer"},
             Pair{"Label3", "txtOggetto"},
             Pair{"Label2", "txtEmail"},
             Pair{"Label10", "txtHTML"},
             Pair{"Label6", "txtNMsg"},
             Pair{"Label7", "txtPausa"},
             Pair{"Label11", "txtControl"},
         })
        QCOMPARE(rig.get<QLabel>(pair.label).buddy(), &rig.get<QLineEdit>(pair.field));
}

void TestControls::tabFollowsTheReadingOrder_data()
{
    addLanguages();
}

void TestControls::tabFollowsTheReadingOrder()
{
    QFETCH(const Language, language);
    WindowRig rig(language);
    rig.show();
    QCOMPARE(namesOf(inputsOf(*rig.window)), ReadingOrder);

    QStringList enabled;
    for (const QWidget *widget : inputsOf(*rig.window)) {
        if (widget->isEnabled() && widget->isVisible())
            enabled.append(widget->objectName());
    }
    rig.get<QWidget>("txtMittente").setFocus();
    QStringList visited;
    for (qsizetype step = 0; step < enabled.size(); ++step) {
        visited.append(rig.window->focusWidget()->objectName());
        QTest::keyClick(rig.window->windowHandle(), Qt::Key_Tab);
    }
    QCOMPARE(visited, enabled);
    QCOMPARE(rig.window->focusWidget()->objectName(), enabled.front());
}

void TestControls::whatIsEnabledFollowsTheRun_data()
{
    addRunStates();
}

void TestControls::whatIsEnabledFollowsTheRun()
{
    QFETCH(const RunState, state);
    WindowRig rig;
    rig.show();
    bringTo(state, rig);
    // These can be scrolled at any time.
    const QStringList lists{u"lstDestinatari"_s, u"lstAllegati"_s};
    const auto check = [&rig, &lists] {
        QStringList wrong;
        for (int place = 0; place < Controls::count(); ++place) {
            const QString name = namesOfControls().at(place);
            const bool expected =
                lists.contains(name) || rig.core->w.form.isEnabled(static_cast<Control>(place));
            if (rig.window->findChild<QObject *>(name)->property("enabled").toBool() != expected)
                wrong.append(name);
        }
        QCOMPARE(wrong, QStringList());
    };
    check();
    if (state == RunState::Idle)
        return;
    rig.core->w.engine.StopSending();
    QCOMPARE(rig.core->w.form.runState(), RunState::Idle);
    check();
}

void TestControls::accessKeysOpenNoMenuInARun()
{
    WindowRig rig;
    rig.show();
    QVERIFY(QTest::qWaitForWindowActive(rig.window.get()));
    bringTo(RunState::Waiting, rig);
    for (const char key : {'F', '?'}) {
        QTest::keyClick(rig.window.get(), key, Qt::AltModifier);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
    }
}

void TestControls::aRunLeavesTheListsToBeLookedAt_data()
{
    addRunStates();
}

void TestControls::aRunLeavesTheListsToBeLookedAt()
{
    QFETCH(const RunState, state);
    WindowRig rig;
    rig.show();
    bringTo(state, rig);
    rig.core->w.attachments.add(rig.core->file(u"flyer.pdf"_s, "flyer"));
    auto &recipients = rig.get<RecipientView>("lstDestinatari");
    QStringList effective;
    QStringList all;
    for (const Gesture &gesture : gesturesOn(rig)) {
        recipients.select({1, 2});
        const QStringList before = traces(rig);
        gesture.make();
        all.append(QString::fromLatin1(gesture.name));
        if (traces(rig) != before)
            effective.append(all.last());
        if (QWidget *menu = QApplication::activePopupWidget())
            menu->close();
    }
    QCOMPARE(effective.join(u", "_s), state == RunState::Idle ? all.join(u", "_s) : QString());

    if (state != RunState::Idle) {
        QScrollBar &bar = *recipients.verticalScrollBar();
        recipients.setFocus();
        bar.setValue(0);
        QTest::keyClick(&recipients, Qt::Key_End);
        QCOMPARE(bar.value(), bar.maximum());
        QVERIFY(bar.maximum() > 0);
    }
}

void TestControls::lettersAreTypedIntoTextsAndNotIntoNumbers()
{
    WindowRig rig;
    rig.show();
    QStringList onlyDigits;
    for (QLineEdit *box : rig.window->findChildren<QLineEdit *>()) {
        box->clear();
        QTest::keyClicks(box, u"a7-b"_s);
        if (box->text() == u"7")
            onlyDigits.append(box->objectName());
        else
            QCOMPARE(box->text(), u"a7-b"_s);
    }
    QCOMPARE(onlyDigits, QStringList({u"txtNMsg"_s, u"txtPausa"_s}));
}

void TestControls::pastingIsNotFiltered()
{
    WindowRig rig;
    rig.show();
    QGuiApplication::clipboard()->setText(u"ten"_s);
    for (const char *name : {"txtNMsg", "txtPausa"}) {
        auto &box = rig.get<QLineEdit>(name);
        QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(box.text(), u"ten"_s);
    }
    // And the form has it, so that Start can refuse it.
    QCOMPARE(rig.core->w.form.text(Control::txtNMsg), u"ten"_s);
}
