#include "TestItalianCatalogue.h"

#include "support/ItalianTexts.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Text
{
    const char *context = nullptr;
    const char *english = nullptr;
    const char *italian = nullptr;
    const char *comment = nullptr;
};

// To the letter, slips of the pen included.
constexpr Text Texts[]{
    {"ProjectCommands", "Save", "Salva"},
    {"ProjectCommands", "Save changes before create a new project?",
     "Salvare le modifiche prima di creare un nuovo progetto?"},
    {"ProjectCommands", "Save changes before open another project?",
     "Salvare le modifiche prima di aprire un altro progetto?"},
    {"ProjectCommands", "Select the file to open:", "Selezionare il file da aprire:"},
    {"ProjectCommands", "Sorvanta file (*.svk)|*.svk|All files (*.*)|*.*",
     "Progetto Sorvanta (*.svk)|*.svk|Tutti i file (*.*)|*.*"},
    {"ProjectCommands", "Select the file to save:", "Selezionare il file da salvare:"},
    {"ProjectCommands", "Sorvanta File (*.svk)|*.svk", "Progetto Sorvanta (*.svk)|*.svk"},
    {"ProjectCommands", "No Name", "Senza Nome"},
    {"ProjectFile", "Open", "Apri"},
    {"ProjectFile", "Save", "Salva"},
    {"ProjectFile", "Unable to load the specified file!",
     "Impossibile caricare il file specificato!"},

    {"Recipients", "New recipient", "Nuovo destinatario"},
    {"Recipients", "Name of the new recipient:", "Nome del nuovo destinatario:"},
    {"Recipients",
     "E-mail address of the new recipient:", "Indirizzo e-mail del nuovo destinatario:"},
    {"Recipients", "' isn't a valid e-mail address.", "' non è un indirizzo e-mail valido."},
    {"RecipientsFile", "Select recipients file:", "Selezionare il file destinatari:"},
    {"RecipientsFile", "Text file (*.txt)|*.txt|All files (*.*)|*.*",
     "File di testo (*.txt)|*.txt|Tutti i file (*.*)|*.*"},
    {"RecipientsFile", "Recipients", "Destinatari"},
    {"RecipientsFile",
     "These recipients couldn't be added:", "I seguenti destinatari non sono corretti:"},
    {"RecipientsFile", "Unable to load the specified list of recipients!",
     "Impossibile caricare la lista destinatari specificata!"},

    {"MessageFiles", "Select the message file:", "Selezionare il file del messaggio:", "text file"},
    {"MessageFiles", "Select the message file:", "Selezionare il file di messaggio:", "HTML file"},
    {"MessageFiles", "Text file (*.txt)|*.txt|All files (*.*)|*.*",
     "File di testo (*.txt)|*.txt|Tutti i file (*.*)|*.*"},
    {"MessageFiles", "HTML Files (*.htm; *.html)|*.htm; *.html|All files (*.*)|*.*",
     "File HTML (*.htm; *.html)|*.htm; *.html|Tutti i file (*.*)|*.*"},
    {"MessageFiles", "New message file:", "Nuovo file messaggio:"},
    {"Attachments", "Select the file to attach:", "Selezionare il file da allegare:"},
    {"Attachments", "All files (*.*)|*.*", "Tutti i file (*.*)|*.*"},
    {"Message", "Message", "Messaggio"},
    {"Message", "Unable to load the specified message!",
     "Impossibile caricare il messaggio specificato!"},

    {"Start", "Start", "Avvio"},
    {"Start", "Fill all the fields to be able to send the messages",
     "Riempire tutti i campi per poter inviare il messaggio"},
    {"Start", "Specify one or more recipients for the message",
     "Specificare uno o più destinatari per il messaggio"},
    {"Start", "Specify the number of messages per packet and the delay between every packet",
     "Specificare il numero di messaggi per pacchetto e l'attesa tra un pacchetto e l'altro"},
    {"Start", "Specify a valid number of messages per packet",
     "Specificare un numero valido di messaggi per pacchetto"},
    {"Start", "' isn't a valid e-mail address.", "' non è un indirizzo e-mail valido."},
    {"Start", "Select at least on type of message (text or HTML) and specify the message file.",
     "Specificare almeno un tipo di messaggio (testo o HTML) da inviare."},
    {"Start",
     "Some image files linked to the HTML document aren't in the same folder of the document or "
     "they are linked with an absolute path. These images won't be sent correctly. Do you want to "
     "continue?",
     "Alcune immagini presenti nel documento HTML non si trovano nella stessa cartella del "
     "doumento oppure sono collegate con un percorso assoluto. In questo modo esse non saranno "
     "inviate correttamente. Continuare?"},
    {"Start", "Save", "Salva"},
    {"Start", "Save changes before start sending?", "Salvare i cambiamenti prima di inviare?"},
    {"Start", "Control Address", "Indirizzo di controllo"},

    {"Dispatch", "Unable to show the message", "Impossibile visualizzare il documento"},
    {"Dispatch", "Sending", "Invio"},
    {"Dispatch", "Sending ended.", "Invio terminato."},
    {"Dispatch", "Sending of the messages ended.", "Invio dei messaggi terminato."},

    {"Pacing", "Not started", "Non Avviato"},
    {"Pacing", "Sending...", "Invio..."},
    {"Pacing", " minutes...", " minuti..."},
    {"Pacing", " seconds...", " secondi..."},
    {"Pacing", "Pause...", "Pausa..."},
    {"Pacing", "Stop", "Stop"},
    {"Pacing", "Stop the procedure?", "Fermare la procedura?"},
};

void allTexts()
{
    QTest::addColumn<int>("place");
    for (int place = 0; place < static_cast<int>(std::size(Texts)); ++place)
        QTest::addRow("%s: %s", Texts[place].context, Texts[place].italian) << place;
}

QString shown(const Text &text)
{
    return QCoreApplication::translate(text.context, text.english, text.comment);
}

} // namespace

void TestItalianCatalogue::texts_data()
{
    allTexts();
}

void TestItalianCatalogue::texts()
{
    QFETCH(const int, place);
    const ItalianTexts italian;
    QCOMPARE(shown(Texts[place]), QString::fromUtf8(Texts[place].italian));
}

void TestItalianCatalogue::textsStayEnglishWithoutTheCatalogue_data()
{
    allTexts();
}

void TestItalianCatalogue::textsStayEnglishWithoutTheCatalogue()
{
    QFETCH(const int, place);
    {
        const ItalianTexts italian;
    }
    QCOMPARE(shown(Texts[place]), QString::fromUtf8(Texts[place].english));
}
