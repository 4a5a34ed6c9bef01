<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>AccountPage</name>
    <message>
        <source>The settings cannot be written.</source>
        <translation>Impossibile scrivere le impostazioni.</translation>
    </message>
    <message>
        <source>Enter the user too: a password or a token belongs to somebody.</source>
        <translation>Inserire anche l&apos;utente: una password o un token appartiene a qualcuno.</translation>
    </message>
</context>
<context>
    <name>AttachmentView</name>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
</context>
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
    <name>Companions</name>
    <message>
        <source>Fill in the SMTP server first.</source>
        <translation>Prima compilare il server SMTP.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a port number from 1 to 65535.</source>
        <translation>&apos;%1&apos; non è un numero di porta da 1 a 65535.</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Account</translation>
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
    <name>EditorCommands</name>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>The editor cannot be started: %1</source>
        <translation>Impossibile avviare l&apos;editor: %1</translation>
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
    <name>HtmlView</name>
    <message>
        <source>Copy as text</source>
        <translation>Copia come testo</translation>
    </message>
    <message>
        <source>This text cannot be laid out. It is shown as it is written:</source>
        <translation>Impossibile impaginare questo testo. Viene mostrato com&apos;è scritto:</translation>
    </message>
</context>
<context>
    <name>LineList</name>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
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
    <name>RecipientModel</name>
    <message>
        <source>N°</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo E-Mail</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
</context>
<context>
    <name>RecipientView</name>
    <message>
        <source>Check</source>
        <translation>Seleziona</translation>
    </message>
    <message>
        <source>Uncheck</source>
        <translation>Deseleziona</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Evidenzia</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Evidenzia tutto</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>Copia come testo</translation>
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
<context>
    <name>TestToSender</name>
    <message>
        <source>Fill in the sender&apos;s e-mail address: the test goes there.</source>
        <translation>Compilare l&apos;indirizzo e-mail del mittente: la prova va lì.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; isn&apos;t a valid e-mail address.</source>
        <translation>&apos;%1&apos; non è un indirizzo e-mail valido.</translation>
    </message>
    <message>
        <source>Test message</source>
        <translation>Messaggio di prova</translation>
    </message>
</context>
<context>
    <name>WindowLifecycle</name>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save changes before exit?</source>
        <translation>Salvare le modifiche prima di uscire?</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>About...</source>
        <translation>Informazioni su Sorvanta...</translation>
    </message>
    <message>
        <source>Sends one e-mail, personalised, to everybody on a list.</source>
        <translation>Invia un&apos;e-mail, personalizzata, a tutti i nomi di un elenco.</translation>
    </message>
    <message>
        <source>Free software: GNU General Public License, version 3 or later.</source>
        <translation>Software libero: GNU General Public License, versione 3 o successiva.</translation>
    </message>
    <message>
        <source>E-Mail:</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>Web Site:</source>
        <translation>Sito web:</translation>
    </message>
    <message>
        <source>Telephone: %1</source>
        <translation>Telefono: %1</translation>
    </message>
    <message>
        <source>Fax: %1</source>
        <translation>Fax: %1</translation>
    </message>
</context>
<context>
    <name>frmAccesso</name>
    <message>
        <source>Server login</source>
        <translation>Accesso al server</translation>
    </message>
    <message>
        <source>It did not accept the last login:</source>
        <translation>Non ha accettato l&apos;ultimo accesso:</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Utente:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Remember in the keyring</source>
        <translation>Ricorda nel portachiavi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>The server %1 asks who you are.</source>
        <translation>Il server %1 chiede chi è Lei.</translation>
    </message>
</context>
<context>
    <name>frmAccount</name>
    <message>
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Accesso</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Utente:</translation>
    </message>
    <message>
        <source>empty: asked for when the server wants a login</source>
        <translation>vuoto: viene chiesto quando il server vuole un accesso</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Dimentica</translation>
    </message>
    <message>
        <source>Forget the password</source>
        <translation>Dimentica la password</translation>
    </message>
    <message>
        <source>Token command:</source>
        <translation>Comando per il token:</translation>
    </message>
    <message>
        <source>empty: the password is used</source>
        <translation>vuoto: si usa la password</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Cifratura</translation>
    </message>
    <message>
        <source>Certificates that you trust although they do not verify:</source>
        <translation>Certificati di cui Lei si fida benché non risultino validi:</translation>
    </message>
    <message>
        <source>Trusted certificates</source>
        <translation>Certificati fidati</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Remove the certificate</source>
        <translation>Rimuovi il certificato</translation>
    </message>
    <message>
        <source>What is known of the server:</source>
        <translation>Che cosa si sa del server:</translation>
    </message>
    <message>
        <source>What is known of the encryption</source>
        <translation>Che cosa si sa della cifratura</translation>
    </message>
    <message>
        <source>Forget the encryption</source>
        <translation>Dimentica la cifratura</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>Dialogo</translation>
    </message>
    <message>
        <source>Use PIPELINING</source>
        <translation>Usa PIPELINING</translation>
    </message>
    <message>
        <source>Use CHUNKING</source>
        <translation>Usa CHUNKING</translation>
    </message>
    <message>
        <source>Write a protocol trace</source>
        <translation>Scrivi una traccia del protocollo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Open the protocol trace</source>
        <translation>Apri la traccia del protocollo</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Prova</translation>
    </message>
    <message>
        <source>Test the connection</source>
        <translation>Prova il collegamento</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Stop the test</source>
        <translation>Ferma la prova</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>Fidati di questo certificato</translation>
    </message>
    <message>
        <source>Result of the test</source>
        <translation>Risultato della prova</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Account of %1</source>
        <translation>Account di %1</translation>
    </message>
    <message>
        <source>Looking for a keyring...</source>
        <translation>Ricerca di un portachiavi...</translation>
    </message>
    <message>
        <source>There is no keyring here to keep a password in: it is asked for when it is needed.</source>
        <translation>Qui non c&apos;è un portachiavi in cui conservare una password: viene chiesta quando serve.</translation>
    </message>
    <message>
        <source>OK takes the password out of the keyring.</source>
        <translation>OK toglie la password dal portachiavi.</translation>
    </message>
    <message>
        <source>It is kept in the keyring. Left empty, it stays as it is.</source>
        <translation>Si conserva nel portachiavi. Lasciata vuota, resta com&apos;è.</translation>
    </message>
    <message>
        <source>offers STARTTLS on port %1: never without</source>
        <translation>offre STARTTLS sulla porta %1: mai senza</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bene</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>Male</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Nothing has been written yet.</source>
        <translation>Non è stato ancora scritto nulla.</translation>
    </message>
    <message>
        <source>For servers that want an access token (XOAUTH2): a program that prints it.</source>
        <translation>Per i server che vogliono un token di accesso (XOAUTH2): un programma che lo scrive.</translation>
    </message>
    <message>
        <source>Tries %1 out and sends nothing. Like OK, it keeps what is entered here.</source>
        <translation>Prova %1 senza inviare nulla. Come OK, conserva quanto è inserito qui.</translation>
    </message>
</context>
<context>
    <name>frmCheck</name>
    <message>
        <source>Check before sending</source>
        <translation>Verifica prima dell&apos;invio</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Risultati</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Verifica di nuovo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Start refuses</source>
        <translation>Avvia rifiuta</translation>
    </message>
    <message>
        <source>The run would fail</source>
        <translation>L&apos;invio fallirebbe</translation>
    </message>
    <message>
        <source>Start asks</source>
        <translation>Avvia chiede</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Consiglio</translation>
    </message>
    <message>
        <source>Asking the server...</source>
        <translation>Il server viene interrogato...</translation>
    </message>
    <message>
        <source>Nothing to object.</source>
        <translation>Niente da obiettare.</translation>
    </message>
    <message>
        <source>Click on a line, or press Enter, to go where it is put right.</source>
        <translation>Un clic su una riga, o Invio, porta dove si rimedia.</translation>
    </message>
</context>
<context>
    <name>frmEditor</name>
    <message>
        <source>Select Editor</source>
        <translation>Selezione Editor</translation>
    </message>
    <message>
        <source>Text editor:</source>
        <translation>Editor di testo:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>Browse for the text editor</source>
        <translation>Sfoglia per l&apos;editor di testo</translation>
    </message>
    <message>
        <source>HTML editor:</source>
        <translation>Editor HTML:</translation>
    </message>
    <message>
        <source>Browse for the HTML editor</source>
        <translation>Sfoglia per l&apos;editor HTML</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Program File (*.exe)|*.exe|All files (*.*)|*.*</source>
        <translation>Program File (*.exe)|*.exe|Tutti i file (*.*)|*.*</translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>Sender Name:</source>
        <translation>Nome Mittente:</translation>
    </message>
    <message>
        <source>Sender E-Mail:</source>
        <translation>E-Mail Mittente:</translation>
    </message>
    <message>
        <source>SMTP Server:</source>
        <translation>Server SMTP:</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>Oggetto:</translation>
    </message>
    <message>
        <source>Text Message:</source>
        <translation>Messaggio Testo:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>Browse for the text message</source>
        <translation>Sfoglia per il messaggio di testo</translation>
    </message>
    <message>
        <source>New/Edit</source>
        <translation>Nuovo/Modifica</translation>
    </message>
    <message>
        <source>New or edit text message</source>
        <translation>Nuovo messaggio di testo o modifica</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Clear the text message</source>
        <translation>Cancella il messaggio di testo</translation>
    </message>
    <message>
        <source>HTML Message:</source>
        <translation>Messaggio HTML:</translation>
    </message>
    <message>
        <source>Browse for the HTML message</source>
        <translation>Sfoglia per il messaggio HTML</translation>
    </message>
    <message>
        <source>New or edit HTML message</source>
        <translation>Nuovo messaggio HTML o modifica</translation>
    </message>
    <message>
        <source>Clear the HTML message</source>
        <translation>Cancella il messaggio HTML</translation>
    </message>
    <message>
        <source>Return Receipt</source>
        <translation>Ricevuta di ritorno</translation>
    </message>
    <message>
        <source>Send to more recipients at the same time</source>
        <translation>Invia a più destinatari contemporaneamente</translation>
    </message>
    <message>
        <source>N° of messages in a packet:</source>
        <translation>N° di messaggi per pacchetto:</translation>
    </message>
    <message>
        <source>Delay between packets [min]:</source>
        <translation>Attesa tra i pacchetti [min]:</translation>
    </message>
    <message>
        <source>Attachments:</source>
        <translation>Allegati:</translation>
    </message>
    <message>
        <source>Attachments</source>
        <translation>Allegati</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Aggiungi...</translation>
    </message>
    <message>
        <source>Add an attachment</source>
        <translation>Aggiungi un allegato</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Remove the attachment</source>
        <translation>Rimuovi l&apos;allegato</translation>
    </message>
    <message>
        <source>Message Size:</source>
        <translation>Dimensione messaggio:</translation>
    </message>
    <message>
        <source>Recipients:</source>
        <translation>Destinatari:</translation>
    </message>
    <message>
        <source>Recipients file</source>
        <translation>File dei destinatari</translation>
    </message>
    <message>
        <source>Import from text file...</source>
        <translation>Importa da un file di testo...</translation>
    </message>
    <message>
        <source>Import from address book...</source>
        <translation>Importa dalla rubrica...</translation>
    </message>
    <message>
        <source>Recipients</source>
        <translation>Destinatari</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Add a recipient</source>
        <translation>Aggiungi un destinatario</translation>
    </message>
    <message>
        <source>Remove the selected recipients</source>
        <translation>Rimuovi i destinatari selezionati</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Seleziona</translation>
    </message>
    <message>
        <source>Check the selected recipients</source>
        <translation>Spunta i destinatari selezionati</translation>
    </message>
    <message>
        <source>Uncheck</source>
        <translation>Deseleziona</translation>
    </message>
    <message>
        <source>Uncheck the selected recipients</source>
        <translation>Togli la spunta ai destinatari selezionati</translation>
    </message>
    <message>
        <source>Control E-Mail:</source>
        <translation>E-Mail controllo:</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Avanzamento dell&apos;invio</translation>
    </message>
    <message>
        <source>Total time:</source>
        <translation>Tempo trascorso:</translation>
    </message>
    <message>
        <source>Remaining:</source>
        <translation>Tempo rimanente:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation>Salva con nome...</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;?</source>
        <translation>&amp;?</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuovo</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Apri</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>S&amp;ave as...</source>
        <translation>S&amp;alva con nome...</translation>
    </message>
    <message>
        <source>Select &amp;editor...</source>
        <translation>Selezione &amp;editor...</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Address Book</source>
        <translation>&amp;Rubrica</translation>
    </message>
    <message>
        <source>Getting started...</source>
        <translation>&amp;Come cominciare...</translation>
    </message>
    <message>
        <source>&amp;Help...</source>
        <translation>&amp;Guida...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Informazioni su Sorvanta...</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>mail.example.org or mail.example.org:587</source>
        <translation>mail.example.org o mail.example.org:587</translation>
    </message>
    <message>
        <source>Login, certificates and test of this server</source>
        <translation>Accesso, certificati e prova di questo server</translation>
    </message>
    <message>
        <source>Account of the server</source>
        <translation>Account del server</translation>
    </message>
    <message>
        <source>Right mouse button or menu key: Check, Send a test to me</source>
        <translation>Tasto destro o tasto menu: Verifica, Inviami una prova</translation>
    </message>
    <message>
        <source>&amp;Check</source>
        <translation>&amp;Verifica</translation>
    </message>
    <message>
        <source>Send a &amp;test to me</source>
        <translation>Inviami una &amp;prova</translation>
    </message>
</context>
<context>
    <name>frmPreview</name>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Formato:</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>Recipient:</source>
        <translation>Destinatario:</translation>
    </message>
    <message>
        <source>Recipient</source>
        <translation>Destinatario</translation>
    </message>
    <message>
        <source>Message as text</source>
        <translation>Messaggio come testo</translation>
    </message>
    <message>
        <source>Message as HTML</source>
        <translation>Messaggio come HTML</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Come è scritto</translation>
    </message>
    <message>
        <source>Format: HTML</source>
        <translation>Formato: HTML</translation>
    </message>
    <message>
        <source>Format: plain text</source>
        <translation>Formato: testo</translation>
    </message>
    <message>
        <source>No message has been chosen yet.</source>
        <translation>Nessun messaggio è stato ancora scelto.</translation>
    </message>
    <message>
        <source>This file cannot be read:</source>
        <translation>Impossibile leggere questo file:</translation>
    </message>
</context>
<context>
    <name>frmTest</name>
    <message>
        <source>Test message</source>
        <translation>Messaggio di prova</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Sending a test to %1...</source>
        <translation>Invio di una prova a %1...</translation>
    </message>
</context>
</TS>
