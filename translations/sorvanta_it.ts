<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>Attachments</name>
    <message>
        <source>Select the file to attach:</source>
        <translation>Selezionare il file da allegare:</translation>
    </message>
    <message>
        <source>All files (*.*)|*.*</source>
        <translation>Tutti i file (*.*)|*.*</translation>
    </message>
</context>
<context>
    <name>Dispatch</name>
    <message>
        <source>Sending ended.</source>
        <translation>Invio terminato.</translation>
    </message>
    <message>
        <source>Sending of the messages ended.</source>
        <translation>Invio dei messaggi terminato.</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>Unable to show the message</source>
        <translation>Impossibile visualizzare il documento</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>the file does not exist</source>
        <translation>il file non esiste</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>è una cartella</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>non è un file normale</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>Unable to load the specified message!</source>
        <translation>Impossibile caricare il messaggio specificato!</translation>
    </message>
    <message>
        <source>A link in the HTML message has no closing quote: %1</source>
        <translation>Un collegamento del messaggio HTML non ha le virgolette di chiusura: %1</translation>
    </message>
    <message>
        <source>The message is larger than 2 GB.</source>
        <translation>Il messaggio supera i 2 GB.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
</context>
<context>
    <name>MessageFiles</name>
    <message>
        <source>Select the message file:</source>
        <comment>text file</comment>
        <extracomment>The title for the text file; the Italian one differs from the HTML file&apos;s on purpose.</extracomment>
        <translation>Selezionare il file del messaggio:</translation>
    </message>
    <message>
        <source>Text file (*.txt)|*.txt|All files (*.*)|*.*</source>
        <translation>File di testo (*.txt)|*.txt|Tutti i file (*.*)|*.*</translation>
    </message>
    <message>
        <source>Select the message file:</source>
        <comment>HTML file</comment>
        <extracomment>The title for the HTML file; the Italian one differs from the text file&apos;s on purpose.</extracomment>
        <translation>Selezionare il file di messaggio:</translation>
    </message>
    <message>
        <source>HTML Files (*.htm; *.html)|*.htm; *.html|All files (*.*)|*.*</source>
        <translation>File HTML (*.htm; *.html)|*.htm; *.html|Tutti i file (*.*)|*.*</translation>
    </message>
    <message>
        <source>New message file:</source>
        <translation>Nuovo file messaggio:</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
</context>
<context>
    <name>Pacing</name>
    <message>
        <source>Not started</source>
        <translation>Non Avviato</translation>
    </message>
    <message>
        <source>Sending...</source>
        <translation>Invio...</translation>
    </message>
    <message>
        <source>The number of messages per packet or the delay between packets is not a number.</source>
        <translation>Il numero di messaggi per pacchetto o l&apos;attesa tra i pacchetti non è un numero.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Pause...</source>
        <translation>Pausa...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Stop the procedure?</source>
        <translation>Fermare la procedura?</translation>
    </message>
    <message>
        <source> seconds...</source>
        <translation> secondi...</translation>
    </message>
    <message>
        <source> minutes...</source>
        <translation> minuti...</translation>
    </message>
</context>
<context>
    <name>ProjectCommands</name>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save changes before create a new project?</source>
        <translation>Salvare le modifiche prima di creare un nuovo progetto?</translation>
    </message>
    <message>
        <source>Save changes before open another project?</source>
        <translation>Salvare le modifiche prima di aprire un altro progetto?</translation>
    </message>
    <message>
        <source>Select the file to open:</source>
        <translation>Selezionare il file da aprire:</translation>
    </message>
    <message>
        <source>Sorvanta file (*.svk)|*.svk|All files (*.*)|*.*</source>
        <translation>Progetto Sorvanta (*.svk)|*.svk|Tutti i file (*.*)|*.*</translation>
    </message>
    <message>
        <source>Select the file to save:</source>
        <translation>Selezionare il file da salvare:</translation>
    </message>
    <message>
        <source>Sorvanta File (*.svk)|*.svk</source>
        <translation>Progetto Sorvanta (*.svk)|*.svk</translation>
    </message>
    <message>
        <source>No Name</source>
        <translation>Senza Nome</translation>
    </message>
</context>
<context>
    <name>ProjectFile</name>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Unable to load the specified file!</source>
        <translation>Impossibile caricare il file specificato!</translation>
    </message>
    <message>
        <source>it is no project file</source>
        <translation>non è un file di progetto</translation>
    </message>
    <message>
        <source>it ends before its header is complete</source>
        <translation>finisce prima che l&apos;intestazione sia completa</translation>
    </message>
    <message>
        <source>it ends inside a recipient; the recipients before it were loaded</source>
        <translation>finisce a metà di un destinatario; i destinatari precedenti sono stati caricati</translation>
    </message>
</context>
<context>
    <name>Recipients</name>
    <message>
        <source>New recipient</source>
        <translation>Nuovo destinatario</translation>
    </message>
    <message>
        <source>Name of the new recipient:</source>
        <translation>Nome del nuovo destinatario:</translation>
    </message>
    <message>
        <source>E-mail address of the new recipient:</source>
        <translation>Indirizzo e-mail del nuovo destinatario:</translation>
    </message>
    <message>
        <source>&apos; isn&apos;t a valid e-mail address.</source>
        <translation>&apos; non è un indirizzo e-mail valido.</translation>
    </message>
</context>
<context>
    <name>RecipientsFile</name>
    <message>
        <source>Select recipients file:</source>
        <translation>Selezionare il file destinatari:</translation>
    </message>
    <message>
        <source>Text file (*.txt)|*.txt|All files (*.*)|*.*</source>
        <translation>File di testo (*.txt)|*.txt|Tutti i file (*.*)|*.*</translation>
    </message>
    <message>
        <source>a line without &quot;;&quot;, or more than %1 recipients</source>
        <translation>una riga senza &quot;;&quot;, oppure più di %1 destinatari</translation>
    </message>
    <message>
        <source>Recipients</source>
        <translation>Destinatari</translation>
    </message>
    <message>
        <source>Unable to load the specified list of recipients!</source>
        <translation>Impossibile caricare la lista destinatari specificata!</translation>
    </message>
    <message>
        <source>These recipients couldn&apos;t be added:</source>
        <translation>I seguenti destinatari non sono corretti:</translation>
    </message>
</context>
<context>
    <name>Start</name>
    <message>
        <source>Some image files linked to the HTML document aren&apos;t in the same folder of the document or they are linked with an absolute path. These images won&apos;t be sent correctly. Do you want to continue?</source>
        <translation>Alcune immagini presenti nel documento HTML non si trovano nella stessa cartella del doumento oppure sono collegate con un percorso assoluto. In questo modo esse non saranno inviate correttamente. Continuare?</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save changes before start sending?</source>
        <translation>Salvare i cambiamenti prima di inviare?</translation>
    </message>
    <message>
        <source>Control Address</source>
        <translation>Indirizzo di controllo</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvio</translation>
    </message>
    <message>
        <source>&apos; isn&apos;t a valid e-mail address.</source>
        <translation>&apos; non è un indirizzo e-mail valido.</translation>
    </message>
    <message>
        <source>Specify the number of messages per packet and the delay between every packet</source>
        <translation>Specificare il numero di messaggi per pacchetto e l&apos;attesa tra un pacchetto e l&apos;altro</translation>
    </message>
    <message>
        <source>Specify a valid number of messages per packet</source>
        <translation>Specificare un numero valido di messaggi per pacchetto</translation>
    </message>
    <message>
        <source>Fill all the fields to be able to send the messages</source>
        <translation>Riempire tutti i campi per poter inviare il messaggio</translation>
    </message>
    <message>
        <source>Specify one or more recipients for the message</source>
        <translation>Specificare uno o più destinatari per il messaggio</translation>
    </message>
    <message>
        <source>Select at least on type of message (text or HTML) and specify the message file.</source>
        <translation>Specificare almeno un tipo di messaggio (testo o HTML) da inviare.</translation>
    </message>
</context>
</TS>
