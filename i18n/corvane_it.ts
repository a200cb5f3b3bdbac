<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Answer_Cleaning</name>
    <message>
        <source>Device does not have a battery connected.</source>
        <translation>Il dispositivo non ha una batteria collegata.</translation>
    </message>
    <message>
        <source>%1% ( Charging )</source>
        <translation>%1% (in carica)</translation>
    </message>
    <message>
        <source>Recognized power fault.</source>
        <translation>Rilevato un guasto di alimentazione.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Basso</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Buono</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alto</translation>
    </message>
</context>
<context>
    <name>Appearance_Menu</name>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Chiaro</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Scuro</translation>
    </message>
    <message>
        <source>&amp;High contrast</source>
        <translation>&amp;Alto contrasto</translation>
    </message>
    <message>
        <source>&amp;As the desktop</source>
        <translation>Come il &amp;desktop</translation>
    </message>
</context>
<context>
    <name>Bubble_Words</name>
    <message>
        <source>%1 is lost</source>
        <translation>%1 va perso</translation>
    </message>
    <message>
        <source>%1 arrives as a blank</source>
        <translation>%1 arriva come uno spazio</translation>
    </message>
    <message>
        <source>%1 arrives as %2</source>
        <translation>%1 arriva come %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n altro</numerusform>
            <numerusform>altri %n</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>%1 makes this message Unicode</source>
        <translation>%1 rende Unicode questo messaggio</translation>
    </message>
    <message>
        <source>%1 make this message Unicode</source>
        <translation>%1 rendono Unicode questo messaggio</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n parts instead of %2.</source>
        <translation>
            <numerusform>%1: %n parte invece di %2.</numerusform>
            <numerusform>%1: %n parti invece di %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 part of %1, %2 left</source>
        <translation>1 parte da %1, ne restano %2</translation>
    </message>
    <message numerus="yes">
        <source>%n parts of %1, %2 left in the last</source>
        <translation>
            <numerusform>%n parte da %1, ne restano %2 nell&apos;ultima</numerusform>
            <numerusform>%n parti da %1, ne restano %2 nell&apos;ultima</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Button_Action</name>
    <message>
        <source>%1 (%2)</source>
        <comment>tool tip and keys</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>Connection_Advice</name>
    <message>
        <source>No phone or modem was found on USB or Bluetooth. Switch it on and connect it as described above; it may take some seconds until it appears. A modem on a serial socket of the computer itself is offered all the same, as ttyS0 or another ttyS, where your account may open it.</source>
        <translation>Non è stato trovato nessun telefono o modem su USB o Bluetooth. Accenderlo e collegarlo come descritto sopra; può impiegare qualche secondo a comparire. Un modem su una porta seriale del computer viene comunque proposto, come ttyS0 o un altro ttyS, se l&apos;account può aprirla.</translation>
    </message>
    <message>
        <source>Your account may not open %1. Only the system&apos;s administrator can allow it.</source>
        <translation>L&apos;account in uso non può aprire %1. Solo l&apos;amministratore del sistema può consentirlo.</translation>
    </message>
    <message>
        <source>Your account may not open %1. Members of this group may: %2. Join it with this command, then log out and in again:</source>
        <translation>L&apos;account in uso non può aprire %1. I membri di questo gruppo possono: %2. Entrare nel gruppo con questo comando, poi uscire dalla sessione e rientrare:</translation>
    </message>
    <message>
        <source>The service ModemManager is running and may hold the device&apos;s port. If the device is not found or does not answer, stop the service until the next start of the computer:</source>
        <translation>Il servizio ModemManager è in esecuzione e può tenere occupata la porta del dispositivo. Se il dispositivo non viene trovato o non risponde, fermare il servizio fino al prossimo avvio del computer:</translation>
    </message>
</context>
<context>
    <name>Connection_Info</name>
    <message>
        <source>Connect your mobile phone</source>
        <translation>Collegare il telefono</translation>
    </message>
    <message>
        <source>Corvane sends your messages through a mobile phone or GSM modem connected to this computer. Before the search begins, switch the device on and let the computer use it as a modem:</source>
        <translation>Corvane invia i messaggi attraverso un telefono o un modem GSM collegato a questo computer. Prima di iniziare la ricerca, accendere il dispositivo e consentire al computer di usarlo come modem:</translation>
    </message>
    <message>
        <source>With a USB cable</source>
        <translation>Con un cavo USB</translation>
    </message>
    <message>
        <source>Plug the cable in and unlock the phone. When it asks what the connection is for, choose the modem or data mode – phones call it “Modem”, “PC connection”, “COM port” or “Tethering as a modem” – and not “Charging” or “File transfer”. A GSM modem or USB stick is ready some seconds after it has been plugged in.</source>
        <translation>Inserire il cavo e sbloccare il telefono. Quando chiede a che cosa serve la connessione, scegliere la modalità modem o dati – i telefoni la chiamano «Modem», «Connessione PC», «Porta COM» o «Tethering come modem» – e non «Ricarica» o «Trasferimento file». Modem GSM e chiavette USB sono pronti qualche secondo dopo l&apos;inserimento.</translation>
    </message>
    <message>
        <source>With Bluetooth</source>
        <translation>Con Bluetooth</translation>
    </message>
    <message>
        <source>Pair the phone in your desktop’s Bluetooth settings, then bind a serial port to it in a terminal, with the phone’s own address in place of the one shown:</source>
        <translation>Associare il telefono nelle impostazioni Bluetooth del desktop, poi assegnargli una porta seriale da un terminale, con l&apos;indirizzo del proprio telefono al posto di quello mostrato:</translation>
    </message>
    <message>
        <source>Command that binds a serial port</source>
        <translation>Comando che assegna una porta seriale</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Su questo computer</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continua</translation>
    </message>
    <message>
        <source>Command to copy</source>
        <translation>Comando da copiare</translation>
    </message>
</context>
<context>
    <name>Contact_Desk</name>
    <message>
        <source>%1 added.</source>
        <translation>Aggiunti: %1.</translation>
    </message>
    <message>
        <source>%1 added, 1 row not used.</source>
        <translation>Aggiunti: %1; 1 riga non usata.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %n rows not used.</source>
        <translation>
            <numerusform>Aggiunti: %1; %n riga non usata.</numerusform>
            <numerusform>Aggiunti: %1; %n righe non usate.</numerusform>
        </translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Salvato in %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be written.</source>
        <translation>Impossibile scrivere il file %1.</translation>
    </message>
    <message>
        <source>1 row was not sent: %1.</source>
        <translation>1 riga non è stata inviata: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows were not sent. Of the first, %1.</source>
        <translation>
            <numerusform>%n riga non è stata inviata. Motivo della prima: %1.</numerusform>
            <numerusform>%n righe non sono state inviate. Motivo della prima: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nobody is on the list yet.</source>
        <translation>Nell&apos;elenco non c&apos;è ancora nessuno.</translation>
    </message>
    <message>
        <source>Add contacts from a spreadsheet, CSV or vCard file ...</source>
        <translation>Aggiungi contatti da un foglio di calcolo, CSV o vCard...</translation>
    </message>
</context>
<context>
    <name>Contact_Source</name>
    <message>
        <source>The clipboard</source>
        <translation>Gli appunti</translation>
    </message>
</context>
<context>
    <name>Contacts_Wnd</name>
    <message>
        <source>Another file ...</source>
        <translation>Altro file...</translation>
    </message>
    <message>
        <source>Choose another file</source>
        <translation>Sceglie un altro file</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Indietro</translation>
    </message>
    <message>
        <source>Back to the columns and the country</source>
        <translation>Torna alle colonne e al paese</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continua</translation>
    </message>
    <message>
        <source>Look at what is made of each row</source>
        <translation>Mostra che cosa risulta da ogni riga</translation>
    </message>
    <message>
        <source>&amp;Add to list</source>
        <translation>&amp;Aggiungi all&apos;elenco</translation>
    </message>
    <message>
        <source>Add the rows that can be used to the list, with the message as it stands</source>
        <translation>Aggiunge all&apos;elenco le righe utilizzabili, con il messaggio così com&apos;è</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Import contacts</source>
        <translation>Importa contatti</translation>
    </message>
    <message>
        <source>Check before sending</source>
        <translation>Controllo prima dell&apos;invio</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>la memoria non basta</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>Copy_Action</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
</context>
<context>
    <name>CorvaneAppDelegate</name>
    <message>
        <source>No Mobile Phone Device is selected.</source>
        <translation>Nessun telefono selezionato.</translation>
    </message>
    <message>
        <source>Click here to start Mobile Phone Connection Wizard.</source>
        <translation>Fare clic qui per aprire l&apos;assistente di connessione del telefono.</translation>
    </message>
    <message>
        <source>Find the phones and modems attached to this computer and pick one</source>
        <translation>Cerca i telefoni e i modem collegati a questo computer e ne fa scegliere uno</translation>
    </message>
    <message>
        <source>Connection &amp;Wizard ...</source>
        <translation>Assistente di &amp;connessione...</translation>
    </message>
    <message>
        <source>Choose the normal type of message, and select those whose message was not taken. Nothing is sent: keep only those, and then press Send</source>
        <translation>Sceglie il tipo di messaggio normale e seleziona i destinatari il cui messaggio non è stato accettato. Non invia nulla: tenere solo questi e poi premere Invia</translation>
    </message>
    <message>
        <source>Choose normal text messages</source>
        <translation>Usa messaggi di testo normali</translation>
    </message>
    <message>
        <source>Recipients</source>
        <translation>Destinatari</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Numero di telefono</translation>
    </message>
    <message>
        <source>for example +447700900123</source>
        <translation>per esempio +447700900123</translation>
    </message>
    <message>
        <source>Add the number with the message as it stands</source>
        <translation>Aggiunge il numero con il messaggio così com&apos;è</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Aggiungi</translation>
    </message>
    <message>
        <source>Add the numbers of a text or RTF file, one in each line, with the message as it stands. A file can also be dropped on the list, and numbers can be pasted into it</source>
        <translation>Aggiunge i numeri di un file di testo o RTF, uno per riga, con il messaggio così com&apos;è. Si può anche trascinare un file sull&apos;elenco, o incollarvi dei numeri</translation>
    </message>
    <message>
        <source>&amp;Import ...</source>
        <translation>&amp;Importa...</translation>
    </message>
    <message>
        <source>Add the contacts of a spreadsheet, a CSV or a vCard file, with their names and other fields, after a look at what is made of them</source>
        <translation>Aggiunge i contatti di un foglio di calcolo, di un file CSV o di una vCard, con i nomi e gli altri campi, dopo aver mostrato che cosa ne risulta</translation>
    </message>
    <message>
        <source>Contacts ...</source>
        <translation>Contatti...</translation>
    </message>
    <message>
        <source>Total Numbers : 0</source>
        <translation>Totale numeri: 0</translation>
    </message>
    <message>
        <source>Write the numbers of the list into a text file</source>
        <translation>Salva i numeri dell&apos;elenco in un file di testo</translation>
    </message>
    <message>
        <source>Ex&amp;port ...</source>
        <translation>Espo&amp;rta...</translation>
    </message>
    <message>
        <source>Clear S&amp;elected</source>
        <translation>Ri&amp;muovi selezione</translation>
    </message>
    <message>
        <source>&amp;Clear All</source>
        <translation>&amp;Svuota elenco</translation>
    </message>
    <message>
        <source>Select the recipients whose message was refused or not tried. One that may have been sent, was written or got no answer is not among them, since it may have arrived</source>
        <translation>Seleziona i destinatari il cui messaggio è stato rifiutato o non è stato tentato. Non comprende i messaggi forse inviati, scritti o rimasti senza risposta, perché potrebbero essere arrivati</translation>
    </message>
    <message>
        <source>Select those not taken</source>
        <translation>Seleziona non accettati</translation>
    </message>
    <message>
        <source>Remove all recipients from the list but those whose message was refused or not tried. Nothing is sent</source>
        <translation>Rimuove dall&apos;elenco tutti i destinatari, tranne quelli il cui messaggio è stato rifiutato o non è stato tentato. Non invia nulla</translation>
    </message>
    <message>
        <source>Keep only those</source>
        <translation>Tieni solo questi</translation>
    </message>
    <message>
        <source>Look at what became of each message of the last job that was confirmed, and export that</source>
        <translation>Mostra l&apos;esito di ogni messaggio dell&apos;ultimo invio confermato, e permette di esportarlo</translation>
    </message>
    <message>
        <source>Receipt ...</source>
        <translation>Rapporto...</translation>
    </message>
    <message>
        <source>Excluded numbers</source>
        <translation>Numeri esclusi</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>&amp;Message for the numbers you add:</source>
        <translation>Messaggio per i numeri aggiunti da &amp;qui in poi:</translation>
    </message>
    <message>
        <source>Put a field into the message. Everybody gets it with the value of their own</source>
        <translation>Inserisce un campo nel messaggio. Ogni destinatario lo riceve con il proprio valore</translation>
    </message>
    <message>
        <source>Insert field</source>
        <translation>Inserisci campo</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>0 caratteri</translation>
    </message>
    <message>
        <source>Write one new message for the recipients selected in the list</source>
        <translation>Scrive un nuovo messaggio per i destinatari selezionati nell&apos;elenco</translation>
    </message>
    <message>
        <source>Edit the
messages of
selected items</source>
        <translation>Modifica i
messaggi
selezionati</translation>
    </message>
    <message>
        <source>Copy the message above to all, the selected or the blank items of the list</source>
        <translation>Copia il messaggio qui sopra in tutte le voci dell&apos;elenco, in quelle selezionate o in quelle senza messaggio</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>Message &amp;type:</source>
        <translation>&amp;Tipo di messaggio:</translation>
    </message>
    <message>
        <source>Message type</source>
        <translation>Tipo di messaggio</translation>
    </message>
    <message>
        <source>A notification shows at once on the handset and is not stored</source>
        <translation>Una notifica compare subito sul telefono e non vi resta memorizzata</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Notifica</translation>
    </message>
    <message>
        <source>Text message</source>
        <translation>Messaggio di testo</translation>
    </message>
    <message>
        <source>Needed for every text with characters that Help does not list, such as € ê ő ö ù or emoji: they arrive as others without it. 70 characters fit one message instead of 160</source>
        <translation>Serve per ogni testo con caratteri che la Guida non elenca, come € ê ő ö ù o emoji: senza, arrivano trasformati in altri. In un messaggio entrano 70 caratteri invece di 160</translation>
    </message>
    <message>
        <source>Send as &amp;Unicode</source>
        <translation>Invia come &amp;Unicode</translation>
    </message>
    <message>
        <source>Refuse a number that the list has already, and send to each number once</source>
        <translation>Rifiuta i numeri già presenti nell&apos;elenco e invia a ogni numero una sola volta</translation>
    </message>
    <message>
        <source>S&amp;kip duplicate numbers</source>
        <translation>Salta numeri du&amp;plicati</translation>
    </message>
    <message>
        <source>Refuse the numbers of the applied exclusion lists, and never send to them</source>
        <translation>Rifiuta i numeri degli elenchi di esclusione applicati e non invia loro nulla</translation>
    </message>
    <message>
        <source>Heed the exc&amp;lusion lists</source>
        <translation>A&amp;bilita elenchi di esclusione</translation>
    </message>
    <message>
        <source>Keep lists of numbers that are not to be sent to</source>
        <translation>Gestisce gli elenchi di numeri a cui non inviare</translation>
    </message>
    <message>
        <source>Exclusi&amp;on Lists ...</source>
        <translation>Elenc&amp;hi di esclusione...</translation>
    </message>
    <message>
        <source>Keep a record of every message that was handed to the phone</source>
        <translation>Conserva una registrazione di ogni messaggio passato al telefono</translation>
    </message>
    <message>
        <source>Sa&amp;ve sent items</source>
        <translation>Sa&amp;lva gli inviati</translation>
    </message>
    <message>
        <source>Look at the records of messages handed to the phone</source>
        <translation>Mostra le registrazioni dei messaggi passati al telefono</translation>
    </message>
    <message>
        <source>Sent Items ...</source>
        <translation>Inviati...</translation>
    </message>
    <message>
        <source>Keep the text of every message that was handed to the phone, once</source>
        <translation>Conserva, una sola volta, il testo di ogni messaggio passato al telefono</translation>
    </message>
    <message>
        <source>Save messa&amp;ges as templates</source>
        <translation>Salva messa&amp;ggi come modelli</translation>
    </message>
    <message>
        <source>Keep texts that are used again, and put one into the message</source>
        <translation>Conserva i testi usati spesso e ne inserisce uno nel messaggio</translation>
    </message>
    <message>
        <source>Templates ...</source>
        <translation>Modelli...</translation>
    </message>
    <message>
        <source>Send each message as soon as the phone or network has answered for the one before it, in the alphabet that its text needs, and never a second time unasked. A record of the job is kept until it is finished</source>
        <translation>Invia ogni messaggio appena il telefono o la rete ha risposto per il precedente, nell&apos;alfabeto che il testo richiede, e mai una seconda volta senza chiedere. Una registrazione dell&apos;invio viene tenuta finché non è terminato</translation>
    </message>
    <message>
        <source>Con&amp;firm each message</source>
        <translation>Con&amp;ferma ogni messaggio</translation>
    </message>
    <message>
        <source>Look at the receipts that were kept</source>
        <translation>Mostra i rapporti di invio conservati</translation>
    </message>
    <message>
        <source>Receipts ...</source>
        <translation>Rapporti...</translation>
    </message>
    <message>
        <source>Ask the network to report what was delivered, and wait up to a minute for that at the end. Some networks charge for reports, and some never send any</source>
        <translation>Chiede alla rete un rapporto su ciò che è stato consegnato, e alla fine lo attende fino a un minuto. Alcune reti fanno pagare questi rapporti, altre non li inviano mai</translation>
    </message>
    <message>
        <source>Ask for delivery reports</source>
        <translation>Chiedi rapporti di consegna</translation>
    </message>
    <message>
        <source>Keep the record of a finished job, with every number and message, instead of removing it</source>
        <translation>Conserva la registrazione di un invio terminato, con tutti i numeri e i messaggi, invece di eliminarla</translation>
    </message>
    <message>
        <source>Keep the receipt</source>
        <translation>Conserva il rapporto</translation>
    </message>
    <message>
        <source>Have these boxes ticked as they are now, whenever the program starts</source>
        <translation>A ogni avvio del programma ripropone queste caselle come sono adesso</translation>
    </message>
    <message>
        <source>Remember these choices</source>
        <translation>Ricorda queste scelte</translation>
    </message>
    <message>
        <source>Pause after each batch of messages</source>
        <translation>Fa una pausa dopo ogni gruppo di messaggi</translation>
    </message>
    <message>
        <source>&amp;Delay: after</source>
        <translation>Pausa: d&amp;opo</translation>
    </message>
    <message>
        <source>Messages before each pause</source>
        <translation>Messaggi prima di ogni pausa</translation>
    </message>
    <message>
        <source>How many messages are sent before each pause</source>
        <translation>Quanti messaggi inviare prima di ogni pausa</translation>
    </message>
    <message numerus="yes">
        <source>messages wait</source>
        <translation>
            <numerusform>messaggio, attendi</numerusform>
            <numerusform>messaggi, attendi</numerusform>
        </translation>
    </message>
    <message>
        <source>Length of each pause</source>
        <translation>Durata di ogni pausa</translation>
    </message>
    <message>
        <source>How long each pause lasts</source>
        <translation>Quanto dura ogni pausa</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Gui&amp;da</translation>
    </message>
    <message>
        <source>Choose light or dark colours, or those with the highest contrast</source>
        <translation>Sceglie colori chiari o scuri, o quelli con il contrasto più alto</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>Empty the list, the fields and the options</source>
        <translation>Svuota l&apos;elenco e i campi e azzera le opzioni</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>A&amp;zzera</translation>
    </message>
    <message>
        <source>What serves better for long lists, and how to hand this one over</source>
        <translation>Che cosa conviene per gli elenchi lunghi, e come trasferire questo</translation>
    </message>
    <message>
        <source>Other ways ...</source>
        <translation>Altri modi...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>Look at each message as it will be sent, what is left out and why. Nothing is sent</source>
        <translation>Mostra ogni messaggio come verrà inviato, che cosa viene omesso e perché. Non invia nulla</translation>
    </message>
    <message>
        <source>Check before sending ...</source>
        <translation>Controlla prima di inviare...</translation>
    </message>
    <message>
        <source>Send each recipient&apos;s message</source>
        <translation>Invia a ogni destinatario il suo messaggio</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>In&amp;via</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Excluded number</source>
        <translation>Numero escluso</translation>
    </message>
    <message>
        <source>1 recipient removed.</source>
        <translation>1 destinatario rimosso.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients removed.</source>
        <translation>
            <numerusform>%n destinatario rimosso.</numerusform>
            <numerusform>%n destinatari rimossi.</numerusform>
        </translation>
    </message>
    <message>
        <source>List, fields and options were reset.</source>
        <translation>Elenco, campi e opzioni sono stati azzerati.</translation>
    </message>
    <message>
        <source>Everything that can be done here, with its keys</source>
        <translation>Tutto ciò che si può fare qui, con i tasti</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>What the program does, in short, and how to use it</source>
        <translation>In breve, che cosa fa il programma e come si usa</translation>
    </message>
    <message>
        <source>End the program, after a question</source>
        <translation>Chiude il programma, dopo una domanda</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Numero:</translation>
    </message>
</context>
<context>
    <name>Delayed_Delivery</name>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n secondo</numerusform>
            <numerusform>%n secondi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n minuto</numerusform>
            <numerusform>%n minuti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>%n ora</numerusform>
            <numerusform>%n ore</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Demo_Phone</name>
    <message>
        <source>The virtual phone could not be started: %1: %2</source>
        <translation>Impossibile avviare il telefono virtuale: %1: %2</translation>
    </message>
</context>
<context>
    <name>Desktop_Help</name>
    <message>
        <source>Messages are being sent</source>
        <translation>Invio dei messaggi in corso</translation>
    </message>
    <message>
        <source>Sending waits</source>
        <translation>L&apos;invio è in attesa</translation>
    </message>
    <message>
        <source>Sending has ended</source>
        <translation>L&apos;invio è terminato</translation>
    </message>
</context>
<context>
    <name>Doctor_Wnd</name>
    <message>
        <source>Why does my phone not show?</source>
        <translation>Perché il telefono non compare?</translation>
    </message>
    <message>
        <source>This looks at the ports of this computer and asks the devices on them. Nothing is sent, and no PIN is tried.</source>
        <translation>Vengono esaminate le porte di questo computer e interrogati i dispositivi collegati. Non viene inviato nulla e nessun PIN viene provato.</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Che cosa è stato trovato</translation>
    </message>
    <message>
        <source>Looking</source>
        <translation>Esame in corso</translation>
    </message>
    <message>
        <source>No phone at hand?</source>
        <translation>Nessun telefono a portata di mano?</translation>
    </message>
    <message>
        <source>Try the program with a virtual phone: nothing is really sent.</source>
        <translation>Provare il programma con un telefono virtuale: in realtà non viene inviato nulla.</translation>
    </message>
    <message>
        <source>Use the &amp;virtual phone</source>
        <translation>Usa il telefono &amp;virtuale</translation>
    </message>
    <message>
        <source>Look &amp;again</source>
        <translation>&amp;Ricontrolla</translation>
    </message>
    <message>
        <source>Copy &amp;report</source>
        <translation>Copia ra&amp;pporto</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>Looking at what is connected ...</source>
        <translation>Esame dei dispositivi collegati...</translation>
    </message>
    <message>
        <source>Asking %1 ...</source>
        <translation>Interrogazione di %1...</translation>
    </message>
    <message>
        <source>A device is there that could send.</source>
        <translation>C&apos;è un dispositivo che potrebbe inviare.</translation>
    </message>
    <message>
        <source>No device could send. What helps stands above.</source>
        <translation>Nessun dispositivo potrebbe inviare. Qui sopra è indicato che cosa fare.</translation>
    </message>
    <message>
        <source>The report is copied. It holds no numbers and no texts of messages.</source>
        <translation>Il rapporto è stato copiato. Non contiene numeri né testi di messaggi.</translation>
    </message>
</context>
<context>
    <name>Exclusion_Trouble</name>
    <message>
        <source>The file that says which exclusion lists are applied
can not be read: no number is excluded.</source>
        <translation>Impossibile leggere il file che indica quali elenchi di esclusione
sono applicati: nessun numero viene escluso.</translation>
    </message>
    <message>
        <source>The exclusion list %1
can not be used: its numbers are not excluded.</source>
        <translation>L&apos;elenco di esclusione %1
non è utilizzabile: i suoi numeri non vengono esclusi.</translation>
    </message>
    <message>
        <source>The exclusion lists %1
can not be used: their numbers are not excluded.</source>
        <translation>Gli elenchi di esclusione %1
non sono utilizzabili: i loro numeri non vengono esclusi.</translation>
    </message>
    <message>
        <source>The exclusion lists %1 and %2 more
can not be used: their numbers are not excluded.</source>
        <translation>Gli elenchi di esclusione %1 e altri %2
non sono utilizzabili: i loro numeri non vengono esclusi.</translation>
    </message>
</context>
<context>
    <name>Exclusion_Wizard</name>
    <message>
        <source>Exclusion List Wizard</source>
        <translation>Gestione elenchi di esclusione</translation>
    </message>
    <message>
        <source>Available exclusion lists</source>
        <translation>Elenchi di esclusione disponibili</translation>
    </message>
    <message>
        <source>Apply the selected lists</source>
        <translation>Applica gli elenchi selezionati</translation>
    </message>
    <message>
        <source>Exclude the numbers of the selected lists when sending</source>
        <translation>Esclude dall&apos;invio i numeri degli elenchi selezionati</translation>
    </message>
    <message>
        <source>&amp;Apply  ›</source>
        <translation>&amp;Applica  ›</translation>
    </message>
    <message>
        <source>Apply all lists</source>
        <translation>Applica tutti gli elenchi</translation>
    </message>
    <message>
        <source>Exclude the numbers of all lists when sending</source>
        <translation>Esclude dall&apos;invio i numeri di tutti gli elenchi</translation>
    </message>
    <message>
        <source>Apply a&amp;ll  »</source>
        <translation>Applica &amp;tutti  »</translation>
    </message>
    <message>
        <source>Remove the selected applied lists</source>
        <translation>Rimuovi gli elenchi applicati selezionati</translation>
    </message>
    <message>
        <source>Do not exclude the numbers of the selected lists any more</source>
        <translation>Non esclude più i numeri degli elenchi selezionati</translation>
    </message>
    <message>
        <source>‹  &amp;Remove</source>
        <translation>‹  &amp;Rimuovi</translation>
    </message>
    <message>
        <source>Remove all applied lists</source>
        <translation>Rimuovi tutti gli elenchi applicati</translation>
    </message>
    <message>
        <source>Do not exclude the numbers of any list any more</source>
        <translation>Non esclude più i numeri di nessun elenco</translation>
    </message>
    <message>
        <source>«  Re&amp;move all</source>
        <translation>«  Ri&amp;muovi tutti</translation>
    </message>
    <message>
        <source>Lists to exclude when sending SMS</source>
        <translation>Elenchi da escludere dall&apos;invio di SMS</translation>
    </message>
    <message>
        <source>Make a new exclusion list</source>
        <translation>Crea un nuovo elenco di esclusione</translation>
    </message>
    <message>
        <source>Add &amp;New ...</source>
        <translation>&amp;Nuovo elenco...</translation>
    </message>
    <message>
        <source>Edit the numbers of the selected list</source>
        <translation>Modifica i numeri dell&apos;elenco selezionato</translation>
    </message>
    <message>
        <source>&amp;Update ...</source>
        <translation>Mo&amp;difica...</translation>
    </message>
    <message>
        <source>Delete the selected lists and their numbers</source>
        <translation>Elimina gli elenchi selezionati e i loro numeri</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>Keep the lists on the right as those to exclude when sending</source>
        <translation>Conserva gli elenchi a destra come quelli da escludere dall&apos;invio</translation>
    </message>
    <message>
        <source>&amp;Save Applied</source>
        <translation>Salva a&amp;pplicati</translation>
    </message>
    <message>
        <source>Exclusion list name</source>
        <translation>Nome dell&apos;elenco di esclusione</translation>
    </message>
    <message>
        <source>A name for the list, at most 50 characters</source>
        <translation>Un nome per l&apos;elenco, al massimo 50 caratteri</translation>
    </message>
    <message>
        <source>Administration team</source>
        <translation>Ufficio amministrazione</translation>
    </message>
    <message>
        <source>File of numbers</source>
        <translation>File di numeri</translation>
    </message>
    <message>
        <source>A text or rich-text file with one number a line</source>
        <translation>Un file di testo o RTF con un numero per riga</translation>
    </message>
    <message>
        <source>Pick the file</source>
        <translation>Scegli il file</translation>
    </message>
    <message>
        <source>Bro&amp;wse ...</source>
        <translation>&amp;Sfoglia...</translation>
    </message>
    <message>
        <source>Add the numbers of the file to the list</source>
        <translation>Aggiunge all&apos;elenco i numeri del file</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Carica</translation>
    </message>
    <message>
        <source>or</source>
        <translation>oppure</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Numero di telefono</translation>
    </message>
    <message>
        <source>A phone number, at most 20 characters</source>
        <translation>Un numero di telefono, al massimo 20 caratteri</translation>
    </message>
    <message>
        <source>Add the number to the list</source>
        <translation>Aggiunge il numero all&apos;elenco</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>A&amp;ggiungi</translation>
    </message>
    <message>
        <source>Numbers of the list</source>
        <translation>Numeri dell&apos;elenco</translation>
    </message>
    <message>
        <source>Total Numbers : 0</source>
        <translation>Totale numeri: 0</translation>
    </message>
    <message>
        <source>Edit the selected number</source>
        <translation>Modifica il numero selezionato</translation>
    </message>
    <message>
        <source>Remove the selected numbers from the list</source>
        <translation>Rimuove dall&apos;elenco i numeri selezionati</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>Close; applied lists that were not saved are forgotten</source>
        <translation>Chiude; gli elenchi applicati ma non salvati vanno persi</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Annu&amp;lla</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Indietro</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>A&amp;vanti</translation>
    </message>
    <message>
        <source>Save the list</source>
        <translation>Salva l&apos;elenco</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fine</translation>
    </message>
    <message>
        <source>Close; a list that was not finished is forgotten</source>
        <translation>Chiude; un elenco non completato va perso</translation>
    </message>
    <message>
        <source>Exclusion &amp;list name:</source>
        <translation>N&amp;ome dell&apos;elenco di esclusione:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Esempio:</translation>
    </message>
    <message>
        <source>Numbers from a f&amp;ile:</source>
        <translation>File c&amp;he contiene i numeri:</translation>
    </message>
    <message>
        <source>One &amp;number:</source>
        <translation>&amp;Un numero:</translation>
    </message>
</context>
<context>
    <name>Export_Option</name>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>In which format do you want to export the list?</source>
        <translation>In quale formato esportare l&apos;elenco?</translation>
    </message>
    <message>
        <source>&amp;Text file</source>
        <translation>File di &amp;testo</translation>
    </message>
    <message>
        <source>Plain text, with a line between the entries</source>
        <translation>Testo semplice, con una riga tra le voci</translation>
    </message>
    <message>
        <source>&amp;HTML page</source>
        <translation>Pagina &amp;HTML</translation>
    </message>
    <message>
        <source>A table that a web browser shows</source>
        <translation>Una tabella da vedere in un browser web</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>Fields_Strip</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e altri %2</translation>
    </message>
    <message>
        <source>Save with fields ...</source>
        <translation>Salva con i campi...</translation>
    </message>
    <message>
        <source>Write the list with its messages and fields into a table that can be opened again</source>
        <translation>Salva l&apos;elenco con i suoi messaggi e campi in una tabella che si può riaprire</translation>
    </message>
    <message>
        <source>Fields of the list</source>
        <translation>Campi dell&apos;elenco</translation>
    </message>
    <message>
        <source>Fields: %1</source>
        <translation>Campi: %1</translation>
    </message>
</context>
<context>
    <name>File_Panels</name>
    <message>
        <source>
%1 is there already.

Do you want to replace it?</source>
        <translation>
%1 esiste già.

Sostituire il file?</translation>
    </message>
</context>
<context>
    <name>Fill_Msg_In_List</name>
    <message>
        <source>Fill message into list</source>
        <translation>Copia il messaggio nell&apos;elenco</translation>
    </message>
    <message>
        <source>Copy the message in the composer to:</source>
        <translation>Copia il messaggio scritto in:</translation>
    </message>
    <message>
        <source>Every number gets the message in the composer</source>
        <translation>Tutti i numeri ricevono il messaggio scritto</translation>
    </message>
    <message>
        <source>&amp;All numbers in the list</source>
        <translation>&amp;Tutti i numeri dell&apos;elenco</translation>
    </message>
    <message>
        <source>The numbers selected in the list get the message; the others keep theirs</source>
        <translation>I numeri selezionati nell&apos;elenco ricevono il messaggio; gli altri tengono il loro</translation>
    </message>
    <message>
        <source>The &amp;selected numbers</source>
        <translation>I numeri &amp;selezionati</translation>
    </message>
    <message>
        <source>The numbers whose message is empty get the message; the others keep theirs</source>
        <translation>I numeri senza messaggio ricevono questo; gli altri tengono il loro</translation>
    </message>
    <message>
        <source>The numbers without a &amp;message</source>
        <translation>I numeri senza &amp;messaggio</translation>
    </message>
    <message>
        <source>Leave the list as it is</source>
        <translation>Lascia l&apos;elenco com&apos;è</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Copy the message</source>
        <translation>Copia il messaggio</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>C&amp;opia</translation>
    </message>
</context>
<context>
    <name>Find_Strip</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Show all rows again (Escape)</source>
        <translation>Mostra di nuovo tutte le righe (Esc)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Trova</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Trova:</translation>
    </message>
    <message>
        <source>Only rows with all these words are shown. The list, and what is sent, stay as they are</source>
        <translation>Si vedono solo le righe con tutte queste parole. L&apos;elenco e ciò che si invia restano come sono</translation>
    </message>
</context>
<context>
    <name>Finding_Row</name>
    <message>
        <source>Command to copy</source>
        <translation>Comando da copiare</translation>
    </message>
</context>
<context>
    <name>Fixed_Text</name>
    <message>
        <source>This number, or the service centre&apos;s, does not exist.</source>
        <extracomment>Texts::Causes::No_Such_Number</extracomment>
        <translation>Questo numero, o quello del centro messaggi, non esiste.</translation>
    </message>
    <message>
        <source>The recipient&apos;s number is invalid.</source>
        <translation>Il numero del destinatario non è valido.</translation>
    </message>
    <message>
        <source>Messages to this recipient are barred.</source>
        <translation>I messaggi a questo destinatario sono bloccati.</translation>
    </message>
    <message>
        <source>The recipient&apos;s network is out of order.</source>
        <translation>La rete del destinatario è fuori servizio.</translation>
    </message>
    <message>
        <source>The operator has barred sending.</source>
        <translation>L&apos;operatore ha bloccato l&apos;invio.</translation>
    </message>
    <message>
        <source>Sending is barred on this SIM card.</source>
        <translation>L&apos;invio è bloccato su questa scheda SIM.</translation>
    </message>
    <message>
        <source>The service centre does not know this SIM card.</source>
        <translation>Il centro messaggi non conosce questa scheda SIM.</translation>
    </message>
    <message>
        <source>The network does not grant this service.</source>
        <translation>La rete non concede questo servizio.</translation>
    </message>
    <message>
        <source>The network does not know this SIM card.</source>
        <translation>La rete non conosce questa scheda SIM.</translation>
    </message>
    <message>
        <source>Text messages are not part of the contract.</source>
        <translation>I messaggi di testo non fanno parte del contratto.</translation>
    </message>
    <message>
        <source>The network does not offer text messages.</source>
        <translation>La rete non offre messaggi di testo.</translation>
    </message>
    <message>
        <source>There is no contract with the service centre.</source>
        <translation>Non c&apos;è un contratto con il centro messaggi.</translation>
    </message>
    <message>
        <source>The network has failed.</source>
        <translation>La rete ha avuto un guasto.</translation>
    </message>
    <message>
        <source>The network rejects this message.</source>
        <translation>La rete respinge questo messaggio.</translation>
    </message>
    <message>
        <source>The network is congested.</source>
        <translation>La rete è congestionata.</translation>
    </message>
    <message>
        <source>The network is out of order.</source>
        <translation>La rete è fuori servizio.</translation>
    </message>
    <message>
        <source>The network has a temporary failure.</source>
        <translation>La rete ha un guasto temporaneo.</translation>
    </message>
    <message>
        <source>The service centre is congested.</source>
        <translation>Il centro messaggi è congestionato.</translation>
    </message>
    <message>
        <source>The network has no room for messages now.</source>
        <translation>La rete al momento non ha spazio per i messaggi.</translation>
    </message>
    <message>
        <source>The network has lost track of this message.</source>
        <translation>La rete ha perso traccia di questo messaggio.</translation>
    </message>
    <message>
        <source>There is trouble between two networks.</source>
        <translation>Ci sono problemi tra due reti.</translation>
    </message>
    <message>
        <source>The service centre is busy.</source>
        <translation>Il centro messaggi è occupato.</translation>
    </message>
    <message>
        <source>The service centre has failed.</source>
        <translation>Il centro messaggi ha avuto un guasto.</translation>
    </message>
    <message>
        <source>The service centre already has this message.</source>
        <translation>Il centro messaggi ha già questo messaggio.</translation>
    </message>
    <message>
        <source>The network gives a reason of its own.</source>
        <translation>La rete indica un motivo proprio.</translation>
    </message>
    <message>
        <source>The network gives no reason.</source>
        <translation>La rete non indica il motivo.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number is not known.</source>
        <translation>Il numero del centro messaggi non è noto.</translation>
    </message>
    <message>
        <source>There is no network.</source>
        <translation>Non c&apos;è rete.</translation>
    </message>
    <message>
        <source>The network allows nothing but emergency calls.</source>
        <translation>La rete consente solo chiamate di emergenza.</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>La rete non ha risposto in tempo.</translation>
    </message>
    <message>
        <source>There was no radio connection.</source>
        <translation>Mancava il collegamento radio.</translation>
    </message>
    <message>
        <source>The radio connection was lost.</source>
        <translation>Il collegamento radio si è interrotto.</translation>
    </message>
    <message>
        <source>The network found the message malformed.</source>
        <translation>La rete ha trovato il messaggio malformato.</translation>
    </message>
    <message>
        <source>The network does not accept this kind of message.</source>
        <translation>La rete non accetta questo tipo di messaggio.</translation>
    </message>
    <message>
        <source>The network does not accept this alphabet.</source>
        <translation>La rete non accetta questo alfabeto.</translation>
    </message>
    <message>
        <source>The network accepts no message that shows at once.</source>
        <translation>La rete non accetta messaggi a comparsa immediata.</translation>
    </message>
    <message>
        <source>The network does not accept this command.</source>
        <translation>La rete non accetta questo comando.</translation>
    </message>
    <message>
        <source>The network does not keep messages for so long.</source>
        <translation>La rete non conserva i messaggi così a lungo.</translation>
    </message>
    <message>
        <source>The modem rejects the message or its number.</source>
        <translation>Il modem respinge il messaggio o il suo numero.</translation>
    </message>
    <message>
        <source>There is no SIM card.</source>
        <translation>Non c&apos;è una scheda SIM.</translation>
    </message>
    <message>
        <source>This is the wrong SIM card.</source>
        <translation>Questa non è la scheda SIM giusta.</translation>
    </message>
    <message>
        <source>The SIM card has failed.</source>
        <translation>La scheda SIM ha avuto un guasto.</translation>
    </message>
    <message>
        <source>The SIM card is busy.</source>
        <translation>La scheda SIM è occupata.</translation>
    </message>
    <message>
        <source>The SIM card has no room for messages.</source>
        <translation>La scheda SIM non ha spazio per i messaggi.</translation>
    </message>
    <message>
        <source>The SIM card cannot store messages.</source>
        <translation>La scheda SIM non può memorizzare messaggi.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN.</source>
        <translation>La scheda SIM chiede il PIN.</translation>
    </message>
    <message>
        <source>The phone wants the PIN that ties it to its SIM card.</source>
        <translation>Il telefono chiede il PIN che lo lega alla sua scheda SIM.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN2.</source>
        <translation>La scheda SIM chiede il PIN2.</translation>
    </message>
    <message>
        <source>The SIM card wants its PUK.</source>
        <translation>La scheda SIM chiede il PUK.</translation>
    </message>
    <message>
        <source>The SIM card wants its PUK2.</source>
        <translation>La scheda SIM chiede il PUK2.</translation>
    </message>
    <message>
        <source>The modem was busy with another message.</source>
        <translation>Il modem era occupato con un altro messaggio.</translation>
    </message>
    <message>
        <source>The phone has no room for messages.</source>
        <translation>Il telefono non ha spazio per i messaggi.</translation>
    </message>
    <message>
        <source>The phone has failed.</source>
        <translation>Il telefono ha avuto un guasto.</translation>
    </message>
    <message>
        <source>Another program has reserved the phone&apos;s messages.</source>
        <translation>Un altro programma ha riservato i messaggi del telefono.</translation>
    </message>
    <message>
        <source>The phone does not allow sending now.</source>
        <translation>Il telefono al momento non consente l&apos;invio.</translation>
    </message>
    <message>
        <source>The phone does not support this.</source>
        <translation>Il telefono non lo supporta.</translation>
    </message>
    <message>
        <source>The phone&apos;s memory has failed.</source>
        <translation>La memoria del telefono ha avuto un guasto.</translation>
    </message>
    <message>
        <source>The phone has no such place in its memory.</source>
        <translation>Il telefono non ha questa posizione nella sua memoria.</translation>
    </message>
    <message>
        <source>The phone expects no acknowledgement.</source>
        <translation>Il telefono non attende nessuna conferma.</translation>
    </message>
    <message>
        <source>The modem is still starting.</source>
        <translation>Il modem si sta ancora avviando.</translation>
    </message>
    <message>
        <source>The modem is busy.</source>
        <translation>Il modem è occupato.</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Errore sconosciuto</translation>
    </message>
    <message>
        <source>The modem gives a reason of its own.</source>
        <translation>Il modem indica un motivo proprio.</translation>
    </message>
    <message>
        <source>The modem gives a reason that is not known here.</source>
        <translation>Il modem indica un motivo qui sconosciuto.</translation>
    </message>
    <message>
        <source>The modem refuses and gives no reason.</source>
        <translation>Il modem rifiuta senza indicare il motivo.</translation>
    </message>
    <message>
        <source>The device is gone. Waiting until it is back.</source>
        <translation>Il dispositivo è scomparso. In attesa che ritorni.</translation>
    </message>
    <message>
        <source>The device does not answer. Waiting until it does.</source>
        <translation>Il dispositivo non risponde. In attesa che risponda.</translation>
    </message>
    <message>
        <source>Still waiting for the network.</source>
        <translation>Ancora in attesa della rete.</translation>
    </message>
    <message>
        <source>Waiting for delivery reports.</source>
        <translation>In attesa dei rapporti di consegna.</translation>
    </message>
    <message>
        <source>The device was not ready in time.</source>
        <translation>Il dispositivo non è stato pronto in tempo.</translation>
    </message>
    <message>
        <source>The job&apos;s journal cannot be written, so nothing more is sent</source>
        <translation>Non si può scrivere il diario dell&apos;invio, perciò non viene inviato altro</translation>
    </message>
    <message>
        <source>Several messages in a row ended alike, so nothing more is sent</source>
        <translation>Diversi messaggi di seguito hanno avuto lo stesso esito, perciò non viene inviato altro</translation>
    </message>
    <message>
        <source>Not every message was sent. The list says what became of each.</source>
        <translation>Non tutti i messaggi sono stati inviati. L&apos;elenco indica l&apos;esito di ciascuno.</translation>
    </message>
    <message>
        <source>The device takes no text messages.</source>
        <translation>Il dispositivo non accetta messaggi di testo.</translation>
    </message>
    <message>
        <source>Those not taken may pass as normal text messages.</source>
        <translation>Quelli non accettati potrebbero passare come normali messaggi di testo.</translation>
    </message>
    <message>
        <source>The device gave no prompt.</source>
        <translation>Il dispositivo non ha chiesto il testo.</translation>
    </message>
    <message>
        <source>The device gave no result in time.</source>
        <translation>Il dispositivo non ha dato un esito in tempo.</translation>
    </message>
    <message>
        <source>The device said OK but gave no reference.</source>
        <translation>Il dispositivo ha risposto OK ma senza riferimento.</translation>
    </message>
    <message>
        <source>The device&apos;s result may be that of an earlier message.</source>
        <translation>L&apos;esito del dispositivo può essere quello di un messaggio precedente.</translation>
    </message>
    <message>
        <source>The device was gone before its result.</source>
        <translation>Il dispositivo è scomparso prima dell&apos;esito.</translation>
    </message>
    <message>
        <source>The program ended before the result.</source>
        <translation>Il programma si è chiuso prima dell&apos;esito.</translation>
    </message>
    <message>
        <source>Somebody has counted it as sent.</source>
        <translation>Qualcuno lo ha considerato inviato.</translation>
    </message>
    <message>
        <source>The number cannot be dialled.</source>
        <translation>Non si può comporre il numero.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>%1 is connected.</source>
        <translation>%1 è collegato.</translation>
    </message>
    <message>
        <source>No phone or modem was found on USB or Bluetooth.</source>
        <translation>Non è stato trovato nessun telefono o modem su USB o Bluetooth.</translation>
    </message>
    <message>
        <source>Switch it on, connect it, and on a phone choose the modem or data mode. It takes some seconds until it appears.</source>
        <translation>Accenderlo, collegarlo e, se è un telefono, scegliere la modalità modem o dati. Impiega qualche secondo a comparire.</translation>
    </message>
    <message>
        <source>There is no device at %1.</source>
        <translation>Non c&apos;è nessun dispositivo su %1.</translation>
    </message>
    <message>
        <source>Plug it in again, or look under which name it appears now.</source>
        <translation>Ricollegarlo, o vedere con quale nome compare ora.</translation>
    </message>
    <message>
        <source>%1 is connected as a network card. In this mode it has no port for messages.</source>
        <translation>%1 è collegato come scheda di rete. In questa modalità non ha porte per i messaggi.</translation>
    </message>
    <message>
        <source>Switch it to its modem mode with the maker&apos;s own program or page, or use another modem.</source>
        <translation>Passare alla modalità modem con il programma o la pagina del produttore, o usare un altro modem.</translation>
    </message>
    <message>
        <source>%1 is connected as a disc. In this mode it has no port for messages.</source>
        <translation>%1 è collegato come disco. In questa modalità non ha porte per i messaggi.</translation>
    </message>
    <message>
        <source>Install the program that switches such sticks, then unplug the stick and plug it in again:</source>
        <translation>Installare il programma che cambia la modalità di queste chiavette, poi scollegare la chiavetta e ricollegarla:</translation>
    </message>
    <message>
        <source>%1 is for positions (GPS), not for messages.</source>
        <translation>%1 serve per la posizione (GPS), non per i messaggi.</translation>
    </message>
    <message>
        <source>%1 is for the maker&apos;s diagnostics, not for messages.</source>
        <translation>%1 serve per la diagnostica del produttore, non per i messaggi.</translation>
    </message>
    <message>
        <source>%1 is for sound, not for messages.</source>
        <translation>%1 serve per l&apos;audio, non per i messaggi.</translation>
    </message>
    <message>
        <source>This system&apos;s settings say that %1 is no modem&apos;s port.</source>
        <translation>Secondo le impostazioni di questo sistema, %1 non è la porta di un modem.</translation>
    </message>
    <message>
        <source>Use another port of the same device.</source>
        <translation>Usare un&apos;altra porta dello stesso dispositivo.</translation>
    </message>
    <message>
        <source>Your account may not open %1.</source>
        <translation>L&apos;account in uso non può aprire %1.</translation>
    </message>
    <message>
        <source>Members of the group %1 may. Join it with this command, then log out and in again:</source>
        <translation>I membri del gruppo %1 possono. Entrare nel gruppo con questo comando, poi uscire dalla sessione e rientrare:</translation>
    </message>
    <message>
        <source>Only the system&apos;s administrator can allow it.</source>
        <translation>Solo l&apos;amministratore del sistema può consentirlo.</translation>
    </message>
    <message>
        <source>%1 is in use by %2 (process %3).</source>
        <translation>%1 è in uso da parte di %2 (processo %3).</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 è in uso da parte di un altro programma.</translation>
    </message>
    <message>
        <source>End that program, and look again.</source>
        <translation>Chiudere quel programma e ricontrollare.</translation>
    </message>
    <message>
        <source>%1 is in use by ModemManager, the system&apos;s modem service.</source>
        <translation>%1 è in uso da parte di ModemManager, il servizio modem del sistema.</translation>
    </message>
    <message>
        <source>Stop the service until the next start of the computer:</source>
        <translation>Fermare il servizio fino al prossimo avvio del computer:</translation>
    </message>
    <message>
        <source>%1 cannot be opened (%2).</source>
        <translation>Impossibile aprire %1 (%2).</translation>
    </message>
    <message>
        <source>Unplug the device, wait ten seconds and plug it in again.</source>
        <translation>Scollegare il dispositivo, attendere dieci secondi e ricollegarlo.</translation>
    </message>
    <message>
        <source>%1 answers.</source>
        <translation>%1 risponde.</translation>
    </message>
    <message>
        <source>%1 does not answer as a modem.</source>
        <translation>%1 non risponde come un modem.</translation>
    </message>
    <message>
        <source>Unplug the device, wait ten seconds and plug it in again. On a phone, choose the modem or data mode.</source>
        <translation>Scollegare il dispositivo, attendere dieci secondi e ricollegarlo. Se è un telefono, scegliere la modalità modem o dati.</translation>
    </message>
    <message>
        <source>Nothing answers on %1, a serial socket of the computer itself.</source>
        <translation>Non risponde nulla su %1, una porta seriale del computer.</translation>
    </message>
    <message>
        <source>If a modem is connected there, switch it on and look at its cable.</source>
        <translation>Se lì è collegato un modem, accenderlo e controllare il cavo.</translation>
    </message>
    <message>
        <source>The SIM card is ready.</source>
        <translation>La scheda SIM è pronta.</translation>
    </message>
    <message>
        <source>The device does not say whether its SIM card is ready.</source>
        <translation>Il dispositivo non indica se la sua scheda SIM è pronta.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN. Tries left: %1.</source>
        <translation>La scheda SIM chiede il PIN. Tentativi rimasti: %1.</translation>
    </message>
    <message>
        <source>Put the card into a phone and enter the PIN there, or turn its question for the PIN off. No PIN is tried here.</source>
        <translation>Inserire la scheda in un telefono e digitarvi il PIN, o disattivare la richiesta del PIN. Qui nessun PIN viene provato.</translation>
    </message>
    <message>
        <source>The SIM card is blocked and wants its PUK.</source>
        <translation>La scheda SIM è bloccata e chiede il PUK.</translation>
    </message>
    <message>
        <source>The SIM card is blocked and wants its PUK. Tries left: %1.</source>
        <translation>La scheda SIM è bloccata e chiede il PUK. Tentativi rimasti: %1.</translation>
    </message>
    <message>
        <source>Put the card into a phone and enter the PUK there. The operator gives it to you.</source>
        <translation>Inserire la scheda in un telefono e digitarvi il PUK, che viene fornito dall&apos;operatore.</translation>
    </message>
    <message>
        <source>The device wants a code that ties it to a card or an operator.</source>
        <translation>Il dispositivo chiede un codice che lo lega a una scheda o a un operatore.</translation>
    </message>
    <message>
        <source>Use the card it was sold with, or ask the seller to unlock it.</source>
        <translation>Usare la scheda con cui è stato venduto, o chiedere al venditore di sbloccarlo.</translation>
    </message>
    <message>
        <source>There is no SIM card in the device.</source>
        <translation>Nel dispositivo non c&apos;è una scheda SIM.</translation>
    </message>
    <message>
        <source>Put a card in, the right way round, and plug the device in again.</source>
        <translation>Inserire una scheda nel verso giusto e ricollegare il dispositivo.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read.</source>
        <translation>Impossibile leggere la scheda SIM.</translation>
    </message>
    <message>
        <source>Take the card out, wipe its contacts and put it in again, or try it in a phone.</source>
        <translation>Estrarre la scheda, pulire i contatti e reinserirla, o provarla in un telefono.</translation>
    </message>
    <message>
        <source>The SIM card is still being read.</source>
        <translation>La scheda SIM è ancora in lettura.</translation>
    </message>
    <message>
        <source>Wait half a minute and look again. If it stays so, plug the device in again.</source>
        <translation>Attendere mezzo minuto e ricontrollare. Se non cambia, scollegare il dispositivo e ricollegarlo.</translation>
    </message>
    <message>
        <source>The device is registered with its network.</source>
        <translation>Il dispositivo è registrato nella propria rete.</translation>
    </message>
    <message>
        <source>The device is registered with a foreign network (roaming).</source>
        <translation>Il dispositivo è registrato in un&apos;altra rete (roaming).</translation>
    </message>
    <message>
        <source>Messages can be sent; ask your operator what they cost abroad.</source>
        <translation>Si possono inviare messaggi; chiedere all&apos;operatore quanto costano all&apos;estero.</translation>
    </message>
    <message>
        <source>The network lets the device make emergency calls alone.</source>
        <translation>La rete consente al dispositivo solo chiamate di emergenza.</translation>
    </message>
    <message>
        <source>The network does not accept the SIM card.</source>
        <translation>La rete non accetta la scheda SIM.</translation>
    </message>
    <message>
        <source>Ask the operator whether the card is active, and try it in a phone.</source>
        <translation>Chiedere all&apos;operatore se la scheda è attiva e provarla in un telefono.</translation>
    </message>
    <message>
        <source>The device is looking for a network.</source>
        <translation>Il dispositivo sta cercando una rete.</translation>
    </message>
    <message>
        <source>Wait a minute, or move the device or its aerial to a window, and look again.</source>
        <translation>Attendere un minuto, o avvicinare il dispositivo o la sua antenna a una finestra, e ricontrollare.</translation>
    </message>
    <message>
        <source>The device is not registered with a network and looks for none.</source>
        <translation>Il dispositivo non è registrato in nessuna rete e non ne cerca.</translation>
    </message>
    <message>
        <source>Switch its radio on (no flight mode), or plug the device in again.</source>
        <translation>Attivare la radio (niente modalità aereo), o scollegare il dispositivo e ricollegarlo.</translation>
    </message>
    <message>
        <source>The device does not say whether it has a network.</source>
        <translation>Il dispositivo non indica se ha una rete.</translation>
    </message>
    <message>
        <source>Send one message to yourself before you send to others.</source>
        <translation>Inviare un messaggio a sé stessi prima di inviare ad altri.</translation>
    </message>
    <message>
        <source>The signal is strong enough (%1 dBm).</source>
        <translation>Il segnale è sufficiente (%1 dBm).</translation>
    </message>
    <message>
        <source>The signal is weak (%1 dBm).</source>
        <translation>Il segnale è debole (%1 dBm).</translation>
    </message>
    <message>
        <source>Move the device or its aerial to a window.</source>
        <translation>Avvicinare il dispositivo o la sua antenna a una finestra.</translation>
    </message>
    <message>
        <source>The device does not say how strong the signal is.</source>
        <translation>Il dispositivo non indica l&apos;intensità del segnale.</translation>
    </message>
    <message>
        <source>A service centre for messages is stored.</source>
        <translation>È memorizzato un centro messaggi.</translation>
    </message>
    <message>
        <source>No service centre for messages is stored.</source>
        <translation>Non è memorizzato nessun centro messaggi.</translation>
    </message>
    <message>
        <source>What is stored as the service centre for messages is no number.</source>
        <translation>Quello che è memorizzato come centro messaggi non è un numero.</translation>
    </message>
    <message>
        <source>Ask the operator for its number, and give it as a custom number in the wizard.</source>
        <translation>Chiedere il numero all&apos;operatore e indicarlo nell&apos;assistente come numero personalizzato.</translation>
    </message>
    <message>
        <source>The device does not say which service centre for messages it has.</source>
        <translation>Il dispositivo non indica quale centro messaggi ha memorizzato.</translation>
    </message>
    <message>
        <source>The device takes messages to be sent.</source>
        <translation>Il dispositivo accetta messaggi da inviare.</translation>
    </message>
    <message>
        <source>The device takes no messages to be sent.</source>
        <translation>Il dispositivo non accetta messaggi da inviare.</translation>
    </message>
    <message>
        <source>Use another port of the device, or another device.</source>
        <translation>Usare un&apos;altra porta del dispositivo, o un altro dispositivo.</translation>
    </message>
    <message>
        <source>free</source>
        <translation>libera</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>in uso</translation>
    </message>
    <message>
        <source>no right</source>
        <translation>senza permesso</translation>
    </message>
    <message>
        <source>not for messages</source>
        <translation>non per messaggi</translation>
    </message>
    <message>
        <source>Why a phone does not show: what was looked at</source>
        <translation>Perché un telefono non compare: che cosa è stato esaminato</translation>
    </message>
    <message>
        <source>(number left out)</source>
        <translation>(numero omesso)</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Esito</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>non tentato</translation>
    </message>
    <message>
        <source>written</source>
        <translation>scritto</translation>
    </message>
    <message>
        <source>taken by the phone</source>
        <translation>accettato dal telefono</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>inviato</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>rifiutato</translation>
    </message>
    <message>
        <source>partly taken</source>
        <translation>accettato in parte</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>nessuna risposta</translation>
    </message>
    <message>
        <source>may have been sent</source>
        <translation>forse inviato</translation>
    </message>
    <message>
        <source>skipped: excluded</source>
        <translation>saltato: escluso</translation>
    </message>
    <message>
        <source>skipped: repeated</source>
        <translation>saltato: ripetuto</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>saltato</translation>
    </message>
    <message>
        <source>skipped: invalid number</source>
        <translation>saltato: numero non valido</translation>
    </message>
    <message>
        <source>skipped: not filled</source>
        <translation>saltato: campi non riempiti</translation>
    </message>
    <message>
        <source>skipped: </source>
        <translation>saltato: </translation>
    </message>
    <message>
        <source>CME </source>
        <translation>CME </translation>
    </message>
    <message>
        <source>an earlier row has its number</source>
        <translation>una riga precedente ha il suo numero</translation>
    </message>
    <message>
        <source>the list has its number already</source>
        <translation>l&apos;elenco ha già il suo numero</translation>
    </message>
    <message>
        <source>its number is in an exclusion list</source>
        <translation>il suo numero è in un elenco di esclusione</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>impossibile scrivere %1</translation>
    </message>
    <message>
        <source>%1 is not used</source>
        <translation>%1 non viene usato</translation>
    </message>
    <message>
        <source>it holds an earlier hand-over</source>
        <translation>contiene un trasferimento precedente</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Rapporto di invio</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>Scheda SIM</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>d MMMM yyyy, HH:mm</source>
        <translation>d MMMM yyyy, HH:mm</translation>
    </message>
    <message>
        <source>ends with </source>
        <translation>termina con </translation>
    </message>
    <message>
        <source>ended</source>
        <translation>terminato</translation>
    </message>
    <message>
        <source>not ended</source>
        <translation>non terminato</translation>
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
        <source>May have been sent</source>
        <translation>Forse inviati</translation>
    </message>
    <message>
        <source>Not tried</source>
        <translation>Non tentati</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Saltati</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Consegnati</translation>
    </message>
    <message>
        <source>Still trying</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Not delivered</source>
        <translation>Non consegnati</translation>
    </message>
    <message>
        <source>No report</source>
        <translation>Senza rapporto</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Riga</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Parts sent</source>
        <translation>Inviate</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Parti</translation>
    </message>
    <message>
        <source>Delivery</source>
        <translation>Consegna</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>no report</source>
        <translation>senza rapporto</translation>
    </message>
    <message>
        <source>Some of its parts were sent.</source>
        <translation>Alcune delle sue parti sono state inviate.</translation>
    </message>
    <message>
        <source>The list of the job can no longer be read.</source>
        <translation>L&apos;elenco dell&apos;invio non si può più leggere.</translation>
    </message>
    <message>
        <source>a placeholder is empty</source>
        <translation>un campo è vuoto</translation>
    </message>
    <message>
        <source>a placeholder is unknown</source>
        <translation>un campo non esiste</translation>
    </message>
    <message>
        <source>wrong number of columns</source>
        <translation>numero di colonne errato</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>troppo lungo</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>il file non esiste</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>non è un file</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes, or may not be read</source>
        <translation>supera %1 byte o manca il permesso di leggerlo</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>è vuoto</translation>
    </message>
    <message>
        <source>it is no text: line %1 holds characters that no list has</source>
        <translation>non è testo: la riga %1 contiene caratteri estranei a un elenco</translation>
    </message>
    <message>
        <source>it is %1, and no list</source>
        <translation>è %1, non un elenco</translation>
    </message>
    <message>
        <source>a PDF document</source>
        <translation>un documento PDF</translation>
    </message>
    <message>
        <source>a program</source>
        <translation>un programma</translation>
    </message>
    <message>
        <source>a compressed file</source>
        <translation>un file compresso</translation>
    </message>
    <message>
        <source>a picture</source>
        <translation>un&apos;immagine</translation>
    </message>
    <message>
        <source>a web page</source>
        <translation>una pagina web</translation>
    </message>
    <message>
        <source>an XML document</source>
        <translation>un documento XML</translation>
    </message>
    <message>
        <source>an archive</source>
        <translation>un archivio</translation>
    </message>
    <message>
        <source>it is rich text; its numbers can be imported under a name that ends in .rtf</source>
        <translation>è testo formattato; i suoi numeri si possono importare con un nome che termina in .rtf</translation>
    </message>
    <message>
        <source>it is a spreadsheet or an archive, and no list of numbers alone</source>
        <translation>è un foglio di calcolo o un archivio, non un semplice elenco di numeri</translation>
    </message>
    <message>
        <source>it holds contacts, and not numbers alone</source>
        <translation>contiene contatti, non solo numeri</translation>
    </message>
    <message>
        <source>it is a spreadsheet in an old format; saved as .xlsx, .ods or CSV it can be read</source>
        <translation>è un foglio di calcolo in un vecchio formato; salvato come .xlsx, .ods o CSV si può leggere</translation>
    </message>
    <message>
        <source>it is encrypted; saved without a password it can be read</source>
        <translation>è cifrato; salvato senza password si può leggere</translation>
    </message>
    <message>
        <source>it holds more than can be read</source>
        <translation>contiene più di quanto si possa leggere</translation>
    </message>
    <message>
        <source>row %1 has more than %2 fields</source>
        <translation>la riga %1 ha più di %2 campi</translation>
    </message>
    <message>
        <source>its first row holds the number %1, and no names of columns</source>
        <translation>la prima riga contiene il numero %1, non i nomi delle colonne</translation>
    </message>
    <message>
        <source>the encoding &quot;%1&quot; is not known</source>
        <translation>la codifica «%1» non è nota</translation>
    </message>
    <message>
        <source>it is not encoded in %1</source>
        <translation>non è codificato in %1</translation>
    </message>
    <message>
        <source>it mixes UTF-8 with another encoding; line %1 is not UTF-8</source>
        <translation>mescola UTF-8 con un&apos;altra codifica; la riga %1 non è UTF-8</translation>
    </message>
    <message>
        <source>the quote that opens in line %1 is never closed</source>
        <translation>le virgolette aperte alla riga %1 non vengono chiuse</translation>
    </message>
    <message>
        <source>it has no sheets</source>
        <translation>non ha fogli</translation>
    </message>
    <message>
        <source>it has no sheet &quot;%1&quot;; its sheets are %2</source>
        <translation>non ha un foglio «%1»; i suoi fogli sono %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source>it is damaged, or only a part of it</source>
        <translation>è danneggiato o incompleto</translation>
    </message>
    <message>
        <source>the contact that begins in line %1 has no end</source>
        <translation>il contatto che inizia alla riga %1 non ha fine</translation>
    </message>
    <message>
        <source>%1 fields where %2 have names</source>
        <translation>%1 campi dove %2 hanno un nome</translation>
    </message>
    <message>
        <source>text follows a closing quote</source>
        <translation>c&apos;è del testo dopo le virgolette di chiusura</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 è vuoto</translation>
    </message>
    <message>
        <source>%1 is unknown</source>
        <translation>%1 non esiste</translation>
    </message>
    <message>
        <source>its text is empty</source>
        <translation>il testo è vuoto</translation>
    </message>
    <message>
        <source>its text is too long</source>
        <translation>il testo è troppo lungo</translation>
    </message>
    <message>
        <source>national, taken as one of %1</source>
        <translation>nazionale, inteso come numero di %1</translation>
    </message>
    <message>
        <source>the code of %1 was put in front</source>
        <translation>è stato anteposto il prefisso di %1</translation>
    </message>
    <message>
        <source>its first 0 may have been lost; taken as one of %1</source>
        <translation>il primo 0 può essere andato perso; inteso come numero di %1</translation>
    </message>
    <message>
        <source>its + may have been lost; taken as an international one of %1</source>
        <translation>il + può essere andato perso; inteso come numero internazionale di %1</translation>
    </message>
    <message>
        <source>there is no number</source>
        <translation>non c&apos;è un numero</translation>
    </message>
    <message>
        <source>a spreadsheet has rounded it; its digits are lost</source>
        <translation>un foglio di calcolo lo ha arrotondato; le sue cifre sono perse</translation>
    </message>
    <message>
        <source>it is no number</source>
        <translation>non è un numero</translation>
    </message>
    <message>
        <source>these are several numbers</source>
        <translation>sono più numeri</translation>
    </message>
    <message>
        <source>it has too few digits</source>
        <translation>ha troppo poche cifre</translation>
    </message>
    <message>
        <source>it has too many digits</source>
        <translation>ha troppe cifre</translation>
    </message>
    <message>
        <source>no country has its code</source>
        <translation>nessun paese ha il suo prefisso</translation>
    </message>
    <message>
        <source>Please enter a valid phone number.</source>
        <translation>Inserire un numero di telefono valido.</translation>
    </message>
    <message>
        <source>Entered number already exists.</source>
        <translation>Il numero inserito è già nell&apos;elenco.</translation>
    </message>
    <message>
        <source>Entered number is in exclusion list.</source>
        <translation>Il numero inserito è in un elenco di esclusione.</translation>
    </message>
    <message>
        <source>Please select only one record to update.</source>
        <translation>Selezionare una sola voce da modificare.</translation>
    </message>
    <message>
        <source>Please enter some text message.</source>
        <translation>Scrivere un messaggio di testo.</translation>
    </message>
    <message>
        <source>Error in file accessing.</source>
        <translation>Errore nell&apos;accesso al file.</translation>
    </message>
    <message>
        <source>
This option will clear the entire list contents. Are you sure you want to continue clearing the entire list?</source>
        <translation>
Tutto il contenuto dell&apos;elenco verrà cancellato. Continuare?</translation>
    </message>
    <message>
        <source>Total Numbers : </source>
        <translation>Totale numeri: </translation>
    </message>
    <message>
        <source>Can not access Corvane Data file.</source>
        <translation>Impossibile accedere al file di dati di Corvane.</translation>
    </message>
    <message>
        <source>
Do you really want to exit from &apos;Corvane&apos;?</source>
        <translation>
Uscire da Corvane?</translation>
    </message>
    <message>
        <source>No Mobile Phone Device is selected.</source>
        <translation>Nessun telefono selezionato.</translation>
    </message>
    <message>
        <source>No Mobile Phone Device is selected. Click here to start Mobile Phone Connection Wizard.</source>
        <translation>Nessun telefono selezionato. Fare clic qui per aprire l&apos;assistente di connessione del telefono.</translation>
    </message>
    <message>
        <source>Apply this<byte value="xd"/>
message to<byte value="xd"/>
list items</source>
        <translation>Applica questo<byte value="xd"/>
messaggio<byte value="xd"/>
all&apos;elenco</translation>
    </message>
    <message>
        <source>Phone numbers-Messages list is empty.</source>
        <translation>L&apos;elenco di numeri e messaggi è vuoto.</translation>
    </message>
    <message>
        <source>Please select at least one record from the phone numbers-messages list to continue.</source>
        <translation>Selezionare almeno una voce dell&apos;elenco di numeri e messaggi per continuare.</translation>
    </message>
    <message>
        <source>Either file is corrupted or selected file contains invalid characters.

OR

Recipient number is skipped because of using &apos;Skip Dulicate Numbers&apos; or &apos;Exclusion List&apos; option.</source>
        <translation>Il file è danneggiato o contiene caratteri non validi.

OPPURE

Il numero del destinatario è stato saltato per l&apos;opzione «Salta numeri duplicati» o per un elenco di esclusione.</translation>
    </message>
    <message>
        <source>The last action has ended early because of an unexpected error. Please look what has been done, and try again.</source>
        <translation>L&apos;ultima azione è terminata prima del tempo per un errore imprevisto. Verificare che cosa è stato fatto e riprovare.</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to all numbers in the list.

Do you want to continue?</source>
        <translation>Il messaggio scritto verrà copiato in tutti i numeri dell&apos;elenco.

Continuare?</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to the selected numbers in the list. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>Il messaggio scritto verrà copiato nei numeri selezionati dell&apos;elenco. I messaggi degli altri numeri non cambiano.

Continuare?</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to the blank list items. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>Il messaggio scritto verrà copiato nelle voci dell&apos;elenco senza messaggio. I messaggi degli altri numeri non cambiano.

Continuare?</translation>
    </message>
    <message>
        <source>There is no blank message in the phone numbers-messages list.</source>
        <translation>Nell&apos;elenco di numeri e messaggi non ci sono messaggi vuoti.</translation>
    </message>
    <message>
        <source>This action will copy the above message to the selected numbers in the list. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>Il messaggio qui sopra verrà copiato nei numeri selezionati dell&apos;elenco. I messaggi degli altri numeri non cambiano.

Continuare?</translation>
    </message>
    <message>
        <source>Total Selected Numbers : </source>
        <translation>Numeri selezionati: </translation>
    </message>
    <message>
        <source>Either Mobile Device is not connected properly or No Mobile Phone Device is selected.

Please use Mobile Phone Connection Wizard for finding device or establishing connection.</source>
        <translation>Il dispositivo non è collegato correttamente o nessun telefono è selezionato.

Usare l&apos;assistente di connessione del telefono per cercare il dispositivo o stabilire la connessione.</translation>
    </message>
    <message>
        <source>Please insert entered number to the list.</source>
        <translation>Aggiungere all&apos;elenco il numero inserito.</translation>
    </message>
    <message>
        <source>No values have been selected in &apos;Delayed Delivery Options&apos;.</source>
        <translation>Nessun valore scelto nelle opzioni di pausa.</translation>
    </message>
    <message>
        <source>
You have composed no text message yet for any of the contacts in the entire list. This action will send blank message to all the contacts in list.

Are you sure you want to continue?</source>
        <translation>
Non è stato ancora scritto nessun messaggio per i contatti dell&apos;elenco. A tutti i contatti verrà inviato un messaggio vuoto.

Continuare?</translation>
    </message>
    <message>
        <source>
Selected device is not working properly. Please use Mobile Phone Connection Wizard for finding device or establishing connection.</source>
        <translation>
Il dispositivo selezionato non funziona correttamente. Usare l&apos;assistente di connessione del telefono per cercare il dispositivo o stabilire la connessione.</translation>
    </message>
    <message>
        <source>Selected device is not working properly.Could not initialize modem.
</source>
        <translation>Il dispositivo selezionato non funziona correttamente. Impossibile inizializzare il modem.
</translation>
    </message>
    <message>
        <source>Device Connection Error!</source>
        <translation>Errore di connessione al dispositivo</translation>
    </message>
    <message>
        <source>Message Sending Process Completed.</source>
        <translation>Invio dei messaggi completato.</translation>
    </message>
    <message>
        <source>The messages could not be sent, because the computer is too busy to start another task. Please close other programs and try again.</source>
        <translation>Impossibile inviare i messaggi: il computer è troppo occupato per avviare un&apos;altra attività. Chiudere altri programmi e riprovare.</translation>
    </message>
    <message>
        <source>Sending has ended early because of an unexpected error. The sent items show which messages were sent.</source>
        <translation>L&apos;invio è terminato prima del tempo per un errore imprevisto. L&apos;elenco degli inviati mostra quali messaggi sono partiti.</translation>
    </message>
    <message>
        <source>Initializing mobile phone device to send sms ...</source>
        <translation>Preparazione del telefono all&apos;invio di SMS...</translation>
    </message>
    <message>
        <source>
Terminating the current process will stop sending text messages to the remaining contact. Are you sure you want to continue?</source>
        <translation>
Se si interrompe l&apos;operazione, ai contatti rimanenti non verranno inviati messaggi. Continuare?</translation>
    </message>
    <message>
        <source> is Excluded.</source>
        <translation> è escluso.</translation>
    </message>
    <message>
        <source> is Skipped.</source>
        <translation> viene saltato.</translation>
    </message>
    <message>
        <source> Message</source>
        <translation> in corso</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Hour %2 Minute %3 Seconds.</source>
        <translation>In pausa: %1 h %2 min %3 s.</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Minute %2 Seconds.</source>
        <translation>In pausa: %1 min %2 s.</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Seconds.</source>
        <translation>In pausa: %1 s.</translation>
    </message>
    <message>
        <source>%1 Characters</source>
        <translation>%1 caratteri</translation>
    </message>
    <message>
        <source>%1 Characters (Each Message will now consume %2)</source>
        <translation>%1 caratteri (ogni messaggio occupa ora %2)</translation>
    </message>
    <message>
        <source>Your current message is exceeding the typical SMS Length of 160 Characters. Messages of more than 160 characters will be delivered in multiple messages of 160 characters to each recipient.

Either shorten the length of your existing text message or click OK to continue anyway by delivering each message in multiple parts of 160 characters.</source>
        <translation>Il messaggio supera la lunghezza tipica di un SMS, 160 caratteri. I messaggi con più di 160 caratteri vengono consegnati a ogni destinatario in più messaggi di 160 caratteri.

Accorciare il testo o fare clic su OK per continuare e consegnare ogni messaggio in più parti di 160 caratteri.</translation>
    </message>
    <message>
        <source>Your current message is exceeding the typical Unicode SMS (non-English text SMS) Length of 70 Characters. Messages of more than 70 characters will be delivered in multiple messages of 70 characters to each recipient.

Either shorten the length of your existing text message or click OK to continue anyway by delivering each message in multiple parts of 70 characters.</source>
        <translation>Il messaggio supera la lunghezza tipica di un SMS Unicode (in altri alfabeti), 70 caratteri. I messaggi con più di 70 caratteri vengono consegnati a ogni destinatario in più messaggi di 70 caratteri.

Accorciare il testo o fare clic su OK per continuare e consegnare ogni messaggio in più parti di 70 caratteri.</translation>
    </message>
    <message>
        <source>Total Items : </source>
        <translation>Totale voci: </translation>
    </message>
    <message>
        <source>Sent items list is empty.</source>
        <translation>L&apos;elenco degli inviati è vuoto.</translation>
    </message>
    <message>
        <source>Please select at least one record from the sent items list to continue.</source>
        <translation>Selezionare almeno una voce dell&apos;elenco degli inviati per continuare.</translation>
    </message>
    <message>
        <source>Templates list is empty.</source>
        <translation>L&apos;elenco dei modelli è vuoto.</translation>
    </message>
    <message>
        <source>Templates items list is empty.</source>
        <translation>L&apos;elenco dei modelli è vuoto.</translation>
    </message>
    <message>
        <source>Templates number list is empty.</source>
        <translation>L&apos;elenco dei modelli è vuoto.</translation>
    </message>
    <message>
        <source>Please select at least one record from the templates list to continue.</source>
        <translation>Selezionare almeno una voce dell&apos;elenco dei modelli per continuare.</translation>
    </message>
    <message>
        <source>Add Templates</source>
        <translation>Nuovo modello</translation>
    </message>
    <message>
        <source>Update Templates</source>
        <translation>Modifica modello</translation>
    </message>
    <message>
        <source>Number	: %1<byte value="xd"/>
<byte value="xd"/>
Message	: %2<byte value="xd"/>
<byte value="xd"/>
Date:	 %3</source>
        <translation>Numero	: %1<byte value="xd"/>
<byte value="xd"/>
Messaggio	: %2<byte value="xd"/>
<byte value="xd"/>
Data:	 %3</translation>
    </message>
    <message>
        <source>Please type template message.</source>
        <translation>Scrivere il messaggio del modello.</translation>
    </message>
    <message>
        <source>Entered template already exists.</source>
        <translation>Esiste già un modello con questo testo.</translation>
    </message>
    <message>
        <source>Maximum characters limit is 1600.<byte value="xd"/>
<byte value="xd"/>
Press &apos;Yes to continue to composer window and it will show first 1600 characters of your message otherwise press &apos;No&apos;&apos;</source>
        <translation>Il limite è di 1600 caratteri.<byte value="xd"/>
<byte value="xd"/>
Premere «Sì» per inserire nel messaggio i primi 1600 caratteri, oppure «No» per non farlo.</translation>
    </message>
    <message>
        <source>Exclusion List Wizard allows you to maintain the Lists of contacts or Groups, which you may need to exclude time to time when sending messages.

For Example, if you have lists of contacts of Marketing, Administration, R &amp; D and Customer Care Team members and you want to send messages to all the teams &apos;Except&apos; Administration team, you can apply exclusion rules to Administration team members contacts list.</source>
        <translation>Qui si gestiscono gli elenchi di contatti o gruppi che può servire escludere di volta in volta dall&apos;invio dei messaggi.

Per esempio, se ci sono elenchi di contatti di marketing, amministrazione, ricerca e assistenza clienti e si vogliono inviare messaggi a tutti tranne che all&apos;amministrazione, si può applicare l&apos;esclusione all&apos;elenco dei contatti dell&apos;amministrazione.</translation>
    </message>
    <message>
        <source>

Give a friendly name to your Exclusion list so that you can identify it easily.</source>
        <translation>

Dare all&apos;elenco di esclusione un nome facile da riconoscere.</translation>
    </message>
    <message>
        <source>Currently using exclusion list : </source>
        <translation>Elenco di esclusione in uso: </translation>
    </message>
    <message>
        <source>Please enter exclusion list name.</source>
        <translation>Scrivere il nome dell&apos;elenco di esclusione.</translation>
    </message>
    <message>
        <source>Please enter a valid name.</source>
        <translation>Scrivere un nome valido.</translation>
    </message>
    <message>
        <source>Please enter the another name.</source>
        <translation>Scrivere un altro nome.</translation>
    </message>
    <message>
        <source>Entered exclusion list name already exists.</source>
        <translation>Esiste già un elenco di esclusione con questo nome.</translation>
    </message>
    <message>
        <source>Exclusion number list is empty.</source>
        <translation>L&apos;elenco dei numeri esclusi è vuoto.</translation>
    </message>
    <message>
        <source>Please select a valid file.</source>
        <translation>Selezionare un file valido.</translation>
    </message>
    <message>
        <source>Please select at least one record from the exclusion number list to continue.</source>
        <translation>Selezionare almeno una voce dell&apos;elenco dei numeri esclusi per continuare.</translation>
    </message>
    <message>
        <source>Available list is empty.</source>
        <translation>Non ci sono elenchi disponibili.</translation>
    </message>
    <message>
        <source>Please select a record from the available list to continue.</source>
        <translation>Selezionare uno degli elenchi disponibili per continuare.</translation>
    </message>
    <message>
        <source>Selected list is already in use.</source>
        <translation>L&apos;elenco selezionato è già in uso.</translation>
    </message>
    <message>
        <source>All available lists are already in use.</source>
        <translation>Tutti gli elenchi disponibili sono già in uso.</translation>
    </message>
    <message>
        <source>Exclude when sending SMS list is empty.</source>
        <translation>Non ci sono elenchi da escludere dall&apos;invio di SMS.</translation>
    </message>
    <message>
        <source>Please select a record from Exclude when sending SMS list to continue.</source>
        <translation>Selezionare uno degli elenchi da escludere dall&apos;invio di SMS per continuare.</translation>
    </message>
    <message>
        <source>
Are you sure you want to continue</source>
        <translation>
Continuare?</translation>
    </message>
    <message>
        <source>
Are you sure you want delete the selected available list?</source>
        <translation>
Eliminare l&apos;elenco disponibile selezionato?</translation>
    </message>
    <message>
        <source>
You have made changes in exclusion number list that have not been saved yet.

Do you want to go back to previous screen without saving the exclusion number list?</source>
        <translation>
L&apos;elenco dei numeri esclusi contiene modifiche non salvate.

Tornare alla schermata precedente senza salvare l&apos;elenco?</translation>
    </message>
    <message>
        <source>Device list is empty.</source>
        <translation>L&apos;elenco dei dispositivi è vuoto.</translation>
    </message>
    <message>
        <source>Still searching for devices. Please wait ...</source>
        <translation>La ricerca dei dispositivi è ancora in corso. Attendere...</translation>
    </message>
    <message>
        <source>Please select device from list.</source>
        <translation>Selezionare un dispositivo dall&apos;elenco.</translation>
    </message>
    <message>
        <source>Please enter a valid Custom SMSC number.</source>
        <translation>Inserire un numero SMSC personalizzato valido.</translation>
    </message>
    <message>
        <source>Selected device is not working properly.
Could not open modem.
</source>
        <translation>Il dispositivo selezionato non funziona correttamente.
Impossibile aprire il modem.
</translation>
    </message>
    <message>
        <source>Selected device is not working properly.</source>
        <translation>Il dispositivo selezionato non funziona correttamente.</translation>
    </message>
    <message>
        <source>Default SMSC No. details should not be blanked.</source>
        <translation>Il numero SMSC predefinito non può restare vuoto.</translation>
    </message>
    <message>
        <source>Custom SMSC No. details should not be blanked.</source>
        <translation>Il numero SMSC personalizzato non può restare vuoto.</translation>
    </message>
    <message>
        <source>Selected device do not provide a modem in the computer or the modem does not support SMS sending command.</source>
        <translation>Il dispositivo selezionato non mette a disposizione un modem, o il suo modem non supporta il comando di invio di SMS.</translation>
    </message>
    <message>
        <source>passed on, but not confirmed</source>
        <translation>inoltrato, ma non confermato</translation>
    </message>
    <message>
        <source>replaced by a newer message</source>
        <translation>sostituito da un messaggio più recente</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>completato</translation>
    </message>
    <message>
        <source>completed, with a code of the network&apos;s own</source>
        <translation>completato, con un codice proprio della rete</translation>
    </message>
    <message>
        <source>the network is congested</source>
        <translation>la rete è congestionata</translation>
    </message>
    <message>
        <source>the phone is busy</source>
        <translation>il telefono è occupato</translation>
    </message>
    <message>
        <source>the phone does not answer</source>
        <translation>il telefono non risponde</translation>
    </message>
    <message>
        <source>rejected for now</source>
        <translation>respinto per ora</translation>
    </message>
    <message>
        <source>the connection is too poor</source>
        <translation>il collegamento è troppo scarso</translation>
    </message>
    <message>
        <source>an error in the phone</source>
        <translation>un errore nel telefono</translation>
    </message>
    <message>
        <source>a reason of the network&apos;s own</source>
        <translation>un motivo proprio della rete</translation>
    </message>
    <message>
        <source>an error between the networks</source>
        <translation>un errore tra le reti</translation>
    </message>
    <message>
        <source>the phone cannot take it</source>
        <translation>il telefono non può riceverlo</translation>
    </message>
    <message>
        <source>the phone refused it</source>
        <translation>il telefono lo ha rifiutato</translation>
    </message>
    <message>
        <source>the number cannot be reached</source>
        <translation>il numero non è raggiungibile</translation>
    </message>
    <message>
        <source>the networks do not work together</source>
        <translation>le reti non comunicano tra loro</translation>
    </message>
    <message>
        <source>it was not delivered in time</source>
        <translation>non è stato consegnato in tempo</translation>
    </message>
    <message>
        <source>deleted by the sender</source>
        <translation>eliminato dal mittente</translation>
    </message>
    <message>
        <source>deleted by the service centre</source>
        <translation>eliminato dal centro messaggi</translation>
    </message>
    <message>
        <source>the service centre has no such message</source>
        <translation>il centro messaggi non ha questo messaggio</translation>
    </message>
    <message>
        <source>rejected</source>
        <translation>respinto</translation>
    </message>
    <message>
        <source>the network was congested</source>
        <translation>la rete era congestionata</translation>
    </message>
    <message>
        <source>the phone was busy</source>
        <translation>il telefono era occupato</translation>
    </message>
    <message>
        <source>the phone did not answer</source>
        <translation>il telefono non ha risposto</translation>
    </message>
    <message>
        <source>the connection was too poor</source>
        <translation>il collegamento era troppo scarso</translation>
    </message>
    <message>
        <source>delivered</source>
        <translation>consegnato</translation>
    </message>
    <message>
        <source>still trying</source>
        <translation>in attesa</translation>
    </message>
    <message>
        <source>not delivered</source>
        <translation>non consegnato</translation>
    </message>
    <message>
        <source>%1 speaks QMI or MBIM, and no AT commands.</source>
        <translation>%1 parla QMI o MBIM, e non i comandi AT.</translation>
    </message>
    <message>
        <source>Use a port of the device that takes AT commands, or another modem.</source>
        <translation>Usare una porta del dispositivo che accetti i comandi AT, o un altro modem.</translation>
    </message>
    <message>
        <source>%1 takes AT commands, but is no serial port.</source>
        <translation>%1 accetta i comandi AT, ma non è una porta seriale.</translation>
    </message>
    <message>
        <source>Use a serial port of the device, or another modem.</source>
        <translation>Usare una porta seriale del dispositivo, o un altro modem.</translation>
    </message>
    <message>
        <source>The signal is strong enough (%1 %).</source>
        <translation>Il segnale è sufficiente (%1%).</translation>
    </message>
    <message>
        <source>The signal is weak (%1 %).</source>
        <translation>Il segnale è debole (%1%).</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
</context>
<context>
    <name>Hand_Over_Wnd</name>
    <message>
        <source>Other ways to send</source>
        <translation>Altri modi di inviare</translation>
    </message>
    <message>
        <source>One phone hands over between 4 and 20 messages a minute, and mobile operators may block a SIM card that sends like a machine. For more than about 1000 messages a day, or a job of more than four hours, something else does better.</source>
        <translation>Un telefono passa tra 4 e 20 messaggi al minuto, e gli operatori possono bloccare una scheda SIM che invia come una macchina. Per più di circa 1000 messaggi al giorno, o per un invio di più di quattro ore, conviene altro.</translation>
    </message>
    <message>
        <source>Several modems</source>
        <translation>Più modem</translation>
    </message>
    <message>
        <source>The free program smstools sends the messages of one folder with as many modems as are attached, each with a SIM card of its own. Hand the messages over here, and then move the files in the folder &quot;spool&quot; into the folder &quot;outgoing&quot; of smstools.</source>
        <translation>Il programma libero smstools invia i messaggi di una cartella con tutti i modem collegati, ciascuno con la propria scheda SIM. Trasferire qui i messaggi e poi spostare i file della cartella «spool» nella cartella «outgoing» di smstools.</translation>
    </message>
    <message>
        <source>A provider&apos;s gateway</source>
        <translation>Il gateway di un fornitore</translation>
    </message>
    <message>
        <source>Companies that send messages for others take a table of numbers and texts, at a price for each message. Many of them can also show a name as the sender, and see to replies and to people who want no more messages. Hand the messages over here, and then give the provider the file &quot;list.csv&quot;.</source>
        <translation>Le aziende che inviano messaggi per conto di altri accettano una tabella di numeri e testi, a un prezzo per messaggio. Molte possono anche mostrare un nome come mittente e occuparsi delle risposte e di chi non vuole più messaggi. Trasferire qui i messaggi e poi consegnare al fornitore il file «list.csv».</translation>
    </message>
    <message>
        <source>Writes the numbers and texts, just as they would be sent now, into a folder. Nothing is sent.</source>
        <translation>Scrive in una cartella i numeri e i testi, proprio come verrebbero inviati ora. Non invia nulla.</translation>
    </message>
    <message>
        <source>Hand over to a &amp;folder ...</source>
        <translation>&amp;Trasferisci in una cartella...</translation>
    </message>
    <message>
        <source>The main window says no more that a list is much for one phone</source>
        <translation>La finestra principale non avviserà più quando un elenco è molto per un solo telefono</translation>
    </message>
    <message>
        <source>Do not &amp;tell again</source>
        <translation>&amp;Non avvisare più</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>Not handed over: %1 (%2).</source>
        <translation>Non trasferito: %1 (%2).</translation>
    </message>
    <message>
        <source>Stopped. What is in the folder is not whole: remove it before it is used.</source>
        <translation>Interrotto. Il contenuto della cartella è incompleto: eliminarlo prima che venga usato.</translation>
    </message>
    <message>
        <source>Handed over: one message, in %1. Nothing was sent.</source>
        <translation>Trasferito: un messaggio, in %1. Non è stato inviato nulla.</translation>
    </message>
    <message numerus="yes">
        <source>Handed over: %n messages, in %1. Nothing was sent.</source>
        <translation>
            <numerusform>Trasferito: %n messaggio, in %1. Non è stato inviato nulla.</numerusform>
            <numerusform>Trasferiti: %n messaggi, in %1. Non è stato inviato nulla.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recipients left out: %1.</source>
        <translation>Destinatari omessi: %1.</translation>
    </message>
    <message>
        <source>There is nobody in the list.</source>
        <translation>L&apos;elenco è vuoto.</translation>
    </message>
    <message>
        <source>Writing ...</source>
        <translation>Scrittura in corso...</translation>
    </message>
    <message>
        <source>Writing %1 of %2 ...</source>
        <translation>Scrittura di %1 su %2...</translation>
    </message>
    <message>
        <source>Not handed over: the system gives the program no further thread.</source>
        <translation>Non trasferito: il sistema non concede altri thread al programma.</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Ferma</translation>
    </message>
</context>
<context>
    <name>Handset_Bubble</name>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>As it arrives by a device that takes whole frames; one that knows text mode alone may change more</source>
        <translation>Così come arriva con un dispositivo che accetta frame completi; uno che conosce solo la modalità testo può cambiare altro</translation>
    </message>
    <message>
        <source>On the handset:</source>
        <translation>Sul telefono:</translation>
    </message>
    <message>
        <source>What the handset shows</source>
        <translation>Che cosa mostra il telefono</translation>
    </message>
    <message>
        <source>Ticks the box of that name: every character arrives, and fewer fit one message</source>
        <translation>Spunta la casella con lo stesso nome: arrivano tutti i caratteri, e in un messaggio ce ne stanno meno</translation>
    </message>
    <message>
        <source>Send as Unicode</source>
        <translation>Invia come Unicode</translation>
    </message>
    <message>
        <source>Wherever it stands in this message; undo takes it back</source>
        <translation>Ovunque si trovi in questo messaggio; si può annullare</translation>
    </message>
    <message>
        <source>Every marked character that something similar can stand in for; undo takes it back</source>
        <translation>Tutti i caratteri segnati che hanno un sostituto simile; si può annullare</translation>
    </message>
    <message>
        <source>Replace all</source>
        <translation>Sostituisci tutto</translation>
    </message>
    <message>
        <source>Cyrillic in Latin letters, Greek in the capitals that 7-bit messages have; undo takes it back</source>
        <translation>Il cirillico in lettere latine, il greco nelle maiuscole dei messaggi a 7 bit; si può annullare</translation>
    </message>
    <message>
        <source>Write in other letters</source>
        <translation>Scrivi in altre lettere</translation>
    </message>
    <message>
        <source>On the handset of %1</source>
        <translation>Sul telefono di %1</translation>
    </message>
    <message>
        <source>On the handset</source>
        <translation>Sul telefono</translation>
    </message>
    <message>
        <source>%1, at once and not kept:</source>
        <translation>%1, subito e senza essere conservato:</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 gets nothing: %2.</source>
        <translation>%1 non riceve nulla: %2.</translation>
    </message>
    <message>
        <source>%1 gets nothing: the message is too long.</source>
        <translation>%1 non riceve nulla: il messaggio è troppo lungo.</translation>
    </message>
    <message>
        <source>%1 &quot;Send as Unicode&quot; in the main window keeps them.</source>
        <translation>%1 L&apos;opzione «Invia come Unicode» della finestra principale li conserva.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Rimuovi %1</translation>
    </message>
    <message>
        <source>Replace %1 by a blank</source>
        <translation>Sostituisci %1 con spazio</translation>
    </message>
    <message>
        <source>Replace %1 by %2</source>
        <translation>Sostituisci %1 con %2</translation>
    </message>
</context>
<context>
    <name>Help_Wnd</name>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>&lt;h3&gt;From a list of numbers to sent messages&lt;/h3&gt;
&lt;p&gt;&lt;b&gt;1. Choose your phone.&lt;/b&gt; Attach the phone or modem by USB or Bluetooth, press &lt;i&gt;Connection Wizard&lt;/i&gt;, click its port in the list, look at what it tells about itself and press &lt;i&gt;Select this device&lt;/i&gt;.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;2. Write the message.&lt;/b&gt; The count below it tells how many characters it has and how many SMS each recipient will cost you. One SMS holds 160 characters, or 70 when you tick &lt;i&gt;Send as Unicode&lt;/i&gt;. A message ends at 1600 characters. The type &lt;i&gt;Notification&lt;/i&gt; shows at once on the handset and is not kept there.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Which characters arrive.&lt;/b&gt; Without &lt;i&gt;Send as Unicode&lt;/i&gt; these arrive as you wrote them: A to Z, a to z, 0 to 9, the blank, the line break and &lt;tt&gt;! &quot; # % &amp;amp; &apos; ( ) * + , - . / : ; &amp;lt; = &amp;gt; ?&lt;/tt&gt;. Unless your device knows text mode only, so do &lt;tt&gt;@ ¤ Γ&lt;/tt&gt;, and in a text of up to 150 characters (brackets, braces, ^ ~ \ and | counted twice) also &lt;tt&gt;$ £ ¥ § _ \ | [ ] ^ { } ~ Ä Å Æ Ç É Ñ Ö Ø Ü ß à ä å æ è é ì ñ ò ø ü Δ Θ Ξ Π Σ Φ Ψ Ω&lt;/tt&gt;. Every other character arrives as another one: € as a comma, ê as j, ö as ¡. Tick &lt;i&gt;Send as Unicode&lt;/i&gt; when your text holds any such character; it then goes out as you wrote it.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;3. Fill the list.&lt;/b&gt; Type a number and press &lt;i&gt;Add&lt;/i&gt;, or press &lt;i&gt;Import&lt;/i&gt; and pick a text or RTF file with one number in each line. You can also drop the file on the list, or paste numbers into the list. Below the list stands what came of it, and &lt;i&gt;Show&lt;/i&gt; lists the lines that were not used. Every number joins the list with the message as it stands at that moment. A leading + becomes 00, dashes are left out, and a number has 20 digits at most. &lt;i&gt;Export&lt;/i&gt; writes the numbers of the list into a text file.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;4. Change the list.&lt;/b&gt; Double-click a recipient to change the number or its message. &lt;i&gt;Edit the messages of selected items&lt;/i&gt; writes one new message for all that you have selected, and &lt;i&gt;Apply this message to list items&lt;/i&gt; copies the message into all, the selected or the blank ones. &lt;i&gt;Clear Selected&lt;/i&gt;, &lt;i&gt;Clear All&lt;/i&gt; and &lt;i&gt;Reset&lt;/i&gt; take numbers out again.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;5. Set how it is sent.&lt;/b&gt; With &lt;i&gt;Skip duplicate numbers&lt;/i&gt; each number is sent to once. With &lt;i&gt;Heed the exclusion lists&lt;/i&gt; nobody on an applied list is sent to; press &lt;i&gt;Exclusion Lists&lt;/i&gt; to make such lists and to say which of them apply. &lt;i&gt;Delay&lt;/i&gt; makes a pause after every so many messages. With &lt;i&gt;Confirm each message&lt;/i&gt; each is judged by what the phone answers, goes out in the alphabet that it needs, and is never sent twice unasked; a job that breaks off can be gone on with, and &lt;i&gt;Receipts&lt;/i&gt; shows those that you keep.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;6. Send.&lt;/b&gt; If the message above is not in the list yet, you are asked whether it is to be copied there first. The messages go out one by one, in the order of the list, with a few seconds between them, which slow phones need. The progress window shows where it is and counts the pauses down; &lt;i&gt;Stop Sending&lt;/i&gt; ends it before the next message or the next part of a long one. The list stays as it is.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;7. Afterwards.&lt;/b&gt; What was handed to the phone with &lt;i&gt;Save sent items&lt;/i&gt; ticked stands in &lt;i&gt;Sent Items&lt;/i&gt;, and with &lt;i&gt;Save messages as templates&lt;/i&gt; each text stands in &lt;i&gt;Templates&lt;/i&gt;, once, ready to be used again. Both windows delete what you no longer need and export their list as a text file or a web page.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;If no phone is found&lt;/b&gt;, the screen before the wizard says what to try: the phone&apos;s own modem mode, your account&apos;s right to use serial ports, and other programs that hold the port. &lt;i&gt;Why does my phone not show?&lt;/i&gt; below looks at each of these, and says what helps.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;What sent means.&lt;/b&gt; With &lt;i&gt;Confirm each message&lt;/i&gt; a message is sent when the network has acknowledged it. Without, it counts as sent when it was written to the phone without an error. What the phone or the operator answers is not judged: a message that they refuse stands in &lt;i&gt;Sent Items&lt;/i&gt; too, and a phone that no longer answers does not end the job. Send the message to yourself first, and put your own number at the end of the list.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;If &quot;Device Connection Error!&quot; appears&lt;/b&gt;, writing to the phone failed, or a message could not be put into its form, and the job ended there. What was handed over until then is in &lt;i&gt;Sent Items&lt;/i&gt;, if you keep them; of the message at which it happened some or all may have gone out.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Da un elenco di numeri ai messaggi inviati&lt;/h3&gt;
&lt;p&gt;&lt;b&gt;1. Scegliere il telefono.&lt;/b&gt; Collegare il telefono o il modem via USB o Bluetooth, premere &lt;i&gt;Assistente di connessione&lt;/i&gt;, fare clic sulla sua porta nell&apos;elenco, guardare che cosa dice di sé e premere &lt;i&gt;Seleziona dispositivo&lt;/i&gt;.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;2. Scrivere il messaggio.&lt;/b&gt; Il contatore sotto il testo indica quanti caratteri ha e quanti SMS costerà ogni destinatario. Un SMS contiene 160 caratteri, o 70 se si spunta &lt;i&gt;Invia come Unicode&lt;/i&gt;. Un messaggio ha al massimo 1600 caratteri. Il tipo &lt;i&gt;Notifica&lt;/i&gt; compare subito sul telefono e non vi viene conservato.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Quali caratteri arrivano.&lt;/b&gt; Senza &lt;i&gt;Invia come Unicode&lt;/i&gt; questi arrivano come sono stati scritti: da A a Z, da a a z, da 0 a 9, lo spazio, l&apos;a capo e &lt;tt&gt;! &quot; # % &amp;amp; &apos; ( ) * + , - . / : ; &amp;lt; = &amp;gt; ?&lt;/tt&gt;. Se il dispositivo non conosce solo la modalità testo, anche &lt;tt&gt;@ ¤ Γ&lt;/tt&gt; e, in un testo fino a 150 caratteri (le parentesi quadre e graffe, ^ ~ \ e | contano doppio), anche &lt;tt&gt;$ £ ¥ § _ \ | [ ] ^ { } ~ Ä Å Æ Ç É Ñ Ö Ø Ü ß à ä å æ è é ì ñ ò ø ü Δ Θ Ξ Π Σ Φ Ψ Ω&lt;/tt&gt;. Ogni altro carattere arriva trasformato: € in virgola, ê in j, ö in ¡. Se il testo ne contiene, spuntare &lt;i&gt;Invia come Unicode&lt;/i&gt;: così parte come è stato scritto.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;3. Riempire l&apos;elenco.&lt;/b&gt; Scrivere un numero e premere &lt;i&gt;Aggiungi&lt;/i&gt;, oppure premere &lt;i&gt;Importa&lt;/i&gt; e scegliere un file di testo o RTF con un numero per riga. Si può anche trascinare il file sull&apos;elenco, o incollarvi dei numeri. Sotto l&apos;elenco compare il risultato, e &lt;i&gt;Mostra&lt;/i&gt; presenta le righe non usate. Ogni numero entra nell&apos;elenco con il messaggio così com&apos;è in quel momento. Un + iniziale diventa 00, i trattini vengono tolti e un numero ha al massimo 20 cifre. &lt;i&gt;Esporta&lt;/i&gt; salva i numeri dell&apos;elenco in un file di testo.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;4. Modificare l&apos;elenco.&lt;/b&gt; Un doppio clic su un destinatario permette di cambiare il numero o il suo messaggio. &lt;i&gt;Modifica i messaggi selezionati&lt;/i&gt; scrive un nuovo messaggio per tutti quelli selezionati, e &lt;i&gt;Applica questo messaggio all&apos;elenco&lt;/i&gt; copia il messaggio in tutte le voci, in quelle selezionate o in quelle senza messaggio. &lt;i&gt;Rimuovi selezione&lt;/i&gt;, &lt;i&gt;Svuota elenco&lt;/i&gt; e &lt;i&gt;Azzera&lt;/i&gt; tolgono numeri dall&apos;elenco.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;5. Decidere come inviare.&lt;/b&gt; Con &lt;i&gt;Salta numeri duplicati&lt;/i&gt; si invia a ogni numero una sola volta. Con &lt;i&gt;Abilita elenchi di esclusione&lt;/i&gt; non si invia a chi è in un elenco applicato; premere &lt;i&gt;Elenchi di esclusione&lt;/i&gt; per creare questi elenchi e indicare quali applicare. &lt;i&gt;Pausa&lt;/i&gt; fa una pausa dopo ogni gruppo di messaggi. Con &lt;i&gt;Conferma ogni messaggio&lt;/i&gt; ogni messaggio viene giudicato da ciò che il telefono risponde, parte nell&apos;alfabeto che richiede e non viene mai inviato due volte senza chiedere; un invio interrotto si può riprendere, e &lt;i&gt;Rapporti&lt;/i&gt; mostra quelli conservati.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;6. Inviare.&lt;/b&gt; Se il messaggio qui sopra non è ancora nell&apos;elenco, viene chiesto se copiarvelo prima. I messaggi partono uno alla volta, nell&apos;ordine dell&apos;elenco, con qualche secondo tra l&apos;uno e l&apos;altro, di cui i telefoni lenti hanno bisogno. La finestra di avanzamento mostra a che punto è l&apos;invio e fa il conto alla rovescia delle pause; &lt;i&gt;Ferma invio&lt;/i&gt; lo termina prima del messaggio successivo o della parte successiva di un messaggio lungo. L&apos;elenco resta com&apos;è.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;7. Dopo l&apos;invio.&lt;/b&gt; Ciò che è stato passato al telefono con &lt;i&gt;Salva gli inviati&lt;/i&gt; spuntato si trova in &lt;i&gt;Inviati&lt;/i&gt; e, con &lt;i&gt;Salva messaggi come modelli&lt;/i&gt;, ogni testo si trova, una sola volta, in &lt;i&gt;Modelli&lt;/i&gt;, pronto per essere riusato. Entrambe le finestre eliminano ciò che non serve più ed esportano il loro elenco come file di testo o pagina web.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Se non viene trovato nessun telefono&lt;/b&gt;, la schermata prima dell&apos;assistente indica che cosa provare: la modalità modem del telefono, il permesso dell&apos;account di usare le porte seriali e gli altri programmi che occupano la porta. &lt;i&gt;Perché il telefono non compare?&lt;/i&gt;, qui sotto, esamina ognuna di queste cose e indica che cosa fare.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Che cosa significa «inviato».&lt;/b&gt; Con &lt;i&gt;Conferma ogni messaggio&lt;/i&gt; un messaggio è inviato quando la rete ne ha dato conferma. Senza, vale come inviato quando è stato scritto sul telefono senza errori. Ciò che il telefono o l&apos;operatore rispondono non viene valutato: anche un messaggio che rifiutano si trova in &lt;i&gt;Inviati&lt;/i&gt;, e un telefono che non risponde più non termina l&apos;invio. Inviare prima il messaggio a sé stessi e mettere il proprio numero alla fine dell&apos;elenco.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Se compare «Errore di connessione al dispositivo»&lt;/b&gt;, la scrittura sul telefono non è riuscita, o un messaggio non si è potuto mettere nella sua forma, e l&apos;invio è terminato lì. Ciò che era stato passato fino ad allora si trova in &lt;i&gt;Inviati&lt;/i&gt;, se vengono salvati; del messaggio in cui è accaduto può essere partita una parte o tutto.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Why does my phone not show?</source>
        <translation>&amp;Perché il telefono non compare?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open the &amp;guide</source>
        <translation>Apri la &amp;guida</translation>
    </message>
    <message>
        <source>No program was found that shows the guide. It is in %1.</source>
        <translation>Non è stato trovato alcun programma che mostri la guida. Si trova in %1.</translation>
    </message>
</context>
<context>
    <name>Import_Strip</name>
    <message>
        <source>0 added: the file could not be read.</source>
        <translation>Aggiunti: 0. Impossibile leggere il file.</translation>
    </message>
    <message>
        <source>%1 added.</source>
        <translation>Aggiunti: %1.</translation>
    </message>
    <message>
        <source>%1 added, 1 line not used.</source>
        <translation>Aggiunti: %1; 1 riga non usata.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %n lines not used.</source>
        <translation>
            <numerusform>Aggiunti: %1; %n riga non usata.</numerusform>
            <numerusform>Aggiunti: %1; %n righe non usate.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1
Then it ended early.</source>
        <translation>%1
Poi si è interrotto prima della fine.</translation>
    </message>
    <message>
        <source>0 added: there was no text that could be read.</source>
        <translation>Aggiunti: 0. Non c&apos;era testo leggibile.</translation>
    </message>
    <message>
        <source>Show ...</source>
        <translation>Mostra...</translation>
    </message>
    <message>
        <source>Shows what was not used, and why</source>
        <translation>Mostra che cosa non è stato usato e perché</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Nascondi</translation>
    </message>
    <message>
        <source>Takes this notice away</source>
        <translation>Toglie questo avviso</translation>
    </message>
    <message>
        <source>What the last import did</source>
        <translation>Risultato dell&apos;ultima importazione</translation>
    </message>
    <message>
        <source>&amp;Show ...</source>
        <translation>&amp;Mostra...</translation>
    </message>
    <message>
        <source>&amp;Dismiss</source>
        <translation>&amp;Nascondi</translation>
    </message>
</context>
<context>
    <name>Job_Trouble</name>
    <message>
        <source>there is no such job</source>
        <translation>l&apos;invio non esiste</translation>
    </message>
    <message>
        <source>its files can not be read or written to</source>
        <translation>i suoi file non si possono leggere o scrivere</translation>
    </message>
    <message>
        <source>the file is not the journal of a job</source>
        <translation>il file non è il diario di un invio</translation>
    </message>
    <message>
        <source>its journal was written by a newer version of the program</source>
        <translation>il suo diario è stato scritto da una versione più recente del programma</translation>
    </message>
    <message>
        <source>its journal is damaged, so that it is unknown what was sent</source>
        <translation>il suo diario è danneggiato, perciò non si sa che cosa è stato inviato</translation>
    </message>
    <message>
        <source>the list beside its journal is gone</source>
        <translation>l&apos;elenco accanto al suo diario è scomparso</translation>
    </message>
    <message>
        <source>the list beside its journal is not the one that the job began with</source>
        <translation>l&apos;elenco accanto al suo diario non è quello con cui l&apos;invio è iniziato</translation>
    </message>
    <message>
        <source>another program works on it</source>
        <translation>un altro programma ci sta lavorando</translation>
    </message>
    <message>
        <source>a job of this name exists already</source>
        <translation>esiste già un invio con questo nome</translation>
    </message>
    <message>
        <source>a job can not have so many messages</source>
        <translation>un invio non può avere così tanti messaggi</translation>
    </message>
    <message>
        <source>the disk has no room for its journal</source>
        <translation>sul disco non c&apos;è spazio per il suo diario</translation>
    </message>
    <message>
        <source>its journal can not be written</source>
        <translation>non si può scrivere il suo diario</translation>
    </message>
</context>
<context>
    <name>Kept_Receipts</name>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1: non leggibile</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n recipients</source>
        <translation>
            <numerusform>%1: %n destinatario</numerusform>
            <numerusform>%1: %n destinatari</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, in work</source>
        <translation>%1, in corso</translation>
    </message>
    <message>
        <source>%1, not ended</source>
        <translation>%1, non terminato</translation>
    </message>
    <message>
        <source>Re&amp;move ...</source>
        <translation>&amp;Rimuovi...</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>Removes the list and the record of this job</source>
        <translation>Rimuove l&apos;elenco e la registrazione di questo invio</translation>
    </message>
    <message>
        <source>&amp;Job:</source>
        <translation>&amp;Invio:</translation>
    </message>
</context>
<context>
    <name>Language_Menu</name>
    <message>
        <source>La&amp;nguage (from the next start on)</source>
        <translation>&amp;Lingua (dal prossimo avvio)</translation>
    </message>
    <message>
        <source>As the &amp;desktop</source>
        <translation>Come il &amp;desktop</translation>
    </message>
</context>
<context>
    <name>List_Arrivals</name>
    <message>
        <source>&amp;Paste numbers</source>
        <translation>&amp;Incolla numeri</translation>
    </message>
</context>
<context>
    <name>Lists_Page</name>
    <message>
        <source>Available exclusion lists</source>
        <translation>Elenchi di esclusione disponibili</translation>
    </message>
    <message>
        <source>Exclude when sending SMS</source>
        <translation>Da escludere dall&apos;invio di SMS</translation>
    </message>
    <message>
        <source>There is no exclusion list yet.</source>
        <translation>Non c&apos;è ancora nessun elenco di esclusione.</translation>
    </message>
    <message>
        <source>Make the first list ...</source>
        <translation>Crea il primo elenco...</translation>
    </message>
    <message>
        <source>No list is applied, so nobody is left out.</source>
        <translation>Nessun elenco è applicato, quindi nessuno è escluso.</translation>
    </message>
</context>
<context>
    <name>Load_Num_Info</name>
    <message>
        <source>Import numbers</source>
        <translation>Importa numeri</translation>
    </message>
    <message>
        <source>The list already holds numbers. Do you want to remove them before the numbers of the file are added?

&quot;No&quot; keeps them and adds the new numbers behind them.</source>
        <translation>L&apos;elenco contiene già dei numeri. Rimuoverli prima di aggiungere quelli del file?

«No» li conserva e aggiunge in coda i nuovi.</translation>
    </message>
    <message>
        <source>Import nothing</source>
        <translation>Non importare nulla</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Empty the list first</source>
        <translation>Svuota prima l&apos;elenco</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>Keep the list and add to it</source>
        <translation>Conserva l&apos;elenco e vi aggiunge i nuovi</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
</context>
<context>
    <name>Long_SMS_Dlg</name>
    <message>
        <source>Long message</source>
        <translation>Messaggio lungo</translation>
    </message>
    <message>
        <source>Unicode message</source>
        <translation>Messaggio Unicode</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>Main_Menu</name>
    <message>
        <source>&amp;Edit ...</source>
        <translation>&amp;Modifica...</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Elenco</translation>
    </message>
    <message>
        <source>&amp;Message</source>
        <translation>Messa&amp;ggio</translation>
    </message>
    <message>
        <source>&amp;Sending</source>
        <translation>&amp;Invio</translation>
    </message>
    <message>
        <source>&amp;What was sent</source>
        <translation>&amp;Che cosa è stato inviato</translation>
    </message>
</context>
<context>
    <name>Message_Boxes</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>Numbers_Page</name>
    <message>
        <source>Excluded number</source>
        <translation>Numero escluso</translation>
    </message>
    <message>
        <source>No number is in this list yet. Type one above, or load a file of them.</source>
        <translation>In questo elenco non c&apos;è ancora nessun numero. Scriverne uno sopra o caricare un file.</translation>
    </message>
</context>
<context>
    <name>Open_Export_Log</name>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>The list has been exported.</source>
        <translation>L&apos;elenco è stato esportato.</translation>
    </message>
    <message>
        <source>Open the &amp;exported file now</source>
        <translation>Apri ora il file &amp;esportato</translation>
    </message>
    <message>
        <source>The file could not be opened:
this computer has no program for it.</source>
        <translation>Impossibile aprire il file:
questo computer non ha un programma adatto.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>The file stays where it is, unopened</source>
        <translation>Il file resta dov&apos;è, senza essere aperto</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>Phone_List_Wnd</name>
    <message>
        <source>Mobile Phone Connection Wizard</source>
        <translation>Assistente di connessione del telefono</translation>
    </message>
    <message>
        <source>Click a device to read what it tells about itself, then select it to send your messages through it.</source>
        <translation>Fare clic su un dispositivo per leggere che cosa dice di sé, poi selezionarlo per inviare i messaggi attraverso di esso.</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>Dispositivi trovati</translation>
    </message>
    <message>
        <source>&amp;Why does my phone not show?</source>
        <translation>Perc&amp;hé il telefono non compare?</translation>
    </message>
    <message>
        <source>Device details</source>
        <translation>Dettagli del dispositivo</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>&amp;Porta</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Device pat&amp;h</source>
        <translation>Per&amp;corso del dispositivo</translation>
    </message>
    <message>
        <source>Device path</source>
        <translation>Percorso del dispositivo</translation>
    </message>
    <message>
        <source>&amp;Manufacturer</source>
        <translation>Pro&amp;duttore</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Produttore</translation>
    </message>
    <message>
        <source>Mo&amp;del</source>
        <translation>&amp;Modello</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>&amp;IMEI</source>
        <translation>&amp;IMEI</translation>
    </message>
    <message>
        <source>IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>IM&amp;SI</source>
        <translation>IM&amp;SI</translation>
    </message>
    <message>
        <source>IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>&amp;Battery</source>
        <translation>&amp;Batteria</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batteria</translation>
    </message>
    <message>
        <source>Si&amp;gnal</source>
        <translation>Se&amp;gnale</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Segnale</translation>
    </message>
    <message>
        <source>&amp;Operator</source>
        <translation>&amp;Operatore</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operatore</translation>
    </message>
    <message>
        <source>&amp;Revision</source>
        <translation>&amp;Revisione</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>Revisione</translation>
    </message>
    <message>
        <source>Service centre (SMSC)</source>
        <translation>Centro messaggi (SMSC)</translation>
    </message>
    <message>
        <source>D&amp;efault number of the device</source>
        <translation>Numero prede&amp;finito del dispositivo</translation>
    </message>
    <message>
        <source>Default service centre number</source>
        <translation>Numero predefinito del centro messaggi</translation>
    </message>
    <message>
        <source>&amp;Use a custom number instead</source>
        <translation>&amp;Usa un numero personalizzato</translation>
    </message>
    <message>
        <source>Custom service centre number</source>
        <translation>Numero personalizzato del centro messaggi</translation>
    </message>
    <message>
        <source>Search &amp;again</source>
        <translation>Cerca di &amp;nuovo</translation>
    </message>
    <message>
        <source>&amp;Continue without a device</source>
        <translation>Con&amp;tinua senza dispositivo</translation>
    </message>
    <message>
        <source>Se&amp;lect this device</source>
        <translation>Se&amp;leziona dispositivo</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>segnale %1</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Searching for devices ...</source>
        <translation>Ricerca dei dispositivi...</translation>
    </message>
    <message>
        <source>No phone or modem was found. Connect one and switch it on.</source>
        <translation>Non è stato trovato nessun telefono o modem. Collegarne uno e accenderlo.</translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>Cerca di nuovo</translation>
    </message>
</context>
<context>
    <name>Plan_Page</name>
    <message>
        <source>Sho&amp;w:</source>
        <translation>&amp;Mostra:</translation>
    </message>
    <message>
        <source>Rows to show</source>
        <translation>Righe da mostrare</translation>
    </message>
    <message>
        <source>&amp;Longest</source>
        <translation>Più &amp;lungo</translation>
    </message>
    <message>
        <source>Goes to the row with the longest message</source>
        <translation>Va alla riga con il messaggio più lungo</translation>
    </message>
    <message>
        <source>Rows as they will be sent</source>
        <translation>Righe come verranno inviate</translation>
    </message>
    <message>
        <source>%1 cannot be dialled: the row stays as it was.</source>
        <translation>%1 non si può comporre: la riga è rimasta com&apos;era.</translation>
    </message>
    <message>
        <source>All rows</source>
        <translation>Tutte le righe</translation>
    </message>
    <message>
        <source>Rows left out</source>
        <translation>Righe omesse</translation>
    </message>
    <message>
        <source>Unicode messages</source>
        <translation>Messaggi Unicode</translation>
    </message>
    <message>
        <source>Looking at the rows: %1 % ...</source>
        <translation>Esame delle righe: %1 %...</translation>
    </message>
    <message>
        <source>Looking at the rows ...</source>
        <translation>Esame delle righe...</translation>
    </message>
</context>
<context>
    <name>Plan_Rows</name>
    <message>
        <source>Row</source>
        <translation>Riga</translation>
    </message>
    <message>
        <source>Number as written</source>
        <translation>Numero scritto</translation>
    </message>
    <message>
        <source>As dialled</source>
        <translation>Numero composto</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Parti</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Nota</translation>
    </message>
</context>
<context>
    <name>Plan_Words</name>
    <message>
        <source>to be sent</source>
        <translation>da inviare</translation>
    </message>
    <message>
        <source>repeated</source>
        <translation>con numero ripetuto</translation>
    </message>
    <message>
        <source>excluded</source>
        <translation>con numero escluso</translation>
    </message>
    <message>
        <source>no usable number</source>
        <translation>senza numero valido</translation>
    </message>
    <message>
        <source>empty field</source>
        <translation>con campo vuoto</translation>
    </message>
    <message>
        <source>unknown field</source>
        <translation>con campo sconosciuto</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>con testo troppo lungo</translation>
    </message>
    <message>
        <source>fields misplaced</source>
        <translation>con campi spostati</translation>
    </message>
    <message>
        <source>1 message to be sent</source>
        <translation>1 messaggio da inviare</translation>
    </message>
    <message numerus="yes">
        <source>%n messages to be sent</source>
        <translation>
            <numerusform>%n messaggio da inviare</numerusform>
            <numerusform>%n messaggi da inviare</numerusform>
        </translation>
    </message>
    <message>
        <source>1 part</source>
        <translation>1 parte</translation>
    </message>
    <message numerus="yes">
        <source>%n parts</source>
        <translation>
            <numerusform>%n parte</numerusform>
            <numerusform>%n parti</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2, %3, %4</source>
        <translation>%1, %2, %3, %4</translation>
    </message>
    <message numerus="yes">
        <source>%n left out: %1.</source>
        <translation>
            <numerusform>%n omesso: %1.</numerusform>
            <numerusform>%n omessi: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>others</source>
        <translation>altri</translation>
    </message>
    <message>
        <source>1 message goes as Unicode</source>
        <translation>1 messaggio parte come Unicode</translation>
    </message>
    <message numerus="yes">
        <source>%n messages go as Unicode</source>
        <translation>
            <numerusform>%n messaggio parte come Unicode</numerusform>
            <numerusform>%n messaggi partono come Unicode</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, because of %2.</source>
        <translation>%1, a causa di %2.</translation>
    </message>
</context>
<context>
    <name>PleaseWait_Modeless</name>
    <message>
        <source>Please wait ...</source>
        <translation>Attendere...</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>In corso</translation>
    </message>
</context>
<context>
    <name>Receipt_Wnd</name>
    <message>
        <source>Receipt</source>
        <translation>Rapporto di invio</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>&amp;Mostra:</translation>
    </message>
    <message>
        <source>Messages to show</source>
        <translation>Messaggi da mostrare</translation>
    </message>
    <message>
        <source>Messages of the job</source>
        <translation>Messaggi dell&apos;invio</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Esporta</translation>
    </message>
    <message>
        <source>Write the receipt into a file</source>
        <translation>Salva il rapporto in un file</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>As a &amp;text ...</source>
        <translation>Come &amp;testo...</translation>
    </message>
    <message>
        <source>As a web &amp;page ...</source>
        <translation>Come &amp;pagina web...</translation>
    </message>
    <message>
        <source>As a table for &amp;spreadsheets (CSV) ...</source>
        <translation>Come tabella per &amp;fogli di calcolo (CSV)...</translation>
    </message>
    <message>
        <source>An apostrophe is in front of each number, and of whatever else a spreadsheet would take for a formula.</source>
        <translation>C&apos;è un apostrofo davanti a ogni numero, e a tutto ciò che un foglio di calcolo prenderebbe per una formula.</translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>Lettura...</translation>
    </message>
    <message>
        <source>No receipts are kept yet.</source>
        <translation>Nessun rapporto di invio ancora conservato.</translation>
    </message>
    <message>
        <source>The job could not be removed: %1.</source>
        <translation>Impossibile rimuovere l&apos;invio: %1.</translation>
    </message>
    <message>
        <source>There is no receipt of this job: %1.</source>
        <translation>Non c&apos;è un rapporto di questo invio: %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be written.</source>
        <translation>Impossibile scrivere il file %1.</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Salvato in %1.</translation>
    </message>
</context>
<context>
    <name>Remembered_List</name>
    <message>
        <source>Re&amp;member this list</source>
        <translation>Ricorda &amp;questo elenco</translation>
    </message>
    <message>
        <source>The list from the last time cannot be read.</source>
        <translation>L&apos;elenco dell&apos;ultima volta non può essere letto.</translation>
    </message>
    <message>
        <source>Recipients from the last time: %1.</source>
        <translation>Destinatari dell&apos;ultima volta: %1.</translation>
    </message>
    <message>
        <source>Not read: %1.</source>
        <translation>Non letti: %1.</translation>
    </message>
</context>
<context>
    <name>Removal_Question</name>
    <message>
        <source>Keep it</source>
        <translation>Conserva</translation>
    </message>
    <message>
        <source>Really remove the job&apos;s list and its record from this computer? Nothing more can be sent of it then, and it has no receipt any more.</source>
        <translation>Rimuovere davvero da questo computer l&apos;elenco dell&apos;invio e la sua registrazione? Dopo non se ne potrà più inviare nulla, e non ci sarà più un rapporto.</translation>
    </message>
    <message>
        <source>Remove for good</source>
        <translation>Rimuovi per sempre</translation>
    </message>
</context>
<context>
    <name>Row_Finder</name>
    <message>
        <source>&amp;Find ...</source>
        <translation>&amp;Trova...</translation>
    </message>
    <message>
        <source>&amp;Sort</source>
        <translation>&amp;Ordina</translation>
    </message>
    <message>
        <source>%1, upwards</source>
        <translation>%1, crescente</translation>
    </message>
    <message>
        <source>%1, downwards</source>
        <translation>%1, decrescente</translation>
    </message>
    <message>
        <source>As in the list</source>
        <translation>Come nell&apos;elenco</translation>
    </message>
    <message>
        <source>Searching ...</source>
        <translation>Ricerca in corso...</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
</context>
<context>
    <name>Sample_Rows</name>
    <message>
        <source>%1 (number)</source>
        <translation>%1 (numero)</translation>
    </message>
</context>
<context>
    <name>Send_Modeless</name>
    <message>
        <source>Sending messages</source>
        <translation>Invio dei messaggi</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>In corso</translation>
    </message>
    <message>
        <source>Total messages :</source>
        <translation>Totale messaggi:</translation>
    </message>
    <message>
        <source>Sending to :</source>
        <translation>Invio a:</translation>
    </message>
    <message>
        <source>Messages handled</source>
        <translation>Messaggi elaborati</translation>
    </message>
    <message>
        <source>&amp;Stop Sending</source>
        <translation>&amp;Ferma invio</translation>
    </message>
    <message>
        <source>about 23 h 59 min left, until 30 September 2026, 23:59</source>
        <translation>tempo rimanente: circa 23 h 59 min, fino al 30 settembre 2026 alle 23:59</translation>
    </message>
    <message>
        <source>Sending %1 of %2</source>
        <translation>Invio %1 su %2</translation>
    </message>
    <message>
        <source>Now :</source>
        <translation>Ora:</translation>
    </message>
    <message>
        <source>Stopping ...</source>
        <translation>Arresto in corso...</translation>
    </message>
</context>
<context>
    <name>Send_Msg_Info</name>
    <message>
        <source>Before sending</source>
        <translation>Prima dell&apos;invio</translation>
    </message>
    <message>
        <source>The message in the composer is not yet in the list. You can copy it there before the list is sent.</source>
        <translation>Il messaggio scritto non è ancora nell&apos;elenco. Si può copiarvelo prima che l&apos;elenco venga inviato.</translation>
    </message>
    <message>
        <source>Every number gets the message in the composer</source>
        <translation>Tutti i numeri ricevono il messaggio scritto</translation>
    </message>
    <message>
        <source>Copy it to &amp;all numbers in the list</source>
        <translation>Copialo in &amp;tutti i numeri dell&apos;elenco</translation>
    </message>
    <message>
        <source>The numbers whose message is empty get the message; the others keep theirs</source>
        <translation>I numeri senza messaggio ricevono questo; gli altri tengono il loro</translation>
    </message>
    <message>
        <source>Copy it to the numbers without a &amp;message</source>
        <translation>Copialo nei numeri senza &amp;messaggio</translation>
    </message>
    <message>
        <source>Or send each number the message that it has in the list.</source>
        <translation>Oppure inviare a ogni numero il messaggio che ha nell&apos;elenco.</translation>
    </message>
    <message>
        <source>Send nothing</source>
        <translation>Non inviare nulla</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Send the list as it stands</source>
        <translation>Invia l&apos;elenco così com&apos;è</translation>
    </message>
    <message>
        <source>Send as it &amp;stands</source>
        <translation>&amp;Invia così com&apos;è</translation>
    </message>
    <message>
        <source>Copy the message and send</source>
        <translation>Copia il messaggio e invia</translation>
    </message>
    <message>
        <source>C&amp;opy and send</source>
        <translation>C&amp;opia e invia</translation>
    </message>
    <message>
        <source>The composer is empty. If you copy it to all numbers, every message in the list becomes blank.</source>
        <translation>Il messaggio scritto è vuoto. Copiandolo in tutti i numeri, tutti i messaggi dell&apos;elenco diventano vuoti.</translation>
    </message>
</context>
<context>
    <name>Send_Promise</name>
    <message>
        <source>Counting ...</source>
        <translation>Conteggio...</translation>
    </message>
    <message>
        <source>That is much for one phone.</source>
        <translation>È molto per un solo telefono.</translation>
    </message>
    <message>
        <source>What to do instead</source>
        <translation>Che cosa fare invece</translation>
    </message>
    <message>
        <source>Other ways ...</source>
        <translation>Altri modi...</translation>
    </message>
    <message>
        <source>Show who gets nothing ...</source>
        <translation>Mostra chi non riceve nulla...</translation>
    </message>
    <message>
        <source>Check before sending ...</source>
        <translation>Controlla prima di inviare...</translation>
    </message>
</context>
<context>
    <name>Sent_Items</name>
    <message>
        <source>Sent Items</source>
        <translation>Inviati</translation>
    </message>
    <message>
        <source>&amp;Sent messages:</source>
        <translation>Messaggi &amp;inviati:</translation>
    </message>
    <message>
        <source>Total Items : 0</source>
        <translation>Totale voci: 0</translation>
    </message>
    <message>
        <source>Sent messages</source>
        <translation>Messaggi inviati</translation>
    </message>
    <message>
        <source>Selected &amp;message:</source>
        <translation>&amp;Messaggio selezionato:</translation>
    </message>
    <message>
        <source>Selected message</source>
        <translation>Messaggio selezionato</translation>
    </message>
    <message>
        <source>&amp;Delete selected</source>
        <translation>Elimina &amp;selezione</translation>
    </message>
    <message>
        <source>Take the selected messages out of the list</source>
        <translation>Toglie dall&apos;elenco i messaggi selezionati</translation>
    </message>
    <message>
        <source>Delete a&amp;ll</source>
        <translation>Elimina &amp;tutto</translation>
    </message>
    <message>
        <source>Empty the whole list</source>
        <translation>Svuota tutto l&apos;elenco</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>&amp;Esporta...</translation>
    </message>
    <message>
        <source>Write the list into a text file or a web page</source>
        <translation>Salva l&apos;elenco in un file di testo o in una pagina web</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>Keep the list as it is shown and close this window</source>
        <translation>Conserva l&apos;elenco come mostrato e chiude questa finestra</translation>
    </message>
    <message>
        <source>[ The first %1 of %2 characters ]</source>
        <translation>[ I primi %1 di %2 caratteri ]</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>No message is kept here yet. Those that are handed to the phone from now on will be.</source>
        <translation>Qui non è ancora conservato nessun messaggio. Lo saranno quelli consegnati al telefono da ora in poi.</translation>
    </message>
    <message>
        <source>No message is kept here yet, and those that are sent will not be.</source>
        <translation>Qui non è ancora conservato nessun messaggio, e quelli inviati non lo saranno.</translation>
    </message>
    <message>
        <source>Keep messages from now on</source>
        <translation>Conserva i messaggi da ora in poi</translation>
    </message>
</context>
<context>
    <name>Table_Page</name>
    <message>
        <source>&amp;Numbers are in:</source>
        <translation>Colonna dei &amp;numeri:</translation>
    </message>
    <message>
        <source>Column of the numbers</source>
        <translation>Colonna dei numeri</translation>
    </message>
    <message>
        <source>The column that holds the numbers. A click on a heading of the table chooses it, too</source>
        <translation>La colonna che contiene i numeri. Si sceglie anche con un clic su un&apos;intestazione della tabella</translation>
    </message>
    <message>
        <source>National numbers are &amp;of:</source>
        <translation>&amp;Paese dei numeri:</translation>
    </message>
    <message>
        <source>Country of national numbers</source>
        <translation>Paese dei numeri nazionali</translation>
    </message>
    <message>
        <source>Gets the code of this country in front of a number that has none</source>
        <translation>Antepone il prefisso di questo paese ai numeri che non lo hanno</translation>
    </message>
    <message>
        <source>The first rows</source>
        <translation>Le prime righe</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>C&amp;odifica:</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Codifica</translation>
    </message>
    <message>
        <source>Another one where letters look wrong</source>
        <translation>Un&apos;altra, se le lettere appaiono sbagliate</translation>
    </message>
    <message>
        <source>&amp;Delimiter:</source>
        <translation>&amp;Delimitatore:</translation>
    </message>
    <message>
        <source>Delimiter</source>
        <translation>Delimitatore</translation>
    </message>
    <message>
        <source>What stands between the fields of a row</source>
        <translation>Che cosa separa i campi di una riga</translation>
    </message>
    <message>
        <source>&amp;Sheet:</source>
        <translation>&amp;Foglio:</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Foglio</translation>
    </message>
    <message>
        <source>Untick this where the first row is one like the others</source>
        <translation>Togliere la spunta se la prima riga è come le altre</translation>
    </message>
    <message>
        <source>&amp;First row has the names</source>
        <translation>La pri&amp;ma riga ha i nomi</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 riga</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n riga</numerusform>
            <numerusform>%n righe</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 in 1 column.</source>
        <translation>%1: %2 in 1 colonna.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 in %n columns.</source>
        <translation>
            <numerusform>%1: %2 in %n colonna.</numerusform>
            <numerusform>%1: %2 in %n colonne.</numerusform>
        </translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgola</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Punto e virgola</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulazione</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Barra verticale</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Come sono scritti</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>Lettura di %1...</translation>
    </message>
    <message>
        <source>%1 can not be used: %2.</source>
        <translation>%1 non è utilizzabile: %2.</translation>
    </message>
    <message>
        <source>%1 holds no rows below the names of its columns.</source>
        <translation>%1 non contiene righe sotto i nomi delle colonne.</translation>
    </message>
    <message>
        <source>No column looks as if it held numbers. Choose the one that does.</source>
        <translation>Nessuna colonna sembra contenere numeri. Scegliere quella che li contiene.</translation>
    </message>
    <message>
        <source>One for each person, mobile ones first</source>
        <translation>Uno per persona, prima i cellulari</translation>
    </message>
    <message>
        <source>Each number of a person</source>
        <translation>Tutti i numeri di una persona</translation>
    </message>
    <message>
        <source>The file does not tell its encoding: look whether the letters are right.</source>
        <translation>Il file non indica la propria codifica: controllare che le lettere siano giuste.</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Templates</source>
        <translation>Modelli</translation>
    </message>
    <message>
        <source>&amp;Message templates:</source>
        <translation>Modelli di &amp;messaggio:</translation>
    </message>
    <message>
        <source>Total Items : 0</source>
        <translation>Totale voci: 0</translation>
    </message>
    <message>
        <source>Message templates</source>
        <translation>Modelli di messaggio</translation>
    </message>
    <message>
        <source>Selected &amp;template:</source>
        <translation>Modello &amp;selezionato:</translation>
    </message>
    <message>
        <source>Selected template</source>
        <translation>Modello selezionato</translation>
    </message>
    <message>
        <source>Add &amp;new ...</source>
        <translation>&amp;Nuovo...</translation>
    </message>
    <message>
        <source>Type a new template</source>
        <translation>Scrive un nuovo modello</translation>
    </message>
    <message>
        <source>E&amp;dit ...</source>
        <translation>Mo&amp;difica...</translation>
    </message>
    <message>
        <source>Change the selected template</source>
        <translation>Cambia il modello selezionato</translation>
    </message>
    <message>
        <source>Delete &amp;selected</source>
        <translation>E&amp;limina selezione</translation>
    </message>
    <message>
        <source>Take the selected templates out of the list</source>
        <translation>Toglie dall&apos;elenco i modelli selezionati</translation>
    </message>
    <message>
        <source>Delete a&amp;ll</source>
        <translation>Elimina &amp;tutto</translation>
    </message>
    <message>
        <source>Empty the whole list</source>
        <translation>Svuota tutto l&apos;elenco</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>&amp;Esporta...</translation>
    </message>
    <message>
        <source>Write the list into a text file or a web page</source>
        <translation>Salva l&apos;elenco in un file di testo o in una pagina web</translation>
    </message>
    <message>
        <source>&amp;Use template</source>
        <translation>&amp;Usa modello</translation>
    </message>
    <message>
        <source>Put the selected template into the message</source>
        <translation>Inserisce nel messaggio il modello selezionato</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>Keep the list as it is shown and close this window</source>
        <translation>Conserva l&apos;elenco come mostrato e chiude questa finestra</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Templates that could not be saved the last time are in the list again. They are saved when this window closes.</source>
        <translation>I modelli che l&apos;ultima volta non si sono potuti salvare sono di nuovo nell&apos;elenco. Vengono salvati alla chiusura di questa finestra.</translation>
    </message>
    <message>
        <source>The templates stored so far can not be read. They are kept in a file of their own when this list is saved.</source>
        <translation>I modelli memorizzati finora non si possono leggere. Quando questo elenco viene salvato, restano conservati in un file a parte.</translation>
    </message>
    <message>
        <source>Changes can not be saved at present: the folder %1 can not be written to.</source>
        <translation>Al momento non si possono salvare modifiche: non si può scrivere nella cartella %1.</translation>
    </message>
    <message>
        <source>No text is kept here yet.</source>
        <translation>Qui non è ancora conservato nessun testo.</translation>
    </message>
    <message>
        <source>Add the first template ...</source>
        <translation>Aggiungi il primo modello...</translation>
    </message>
</context>
<context>
    <name>Time_Words</name>
    <message>
        <source>1 recipient</source>
        <translation>1 destinatario</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients</source>
        <translation>
            <numerusform>%n destinatario</numerusform>
            <numerusform>%n destinatari</numerusform>
        </translation>
    </message>
    <message>
        <source>1 message</source>
        <translation>1 messaggio</translation>
    </message>
    <message numerus="yes">
        <source>%n messages</source>
        <translation>
            <numerusform>%n messaggio</numerusform>
            <numerusform>%n messaggi</numerusform>
        </translation>
    </message>
    <message>
        <source>sent items</source>
        <translation>messaggi inviati</translation>
    </message>
    <message>
        <source>templates</source>
        <translation>modelli</translation>
    </message>
    <message>
        <source>a receipt</source>
        <translation>rapporto di invio</translation>
    </message>
    <message>
        <source>to be kept: %1</source>
        <translation>si conserveranno: %1</translation>
    </message>
    <message>
        <source> and </source>
        <translation> e </translation>
    </message>
    <message>
        <source>the record goes when all is done</source>
        <translation>la registrazione viene eliminata a invio concluso</translation>
    </message>
    <message>
        <source>no record will be kept</source>
        <translation>nessuna registrazione conservata</translation>
    </message>
    <message>
        <source>less than a minute</source>
        <translation>meno di un minuto</translation>
    </message>
    <message>
        <source>about %1 min</source>
        <translation>circa %1 min</translation>
    </message>
    <message>
        <source>about %1 h %2 min</source>
        <translation>circa %1 h %2 min</translation>
    </message>
    <message>
        <source>about %1 h</source>
        <translation>circa %1 h</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>fino alle %1</translation>
    </message>
    <message>
        <source>until tomorrow, %1</source>
        <translation>fino a domani alle %1</translation>
    </message>
    <message>
        <source>until %1, %2</source>
        <translation>fino al %1 alle %2</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <source>Nobody in the list will be sent anything.</source>
        <translation>A nessuno nell&apos;elenco verrà inviato nulla.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>tempo rimanente: %1</translation>
    </message>
    <message>
        <source>%1 once it goes on</source>
        <translation>%1 dalla ripresa</translation>
    </message>
</context>
<context>
    <name>Undo_Strip</name>
    <message>
        <source>Undo</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>&amp;Undo the removal</source>
        <translation>&amp;Annulla la rimozione</translation>
    </message>
    <message>
        <source>What was just removed</source>
        <translation>Ciò che è stato appena rimosso</translation>
    </message>
    <message>
        <source>Brings back what was removed (Ctrl+Z)</source>
        <translation>Ripristina ciò che è stato rimosso (Ctrl+Z)</translation>
    </message>
</context>
<context>
    <name>Unfilled_Rows</name>
    <message>
        <source>1 recipient gets nothing: %1.</source>
        <translation>1 destinatario non riceve nulla: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients get nothing. Of the first, %1.</source>
        <translation>
            <numerusform>%n destinatario non riceve nulla. Motivo del primo: %1.</numerusform>
            <numerusform>%n destinatari non ricevono nulla. Motivo del primo: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no field %1: 1 recipient gets nothing.</source>
        <translation>Il campo %1 non esiste: 1 destinatario non riceve nulla.</translation>
    </message>
    <message numerus="yes">
        <source>There is no field %1: %n recipients get nothing.</source>
        <translation>
            <numerusform>Il campo %1 non esiste: %n destinatario non riceve nulla.</numerusform>
            <numerusform>Il campo %1 non esiste: %n destinatari non ricevono nulla.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 recipient has no %1: it gets nothing.</source>
        <translation>1 destinatario non ha %1: non riceve nulla.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients have no %1: they get nothing.</source>
        <translation>
            <numerusform>%n destinatario non ha %1: non riceve nulla.</numerusform>
            <numerusform>%n destinatari non hanno %1: non ricevono nulla.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Unfinished_Strip</name>
    <message>
        <source>Sends what was not sent. What was sent is not sent again.</source>
        <translation>Invia ciò che non è stato inviato. Ciò che è già stato inviato non parte di nuovo.</translation>
    </message>
    <message>
        <source>Rows that may have been sent ...</source>
        <translation>Righe forse inviate...</translation>
    </message>
    <message>
        <source>Lists them, so that you can say what is to become of each</source>
        <translation>Le elenca, per decidere che cosa fare di ciascuna</translation>
    </message>
    <message>
        <source>Receipt ...</source>
        <translation>Rapporto...</translation>
    </message>
    <message>
        <source>Shows what became of each message so far</source>
        <translation>Mostra l&apos;esito di ogni messaggio fino a questo momento</translation>
    </message>
    <message>
        <source>Remove ...</source>
        <translation>Rimuovi...</translation>
    </message>
    <message>
        <source>Removes the job&apos;s list and its record</source>
        <translation>Rimuove l&apos;elenco dell&apos;invio e la sua registrazione</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Più tardi</translation>
    </message>
    <message>
        <source>Leaves the job as it is and says no more of it for now</source>
        <translation>Lascia l&apos;invio com&apos;è e per ora non ne parla più</translation>
    </message>
    <message>
        <source>Job that has not ended</source>
        <translation>Invio non terminato</translation>
    </message>
    <message>
        <source>Receipt of the job that has not ended ...</source>
        <translation>Rapporto dell&apos;invio non terminato...</translation>
    </message>
    <message>
        <source>A job that began on %1 has not ended.</source>
        <translation>Un invio iniziato il %1 non è terminato.</translation>
    </message>
    <message>
        <source>Nothing of it is left to be sent.</source>
        <translation>Non ne resta nulla da inviare.</translation>
    </message>
    <message>
        <source>The job %1 cannot be gone on with: %2.</source>
        <translation>L&apos;invio %1 non si può riprendere: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n altro</numerusform>
            <numerusform>altri %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Send the remaining %n</source>
        <translation>
            <numerusform>Invia il rimanente</numerusform>
            <numerusform>Invia i %n rimanenti</numerusform>
        </translation>
    </message>
    <message>
        <source>Send the rest</source>
        <translation>Invia il resto</translation>
    </message>
    <message>
        <source>The job could not be removed: %1.</source>
        <translation>Impossibile rimuovere l&apos;invio: %1.</translation>
    </message>
</context>
<context>
    <name>Unknown_Rows_Sheet</name>
    <message>
        <source>Rows that may have been sent</source>
        <translation>Righe forse inviate</translation>
    </message>
    <message>
        <source>It is not known whether these messages were sent. What is left as it is will not be sent again. What is sent again may arrive twice.</source>
        <translation>Non si sa se questi messaggi siano stati inviati. Ciò che si lascia com&apos;è non verrà inviato di nuovo. Ciò che si invia di nuovo può arrivare due volte.</translation>
    </message>
    <message>
        <source>The selected rows:</source>
        <translation>Le righe selezionate:</translation>
    </message>
    <message>
        <source>&amp;Leave</source>
        <translation>&amp;Lascia</translation>
    </message>
    <message>
        <source>Send &amp;again</source>
        <translation>&amp;Invia di nuovo</translation>
    </message>
    <message>
        <source>&amp;Count as sent</source>
        <translation>&amp;Considera inviati</translation>
    </message>
    <message>
        <source>All rows:</source>
        <translation>Tutte le righe:</translation>
    </message>
    <message>
        <source>Lea&amp;ve all</source>
        <translation>L&amp;ascia tutto</translation>
    </message>
    <message>
        <source>Send all a&amp;gain</source>
        <translation>In&amp;via di nuovo tutto</translation>
    </message>
    <message>
        <source>C&amp;ount all as sent</source>
        <translation>C&amp;onsidera tutto inviato</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Keep these decisions in the record of the job</source>
        <translation>Salva queste decisioni nella registrazione dell&apos;invio</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Leave everything as it is</source>
        <translation>Lascia tutto com&apos;è</translation>
    </message>
    <message>
        <source>Leave as it is</source>
        <translation>Lascia com&apos;è</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Invia di nuovo</translation>
    </message>
    <message>
        <source>Count as sent</source>
        <translation>Considera inviato</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Che cosa fare</translation>
    </message>
    <message>
        <source>The decisions could not be kept: %1.</source>
        <translation>Impossibile salvare le decisioni: %1.</translation>
    </message>
</context>
<context>
    <name>Unused_Lines_Wnd</name>
    <message>
        <source>Lines that were not used</source>
        <translation>Righe non usate</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>No phone number</source>
        <translation>Non è un numero di telefono</translation>
    </message>
    <message>
        <source>Already in the list</source>
        <translation>Già nell&apos;elenco</translation>
    </message>
    <message>
        <source>In an exclusion list</source>
        <translation>In un elenco di esclusione</translation>
    </message>
    <message>
        <source>Lines not used: %1.</source>
        <translation>Righe non usate: %1.</translation>
    </message>
    <message>
        <source>These are the first %1.</source>
        <translation>Queste sono le prime %1.</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Riga</translation>
    </message>
    <message>
        <source>As it stood there</source>
        <translation>Come era scritta</translation>
    </message>
    <message>
        <source>Why it was not used</source>
        <translation>Perché non è stata usata</translation>
    </message>
</context>
<context>
    <name>UpdateTemp</name>
    <message>
        <source>Templates</source>
        <translation>Modelli</translation>
    </message>
    <message>
        <source>&amp;Message:</source>
        <translation>&amp;Messaggio:</translation>
    </message>
    <message>
        <source>Message of the template</source>
        <translation>Messaggio del modello</translation>
    </message>
    <message>
        <source>At most 1600 characters</source>
        <translation>Al massimo 1600 caratteri</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>0 caratteri</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>Update_Ex_Num</name>
    <message>
        <source>Edit number</source>
        <translation>Modifica numero</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Numero di telefono</translation>
    </message>
    <message>
        <source>The number as it is to stand in the exclusion list, at most 20 characters</source>
        <translation>Il numero come deve figurare nell&apos;elenco di esclusione, al massimo 20 caratteri</translation>
    </message>
    <message>
        <source>Number as it was</source>
        <translation>Numero precedente</translation>
    </message>
    <message>
        <source>Row of the number</source>
        <translation>Riga del numero</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Phone &amp;number:</source>
        <translation>&amp;Numero di telefono:</translation>
    </message>
</context>
<context>
    <name>Update_Num_SMS</name>
    <message>
        <source>Edit number and message</source>
        <translation>Modifica numero e messaggio</translation>
    </message>
    <message>
        <source>Phone &amp;number:</source>
        <translation>&amp;Numero di telefono:</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Numero di telefono</translation>
    </message>
    <message>
        <source>&amp;Message:</source>
        <translation>&amp;Messaggio:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>0 caratteri</translation>
    </message>
    <message>
        <source>For this window only</source>
        <translation>Solo per questa finestra</translation>
    </message>
    <message>
        <source>&amp;Refuse a number that is in the list already</source>
        <translation>&amp;Rifiuta un numero già nell&apos;elenco</translation>
    </message>
    <message>
        <source>Refuse an &amp;excluded number</source>
        <translation>Rifiuta un numero &amp;escluso</translation>
    </message>
    <message>
        <source>Leave the recipient as it is</source>
        <translation>Lascia il destinatario com&apos;è</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Save the recipient</source>
        <translation>Salva il destinatario</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>Update_Sel_Num_SMS</name>
    <message>
        <source>Edit selected messages</source>
        <translation>Modifica messaggi selezionati</translation>
    </message>
    <message>
        <source>&amp;Selected numbers:</source>
        <translation>Numeri &amp;selezionati:</translation>
    </message>
    <message>
        <source>Selected numbers</source>
        <translation>Numeri selezionati</translation>
    </message>
    <message>
        <source>Total Selected Numbers : 0</source>
        <translation>Numeri selezionati: 0</translation>
    </message>
    <message>
        <source>New &amp;message for all of them:</source>
        <translation>Nuovo &amp;messaggio per tutti:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>0 caratteri</translation>
    </message>
    <message>
        <source>Leave the messages as they are</source>
        <translation>Lascia i messaggi come sono</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Copy the message to the selected numbers</source>
        <translation>Copia il messaggio nei numeri selezionati</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
    </message>
</context>
</TS>
