<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Answer_Cleaning</name>
    <message>
        <source>Device does not have a battery connected.</source>
        <translation>L’appareil n’a pas de batterie.</translation>
    </message>
    <message>
        <source>%1% ( Charging )</source>
        <translation>%1&#x202f;% (en charge)</translation>
    </message>
    <message>
        <source>Recognized power fault.</source>
        <translation>Défaut d’alimentation détecté.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bon</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Excellent</translation>
    </message>
</context>
<context>
    <name>Appearance_Menu</name>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Sombre</translation>
    </message>
    <message>
        <source>&amp;High contrast</source>
        <translation>Contraste é&amp;levé</translation>
    </message>
    <message>
        <source>&amp;As the desktop</source>
        <translation>Comme le s&amp;ystème</translation>
    </message>
</context>
<context>
    <name>Bubble_Words</name>
    <message>
        <source>%1 is lost</source>
        <translation>%1 est perdu</translation>
    </message>
    <message>
        <source>%1 arrives as a blank</source>
        <translation>%1 devient un espace</translation>
    </message>
    <message>
        <source>%1 arrives as %2</source>
        <translation>%1 devient %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n autre</numerusform>
            <numerusform>%n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>%1 makes this message Unicode</source>
        <translation>%1 fait passer ce message en Unicode</translation>
    </message>
    <message>
        <source>%1 make this message Unicode</source>
        <translation>%1 font passer ce message en Unicode</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n parts instead of %2.</source>
        <translation>
            <numerusform>%1&#x202f;: %n partie au lieu de %2.</numerusform>
            <numerusform>%1&#x202f;: %n parties au lieu de %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 part of %1, %2 left</source>
        <translation>1 partie de %1, reste %2</translation>
    </message>
    <message numerus="yes">
        <source>%n parts of %1, %2 left in the last</source>
        <translation>
            <numerusform>%n partie de %1, reste %2 dans la dernière</numerusform>
            <numerusform>%n parties de %1, reste %2 dans la dernière</numerusform>
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
        <translation>Aucun téléphone ni modem n’a été trouvé en USB ou en Bluetooth. Allumez-le et connectez-le comme indiqué ci-dessus&#x202f;; il peut mettre quelques secondes à apparaître. Un modem branché sur un port série de l’ordinateur est tout de même proposé, sous le nom ttyS0 ou un autre ttyS, si votre compte a le droit de l’ouvrir.</translation>
    </message>
    <message>
        <source>Your account may not open %1. Only the system&apos;s administrator can allow it.</source>
        <translation>Votre compte n’a pas le droit d’ouvrir %1. Seul l’administrateur du système peut l’accorder.</translation>
    </message>
    <message>
        <source>Your account may not open %1. Members of this group may: %2. Join it with this command, then log out and in again:</source>
        <translation>Votre compte n’a pas le droit d’ouvrir %1. Les membres de ce groupe l’ont&#x202f;: %2. Rejoignez-le avec cette commande, puis fermez votre session et rouvrez-la&#x202f;:</translation>
    </message>
    <message>
        <source>The service ModemManager is running and may hold the device&apos;s port. If the device is not found or does not answer, stop the service until the next start of the computer:</source>
        <translation>Le service ModemManager est actif et occupe peut-être le port de l’appareil. Si l’appareil est introuvable ou ne répond pas, arrêtez ce service jusqu’au prochain démarrage de l’ordinateur&#x202f;:</translation>
    </message>
</context>
<context>
    <name>Connection_Info</name>
    <message>
        <source>Connect your mobile phone</source>
        <translation>Connecter votre téléphone mobile</translation>
    </message>
    <message>
        <source>Corvane sends your messages through a mobile phone or GSM modem connected to this computer. Before the search begins, switch the device on and let the computer use it as a modem:</source>
        <translation>Corvane envoie vos messages par un téléphone mobile ou un modem GSM relié à cet ordinateur. Avant la recherche, allumez l’appareil et permettez à l’ordinateur de s’en servir comme modem&#x202f;:</translation>
    </message>
    <message>
        <source>With a USB cable</source>
        <translation>Par câble USB</translation>
    </message>
    <message>
        <source>Plug the cable in and unlock the phone. When it asks what the connection is for, choose the modem or data mode – phones call it “Modem”, “PC connection”, “COM port” or “Tethering as a modem” – and not “Charging” or “File transfer”. A GSM modem or USB stick is ready some seconds after it has been plugged in.</source>
        <translation>Branchez le câble et déverrouillez le téléphone. S’il demande à quoi sert la connexion, choisissez le mode modem ou données – les téléphones l’appellent «&#x202f;Modem&#x202f;», «&#x202f;Connexion PC&#x202f;», «&#x202f;Port COM&#x202f;» ou «&#x202f;Partage de connexion&#x202f;» – et non «&#x202f;Recharge&#x202f;» ou «&#x202f;Transfert de fichiers&#x202f;». Un modem GSM ou une clé USB est utilisable quelques secondes après le branchement.</translation>
    </message>
    <message>
        <source>With Bluetooth</source>
        <translation>Par Bluetooth</translation>
    </message>
    <message>
        <source>Pair the phone in your desktop’s Bluetooth settings, then bind a serial port to it in a terminal, with the phone’s own address in place of the one shown:</source>
        <translation>Associez le téléphone dans les réglages Bluetooth de votre système, puis attribuez-lui un port série dans un terminal, en remplaçant l’adresse indiquée par celle du téléphone&#x202f;:</translation>
    </message>
    <message>
        <source>Command that binds a serial port</source>
        <translation>Commande qui attribue un port série</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Sur cet ordinateur</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuer</translation>
    </message>
    <message>
        <source>Command to copy</source>
        <translation>Commande à copier</translation>
    </message>
</context>
<context>
    <name>Contact_Desk</name>
    <message>
        <source>%1 added.</source>
        <translation>Ajouts&#x202f;: %1.</translation>
    </message>
    <message>
        <source>%1 added, 1 row not used.</source>
        <translation>Ajouts&#x202f;: %1, 1 ligne non utilisée.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %n rows not used.</source>
        <translation>
            <numerusform>Ajouts&#x202f;: %1, %n ligne non utilisée.</numerusform>
            <numerusform>Ajouts&#x202f;: %1, %n lignes non utilisées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Enregistré dans %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be written.</source>
        <translation>Impossible d’écrire le fichier %1.</translation>
    </message>
    <message>
        <source>1 row was not sent: %1.</source>
        <translation>1 ligne n’a pas été envoyée&#x202f;: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows were not sent. Of the first, %1.</source>
        <translation>
            <numerusform>%n ligne n’a pas été envoyée. Pour la première&#x202f;: %1.</numerusform>
            <numerusform>%n lignes n’ont pas été envoyées. Pour la première&#x202f;: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nobody is on the list yet.</source>
        <translation>La liste est encore vide.</translation>
    </message>
    <message>
        <source>Add contacts from a spreadsheet, CSV or vCard file ...</source>
        <translation>Ajouter des contacts d’un tableur, d’un CSV ou d’une vCard...</translation>
    </message>
</context>
<context>
    <name>Contact_Source</name>
    <message>
        <source>The clipboard</source>
        <translation>Le presse-papiers</translation>
    </message>
</context>
<context>
    <name>Contacts_Wnd</name>
    <message>
        <source>Another file ...</source>
        <translation>Autre fichier...</translation>
    </message>
    <message>
        <source>Choose another file</source>
        <translation>Choisir un autre fichier</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Retour</translation>
    </message>
    <message>
        <source>Back to the columns and the country</source>
        <translation>Revenir aux colonnes et au pays</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuer</translation>
    </message>
    <message>
        <source>Look at what is made of each row</source>
        <translation>Voir ce que devient chaque ligne</translation>
    </message>
    <message>
        <source>&amp;Add to list</source>
        <translation>&amp;Ajouter à la liste</translation>
    </message>
    <message>
        <source>Add the rows that can be used to the list, with the message as it stands</source>
        <translation>Ajouter à la liste les lignes utilisables, avec le message tel qu’il est</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Import contacts</source>
        <translation>Importer des contacts</translation>
    </message>
    <message>
        <source>Check before sending</source>
        <translation>Vérifier avant l’envoi</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>la mémoire ne suffit pas</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>Copy_Action</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
</context>
<context>
    <name>CorvaneAppDelegate</name>
    <message>
        <source>No Mobile Phone Device is selected.</source>
        <translation>Aucun téléphone mobile n’est sélectionné.</translation>
    </message>
    <message>
        <source>Click here to start Mobile Phone Connection Wizard.</source>
        <translation>Cliquez ici pour ouvrir l’assistant de connexion du téléphone.</translation>
    </message>
    <message>
        <source>Find the phones and modems attached to this computer and pick one</source>
        <translation>Rechercher les téléphones et modems reliés à cet ordinateur et en choisir un</translation>
    </message>
    <message>
        <source>Connection &amp;Wizard ...</source>
        <translation>Assistant de conne&amp;xion...</translation>
    </message>
    <message>
        <source>Choose the normal type of message, and select those whose message was not taken. Nothing is sent: keep only those, and then press Send</source>
        <translation>Choisir le type de message normal et sélectionner les destinataires dont le message n’a pas été accepté. Rien n’est envoyé&#x202f;: gardez ceux-là seulement, puis cliquez sur «&#x202f;Envoyer&#x202f;»</translation>
    </message>
    <message>
        <source>Choose normal text messages</source>
        <translation>Choisir le type SMS normal</translation>
    </message>
    <message>
        <source>Recipients</source>
        <translation>Destinataires</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Numéro de téléphone</translation>
    </message>
    <message>
        <source>for example +447700900123</source>
        <translation>par exemple +33639980123</translation>
    </message>
    <message>
        <source>Add the number with the message as it stands</source>
        <translation>Ajouter le numéro avec le message tel qu’il est</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>A&amp;jouter</translation>
    </message>
    <message>
        <source>Add the numbers of a text or RTF file, one in each line, with the message as it stands. A file can also be dropped on the list, and numbers can be pasted into it</source>
        <translation>Ajouter les numéros d’un fichier texte ou RTF, un par ligne, avec le message tel qu’il est. On peut aussi déposer un fichier sur la liste ou y coller des numéros</translation>
    </message>
    <message>
        <source>&amp;Import ...</source>
        <translation>&amp;Importer...</translation>
    </message>
    <message>
        <source>Add the contacts of a spreadsheet, a CSV or a vCard file, with their names and other fields, after a look at what is made of them</source>
        <translation>Ajouter les contacts d’une feuille de calcul, d’un fichier CSV ou vCard, avec leurs noms et autres champs, après avoir vu ce que devient chaque ligne</translation>
    </message>
    <message>
        <source>Contacts ...</source>
        <translation>Contacts...</translation>
    </message>
    <message>
        <source>Total Numbers : 0</source>
        <translation>Nombre de numéros&#x202f;: 0</translation>
    </message>
    <message>
        <source>Write the numbers of the list into a text file</source>
        <translation>Enregistrer les numéros de la liste dans un fichier texte</translation>
    </message>
    <message>
        <source>Ex&amp;port ...</source>
        <translation>Ex&amp;porter...</translation>
    </message>
    <message>
        <source>Clear S&amp;elected</source>
        <translation>E&amp;ffacer la sélection</translation>
    </message>
    <message>
        <source>&amp;Clear All</source>
        <translation>&amp;Tout effacer</translation>
    </message>
    <message>
        <source>Select the recipients whose message was refused or not tried. One that may have been sent, was written or got no answer is not among them, since it may have arrived</source>
        <translation>Sélectionner les destinataires dont le message a été refusé ou n’a pas été tenté. Ceux dont le message est peut-être envoyé, transmis ou sans réponse n’en font pas partie, car il a pu arriver</translation>
    </message>
    <message>
        <source>Select those not taken</source>
        <translation>Sélectionner les non acceptés</translation>
    </message>
    <message>
        <source>Remove all recipients from the list but those whose message was refused or not tried. Nothing is sent</source>
        <translation>Retirer de la liste tous les destinataires, sauf ceux dont le message a été refusé ou n’a pas été tenté. Rien n’est envoyé</translation>
    </message>
    <message>
        <source>Keep only those</source>
        <translation>Garder ceux-là</translation>
    </message>
    <message>
        <source>Look at what became of each message of the last job that was confirmed, and export that</source>
        <translation>Voir ce qu’est devenu chaque message du dernier envoi suivi, et l’exporter</translation>
    </message>
    <message>
        <source>Receipt ...</source>
        <translation>Rapport...</translation>
    </message>
    <message>
        <source>Excluded numbers</source>
        <translation>Numéros exclus</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>&amp;Message for the numbers you add:</source>
        <translation>&amp;Message pour les numéros ajoutés&#x202f;:</translation>
    </message>
    <message>
        <source>Put a field into the message. Everybody gets it with the value of their own</source>
        <translation>Insérer un champ dans le message. Chacun le reçoit avec sa propre valeur</translation>
    </message>
    <message>
        <source>Insert field</source>
        <translation>Insérer un champ</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>Caractères&#x202f;: 0</translation>
    </message>
    <message>
        <source>Write one new message for the recipients selected in the list</source>
        <translation>Écrire un nouveau message pour les destinataires sélectionnés dans la liste</translation>
    </message>
    <message>
        <source>Edit the
messages of
selected items</source>
        <translation>Modifier les
messages de
la sélection</translation>
    </message>
    <message>
        <source>Copy the message above to all, the selected or the blank items of the list</source>
        <translation>Copier le message ci-dessus vers toutes les lignes de la liste, la sélection ou les lignes sans message</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Envoi</translation>
    </message>
    <message>
        <source>Message &amp;type:</source>
        <translation>T&amp;ype de message&#x202f;:</translation>
    </message>
    <message>
        <source>Message type</source>
        <translation>Type de message</translation>
    </message>
    <message>
        <source>A notification shows at once on the handset and is not stored</source>
        <translation>Une notification s’affiche aussitôt sur le mobile et n’y est pas conservée</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Notification</translation>
    </message>
    <message>
        <source>Text message</source>
        <translation>SMS</translation>
    </message>
    <message>
        <source>Needed for every text with characters that Help does not list, such as € ê ő ö ù or emoji: they arrive as others without it. 70 characters fit one message instead of 160</source>
        <translation>Nécessaire pour tout texte contenant des caractères qui ne figurent pas dans l’aide, comme € ê ő ö ù ou les émojis&#x202f;: sans cela, ils arrivent transformés. Un message contient alors 70 caractères au lieu de 160</translation>
    </message>
    <message>
        <source>Send as &amp;Unicode</source>
        <translation>Envoyer en &amp;Unicode</translation>
    </message>
    <message>
        <source>Refuse a number that the list has already, and send to each number once</source>
        <translation>Refuser un numéro déjà présent dans la liste et n’envoyer qu’une fois à chaque numéro</translation>
    </message>
    <message>
        <source>S&amp;kip duplicate numbers</source>
        <translation>I&amp;gnorer les doublons</translation>
    </message>
    <message>
        <source>Refuse the numbers of the applied exclusion lists, and never send to them</source>
        <translation>Refuser les numéros des listes d’exclusion appliquées et ne jamais leur envoyer de message</translation>
    </message>
    <message>
        <source>Heed the exc&amp;lusion lists</source>
        <translation>Respecter &amp;les listes d’exclusion</translation>
    </message>
    <message>
        <source>Keep lists of numbers that are not to be sent to</source>
        <translation>Tenir des listes de numéros auxquels rien ne doit être envoyé</translation>
    </message>
    <message>
        <source>Exclusi&amp;on Lists ...</source>
        <translation>Listes d’exclusi&amp;on...</translation>
    </message>
    <message>
        <source>Keep a record of every message that was handed to the phone</source>
        <translation>Garder une trace de chaque message transmis au téléphone</translation>
    </message>
    <message>
        <source>Sa&amp;ve sent items</source>
        <translation>Garder les messages en&amp;voyés</translation>
    </message>
    <message>
        <source>Look at the records of messages handed to the phone</source>
        <translation>Voir les messages transmis au téléphone</translation>
    </message>
    <message>
        <source>Sent Items ...</source>
        <translation>Messages envoyés...</translation>
    </message>
    <message>
        <source>Keep the text of every message that was handed to the phone, once</source>
        <translation>Garder une fois le texte de chaque message transmis au téléphone</translation>
    </message>
    <message>
        <source>Save messa&amp;ges as templates</source>
        <translation>Garder les messages comme mo&amp;dèles</translation>
    </message>
    <message>
        <source>Keep texts that are used again, and put one into the message</source>
        <translation>Conserver les textes qui resservent et en placer un dans le message</translation>
    </message>
    <message>
        <source>Templates ...</source>
        <translation>Modèles...</translation>
    </message>
    <message>
        <source>Send each message as soon as the phone or network has answered for the one before it, in the alphabet that its text needs, and never a second time unasked. A record of the job is kept until it is finished</source>
        <translation>Envoyer chaque message dès que le téléphone ou le réseau a répondu pour le précédent, dans l’alphabet que demande son texte, et jamais une deuxième fois sans votre accord. Une trace de l’envoi est gardée jusqu’à sa fin</translation>
    </message>
    <message>
        <source>Con&amp;firm each message</source>
        <translation>Suivre c&amp;haque message</translation>
    </message>
    <message>
        <source>Look at the receipts that were kept</source>
        <translation>Voir les rapports d’envoi conservés</translation>
    </message>
    <message>
        <source>Receipts ...</source>
        <translation>Rapports...</translation>
    </message>
    <message>
        <source>Ask the network to report what was delivered, and wait up to a minute for that at the end. Some networks charge for reports, and some never send any</source>
        <translation>Demander au réseau de signaler ce qui a été remis, et attendre ces accusés jusqu’à une minute à la fin. Certains réseaux les facturent, d’autres n’en envoient jamais</translation>
    </message>
    <message>
        <source>Ask for delivery reports</source>
        <translation>Demander un accusé de réception</translation>
    </message>
    <message>
        <source>Keep the record of a finished job, with every number and message, instead of removing it</source>
        <translation>Conserver la trace d’un envoi terminé, avec tous les numéros et messages, au lieu de la supprimer</translation>
    </message>
    <message>
        <source>Keep the receipt</source>
        <translation>Garder le rapport d’envoi</translation>
    </message>
    <message>
        <source>Have these boxes ticked as they are now, whenever the program starts</source>
        <translation>Retrouver ces cases cochées comme maintenant à chaque démarrage du programme</translation>
    </message>
    <message>
        <source>Remember these choices</source>
        <translation>Retenir ces choix</translation>
    </message>
    <message>
        <source>Pause after each batch of messages</source>
        <translation>Faire une pause après chaque série de messages</translation>
    </message>
    <message>
        <source>&amp;Delay: after</source>
        <translation>Pau&amp;se&#x202f;: après</translation>
    </message>
    <message>
        <source>Messages before each pause</source>
        <translation>Messages avant chaque pause</translation>
    </message>
    <message>
        <source>How many messages are sent before each pause</source>
        <translation>Nombre de messages envoyés avant chaque pause</translation>
    </message>
    <message numerus="yes">
        <source>messages wait</source>
        <translation>
            <numerusform>message, attendre</numerusform>
            <numerusform>messages, attendre</numerusform>
        </translation>
    </message>
    <message>
        <source>Length of each pause</source>
        <translation>Durée de chaque pause</translation>
    </message>
    <message>
        <source>How long each pause lasts</source>
        <translation>Combien de temps dure chaque pause</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Choose light or dark colours, or those with the highest contrast</source>
        <translation>Choisir des couleurs claires ou sombres, ou le contraste le plus élevé</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Empty the list, the fields and the options</source>
        <translation>Vider la liste, les champs et les options</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Réinitialiser</translation>
    </message>
    <message>
        <source>What serves better for long lists, and how to hand this one over</source>
        <translation>Ce qui convient mieux aux longues listes, et comment déposer celle-ci dans un dossier</translation>
    </message>
    <message>
        <source>Other ways ...</source>
        <translation>Autres moyens...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Look at each message as it will be sent, what is left out and why. Nothing is sent</source>
        <translation>Voir chaque message tel qu’il sera envoyé, ce qui est écarté et pourquoi. Rien n’est envoyé</translation>
    </message>
    <message>
        <source>Check before sending ...</source>
        <translation>Vérifier avant l’envoi...</translation>
    </message>
    <message>
        <source>Send each recipient&apos;s message</source>
        <translation>Envoyer à chaque destinataire son message</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Envoyer</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Excluded number</source>
        <translation>Numéro exclu</translation>
    </message>
    <message>
        <source>1 recipient removed.</source>
        <translation>1 destinataire retiré.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients removed.</source>
        <translation>
            <numerusform>%n destinataire retiré.</numerusform>
            <numerusform>%n destinataires retirés.</numerusform>
        </translation>
    </message>
    <message>
        <source>List, fields and options were reset.</source>
        <translation>Liste, champs et options ont été réinitialisés.</translation>
    </message>
    <message>
        <source>Everything that can be done here, with its keys</source>
        <translation>Tout ce qui peut être fait ici, avec les raccourcis</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>What the program does, in short, and how to use it</source>
        <translation>En bref, ce que fait le programme et comment l’utiliser</translation>
    </message>
    <message>
        <source>End the program, after a question</source>
        <translation>Quitter le programme, après confirmation</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Numéro&#x202f;:</translation>
    </message>
</context>
<context>
    <name>Delayed_Delivery</name>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n seconde</numerusform>
            <numerusform>%n secondes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n minute</numerusform>
            <numerusform>%n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>%n heure</numerusform>
            <numerusform>%n heures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Demo_Phone</name>
    <message>
        <source>The virtual phone could not be started: %1: %2</source>
        <translation>Le téléphone virtuel n’a pas pu être lancé&#x202f;: %1&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>Desktop_Help</name>
    <message>
        <source>Messages are being sent</source>
        <translation>Envoi de messages en cours</translation>
    </message>
    <message>
        <source>Sending waits</source>
        <translation>L’envoi est en attente</translation>
    </message>
    <message>
        <source>Sending has ended</source>
        <translation>L’envoi est terminé</translation>
    </message>
</context>
<context>
    <name>Doctor_Wnd</name>
    <message>
        <source>Why does my phone not show?</source>
        <translation>Téléphone introuvable&#x202f;?</translation>
    </message>
    <message>
        <source>This looks at the ports of this computer and asks the devices on them. Nothing is sent, and no PIN is tried.</source>
        <translation>Les ports de cet ordinateur sont examinés, puis les appareils qui y sont branchés sont interrogés. Rien n’est envoyé et aucun code PIN n’est essayé.</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Ce qui a été trouvé</translation>
    </message>
    <message>
        <source>Looking</source>
        <translation>Examen en cours</translation>
    </message>
    <message>
        <source>No phone at hand?</source>
        <translation>Pas de téléphone sous la main&#x202f;?</translation>
    </message>
    <message>
        <source>Try the program with a virtual phone: nothing is really sent.</source>
        <translation>Essayez le programme avec un téléphone virtuel&#x202f;: rien n’est réellement envoyé.</translation>
    </message>
    <message>
        <source>Use the &amp;virtual phone</source>
        <translation>Utiliser le téléphone &amp;virtuel</translation>
    </message>
    <message>
        <source>Look &amp;again</source>
        <translation>Chercher à &amp;nouveau</translation>
    </message>
    <message>
        <source>Copy &amp;report</source>
        <translation>&amp;Copier le rapport</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Looking at what is connected ...</source>
        <translation>Examen des appareils connectés...</translation>
    </message>
    <message>
        <source>Asking %1 ...</source>
        <translation>Interrogation de %1...</translation>
    </message>
    <message>
        <source>A device is there that could send.</source>
        <translation>Un appareil capable d’envoyer est présent.</translation>
    </message>
    <message>
        <source>No device could send. What helps stands above.</source>
        <translation>Aucun appareil ne peut envoyer. Les remèdes sont indiqués ci-dessus.</translation>
    </message>
    <message>
        <source>The report is copied. It holds no numbers and no texts of messages.</source>
        <translation>Le rapport est copié. Il ne contient ni numéros ni textes de messages.</translation>
    </message>
</context>
<context>
    <name>Exclusion_Trouble</name>
    <message>
        <source>The file that says which exclusion lists are applied
can not be read: no number is excluded.</source>
        <translation>Le fichier qui indique les listes d’exclusion appliquées
est illisible&#x202f;: aucun numéro n’est exclu.</translation>
    </message>
    <message>
        <source>The exclusion list %1
can not be used: its numbers are not excluded.</source>
        <translation>La liste d’exclusion %1
est inutilisable&#x202f;: ses numéros ne sont pas exclus.</translation>
    </message>
    <message>
        <source>The exclusion lists %1
can not be used: their numbers are not excluded.</source>
        <translation>Les listes d’exclusion %1
sont inutilisables&#x202f;: leurs numéros ne sont pas exclus.</translation>
    </message>
    <message>
        <source>The exclusion lists %1 and %2 more
can not be used: their numbers are not excluded.</source>
        <translation>Les listes d’exclusion %1 (et encore %2)
sont inutilisables&#x202f;: leurs numéros ne sont pas exclus.</translation>
    </message>
</context>
<context>
    <name>Exclusion_Wizard</name>
    <message>
        <source>Exclusion List Wizard</source>
        <translation>Assistant des listes d’exclusion</translation>
    </message>
    <message>
        <source>Available exclusion lists</source>
        <translation>Listes d’exclusion disponibles</translation>
    </message>
    <message>
        <source>Apply the selected lists</source>
        <translation>Appliquer les listes sélectionnées</translation>
    </message>
    <message>
        <source>Exclude the numbers of the selected lists when sending</source>
        <translation>Exclure les numéros des listes sélectionnées lors de l’envoi</translation>
    </message>
    <message>
        <source>&amp;Apply  ›</source>
        <translation>&amp;Appliquer  ›</translation>
    </message>
    <message>
        <source>Apply all lists</source>
        <translation>Appliquer toutes les listes</translation>
    </message>
    <message>
        <source>Exclude the numbers of all lists when sending</source>
        <translation>Exclure les numéros de toutes les listes lors de l’envoi</translation>
    </message>
    <message>
        <source>Apply a&amp;ll  »</source>
        <translation>Tout app&amp;liquer  »</translation>
    </message>
    <message>
        <source>Remove the selected applied lists</source>
        <translation>Retirer les listes appliquées sélectionnées</translation>
    </message>
    <message>
        <source>Do not exclude the numbers of the selected lists any more</source>
        <translation>Ne plus exclure les numéros des listes sélectionnées</translation>
    </message>
    <message>
        <source>‹  &amp;Remove</source>
        <translation>‹  &amp;Retirer</translation>
    </message>
    <message>
        <source>Remove all applied lists</source>
        <translation>Retirer toutes les listes appliquées</translation>
    </message>
    <message>
        <source>Do not exclude the numbers of any list any more</source>
        <translation>Ne plus exclure les numéros d’aucune liste</translation>
    </message>
    <message>
        <source>«  Re&amp;move all</source>
        <translation>«  &amp;Tout retirer</translation>
    </message>
    <message>
        <source>Lists to exclude when sending SMS</source>
        <translation>Listes à exclure lors de l’envoi</translation>
    </message>
    <message>
        <source>Make a new exclusion list</source>
        <translation>Créer une liste d’exclusion</translation>
    </message>
    <message>
        <source>Add &amp;New ...</source>
        <translation>&amp;Nouvelle...</translation>
    </message>
    <message>
        <source>Edit the numbers of the selected list</source>
        <translation>Modifier les numéros de la liste sélectionnée</translation>
    </message>
    <message>
        <source>&amp;Update ...</source>
        <translation>&amp;Modifier...</translation>
    </message>
    <message>
        <source>Delete the selected lists and their numbers</source>
        <translation>Supprimer les listes sélectionnées et leurs numéros</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Keep the lists on the right as those to exclude when sending</source>
        <translation>Enregistrer les listes de droite comme celles à exclure lors de l’envoi</translation>
    </message>
    <message>
        <source>&amp;Save Applied</source>
        <translation>Enre&amp;gistrer</translation>
    </message>
    <message>
        <source>Exclusion list name</source>
        <translation>Nom de la liste d’exclusion</translation>
    </message>
    <message>
        <source>A name for the list, at most 50 characters</source>
        <translation>Nom de la liste, 50 caractères au plus</translation>
    </message>
    <message>
        <source>Administration team</source>
        <translation>Équipe administrative</translation>
    </message>
    <message>
        <source>File of numbers</source>
        <translation>Fichier de numéros</translation>
    </message>
    <message>
        <source>A text or rich-text file with one number a line</source>
        <translation>Un fichier texte ou RTF avec un numéro par ligne</translation>
    </message>
    <message>
        <source>Pick the file</source>
        <translation>Choisir le fichier</translation>
    </message>
    <message>
        <source>Bro&amp;wse ...</source>
        <translation>Par&amp;courir...</translation>
    </message>
    <message>
        <source>Add the numbers of the file to the list</source>
        <translation>Ajouter à la liste les numéros du fichier</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>C&amp;harger</translation>
    </message>
    <message>
        <source>or</source>
        <translation>ou</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Numéro de téléphone</translation>
    </message>
    <message>
        <source>A phone number, at most 20 characters</source>
        <translation>Un numéro de téléphone, 20 caractères au plus</translation>
    </message>
    <message>
        <source>Add the number to the list</source>
        <translation>Ajouter le numéro à la liste</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Aj&amp;outer</translation>
    </message>
    <message>
        <source>Numbers of the list</source>
        <translation>Numéros de la liste</translation>
    </message>
    <message>
        <source>Total Numbers : 0</source>
        <translation>Nombre de numéros&#x202f;: 0</translation>
    </message>
    <message>
        <source>Edit the selected number</source>
        <translation>Modifier le numéro sélectionné</translation>
    </message>
    <message>
        <source>Remove the selected numbers from the list</source>
        <translation>Retirer de la liste les numéros sélectionnés</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>Close; applied lists that were not saved are forgotten</source>
        <translation>Fermer&#x202f;; les listes appliquées non enregistrées sont oubliées</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Ann&amp;uler</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>Sui&amp;vant</translation>
    </message>
    <message>
        <source>Save the list</source>
        <translation>Enregistrer la liste</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>T&amp;erminer</translation>
    </message>
    <message>
        <source>Close; a list that was not finished is forgotten</source>
        <translation>Fermer&#x202f;; une liste non terminée est oubliée</translation>
    </message>
    <message>
        <source>Exclusion &amp;list name:</source>
        <translation>Nom de la &amp;liste d’exclusion&#x202f;:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Exemple&#x202f;:</translation>
    </message>
    <message>
        <source>Numbers from a f&amp;ile:</source>
        <translation>Numéros d’un f&amp;ichier&#x202f;:</translation>
    </message>
    <message>
        <source>One &amp;number:</source>
        <translation>Un &amp;numéro&#x202f;:</translation>
    </message>
</context>
<context>
    <name>Export_Option</name>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>In which format do you want to export the list?</source>
        <translation>Dans quel format voulez-vous exporter la liste&#x202f;?</translation>
    </message>
    <message>
        <source>&amp;Text file</source>
        <translation>Fichier &amp;texte</translation>
    </message>
    <message>
        <source>Plain text, with a line between the entries</source>
        <translation>Texte brut, avec une ligne entre les éléments</translation>
    </message>
    <message>
        <source>&amp;HTML page</source>
        <translation>Page &amp;HTML</translation>
    </message>
    <message>
        <source>A table that a web browser shows</source>
        <translation>Un tableau lisible dans un navigateur web</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
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
        <translation>%1 et encore %2</translation>
    </message>
    <message>
        <source>Save with fields ...</source>
        <translation>Enregistrer avec champs...</translation>
    </message>
    <message>
        <source>Write the list with its messages and fields into a table that can be opened again</source>
        <translation>Enregistrer la liste, ses messages et ses champs dans un tableau que l’on peut rouvrir</translation>
    </message>
    <message>
        <source>Fields of the list</source>
        <translation>Champs de la liste</translation>
    </message>
    <message>
        <source>Fields: %1</source>
        <translation>Champs&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>File_Panels</name>
    <message>
        <source>
%1 is there already.

Do you want to replace it?</source>
        <translation>
%1 existe déjà.

Voulez-vous remplacer ce fichier&#x202f;?</translation>
    </message>
</context>
<context>
    <name>Fill_Msg_In_List</name>
    <message>
        <source>Fill message into list</source>
        <translation>Copier le message dans la liste</translation>
    </message>
    <message>
        <source>Copy the message in the composer to:</source>
        <translation>Copier le message rédigé vers&#x202f;:</translation>
    </message>
    <message>
        <source>Every number gets the message in the composer</source>
        <translation>Tous les numéros reçoivent le message rédigé</translation>
    </message>
    <message>
        <source>&amp;All numbers in the list</source>
        <translation>&amp;Tous les numéros de la liste</translation>
    </message>
    <message>
        <source>The numbers selected in the list get the message; the others keep theirs</source>
        <translation>Les numéros sélectionnés dans la liste reçoivent le message&#x202f;; les autres gardent le leur</translation>
    </message>
    <message>
        <source>The &amp;selected numbers</source>
        <translation>Les numéros &amp;sélectionnés</translation>
    </message>
    <message>
        <source>The numbers whose message is empty get the message; the others keep theirs</source>
        <translation>Les numéros dont le message est vide reçoivent le message&#x202f;; les autres gardent le leur</translation>
    </message>
    <message>
        <source>The numbers without a &amp;message</source>
        <translation>Les numéros sans &amp;message</translation>
    </message>
    <message>
        <source>Leave the list as it is</source>
        <translation>Laisser la liste telle quelle</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Copy the message</source>
        <translation>Copier le message</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>C&amp;opier</translation>
    </message>
</context>
<context>
    <name>Find_Strip</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Show all rows again (Escape)</source>
        <translation>Afficher de nouveau toutes les lignes (Échap)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>Only rows with all these words are shown. The list, and what is sent, stay as they are</source>
        <translation>Seules les lignes contenant tous ces mots sont affichées. La liste et ce qui est envoyé ne changent pas</translation>
    </message>
</context>
<context>
    <name>Finding_Row</name>
    <message>
        <source>Command to copy</source>
        <translation>Commande à copier</translation>
    </message>
</context>
<context>
    <name>Fixed_Text</name>
    <message>
        <source>This number, or the service centre&apos;s, does not exist.</source>
        <extracomment>Texts::Causes::No_Such_Number</extracomment>
        <translation>Ce numéro, ou celui du centre de messagerie, n’existe pas.</translation>
    </message>
    <message>
        <source>The recipient&apos;s number is invalid.</source>
        <translation>Le numéro du destinataire n’est pas valable.</translation>
    </message>
    <message>
        <source>Messages to this recipient are barred.</source>
        <translation>Les messages vers ce destinataire sont bloqués.</translation>
    </message>
    <message>
        <source>The recipient&apos;s network is out of order.</source>
        <translation>Le réseau du destinataire est en panne.</translation>
    </message>
    <message>
        <source>The operator has barred sending.</source>
        <translation>L’opérateur a bloqué l’envoi.</translation>
    </message>
    <message>
        <source>Sending is barred on this SIM card.</source>
        <translation>L’envoi est bloqué sur cette carte SIM.</translation>
    </message>
    <message>
        <source>The service centre does not know this SIM card.</source>
        <translation>Le centre de messagerie ne connaît pas cette carte SIM.</translation>
    </message>
    <message>
        <source>The network does not grant this service.</source>
        <translation>Le réseau n’autorise pas ce service.</translation>
    </message>
    <message>
        <source>The network does not know this SIM card.</source>
        <translation>Le réseau ne connaît pas cette carte SIM.</translation>
    </message>
    <message>
        <source>Text messages are not part of the contract.</source>
        <translation>Les SMS ne sont pas compris dans l’abonnement.</translation>
    </message>
    <message>
        <source>The network does not offer text messages.</source>
        <translation>Le réseau ne propose pas les SMS.</translation>
    </message>
    <message>
        <source>There is no contract with the service centre.</source>
        <translation>Aucun abonnement auprès du centre de messagerie.</translation>
    </message>
    <message>
        <source>The network has failed.</source>
        <translation>Le réseau a eu une défaillance.</translation>
    </message>
    <message>
        <source>The network rejects this message.</source>
        <translation>Le réseau rejette ce message.</translation>
    </message>
    <message>
        <source>The network is congested.</source>
        <translation>Le réseau est saturé.</translation>
    </message>
    <message>
        <source>The network is out of order.</source>
        <translation>Le réseau est en panne.</translation>
    </message>
    <message>
        <source>The network has a temporary failure.</source>
        <translation>Le réseau a une défaillance passagère.</translation>
    </message>
    <message>
        <source>The service centre is congested.</source>
        <translation>Le centre de messagerie est saturé.</translation>
    </message>
    <message>
        <source>The network has no room for messages now.</source>
        <translation>Le réseau n’a plus de place pour des messages.</translation>
    </message>
    <message>
        <source>The network has lost track of this message.</source>
        <translation>Le réseau a perdu la trace de ce message.</translation>
    </message>
    <message>
        <source>There is trouble between two networks.</source>
        <translation>La liaison entre deux réseaux est perturbée.</translation>
    </message>
    <message>
        <source>The service centre is busy.</source>
        <translation>Le centre de messagerie est occupé.</translation>
    </message>
    <message>
        <source>The service centre has failed.</source>
        <translation>Le centre de messagerie a eu une défaillance.</translation>
    </message>
    <message>
        <source>The service centre already has this message.</source>
        <translation>Le centre de messagerie a déjà ce message.</translation>
    </message>
    <message>
        <source>The network gives a reason of its own.</source>
        <translation>Le réseau donne une raison qui lui est propre.</translation>
    </message>
    <message>
        <source>The network gives no reason.</source>
        <translation>Le réseau ne donne pas de raison.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number is not known.</source>
        <translation>Le numéro du centre de messagerie est inconnu.</translation>
    </message>
    <message>
        <source>There is no network.</source>
        <translation>Il n’y a pas de réseau.</translation>
    </message>
    <message>
        <source>The network allows nothing but emergency calls.</source>
        <translation>Le réseau n’autorise que les appels d’urgence.</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>Le réseau n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>There was no radio connection.</source>
        <translation>Il n’y avait pas de liaison radio.</translation>
    </message>
    <message>
        <source>The radio connection was lost.</source>
        <translation>La liaison radio a été perdue.</translation>
    </message>
    <message>
        <source>The network found the message malformed.</source>
        <translation>Le réseau a jugé le message mal formé.</translation>
    </message>
    <message>
        <source>The network does not accept this kind of message.</source>
        <translation>Le réseau n’accepte pas ce type de message.</translation>
    </message>
    <message>
        <source>The network does not accept this alphabet.</source>
        <translation>Le réseau n’accepte pas cet alphabet.</translation>
    </message>
    <message>
        <source>The network accepts no message that shows at once.</source>
        <translation>Le réseau n’accepte pas de message à affichage immédiat.</translation>
    </message>
    <message>
        <source>The network does not accept this command.</source>
        <translation>Le réseau n’accepte pas cette commande.</translation>
    </message>
    <message>
        <source>The network does not keep messages for so long.</source>
        <translation>Le réseau ne garde pas les messages aussi longtemps.</translation>
    </message>
    <message>
        <source>The modem rejects the message or its number.</source>
        <translation>Le modem rejette le message ou son numéro.</translation>
    </message>
    <message>
        <source>There is no SIM card.</source>
        <translation>Il n’y a pas de carte SIM.</translation>
    </message>
    <message>
        <source>This is the wrong SIM card.</source>
        <translation>Ce n’est pas la bonne carte SIM.</translation>
    </message>
    <message>
        <source>The SIM card has failed.</source>
        <translation>La carte SIM a eu une défaillance.</translation>
    </message>
    <message>
        <source>The SIM card is busy.</source>
        <translation>La carte SIM est occupée.</translation>
    </message>
    <message>
        <source>The SIM card has no room for messages.</source>
        <translation>La carte SIM n’a plus de place pour des messages.</translation>
    </message>
    <message>
        <source>The SIM card cannot store messages.</source>
        <translation>La carte SIM ne peut pas enregistrer de messages.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN.</source>
        <translation>La carte SIM demande son code PIN.</translation>
    </message>
    <message>
        <source>The phone wants the PIN that ties it to its SIM card.</source>
        <translation>Le téléphone demande le code PIN qui le lie à sa carte SIM.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN2.</source>
        <translation>La carte SIM demande son code PIN2.</translation>
    </message>
    <message>
        <source>The SIM card wants its PUK.</source>
        <translation>La carte SIM demande son code PUK.</translation>
    </message>
    <message>
        <source>The SIM card wants its PUK2.</source>
        <translation>La carte SIM demande son code PUK2.</translation>
    </message>
    <message>
        <source>The modem was busy with another message.</source>
        <translation>Le modem était occupé par un autre message.</translation>
    </message>
    <message>
        <source>The phone has no room for messages.</source>
        <translation>Le téléphone n’a plus de place pour des messages.</translation>
    </message>
    <message>
        <source>The phone has failed.</source>
        <translation>Le téléphone a eu une défaillance.</translation>
    </message>
    <message>
        <source>Another program has reserved the phone&apos;s messages.</source>
        <translation>Un autre programme a réservé les messages du téléphone.</translation>
    </message>
    <message>
        <source>The phone does not allow sending now.</source>
        <translation>Le téléphone n’autorise pas l’envoi pour le moment.</translation>
    </message>
    <message>
        <source>The phone does not support this.</source>
        <translation>Le téléphone ne prend pas cela en charge.</translation>
    </message>
    <message>
        <source>The phone&apos;s memory has failed.</source>
        <translation>La mémoire du téléphone a eu une défaillance.</translation>
    </message>
    <message>
        <source>The phone has no such place in its memory.</source>
        <translation>Le téléphone n’a pas cet emplacement en mémoire.</translation>
    </message>
    <message>
        <source>The phone expects no acknowledgement.</source>
        <translation>Le téléphone n’attend pas d’acquittement.</translation>
    </message>
    <message>
        <source>The modem is still starting.</source>
        <translation>Le modem est encore en train de démarrer.</translation>
    </message>
    <message>
        <source>The modem is busy.</source>
        <translation>Le modem est occupé.</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Erreur inconnue</translation>
    </message>
    <message>
        <source>The modem gives a reason of its own.</source>
        <translation>Le modem donne une raison qui lui est propre.</translation>
    </message>
    <message>
        <source>The modem gives a reason that is not known here.</source>
        <translation>Le modem donne une raison inconnue ici.</translation>
    </message>
    <message>
        <source>The modem refuses and gives no reason.</source>
        <translation>Le modem refuse sans donner de raison.</translation>
    </message>
    <message>
        <source>The device is gone. Waiting until it is back.</source>
        <translation>L’appareil n’est plus là. Attente de son retour.</translation>
    </message>
    <message>
        <source>The device does not answer. Waiting until it does.</source>
        <translation>L’appareil ne répond pas. Attente d’une réponse.</translation>
    </message>
    <message>
        <source>Still waiting for the network.</source>
        <translation>Toujours en attente du réseau.</translation>
    </message>
    <message>
        <source>Waiting for delivery reports.</source>
        <translation>En attente des accusés de réception.</translation>
    </message>
    <message>
        <source>The device was not ready in time.</source>
        <translation>L’appareil n’a pas été prêt à temps.</translation>
    </message>
    <message>
        <source>The job&apos;s journal cannot be written, so nothing more is sent</source>
        <translation>Le journal de l’envoi ne peut pas être écrit&#x202f;; plus rien n’est envoyé</translation>
    </message>
    <message>
        <source>Several messages in a row ended alike, so nothing more is sent</source>
        <translation>Plusieurs messages de suite ont fini de la même façon&#x202f;; plus rien n’est envoyé</translation>
    </message>
    <message>
        <source>Not every message was sent. The list says what became of each.</source>
        <translation>Tous les messages n’ont pas été envoyés. La liste indique le sort de chacun.</translation>
    </message>
    <message>
        <source>The device takes no text messages.</source>
        <translation>L’appareil n’accepte pas de SMS.</translation>
    </message>
    <message>
        <source>Those not taken may pass as normal text messages.</source>
        <translation>Ceux qui n’ont pas été acceptés passeront peut-être en SMS normaux.</translation>
    </message>
    <message>
        <source>The device gave no prompt.</source>
        <translation>L’appareil n’a pas envoyé d’invite.</translation>
    </message>
    <message>
        <source>The device gave no result in time.</source>
        <translation>L’appareil n’a pas donné de résultat à temps.</translation>
    </message>
    <message>
        <source>The device said OK but gave no reference.</source>
        <translation>L’appareil a répondu OK, mais sans référence.</translation>
    </message>
    <message>
        <source>The device&apos;s result may be that of an earlier message.</source>
        <translation>Le résultat de l’appareil concerne peut-être un message précédent.</translation>
    </message>
    <message>
        <source>The device was gone before its result.</source>
        <translation>L’appareil a disparu avant le résultat.</translation>
    </message>
    <message>
        <source>The program ended before the result.</source>
        <translation>Le programme s’est arrêté avant le résultat.</translation>
    </message>
    <message>
        <source>Somebody has counted it as sent.</source>
        <translation>Quelqu’un l’a compté comme envoyé.</translation>
    </message>
    <message>
        <source>The number cannot be dialled.</source>
        <translation>Ce numéro ne peut pas être composé.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>%1 is connected.</source>
        <translation>%1 est connecté.</translation>
    </message>
    <message>
        <source>No phone or modem was found on USB or Bluetooth.</source>
        <translation>Aucun téléphone ni modem n’a été trouvé en USB ou en Bluetooth.</translation>
    </message>
    <message>
        <source>Switch it on, connect it, and on a phone choose the modem or data mode. It takes some seconds until it appears.</source>
        <translation>Allumez-le, connectez-le et, sur un téléphone, choisissez le mode modem ou données. Il met quelques secondes à apparaître.</translation>
    </message>
    <message>
        <source>There is no device at %1.</source>
        <translation>Il n’y a pas d’appareil sur %1.</translation>
    </message>
    <message>
        <source>Plug it in again, or look under which name it appears now.</source>
        <translation>Rebranchez-le ou cherchez sous quel nom il apparaît maintenant.</translation>
    </message>
    <message>
        <source>%1 is connected as a network card. In this mode it has no port for messages.</source>
        <translation>%1 est connecté comme carte réseau. Dans ce mode, il n’a pas de port pour les messages.</translation>
    </message>
    <message>
        <source>Switch it to its modem mode with the maker&apos;s own program or page, or use another modem.</source>
        <translation>Passez-le en mode modem avec le programme ou la page du fabricant, ou utilisez un autre modem.</translation>
    </message>
    <message>
        <source>%1 is connected as a disc. In this mode it has no port for messages.</source>
        <translation>%1 est connecté comme disque. Dans ce mode, il n’a pas de port pour les messages.</translation>
    </message>
    <message>
        <source>Install the program that switches such sticks, then unplug the stick and plug it in again:</source>
        <translation>Installez le programme qui fait changer de mode ces clés, puis débranchez la clé et rebranchez-la&#x202f;:</translation>
    </message>
    <message>
        <source>%1 is for positions (GPS), not for messages.</source>
        <translation>%1 sert à la localisation (GPS), pas aux messages.</translation>
    </message>
    <message>
        <source>%1 is for the maker&apos;s diagnostics, not for messages.</source>
        <translation>%1 sert au diagnostic du fabricant, pas aux messages.</translation>
    </message>
    <message>
        <source>%1 is for sound, not for messages.</source>
        <translation>%1 sert au son, pas aux messages.</translation>
    </message>
    <message>
        <source>This system&apos;s settings say that %1 is no modem&apos;s port.</source>
        <translation>Selon les réglages de ce système, %1 n’est pas le port d’un modem.</translation>
    </message>
    <message>
        <source>Use another port of the same device.</source>
        <translation>Utilisez un autre port du même appareil.</translation>
    </message>
    <message>
        <source>Your account may not open %1.</source>
        <translation>Votre compte n’a pas le droit d’ouvrir %1.</translation>
    </message>
    <message>
        <source>Members of the group %1 may. Join it with this command, then log out and in again:</source>
        <translation>Les membres du groupe %1 en ont le droit. Rejoignez-le avec cette commande, puis fermez votre session et rouvrez-la&#x202f;:</translation>
    </message>
    <message>
        <source>Only the system&apos;s administrator can allow it.</source>
        <translation>Seul l’administrateur du système peut l’accorder.</translation>
    </message>
    <message>
        <source>%1 is in use by %2 (process %3).</source>
        <translation>%1 est utilisé par %2 (processus %3).</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 est utilisé par un autre programme.</translation>
    </message>
    <message>
        <source>End that program, and look again.</source>
        <translation>Quittez ce programme, puis cherchez à nouveau.</translation>
    </message>
    <message>
        <source>%1 is in use by ModemManager, the system&apos;s modem service.</source>
        <translation>%1 est utilisé par ModemManager, le service de modems du système.</translation>
    </message>
    <message>
        <source>Stop the service until the next start of the computer:</source>
        <translation>Arrêtez ce service jusqu’au prochain démarrage de l’ordinateur&#x202f;:</translation>
    </message>
    <message>
        <source>%1 cannot be opened (%2).</source>
        <translation>%1 ne peut pas être ouvert (%2).</translation>
    </message>
    <message>
        <source>Unplug the device, wait ten seconds and plug it in again.</source>
        <translation>Débranchez l’appareil, attendez dix secondes et rebranchez-le.</translation>
    </message>
    <message>
        <source>%1 answers.</source>
        <translation>%1 répond.</translation>
    </message>
    <message>
        <source>%1 does not answer as a modem.</source>
        <translation>%1 ne répond pas comme un modem.</translation>
    </message>
    <message>
        <source>Unplug the device, wait ten seconds and plug it in again. On a phone, choose the modem or data mode.</source>
        <translation>Débranchez l’appareil, attendez dix secondes et rebranchez-le. Sur un téléphone, choisissez le mode modem ou données.</translation>
    </message>
    <message>
        <source>Nothing answers on %1, a serial socket of the computer itself.</source>
        <translation>Rien ne répond sur %1, un port série de l’ordinateur.</translation>
    </message>
    <message>
        <source>If a modem is connected there, switch it on and look at its cable.</source>
        <translation>Si un modem y est branché, allumez-le et vérifiez son câble.</translation>
    </message>
    <message>
        <source>The SIM card is ready.</source>
        <translation>La carte SIM est prête.</translation>
    </message>
    <message>
        <source>The device does not say whether its SIM card is ready.</source>
        <translation>L’appareil n’indique pas si sa carte SIM est prête.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN. Tries left: %1.</source>
        <translation>La carte SIM demande son code PIN. Essais restants&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Put the card into a phone and enter the PIN there, or turn its question for the PIN off. No PIN is tried here.</source>
        <translation>Mettez la carte dans un téléphone et saisissez-y le code PIN, ou désactivez la demande de code. Aucun code PIN n’est essayé ici.</translation>
    </message>
    <message>
        <source>The SIM card is blocked and wants its PUK.</source>
        <translation>La carte SIM est bloquée et demande son code PUK.</translation>
    </message>
    <message>
        <source>The SIM card is blocked and wants its PUK. Tries left: %1.</source>
        <translation>La carte SIM est bloquée et demande son code PUK. Essais restants&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Put the card into a phone and enter the PUK there. The operator gives it to you.</source>
        <translation>Mettez la carte dans un téléphone et saisissez-y le code PUK. L’opérateur vous le donne.</translation>
    </message>
    <message>
        <source>The device wants a code that ties it to a card or an operator.</source>
        <translation>L’appareil demande un code qui le lie à une carte ou à un opérateur.</translation>
    </message>
    <message>
        <source>Use the card it was sold with, or ask the seller to unlock it.</source>
        <translation>Utilisez la carte vendue avec lui ou demandez au vendeur de le déverrouiller.</translation>
    </message>
    <message>
        <source>There is no SIM card in the device.</source>
        <translation>Il n’y a pas de carte SIM dans l’appareil.</translation>
    </message>
    <message>
        <source>Put a card in, the right way round, and plug the device in again.</source>
        <translation>Insérez une carte dans le bon sens et rebranchez l’appareil.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read.</source>
        <translation>La carte SIM est illisible.</translation>
    </message>
    <message>
        <source>Take the card out, wipe its contacts and put it in again, or try it in a phone.</source>
        <translation>Retirez la carte, essuyez ses contacts et remettez-la, ou essayez-la dans un téléphone.</translation>
    </message>
    <message>
        <source>The SIM card is still being read.</source>
        <translation>La carte SIM est encore en cours de lecture.</translation>
    </message>
    <message>
        <source>Wait half a minute and look again. If it stays so, plug the device in again.</source>
        <translation>Attendez une demi-minute et cherchez à nouveau. Si rien ne change, rebranchez l’appareil.</translation>
    </message>
    <message>
        <source>The device is registered with its network.</source>
        <translation>L’appareil est inscrit sur son réseau.</translation>
    </message>
    <message>
        <source>The device is registered with a foreign network (roaming).</source>
        <translation>L’appareil est inscrit sur un réseau étranger (itinérance).</translation>
    </message>
    <message>
        <source>Messages can be sent; ask your operator what they cost abroad.</source>
        <translation>L’envoi est possible&#x202f;; demandez à votre opérateur le prix des messages à l’étranger.</translation>
    </message>
    <message>
        <source>The network lets the device make emergency calls alone.</source>
        <translation>Le réseau ne permet à l’appareil que les appels d’urgence.</translation>
    </message>
    <message>
        <source>The network does not accept the SIM card.</source>
        <translation>Le réseau n’accepte pas la carte SIM.</translation>
    </message>
    <message>
        <source>Ask the operator whether the card is active, and try it in a phone.</source>
        <translation>Demandez à l’opérateur si la carte est active et essayez-la dans un téléphone.</translation>
    </message>
    <message>
        <source>The device is looking for a network.</source>
        <translation>L’appareil cherche un réseau.</translation>
    </message>
    <message>
        <source>Wait a minute, or move the device or its aerial to a window, and look again.</source>
        <translation>Attendez une minute, ou placez l’appareil ou son antenne près d’une fenêtre, et cherchez à nouveau.</translation>
    </message>
    <message>
        <source>The device is not registered with a network and looks for none.</source>
        <translation>L’appareil n’est inscrit sur aucun réseau et n’en cherche pas.</translation>
    </message>
    <message>
        <source>Switch its radio on (no flight mode), or plug the device in again.</source>
        <translation>Activez sa radio (pas de mode avion) ou rebranchez l’appareil.</translation>
    </message>
    <message>
        <source>The device does not say whether it has a network.</source>
        <translation>L’appareil n’indique pas s’il a un réseau.</translation>
    </message>
    <message>
        <source>Send one message to yourself before you send to others.</source>
        <translation>Envoyez-vous un message avant d’écrire aux autres.</translation>
    </message>
    <message>
        <source>The signal is strong enough (%1 dBm).</source>
        <translation>Le signal est assez fort (%1 dBm).</translation>
    </message>
    <message>
        <source>The signal is weak (%1 dBm).</source>
        <translation>Le signal est faible (%1 dBm).</translation>
    </message>
    <message>
        <source>Move the device or its aerial to a window.</source>
        <translation>Placez l’appareil ou son antenne près d’une fenêtre.</translation>
    </message>
    <message>
        <source>The device does not say how strong the signal is.</source>
        <translation>L’appareil n’indique pas la force du signal.</translation>
    </message>
    <message>
        <source>A service centre for messages is stored.</source>
        <translation>Un centre de messagerie est enregistré.</translation>
    </message>
    <message>
        <source>No service centre for messages is stored.</source>
        <translation>Aucun centre de messagerie n’est enregistré.</translation>
    </message>
    <message>
        <source>What is stored as the service centre for messages is no number.</source>
        <translation>Ce qui est enregistré comme centre de messagerie n’est pas un numéro.</translation>
    </message>
    <message>
        <source>Ask the operator for its number, and give it as a custom number in the wizard.</source>
        <translation>Demandez son numéro à l’opérateur et indiquez-le comme numéro personnalisé dans l’assistant.</translation>
    </message>
    <message>
        <source>The device does not say which service centre for messages it has.</source>
        <translation>L’appareil n’indique pas quel centre de messagerie il utilise.</translation>
    </message>
    <message>
        <source>The device takes messages to be sent.</source>
        <translation>L’appareil accepte des messages à envoyer.</translation>
    </message>
    <message>
        <source>The device takes no messages to be sent.</source>
        <translation>L’appareil n’accepte pas de messages à envoyer.</translation>
    </message>
    <message>
        <source>Use another port of the device, or another device.</source>
        <translation>Utilisez un autre port de l’appareil, ou un autre appareil.</translation>
    </message>
    <message>
        <source>free</source>
        <translation>libre</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>occupé</translation>
    </message>
    <message>
        <source>no right</source>
        <translation>accès refusé</translation>
    </message>
    <message>
        <source>not for messages</source>
        <translation>pas pour les messages</translation>
    </message>
    <message>
        <source>Why a phone does not show: what was looked at</source>
        <translation>Téléphone introuvable&#x202f;: ce qui a été examiné</translation>
    </message>
    <message>
        <source>(number left out)</source>
        <translation>(numéro omis)</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>non tenté</translation>
    </message>
    <message>
        <source>written</source>
        <translation>transmis</translation>
    </message>
    <message>
        <source>taken by the phone</source>
        <translation>accepté par le téléphone</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>envoyé</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refusé</translation>
    </message>
    <message>
        <source>partly taken</source>
        <translation>accepté en partie</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>sans réponse</translation>
    </message>
    <message>
        <source>may have been sent</source>
        <translation>peut-être envoyé</translation>
    </message>
    <message>
        <source>skipped: excluded</source>
        <translation>ignoré&#x202f;: exclu</translation>
    </message>
    <message>
        <source>skipped: repeated</source>
        <translation>ignoré&#x202f;: en double</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>ignoré</translation>
    </message>
    <message>
        <source>skipped: invalid number</source>
        <translation>ignoré&#x202f;: numéro non valable</translation>
    </message>
    <message>
        <source>skipped: not filled</source>
        <translation>ignoré&#x202f;: champ non rempli</translation>
    </message>
    <message>
        <source>skipped: </source>
        <translation>ignoré&#x202f;: </translation>
    </message>
    <message>
        <source>CME </source>
        <translation>CME </translation>
    </message>
    <message>
        <source>an earlier row has its number</source>
        <translation>une ligne précédente a le même numéro</translation>
    </message>
    <message>
        <source>the list has its number already</source>
        <translation>son numéro est déjà dans la liste</translation>
    </message>
    <message>
        <source>its number is in an exclusion list</source>
        <translation>son numéro est dans une liste d’exclusion</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 ne peut pas être écrit</translation>
    </message>
    <message>
        <source>%1 is not used</source>
        <translation>%1 n’est pas utilisé</translation>
    </message>
    <message>
        <source>it holds an earlier hand-over</source>
        <translation>il contient déjà un dépôt</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Rapport d’envoi</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Envoi</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>Carte SIM</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>d MMMM yyyy, HH:mm</source>
        <translation>d MMMM yyyy, HH:mm</translation>
    </message>
    <message>
        <source>ends with </source>
        <translation>se termine par </translation>
    </message>
    <message>
        <source>ended</source>
        <translation>terminé</translation>
    </message>
    <message>
        <source>not ended</source>
        <translation>non terminé</translation>
    </message>
    <message>
        <source>Recipients</source>
        <translation>Destinataires</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Envoyés</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Refusés</translation>
    </message>
    <message>
        <source>May have been sent</source>
        <translation>Peut-être envoyés</translation>
    </message>
    <message>
        <source>Not tried</source>
        <translation>Non tentés</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Ignorés</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Remis</translation>
    </message>
    <message>
        <source>Still trying</source>
        <translation>Remise en cours</translation>
    </message>
    <message>
        <source>Not delivered</source>
        <translation>Non remis</translation>
    </message>
    <message>
        <source>No report</source>
        <translation>Sans accusé</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Raison</translation>
    </message>
    <message>
        <source>Parts sent</source>
        <translation>Envoyées</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Parties</translation>
    </message>
    <message>
        <source>Delivery</source>
        <translation>Remise</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>no report</source>
        <translation>sans accusé</translation>
    </message>
    <message>
        <source>Some of its parts were sent.</source>
        <translation>Certaines de ses parties ont été envoyées.</translation>
    </message>
    <message>
        <source>The list of the job can no longer be read.</source>
        <translation>La liste de l’envoi n’est plus lisible.</translation>
    </message>
    <message>
        <source>a placeholder is empty</source>
        <translation>un champ est vide</translation>
    </message>
    <message>
        <source>a placeholder is unknown</source>
        <translation>un champ est inconnu</translation>
    </message>
    <message>
        <source>wrong number of columns</source>
        <translation>nombre de colonnes incorrect</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>trop long</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes, or may not be read</source>
        <translation>il dépasse %1 octets ou ne peut pas être lu</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>it is no text: line %1 holds characters that no list has</source>
        <translation>ce n’est pas du texte&#x202f;: la ligne %1 contient des caractères qu’aucune liste ne contient</translation>
    </message>
    <message>
        <source>it is %1, and no list</source>
        <translation>c’est %1, et non une liste</translation>
    </message>
    <message>
        <source>a PDF document</source>
        <translation>un document PDF</translation>
    </message>
    <message>
        <source>a program</source>
        <translation>un programme</translation>
    </message>
    <message>
        <source>a compressed file</source>
        <translation>un fichier compressé</translation>
    </message>
    <message>
        <source>a picture</source>
        <translation>une image</translation>
    </message>
    <message>
        <source>a web page</source>
        <translation>une page web</translation>
    </message>
    <message>
        <source>an XML document</source>
        <translation>un document XML</translation>
    </message>
    <message>
        <source>an archive</source>
        <translation>une archive</translation>
    </message>
    <message>
        <source>it is rich text; its numbers can be imported under a name that ends in .rtf</source>
        <translation>c’est du texte RTF&#x202f;; ses numéros peuvent être importés si son nom se termine par .rtf</translation>
    </message>
    <message>
        <source>it is a spreadsheet or an archive, and no list of numbers alone</source>
        <translation>c’est une feuille de calcul ou une archive, et non une simple liste de numéros</translation>
    </message>
    <message>
        <source>it holds contacts, and not numbers alone</source>
        <translation>il contient des contacts, et non de simples numéros</translation>
    </message>
    <message>
        <source>it is a spreadsheet in an old format; saved as .xlsx, .ods or CSV it can be read</source>
        <translation>c’est une feuille de calcul d’un ancien format&#x202f;; enregistrée en .xlsx, .ods ou CSV, elle est lisible</translation>
    </message>
    <message>
        <source>it is encrypted; saved without a password it can be read</source>
        <translation>il est chiffré&#x202f;; enregistré sans mot de passe, il est lisible</translation>
    </message>
    <message>
        <source>it holds more than can be read</source>
        <translation>il contient plus que ce qui peut être lu</translation>
    </message>
    <message>
        <source>row %1 has more than %2 fields</source>
        <translation>la ligne %1 a plus de %2 champs</translation>
    </message>
    <message>
        <source>its first row holds the number %1, and no names of columns</source>
        <translation>sa première ligne contient le numéro %1, et non les noms des colonnes</translation>
    </message>
    <message>
        <source>the encoding &quot;%1&quot; is not known</source>
        <translation>l’encodage «&#x202f;%1&#x202f;» est inconnu</translation>
    </message>
    <message>
        <source>it is not encoded in %1</source>
        <translation>il n’est pas encodé en %1</translation>
    </message>
    <message>
        <source>it mixes UTF-8 with another encoding; line %1 is not UTF-8</source>
        <translation>il mélange UTF-8 et un autre encodage&#x202f;; la ligne %1 n’est pas en UTF-8</translation>
    </message>
    <message>
        <source>the quote that opens in line %1 is never closed</source>
        <translation>le guillemet ouvert à la ligne %1 n’est jamais fermé</translation>
    </message>
    <message>
        <source>it has no sheets</source>
        <translation>il n’a pas de feuilles</translation>
    </message>
    <message>
        <source>it has no sheet &quot;%1&quot;; its sheets are %2</source>
        <translation>il n’a pas de feuille «&#x202f;%1&#x202f;»&#x202f;; ses feuilles sont %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et encore %1</translation>
    </message>
    <message>
        <source>it is damaged, or only a part of it</source>
        <translation>il est endommagé ou incomplet</translation>
    </message>
    <message>
        <source>the contact that begins in line %1 has no end</source>
        <translation>le contact qui commence à la ligne %1 n’a pas de fin</translation>
    </message>
    <message>
        <source>%1 fields where %2 have names</source>
        <translation>%1 champs alors que %2 ont un nom</translation>
    </message>
    <message>
        <source>text follows a closing quote</source>
        <translation>du texte suit un guillemet fermant</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 est vide</translation>
    </message>
    <message>
        <source>%1 is unknown</source>
        <translation>%1 est inconnu</translation>
    </message>
    <message>
        <source>its text is empty</source>
        <translation>son texte est vide</translation>
    </message>
    <message>
        <source>its text is too long</source>
        <translation>son texte est trop long</translation>
    </message>
    <message>
        <source>national, taken as one of %1</source>
        <translation>lu comme numéro national (%1)</translation>
    </message>
    <message>
        <source>the code of %1 was put in front</source>
        <translation>indicatif ajouté (%1)</translation>
    </message>
    <message>
        <source>its first 0 may have been lost; taken as one of %1</source>
        <translation>son premier 0 s’est peut-être perdu&#x202f;; lu comme numéro national (%1)</translation>
    </message>
    <message>
        <source>its + may have been lost; taken as an international one of %1</source>
        <translation>son + s’est peut-être perdu&#x202f;; lu comme numéro international (%1)</translation>
    </message>
    <message>
        <source>there is no number</source>
        <translation>il n’y a pas de numéro</translation>
    </message>
    <message>
        <source>a spreadsheet has rounded it; its digits are lost</source>
        <translation>un tableur l’a arrondi&#x202f;; ses chiffres sont perdus</translation>
    </message>
    <message>
        <source>it is no number</source>
        <translation>ce n’est pas un numéro</translation>
    </message>
    <message>
        <source>these are several numbers</source>
        <translation>il y a plusieurs numéros</translation>
    </message>
    <message>
        <source>it has too few digits</source>
        <translation>il a trop peu de chiffres</translation>
    </message>
    <message>
        <source>it has too many digits</source>
        <translation>il a trop de chiffres</translation>
    </message>
    <message>
        <source>no country has its code</source>
        <translation>aucun pays n’a cet indicatif</translation>
    </message>
    <message>
        <source>Please enter a valid phone number.</source>
        <translation>Veuillez saisir un numéro de téléphone valable.</translation>
    </message>
    <message>
        <source>Entered number already exists.</source>
        <translation>Ce numéro existe déjà.</translation>
    </message>
    <message>
        <source>Entered number is in exclusion list.</source>
        <translation>Ce numéro figure dans une liste d’exclusion.</translation>
    </message>
    <message>
        <source>Please select only one record to update.</source>
        <translation>Veuillez ne sélectionner qu’un seul élément à modifier.</translation>
    </message>
    <message>
        <source>Please enter some text message.</source>
        <translation>Veuillez saisir un message.</translation>
    </message>
    <message>
        <source>Error in file accessing.</source>
        <translation>Erreur d’accès au fichier.</translation>
    </message>
    <message>
        <source>
This option will clear the entire list contents. Are you sure you want to continue clearing the entire list?</source>
        <translation>
Toute la liste va être effacée. Voulez-vous vraiment continuer&#x202f;?</translation>
    </message>
    <message>
        <source>Total Numbers : </source>
        <translation>Nombre de numéros&#x202f;: </translation>
    </message>
    <message>
        <source>Can not access Corvane Data file.</source>
        <translation>Impossible d’accéder au fichier de données de Corvane.</translation>
    </message>
    <message>
        <source>
Do you really want to exit from &apos;Corvane&apos;?</source>
        <translation>
Voulez-vous vraiment quitter «&#x202f;Corvane&#x202f;»&#x202f;?</translation>
    </message>
    <message>
        <source>No Mobile Phone Device is selected.</source>
        <translation>Aucun téléphone mobile n’est sélectionné.</translation>
    </message>
    <message>
        <source>No Mobile Phone Device is selected. Click here to start Mobile Phone Connection Wizard.</source>
        <translation>Aucun téléphone mobile n’est sélectionné. Cliquez ici pour ouvrir l’assistant de connexion du téléphone.</translation>
    </message>
    <message>
        <source>Apply this<byte value="xd"/>
message to<byte value="xd"/>
list items</source>
        <translation>Copier ce<byte value="xd"/>
message dans<byte value="xd"/>
la liste</translation>
    </message>
    <message>
        <source>Phone numbers-Messages list is empty.</source>
        <translation>La liste des numéros et messages est vide.</translation>
    </message>
    <message>
        <source>Please select at least one record from the phone numbers-messages list to continue.</source>
        <translation>Veuillez sélectionner au moins un élément de la liste des numéros et messages pour continuer.</translation>
    </message>
    <message>
        <source>Either file is corrupted or selected file contains invalid characters.

OR

Recipient number is skipped because of using &apos;Skip Dulicate Numbers&apos; or &apos;Exclusion List&apos; option.</source>
        <translation>Le fichier est endommagé ou contient des caractères non valables.

OU

Le numéro du destinataire a été ignoré en raison de l’option «&#x202f;Ignorer les doublons&#x202f;» ou «&#x202f;Respecter les listes d’exclusion&#x202f;».</translation>
    </message>
    <message>
        <source>The last action has ended early because of an unexpected error. Please look what has been done, and try again.</source>
        <translation>La dernière action s’est interrompue à cause d’une erreur imprévue. Vérifiez ce qui a été fait, puis réessayez.</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to all numbers in the list.

Do you want to continue?</source>
        <translation>Le message rédigé va être copié vers tous les numéros de la liste.

Voulez-vous continuer&#x202f;?</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to the selected numbers in the list. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>Le message rédigé va être copié vers les numéros sélectionnés dans la liste. Les messages des autres numéros ne changent pas.

Voulez-vous continuer&#x202f;?</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to the blank list items. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>Le message rédigé va être copié vers les lignes sans message de la liste. Les messages des autres numéros ne changent pas.

Voulez-vous continuer&#x202f;?</translation>
    </message>
    <message>
        <source>There is no blank message in the phone numbers-messages list.</source>
        <translation>Aucune ligne de la liste n’est sans message.</translation>
    </message>
    <message>
        <source>This action will copy the above message to the selected numbers in the list. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>Le message ci-dessus va être copié vers les numéros sélectionnés dans la liste. Les messages des autres numéros ne changent pas.

Voulez-vous continuer&#x202f;?</translation>
    </message>
    <message>
        <source>Total Selected Numbers : </source>
        <translation>Nombre de numéros sélectionnés&#x202f;: </translation>
    </message>
    <message>
        <source>Either Mobile Device is not connected properly or No Mobile Phone Device is selected.

Please use Mobile Phone Connection Wizard for finding device or establishing connection.</source>
        <translation>L’appareil n’est pas correctement connecté, ou aucun téléphone mobile n’est sélectionné.

Utilisez l’assistant de connexion du téléphone pour trouver l’appareil ou établir la connexion.</translation>
    </message>
    <message>
        <source>Please insert entered number to the list.</source>
        <translation>Veuillez ajouter à la liste le numéro saisi.</translation>
    </message>
    <message>
        <source>No values have been selected in &apos;Delayed Delivery Options&apos;.</source>
        <translation>Aucune valeur n’a été choisie dans les options de pause.</translation>
    </message>
    <message>
        <source>
You have composed no text message yet for any of the contacts in the entire list. This action will send blank message to all the contacts in list.

Are you sure you want to continue?</source>
        <translation>
Vous n’avez encore rédigé de message pour aucun des contacts de la liste. Un message vide va être envoyé à tous les contacts de la liste.

Voulez-vous vraiment continuer&#x202f;?</translation>
    </message>
    <message>
        <source>
Selected device is not working properly. Please use Mobile Phone Connection Wizard for finding device or establishing connection.</source>
        <translation>
L’appareil sélectionné ne fonctionne pas correctement. Utilisez l’assistant de connexion du téléphone pour trouver l’appareil ou établir la connexion.</translation>
    </message>
    <message>
        <source>Selected device is not working properly.Could not initialize modem.
</source>
        <translation>L’appareil sélectionné ne fonctionne pas correctement. Impossible d’initialiser le modem.
</translation>
    </message>
    <message>
        <source>Device Connection Error!</source>
        <translation>Erreur de connexion avec l’appareil&#x202f;!</translation>
    </message>
    <message>
        <source>Message Sending Process Completed.</source>
        <translation>L’envoi des messages est terminé.</translation>
    </message>
    <message>
        <source>The messages could not be sent, because the computer is too busy to start another task. Please close other programs and try again.</source>
        <translation>Les messages n’ont pas pu être envoyés, car l’ordinateur est trop occupé pour lancer une autre tâche. Fermez d’autres programmes et réessayez.</translation>
    </message>
    <message>
        <source>Sending has ended early because of an unexpected error. The sent items show which messages were sent.</source>
        <translation>L’envoi s’est interrompu à cause d’une erreur imprévue. La liste des messages envoyés indique ce qui est parti.</translation>
    </message>
    <message>
        <source>Initializing mobile phone device to send sms ...</source>
        <translation>Préparation du téléphone pour l’envoi...</translation>
    </message>
    <message>
        <source>
Terminating the current process will stop sending text messages to the remaining contact. Are you sure you want to continue?</source>
        <translation>
Si vous arrêtez maintenant, les contacts restants ne recevront pas de message. Voulez-vous vraiment continuer&#x202f;?</translation>
    </message>
    <message>
        <source> is Excluded.</source>
        <translation> est exclu.</translation>
    </message>
    <message>
        <source> is Skipped.</source>
        <translation> est ignoré.</translation>
    </message>
    <message>
        <source> Message</source>
        <translation> en cours</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Hour %2 Minute %3 Seconds.</source>
        <translation>Pause de %1 h %2 min %3 s.</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Minute %2 Seconds.</source>
        <translation>Pause de %1 min %2 s.</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Seconds.</source>
        <translation>Pause de %1 s.</translation>
    </message>
    <message>
        <source>%1 Characters</source>
        <translation>Caractères&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1 Characters (Each Message will now consume %2)</source>
        <translation>Caractères&#x202f;: %1 (chaque message compte maintenant pour %2)</translation>
    </message>
    <message>
        <source>Your current message is exceeding the typical SMS Length of 160 Characters. Messages of more than 160 characters will be delivered in multiple messages of 160 characters to each recipient.

Either shorten the length of your existing text message or click OK to continue anyway by delivering each message in multiple parts of 160 characters.</source>
        <translation>Votre message dépasse la longueur habituelle d’un SMS, 160 caractères. Un message de plus de 160 caractères est remis à chaque destinataire en plusieurs messages de 160 caractères.

Raccourcissez votre message, ou cliquez sur OK pour continuer et envoyer chaque message en plusieurs parties de 160 caractères.</translation>
    </message>
    <message>
        <source>Your current message is exceeding the typical Unicode SMS (non-English text SMS) Length of 70 Characters. Messages of more than 70 characters will be delivered in multiple messages of 70 characters to each recipient.

Either shorten the length of your existing text message or click OK to continue anyway by delivering each message in multiple parts of 70 characters.</source>
        <translation>Votre message dépasse la longueur habituelle d’un SMS Unicode (texte dans un autre alphabet), 70 caractères. Un message de plus de 70 caractères est remis à chaque destinataire en plusieurs messages de 70 caractères.

Raccourcissez votre message, ou cliquez sur OK pour continuer et envoyer chaque message en plusieurs parties de 70 caractères.</translation>
    </message>
    <message>
        <source>Total Items : </source>
        <translation>Nombre d’éléments&#x202f;: </translation>
    </message>
    <message>
        <source>Sent items list is empty.</source>
        <translation>La liste des messages envoyés est vide.</translation>
    </message>
    <message>
        <source>Please select at least one record from the sent items list to continue.</source>
        <translation>Veuillez sélectionner au moins un message envoyé pour continuer.</translation>
    </message>
    <message>
        <source>Templates list is empty.</source>
        <translation>La liste des modèles est vide.</translation>
    </message>
    <message>
        <source>Templates items list is empty.</source>
        <translation>La liste des modèles est vide.</translation>
    </message>
    <message>
        <source>Templates number list is empty.</source>
        <translation>La liste des modèles est vide.</translation>
    </message>
    <message>
        <source>Please select at least one record from the templates list to continue.</source>
        <translation>Veuillez sélectionner au moins un modèle pour continuer.</translation>
    </message>
    <message>
        <source>Add Templates</source>
        <translation>Ajouter un modèle</translation>
    </message>
    <message>
        <source>Update Templates</source>
        <translation>Modifier un modèle</translation>
    </message>
    <message>
        <source>Number	: %1<byte value="xd"/>
<byte value="xd"/>
Message	: %2<byte value="xd"/>
<byte value="xd"/>
Date:	 %3</source>
        <translation>Numéro	: %1<byte value="xd"/>
<byte value="xd"/>
Message	: %2<byte value="xd"/>
<byte value="xd"/>
Date&#x202f;:	 %3</translation>
    </message>
    <message>
        <source>Please type template message.</source>
        <translation>Veuillez saisir le message du modèle.</translation>
    </message>
    <message>
        <source>Entered template already exists.</source>
        <translation>Ce modèle existe déjà.</translation>
    </message>
    <message>
        <source>Maximum characters limit is 1600.<byte value="xd"/>
<byte value="xd"/>
Press &apos;Yes to continue to composer window and it will show first 1600 characters of your message otherwise press &apos;No&apos;&apos;</source>
        <translation>La longueur maximale est de 1600 caractères.<byte value="xd"/>
<byte value="xd"/>
Cliquez sur «&#x202f;Oui&#x202f;» pour revenir à la rédaction, où seront affichés les 1600 premiers caractères de votre message, sinon sur «&#x202f;Non&#x202f;»</translation>
    </message>
    <message>
        <source>Exclusion List Wizard allows you to maintain the Lists of contacts or Groups, which you may need to exclude time to time when sending messages.

For Example, if you have lists of contacts of Marketing, Administration, R &amp; D and Customer Care Team members and you want to send messages to all the teams &apos;Except&apos; Administration team, you can apply exclusion rules to Administration team members contacts list.</source>
        <translation>L’assistant des listes d’exclusion vous permet de gérer les listes de contacts ou de groupes que vous voulez parfois écarter de vos envois.

Par exemple, si vous avez des listes de contacts pour les équipes Marketing, Administration, Recherche et Service client et que vous voulez écrire à toutes les équipes sauf à l’Administration, appliquez l’exclusion à la liste de contacts de cette équipe.</translation>
    </message>
    <message>
        <source>

Give a friendly name to your Exclusion list so that you can identify it easily.</source>
        <translation>

Donnez à votre liste d’exclusion un nom parlant, afin de la reconnaître facilement.</translation>
    </message>
    <message>
        <source>Currently using exclusion list : </source>
        <translation>Liste d’exclusion en cours&#x202f;: </translation>
    </message>
    <message>
        <source>Please enter exclusion list name.</source>
        <translation>Veuillez saisir le nom de la liste d’exclusion.</translation>
    </message>
    <message>
        <source>Please enter a valid name.</source>
        <translation>Veuillez saisir un nom valable.</translation>
    </message>
    <message>
        <source>Please enter the another name.</source>
        <translation>Veuillez saisir un autre nom.</translation>
    </message>
    <message>
        <source>Entered exclusion list name already exists.</source>
        <translation>Une liste d’exclusion de ce nom existe déjà.</translation>
    </message>
    <message>
        <source>Exclusion number list is empty.</source>
        <translation>La liste des numéros exclus est vide.</translation>
    </message>
    <message>
        <source>Please select a valid file.</source>
        <translation>Veuillez choisir un fichier valable.</translation>
    </message>
    <message>
        <source>Please select at least one record from the exclusion number list to continue.</source>
        <translation>Veuillez sélectionner au moins un numéro exclu pour continuer.</translation>
    </message>
    <message>
        <source>Available list is empty.</source>
        <translation>Il n’y a pas de liste disponible.</translation>
    </message>
    <message>
        <source>Please select a record from the available list to continue.</source>
        <translation>Veuillez sélectionner une liste disponible pour continuer.</translation>
    </message>
    <message>
        <source>Selected list is already in use.</source>
        <translation>La liste sélectionnée est déjà utilisée.</translation>
    </message>
    <message>
        <source>All available lists are already in use.</source>
        <translation>Toutes les listes disponibles sont déjà utilisées.</translation>
    </message>
    <message>
        <source>Exclude when sending SMS list is empty.</source>
        <translation>Il n’y a pas de liste à exclure lors de l’envoi.</translation>
    </message>
    <message>
        <source>Please select a record from Exclude when sending SMS list to continue.</source>
        <translation>Veuillez sélectionner une liste à exclure lors de l’envoi pour continuer.</translation>
    </message>
    <message>
        <source>
Are you sure you want to continue</source>
        <translation>
Voulez-vous vraiment continuer&#x202f;?</translation>
    </message>
    <message>
        <source>
Are you sure you want delete the selected available list?</source>
        <translation>
Voulez-vous vraiment supprimer la liste disponible sélectionnée&#x202f;?</translation>
    </message>
    <message>
        <source>
You have made changes in exclusion number list that have not been saved yet.

Do you want to go back to previous screen without saving the exclusion number list?</source>
        <translation>
Vos modifications de la liste des numéros exclus ne sont pas encore enregistrées.

Voulez-vous revenir à l’écran précédent sans les enregistrer&#x202f;?</translation>
    </message>
    <message>
        <source>Device list is empty.</source>
        <translation>La liste des appareils est vide.</translation>
    </message>
    <message>
        <source>Still searching for devices. Please wait ...</source>
        <translation>La recherche d’appareils est encore en cours. Veuillez patienter...</translation>
    </message>
    <message>
        <source>Please select device from list.</source>
        <translation>Veuillez sélectionner un appareil dans la liste.</translation>
    </message>
    <message>
        <source>Please enter a valid Custom SMSC number.</source>
        <translation>Veuillez saisir un numéro SMSC personnalisé valable.</translation>
    </message>
    <message>
        <source>Selected device is not working properly.
Could not open modem.
</source>
        <translation>L’appareil sélectionné ne fonctionne pas correctement.
Impossible d’ouvrir le modem.
</translation>
    </message>
    <message>
        <source>Selected device is not working properly.</source>
        <translation>L’appareil sélectionné ne fonctionne pas correctement.</translation>
    </message>
    <message>
        <source>Default SMSC No. details should not be blanked.</source>
        <translation>Le numéro SMSC par défaut ne doit pas être vide.</translation>
    </message>
    <message>
        <source>Custom SMSC No. details should not be blanked.</source>
        <translation>Le numéro SMSC personnalisé ne doit pas être vide.</translation>
    </message>
    <message>
        <source>Selected device do not provide a modem in the computer or the modem does not support SMS sending command.</source>
        <translation>L’appareil sélectionné n’offre pas de modem à l’ordinateur, ou ce modem ne connaît pas la commande d’envoi de SMS.</translation>
    </message>
    <message>
        <source>passed on, but not confirmed</source>
        <translation>transmis, mais sans confirmation</translation>
    </message>
    <message>
        <source>replaced by a newer message</source>
        <translation>remplacé par un message plus récent</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>terminé</translation>
    </message>
    <message>
        <source>completed, with a code of the network&apos;s own</source>
        <translation>terminé, avec un code propre au réseau</translation>
    </message>
    <message>
        <source>the network is congested</source>
        <translation>le réseau est saturé</translation>
    </message>
    <message>
        <source>the phone is busy</source>
        <translation>le téléphone est occupé</translation>
    </message>
    <message>
        <source>the phone does not answer</source>
        <translation>le téléphone ne répond pas</translation>
    </message>
    <message>
        <source>rejected for now</source>
        <translation>rejeté pour le moment</translation>
    </message>
    <message>
        <source>the connection is too poor</source>
        <translation>la liaison est trop mauvaise</translation>
    </message>
    <message>
        <source>an error in the phone</source>
        <translation>une erreur dans le téléphone</translation>
    </message>
    <message>
        <source>a reason of the network&apos;s own</source>
        <translation>une raison propre au réseau</translation>
    </message>
    <message>
        <source>an error between the networks</source>
        <translation>une erreur entre les réseaux</translation>
    </message>
    <message>
        <source>the phone cannot take it</source>
        <translation>le téléphone ne peut pas le recevoir</translation>
    </message>
    <message>
        <source>the phone refused it</source>
        <translation>le téléphone l’a refusé</translation>
    </message>
    <message>
        <source>the number cannot be reached</source>
        <translation>le numéro est injoignable</translation>
    </message>
    <message>
        <source>the networks do not work together</source>
        <translation>les réseaux ne sont pas compatibles</translation>
    </message>
    <message>
        <source>it was not delivered in time</source>
        <translation>il n’a pas été remis à temps</translation>
    </message>
    <message>
        <source>deleted by the sender</source>
        <translation>supprimé par l’expéditeur</translation>
    </message>
    <message>
        <source>deleted by the service centre</source>
        <translation>supprimé par le centre de messagerie</translation>
    </message>
    <message>
        <source>the service centre has no such message</source>
        <translation>le centre de messagerie n’a pas ce message</translation>
    </message>
    <message>
        <source>rejected</source>
        <translation>rejeté</translation>
    </message>
    <message>
        <source>the network was congested</source>
        <translation>le réseau était saturé</translation>
    </message>
    <message>
        <source>the phone was busy</source>
        <translation>le téléphone était occupé</translation>
    </message>
    <message>
        <source>the phone did not answer</source>
        <translation>le téléphone n’a pas répondu</translation>
    </message>
    <message>
        <source>the connection was too poor</source>
        <translation>la liaison était trop mauvaise</translation>
    </message>
    <message>
        <source>delivered</source>
        <translation>remis</translation>
    </message>
    <message>
        <source>still trying</source>
        <translation>remise en cours</translation>
    </message>
    <message>
        <source>not delivered</source>
        <translation>non remis</translation>
    </message>
    <message>
        <source>%1 speaks QMI or MBIM, and no AT commands.</source>
        <translation>%1 parle QMI ou MBIM, et non les commandes AT.</translation>
    </message>
    <message>
        <source>Use a port of the device that takes AT commands, or another modem.</source>
        <translation>Utilisez un port de l’appareil qui accepte les commandes AT, ou un autre modem.</translation>
    </message>
    <message>
        <source>%1 takes AT commands, but is no serial port.</source>
        <translation>%1 accepte les commandes AT, mais n’est pas un port série.</translation>
    </message>
    <message>
        <source>Use a serial port of the device, or another modem.</source>
        <translation>Utilisez un port série de l’appareil, ou un autre modem.</translation>
    </message>
    <message>
        <source>The signal is strong enough (%1 %).</source>
        <translation>Le signal est assez fort (%1&#xa0;%).</translation>
    </message>
    <message>
        <source>The signal is weak (%1 %).</source>
        <translation>Le signal est faible (%1&#xa0;%).</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>Hand_Over_Wnd</name>
    <message>
        <source>Other ways to send</source>
        <translation>Autres moyens d’envoi</translation>
    </message>
    <message>
        <source>One phone hands over between 4 and 20 messages a minute, and mobile operators may block a SIM card that sends like a machine. For more than about 1000 messages a day, or a job of more than four hours, something else does better.</source>
        <translation>Un téléphone transmet entre 4 et 20 messages par minute, et les opérateurs mobiles peuvent bloquer une carte SIM qui envoie comme une machine. Au-delà d’environ 1000 messages par jour, ou pour un envoi de plus de quatre heures, un autre moyen convient mieux.</translation>
    </message>
    <message>
        <source>Several modems</source>
        <translation>Plusieurs modems</translation>
    </message>
    <message>
        <source>The free program smstools sends the messages of one folder with as many modems as are attached, each with a SIM card of its own. Hand the messages over here, and then move the files in the folder &quot;spool&quot; into the folder &quot;outgoing&quot; of smstools.</source>
        <translation>Le programme libre smstools envoie les messages d’un dossier avec autant de modems qu’il y en a de connectés, chacun avec sa propre carte SIM. Déposez les messages ici, puis déplacez les fichiers du dossier «&#x202f;spool&#x202f;» dans le dossier «&#x202f;outgoing&#x202f;» de smstools.</translation>
    </message>
    <message>
        <source>A provider&apos;s gateway</source>
        <translation>La passerelle d’un prestataire</translation>
    </message>
    <message>
        <source>Companies that send messages for others take a table of numbers and texts, at a price for each message. Many of them can also show a name as the sender, and see to replies and to people who want no more messages. Hand the messages over here, and then give the provider the file &quot;list.csv&quot;.</source>
        <translation>Des entreprises qui envoient des messages pour d’autres acceptent un tableau de numéros et de textes, à un prix par message. Beaucoup peuvent aussi afficher un nom comme expéditeur et s’occuper des réponses et des personnes qui ne veulent plus de messages. Déposez les messages ici, puis donnez au prestataire le fichier «&#x202f;list.csv&#x202f;».</translation>
    </message>
    <message>
        <source>Writes the numbers and texts, just as they would be sent now, into a folder. Nothing is sent.</source>
        <translation>Enregistre les numéros et les textes dans un dossier, tels qu’ils seraient envoyés maintenant. Rien n’est envoyé.</translation>
    </message>
    <message>
        <source>Hand over to a &amp;folder ...</source>
        <translation>&amp;Déposer dans un dossier...</translation>
    </message>
    <message>
        <source>The main window says no more that a list is much for one phone</source>
        <translation>La fenêtre principale ne signale plus qu’une liste est longue pour un seul téléphone</translation>
    </message>
    <message>
        <source>Do not &amp;tell again</source>
        <translation>Ne &amp;plus le signaler</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Not handed over: %1 (%2).</source>
        <translation>Dépôt impossible&#x202f;: %1 (%2).</translation>
    </message>
    <message>
        <source>Stopped. What is in the folder is not whole: remove it before it is used.</source>
        <translation>Arrêté. Le contenu du dossier est incomplet&#x202f;: supprimez-le avant toute utilisation.</translation>
    </message>
    <message>
        <source>Handed over: one message, in %1. Nothing was sent.</source>
        <translation>Déposé&#x202f;: un message, dans %1. Rien n’a été envoyé.</translation>
    </message>
    <message numerus="yes">
        <source>Handed over: %n messages, in %1. Nothing was sent.</source>
        <translation>
            <numerusform>Déposé&#x202f;: %n message, dans %1. Rien n’a été envoyé.</numerusform>
            <numerusform>Déposés&#x202f;: %n messages, dans %1. Rien n’a été envoyé.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recipients left out: %1.</source>
        <translation>Destinataires écartés&#x202f;: %1.</translation>
    </message>
    <message>
        <source>There is nobody in the list.</source>
        <translation>La liste est vide.</translation>
    </message>
    <message>
        <source>Writing ...</source>
        <translation>Écriture...</translation>
    </message>
    <message>
        <source>Writing %1 of %2 ...</source>
        <translation>Écriture de %1 sur %2...</translation>
    </message>
    <message>
        <source>Not handed over: the system gives the program no further thread.</source>
        <translation>Dépôt impossible&#x202f;: le système n’accorde pas de tâche supplémentaire au programme.</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
</context>
<context>
    <name>Handset_Bubble</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>As it arrives by a device that takes whole frames; one that knows text mode alone may change more</source>
        <translation>Tel qu’il arrive avec un appareil qui accepte des trames entières&#x202f;; un appareil limité au mode texte peut en changer davantage</translation>
    </message>
    <message>
        <source>On the handset:</source>
        <translation>Sur le mobile&#x202f;:</translation>
    </message>
    <message>
        <source>What the handset shows</source>
        <translation>Ce que le mobile affiche</translation>
    </message>
    <message>
        <source>Ticks the box of that name: every character arrives, and fewer fit one message</source>
        <translation>Coche la case du même nom&#x202f;: tous les caractères arrivent, et un message en contient moins</translation>
    </message>
    <message>
        <source>Send as Unicode</source>
        <translation>Envoyer en Unicode</translation>
    </message>
    <message>
        <source>Wherever it stands in this message; undo takes it back</source>
        <translation>Partout dans ce message&#x202f;; «&#x202f;Annuler&#x202f;» rétablit le texte</translation>
    </message>
    <message>
        <source>Every marked character that something similar can stand in for; undo takes it back</source>
        <translation>Tous les caractères marqués qui ont un équivalent proche&#x202f;; «&#x202f;Annuler&#x202f;» rétablit le texte</translation>
    </message>
    <message>
        <source>Replace all</source>
        <translation>Tout remplacer</translation>
    </message>
    <message>
        <source>Cyrillic in Latin letters, Greek in the capitals that 7-bit messages have; undo takes it back</source>
        <translation>Le cyrillique en lettres latines, le grec avec les majuscules qu’ont les messages à 7 bits&#x202f;; «&#x202f;Annuler&#x202f;» rétablit le texte</translation>
    </message>
    <message>
        <source>Write in other letters</source>
        <translation>Écrire en d’autres lettres</translation>
    </message>
    <message>
        <source>On the handset of %1</source>
        <translation>Sur le mobile de %1</translation>
    </message>
    <message>
        <source>On the handset</source>
        <translation>Sur le mobile</translation>
    </message>
    <message>
        <source>%1, at once and not kept:</source>
        <translation>%1, aussitôt et sans être conservé&#x202f;:</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1&#x202f;:</translation>
    </message>
    <message>
        <source>%1 gets nothing: %2.</source>
        <translation>%1 ne reçoit rien&#x202f;: %2.</translation>
    </message>
    <message>
        <source>%1 gets nothing: the message is too long.</source>
        <translation>%1 ne reçoit rien&#x202f;: le message est trop long.</translation>
    </message>
    <message>
        <source>%1 &quot;Send as Unicode&quot; in the main window keeps them.</source>
        <translation>%1 «&#x202f;Envoyer en Unicode&#x202f;» dans la fenêtre principale les préserve.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Retirer %1</translation>
    </message>
    <message>
        <source>Replace %1 by a blank</source>
        <translation>Remplacer %1 par un espace</translation>
    </message>
    <message>
        <source>Replace %1 by %2</source>
        <translation>Remplacer %1 par %2</translation>
    </message>
</context>
<context>
    <name>Help_Wnd</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
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
        <translation>&lt;h3&gt;D’une liste de numéros aux messages envoyés&lt;/h3&gt;
&lt;p&gt;&lt;b&gt;1. Choisissez votre téléphone.&lt;/b&gt; Reliez le téléphone ou le modem par USB ou Bluetooth, cliquez sur &lt;i&gt;Assistant de connexion&lt;/i&gt;, puis sur son port dans la liste, vérifiez les informations affichées et cliquez sur &lt;i&gt;Sélectionner cet appareil&lt;/i&gt;.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;2. Rédigez le message.&lt;/b&gt; Le compteur placé dessous indique le nombre de caractères et le nombre de SMS que vous coûtera chaque destinataire. Un SMS contient 160 caractères, ou 70 si vous cochez &lt;i&gt;Envoyer en Unicode&lt;/i&gt;. Un message s’arrête à 1600 caractères. Le type &lt;i&gt;Notification&lt;/i&gt; s’affiche aussitôt sur le mobile et n’y est pas conservé.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Quels caractères arrivent.&lt;/b&gt; Sans &lt;i&gt;Envoyer en Unicode&lt;/i&gt;, ceux-ci arrivent tels que vous les avez écrits&#x202f;: A à Z, a à z, 0 à 9, l’espace, le saut de ligne et &lt;tt&gt;! &quot; # % &amp;amp; &apos; ( ) * + , - . / : ; &amp;lt; = &amp;gt; ?&lt;/tt&gt;. Si votre appareil n’est pas limité au mode texte, c’est aussi le cas de &lt;tt&gt;@ ¤ Γ&lt;/tt&gt; et, dans un texte de 150 caractères au plus (crochets, accolades, ^ ~ \ et | comptent double), de &lt;tt&gt;$ £ ¥ § _ \ | [ ] ^ { } ~ Ä Å Æ Ç É Ñ Ö Ø Ü ß à ä å æ è é ì ñ ò ø ü Δ Θ Ξ Π Σ Φ Ψ Ω&lt;/tt&gt;. Tout autre caractère arrive transformé&#x202f;: € en virgule, ê en j, ö en ¡. Cochez &lt;i&gt;Envoyer en Unicode&lt;/i&gt; si votre texte en contient&#x202f;; il part alors tel que vous l’avez écrit.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;3. Remplissez la liste.&lt;/b&gt; Saisissez un numéro et cliquez sur &lt;i&gt;Ajouter&lt;/i&gt;, ou cliquez sur &lt;i&gt;Importer&lt;/i&gt; et choisissez un fichier texte ou RTF avec un numéro par ligne. Vous pouvez aussi déposer le fichier sur la liste ou y coller des numéros. Le résultat s’affiche sous la liste, et &lt;i&gt;Afficher&lt;/i&gt; montre les lignes non utilisées. Chaque numéro entre dans la liste avec le message tel qu’il est à ce moment. Un + en tête devient 00, les tirets sont omis et un numéro a 20 chiffres au plus. &lt;i&gt;Exporter&lt;/i&gt; enregistre les numéros de la liste dans un fichier texte.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;4. Modifiez la liste.&lt;/b&gt; Double-cliquez sur un destinataire pour changer son numéro ou son message. &lt;i&gt;Modifier les messages de la sélection&lt;/i&gt; écrit un nouveau message pour tous ceux que vous avez sélectionnés, et &lt;i&gt;Copier ce message dans la liste&lt;/i&gt; copie le message vers toutes les lignes, la sélection ou les lignes sans message. &lt;i&gt;Effacer la sélection&lt;/i&gt;, &lt;i&gt;Tout effacer&lt;/i&gt; et &lt;i&gt;Réinitialiser&lt;/i&gt; retirent des numéros.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;5. Réglez l’envoi.&lt;/b&gt; Avec &lt;i&gt;Ignorer les doublons&lt;/i&gt;, chaque numéro ne reçoit qu’un envoi. Avec &lt;i&gt;Respecter les listes d’exclusion&lt;/i&gt;, rien n’est envoyé aux numéros d’une liste appliquée&#x202f;; cliquez sur &lt;i&gt;Listes d’exclusion&lt;/i&gt; pour créer ces listes et indiquer lesquelles s’appliquent. &lt;i&gt;Pause&lt;/i&gt; fait une pause après chaque série de messages. Avec &lt;i&gt;Suivre chaque message&lt;/i&gt;, chacun est jugé d’après la réponse du téléphone, part dans l’alphabet qu’il demande et n’est jamais envoyé deux fois sans votre accord&#x202f;; un envoi interrompu peut être repris, et &lt;i&gt;Rapports&lt;/i&gt; montre ceux que vous gardez.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;6. Envoyez.&lt;/b&gt; Si le message rédigé n’est pas encore dans la liste, le programme demande s’il faut d’abord l’y copier. Les messages partent un par un, dans l’ordre de la liste, à quelques secondes d’intervalle, ce dont les téléphones lents ont besoin. La fenêtre de progression montre où en est l’envoi et décompte les pauses&#x202f;; &lt;i&gt;Arrêter l’envoi&lt;/i&gt; y met fin avant le message suivant ou avant la partie suivante d’un long message. La liste reste telle quelle.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;7. Ensuite.&lt;/b&gt; Ce qui a été transmis au téléphone avec &lt;i&gt;Garder les messages envoyés&lt;/i&gt; coché se trouve dans &lt;i&gt;Messages envoyés&lt;/i&gt;&#x202f;; avec &lt;i&gt;Garder les messages comme modèles&lt;/i&gt;, chaque texte figure une fois dans &lt;i&gt;Modèles&lt;/i&gt;, prêt à resservir. Ces deux fenêtres permettent de supprimer ce qui ne sert plus et d’exporter leur liste en fichier texte ou en page web.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Si aucun téléphone n’est trouvé&lt;/b&gt;, l’écran qui précède l’assistant indique ce qu’il faut essayer&#x202f;: le mode modem du téléphone, le droit de votre compte d’utiliser les ports série, et les autres programmes qui occupent le port. &lt;i&gt;Téléphone introuvable&#x202f;?&lt;/i&gt; ci-dessous examine chacun de ces points et indique le remède.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Ce que veut dire «&#x202f;envoyé&#x202f;».&lt;/b&gt; Avec &lt;i&gt;Suivre chaque message&lt;/i&gt;, un message est envoyé quand le réseau l’a confirmé. Sinon, il compte comme envoyé dès qu’il a été transmis au téléphone sans erreur. La réponse du téléphone ou de l’opérateur n’est pas prise en compte&#x202f;: un message qu’ils refusent figure aussi dans &lt;i&gt;Messages envoyés&lt;/i&gt;, et un téléphone qui ne répond plus n’arrête pas l’envoi. Envoyez-vous d’abord le message, et mettez votre propre numéro à la fin de la liste.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Si «&#x202f;Erreur de connexion avec l’appareil&#x202f;!&#x202f;» apparaît&lt;/b&gt;, l’écriture vers le téléphone a échoué, ou un message n’a pas pu être mis en forme, et l’envoi s’est arrêté là. Ce qui a été transmis jusque-là se trouve dans &lt;i&gt;Messages envoyés&lt;/i&gt;, si vous les gardez&#x202f;; le message en cours à ce moment a pu partir en partie ou en entier.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Why does my phone not show?</source>
        <translation>&amp;Téléphone introuvable&#x202f;?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open the &amp;guide</source>
        <translation>Ouvrir le &amp;guide</translation>
    </message>
    <message>
        <source>No program was found that shows the guide. It is in %1.</source>
        <translation>Aucun programme capable d’afficher le guide n’a été trouvé. Il se trouve dans %1.</translation>
    </message>
</context>
<context>
    <name>Import_Strip</name>
    <message>
        <source>0 added: the file could not be read.</source>
        <translation>Ajouts&#x202f;: 0, le fichier n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>%1 added.</source>
        <translation>Ajouts&#x202f;: %1.</translation>
    </message>
    <message>
        <source>%1 added, 1 line not used.</source>
        <translation>Ajouts&#x202f;: %1, 1 ligne non utilisée.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %n lines not used.</source>
        <translation>
            <numerusform>Ajouts&#x202f;: %1, %n ligne non utilisée.</numerusform>
            <numerusform>Ajouts&#x202f;: %1, %n lignes non utilisées.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1
Then it ended early.</source>
        <translation>%1
Puis l’importation s’est interrompue.</translation>
    </message>
    <message>
        <source>0 added: there was no text that could be read.</source>
        <translation>Ajouts&#x202f;: 0, il n’y avait pas de texte lisible.</translation>
    </message>
    <message>
        <source>Show ...</source>
        <translation>Afficher...</translation>
    </message>
    <message>
        <source>Shows what was not used, and why</source>
        <translation>Montre ce qui n’a pas été utilisé, et pourquoi</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Takes this notice away</source>
        <translation>Retire ce message</translation>
    </message>
    <message>
        <source>What the last import did</source>
        <translation>Ce qu’a fait la dernière importation</translation>
    </message>
    <message>
        <source>&amp;Show ...</source>
        <translation>&amp;Afficher...</translation>
    </message>
    <message>
        <source>&amp;Dismiss</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>Job_Trouble</name>
    <message>
        <source>there is no such job</source>
        <translation>cet envoi n’existe pas</translation>
    </message>
    <message>
        <source>its files can not be read or written to</source>
        <translation>ses fichiers ne peuvent être ni lus ni écrits</translation>
    </message>
    <message>
        <source>the file is not the journal of a job</source>
        <translation>le fichier n’est pas le journal d’un envoi</translation>
    </message>
    <message>
        <source>its journal was written by a newer version of the program</source>
        <translation>son journal a été écrit par une version plus récente du programme</translation>
    </message>
    <message>
        <source>its journal is damaged, so that it is unknown what was sent</source>
        <translation>son journal est endommagé&#x202f;; on ignore donc ce qui a été envoyé</translation>
    </message>
    <message>
        <source>the list beside its journal is gone</source>
        <translation>la liste qui accompagne son journal a disparu</translation>
    </message>
    <message>
        <source>the list beside its journal is not the one that the job began with</source>
        <translation>la liste qui accompagne son journal n’est pas celle du début de l’envoi</translation>
    </message>
    <message>
        <source>another program works on it</source>
        <translation>un autre programme y travaille</translation>
    </message>
    <message>
        <source>a job of this name exists already</source>
        <translation>un envoi de ce nom existe déjà</translation>
    </message>
    <message>
        <source>a job can not have so many messages</source>
        <translation>un envoi ne peut pas compter autant de messages</translation>
    </message>
    <message>
        <source>the disk has no room for its journal</source>
        <translation>le disque n’a pas de place pour son journal</translation>
    </message>
    <message>
        <source>its journal can not be written</source>
        <translation>son journal ne peut pas être écrit</translation>
    </message>
</context>
<context>
    <name>Kept_Receipts</name>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1&#x202f;: illisible</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n recipients</source>
        <translation>
            <numerusform>%1&#x202f;: %n destinataire</numerusform>
            <numerusform>%1&#x202f;: %n destinataires</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, in work</source>
        <translation>%1, en cours</translation>
    </message>
    <message>
        <source>%1, not ended</source>
        <translation>%1, non terminé</translation>
    </message>
    <message>
        <source>Re&amp;move ...</source>
        <translation>&amp;Supprimer...</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Envoi</translation>
    </message>
    <message>
        <source>Removes the list and the record of this job</source>
        <translation>Supprime la liste et la trace de cet envoi</translation>
    </message>
    <message>
        <source>&amp;Job:</source>
        <translation>En&amp;voi&#x202f;:</translation>
    </message>
</context>
<context>
    <name>Language_Menu</name>
    <message>
        <source>La&amp;nguage (from the next start on)</source>
        <translation>La&amp;ngue (au prochain démarrage)</translation>
    </message>
    <message>
        <source>As the &amp;desktop</source>
        <translation>Comme le s&amp;ystème</translation>
    </message>
</context>
<context>
    <name>List_Arrivals</name>
    <message>
        <source>&amp;Paste numbers</source>
        <translation>C&amp;oller des numéros</translation>
    </message>
</context>
<context>
    <name>Lists_Page</name>
    <message>
        <source>Available exclusion lists</source>
        <translation>Listes d’exclusion disponibles</translation>
    </message>
    <message>
        <source>Exclude when sending SMS</source>
        <translation>Listes à exclure lors de l’envoi</translation>
    </message>
    <message>
        <source>There is no exclusion list yet.</source>
        <translation>Il n’y a pas encore de liste d’exclusion.</translation>
    </message>
    <message>
        <source>Make the first list ...</source>
        <translation>Créer la première liste...</translation>
    </message>
    <message>
        <source>No list is applied, so nobody is left out.</source>
        <translation>Aucune liste n’est appliquée&#x202f;; personne n’est donc exclu.</translation>
    </message>
</context>
<context>
    <name>Load_Num_Info</name>
    <message>
        <source>Import numbers</source>
        <translation>Importer des numéros</translation>
    </message>
    <message>
        <source>The list already holds numbers. Do you want to remove them before the numbers of the file are added?

&quot;No&quot; keeps them and adds the new numbers behind them.</source>
        <translation>La liste contient déjà des numéros. Voulez-vous les retirer avant d’ajouter ceux du fichier&#x202f;?

«&#x202f;Non&#x202f;» les garde et ajoute les nouveaux à la suite.</translation>
    </message>
    <message>
        <source>Import nothing</source>
        <translation>Ne rien importer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Empty the list first</source>
        <translation>Vider d’abord la liste</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>Keep the list and add to it</source>
        <translation>Garder la liste et la compléter</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
</context>
<context>
    <name>Long_SMS_Dlg</name>
    <message>
        <source>Long message</source>
        <translation>Message long</translation>
    </message>
    <message>
        <source>Unicode message</source>
        <translation>Message Unicode</translation>
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
        <translation>&amp;Modifier...</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Liste</translation>
    </message>
    <message>
        <source>&amp;Message</source>
        <translation>Me&amp;ssage</translation>
    </message>
    <message>
        <source>&amp;Sending</source>
        <translation>&amp;Envoi</translation>
    </message>
    <message>
        <source>&amp;What was sent</source>
        <translation>&amp;Ce qui a été envoyé</translation>
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
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
</context>
<context>
    <name>Numbers_Page</name>
    <message>
        <source>Excluded number</source>
        <translation>Numéro exclu</translation>
    </message>
    <message>
        <source>No number is in this list yet. Type one above, or load a file of them.</source>
        <translation>Cette liste ne contient encore aucun numéro. Saisissez-en un ci-dessus ou chargez un fichier.</translation>
    </message>
</context>
<context>
    <name>Open_Export_Log</name>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>The list has been exported.</source>
        <translation>La liste a été exportée.</translation>
    </message>
    <message>
        <source>Open the &amp;exported file now</source>
        <translation>Ouvrir maintenant le fichier &amp;exporté</translation>
    </message>
    <message>
        <source>The file could not be opened:
this computer has no program for it.</source>
        <translation>Le fichier n’a pas pu être ouvert&#x202f;:
cet ordinateur n’a pas de programme pour cela.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>The file stays where it is, unopened</source>
        <translation>Le fichier reste où il est, sans être ouvert</translation>
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
        <translation>Assistant de connexion du téléphone</translation>
    </message>
    <message>
        <source>Click a device to read what it tells about itself, then select it to send your messages through it.</source>
        <translation>Cliquez sur un appareil pour voir ses informations, puis sélectionnez-le pour envoyer vos messages.</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>Appareils trouvés</translation>
    </message>
    <message>
        <source>&amp;Why does my phone not show?</source>
        <translation>Téléphone introuva&amp;ble&#x202f;?</translation>
    </message>
    <message>
        <source>Device details</source>
        <translation>Détails de l’appareil</translation>
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
        <translation>C&amp;hemin de l’appareil</translation>
    </message>
    <message>
        <source>Device path</source>
        <translation>Chemin de l’appareil</translation>
    </message>
    <message>
        <source>&amp;Manufacturer</source>
        <translation>&amp;Fabricant</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Fabricant</translation>
    </message>
    <message>
        <source>Mo&amp;del</source>
        <translation>Mo&amp;dèle</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
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
        <translation>Ba&amp;tterie</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
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
        <translation>&amp;Opérateur</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>&amp;Revision</source>
        <translation>&amp;Révision</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>Révision</translation>
    </message>
    <message>
        <source>Service centre (SMSC)</source>
        <translation>Centre de messagerie (SMSC)</translation>
    </message>
    <message>
        <source>D&amp;efault number of the device</source>
        <translation>N&amp;uméro par défaut de l’appareil</translation>
    </message>
    <message>
        <source>Default service centre number</source>
        <translation>Numéro par défaut du centre de messagerie</translation>
    </message>
    <message>
        <source>&amp;Use a custom number instead</source>
        <translation>Utiliser un nu&amp;méro personnalisé</translation>
    </message>
    <message>
        <source>Custom service centre number</source>
        <translation>Numéro personnalisé du centre de messagerie</translation>
    </message>
    <message>
        <source>Search &amp;again</source>
        <translation>Chercher à &amp;nouveau</translation>
    </message>
    <message>
        <source>&amp;Continue without a device</source>
        <translation>&amp;Continuer sans appareil</translation>
    </message>
    <message>
        <source>Se&amp;lect this device</source>
        <translation>Sé&amp;lectionner cet appareil</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>signal %1</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Searching for devices ...</source>
        <translation>Recherche d’appareils...</translation>
    </message>
    <message>
        <source>No phone or modem was found. Connect one and switch it on.</source>
        <translation>Aucun téléphone ni modem n’a été trouvé. Branchez-en un et allumez-le.</translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>Chercher à nouveau</translation>
    </message>
</context>
<context>
    <name>Plan_Page</name>
    <message>
        <source>Sho&amp;w:</source>
        <translation>A&amp;fficher&#x202f;:</translation>
    </message>
    <message>
        <source>Rows to show</source>
        <translation>Lignes à afficher</translation>
    </message>
    <message>
        <source>&amp;Longest</source>
        <translation>Le plus &amp;long</translation>
    </message>
    <message>
        <source>Goes to the row with the longest message</source>
        <translation>Va à la ligne dont le message est le plus long</translation>
    </message>
    <message>
        <source>Rows as they will be sent</source>
        <translation>Lignes telles qu’elles seront envoyées</translation>
    </message>
    <message>
        <source>%1 cannot be dialled: the row stays as it was.</source>
        <translation>%1 ne peut pas être composé&#x202f;: la ligne reste telle quelle.</translation>
    </message>
    <message>
        <source>All rows</source>
        <translation>Toutes les lignes</translation>
    </message>
    <message>
        <source>Rows left out</source>
        <translation>Lignes écartées</translation>
    </message>
    <message>
        <source>Unicode messages</source>
        <translation>Messages Unicode</translation>
    </message>
    <message>
        <source>Looking at the rows: %1 % ...</source>
        <translation>Examen des lignes&#x202f;: %1&#x202f;%...</translation>
    </message>
    <message>
        <source>Looking at the rows ...</source>
        <translation>Examen des lignes...</translation>
    </message>
</context>
<context>
    <name>Plan_Rows</name>
    <message>
        <source>Row</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Number as written</source>
        <translation>Numéro d’origine</translation>
    </message>
    <message>
        <source>As dialled</source>
        <translation>Numéro composé</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Parties</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Décision</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remarque</translation>
    </message>
</context>
<context>
    <name>Plan_Words</name>
    <message>
        <source>to be sent</source>
        <translation>à envoyer</translation>
    </message>
    <message>
        <source>repeated</source>
        <translation>en double</translation>
    </message>
    <message>
        <source>excluded</source>
        <translation>sur liste d’exclusion</translation>
    </message>
    <message>
        <source>no usable number</source>
        <translation>sans numéro valable</translation>
    </message>
    <message>
        <source>empty field</source>
        <translation>avec un champ vide</translation>
    </message>
    <message>
        <source>unknown field</source>
        <translation>avec un champ inconnu</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>d’une longueur excessive</translation>
    </message>
    <message>
        <source>fields misplaced</source>
        <translation>avec des champs décalés</translation>
    </message>
    <message>
        <source>1 message to be sent</source>
        <translation>1 message à envoyer</translation>
    </message>
    <message numerus="yes">
        <source>%n messages to be sent</source>
        <translation>
            <numerusform>%n message à envoyer</numerusform>
            <numerusform>%n messages à envoyer</numerusform>
        </translation>
    </message>
    <message>
        <source>1 part</source>
        <translation>1 partie</translation>
    </message>
    <message numerus="yes">
        <source>%n parts</source>
        <translation>
            <numerusform>%n partie</numerusform>
            <numerusform>%n parties</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2, %3, %4</source>
        <translation>%1, %2, %3, %4</translation>
    </message>
    <message numerus="yes">
        <source>%n left out: %1.</source>
        <translation>
            <numerusform>%n écarté&#x202f;: %1.</numerusform>
            <numerusform>%n écartés&#x202f;: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>others</source>
        <translation>autres</translation>
    </message>
    <message>
        <source>1 message goes as Unicode</source>
        <translation>1 message part en Unicode</translation>
    </message>
    <message numerus="yes">
        <source>%n messages go as Unicode</source>
        <translation>
            <numerusform>%n message part en Unicode</numerusform>
            <numerusform>%n messages partent en Unicode</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, because of %2.</source>
        <translation>%1, à cause de %2.</translation>
    </message>
</context>
<context>
    <name>PleaseWait_Modeless</name>
    <message>
        <source>Please wait ...</source>
        <translation>Veuillez patienter...</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>En cours</translation>
    </message>
</context>
<context>
    <name>Receipt_Wnd</name>
    <message>
        <source>Receipt</source>
        <translation>Rapport d’envoi</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>&amp;Afficher&#x202f;:</translation>
    </message>
    <message>
        <source>Messages to show</source>
        <translation>Messages à afficher</translation>
    </message>
    <message>
        <source>Messages of the job</source>
        <translation>Messages de l’envoi</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporter</translation>
    </message>
    <message>
        <source>Write the receipt into a file</source>
        <translation>Enregistrer le rapport d’envoi dans un fichier</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>As a &amp;text ...</source>
        <translation>En &amp;texte...</translation>
    </message>
    <message>
        <source>As a web &amp;page ...</source>
        <translation>En &amp;page web...</translation>
    </message>
    <message>
        <source>As a table for &amp;spreadsheets (CSV) ...</source>
        <translation>En tableau pour tableu&amp;r (CSV)...</translation>
    </message>
    <message>
        <source>An apostrophe is in front of each number, and of whatever else a spreadsheet would take for a formula.</source>
        <translation>Une apostrophe précède chaque numéro et tout ce qu’un tableur prendrait pour une formule.</translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>Lecture...</translation>
    </message>
    <message>
        <source>No receipts are kept yet.</source>
        <translation>Aucun rapport d’envoi n’est encore conservé.</translation>
    </message>
    <message>
        <source>The job could not be removed: %1.</source>
        <translation>L’envoi n’a pas pu être supprimé&#x202f;: %1.</translation>
    </message>
    <message>
        <source>There is no receipt of this job: %1.</source>
        <translation>Il n’y a pas de rapport pour cet envoi&#x202f;: %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be written.</source>
        <translation>Impossible d’écrire le fichier %1.</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Enregistré dans %1.</translation>
    </message>
</context>
<context>
    <name>Remembered_List</name>
    <message>
        <source>Re&amp;member this list</source>
        <translation>Se sou&amp;venir de cette liste</translation>
    </message>
    <message>
        <source>The list from the last time cannot be read.</source>
        <translation>La liste de la dernière fois ne peut pas être lue.</translation>
    </message>
    <message>
        <source>Recipients from the last time: %1.</source>
        <translation>Destinataires de la dernière fois&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Not read: %1.</source>
        <translation>Non lus&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>Removal_Question</name>
    <message>
        <source>Keep it</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Really remove the job&apos;s list and its record from this computer? Nothing more can be sent of it then, and it has no receipt any more.</source>
        <translation>Voulez-vous vraiment supprimer de cet ordinateur la liste et la trace de l’envoi&#x202f;? Plus rien ne pourra en être envoyé, et il n’aura plus de rapport.</translation>
    </message>
    <message>
        <source>Remove for good</source>
        <translation>Supprimer définitivement</translation>
    </message>
</context>
<context>
    <name>Row_Finder</name>
    <message>
        <source>&amp;Find ...</source>
        <translation>&amp;Rechercher...</translation>
    </message>
    <message>
        <source>&amp;Sort</source>
        <translation>&amp;Trier</translation>
    </message>
    <message>
        <source>%1, upwards</source>
        <translation>%1, croissant</translation>
    </message>
    <message>
        <source>%1, downwards</source>
        <translation>%1, décroissant</translation>
    </message>
    <message>
        <source>As in the list</source>
        <translation>Comme dans la liste</translation>
    </message>
    <message>
        <source>Searching ...</source>
        <translation>Recherche en cours...</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>Sample_Rows</name>
    <message>
        <source>%1 (number)</source>
        <translation>%1 (numéro)</translation>
    </message>
</context>
<context>
    <name>Send_Modeless</name>
    <message>
        <source>Sending messages</source>
        <translation>Envoi des messages</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Total messages :</source>
        <translation>Total des messages&#x202f;:</translation>
    </message>
    <message>
        <source>Sending to :</source>
        <translation>Envoi à&#x202f;:</translation>
    </message>
    <message>
        <source>Messages handled</source>
        <translation>Messages traités</translation>
    </message>
    <message>
        <source>&amp;Stop Sending</source>
        <translation>&amp;Arrêter l’envoi</translation>
    </message>
    <message>
        <source>about 23 h 59 min left, until 30 September 2026, 23:59</source>
        <translation>reste environ 23 h 59 min, jusqu’au 30 septembre 2026, 23:59</translation>
    </message>
    <message>
        <source>Sending %1 of %2</source>
        <translation>Envoi de %1 sur %2</translation>
    </message>
    <message>
        <source>Now :</source>
        <translation>En ce moment&#x202f;:</translation>
    </message>
    <message>
        <source>Stopping ...</source>
        <translation>Arrêt...</translation>
    </message>
</context>
<context>
    <name>Send_Msg_Info</name>
    <message>
        <source>Before sending</source>
        <translation>Avant l’envoi</translation>
    </message>
    <message>
        <source>The message in the composer is not yet in the list. You can copy it there before the list is sent.</source>
        <translation>Le message rédigé n’est pas encore dans la liste. Vous pouvez l’y copier avant l’envoi.</translation>
    </message>
    <message>
        <source>Every number gets the message in the composer</source>
        <translation>Tous les numéros reçoivent le message rédigé</translation>
    </message>
    <message>
        <source>Copy it to &amp;all numbers in the list</source>
        <translation>Le copier vers &amp;tous les numéros de la liste</translation>
    </message>
    <message>
        <source>The numbers whose message is empty get the message; the others keep theirs</source>
        <translation>Les numéros dont le message est vide reçoivent le message&#x202f;; les autres gardent le leur</translation>
    </message>
    <message>
        <source>Copy it to the numbers without a &amp;message</source>
        <translation>Le copier vers les numéros sans &amp;message</translation>
    </message>
    <message>
        <source>Or send each number the message that it has in the list.</source>
        <translation>Ou envoyez à chaque numéro le message qu’il a dans la liste.</translation>
    </message>
    <message>
        <source>Send nothing</source>
        <translation>Ne rien envoyer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Send the list as it stands</source>
        <translation>Envoyer la liste telle quelle</translation>
    </message>
    <message>
        <source>Send as it &amp;stands</source>
        <translation>Envoyer telle &amp;quelle</translation>
    </message>
    <message>
        <source>Copy the message and send</source>
        <translation>Copier le message et envoyer</translation>
    </message>
    <message>
        <source>C&amp;opy and send</source>
        <translation>C&amp;opier et envoyer</translation>
    </message>
    <message>
        <source>The composer is empty. If you copy it to all numbers, every message in the list becomes blank.</source>
        <translation>Aucun message n’est rédigé. Si vous copiez ce texte vide vers tous les numéros, tous les messages de la liste seront vides.</translation>
    </message>
</context>
<context>
    <name>Send_Promise</name>
    <message>
        <source>Counting ...</source>
        <translation>Comptage...</translation>
    </message>
    <message>
        <source>That is much for one phone.</source>
        <translation>C’est beaucoup pour un seul téléphone.</translation>
    </message>
    <message>
        <source>What to do instead</source>
        <translation>Ce qu’il vaut mieux faire</translation>
    </message>
    <message>
        <source>Other ways ...</source>
        <translation>Autres moyens...</translation>
    </message>
    <message>
        <source>Show who gets nothing ...</source>
        <translation>Voir qui ne reçoit rien...</translation>
    </message>
    <message>
        <source>Check before sending ...</source>
        <translation>Vérifier avant l’envoi...</translation>
    </message>
</context>
<context>
    <name>Sent_Items</name>
    <message>
        <source>Sent Items</source>
        <translation>Messages envoyés</translation>
    </message>
    <message>
        <source>&amp;Sent messages:</source>
        <translation>Messages en&amp;voyés&#x202f;:</translation>
    </message>
    <message>
        <source>Total Items : 0</source>
        <translation>Nombre d’éléments&#x202f;: 0</translation>
    </message>
    <message>
        <source>Sent messages</source>
        <translation>Messages envoyés</translation>
    </message>
    <message>
        <source>Selected &amp;message:</source>
        <translation>&amp;Message sélectionné&#x202f;:</translation>
    </message>
    <message>
        <source>Selected message</source>
        <translation>Message sélectionné</translation>
    </message>
    <message>
        <source>&amp;Delete selected</source>
        <translation>&amp;Supprimer la sélection</translation>
    </message>
    <message>
        <source>Take the selected messages out of the list</source>
        <translation>Retirer de la liste les messages sélectionnés</translation>
    </message>
    <message>
        <source>Delete a&amp;ll</source>
        <translation>&amp;Tout supprimer</translation>
    </message>
    <message>
        <source>Empty the whole list</source>
        <translation>Vider toute la liste</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>&amp;Exporter...</translation>
    </message>
    <message>
        <source>Write the list into a text file or a web page</source>
        <translation>Enregistrer la liste dans un fichier texte ou une page web</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Keep the list as it is shown and close this window</source>
        <translation>Garder la liste telle qu’affichée et fermer cette fenêtre</translation>
    </message>
    <message>
        <source>[ The first %1 of %2 characters ]</source>
        <translation>[ Les %1 premiers caractères sur %2 ]</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>No message is kept here yet. Those that are handed to the phone from now on will be.</source>
        <translation>Aucun message n’est encore gardé ici. Ceux qui seront remis au téléphone à partir de maintenant le seront.</translation>
    </message>
    <message>
        <source>No message is kept here yet, and those that are sent will not be.</source>
        <translation>Aucun message n’est encore gardé ici, et ceux qui seront envoyés ne le seront pas non plus.</translation>
    </message>
    <message>
        <source>Keep messages from now on</source>
        <translation>Garder les messages à partir de maintenant</translation>
    </message>
</context>
<context>
    <name>Table_Page</name>
    <message>
        <source>&amp;Numbers are in:</source>
        <translation>&amp;Numéros dans&#x202f;:</translation>
    </message>
    <message>
        <source>Column of the numbers</source>
        <translation>Colonne des numéros</translation>
    </message>
    <message>
        <source>The column that holds the numbers. A click on a heading of the table chooses it, too</source>
        <translation>La colonne qui contient les numéros. Un clic sur un en-tête du tableau la choisit aussi</translation>
    </message>
    <message>
        <source>National numbers are &amp;of:</source>
        <translation>Pays des n&amp;uméros nationaux&#x202f;:</translation>
    </message>
    <message>
        <source>Country of national numbers</source>
        <translation>Pays des numéros nationaux</translation>
    </message>
    <message>
        <source>Gets the code of this country in front of a number that has none</source>
        <translation>Place l’indicatif de ce pays devant un numéro qui n’en a pas</translation>
    </message>
    <message>
        <source>The first rows</source>
        <translation>Les premières lignes</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>&amp;Encodage&#x202f;:</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Encodage</translation>
    </message>
    <message>
        <source>Another one where letters look wrong</source>
        <translation>À changer si des lettres s’affichent mal</translation>
    </message>
    <message>
        <source>&amp;Delimiter:</source>
        <translation>&amp;Séparateur&#x202f;:</translation>
    </message>
    <message>
        <source>Delimiter</source>
        <translation>Séparateur</translation>
    </message>
    <message>
        <source>What stands between the fields of a row</source>
        <translation>Ce qui sépare les champs d’une ligne</translation>
    </message>
    <message>
        <source>&amp;Sheet:</source>
        <translation>&amp;Feuille&#x202f;:</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Feuille</translation>
    </message>
    <message>
        <source>Untick this where the first row is one like the others</source>
        <translation>À décocher si la première ligne est une ligne comme les autres</translation>
    </message>
    <message>
        <source>&amp;First row has the names</source>
        <translation>Noms en &amp;première ligne</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 ligne</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n ligne</numerusform>
            <numerusform>%n lignes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 in 1 column.</source>
        <translation>%1&#x202f;: %2 dans 1 colonne.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 in %n columns.</source>
        <translation>
            <numerusform>%1&#x202f;: %2 dans %n colonne.</numerusform>
            <numerusform>%1&#x202f;: %2 dans %n colonnes.</numerusform>
        </translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgule</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Point-virgule</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulation</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Barre verticale</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Tels quels</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>Lecture&#x202f;: %1...</translation>
    </message>
    <message>
        <source>%1 can not be used: %2.</source>
        <translation>%1 est inutilisable&#x202f;: %2.</translation>
    </message>
    <message>
        <source>%1 holds no rows below the names of its columns.</source>
        <translation>%1 ne contient aucune ligne sous les noms des colonnes.</translation>
    </message>
    <message>
        <source>No column looks as if it held numbers. Choose the one that does.</source>
        <translation>Aucune colonne ne semble contenir de numéros. Choisissez celle qui en contient.</translation>
    </message>
    <message>
        <source>One for each person, mobile ones first</source>
        <translation>Un par personne, mobiles d’abord</translation>
    </message>
    <message>
        <source>Each number of a person</source>
        <translation>Chaque numéro d’une personne</translation>
    </message>
    <message>
        <source>The file does not tell its encoding: look whether the letters are right.</source>
        <translation>Le fichier n’indique pas son codage&#x202f;: vérifiez que les lettres sont correctes.</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Templates</source>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>&amp;Message templates:</source>
        <translation>&amp;Modèles de message&#x202f;:</translation>
    </message>
    <message>
        <source>Total Items : 0</source>
        <translation>Nombre d’éléments&#x202f;: 0</translation>
    </message>
    <message>
        <source>Message templates</source>
        <translation>Modèles de message</translation>
    </message>
    <message>
        <source>Selected &amp;template:</source>
        <translation>Modèle sé&amp;lectionné&#x202f;:</translation>
    </message>
    <message>
        <source>Selected template</source>
        <translation>Modèle sélectionné</translation>
    </message>
    <message>
        <source>Add &amp;new ...</source>
        <translation>&amp;Nouveau...</translation>
    </message>
    <message>
        <source>Type a new template</source>
        <translation>Rédiger un nouveau modèle</translation>
    </message>
    <message>
        <source>E&amp;dit ...</source>
        <translation>Mo&amp;difier...</translation>
    </message>
    <message>
        <source>Change the selected template</source>
        <translation>Modifier le modèle sélectionné</translation>
    </message>
    <message>
        <source>Delete &amp;selected</source>
        <translation>&amp;Supprimer la sélection</translation>
    </message>
    <message>
        <source>Take the selected templates out of the list</source>
        <translation>Retirer de la liste les modèles sélectionnés</translation>
    </message>
    <message>
        <source>Delete a&amp;ll</source>
        <translation>&amp;Tout supprimer</translation>
    </message>
    <message>
        <source>Empty the whole list</source>
        <translation>Vider toute la liste</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>&amp;Exporter...</translation>
    </message>
    <message>
        <source>Write the list into a text file or a web page</source>
        <translation>Enregistrer la liste dans un fichier texte ou une page web</translation>
    </message>
    <message>
        <source>&amp;Use template</source>
        <translation>&amp;Utiliser le modèle</translation>
    </message>
    <message>
        <source>Put the selected template into the message</source>
        <translation>Placer le modèle sélectionné dans le message</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Keep the list as it is shown and close this window</source>
        <translation>Garder la liste telle qu’affichée et fermer cette fenêtre</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Templates that could not be saved the last time are in the list again. They are saved when this window closes.</source>
        <translation>Des modèles qui n’avaient pas pu être enregistrés sont de nouveau dans la liste. Ils seront enregistrés à la fermeture de cette fenêtre.</translation>
    </message>
    <message>
        <source>The templates stored so far can not be read. They are kept in a file of their own when this list is saved.</source>
        <translation>Les modèles enregistrés jusqu’ici sont illisibles. Ils seront gardés dans un fichier à part à l’enregistrement de cette liste.</translation>
    </message>
    <message>
        <source>Changes can not be saved at present: the folder %1 can not be written to.</source>
        <translation>Les modifications ne peuvent pas être enregistrées pour le moment&#x202f;: impossible d’écrire dans le dossier %1.</translation>
    </message>
    <message>
        <source>No text is kept here yet.</source>
        <translation>Aucun texte n’est encore gardé ici.</translation>
    </message>
    <message>
        <source>Add the first template ...</source>
        <translation>Ajouter le premier modèle...</translation>
    </message>
</context>
<context>
    <name>Time_Words</name>
    <message>
        <source>1 recipient</source>
        <translation>1 destinataire</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients</source>
        <translation>
            <numerusform>%n destinataire</numerusform>
            <numerusform>%n destinataires</numerusform>
        </translation>
    </message>
    <message>
        <source>1 message</source>
        <translation>1 message</translation>
    </message>
    <message numerus="yes">
        <source>%n messages</source>
        <translation>
            <numerusform>%n message</numerusform>
            <numerusform>%n messages</numerusform>
        </translation>
    </message>
    <message>
        <source>sent items</source>
        <translation>messages envoyés</translation>
    </message>
    <message>
        <source>templates</source>
        <translation>modèles</translation>
    </message>
    <message>
        <source>a receipt</source>
        <translation>rapport d’envoi</translation>
    </message>
    <message>
        <source>to be kept: %1</source>
        <translation>à conserver&#x202f;: %1</translation>
    </message>
    <message>
        <source> and </source>
        <translation> et </translation>
    </message>
    <message>
        <source>the record goes when all is done</source>
        <translation>la trace est supprimée à la fin</translation>
    </message>
    <message>
        <source>no record will be kept</source>
        <translation>aucune trace n’est conservée</translation>
    </message>
    <message>
        <source>less than a minute</source>
        <translation>moins d’une minute</translation>
    </message>
    <message>
        <source>about %1 min</source>
        <translation>environ %1 min</translation>
    </message>
    <message>
        <source>about %1 h %2 min</source>
        <translation>environ %1 h %2 min</translation>
    </message>
    <message>
        <source>about %1 h</source>
        <translation>environ %1 h</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>jusqu’à %1</translation>
    </message>
    <message>
        <source>until tomorrow, %1</source>
        <translation>jusqu’à demain, %1</translation>
    </message>
    <message>
        <source>until %1, %2</source>
        <translation>jusqu’au %1, %2</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <source>Nobody in the list will be sent anything.</source>
        <translation>Personne dans la liste ne recevra de message.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>reste %1</translation>
    </message>
    <message>
        <source>%1 once it goes on</source>
        <translation>%1 après la reprise</translation>
    </message>
</context>
<context>
    <name>Undo_Strip</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Undo the removal</source>
        <translation>&amp;Annuler le retrait</translation>
    </message>
    <message>
        <source>What was just removed</source>
        <translation>Ce qui vient d’être retiré</translation>
    </message>
    <message>
        <source>Brings back what was removed (Ctrl+Z)</source>
        <translation>Rétablit ce qui a été effacé (Ctrl+Z)</translation>
    </message>
</context>
<context>
    <name>Unfilled_Rows</name>
    <message>
        <source>1 recipient gets nothing: %1.</source>
        <translation>1 destinataire ne reçoit rien&#x202f;: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients get nothing. Of the first, %1.</source>
        <translation>
            <numerusform>%n destinataire ne reçoit rien. Pour le premier&#x202f;: %1.</numerusform>
            <numerusform>%n destinataires ne reçoivent rien. Pour le premier&#x202f;: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no field %1: 1 recipient gets nothing.</source>
        <translation>Le champ %1 n’existe pas&#x202f;: 1 destinataire ne reçoit rien.</translation>
    </message>
    <message numerus="yes">
        <source>There is no field %1: %n recipients get nothing.</source>
        <translation>
            <numerusform>Le champ %1 n’existe pas&#x202f;: %n destinataire ne reçoit rien.</numerusform>
            <numerusform>Le champ %1 n’existe pas&#x202f;: %n destinataires ne reçoivent rien.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 recipient has no %1: it gets nothing.</source>
        <translation>Champ %1 vide pour 1 destinataire&#x202f;: il ne reçoit rien.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients have no %1: they get nothing.</source>
        <translation>
            <numerusform>Champ %1 vide pour %n destinataire&#x202f;: il ne reçoit rien.</numerusform>
            <numerusform>Champ %1 vide pour %n destinataires&#x202f;: ils ne reçoivent rien.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Unfinished_Strip</name>
    <message>
        <source>Sends what was not sent. What was sent is not sent again.</source>
        <translation>Envoie ce qui n’a pas été envoyé. Ce qui est parti n’est pas renvoyé.</translation>
    </message>
    <message>
        <source>Rows that may have been sent ...</source>
        <translation>Lignes peut-être envoyées...</translation>
    </message>
    <message>
        <source>Lists them, so that you can say what is to become of each</source>
        <translation>Les énumère, pour que vous décidiez de leur sort</translation>
    </message>
    <message>
        <source>Receipt ...</source>
        <translation>Rapport...</translation>
    </message>
    <message>
        <source>Shows what became of each message so far</source>
        <translation>Montre ce qu’est devenu chaque message jusqu’ici</translation>
    </message>
    <message>
        <source>Remove ...</source>
        <translation>Supprimer...</translation>
    </message>
    <message>
        <source>Removes the job&apos;s list and its record</source>
        <translation>Supprime la liste et la trace de l’envoi</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Leaves the job as it is and says no more of it for now</source>
        <translation>Laisse l’envoi tel quel et n’en parle plus pour l’instant</translation>
    </message>
    <message>
        <source>Job that has not ended</source>
        <translation>Envoi non terminé</translation>
    </message>
    <message>
        <source>Receipt of the job that has not ended ...</source>
        <translation>Rapport de l’envoi non terminé...</translation>
    </message>
    <message>
        <source>A job that began on %1 has not ended.</source>
        <translation>Un envoi commencé le %1 n’est pas terminé.</translation>
    </message>
    <message>
        <source>Nothing of it is left to be sent.</source>
        <translation>Il n’en reste rien à envoyer.</translation>
    </message>
    <message>
        <source>The job %1 cannot be gone on with: %2.</source>
        <translation>L’envoi %1 ne peut pas être repris&#x202f;: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n autre envoi</numerusform>
            <numerusform>%n autres envois</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Send the remaining %n</source>
        <translation>
            <numerusform>Envoyer le %n restant</numerusform>
            <numerusform>Envoyer les %n restants</numerusform>
        </translation>
    </message>
    <message>
        <source>Send the rest</source>
        <translation>Envoyer le reste</translation>
    </message>
    <message>
        <source>The job could not be removed: %1.</source>
        <translation>L’envoi n’a pas pu être supprimé&#x202f;: %1.</translation>
    </message>
</context>
<context>
    <name>Unknown_Rows_Sheet</name>
    <message>
        <source>Rows that may have been sent</source>
        <translation>Lignes peut-être envoyées</translation>
    </message>
    <message>
        <source>It is not known whether these messages were sent. What is left as it is will not be sent again. What is sent again may arrive twice.</source>
        <translation>On ne sait pas si ces messages ont été envoyés. Ce qui est laissé tel quel ne sera pas renvoyé. Ce qui est renvoyé peut arriver deux fois.</translation>
    </message>
    <message>
        <source>The selected rows:</source>
        <translation>Les lignes sélectionnées&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Leave</source>
        <translation>&amp;Laisser</translation>
    </message>
    <message>
        <source>Send &amp;again</source>
        <translation>Re&amp;nvoyer</translation>
    </message>
    <message>
        <source>&amp;Count as sent</source>
        <translation>&amp;Compter comme envoyées</translation>
    </message>
    <message>
        <source>All rows:</source>
        <translation>Toutes les lignes&#x202f;:</translation>
    </message>
    <message>
        <source>Lea&amp;ve all</source>
        <translation>&amp;Tout laisser</translation>
    </message>
    <message>
        <source>Send all a&amp;gain</source>
        <translation>Tout &amp;renvoyer</translation>
    </message>
    <message>
        <source>C&amp;ount all as sent</source>
        <translation>Tout c&amp;ompter comme envoyé</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Keep these decisions in the record of the job</source>
        <translation>Conserver ces décisions dans la trace de l’envoi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Leave everything as it is</source>
        <translation>Laisser tout tel quel</translation>
    </message>
    <message>
        <source>Leave as it is</source>
        <translation>Laisser tel quel</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Renvoyer</translation>
    </message>
    <message>
        <source>Count as sent</source>
        <translation>Compter comme envoyé</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Que faire</translation>
    </message>
    <message>
        <source>The decisions could not be kept: %1.</source>
        <translation>Les décisions n’ont pas pu être conservées&#x202f;: %1.</translation>
    </message>
</context>
<context>
    <name>Unused_Lines_Wnd</name>
    <message>
        <source>Lines that were not used</source>
        <translation>Lignes non utilisées</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>No phone number</source>
        <translation>Pas de numéro de téléphone</translation>
    </message>
    <message>
        <source>Already in the list</source>
        <translation>Déjà dans la liste</translation>
    </message>
    <message>
        <source>In an exclusion list</source>
        <translation>Dans une liste d’exclusion</translation>
    </message>
    <message>
        <source>Lines not used: %1.</source>
        <translation>Lignes non utilisées&#x202f;: %1.</translation>
    </message>
    <message>
        <source>These are the first %1.</source>
        <translation>Voici les %1 premières.</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>As it stood there</source>
        <translation>Contenu de la ligne</translation>
    </message>
    <message>
        <source>Why it was not used</source>
        <translation>Pourquoi elle n’a pas été utilisée</translation>
    </message>
</context>
<context>
    <name>UpdateTemp</name>
    <message>
        <source>Templates</source>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>&amp;Message:</source>
        <translation>&amp;Message&#x202f;:</translation>
    </message>
    <message>
        <source>Message of the template</source>
        <translation>Message du modèle</translation>
    </message>
    <message>
        <source>At most 1600 characters</source>
        <translation>1600 caractères au plus</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>Caractères&#x202f;: 0</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
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
        <translation>Modifier le numéro</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Numéro de téléphone</translation>
    </message>
    <message>
        <source>The number as it is to stand in the exclusion list, at most 20 characters</source>
        <translation>Le numéro tel qu’il doit figurer dans la liste d’exclusion, 20 caractères au plus</translation>
    </message>
    <message>
        <source>Number as it was</source>
        <translation>Ancien numéro</translation>
    </message>
    <message>
        <source>Row of the number</source>
        <translation>Ligne du numéro</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Phone &amp;number:</source>
        <translation>&amp;Numéro de téléphone&#x202f;:</translation>
    </message>
</context>
<context>
    <name>Update_Num_SMS</name>
    <message>
        <source>Edit number and message</source>
        <translation>Modifier le numéro et le message</translation>
    </message>
    <message>
        <source>Phone &amp;number:</source>
        <translation>&amp;Numéro de téléphone&#x202f;:</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Numéro de téléphone</translation>
    </message>
    <message>
        <source>&amp;Message:</source>
        <translation>&amp;Message&#x202f;:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>Caractères&#x202f;: 0</translation>
    </message>
    <message>
        <source>For this window only</source>
        <translation>Pour cette fenêtre seulement</translation>
    </message>
    <message>
        <source>&amp;Refuse a number that is in the list already</source>
        <translation>&amp;Refuser un numéro déjà présent dans la liste</translation>
    </message>
    <message>
        <source>Refuse an &amp;excluded number</source>
        <translation>Refuser un numéro &amp;exclu</translation>
    </message>
    <message>
        <source>Leave the recipient as it is</source>
        <translation>Laisser le destinataire tel quel</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Save the recipient</source>
        <translation>Enregistrer le destinataire</translation>
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
        <translation>Modifier les messages sélectionnés</translation>
    </message>
    <message>
        <source>&amp;Selected numbers:</source>
        <translation>Numéros &amp;sélectionnés&#x202f;:</translation>
    </message>
    <message>
        <source>Selected numbers</source>
        <translation>Numéros sélectionnés</translation>
    </message>
    <message>
        <source>Total Selected Numbers : 0</source>
        <translation>Nombre de numéros sélectionnés&#x202f;: 0</translation>
    </message>
    <message>
        <source>New &amp;message for all of them:</source>
        <translation>Nouveau &amp;message pour tous&#x202f;:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>Caractères&#x202f;: 0</translation>
    </message>
    <message>
        <source>Leave the messages as they are</source>
        <translation>Laisser les messages tels quels</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Copy the message to the selected numbers</source>
        <translation>Copier le message vers les numéros sélectionnés</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
</context>
</TS>
