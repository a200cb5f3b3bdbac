<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Answer_Cleaning</name>
    <message>
        <source>Device does not have a battery connected.</source>
        <translation>Urządzenie nie ma podłączonej baterii.</translation>
    </message>
    <message>
        <source>%1% ( Charging )</source>
        <translation>%1% (ładowanie)</translation>
    </message>
    <message>
        <source>Recognized power fault.</source>
        <translation>Wykryto usterkę zasilania.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Nieznany</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Słaby</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Średni</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Dobry</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Bardzo dobry</translation>
    </message>
</context>
<context>
    <name>Appearance_Menu</name>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Jasny</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Ciemny</translation>
    </message>
    <message>
        <source>&amp;High contrast</source>
        <translation>&amp;Wysoki kontrast</translation>
    </message>
    <message>
        <source>&amp;As the desktop</source>
        <translation>Jak w &amp;systemie</translation>
    </message>
</context>
<context>
    <name>Bubble_Words</name>
    <message>
        <source>%1 is lost</source>
        <translation>%1 znika</translation>
    </message>
    <message>
        <source>%1 arrives as a blank</source>
        <translation>%1 zmienia się w spację</translation>
    </message>
    <message>
        <source>%1 arrives as %2</source>
        <translation>%1 zmienia się w %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n inny</numerusform>
            <numerusform>%n inne</numerusform>
            <numerusform>%n innych</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 i %2</translation>
    </message>
    <message>
        <source>%1 makes this message Unicode</source>
        <translation>%1 wymusza Unicode w tej wiadomości</translation>
    </message>
    <message>
        <source>%1 make this message Unicode</source>
        <translation>%1 wymuszają Unicode w tej wiadomości</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n parts instead of %2.</source>
        <translation>
            <numerusform>%1: %n część zamiast %2.</numerusform>
            <numerusform>%1: %n części zamiast %2.</numerusform>
            <numerusform>%1: %n części zamiast %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 part of %1, %2 left</source>
        <translation>1 część po %1, zostało %2</translation>
    </message>
    <message numerus="yes">
        <source>%n parts of %1, %2 left in the last</source>
        <translation>
            <numerusform>%n część po %1, w ostatniej zostało %2</numerusform>
            <numerusform>%n części po %1, w ostatniej zostało %2</numerusform>
            <numerusform>%n części po %1, w ostatniej zostało %2</numerusform>
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
        <translation>Nie znaleziono telefonu ani modemu podłączonego przez USB lub Bluetooth. Włącz urządzenie i podłącz je w sposób opisany powyżej; może się pojawić dopiero po kilku sekundach. Modem w porcie szeregowym samego komputera i tak jest na liście, jako ttyS0 lub inny ttyS, jeśli Twoje konto może go otworzyć.</translation>
    </message>
    <message>
        <source>Your account may not open %1. Only the system&apos;s administrator can allow it.</source>
        <translation>Twoje konto nie może otworzyć %1. Zezwolić na to może tylko administrator systemu.</translation>
    </message>
    <message>
        <source>Your account may not open %1. Members of this group may: %2. Join it with this command, then log out and in again:</source>
        <translation>Twoje konto nie może otworzyć %1. Mogą to robić członkowie grupy: %2. Dołącz do niej tym poleceniem, a potem wyloguj się i zaloguj ponownie:</translation>
    </message>
    <message>
        <source>The service ModemManager is running and may hold the device&apos;s port. If the device is not found or does not answer, stop the service until the next start of the computer:</source>
        <translation>Działa usługa ModemManager, która może zajmować port urządzenia. Jeśli urządzenia nie widać lub nie odpowiada, zatrzymaj tę usługę do następnego uruchomienia komputera:</translation>
    </message>
</context>
<context>
    <name>Connection_Info</name>
    <message>
        <source>Connect your mobile phone</source>
        <translation>Podłącz telefon komórkowy</translation>
    </message>
    <message>
        <source>Corvane sends your messages through a mobile phone or GSM modem connected to this computer. Before the search begins, switch the device on and let the computer use it as a modem:</source>
        <translation>Corvane wysyła wiadomości przez telefon komórkowy lub modem GSM podłączony do tego komputera. Przed wyszukiwaniem włącz urządzenie i pozwól komputerowi używać go jako modemu:</translation>
    </message>
    <message>
        <source>With a USB cable</source>
        <translation>Kablem USB</translation>
    </message>
    <message>
        <source>Plug the cable in and unlock the phone. When it asks what the connection is for, choose the modem or data mode – phones call it “Modem”, “PC connection”, “COM port” or “Tethering as a modem” – and not “Charging” or “File transfer”. A GSM modem or USB stick is ready some seconds after it has been plugged in.</source>
        <translation>Podłącz kabel i odblokuj telefon. Gdy zapyta, do czego służy połączenie, wybierz tryb modemu lub danych – w telefonach nazywa się on „Modem”, „Połączenie z PC”, „Port COM” lub „Tethering jako modem” – a nie „Ładowanie” ani „Przesyłanie plików”. Modem GSM lub modem USB jest gotowy kilka sekund po podłączeniu.</translation>
    </message>
    <message>
        <source>With Bluetooth</source>
        <translation>Przez Bluetooth</translation>
    </message>
    <message>
        <source>Pair the phone in your desktop’s Bluetooth settings, then bind a serial port to it in a terminal, with the phone’s own address in place of the one shown:</source>
        <translation>Sparuj telefon w ustawieniach Bluetooth systemu, a potem przypisz mu w terminalu port szeregowy, podając adres telefonu zamiast pokazanego:</translation>
    </message>
    <message>
        <source>Command that binds a serial port</source>
        <translation>Polecenie przypisujące port szeregowy</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Na tym komputerze</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Dalej</translation>
    </message>
    <message>
        <source>Command to copy</source>
        <translation>Polecenie do skopiowania</translation>
    </message>
</context>
<context>
    <name>Contact_Desk</name>
    <message>
        <source>%1 added.</source>
        <translation>Dodano: %1.</translation>
    </message>
    <message>
        <source>%1 added, 1 row not used.</source>
        <translation>Dodano: %1, nie użyto 1 wiersza.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %n rows not used.</source>
        <translation>
            <numerusform>Dodano: %1, nie użyto %n wiersza.</numerusform>
            <numerusform>Dodano: %1, nie użyto %n wierszy.</numerusform>
            <numerusform>Dodano: %1, nie użyto %n wierszy.</numerusform>
        </translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Zapisano w %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be written.</source>
        <translation>Nie udało się zapisać pliku %1.</translation>
    </message>
    <message>
        <source>1 row was not sent: %1.</source>
        <translation>Nie wysłano 1 wiersza: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows were not sent. Of the first, %1.</source>
        <translation>
            <numerusform>Nie wysłano %n wiersza. Przyczyna w pierwszym: %1.</numerusform>
            <numerusform>Nie wysłano %n wierszy. Przyczyna w pierwszym: %1.</numerusform>
            <numerusform>Nie wysłano %n wierszy. Przyczyna w pierwszym: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nobody is on the list yet.</source>
        <translation>Na liście nie ma jeszcze nikogo.</translation>
    </message>
    <message>
        <source>Add contacts from a spreadsheet, CSV or vCard file ...</source>
        <translation>Dodaj kontakty z arkusza, pliku CSV lub vCard...</translation>
    </message>
</context>
<context>
    <name>Contact_Source</name>
    <message>
        <source>The clipboard</source>
        <translation>Schowek</translation>
    </message>
</context>
<context>
    <name>Contacts_Wnd</name>
    <message>
        <source>Another file ...</source>
        <translation>Inny plik...</translation>
    </message>
    <message>
        <source>Choose another file</source>
        <translation>Wybierz inny plik</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Wstecz</translation>
    </message>
    <message>
        <source>Back to the columns and the country</source>
        <translation>Wróć do kolumn i kraju</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Dalej</translation>
    </message>
    <message>
        <source>Look at what is made of each row</source>
        <translation>Zobacz, co powstanie z każdego wiersza</translation>
    </message>
    <message>
        <source>&amp;Add to list</source>
        <translation>Dodaj do &amp;listy</translation>
    </message>
    <message>
        <source>Add the rows that can be used to the list, with the message as it stands</source>
        <translation>Dodaj do listy wiersze, których można użyć, z wiadomością w jej obecnym brzmieniu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Import contacts</source>
        <translation>Import kontaktów</translation>
    </message>
    <message>
        <source>Check before sending</source>
        <translation>Sprawdzenie przed wysłaniem</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>brakuje na to pamięci</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>Copy_Action</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
</context>
<context>
    <name>CorvaneAppDelegate</name>
    <message>
        <source>No Mobile Phone Device is selected.</source>
        <translation>Nie wybrano telefonu komórkowego.</translation>
    </message>
    <message>
        <source>Click here to start Mobile Phone Connection Wizard.</source>
        <translation>Kliknij tutaj, aby otworzyć kreator połączenia z telefonem.</translation>
    </message>
    <message>
        <source>Find the phones and modems attached to this computer and pick one</source>
        <translation>Wyszukaj telefony i modemy podłączone do tego komputera i wybierz jeden z nich</translation>
    </message>
    <message>
        <source>Connection &amp;Wizard ...</source>
        <translation>&amp;Kreator połączenia...</translation>
    </message>
    <message>
        <source>Choose the normal type of message, and select those whose message was not taken. Nothing is sent: keep only those, and then press Send</source>
        <translation>Wybierz zwykły typ wiadomości i zaznacz odbiorców, których wiadomości nie przyjęto. Nic nie zostanie wysłane: zostaw tylko ich, a potem naciśnij „Wyślij”</translation>
    </message>
    <message>
        <source>Choose normal text messages</source>
        <translation>Wybierz zwykłe SMS-y</translation>
    </message>
    <message>
        <source>Recipients</source>
        <translation>Odbiorcy</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Numer telefonu</translation>
    </message>
    <message>
        <source>for example +447700900123</source>
        <translation>na przykład +48123456789</translation>
    </message>
    <message>
        <source>Add the number with the message as it stands</source>
        <translation>Dodaj numer z wiadomością w jej obecnym brzmieniu</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Doda&amp;j</translation>
    </message>
    <message>
        <source>Add the numbers of a text or RTF file, one in each line, with the message as it stands. A file can also be dropped on the list, and numbers can be pasted into it</source>
        <translation>Dodaj numery z pliku tekstowego lub RTF, po jednym w wierszu, z wiadomością w jej obecnym brzmieniu. Plik można też upuścić na listę, a numery wkleić</translation>
    </message>
    <message>
        <source>&amp;Import ...</source>
        <translation>&amp;Importuj...</translation>
    </message>
    <message>
        <source>Add the contacts of a spreadsheet, a CSV or a vCard file, with their names and other fields, after a look at what is made of them</source>
        <translation>Dodaj kontakty z arkusza kalkulacyjnego, pliku CSV lub vCard, z nazwiskami i innymi polami, po obejrzeniu, co powstanie z każdego wiersza</translation>
    </message>
    <message>
        <source>Contacts ...</source>
        <translation>Kontakty...</translation>
    </message>
    <message>
        <source>Total Numbers : 0</source>
        <translation>Liczba numerów: 0</translation>
    </message>
    <message>
        <source>Write the numbers of the list into a text file</source>
        <translation>Zapisz numery z listy w pliku tekstowym</translation>
    </message>
    <message>
        <source>Ex&amp;port ...</source>
        <translation>&amp;Eksportuj...</translation>
    </message>
    <message>
        <source>Clear S&amp;elected</source>
        <translation>Usuń &amp;zaznaczone</translation>
    </message>
    <message>
        <source>&amp;Clear All</source>
        <translation>Usuń wsz&amp;ystkie</translation>
    </message>
    <message>
        <source>Select the recipients whose message was refused or not tried. One that may have been sent, was written or got no answer is not among them, since it may have arrived</source>
        <translation>Zaznacz odbiorców, których wiadomość odrzucono albo której nie próbowano wysłać. Nie ma wśród nich tych, których wiadomość być może wysłano, przekazano lub pozostała bez odpowiedzi, bo mogła dotrzeć</translation>
    </message>
    <message>
        <source>Select those not taken</source>
        <translation>Zaznacz nieprzyjęte</translation>
    </message>
    <message>
        <source>Remove all recipients from the list but those whose message was refused or not tried. Nothing is sent</source>
        <translation>Usuń z listy wszystkich odbiorców oprócz tych, których wiadomość odrzucono albo której nie próbowano wysłać. Nic nie zostanie wysłane</translation>
    </message>
    <message>
        <source>Keep only those</source>
        <translation>Zostaw tylko ich</translation>
    </message>
    <message>
        <source>Look at what became of each message of the last job that was confirmed, and export that</source>
        <translation>Zobacz, co stało się z każdą wiadomością ostatniej wysyłki z potwierdzaniem, i wyeksportuj to</translation>
    </message>
    <message>
        <source>Receipt ...</source>
        <translation>Raport...</translation>
    </message>
    <message>
        <source>Excluded numbers</source>
        <translation>Wykluczone numery</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Wiadomość</translation>
    </message>
    <message>
        <source>&amp;Message for the numbers you add:</source>
        <translation>Wia&amp;domość dla dodawanych numerów:</translation>
    </message>
    <message>
        <source>Put a field into the message. Everybody gets it with the value of their own</source>
        <translation>Wstaw pole do wiadomości. Każdy otrzyma ją z własną wartością</translation>
    </message>
    <message>
        <source>Insert field</source>
        <translation>Wstaw pole</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>Znaki: 0</translation>
    </message>
    <message>
        <source>Write one new message for the recipients selected in the list</source>
        <translation>Napisz jedną nową wiadomość dla odbiorców zaznaczonych na liście</translation>
    </message>
    <message>
        <source>Edit the
messages of
selected items</source>
        <translation>Edytuj
wiadomości
zaznaczonych</translation>
    </message>
    <message>
        <source>Copy the message above to all, the selected or the blank items of the list</source>
        <translation>Skopiuj powyższą wiadomość do wszystkich, zaznaczonych lub pustych pozycji listy</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Wysyłanie</translation>
    </message>
    <message>
        <source>Message &amp;type:</source>
        <translation>&amp;Typ wiadomości:</translation>
    </message>
    <message>
        <source>Message type</source>
        <translation>Typ wiadomości</translation>
    </message>
    <message>
        <source>A notification shows at once on the handset and is not stored</source>
        <translation>Powiadomienie pojawia się od razu na ekranie telefonu i nie jest w nim zapisywane</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Powiadomienie</translation>
    </message>
    <message>
        <source>Text message</source>
        <translation>SMS</translation>
    </message>
    <message>
        <source>Needed for every text with characters that Help does not list, such as € ê ő ö ù or emoji: they arrive as others without it. 70 characters fit one message instead of 160</source>
        <translation>Potrzebne dla każdego tekstu ze znakami, których nie wymienia Pomoc, jak € ê ő ö ù lub emoji: bez tego zamienią się w inne. W jednej wiadomości mieści się wtedy 70 znaków zamiast 160</translation>
    </message>
    <message>
        <source>Send as &amp;Unicode</source>
        <translation>Wyślij jako &amp;Unicode</translation>
    </message>
    <message>
        <source>Refuse a number that the list has already, and send to each number once</source>
        <translation>Odrzucaj numer, który jest już na liście, i wysyłaj na każdy numer tylko raz</translation>
    </message>
    <message>
        <source>S&amp;kip duplicate numbers</source>
        <translation>&amp;Pomijaj powtórzone numery</translation>
    </message>
    <message>
        <source>Refuse the numbers of the applied exclusion lists, and never send to them</source>
        <translation>Odrzucaj numery z zastosowanych list wykluczeń i nigdy do nich nie wysyłaj</translation>
    </message>
    <message>
        <source>Heed the exc&amp;lusion lists</source>
        <translation>Uwzględniaj listy wyklu&amp;czeń</translation>
    </message>
    <message>
        <source>Keep lists of numbers that are not to be sent to</source>
        <translation>Prowadź listy numerów, do których nic nie ma być wysyłane</translation>
    </message>
    <message>
        <source>Exclusi&amp;on Lists ...</source>
        <translation>&amp;Listy wykluczeń...</translation>
    </message>
    <message>
        <source>Keep a record of every message that was handed to the phone</source>
        <translation>Zapisuj każdą wiadomość przekazaną do telefonu</translation>
    </message>
    <message>
        <source>Sa&amp;ve sent items</source>
        <translation>Zac&amp;howuj wysłane</translation>
    </message>
    <message>
        <source>Look at the records of messages handed to the phone</source>
        <translation>Zobacz wiadomości przekazane do telefonu</translation>
    </message>
    <message>
        <source>Sent Items ...</source>
        <translation>Wysłane...</translation>
    </message>
    <message>
        <source>Keep the text of every message that was handed to the phone, once</source>
        <translation>Zachowuj, jednokrotnie, tekst każdej wiadomości przekazanej do telefonu</translation>
    </message>
    <message>
        <source>Save messa&amp;ges as templates</source>
        <translation>Zachowuj jako sza&amp;blony</translation>
    </message>
    <message>
        <source>Keep texts that are used again, and put one into the message</source>
        <translation>Przechowuj teksty do ponownego użycia i wstawiaj je do wiadomości</translation>
    </message>
    <message>
        <source>Templates ...</source>
        <translation>Szablony...</translation>
    </message>
    <message>
        <source>Send each message as soon as the phone or network has answered for the one before it, in the alphabet that its text needs, and never a second time unasked. A record of the job is kept until it is finished</source>
        <translation>Wysyłaj każdą wiadomość, gdy tylko telefon lub sieć odpowie na poprzednią, w alfabecie, którego wymaga jej tekst, i nigdy drugi raz bez pytania. Zapis wysyłki jest przechowywany do jej zakończenia</translation>
    </message>
    <message>
        <source>Con&amp;firm each message</source>
        <translation>Czekaj n&amp;a potwierdzenia</translation>
    </message>
    <message>
        <source>Look at the receipts that were kept</source>
        <translation>Zobacz zachowane raporty z wysyłek</translation>
    </message>
    <message>
        <source>Receipts ...</source>
        <translation>Raporty...</translation>
    </message>
    <message>
        <source>Ask the network to report what was delivered, and wait up to a minute for that at the end. Some networks charge for reports, and some never send any</source>
        <translation>Poproś sieć o informację, co doręczono, i na koniec czekaj na nią do minuty. Niektóre sieci pobierają za raporty opłaty, a niektóre nigdy ich nie wysyłają</translation>
    </message>
    <message>
        <source>Ask for delivery reports</source>
        <translation>Żądaj raportów doręczenia</translation>
    </message>
    <message>
        <source>Keep the record of a finished job, with every number and message, instead of removing it</source>
        <translation>Zachowuj zapis zakończonej wysyłki, ze wszystkimi numerami i wiadomościami, zamiast go usuwać</translation>
    </message>
    <message>
        <source>Keep the receipt</source>
        <translation>Zachowuj raport</translation>
    </message>
    <message>
        <source>Have these boxes ticked as they are now, whenever the program starts</source>
        <translation>Zaznaczaj te pola tak jak teraz przy każdym uruchomieniu programu</translation>
    </message>
    <message>
        <source>Remember these choices</source>
        <translation>Zapamiętaj ten wybór</translation>
    </message>
    <message>
        <source>Pause after each batch of messages</source>
        <translation>Przerwa po każdej serii wiadomości</translation>
    </message>
    <message>
        <source>&amp;Delay: after</source>
        <translation>Prze&amp;rwa: po</translation>
    </message>
    <message>
        <source>Messages before each pause</source>
        <translation>Wiadomości przed każdą przerwą</translation>
    </message>
    <message>
        <source>How many messages are sent before each pause</source>
        <translation>Ile wiadomości jest wysyłanych przed każdą przerwą</translation>
    </message>
    <message numerus="yes">
        <source>messages wait</source>
        <translation>
            <numerusform>wiadomości czekaj</numerusform>
            <numerusform>wiadomościach czekaj</numerusform>
            <numerusform>wiadomościach czekaj</numerusform>
        </translation>
    </message>
    <message>
        <source>Length of each pause</source>
        <translation>Długość każdej przerwy</translation>
    </message>
    <message>
        <source>How long each pause lasts</source>
        <translation>Jak długo trwa każda przerwa</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Po&amp;moc</translation>
    </message>
    <message>
        <source>Choose light or dark colours, or those with the highest contrast</source>
        <translation>Wybierz jasne lub ciemne kolory albo najwyższy kontrast</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Wygląd</translation>
    </message>
    <message>
        <source>Empty the list, the fields and the options</source>
        <translation>Wyczyść listę, pola i opcje</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>Zre&amp;setuj</translation>
    </message>
    <message>
        <source>What serves better for long lists, and how to hand this one over</source>
        <translation>Co lepiej nadaje się do długich list i jak przekazać tę listę dalej</translation>
    </message>
    <message>
        <source>Other ways ...</source>
        <translation>Inne sposoby...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Zak&amp;ończ</translation>
    </message>
    <message>
        <source>Look at each message as it will be sent, what is left out and why. Nothing is sent</source>
        <translation>Zobacz każdą wiadomość tak, jak zostanie wysłana, oraz co i dlaczego zostanie pominięte. Nic nie zostanie wysłane</translation>
    </message>
    <message>
        <source>Check before sending ...</source>
        <translation>Sprawdź przed wysłaniem...</translation>
    </message>
    <message>
        <source>Send each recipient&apos;s message</source>
        <translation>Wyślij każdemu odbiorcy jego wiadomość</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Wyślij</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numer</translation>
    </message>
    <message>
        <source>Excluded number</source>
        <translation>Wykluczony numer</translation>
    </message>
    <message>
        <source>1 recipient removed.</source>
        <translation>Usunięto 1 odbiorcę.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients removed.</source>
        <translation>
            <numerusform>Usunięto %n odbiorcę.</numerusform>
            <numerusform>Usunięto %n odbiorców.</numerusform>
            <numerusform>Usunięto %n odbiorców.</numerusform>
        </translation>
    </message>
    <message>
        <source>List, fields and options were reset.</source>
        <translation>Zresetowano listę, pola i opcje.</translation>
    </message>
    <message>
        <source>Everything that can be done here, with its keys</source>
        <translation>Wszystko, co można tu zrobić, ze skrótami</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>What the program does, in short, and how to use it</source>
        <translation>W skrócie: co robi program i jak go używać</translation>
    </message>
    <message>
        <source>End the program, after a question</source>
        <translation>Zakończ program, po potwierdzeniu</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Numer:</translation>
    </message>
</context>
<context>
    <name>Delayed_Delivery</name>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n sekundę</numerusform>
            <numerusform>%n sekundy</numerusform>
            <numerusform>%n sekund</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n minutę</numerusform>
            <numerusform>%n minuty</numerusform>
            <numerusform>%n minut</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>%n godzinę</numerusform>
            <numerusform>%n godziny</numerusform>
            <numerusform>%n godzin</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Demo_Phone</name>
    <message>
        <source>The virtual phone could not be started: %1: %2</source>
        <translation>Nie udało się uruchomić wirtualnego telefonu: %1: %2</translation>
    </message>
</context>
<context>
    <name>Desktop_Help</name>
    <message>
        <source>Messages are being sent</source>
        <translation>Trwa wysyłanie wiadomości</translation>
    </message>
    <message>
        <source>Sending waits</source>
        <translation>Wysyłanie wstrzymane</translation>
    </message>
    <message>
        <source>Sending has ended</source>
        <translation>Wysyłanie zakończone</translation>
    </message>
</context>
<context>
    <name>Doctor_Wnd</name>
    <message>
        <source>Why does my phone not show?</source>
        <translation>Nie widać telefonu?</translation>
    </message>
    <message>
        <source>This looks at the ports of this computer and asks the devices on them. Nothing is sent, and no PIN is tried.</source>
        <translation>Program sprawdza porty tego komputera i odpytuje podłączone do nich urządzenia. Niczego nie wysyła i nie próbuje żadnego kodu PIN.</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Co znaleziono</translation>
    </message>
    <message>
        <source>Looking</source>
        <translation>Sprawdzanie</translation>
    </message>
    <message>
        <source>No phone at hand?</source>
        <translation>Nie masz telefonu pod ręką?</translation>
    </message>
    <message>
        <source>Try the program with a virtual phone: nothing is really sent.</source>
        <translation>Wypróbuj program z wirtualnym telefonem: nic nie zostanie naprawdę wysłane.</translation>
    </message>
    <message>
        <source>Use the &amp;virtual phone</source>
        <translation>Użyj telefonu &amp;wirtualnego</translation>
    </message>
    <message>
        <source>Look &amp;again</source>
        <translation>&amp;Sprawdź ponownie</translation>
    </message>
    <message>
        <source>Copy &amp;report</source>
        <translation>&amp;Kopiuj raport</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>Looking at what is connected ...</source>
        <translation>Sprawdzanie, co jest podłączone...</translation>
    </message>
    <message>
        <source>Asking %1 ...</source>
        <translation>Odpytywanie %1...</translation>
    </message>
    <message>
        <source>A device is there that could send.</source>
        <translation>Jest urządzenie, które może wysyłać.</translation>
    </message>
    <message>
        <source>No device could send. What helps stands above.</source>
        <translation>Żadne urządzenie nie może wysyłać. Powyżej podano, co pomaga.</translation>
    </message>
    <message>
        <source>The report is copied. It holds no numbers and no texts of messages.</source>
        <translation>Raport skopiowano. Nie zawiera numerów ani tekstów wiadomości.</translation>
    </message>
</context>
<context>
    <name>Exclusion_Trouble</name>
    <message>
        <source>The file that says which exclusion lists are applied
can not be read: no number is excluded.</source>
        <translation>Nie można odczytać pliku, który wskazuje, jakie listy wykluczeń
są zastosowane: żaden numer nie jest wykluczony.</translation>
    </message>
    <message>
        <source>The exclusion list %1
can not be used: its numbers are not excluded.</source>
        <translation>Nie można użyć listy wykluczeń %1:
jej numery nie są wykluczone.</translation>
    </message>
    <message>
        <source>The exclusion lists %1
can not be used: their numbers are not excluded.</source>
        <translation>Nie można użyć list wykluczeń %1:
ich numery nie są wykluczone.</translation>
    </message>
    <message>
        <source>The exclusion lists %1 and %2 more
can not be used: their numbers are not excluded.</source>
        <translation>Nie można użyć list wykluczeń %1 (i jeszcze %2):
ich numery nie są wykluczone.</translation>
    </message>
</context>
<context>
    <name>Exclusion_Wizard</name>
    <message>
        <source>Exclusion List Wizard</source>
        <translation>Kreator list wykluczeń</translation>
    </message>
    <message>
        <source>Available exclusion lists</source>
        <translation>Dostępne listy wykluczeń</translation>
    </message>
    <message>
        <source>Apply the selected lists</source>
        <translation>Zastosuj zaznaczone listy</translation>
    </message>
    <message>
        <source>Exclude the numbers of the selected lists when sending</source>
        <translation>Wykluczaj przy wysyłaniu numery z zaznaczonych list</translation>
    </message>
    <message>
        <source>&amp;Apply  ›</source>
        <translation>&amp;Zastosuj  ›</translation>
    </message>
    <message>
        <source>Apply all lists</source>
        <translation>Zastosuj wszystkie listy</translation>
    </message>
    <message>
        <source>Exclude the numbers of all lists when sending</source>
        <translation>Wykluczaj przy wysyłaniu numery ze wszystkich list</translation>
    </message>
    <message>
        <source>Apply a&amp;ll  »</source>
        <translation>Zastosuj &amp;wszystkie  »</translation>
    </message>
    <message>
        <source>Remove the selected applied lists</source>
        <translation>Usuń zaznaczone listy z zastosowanych</translation>
    </message>
    <message>
        <source>Do not exclude the numbers of the selected lists any more</source>
        <translation>Nie wykluczaj już numerów z zaznaczonych list</translation>
    </message>
    <message>
        <source>‹  &amp;Remove</source>
        <translation>‹  &amp;Usuń</translation>
    </message>
    <message>
        <source>Remove all applied lists</source>
        <translation>Usuń wszystkie listy z zastosowanych</translation>
    </message>
    <message>
        <source>Do not exclude the numbers of any list any more</source>
        <translation>Nie wykluczaj już numerów z żadnej listy</translation>
    </message>
    <message>
        <source>«  Re&amp;move all</source>
        <translation>«  Usuń wsz&amp;ystkie</translation>
    </message>
    <message>
        <source>Lists to exclude when sending SMS</source>
        <translation>Listy wykluczane przy wysyłaniu SMS-ów</translation>
    </message>
    <message>
        <source>Make a new exclusion list</source>
        <translation>Utwórz nową listę wykluczeń</translation>
    </message>
    <message>
        <source>Add &amp;New ...</source>
        <translation>&amp;Nowa...</translation>
    </message>
    <message>
        <source>Edit the numbers of the selected list</source>
        <translation>Edytuj numery zaznaczonej listy</translation>
    </message>
    <message>
        <source>&amp;Update ...</source>
        <translation>&amp;Edytuj...</translation>
    </message>
    <message>
        <source>Delete the selected lists and their numbers</source>
        <translation>Skasuj zaznaczone listy wraz z ich numerami</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Skasuj</translation>
    </message>
    <message>
        <source>Keep the lists on the right as those to exclude when sending</source>
        <translation>Zapamiętaj listy po prawej jako wykluczane przy wysyłaniu</translation>
    </message>
    <message>
        <source>&amp;Save Applied</source>
        <translation>Zapisz wy&amp;bór</translation>
    </message>
    <message>
        <source>Exclusion list name</source>
        <translation>Nazwa listy wykluczeń</translation>
    </message>
    <message>
        <source>A name for the list, at most 50 characters</source>
        <translation>Nazwa listy, najwyżej 50 znaków</translation>
    </message>
    <message>
        <source>Administration team</source>
        <translation>Zespół administracji</translation>
    </message>
    <message>
        <source>File of numbers</source>
        <translation>Plik z numerami</translation>
    </message>
    <message>
        <source>A text or rich-text file with one number a line</source>
        <translation>Plik tekstowy lub RTF z jednym numerem w wierszu</translation>
    </message>
    <message>
        <source>Pick the file</source>
        <translation>Wybierz plik</translation>
    </message>
    <message>
        <source>Bro&amp;wse ...</source>
        <translation>P&amp;rzeglądaj...</translation>
    </message>
    <message>
        <source>Add the numbers of the file to the list</source>
        <translation>Dodaj do listy numery z pliku</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>W&amp;czytaj</translation>
    </message>
    <message>
        <source>or</source>
        <translation>lub</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Numer telefonu</translation>
    </message>
    <message>
        <source>A phone number, at most 20 characters</source>
        <translation>Numer telefonu, najwyżej 20 znaków</translation>
    </message>
    <message>
        <source>Add the number to the list</source>
        <translation>Dodaj numer do listy</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Dodaj</translation>
    </message>
    <message>
        <source>Numbers of the list</source>
        <translation>Numery na liście</translation>
    </message>
    <message>
        <source>Total Numbers : 0</source>
        <translation>Liczba numerów: 0</translation>
    </message>
    <message>
        <source>Edit the selected number</source>
        <translation>Edytuj zaznaczony numer</translation>
    </message>
    <message>
        <source>Remove the selected numbers from the list</source>
        <translation>Usuń zaznaczone numery z listy</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Close; applied lists that were not saved are forgotten</source>
        <translation>Zamknij; zastosowane, ale niezapisane listy przepadną</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>Ws&amp;tecz</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>Dale&amp;j</translation>
    </message>
    <message>
        <source>Save the list</source>
        <translation>Zapisz listę</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>Zak&amp;ończ</translation>
    </message>
    <message>
        <source>Close; a list that was not finished is forgotten</source>
        <translation>Zamknij; niedokończona lista przepadnie</translation>
    </message>
    <message>
        <source>Exclusion &amp;list name:</source>
        <translation>Nazwa &amp;listy wykluczeń:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Przykład:</translation>
    </message>
    <message>
        <source>Numbers from a f&amp;ile:</source>
        <translation>Numery z pl&amp;iku:</translation>
    </message>
    <message>
        <source>One &amp;number:</source>
        <translation>Jeden &amp;numer:</translation>
    </message>
</context>
<context>
    <name>Export_Option</name>
    <message>
        <source>Export</source>
        <translation>Eksport</translation>
    </message>
    <message>
        <source>In which format do you want to export the list?</source>
        <translation>W jakim formacie wyeksportować listę?</translation>
    </message>
    <message>
        <source>&amp;Text file</source>
        <translation>Plik &amp;tekstowy</translation>
    </message>
    <message>
        <source>Plain text, with a line between the entries</source>
        <translation>Zwykły tekst z linią między pozycjami</translation>
    </message>
    <message>
        <source>&amp;HTML page</source>
        <translation>Strona &amp;HTML</translation>
    </message>
    <message>
        <source>A table that a web browser shows</source>
        <translation>Tabela do obejrzenia w przeglądarce internetowej</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
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
        <translation>%1 i jeszcze %2</translation>
    </message>
    <message>
        <source>Save with fields ...</source>
        <translation>Zapisz z polami...</translation>
    </message>
    <message>
        <source>Write the list with its messages and fields into a table that can be opened again</source>
        <translation>Zapisz listę z wiadomościami i polami w tabeli, którą można ponownie otworzyć</translation>
    </message>
    <message>
        <source>Fields of the list</source>
        <translation>Pola listy</translation>
    </message>
    <message>
        <source>Fields: %1</source>
        <translation>Pola: %1</translation>
    </message>
</context>
<context>
    <name>File_Panels</name>
    <message>
        <source>
%1 is there already.

Do you want to replace it?</source>
        <translation>
Plik %1 już istnieje.

Czy go zastąpić?</translation>
    </message>
</context>
<context>
    <name>Fill_Msg_In_List</name>
    <message>
        <source>Fill message into list</source>
        <translation>Kopiowanie wiadomości do listy</translation>
    </message>
    <message>
        <source>Copy the message in the composer to:</source>
        <translation>Skopiuj napisaną wiadomość do:</translation>
    </message>
    <message>
        <source>Every number gets the message in the composer</source>
        <translation>Napisaną wiadomość otrzymają wszystkie numery</translation>
    </message>
    <message>
        <source>&amp;All numbers in the list</source>
        <translation>&amp;Wszystkich numerów na liście</translation>
    </message>
    <message>
        <source>The numbers selected in the list get the message; the others keep theirs</source>
        <translation>Wiadomość otrzymają numery zaznaczone na liście; pozostałe zachowają swoje</translation>
    </message>
    <message>
        <source>The &amp;selected numbers</source>
        <translation>&amp;Zaznaczonych numerów</translation>
    </message>
    <message>
        <source>The numbers whose message is empty get the message; the others keep theirs</source>
        <translation>Wiadomość otrzymają numery, których wiadomość jest pusta; pozostałe zachowają swoje</translation>
    </message>
    <message>
        <source>The numbers without a &amp;message</source>
        <translation>Numerów bez w&amp;iadomości</translation>
    </message>
    <message>
        <source>Leave the list as it is</source>
        <translation>Zostaw listę bez zmian</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>Copy the message</source>
        <translation>Skopiuj wiadomość</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
</context>
<context>
    <name>Find_Strip</name>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Show all rows again (Escape)</source>
        <translation>Pokaż znów wszystkie wiersze (Esc)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Szukaj:</translation>
    </message>
    <message>
        <source>Only rows with all these words are shown. The list, and what is sent, stay as they are</source>
        <translation>Widać tylko wiersze ze wszystkimi tymi słowami. Lista i to, co zostanie wysłane, się nie zmieniają</translation>
    </message>
</context>
<context>
    <name>Finding_Row</name>
    <message>
        <source>Command to copy</source>
        <translation>Polecenie do skopiowania</translation>
    </message>
</context>
<context>
    <name>Fixed_Text</name>
    <message>
        <source>This number, or the service centre&apos;s, does not exist.</source>
        <extracomment>Texts::Causes::No_Such_Number</extracomment>
        <translation>Ten numer lub numer centrum SMS nie istnieje.</translation>
    </message>
    <message>
        <source>The recipient&apos;s number is invalid.</source>
        <translation>Numer odbiorcy jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>Messages to this recipient are barred.</source>
        <translation>Wiadomości do tego odbiorcy są zablokowane.</translation>
    </message>
    <message>
        <source>The recipient&apos;s network is out of order.</source>
        <translation>Sieć odbiorcy nie działa.</translation>
    </message>
    <message>
        <source>The operator has barred sending.</source>
        <translation>Operator zablokował wysyłanie.</translation>
    </message>
    <message>
        <source>Sending is barred on this SIM card.</source>
        <translation>Wysyłanie jest zablokowane na tej karcie SIM.</translation>
    </message>
    <message>
        <source>The service centre does not know this SIM card.</source>
        <translation>Centrum SMS nie zna tej karty SIM.</translation>
    </message>
    <message>
        <source>The network does not grant this service.</source>
        <translation>Sieć nie udostępnia tej usługi.</translation>
    </message>
    <message>
        <source>The network does not know this SIM card.</source>
        <translation>Sieć nie zna tej karty SIM.</translation>
    </message>
    <message>
        <source>Text messages are not part of the contract.</source>
        <translation>Umowa nie obejmuje wiadomości SMS.</translation>
    </message>
    <message>
        <source>The network does not offer text messages.</source>
        <translation>Sieć nie oferuje wiadomości SMS.</translation>
    </message>
    <message>
        <source>There is no contract with the service centre.</source>
        <translation>Brak umowy z centrum SMS.</translation>
    </message>
    <message>
        <source>The network has failed.</source>
        <translation>Awaria sieci.</translation>
    </message>
    <message>
        <source>The network rejects this message.</source>
        <translation>Sieć odrzuca tę wiadomość.</translation>
    </message>
    <message>
        <source>The network is congested.</source>
        <translation>Sieć jest przeciążona.</translation>
    </message>
    <message>
        <source>The network is out of order.</source>
        <translation>Sieć nie działa.</translation>
    </message>
    <message>
        <source>The network has a temporary failure.</source>
        <translation>W sieci wystąpiła chwilowa awaria.</translation>
    </message>
    <message>
        <source>The service centre is congested.</source>
        <translation>Centrum SMS jest przeciążone.</translation>
    </message>
    <message>
        <source>The network has no room for messages now.</source>
        <translation>Sieć nie ma teraz miejsca na wiadomości.</translation>
    </message>
    <message>
        <source>The network has lost track of this message.</source>
        <translation>Sieć zgubiła tę wiadomość.</translation>
    </message>
    <message>
        <source>There is trouble between two networks.</source>
        <translation>Zakłócenia między dwiema sieciami.</translation>
    </message>
    <message>
        <source>The service centre is busy.</source>
        <translation>Centrum SMS jest zajęte.</translation>
    </message>
    <message>
        <source>The service centre has failed.</source>
        <translation>Awaria centrum SMS.</translation>
    </message>
    <message>
        <source>The service centre already has this message.</source>
        <translation>Centrum SMS ma już tę wiadomość.</translation>
    </message>
    <message>
        <source>The network gives a reason of its own.</source>
        <translation>Sieć podaje własną przyczynę.</translation>
    </message>
    <message>
        <source>The network gives no reason.</source>
        <translation>Sieć nie podaje przyczyny.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number is not known.</source>
        <translation>Numer centrum SMS nie jest znany.</translation>
    </message>
    <message>
        <source>There is no network.</source>
        <translation>Brak sieci.</translation>
    </message>
    <message>
        <source>The network allows nothing but emergency calls.</source>
        <translation>Sieć zezwala tylko na połączenia alarmowe.</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>Sieć nie odpowiedziała na czas.</translation>
    </message>
    <message>
        <source>There was no radio connection.</source>
        <translation>Nie było połączenia radiowego.</translation>
    </message>
    <message>
        <source>The radio connection was lost.</source>
        <translation>Połączenie radiowe zostało utracone.</translation>
    </message>
    <message>
        <source>The network found the message malformed.</source>
        <translation>Sieć uznała wiadomość za błędnie zbudowaną.</translation>
    </message>
    <message>
        <source>The network does not accept this kind of message.</source>
        <translation>Sieć nie przyjmuje wiadomości tego rodzaju.</translation>
    </message>
    <message>
        <source>The network does not accept this alphabet.</source>
        <translation>Sieć nie przyjmuje tego alfabetu.</translation>
    </message>
    <message>
        <source>The network accepts no message that shows at once.</source>
        <translation>Sieć nie przyjmuje wiadomości wyświetlanych od razu.</translation>
    </message>
    <message>
        <source>The network does not accept this command.</source>
        <translation>Sieć nie przyjmuje tego polecenia.</translation>
    </message>
    <message>
        <source>The network does not keep messages for so long.</source>
        <translation>Sieć nie przechowuje wiadomości tak długo.</translation>
    </message>
    <message>
        <source>The modem rejects the message or its number.</source>
        <translation>Modem odrzuca wiadomość lub jej numer.</translation>
    </message>
    <message>
        <source>There is no SIM card.</source>
        <translation>Brak karty SIM.</translation>
    </message>
    <message>
        <source>This is the wrong SIM card.</source>
        <translation>To niewłaściwa karta SIM.</translation>
    </message>
    <message>
        <source>The SIM card has failed.</source>
        <translation>Awaria karty SIM.</translation>
    </message>
    <message>
        <source>The SIM card is busy.</source>
        <translation>Karta SIM jest zajęta.</translation>
    </message>
    <message>
        <source>The SIM card has no room for messages.</source>
        <translation>Karta SIM nie ma miejsca na wiadomości.</translation>
    </message>
    <message>
        <source>The SIM card cannot store messages.</source>
        <translation>Karta SIM nie może przechowywać wiadomości.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN.</source>
        <translation>Karta SIM wymaga kodu PIN.</translation>
    </message>
    <message>
        <source>The phone wants the PIN that ties it to its SIM card.</source>
        <translation>Telefon wymaga kodu PIN, który wiąże go z jego kartą SIM.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN2.</source>
        <translation>Karta SIM wymaga kodu PIN2.</translation>
    </message>
    <message>
        <source>The SIM card wants its PUK.</source>
        <translation>Karta SIM wymaga kodu PUK.</translation>
    </message>
    <message>
        <source>The SIM card wants its PUK2.</source>
        <translation>Karta SIM wymaga kodu PUK2.</translation>
    </message>
    <message>
        <source>The modem was busy with another message.</source>
        <translation>Modem był zajęty inną wiadomością.</translation>
    </message>
    <message>
        <source>The phone has no room for messages.</source>
        <translation>Telefon nie ma miejsca na wiadomości.</translation>
    </message>
    <message>
        <source>The phone has failed.</source>
        <translation>Awaria telefonu.</translation>
    </message>
    <message>
        <source>Another program has reserved the phone&apos;s messages.</source>
        <translation>Inny program zarezerwował wiadomości telefonu.</translation>
    </message>
    <message>
        <source>The phone does not allow sending now.</source>
        <translation>Telefon nie pozwala teraz na wysyłanie.</translation>
    </message>
    <message>
        <source>The phone does not support this.</source>
        <translation>Telefon tego nie obsługuje.</translation>
    </message>
    <message>
        <source>The phone&apos;s memory has failed.</source>
        <translation>Awaria pamięci telefonu.</translation>
    </message>
    <message>
        <source>The phone has no such place in its memory.</source>
        <translation>Telefon nie ma takiego miejsca w pamięci.</translation>
    </message>
    <message>
        <source>The phone expects no acknowledgement.</source>
        <translation>Telefon nie oczekuje potwierdzenia.</translation>
    </message>
    <message>
        <source>The modem is still starting.</source>
        <translation>Modem jeszcze się uruchamia.</translation>
    </message>
    <message>
        <source>The modem is busy.</source>
        <translation>Modem jest zajęty.</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Nieznany błąd</translation>
    </message>
    <message>
        <source>The modem gives a reason of its own.</source>
        <translation>Modem podaje własną przyczynę.</translation>
    </message>
    <message>
        <source>The modem gives a reason that is not known here.</source>
        <translation>Modem podaje przyczynę, która nie jest tu znana.</translation>
    </message>
    <message>
        <source>The modem refuses and gives no reason.</source>
        <translation>Modem odmawia i nie podaje przyczyny.</translation>
    </message>
    <message>
        <source>The device is gone. Waiting until it is back.</source>
        <translation>Urządzenie zniknęło. Oczekiwanie na jego powrót.</translation>
    </message>
    <message>
        <source>The device does not answer. Waiting until it does.</source>
        <translation>Urządzenie nie odpowiada. Oczekiwanie na odpowiedź.</translation>
    </message>
    <message>
        <source>Still waiting for the network.</source>
        <translation>Nadal trwa oczekiwanie na sieć.</translation>
    </message>
    <message>
        <source>Waiting for delivery reports.</source>
        <translation>Oczekiwanie na raporty doręczenia.</translation>
    </message>
    <message>
        <source>The device was not ready in time.</source>
        <translation>Urządzenie nie było gotowe na czas.</translation>
    </message>
    <message>
        <source>The job&apos;s journal cannot be written, so nothing more is sent</source>
        <translation>Nie można zapisać dziennika wysyłki, więc nic więcej nie jest wysyłane</translation>
    </message>
    <message>
        <source>Several messages in a row ended alike, so nothing more is sent</source>
        <translation>Kilka wiadomości z rzędu zakończyło się tak samo, więc nic więcej nie jest wysyłane</translation>
    </message>
    <message>
        <source>Not every message was sent. The list says what became of each.</source>
        <translation>Nie wszystkie wiadomości wysłano. Lista pokazuje, co stało się z każdą.</translation>
    </message>
    <message>
        <source>The device takes no text messages.</source>
        <translation>Urządzenie nie przyjmuje wiadomości SMS.</translation>
    </message>
    <message>
        <source>Those not taken may pass as normal text messages.</source>
        <translation>Nieprzyjęte mogą przejść jako zwykłe SMS-y.</translation>
    </message>
    <message>
        <source>The device gave no prompt.</source>
        <translation>Urządzenie nie wysłało znaku zachęty.</translation>
    </message>
    <message>
        <source>The device gave no result in time.</source>
        <translation>Urządzenie nie podało wyniku na czas.</translation>
    </message>
    <message>
        <source>The device said OK but gave no reference.</source>
        <translation>Urządzenie odpowiedziało OK, ale nie podało numeru wiadomości.</translation>
    </message>
    <message>
        <source>The device&apos;s result may be that of an earlier message.</source>
        <translation>Wynik z urządzenia może dotyczyć wcześniejszej wiadomości.</translation>
    </message>
    <message>
        <source>The device was gone before its result.</source>
        <translation>Urządzenie zniknęło przed podaniem wyniku.</translation>
    </message>
    <message>
        <source>The program ended before the result.</source>
        <translation>Program zakończył się przed podaniem wyniku.</translation>
    </message>
    <message>
        <source>Somebody has counted it as sent.</source>
        <translation>Ktoś uznał ją za wysłaną.</translation>
    </message>
    <message>
        <source>The number cannot be dialled.</source>
        <translation>Tego numeru nie można wybrać.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Uwaga</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>%1 is connected.</source>
        <translation>%1: podłączono.</translation>
    </message>
    <message>
        <source>No phone or modem was found on USB or Bluetooth.</source>
        <translation>Nie znaleziono telefonu ani modemu podłączonego przez USB lub Bluetooth.</translation>
    </message>
    <message>
        <source>Switch it on, connect it, and on a phone choose the modem or data mode. It takes some seconds until it appears.</source>
        <translation>Włącz urządzenie, podłącz je, a w telefonie wybierz tryb modemu lub danych. Pojawi się po kilku sekundach.</translation>
    </message>
    <message>
        <source>There is no device at %1.</source>
        <translation>Pod %1 nie ma urządzenia.</translation>
    </message>
    <message>
        <source>Plug it in again, or look under which name it appears now.</source>
        <translation>Podłącz je ponownie albo sprawdź, pod jaką nazwą teraz się pojawia.</translation>
    </message>
    <message>
        <source>%1 is connected as a network card. In this mode it has no port for messages.</source>
        <translation>%1 jest podłączony jako karta sieciowa. W tym trybie nie ma portu na wiadomości.</translation>
    </message>
    <message>
        <source>Switch it to its modem mode with the maker&apos;s own program or page, or use another modem.</source>
        <translation>Przełącz go w tryb modemu programem lub stroną producenta albo użyj innego modemu.</translation>
    </message>
    <message>
        <source>%1 is connected as a disc. In this mode it has no port for messages.</source>
        <translation>%1 jest podłączony jako dysk. W tym trybie nie ma portu na wiadomości.</translation>
    </message>
    <message>
        <source>Install the program that switches such sticks, then unplug the stick and plug it in again:</source>
        <translation>Zainstaluj program, który przełącza takie modemy, a potem odłącz modem i podłącz go ponownie:</translation>
    </message>
    <message>
        <source>%1 is for positions (GPS), not for messages.</source>
        <translation>%1 służy do lokalizacji (GPS), a nie do wiadomości.</translation>
    </message>
    <message>
        <source>%1 is for the maker&apos;s diagnostics, not for messages.</source>
        <translation>%1 służy do diagnostyki producenta, a nie do wiadomości.</translation>
    </message>
    <message>
        <source>%1 is for sound, not for messages.</source>
        <translation>%1 służy do dźwięku, a nie do wiadomości.</translation>
    </message>
    <message>
        <source>This system&apos;s settings say that %1 is no modem&apos;s port.</source>
        <translation>Według ustawień systemu %1 nie jest portem modemu.</translation>
    </message>
    <message>
        <source>Use another port of the same device.</source>
        <translation>Użyj innego portu tego samego urządzenia.</translation>
    </message>
    <message>
        <source>Your account may not open %1.</source>
        <translation>Twoje konto nie może otworzyć %1.</translation>
    </message>
    <message>
        <source>Members of the group %1 may. Join it with this command, then log out and in again:</source>
        <translation>Mogą to robić członkowie grupy %1. Dołącz do niej tym poleceniem, a potem wyloguj się i zaloguj ponownie:</translation>
    </message>
    <message>
        <source>Only the system&apos;s administrator can allow it.</source>
        <translation>Zezwolić na to może tylko administrator systemu.</translation>
    </message>
    <message>
        <source>%1 is in use by %2 (process %3).</source>
        <translation>%1 jest używany przez %2 (proces %3).</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 jest używany przez inny program.</translation>
    </message>
    <message>
        <source>End that program, and look again.</source>
        <translation>Zakończ ten program i sprawdź ponownie.</translation>
    </message>
    <message>
        <source>%1 is in use by ModemManager, the system&apos;s modem service.</source>
        <translation>%1 jest używany przez ModemManager, systemową usługę modemów.</translation>
    </message>
    <message>
        <source>Stop the service until the next start of the computer:</source>
        <translation>Zatrzymaj tę usługę do następnego uruchomienia komputera:</translation>
    </message>
    <message>
        <source>%1 cannot be opened (%2).</source>
        <translation>Nie można otworzyć %1 (%2).</translation>
    </message>
    <message>
        <source>Unplug the device, wait ten seconds and plug it in again.</source>
        <translation>Odłącz urządzenie, odczekaj dziesięć sekund i podłącz je ponownie.</translation>
    </message>
    <message>
        <source>%1 answers.</source>
        <translation>%1 odpowiada.</translation>
    </message>
    <message>
        <source>%1 does not answer as a modem.</source>
        <translation>%1 nie odpowiada jak modem.</translation>
    </message>
    <message>
        <source>Unplug the device, wait ten seconds and plug it in again. On a phone, choose the modem or data mode.</source>
        <translation>Odłącz urządzenie, odczekaj dziesięć sekund i podłącz je ponownie. W telefonie wybierz tryb modemu lub danych.</translation>
    </message>
    <message>
        <source>Nothing answers on %1, a serial socket of the computer itself.</source>
        <translation>Nic nie odpowiada na %1, porcie szeregowym samego komputera.</translation>
    </message>
    <message>
        <source>If a modem is connected there, switch it on and look at its cable.</source>
        <translation>Jeśli podłączono tam modem, włącz go i sprawdź jego kabel.</translation>
    </message>
    <message>
        <source>The SIM card is ready.</source>
        <translation>Karta SIM jest gotowa.</translation>
    </message>
    <message>
        <source>The device does not say whether its SIM card is ready.</source>
        <translation>Urządzenie nie podaje, czy jego karta SIM jest gotowa.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN. Tries left: %1.</source>
        <translation>Karta SIM wymaga kodu PIN. Pozostało prób: %1.</translation>
    </message>
    <message>
        <source>Put the card into a phone and enter the PIN there, or turn its question for the PIN off. No PIN is tried here.</source>
        <translation>Włóż kartę do telefonu i wpisz w nim PIN albo wyłącz pytanie o PIN. Program nie próbuje tu żadnego kodu PIN.</translation>
    </message>
    <message>
        <source>The SIM card is blocked and wants its PUK.</source>
        <translation>Karta SIM jest zablokowana i wymaga kodu PUK.</translation>
    </message>
    <message>
        <source>The SIM card is blocked and wants its PUK. Tries left: %1.</source>
        <translation>Karta SIM jest zablokowana i wymaga kodu PUK. Pozostało prób: %1.</translation>
    </message>
    <message>
        <source>Put the card into a phone and enter the PUK there. The operator gives it to you.</source>
        <translation>Włóż kartę do telefonu i wpisz w nim PUK. Podaje go operator.</translation>
    </message>
    <message>
        <source>The device wants a code that ties it to a card or an operator.</source>
        <translation>Urządzenie wymaga kodu, który wiąże je z kartą lub operatorem.</translation>
    </message>
    <message>
        <source>Use the card it was sold with, or ask the seller to unlock it.</source>
        <translation>Użyj karty, z którą je sprzedano, albo poproś sprzedawcę o zdjęcie blokady.</translation>
    </message>
    <message>
        <source>There is no SIM card in the device.</source>
        <translation>W urządzeniu nie ma karty SIM.</translation>
    </message>
    <message>
        <source>Put a card in, the right way round, and plug the device in again.</source>
        <translation>Włóż kartę właściwą stroną i podłącz urządzenie ponownie.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read.</source>
        <translation>Nie można odczytać karty SIM.</translation>
    </message>
    <message>
        <source>Take the card out, wipe its contacts and put it in again, or try it in a phone.</source>
        <translation>Wyjmij kartę, przetrzyj jej styki i włóż ją ponownie albo wypróbuj ją w telefonie.</translation>
    </message>
    <message>
        <source>The SIM card is still being read.</source>
        <translation>Karta SIM jest jeszcze odczytywana.</translation>
    </message>
    <message>
        <source>Wait half a minute and look again. If it stays so, plug the device in again.</source>
        <translation>Odczekaj pół minuty i sprawdź ponownie. Jeśli nic się nie zmieni, podłącz urządzenie ponownie.</translation>
    </message>
    <message>
        <source>The device is registered with its network.</source>
        <translation>Urządzenie jest zalogowane do swojej sieci.</translation>
    </message>
    <message>
        <source>The device is registered with a foreign network (roaming).</source>
        <translation>Urządzenie jest zalogowane do obcej sieci (roaming).</translation>
    </message>
    <message>
        <source>Messages can be sent; ask your operator what they cost abroad.</source>
        <translation>Wiadomości można wysyłać; zapytaj operatora, ile kosztują za granicą.</translation>
    </message>
    <message>
        <source>The network lets the device make emergency calls alone.</source>
        <translation>Sieć zezwala urządzeniu tylko na połączenia alarmowe.</translation>
    </message>
    <message>
        <source>The network does not accept the SIM card.</source>
        <translation>Sieć nie przyjmuje karty SIM.</translation>
    </message>
    <message>
        <source>Ask the operator whether the card is active, and try it in a phone.</source>
        <translation>Zapytaj operatora, czy karta jest aktywna, i wypróbuj ją w telefonie.</translation>
    </message>
    <message>
        <source>The device is looking for a network.</source>
        <translation>Urządzenie szuka sieci.</translation>
    </message>
    <message>
        <source>Wait a minute, or move the device or its aerial to a window, and look again.</source>
        <translation>Odczekaj minutę albo przenieś urządzenie lub jego antenę do okna i sprawdź ponownie.</translation>
    </message>
    <message>
        <source>The device is not registered with a network and looks for none.</source>
        <translation>Urządzenie nie jest zalogowane do sieci i żadnej nie szuka.</translation>
    </message>
    <message>
        <source>Switch its radio on (no flight mode), or plug the device in again.</source>
        <translation>Włącz jego moduł radiowy (wyłącz tryb samolotowy) albo podłącz urządzenie ponownie.</translation>
    </message>
    <message>
        <source>The device does not say whether it has a network.</source>
        <translation>Urządzenie nie podaje, czy ma sieć.</translation>
    </message>
    <message>
        <source>Send one message to yourself before you send to others.</source>
        <translation>Wyślij jedną wiadomość do siebie, zanim wyślesz innym.</translation>
    </message>
    <message>
        <source>The signal is strong enough (%1 dBm).</source>
        <translation>Sygnał jest wystarczająco silny (%1 dBm).</translation>
    </message>
    <message>
        <source>The signal is weak (%1 dBm).</source>
        <translation>Sygnał jest słaby (%1 dBm).</translation>
    </message>
    <message>
        <source>Move the device or its aerial to a window.</source>
        <translation>Przenieś urządzenie lub jego antenę do okna.</translation>
    </message>
    <message>
        <source>The device does not say how strong the signal is.</source>
        <translation>Urządzenie nie podaje siły sygnału.</translation>
    </message>
    <message>
        <source>A service centre for messages is stored.</source>
        <translation>Numer centrum SMS jest zapisany.</translation>
    </message>
    <message>
        <source>No service centre for messages is stored.</source>
        <translation>Numer centrum SMS nie jest zapisany.</translation>
    </message>
    <message>
        <source>What is stored as the service centre for messages is no number.</source>
        <translation>To, co zapisano jako centrum SMS, nie jest numerem.</translation>
    </message>
    <message>
        <source>Ask the operator for its number, and give it as a custom number in the wizard.</source>
        <translation>Zapytaj operatora o ten numer i podaj go w kreatorze jako inny numer.</translation>
    </message>
    <message>
        <source>The device does not say which service centre for messages it has.</source>
        <translation>Urządzenie nie podaje, jakiego centrum SMS używa.</translation>
    </message>
    <message>
        <source>The device takes messages to be sent.</source>
        <translation>Urządzenie przyjmuje wiadomości do wysłania.</translation>
    </message>
    <message>
        <source>The device takes no messages to be sent.</source>
        <translation>Urządzenie nie przyjmuje wiadomości do wysłania.</translation>
    </message>
    <message>
        <source>Use another port of the device, or another device.</source>
        <translation>Użyj innego portu urządzenia albo innego urządzenia.</translation>
    </message>
    <message>
        <source>free</source>
        <translation>wolny</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>zajęty</translation>
    </message>
    <message>
        <source>no right</source>
        <translation>brak uprawnień</translation>
    </message>
    <message>
        <source>not for messages</source>
        <translation>nie do wiadomości</translation>
    </message>
    <message>
        <source>Why a phone does not show: what was looked at</source>
        <translation>Nie widać telefonu: co sprawdzono</translation>
    </message>
    <message>
        <source>(number left out)</source>
        <translation>(numer pominięto)</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Wynik</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>nie próbowano</translation>
    </message>
    <message>
        <source>written</source>
        <translation>przekazano</translation>
    </message>
    <message>
        <source>taken by the phone</source>
        <translation>przyjęto w telefonie</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>wysłano</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>odrzucono</translation>
    </message>
    <message>
        <source>partly taken</source>
        <translation>przyjęto częściowo</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>brak odpowiedzi</translation>
    </message>
    <message>
        <source>may have been sent</source>
        <translation>być może wysłano</translation>
    </message>
    <message>
        <source>skipped: excluded</source>
        <translation>pominięto: wykluczony</translation>
    </message>
    <message>
        <source>skipped: repeated</source>
        <translation>pominięto: powtórzony</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>pominięto</translation>
    </message>
    <message>
        <source>skipped: invalid number</source>
        <translation>pominięto: nieprawidłowy numer</translation>
    </message>
    <message>
        <source>skipped: not filled</source>
        <translation>pominięto: puste pole</translation>
    </message>
    <message>
        <source>skipped: </source>
        <translation>pominięto: </translation>
    </message>
    <message>
        <source>CME </source>
        <translation>CME </translation>
    </message>
    <message>
        <source>an earlier row has its number</source>
        <translation>ten sam numer ma wcześniejszy wiersz</translation>
    </message>
    <message>
        <source>the list has its number already</source>
        <translation>numer jest już na liście</translation>
    </message>
    <message>
        <source>its number is in an exclusion list</source>
        <translation>numer jest na liście wykluczeń</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>nie można zapisać %1</translation>
    </message>
    <message>
        <source>%1 is not used</source>
        <translation>nie użyto %1</translation>
    </message>
    <message>
        <source>it holds an earlier hand-over</source>
        <translation>zawiera wcześniej przekazane wiadomości</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Raport z wysyłki</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Wysyłka</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>Początek</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Urządzenie</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>Karta SIM</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>d MMMM yyyy, HH:mm</source>
        <translation>d MMMM yyyy, HH:mm</translation>
    </message>
    <message>
        <source>ends with </source>
        <translation>kończy się na </translation>
    </message>
    <message>
        <source>ended</source>
        <translation>zakończona</translation>
    </message>
    <message>
        <source>not ended</source>
        <translation>niezakończona</translation>
    </message>
    <message>
        <source>Recipients</source>
        <translation>Odbiorcy</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Wysłano</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Odrzucono</translation>
    </message>
    <message>
        <source>May have been sent</source>
        <translation>Być może wysłano</translation>
    </message>
    <message>
        <source>Not tried</source>
        <translation>Nie próbowano</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Pominięto</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Doręczono</translation>
    </message>
    <message>
        <source>Still trying</source>
        <translation>Trwa doręczanie</translation>
    </message>
    <message>
        <source>Not delivered</source>
        <translation>Nie doręczono</translation>
    </message>
    <message>
        <source>No report</source>
        <translation>Bez raportu</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Wiersz</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numer</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Wiadomość</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Przyczyna</translation>
    </message>
    <message>
        <source>Parts sent</source>
        <translation>Wysłane</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Części</translation>
    </message>
    <message>
        <source>Delivery</source>
        <translation>Doręczenie</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>no report</source>
        <translation>bez raportu</translation>
    </message>
    <message>
        <source>Some of its parts were sent.</source>
        <translation>Część tej wiadomości wysłano.</translation>
    </message>
    <message>
        <source>The list of the job can no longer be read.</source>
        <translation>Listy tej wysyłki nie można już odczytać.</translation>
    </message>
    <message>
        <source>a placeholder is empty</source>
        <translation>pole jest puste</translation>
    </message>
    <message>
        <source>a placeholder is unknown</source>
        <translation>pole jest nieznane</translation>
    </message>
    <message>
        <source>wrong number of columns</source>
        <translation>niewłaściwa liczba kolumn</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>za długa</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>nie ma takiego pliku</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>to nie jest plik</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes, or may not be read</source>
        <translation>jest większy niż %1 bajtów albo nie można go odczytać</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>jest pusty</translation>
    </message>
    <message>
        <source>it is no text: line %1 holds characters that no list has</source>
        <translation>to nie jest tekst: wiersz %1 zawiera znaki, jakich nie ma na żadnej liście</translation>
    </message>
    <message>
        <source>it is %1, and no list</source>
        <translation>to %1, a nie lista</translation>
    </message>
    <message>
        <source>a PDF document</source>
        <translation>dokument PDF</translation>
    </message>
    <message>
        <source>a program</source>
        <translation>program</translation>
    </message>
    <message>
        <source>a compressed file</source>
        <translation>skompresowany plik</translation>
    </message>
    <message>
        <source>a picture</source>
        <translation>obraz</translation>
    </message>
    <message>
        <source>a web page</source>
        <translation>strona internetowa</translation>
    </message>
    <message>
        <source>an XML document</source>
        <translation>dokument XML</translation>
    </message>
    <message>
        <source>an archive</source>
        <translation>archiwum</translation>
    </message>
    <message>
        <source>it is rich text; its numbers can be imported under a name that ends in .rtf</source>
        <translation>to tekst sformatowany; jego numery można zaimportować, jeśli nazwa kończy się na .rtf</translation>
    </message>
    <message>
        <source>it is a spreadsheet or an archive, and no list of numbers alone</source>
        <translation>to arkusz kalkulacyjny lub archiwum, a nie sama lista numerów</translation>
    </message>
    <message>
        <source>it holds contacts, and not numbers alone</source>
        <translation>zawiera kontakty, a nie same numery</translation>
    </message>
    <message>
        <source>it is a spreadsheet in an old format; saved as .xlsx, .ods or CSV it can be read</source>
        <translation>to arkusz kalkulacyjny w starym formacie; zapisany jako .xlsx, .ods lub CSV da się odczytać</translation>
    </message>
    <message>
        <source>it is encrypted; saved without a password it can be read</source>
        <translation>jest zaszyfrowany; zapisany bez hasła da się odczytać</translation>
    </message>
    <message>
        <source>it holds more than can be read</source>
        <translation>zawiera więcej, niż można odczytać</translation>
    </message>
    <message>
        <source>row %1 has more than %2 fields</source>
        <translation>wiersz %1 ma więcej pól niż %2</translation>
    </message>
    <message>
        <source>its first row holds the number %1, and no names of columns</source>
        <translation>jego pierwszy wiersz zawiera numer %1, a nie nazwy kolumn</translation>
    </message>
    <message>
        <source>the encoding &quot;%1&quot; is not known</source>
        <translation>kodowanie „%1” nie jest znane</translation>
    </message>
    <message>
        <source>it is not encoded in %1</source>
        <translation>nie jest zapisany w kodowaniu %1</translation>
    </message>
    <message>
        <source>it mixes UTF-8 with another encoding; line %1 is not UTF-8</source>
        <translation>miesza UTF-8 z innym kodowaniem; wiersz %1 nie jest w UTF-8</translation>
    </message>
    <message>
        <source>the quote that opens in line %1 is never closed</source>
        <translation>cudzysłów otwarty w wierszu %1 nie został zamknięty</translation>
    </message>
    <message>
        <source>it has no sheets</source>
        <translation>nie ma arkuszy</translation>
    </message>
    <message>
        <source>it has no sheet &quot;%1&quot;; its sheets are %2</source>
        <translation>nie ma arkusza „%1”; jego arkusze to %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>i jeszcze %1</translation>
    </message>
    <message>
        <source>it is damaged, or only a part of it</source>
        <translation>jest uszkodzony albo niepełny</translation>
    </message>
    <message>
        <source>the contact that begins in line %1 has no end</source>
        <translation>kontakt, który zaczyna się w wierszu %1, nie ma końca</translation>
    </message>
    <message>
        <source>%1 fields where %2 have names</source>
        <translation>liczba pól: %1, liczba nazw: %2</translation>
    </message>
    <message>
        <source>text follows a closing quote</source>
        <translation>po cudzysłowie zamykającym jest tekst</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>pole %1 jest puste</translation>
    </message>
    <message>
        <source>%1 is unknown</source>
        <translation>pole %1 jest nieznane</translation>
    </message>
    <message>
        <source>its text is empty</source>
        <translation>tekst jest pusty</translation>
    </message>
    <message>
        <source>its text is too long</source>
        <translation>tekst jest za długi</translation>
    </message>
    <message>
        <source>national, taken as one of %1</source>
        <translation>odczytany jako numer krajowy (%1)</translation>
    </message>
    <message>
        <source>the code of %1 was put in front</source>
        <translation>dodano numer kierunkowy (%1)</translation>
    </message>
    <message>
        <source>its first 0 may have been lost; taken as one of %1</source>
        <translation>mogło zginąć pierwsze 0; odczytany jako numer krajowy (%1)</translation>
    </message>
    <message>
        <source>its + may have been lost; taken as an international one of %1</source>
        <translation>mógł zginąć znak +; odczytany jako numer międzynarodowy (%1)</translation>
    </message>
    <message>
        <source>there is no number</source>
        <translation>brak numeru</translation>
    </message>
    <message>
        <source>a spreadsheet has rounded it; its digits are lost</source>
        <translation>arkusz kalkulacyjny go zaokrąglił; jego cyfry przepadły</translation>
    </message>
    <message>
        <source>it is no number</source>
        <translation>to nie jest numer</translation>
    </message>
    <message>
        <source>these are several numbers</source>
        <translation>to kilka numerów</translation>
    </message>
    <message>
        <source>it has too few digits</source>
        <translation>ma za mało cyfr</translation>
    </message>
    <message>
        <source>it has too many digits</source>
        <translation>ma za dużo cyfr</translation>
    </message>
    <message>
        <source>no country has its code</source>
        <translation>żaden kraj nie ma tego numeru kierunkowego</translation>
    </message>
    <message>
        <source>Please enter a valid phone number.</source>
        <translation>Podaj prawidłowy numer telefonu.</translation>
    </message>
    <message>
        <source>Entered number already exists.</source>
        <translation>Ten numer już istnieje.</translation>
    </message>
    <message>
        <source>Entered number is in exclusion list.</source>
        <translation>Ten numer jest na liście wykluczeń.</translation>
    </message>
    <message>
        <source>Please select only one record to update.</source>
        <translation>Zaznacz tylko jedną pozycję do zmiany.</translation>
    </message>
    <message>
        <source>Please enter some text message.</source>
        <translation>Wpisz treść wiadomości.</translation>
    </message>
    <message>
        <source>Error in file accessing.</source>
        <translation>Błąd dostępu do pliku.</translation>
    </message>
    <message>
        <source>
This option will clear the entire list contents. Are you sure you want to continue clearing the entire list?</source>
        <translation>
Cała lista zostanie wyczyszczona. Czy na pewno kontynuować?</translation>
    </message>
    <message>
        <source>Total Numbers : </source>
        <translation>Liczba numerów: </translation>
    </message>
    <message>
        <source>Can not access Corvane Data file.</source>
        <translation>Nie można otworzyć pliku danych programu Corvane.</translation>
    </message>
    <message>
        <source>
Do you really want to exit from &apos;Corvane&apos;?</source>
        <translation>
Czy na pewno zakończyć program „Corvane”?</translation>
    </message>
    <message>
        <source>No Mobile Phone Device is selected.</source>
        <translation>Nie wybrano telefonu komórkowego.</translation>
    </message>
    <message>
        <source>No Mobile Phone Device is selected. Click here to start Mobile Phone Connection Wizard.</source>
        <translation>Nie wybrano telefonu komórkowego. Kliknij tutaj, aby otworzyć kreator połączenia z telefonem.</translation>
    </message>
    <message>
        <source>Apply this<byte value="xd"/>
message to<byte value="xd"/>
list items</source>
        <translation>Skopiuj tę<byte value="xd"/>
wiadomość<byte value="xd"/>
do listy</translation>
    </message>
    <message>
        <source>Phone numbers-Messages list is empty.</source>
        <translation>Lista numerów i wiadomości jest pusta.</translation>
    </message>
    <message>
        <source>Please select at least one record from the phone numbers-messages list to continue.</source>
        <translation>Aby kontynuować, zaznacz co najmniej jedną pozycję na liście numerów i wiadomości.</translation>
    </message>
    <message>
        <source>Either file is corrupted or selected file contains invalid characters.

OR

Recipient number is skipped because of using &apos;Skip Dulicate Numbers&apos; or &apos;Exclusion List&apos; option.</source>
        <translation>Plik jest uszkodzony albo zawiera niedozwolone znaki.

LUB

Numer odbiorcy pominięto z powodu opcji „Pomijaj powtórzone numery” lub „Uwzględniaj listy wykluczeń”.</translation>
    </message>
    <message>
        <source>The last action has ended early because of an unexpected error. Please look what has been done, and try again.</source>
        <translation>Ostatnia czynność została przerwana z powodu nieoczekiwanego błędu. Sprawdź, co zrobiono, i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to all numbers in the list.

Do you want to continue?</source>
        <translation>Napisana wiadomość zostanie skopiowana do wszystkich numerów na liście.

Czy kontynuować?</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to the selected numbers in the list. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>Napisana wiadomość zostanie skopiowana do numerów zaznaczonych na liście. Wiadomości pozostałych numerów się nie zmienią.

Czy kontynuować?</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to the blank list items. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>Napisana wiadomość zostanie skopiowana do pustych pozycji listy. Wiadomości pozostałych numerów się nie zmienią.

Czy kontynuować?</translation>
    </message>
    <message>
        <source>There is no blank message in the phone numbers-messages list.</source>
        <translation>Na liście numerów i wiadomości nie ma pustych wiadomości.</translation>
    </message>
    <message>
        <source>This action will copy the above message to the selected numbers in the list. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>Powyższa wiadomość zostanie skopiowana do numerów zaznaczonych na liście. Wiadomości pozostałych numerów się nie zmienią.

Czy kontynuować?</translation>
    </message>
    <message>
        <source>Total Selected Numbers : </source>
        <translation>Liczba zaznaczonych numerów: </translation>
    </message>
    <message>
        <source>Either Mobile Device is not connected properly or No Mobile Phone Device is selected.

Please use Mobile Phone Connection Wizard for finding device or establishing connection.</source>
        <translation>Urządzenie nie jest prawidłowo podłączone albo nie wybrano telefonu komórkowego.

Użyj kreatora połączenia z telefonem, aby znaleźć urządzenie lub nawiązać połączenie.</translation>
    </message>
    <message>
        <source>Please insert entered number to the list.</source>
        <translation>Dodaj wpisany numer do listy.</translation>
    </message>
    <message>
        <source>No values have been selected in &apos;Delayed Delivery Options&apos;.</source>
        <translation>W opcjach przerwy nie wybrano żadnych wartości.</translation>
    </message>
    <message>
        <source>
You have composed no text message yet for any of the contacts in the entire list. This action will send blank message to all the contacts in list.

Are you sure you want to continue?</source>
        <translation>
Nie napisano jeszcze wiadomości dla żadnego kontaktu na liście. Do wszystkich kontaktów zostanie wysłana pusta wiadomość.

Czy na pewno kontynuować?</translation>
    </message>
    <message>
        <source>
Selected device is not working properly. Please use Mobile Phone Connection Wizard for finding device or establishing connection.</source>
        <translation>
Wybrane urządzenie nie działa prawidłowo. Użyj kreatora połączenia z telefonem, aby znaleźć urządzenie lub nawiązać połączenie.</translation>
    </message>
    <message>
        <source>Selected device is not working properly.Could not initialize modem.
</source>
        <translation>Wybrane urządzenie nie działa prawidłowo. Nie udało się zainicjować modemu.
</translation>
    </message>
    <message>
        <source>Device Connection Error!</source>
        <translation>Błąd połączenia z urządzeniem!</translation>
    </message>
    <message>
        <source>Message Sending Process Completed.</source>
        <translation>Zakończono wysyłanie wiadomości.</translation>
    </message>
    <message>
        <source>The messages could not be sent, because the computer is too busy to start another task. Please close other programs and try again.</source>
        <translation>Nie udało się wysłać wiadomości, ponieważ komputer jest zbyt zajęty, aby rozpocząć kolejne zadanie. Zamknij inne programy i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Sending has ended early because of an unexpected error. The sent items show which messages were sent.</source>
        <translation>Wysyłanie zostało przerwane z powodu nieoczekiwanego błędu. Lista wysłanych pokazuje, które wiadomości wysłano.</translation>
    </message>
    <message>
        <source>Initializing mobile phone device to send sms ...</source>
        <translation>Przygotowywanie telefonu do wysyłania SMS-ów...</translation>
    </message>
    <message>
        <source>
Terminating the current process will stop sending text messages to the remaining contact. Are you sure you want to continue?</source>
        <translation>
Przerwanie sprawi, że pozostałe kontakty nie otrzymają wiadomości. Czy na pewno kontynuować?</translation>
    </message>
    <message>
        <source> is Excluded.</source>
        <translation> jest wykluczony.</translation>
    </message>
    <message>
        <source> is Skipped.</source>
        <translation> jest pominięty.</translation>
    </message>
    <message>
        <source> Message</source>
        <translation> w toku</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Hour %2 Minute %3 Seconds.</source>
        <translation>Przerwa: %1 godz. %2 min %3 s.</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Minute %2 Seconds.</source>
        <translation>Przerwa: %1 min %2 s.</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Seconds.</source>
        <translation>Przerwa: %1 s.</translation>
    </message>
    <message>
        <source>%1 Characters</source>
        <translation>Znaki: %1</translation>
    </message>
    <message>
        <source>%1 Characters (Each Message will now consume %2)</source>
        <translation>Znaki: %1 (każda wiadomość zużyje teraz %2)</translation>
    </message>
    <message>
        <source>Your current message is exceeding the typical SMS Length of 160 Characters. Messages of more than 160 characters will be delivered in multiple messages of 160 characters to each recipient.

Either shorten the length of your existing text message or click OK to continue anyway by delivering each message in multiple parts of 160 characters.</source>
        <translation>Wiadomość przekracza zwykłą długość SMS-a, czyli 160 znaków. Dłuższa wiadomość zostanie doręczona każdemu odbiorcy jako kilka wiadomości po 160 znaków.

Skróć tekst wiadomości albo kliknij OK, aby kontynuować i doręczyć każdą wiadomość w kilku częściach po 160 znaków.</translation>
    </message>
    <message>
        <source>Your current message is exceeding the typical Unicode SMS (non-English text SMS) Length of 70 Characters. Messages of more than 70 characters will be delivered in multiple messages of 70 characters to each recipient.

Either shorten the length of your existing text message or click OK to continue anyway by delivering each message in multiple parts of 70 characters.</source>
        <translation>Wiadomość przekracza zwykłą długość SMS-a Unicode (z tekstem innym niż angielski), czyli 70 znaków. Dłuższa wiadomość zostanie doręczona każdemu odbiorcy jako kilka wiadomości po 70 znaków.

Skróć tekst wiadomości albo kliknij OK, aby kontynuować i doręczyć każdą wiadomość w kilku częściach po 70 znaków.</translation>
    </message>
    <message>
        <source>Total Items : </source>
        <translation>Liczba pozycji: </translation>
    </message>
    <message>
        <source>Sent items list is empty.</source>
        <translation>Lista wysłanych jest pusta.</translation>
    </message>
    <message>
        <source>Please select at least one record from the sent items list to continue.</source>
        <translation>Aby kontynuować, zaznacz co najmniej jedną pozycję na liście wysłanych.</translation>
    </message>
    <message>
        <source>Templates list is empty.</source>
        <translation>Lista szablonów jest pusta.</translation>
    </message>
    <message>
        <source>Templates items list is empty.</source>
        <translation>Lista szablonów jest pusta.</translation>
    </message>
    <message>
        <source>Templates number list is empty.</source>
        <translation>Lista szablonów jest pusta.</translation>
    </message>
    <message>
        <source>Please select at least one record from the templates list to continue.</source>
        <translation>Aby kontynuować, zaznacz co najmniej jeden szablon na liście.</translation>
    </message>
    <message>
        <source>Add Templates</source>
        <translation>Nowy szablon</translation>
    </message>
    <message>
        <source>Update Templates</source>
        <translation>Edycja szablonu</translation>
    </message>
    <message>
        <source>Number	: %1<byte value="xd"/>
<byte value="xd"/>
Message	: %2<byte value="xd"/>
<byte value="xd"/>
Date:	 %3</source>
        <translation>Numer	: %1<byte value="xd"/>
<byte value="xd"/>
Wiadomość	: %2<byte value="xd"/>
<byte value="xd"/>
Data:	 %3</translation>
    </message>
    <message>
        <source>Please type template message.</source>
        <translation>Wpisz treść szablonu.</translation>
    </message>
    <message>
        <source>Entered template already exists.</source>
        <translation>Taki szablon już istnieje.</translation>
    </message>
    <message>
        <source>Maximum characters limit is 1600.<byte value="xd"/>
<byte value="xd"/>
Press &apos;Yes to continue to composer window and it will show first 1600 characters of your message otherwise press &apos;No&apos;&apos;</source>
        <translation>Wiadomość może mieć najwyżej 1600 znaków.<byte value="xd"/>
<byte value="xd"/>
Naciśnij „Tak”, aby przejść do pola wiadomości, w którym pojawi się pierwszych 1600 znaków, albo „Nie”</translation>
    </message>
    <message>
        <source>Exclusion List Wizard allows you to maintain the Lists of contacts or Groups, which you may need to exclude time to time when sending messages.

For Example, if you have lists of contacts of Marketing, Administration, R &amp; D and Customer Care Team members and you want to send messages to all the teams &apos;Except&apos; Administration team, you can apply exclusion rules to Administration team members contacts list.</source>
        <translation>Kreator list wykluczeń pozwala prowadzić listy kontaktów lub grup, które trzeba czasem pominąć przy wysyłaniu wiadomości.

Jeśli na przykład masz listy kontaktów zespołów marketingu, administracji, badań i obsługi klienta i chcesz wysłać wiadomości do wszystkich zespołów oprócz administracji, możesz zastosować wykluczenie do listy kontaktów zespołu administracji.</translation>
    </message>
    <message>
        <source>

Give a friendly name to your Exclusion list so that you can identify it easily.</source>
        <translation>

Nadaj liście wykluczeń nazwę, po której łatwo ją rozpoznasz.</translation>
    </message>
    <message>
        <source>Currently using exclusion list : </source>
        <translation>Używana lista wykluczeń: </translation>
    </message>
    <message>
        <source>Please enter exclusion list name.</source>
        <translation>Wpisz nazwę listy wykluczeń.</translation>
    </message>
    <message>
        <source>Please enter a valid name.</source>
        <translation>Wpisz prawidłową nazwę.</translation>
    </message>
    <message>
        <source>Please enter the another name.</source>
        <translation>Wpisz inną nazwę.</translation>
    </message>
    <message>
        <source>Entered exclusion list name already exists.</source>
        <translation>Lista wykluczeń o tej nazwie już istnieje.</translation>
    </message>
    <message>
        <source>Exclusion number list is empty.</source>
        <translation>Lista wykluczonych numerów jest pusta.</translation>
    </message>
    <message>
        <source>Please select a valid file.</source>
        <translation>Wybierz prawidłowy plik.</translation>
    </message>
    <message>
        <source>Please select at least one record from the exclusion number list to continue.</source>
        <translation>Aby kontynuować, zaznacz co najmniej jeden wykluczony numer na liście.</translation>
    </message>
    <message>
        <source>Available list is empty.</source>
        <translation>Nie ma dostępnych list.</translation>
    </message>
    <message>
        <source>Please select a record from the available list to continue.</source>
        <translation>Aby kontynuować, zaznacz dostępną listę.</translation>
    </message>
    <message>
        <source>Selected list is already in use.</source>
        <translation>Zaznaczona lista jest już używana.</translation>
    </message>
    <message>
        <source>All available lists are already in use.</source>
        <translation>Wszystkie dostępne listy są już używane.</translation>
    </message>
    <message>
        <source>Exclude when sending SMS list is empty.</source>
        <translation>Nie ma list wykluczanych przy wysyłaniu.</translation>
    </message>
    <message>
        <source>Please select a record from Exclude when sending SMS list to continue.</source>
        <translation>Aby kontynuować, zaznacz listę wykluczaną przy wysyłaniu.</translation>
    </message>
    <message>
        <source>
Are you sure you want to continue</source>
        <translation>
Czy na pewno kontynuować?</translation>
    </message>
    <message>
        <source>
Are you sure you want delete the selected available list?</source>
        <translation>
Czy na pewno skasować zaznaczoną dostępną listę?</translation>
    </message>
    <message>
        <source>
You have made changes in exclusion number list that have not been saved yet.

Do you want to go back to previous screen without saving the exclusion number list?</source>
        <translation>
Zmiany na liście wykluczonych numerów nie zostały jeszcze zapisane.

Czy wrócić do poprzedniego ekranu bez zapisywania tej listy?</translation>
    </message>
    <message>
        <source>Device list is empty.</source>
        <translation>Lista urządzeń jest pusta.</translation>
    </message>
    <message>
        <source>Still searching for devices. Please wait ...</source>
        <translation>Nadal trwa wyszukiwanie urządzeń. Proszę czekać...</translation>
    </message>
    <message>
        <source>Please select device from list.</source>
        <translation>Wybierz urządzenie z listy.</translation>
    </message>
    <message>
        <source>Please enter a valid Custom SMSC number.</source>
        <translation>Podany inny numer SMSC jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>Selected device is not working properly.
Could not open modem.
</source>
        <translation>Wybrane urządzenie nie działa prawidłowo.
Nie udało się otworzyć modemu.
</translation>
    </message>
    <message>
        <source>Selected device is not working properly.</source>
        <translation>Wybrane urządzenie nie działa prawidłowo.</translation>
    </message>
    <message>
        <source>Default SMSC No. details should not be blanked.</source>
        <translation>Domyślny numer SMSC nie może być pusty.</translation>
    </message>
    <message>
        <source>Custom SMSC No. details should not be blanked.</source>
        <translation>Inny numer SMSC nie może być pusty.</translation>
    </message>
    <message>
        <source>Selected device do not provide a modem in the computer or the modem does not support SMS sending command.</source>
        <translation>Wybrane urządzenie nie udostępnia modemu w komputerze albo modem nie obsługuje polecenia wysyłania SMS-ów.</translation>
    </message>
    <message>
        <source>passed on, but not confirmed</source>
        <translation>przekazano dalej, ale nie potwierdzono</translation>
    </message>
    <message>
        <source>replaced by a newer message</source>
        <translation>zastąpiono nowszą wiadomością</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>zakończono</translation>
    </message>
    <message>
        <source>completed, with a code of the network&apos;s own</source>
        <translation>zakończono, z własnym kodem sieci</translation>
    </message>
    <message>
        <source>the network is congested</source>
        <translation>sieć jest przeciążona</translation>
    </message>
    <message>
        <source>the phone is busy</source>
        <translation>telefon jest zajęty</translation>
    </message>
    <message>
        <source>the phone does not answer</source>
        <translation>telefon nie odpowiada</translation>
    </message>
    <message>
        <source>rejected for now</source>
        <translation>na razie odrzucono</translation>
    </message>
    <message>
        <source>the connection is too poor</source>
        <translation>połączenie jest za słabe</translation>
    </message>
    <message>
        <source>an error in the phone</source>
        <translation>błąd w telefonie</translation>
    </message>
    <message>
        <source>a reason of the network&apos;s own</source>
        <translation>własna przyczyna sieci</translation>
    </message>
    <message>
        <source>an error between the networks</source>
        <translation>błąd między sieciami</translation>
    </message>
    <message>
        <source>the phone cannot take it</source>
        <translation>telefon nie może jej przyjąć</translation>
    </message>
    <message>
        <source>the phone refused it</source>
        <translation>telefon ją odrzucił</translation>
    </message>
    <message>
        <source>the number cannot be reached</source>
        <translation>numer jest nieosiągalny</translation>
    </message>
    <message>
        <source>the networks do not work together</source>
        <translation>sieci ze sobą nie współpracują</translation>
    </message>
    <message>
        <source>it was not delivered in time</source>
        <translation>nie doręczono jej na czas</translation>
    </message>
    <message>
        <source>deleted by the sender</source>
        <translation>skasował ją nadawca</translation>
    </message>
    <message>
        <source>deleted by the service centre</source>
        <translation>skasowało ją centrum SMS</translation>
    </message>
    <message>
        <source>the service centre has no such message</source>
        <translation>centrum SMS nie ma takiej wiadomości</translation>
    </message>
    <message>
        <source>rejected</source>
        <translation>odrzucono</translation>
    </message>
    <message>
        <source>the network was congested</source>
        <translation>sieć była przeciążona</translation>
    </message>
    <message>
        <source>the phone was busy</source>
        <translation>telefon był zajęty</translation>
    </message>
    <message>
        <source>the phone did not answer</source>
        <translation>telefon nie odpowiedział</translation>
    </message>
    <message>
        <source>the connection was too poor</source>
        <translation>połączenie było za słabe</translation>
    </message>
    <message>
        <source>delivered</source>
        <translation>doręczono</translation>
    </message>
    <message>
        <source>still trying</source>
        <translation>trwa doręczanie</translation>
    </message>
    <message>
        <source>not delivered</source>
        <translation>nie doręczono</translation>
    </message>
    <message>
        <source>%1 speaks QMI or MBIM, and no AT commands.</source>
        <translation>%1 używa QMI lub MBIM, a nie poleceń AT.</translation>
    </message>
    <message>
        <source>Use a port of the device that takes AT commands, or another modem.</source>
        <translation>Użyj portu urządzenia, który przyjmuje polecenia AT, albo innego modemu.</translation>
    </message>
    <message>
        <source>%1 takes AT commands, but is no serial port.</source>
        <translation>%1 przyjmuje polecenia AT, ale nie jest portem szeregowym.</translation>
    </message>
    <message>
        <source>Use a serial port of the device, or another modem.</source>
        <translation>Użyj portu szeregowego urządzenia albo innego modemu.</translation>
    </message>
    <message>
        <source>The signal is strong enough (%1 %).</source>
        <translation>Sygnał jest wystarczająco silny (%1%).</translation>
    </message>
    <message>
        <source>The signal is weak (%1 %).</source>
        <translation>Sygnał jest słaby (%1%).</translation>
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
        <translation>Inne sposoby wysyłania</translation>
    </message>
    <message>
        <source>One phone hands over between 4 and 20 messages a minute, and mobile operators may block a SIM card that sends like a machine. For more than about 1000 messages a day, or a job of more than four hours, something else does better.</source>
        <translation>Jeden telefon przekazuje od 4 do 20 wiadomości na minutę, a operatorzy komórkowi mogą zablokować kartę SIM, która wysyła jak automat. Gdy wiadomości jest ponad około 1000 dziennie albo wysyłka trwa dłużej niż cztery godziny, lepiej sprawdzi się coś innego.</translation>
    </message>
    <message>
        <source>Several modems</source>
        <translation>Kilka modemów</translation>
    </message>
    <message>
        <source>The free program smstools sends the messages of one folder with as many modems as are attached, each with a SIM card of its own. Hand the messages over here, and then move the files in the folder &quot;spool&quot; into the folder &quot;outgoing&quot; of smstools.</source>
        <translation>Wolny program smstools wysyła wiadomości z jednego folderu przez tyle modemów, ile podłączono, każdy z własną kartą SIM. Przekaż tu wiadomości, a potem przenieś pliki z folderu „spool” do folderu „outgoing” programu smstools.</translation>
    </message>
    <message>
        <source>A provider&apos;s gateway</source>
        <translation>Bramka dostawcy</translation>
    </message>
    <message>
        <source>Companies that send messages for others take a table of numbers and texts, at a price for each message. Many of them can also show a name as the sender, and see to replies and to people who want no more messages. Hand the messages over here, and then give the provider the file &quot;list.csv&quot;.</source>
        <translation>Firmy, które wysyłają wiadomości dla innych, przyjmują tabelę numerów i tekstów, za opłatą od każdej wiadomości. Wiele z nich potrafi też pokazać nazwę jako nadawcę oraz zająć się odpowiedziami i osobami, które nie chcą już wiadomości. Przekaż tu wiadomości, a potem daj dostawcy plik „list.csv”.</translation>
    </message>
    <message>
        <source>Writes the numbers and texts, just as they would be sent now, into a folder. Nothing is sent.</source>
        <translation>Zapisuje w folderze numery i teksty dokładnie tak, jak zostałyby teraz wysłane. Nic nie zostanie wysłane.</translation>
    </message>
    <message>
        <source>Hand over to a &amp;folder ...</source>
        <translation>Przekaż do &amp;folderu...</translation>
    </message>
    <message>
        <source>The main window says no more that a list is much for one phone</source>
        <translation>Okno główne nie będzie już informować, że lista jest duża jak na jeden telefon</translation>
    </message>
    <message>
        <source>Do not &amp;tell again</source>
        <translation>&amp;Nie pokazuj więcej</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>Not handed over: %1 (%2).</source>
        <translation>Nie przekazano: %1 (%2).</translation>
    </message>
    <message>
        <source>Stopped. What is in the folder is not whole: remove it before it is used.</source>
        <translation>Przerwano. Zawartość folderu jest niepełna: usuń ją, zanim ktoś jej użyje.</translation>
    </message>
    <message>
        <source>Handed over: one message, in %1. Nothing was sent.</source>
        <translation>Przekazano jedną wiadomość do %1. Nic nie wysłano.</translation>
    </message>
    <message numerus="yes">
        <source>Handed over: %n messages, in %1. Nothing was sent.</source>
        <translation>
            <numerusform>Przekazano %n wiadomość do %1. Nic nie wysłano.</numerusform>
            <numerusform>Przekazano %n wiadomości do %1. Nic nie wysłano.</numerusform>
            <numerusform>Przekazano %n wiadomości do %1. Nic nie wysłano.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recipients left out: %1.</source>
        <translation>Pominięci odbiorcy: %1.</translation>
    </message>
    <message>
        <source>There is nobody in the list.</source>
        <translation>Na liście nikogo nie ma.</translation>
    </message>
    <message>
        <source>Writing ...</source>
        <translation>Zapisywanie...</translation>
    </message>
    <message>
        <source>Writing %1 of %2 ...</source>
        <translation>Zapisywanie %1 z %2...</translation>
    </message>
    <message>
        <source>Not handed over: the system gives the program no further thread.</source>
        <translation>Nie przekazano: system nie przydziela programowi kolejnego wątku.</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Przerwij</translation>
    </message>
</context>
<context>
    <name>Handset_Bubble</name>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>As it arrives by a device that takes whole frames; one that knows text mode alone may change more</source>
        <translation>Tak dociera przez urządzenie, które przyjmuje całe ramki; urządzenie znające tylko tryb tekstowy może zmienić więcej</translation>
    </message>
    <message>
        <source>On the handset:</source>
        <translation>W telefonie odbiorcy:</translation>
    </message>
    <message>
        <source>What the handset shows</source>
        <translation>Co pokaże telefon odbiorcy</translation>
    </message>
    <message>
        <source>Ticks the box of that name: every character arrives, and fewer fit one message</source>
        <translation>Zaznacza pole o tej nazwie: dotrze każdy znak, a w jednej wiadomości zmieści się ich mniej</translation>
    </message>
    <message>
        <source>Send as Unicode</source>
        <translation>Wyślij jako Unicode</translation>
    </message>
    <message>
        <source>Wherever it stands in this message; undo takes it back</source>
        <translation>Wszędzie w tej wiadomości; zmianę można cofnąć</translation>
    </message>
    <message>
        <source>Every marked character that something similar can stand in for; undo takes it back</source>
        <translation>Wszystkie oznaczone znaki, które mają podobny zamiennik; zmianę można cofnąć</translation>
    </message>
    <message>
        <source>Replace all</source>
        <translation>Zamień wszystkie</translation>
    </message>
    <message>
        <source>Cyrillic in Latin letters, Greek in the capitals that 7-bit messages have; undo takes it back</source>
        <translation>Cyrylica literami łacińskimi, greka wielkimi literami dostępnymi w wiadomościach 7-bitowych; zmianę można cofnąć</translation>
    </message>
    <message>
        <source>Write in other letters</source>
        <translation>Napisz innymi literami</translation>
    </message>
    <message>
        <source>On the handset of %1</source>
        <translation>W telefonie %1</translation>
    </message>
    <message>
        <source>On the handset</source>
        <translation>W telefonie odbiorcy</translation>
    </message>
    <message>
        <source>%1, at once and not kept:</source>
        <translation>%1, od razu i bez zapisywania:</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 gets nothing: %2.</source>
        <translation>%1 nic nie otrzyma: %2.</translation>
    </message>
    <message>
        <source>%1 gets nothing: the message is too long.</source>
        <translation>%1 nic nie otrzyma: wiadomość jest za długa.</translation>
    </message>
    <message>
        <source>%1 &quot;Send as Unicode&quot; in the main window keeps them.</source>
        <translation>%1 Zachowa je opcja „Wyślij jako Unicode” w oknie głównym.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Usuń %1</translation>
    </message>
    <message>
        <source>Replace %1 by a blank</source>
        <translation>Zamień %1 na spację</translation>
    </message>
    <message>
        <source>Replace %1 by %2</source>
        <translation>Zamień %1 na %2</translation>
    </message>
</context>
<context>
    <name>Help_Wnd</name>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
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
        <translation>&lt;h3&gt;Od listy numerów do wysłanych wiadomości&lt;/h3&gt;
&lt;p&gt;&lt;b&gt;1. Wybierz telefon.&lt;/b&gt; Podłącz telefon lub modem przez USB albo Bluetooth, naciśnij &lt;i&gt;Kreator połączenia&lt;/i&gt;, kliknij na liście jego port, sprawdź informacje o urządzeniu i naciśnij &lt;i&gt;Wybierz to urządzenie&lt;/i&gt;.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;2. Napisz wiadomość.&lt;/b&gt; Licznik pod nią pokazuje, ile ma znaków i ile SMS-ów będzie kosztować każdy odbiorca. Jeden SMS mieści 160 znaków, a po zaznaczeniu &lt;i&gt;Wyślij jako Unicode&lt;/i&gt; – 70. Wiadomość kończy się na 1600 znakach. Typ &lt;i&gt;Powiadomienie&lt;/i&gt; pojawia się od razu na ekranie telefonu i nie jest w nim zapisywany.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Jakie znaki docierają.&lt;/b&gt; Bez &lt;i&gt;Wyślij jako Unicode&lt;/i&gt; docierają tak, jak je napisano: A do Z, a do z, 0 do 9, spacja, koniec wiersza oraz &lt;tt&gt;! &quot; # % &amp;amp; &apos; ( ) * + , - . / : ; &amp;lt; = &amp;gt; ?&lt;/tt&gt;. Jeśli urządzenie nie jest ograniczone do trybu tekstowego, także &lt;tt&gt;@ ¤ Γ&lt;/tt&gt;, a w tekście do 150 znaków (nawiasy kwadratowe i klamrowe, ^ ~ \ oraz | liczą się podwójnie) również &lt;tt&gt;$ £ ¥ § _ \ | [ ] ^ { } ~ Ä Å Æ Ç É Ñ Ö Ø Ü ß à ä å æ è é ì ñ ò ø ü Δ Θ Ξ Π Σ Φ Ψ Ω&lt;/tt&gt;. Każdy inny znak zamienia się w inny: € w przecinek, ê w j, ö w ¡. Jeśli tekst zawiera taki znak, zaznacz &lt;i&gt;Wyślij jako Unicode&lt;/i&gt;; wiadomość zostanie wtedy wysłana tak, jak ją napisano.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;3. Wypełnij listę.&lt;/b&gt; Wpisz numer i naciśnij &lt;i&gt;Dodaj&lt;/i&gt; albo naciśnij &lt;i&gt;Importuj&lt;/i&gt; i wybierz plik tekstowy lub RTF z jednym numerem w każdym wierszu. Możesz też upuścić plik na listę albo wkleić do niej numery. Pod listą widać, co z tego wyszło, a &lt;i&gt;Pokaż&lt;/i&gt; wymienia wiersze, których nie użyto. Każdy numer trafia na listę z wiadomością w jej brzmieniu z tej chwili. Początkowy + zmienia się w 00, kreski są pomijane, a numer ma najwyżej 20 cyfr. &lt;i&gt;Eksportuj&lt;/i&gt; zapisuje numery z listy w pliku tekstowym.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;4. Zmień listę.&lt;/b&gt; Kliknij odbiorcę dwukrotnie, aby zmienić jego numer lub wiadomość. &lt;i&gt;Edytuj wiadomości zaznaczonych&lt;/i&gt; pozwala napisać jedną nową wiadomość dla wszystkich zaznaczonych, a &lt;i&gt;Skopiuj tę wiadomość do listy&lt;/i&gt; kopiuje wiadomość do wszystkich, zaznaczonych lub pustych pozycji. &lt;i&gt;Usuń zaznaczone&lt;/i&gt;, &lt;i&gt;Usuń wszystkie&lt;/i&gt; i &lt;i&gt;Zresetuj&lt;/i&gt; usuwają numery.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;5. Ustaw sposób wysyłania.&lt;/b&gt; Z opcją &lt;i&gt;Pomijaj powtórzone numery&lt;/i&gt; na każdy numer wysyła się raz. Z opcją &lt;i&gt;Uwzględniaj listy wykluczeń&lt;/i&gt; nic nie jest wysyłane do numerów z zastosowanych list; naciśnij &lt;i&gt;Listy wykluczeń&lt;/i&gt;, aby utworzyć takie listy i wskazać, które obowiązują. &lt;i&gt;Przerwa&lt;/i&gt; wstrzymuje wysyłanie po każdej serii wiadomości. Z opcją &lt;i&gt;Czekaj na potwierdzenia&lt;/i&gt; każda wiadomość jest oceniana po odpowiedzi telefonu, wychodzi w alfabecie, którego wymaga, i nigdy nie jest wysyłana drugi raz bez pytania; przerwaną wysyłkę można wznowić, a &lt;i&gt;Raporty&lt;/i&gt; pokazuje te, które zachowano.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;6. Wyślij.&lt;/b&gt; Jeśli powyższej wiadomości nie ma jeszcze na liście, program zapyta, czy ją tam najpierw skopiować. Wiadomości wychodzą po kolei, w porządku listy, co kilka sekund, bo tyle potrzebują wolne telefony. Okno postępu pokazuje, dokąd doszło wysyłanie, i odlicza przerwy; &lt;i&gt;Przerwij wysyłkę&lt;/i&gt; kończy je przed następną wiadomością lub przed następną częścią długiej. Lista pozostaje bez zmian.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;7. Potem.&lt;/b&gt; To, co przekazano do telefonu przy zaznaczonej opcji &lt;i&gt;Zachowuj wysłane&lt;/i&gt;, jest w oknie &lt;i&gt;Wysłane&lt;/i&gt;, a z opcją &lt;i&gt;Zachowuj jako szablony&lt;/i&gt; każdy tekst trafia, jednokrotnie, do okna &lt;i&gt;Szablony&lt;/i&gt;, gotowy do ponownego użycia. Oba okna pozwalają skasować, co niepotrzebne, i wyeksportować listę jako plik tekstowy lub stronę internetową.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Jeśli nie znaleziono telefonu&lt;/b&gt;, ekran przed kreatorem mówi, co sprawdzić: tryb modemu w telefonie, prawo konta do używania portów szeregowych i inne programy, które zajmują port. &lt;i&gt;Nie widać telefonu?&lt;/i&gt; poniżej sprawdza każdą z tych rzeczy i mówi, co pomaga.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Co znaczy „wysłano”.&lt;/b&gt; Z opcją &lt;i&gt;Czekaj na potwierdzenia&lt;/i&gt; wiadomość jest wysłana, gdy potwierdziła ją sieć. Bez niej uznaje się ją za wysłaną, gdy bez błędu przekazano ją do telefonu. Odpowiedź telefonu lub operatora nie jest wtedy oceniana: odrzucona przez nich wiadomość także jest w oknie &lt;i&gt;Wysłane&lt;/i&gt;, a telefon, który przestał odpowiadać, nie kończy wysyłki. Najpierw wyślij wiadomość do siebie i umieść własny numer na końcu listy.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Jeśli pojawi się „Błąd połączenia z urządzeniem!”&lt;/b&gt;, zapis do telefonu się nie powiódł albo wiadomości nie udało się przygotować, i wysyłka się na tym skończyła. To, co przekazano do tej chwili, jest w oknie &lt;i&gt;Wysłane&lt;/i&gt;, jeśli je zachowujesz; wiadomość, przy której to nastąpiło, mogła wyjść w części lub w całości.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Why does my phone not show?</source>
        <translation>&amp;Nie widać telefonu?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open the &amp;guide</source>
        <translation>Otwórz &amp;przewodnik</translation>
    </message>
    <message>
        <source>No program was found that shows the guide. It is in %1.</source>
        <translation>Nie znaleziono programu, który pokaże przewodnik. Znajduje się on w %1.</translation>
    </message>
</context>
<context>
    <name>Import_Strip</name>
    <message>
        <source>0 added: the file could not be read.</source>
        <translation>Dodano: 0, nie można odczytać pliku.</translation>
    </message>
    <message>
        <source>%1 added.</source>
        <translation>Dodano: %1.</translation>
    </message>
    <message>
        <source>%1 added, 1 line not used.</source>
        <translation>Dodano: %1, nie użyto 1 wiersza.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %n lines not used.</source>
        <translation>
            <numerusform>Dodano: %1, nie użyto %n wiersza.</numerusform>
            <numerusform>Dodano: %1, nie użyto %n wierszy.</numerusform>
            <numerusform>Dodano: %1, nie użyto %n wierszy.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1
Then it ended early.</source>
        <translation>%1
Potem import został przerwany.</translation>
    </message>
    <message>
        <source>0 added: there was no text that could be read.</source>
        <translation>Dodano: 0, nie było tekstu, który można odczytać.</translation>
    </message>
    <message>
        <source>Show ...</source>
        <translation>Pokaż...</translation>
    </message>
    <message>
        <source>Shows what was not used, and why</source>
        <translation>Pokazuje, czego i dlaczego nie użyto</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Takes this notice away</source>
        <translation>Usuwa tę informację</translation>
    </message>
    <message>
        <source>What the last import did</source>
        <translation>Wynik ostatniego importu</translation>
    </message>
    <message>
        <source>&amp;Show ...</source>
        <translation>&amp;Pokaż...</translation>
    </message>
    <message>
        <source>&amp;Dismiss</source>
        <translation>&amp;Zamknij</translation>
    </message>
</context>
<context>
    <name>Job_Trouble</name>
    <message>
        <source>there is no such job</source>
        <translation>nie ma takiej wysyłki</translation>
    </message>
    <message>
        <source>its files can not be read or written to</source>
        <translation>jej plików nie można odczytać ani zapisać</translation>
    </message>
    <message>
        <source>the file is not the journal of a job</source>
        <translation>plik nie jest dziennikiem wysyłki</translation>
    </message>
    <message>
        <source>its journal was written by a newer version of the program</source>
        <translation>jej dziennik zapisała nowsza wersja programu</translation>
    </message>
    <message>
        <source>its journal is damaged, so that it is unknown what was sent</source>
        <translation>jej dziennik jest uszkodzony, więc nie wiadomo, co wysłano</translation>
    </message>
    <message>
        <source>the list beside its journal is gone</source>
        <translation>nie ma już listy, która towarzyszyła dziennikowi</translation>
    </message>
    <message>
        <source>the list beside its journal is not the one that the job began with</source>
        <translation>lista przy dzienniku nie jest tą, od której wysyłka się zaczęła</translation>
    </message>
    <message>
        <source>another program works on it</source>
        <translation>pracuje nad nią inny program</translation>
    </message>
    <message>
        <source>a job of this name exists already</source>
        <translation>wysyłka o tej nazwie już istnieje</translation>
    </message>
    <message>
        <source>a job can not have so many messages</source>
        <translation>wysyłka nie może mieć tylu wiadomości</translation>
    </message>
    <message>
        <source>the disk has no room for its journal</source>
        <translation>na dysku brak miejsca na jej dziennik</translation>
    </message>
    <message>
        <source>its journal can not be written</source>
        <translation>nie można zapisać jej dziennika</translation>
    </message>
</context>
<context>
    <name>Kept_Receipts</name>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1: nie można odczytać</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n recipients</source>
        <translation>
            <numerusform>%1: %n odbiorca</numerusform>
            <numerusform>%1: %n odbiorców</numerusform>
            <numerusform>%1: %n odbiorców</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, in work</source>
        <translation>%1, w toku</translation>
    </message>
    <message>
        <source>%1, not ended</source>
        <translation>%1, niezakończona</translation>
    </message>
    <message>
        <source>Re&amp;move ...</source>
        <translation>&amp;Usuń...</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Wysyłka</translation>
    </message>
    <message>
        <source>Removes the list and the record of this job</source>
        <translation>Usuwa listę i zapis tej wysyłki</translation>
    </message>
    <message>
        <source>&amp;Job:</source>
        <translation>&amp;Wysyłka:</translation>
    </message>
</context>
<context>
    <name>Language_Menu</name>
    <message>
        <source>La&amp;nguage (from the next start on)</source>
        <translation>&amp;Język (od następnego uruchomienia)</translation>
    </message>
    <message>
        <source>As the &amp;desktop</source>
        <translation>Jak w &amp;systemie</translation>
    </message>
</context>
<context>
    <name>List_Arrivals</name>
    <message>
        <source>&amp;Paste numbers</source>
        <translation>&amp;Wklej numery</translation>
    </message>
</context>
<context>
    <name>Lists_Page</name>
    <message>
        <source>Available exclusion lists</source>
        <translation>Dostępne listy wykluczeń</translation>
    </message>
    <message>
        <source>Exclude when sending SMS</source>
        <translation>Wykluczane przy wysyłaniu SMS-ów</translation>
    </message>
    <message>
        <source>There is no exclusion list yet.</source>
        <translation>Nie ma jeszcze żadnej listy wykluczeń.</translation>
    </message>
    <message>
        <source>Make the first list ...</source>
        <translation>Utwórz pierwszą listę...</translation>
    </message>
    <message>
        <source>No list is applied, so nobody is left out.</source>
        <translation>Żadna lista nie jest stosowana, więc nikt nie jest pomijany.</translation>
    </message>
</context>
<context>
    <name>Load_Num_Info</name>
    <message>
        <source>Import numbers</source>
        <translation>Import numerów</translation>
    </message>
    <message>
        <source>The list already holds numbers. Do you want to remove them before the numbers of the file are added?

&quot;No&quot; keeps them and adds the new numbers behind them.</source>
        <translation>Lista zawiera już numery. Czy usunąć je przed dodaniem numerów z pliku?

„Nie” zostawia je i dodaje nowe numery za nimi.</translation>
    </message>
    <message>
        <source>Import nothing</source>
        <translation>Nic nie importuj</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>Empty the list first</source>
        <translation>Najpierw wyczyść listę</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Tak</translation>
    </message>
    <message>
        <source>Keep the list and add to it</source>
        <translation>Zostaw listę i dodaj do niej</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nie</translation>
    </message>
</context>
<context>
    <name>Long_SMS_Dlg</name>
    <message>
        <source>Long message</source>
        <translation>Długa wiadomość</translation>
    </message>
    <message>
        <source>Unicode message</source>
        <translation>Wiadomość Unicode</translation>
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
        <translation>&amp;Edytuj...</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Lista</translation>
    </message>
    <message>
        <source>&amp;Message</source>
        <translation>&amp;Wiadomość</translation>
    </message>
    <message>
        <source>&amp;Sending</source>
        <translation>Wy&amp;syłka</translation>
    </message>
    <message>
        <source>&amp;What was sent</source>
        <translation>&amp;Co wysłano</translation>
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
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
</context>
<context>
    <name>Numbers_Page</name>
    <message>
        <source>Excluded number</source>
        <translation>Wykluczony numer</translation>
    </message>
    <message>
        <source>No number is in this list yet. Type one above, or load a file of them.</source>
        <translation>Na tej liście nie ma jeszcze numerów. Wpisz numer powyżej albo wczytaj plik.</translation>
    </message>
</context>
<context>
    <name>Open_Export_Log</name>
    <message>
        <source>Export</source>
        <translation>Eksport</translation>
    </message>
    <message>
        <source>The list has been exported.</source>
        <translation>Listę wyeksportowano.</translation>
    </message>
    <message>
        <source>Open the &amp;exported file now</source>
        <translation>&amp;Otwórz teraz wyeksportowany plik</translation>
    </message>
    <message>
        <source>The file could not be opened:
this computer has no program for it.</source>
        <translation>Nie udało się otworzyć pliku:
na tym komputerze nie ma odpowiedniego programu.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>The file stays where it is, unopened</source>
        <translation>Plik pozostanie tam, gdzie jest, nieotwarty</translation>
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
        <translation>Kreator połączenia z telefonem</translation>
    </message>
    <message>
        <source>Click a device to read what it tells about itself, then select it to send your messages through it.</source>
        <translation>Kliknij urządzenie, aby zobaczyć informacje o nim, a potem wybierz je, aby wysyłać przez nie wiadomości.</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>Znalezione urządzenia</translation>
    </message>
    <message>
        <source>&amp;Why does my phone not show?</source>
        <translation>Nie &amp;widać telefonu?</translation>
    </message>
    <message>
        <source>Device details</source>
        <translation>Szczegóły urządzenia</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>&amp;Port</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Device pat&amp;h</source>
        <translation>Ś&amp;cieżka urządzenia</translation>
    </message>
    <message>
        <source>Device path</source>
        <translation>Ścieżka urządzenia</translation>
    </message>
    <message>
        <source>&amp;Manufacturer</source>
        <translation>P&amp;roducent</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Producent</translation>
    </message>
    <message>
        <source>Mo&amp;del</source>
        <translation>Mo&amp;del</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
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
        <translation>&amp;Bateria</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message>
        <source>Si&amp;gnal</source>
        <translation>Sy&amp;gnał</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Sygnał</translation>
    </message>
    <message>
        <source>&amp;Operator</source>
        <translation>&amp;Operator</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>&amp;Revision</source>
        <translation>W&amp;ersja</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>Service centre (SMSC)</source>
        <translation>Centrum SMS (SMSC)</translation>
    </message>
    <message>
        <source>D&amp;efault number of the device</source>
        <translation>Do&amp;myślny numer urządzenia</translation>
    </message>
    <message>
        <source>Default service centre number</source>
        <translation>Domyślny numer centrum SMS</translation>
    </message>
    <message>
        <source>&amp;Use a custom number instead</source>
        <translation>&amp;Użyj zamiast niego innego numeru</translation>
    </message>
    <message>
        <source>Custom service centre number</source>
        <translation>Inny numer centrum SMS</translation>
    </message>
    <message>
        <source>Search &amp;again</source>
        <translation>Szuk&amp;aj ponownie</translation>
    </message>
    <message>
        <source>&amp;Continue without a device</source>
        <translation>&amp;Kontynuuj bez urządzenia</translation>
    </message>
    <message>
        <source>Se&amp;lect this device</source>
        <translation>Wybierz &amp;to urządzenie</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>sygnał: %1</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Urządzenie</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Searching for devices ...</source>
        <translation>Wyszukiwanie urządzeń...</translation>
    </message>
    <message>
        <source>No phone or modem was found. Connect one and switch it on.</source>
        <translation>Nie znaleziono telefonu ani modemu. Podłącz urządzenie i włącz je.</translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>Szukaj ponownie</translation>
    </message>
</context>
<context>
    <name>Plan_Page</name>
    <message>
        <source>Sho&amp;w:</source>
        <translation>Po&amp;każ:</translation>
    </message>
    <message>
        <source>Rows to show</source>
        <translation>Wiersze do pokazania</translation>
    </message>
    <message>
        <source>&amp;Longest</source>
        <translation>&amp;Najdłuższa</translation>
    </message>
    <message>
        <source>Goes to the row with the longest message</source>
        <translation>Przechodzi do wiersza z najdłuższą wiadomością</translation>
    </message>
    <message>
        <source>Rows as they will be sent</source>
        <translation>Wiersze tak, jak zostaną wysłane</translation>
    </message>
    <message>
        <source>%1 cannot be dialled: the row stays as it was.</source>
        <translation>Numeru %1 nie można wybrać: wiersz pozostaje bez zmian.</translation>
    </message>
    <message>
        <source>All rows</source>
        <translation>Wszystkie wiersze</translation>
    </message>
    <message>
        <source>Rows left out</source>
        <translation>Pominięte wiersze</translation>
    </message>
    <message>
        <source>Unicode messages</source>
        <translation>Wiadomości Unicode</translation>
    </message>
    <message>
        <source>Looking at the rows: %1 % ...</source>
        <translation>Sprawdzanie wierszy: %1%...</translation>
    </message>
    <message>
        <source>Looking at the rows ...</source>
        <translation>Sprawdzanie wierszy...</translation>
    </message>
</context>
<context>
    <name>Plan_Rows</name>
    <message>
        <source>Row</source>
        <translation>Wiersz</translation>
    </message>
    <message>
        <source>Number as written</source>
        <translation>Numer źródłowy</translation>
    </message>
    <message>
        <source>As dialled</source>
        <translation>Numer wybierany</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Wiadomość</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Części</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Ocena</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Uwagi</translation>
    </message>
</context>
<context>
    <name>Plan_Words</name>
    <message>
        <source>to be sent</source>
        <translation>do wysłania</translation>
    </message>
    <message>
        <source>repeated</source>
        <translation>z powtórzonym numerem</translation>
    </message>
    <message>
        <source>excluded</source>
        <translation>z listy wykluczeń</translation>
    </message>
    <message>
        <source>no usable number</source>
        <translation>bez poprawnego numeru</translation>
    </message>
    <message>
        <source>empty field</source>
        <translation>z pustym polem</translation>
    </message>
    <message>
        <source>unknown field</source>
        <translation>z nieznanym polem</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>o nadmiernej długości</translation>
    </message>
    <message>
        <source>fields misplaced</source>
        <translation>z przesuniętymi polami</translation>
    </message>
    <message>
        <source>1 message to be sent</source>
        <translation>1 wiadomość do wysłania</translation>
    </message>
    <message numerus="yes">
        <source>%n messages to be sent</source>
        <translation>
            <numerusform>%n wiadomość do wysłania</numerusform>
            <numerusform>%n wiadomości do wysłania</numerusform>
            <numerusform>%n wiadomości do wysłania</numerusform>
        </translation>
    </message>
    <message>
        <source>1 part</source>
        <translation>1 część</translation>
    </message>
    <message numerus="yes">
        <source>%n parts</source>
        <translation>
            <numerusform>%n część</numerusform>
            <numerusform>%n części</numerusform>
            <numerusform>%n części</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2, %3, %4</source>
        <translation>%1, %2, %3, %4</translation>
    </message>
    <message numerus="yes">
        <source>%n left out: %1.</source>
        <translation>
            <numerusform>Pominięto %n: %1.</numerusform>
            <numerusform>Pominięto %n: %1.</numerusform>
            <numerusform>Pominięto %n: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>others</source>
        <translation>inne</translation>
    </message>
    <message>
        <source>1 message goes as Unicode</source>
        <translation>1 wiadomość wyjdzie jako Unicode</translation>
    </message>
    <message numerus="yes">
        <source>%n messages go as Unicode</source>
        <translation>
            <numerusform>%n wiadomość wyjdzie jako Unicode</numerusform>
            <numerusform>%n wiadomości wyjdą jako Unicode</numerusform>
            <numerusform>%n wiadomości wyjdzie jako Unicode</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, because of %2.</source>
        <translation>%1, z powodu: %2.</translation>
    </message>
</context>
<context>
    <name>PleaseWait_Modeless</name>
    <message>
        <source>Please wait ...</source>
        <translation>Proszę czekać...</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>Praca w toku</translation>
    </message>
</context>
<context>
    <name>Receipt_Wnd</name>
    <message>
        <source>Receipt</source>
        <translation>Raport z wysyłki</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>&amp;Pokaż:</translation>
    </message>
    <message>
        <source>Messages to show</source>
        <translation>Wiadomości do pokazania</translation>
    </message>
    <message>
        <source>Messages of the job</source>
        <translation>Wiadomości wysyłki</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Eksportuj</translation>
    </message>
    <message>
        <source>Write the receipt into a file</source>
        <translation>Zapisz raport w pliku</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>As a &amp;text ...</source>
        <translation>Jako &amp;tekst...</translation>
    </message>
    <message>
        <source>As a web &amp;page ...</source>
        <translation>Jako &amp;stronę WWW...</translation>
    </message>
    <message>
        <source>As a table for &amp;spreadsheets (CSV) ...</source>
        <translation>Jako tabelę &amp;arkusza (CSV)...</translation>
    </message>
    <message>
        <source>An apostrophe is in front of each number, and of whatever else a spreadsheet would take for a formula.</source>
        <translation>Każdy numer i wszystko, co arkusz kalkulacyjny wziąłby za formułę, poprzedza apostrof.</translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>Odczytywanie...</translation>
    </message>
    <message>
        <source>No receipts are kept yet.</source>
        <translation>Nie zachowano jeszcze żadnych raportów.</translation>
    </message>
    <message>
        <source>The job could not be removed: %1.</source>
        <translation>Nie udało się usunąć wysyłki: %1.</translation>
    </message>
    <message>
        <source>There is no receipt of this job: %1.</source>
        <translation>Nie ma raportu z tej wysyłki: %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be written.</source>
        <translation>Nie udało się zapisać pliku %1.</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Zapisano w %1.</translation>
    </message>
</context>
<context>
    <name>Remembered_List</name>
    <message>
        <source>Re&amp;member this list</source>
        <translation>Za&amp;pamiętaj tę listę</translation>
    </message>
    <message>
        <source>The list from the last time cannot be read.</source>
        <translation>Nie można odczytać listy z poprzedniego razu.</translation>
    </message>
    <message>
        <source>Recipients from the last time: %1.</source>
        <translation>Odbiorcy z poprzedniego razu: %1.</translation>
    </message>
    <message>
        <source>Not read: %1.</source>
        <translation>Nieodczytane: %1.</translation>
    </message>
</context>
<context>
    <name>Removal_Question</name>
    <message>
        <source>Keep it</source>
        <translation>Zostaw</translation>
    </message>
    <message>
        <source>Really remove the job&apos;s list and its record from this computer? Nothing more can be sent of it then, and it has no receipt any more.</source>
        <translation>Czy na pewno usunąć z tego komputera listę wysyłki i jej zapis? Nic więcej nie będzie można z niej wysłać i nie będzie już jej raportu.</translation>
    </message>
    <message>
        <source>Remove for good</source>
        <translation>Usuń na zawsze</translation>
    </message>
</context>
<context>
    <name>Row_Finder</name>
    <message>
        <source>&amp;Find ...</source>
        <translation>&amp;Szukaj...</translation>
    </message>
    <message>
        <source>&amp;Sort</source>
        <translation>&amp;Porządkuj</translation>
    </message>
    <message>
        <source>%1, upwards</source>
        <translation>%1, rosnąco</translation>
    </message>
    <message>
        <source>%1, downwards</source>
        <translation>%1, malejąco</translation>
    </message>
    <message>
        <source>As in the list</source>
        <translation>Jak na liście</translation>
    </message>
    <message>
        <source>Searching ...</source>
        <translation>Szukanie...</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
</context>
<context>
    <name>Sample_Rows</name>
    <message>
        <source>%1 (number)</source>
        <translation>%1 (numer)</translation>
    </message>
</context>
<context>
    <name>Send_Modeless</name>
    <message>
        <source>Sending messages</source>
        <translation>Wysyłanie wiadomości</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>Praca w toku</translation>
    </message>
    <message>
        <source>Total messages :</source>
        <translation>Wszystkie wiadomości:</translation>
    </message>
    <message>
        <source>Sending to :</source>
        <translation>Wysyłanie do:</translation>
    </message>
    <message>
        <source>Messages handled</source>
        <translation>Obsłużone wiadomości</translation>
    </message>
    <message>
        <source>&amp;Stop Sending</source>
        <translation>&amp;Przerwij wysyłkę</translation>
    </message>
    <message>
        <source>about 23 h 59 min left, until 30 September 2026, 23:59</source>
        <translation>pozostało: około 23 godz. 59 min, do 30 września 2026, 23:59</translation>
    </message>
    <message>
        <source>Sending %1 of %2</source>
        <translation>Wysyłanie %1 z %2</translation>
    </message>
    <message>
        <source>Now :</source>
        <translation>Teraz:</translation>
    </message>
    <message>
        <source>Stopping ...</source>
        <translation>Przerywanie...</translation>
    </message>
</context>
<context>
    <name>Send_Msg_Info</name>
    <message>
        <source>Before sending</source>
        <translation>Przed wysłaniem</translation>
    </message>
    <message>
        <source>The message in the composer is not yet in the list. You can copy it there before the list is sent.</source>
        <translation>Napisanej wiadomości nie ma jeszcze na liście. Możesz ją tam skopiować przed wysłaniem listy.</translation>
    </message>
    <message>
        <source>Every number gets the message in the composer</source>
        <translation>Napisaną wiadomość otrzymają wszystkie numery</translation>
    </message>
    <message>
        <source>Copy it to &amp;all numbers in the list</source>
        <translation>Skopiuj do &amp;wszystkich numerów na liście</translation>
    </message>
    <message>
        <source>The numbers whose message is empty get the message; the others keep theirs</source>
        <translation>Wiadomość otrzymają numery, których wiadomość jest pusta; pozostałe zachowają swoje</translation>
    </message>
    <message>
        <source>Copy it to the numbers without a &amp;message</source>
        <translation>Skopiuj do numerów bez wia&amp;domości</translation>
    </message>
    <message>
        <source>Or send each number the message that it has in the list.</source>
        <translation>Możesz też wysłać na każdy numer wiadomość, którą ma na liście.</translation>
    </message>
    <message>
        <source>Send nothing</source>
        <translation>Nic nie wysyłaj</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>Send the list as it stands</source>
        <translation>Wyślij listę bez zmian</translation>
    </message>
    <message>
        <source>Send as it &amp;stands</source>
        <translation>Wyślij bez &amp;zmian</translation>
    </message>
    <message>
        <source>Copy the message and send</source>
        <translation>Skopiuj wiadomość i wyślij</translation>
    </message>
    <message>
        <source>C&amp;opy and send</source>
        <translation>&amp;Kopiuj i wyślij</translation>
    </message>
    <message>
        <source>The composer is empty. If you copy it to all numbers, every message in the list becomes blank.</source>
        <translation>Pole wiadomości jest puste. Jeśli skopiujesz je do wszystkich numerów, każda wiadomość na liście będzie pusta.</translation>
    </message>
</context>
<context>
    <name>Send_Promise</name>
    <message>
        <source>Counting ...</source>
        <translation>Liczenie...</translation>
    </message>
    <message>
        <source>That is much for one phone.</source>
        <translation>To dużo jak na jeden telefon.</translation>
    </message>
    <message>
        <source>What to do instead</source>
        <translation>Co zrobić zamiast tego</translation>
    </message>
    <message>
        <source>Other ways ...</source>
        <translation>Inne sposoby...</translation>
    </message>
    <message>
        <source>Show who gets nothing ...</source>
        <translation>Pokaż, kto nic nie otrzyma...</translation>
    </message>
    <message>
        <source>Check before sending ...</source>
        <translation>Sprawdź przed wysłaniem...</translation>
    </message>
</context>
<context>
    <name>Sent_Items</name>
    <message>
        <source>Sent Items</source>
        <translation>Wysłane</translation>
    </message>
    <message>
        <source>&amp;Sent messages:</source>
        <translation>&amp;Wysłane wiadomości:</translation>
    </message>
    <message>
        <source>Total Items : 0</source>
        <translation>Liczba pozycji: 0</translation>
    </message>
    <message>
        <source>Sent messages</source>
        <translation>Wysłane wiadomości</translation>
    </message>
    <message>
        <source>Selected &amp;message:</source>
        <translation>Zaznaczona wia&amp;domość:</translation>
    </message>
    <message>
        <source>Selected message</source>
        <translation>Zaznaczona wiadomość</translation>
    </message>
    <message>
        <source>&amp;Delete selected</source>
        <translation>&amp;Usuń zaznaczone</translation>
    </message>
    <message>
        <source>Take the selected messages out of the list</source>
        <translation>Usuń zaznaczone wiadomości z listy</translation>
    </message>
    <message>
        <source>Delete a&amp;ll</source>
        <translation>U&amp;suń wszystkie</translation>
    </message>
    <message>
        <source>Empty the whole list</source>
        <translation>Wyczyść całą listę</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>&amp;Eksportuj...</translation>
    </message>
    <message>
        <source>Write the list into a text file or a web page</source>
        <translation>Zapisz listę w pliku tekstowym lub jako stronę internetową</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>Keep the list as it is shown and close this window</source>
        <translation>Zachowaj listę w pokazanej postaci i zamknij to okno</translation>
    </message>
    <message>
        <source>[ The first %1 of %2 characters ]</source>
        <translation>[ Pierwsze znaki: %1 z %2 ]</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numer</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Wiadomość</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>No message is kept here yet. Those that are handed to the phone from now on will be.</source>
        <translation>Nie ma tu jeszcze żadnej wiadomości. Odtąd będą tu te, które zostaną przekazane telefonowi.</translation>
    </message>
    <message>
        <source>No message is kept here yet, and those that are sent will not be.</source>
        <translation>Nie ma tu jeszcze żadnej wiadomości, a wysyłane nie będą zachowywane.</translation>
    </message>
    <message>
        <source>Keep messages from now on</source>
        <translation>Odtąd zachowuj wiadomości</translation>
    </message>
</context>
<context>
    <name>Table_Page</name>
    <message>
        <source>&amp;Numbers are in:</source>
        <translation>&amp;Numery w kolumnie:</translation>
    </message>
    <message>
        <source>Column of the numbers</source>
        <translation>Kolumna z numerami</translation>
    </message>
    <message>
        <source>The column that holds the numbers. A click on a heading of the table chooses it, too</source>
        <translation>Kolumna, która zawiera numery. Można ją też wybrać, klikając nagłówek tabeli</translation>
    </message>
    <message>
        <source>National numbers are &amp;of:</source>
        <translation>Kraj numerów krajo&amp;wych:</translation>
    </message>
    <message>
        <source>Country of national numbers</source>
        <translation>Kraj numerów krajowych</translation>
    </message>
    <message>
        <source>Gets the code of this country in front of a number that has none</source>
        <translation>Dodaje numer kierunkowy tego kraju przed numerem, który go nie ma</translation>
    </message>
    <message>
        <source>The first rows</source>
        <translation>Pierwsze wiersze</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>&amp;Kodowanie:</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Kodowanie</translation>
    </message>
    <message>
        <source>Another one where letters look wrong</source>
        <translation>Wybierz inne, jeśli litery wyglądają źle</translation>
    </message>
    <message>
        <source>&amp;Delimiter:</source>
        <translation>&amp;Separator:</translation>
    </message>
    <message>
        <source>Delimiter</source>
        <translation>Separator</translation>
    </message>
    <message>
        <source>What stands between the fields of a row</source>
        <translation>Znak, który oddziela pola w wierszu</translation>
    </message>
    <message>
        <source>&amp;Sheet:</source>
        <translation>&amp;Arkusz:</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Arkusz</translation>
    </message>
    <message>
        <source>Untick this where the first row is one like the others</source>
        <translation>Usuń zaznaczenie, jeśli pierwszy wiersz jest taki jak pozostałe</translation>
    </message>
    <message>
        <source>&amp;First row has the names</source>
        <translation>Nazwy w &amp;pierwszym wierszu</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 wiersz</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n wiersz</numerusform>
            <numerusform>%n wiersze</numerusform>
            <numerusform>%n wierszy</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 in 1 column.</source>
        <translation>%1: %2 w 1 kolumnie.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 in %n columns.</source>
        <translation>
            <numerusform>%1: %2 w %n kolumnie.</numerusform>
            <numerusform>%1: %2 w %n kolumnach.</numerusform>
            <numerusform>%1: %2 w %n kolumnach.</numerusform>
        </translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Przecinek</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Średnik</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Kreska pionowa</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Bez zmian</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>Odczytywanie: %1...</translation>
    </message>
    <message>
        <source>%1 can not be used: %2.</source>
        <translation>%1 nie nadaje się do użycia: %2.</translation>
    </message>
    <message>
        <source>%1 holds no rows below the names of its columns.</source>
        <translation>%1 nie zawiera wierszy pod nazwami kolumn.</translation>
    </message>
    <message>
        <source>No column looks as if it held numbers. Choose the one that does.</source>
        <translation>Żadna kolumna nie wygląda na kolumnę z numerami. Wskaż właściwą.</translation>
    </message>
    <message>
        <source>One for each person, mobile ones first</source>
        <translation>Jeden na osobę, najpierw komórkowe</translation>
    </message>
    <message>
        <source>Each number of a person</source>
        <translation>Każdy numer osoby</translation>
    </message>
    <message>
        <source>The file does not tell its encoding: look whether the letters are right.</source>
        <translation>Plik nie podaje swojego kodowania: sprawdź, czy litery są poprawne.</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Templates</source>
        <translation>Szablony</translation>
    </message>
    <message>
        <source>&amp;Message templates:</source>
        <translation>&amp;Szablony wiadomości:</translation>
    </message>
    <message>
        <source>Total Items : 0</source>
        <translation>Liczba pozycji: 0</translation>
    </message>
    <message>
        <source>Message templates</source>
        <translation>Szablony wiadomości</translation>
    </message>
    <message>
        <source>Selected &amp;template:</source>
        <translation>Zaznaczony sza&amp;blon:</translation>
    </message>
    <message>
        <source>Selected template</source>
        <translation>Zaznaczony szablon</translation>
    </message>
    <message>
        <source>Add &amp;new ...</source>
        <translation>&amp;Nowy...</translation>
    </message>
    <message>
        <source>Type a new template</source>
        <translation>Napisz nowy szablon</translation>
    </message>
    <message>
        <source>E&amp;dit ...</source>
        <translation>&amp;Edytuj...</translation>
    </message>
    <message>
        <source>Change the selected template</source>
        <translation>Zmień zaznaczony szablon</translation>
    </message>
    <message>
        <source>Delete &amp;selected</source>
        <translation>&amp;Usuń zaznaczone</translation>
    </message>
    <message>
        <source>Take the selected templates out of the list</source>
        <translation>Usuń zaznaczone szablony z listy</translation>
    </message>
    <message>
        <source>Delete a&amp;ll</source>
        <translation>Usuń &amp;wszystkie</translation>
    </message>
    <message>
        <source>Empty the whole list</source>
        <translation>Wyczyść całą listę</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>E&amp;ksportuj...</translation>
    </message>
    <message>
        <source>Write the list into a text file or a web page</source>
        <translation>Zapisz listę w pliku tekstowym lub jako stronę internetową</translation>
    </message>
    <message>
        <source>&amp;Use template</source>
        <translation>Uż&amp;yj szablonu</translation>
    </message>
    <message>
        <source>Put the selected template into the message</source>
        <translation>Wstaw zaznaczony szablon do wiadomości</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>Keep the list as it is shown and close this window</source>
        <translation>Zachowaj listę w pokazanej postaci i zamknij to okno</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Szablon</translation>
    </message>
    <message>
        <source>Templates that could not be saved the last time are in the list again. They are saved when this window closes.</source>
        <translation>Szablony, których ostatnio nie udało się zapisać, są znów na liście. Zostaną zapisane przy zamknięciu tego okna.</translation>
    </message>
    <message>
        <source>The templates stored so far can not be read. They are kept in a file of their own when this list is saved.</source>
        <translation>Nie można odczytać zapisanych dotąd szablonów. Przy zapisywaniu tej listy zostaną zachowane w osobnym pliku.</translation>
    </message>
    <message>
        <source>Changes can not be saved at present: the folder %1 can not be written to.</source>
        <translation>Zmian nie można teraz zapisać: nie da się zapisywać w folderze %1.</translation>
    </message>
    <message>
        <source>No text is kept here yet.</source>
        <translation>Nie ma tu jeszcze żadnego tekstu.</translation>
    </message>
    <message>
        <source>Add the first template ...</source>
        <translation>Dodaj pierwszy szablon...</translation>
    </message>
</context>
<context>
    <name>Time_Words</name>
    <message>
        <source>1 recipient</source>
        <translation>1 odbiorca</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients</source>
        <translation>
            <numerusform>%n odbiorca</numerusform>
            <numerusform>%n odbiorców</numerusform>
            <numerusform>%n odbiorców</numerusform>
        </translation>
    </message>
    <message>
        <source>1 message</source>
        <translation>1 wiadomość</translation>
    </message>
    <message numerus="yes">
        <source>%n messages</source>
        <translation>
            <numerusform>%n wiadomość</numerusform>
            <numerusform>%n wiadomości</numerusform>
            <numerusform>%n wiadomości</numerusform>
        </translation>
    </message>
    <message>
        <source>sent items</source>
        <translation>wysłane</translation>
    </message>
    <message>
        <source>templates</source>
        <translation>szablony</translation>
    </message>
    <message>
        <source>a receipt</source>
        <translation>raport</translation>
    </message>
    <message>
        <source>to be kept: %1</source>
        <translation>do zachowania: %1</translation>
    </message>
    <message>
        <source> and </source>
        <translation> i </translation>
    </message>
    <message>
        <source>the record goes when all is done</source>
        <translation>zapis zniknie po zakończeniu</translation>
    </message>
    <message>
        <source>no record will be kept</source>
        <translation>bez zachowania zapisu</translation>
    </message>
    <message>
        <source>less than a minute</source>
        <translation>mniej niż minuta</translation>
    </message>
    <message>
        <source>about %1 min</source>
        <translation>około %1 min</translation>
    </message>
    <message>
        <source>about %1 h %2 min</source>
        <translation>około %1 godz. %2 min</translation>
    </message>
    <message>
        <source>about %1 h</source>
        <translation>około %1 godz.</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>do %1</translation>
    </message>
    <message>
        <source>until tomorrow, %1</source>
        <translation>do jutra, %1</translation>
    </message>
    <message>
        <source>until %1, %2</source>
        <translation>do %1, %2</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <source>Nobody in the list will be sent anything.</source>
        <translation>Nikt z listy nic nie otrzyma.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>pozostało: %1</translation>
    </message>
    <message>
        <source>%1 once it goes on</source>
        <translation>%1 po wznowieniu</translation>
    </message>
</context>
<context>
    <name>Undo_Strip</name>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>&amp;Undo the removal</source>
        <translation>&amp;Cofnij usunięcie</translation>
    </message>
    <message>
        <source>What was just removed</source>
        <translation>Co właśnie usunięto</translation>
    </message>
    <message>
        <source>Brings back what was removed (Ctrl+Z)</source>
        <translation>Przywraca to, co usunięto (Ctrl+Z)</translation>
    </message>
</context>
<context>
    <name>Unfilled_Rows</name>
    <message>
        <source>1 recipient gets nothing: %1.</source>
        <translation>1 odbiorca nic nie otrzyma: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients get nothing. Of the first, %1.</source>
        <translation>
            <numerusform>%n odbiorca nic nie otrzyma. Przyczyna u pierwszego: %1.</numerusform>
            <numerusform>%n odbiorców nic nie otrzyma. Przyczyna u pierwszego: %1.</numerusform>
            <numerusform>%n odbiorców nic nie otrzyma. Przyczyna u pierwszego: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no field %1: 1 recipient gets nothing.</source>
        <translation>Nie ma pola %1: 1 odbiorca nic nie otrzyma.</translation>
    </message>
    <message numerus="yes">
        <source>There is no field %1: %n recipients get nothing.</source>
        <translation>
            <numerusform>Nie ma pola %1: %n odbiorca nic nie otrzyma.</numerusform>
            <numerusform>Nie ma pola %1: %n odbiorców nic nie otrzyma.</numerusform>
            <numerusform>Nie ma pola %1: %n odbiorców nic nie otrzyma.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 recipient has no %1: it gets nothing.</source>
        <translation>Puste pole %1: 1 odbiorca nic nie otrzyma.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients have no %1: they get nothing.</source>
        <translation>
            <numerusform>Puste pole %1: %n odbiorca nic nie otrzyma.</numerusform>
            <numerusform>Puste pole %1: %n odbiorców nic nie otrzyma.</numerusform>
            <numerusform>Puste pole %1: %n odbiorców nic nie otrzyma.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Unfinished_Strip</name>
    <message>
        <source>Sends what was not sent. What was sent is not sent again.</source>
        <translation>Wysyła to, czego nie wysłano. To, co wysłano, nie zostanie wysłane ponownie.</translation>
    </message>
    <message>
        <source>Rows that may have been sent ...</source>
        <translation>Wiersze być może wysłane...</translation>
    </message>
    <message>
        <source>Lists them, so that you can say what is to become of each</source>
        <translation>Wymienia je, aby można było zdecydować, co z nimi zrobić</translation>
    </message>
    <message>
        <source>Receipt ...</source>
        <translation>Raport...</translation>
    </message>
    <message>
        <source>Shows what became of each message so far</source>
        <translation>Pokazuje, co dotąd stało się z każdą wiadomością</translation>
    </message>
    <message>
        <source>Remove ...</source>
        <translation>Usuń...</translation>
    </message>
    <message>
        <source>Removes the job&apos;s list and its record</source>
        <translation>Usuwa listę wysyłki i jej zapis</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Później</translation>
    </message>
    <message>
        <source>Leaves the job as it is and says no more of it for now</source>
        <translation>Zostawia wysyłkę bez zmian i na razie o niej nie przypomina</translation>
    </message>
    <message>
        <source>Job that has not ended</source>
        <translation>Niezakończona wysyłka</translation>
    </message>
    <message>
        <source>Receipt of the job that has not ended ...</source>
        <translation>Raport z niezakończonej wysyłki...</translation>
    </message>
    <message>
        <source>A job that began on %1 has not ended.</source>
        <translation>Wysyłka rozpoczęta %1 nie została zakończona.</translation>
    </message>
    <message>
        <source>Nothing of it is left to be sent.</source>
        <translation>Nie zostało w niej nic do wysłania.</translation>
    </message>
    <message>
        <source>The job %1 cannot be gone on with: %2.</source>
        <translation>Nie można wznowić wysyłki %1: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>jeszcze %n wysyłka</numerusform>
            <numerusform>jeszcze %n wysyłki</numerusform>
            <numerusform>jeszcze %n wysyłek</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Send the remaining %n</source>
        <translation>
            <numerusform>Wyślij %n pozostałą</numerusform>
            <numerusform>Wyślij %n pozostałe</numerusform>
            <numerusform>Wyślij %n pozostałych</numerusform>
        </translation>
    </message>
    <message>
        <source>Send the rest</source>
        <translation>Wyślij resztę</translation>
    </message>
    <message>
        <source>The job could not be removed: %1.</source>
        <translation>Nie udało się usunąć wysyłki: %1.</translation>
    </message>
</context>
<context>
    <name>Unknown_Rows_Sheet</name>
    <message>
        <source>Rows that may have been sent</source>
        <translation>Wiersze być może wysłane</translation>
    </message>
    <message>
        <source>It is not known whether these messages were sent. What is left as it is will not be sent again. What is sent again may arrive twice.</source>
        <translation>Nie wiadomo, czy te wiadomości wysłano. Te, które pozostaną bez zmian, nie zostaną wysłane ponownie. Te, które zostaną wysłane ponownie, mogą dotrzeć dwa razy.</translation>
    </message>
    <message>
        <source>The selected rows:</source>
        <translation>Zaznaczone wiersze:</translation>
    </message>
    <message>
        <source>&amp;Leave</source>
        <translation>&amp;Zostaw</translation>
    </message>
    <message>
        <source>Send &amp;again</source>
        <translation>Wyślij &amp;ponownie</translation>
    </message>
    <message>
        <source>&amp;Count as sent</source>
        <translation>&amp;Uznaj za wysłane</translation>
    </message>
    <message>
        <source>All rows:</source>
        <translation>Wszystkie wiersze:</translation>
    </message>
    <message>
        <source>Lea&amp;ve all</source>
        <translation>Z&amp;ostaw wszystkie</translation>
    </message>
    <message>
        <source>Send all a&amp;gain</source>
        <translation>&amp;Wyślij wszystkie ponownie</translation>
    </message>
    <message>
        <source>C&amp;ount all as sent</source>
        <translation>Uznaj w&amp;szystkie za wysłane</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Keep these decisions in the record of the job</source>
        <translation>Zachowaj te decyzje w zapisie wysyłki</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Leave everything as it is</source>
        <translation>Zostaw wszystko bez zmian</translation>
    </message>
    <message>
        <source>Leave as it is</source>
        <translation>Zostaw bez zmian</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Wyślij ponownie</translation>
    </message>
    <message>
        <source>Count as sent</source>
        <translation>Uznaj za wysłaną</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Co zrobić</translation>
    </message>
    <message>
        <source>The decisions could not be kept: %1.</source>
        <translation>Nie udało się zapisać decyzji: %1.</translation>
    </message>
</context>
<context>
    <name>Unused_Lines_Wnd</name>
    <message>
        <source>Lines that were not used</source>
        <translation>Nieużyte wiersze</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>No phone number</source>
        <translation>To nie numer telefonu</translation>
    </message>
    <message>
        <source>Already in the list</source>
        <translation>Już na liście</translation>
    </message>
    <message>
        <source>In an exclusion list</source>
        <translation>Na liście wykluczeń</translation>
    </message>
    <message>
        <source>Lines not used: %1.</source>
        <translation>Nieużyte wiersze: %1.</translation>
    </message>
    <message>
        <source>These are the first %1.</source>
        <translation>Oto pierwsze z nich: %1.</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Wiersz</translation>
    </message>
    <message>
        <source>As it stood there</source>
        <translation>Treść wiersza</translation>
    </message>
    <message>
        <source>Why it was not used</source>
        <translation>Dlaczego go nie użyto</translation>
    </message>
</context>
<context>
    <name>UpdateTemp</name>
    <message>
        <source>Templates</source>
        <translation>Szablony</translation>
    </message>
    <message>
        <source>&amp;Message:</source>
        <translation>&amp;Wiadomość:</translation>
    </message>
    <message>
        <source>Message of the template</source>
        <translation>Wiadomość szablonu</translation>
    </message>
    <message>
        <source>At most 1600 characters</source>
        <translation>Najwyżej 1600 znaków</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>Znaki: 0</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
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
        <translation>Edycja numeru</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Numer telefonu</translation>
    </message>
    <message>
        <source>The number as it is to stand in the exclusion list, at most 20 characters</source>
        <translation>Numer w postaci, w jakiej ma być na liście wykluczeń, najwyżej 20 znaków</translation>
    </message>
    <message>
        <source>Number as it was</source>
        <translation>Poprzedni numer</translation>
    </message>
    <message>
        <source>Row of the number</source>
        <translation>Wiersz numeru</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Phone &amp;number:</source>
        <translation>&amp;Numer telefonu:</translation>
    </message>
</context>
<context>
    <name>Update_Num_SMS</name>
    <message>
        <source>Edit number and message</source>
        <translation>Edycja numeru i wiadomości</translation>
    </message>
    <message>
        <source>Phone &amp;number:</source>
        <translation>&amp;Numer telefonu:</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Numer telefonu</translation>
    </message>
    <message>
        <source>&amp;Message:</source>
        <translation>&amp;Wiadomość:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Wiadomość</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>Znaki: 0</translation>
    </message>
    <message>
        <source>For this window only</source>
        <translation>Tylko w tym oknie</translation>
    </message>
    <message>
        <source>&amp;Refuse a number that is in the list already</source>
        <translation>&amp;Odrzucaj numer, który jest już na liście</translation>
    </message>
    <message>
        <source>Refuse an &amp;excluded number</source>
        <translation>Odrzucaj numer wy&amp;kluczony</translation>
    </message>
    <message>
        <source>Leave the recipient as it is</source>
        <translation>Zostaw odbiorcę bez zmian</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>Save the recipient</source>
        <translation>Zapisz odbiorcę</translation>
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
        <translation>Edycja zaznaczonych wiadomości</translation>
    </message>
    <message>
        <source>&amp;Selected numbers:</source>
        <translation>&amp;Zaznaczone numery:</translation>
    </message>
    <message>
        <source>Selected numbers</source>
        <translation>Zaznaczone numery</translation>
    </message>
    <message>
        <source>Total Selected Numbers : 0</source>
        <translation>Liczba zaznaczonych numerów: 0</translation>
    </message>
    <message>
        <source>New &amp;message for all of them:</source>
        <translation>Nowa &amp;wiadomość dla wszystkich:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Wiadomość</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>Znaki: 0</translation>
    </message>
    <message>
        <source>Leave the messages as they are</source>
        <translation>Zostaw wiadomości bez zmian</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>Copy the message to the selected numbers</source>
        <translation>Skopiuj wiadomość do zaznaczonych numerów</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numer</translation>
    </message>
</context>
</TS>
