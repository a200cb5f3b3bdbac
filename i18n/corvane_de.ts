<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Answer_Cleaning</name>
    <message>
        <source>Device does not have a battery connected.</source>
        <translation>Das Gerät hat keinen Akku.</translation>
    </message>
    <message>
        <source>%1% ( Charging )</source>
        <translation>%1% (wird geladen)</translation>
    </message>
    <message>
        <source>Recognized power fault.</source>
        <translation>Fehler in der Stromversorgung.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Schwach</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Stark</translation>
    </message>
</context>
<context>
    <name>Appearance_Menu</name>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;High contrast</source>
        <translation>Hoher &amp;Kontrast</translation>
    </message>
    <message>
        <source>&amp;As the desktop</source>
        <translation>&amp;Wie der Desktop</translation>
    </message>
</context>
<context>
    <name>Bubble_Words</name>
    <message>
        <source>%1 is lost</source>
        <translation>%1 geht verloren</translation>
    </message>
    <message>
        <source>%1 arrives as a blank</source>
        <translation>%1 kommt als Leerzeichen an</translation>
    </message>
    <message>
        <source>%1 arrives as %2</source>
        <translation>%1 kommt als %2 an</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n weiteres</numerusform>
            <numerusform>%n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1 makes this message Unicode</source>
        <translation>%1 macht diese Nachricht zu Unicode</translation>
    </message>
    <message>
        <source>%1 make this message Unicode</source>
        <translation>%1 machen diese Nachricht zu Unicode</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n parts instead of %2.</source>
        <translation>
            <numerusform>%1: %n Teil statt %2.</numerusform>
            <numerusform>%1: %n Teile statt %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 part of %1, %2 left</source>
        <translation>1 Teil zu %1 Zeichen, %2 frei</translation>
    </message>
    <message numerus="yes">
        <source>%n parts of %1, %2 left in the last</source>
        <translation>
            <numerusform>%n Teil zu %1 Zeichen, %2 im letzten frei</numerusform>
            <numerusform>%n Teile zu %1 Zeichen, %2 im letzten frei</numerusform>
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
        <translation>Über USB oder Bluetooth wurde kein Telefon oder Modem gefunden. Schalten Sie es ein und verbinden Sie es wie oben beschrieben; es kann einige Sekunden dauern, bis es erscheint. Ein Modem an einer seriellen Buchse des Computers wird trotzdem angeboten, als ttyS0 oder ein anderes ttyS, wenn Ihr Konto es öffnen darf.</translation>
    </message>
    <message>
        <source>Your account may not open %1. Only the system&apos;s administrator can allow it.</source>
        <translation>Ihr Konto darf %1 nicht öffnen. Das kann nur die Systemverwaltung erlauben.</translation>
    </message>
    <message>
        <source>Your account may not open %1. Members of this group may: %2. Join it with this command, then log out and in again:</source>
        <translation>Ihr Konto darf %1 nicht öffnen. Mitglieder dieser Gruppe dürfen es: %2. Treten Sie ihr mit diesem Befehl bei, melden Sie sich dann ab und wieder an:</translation>
    </message>
    <message>
        <source>The service ModemManager is running and may hold the device&apos;s port. If the device is not found or does not answer, stop the service until the next start of the computer:</source>
        <translation>Der Dienst ModemManager läuft und belegt womöglich den Anschluss des Geräts. Wird das Gerät nicht gefunden oder antwortet es nicht, halten Sie den Dienst bis zum nächsten Start des Computers an:</translation>
    </message>
</context>
<context>
    <name>Connection_Info</name>
    <message>
        <source>Connect your mobile phone</source>
        <translation>Mobiltelefon verbinden</translation>
    </message>
    <message>
        <source>Corvane sends your messages through a mobile phone or GSM modem connected to this computer. Before the search begins, switch the device on and let the computer use it as a modem:</source>
        <translation>Corvane versendet Ihre Nachrichten über ein Mobiltelefon oder GSM-Modem an diesem Computer. Schalten Sie das Gerät vor der Suche ein und geben Sie es als Modem frei:</translation>
    </message>
    <message>
        <source>With a USB cable</source>
        <translation>Mit einem USB-Kabel</translation>
    </message>
    <message>
        <source>Plug the cable in and unlock the phone. When it asks what the connection is for, choose the modem or data mode – phones call it “Modem”, “PC connection”, “COM port” or “Tethering as a modem” – and not “Charging” or “File transfer”. A GSM modem or USB stick is ready some seconds after it has been plugged in.</source>
        <translation>Stecken Sie das Kabel ein und entsperren Sie das Telefon. Fragt es nach dem Zweck der Verbindung, wählen Sie den Modem- oder Datenmodus – je nach Telefon „Modem“, „PC-Verbindung“, „COM-Anschluss“ oder „Tethering als Modem“ – und nicht „Laden“ oder „Dateiübertragung“. Ein GSM-Modem oder USB-Stick ist einige Sekunden nach dem Einstecken bereit.</translation>
    </message>
    <message>
        <source>With Bluetooth</source>
        <translation>Mit Bluetooth</translation>
    </message>
    <message>
        <source>Pair the phone in your desktop’s Bluetooth settings, then bind a serial port to it in a terminal, with the phone’s own address in place of the one shown:</source>
        <translation>Koppeln Sie das Telefon in den Bluetooth-Einstellungen des Desktops und binden Sie dann in einem Terminal einen seriellen Anschluss daran, mit der Adresse des Telefons anstelle der gezeigten:</translation>
    </message>
    <message>
        <source>Command that binds a serial port</source>
        <translation>Befehl, der einen seriellen Anschluss bindet</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Auf diesem Computer</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>Command to copy</source>
        <translation>Befehl zum Kopieren</translation>
    </message>
</context>
<context>
    <name>Contact_Desk</name>
    <message>
        <source>%1 added.</source>
        <translation>%1 hinzugefügt.</translation>
    </message>
    <message>
        <source>%1 added, 1 row not used.</source>
        <translation>%1 hinzugefügt, 1 Zeile nicht verwendet.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %n rows not used.</source>
        <translation>
            <numerusform>%1 hinzugefügt, %n Zeile nicht verwendet.</numerusform>
            <numerusform>%1 hinzugefügt, %n Zeilen nicht verwendet.</numerusform>
        </translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>In %1 geschrieben.</translation>
    </message>
    <message>
        <source>The file %1 could not be written.</source>
        <translation>Die Datei %1 konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>1 row was not sent: %1.</source>
        <translation>1 Zeile wurde nicht gesendet: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows were not sent. Of the first, %1.</source>
        <translation>
            <numerusform>%n Zeile wurde nicht gesendet: %1.</numerusform>
            <numerusform>%n Zeilen wurden nicht gesendet. Zur ersten: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nobody is on the list yet.</source>
        <translation>Noch steht niemand auf der Liste.</translation>
    </message>
    <message>
        <source>Add contacts from a spreadsheet, CSV or vCard file ...</source>
        <translation>Kontakte aus einer Tabelle, CSV- oder vCard-Datei hinzufügen ...</translation>
    </message>
</context>
<context>
    <name>Contact_Source</name>
    <message>
        <source>The clipboard</source>
        <translation>Die Zwischenablage</translation>
    </message>
</context>
<context>
    <name>Contacts_Wnd</name>
    <message>
        <source>Another file ...</source>
        <translation>Andere Datei ...</translation>
    </message>
    <message>
        <source>Choose another file</source>
        <translation>Eine andere Datei wählen</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Back to the columns and the country</source>
        <translation>Zurück zu den Spalten und dem Land</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>Look at what is made of each row</source>
        <translation>Ansehen, was aus jeder Zeile wird</translation>
    </message>
    <message>
        <source>&amp;Add to list</source>
        <translation>Zur Liste &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Add the rows that can be used to the list, with the message as it stands</source>
        <translation>Die brauchbaren Zeilen mit der jetzigen Nachricht zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Import contacts</source>
        <translation>Kontakte importieren</translation>
    </message>
    <message>
        <source>Check before sending</source>
        <translation>Vor dem Senden prüfen</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>der Speicher reicht dafür nicht</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Copy_Action</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>CorvaneAppDelegate</name>
    <message>
        <source>No Mobile Phone Device is selected.</source>
        <translation>Kein Mobiltelefon ausgewählt.</translation>
    </message>
    <message>
        <source>Click here to start Mobile Phone Connection Wizard.</source>
        <translation>Hier klicken, um den Verbindungsassistenten zu starten.</translation>
    </message>
    <message>
        <source>Find the phones and modems attached to this computer and pick one</source>
        <translation>Telefone und Modems an diesem Computer suchen und eines auswählen</translation>
    </message>
    <message>
        <source>Connection &amp;Wizard ...</source>
        <translation>&amp;Verbindungsassistent ...</translation>
    </message>
    <message>
        <source>Choose the normal type of message, and select those whose message was not taken. Nothing is sent: keep only those, and then press Send</source>
        <translation>Stellt auf normale Nachrichten um und wählt alle aus, deren Nachricht nicht angenommen wurde. Es wird nichts gesendet: Behalten Sie nur diese und drücken Sie dann Senden</translation>
    </message>
    <message>
        <source>Choose normal text messages</source>
        <translation>Normale Textnachrichten wählen</translation>
    </message>
    <message>
        <source>Recipients</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Rufnummer</translation>
    </message>
    <message>
        <source>for example +447700900123</source>
        <translation>z. B. +447700900123</translation>
    </message>
    <message>
        <source>Add the number with the message as it stands</source>
        <translation>Die Nummer mit der jetzigen Nachricht hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Add the numbers of a text or RTF file, one in each line, with the message as it stands. A file can also be dropped on the list, and numbers can be pasted into it</source>
        <translation>Die Nummern einer Text- oder RTF-Datei, eine je Zeile, mit der jetzigen Nachricht hinzufügen. Eine Datei lässt sich auch auf die Liste ziehen, und Nummern lassen sich einfügen</translation>
    </message>
    <message>
        <source>&amp;Import ...</source>
        <translation>&amp;Importieren ...</translation>
    </message>
    <message>
        <source>Add the contacts of a spreadsheet, a CSV or a vCard file, with their names and other fields, after a look at what is made of them</source>
        <translation>Kontakte aus einer Tabelle, CSV- oder vCard-Datei mit Namen und weiteren Feldern hinzufügen; vorher sehen Sie, was daraus wird</translation>
    </message>
    <message>
        <source>Contacts ...</source>
        <translation>Kontakte ...</translation>
    </message>
    <message>
        <source>Total Numbers : 0</source>
        <translation>Nummern gesamt: 0</translation>
    </message>
    <message>
        <source>Write the numbers of the list into a text file</source>
        <translation>Die Nummern der Liste in eine Textdatei schreiben</translation>
    </message>
    <message>
        <source>Ex&amp;port ...</source>
        <translation>E&amp;xportieren ...</translation>
    </message>
    <message>
        <source>Clear S&amp;elected</source>
        <translation>Aus&amp;wahl entfernen</translation>
    </message>
    <message>
        <source>&amp;Clear All</source>
        <translation>Alle &amp;entfernen</translation>
    </message>
    <message>
        <source>Select the recipients whose message was refused or not tried. One that may have been sent, was written or got no answer is not among them, since it may have arrived</source>
        <translation>Wählt die Empfänger, deren Nachricht abgelehnt oder nicht versucht wurde. Was vielleicht gesendet oder geschrieben wurde oder ohne Antwort blieb, gehört nicht dazu, denn es kann angekommen sein</translation>
    </message>
    <message>
        <source>Select those not taken</source>
        <translation>Nicht angenommene auswählen</translation>
    </message>
    <message>
        <source>Remove all recipients from the list but those whose message was refused or not tried. Nothing is sent</source>
        <translation>Entfernt alle Empfänger aus der Liste außer denen, deren Nachricht abgelehnt oder nicht versucht wurde. Es wird nichts gesendet</translation>
    </message>
    <message>
        <source>Keep only those</source>
        <translation>Nur diese behalten</translation>
    </message>
    <message>
        <source>Look at what became of each message of the last job that was confirmed, and export that</source>
        <translation>Ansehen und exportieren, was aus jeder Nachricht des letzten bestätigten Auftrags wurde</translation>
    </message>
    <message>
        <source>Receipt ...</source>
        <translation>Sendebericht ...</translation>
    </message>
    <message>
        <source>Excluded numbers</source>
        <translation>Ausgeschlossene Nummern</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>&amp;Message for the numbers you add:</source>
        <translation>&amp;Nachricht für neue Nummern:</translation>
    </message>
    <message>
        <source>Put a field into the message. Everybody gets it with the value of their own</source>
        <translation>Ein Feld in die Nachricht setzen. Alle erhalten sie mit dem eigenen Wert</translation>
    </message>
    <message>
        <source>Insert field</source>
        <translation>Feld einfügen</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>0 Zeichen</translation>
    </message>
    <message>
        <source>Write one new message for the recipients selected in the list</source>
        <translation>Eine neue Nachricht für die in der Liste ausgewählten Empfänger schreiben</translation>
    </message>
    <message>
        <source>Edit the
messages of
selected items</source>
        <translation>Ausgewählte
Nachrichten
bearbeiten</translation>
    </message>
    <message>
        <source>Copy the message above to all, the selected or the blank items of the list</source>
        <translation>Die Nachricht oben in alle, die ausgewählten oder die leeren Einträge der Liste kopieren</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Message &amp;type:</source>
        <translation>Nachrichten&amp;typ:</translation>
    </message>
    <message>
        <source>Message type</source>
        <translation>Nachrichtentyp</translation>
    </message>
    <message>
        <source>A notification shows at once on the handset and is not stored</source>
        <translation>Eine Mitteilung erscheint sofort auf dem Telefon und wird nicht gespeichert</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Mitteilung</translation>
    </message>
    <message>
        <source>Text message</source>
        <translation>Textnachricht</translation>
    </message>
    <message>
        <source>Needed for every text with characters that Help does not list, such as € ê ő ö ù or emoji: they arrive as others without it. 70 characters fit one message instead of 160</source>
        <translation>Nötig für jeden Text mit Zeichen, die nicht in der Hilfe stehen, wie € ê ő ö ù oder Emoji: Sonst kommen sie als andere an. In eine Nachricht passen dann 70 statt 160 Zeichen</translation>
    </message>
    <message>
        <source>Send as &amp;Unicode</source>
        <translation>Als &amp;Unicode senden</translation>
    </message>
    <message>
        <source>Refuse a number that the list has already, and send to each number once</source>
        <translation>Nummern ablehnen, die schon in der Liste stehen, und jeder Nummer einmal senden</translation>
    </message>
    <message>
        <source>S&amp;kip duplicate numbers</source>
        <translation>&amp;Doppelte Nummern überspringen</translation>
    </message>
    <message>
        <source>Refuse the numbers of the applied exclusion lists, and never send to them</source>
        <translation>Die Nummern der angewendeten Ausschlusslisten ablehnen und ihnen nie senden</translation>
    </message>
    <message>
        <source>Heed the exc&amp;lusion lists</source>
        <translation>Auss&amp;chlusslisten beachten</translation>
    </message>
    <message>
        <source>Keep lists of numbers that are not to be sent to</source>
        <translation>Listen von Nummern führen, an die nichts gesendet wird</translation>
    </message>
    <message>
        <source>Exclusi&amp;on Lists ...</source>
        <translation>Ausschluss&amp;listen ...</translation>
    </message>
    <message>
        <source>Keep a record of every message that was handed to the phone</source>
        <translation>Jede Nachricht festhalten, die dem Telefon übergeben wurde</translation>
    </message>
    <message>
        <source>Sa&amp;ve sent items</source>
        <translation>&amp;Gesendetes aufbewahren</translation>
    </message>
    <message>
        <source>Look at the records of messages handed to the phone</source>
        <translation>Ansehen, welche Nachrichten dem Telefon übergeben wurden</translation>
    </message>
    <message>
        <source>Sent Items ...</source>
        <translation>Gesendetes ...</translation>
    </message>
    <message>
        <source>Keep the text of every message that was handed to the phone, once</source>
        <translation>Den Text jeder übergebenen Nachricht einmal aufbewahren</translation>
    </message>
    <message>
        <source>Save messa&amp;ges as templates</source>
        <translation>Texte als V&amp;orlagen speichern</translation>
    </message>
    <message>
        <source>Keep texts that are used again, and put one into the message</source>
        <translation>Wiederkehrende Texte aufbewahren und in die Nachricht setzen</translation>
    </message>
    <message>
        <source>Templates ...</source>
        <translation>Vorlagen ...</translation>
    </message>
    <message>
        <source>Send each message as soon as the phone or network has answered for the one before it, in the alphabet that its text needs, and never a second time unasked. A record of the job is kept until it is finished</source>
        <translation>Jede Nachricht senden, sobald Telefon oder Netz für die vorige geantwortet haben, in dem Alphabet, das ihr Text braucht, und nie ungefragt ein zweites Mal. Der Auftrag wird festgehalten, bis er fertig ist</translation>
    </message>
    <message>
        <source>Con&amp;firm each message</source>
        <translation>&amp;Jede Nachricht bestätigen</translation>
    </message>
    <message>
        <source>Look at the receipts that were kept</source>
        <translation>Die aufbewahrten Sendeberichte ansehen</translation>
    </message>
    <message>
        <source>Receipts ...</source>
        <translation>Sendeberichte ...</translation>
    </message>
    <message>
        <source>Ask the network to report what was delivered, and wait up to a minute for that at the end. Some networks charge for reports, and some never send any</source>
        <translation>Das Netz um Berichte über die Zustellung bitten und am Ende bis zu einer Minute darauf warten. Manche Netze berechnen sie, manche schicken nie welche</translation>
    </message>
    <message>
        <source>Ask for delivery reports</source>
        <translation>Zustellberichte anfordern</translation>
    </message>
    <message>
        <source>Keep the record of a finished job, with every number and message, instead of removing it</source>
        <translation>Die Aufzeichnung eines fertigen Auftrags mit allen Nummern und Nachrichten behalten, statt sie zu löschen</translation>
    </message>
    <message>
        <source>Keep the receipt</source>
        <translation>Sendebericht behalten</translation>
    </message>
    <message>
        <source>Have these boxes ticked as they are now, whenever the program starts</source>
        <translation>Diese Kästchen bei jedem Start so setzen wie jetzt</translation>
    </message>
    <message>
        <source>Remember these choices</source>
        <translation>Diese Auswahl merken</translation>
    </message>
    <message>
        <source>Pause after each batch of messages</source>
        <translation>Nach je so vielen Nachrichten eine Pause einlegen</translation>
    </message>
    <message>
        <source>&amp;Delay: after</source>
        <translation>&amp;Pause: nach</translation>
    </message>
    <message>
        <source>Messages before each pause</source>
        <translation>Nachrichten vor jeder Pause</translation>
    </message>
    <message>
        <source>How many messages are sent before each pause</source>
        <translation>Wie viele Nachrichten vor jeder Pause gesendet werden</translation>
    </message>
    <message numerus="yes">
        <source>messages wait</source>
        <translation>
            <numerusform>Nachricht für</numerusform>
            <numerusform>Nachrichten für</numerusform>
        </translation>
    </message>
    <message>
        <source>Length of each pause</source>
        <translation>Länge jeder Pause</translation>
    </message>
    <message>
        <source>How long each pause lasts</source>
        <translation>Wie lange jede Pause dauert</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Hil&amp;fe</translation>
    </message>
    <message>
        <source>Choose light or dark colours, or those with the highest contrast</source>
        <translation>Helle oder dunkle Farben oder den höchsten Kontrast wählen</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Empty the list, the fields and the options</source>
        <translation>Liste, Felder und Optionen leeren</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>What serves better for long lists, and how to hand this one over</source>
        <translation>Was für lange Listen besser ist und wie Sie diese übergeben</translation>
    </message>
    <message>
        <source>Other ways ...</source>
        <translation>Andere Wege ...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Look at each message as it will be sent, what is left out and why. Nothing is sent</source>
        <translation>Jede Nachricht so ansehen, wie sie gesendet wird, und was warum ausgelassen wird. Es wird nichts gesendet</translation>
    </message>
    <message>
        <source>Check before sending ...</source>
        <translation>Vor dem Senden prüfen ...</translation>
    </message>
    <message>
        <source>Send each recipient&apos;s message</source>
        <translation>Die Nachricht jedes Empfängers senden</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Senden</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Excluded number</source>
        <translation>Ausgeschlossene Nummer</translation>
    </message>
    <message>
        <source>1 recipient removed.</source>
        <translation>1 Empfänger entfernt.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients removed.</source>
        <translation>
            <numerusform>%n Empfänger entfernt.</numerusform>
            <numerusform>%n Empfänger entfernt.</numerusform>
        </translation>
    </message>
    <message>
        <source>List, fields and options were reset.</source>
        <translation>Liste, Felder und Optionen wurden zurückgesetzt.</translation>
    </message>
    <message>
        <source>Everything that can be done here, with its keys</source>
        <translation>Alles, was hier möglich ist, mit den Tasten dafür</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>What the program does, in short, and how to use it</source>
        <translation>Was das Programm kann, in Kürze, und wie man es benutzt</translation>
    </message>
    <message>
        <source>End the program, after a question</source>
        <translation>Das Programm beenden, nach einer Rückfrage</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Rufnummer:</translation>
    </message>
</context>
<context>
    <name>Delayed_Delivery</name>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n Sekunde</numerusform>
            <numerusform>%n Sekunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n Minute</numerusform>
            <numerusform>%n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>%n Stunde</numerusform>
            <numerusform>%n Stunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Demo_Phone</name>
    <message>
        <source>The virtual phone could not be started: %1: %2</source>
        <translation>Das virtuelle Telefon konnte nicht gestartet werden: %1: %2</translation>
    </message>
</context>
<context>
    <name>Desktop_Help</name>
    <message>
        <source>Messages are being sent</source>
        <translation>Nachrichten werden gesendet</translation>
    </message>
    <message>
        <source>Sending waits</source>
        <translation>Der Versand wartet</translation>
    </message>
    <message>
        <source>Sending has ended</source>
        <translation>Der Versand ist beendet</translation>
    </message>
</context>
<context>
    <name>Doctor_Wnd</name>
    <message>
        <source>Why does my phone not show?</source>
        <translation>Warum fehlt mein Telefon?</translation>
    </message>
    <message>
        <source>This looks at the ports of this computer and asks the devices on them. Nothing is sent, and no PIN is tried.</source>
        <translation>Dies prüft die Anschlüsse dieses Computers und fragt die Geräte daran. Es wird nichts gesendet und keine PIN versucht.</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Looking</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>No phone at hand?</source>
        <translation>Kein Telefon zur Hand?</translation>
    </message>
    <message>
        <source>Try the program with a virtual phone: nothing is really sent.</source>
        <translation>Probieren Sie das Programm mit einem virtuellen Telefon: Es wird nichts wirklich gesendet.</translation>
    </message>
    <message>
        <source>Use the &amp;virtual phone</source>
        <translation>&amp;Virtuelles Telefon nutzen</translation>
    </message>
    <message>
        <source>Look &amp;again</source>
        <translation>&amp;Erneut prüfen</translation>
    </message>
    <message>
        <source>Copy &amp;report</source>
        <translation>&amp;Bericht kopieren</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Looking at what is connected ...</source>
        <translation>Anschlüsse werden geprüft ...</translation>
    </message>
    <message>
        <source>Asking %1 ...</source>
        <translation>%1 wird gefragt ...</translation>
    </message>
    <message>
        <source>A device is there that could send.</source>
        <translation>Ein Gerät, das senden kann, ist da.</translation>
    </message>
    <message>
        <source>No device could send. What helps stands above.</source>
        <translation>Kein Gerät kann senden. Was hilft, steht oben.</translation>
    </message>
    <message>
        <source>The report is copied. It holds no numbers and no texts of messages.</source>
        <translation>Der Bericht ist kopiert. Er enthält keine Nummern und keine Nachrichtentexte.</translation>
    </message>
</context>
<context>
    <name>Exclusion_Trouble</name>
    <message>
        <source>The file that says which exclusion lists are applied
can not be read: no number is excluded.</source>
        <translation>Die Datei der angewendeten Ausschlusslisten
ist nicht lesbar: Keine Nummer ist ausgeschlossen.</translation>
    </message>
    <message>
        <source>The exclusion list %1
can not be used: its numbers are not excluded.</source>
        <translation>Die Ausschlussliste %1
ist nicht nutzbar: Ihre Nummern sind nicht ausgeschlossen.</translation>
    </message>
    <message>
        <source>The exclusion lists %1
can not be used: their numbers are not excluded.</source>
        <translation>Die Ausschlusslisten %1
sind nicht nutzbar: Ihre Nummern sind nicht ausgeschlossen.</translation>
    </message>
    <message>
        <source>The exclusion lists %1 and %2 more
can not be used: their numbers are not excluded.</source>
        <translation>Die Ausschlusslisten %1 und %2 weitere
sind nicht nutzbar: Ihre Nummern sind nicht ausgeschlossen.</translation>
    </message>
</context>
<context>
    <name>Exclusion_Wizard</name>
    <message>
        <source>Exclusion List Wizard</source>
        <translation>Assistent für Ausschlusslisten</translation>
    </message>
    <message>
        <source>Available exclusion lists</source>
        <translation>Vorhandene Ausschlusslisten</translation>
    </message>
    <message>
        <source>Apply the selected lists</source>
        <translation>Die ausgewählten Listen anwenden</translation>
    </message>
    <message>
        <source>Exclude the numbers of the selected lists when sending</source>
        <translation>Die Nummern der ausgewählten Listen beim Senden ausschließen</translation>
    </message>
    <message>
        <source>&amp;Apply  ›</source>
        <translation>An&amp;wenden  ›</translation>
    </message>
    <message>
        <source>Apply all lists</source>
        <translation>Alle Listen anwenden</translation>
    </message>
    <message>
        <source>Exclude the numbers of all lists when sending</source>
        <translation>Die Nummern aller Listen beim Senden ausschließen</translation>
    </message>
    <message>
        <source>Apply a&amp;ll  »</source>
        <translation>Alle anwe&amp;nden  »</translation>
    </message>
    <message>
        <source>Remove the selected applied lists</source>
        <translation>Die ausgewählten angewendeten Listen zurücknehmen</translation>
    </message>
    <message>
        <source>Do not exclude the numbers of the selected lists any more</source>
        <translation>Die Nummern der ausgewählten Listen nicht mehr ausschließen</translation>
    </message>
    <message>
        <source>‹  &amp;Remove</source>
        <translation>‹  &amp;Zurücknehmen</translation>
    </message>
    <message>
        <source>Remove all applied lists</source>
        <translation>Alle angewendeten Listen zurücknehmen</translation>
    </message>
    <message>
        <source>Do not exclude the numbers of any list any more</source>
        <translation>Keine Nummern mehr ausschließen</translation>
    </message>
    <message>
        <source>«  Re&amp;move all</source>
        <translation>«  &amp;Alle zurück</translation>
    </message>
    <message>
        <source>Lists to exclude when sending SMS</source>
        <translation>Beim Senden ausgeschlossene Listen</translation>
    </message>
    <message>
        <source>Make a new exclusion list</source>
        <translation>Eine neue Ausschlussliste anlegen</translation>
    </message>
    <message>
        <source>Add &amp;New ...</source>
        <translation>Ne&amp;u ...</translation>
    </message>
    <message>
        <source>Edit the numbers of the selected list</source>
        <translation>Die Nummern der ausgewählten Liste bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Update ...</source>
        <translation>&amp;Bearbeiten ...</translation>
    </message>
    <message>
        <source>Delete the selected lists and their numbers</source>
        <translation>Die ausgewählten Listen mit ihren Nummern löschen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Keep the lists on the right as those to exclude when sending</source>
        <translation>Die Listen rechts als beim Senden ausgeschlossene behalten</translation>
    </message>
    <message>
        <source>&amp;Save Applied</source>
        <translation>Auswahl &amp;speichern</translation>
    </message>
    <message>
        <source>Exclusion list name</source>
        <translation>Name der Ausschlussliste</translation>
    </message>
    <message>
        <source>A name for the list, at most 50 characters</source>
        <translation>Ein Name für die Liste, höchstens 50 Zeichen</translation>
    </message>
    <message>
        <source>Administration team</source>
        <translation>Verwaltung</translation>
    </message>
    <message>
        <source>File of numbers</source>
        <translation>Datei mit Nummern</translation>
    </message>
    <message>
        <source>A text or rich-text file with one number a line</source>
        <translation>Eine Text- oder RTF-Datei mit einer Nummer je Zeile</translation>
    </message>
    <message>
        <source>Pick the file</source>
        <translation>Die Datei auswählen</translation>
    </message>
    <message>
        <source>Bro&amp;wse ...</source>
        <translation>&amp;Durchsuchen ...</translation>
    </message>
    <message>
        <source>Add the numbers of the file to the list</source>
        <translation>Die Nummern der Datei zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Einlesen</translation>
    </message>
    <message>
        <source>or</source>
        <translation>oder</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Rufnummer</translation>
    </message>
    <message>
        <source>A phone number, at most 20 characters</source>
        <translation>Eine Rufnummer, höchstens 20 Zeichen</translation>
    </message>
    <message>
        <source>Add the number to the list</source>
        <translation>Die Nummer zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Numbers of the list</source>
        <translation>Nummern der Liste</translation>
    </message>
    <message>
        <source>Total Numbers : 0</source>
        <translation>Nummern gesamt: 0</translation>
    </message>
    <message>
        <source>Edit the selected number</source>
        <translation>Die ausgewählte Nummer bearbeiten</translation>
    </message>
    <message>
        <source>Remove the selected numbers from the list</source>
        <translation>Die ausgewählten Nummern aus der Liste entfernen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Ent&amp;fernen</translation>
    </message>
    <message>
        <source>Close; applied lists that were not saved are forgotten</source>
        <translation>Schließen; nicht gespeicherte Auswahl geht verloren</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abb&amp;rechen</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>Zurüc&amp;k</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>We&amp;iter</translation>
    </message>
    <message>
        <source>Save the list</source>
        <translation>Die Liste speichern</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>Ferti&amp;gstellen</translation>
    </message>
    <message>
        <source>Close; a list that was not finished is forgotten</source>
        <translation>Schließen; eine nicht fertiggestellte Liste geht verloren</translation>
    </message>
    <message>
        <source>Exclusion &amp;list name:</source>
        <translation>Name der Auss&amp;chlussliste:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Beispiel:</translation>
    </message>
    <message>
        <source>Numbers from a f&amp;ile:</source>
        <translation>Nummern aus Da&amp;tei:</translation>
    </message>
    <message>
        <source>One &amp;number:</source>
        <translation>Eine Nu&amp;mmer:</translation>
    </message>
</context>
<context>
    <name>Export_Option</name>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>In which format do you want to export the list?</source>
        <translation>In welchem Format möchten Sie die Liste exportieren?</translation>
    </message>
    <message>
        <source>&amp;Text file</source>
        <translation>&amp;Textdatei</translation>
    </message>
    <message>
        <source>Plain text, with a line between the entries</source>
        <translation>Reiner Text mit einer Linie zwischen den Einträgen</translation>
    </message>
    <message>
        <source>&amp;HTML page</source>
        <translation>&amp;HTML-Seite</translation>
    </message>
    <message>
        <source>A table that a web browser shows</source>
        <translation>Eine Tabelle für den Webbrowser</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
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
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Save with fields ...</source>
        <translation>Mit Feldern speichern ...</translation>
    </message>
    <message>
        <source>Write the list with its messages and fields into a table that can be opened again</source>
        <translation>Die Liste mit Nachrichten und Feldern in eine Tabelle schreiben, die sich wieder öffnen lässt</translation>
    </message>
    <message>
        <source>Fields of the list</source>
        <translation>Felder der Liste</translation>
    </message>
    <message>
        <source>Fields: %1</source>
        <translation>Felder: %1</translation>
    </message>
</context>
<context>
    <name>File_Panels</name>
    <message>
        <source>
%1 is there already.

Do you want to replace it?</source>
        <translation>
%1 ist schon da.

Möchten Sie die Datei ersetzen?</translation>
    </message>
</context>
<context>
    <name>Fill_Msg_In_List</name>
    <message>
        <source>Fill message into list</source>
        <translation>Nachricht in die Liste kopieren</translation>
    </message>
    <message>
        <source>Copy the message in the composer to:</source>
        <translation>Die verfasste Nachricht kopieren in:</translation>
    </message>
    <message>
        <source>Every number gets the message in the composer</source>
        <translation>Jede Nummer erhält die verfasste Nachricht</translation>
    </message>
    <message>
        <source>&amp;All numbers in the list</source>
        <translation>&amp;Alle Nummern der Liste</translation>
    </message>
    <message>
        <source>The numbers selected in the list get the message; the others keep theirs</source>
        <translation>Die ausgewählten Nummern erhalten die Nachricht; die anderen behalten ihre</translation>
    </message>
    <message>
        <source>The &amp;selected numbers</source>
        <translation>Die ausge&amp;wählten Nummern</translation>
    </message>
    <message>
        <source>The numbers whose message is empty get the message; the others keep theirs</source>
        <translation>Die Nummern mit leerer Nachricht erhalten sie; die anderen behalten ihre</translation>
    </message>
    <message>
        <source>The numbers without a &amp;message</source>
        <translation>Die Nummern ohne &amp;Nachricht</translation>
    </message>
    <message>
        <source>Leave the list as it is</source>
        <translation>Die Liste lassen, wie sie ist</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>Copy the message</source>
        <translation>Die Nachricht kopieren</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>Find_Strip</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Show all rows again (Escape)</source>
        <translation>Wieder alle Zeilen zeigen (Esc)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Suchen:</translation>
    </message>
    <message>
        <source>Only rows with all these words are shown. The list, and what is sent, stay as they are</source>
        <translation>Gezeigt werden nur Zeilen mit allen diesen Wörtern. Die Liste und was gesendet wird, bleiben, wie sie sind</translation>
    </message>
</context>
<context>
    <name>Finding_Row</name>
    <message>
        <source>Command to copy</source>
        <translation>Befehl zum Kopieren</translation>
    </message>
</context>
<context>
    <name>Fixed_Text</name>
    <message>
        <source>This number, or the service centre&apos;s, does not exist.</source>
        <extracomment>Texts::Causes::No_Such_Number</extracomment>
        <translation>Diese Nummer oder die der SMS-Zentrale gibt es nicht.</translation>
    </message>
    <message>
        <source>The recipient&apos;s number is invalid.</source>
        <translation>Die Nummer des Empfängers ist ungültig.</translation>
    </message>
    <message>
        <source>Messages to this recipient are barred.</source>
        <translation>An diesen Empfänger sind Nachrichten gesperrt.</translation>
    </message>
    <message>
        <source>The recipient&apos;s network is out of order.</source>
        <translation>Das Netz des Empfängers ist gestört.</translation>
    </message>
    <message>
        <source>The operator has barred sending.</source>
        <translation>Der Netzbetreiber hat das Senden gesperrt.</translation>
    </message>
    <message>
        <source>Sending is barred on this SIM card.</source>
        <translation>Auf dieser SIM-Karte ist das Senden gesperrt.</translation>
    </message>
    <message>
        <source>The service centre does not know this SIM card.</source>
        <translation>Die SMS-Zentrale kennt diese SIM-Karte nicht.</translation>
    </message>
    <message>
        <source>The network does not grant this service.</source>
        <translation>Das Netz gewährt diesen Dienst nicht.</translation>
    </message>
    <message>
        <source>The network does not know this SIM card.</source>
        <translation>Das Netz kennt diese SIM-Karte nicht.</translation>
    </message>
    <message>
        <source>Text messages are not part of the contract.</source>
        <translation>Der Vertrag enthält keine Textnachrichten.</translation>
    </message>
    <message>
        <source>The network does not offer text messages.</source>
        <translation>Das Netz bietet keine Textnachrichten an.</translation>
    </message>
    <message>
        <source>There is no contract with the service centre.</source>
        <translation>Mit der SMS-Zentrale besteht kein Vertrag.</translation>
    </message>
    <message>
        <source>The network has failed.</source>
        <translation>Das Netz ist ausgefallen.</translation>
    </message>
    <message>
        <source>The network rejects this message.</source>
        <translation>Das Netz weist diese Nachricht ab.</translation>
    </message>
    <message>
        <source>The network is congested.</source>
        <translation>Das Netz ist überlastet.</translation>
    </message>
    <message>
        <source>The network is out of order.</source>
        <translation>Das Netz ist gestört.</translation>
    </message>
    <message>
        <source>The network has a temporary failure.</source>
        <translation>Das Netz ist vorübergehend gestört.</translation>
    </message>
    <message>
        <source>The service centre is congested.</source>
        <translation>Die SMS-Zentrale ist überlastet.</translation>
    </message>
    <message>
        <source>The network has no room for messages now.</source>
        <translation>Das Netz hat gerade keinen Platz für Nachrichten.</translation>
    </message>
    <message>
        <source>The network has lost track of this message.</source>
        <translation>Das Netz hat diese Nachricht verloren.</translation>
    </message>
    <message>
        <source>There is trouble between two networks.</source>
        <translation>Zwischen zwei Netzen gibt es eine Störung.</translation>
    </message>
    <message>
        <source>The service centre is busy.</source>
        <translation>Die SMS-Zentrale ist beschäftigt.</translation>
    </message>
    <message>
        <source>The service centre has failed.</source>
        <translation>Die SMS-Zentrale ist ausgefallen.</translation>
    </message>
    <message>
        <source>The service centre already has this message.</source>
        <translation>Die SMS-Zentrale hat diese Nachricht schon.</translation>
    </message>
    <message>
        <source>The network gives a reason of its own.</source>
        <translation>Das Netz nennt einen eigenen Grund.</translation>
    </message>
    <message>
        <source>The network gives no reason.</source>
        <translation>Das Netz nennt keinen Grund.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number is not known.</source>
        <translation>Die Nummer der SMS-Zentrale ist unbekannt.</translation>
    </message>
    <message>
        <source>There is no network.</source>
        <translation>Es ist kein Netz da.</translation>
    </message>
    <message>
        <source>The network allows nothing but emergency calls.</source>
        <translation>Das Netz erlaubt nur Notrufe.</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>Das Netz hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>There was no radio connection.</source>
        <translation>Es gab keine Funkverbindung.</translation>
    </message>
    <message>
        <source>The radio connection was lost.</source>
        <translation>Die Funkverbindung ging verloren.</translation>
    </message>
    <message>
        <source>The network found the message malformed.</source>
        <translation>Das Netz hält die Nachricht für fehlerhaft.</translation>
    </message>
    <message>
        <source>The network does not accept this kind of message.</source>
        <translation>Das Netz nimmt Nachrichten dieser Art nicht an.</translation>
    </message>
    <message>
        <source>The network does not accept this alphabet.</source>
        <translation>Das Netz nimmt dieses Alphabet nicht an.</translation>
    </message>
    <message>
        <source>The network accepts no message that shows at once.</source>
        <translation>Das Netz nimmt keine sofort angezeigten Nachrichten an.</translation>
    </message>
    <message>
        <source>The network does not accept this command.</source>
        <translation>Das Netz nimmt diesen Befehl nicht an.</translation>
    </message>
    <message>
        <source>The network does not keep messages for so long.</source>
        <translation>Das Netz hebt Nachrichten nicht so lange auf.</translation>
    </message>
    <message>
        <source>The modem rejects the message or its number.</source>
        <translation>Das Modem weist die Nachricht oder ihre Nummer ab.</translation>
    </message>
    <message>
        <source>There is no SIM card.</source>
        <translation>Es ist keine SIM-Karte da.</translation>
    </message>
    <message>
        <source>This is the wrong SIM card.</source>
        <translation>Dies ist die falsche SIM-Karte.</translation>
    </message>
    <message>
        <source>The SIM card has failed.</source>
        <translation>Die SIM-Karte ist ausgefallen.</translation>
    </message>
    <message>
        <source>The SIM card is busy.</source>
        <translation>Die SIM-Karte ist beschäftigt.</translation>
    </message>
    <message>
        <source>The SIM card has no room for messages.</source>
        <translation>Die SIM-Karte hat keinen Platz für Nachrichten.</translation>
    </message>
    <message>
        <source>The SIM card cannot store messages.</source>
        <translation>Die SIM-Karte kann keine Nachrichten speichern.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN.</source>
        <translation>Die SIM-Karte verlangt ihre PIN.</translation>
    </message>
    <message>
        <source>The phone wants the PIN that ties it to its SIM card.</source>
        <translation>Das Telefon verlangt die PIN, die es an seine SIM-Karte bindet.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN2.</source>
        <translation>Die SIM-Karte verlangt ihre PIN2.</translation>
    </message>
    <message>
        <source>The SIM card wants its PUK.</source>
        <translation>Die SIM-Karte verlangt ihre PUK.</translation>
    </message>
    <message>
        <source>The SIM card wants its PUK2.</source>
        <translation>Die SIM-Karte verlangt ihre PUK2.</translation>
    </message>
    <message>
        <source>The modem was busy with another message.</source>
        <translation>Das Modem war mit einer anderen Nachricht beschäftigt.</translation>
    </message>
    <message>
        <source>The phone has no room for messages.</source>
        <translation>Das Telefon hat keinen Platz für Nachrichten.</translation>
    </message>
    <message>
        <source>The phone has failed.</source>
        <translation>Das Telefon ist ausgefallen.</translation>
    </message>
    <message>
        <source>Another program has reserved the phone&apos;s messages.</source>
        <translation>Ein anderes Programm hat die Nachrichten des Telefons belegt.</translation>
    </message>
    <message>
        <source>The phone does not allow sending now.</source>
        <translation>Das Telefon erlaubt das Senden gerade nicht.</translation>
    </message>
    <message>
        <source>The phone does not support this.</source>
        <translation>Das Telefon unterstützt dies nicht.</translation>
    </message>
    <message>
        <source>The phone&apos;s memory has failed.</source>
        <translation>Der Speicher des Telefons ist ausgefallen.</translation>
    </message>
    <message>
        <source>The phone has no such place in its memory.</source>
        <translation>Das Telefon hat keinen solchen Speicherplatz.</translation>
    </message>
    <message>
        <source>The phone expects no acknowledgement.</source>
        <translation>Das Telefon erwartet keine Bestätigung.</translation>
    </message>
    <message>
        <source>The modem is still starting.</source>
        <translation>Das Modem startet noch.</translation>
    </message>
    <message>
        <source>The modem is busy.</source>
        <translation>Das Modem ist beschäftigt.</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
    <message>
        <source>The modem gives a reason of its own.</source>
        <translation>Das Modem nennt einen eigenen Grund.</translation>
    </message>
    <message>
        <source>The modem gives a reason that is not known here.</source>
        <translation>Das Modem nennt einen hier unbekannten Grund.</translation>
    </message>
    <message>
        <source>The modem refuses and gives no reason.</source>
        <translation>Das Modem lehnt ab und nennt keinen Grund.</translation>
    </message>
    <message>
        <source>The device is gone. Waiting until it is back.</source>
        <translation>Das Gerät ist weg. Warten, bis es wieder da ist.</translation>
    </message>
    <message>
        <source>The device does not answer. Waiting until it does.</source>
        <translation>Das Gerät antwortet nicht. Warten, bis es antwortet.</translation>
    </message>
    <message>
        <source>Still waiting for the network.</source>
        <translation>Noch wird auf das Netz gewartet.</translation>
    </message>
    <message>
        <source>Waiting for delivery reports.</source>
        <translation>Warten auf Zustellberichte.</translation>
    </message>
    <message>
        <source>The device was not ready in time.</source>
        <translation>Das Gerät war nicht rechtzeitig bereit.</translation>
    </message>
    <message>
        <source>The job&apos;s journal cannot be written, so nothing more is sent</source>
        <translation>Das Protokoll des Auftrags lässt sich nicht schreiben, daher wird nichts mehr gesendet</translation>
    </message>
    <message>
        <source>Several messages in a row ended alike, so nothing more is sent</source>
        <translation>Mehrere Nachrichten hintereinander endeten gleich, daher wird nichts mehr gesendet</translation>
    </message>
    <message>
        <source>Not every message was sent. The list says what became of each.</source>
        <translation>Nicht jede Nachricht wurde gesendet. Die Liste sagt, was aus jeder wurde.</translation>
    </message>
    <message>
        <source>The device takes no text messages.</source>
        <translation>Das Gerät nimmt keine Textnachrichten an.</translation>
    </message>
    <message>
        <source>Those not taken may pass as normal text messages.</source>
        <translation>Die nicht angenommenen gehen womöglich als normale Textnachrichten durch.</translation>
    </message>
    <message>
        <source>The device gave no prompt.</source>
        <translation>Das Gerät gab keine Eingabeaufforderung.</translation>
    </message>
    <message>
        <source>The device gave no result in time.</source>
        <translation>Das Gerät meldete nicht rechtzeitig ein Ergebnis.</translation>
    </message>
    <message>
        <source>The device said OK but gave no reference.</source>
        <translation>Das Gerät meldete OK, aber keine Referenz.</translation>
    </message>
    <message>
        <source>The device&apos;s result may be that of an earlier message.</source>
        <translation>Das Ergebnis des Geräts gilt womöglich einer früheren Nachricht.</translation>
    </message>
    <message>
        <source>The device was gone before its result.</source>
        <translation>Das Gerät war vor seinem Ergebnis weg.</translation>
    </message>
    <message>
        <source>The program ended before the result.</source>
        <translation>Das Programm endete vor dem Ergebnis.</translation>
    </message>
    <message>
        <source>Somebody has counted it as sent.</source>
        <translation>Jemand hat sie als gesendet gezählt.</translation>
    </message>
    <message>
        <source>The number cannot be dialled.</source>
        <translation>Die Nummer ist nicht wählbar.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>%1 is connected.</source>
        <translation>%1 ist angeschlossen.</translation>
    </message>
    <message>
        <source>No phone or modem was found on USB or Bluetooth.</source>
        <translation>Über USB oder Bluetooth wurde kein Telefon oder Modem gefunden.</translation>
    </message>
    <message>
        <source>Switch it on, connect it, and on a phone choose the modem or data mode. It takes some seconds until it appears.</source>
        <translation>Schalten Sie es ein, schließen Sie es an und wählen Sie an einem Telefon den Modem- oder Datenmodus. Nach einigen Sekunden erscheint es.</translation>
    </message>
    <message>
        <source>There is no device at %1.</source>
        <translation>An %1 ist kein Gerät.</translation>
    </message>
    <message>
        <source>Plug it in again, or look under which name it appears now.</source>
        <translation>Stecken Sie es neu ein, oder sehen Sie nach, unter welchem Namen es jetzt erscheint.</translation>
    </message>
    <message>
        <source>%1 is connected as a network card. In this mode it has no port for messages.</source>
        <translation>%1 ist als Netzwerkkarte angeschlossen. So hat es keinen Anschluss für Nachrichten.</translation>
    </message>
    <message>
        <source>Switch it to its modem mode with the maker&apos;s own program or page, or use another modem.</source>
        <translation>Schalten Sie es mit dem Programm oder der Seite des Herstellers in den Modemmodus, oder nehmen Sie ein anderes Modem.</translation>
    </message>
    <message>
        <source>%1 is connected as a disc. In this mode it has no port for messages.</source>
        <translation>%1 ist als Datenträger angeschlossen. So hat es keinen Anschluss für Nachrichten.</translation>
    </message>
    <message>
        <source>Install the program that switches such sticks, then unplug the stick and plug it in again:</source>
        <translation>Installieren Sie das Programm, das solche Sticks umschaltet, und stecken Sie den Stick dann neu ein:</translation>
    </message>
    <message>
        <source>%1 is for positions (GPS), not for messages.</source>
        <translation>%1 ist für die Position (GPS), nicht für Nachrichten.</translation>
    </message>
    <message>
        <source>%1 is for the maker&apos;s diagnostics, not for messages.</source>
        <translation>%1 ist für die Diagnose des Herstellers, nicht für Nachrichten.</translation>
    </message>
    <message>
        <source>%1 is for sound, not for messages.</source>
        <translation>%1 ist für Ton, nicht für Nachrichten.</translation>
    </message>
    <message>
        <source>This system&apos;s settings say that %1 is no modem&apos;s port.</source>
        <translation>Laut den Einstellungen des Systems gehört %1 zu keinem Modem.</translation>
    </message>
    <message>
        <source>Use another port of the same device.</source>
        <translation>Nehmen Sie einen anderen Anschluss desselben Geräts.</translation>
    </message>
    <message>
        <source>Your account may not open %1.</source>
        <translation>Ihr Konto darf %1 nicht öffnen.</translation>
    </message>
    <message>
        <source>Members of the group %1 may. Join it with this command, then log out and in again:</source>
        <translation>Mitglieder der Gruppe %1 dürfen es. Treten Sie ihr mit diesem Befehl bei, melden Sie sich dann ab und wieder an:</translation>
    </message>
    <message>
        <source>Only the system&apos;s administrator can allow it.</source>
        <translation>Das kann nur die Systemverwaltung erlauben.</translation>
    </message>
    <message>
        <source>%1 is in use by %2 (process %3).</source>
        <translation>%1 wird von %2 benutzt (Prozess %3).</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 wird von einem anderen Programm benutzt.</translation>
    </message>
    <message>
        <source>End that program, and look again.</source>
        <translation>Beenden Sie jenes Programm und prüfen Sie erneut.</translation>
    </message>
    <message>
        <source>%1 is in use by ModemManager, the system&apos;s modem service.</source>
        <translation>%1 wird von ModemManager benutzt, dem Modemdienst des Systems.</translation>
    </message>
    <message>
        <source>Stop the service until the next start of the computer:</source>
        <translation>Halten Sie den Dienst bis zum nächsten Start des Computers an:</translation>
    </message>
    <message>
        <source>%1 cannot be opened (%2).</source>
        <translation>%1 lässt sich nicht öffnen (%2).</translation>
    </message>
    <message>
        <source>Unplug the device, wait ten seconds and plug it in again.</source>
        <translation>Ziehen Sie das Gerät ab, warten Sie zehn Sekunden und stecken Sie es wieder ein.</translation>
    </message>
    <message>
        <source>%1 answers.</source>
        <translation>%1 antwortet.</translation>
    </message>
    <message>
        <source>%1 does not answer as a modem.</source>
        <translation>%1 antwortet nicht wie ein Modem.</translation>
    </message>
    <message>
        <source>Unplug the device, wait ten seconds and plug it in again. On a phone, choose the modem or data mode.</source>
        <translation>Ziehen Sie das Gerät ab, warten Sie zehn Sekunden und stecken Sie es wieder ein. Wählen Sie an einem Telefon den Modem- oder Datenmodus.</translation>
    </message>
    <message>
        <source>Nothing answers on %1, a serial socket of the computer itself.</source>
        <translation>An %1, einer seriellen Buchse des Computers, antwortet nichts.</translation>
    </message>
    <message>
        <source>If a modem is connected there, switch it on and look at its cable.</source>
        <translation>Ist dort ein Modem angeschlossen, schalten Sie es ein und prüfen Sie das Kabel.</translation>
    </message>
    <message>
        <source>The SIM card is ready.</source>
        <translation>Die SIM-Karte ist bereit.</translation>
    </message>
    <message>
        <source>The device does not say whether its SIM card is ready.</source>
        <translation>Das Gerät sagt nicht, ob seine SIM-Karte bereit ist.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN. Tries left: %1.</source>
        <translation>Die SIM-Karte verlangt ihre PIN. Verbleibende Versuche: %1.</translation>
    </message>
    <message>
        <source>Put the card into a phone and enter the PIN there, or turn its question for the PIN off. No PIN is tried here.</source>
        <translation>Legen Sie die Karte in ein Telefon und geben Sie die PIN dort ein, oder schalten Sie die PIN-Abfrage aus. Hier wird keine PIN versucht.</translation>
    </message>
    <message>
        <source>The SIM card is blocked and wants its PUK.</source>
        <translation>Die SIM-Karte ist gesperrt und verlangt ihre PUK.</translation>
    </message>
    <message>
        <source>The SIM card is blocked and wants its PUK. Tries left: %1.</source>
        <translation>Die SIM-Karte ist gesperrt und verlangt ihre PUK. Verbleibende Versuche: %1.</translation>
    </message>
    <message>
        <source>Put the card into a phone and enter the PUK there. The operator gives it to you.</source>
        <translation>Legen Sie die Karte in ein Telefon und geben Sie die PUK dort ein. Sie erhalten sie vom Netzbetreiber.</translation>
    </message>
    <message>
        <source>The device wants a code that ties it to a card or an operator.</source>
        <translation>Das Gerät verlangt einen Code, der es an eine Karte oder einen Netzbetreiber bindet.</translation>
    </message>
    <message>
        <source>Use the card it was sold with, or ask the seller to unlock it.</source>
        <translation>Nehmen Sie die mitgelieferte Karte, oder lassen Sie das Gerät vom Verkäufer entsperren.</translation>
    </message>
    <message>
        <source>There is no SIM card in the device.</source>
        <translation>Im Gerät ist keine SIM-Karte.</translation>
    </message>
    <message>
        <source>Put a card in, the right way round, and plug the device in again.</source>
        <translation>Legen Sie eine Karte richtig herum ein und stecken Sie das Gerät neu ein.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read.</source>
        <translation>Die SIM-Karte ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Take the card out, wipe its contacts and put it in again, or try it in a phone.</source>
        <translation>Nehmen Sie die Karte heraus, wischen Sie die Kontakte ab und legen Sie sie wieder ein, oder probieren Sie sie in einem Telefon.</translation>
    </message>
    <message>
        <source>The SIM card is still being read.</source>
        <translation>Die SIM-Karte wird noch gelesen.</translation>
    </message>
    <message>
        <source>Wait half a minute and look again. If it stays so, plug the device in again.</source>
        <translation>Warten Sie eine halbe Minute und prüfen Sie erneut. Bleibt es so, stecken Sie das Gerät neu ein.</translation>
    </message>
    <message>
        <source>The device is registered with its network.</source>
        <translation>Das Gerät ist in seinem Netz angemeldet.</translation>
    </message>
    <message>
        <source>The device is registered with a foreign network (roaming).</source>
        <translation>Das Gerät ist in einem fremden Netz angemeldet (Roaming).</translation>
    </message>
    <message>
        <source>Messages can be sent; ask your operator what they cost abroad.</source>
        <translation>Nachrichten lassen sich senden; fragen Sie Ihren Netzbetreiber, was sie im Ausland kosten.</translation>
    </message>
    <message>
        <source>The network lets the device make emergency calls alone.</source>
        <translation>Das Netz erlaubt dem Gerät nur Notrufe.</translation>
    </message>
    <message>
        <source>The network does not accept the SIM card.</source>
        <translation>Das Netz nimmt die SIM-Karte nicht an.</translation>
    </message>
    <message>
        <source>Ask the operator whether the card is active, and try it in a phone.</source>
        <translation>Fragen Sie den Netzbetreiber, ob die Karte freigeschaltet ist, und probieren Sie sie in einem Telefon.</translation>
    </message>
    <message>
        <source>The device is looking for a network.</source>
        <translation>Das Gerät sucht ein Netz.</translation>
    </message>
    <message>
        <source>Wait a minute, or move the device or its aerial to a window, and look again.</source>
        <translation>Warten Sie eine Minute, oder stellen Sie Gerät oder Antenne ans Fenster, und prüfen Sie erneut.</translation>
    </message>
    <message>
        <source>The device is not registered with a network and looks for none.</source>
        <translation>Das Gerät ist in keinem Netz angemeldet und sucht keines.</translation>
    </message>
    <message>
        <source>Switch its radio on (no flight mode), or plug the device in again.</source>
        <translation>Schalten Sie den Funk ein (kein Flugmodus), oder stecken Sie das Gerät neu ein.</translation>
    </message>
    <message>
        <source>The device does not say whether it has a network.</source>
        <translation>Das Gerät sagt nicht, ob es ein Netz hat.</translation>
    </message>
    <message>
        <source>Send one message to yourself before you send to others.</source>
        <translation>Senden Sie zuerst eine Nachricht an sich selbst.</translation>
    </message>
    <message>
        <source>The signal is strong enough (%1 dBm).</source>
        <translation>Das Signal ist stark genug (%1 dBm).</translation>
    </message>
    <message>
        <source>The signal is weak (%1 dBm).</source>
        <translation>Das Signal ist schwach (%1 dBm).</translation>
    </message>
    <message>
        <source>Move the device or its aerial to a window.</source>
        <translation>Stellen Sie das Gerät oder seine Antenne ans Fenster.</translation>
    </message>
    <message>
        <source>The device does not say how strong the signal is.</source>
        <translation>Das Gerät sagt nicht, wie stark das Signal ist.</translation>
    </message>
    <message>
        <source>A service centre for messages is stored.</source>
        <translation>Eine SMS-Zentrale ist gespeichert.</translation>
    </message>
    <message>
        <source>No service centre for messages is stored.</source>
        <translation>Es ist keine SMS-Zentrale gespeichert.</translation>
    </message>
    <message>
        <source>What is stored as the service centre for messages is no number.</source>
        <translation>Was als SMS-Zentrale gespeichert ist, ist keine Nummer.</translation>
    </message>
    <message>
        <source>Ask the operator for its number, and give it as a custom number in the wizard.</source>
        <translation>Fragen Sie den Netzbetreiber nach ihrer Nummer und geben Sie sie im Assistenten als eigene Nummer ein.</translation>
    </message>
    <message>
        <source>The device does not say which service centre for messages it has.</source>
        <translation>Das Gerät sagt nicht, welche SMS-Zentrale es hat.</translation>
    </message>
    <message>
        <source>The device takes messages to be sent.</source>
        <translation>Das Gerät nimmt Nachrichten zum Senden an.</translation>
    </message>
    <message>
        <source>The device takes no messages to be sent.</source>
        <translation>Das Gerät nimmt keine Nachrichten zum Senden an.</translation>
    </message>
    <message>
        <source>Use another port of the device, or another device.</source>
        <translation>Nehmen Sie einen anderen Anschluss des Geräts oder ein anderes Gerät.</translation>
    </message>
    <message>
        <source>free</source>
        <translation>frei</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>belegt</translation>
    </message>
    <message>
        <source>no right</source>
        <translation>keine Rechte</translation>
    </message>
    <message>
        <source>not for messages</source>
        <translation>nicht für Nachrichten</translation>
    </message>
    <message>
        <source>Why a phone does not show: what was looked at</source>
        <translation>Warum ein Telefon fehlt: was geprüft wurde</translation>
    </message>
    <message>
        <source>(number left out)</source>
        <translation>(Nummer ausgelassen)</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>nicht versucht</translation>
    </message>
    <message>
        <source>written</source>
        <translation>geschrieben</translation>
    </message>
    <message>
        <source>taken by the phone</source>
        <translation>vom Telefon angenommen</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>gesendet</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>abgelehnt</translation>
    </message>
    <message>
        <source>partly taken</source>
        <translation>teilweise angenommen</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>keine Antwort</translation>
    </message>
    <message>
        <source>may have been sent</source>
        <translation>vielleicht gesendet</translation>
    </message>
    <message>
        <source>skipped: excluded</source>
        <translation>übersprungen: ausgeschlossen</translation>
    </message>
    <message>
        <source>skipped: repeated</source>
        <translation>übersprungen: doppelt</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>übersprungen</translation>
    </message>
    <message>
        <source>skipped: invalid number</source>
        <translation>übersprungen: ungültige Nummer</translation>
    </message>
    <message>
        <source>skipped: not filled</source>
        <translation>übersprungen: nicht ausgefüllt</translation>
    </message>
    <message>
        <source>skipped: </source>
        <translation>übersprungen: </translation>
    </message>
    <message>
        <source>CME </source>
        <translation>CME </translation>
    </message>
    <message>
        <source>an earlier row has its number</source>
        <translation>eine frühere Zeile hat ihre Nummer</translation>
    </message>
    <message>
        <source>the list has its number already</source>
        <translation>die Liste hat ihre Nummer schon</translation>
    </message>
    <message>
        <source>its number is in an exclusion list</source>
        <translation>ihre Nummer steht in einer Ausschlussliste</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>%1 is not used</source>
        <translation>%1 wird nicht verwendet</translation>
    </message>
    <message>
        <source>it holds an earlier hand-over</source>
        <translation>enthält eine frühere Übergabe</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Sendebericht</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>Begonnen</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>SIM-Karte</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>d MMMM yyyy, HH:mm</source>
        <translation>d. MMMM yyyy, HH:mm</translation>
    </message>
    <message>
        <source>ends with </source>
        <translation>endet auf </translation>
    </message>
    <message>
        <source>ended</source>
        <translation>beendet</translation>
    </message>
    <message>
        <source>not ended</source>
        <translation>nicht beendet</translation>
    </message>
    <message>
        <source>Recipients</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Abgelehnt</translation>
    </message>
    <message>
        <source>May have been sent</source>
        <translation>Vielleicht gesendet</translation>
    </message>
    <message>
        <source>Not tried</source>
        <translation>Nicht versucht</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Übersprungen</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Zugestellt</translation>
    </message>
    <message>
        <source>Still trying</source>
        <translation>Wird noch versucht</translation>
    </message>
    <message>
        <source>Not delivered</source>
        <translation>Nicht zugestellt</translation>
    </message>
    <message>
        <source>No report</source>
        <translation>Kein Bericht</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Parts sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>Delivery</source>
        <translation>Zustellung</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>no report</source>
        <translation>kein Bericht</translation>
    </message>
    <message>
        <source>Some of its parts were sent.</source>
        <translation>Einige ihrer Teile wurden gesendet.</translation>
    </message>
    <message>
        <source>The list of the job can no longer be read.</source>
        <translation>Die Liste des Auftrags ist nicht mehr lesbar.</translation>
    </message>
    <message>
        <source>a placeholder is empty</source>
        <translation>ein Platzhalter ist leer</translation>
    </message>
    <message>
        <source>a placeholder is unknown</source>
        <translation>ein Platzhalter ist unbekannt</translation>
    </message>
    <message>
        <source>wrong number of columns</source>
        <translation>falsche Spaltenzahl</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>zu lang</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>die Datei gibt es nicht</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>das ist keine Datei</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes, or may not be read</source>
        <translation>sie ist größer als %1 Bytes oder darf nicht gelesen werden</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>sie ist leer</translation>
    </message>
    <message>
        <source>it is no text: line %1 holds characters that no list has</source>
        <translation>sie ist kein Text: Zeile %1 enthält Zeichen, die in keiner Liste stehen</translation>
    </message>
    <message>
        <source>it is %1, and no list</source>
        <translation>es handelt sich um %1, nicht um eine Liste</translation>
    </message>
    <message>
        <source>a PDF document</source>
        <translation>ein PDF-Dokument</translation>
    </message>
    <message>
        <source>a program</source>
        <translation>ein Programm</translation>
    </message>
    <message>
        <source>a compressed file</source>
        <translation>eine komprimierte Datei</translation>
    </message>
    <message>
        <source>a picture</source>
        <translation>ein Bild</translation>
    </message>
    <message>
        <source>a web page</source>
        <translation>eine Webseite</translation>
    </message>
    <message>
        <source>an XML document</source>
        <translation>ein XML-Dokument</translation>
    </message>
    <message>
        <source>an archive</source>
        <translation>ein Archiv</translation>
    </message>
    <message>
        <source>it is rich text; its numbers can be imported under a name that ends in .rtf</source>
        <translation>sie ist formatierter Text; unter einem Namen mit .rtf am Ende lassen sich ihre Nummern importieren</translation>
    </message>
    <message>
        <source>it is a spreadsheet or an archive, and no list of numbers alone</source>
        <translation>sie ist eine Tabelle oder ein Archiv, keine reine Nummernliste</translation>
    </message>
    <message>
        <source>it holds contacts, and not numbers alone</source>
        <translation>sie enthält Kontakte, nicht nur Nummern</translation>
    </message>
    <message>
        <source>it is a spreadsheet in an old format; saved as .xlsx, .ods or CSV it can be read</source>
        <translation>sie ist eine Tabelle in einem alten Format; als .xlsx, .ods oder CSV gespeichert ist sie lesbar</translation>
    </message>
    <message>
        <source>it is encrypted; saved without a password it can be read</source>
        <translation>sie ist verschlüsselt; ohne Passwort gespeichert ist sie lesbar</translation>
    </message>
    <message>
        <source>it holds more than can be read</source>
        <translation>sie enthält mehr, als sich lesen lässt</translation>
    </message>
    <message>
        <source>row %1 has more than %2 fields</source>
        <translation>Zeile %1 hat mehr als %2 Felder</translation>
    </message>
    <message>
        <source>its first row holds the number %1, and no names of columns</source>
        <translation>ihre erste Zeile enthält die Nummer %1 und keine Spaltennamen</translation>
    </message>
    <message>
        <source>the encoding &quot;%1&quot; is not known</source>
        <translation>der Zeichensatz „%1“ ist unbekannt</translation>
    </message>
    <message>
        <source>it is not encoded in %1</source>
        <translation>ihr Zeichensatz ist nicht %1</translation>
    </message>
    <message>
        <source>it mixes UTF-8 with another encoding; line %1 is not UTF-8</source>
        <translation>sie mischt UTF-8 mit einem anderen Zeichensatz; Zeile %1 ist nicht UTF-8</translation>
    </message>
    <message>
        <source>the quote that opens in line %1 is never closed</source>
        <translation>das Anführungszeichen in Zeile %1 wird nie geschlossen</translation>
    </message>
    <message>
        <source>it has no sheets</source>
        <translation>sie hat keine Blätter</translation>
    </message>
    <message>
        <source>it has no sheet &quot;%1&quot;; its sheets are %2</source>
        <translation>sie hat kein Blatt „%1“; ihre Blätter sind %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>it is damaged, or only a part of it</source>
        <translation>sie ist beschädigt oder unvollständig</translation>
    </message>
    <message>
        <source>the contact that begins in line %1 has no end</source>
        <translation>der Kontakt ab Zeile %1 hat kein Ende</translation>
    </message>
    <message>
        <source>%1 fields where %2 have names</source>
        <translation>%1 Felder, aber %2 Namen</translation>
    </message>
    <message>
        <source>text follows a closing quote</source>
        <translation>nach einem schließenden Anführungszeichen folgt Text</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 ist leer</translation>
    </message>
    <message>
        <source>%1 is unknown</source>
        <translation>%1 ist unbekannt</translation>
    </message>
    <message>
        <source>its text is empty</source>
        <translation>ihr Text ist leer</translation>
    </message>
    <message>
        <source>its text is too long</source>
        <translation>ihr Text ist zu lang</translation>
    </message>
    <message>
        <source>national, taken as one of %1</source>
        <translation>national, gelesen für: %1</translation>
    </message>
    <message>
        <source>the code of %1 was put in front</source>
        <translation>Landesvorwahl ergänzt: %1</translation>
    </message>
    <message>
        <source>its first 0 may have been lost; taken as one of %1</source>
        <translation>die erste 0 fehlt womöglich; gelesen für: %1</translation>
    </message>
    <message>
        <source>its + may have been lost; taken as an international one of %1</source>
        <translation>das + fehlt womöglich; international gelesen für: %1</translation>
    </message>
    <message>
        <source>there is no number</source>
        <translation>es ist keine Nummer da</translation>
    </message>
    <message>
        <source>a spreadsheet has rounded it; its digits are lost</source>
        <translation>eine Tabellenkalkulation hat sie gerundet; Ziffern sind verloren</translation>
    </message>
    <message>
        <source>it is no number</source>
        <translation>das ist keine Nummer</translation>
    </message>
    <message>
        <source>these are several numbers</source>
        <translation>das sind mehrere Nummern</translation>
    </message>
    <message>
        <source>it has too few digits</source>
        <translation>sie hat zu wenige Ziffern</translation>
    </message>
    <message>
        <source>it has too many digits</source>
        <translation>sie hat zu viele Ziffern</translation>
    </message>
    <message>
        <source>no country has its code</source>
        <translation>kein Land hat ihre Vorwahl</translation>
    </message>
    <message>
        <source>Please enter a valid phone number.</source>
        <translation>Bitte geben Sie eine gültige Rufnummer ein.</translation>
    </message>
    <message>
        <source>Entered number already exists.</source>
        <translation>Diese Nummer ist schon vorhanden.</translation>
    </message>
    <message>
        <source>Entered number is in exclusion list.</source>
        <translation>Diese Nummer steht in einer Ausschlussliste.</translation>
    </message>
    <message>
        <source>Please select only one record to update.</source>
        <translation>Bitte wählen Sie zum Bearbeiten nur einen Eintrag aus.</translation>
    </message>
    <message>
        <source>Please enter some text message.</source>
        <translation>Bitte geben Sie eine Nachricht ein.</translation>
    </message>
    <message>
        <source>Error in file accessing.</source>
        <translation>Fehler beim Zugriff auf die Datei.</translation>
    </message>
    <message>
        <source>
This option will clear the entire list contents. Are you sure you want to continue clearing the entire list?</source>
        <translation>
Damit wird die ganze Liste geleert. Möchten Sie wirklich fortfahren?</translation>
    </message>
    <message>
        <source>Total Numbers : </source>
        <translation>Nummern gesamt: </translation>
    </message>
    <message>
        <source>Can not access Corvane Data file.</source>
        <translation>Kein Zugriff auf die Datendatei von Corvane.</translation>
    </message>
    <message>
        <source>
Do you really want to exit from &apos;Corvane&apos;?</source>
        <translation>
Möchten Sie Corvane wirklich beenden?</translation>
    </message>
    <message>
        <source>No Mobile Phone Device is selected.</source>
        <translation>Kein Mobiltelefon ausgewählt.</translation>
    </message>
    <message>
        <source>No Mobile Phone Device is selected. Click here to start Mobile Phone Connection Wizard.</source>
        <translation>Kein Mobiltelefon ausgewählt. Klicken Sie hier, um den Verbindungsassistenten zu starten.</translation>
    </message>
    <message>
        <source>Apply this<byte value="xd"/>
message to<byte value="xd"/>
list items</source>
        <translation>Nachricht in<byte value="xd"/>
die Liste<byte value="xd"/>
kopieren</translation>
    </message>
    <message>
        <source>Phone numbers-Messages list is empty.</source>
        <translation>Die Liste der Nummern und Nachrichten ist leer.</translation>
    </message>
    <message>
        <source>Please select at least one record from the phone numbers-messages list to continue.</source>
        <translation>Bitte wählen Sie mindestens einen Eintrag der Liste aus.</translation>
    </message>
    <message>
        <source>Either file is corrupted or selected file contains invalid characters.

OR

Recipient number is skipped because of using &apos;Skip Dulicate Numbers&apos; or &apos;Exclusion List&apos; option.</source>
        <translation>Die Datei ist beschädigt oder enthält ungültige Zeichen.

ODER

Nummern wurden wegen „Doppelte Nummern überspringen“ oder der Ausschlusslisten übersprungen.</translation>
    </message>
    <message>
        <source>The last action has ended early because of an unexpected error. Please look what has been done, and try again.</source>
        <translation>Die letzte Aktion brach wegen eines unerwarteten Fehlers ab. Bitte prüfen Sie, was geschehen ist, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to all numbers in the list.

Do you want to continue?</source>
        <translation>Die verfasste Nachricht wird in alle Nummern der Liste kopiert.

Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to the selected numbers in the list. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>Die verfasste Nachricht wird in die ausgewählten Nummern der Liste kopiert. Die Nachrichten der übrigen Nummern bleiben unverändert.

Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to the blank list items. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>Die verfasste Nachricht wird in die Einträge ohne Nachricht kopiert. Die Nachrichten der übrigen Nummern bleiben unverändert.

Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>There is no blank message in the phone numbers-messages list.</source>
        <translation>Die Liste enthält keine leere Nachricht.</translation>
    </message>
    <message>
        <source>This action will copy the above message to the selected numbers in the list. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>Die Nachricht oben wird in die ausgewählten Nummern der Liste kopiert. Die Nachrichten der übrigen Nummern bleiben unverändert.

Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Total Selected Numbers : </source>
        <translation>Ausgewählte Nummern gesamt: </translation>
    </message>
    <message>
        <source>Either Mobile Device is not connected properly or No Mobile Phone Device is selected.

Please use Mobile Phone Connection Wizard for finding device or establishing connection.</source>
        <translation>Das Mobiltelefon ist nicht richtig verbunden oder nicht ausgewählt.

Bitte suchen oder verbinden Sie das Gerät mit dem Verbindungsassistenten.</translation>
    </message>
    <message>
        <source>Please insert entered number to the list.</source>
        <translation>Bitte fügen Sie die eingegebene Nummer zur Liste hinzu.</translation>
    </message>
    <message>
        <source>No values have been selected in &apos;Delayed Delivery Options&apos;.</source>
        <translation>Für die Pausen ist nichts gewählt.</translation>
    </message>
    <message>
        <source>
You have composed no text message yet for any of the contacts in the entire list. This action will send blank message to all the contacts in list.

Are you sure you want to continue?</source>
        <translation>
Für keinen Empfänger der Liste ist bisher eine Nachricht verfasst. Allen wird eine leere Nachricht gesendet.

Möchten Sie wirklich fortfahren?</translation>
    </message>
    <message>
        <source>
Selected device is not working properly. Please use Mobile Phone Connection Wizard for finding device or establishing connection.</source>
        <translation>
Das ausgewählte Gerät arbeitet nicht richtig. Bitte suchen oder verbinden Sie das Gerät mit dem Verbindungsassistenten.</translation>
    </message>
    <message>
        <source>Selected device is not working properly.Could not initialize modem.
</source>
        <translation>Das ausgewählte Gerät arbeitet nicht richtig. Das Modem ließ sich nicht vorbereiten.
</translation>
    </message>
    <message>
        <source>Device Connection Error!</source>
        <translation>Verbindung zum Gerät gestört!</translation>
    </message>
    <message>
        <source>Message Sending Process Completed.</source>
        <translation>Der Versand ist abgeschlossen.</translation>
    </message>
    <message>
        <source>The messages could not be sent, because the computer is too busy to start another task. Please close other programs and try again.</source>
        <translation>Die Nachrichten konnten nicht gesendet werden, weil der Computer überlastet ist. Bitte schließen Sie andere Programme und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Sending has ended early because of an unexpected error. The sent items show which messages were sent.</source>
        <translation>Der Versand brach wegen eines unerwarteten Fehlers ab. Welche Nachrichten gesendet wurden, steht unter Gesendetes.</translation>
    </message>
    <message>
        <source>Initializing mobile phone device to send sms ...</source>
        <translation>Das Telefon wird zum Senden vorbereitet ...</translation>
    </message>
    <message>
        <source>
Terminating the current process will stop sending text messages to the remaining contact. Are you sure you want to continue?</source>
        <translation>
Wenn Sie abbrechen, erhalten die übrigen Empfänger keine Nachricht. Möchten Sie wirklich fortfahren?</translation>
    </message>
    <message>
        <source> is Excluded.</source>
        <translation> ist ausgeschlossen.</translation>
    </message>
    <message>
        <source> is Skipped.</source>
        <translation> wird übersprungen.</translation>
    </message>
    <message>
        <source> Message</source>
        <translation> in Arbeit</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Hour %2 Minute %3 Seconds.</source>
        <translation>Pause: noch %1 h %2 min %3 s.</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Minute %2 Seconds.</source>
        <translation>Pause: noch %1 min %2 s.</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Seconds.</source>
        <translation>Pause: noch %1 s.</translation>
    </message>
    <message>
        <source>%1 Characters</source>
        <translation>%1 Zeichen</translation>
    </message>
    <message>
        <source>%1 Characters (Each Message will now consume %2)</source>
        <translation>%1 Zeichen (jede Nachricht braucht nun %2)</translation>
    </message>
    <message>
        <source>Your current message is exceeding the typical SMS Length of 160 Characters. Messages of more than 160 characters will be delivered in multiple messages of 160 characters to each recipient.

Either shorten the length of your existing text message or click OK to continue anyway by delivering each message in multiple parts of 160 characters.</source>
        <translation>Ihre Nachricht ist länger als die 160 Zeichen einer SMS. Längere Nachrichten gehen in mehreren Teilen von 160 Zeichen an jeden Empfänger.

Kürzen Sie die Nachricht, oder klicken Sie auf OK, um jede Nachricht in mehreren Teilen von 160 Zeichen zu senden.</translation>
    </message>
    <message>
        <source>Your current message is exceeding the typical Unicode SMS (non-English text SMS) Length of 70 Characters. Messages of more than 70 characters will be delivered in multiple messages of 70 characters to each recipient.

Either shorten the length of your existing text message or click OK to continue anyway by delivering each message in multiple parts of 70 characters.</source>
        <translation>Ihre Nachricht ist länger als die 70 Zeichen einer Unicode-SMS. Längere Nachrichten gehen in mehreren Teilen von 70 Zeichen an jeden Empfänger.

Kürzen Sie die Nachricht, oder klicken Sie auf OK, um jede Nachricht in mehreren Teilen von 70 Zeichen zu senden.</translation>
    </message>
    <message>
        <source>Total Items : </source>
        <translation>Einträge gesamt: </translation>
    </message>
    <message>
        <source>Sent items list is empty.</source>
        <translation>Die Liste ist leer.</translation>
    </message>
    <message>
        <source>Please select at least one record from the sent items list to continue.</source>
        <translation>Bitte wählen Sie mindestens einen Eintrag aus.</translation>
    </message>
    <message>
        <source>Templates list is empty.</source>
        <translation>Es gibt keine Vorlagen.</translation>
    </message>
    <message>
        <source>Templates items list is empty.</source>
        <translation>Es gibt keine Vorlagen.</translation>
    </message>
    <message>
        <source>Templates number list is empty.</source>
        <translation>Es gibt keine Vorlagen.</translation>
    </message>
    <message>
        <source>Please select at least one record from the templates list to continue.</source>
        <translation>Bitte wählen Sie mindestens eine Vorlage aus.</translation>
    </message>
    <message>
        <source>Add Templates</source>
        <translation>Vorlage hinzufügen</translation>
    </message>
    <message>
        <source>Update Templates</source>
        <translation>Vorlage bearbeiten</translation>
    </message>
    <message>
        <source>Number	: %1<byte value="xd"/>
<byte value="xd"/>
Message	: %2<byte value="xd"/>
<byte value="xd"/>
Date:	 %3</source>
        <translation>Nummer:	%1<byte value="xd"/>
<byte value="xd"/>
Nachricht:	%2<byte value="xd"/>
<byte value="xd"/>
Datum:	%3</translation>
    </message>
    <message>
        <source>Please type template message.</source>
        <translation>Bitte geben Sie den Text der Vorlage ein.</translation>
    </message>
    <message>
        <source>Entered template already exists.</source>
        <translation>Diese Vorlage ist schon vorhanden.</translation>
    </message>
    <message>
        <source>Maximum characters limit is 1600.<byte value="xd"/>
<byte value="xd"/>
Press &apos;Yes to continue to composer window and it will show first 1600 characters of your message otherwise press &apos;No&apos;&apos;</source>
        <translation>Höchstens 1600 Zeichen sind möglich.<byte value="xd"/>
<byte value="xd"/>
„Ja“ übernimmt die ersten 1600 Zeichen in die Nachricht, „Nein“ bricht ab.</translation>
    </message>
    <message>
        <source>Exclusion List Wizard allows you to maintain the Lists of contacts or Groups, which you may need to exclude time to time when sending messages.

For Example, if you have lists of contacts of Marketing, Administration, R &amp; D and Customer Care Team members and you want to send messages to all the teams &apos;Except&apos; Administration team, you can apply exclusion rules to Administration team members contacts list.</source>
        <translation>Mit dem Assistenten für Ausschlusslisten führen Sie Listen von Kontakten oder Gruppen, die Sie zeitweise vom Senden ausschließen möchten.

Ein Beispiel: Sie haben Kontaktlisten für Marketing, Verwaltung, Entwicklung und Kundendienst und möchten allen außer der Verwaltung schreiben. Dann wenden Sie die Ausschlussliste der Verwaltung an.</translation>
    </message>
    <message>
        <source>

Give a friendly name to your Exclusion list so that you can identify it easily.</source>
        <translation>

Geben Sie der Ausschlussliste einen Namen, an dem Sie sie leicht erkennen.</translation>
    </message>
    <message>
        <source>Currently using exclusion list : </source>
        <translation>Aktuelle Ausschlussliste: </translation>
    </message>
    <message>
        <source>Please enter exclusion list name.</source>
        <translation>Bitte geben Sie einen Namen für die Ausschlussliste ein.</translation>
    </message>
    <message>
        <source>Please enter a valid name.</source>
        <translation>Bitte geben Sie einen gültigen Namen ein.</translation>
    </message>
    <message>
        <source>Please enter the another name.</source>
        <translation>Bitte geben Sie einen anderen Namen ein.</translation>
    </message>
    <message>
        <source>Entered exclusion list name already exists.</source>
        <translation>Eine Ausschlussliste dieses Namens gibt es schon.</translation>
    </message>
    <message>
        <source>Exclusion number list is empty.</source>
        <translation>Die Ausschlussliste enthält keine Nummern.</translation>
    </message>
    <message>
        <source>Please select a valid file.</source>
        <translation>Bitte wählen Sie eine gültige Datei.</translation>
    </message>
    <message>
        <source>Please select at least one record from the exclusion number list to continue.</source>
        <translation>Bitte wählen Sie mindestens eine Nummer der Ausschlussliste aus.</translation>
    </message>
    <message>
        <source>Available list is empty.</source>
        <translation>Es sind keine Listen vorhanden.</translation>
    </message>
    <message>
        <source>Please select a record from the available list to continue.</source>
        <translation>Bitte wählen Sie eine vorhandene Liste aus.</translation>
    </message>
    <message>
        <source>Selected list is already in use.</source>
        <translation>Diese Liste wird schon angewendet.</translation>
    </message>
    <message>
        <source>All available lists are already in use.</source>
        <translation>Alle vorhandenen Listen werden schon angewendet.</translation>
    </message>
    <message>
        <source>Exclude when sending SMS list is empty.</source>
        <translation>Es werden keine Listen angewendet.</translation>
    </message>
    <message>
        <source>Please select a record from Exclude when sending SMS list to continue.</source>
        <translation>Bitte wählen Sie eine angewendete Liste aus.</translation>
    </message>
    <message>
        <source>
Are you sure you want to continue</source>
        <translation>
Möchten Sie wirklich fortfahren?</translation>
    </message>
    <message>
        <source>
Are you sure you want delete the selected available list?</source>
        <translation>
Möchten Sie die ausgewählte Liste wirklich löschen?</translation>
    </message>
    <message>
        <source>
You have made changes in exclusion number list that have not been saved yet.

Do you want to go back to previous screen without saving the exclusion number list?</source>
        <translation>
Die Änderungen an der Ausschlussliste sind noch nicht gespeichert.

Möchten Sie zurückgehen, ohne sie zu speichern?</translation>
    </message>
    <message>
        <source>Device list is empty.</source>
        <translation>Es wurde kein Gerät gefunden.</translation>
    </message>
    <message>
        <source>Still searching for devices. Please wait ...</source>
        <translation>Geräte werden noch gesucht. Bitte warten ...</translation>
    </message>
    <message>
        <source>Please select device from list.</source>
        <translation>Bitte wählen Sie ein Gerät aus der Liste.</translation>
    </message>
    <message>
        <source>Please enter a valid Custom SMSC number.</source>
        <translation>Bitte geben Sie eine gültige eigene SMSC-Nummer ein.</translation>
    </message>
    <message>
        <source>Selected device is not working properly.
Could not open modem.
</source>
        <translation>Das ausgewählte Gerät arbeitet nicht richtig.
Das Modem ließ sich nicht öffnen.
</translation>
    </message>
    <message>
        <source>Selected device is not working properly.</source>
        <translation>Das ausgewählte Gerät arbeitet nicht richtig.</translation>
    </message>
    <message>
        <source>Default SMSC No. details should not be blanked.</source>
        <translation>Die Standardnummer der SMS-Zentrale darf nicht leer sein.</translation>
    </message>
    <message>
        <source>Custom SMSC No. details should not be blanked.</source>
        <translation>Die eigene Nummer der SMS-Zentrale darf nicht leer sein.</translation>
    </message>
    <message>
        <source>Selected device do not provide a modem in the computer or the modem does not support SMS sending command.</source>
        <translation>Das ausgewählte Gerät bietet dem Computer kein Modem, oder das Modem kennt den Befehl zum Senden von SMS nicht.</translation>
    </message>
    <message>
        <source>passed on, but not confirmed</source>
        <translation>weitergeleitet, aber nicht bestätigt</translation>
    </message>
    <message>
        <source>replaced by a newer message</source>
        <translation>durch eine neuere Nachricht ersetzt</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>abgeschlossen</translation>
    </message>
    <message>
        <source>completed, with a code of the network&apos;s own</source>
        <translation>abgeschlossen, mit einem eigenen Code des Netzes</translation>
    </message>
    <message>
        <source>the network is congested</source>
        <translation>das Netz ist überlastet</translation>
    </message>
    <message>
        <source>the phone is busy</source>
        <translation>das Telefon ist besetzt</translation>
    </message>
    <message>
        <source>the phone does not answer</source>
        <translation>das Telefon antwortet nicht</translation>
    </message>
    <message>
        <source>rejected for now</source>
        <translation>vorerst abgewiesen</translation>
    </message>
    <message>
        <source>the connection is too poor</source>
        <translation>die Verbindung ist zu schlecht</translation>
    </message>
    <message>
        <source>an error in the phone</source>
        <translation>ein Fehler im Telefon</translation>
    </message>
    <message>
        <source>a reason of the network&apos;s own</source>
        <translation>ein eigener Grund des Netzes</translation>
    </message>
    <message>
        <source>an error between the networks</source>
        <translation>ein Fehler zwischen den Netzen</translation>
    </message>
    <message>
        <source>the phone cannot take it</source>
        <translation>das Telefon kann sie nicht annehmen</translation>
    </message>
    <message>
        <source>the phone refused it</source>
        <translation>das Telefon hat sie abgelehnt</translation>
    </message>
    <message>
        <source>the number cannot be reached</source>
        <translation>die Nummer ist nicht erreichbar</translation>
    </message>
    <message>
        <source>the networks do not work together</source>
        <translation>die Netze arbeiten nicht zusammen</translation>
    </message>
    <message>
        <source>it was not delivered in time</source>
        <translation>sie wurde nicht rechtzeitig zugestellt</translation>
    </message>
    <message>
        <source>deleted by the sender</source>
        <translation>vom Absender gelöscht</translation>
    </message>
    <message>
        <source>deleted by the service centre</source>
        <translation>von der SMS-Zentrale gelöscht</translation>
    </message>
    <message>
        <source>the service centre has no such message</source>
        <translation>die SMS-Zentrale hat diese Nachricht nicht</translation>
    </message>
    <message>
        <source>rejected</source>
        <translation>abgewiesen</translation>
    </message>
    <message>
        <source>the network was congested</source>
        <translation>das Netz war überlastet</translation>
    </message>
    <message>
        <source>the phone was busy</source>
        <translation>das Telefon war besetzt</translation>
    </message>
    <message>
        <source>the phone did not answer</source>
        <translation>das Telefon hat nicht geantwortet</translation>
    </message>
    <message>
        <source>the connection was too poor</source>
        <translation>die Verbindung war zu schlecht</translation>
    </message>
    <message>
        <source>delivered</source>
        <translation>zugestellt</translation>
    </message>
    <message>
        <source>still trying</source>
        <translation>wird noch versucht</translation>
    </message>
    <message>
        <source>not delivered</source>
        <translation>nicht zugestellt</translation>
    </message>
    <message>
        <source>%1 speaks QMI or MBIM, and no AT commands.</source>
        <translation>%1 spricht QMI oder MBIM und keine AT-Befehle.</translation>
    </message>
    <message>
        <source>Use a port of the device that takes AT commands, or another modem.</source>
        <translation>Verwenden Sie einen Anschluss des Geräts, der AT-Befehle annimmt, oder ein anderes Modem.</translation>
    </message>
    <message>
        <source>%1 takes AT commands, but is no serial port.</source>
        <translation>%1 nimmt AT-Befehle an, ist aber kein serieller Anschluss.</translation>
    </message>
    <message>
        <source>Use a serial port of the device, or another modem.</source>
        <translation>Verwenden Sie einen seriellen Anschluss des Geräts oder ein anderes Modem.</translation>
    </message>
    <message>
        <source>The signal is strong enough (%1 %).</source>
        <translation>Das Signal ist stark genug (%1 %).</translation>
    </message>
    <message>
        <source>The signal is weak (%1 %).</source>
        <translation>Das Signal ist schwach (%1 %).</translation>
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
        <translation>Andere Wege zum Versand</translation>
    </message>
    <message>
        <source>One phone hands over between 4 and 20 messages a minute, and mobile operators may block a SIM card that sends like a machine. For more than about 1000 messages a day, or a job of more than four hours, something else does better.</source>
        <translation>Ein Telefon übergibt zwischen 4 und 20 Nachrichten in der Minute, und Netzbetreiber können eine SIM-Karte sperren, die wie eine Maschine sendet. Für mehr als etwa 1000 Nachrichten am Tag oder einen Auftrag von mehr als vier Stunden ist etwas anderes besser.</translation>
    </message>
    <message>
        <source>Several modems</source>
        <translation>Mehrere Modems</translation>
    </message>
    <message>
        <source>The free program smstools sends the messages of one folder with as many modems as are attached, each with a SIM card of its own. Hand the messages over here, and then move the files in the folder &quot;spool&quot; into the folder &quot;outgoing&quot; of smstools.</source>
        <translation>Das freie Programm smstools sendet die Nachrichten eines Ordners mit allen angeschlossenen Modems, jedes mit eigener SIM-Karte. Übergeben Sie die Nachrichten hier und verschieben Sie dann die Dateien aus dem Ordner „spool“ in den Ordner „outgoing“ von smstools.</translation>
    </message>
    <message>
        <source>A provider&apos;s gateway</source>
        <translation>Ein SMS-Dienstleister</translation>
    </message>
    <message>
        <source>Companies that send messages for others take a table of numbers and texts, at a price for each message. Many of them can also show a name as the sender, and see to replies and to people who want no more messages. Hand the messages over here, and then give the provider the file &quot;list.csv&quot;.</source>
        <translation>Unternehmen, die für andere Nachrichten versenden, nehmen eine Tabelle mit Nummern und Texten und berechnen einen Preis je Nachricht. Viele können auch einen Namen als Absender zeigen und kümmern sich um Antworten und Abmeldungen. Übergeben Sie die Nachrichten hier und geben Sie dem Dienstleister dann die Datei „list.csv“.</translation>
    </message>
    <message>
        <source>Writes the numbers and texts, just as they would be sent now, into a folder. Nothing is sent.</source>
        <translation>Schreibt Nummern und Texte so, wie sie jetzt gesendet würden, in einen Ordner. Es wird nichts gesendet.</translation>
    </message>
    <message>
        <source>Hand over to a &amp;folder ...</source>
        <translation>In einen &amp;Ordner übergeben ...</translation>
    </message>
    <message>
        <source>The main window says no more that a list is much for one phone</source>
        <translation>Das Hauptfenster sagt nicht mehr, dass eine Liste viel für ein Telefon ist</translation>
    </message>
    <message>
        <source>Do not &amp;tell again</source>
        <translation>&amp;Nicht mehr melden</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Not handed over: %1 (%2).</source>
        <translation>Nicht übergeben: %1 (%2).</translation>
    </message>
    <message>
        <source>Stopped. What is in the folder is not whole: remove it before it is used.</source>
        <translation>Angehalten. Der Inhalt des Ordners ist unvollständig: Löschen Sie ihn, bevor er verwendet wird.</translation>
    </message>
    <message>
        <source>Handed over: one message, in %1. Nothing was sent.</source>
        <translation>Übergeben: eine Nachricht, in %1. Es wurde nichts gesendet.</translation>
    </message>
    <message numerus="yes">
        <source>Handed over: %n messages, in %1. Nothing was sent.</source>
        <translation>
            <numerusform>Übergeben: %n Nachricht, in %1. Es wurde nichts gesendet.</numerusform>
            <numerusform>Übergeben: %n Nachrichten, in %1. Es wurde nichts gesendet.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recipients left out: %1.</source>
        <translation>Ausgelassene Empfänger: %1.</translation>
    </message>
    <message>
        <source>There is nobody in the list.</source>
        <translation>Die Liste ist leer.</translation>
    </message>
    <message>
        <source>Writing ...</source>
        <translation>Wird geschrieben ...</translation>
    </message>
    <message>
        <source>Writing %1 of %2 ...</source>
        <translation>%1 von %2 wird geschrieben ...</translation>
    </message>
    <message>
        <source>Not handed over: the system gives the program no further thread.</source>
        <translation>Nicht übergeben: Das System gibt dem Programm keinen weiteren Thread.</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
</context>
<context>
    <name>Handset_Bubble</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>As it arrives by a device that takes whole frames; one that knows text mode alone may change more</source>
        <translation>So kommt es über ein Gerät an, das vollständige PDUs nimmt; eines, das nur den Textmodus kennt, ändert womöglich mehr</translation>
    </message>
    <message>
        <source>On the handset:</source>
        <translation>Auf dem Telefon:</translation>
    </message>
    <message>
        <source>What the handset shows</source>
        <translation>Was das Telefon zeigt</translation>
    </message>
    <message>
        <source>Ticks the box of that name: every character arrives, and fewer fit one message</source>
        <translation>Setzt das gleichnamige Kästchen: Jedes Zeichen kommt an, und weniger passen in eine Nachricht</translation>
    </message>
    <message>
        <source>Send as Unicode</source>
        <translation>Als Unicode senden</translation>
    </message>
    <message>
        <source>Wherever it stands in this message; undo takes it back</source>
        <translation>Überall in dieser Nachricht; lässt sich rückgängig machen</translation>
    </message>
    <message>
        <source>Every marked character that something similar can stand in for; undo takes it back</source>
        <translation>Jedes markierte Zeichen, für das es Ähnliches gibt; lässt sich rückgängig machen</translation>
    </message>
    <message>
        <source>Replace all</source>
        <translation>Alle ersetzen</translation>
    </message>
    <message>
        <source>Cyrillic in Latin letters, Greek in the capitals that 7-bit messages have; undo takes it back</source>
        <translation>Kyrillisch in lateinischen Buchstaben, Griechisch in den Großbuchstaben, die 7-Bit-Nachrichten haben; lässt sich rückgängig machen</translation>
    </message>
    <message>
        <source>Write in other letters</source>
        <translation>In anderer Schrift schreiben</translation>
    </message>
    <message>
        <source>On the handset of %1</source>
        <translation>Auf dem Telefon von %1</translation>
    </message>
    <message>
        <source>On the handset</source>
        <translation>Auf dem Telefon</translation>
    </message>
    <message>
        <source>%1, at once and not kept:</source>
        <translation>%1, sofort und nicht gespeichert:</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 gets nothing: %2.</source>
        <translation>%1 erhält nichts: %2.</translation>
    </message>
    <message>
        <source>%1 gets nothing: the message is too long.</source>
        <translation>%1 erhält nichts: Die Nachricht ist zu lang.</translation>
    </message>
    <message>
        <source>%1 &quot;Send as Unicode&quot; in the main window keeps them.</source>
        <translation>%1 „Als Unicode senden“ im Hauptfenster erhält sie.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Replace %1 by a blank</source>
        <translation>%1 durch Leerzeichen ersetzen</translation>
    </message>
    <message>
        <source>Replace %1 by %2</source>
        <translation>%1 durch %2 ersetzen</translation>
    </message>
</context>
<context>
    <name>Help_Wnd</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
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
        <translation>&lt;h3&gt;Von einer Liste mit Nummern zu gesendeten Nachrichten&lt;/h3&gt;
&lt;p&gt;&lt;b&gt;1. Wählen Sie Ihr Telefon.&lt;/b&gt; Schließen Sie Telefon oder Modem über USB oder Bluetooth an, drücken Sie &lt;i&gt;Verbindungsassistent&lt;/i&gt;, klicken Sie in der Liste auf den Anschluss, sehen Sie sich die Angaben an und drücken Sie &lt;i&gt;Dieses Gerät wählen&lt;/i&gt;.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;2. Schreiben Sie die Nachricht.&lt;/b&gt; Die Zählung darunter zeigt, wie viele Zeichen sie hat und wie viele SMS jeder Empfänger kostet. Eine SMS fasst 160 Zeichen, oder 70, wenn Sie &lt;i&gt;Als Unicode senden&lt;/i&gt; ankreuzen. Eine Nachricht endet bei 1600 Zeichen. Der Typ &lt;i&gt;Mitteilung&lt;/i&gt; erscheint sofort auf dem Telefon und wird dort nicht gespeichert.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Welche Zeichen ankommen.&lt;/b&gt; Ohne &lt;i&gt;Als Unicode senden&lt;/i&gt; kommen diese an, wie Sie sie geschrieben haben: A bis Z, a bis z, 0 bis 9, das Leerzeichen, der Zeilenumbruch und &lt;tt&gt;! &quot; # % &amp;amp; &apos; ( ) * + , - . / : ; &amp;lt; = &amp;gt; ?&lt;/tt&gt;. Sofern Ihr Gerät nicht nur den Textmodus kennt, auch &lt;tt&gt;@ ¤ Γ&lt;/tt&gt; und in einem Text von bis zu 150 Zeichen (Klammern, ^ ~ \ und | doppelt gezählt) auch &lt;tt&gt;$ £ ¥ § _ \ | [ ] ^ { } ~ Ä Å Æ Ç É Ñ Ö Ø Ü ß à ä å æ è é ì ñ ò ø ü Δ Θ Ξ Π Σ Φ Ψ Ω&lt;/tt&gt;. Jedes andere Zeichen kommt als ein anderes an: € als Komma, ê als j, ö als ¡. Kreuzen Sie &lt;i&gt;Als Unicode senden&lt;/i&gt; an, wenn Ihr Text ein solches Zeichen enthält; dann geht er so hinaus, wie Sie ihn geschrieben haben.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;3. Füllen Sie die Liste.&lt;/b&gt; Geben Sie eine Nummer ein und drücken Sie &lt;i&gt;Hinzufügen&lt;/i&gt;, oder drücken Sie &lt;i&gt;Importieren&lt;/i&gt; und wählen Sie eine Text- oder RTF-Datei mit einer Nummer je Zeile. Sie können die Datei auch auf die Liste ziehen oder Nummern in die Liste einfügen. Unter der Liste steht, was daraus wurde, und &lt;i&gt;Anzeigen&lt;/i&gt; zeigt die nicht verwendeten Zeilen. Jede Nummer kommt mit der Nachricht in die Liste, wie sie gerade lautet. Ein + am Anfang wird zu 00, Bindestriche entfallen, und eine Nummer hat höchstens 20 Ziffern. &lt;i&gt;Exportieren&lt;/i&gt; schreibt die Nummern der Liste in eine Textdatei.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;4. Ändern Sie die Liste.&lt;/b&gt; Ein Doppelklick auf einen Empfänger ändert seine Nummer oder Nachricht. &lt;i&gt;Ausgewählte Nachrichten bearbeiten&lt;/i&gt; schreibt eine neue Nachricht für alle ausgewählten, und &lt;i&gt;Nachricht in die Liste kopieren&lt;/i&gt; kopiert die Nachricht in alle, die ausgewählten oder die leeren. &lt;i&gt;Auswahl entfernen&lt;/i&gt;, &lt;i&gt;Alle entfernen&lt;/i&gt; und &lt;i&gt;Zurücksetzen&lt;/i&gt; nehmen Nummern wieder heraus.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;5. Legen Sie fest, wie gesendet wird.&lt;/b&gt; Mit &lt;i&gt;Doppelte Nummern überspringen&lt;/i&gt; wird an jede Nummer einmal gesendet. Mit &lt;i&gt;Ausschlusslisten beachten&lt;/i&gt; wird an niemanden gesendet, der auf einer angewendeten Liste steht; unter &lt;i&gt;Ausschlusslisten&lt;/i&gt; legen Sie solche Listen an und bestimmen, welche gelten. &lt;i&gt;Pause&lt;/i&gt; macht nach je so vielen Nachrichten eine Pause. Mit &lt;i&gt;Jede Nachricht bestätigen&lt;/i&gt; wird jede danach beurteilt, was das Telefon antwortet, geht in dem Alphabet hinaus, das sie braucht, und wird nie ungefragt zweimal gesendet; ein abgebrochener Auftrag lässt sich fortsetzen, und &lt;i&gt;Sendeberichte&lt;/i&gt; zeigt die aufbewahrten.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;6. Senden Sie.&lt;/b&gt; Steht die Nachricht oben noch nicht in der Liste, werden Sie gefragt, ob sie zuerst dorthin kopiert werden soll. Die Nachrichten gehen einzeln in der Reihenfolge der Liste hinaus, mit einigen Sekunden Abstand, die langsame Telefone brauchen. Das Fortschrittsfenster zeigt den Stand und zählt die Pausen herunter; &lt;i&gt;Senden anhalten&lt;/i&gt; beendet den Versand vor der nächsten Nachricht oder dem nächsten Teil einer langen. Die Liste bleibt, wie sie ist.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;7. Danach.&lt;/b&gt; Was mit &lt;i&gt;Gesendetes aufbewahren&lt;/i&gt; dem Telefon übergeben wurde, steht unter &lt;i&gt;Gesendetes&lt;/i&gt;, und mit &lt;i&gt;Texte als Vorlagen speichern&lt;/i&gt; steht jeder Text einmal unter &lt;i&gt;Vorlagen&lt;/i&gt;, bereit zur Wiederverwendung. Beide Fenster löschen, was Sie nicht mehr brauchen, und exportieren ihre Liste als Textdatei oder Webseite.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Wird kein Telefon gefunden&lt;/b&gt;, sagt der Bildschirm vor dem Assistenten, was zu versuchen ist: der Modemmodus des Telefons, das Recht Ihres Kontos auf serielle Anschlüsse und andere Programme, die den Anschluss belegen. &lt;i&gt;Warum fehlt mein Telefon?&lt;/i&gt; unten prüft all das und sagt, was hilft.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Was „gesendet“ heißt.&lt;/b&gt; Mit &lt;i&gt;Jede Nachricht bestätigen&lt;/i&gt; ist eine Nachricht gesendet, wenn das Netz sie bestätigt hat. Sonst gilt sie als gesendet, wenn sie ohne Fehler an das Telefon geschrieben wurde. Was Telefon oder Netzbetreiber antworten, wird nicht beurteilt: Eine Nachricht, die sie ablehnen, steht ebenfalls unter &lt;i&gt;Gesendetes&lt;/i&gt;, und ein Telefon, das nicht mehr antwortet, beendet den Auftrag nicht. Senden Sie die Nachricht zuerst an sich selbst, und setzen Sie Ihre eigene Nummer ans Ende der Liste.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Erscheint „Verbindung zum Gerät gestört!“&lt;/b&gt;, schlug das Schreiben an das Telefon fehl, oder eine Nachricht ließ sich nicht in ihre Form bringen, und der Auftrag endete dort. Was bis dahin übergeben wurde, steht unter &lt;i&gt;Gesendetes&lt;/i&gt;, falls Sie es aufbewahren; von der Nachricht, bei der es geschah, kann ein Teil oder alles hinausgegangen sein.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Why does my phone not show?</source>
        <translation>&amp;Warum fehlt mein Telefon?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open the &amp;guide</source>
        <translation>&amp;Anleitung öffnen</translation>
    </message>
    <message>
        <source>No program was found that shows the guide. It is in %1.</source>
        <translation>Es wurde kein Programm gefunden, das die Anleitung zeigt. Sie liegt in %1.</translation>
    </message>
</context>
<context>
    <name>Import_Strip</name>
    <message>
        <source>0 added: the file could not be read.</source>
        <translation>0 hinzugefügt: Die Datei konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1 added.</source>
        <translation>%1 hinzugefügt.</translation>
    </message>
    <message>
        <source>%1 added, 1 line not used.</source>
        <translation>%1 hinzugefügt, 1 Zeile nicht verwendet.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %n lines not used.</source>
        <translation>
            <numerusform>%1 hinzugefügt, %n Zeile nicht verwendet.</numerusform>
            <numerusform>%1 hinzugefügt, %n Zeilen nicht verwendet.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1
Then it ended early.</source>
        <translation>%1
Dann brach der Import ab.</translation>
    </message>
    <message>
        <source>0 added: there was no text that could be read.</source>
        <translation>0 hinzugefügt: Es gab keinen lesbaren Text.</translation>
    </message>
    <message>
        <source>Show ...</source>
        <translation>Anzeigen ...</translation>
    </message>
    <message>
        <source>Shows what was not used, and why</source>
        <translation>Zeigt, was nicht verwendet wurde und warum</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Takes this notice away</source>
        <translation>Blendet diesen Hinweis aus</translation>
    </message>
    <message>
        <source>What the last import did</source>
        <translation>Ergebnis des letzten Imports</translation>
    </message>
    <message>
        <source>&amp;Show ...</source>
        <translation>&amp;Anzeigen ...</translation>
    </message>
    <message>
        <source>&amp;Dismiss</source>
        <translation>A&amp;usblenden</translation>
    </message>
</context>
<context>
    <name>Job_Trouble</name>
    <message>
        <source>there is no such job</source>
        <translation>diesen Auftrag gibt es nicht</translation>
    </message>
    <message>
        <source>its files can not be read or written to</source>
        <translation>seine Dateien lassen sich nicht lesen oder beschreiben</translation>
    </message>
    <message>
        <source>the file is not the journal of a job</source>
        <translation>die Datei ist kein Auftragsprotokoll</translation>
    </message>
    <message>
        <source>its journal was written by a newer version of the program</source>
        <translation>sein Protokoll stammt von einer neueren Programmversion</translation>
    </message>
    <message>
        <source>its journal is damaged, so that it is unknown what was sent</source>
        <translation>sein Protokoll ist beschädigt, daher ist unbekannt, was gesendet wurde</translation>
    </message>
    <message>
        <source>the list beside its journal is gone</source>
        <translation>die Liste neben dem Protokoll fehlt</translation>
    </message>
    <message>
        <source>the list beside its journal is not the one that the job began with</source>
        <translation>die Liste neben dem Protokoll ist nicht die, mit der der Auftrag begann</translation>
    </message>
    <message>
        <source>another program works on it</source>
        <translation>ein anderes Programm bearbeitet ihn</translation>
    </message>
    <message>
        <source>a job of this name exists already</source>
        <translation>ein Auftrag dieses Namens besteht schon</translation>
    </message>
    <message>
        <source>a job can not have so many messages</source>
        <translation>ein Auftrag kann nicht so viele Nachrichten haben</translation>
    </message>
    <message>
        <source>the disk has no room for its journal</source>
        <translation>auf dem Datenträger ist kein Platz für sein Protokoll</translation>
    </message>
    <message>
        <source>its journal can not be written</source>
        <translation>sein Protokoll lässt sich nicht schreiben</translation>
    </message>
</context>
<context>
    <name>Kept_Receipts</name>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1: nicht lesbar</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n recipients</source>
        <translation>
            <numerusform>%1: %n Empfänger</numerusform>
            <numerusform>%1: %n Empfänger</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, in work</source>
        <translation>%1, in Arbeit</translation>
    </message>
    <message>
        <source>%1, not ended</source>
        <translation>%1, nicht beendet</translation>
    </message>
    <message>
        <source>Re&amp;move ...</source>
        <translation>&amp;Löschen ...</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Removes the list and the record of this job</source>
        <translation>Löscht die Liste und die Aufzeichnung dieses Auftrags</translation>
    </message>
    <message>
        <source>&amp;Job:</source>
        <translation>A&amp;uftrag:</translation>
    </message>
</context>
<context>
    <name>Language_Menu</name>
    <message>
        <source>La&amp;nguage (from the next start on)</source>
        <translation>&amp;Sprache (ab dem nächsten Start)</translation>
    </message>
    <message>
        <source>As the &amp;desktop</source>
        <translation>Wie der &amp;Desktop</translation>
    </message>
</context>
<context>
    <name>List_Arrivals</name>
    <message>
        <source>&amp;Paste numbers</source>
        <translation>Nummern &amp;einfügen</translation>
    </message>
</context>
<context>
    <name>Lists_Page</name>
    <message>
        <source>Available exclusion lists</source>
        <translation>Vorhandene Ausschlusslisten</translation>
    </message>
    <message>
        <source>Exclude when sending SMS</source>
        <translation>Beim Senden ausschließen</translation>
    </message>
    <message>
        <source>There is no exclusion list yet.</source>
        <translation>Es gibt noch keine Ausschlussliste.</translation>
    </message>
    <message>
        <source>Make the first list ...</source>
        <translation>Die erste Liste anlegen ...</translation>
    </message>
    <message>
        <source>No list is applied, so nobody is left out.</source>
        <translation>Keine Liste wird angewandt, also wird niemand ausgelassen.</translation>
    </message>
</context>
<context>
    <name>Load_Num_Info</name>
    <message>
        <source>Import numbers</source>
        <translation>Nummern importieren</translation>
    </message>
    <message>
        <source>The list already holds numbers. Do you want to remove them before the numbers of the file are added?

&quot;No&quot; keeps them and adds the new numbers behind them.</source>
        <translation>Die Liste enthält schon Nummern. Möchten Sie sie entfernen, bevor die Nummern der Datei hinzukommen?

„Nein“ behält sie und hängt die neuen an.</translation>
    </message>
    <message>
        <source>Import nothing</source>
        <translation>Nichts importieren</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Empty the list first</source>
        <translation>Die Liste zuerst leeren</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Keep the list and add to it</source>
        <translation>Die Liste behalten und ergänzen</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
</context>
<context>
    <name>Long_SMS_Dlg</name>
    <message>
        <source>Long message</source>
        <translation>Lange Nachricht</translation>
    </message>
    <message>
        <source>Unicode message</source>
        <translation>Unicode-Nachricht</translation>
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
        <translation>&amp;Bearbeiten ...</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Liste</translation>
    </message>
    <message>
        <source>&amp;Message</source>
        <translation>&amp;Nachricht</translation>
    </message>
    <message>
        <source>&amp;Sending</source>
        <translation>&amp;Versand</translation>
    </message>
    <message>
        <source>&amp;What was sent</source>
        <translation>&amp;Gesendetes</translation>
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
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>Numbers_Page</name>
    <message>
        <source>Excluded number</source>
        <translation>Ausgeschlossene Nummer</translation>
    </message>
    <message>
        <source>No number is in this list yet. Type one above, or load a file of them.</source>
        <translation>Diese Liste enthält noch keine Nummer. Geben Sie oben eine ein oder laden Sie eine Datei.</translation>
    </message>
</context>
<context>
    <name>Open_Export_Log</name>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>The list has been exported.</source>
        <translation>Die Liste wurde exportiert.</translation>
    </message>
    <message>
        <source>Open the &amp;exported file now</source>
        <translation>Die &amp;exportierte Datei jetzt öffnen</translation>
    </message>
    <message>
        <source>The file could not be opened:
this computer has no program for it.</source>
        <translation>Die Datei ließ sich nicht öffnen:
Diesem Computer fehlt ein Programm dafür.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>The file stays where it is, unopened</source>
        <translation>Die Datei bleibt ungeöffnet, wo sie ist</translation>
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
        <translation>Verbindungsassistent</translation>
    </message>
    <message>
        <source>Click a device to read what it tells about itself, then select it to send your messages through it.</source>
        <translation>Klicken Sie auf ein Gerät, um seine Angaben zu lesen, und wählen Sie es dann zum Senden aus.</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>Gefundene Geräte</translation>
    </message>
    <message>
        <source>&amp;Why does my phone not show?</source>
        <translation>&amp;Warum fehlt mein Telefon?</translation>
    </message>
    <message>
        <source>Device details</source>
        <translation>Angaben zum Gerät</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>&amp;Anschluss</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>Device pat&amp;h</source>
        <translation>Geräte&amp;pfad</translation>
    </message>
    <message>
        <source>Device path</source>
        <translation>Gerätepfad</translation>
    </message>
    <message>
        <source>&amp;Manufacturer</source>
        <translation>&amp;Hersteller</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Mo&amp;del</source>
        <translation>&amp;Modell</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
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
        <translation>Akk&amp;u</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message>
        <source>Si&amp;gnal</source>
        <translation>Si&amp;gnal</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>&amp;Operator</source>
        <translation>Netz&amp;betreiber</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Netzbetreiber</translation>
    </message>
    <message>
        <source>&amp;Revision</source>
        <translation>&amp;Revision</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>Revision</translation>
    </message>
    <message>
        <source>Service centre (SMSC)</source>
        <translation>SMS-Zentrale (SMSC)</translation>
    </message>
    <message>
        <source>D&amp;efault number of the device</source>
        <translation>Stan&amp;dardnummer des Geräts</translation>
    </message>
    <message>
        <source>Default service centre number</source>
        <translation>Standardnummer der SMS-Zentrale</translation>
    </message>
    <message>
        <source>&amp;Use a custom number instead</source>
        <translation>&amp;Eigene Nummer verwenden</translation>
    </message>
    <message>
        <source>Custom service centre number</source>
        <translation>Eigene Nummer der SMS-Zentrale</translation>
    </message>
    <message>
        <source>Search &amp;again</source>
        <translation>Erneut su&amp;chen</translation>
    </message>
    <message>
        <source>&amp;Continue without a device</source>
        <translation>&amp;Ohne Gerät fortfahren</translation>
    </message>
    <message>
        <source>Se&amp;lect this device</source>
        <translation>Dieses Gerä&amp;t wählen</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>Signal %1</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Searching for devices ...</source>
        <translation>Geräte werden gesucht ...</translation>
    </message>
    <message>
        <source>No phone or modem was found. Connect one and switch it on.</source>
        <translation>Es wurde kein Telefon oder Modem gefunden. Schließen Sie eines an und schalten Sie es ein.</translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>Erneut suchen</translation>
    </message>
</context>
<context>
    <name>Plan_Page</name>
    <message>
        <source>Sho&amp;w:</source>
        <translation>Anzei&amp;gen:</translation>
    </message>
    <message>
        <source>Rows to show</source>
        <translation>Angezeigte Zeilen</translation>
    </message>
    <message>
        <source>&amp;Longest</source>
        <translation>&amp;Längste</translation>
    </message>
    <message>
        <source>Goes to the row with the longest message</source>
        <translation>Geht zur Zeile mit der längsten Nachricht</translation>
    </message>
    <message>
        <source>Rows as they will be sent</source>
        <translation>Zeilen, wie sie gesendet werden</translation>
    </message>
    <message>
        <source>%1 cannot be dialled: the row stays as it was.</source>
        <translation>%1 ist nicht wählbar: Die Zeile bleibt, wie sie war.</translation>
    </message>
    <message>
        <source>All rows</source>
        <translation>Alle Zeilen</translation>
    </message>
    <message>
        <source>Rows left out</source>
        <translation>Ausgelassene Zeilen</translation>
    </message>
    <message>
        <source>Unicode messages</source>
        <translation>Unicode-Nachrichten</translation>
    </message>
    <message>
        <source>Looking at the rows: %1 % ...</source>
        <translation>Zeilen werden geprüft: %1 % ...</translation>
    </message>
    <message>
        <source>Looking at the rows ...</source>
        <translation>Zeilen werden geprüft ...</translation>
    </message>
</context>
<context>
    <name>Plan_Rows</name>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Number as written</source>
        <translation>Nummer im Original</translation>
    </message>
    <message>
        <source>As dialled</source>
        <translation>Gewählte Nummer</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Anmerkung</translation>
    </message>
</context>
<context>
    <name>Plan_Words</name>
    <message>
        <source>to be sent</source>
        <translation>wird gesendet</translation>
    </message>
    <message>
        <source>repeated</source>
        <translation>doppelt</translation>
    </message>
    <message>
        <source>excluded</source>
        <translation>ausgeschlossen</translation>
    </message>
    <message>
        <source>no usable number</source>
        <translation>ohne brauchbare Nummer</translation>
    </message>
    <message>
        <source>empty field</source>
        <translation>mit leerem Feld</translation>
    </message>
    <message>
        <source>unknown field</source>
        <translation>mit unbekanntem Feld</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>zu lang</translation>
    </message>
    <message>
        <source>fields misplaced</source>
        <translation>mit verrutschten Feldern</translation>
    </message>
    <message>
        <source>1 message to be sent</source>
        <translation>1 Nachricht zu senden</translation>
    </message>
    <message numerus="yes">
        <source>%n messages to be sent</source>
        <translation>
            <numerusform>%n Nachricht zu senden</numerusform>
            <numerusform>%n Nachrichten zu senden</numerusform>
        </translation>
    </message>
    <message>
        <source>1 part</source>
        <translation>1 Teil</translation>
    </message>
    <message numerus="yes">
        <source>%n parts</source>
        <translation>
            <numerusform>%n Teil</numerusform>
            <numerusform>%n Teile</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2, %3, %4</source>
        <translation>%1, %2, %3, %4</translation>
    </message>
    <message numerus="yes">
        <source>%n left out: %1.</source>
        <translation>
            <numerusform>%n ausgelassen: %1.</numerusform>
            <numerusform>%n ausgelassen: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>others</source>
        <translation>andere</translation>
    </message>
    <message>
        <source>1 message goes as Unicode</source>
        <translation>1 Nachricht geht als Unicode</translation>
    </message>
    <message numerus="yes">
        <source>%n messages go as Unicode</source>
        <translation>
            <numerusform>%n Nachricht geht als Unicode</numerusform>
            <numerusform>%n Nachrichten gehen als Unicode</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, because of %2.</source>
        <translation>%1, wegen %2.</translation>
    </message>
</context>
<context>
    <name>PleaseWait_Modeless</name>
    <message>
        <source>Please wait ...</source>
        <translation>Bitte warten ...</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>In Arbeit</translation>
    </message>
</context>
<context>
    <name>Receipt_Wnd</name>
    <message>
        <source>Receipt</source>
        <translation>Sendebericht</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>An&amp;zeigen:</translation>
    </message>
    <message>
        <source>Messages to show</source>
        <translation>Angezeigte Nachrichten</translation>
    </message>
    <message>
        <source>Messages of the job</source>
        <translation>Nachrichten des Auftrags</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>Write the receipt into a file</source>
        <translation>Den Sendebericht in eine Datei schreiben</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>As a &amp;text ...</source>
        <translation>Als &amp;Text ...</translation>
    </message>
    <message>
        <source>As a web &amp;page ...</source>
        <translation>Als &amp;Webseite ...</translation>
    </message>
    <message>
        <source>As a table for &amp;spreadsheets (CSV) ...</source>
        <translation>Als Ta&amp;belle (CSV) ...</translation>
    </message>
    <message>
        <source>An apostrophe is in front of each number, and of whatever else a spreadsheet would take for a formula.</source>
        <translation>Vor jeder Nummer und allem, was eine Tabellenkalkulation für eine Formel hielte, steht ein Apostroph.</translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>Wird gelesen ...</translation>
    </message>
    <message>
        <source>No receipts are kept yet.</source>
        <translation>Noch sind keine Sendeberichte aufbewahrt.</translation>
    </message>
    <message>
        <source>The job could not be removed: %1.</source>
        <translation>Der Auftrag ließ sich nicht löschen: %1.</translation>
    </message>
    <message>
        <source>There is no receipt of this job: %1.</source>
        <translation>Zu diesem Auftrag gibt es keinen Sendebericht: %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be written.</source>
        <translation>Die Datei %1 konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>In %1 geschrieben.</translation>
    </message>
</context>
<context>
    <name>Remembered_List</name>
    <message>
        <source>Re&amp;member this list</source>
        <translation>Diese Liste &amp;merken</translation>
    </message>
    <message>
        <source>The list from the last time cannot be read.</source>
        <translation>Die Liste vom letzten Mal kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Recipients from the last time: %1.</source>
        <translation>Empfänger vom letzten Mal: %1.</translation>
    </message>
    <message>
        <source>Not read: %1.</source>
        <translation>Nicht gelesen: %1.</translation>
    </message>
</context>
<context>
    <name>Removal_Question</name>
    <message>
        <source>Keep it</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Really remove the job&apos;s list and its record from this computer? Nothing more can be sent of it then, and it has no receipt any more.</source>
        <translation>Liste und Aufzeichnung des Auftrags wirklich von diesem Computer löschen? Danach lässt sich nichts mehr davon senden, und er hat keinen Sendebericht mehr.</translation>
    </message>
    <message>
        <source>Remove for good</source>
        <translation>Endgültig löschen</translation>
    </message>
</context>
<context>
    <name>Row_Finder</name>
    <message>
        <source>&amp;Find ...</source>
        <translation>&amp;Suchen ...</translation>
    </message>
    <message>
        <source>&amp;Sort</source>
        <translation>S&amp;ortieren</translation>
    </message>
    <message>
        <source>%1, upwards</source>
        <translation>%1, aufsteigend</translation>
    </message>
    <message>
        <source>%1, downwards</source>
        <translation>%1, absteigend</translation>
    </message>
    <message>
        <source>As in the list</source>
        <translation>Wie in der Liste</translation>
    </message>
    <message>
        <source>Searching ...</source>
        <translation>Suche läuft ...</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>Sample_Rows</name>
    <message>
        <source>%1 (number)</source>
        <translation>%1 (Nummer)</translation>
    </message>
</context>
<context>
    <name>Send_Modeless</name>
    <message>
        <source>Sending messages</source>
        <translation>Nachrichten senden</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>In Arbeit</translation>
    </message>
    <message>
        <source>Total messages :</source>
        <translation>Nachrichten gesamt:</translation>
    </message>
    <message>
        <source>Sending to :</source>
        <translation>Senden an:</translation>
    </message>
    <message>
        <source>Messages handled</source>
        <translation>Bearbeitete Nachrichten</translation>
    </message>
    <message>
        <source>&amp;Stop Sending</source>
        <translation>Senden &amp;anhalten</translation>
    </message>
    <message>
        <source>about 23 h 59 min left, until 30 September 2026, 23:59</source>
        <translation>noch etwa 23 h 59 min, bis 30. September 2026, 23:59</translation>
    </message>
    <message>
        <source>Sending %1 of %2</source>
        <translation>%1 von %2 wird gesendet</translation>
    </message>
    <message>
        <source>Now :</source>
        <translation>Jetzt:</translation>
    </message>
    <message>
        <source>Stopping ...</source>
        <translation>Wird angehalten ...</translation>
    </message>
</context>
<context>
    <name>Send_Msg_Info</name>
    <message>
        <source>Before sending</source>
        <translation>Vor dem Senden</translation>
    </message>
    <message>
        <source>The message in the composer is not yet in the list. You can copy it there before the list is sent.</source>
        <translation>Die verfasste Nachricht steht noch nicht in der Liste. Sie können sie vor dem Senden dorthin kopieren.</translation>
    </message>
    <message>
        <source>Every number gets the message in the composer</source>
        <translation>Jede Nummer erhält die verfasste Nachricht</translation>
    </message>
    <message>
        <source>Copy it to &amp;all numbers in the list</source>
        <translation>In &amp;alle Nummern der Liste kopieren</translation>
    </message>
    <message>
        <source>The numbers whose message is empty get the message; the others keep theirs</source>
        <translation>Die Nummern mit leerer Nachricht erhalten sie; die anderen behalten ihre</translation>
    </message>
    <message>
        <source>Copy it to the numbers without a &amp;message</source>
        <translation>In die Nummern ohne &amp;Nachricht kopieren</translation>
    </message>
    <message>
        <source>Or send each number the message that it has in the list.</source>
        <translation>Oder jeder Nummer die Nachricht senden, die sie in der Liste hat.</translation>
    </message>
    <message>
        <source>Send nothing</source>
        <translation>Nichts senden</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>Send the list as it stands</source>
        <translation>Die Liste senden, wie sie ist</translation>
    </message>
    <message>
        <source>Send as it &amp;stands</source>
        <translation>&amp;Unverändert senden</translation>
    </message>
    <message>
        <source>Copy the message and send</source>
        <translation>Die Nachricht kopieren und senden</translation>
    </message>
    <message>
        <source>C&amp;opy and send</source>
        <translation>&amp;Kopieren und senden</translation>
    </message>
    <message>
        <source>The composer is empty. If you copy it to all numbers, every message in the list becomes blank.</source>
        <translation>Es ist keine Nachricht verfasst. Kopieren Sie sie in alle Nummern, wird jede Nachricht der Liste leer.</translation>
    </message>
</context>
<context>
    <name>Send_Promise</name>
    <message>
        <source>Counting ...</source>
        <translation>Wird gezählt ...</translation>
    </message>
    <message>
        <source>That is much for one phone.</source>
        <translation>Das ist viel für ein Telefon.</translation>
    </message>
    <message>
        <source>What to do instead</source>
        <translation>Was besser ist</translation>
    </message>
    <message>
        <source>Other ways ...</source>
        <translation>Andere Wege ...</translation>
    </message>
    <message>
        <source>Show who gets nothing ...</source>
        <translation>Zeigen, wer nichts erhält ...</translation>
    </message>
    <message>
        <source>Check before sending ...</source>
        <translation>Vor dem Senden prüfen ...</translation>
    </message>
</context>
<context>
    <name>Sent_Items</name>
    <message>
        <source>Sent Items</source>
        <translation>Gesendetes</translation>
    </message>
    <message>
        <source>&amp;Sent messages:</source>
        <translation>Ge&amp;sendete Nachrichten:</translation>
    </message>
    <message>
        <source>Total Items : 0</source>
        <translation>Einträge gesamt: 0</translation>
    </message>
    <message>
        <source>Sent messages</source>
        <translation>Gesendete Nachrichten</translation>
    </message>
    <message>
        <source>Selected &amp;message:</source>
        <translation>Ausgewählte &amp;Nachricht:</translation>
    </message>
    <message>
        <source>Selected message</source>
        <translation>Ausgewählte Nachricht</translation>
    </message>
    <message>
        <source>&amp;Delete selected</source>
        <translation>Auswahl &amp;löschen</translation>
    </message>
    <message>
        <source>Take the selected messages out of the list</source>
        <translation>Die ausgewählten Nachrichten aus der Liste nehmen</translation>
    </message>
    <message>
        <source>Delete a&amp;ll</source>
        <translation>&amp;Alle löschen</translation>
    </message>
    <message>
        <source>Empty the whole list</source>
        <translation>Die ganze Liste leeren</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>&amp;Exportieren ...</translation>
    </message>
    <message>
        <source>Write the list into a text file or a web page</source>
        <translation>Die Liste in eine Textdatei oder Webseite schreiben</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Keep the list as it is shown and close this window</source>
        <translation>Die Liste so behalten und dieses Fenster schließen</translation>
    </message>
    <message>
        <source>[ The first %1 of %2 characters ]</source>
        <translation>[ Die ersten %1 von %2 Zeichen ]</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>No message is kept here yet. Those that are handed to the phone from now on will be.</source>
        <translation>Hier ist noch keine Nachricht aufbewahrt. Die von nun an dem Telefon übergebenen werden es.</translation>
    </message>
    <message>
        <source>No message is kept here yet, and those that are sent will not be.</source>
        <translation>Hier ist noch keine Nachricht aufbewahrt, und gesendete werden es auch nicht.</translation>
    </message>
    <message>
        <source>Keep messages from now on</source>
        <translation>Nachrichten ab jetzt aufbewahren</translation>
    </message>
</context>
<context>
    <name>Table_Page</name>
    <message>
        <source>&amp;Numbers are in:</source>
        <translation>&amp;Nummern in Spalte:</translation>
    </message>
    <message>
        <source>Column of the numbers</source>
        <translation>Spalte mit den Nummern</translation>
    </message>
    <message>
        <source>The column that holds the numbers. A click on a heading of the table chooses it, too</source>
        <translation>Die Spalte mit den Nummern. Ein Klick auf eine Überschrift der Tabelle wählt sie ebenfalls</translation>
    </message>
    <message>
        <source>National numbers are &amp;of:</source>
        <translation>Nationale Nummern a&amp;us:</translation>
    </message>
    <message>
        <source>Country of national numbers</source>
        <translation>Land der nationalen Nummern</translation>
    </message>
    <message>
        <source>Gets the code of this country in front of a number that has none</source>
        <translation>Setzt die Vorwahl dieses Landes vor Nummern, die keine haben</translation>
    </message>
    <message>
        <source>The first rows</source>
        <translation>Die ersten Zeilen</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>Zei&amp;chensatz:</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Zeichensatz</translation>
    </message>
    <message>
        <source>Another one where letters look wrong</source>
        <translation>Ein anderer, wenn Buchstaben falsch aussehen</translation>
    </message>
    <message>
        <source>&amp;Delimiter:</source>
        <translation>&amp;Trennzeichen:</translation>
    </message>
    <message>
        <source>Delimiter</source>
        <translation>Trennzeichen</translation>
    </message>
    <message>
        <source>What stands between the fields of a row</source>
        <translation>Was zwischen den Feldern einer Zeile steht</translation>
    </message>
    <message>
        <source>&amp;Sheet:</source>
        <translation>&amp;Blatt:</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>Untick this where the first row is one like the others</source>
        <translation>Abwählen, wenn die erste Zeile eine wie die anderen ist</translation>
    </message>
    <message>
        <source>&amp;First row has the names</source>
        <translation>Erste Zeile enthält die Na&amp;men</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 Zeile</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 in 1 column.</source>
        <translation>%1: %2 in 1 Spalte.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 in %n columns.</source>
        <translation>
            <numerusform>%1: %2 in %n Spalte.</numerusform>
            <numerusform>%1: %2 in %n Spalten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Semikolon</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Senkrechter Strich</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Wie geschrieben</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>%1 wird gelesen ...</translation>
    </message>
    <message>
        <source>%1 can not be used: %2.</source>
        <translation>%1 ist nicht verwendbar: %2.</translation>
    </message>
    <message>
        <source>%1 holds no rows below the names of its columns.</source>
        <translation>%1 enthält unter den Spaltennamen keine Zeilen.</translation>
    </message>
    <message>
        <source>No column looks as if it held numbers. Choose the one that does.</source>
        <translation>Keine Spalte scheint Nummern zu enthalten. Wählen Sie die richtige.</translation>
    </message>
    <message>
        <source>One for each person, mobile ones first</source>
        <translation>Eine je Person, Mobilnummern zuerst</translation>
    </message>
    <message>
        <source>Each number of a person</source>
        <translation>Jede Nummer einer Person</translation>
    </message>
    <message>
        <source>The file does not tell its encoding: look whether the letters are right.</source>
        <translation>Die Datei nennt ihren Zeichensatz nicht: Prüfen Sie, ob die Buchstaben stimmen.</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Templates</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>&amp;Message templates:</source>
        <translation>Nachrichten&amp;vorlagen:</translation>
    </message>
    <message>
        <source>Total Items : 0</source>
        <translation>Einträge gesamt: 0</translation>
    </message>
    <message>
        <source>Message templates</source>
        <translation>Nachrichtenvorlagen</translation>
    </message>
    <message>
        <source>Selected &amp;template:</source>
        <translation>Ausge&amp;wählte Vorlage:</translation>
    </message>
    <message>
        <source>Selected template</source>
        <translation>Ausgewählte Vorlage</translation>
    </message>
    <message>
        <source>Add &amp;new ...</source>
        <translation>&amp;Neu ...</translation>
    </message>
    <message>
        <source>Type a new template</source>
        <translation>Eine neue Vorlage schreiben</translation>
    </message>
    <message>
        <source>E&amp;dit ...</source>
        <translation>&amp;Bearbeiten ...</translation>
    </message>
    <message>
        <source>Change the selected template</source>
        <translation>Die ausgewählte Vorlage ändern</translation>
    </message>
    <message>
        <source>Delete &amp;selected</source>
        <translation>Auswahl &amp;löschen</translation>
    </message>
    <message>
        <source>Take the selected templates out of the list</source>
        <translation>Die ausgewählten Vorlagen aus der Liste nehmen</translation>
    </message>
    <message>
        <source>Delete a&amp;ll</source>
        <translation>&amp;Alle löschen</translation>
    </message>
    <message>
        <source>Empty the whole list</source>
        <translation>Die ganze Liste leeren</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>&amp;Exportieren ...</translation>
    </message>
    <message>
        <source>Write the list into a text file or a web page</source>
        <translation>Die Liste in eine Textdatei oder Webseite schreiben</translation>
    </message>
    <message>
        <source>&amp;Use template</source>
        <translation>Vorlage &amp;übernehmen</translation>
    </message>
    <message>
        <source>Put the selected template into the message</source>
        <translation>Die ausgewählte Vorlage in die Nachricht setzen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Keep the list as it is shown and close this window</source>
        <translation>Die Liste so behalten und dieses Fenster schließen</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Templates that could not be saved the last time are in the list again. They are saved when this window closes.</source>
        <translation>Vorlagen, die sich zuletzt nicht speichern ließen, stehen wieder in der Liste. Sie werden beim Schließen dieses Fensters gespeichert.</translation>
    </message>
    <message>
        <source>The templates stored so far can not be read. They are kept in a file of their own when this list is saved.</source>
        <translation>Die bisher gespeicherten Vorlagen sind nicht lesbar. Sie werden in einer eigenen Datei aufbewahrt, wenn diese Liste gespeichert wird.</translation>
    </message>
    <message>
        <source>Changes can not be saved at present: the folder %1 can not be written to.</source>
        <translation>Änderungen lassen sich zurzeit nicht speichern: Der Ordner %1 ist nicht beschreibbar.</translation>
    </message>
    <message>
        <source>No text is kept here yet.</source>
        <translation>Hier ist noch kein Text aufbewahrt.</translation>
    </message>
    <message>
        <source>Add the first template ...</source>
        <translation>Die erste Vorlage hinzufügen ...</translation>
    </message>
</context>
<context>
    <name>Time_Words</name>
    <message>
        <source>1 recipient</source>
        <translation>1 Empfänger</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients</source>
        <translation>
            <numerusform>%n Empfänger</numerusform>
            <numerusform>%n Empfänger</numerusform>
        </translation>
    </message>
    <message>
        <source>1 message</source>
        <translation>1 Nachricht</translation>
    </message>
    <message numerus="yes">
        <source>%n messages</source>
        <translation>
            <numerusform>%n Nachricht</numerusform>
            <numerusform>%n Nachrichten</numerusform>
        </translation>
    </message>
    <message>
        <source>sent items</source>
        <translation>Gesendetes</translation>
    </message>
    <message>
        <source>templates</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>a receipt</source>
        <translation>ein Sendebericht</translation>
    </message>
    <message>
        <source>to be kept: %1</source>
        <translation>aufbewahrt werden: %1</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <source>the record goes when all is done</source>
        <translation>die Aufzeichnung verschwindet am Ende</translation>
    </message>
    <message>
        <source>no record will be kept</source>
        <translation>nichts wird aufbewahrt</translation>
    </message>
    <message>
        <source>less than a minute</source>
        <translation>weniger als eine Minute</translation>
    </message>
    <message>
        <source>about %1 min</source>
        <translation>etwa %1 min</translation>
    </message>
    <message>
        <source>about %1 h %2 min</source>
        <translation>etwa %1 h %2 min</translation>
    </message>
    <message>
        <source>about %1 h</source>
        <translation>etwa %1 h</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>bis %1</translation>
    </message>
    <message>
        <source>until tomorrow, %1</source>
        <translation>bis morgen, %1</translation>
    </message>
    <message>
        <source>until %1, %2</source>
        <translation>bis %1, %2</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <source>Nobody in the list will be sent anything.</source>
        <translation>Niemand in der Liste erhält etwas.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>%1 once it goes on</source>
        <translation>%1, sobald es weitergeht</translation>
    </message>
</context>
<context>
    <name>Undo_Strip</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Undo the removal</source>
        <translation>Entfernen &amp;rückgängig machen</translation>
    </message>
    <message>
        <source>What was just removed</source>
        <translation>Was gerade entfernt wurde</translation>
    </message>
    <message>
        <source>Brings back what was removed (Ctrl+Z)</source>
        <translation>Bringt zurück, was entfernt wurde (Strg+Z)</translation>
    </message>
</context>
<context>
    <name>Unfilled_Rows</name>
    <message>
        <source>1 recipient gets nothing: %1.</source>
        <translation>1 Empfänger erhält nichts: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients get nothing. Of the first, %1.</source>
        <translation>
            <numerusform>%n Empfänger erhält nichts: %1.</numerusform>
            <numerusform>%n Empfänger erhalten nichts. Zum ersten: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no field %1: 1 recipient gets nothing.</source>
        <translation>Ein Feld %1 gibt es nicht: 1 Empfänger erhält nichts.</translation>
    </message>
    <message numerus="yes">
        <source>There is no field %1: %n recipients get nothing.</source>
        <translation>
            <numerusform>Ein Feld %1 gibt es nicht: %n Empfänger erhält nichts.</numerusform>
            <numerusform>Ein Feld %1 gibt es nicht: %n Empfänger erhalten nichts.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 recipient has no %1: it gets nothing.</source>
        <translation>1 Empfänger ohne %1 erhält nichts.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients have no %1: they get nothing.</source>
        <translation>
            <numerusform>%n Empfänger ohne %1 erhält nichts.</numerusform>
            <numerusform>%n Empfänger ohne %1 erhalten nichts.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Unfinished_Strip</name>
    <message>
        <source>Sends what was not sent. What was sent is not sent again.</source>
        <translation>Sendet, was nicht gesendet wurde. Gesendetes wird nicht noch einmal gesendet.</translation>
    </message>
    <message>
        <source>Rows that may have been sent ...</source>
        <translation>Vielleicht Gesendetes ...</translation>
    </message>
    <message>
        <source>Lists them, so that you can say what is to become of each</source>
        <translation>Zeigt sie, damit Sie über jede Zeile entscheiden können</translation>
    </message>
    <message>
        <source>Receipt ...</source>
        <translation>Sendebericht ...</translation>
    </message>
    <message>
        <source>Shows what became of each message so far</source>
        <translation>Zeigt, was bisher aus jeder Nachricht wurde</translation>
    </message>
    <message>
        <source>Remove ...</source>
        <translation>Löschen ...</translation>
    </message>
    <message>
        <source>Removes the job&apos;s list and its record</source>
        <translation>Löscht Liste und Aufzeichnung des Auftrags</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Leaves the job as it is and says no more of it for now</source>
        <translation>Lässt den Auftrag ruhen und meldet ihn vorerst nicht mehr</translation>
    </message>
    <message>
        <source>Job that has not ended</source>
        <translation>Nicht beendeter Auftrag</translation>
    </message>
    <message>
        <source>Receipt of the job that has not ended ...</source>
        <translation>Sendebericht des nicht beendeten Auftrags ...</translation>
    </message>
    <message>
        <source>A job that began on %1 has not ended.</source>
        <translation>Ein Auftrag vom %1 ist nicht beendet.</translation>
    </message>
    <message>
        <source>Nothing of it is left to be sent.</source>
        <translation>Davon ist nichts mehr zu senden.</translation>
    </message>
    <message>
        <source>The job %1 cannot be gone on with: %2.</source>
        <translation>Der Auftrag %1 lässt sich nicht fortsetzen: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n weiterer</numerusform>
            <numerusform>%n weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Send the remaining %n</source>
        <translation>
            <numerusform>Die restliche %n senden</numerusform>
            <numerusform>Die restlichen %n senden</numerusform>
        </translation>
    </message>
    <message>
        <source>Send the rest</source>
        <translation>Den Rest senden</translation>
    </message>
    <message>
        <source>The job could not be removed: %1.</source>
        <translation>Der Auftrag ließ sich nicht löschen: %1.</translation>
    </message>
</context>
<context>
    <name>Unknown_Rows_Sheet</name>
    <message>
        <source>Rows that may have been sent</source>
        <translation>Vielleicht gesendete Zeilen</translation>
    </message>
    <message>
        <source>It is not known whether these messages were sent. What is left as it is will not be sent again. What is sent again may arrive twice.</source>
        <translation>Es ist unbekannt, ob diese Nachrichten gesendet wurden. Was so bleibt, wird nicht noch einmal gesendet. Was erneut gesendet wird, kommt womöglich doppelt an.</translation>
    </message>
    <message>
        <source>The selected rows:</source>
        <translation>Die ausgewählten Zeilen:</translation>
    </message>
    <message>
        <source>&amp;Leave</source>
        <translation>&amp;So lassen</translation>
    </message>
    <message>
        <source>Send &amp;again</source>
        <translation>&amp;Erneut senden</translation>
    </message>
    <message>
        <source>&amp;Count as sent</source>
        <translation>Als &amp;gesendet zählen</translation>
    </message>
    <message>
        <source>All rows:</source>
        <translation>Alle Zeilen:</translation>
    </message>
    <message>
        <source>Lea&amp;ve all</source>
        <translation>Alle so &amp;lassen</translation>
    </message>
    <message>
        <source>Send all a&amp;gain</source>
        <translation>Alle e&amp;rneut senden</translation>
    </message>
    <message>
        <source>C&amp;ount all as sent</source>
        <translation>Alle als gesendet &amp;zählen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Keep these decisions in the record of the job</source>
        <translation>Diese Entscheidungen in der Aufzeichnung des Auftrags festhalten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Leave everything as it is</source>
        <translation>Alles lassen, wie es ist</translation>
    </message>
    <message>
        <source>Leave as it is</source>
        <translation>So lassen</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Erneut senden</translation>
    </message>
    <message>
        <source>Count as sent</source>
        <translation>Als gesendet zählen</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Entscheidung</translation>
    </message>
    <message>
        <source>The decisions could not be kept: %1.</source>
        <translation>Die Entscheidungen ließen sich nicht festhalten: %1.</translation>
    </message>
</context>
<context>
    <name>Unused_Lines_Wnd</name>
    <message>
        <source>Lines that were not used</source>
        <translation>Nicht verwendete Zeilen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>No phone number</source>
        <translation>Keine Rufnummer</translation>
    </message>
    <message>
        <source>Already in the list</source>
        <translation>Schon in der Liste</translation>
    </message>
    <message>
        <source>In an exclusion list</source>
        <translation>In einer Ausschlussliste</translation>
    </message>
    <message>
        <source>Lines not used: %1.</source>
        <translation>Nicht verwendete Zeilen: %1.</translation>
    </message>
    <message>
        <source>These are the first %1.</source>
        <translation>Dies sind die ersten %1.</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>As it stood there</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Why it was not used</source>
        <translation>Grund</translation>
    </message>
</context>
<context>
    <name>UpdateTemp</name>
    <message>
        <source>Templates</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>&amp;Message:</source>
        <translation>&amp;Nachricht:</translation>
    </message>
    <message>
        <source>Message of the template</source>
        <translation>Nachricht der Vorlage</translation>
    </message>
    <message>
        <source>At most 1600 characters</source>
        <translation>Höchstens 1600 Zeichen</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>0 Zeichen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
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
        <translation>Nummer bearbeiten</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Rufnummer</translation>
    </message>
    <message>
        <source>The number as it is to stand in the exclusion list, at most 20 characters</source>
        <translation>Die Nummer für die Ausschlussliste, höchstens 20 Zeichen</translation>
    </message>
    <message>
        <source>Number as it was</source>
        <translation>Bisherige Nummer</translation>
    </message>
    <message>
        <source>Row of the number</source>
        <translation>Zeile der Nummer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Phone &amp;number:</source>
        <translation>&amp;Rufnummer:</translation>
    </message>
</context>
<context>
    <name>Update_Num_SMS</name>
    <message>
        <source>Edit number and message</source>
        <translation>Nummer und Nachricht bearbeiten</translation>
    </message>
    <message>
        <source>Phone &amp;number:</source>
        <translation>&amp;Rufnummer:</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Rufnummer</translation>
    </message>
    <message>
        <source>&amp;Message:</source>
        <translation>&amp;Nachricht:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>0 Zeichen</translation>
    </message>
    <message>
        <source>For this window only</source>
        <translation>Nur für dieses Fenster</translation>
    </message>
    <message>
        <source>&amp;Refuse a number that is in the list already</source>
        <translation>Nummern ablehnen, die schon in der &amp;Liste stehen</translation>
    </message>
    <message>
        <source>Refuse an &amp;excluded number</source>
        <translation>Ausge&amp;schlossene Nummern ablehnen</translation>
    </message>
    <message>
        <source>Leave the recipient as it is</source>
        <translation>Den Empfänger lassen, wie er ist</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Save the recipient</source>
        <translation>Den Empfänger speichern</translation>
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
        <translation>Ausgewählte Nachrichten bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Selected numbers:</source>
        <translation>Ausgewählte N&amp;ummern:</translation>
    </message>
    <message>
        <source>Selected numbers</source>
        <translation>Ausgewählte Nummern</translation>
    </message>
    <message>
        <source>Total Selected Numbers : 0</source>
        <translation>Ausgewählte Nummern gesamt: 0</translation>
    </message>
    <message>
        <source>New &amp;message for all of them:</source>
        <translation>&amp;Neue Nachricht für alle:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>0 Zeichen</translation>
    </message>
    <message>
        <source>Leave the messages as they are</source>
        <translation>Die Nachrichten lassen, wie sie sind</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Copy the message to the selected numbers</source>
        <translation>Die Nachricht in die ausgewählten Nummern kopieren</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
</context>
</TS>
