#include "TestBoxes.h"

#include "BoxDriver.h"
#include "Languages.h"
#include "support/FileSizeLimit.h"

#include <QAction>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSettings>

#include <algorithm>
#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

struct Words
{
    const char *title = "";
    const char *text = "";
    const char *detail = ""; ///< the smaller text below
};

/// A message box. In its words %1 stands for the project's folder.
struct Box
{
    const char *name = "";
    void (*open)(BoxRig &rig) = nullptr; ///< what the user does, on a form that Start accepts
    const char *look = "";               ///< icon and buttons, the default one marked
    Words english;
    Words italian;
};

constexpr char YesOrNo[] = "exclamation: Yes* No";
constexpr char YesNoOrCancel[] = "exclamation: Yes* No Cancel";
constexpr char OkOrCancel[] = "exclamation: OK* Cancel";
constexpr char Refusal[] = "exclamation: OK*";
constexpr char Failure[] = "critical: OK*";
constexpr char Information[] = "information: OK*";
constexpr char Plain[] = "none: OK*";

void edit(BoxRig &rig)
{
    QTest::keyClicks(&rig.get<QLineEdit>("txtOggetto"), u"May "_s);
}

void type(BoxRig &rig, const char *box, const QString &text)
{
    auto &edit = rig.get<QLineEdit>(box);
    edit.selectAll();
    if (text.isEmpty())
        QTest::keyClick(&edit, Qt::Key_Delete);
    else
        QTest::keyClicks(&edit, text);
    // Start shall not ask about saving.
    rig.core->w.form.setProjectModified(false);
}

void typeAndStart(BoxRig &rig, const char *box, const QString &text)
{
    type(rig, box, text);
    rig.click("cmdAvvio");
}

void openProject(BoxRig &rig, const QByteArray &content)
{
    rig.core->file(u"club.svk"_s, content);
    rig.click("cmdApri");
    rig.choose(rig.core->folder.filePath(u"club.svk"_s));
}

QByteArray savedProject(BoxRig &rig)
{
    const QString path = rig.core->folder.filePath(u"whole.svk"_s);
    rig.core->w.projectFile.SaveProject(path, [](bool saved) { QVERIFY(saved); });
    return readFile(path);
}

void import(BoxRig &rig, const QByteArray &content)
{
    rig.click("cmdDestinatari");
    rig.choose(rig.core->file(u"list.txt"_s, content));
}

void attachTwoGigabytes(BoxRig &rig)
{
    const QString path = rig.core->folder.filePath(u"film.avi"_s);
    makeSparseFile(path, std::numeric_limits<qint32>::max());
    rig.click("cmdAggiungi");
    rig.choose(path);
}

void sendAll(BoxRig &rig)
{
    rig.startSending();
    rig.core->finishMessage();
}

const std::array Boxes{
    // The project.
    Box{"closing",
        [](BoxRig &rig) {
            edit(rig);
            rig.window->close();
        },
        YesNoOrCancel,
        {"Save", "Save changes before exit?"},
        {"Salva", "Salvare le modifiche prima di uscire?"}},
    Box{"new project",
        [](BoxRig &rig) {
            edit(rig);
            rig.click("cmdNuovo");
        },
        YesNoOrCancel,
        {"Save", "Save changes before create a new project?"},
        {"Salva", "Salvare le modifiche prima di creare un nuovo progetto?"}},
    Box{"open project",
        [](BoxRig &rig) {
            edit(rig);
            rig.click("cmdApri");
        },
        YesNoOrCancel,
        {"Save", "Save changes before open another project?"},
        {"Salva", "Salvare le modifiche prima di aprire un altro progetto?"}},
    Box{"wrong first line",
        [](BoxRig &rig) { openProject(rig, "\"v1.0\"\r\n"); },
        Failure,
        {"Open", "Unable to load the specified file!", "%1/club.svk: it is no project file"},
        {"Apri", "Impossibile caricare il file specificato!",
         "%1/club.svk: non è un file di progetto"}},
    Box{"project without an end",
        [](BoxRig &rig) { openProject(rig, savedProject(rig).first(40)); },
        Failure,
        {"Open", "Unable to load the specified file!",
         "%1/club.svk: it ends before its header is complete"},
        {"Apri", "Impossibile caricare il file specificato!",
         "%1/club.svk: finisce prima che l'intestazione sia completa"}},
    Box{"project cut in a recipient",
        [](BoxRig &rig) { openProject(rig, savedProject(rig).chopped(12)); },
        Failure,
        {"Open", "Unable to load the specified file!",
         "%1/club.svk: it ends inside a recipient; the recipients before it were loaded"},
        {"Apri", "Impossibile caricare il file specificato!",
         "%1/club.svk: finisce a metà di un destinatario; i destinatari precedenti sono stati "
         "caricati"}},
    Box{"failed save",
        [](BoxRig &rig) {
            rig.core->w.form.setProjectPath(rig.core->folder.filePath(u"gone/club.svk"_s));
            rig.click("cmdSave");
        },
        Failure,
        {"Save", "%1/gone/club.svk: No such file or directory"},
        {"Salva", "%1/gone/club.svk: No such file or directory"}},

    // Recipients.
    Box{"invalid new address",
        [](BoxRig &rig) {
            const bool isItalian = rig.core->w.form.language() == Language::Italian;
            rig.click("cmdAdd");
            rig.enter(isItalian ? u"Nome del nuovo destinatario:"_s
                                : u"Name of the new recipient:"_s,
                      u"Ann"_s);
            rig.enter(isItalian ? u"Indirizzo e-mail del nuovo destinatario:"_s
                                : u"E-mail address of the new recipient:"_s,
                      u"ann"_s);
        },
        Refusal,
        {"New recipient", "'ann' isn't a valid e-mail address."},
        {"Nuovo destinatario", "'ann' non è un indirizzo e-mail valido."}},
    Box{"rejected recipients",
        [](BoxRig &rig) { import(rig, "Ann;ann@example.org\r\nBob;bob\r\nCid; c@d.it\r\n"); },
        Plain,
        {"Sorvanta", "These recipients couldn't be added:\r\nBob - bob\r\nCid -  c@d.it\r\n"},
        {"Sorvanta",
         "I seguenti destinatari non sono corretti:\r\nBob - bob\r\nCid -  c@d.it\r\n"}},
    Box{"failed import",
        [](BoxRig &rig) { import(rig, "Ann;ann@example.org\r\nBob\r\n"); },
        Failure,
        {"Recipients", "Unable to load the specified list of recipients!",
         "%1/list.txt: a line without \";\", or more than 32767 recipients"},
        {"Destinatari", "Impossibile caricare la lista destinatari specificata!",
         "%1/list.txt: una riga senza \";\", oppure più di 32767 destinatari"}},

    // Messages and attachments.
    Box{"unreadable message",
        [](BoxRig &rig) {
            rig.core->w.form.setTag(Control::txtHTML, rig.core->folder.filePath(u"gone.htm"_s));
            rig.click("cmdCancellaTXT");
        },
        Failure,
        {"Message", "Unable to load the specified message!",
         "%1/gone.htm: the file does not exist"},
        {"Messaggio", "Impossibile caricare il messaggio specificato!",
         "%1/gone.htm: il file non esiste"}},
    Box{"link without an end",
        [](BoxRig &rig) {
            rig.core->useHtmlMessage("<img src=\"a.gif");
            rig.click("cmdCancellaTXT");
        },
        Failure,
        {"Error", "A link in the HTML message has no closing quote: %1/message.htm"},
        {"Errore",
         "Un collegamento del messaggio HTML non ha le virgolette di chiusura: %1/message.htm"}},
    Box{"message of two gigabytes",
        attachTwoGigabytes,
        Failure,
        {"Error", "The message is larger than 2 GB."},
        {"Errore", "Il messaggio supera i 2 GB."}},
    Box{"failed new message file",
        [](BoxRig &rig) {
            const QDir folder(rig.core->folder.path());
            QVERIFY(folder.mkdir(u"away"_s));
            rig.click("cmdPreviewHTML");
            QTRY_VERIFY(rig.fileDialog());
            QObject::connect(rig.fileDialog(), &QDialog::finished,
                             [folder] { QVERIFY(folder.rmdir(u"away"_s)); });
            rig.choose(folder.filePath(u"away/new.htm"_s));
        },
        Failure,
        {"Error", "%1/away/new.htm: No such file or directory"},
        {"Errore", "%1/away/new.htm: No such file or directory"}},
    Box{"failing editor",
        [](BoxRig &rig) {
            rig.core->w.windowSettings.setEditors(u"/opt/writer -x"_s, {});
            rig.click("cmdPreviewTXT");
        },
        Failure,
        {"Error", "The editor cannot be started: /opt/writer -x"},
        {"Errore", "Impossibile avviare l'editor: /opt/writer -x"}},

    // Start.
    Box{"save before start",
        [](BoxRig &rig) {
            edit(rig);
            rig.click("cmdAvvio");
        },
        YesNoOrCancel,
        {"Save", "Save changes before start sending?"},
        {"Salva", "Salvare i cambiamenti prima di inviare?"}},
    Box{"empty field",
        [](BoxRig &rig) { typeAndStart(rig, "txtOggetto", {}); },
        Refusal,
        {"Start", "Fill all the fields to be able to send the messages"},
        {"Avvio", "Riempire tutti i campi per poter inviare il messaggio"}},
    Box{"no recipients",
        [](BoxRig &rig) {
            rig.core->w.recipients.clear();
            rig.click("cmdAvvio");
        },
        Refusal,
        {"Start", "Specify one or more recipients for the message"},
        {"Avvio", "Specificare uno o più destinatari per il messaggio"}},
    Box{"no packet size",
        [](BoxRig &rig) { typeAndStart(rig, "txtNMsg", {}); },
        Refusal,
        {"Start", "Specify the number of messages per packet and the delay between every packet"},
        {"Avvio",
         "Specificare il numero di messaggi per pacchetto e l'attesa tra un pacchetto e l'altro"}},
    Box{"a packet size of zero",
        [](BoxRig &rig) { typeAndStart(rig, "txtNMsg", u"0"_s); },
        Refusal,
        {"Start", "Specify a valid number of messages per packet"},
        {"Avvio", "Specificare un numero valido di messaggi per pacchetto"}},
    Box{"no message",
        [](BoxRig &rig) {
            rig.click("cmdCancellaTXT");
            rig.click("cmdAvvio");
        },
        Refusal,
        {"Start",
         "Select at least on type of message (text or HTML) and specify the message file."},
        {"Avvio", "Specificare almeno un tipo di messaggio (testo o HTML) da inviare."}},
    Box{"invalid sender",
        [](BoxRig &rig) { typeAndStart(rig, "txtEmailMittente", u"club"_s); },
        Refusal,
        {"Start", "'club' isn't a valid e-mail address."},
        {"Start", "'club' non è un indirizzo e-mail valido."}},
    Box{"invalid control address",
        [](BoxRig &rig) { typeAndStart(rig, "txtControl", u"me@home"_s); },
        Refusal,
        {"Start", "'me@home' isn't a valid e-mail address."},
        {"Start", "'me@home' non è un indirizzo e-mail valido."}},
    Box{"linked pictures",
        [](BoxRig &rig) {
            rig.core->useHtmlMessage("<img src=\"missing.gif\">");
            rig.click("cmdAvvio");
        },
        YesOrNo,
        {"Start", "Some image files linked to the HTML document aren't in the same folder of the "
                  "document or they are linked with an absolute path. These images won't be sent "
                  "correctly. Do you want to continue?"},
        {"Start", "Alcune immagini presenti nel documento HTML non si trovano nella stessa "
                  "cartella del doumento oppure sono collegate con un percorso assoluto. In questo "
                  "modo esse non saranno inviate correttamente. Continuare?"}},
    Box{"missing message file",
        [](BoxRig &rig) {
            QFile::remove(rig.core->folder.filePath(u"message.txt"_s));
            rig.click("cmdAvvio");
        },
        Failure,
        {"Message", "Unable to load the specified message!", "%1/message.txt"},
        {"Messaggio", "Impossibile caricare il messaggio specificato!", "%1/message.txt"}},

    // The run.
    Box{"stop",
        [](BoxRig &rig) {
            rig.startSending();
            rig.click("cmdStop");
        },
        OkOrCancel,
        {"Stop", "Stop the procedure?"},
        {"Stop", "Fermare la procedura?"}},
    Box{"end in a packet",
        sendAll,
        Information,
        {"Sending", "Sending ended."},
        {"Invio", "Invio terminato."}},
    Box{"end with a packet",
        [](BoxRig &rig) {
            type(rig, "txtNMsg", u"1"_s);
            sendAll(rig);
        },
        Information,
        {"Sending", "Sending of the messages ended."},
        {"Invio", "Invio dei messaggi terminato."}},
    Box{"session error",
        [](BoxRig &rig) {
            rig.startSending();
            rig.core->smtp.raiseError(10061, u"Connection refused"_s);
        },
        Failure,
        {"Error", "SMTP: ErrorConnection refused"},
        {"Error", "SMTP: ErrorConnection refused"}},
    Box{"packet numbers lost in a run",
        [](BoxRig &rig) {
            rig.click("cmdAvvio");
            rig.core->w.form.setText(Control::txtPausa, u"soon"_s);
            rig.core->Timer.tick();
        },
        Failure,
        {"Error",
         "The number of messages per packet or the delay between packets is not a number."},
        {"Errore",
         "Il numero di messaggi per pacchetto o l'attesa tra i pacchetti non è un numero."}},
};

QString nameOfIcon(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::NoIcon:
        return u"none"_s;
    case QMessageBox::Information:
        return u"information"_s;
    case QMessageBox::Warning:
        return u"exclamation"_s;
    case QMessageBox::Critical:
        return u"critical"_s;
    case QMessageBox::Question:
        break;
    }
    return u"question"_s;
}

QString nameOfButton(QMessageBox::StandardButton button)
{
    switch (button) {
    case QMessageBox::Yes:
        return u"Yes"_s;
    case QMessageBox::No:
        return u"No"_s;
    case QMessageBox::Cancel:
        return u"Cancel"_s;
    case QMessageBox::Ok:
        return u"OK"_s;
    default:
        return u"?"_s;
    }
}

// Icon and buttons from left to right.
QString lookOf(const QMessageBox &box)
{
    QList<QAbstractButton *> buttons = box.buttons();
    std::sort(buttons.begin(), buttons.end(),
              [](const QAbstractButton *a, const QAbstractButton *b) { return a->x() < b->x(); });
    QStringList names;
    for (QAbstractButton *button : buttons) {
        const bool isDefault = qobject_cast<QPushButton *>(button)->isDefault();
        names.append(nameOfButton(box.standardButton(button)) + (isDefault ? u"*"_s : QString()));
    }
    return nameOfIcon(box.icon()) + u": "_s + names.join(u' ');
}

/// What must be the same after a question that was not decided.
struct Standing
{
    explicit Standing(const BoxRig &rig)
        : state(rig.core->w.form.runState()),
          rows(rig.core->w.recipients.count()),
          modified(rig.core->w.form.projectModified()),
          endings(rig.endings)
    {}
    bool operator==(const Standing &) const = default;

    RunState state;
    int rows;
    bool modified;
    int endings;
};

QStringList sentLines(BoxRig &rig)
{
    return rig.core->logged().filter(u"Sending message"_s);
}

} // namespace

void TestBoxes::initTestCase()
{
    // The file dialogs keep settings of their own.
    QVERIFY(m_settings.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
}

void TestBoxes::everyMessageBoxHasItsLookAndWords_data()
{
    QTest::addColumn<const Box *>("box");
    QTest::addColumn<Language>("language");
    for (const Box &box : Boxes) {
        QTest::addRow("%s", box.name) << &box << Language::English;
        QTest::addRow("%s, Italian", box.name) << &box << Language::Italian;
    }
}

void TestBoxes::everyMessageBoxHasItsLookAndWords()
{
    QFETCH(const Box *const, box);
    QFETCH(const Language, language);
    const Words &words = language == Language::Italian ? box->italian : box->english;
    BoxRig rig(language);
    rig.show();
    rig.core->fillForm(1);
    const QString folder = rig.core->folder.path();
    const auto written = [&folder](const char *text) {
        return QString::fromUtf8(text).replace(u"%1"_s, folder);
    };
    box->open(rig);
    const QString look = QString::fromLatin1(box->look);
    const bool isNotice = look.endsWith(u": OK*"_s);
    const auto shown = [&rig, isNotice] { return isNotice ? rig.notice() : rig.question(); };
    QTRY_VERIFY(shown());
    QCOMPARE(lookOf(*shown()), look);
    QCOMPARE(shown()->windowTitle(), written(words.title));
    QCOMPARE(shown()->text(), written(words.text));
    QCOMPARE(shown()->informativeText(), written(words.detail));

    // Escape leaves everything as it is; what can only be answered Yes or No stays open.
    const Standing before(rig);
    BoxRig::key(shown(), Qt::Key_Escape);
    rig.core->settle();
    QCOMPARE(shown() != nullptr, look == QLatin1String(YesOrNo));
    QVERIFY(Standing(rig) == before);
}

void TestBoxes::aNewRecipientIsAskedForUntilTheAddressIsValid_data()
{
    QTest::addColumn<Language>("language");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("address");
    QTest::newRow("English") << Language::English << u"New recipient"_s
                             << u"Name of the new recipient:"_s
                             << u"E-mail address of the new recipient:"_s;
    QTest::newRow("Italian") << Language::Italian << u"Nuovo destinatario"_s
                             << u"Nome del nuovo destinatario:"_s
                             << u"Indirizzo e-mail del nuovo destinatario:"_s;
}

void TestBoxes::aNewRecipientIsAskedForUntilTheAddressIsValid()
{
    QFETCH(const Language, language);
    QFETCH(const QString, title);
    QFETCH(const QString, name);
    QFETCH(const QString, address);
    BoxRig rig(language);
    rig.show();
    rig.click("cmdAdd");
    QTRY_VERIFY(rig.inputBox());
    QCOMPARE(rig.inputBox()->windowTitle(), title);
    rig.enter(name, u"Ann"_s);
    rig.enter(address, u"ann"_s);
    rig.dismissNotice();
    // It is asked for again.
    QTRY_VERIFY(rig.inputBox());
    QCOMPARE(rig.inputBox()->windowTitle(), title);
    rig.enter(address, u"ann@example.org"_s);
    QTRY_COMPARE(rig.core->w.recipients.count(), 1);
    QCOMPARE(rig.core->w.recipients.at(1).name, u"Ann"_s);
    QCOMPARE(rig.core->w.recipients.at(1).address, u"ann@example.org"_s);

    rig.click("cmdAdd");
    QTRY_VERIFY(rig.inputBox());
    BoxRig::key(rig.inputBox(), Qt::Key_Escape);
    rig.core->settle();
    QVERIFY(!rig.inputBox());
    QCOMPARE(rig.core->w.recipients.count(), 1);
}

void TestBoxes::everyFileDialogHasItsTitle_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<Language>("language");
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("saves");
    const auto dialog = [](const char *button, const QString &english, const QString &italian,
                           bool saves) {
        QTest::addRow("%s", button) << QByteArray(button) << Language::English << english << saves;
        QTest::addRow("%s, Italian", button)
            << QByteArray(button) << Language::Italian << italian << saves;
    };
    dialog("cmdApri", u"Select the file to open:"_s, u"Selezionare il file da aprire:"_s, false);
    dialog("cmdSave", u"Select the file to save:"_s, u"Selezionare il file da salvare:"_s, true);
    dialog("cmdSaveAs", u"Select the file to save:"_s, u"Selezionare il file da salvare:"_s, true);
    dialog("cmdDestinatari", u"Select recipients file:"_s, u"Selezionare il file destinatari:"_s,
           false);
    dialog("cmdEmail", u"Select the message file:"_s, u"Selezionare il file del messaggio:"_s,
           false);
    dialog("cmdHTML", u"Select the message file:"_s, u"Selezionare il file di messaggio:"_s, false);
    dialog("cmdPreviewTXT", u"New message file:"_s, u"Nuovo file messaggio:"_s, true);
    dialog("cmdPreviewHTML", u"New message file:"_s, u"Nuovo file messaggio:"_s, true);
    dialog("cmdAggiungi", u"Select the file to attach:"_s, u"Selezionare il file da allegare:"_s,
           false);
    // In the window that the menu entry opens.
    dialog("cmdBrowseTxt", u"Select Editor"_s, u"Selezione Editor"_s, false);
    dialog("cmdBrowseHTML", u"Select Editor"_s, u"Selezione Editor"_s, false);
}

void TestBoxes::everyFileDialogHasItsTitle()
{
    QFETCH(const QByteArray, button);
    QFETCH(const Language, language);
    QFETCH(const QString, title);
    QFETCH(const bool, saves);
    BoxRig rig(language);
    rig.show();
    if (button.startsWith("cmdBrowse"))
        rig.get<QAction>("mnuEditor").trigger();
    rig.click(button.constData());
    QTRY_VERIFY(rig.fileDialog());
    QCOMPARE(rig.fileDialog()->windowTitle(), title);
    QCOMPARE(rig.fileDialog()->acceptMode(),
             saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    BoxRig::key(rig.fileDialog(), Qt::Key_Escape);
    rig.core->settle();
    QVERIFY(!rig.fileDialog());
    QVERIFY(!rig.core->w.form.projectModified());
}

void TestBoxes::aLongListOfRejectedRecipientsScrolls()
{
    constexpr int Many = 300;
    QByteArray list;
    for (int i = 1; i <= Many; ++i)
        list += "Name " + QByteArray::number(i) + ";nobody\r\n";
    BoxRig rig;
    rig.show();
    import(rig, list);
    QTRY_VERIFY(rig.notice());
    QCOMPARE(rig.notice()->windowTitle(), u"Sorvanta"_s);
    QCOMPARE(rig.notice()->text(), u"These recipients couldn't be added:"_s);
    const auto *const scrolled = rig.notice()->findChild<QPlainTextEdit *>();
    QVERIFY(scrolled);
    QVERIFY(scrolled->toPlainText().contains(u"Name %1 - nobody"_s.arg(Many)));
    QVERIFY(scrolled->verticalScrollBar()->maximum() > 0);
}

void TestBoxes::closingInARunDoesWhatTheAnswerSays_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("button");
    QTest::addColumn<int>("endings");
    QTest::addColumn<bool>("saved");
    QTest::newRow("Yes") << QMessageBox::Yes << 1 << true;
    QTest::newRow("No") << QMessageBox::No << 1 << false;
    QTest::newRow("Cancel") << QMessageBox::Cancel << 0 << false;
}

void TestBoxes::closingInARunDoesWhatTheAnswerSays()
{
    QFETCH(const QMessageBox::StandardButton, button);
    QFETCH(const int, endings);
    QFETCH(const bool, saved);
    BoxRig rig;
    rig.show();
    rig.core->fillForm(3);
    const QString path = rig.core->folder.filePath(u"club.svk"_s);
    rig.core->w.form.setProjectPath(path);
    rig.startSending();
    rig.core->finishMessage();
    rig.window->close();
    rig.answer(button);
    rig.core->settle();
    QCOMPARE(rig.endings, endings);
    QCOMPARE(QFile::exists(path), saved);
    QCOMPARE(sentLines(rig), QStringList({u"Sending message 'News' to 'a1@example.net' (1)"_s,
                                          u"Sending message 'News' to 'a2@example.net' (2)"_s}));
    if (button == QMessageBox::Cancel) {
        QVERIFY(rig.window->isVisible());
        rig.core->finishMessage();
        QCOMPARE(sentLines(rig), QStringList{u"Sending message 'News' to 'a3@example.net' (3)"_s});
    }
}

void TestBoxes::aFailedSaveLosesNothingAndTheWindowStays()
{
    BoxRig rig;
    rig.show();
    rig.core->fillForm(40);
    const QString path = rig.core->folder.filePath(u"club.svk"_s);
    rig.core->w.form.setProjectPath(path);
    rig.click("cmdSave");
    const QByteArray before = readFile(path);
    edit(rig);
    rig.window->close();
    {
        const FileSizeLimit fullDisk(1000);
        rig.answer(QMessageBox::Yes);
        QTRY_VERIFY(rig.notice());
    }
    QCOMPARE(rig.noticeText(), path + u": File too large"_s);
    QCOMPARE(readFile(path), before);
    rig.dismissNotice();
    rig.core->settle();
    QCOMPARE(rig.endings, 0);
    QVERIFY(rig.window->isVisible());
    QCOMPARE(rig.core->w.form.text(Control::txtOggetto), u"May News"_s);
    QVERIFY(rig.core->w.form.projectModified());
}

void TestBoxes::startPressedTwiceStartsOneRun_data()
{
    QTest::addColumn<bool>("modified");
    QTest::newRow("at once") << false;
    QTest::newRow("with a question before") << true;
}

void TestBoxes::startPressedTwiceStartsOneRun()
{
    QFETCH(const bool, modified);
    BoxRig rig;
    rig.show();
    rig.core->fillForm(2);
    rig.core->w.form.setProjectModified(modified);
    rig.click("cmdAvvio");
    rig.click("cmdAvvio");
    if (modified) {
        rig.answer(QMessageBox::No);
        QTRY_VERIFY(!rig.question());
    }
    QCOMPARE(rig.core->w.form.runState(), RunState::Waiting);
    QCOMPARE(rig.core->logged().count(u"User started sending messages"_s), 1);
}

void TestBoxes::aMessageFileThatVanishesEndsTheStart_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<Control>("box");
    QTest::newRow("text") << QByteArray("cmdEmail") << Control::txtEmail;
    QTest::newRow("HTML") << QByteArray("cmdHTML") << Control::txtHTML;
}

void TestBoxes::aMessageFileThatVanishesEndsTheStart()
{
    QFETCH(const QByteArray, button);
    QFETCH(const Control, box);
    const QString unreadable = u"Unable to load the specified message!"_s;
    BoxRig rig;
    rig.show();
    rig.core->fillForm(2);
    const QString path = rig.core->file(u"letter"_s, "Dear *NOME*,\r\n");
    rig.click(button.constData());
    rig.choose(path);
    QTRY_COMPARE(rig.core->w.form.tag(box), path);
    QVERIFY(QFile::remove(path));
    rig.click("cmdAvvio");
    if (box == Control::txtHTML) {
        // It is looked through for pictures before anything is asked.
        QTRY_COMPARE(rig.noticeText(), unreadable);
        rig.dismissNotice();
    }
    rig.answer(QMessageBox::No);
    QTRY_COMPARE(rig.noticeText(), unreadable);
    QCOMPARE(rig.notice()->informativeText(), path);
    QCOMPARE(rig.core->w.form.runState(), RunState::Idle);
    QVERIFY(rig.get<QPushButton>("cmdAvvio").isEnabled());
    QVERIFY(rig.core->smtp.connections.isEmpty());
}

void TestBoxes::aBadProjectOnTheCommandLineLeavesAnEmptyOne_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a folder") << u"folder"_s << u"it is a folder"_s;
    QTest::newRow("missing") << u"gone.svk"_s << u"the file does not exist"_s;
    QTest::newRow("of another version") << u"old.svk"_s << u"it is no project file"_s;
}

void TestBoxes::aBadProjectOnTheCommandLineLeavesAnEmptyOne()
{
    QFETCH(const QString, name);
    QFETCH(const QString, reason);
    BoxRig rig;
    QVERIFY(QDir(rig.core->folder.path()).mkdir(u"folder"_s));
    rig.core->file(u"old.svk"_s, "\"v1.0\"\r\n");
    const QString path = rig.core->folder.filePath(name);
    rig.show(path);
    QTRY_COMPARE(rig.noticeText(), u"Unable to load the specified file!"_s);
    QCOMPARE(rig.notice()->informativeText(), path + u": "_s + reason);
    rig.dismissNotice();
    rig.core->settle();
    QVERIFY(rig.window->isVisible());
    QCOMPARE(rig.window->windowTitle(), u"No Name - Sorvanta ver. 2.0"_s);
    QCOMPARE(rig.core->w.recipients.count(), 0);
    QVERIFY(!rig.core->w.form.projectModified());
    QVERIFY(rig.get<QPushButton>("cmdAvvio").isEnabled());
}

void TestBoxes::theRunGoesOnBehindTheStopQuestion()
{
    BoxRig rig;
    rig.show();
    rig.core->fillForm(3);
    rig.startSending();
    rig.click("cmdStop");
    QTRY_VERIFY(rig.question());
    rig.core->finishMessage();
    rig.core->Timer2.tick();
    QCOMPARE(rig.core->states(), QStringList({u"Sent"_s, u"Sending..."_s, u"Waiting"_s}));
    QCOMPARE(rig.get<QLabel>("lblTrascorso").text(), u"00:01"_s);
    QVERIFY(rig.question());
    rig.answer(QMessageBox::Cancel);
    rig.core->settle();
    QCOMPARE(rig.core->w.form.runState(), RunState::Sending);
    rig.core->finishMessage();
    rig.core->finishMessage();
    QTRY_COMPARE(rig.noticeText(), u"Sending ended."_s);
    QCOMPARE(rig.core->states(), QStringList({u"Sent"_s, u"Sent"_s, u"Sent"_s}));
}

void TestBoxes::anErrorClosesTheStopQuestion()
{
    BoxRig rig;
    rig.show();
    rig.core->fillForm(3);
    rig.startSending();
    rig.click("cmdStop");
    QTRY_VERIFY(rig.question());
    rig.core->smtp.raiseError(10054, u"Connection lost"_s);
    QTRY_VERIFY(!rig.question());
    QTRY_COMPARE(rig.noticeText(), u"SMTP: ErrorConnection lost"_s);
    QCOMPARE(rig.core->w.form.runState(), RunState::Idle);
    rig.dismissNotice();
    rig.core->settle();
    QVERIFY(!rig.notice());
    QVERIFY(!rig.core->logged().contains(u"User has pressed the stop command"_s));
    // The window can be used again.
    rig.click("cmdAvvio");
    rig.answer(QMessageBox::No);
    QTRY_COMPARE(rig.core->w.form.runState(), RunState::Waiting);
}

void TestBoxes::okToStopAfterTheErrorDoesNothing()
{
    BoxRig rig;
    rig.show();
    rig.core->fillForm(3);
    rig.startSending();
    rig.click("cmdStop");
    // The answer is on its way when the run ends.
    rig.answer(QMessageBox::Ok);
    rig.core->smtp.raiseError(10054, u"Connection lost"_s);
    rig.core->settle();
    QTRY_COMPARE(rig.noticeText(), u"SMTP: ErrorConnection lost"_s);
    const QStringList logged = rig.core->logged();
    QVERIFY(!logged.contains(u"User has pressed the stop command"_s));
    QCOMPARE(logged.count(u"Sending procedure stopped"_s), 1);
}

void TestBoxes::anErrorLeavesTheSaveDialogOpen()
{
    BoxRig rig;
    rig.show();
    rig.core->fillForm(3);
    rig.startSending();
    rig.click("cmdPausa");
    rig.click("cmdSaveAs");
    QTRY_VERIFY(rig.fileDialog());
    rig.core->smtp.raiseError(10054, u"Connection lost"_s);
    QTRY_COMPARE(rig.noticeText(), u"SMTP: ErrorConnection lost"_s);
    QCOMPARE(rig.core->w.form.runState(), RunState::Idle);
    QVERIFY(rig.fileDialog());
    rig.dismissNotice();
    rig.core->settle();
    QVERIFY(!rig.notice());
    // What was begun can be finished.
    const QString path = rig.core->folder.filePath(u"club.svk"_s);
    rig.choose(path);
    QTRY_VERIFY(QFile::exists(path));
    QCOMPARE(rig.window->windowTitle(), u"club.svk - Sorvanta ver. 2.0"_s);
}

void TestBoxes::anErrorShowsAboveTheAboutBox()
{
    BoxRig rig;
    rig.show();
    rig.core->fillForm(3);
    rig.startSending();
    rig.click("cmdStop");
    rig.answer(QMessageBox::Ok);
    QTRY_COMPARE(rig.core->w.form.runState(), RunState::Idle);
    // A message is still on its way.
    QVERIFY(rig.core->smtp.messageInFlight());
    rig.get<QAction>("mnuAbout").trigger();
    const QDialog *const about = rig.shown<QDialog>("frmAbout");
    QVERIFY(about);
    rig.core->smtp.raiseError(10054, u"Connection lost"_s);
    QTRY_COMPARE(rig.noticeText(), u"SMTP: ErrorConnection lost"_s);
    QVERIFY(QTest::qWaitForWindowActive(rig.notice()));
    BoxRig::key(rig.notice(), Qt::Key_Return);
    rig.core->settle();
    QVERIFY(!rig.notice());
    QVERIFY(about->isVisible());
}
