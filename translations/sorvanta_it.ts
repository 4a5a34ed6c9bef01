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
    <name>AddressBooks</name>
    <message>
        <source>The book could not be read to its end and cannot be changed: %1</source>
        <translation>Impossibile leggere la rubrica fino alla fine; non può essere modificata: %1</translation>
    </message>
    <message>
        <source>Insert the name for the new address book:</source>
        <translation>Inserire il nome della nuova rubrica:</translation>
    </message>
    <message>
        <source>The specified name is already in use.</source>
        <translation>Il nome inserito è già in uso.</translation>
    </message>
    <message>
        <source>New address book</source>
        <translation>Nuova rubrica</translation>
    </message>
    <message>
        <source>Address Book (*.rub)|*.rub</source>
        <translation>Rubrica (*.rub)|*.rub</translation>
    </message>
    <message>
        <source>The specified file is already in use.</source>
        <translation>Il file selezionato è già in uso.</translation>
    </message>
    <message>
        <source>The standard address book can&apos;t be deleted.</source>
        <translation>La rubrica standard non può essere eliminata.</translation>
    </message>
    <message>
        <source>Are you sure to delete the selected address book? All the contacts will be deleted! Do you want to continue?</source>
        <translation>La rubrica selezionata insieme ai contatti in essa contenuti verrà eliminata. Procedere?</translation>
    </message>
    <message>
        <source>Are you sure to delete *N* selected contact(s)?</source>
        <translation>Sei sicuro di eliminare i contatti selezionati?</translation>
    </message>
    <message>
        <source>Import contacts</source>
        <translation>Importa contatti</translation>
    </message>
    <message>
        <source>Contacts (*.vcf; *.csv; *.txt; *.rub)|*.vcf; *.csv; *.txt; *.rub|All files (*.*)|*.*</source>
        <translation>Contatti (*.vcf; *.csv; *.txt; *.rub)|*.vcf; *.csv; *.txt; *.rub|Tutti i file (*.*)|*.*</translation>
    </message>
    <message>
        <source>Contacts imported: %1</source>
        <translation>Contatti importati: %1</translation>
    </message>
    <message>
        <source>Fields left out because the address book has no place for them: %1</source>
        <translation>Campi tralasciati perché la rubrica non li prevede: %1</translation>
    </message>
    <message>
        <source>These contacts have no valid e-mail address and were left out:</source>
        <translation>Questi contatti non hanno un indirizzo e-mail valido e sono stati tralasciati:</translation>
    </message>
    <message>
        <source>The contacts could not be saved: %1</source>
        <translation>Impossibile salvare i contatti: %1</translation>
    </message>
    <message>
        <source>This book was changed by another program meanwhile, or cannot be read any more. Your contacts were saved as %1.</source>
        <translation>Questa rubrica è stata modificata nel frattempo da un altro programma, oppure non è più leggibile. I contatti sono stati salvati come %1.</translation>
    </message>
    <message>
        <source>The address book could not be added.</source>
        <translation>Impossibile aggiungere la rubrica.</translation>
    </message>
    <message>
        <source>The address book could not be removed.</source>
        <translation>Impossibile rimuovere la rubrica.</translation>
    </message>
    <message>
        <source>The contacts cannot be read.</source>
        <translation>Impossibile leggere i contatti.</translation>
    </message>
</context>
<context>
    <name>AddressRules</name>
    <message>
        <source>it is empty</source>
        <translation>è vuoto</translation>
    </message>
    <message>
        <source>it holds control characters</source>
        <translation>contiene caratteri di controllo</translation>
    </message>
    <message>
        <source>it has no &quot;@&quot; between a name and a domain</source>
        <translation>non ha una &quot;@&quot; fra un nome e un dominio</translation>
    </message>
    <message>
        <source>it holds a blank</source>
        <translation>contiene uno spazio</translation>
    </message>
    <message>
        <source>it holds characters that no address may hold</source>
        <translation>contiene caratteri che nessun indirizzo può contenere</translation>
    </message>
    <message>
        <source>its domain is not complete</source>
        <translation>il suo dominio non è completo</translation>
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
    <name>AttemptText</name>
    <message>
        <source>in doubt: the connection ended before the server answered</source>
        <translation>in dubbio: la connessione è finita prima che il server rispondesse</translation>
    </message>
    <message>
        <source>before: sent</source>
        <translation>prima: inviato</translation>
    </message>
    <message>
        <source>before: refused</source>
        <translation>prima: rifiutato</translation>
    </message>
    <message>
        <source>before: not taken</source>
        <translation>prima: non preso in carico</translation>
    </message>
    <message>
        <source>before: in doubt</source>
        <translation>prima: in dubbio</translation>
    </message>
    <message>
        <source>on its way: the server has not answered yet</source>
        <translation>in viaggio: il server non ha ancora risposto</translation>
    </message>
    <message>
        <source>sent: the server accepted the message</source>
        <translation>inviato: il server ha accettato il messaggio</translation>
    </message>
    <message>
        <source>refused for now: the server may accept it later</source>
        <translation>rifiutato per ora: il server potrebbe accettarlo più tardi</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>rifiutato</translation>
    </message>
    <message>
        <source>nothing was sent yet</source>
        <translation>non è ancora stato inviato nulla</translation>
    </message>
    <message>
        <source>passed over: the row was not checked</source>
        <translation>saltato: la riga non era selezionata</translation>
    </message>
</context>
<context>
    <name>BookIndex</name>
    <message>
        <source>The list of the address books cannot be read: %1</source>
        <translation>Impossibile leggere l&apos;elenco delle rubriche: %1</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Principale</translation>
    </message>
    <message>
        <source>its name has a line end</source>
        <translation>il suo nome contiene un ritorno a capo</translation>
    </message>
</context>
<context>
    <name>CertificateQuestion</name>
    <message>
        <source>Certificate</source>
        <translation>Certificato</translation>
    </message>
    <message>
        <source>The server %1 shows a certificate that cannot be verified: %2.

Issued to: %3
Issued by: %4
Valid from %5 to %6
SHA-256 fingerprint:
%7

Somebody may be pretending to be your server. Ask your provider to read the fingerprint of the certificate out to you, and compare it.

Do you want to trust this certificate for this server from now on?</source>
        <translation>Il server %1 presenta un certificato che non può essere verificato: %2.

Rilasciato a: %3
Rilasciato da: %4
Valido dal %5 al %6
Impronta SHA-256:
%7

Qualcuno potrebbe fingersi il server. Chiedere al fornitore di leggere l&apos;impronta del certificato e confrontarla.

Considerare attendibile questo certificato per questo server d&apos;ora in poi?</translation>
    </message>
    <message>
        <source>The certificate is trusted from now on. If part of the list already has the message, uncheck those first; then press Start.</source>
        <translation>D&apos;ora in poi questo certificato è considerato attendibile. Se una parte dell&apos;elenco ha già ricevuto il messaggio, togliere prima il segno di spunta a quelle righe; poi premere Avvia.</translation>
    </message>
    <message>
        <source>The settings cannot be written; the certificate is not trusted.</source>
        <translation>Le impostazioni non possono essere scritte; il certificato non è considerato attendibile.</translation>
    </message>
</context>
<context>
    <name>CommandOutput</name>
    <message>
        <source>the command &quot;%1&quot; cannot be started</source>
        <translation>il comando &quot;%1&quot; non può essere avviato</translation>
    </message>
    <message>
        <source>the command &quot;%1&quot; has not ended after %2 seconds</source>
        <translation>il comando &quot;%1&quot; non è terminato dopo %2 secondi</translation>
    </message>
    <message>
        <source>the command &quot;%1&quot; printed too much</source>
        <translation>il comando &quot;%1&quot; ha scritto troppo</translation>
    </message>
    <message>
        <source>the command &quot;%1&quot; was ended by force</source>
        <translation>il comando &quot;%1&quot; è stato interrotto</translation>
    </message>
    <message>
        <source>the command &quot;%1&quot; failed with exit status %2</source>
        <translation>il comando &quot;%1&quot; è fallito con stato di uscita %2</translation>
    </message>
    <message>
        <source>the command &quot;%1&quot; printed nothing</source>
        <translation>il comando &quot;%1&quot; non ha scritto nulla</translation>
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
    <name>ContactCheck</name>
    <message>
        <source>Error</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>You must fill &apos;Name&apos; or &apos;Company&apos; fields and &apos;E-Mail&apos; field.</source>
        <translation>E&apos; obbligatorio indicare il Nome e/o l&apos;Azienda e l&apos;indirizzo E-Mail.</translation>
    </message>
    <message>
        <source>E-Mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>The specified e-mail address isn&apos;t valid.</source>
        <translation>L&apos;indirizzo e-mail specificato non è valido</translation>
    </message>
</context>
<context>
    <name>ContactModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>E-Mail Address</source>
        <translation>Indirizzo E-Mail</translation>
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
    <message>
        <source>it begins as UTF-8 and goes on otherwise</source>
        <translation>comincia come UTF-8 e prosegue diversamente</translation>
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
    <name>Keyring</name>
    <message>
        <source>there is no keyring</source>
        <translation>non c&apos;è un portachiavi</translation>
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
    <name>LoginChain</name>
    <message>
        <source>the account has no user name; set it with: sorvanta-cli account %1 User NAME</source>
        <translation>l&apos;account non ha un nome utente; si imposta con: sorvanta-cli account %1 User NOME</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Accesso</translation>
    </message>
    <message>
        <source>no login is known; put one into the file .netrc of your home folder, or name a command that prints the password with --password-command</source>
        <translation>non è nota alcuna credenziale; si può inserire nel file .netrc della cartella personale, oppure indicare con --password-command un comando che scrive la password</translation>
    </message>
    <message>
        <source>the login was cancelled</source>
        <translation>l&apos;accesso è stato annullato</translation>
    </message>
    <message>
        <source>The password could not be remembered: %1</source>
        <translation>Impossibile ricordare la password: %1</translation>
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
    <name>MessageBox</name>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continua</translation>
    </message>
    <message>
        <source>&amp;Open as it is</source>
        <translation>&amp;Apri com&apos;è</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>&amp;Dimentica</translation>
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
    <name>Netrc</name>
    <message>
        <source>%1 can be read or changed by others; the passwords in it are not used. Let nobody but its owner have access to it.</source>
        <translation>%1 può essere letto o modificato da altri; le password che contiene non vengono usate. Solo il proprietario deve potervi accedere.</translation>
    </message>
</context>
<context>
    <name>OpenBook</name>
    <message>
        <source>line %1 has no &quot;;&quot;</source>
        <translation>la riga %1 non contiene &quot;;&quot;</translation>
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
    <message>
        <source>Waiting for the login...</source>
        <translation>In attesa dell&apos;accesso...</translation>
    </message>
</context>
<context>
    <name>Preflight</name>
    <message>
        <source>The server: %1</source>
        <translation>Il server: %1</translation>
    </message>
    <message>
        <source>No server takes the sender&apos;s address &quot;%1&quot;: %2.</source>
        <translation>Nessun server accetta l&apos;indirizzo del mittente &quot;%1&quot;: %2.</translation>
    </message>
    <message>
        <source>No server takes the control address &quot;%1&quot;: %2.</source>
        <translation>Nessun server accetta l&apos;indirizzo di controllo &quot;%1&quot;: %2.</translation>
    </message>
    <message>
        <source>The subject is in capital letters only; spam filters hold that against a message.</source>
        <translation>L&apos;oggetto è tutto in maiuscole; i filtri antispam penalizzano un messaggio così.</translation>
    </message>
    <message>
        <source>The sender&apos;s address is one of %1, and the server is not: many receivers refuse such a message or take it for spam.</source>
        <translation>L&apos;indirizzo del mittente è di %1 e il server no: molti destinatari rifiutano un messaggio così o lo trattano come spam.</translation>
    </message>
    <message>
        <source>The message file cannot be read: %1</source>
        <translation>Impossibile leggere il file del messaggio: %1</translation>
    </message>
    <message>
        <source>The message says &quot;%1&quot;, which stays as it is: the name is put in the place of &quot;*NOME*&quot; only.</source>
        <translation>Il messaggio contiene &quot;%1&quot;, che resta così com&apos;è: il nome viene messo solo al posto di &quot;*NOME*&quot;.</translation>
    </message>
    <message>
        <source>The HTML message is empty.</source>
        <translation>Il messaggio HTML è vuoto.</translation>
    </message>
    <message>
        <source>The HTML message has a picture and few words; spam filters hold that against it.</source>
        <translation>Il messaggio HTML ha un&apos;immagine e poche parole; i filtri antispam lo penalizzano.</translation>
    </message>
    <message>
        <source>The HTML message has no text message beside it: who sees no HTML gets nothing to read, and spam filters hold that against it.</source>
        <translation>Il messaggio HTML non è accompagnato da un messaggio di testo: chi non vede l&apos;HTML non ha nulla da leggere, e i filtri antispam lo penalizzano.</translation>
    </message>
    <message>
        <source>The text message is empty.</source>
        <translation>Il messaggio di testo è vuoto.</translation>
    </message>
    <message>
        <source>The attachment cannot be read: %1</source>
        <translation>Impossibile leggere l&apos;allegato: %1</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; is not sent with the message: it is not in the folder of the HTML file.</source>
        <translation>L&apos;immagine &quot;%1&quot; non viene inviata con il messaggio: non è nella cartella del file HTML.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; is not sent with the message: it cannot be read, or it is in a subfolder.</source>
        <translation>L&apos;immagine &quot;%1&quot; non viene inviata con il messaggio: non si può leggere, o è in una sottocartella.</translation>
    </message>
    <message>
        <source>%1 more pictures are not sent with the message.</source>
        <translation>Altre %1 immagini non vengono inviate con il messaggio.</translation>
    </message>
    <message>
        <source>The message cannot be made: %1</source>
        <translation>Impossibile comporre il messaggio: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; would get the message twice: rows %2 and %3.</source>
        <translation>&quot;%1&quot; riceverebbe il messaggio due volte: righe %2 e %3.</translation>
    </message>
    <message>
        <source>Row %1: no server takes the address &quot;%2&quot;: %3.</source>
        <translation>Riga %1: nessun server accetta l&apos;indirizzo &quot;%2&quot;: %3.</translation>
    </message>
    <message>
        <source>Row %1 has no name, and the message has a place for it: &quot;%2&quot;.</source>
        <translation>La riga %1 non ha un nome, e il messaggio lo prevede: &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>No recipient is checked: nobody gets the message.</source>
        <translation>Nessun destinatario è selezionato: nessuno riceve il messaggio.</translation>
    </message>
    <message>
        <source>%1 checked recipients have got the message, or may have: Start sends it to them again.</source>
        <translation>%1 destinatari selezionati hanno ricevuto il messaggio, o forse l&apos;hanno ricevuto: Avvia lo invia loro di nuovo.</translation>
    </message>
    <message>
        <source>%1 more rows hold an address for a second time.</source>
        <translation>Altre %1 righe ripetono un indirizzo.</translation>
    </message>
    <message>
        <source>The control address is in row %1 too, and would get the message twice.</source>
        <translation>L&apos;indirizzo di controllo è anche nella riga %1 e riceverebbe il messaggio due volte.</translation>
    </message>
    <message>
        <source>No server takes the addresses of %1 more rows.</source>
        <translation>Nessun server accetta gli indirizzi di altre %1 righe.</translation>
    </message>
    <message>
        <source>%1 more rows have no name.</source>
        <translation>Altre %1 righe non hanno un nome.</translation>
    </message>
    <message>
        <source>The message has %1 bytes, and the server takes no more than %2.</source>
        <translation>Il messaggio ha %1 byte, e il server ne accetta al massimo %2.</translation>
    </message>
    <message>
        <source>You log in as &quot;%1&quot; and send as &quot;%2&quot;; some servers refuse that.</source>
        <translation>L&apos;accesso è come &quot;%1&quot; e l&apos;invio come &quot;%2&quot;; alcuni server lo rifiutano.</translation>
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
    <message>
        <source>Another program has changed this project&apos;s file since it was opened here. Open it again, or save this one under another name.</source>
        <translation>Un altro programma ha cambiato il file di questo progetto da quando è stato aperto qui. Riaprirlo, oppure salvare questo con un altro nome.</translation>
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
    <name>RecipientDetails</name>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
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
    <message>
        <source>Outcome</source>
        <translation>Esito</translation>
    </message>
    <message>
        <source>Server&apos;s reply</source>
        <translation>Risposta del server</translation>
    </message>
    <message>
        <source>Reply code</source>
        <translation>Codice di risposta</translation>
    </message>
    <message>
        <source>Enhanced code</source>
        <translation>Codice esteso</translation>
    </message>
    <message>
        <source>Reply to the command</source>
        <translation>Risposta al comando</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>Tries</source>
        <translation>Tentativi</translation>
    </message>
    <message>
        <source>Message identifier</source>
        <translation>Identificativo del messaggio</translation>
    </message>
    <message>
        <source>Queue id at the server</source>
        <translation>Identificativo nella coda del server</translation>
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
    <message>
        <source>Details...</source>
        <translation>Dettagli...</translation>
    </message>
    <message>
        <source>Export report...</source>
        <translation>Esporta resoconto...</translation>
    </message>
    <message>
        <source>Refused for now</source>
        <translation>Rifiutati per ora</translation>
    </message>
    <message>
        <source>In doubt</source>
        <translation>In dubbio</translation>
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
    <message>
        <source>Recipients added: %1</source>
        <translation>Destinatari aggiunti: %1</translation>
    </message>
    <message>
        <source>These recipients couldn&apos;t be added:</source>
        <translation>I seguenti destinatari non sono corretti:</translation>
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
    <name>Recovery</name>
    <message>
        <source>a project without a name</source>
        <translation>un progetto senza nome</translation>
    </message>
    <message>
        <source>Interrupted run</source>
        <translation>Invio interrotto</translation>
    </message>
    <message>
        <source>&quot;Continue&quot; shows the run paused where it stood: it goes on with Resume, and who is in doubt is left out.</source>
        <translation>&quot;Continua&quot; mostra l&apos;invio in pausa al punto in cui era: prosegue con Riprendi, e chi è in dubbio resta escluso.</translation>
    </message>
    <message>
        <source>&quot;Open as it is&quot; shows what became of everybody, without a run.
&quot;Forget&quot; throws this record away.</source>
        <translation>&quot;Apri com&apos;è&quot; mostra l&apos;esito per ciascun destinatario, senza alcun invio in corso.
&quot;Dimentica&quot; elimina questa registrazione.</translation>
    </message>
    <message>
        <source>The record is damaged: of whom it does not tell counts as in doubt.</source>
        <translation>La registrazione è danneggiata: chi non vi compare è considerato in dubbio.</translation>
    </message>
    <message>
        <source>A run of %1 was interrupted:</source>
        <translation>Un invio di %1 è stato interrotto:</translation>
    </message>
    <message>
        <source>What became of a run of %1 has not been seen yet:</source>
        <translation>L&apos;esito di un invio di %1 non è ancora stato visto:</translation>
    </message>
    <message>
        <source>The record of a run cannot be read: who was sent the message is not known from it. It stays where it is until it is deleted.</source>
        <translation>La registrazione di un invio non è leggibile: da essa non si sa chi ha ricevuto il messaggio. Resta dov&apos;è finché non viene eliminata.</translation>
    </message>
    <message>
        <source>A run of %1 did not reach everybody:</source>
        <translation>Un invio di %1 non ha raggiunto tutti:</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>in doubt</source>
        <translation>in dubbio</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>inviato</translation>
    </message>
    <message>
        <source>refused for now</source>
        <translation>rifiutato per ora</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>rifiutato</translation>
    </message>
    <message>
        <source>not taken</source>
        <translation>non preso in carico</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>Report of the project</source>
        <translation>Resoconto del progetto</translation>
    </message>
    <message>
        <source>No Name</source>
        <translation>Senza Nome</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Oggetto</translation>
    </message>
    <message>
        <source>Sender</source>
        <translation>Mittente</translation>
    </message>
    <message>
        <source>Made</source>
        <translation>Creato</translation>
    </message>
    <message>
        <source>Recipients</source>
        <translation>Destinatari</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Inviati</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Rifiutati</translation>
    </message>
    <message>
        <source>Of them for now</source>
        <translation>Di cui per ora</translation>
    </message>
    <message>
        <source>In doubt</source>
        <translation>In dubbio</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Not sent</source>
        <translation>Non inviati</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completo</translation>
    </message>
    <message>
        <source>Not complete: %1</source>
        <translation>Non completo: %1</translation>
    </message>
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
        <source>Checked</source>
        <translation>Selezionato</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Last outcome</source>
        <translation>Ultimo esito</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Tries</source>
        <translation>Tentativi</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Codice</translation>
    </message>
    <message>
        <source>Enhanced code</source>
        <translation>Codice esteso</translation>
    </message>
    <message>
        <source>Server&apos;s text</source>
        <translation>Testo del server</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Message identifier</source>
        <translation>Identificativo del messaggio</translation>
    </message>
    <message>
        <source>Queue id</source>
        <translation>Id nella coda</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sì</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
</context>
<context>
    <name>ReportCommands</name>
    <message>
        <source>Select the file for the report:</source>
        <translation>Selezionare il file per il resoconto:</translation>
    </message>
    <message>
        <source>Report (*.csv)|*.csv|JSON (*.json)|*.json</source>
        <translation>Resoconto (*.csv)|*.csv|JSON (*.json)|*.json</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Resoconto</translation>
    </message>
</context>
<context>
    <name>RunJournal</name>
    <message>
        <source>Run</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>The run cannot be recorded, and is not started.</source>
        <translation>L&apos;invio non può essere registrato e non viene avviato.</translation>
    </message>
    <message>
        <source>If that program is gone, delete the file %1.</source>
        <translation>Se quel programma non è più in esecuzione, eliminare il file %1.</translation>
    </message>
    <message>
        <source>%1: it cannot be written</source>
        <translation>%1: impossibile scriverlo</translation>
    </message>
    <message>
        <source>The run cannot be recorded, and does not go on.</source>
        <translation>L&apos;invio non può essere registrato e non prosegue.</translation>
    </message>
    <message>
        <source>it cannot be written</source>
        <translation>impossibile scriverlo</translation>
    </message>
    <message>
        <source>The run is paused, because it cannot be recorded any more. What was sent so far is known. Make room and press Resume.</source>
        <translation>L&apos;invio è in pausa, perché non può più essere registrato. Quanto è stato inviato finora è noto. Liberare spazio e premere Riprendi.</translation>
    </message>
    <message>
        <source>Another program is running this project, or has a run of it that is not saved yet: process %1 on %2. It cannot be run twice at the same time.</source>
        <translation>Un altro programma sta inviando questo progetto, o ne ha un invio non ancora salvato: processo %1 su %2. Non può essere inviato due volte contemporaneamente.</translation>
    </message>
    <message>
        <source>How far that run came is known on %1 alone: it can be gone on with there. If that does not matter any more, delete the file %2.</source>
        <translation>Fin dove è arrivato quell&apos;invio si sa soltanto su %1, dove può proseguire. Se non importa più, eliminare il file %2.</translation>
    </message>
    <message>
        <source>Another program has run this project, or changed its file, since it was opened here. Open it again to see how far it came.</source>
        <translation>Un altro programma ha inviato questo progetto, o ne ha cambiato il file, da quando è stato aperto qui. Riaprirlo per vedere fin dove è arrivato.</translation>
    </message>
</context>
<context>
    <name>RunNotification</name>
    <message>
        <source>The mailing is over</source>
        <translation>L&apos;invio è terminato</translation>
    </message>
    <message>
        <source>The mailing broke off</source>
        <translation>L&apos;invio si è interrotto</translation>
    </message>
    <message>
        <source>The mailing is paused</source>
        <translation>L&apos;invio è in pausa</translation>
    </message>
    <message>
        <source>It cannot be recorded any more.</source>
        <translation>Non può più essere registrato.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
</context>
<context>
    <name>ServerReport</name>
    <message>
        <source>You trust this certificate.</source>
        <translation>Lei si fida di questo certificato.</translation>
    </message>
    <message>
        <source>Nothing secret is said on this line, so it is used all the same.</source>
        <translation>Su questa linea non passa nulla di segreto, quindi viene usata lo stesso.</translation>
    </message>
    <message>
        <source>Nothing is sent to this server.</source>
        <translation>A questo server non viene inviato nulla.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificato</translation>
    </message>
    <message>
        <source>%1, issued by %2, valid until %3</source>
        <translation>%1, emesso da %2, valido fino al %3</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Impronta</translation>
    </message>
    <message>
        <source>It does not verify: %1. %2</source>
        <translation>Non è verificabile: %1. %2</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Accesso</translation>
    </message>
    <message>
        <source>accepted: %1 (%2)</source>
        <translation>accettato: %1 (%2)</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>non riuscito</translation>
    </message>
    <message>
        <source>the server offers none</source>
        <translation>il server non ne offre</translation>
    </message>
    <message>
        <source>offered, and not needed on this port</source>
        <translation>offerto, e non necessario su questa porta</translation>
    </message>
    <message>
        <source>%1 bytes (%2)</source>
        <translation>%1 byte (%2)</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connessione</translation>
    </message>
    <message>
        <source>%1, port %2</source>
        <translation>%1, porta %2</translation>
    </message>
    <message>
        <source>Greeting</source>
        <translation>Saluto</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Cifratura</translation>
    </message>
    <message>
        <source>none: others can read what is sent</source>
        <translation>nessuna: altri possono leggere ciò che viene inviato</translation>
    </message>
    <message>
        <source>Extensions</source>
        <translation>Estensioni</translation>
    </message>
    <message>
        <source>Largest message</source>
        <translation>Messaggio più grande</translation>
    </message>
    <message>
        <source>no limit is announced</source>
        <translation>nessun limite dichiarato</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>All is well. Nothing was sent.</source>
        <translation>Tutto bene. Non è stato inviato nulla.</translation>
    </message>
</context>
<context>
    <name>SleepInhibitor</name>
    <message>
        <source>A mailing is being sent.</source>
        <translation>È in corso un invio.</translation>
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
    <message>
        <source>The server is missing.</source>
        <translation>Manca il server.</translation>
    </message>
    <message>
        <source>The sender&apos;s name is missing.</source>
        <translation>Manca il nome del mittente.</translation>
    </message>
    <message>
        <source>The sender&apos;s address is missing.</source>
        <translation>Manca l&apos;indirizzo del mittente.</translation>
    </message>
    <message>
        <source>The subject is missing.</source>
        <translation>Manca l&apos;oggetto.</translation>
    </message>
</context>
<context>
    <name>TestMessage</name>
    <message>
        <source>The message was not sent: %1</source>
        <translation>Il messaggio non è stato inviato: %1</translation>
    </message>
    <message>
        <source>there is no address to send it to</source>
        <translation>non c&apos;è un indirizzo a cui inviarlo</translation>
    </message>
    <message>
        <source>The server accepted the message</source>
        <translation>Il server ha accettato il messaggio</translation>
    </message>
    <message>
        <source>The message was refused</source>
        <translation>Il messaggio è stato rifiutato</translation>
    </message>
    <message>
        <source>It is not known whether the server accepted the message: %1</source>
        <translation>Non si sa se il server abbia accettato il messaggio: %1</translation>
    </message>
    <message>
        <source>another project was opened meanwhile</source>
        <translation>nel frattempo è stato aperto un altro progetto</translation>
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
    <name>TotalsText</name>
    <message numerus="yes">
        <source>%1 in doubt</source>
        <translation>
            <numerusform>%1 in dubbio</numerusform>
            <numerusform>%1 in dubbio</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 refused</source>
        <translation>
            <numerusform>%1 rifiutato</numerusform>
            <numerusform>%1 rifiutati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 sent</source>
        <translation>
            <numerusform>%1 di %2 inviato</numerusform>
            <numerusform>%1 di %2 inviati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 sent</source>
        <translation>
            <numerusform>%1 inviato</numerusform>
            <numerusform>%1 inviati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left</source>
        <translation>
            <numerusform>%1 rimasto</numerusform>
            <numerusform>%1 rimasti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 sent to in an earlier run</source>
        <translation>
            <numerusform>%1 già raggiunto da un invio precedente</numerusform>
            <numerusform>%1 già raggiunti da un invio precedente</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TraceFile</name>
    <message>
        <source>it is not a regular file</source>
        <translation>non è un file normale</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Traccia</translation>
    </message>
    <message>
        <source>The dialogue with the server cannot be written to %1: %2.</source>
        <translation>Il dialogo con il server non può essere scritto in %1: %2.</translation>
    </message>
</context>
<context>
    <name>TrialMessage</name>
    <message>
        <source>&apos;%1&apos; is not a port number from 1 to 65535</source>
        <translation>&apos;%1&apos; non è un numero di porta da 1 a 65535</translation>
    </message>
    <message>
        <source>no server is named</source>
        <translation>nessun server indicato</translation>
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
        <source>Tries %1 out and sends nothing. Like OK, it keeps what is entered here.</source>
        <translation>Prova %1 senza inviare nulla. Come OK, conserva quanto è inserito qui.</translation>
    </message>
    <message>
        <source>Normally empty. A program that prints an access token, for servers that want one (XOAUTH2).</source>
        <translation>Di solito vuoto. Un programma che scrive un token di accesso, per i server che ne vogliono uno (XOAUTH2).</translation>
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
    <name>frmContatto</name>
    <message>
        <source>New Contact</source>
        <translation>Nuovo Contatto</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Company:</source>
        <translation>Azienda:</translation>
    </message>
    <message>
        <source>E-Mail:</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Indirizzo:</translation>
    </message>
    <message>
        <source>Town/City:</source>
        <translation>Città:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Provincia:</translation>
    </message>
    <message>
        <source>Post/Zip Code:</source>
        <translation>CAP:</translation>
    </message>
    <message>
        <source>Country:</source>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>Telephone:</source>
        <translation>Telefono:</translation>
    </message>
    <message>
        <source>Fax:</source>
        <translation>Fax:</translation>
    </message>
    <message>
        <source>Mobile phone:</source>
        <translation>Cellulare:</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Note:</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Edit Contact</source>
        <translation>Modifica Contatto</translation>
    </message>
</context>
<context>
    <name>frmDetails</name>
    <message>
        <source>This recipient is no longer in the list.</source>
        <translation>Questo destinatario non è più nella lista.</translation>
    </message>
    <message>
        <source>Details of the recipient</source>
        <translation>Dettagli del destinatario</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Details of %1</source>
        <translation>Dettagli di %1</translation>
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
    <message>
        <source>Those in doubt are unchecked too: they may have the message.</source>
        <translation>Deseleziona anche chi è in dubbio: potrebbe avere il messaggio.</translation>
    </message>
    <message>
        <source>Uncheck those sent</source>
        <translation>Deseleziona gli inviati</translation>
    </message>
    <message>
        <source>Show the rest</source>
        <translation>Mostra i rimanenti</translation>
    </message>
    <message>
        <source>Check only the refused</source>
        <translation>Seleziona solo i rifiutati</translation>
    </message>
    <message>
        <source>Report...</source>
        <translation>Resoconto...</translation>
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
    <name>frmRubrica</name>
    <message>
        <source>Address Book</source>
        <translation>Rubrica</translation>
    </message>
    <message>
        <source>Address Books:</source>
        <translation>Rubriche:</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Aggiungi</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>Contacts:</source>
        <translation>Contatti:</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Trova:</translation>
    </message>
    <message>
        <source>Words in name, company or address</source>
        <translation>Parole nel nome, nell&apos;azienda o nell&apos;indirizzo</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuovo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Copy as text</source>
        <translation>Copia come testo</translation>
    </message>
    <message>
        <source>Add to recipients</source>
        <translation>Aggiungi ai destinatari</translation>
    </message>
    <message>
        <source>Import contacts...</source>
        <translation>Importa contatti...</translation>
    </message>
    <message>
        <source>Shown: %1 of %2</source>
        <translation>Mostrati: %1 di %2</translation>
    </message>
    <message>
        <source>Address Books</source>
        <translation>Rubriche</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contatti</translation>
    </message>
    <message>
        <source>&amp;Give up the changes</source>
        <translation>&amp;Scarta le modifiche</translation>
    </message>
</context>
<context>
    <name>frmRubriche</name>
    <message>
        <source>Address Books</source>
        <translation>Rubriche</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
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
