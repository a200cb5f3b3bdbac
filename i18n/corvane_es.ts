<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Answer_Cleaning</name>
    <message>
        <source>Device does not have a battery connected.</source>
        <translation>El dispositivo no tiene batería conectada.</translation>
    </message>
    <message>
        <source>%1% ( Charging )</source>
        <translation>%1% (cargando)</translation>
    </message>
    <message>
        <source>Recognized power fault.</source>
        <translation>Se ha detectado un fallo de alimentación.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocida</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Buena</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
</context>
<context>
    <name>Appearance_Menu</name>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Claro</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Oscuro</translation>
    </message>
    <message>
        <source>&amp;High contrast</source>
        <translation>&amp;Alto contraste</translation>
    </message>
    <message>
        <source>&amp;As the desktop</source>
        <translation>Como el &amp;escritorio</translation>
    </message>
</context>
<context>
    <name>Bubble_Words</name>
    <message>
        <source>%1 is lost</source>
        <translation>%1 se pierde</translation>
    </message>
    <message>
        <source>%1 arrives as a blank</source>
        <translation>%1 llega como un espacio</translation>
    </message>
    <message>
        <source>%1 arrives as %2</source>
        <translation>%1 llega como %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n más</numerusform>
            <numerusform>%n más</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>%1 makes this message Unicode</source>
        <translation>%1 obliga a enviar este mensaje como Unicode</translation>
    </message>
    <message>
        <source>%1 make this message Unicode</source>
        <translation>%1 obligan a enviar este mensaje como Unicode</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n parts instead of %2.</source>
        <translation>
            <numerusform>%1: %n parte en lugar de %2.</numerusform>
            <numerusform>%1: %n partes en lugar de %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 part of %1, %2 left</source>
        <translation>1 parte de %1, quedan %2</translation>
    </message>
    <message numerus="yes">
        <source>%n parts of %1, %2 left in the last</source>
        <translation>
            <numerusform>%n parte de %1, quedan %2 en la última</numerusform>
            <numerusform>%n partes de %1, quedan %2 en la última</numerusform>
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
        <translation>No se ha encontrado ningún teléfono ni módem por USB o Bluetooth. Enciéndalo y conéctelo como se explica arriba; puede tardar unos segundos en aparecer. Un módem conectado a un puerto serie del propio equipo se ofrece de todos modos, como ttyS0 u otro ttyS, si su cuenta tiene permiso para abrirlo.</translation>
    </message>
    <message>
        <source>Your account may not open %1. Only the system&apos;s administrator can allow it.</source>
        <translation>Su cuenta no tiene permiso para abrir %1. Solo el administrador del sistema puede concederlo.</translation>
    </message>
    <message>
        <source>Your account may not open %1. Members of this group may: %2. Join it with this command, then log out and in again:</source>
        <translation>Su cuenta no tiene permiso para abrir %1. Los miembros de este grupo sí: %2. Únase a él con este comando, cierre la sesión y vuelva a iniciarla:</translation>
    </message>
    <message>
        <source>The service ModemManager is running and may hold the device&apos;s port. If the device is not found or does not answer, stop the service until the next start of the computer:</source>
        <translation>El servicio ModemManager está en marcha y puede tener ocupado el puerto del dispositivo. Si el dispositivo no se encuentra o no responde, detenga el servicio hasta el próximo arranque del equipo:</translation>
    </message>
</context>
<context>
    <name>Connection_Info</name>
    <message>
        <source>Connect your mobile phone</source>
        <translation>Conecte su teléfono</translation>
    </message>
    <message>
        <source>Corvane sends your messages through a mobile phone or GSM modem connected to this computer. Before the search begins, switch the device on and let the computer use it as a modem:</source>
        <translation>Corvane envía sus mensajes por medio de un teléfono o un módem GSM conectado a este equipo. Antes de iniciar la búsqueda, encienda el dispositivo y permita que el equipo lo use como módem:</translation>
    </message>
    <message>
        <source>With a USB cable</source>
        <translation>Con un cable USB</translation>
    </message>
    <message>
        <source>Plug the cable in and unlock the phone. When it asks what the connection is for, choose the modem or data mode – phones call it “Modem”, “PC connection”, “COM port” or “Tethering as a modem” – and not “Charging” or “File transfer”. A GSM modem or USB stick is ready some seconds after it has been plugged in.</source>
        <translation>Conecte el cable y desbloquee el teléfono. Cuando pregunte para qué es la conexión, elija el modo de módem o de datos —los teléfonos lo llaman «Módem», «Conexión a PC», «Puerto COM» o «Anclaje como módem»— y no «Cargar» ni «Transferencia de archivos». Un módem GSM o USB está listo unos segundos después de conectarlo.</translation>
    </message>
    <message>
        <source>With Bluetooth</source>
        <translation>Por Bluetooth</translation>
    </message>
    <message>
        <source>Pair the phone in your desktop’s Bluetooth settings, then bind a serial port to it in a terminal, with the phone’s own address in place of the one shown:</source>
        <translation>Empareje el teléfono en los ajustes de Bluetooth del escritorio y asígnele después un puerto serie desde un terminal, con la dirección de su teléfono en lugar de la que se muestra:</translation>
    </message>
    <message>
        <source>Command that binds a serial port</source>
        <translation>Comando que asigna un puerto serie</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>En este equipo</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>Command to copy</source>
        <translation>Comando para copiar</translation>
    </message>
</context>
<context>
    <name>Contact_Desk</name>
    <message>
        <source>%1 added.</source>
        <translation>Añadidos: %1.</translation>
    </message>
    <message>
        <source>%1 added, 1 row not used.</source>
        <translation>Añadidos: %1; 1 fila sin usar.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %n rows not used.</source>
        <translation>
            <numerusform>Añadidos: %1; %n fila sin usar.</numerusform>
            <numerusform>Añadidos: %1; %n filas sin usar.</numerusform>
        </translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Guardado en %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be written.</source>
        <translation>No se ha podido escribir el archivo %1.</translation>
    </message>
    <message>
        <source>1 row was not sent: %1.</source>
        <translation>No se ha enviado 1 fila: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows were not sent. Of the first, %1.</source>
        <translation>
            <numerusform>No se ha enviado %n fila. Motivo de la primera: %1.</numerusform>
            <numerusform>No se han enviado %n filas. Motivo de la primera: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nobody is on the list yet.</source>
        <translation>Todavía no hay nadie en la lista.</translation>
    </message>
    <message>
        <source>Add contacts from a spreadsheet, CSV or vCard file ...</source>
        <translation>Añadir contactos de una hoja de cálculo, CSV o vCard...</translation>
    </message>
</context>
<context>
    <name>Contact_Source</name>
    <message>
        <source>The clipboard</source>
        <translation>El portapapeles</translation>
    </message>
</context>
<context>
    <name>Contacts_Wnd</name>
    <message>
        <source>Another file ...</source>
        <translation>Otro archivo...</translation>
    </message>
    <message>
        <source>Choose another file</source>
        <translation>Elegir otro archivo</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>Back to the columns and the country</source>
        <translation>Volver a las columnas y al país</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>Look at what is made of each row</source>
        <translation>Ver qué resulta de cada fila</translation>
    </message>
    <message>
        <source>&amp;Add to list</source>
        <translation>Añadir a la &amp;lista</translation>
    </message>
    <message>
        <source>Add the rows that can be used to the list, with the message as it stands</source>
        <translation>Añadir a la lista las filas que sirven, con el mensaje tal como está</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Import contacts</source>
        <translation>Importar contactos</translation>
    </message>
    <message>
        <source>Check before sending</source>
        <translation>Comprobar antes de enviar</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>no hay memoria suficiente</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>Copy_Action</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
</context>
<context>
    <name>CorvaneAppDelegate</name>
    <message>
        <source>No Mobile Phone Device is selected.</source>
        <translation>No hay ningún teléfono seleccionado.</translation>
    </message>
    <message>
        <source>Click here to start Mobile Phone Connection Wizard.</source>
        <translation>Pulse aquí para abrir el asistente de conexión del teléfono.</translation>
    </message>
    <message>
        <source>Find the phones and modems attached to this computer and pick one</source>
        <translation>Buscar los teléfonos y módems conectados a este equipo y elegir uno</translation>
    </message>
    <message>
        <source>Connection &amp;Wizard ...</source>
        <translation>Asistente de &amp;conexión...</translation>
    </message>
    <message>
        <source>Choose the normal type of message, and select those whose message was not taken. Nothing is sent: keep only those, and then press Send</source>
        <translation>Elegir el tipo de mensaje normal y seleccionar los destinatarios cuyo mensaje no se aceptó. No se envía nada: deje solo esos y pulse después Enviar</translation>
    </message>
    <message>
        <source>Choose normal text messages</source>
        <translation>Usar mensajes de texto normales</translation>
    </message>
    <message>
        <source>Recipients</source>
        <translation>Destinatarios</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Número de teléfono</translation>
    </message>
    <message>
        <source>for example +447700900123</source>
        <translation>por ejemplo, +447700900123</translation>
    </message>
    <message>
        <source>Add the number with the message as it stands</source>
        <translation>Añadir el número con el mensaje tal como está</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>Add the numbers of a text or RTF file, one in each line, with the message as it stands. A file can also be dropped on the list, and numbers can be pasted into it</source>
        <translation>Añadir los números de un archivo de texto o RTF, uno por línea, con el mensaje tal como está. También se puede soltar un archivo sobre la lista, o pegar números en ella</translation>
    </message>
    <message>
        <source>&amp;Import ...</source>
        <translation>&amp;Importar...</translation>
    </message>
    <message>
        <source>Add the contacts of a spreadsheet, a CSV or a vCard file, with their names and other fields, after a look at what is made of them</source>
        <translation>Añadir los contactos de una hoja de cálculo, un archivo CSV o una vCard, con sus nombres y otros campos, después de ver qué resulta de ellos</translation>
    </message>
    <message>
        <source>Contacts ...</source>
        <translation>Contactos...</translation>
    </message>
    <message>
        <source>Total Numbers : 0</source>
        <translation>Números en total: 0</translation>
    </message>
    <message>
        <source>Write the numbers of the list into a text file</source>
        <translation>Guardar los números de la lista en un archivo de texto</translation>
    </message>
    <message>
        <source>Ex&amp;port ...</source>
        <translation>Ex&amp;portar...</translation>
    </message>
    <message>
        <source>Clear S&amp;elected</source>
        <translation>&amp;Quitar selección</translation>
    </message>
    <message>
        <source>&amp;Clear All</source>
        <translation>&amp;Vaciar lista</translation>
    </message>
    <message>
        <source>Select the recipients whose message was refused or not tried. One that may have been sent, was written or got no answer is not among them, since it may have arrived</source>
        <translation>Seleccionar los destinatarios cuyo mensaje se rechazó o no se intentó enviar. Quedan fuera los que quizá se enviaron, los escritos y los que no tuvieron respuesta, pues pueden haber llegado</translation>
    </message>
    <message>
        <source>Select those not taken</source>
        <translation>Seleccionar no aceptados</translation>
    </message>
    <message>
        <source>Remove all recipients from the list but those whose message was refused or not tried. Nothing is sent</source>
        <translation>Quitar de la lista a todos los destinatarios salvo aquellos cuyo mensaje se rechazó o no se intentó enviar. No se envía nada</translation>
    </message>
    <message>
        <source>Keep only those</source>
        <translation>Dejar solo esos</translation>
    </message>
    <message>
        <source>Look at what became of each message of the last job that was confirmed, and export that</source>
        <translation>Ver y exportar el resultado de cada mensaje del último envío confirmado</translation>
    </message>
    <message>
        <source>Receipt ...</source>
        <translation>Informe...</translation>
    </message>
    <message>
        <source>Excluded numbers</source>
        <translation>Números excluidos</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>&amp;Message for the numbers you add:</source>
        <translation>&amp;Mensaje para los números que añada:</translation>
    </message>
    <message>
        <source>Put a field into the message. Everybody gets it with the value of their own</source>
        <translation>Insertar un campo en el mensaje. Cada destinatario lo recibe con su propio valor</translation>
    </message>
    <message>
        <source>Insert field</source>
        <translation>Insertar campo</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>0 caracteres</translation>
    </message>
    <message>
        <source>Write one new message for the recipients selected in the list</source>
        <translation>Escribir un mensaje nuevo para los destinatarios seleccionados en la lista</translation>
    </message>
    <message>
        <source>Edit the
messages of
selected items</source>
        <translation>Modificar los
mensajes
seleccionados</translation>
    </message>
    <message>
        <source>Copy the message above to all, the selected or the blank items of the list</source>
        <translation>Copiar el mensaje de arriba a todos los elementos de la lista, a los seleccionados o a los que no tienen mensaje</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Envío</translation>
    </message>
    <message>
        <source>Message &amp;type:</source>
        <translation>Tip&amp;o de mensaje:</translation>
    </message>
    <message>
        <source>Message type</source>
        <translation>Tipo de mensaje</translation>
    </message>
    <message>
        <source>A notification shows at once on the handset and is not stored</source>
        <translation>Una notificación se muestra al instante en el teléfono y no se guarda en él</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Notificación</translation>
    </message>
    <message>
        <source>Text message</source>
        <translation>Mensaje de texto</translation>
    </message>
    <message>
        <source>Needed for every text with characters that Help does not list, such as € ê ő ö ù or emoji: they arrive as others without it. 70 characters fit one message instead of 160</source>
        <translation>Necesario para todo texto con caracteres que no figuran en la Ayuda, como € ê ő ö ù o emojis: sin esto llegan convertidos en otros. En un mensaje caben 70 caracteres en lugar de 160</translation>
    </message>
    <message>
        <source>Send as &amp;Unicode</source>
        <translation>Enviar como &amp;Unicode</translation>
    </message>
    <message>
        <source>Refuse a number that the list has already, and send to each number once</source>
        <translation>Rechazar los números que ya están en la lista y enviar una sola vez a cada número</translation>
    </message>
    <message>
        <source>S&amp;kip duplicate numbers</source>
        <translation>Omitir números &amp;duplicados</translation>
    </message>
    <message>
        <source>Refuse the numbers of the applied exclusion lists, and never send to them</source>
        <translation>Rechazar los números de las listas de exclusión aplicadas y no enviarles nada</translation>
    </message>
    <message>
        <source>Heed the exc&amp;lusion lists</source>
        <translation>Respetar listas de exc&amp;lusión</translation>
    </message>
    <message>
        <source>Keep lists of numbers that are not to be sent to</source>
        <translation>Mantener listas de números a los que no se debe enviar</translation>
    </message>
    <message>
        <source>Exclusi&amp;on Lists ...</source>
        <translation>Listas de e&amp;xclusión...</translation>
    </message>
    <message>
        <source>Keep a record of every message that was handed to the phone</source>
        <translation>Conservar un registro de cada mensaje pasado al teléfono</translation>
    </message>
    <message>
        <source>Sa&amp;ve sent items</source>
        <translation>&amp;Guardar los enviados</translation>
    </message>
    <message>
        <source>Look at the records of messages handed to the phone</source>
        <translation>Ver el registro de los mensajes pasados al teléfono</translation>
    </message>
    <message>
        <source>Sent Items ...</source>
        <translation>Enviados...</translation>
    </message>
    <message>
        <source>Keep the text of every message that was handed to the phone, once</source>
        <translation>Conservar, una sola vez, el texto de cada mensaje pasado al teléfono</translation>
    </message>
    <message>
        <source>Save messa&amp;ges as templates</source>
        <translation>Guardar mensa&amp;jes como plantillas</translation>
    </message>
    <message>
        <source>Keep texts that are used again, and put one into the message</source>
        <translation>Conservar textos que se usan a menudo e insertar uno en el mensaje</translation>
    </message>
    <message>
        <source>Templates ...</source>
        <translation>Plantillas...</translation>
    </message>
    <message>
        <source>Send each message as soon as the phone or network has answered for the one before it, in the alphabet that its text needs, and never a second time unasked. A record of the job is kept until it is finished</source>
        <translation>Enviar cada mensaje en cuanto el teléfono o la red haya respondido al anterior, en el alfabeto que necesite su texto, y nunca por segunda vez sin preguntar. Se lleva un registro del envío hasta que termina</translation>
    </message>
    <message>
        <source>Con&amp;firm each message</source>
        <translation>Con&amp;firmar cada mensaje</translation>
    </message>
    <message>
        <source>Look at the receipts that were kept</source>
        <translation>Ver los informes de envío conservados</translation>
    </message>
    <message>
        <source>Receipts ...</source>
        <translation>Informes...</translation>
    </message>
    <message>
        <source>Ask the network to report what was delivered, and wait up to a minute for that at the end. Some networks charge for reports, and some never send any</source>
        <translation>Pedir a la red que informe de lo que se ha entregado y esperar esos informes hasta un minuto al final. Algunas redes cobran por ellos y otras no los envían nunca</translation>
    </message>
    <message>
        <source>Ask for delivery reports</source>
        <translation>Pedir informes de entrega</translation>
    </message>
    <message>
        <source>Keep the record of a finished job, with every number and message, instead of removing it</source>
        <translation>Conservar el registro de un envío terminado, con todos los números y mensajes, en lugar de borrarlo</translation>
    </message>
    <message>
        <source>Keep the receipt</source>
        <translation>Conservar el informe</translation>
    </message>
    <message>
        <source>Have these boxes ticked as they are now, whenever the program starts</source>
        <translation>Tener estas casillas marcadas como ahora cada vez que se inicie el programa</translation>
    </message>
    <message>
        <source>Remember these choices</source>
        <translation>Recordar estas opciones</translation>
    </message>
    <message>
        <source>Pause after each batch of messages</source>
        <translation>Hacer una pausa después de cada tanda de mensajes</translation>
    </message>
    <message>
        <source>&amp;Delay: after</source>
        <translation>Pausa: &amp;tras</translation>
    </message>
    <message>
        <source>Messages before each pause</source>
        <translation>Mensajes antes de cada pausa</translation>
    </message>
    <message>
        <source>How many messages are sent before each pause</source>
        <translation>Cuántos mensajes se envían antes de cada pausa</translation>
    </message>
    <message numerus="yes">
        <source>messages wait</source>
        <translation>
            <numerusform>mensaje, esperar</numerusform>
            <numerusform>mensajes, esperar</numerusform>
        </translation>
    </message>
    <message>
        <source>Length of each pause</source>
        <translation>Duración de cada pausa</translation>
    </message>
    <message>
        <source>How long each pause lasts</source>
        <translation>Cuánto dura cada pausa</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Choose light or dark colours, or those with the highest contrast</source>
        <translation>Elegir colores claros u oscuros, o los de mayor contraste</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Empty the list, the fields and the options</source>
        <translation>Vaciar la lista y los campos, y restablecer las opciones</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Restablecer</translation>
    </message>
    <message>
        <source>What serves better for long lists, and how to hand this one over</source>
        <translation>Qué conviene más para listas largas, y cómo traspasar esta</translation>
    </message>
    <message>
        <source>Other ways ...</source>
        <translation>Otras vías...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Look at each message as it will be sent, what is left out and why. Nothing is sent</source>
        <translation>Ver cada mensaje como se enviará, qué se deja fuera y por qué. No se envía nada</translation>
    </message>
    <message>
        <source>Check before sending ...</source>
        <translation>Comprobar antes de enviar...</translation>
    </message>
    <message>
        <source>Send each recipient&apos;s message</source>
        <translation>Enviar a cada destinatario su mensaje</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Enviar</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Excluded number</source>
        <translation>Número excluido</translation>
    </message>
    <message>
        <source>1 recipient removed.</source>
        <translation>Se ha quitado 1 destinatario.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients removed.</source>
        <translation>
            <numerusform>Se ha quitado %n destinatario.</numerusform>
            <numerusform>Se han quitado %n destinatarios.</numerusform>
        </translation>
    </message>
    <message>
        <source>List, fields and options were reset.</source>
        <translation>Se han restablecido la lista, los campos y las opciones.</translation>
    </message>
    <message>
        <source>Everything that can be done here, with its keys</source>
        <translation>Todo lo que se puede hacer aquí, con sus teclas</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>What the program does, in short, and how to use it</source>
        <translation>Qué hace el programa, en breve, y cómo se usa</translation>
    </message>
    <message>
        <source>End the program, after a question</source>
        <translation>Salir del programa, tras una pregunta</translation>
    </message>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Número:</translation>
    </message>
</context>
<context>
    <name>Delayed_Delivery</name>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n segundo</numerusform>
            <numerusform>%n segundos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n minuto</numerusform>
            <numerusform>%n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>%n hora</numerusform>
            <numerusform>%n horas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Demo_Phone</name>
    <message>
        <source>The virtual phone could not be started: %1: %2</source>
        <translation>No se ha podido iniciar el teléfono virtual: %1: %2</translation>
    </message>
</context>
<context>
    <name>Desktop_Help</name>
    <message>
        <source>Messages are being sent</source>
        <translation>Enviando mensajes</translation>
    </message>
    <message>
        <source>Sending waits</source>
        <translation>El envío está en espera</translation>
    </message>
    <message>
        <source>Sending has ended</source>
        <translation>El envío ha terminado</translation>
    </message>
</context>
<context>
    <name>Doctor_Wnd</name>
    <message>
        <source>Why does my phone not show?</source>
        <translation>¿Por qué no aparece mi teléfono?</translation>
    </message>
    <message>
        <source>This looks at the ports of this computer and asks the devices on them. Nothing is sent, and no PIN is tried.</source>
        <translation>Aquí se examinan los puertos de este equipo y se consulta a los dispositivos conectados. No se envía nada ni se prueba ningún PIN.</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Lo que se ha encontrado</translation>
    </message>
    <message>
        <source>Looking</source>
        <translation>Examinando</translation>
    </message>
    <message>
        <source>No phone at hand?</source>
        <translation>¿No tiene un teléfono a mano?</translation>
    </message>
    <message>
        <source>Try the program with a virtual phone: nothing is really sent.</source>
        <translation>Pruebe el programa con un teléfono virtual: en realidad no se envía nada.</translation>
    </message>
    <message>
        <source>Use the &amp;virtual phone</source>
        <translation>Usar el teléfono &amp;virtual</translation>
    </message>
    <message>
        <source>Look &amp;again</source>
        <translation>Volver a &amp;mirar</translation>
    </message>
    <message>
        <source>Copy &amp;report</source>
        <translation>Copiar in&amp;forme</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Looking at what is connected ...</source>
        <translation>Examinando lo que está conectado...</translation>
    </message>
    <message>
        <source>Asking %1 ...</source>
        <translation>Consultando %1...</translation>
    </message>
    <message>
        <source>A device is there that could send.</source>
        <translation>Hay un dispositivo que podría enviar.</translation>
    </message>
    <message>
        <source>No device could send. What helps stands above.</source>
        <translation>Ningún dispositivo podría enviar. Arriba se indica qué hacer.</translation>
    </message>
    <message>
        <source>The report is copied. It holds no numbers and no texts of messages.</source>
        <translation>El informe se ha copiado. No contiene números ni textos de mensajes.</translation>
    </message>
</context>
<context>
    <name>Exclusion_Trouble</name>
    <message>
        <source>The file that says which exclusion lists are applied
can not be read: no number is excluded.</source>
        <translation>No se puede leer el archivo que indica qué listas de exclusión
se aplican: no se excluye ningún número.</translation>
    </message>
    <message>
        <source>The exclusion list %1
can not be used: its numbers are not excluded.</source>
        <translation>La lista de exclusión %1
no se puede usar: sus números no se excluyen.</translation>
    </message>
    <message>
        <source>The exclusion lists %1
can not be used: their numbers are not excluded.</source>
        <translation>Las listas de exclusión %1
no se pueden usar: sus números no se excluyen.</translation>
    </message>
    <message>
        <source>The exclusion lists %1 and %2 more
can not be used: their numbers are not excluded.</source>
        <translation>Las listas de exclusión %1 y %2 más
no se pueden usar: sus números no se excluyen.</translation>
    </message>
</context>
<context>
    <name>Exclusion_Wizard</name>
    <message>
        <source>Exclusion List Wizard</source>
        <translation>Asistente de listas de exclusión</translation>
    </message>
    <message>
        <source>Available exclusion lists</source>
        <translation>Listas de exclusión disponibles</translation>
    </message>
    <message>
        <source>Apply the selected lists</source>
        <translation>Aplicar las listas seleccionadas</translation>
    </message>
    <message>
        <source>Exclude the numbers of the selected lists when sending</source>
        <translation>Excluir los números de las listas seleccionadas al enviar</translation>
    </message>
    <message>
        <source>&amp;Apply  ›</source>
        <translation>&amp;Aplicar  ›</translation>
    </message>
    <message>
        <source>Apply all lists</source>
        <translation>Aplicar todas las listas</translation>
    </message>
    <message>
        <source>Exclude the numbers of all lists when sending</source>
        <translation>Excluir los números de todas las listas al enviar</translation>
    </message>
    <message>
        <source>Apply a&amp;ll  »</source>
        <translation>Aplicar &amp;todas  »</translation>
    </message>
    <message>
        <source>Remove the selected applied lists</source>
        <translation>Quitar las listas aplicadas seleccionadas</translation>
    </message>
    <message>
        <source>Do not exclude the numbers of the selected lists any more</source>
        <translation>Dejar de excluir los números de las listas seleccionadas</translation>
    </message>
    <message>
        <source>‹  &amp;Remove</source>
        <translation>‹  &amp;Quitar</translation>
    </message>
    <message>
        <source>Remove all applied lists</source>
        <translation>Quitar todas las listas aplicadas</translation>
    </message>
    <message>
        <source>Do not exclude the numbers of any list any more</source>
        <translation>No excluir los números de ninguna lista</translation>
    </message>
    <message>
        <source>«  Re&amp;move all</source>
        <translation>«  Quitar to&amp;das</translation>
    </message>
    <message>
        <source>Lists to exclude when sending SMS</source>
        <translation>Listas que se excluyen al enviar SMS</translation>
    </message>
    <message>
        <source>Make a new exclusion list</source>
        <translation>Crear una lista de exclusión</translation>
    </message>
    <message>
        <source>Add &amp;New ...</source>
        <translation>&amp;Nueva lista...</translation>
    </message>
    <message>
        <source>Edit the numbers of the selected list</source>
        <translation>Modificar los números de la lista seleccionada</translation>
    </message>
    <message>
        <source>&amp;Update ...</source>
        <translation>&amp;Modificar...</translation>
    </message>
    <message>
        <source>Delete the selected lists and their numbers</source>
        <translation>Eliminar las listas seleccionadas y sus números</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Keep the lists on the right as those to exclude when sending</source>
        <translation>Conservar las listas de la derecha como las que se excluyen al enviar</translation>
    </message>
    <message>
        <source>&amp;Save Applied</source>
        <translation>Guardar a&amp;plicadas</translation>
    </message>
    <message>
        <source>Exclusion list name</source>
        <translation>Nombre de la lista de exclusión</translation>
    </message>
    <message>
        <source>A name for the list, at most 50 characters</source>
        <translation>Un nombre para la lista, de 50 caracteres como máximo</translation>
    </message>
    <message>
        <source>Administration team</source>
        <translation>Equipo de administración</translation>
    </message>
    <message>
        <source>File of numbers</source>
        <translation>Archivo de números</translation>
    </message>
    <message>
        <source>A text or rich-text file with one number a line</source>
        <translation>Un archivo de texto o de texto enriquecido con un número por línea</translation>
    </message>
    <message>
        <source>Pick the file</source>
        <translation>Elegir el archivo</translation>
    </message>
    <message>
        <source>Bro&amp;wse ...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Add the numbers of the file to the list</source>
        <translation>Añadir a la lista los números del archivo</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>Car&amp;gar</translation>
    </message>
    <message>
        <source>or</source>
        <translation>o</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Número de teléfono</translation>
    </message>
    <message>
        <source>A phone number, at most 20 characters</source>
        <translation>Un número de teléfono, de 20 caracteres como máximo</translation>
    </message>
    <message>
        <source>Add the number to the list</source>
        <translation>Añadir el número a la lista</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Añad&amp;ir</translation>
    </message>
    <message>
        <source>Numbers of the list</source>
        <translation>Números de la lista</translation>
    </message>
    <message>
        <source>Total Numbers : 0</source>
        <translation>Números en total: 0</translation>
    </message>
    <message>
        <source>Edit the selected number</source>
        <translation>Modificar el número seleccionado</translation>
    </message>
    <message>
        <source>Remove the selected numbers from the list</source>
        <translation>Quitar de la lista los números seleccionados</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Close; applied lists that were not saved are forgotten</source>
        <translation>Cerrar; las listas aplicadas que no se hayan guardado se descartan</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>At&amp;rás</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>Save the list</source>
        <translation>Guardar la lista</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Finalizar</translation>
    </message>
    <message>
        <source>Close; a list that was not finished is forgotten</source>
        <translation>Cerrar; una lista sin finalizar se descarta</translation>
    </message>
    <message>
        <source>Exclusion &amp;list name:</source>
        <translation>Nombre de &amp;la lista de exclusión:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Ejemplo:</translation>
    </message>
    <message>
        <source>Numbers from a f&amp;ile:</source>
        <translation>Números de un arc&amp;hivo:</translation>
    </message>
    <message>
        <source>One &amp;number:</source>
        <translation>&amp;Un número:</translation>
    </message>
</context>
<context>
    <name>Export_Option</name>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>In which format do you want to export the list?</source>
        <translation>¿En qué formato quiere exportar la lista?</translation>
    </message>
    <message>
        <source>&amp;Text file</source>
        <translation>Archivo de &amp;texto</translation>
    </message>
    <message>
        <source>Plain text, with a line between the entries</source>
        <translation>Texto sin formato, con una línea entre las entradas</translation>
    </message>
    <message>
        <source>&amp;HTML page</source>
        <translation>Página &amp;HTML</translation>
    </message>
    <message>
        <source>A table that a web browser shows</source>
        <translation>Una tabla que se ve en un navegador web</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>Fields_Strip</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>Save with fields ...</source>
        <translation>Guardar con campos...</translation>
    </message>
    <message>
        <source>Write the list with its messages and fields into a table that can be opened again</source>
        <translation>Guardar la lista con sus mensajes y campos en una tabla que se puede volver a abrir</translation>
    </message>
    <message>
        <source>Fields of the list</source>
        <translation>Campos de la lista</translation>
    </message>
    <message>
        <source>Fields: %1</source>
        <translation>Campos: %1</translation>
    </message>
</context>
<context>
    <name>File_Panels</name>
    <message>
        <source>
%1 is there already.

Do you want to replace it?</source>
        <translation>
%1 ya existe.

¿Quiere reemplazar el archivo?</translation>
    </message>
</context>
<context>
    <name>Fill_Msg_In_List</name>
    <message>
        <source>Fill message into list</source>
        <translation>Copiar el mensaje en la lista</translation>
    </message>
    <message>
        <source>Copy the message in the composer to:</source>
        <translation>Copiar el mensaje redactado a:</translation>
    </message>
    <message>
        <source>Every number gets the message in the composer</source>
        <translation>Todos los números reciben el mensaje redactado</translation>
    </message>
    <message>
        <source>&amp;All numbers in the list</source>
        <translation>&amp;Todos los números de la lista</translation>
    </message>
    <message>
        <source>The numbers selected in the list get the message; the others keep theirs</source>
        <translation>Los números seleccionados en la lista reciben el mensaje; los demás conservan el suyo</translation>
    </message>
    <message>
        <source>The &amp;selected numbers</source>
        <translation>Los números &amp;seleccionados</translation>
    </message>
    <message>
        <source>The numbers whose message is empty get the message; the others keep theirs</source>
        <translation>Los números sin mensaje reciben este; los demás conservan el suyo</translation>
    </message>
    <message>
        <source>The numbers without a &amp;message</source>
        <translation>Los números sin &amp;mensaje</translation>
    </message>
    <message>
        <source>Leave the list as it is</source>
        <translation>Dejar la lista como está</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Copy the message</source>
        <translation>Copiar el mensaje</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>C&amp;opiar</translation>
    </message>
</context>
<context>
    <name>Find_Strip</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Show all rows again (Escape)</source>
        <translation>Mostrar de nuevo todas las filas (Esc)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Buscar:</translation>
    </message>
    <message>
        <source>Only rows with all these words are shown. The list, and what is sent, stay as they are</source>
        <translation>Solo se muestran las filas con todas estas palabras. La lista y lo que se envía no cambian</translation>
    </message>
</context>
<context>
    <name>Finding_Row</name>
    <message>
        <source>Command to copy</source>
        <translation>Comando para copiar</translation>
    </message>
</context>
<context>
    <name>Fixed_Text</name>
    <message>
        <source>This number, or the service centre&apos;s, does not exist.</source>
        <extracomment>Texts::Causes::No_Such_Number</extracomment>
        <translation>Este número, o el del centro de mensajes, no existe.</translation>
    </message>
    <message>
        <source>The recipient&apos;s number is invalid.</source>
        <translation>El número del destinatario no es válido.</translation>
    </message>
    <message>
        <source>Messages to this recipient are barred.</source>
        <translation>Los mensajes a este destinatario están bloqueados.</translation>
    </message>
    <message>
        <source>The recipient&apos;s network is out of order.</source>
        <translation>La red del destinatario está fuera de servicio.</translation>
    </message>
    <message>
        <source>The operator has barred sending.</source>
        <translation>El operador ha bloqueado el envío.</translation>
    </message>
    <message>
        <source>Sending is barred on this SIM card.</source>
        <translation>El envío está bloqueado en esta tarjeta SIM.</translation>
    </message>
    <message>
        <source>The service centre does not know this SIM card.</source>
        <translation>El centro de mensajes no conoce esta tarjeta SIM.</translation>
    </message>
    <message>
        <source>The network does not grant this service.</source>
        <translation>La red no permite este servicio.</translation>
    </message>
    <message>
        <source>The network does not know this SIM card.</source>
        <translation>La red no conoce esta tarjeta SIM.</translation>
    </message>
    <message>
        <source>Text messages are not part of the contract.</source>
        <translation>Los mensajes de texto no están incluidos en el contrato.</translation>
    </message>
    <message>
        <source>The network does not offer text messages.</source>
        <translation>La red no ofrece mensajes de texto.</translation>
    </message>
    <message>
        <source>There is no contract with the service centre.</source>
        <translation>No hay contrato con el centro de mensajes.</translation>
    </message>
    <message>
        <source>The network has failed.</source>
        <translation>La red ha fallado.</translation>
    </message>
    <message>
        <source>The network rejects this message.</source>
        <translation>La red rechaza este mensaje.</translation>
    </message>
    <message>
        <source>The network is congested.</source>
        <translation>La red está saturada.</translation>
    </message>
    <message>
        <source>The network is out of order.</source>
        <translation>La red está fuera de servicio.</translation>
    </message>
    <message>
        <source>The network has a temporary failure.</source>
        <translation>La red tiene un fallo temporal.</translation>
    </message>
    <message>
        <source>The service centre is congested.</source>
        <translation>El centro de mensajes está saturado.</translation>
    </message>
    <message>
        <source>The network has no room for messages now.</source>
        <translation>La red no tiene ahora sitio para mensajes.</translation>
    </message>
    <message>
        <source>The network has lost track of this message.</source>
        <translation>La red ha perdido el rastro de este mensaje.</translation>
    </message>
    <message>
        <source>There is trouble between two networks.</source>
        <translation>Hay problemas entre dos redes.</translation>
    </message>
    <message>
        <source>The service centre is busy.</source>
        <translation>El centro de mensajes está ocupado.</translation>
    </message>
    <message>
        <source>The service centre has failed.</source>
        <translation>El centro de mensajes ha fallado.</translation>
    </message>
    <message>
        <source>The service centre already has this message.</source>
        <translation>El centro de mensajes ya tiene este mensaje.</translation>
    </message>
    <message>
        <source>The network gives a reason of its own.</source>
        <translation>La red da un motivo propio.</translation>
    </message>
    <message>
        <source>The network gives no reason.</source>
        <translation>La red no da ningún motivo.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number is not known.</source>
        <translation>No se conoce el número del centro de mensajes.</translation>
    </message>
    <message>
        <source>There is no network.</source>
        <translation>No hay red.</translation>
    </message>
    <message>
        <source>The network allows nothing but emergency calls.</source>
        <translation>La red solo permite llamadas de emergencia.</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>La red no ha respondido a tiempo.</translation>
    </message>
    <message>
        <source>There was no radio connection.</source>
        <translation>No había conexión de radio.</translation>
    </message>
    <message>
        <source>The radio connection was lost.</source>
        <translation>Se ha perdido la conexión de radio.</translation>
    </message>
    <message>
        <source>The network found the message malformed.</source>
        <translation>La red considera que el mensaje está mal formado.</translation>
    </message>
    <message>
        <source>The network does not accept this kind of message.</source>
        <translation>La red no acepta este tipo de mensaje.</translation>
    </message>
    <message>
        <source>The network does not accept this alphabet.</source>
        <translation>La red no acepta este alfabeto.</translation>
    </message>
    <message>
        <source>The network accepts no message that shows at once.</source>
        <translation>La red no acepta mensajes que se muestran al instante.</translation>
    </message>
    <message>
        <source>The network does not accept this command.</source>
        <translation>La red no acepta este comando.</translation>
    </message>
    <message>
        <source>The network does not keep messages for so long.</source>
        <translation>La red no guarda los mensajes tanto tiempo.</translation>
    </message>
    <message>
        <source>The modem rejects the message or its number.</source>
        <translation>El módem rechaza el mensaje o su número.</translation>
    </message>
    <message>
        <source>There is no SIM card.</source>
        <translation>No hay tarjeta SIM.</translation>
    </message>
    <message>
        <source>This is the wrong SIM card.</source>
        <translation>Esta no es la tarjeta SIM correcta.</translation>
    </message>
    <message>
        <source>The SIM card has failed.</source>
        <translation>La tarjeta SIM ha fallado.</translation>
    </message>
    <message>
        <source>The SIM card is busy.</source>
        <translation>La tarjeta SIM está ocupada.</translation>
    </message>
    <message>
        <source>The SIM card has no room for messages.</source>
        <translation>La tarjeta SIM no tiene sitio para mensajes.</translation>
    </message>
    <message>
        <source>The SIM card cannot store messages.</source>
        <translation>La tarjeta SIM no puede guardar mensajes.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN.</source>
        <translation>La tarjeta SIM pide su PIN.</translation>
    </message>
    <message>
        <source>The phone wants the PIN that ties it to its SIM card.</source>
        <translation>El teléfono pide el PIN que lo vincula a su tarjeta SIM.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN2.</source>
        <translation>La tarjeta SIM pide su PIN2.</translation>
    </message>
    <message>
        <source>The SIM card wants its PUK.</source>
        <translation>La tarjeta SIM pide su PUK.</translation>
    </message>
    <message>
        <source>The SIM card wants its PUK2.</source>
        <translation>La tarjeta SIM pide su PUK2.</translation>
    </message>
    <message>
        <source>The modem was busy with another message.</source>
        <translation>El módem estaba ocupado con otro mensaje.</translation>
    </message>
    <message>
        <source>The phone has no room for messages.</source>
        <translation>El teléfono no tiene sitio para mensajes.</translation>
    </message>
    <message>
        <source>The phone has failed.</source>
        <translation>El teléfono ha fallado.</translation>
    </message>
    <message>
        <source>Another program has reserved the phone&apos;s messages.</source>
        <translation>Otro programa tiene reservados los mensajes del teléfono.</translation>
    </message>
    <message>
        <source>The phone does not allow sending now.</source>
        <translation>El teléfono no permite enviar ahora.</translation>
    </message>
    <message>
        <source>The phone does not support this.</source>
        <translation>El teléfono no admite esto.</translation>
    </message>
    <message>
        <source>The phone&apos;s memory has failed.</source>
        <translation>La memoria del teléfono ha fallado.</translation>
    </message>
    <message>
        <source>The phone has no such place in its memory.</source>
        <translation>El teléfono no tiene esa posición en su memoria.</translation>
    </message>
    <message>
        <source>The phone expects no acknowledgement.</source>
        <translation>El teléfono no espera ninguna confirmación.</translation>
    </message>
    <message>
        <source>The modem is still starting.</source>
        <translation>El módem todavía se está iniciando.</translation>
    </message>
    <message>
        <source>The modem is busy.</source>
        <translation>El módem está ocupado.</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Error desconocido</translation>
    </message>
    <message>
        <source>The modem gives a reason of its own.</source>
        <translation>El módem da un motivo propio.</translation>
    </message>
    <message>
        <source>The modem gives a reason that is not known here.</source>
        <translation>El módem da un motivo que aquí no se conoce.</translation>
    </message>
    <message>
        <source>The modem refuses and gives no reason.</source>
        <translation>El módem rechaza el mensaje sin dar ningún motivo.</translation>
    </message>
    <message>
        <source>The device is gone. Waiting until it is back.</source>
        <translation>El dispositivo ha desaparecido. Esperando a que vuelva.</translation>
    </message>
    <message>
        <source>The device does not answer. Waiting until it does.</source>
        <translation>El dispositivo no responde. Esperando a que lo haga.</translation>
    </message>
    <message>
        <source>Still waiting for the network.</source>
        <translation>Se sigue esperando a la red.</translation>
    </message>
    <message>
        <source>Waiting for delivery reports.</source>
        <translation>Esperando los informes de entrega.</translation>
    </message>
    <message>
        <source>The device was not ready in time.</source>
        <translation>El dispositivo no estuvo listo a tiempo.</translation>
    </message>
    <message>
        <source>The job&apos;s journal cannot be written, so nothing more is sent</source>
        <translation>No se puede escribir el diario del envío, así que no se envía nada más</translation>
    </message>
    <message>
        <source>Several messages in a row ended alike, so nothing more is sent</source>
        <translation>Varios mensajes seguidos han acabado igual, así que no se envía nada más</translation>
    </message>
    <message>
        <source>Not every message was sent. The list says what became of each.</source>
        <translation>No se han enviado todos los mensajes. La lista indica qué ha sido de cada uno.</translation>
    </message>
    <message>
        <source>The device takes no text messages.</source>
        <translation>El dispositivo no acepta mensajes de texto.</translation>
    </message>
    <message>
        <source>Those not taken may pass as normal text messages.</source>
        <translation>Los no aceptados quizá pasen como mensajes de texto normales.</translation>
    </message>
    <message>
        <source>The device gave no prompt.</source>
        <translation>El dispositivo no ha pedido el texto.</translation>
    </message>
    <message>
        <source>The device gave no result in time.</source>
        <translation>El dispositivo no ha dado un resultado a tiempo.</translation>
    </message>
    <message>
        <source>The device said OK but gave no reference.</source>
        <translation>El dispositivo ha contestado OK, pero sin referencia.</translation>
    </message>
    <message>
        <source>The device&apos;s result may be that of an earlier message.</source>
        <translation>El resultado del dispositivo puede ser el de un mensaje anterior.</translation>
    </message>
    <message>
        <source>The device was gone before its result.</source>
        <translation>El dispositivo desapareció antes de dar el resultado.</translation>
    </message>
    <message>
        <source>The program ended before the result.</source>
        <translation>El programa se cerró antes del resultado.</translation>
    </message>
    <message>
        <source>Somebody has counted it as sent.</source>
        <translation>Alguien lo ha dado por enviado.</translation>
    </message>
    <message>
        <source>The number cannot be dialled.</source>
        <translation>No se puede marcar el número.</translation>
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
        <translation>%1 está conectado.</translation>
    </message>
    <message>
        <source>No phone or modem was found on USB or Bluetooth.</source>
        <translation>No se ha encontrado ningún teléfono ni módem por USB o Bluetooth.</translation>
    </message>
    <message>
        <source>Switch it on, connect it, and on a phone choose the modem or data mode. It takes some seconds until it appears.</source>
        <translation>Enciéndalo, conéctelo y, si es un teléfono, elija en él el modo de módem o de datos. Tarda unos segundos en aparecer.</translation>
    </message>
    <message>
        <source>There is no device at %1.</source>
        <translation>No hay ningún dispositivo en %1.</translation>
    </message>
    <message>
        <source>Plug it in again, or look under which name it appears now.</source>
        <translation>Vuelva a conectarlo, o mire con qué nombre aparece ahora.</translation>
    </message>
    <message>
        <source>%1 is connected as a network card. In this mode it has no port for messages.</source>
        <translation>%1 está conectado como tarjeta de red. En este modo no tiene puerto para mensajes.</translation>
    </message>
    <message>
        <source>Switch it to its modem mode with the maker&apos;s own program or page, or use another modem.</source>
        <translation>Cámbielo al modo de módem con el programa o la página del fabricante, o use otro módem.</translation>
    </message>
    <message>
        <source>%1 is connected as a disc. In this mode it has no port for messages.</source>
        <translation>%1 está conectado como disco. En este modo no tiene puerto para mensajes.</translation>
    </message>
    <message>
        <source>Install the program that switches such sticks, then unplug the stick and plug it in again:</source>
        <translation>Instale el programa que cambia el modo de estos módems USB; después, desconecte el suyo y vuelva a conectarlo:</translation>
    </message>
    <message>
        <source>%1 is for positions (GPS), not for messages.</source>
        <translation>%1 sirve para la posición (GPS), no para mensajes.</translation>
    </message>
    <message>
        <source>%1 is for the maker&apos;s diagnostics, not for messages.</source>
        <translation>%1 sirve para los diagnósticos del fabricante, no para mensajes.</translation>
    </message>
    <message>
        <source>%1 is for sound, not for messages.</source>
        <translation>%1 sirve para el sonido, no para mensajes.</translation>
    </message>
    <message>
        <source>This system&apos;s settings say that %1 is no modem&apos;s port.</source>
        <translation>Según los ajustes de este sistema, %1 no es el puerto de un módem.</translation>
    </message>
    <message>
        <source>Use another port of the same device.</source>
        <translation>Use otro puerto del mismo dispositivo.</translation>
    </message>
    <message>
        <source>Your account may not open %1.</source>
        <translation>Su cuenta no tiene permiso para abrir %1.</translation>
    </message>
    <message>
        <source>Members of the group %1 may. Join it with this command, then log out and in again:</source>
        <translation>Los miembros del grupo %1 sí pueden. Únase a él con este comando, cierre la sesión y vuelva a iniciarla:</translation>
    </message>
    <message>
        <source>Only the system&apos;s administrator can allow it.</source>
        <translation>Solo el administrador del sistema puede permitirlo.</translation>
    </message>
    <message>
        <source>%1 is in use by %2 (process %3).</source>
        <translation>%1 está en uso por %2 (proceso %3).</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 está en uso por otro programa.</translation>
    </message>
    <message>
        <source>End that program, and look again.</source>
        <translation>Cierre ese programa y vuelva a mirar.</translation>
    </message>
    <message>
        <source>%1 is in use by ModemManager, the system&apos;s modem service.</source>
        <translation>%1 está en uso por ModemManager, el servicio de módems del sistema.</translation>
    </message>
    <message>
        <source>Stop the service until the next start of the computer:</source>
        <translation>Detenga el servicio hasta el próximo arranque del equipo:</translation>
    </message>
    <message>
        <source>%1 cannot be opened (%2).</source>
        <translation>%1 no se puede abrir (%2).</translation>
    </message>
    <message>
        <source>Unplug the device, wait ten seconds and plug it in again.</source>
        <translation>Desconecte el dispositivo, espere diez segundos y vuelva a conectarlo.</translation>
    </message>
    <message>
        <source>%1 answers.</source>
        <translation>%1 responde.</translation>
    </message>
    <message>
        <source>%1 does not answer as a modem.</source>
        <translation>%1 no responde como un módem.</translation>
    </message>
    <message>
        <source>Unplug the device, wait ten seconds and plug it in again. On a phone, choose the modem or data mode.</source>
        <translation>Desconecte el dispositivo, espere diez segundos y vuelva a conectarlo. Si es un teléfono, elija en él el modo de módem o de datos.</translation>
    </message>
    <message>
        <source>Nothing answers on %1, a serial socket of the computer itself.</source>
        <translation>Nada responde en %1, un puerto serie del propio equipo.</translation>
    </message>
    <message>
        <source>If a modem is connected there, switch it on and look at its cable.</source>
        <translation>Si hay un módem conectado ahí, enciéndalo y revise el cable.</translation>
    </message>
    <message>
        <source>The SIM card is ready.</source>
        <translation>La tarjeta SIM está lista.</translation>
    </message>
    <message>
        <source>The device does not say whether its SIM card is ready.</source>
        <translation>El dispositivo no indica si su tarjeta SIM está lista.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN. Tries left: %1.</source>
        <translation>La tarjeta SIM pide su PIN. Intentos restantes: %1.</translation>
    </message>
    <message>
        <source>Put the card into a phone and enter the PIN there, or turn its question for the PIN off. No PIN is tried here.</source>
        <translation>Ponga la tarjeta en un teléfono e introduzca allí el PIN, o desactive la petición del PIN. Aquí no se prueba ningún PIN.</translation>
    </message>
    <message>
        <source>The SIM card is blocked and wants its PUK.</source>
        <translation>La tarjeta SIM está bloqueada y pide su PUK.</translation>
    </message>
    <message>
        <source>The SIM card is blocked and wants its PUK. Tries left: %1.</source>
        <translation>La tarjeta SIM está bloqueada y pide su PUK. Intentos restantes: %1.</translation>
    </message>
    <message>
        <source>Put the card into a phone and enter the PUK there. The operator gives it to you.</source>
        <translation>Ponga la tarjeta en un teléfono e introduzca allí el PUK. Se lo facilita el operador.</translation>
    </message>
    <message>
        <source>The device wants a code that ties it to a card or an operator.</source>
        <translation>El dispositivo pide un código que lo vincula a una tarjeta o a un operador.</translation>
    </message>
    <message>
        <source>Use the card it was sold with, or ask the seller to unlock it.</source>
        <translation>Use la tarjeta con la que se vendió, o pida al vendedor que lo libere.</translation>
    </message>
    <message>
        <source>There is no SIM card in the device.</source>
        <translation>No hay tarjeta SIM en el dispositivo.</translation>
    </message>
    <message>
        <source>Put a card in, the right way round, and plug the device in again.</source>
        <translation>Ponga una tarjeta en la posición correcta y vuelva a conectar el dispositivo.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read.</source>
        <translation>No se puede leer la tarjeta SIM.</translation>
    </message>
    <message>
        <source>Take the card out, wipe its contacts and put it in again, or try it in a phone.</source>
        <translation>Saque la tarjeta, limpie sus contactos y vuelva a ponerla, o pruébela en un teléfono.</translation>
    </message>
    <message>
        <source>The SIM card is still being read.</source>
        <translation>Todavía se está leyendo la tarjeta SIM.</translation>
    </message>
    <message>
        <source>Wait half a minute and look again. If it stays so, plug the device in again.</source>
        <translation>Espere medio minuto y vuelva a mirar. Si sigue igual, desconecte el dispositivo y vuelva a conectarlo.</translation>
    </message>
    <message>
        <source>The device is registered with its network.</source>
        <translation>El dispositivo está registrado en su red.</translation>
    </message>
    <message>
        <source>The device is registered with a foreign network (roaming).</source>
        <translation>El dispositivo está registrado en otra red (itinerancia).</translation>
    </message>
    <message>
        <source>Messages can be sent; ask your operator what they cost abroad.</source>
        <translation>Se pueden enviar mensajes; pregunte a su operador cuánto cuestan en el extranjero.</translation>
    </message>
    <message>
        <source>The network lets the device make emergency calls alone.</source>
        <translation>La red solo permite al dispositivo hacer llamadas de emergencia.</translation>
    </message>
    <message>
        <source>The network does not accept the SIM card.</source>
        <translation>La red no acepta la tarjeta SIM.</translation>
    </message>
    <message>
        <source>Ask the operator whether the card is active, and try it in a phone.</source>
        <translation>Pregunte al operador si la tarjeta está activa y pruébela en un teléfono.</translation>
    </message>
    <message>
        <source>The device is looking for a network.</source>
        <translation>El dispositivo está buscando red.</translation>
    </message>
    <message>
        <source>Wait a minute, or move the device or its aerial to a window, and look again.</source>
        <translation>Espere un minuto, o acerque el dispositivo o su antena a una ventana, y vuelva a mirar.</translation>
    </message>
    <message>
        <source>The device is not registered with a network and looks for none.</source>
        <translation>El dispositivo no está registrado en ninguna red ni la busca.</translation>
    </message>
    <message>
        <source>Switch its radio on (no flight mode), or plug the device in again.</source>
        <translation>Active la radio (sin modo avión), o desconecte el dispositivo y vuelva a conectarlo.</translation>
    </message>
    <message>
        <source>The device does not say whether it has a network.</source>
        <translation>El dispositivo no indica si tiene red.</translation>
    </message>
    <message>
        <source>Send one message to yourself before you send to others.</source>
        <translation>Envíese un mensaje a usted mismo antes de enviar a los demás.</translation>
    </message>
    <message>
        <source>The signal is strong enough (%1 dBm).</source>
        <translation>La señal es suficiente (%1 dBm).</translation>
    </message>
    <message>
        <source>The signal is weak (%1 dBm).</source>
        <translation>La señal es débil (%1 dBm).</translation>
    </message>
    <message>
        <source>Move the device or its aerial to a window.</source>
        <translation>Acerque el dispositivo o su antena a una ventana.</translation>
    </message>
    <message>
        <source>The device does not say how strong the signal is.</source>
        <translation>El dispositivo no indica la intensidad de la señal.</translation>
    </message>
    <message>
        <source>A service centre for messages is stored.</source>
        <translation>Hay un centro de mensajes guardado.</translation>
    </message>
    <message>
        <source>No service centre for messages is stored.</source>
        <translation>No hay ningún centro de mensajes guardado.</translation>
    </message>
    <message>
        <source>What is stored as the service centre for messages is no number.</source>
        <translation>Lo que está guardado como centro de mensajes no es un número.</translation>
    </message>
    <message>
        <source>Ask the operator for its number, and give it as a custom number in the wizard.</source>
        <translation>Pida el número al operador e indíquelo en el asistente como número personalizado.</translation>
    </message>
    <message>
        <source>The device does not say which service centre for messages it has.</source>
        <translation>El dispositivo no indica qué centro de mensajes tiene.</translation>
    </message>
    <message>
        <source>The device takes messages to be sent.</source>
        <translation>El dispositivo acepta mensajes para enviar.</translation>
    </message>
    <message>
        <source>The device takes no messages to be sent.</source>
        <translation>El dispositivo no acepta mensajes para enviar.</translation>
    </message>
    <message>
        <source>Use another port of the device, or another device.</source>
        <translation>Use otro puerto del dispositivo, u otro dispositivo.</translation>
    </message>
    <message>
        <source>free</source>
        <translation>libre</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>en uso</translation>
    </message>
    <message>
        <source>no right</source>
        <translation>sin permiso</translation>
    </message>
    <message>
        <source>not for messages</source>
        <translation>no es para mensajes</translation>
    </message>
    <message>
        <source>Why a phone does not show: what was looked at</source>
        <translation>Por qué no aparece un teléfono: lo que se ha examinado</translation>
    </message>
    <message>
        <source>(number left out)</source>
        <translation>(número omitido)</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>no intentado</translation>
    </message>
    <message>
        <source>written</source>
        <translation>escrito</translation>
    </message>
    <message>
        <source>taken by the phone</source>
        <translation>aceptado por el teléfono</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>enviado</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>rechazado</translation>
    </message>
    <message>
        <source>partly taken</source>
        <translation>aceptado en parte</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>sin respuesta</translation>
    </message>
    <message>
        <source>may have been sent</source>
        <translation>quizá enviado</translation>
    </message>
    <message>
        <source>skipped: excluded</source>
        <translation>omitido: excluido</translation>
    </message>
    <message>
        <source>skipped: repeated</source>
        <translation>omitido: repetido</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>omitido</translation>
    </message>
    <message>
        <source>skipped: invalid number</source>
        <translation>omitido: número no válido</translation>
    </message>
    <message>
        <source>skipped: not filled</source>
        <translation>omitido: campos sin rellenar</translation>
    </message>
    <message>
        <source>skipped: </source>
        <translation>omitido: </translation>
    </message>
    <message>
        <source>CME </source>
        <translation>CME </translation>
    </message>
    <message>
        <source>an earlier row has its number</source>
        <translation>una fila anterior tiene su número</translation>
    </message>
    <message>
        <source>the list has its number already</source>
        <translation>la lista ya tiene su número</translation>
    </message>
    <message>
        <source>its number is in an exclusion list</source>
        <translation>su número está en una lista de exclusión</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>no se puede escribir %1</translation>
    </message>
    <message>
        <source>%1 is not used</source>
        <translation>no se usa %1</translation>
    </message>
    <message>
        <source>it holds an earlier hand-over</source>
        <translation>contiene un traspaso anterior</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Informe de envío</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Envío</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>Tarjeta SIM</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>d MMMM yyyy, HH:mm</source>
        <translation>d &apos;de&apos; MMMM &apos;de&apos; yyyy, HH:mm</translation>
    </message>
    <message>
        <source>ends with </source>
        <translation>termina en </translation>
    </message>
    <message>
        <source>ended</source>
        <translation>terminado</translation>
    </message>
    <message>
        <source>not ended</source>
        <translation>sin terminar</translation>
    </message>
    <message>
        <source>Recipients</source>
        <translation>Destinatarios</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviados</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Rechazados</translation>
    </message>
    <message>
        <source>May have been sent</source>
        <translation>Quizá enviados</translation>
    </message>
    <message>
        <source>Not tried</source>
        <translation>No intentados</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Omitidos</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Entregados</translation>
    </message>
    <message>
        <source>Still trying</source>
        <translation>Pendientes</translation>
    </message>
    <message>
        <source>Not delivered</source>
        <translation>No entregados</translation>
    </message>
    <message>
        <source>No report</source>
        <translation>Sin informe</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Parts sent</source>
        <translation>Enviadas</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Partes</translation>
    </message>
    <message>
        <source>Delivery</source>
        <translation>Entrega</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>no report</source>
        <translation>sin informe</translation>
    </message>
    <message>
        <source>Some of its parts were sent.</source>
        <translation>Se enviaron algunas de sus partes.</translation>
    </message>
    <message>
        <source>The list of the job can no longer be read.</source>
        <translation>La lista del envío ya no se puede leer.</translation>
    </message>
    <message>
        <source>a placeholder is empty</source>
        <translation>un campo está vacío</translation>
    </message>
    <message>
        <source>a placeholder is unknown</source>
        <translation>un campo no existe</translation>
    </message>
    <message>
        <source>wrong number of columns</source>
        <translation>número de columnas incorrecto</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>demasiado largo</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>no existe ese archivo</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes, or may not be read</source>
        <translation>ocupa más de %1 bytes o no hay permiso para leerlo</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>it is no text: line %1 holds characters that no list has</source>
        <translation>no es texto: la línea %1 contiene caracteres impropios de una lista</translation>
    </message>
    <message>
        <source>it is %1, and no list</source>
        <translation>es %1, no una lista</translation>
    </message>
    <message>
        <source>a PDF document</source>
        <translation>un documento PDF</translation>
    </message>
    <message>
        <source>a program</source>
        <translation>un programa</translation>
    </message>
    <message>
        <source>a compressed file</source>
        <translation>un archivo comprimido</translation>
    </message>
    <message>
        <source>a picture</source>
        <translation>una imagen</translation>
    </message>
    <message>
        <source>a web page</source>
        <translation>una página web</translation>
    </message>
    <message>
        <source>an XML document</source>
        <translation>un documento XML</translation>
    </message>
    <message>
        <source>an archive</source>
        <translation>un paquete de archivos</translation>
    </message>
    <message>
        <source>it is rich text; its numbers can be imported under a name that ends in .rtf</source>
        <translation>es texto enriquecido; sus números se pueden importar con un nombre que termine en .rtf</translation>
    </message>
    <message>
        <source>it is a spreadsheet or an archive, and no list of numbers alone</source>
        <translation>es una hoja de cálculo o un paquete de archivos, no una simple lista de números</translation>
    </message>
    <message>
        <source>it holds contacts, and not numbers alone</source>
        <translation>contiene contactos, no solo números</translation>
    </message>
    <message>
        <source>it is a spreadsheet in an old format; saved as .xlsx, .ods or CSV it can be read</source>
        <translation>es una hoja de cálculo en un formato antiguo; guardada como .xlsx, .ods o CSV se puede leer</translation>
    </message>
    <message>
        <source>it is encrypted; saved without a password it can be read</source>
        <translation>está cifrado; guardado sin contraseña se puede leer</translation>
    </message>
    <message>
        <source>it holds more than can be read</source>
        <translation>contiene más de lo que se puede leer</translation>
    </message>
    <message>
        <source>row %1 has more than %2 fields</source>
        <translation>la fila %1 tiene más de %2 campos</translation>
    </message>
    <message>
        <source>its first row holds the number %1, and no names of columns</source>
        <translation>su primera fila contiene el número %1, no los nombres de las columnas</translation>
    </message>
    <message>
        <source>the encoding &quot;%1&quot; is not known</source>
        <translation>no se conoce la codificación «%1»</translation>
    </message>
    <message>
        <source>it is not encoded in %1</source>
        <translation>no está codificado en %1</translation>
    </message>
    <message>
        <source>it mixes UTF-8 with another encoding; line %1 is not UTF-8</source>
        <translation>mezcla UTF-8 con otra codificación; la línea %1 no es UTF-8</translation>
    </message>
    <message>
        <source>the quote that opens in line %1 is never closed</source>
        <translation>las comillas que se abren en la línea %1 no se cierran</translation>
    </message>
    <message>
        <source>it has no sheets</source>
        <translation>no tiene hojas</translation>
    </message>
    <message>
        <source>it has no sheet &quot;%1&quot;; its sheets are %2</source>
        <translation>no tiene la hoja «%1»; sus hojas son %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>it is damaged, or only a part of it</source>
        <translation>está dañado o incompleto</translation>
    </message>
    <message>
        <source>the contact that begins in line %1 has no end</source>
        <translation>el contacto que empieza en la línea %1 no termina</translation>
    </message>
    <message>
        <source>%1 fields where %2 have names</source>
        <translation>%1 campos donde hay nombres para %2</translation>
    </message>
    <message>
        <source>text follows a closing quote</source>
        <translation>hay texto después de unas comillas de cierre</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 está vacío</translation>
    </message>
    <message>
        <source>%1 is unknown</source>
        <translation>%1 no existe</translation>
    </message>
    <message>
        <source>its text is empty</source>
        <translation>su texto está vacío</translation>
    </message>
    <message>
        <source>its text is too long</source>
        <translation>su texto es demasiado largo</translation>
    </message>
    <message>
        <source>national, taken as one of %1</source>
        <translation>nacional, tomado como número de %1</translation>
    </message>
    <message>
        <source>the code of %1 was put in front</source>
        <translation>se ha antepuesto el prefijo de %1</translation>
    </message>
    <message>
        <source>its first 0 may have been lost; taken as one of %1</source>
        <translation>puede haberse perdido su primer 0; tomado como número de %1</translation>
    </message>
    <message>
        <source>its + may have been lost; taken as an international one of %1</source>
        <translation>puede haberse perdido su +; tomado como número internacional de %1</translation>
    </message>
    <message>
        <source>there is no number</source>
        <translation>no hay número</translation>
    </message>
    <message>
        <source>a spreadsheet has rounded it; its digits are lost</source>
        <translation>una hoja de cálculo lo ha redondeado; se han perdido cifras</translation>
    </message>
    <message>
        <source>it is no number</source>
        <translation>no es un número</translation>
    </message>
    <message>
        <source>these are several numbers</source>
        <translation>son varios números</translation>
    </message>
    <message>
        <source>it has too few digits</source>
        <translation>tiene muy pocas cifras</translation>
    </message>
    <message>
        <source>it has too many digits</source>
        <translation>tiene demasiadas cifras</translation>
    </message>
    <message>
        <source>no country has its code</source>
        <translation>ningún país tiene su prefijo</translation>
    </message>
    <message>
        <source>Please enter a valid phone number.</source>
        <translation>Introduzca un número de teléfono válido.</translation>
    </message>
    <message>
        <source>Entered number already exists.</source>
        <translation>El número introducido ya está en la lista.</translation>
    </message>
    <message>
        <source>Entered number is in exclusion list.</source>
        <translation>El número introducido está en una lista de exclusión.</translation>
    </message>
    <message>
        <source>Please select only one record to update.</source>
        <translation>Seleccione un solo elemento para modificarlo.</translation>
    </message>
    <message>
        <source>Please enter some text message.</source>
        <translation>Escriba un mensaje de texto.</translation>
    </message>
    <message>
        <source>Error in file accessing.</source>
        <translation>Error al acceder al archivo.</translation>
    </message>
    <message>
        <source>
This option will clear the entire list contents. Are you sure you want to continue clearing the entire list?</source>
        <translation>
Se va a borrar todo el contenido de la lista. ¿Seguro que quiere continuar?</translation>
    </message>
    <message>
        <source>Total Numbers : </source>
        <translation>Números en total: </translation>
    </message>
    <message>
        <source>Can not access Corvane Data file.</source>
        <translation>No se puede acceder al archivo de datos de Corvane.</translation>
    </message>
    <message>
        <source>
Do you really want to exit from &apos;Corvane&apos;?</source>
        <translation>
¿Seguro que quiere salir de Corvane?</translation>
    </message>
    <message>
        <source>No Mobile Phone Device is selected.</source>
        <translation>No hay ningún teléfono seleccionado.</translation>
    </message>
    <message>
        <source>No Mobile Phone Device is selected. Click here to start Mobile Phone Connection Wizard.</source>
        <translation>No hay ningún teléfono seleccionado. Pulse aquí para abrir el asistente de conexión del teléfono.</translation>
    </message>
    <message>
        <source>Apply this<byte value="xd"/>
message to<byte value="xd"/>
list items</source>
        <translation>Aplicar este<byte value="xd"/>
mensaje<byte value="xd"/>
a la lista</translation>
    </message>
    <message>
        <source>Phone numbers-Messages list is empty.</source>
        <translation>La lista de números y mensajes está vacía.</translation>
    </message>
    <message>
        <source>Please select at least one record from the phone numbers-messages list to continue.</source>
        <translation>Seleccione al menos un elemento de la lista de números y mensajes para continuar.</translation>
    </message>
    <message>
        <source>Either file is corrupted or selected file contains invalid characters.

OR

Recipient number is skipped because of using &apos;Skip Dulicate Numbers&apos; or &apos;Exclusion List&apos; option.</source>
        <translation>El archivo está dañado o contiene caracteres no válidos.

O BIEN

Se ha omitido el número del destinatario por la opción «Omitir números duplicados» o por una lista de exclusión.</translation>
    </message>
    <message>
        <source>The last action has ended early because of an unexpected error. Please look what has been done, and try again.</source>
        <translation>La última acción ha terminado antes de tiempo por un error inesperado. Compruebe lo que se ha hecho e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to all numbers in the list.

Do you want to continue?</source>
        <translation>El mensaje redactado se va a copiar en todos los números de la lista.

¿Quiere continuar?</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to the selected numbers in the list. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>El mensaje redactado se va a copiar en los números seleccionados de la lista. Los mensajes de los demás números no cambian.

¿Quiere continuar?</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to the blank list items. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>El mensaje redactado se va a copiar en los elementos de la lista que no tienen mensaje. Los mensajes de los demás números no cambian.

¿Quiere continuar?</translation>
    </message>
    <message>
        <source>There is no blank message in the phone numbers-messages list.</source>
        <translation>No hay mensajes vacíos en la lista de números y mensajes.</translation>
    </message>
    <message>
        <source>This action will copy the above message to the selected numbers in the list. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>El mensaje de arriba se va a copiar en los números seleccionados de la lista. Los mensajes de los demás números no cambian.

¿Quiere continuar?</translation>
    </message>
    <message>
        <source>Total Selected Numbers : </source>
        <translation>Números seleccionados: </translation>
    </message>
    <message>
        <source>Either Mobile Device is not connected properly or No Mobile Phone Device is selected.

Please use Mobile Phone Connection Wizard for finding device or establishing connection.</source>
        <translation>El dispositivo no está bien conectado o no hay ningún teléfono seleccionado.

Use el asistente de conexión del teléfono para buscar el dispositivo o establecer la conexión.</translation>
    </message>
    <message>
        <source>Please insert entered number to the list.</source>
        <translation>Añada a la lista el número introducido.</translation>
    </message>
    <message>
        <source>No values have been selected in &apos;Delayed Delivery Options&apos;.</source>
        <translation>No se ha elegido ningún valor en las opciones de pausa.</translation>
    </message>
    <message>
        <source>
You have composed no text message yet for any of the contacts in the entire list. This action will send blank message to all the contacts in list.

Are you sure you want to continue?</source>
        <translation>
Todavía no ha escrito ningún mensaje para los contactos de la lista. Todos los contactos van a recibir un mensaje vacío.

¿Seguro que quiere continuar?</translation>
    </message>
    <message>
        <source>
Selected device is not working properly. Please use Mobile Phone Connection Wizard for finding device or establishing connection.</source>
        <translation>
El dispositivo seleccionado no funciona correctamente. Use el asistente de conexión del teléfono para buscar el dispositivo o establecer la conexión.</translation>
    </message>
    <message>
        <source>Selected device is not working properly.Could not initialize modem.
</source>
        <translation>El dispositivo seleccionado no funciona correctamente. No se ha podido iniciar el módem.
</translation>
    </message>
    <message>
        <source>Device Connection Error!</source>
        <translation>Error de conexión con el dispositivo</translation>
    </message>
    <message>
        <source>Message Sending Process Completed.</source>
        <translation>Envío de mensajes completado.</translation>
    </message>
    <message>
        <source>The messages could not be sent, because the computer is too busy to start another task. Please close other programs and try again.</source>
        <translation>No se han podido enviar los mensajes porque el equipo está demasiado ocupado para iniciar otra tarea. Cierre otros programas e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Sending has ended early because of an unexpected error. The sent items show which messages were sent.</source>
        <translation>El envío ha terminado antes de tiempo por un error inesperado. La lista de enviados muestra qué mensajes salieron.</translation>
    </message>
    <message>
        <source>Initializing mobile phone device to send sms ...</source>
        <translation>Preparando el teléfono para enviar SMS...</translation>
    </message>
    <message>
        <source>
Terminating the current process will stop sending text messages to the remaining contact. Are you sure you want to continue?</source>
        <translation>
Si detiene el proceso, no se enviarán mensajes a los contactos restantes. ¿Seguro que quiere continuar?</translation>
    </message>
    <message>
        <source> is Excluded.</source>
        <translation> está excluido.</translation>
    </message>
    <message>
        <source> is Skipped.</source>
        <translation> se omite.</translation>
    </message>
    <message>
        <source> Message</source>
        <translation> en curso</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Hour %2 Minute %3 Seconds.</source>
        <translation>En pausa: %1 h %2 min %3 s.</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Minute %2 Seconds.</source>
        <translation>En pausa: %1 min %2 s.</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Seconds.</source>
        <translation>En pausa: %1 s.</translation>
    </message>
    <message>
        <source>%1 Characters</source>
        <translation>%1 caracteres</translation>
    </message>
    <message>
        <source>%1 Characters (Each Message will now consume %2)</source>
        <translation>%1 caracteres (cada mensaje ocupa ahora %2)</translation>
    </message>
    <message>
        <source>Your current message is exceeding the typical SMS Length of 160 Characters. Messages of more than 160 characters will be delivered in multiple messages of 160 characters to each recipient.

Either shorten the length of your existing text message or click OK to continue anyway by delivering each message in multiple parts of 160 characters.</source>
        <translation>Su mensaje supera la longitud habitual de un SMS, 160 caracteres. Los mensajes de más de 160 caracteres se entregan a cada destinatario en varios mensajes de 160 caracteres.

Acorte el texto o pulse Aceptar para continuar y entregar cada mensaje en varias partes de 160 caracteres.</translation>
    </message>
    <message>
        <source>Your current message is exceeding the typical Unicode SMS (non-English text SMS) Length of 70 Characters. Messages of more than 70 characters will be delivered in multiple messages of 70 characters to each recipient.

Either shorten the length of your existing text message or click OK to continue anyway by delivering each message in multiple parts of 70 characters.</source>
        <translation>Su mensaje supera la longitud habitual de un SMS Unicode (en otros alfabetos), 70 caracteres. Los mensajes de más de 70 caracteres se entregan a cada destinatario en varios mensajes de 70 caracteres.

Acorte el texto o pulse Aceptar para continuar y entregar cada mensaje en varias partes de 70 caracteres.</translation>
    </message>
    <message>
        <source>Total Items : </source>
        <translation>Elementos: </translation>
    </message>
    <message>
        <source>Sent items list is empty.</source>
        <translation>La lista de enviados está vacía.</translation>
    </message>
    <message>
        <source>Please select at least one record from the sent items list to continue.</source>
        <translation>Seleccione al menos un elemento de la lista de enviados para continuar.</translation>
    </message>
    <message>
        <source>Templates list is empty.</source>
        <translation>La lista de plantillas está vacía.</translation>
    </message>
    <message>
        <source>Templates items list is empty.</source>
        <translation>La lista de plantillas está vacía.</translation>
    </message>
    <message>
        <source>Templates number list is empty.</source>
        <translation>La lista de plantillas está vacía.</translation>
    </message>
    <message>
        <source>Please select at least one record from the templates list to continue.</source>
        <translation>Seleccione al menos un elemento de la lista de plantillas para continuar.</translation>
    </message>
    <message>
        <source>Add Templates</source>
        <translation>Nueva plantilla</translation>
    </message>
    <message>
        <source>Update Templates</source>
        <translation>Modificar plantilla</translation>
    </message>
    <message>
        <source>Number	: %1<byte value="xd"/>
<byte value="xd"/>
Message	: %2<byte value="xd"/>
<byte value="xd"/>
Date:	 %3</source>
        <translation>Número	: %1<byte value="xd"/>
<byte value="xd"/>
Mensaje	: %2<byte value="xd"/>
<byte value="xd"/>
Fecha:	 %3</translation>
    </message>
    <message>
        <source>Please type template message.</source>
        <translation>Escriba el mensaje de la plantilla.</translation>
    </message>
    <message>
        <source>Entered template already exists.</source>
        <translation>Ya existe una plantilla con ese texto.</translation>
    </message>
    <message>
        <source>Maximum characters limit is 1600.<byte value="xd"/>
<byte value="xd"/>
Press &apos;Yes to continue to composer window and it will show first 1600 characters of your message otherwise press &apos;No&apos;&apos;</source>
        <translation>El límite es de 1600 caracteres.<byte value="xd"/>
<byte value="xd"/>
Pulse «Sí» para insertar en el mensaje los primeros 1600 caracteres, o «No» para no hacerlo.</translation>
    </message>
    <message>
        <source>Exclusion List Wizard allows you to maintain the Lists of contacts or Groups, which you may need to exclude time to time when sending messages.

For Example, if you have lists of contacts of Marketing, Administration, R &amp; D and Customer Care Team members and you want to send messages to all the teams &apos;Except&apos; Administration team, you can apply exclusion rules to Administration team members contacts list.</source>
        <translation>Este asistente le permite mantener las listas de contactos o grupos que quiera excluir de vez en cuando al enviar mensajes.

Por ejemplo, si tiene listas de contactos de los equipos de marketing, administración, I+D y atención al cliente y quiere enviar mensajes a todos los equipos menos al de administración, puede aplicar la exclusión a la lista de contactos de ese equipo.</translation>
    </message>
    <message>
        <source>

Give a friendly name to your Exclusion list so that you can identify it easily.</source>
        <translation>

Dé a su lista de exclusión un nombre con el que la reconozca fácilmente.</translation>
    </message>
    <message>
        <source>Currently using exclusion list : </source>
        <translation>Lista de exclusión en uso: </translation>
    </message>
    <message>
        <source>Please enter exclusion list name.</source>
        <translation>Escriba el nombre de la lista de exclusión.</translation>
    </message>
    <message>
        <source>Please enter a valid name.</source>
        <translation>Escriba un nombre válido.</translation>
    </message>
    <message>
        <source>Please enter the another name.</source>
        <translation>Escriba otro nombre.</translation>
    </message>
    <message>
        <source>Entered exclusion list name already exists.</source>
        <translation>Ya existe una lista de exclusión con ese nombre.</translation>
    </message>
    <message>
        <source>Exclusion number list is empty.</source>
        <translation>La lista de números excluidos está vacía.</translation>
    </message>
    <message>
        <source>Please select a valid file.</source>
        <translation>Seleccione un archivo válido.</translation>
    </message>
    <message>
        <source>Please select at least one record from the exclusion number list to continue.</source>
        <translation>Seleccione al menos un elemento de la lista de números excluidos para continuar.</translation>
    </message>
    <message>
        <source>Available list is empty.</source>
        <translation>No hay listas disponibles.</translation>
    </message>
    <message>
        <source>Please select a record from the available list to continue.</source>
        <translation>Seleccione una de las listas disponibles para continuar.</translation>
    </message>
    <message>
        <source>Selected list is already in use.</source>
        <translation>La lista seleccionada ya está en uso.</translation>
    </message>
    <message>
        <source>All available lists are already in use.</source>
        <translation>Todas las listas disponibles ya están en uso.</translation>
    </message>
    <message>
        <source>Exclude when sending SMS list is empty.</source>
        <translation>No hay listas que excluir al enviar SMS.</translation>
    </message>
    <message>
        <source>Please select a record from Exclude when sending SMS list to continue.</source>
        <translation>Seleccione una de las listas que se excluyen al enviar SMS para continuar.</translation>
    </message>
    <message>
        <source>
Are you sure you want to continue</source>
        <translation>
¿Seguro que quiere continuar?</translation>
    </message>
    <message>
        <source>
Are you sure you want delete the selected available list?</source>
        <translation>
¿Seguro que quiere eliminar la lista disponible seleccionada?</translation>
    </message>
    <message>
        <source>
You have made changes in exclusion number list that have not been saved yet.

Do you want to go back to previous screen without saving the exclusion number list?</source>
        <translation>
Hay cambios sin guardar en la lista de números excluidos.

¿Quiere volver a la pantalla anterior sin guardar la lista?</translation>
    </message>
    <message>
        <source>Device list is empty.</source>
        <translation>La lista de dispositivos está vacía.</translation>
    </message>
    <message>
        <source>Still searching for devices. Please wait ...</source>
        <translation>Todavía se están buscando dispositivos. Espere...</translation>
    </message>
    <message>
        <source>Please select device from list.</source>
        <translation>Seleccione un dispositivo de la lista.</translation>
    </message>
    <message>
        <source>Please enter a valid Custom SMSC number.</source>
        <translation>Introduzca un número SMSC personalizado válido.</translation>
    </message>
    <message>
        <source>Selected device is not working properly.
Could not open modem.
</source>
        <translation>El dispositivo seleccionado no funciona correctamente.
No se ha podido abrir el módem.
</translation>
    </message>
    <message>
        <source>Selected device is not working properly.</source>
        <translation>El dispositivo seleccionado no funciona correctamente.</translation>
    </message>
    <message>
        <source>Default SMSC No. details should not be blanked.</source>
        <translation>El número SMSC predeterminado no puede quedar vacío.</translation>
    </message>
    <message>
        <source>Custom SMSC No. details should not be blanked.</source>
        <translation>El número SMSC personalizado no puede quedar vacío.</translation>
    </message>
    <message>
        <source>Selected device do not provide a modem in the computer or the modem does not support SMS sending command.</source>
        <translation>El dispositivo seleccionado no ofrece un módem en el equipo, o su módem no admite el comando de enviar SMS.</translation>
    </message>
    <message>
        <source>passed on, but not confirmed</source>
        <translation>transmitido, pero no confirmado</translation>
    </message>
    <message>
        <source>replaced by a newer message</source>
        <translation>sustituido por un mensaje más reciente</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>completado</translation>
    </message>
    <message>
        <source>completed, with a code of the network&apos;s own</source>
        <translation>completado, con un código propio de la red</translation>
    </message>
    <message>
        <source>the network is congested</source>
        <translation>la red está saturada</translation>
    </message>
    <message>
        <source>the phone is busy</source>
        <translation>el teléfono está ocupado</translation>
    </message>
    <message>
        <source>the phone does not answer</source>
        <translation>el teléfono no responde</translation>
    </message>
    <message>
        <source>rejected for now</source>
        <translation>rechazado por ahora</translation>
    </message>
    <message>
        <source>the connection is too poor</source>
        <translation>la conexión es demasiado mala</translation>
    </message>
    <message>
        <source>an error in the phone</source>
        <translation>un error en el teléfono</translation>
    </message>
    <message>
        <source>a reason of the network&apos;s own</source>
        <translation>un motivo propio de la red</translation>
    </message>
    <message>
        <source>an error between the networks</source>
        <translation>un error entre las redes</translation>
    </message>
    <message>
        <source>the phone cannot take it</source>
        <translation>el teléfono no puede recibirlo</translation>
    </message>
    <message>
        <source>the phone refused it</source>
        <translation>el teléfono lo ha rechazado</translation>
    </message>
    <message>
        <source>the number cannot be reached</source>
        <translation>no se puede contactar con el número</translation>
    </message>
    <message>
        <source>the networks do not work together</source>
        <translation>las redes no son compatibles entre sí</translation>
    </message>
    <message>
        <source>it was not delivered in time</source>
        <translation>no se entregó a tiempo</translation>
    </message>
    <message>
        <source>deleted by the sender</source>
        <translation>borrado por el remitente</translation>
    </message>
    <message>
        <source>deleted by the service centre</source>
        <translation>borrado por el centro de mensajes</translation>
    </message>
    <message>
        <source>the service centre has no such message</source>
        <translation>el centro de mensajes no tiene ese mensaje</translation>
    </message>
    <message>
        <source>rejected</source>
        <translation>rechazado</translation>
    </message>
    <message>
        <source>the network was congested</source>
        <translation>la red estaba saturada</translation>
    </message>
    <message>
        <source>the phone was busy</source>
        <translation>el teléfono estaba ocupado</translation>
    </message>
    <message>
        <source>the phone did not answer</source>
        <translation>el teléfono no respondió</translation>
    </message>
    <message>
        <source>the connection was too poor</source>
        <translation>la conexión era demasiado mala</translation>
    </message>
    <message>
        <source>delivered</source>
        <translation>entregado</translation>
    </message>
    <message>
        <source>still trying</source>
        <translation>pendiente</translation>
    </message>
    <message>
        <source>not delivered</source>
        <translation>no entregado</translation>
    </message>
    <message>
        <source>%1 speaks QMI or MBIM, and no AT commands.</source>
        <translation>%1 habla QMI o MBIM, y no comandos AT.</translation>
    </message>
    <message>
        <source>Use a port of the device that takes AT commands, or another modem.</source>
        <translation>Utilice un puerto del dispositivo que acepte comandos AT, u otro módem.</translation>
    </message>
    <message>
        <source>%1 takes AT commands, but is no serial port.</source>
        <translation>%1 acepta comandos AT, pero no es un puerto serie.</translation>
    </message>
    <message>
        <source>Use a serial port of the device, or another modem.</source>
        <translation>Utilice un puerto serie del dispositivo, u otro módem.</translation>
    </message>
    <message>
        <source>The signal is strong enough (%1 %).</source>
        <translation>La señal es suficiente (%1 %).</translation>
    </message>
    <message>
        <source>The signal is weak (%1 %).</source>
        <translation>La señal es débil (%1 %).</translation>
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
        <translation>Otras vías de envío</translation>
    </message>
    <message>
        <source>One phone hands over between 4 and 20 messages a minute, and mobile operators may block a SIM card that sends like a machine. For more than about 1000 messages a day, or a job of more than four hours, something else does better.</source>
        <translation>Un teléfono pasa entre 4 y 20 mensajes por minuto, y los operadores pueden bloquear una tarjeta SIM que envía como una máquina. Para más de unos 1000 mensajes al día, o un envío de más de cuatro horas, conviene otra cosa.</translation>
    </message>
    <message>
        <source>Several modems</source>
        <translation>Varios módems</translation>
    </message>
    <message>
        <source>The free program smstools sends the messages of one folder with as many modems as are attached, each with a SIM card of its own. Hand the messages over here, and then move the files in the folder &quot;spool&quot; into the folder &quot;outgoing&quot; of smstools.</source>
        <translation>El programa libre smstools envía los mensajes de una carpeta con tantos módems como haya conectados, cada uno con su propia tarjeta SIM. Traspase aquí los mensajes y mueva después los archivos de la carpeta «spool» a la carpeta «outgoing» de smstools.</translation>
    </message>
    <message>
        <source>A provider&apos;s gateway</source>
        <translation>La pasarela de un proveedor</translation>
    </message>
    <message>
        <source>Companies that send messages for others take a table of numbers and texts, at a price for each message. Many of them can also show a name as the sender, and see to replies and to people who want no more messages. Hand the messages over here, and then give the provider the file &quot;list.csv&quot;.</source>
        <translation>Las empresas que envían mensajes por cuenta de otros admiten una tabla de números y textos, con un precio por mensaje. Muchas pueden además mostrar un nombre como remitente y ocuparse de las respuestas y de quienes no quieren más mensajes. Traspase aquí los mensajes y entregue después al proveedor el archivo «list.csv».</translation>
    </message>
    <message>
        <source>Writes the numbers and texts, just as they would be sent now, into a folder. Nothing is sent.</source>
        <translation>Guarda los números y los textos en una carpeta, tal como se enviarían ahora. No se envía nada.</translation>
    </message>
    <message>
        <source>Hand over to a &amp;folder ...</source>
        <translation>Traspasar a una carpe&amp;ta...</translation>
    </message>
    <message>
        <source>The main window says no more that a list is much for one phone</source>
        <translation>La ventana principal dejará de avisar cuando una lista sea mucho para un solo teléfono</translation>
    </message>
    <message>
        <source>Do not &amp;tell again</source>
        <translation>No &amp;volver a avisar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Not handed over: %1 (%2).</source>
        <translation>No se ha traspasado: %1 (%2).</translation>
    </message>
    <message>
        <source>Stopped. What is in the folder is not whole: remove it before it is used.</source>
        <translation>Detenido. El contenido de la carpeta está incompleto: bórrelo antes de que se use.</translation>
    </message>
    <message>
        <source>Handed over: one message, in %1. Nothing was sent.</source>
        <translation>Traspasado: un mensaje, en %1. No se ha enviado nada.</translation>
    </message>
    <message numerus="yes">
        <source>Handed over: %n messages, in %1. Nothing was sent.</source>
        <translation>
            <numerusform>Traspasado: %n mensaje, en %1. No se ha enviado nada.</numerusform>
            <numerusform>Traspasados: %n mensajes, en %1. No se ha enviado nada.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recipients left out: %1.</source>
        <translation>Destinatarios omitidos: %1.</translation>
    </message>
    <message>
        <source>There is nobody in the list.</source>
        <translation>No hay nadie en la lista.</translation>
    </message>
    <message>
        <source>Writing ...</source>
        <translation>Escribiendo...</translation>
    </message>
    <message>
        <source>Writing %1 of %2 ...</source>
        <translation>Escribiendo %1 de %2...</translation>
    </message>
    <message>
        <source>Not handed over: the system gives the program no further thread.</source>
        <translation>No se ha traspasado: el sistema no concede otro hilo al programa.</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
</context>
<context>
    <name>Handset_Bubble</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>As it arrives by a device that takes whole frames; one that knows text mode alone may change more</source>
        <translation>Tal como llega con un dispositivo que acepta tramas completas; uno que solo conoce el modo de texto puede cambiar más cosas</translation>
    </message>
    <message>
        <source>On the handset:</source>
        <translation>En el teléfono:</translation>
    </message>
    <message>
        <source>What the handset shows</source>
        <translation>Lo que muestra el teléfono</translation>
    </message>
    <message>
        <source>Ticks the box of that name: every character arrives, and fewer fit one message</source>
        <translation>Marca la casilla del mismo nombre: llegan todos los caracteres, y caben menos en cada mensaje</translation>
    </message>
    <message>
        <source>Send as Unicode</source>
        <translation>Enviar como Unicode</translation>
    </message>
    <message>
        <source>Wherever it stands in this message; undo takes it back</source>
        <translation>En todo este mensaje; se puede deshacer</translation>
    </message>
    <message>
        <source>Every marked character that something similar can stand in for; undo takes it back</source>
        <translation>Todos los caracteres marcados que tienen un sustituto parecido; se puede deshacer</translation>
    </message>
    <message>
        <source>Replace all</source>
        <translation>Reemplazar todo</translation>
    </message>
    <message>
        <source>Cyrillic in Latin letters, Greek in the capitals that 7-bit messages have; undo takes it back</source>
        <translation>Cirílico en letras latinas y griego en las mayúsculas que tienen los mensajes de 7 bits; se puede deshacer</translation>
    </message>
    <message>
        <source>Write in other letters</source>
        <translation>Escribir en otras letras</translation>
    </message>
    <message>
        <source>On the handset of %1</source>
        <translation>En el teléfono de %1</translation>
    </message>
    <message>
        <source>On the handset</source>
        <translation>En el teléfono</translation>
    </message>
    <message>
        <source>%1, at once and not kept:</source>
        <translation>%1, al instante y sin guardarse:</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 gets nothing: %2.</source>
        <translation>%1 no recibirá nada: %2.</translation>
    </message>
    <message>
        <source>%1 gets nothing: the message is too long.</source>
        <translation>%1 no recibirá nada: el mensaje es demasiado largo.</translation>
    </message>
    <message>
        <source>%1 &quot;Send as Unicode&quot; in the main window keeps them.</source>
        <translation>%1 La opción «Enviar como Unicode» de la ventana principal los conserva.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Quitar %1</translation>
    </message>
    <message>
        <source>Replace %1 by a blank</source>
        <translation>Reemplazar %1 por espacio</translation>
    </message>
    <message>
        <source>Replace %1 by %2</source>
        <translation>Reemplazar %1 por %2</translation>
    </message>
</context>
<context>
    <name>Help_Wnd</name>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
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
        <translation>&lt;h3&gt;De una lista de números a los mensajes enviados&lt;/h3&gt;
&lt;p&gt;&lt;b&gt;1. Elija su teléfono.&lt;/b&gt; Conecte el teléfono o el módem por USB o Bluetooth, pulse &lt;i&gt;Asistente de conexión&lt;/i&gt;, haga clic en su puerto en la lista, mire los datos que da de sí mismo y pulse &lt;i&gt;Seleccionar dispositivo&lt;/i&gt;.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;2. Escriba el mensaje.&lt;/b&gt; El contador de debajo indica cuántos caracteres tiene y cuántos SMS le costará cada destinatario. En un SMS caben 160 caracteres, o 70 si marca &lt;i&gt;Enviar como Unicode&lt;/i&gt;. Un mensaje tiene como máximo 1600 caracteres. El tipo &lt;i&gt;Notificación&lt;/i&gt; se muestra al instante en el teléfono y no se guarda en él.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Qué caracteres llegan.&lt;/b&gt; Sin &lt;i&gt;Enviar como Unicode&lt;/i&gt;, estos llegan tal como los escribió: de la A a la Z, de la a a la z, del 0 al 9, el espacio, el salto de línea y &lt;tt&gt;! &quot; # % &amp;amp; &apos; ( ) * + , - . / : ; &amp;lt; = &amp;gt; ?&lt;/tt&gt;. Si su dispositivo no se limita al modo de texto, también &lt;tt&gt;@ ¤ Γ&lt;/tt&gt; y, en un texto de hasta 150 caracteres (los corchetes, las llaves, ^ ~ \ y | cuentan el doble), además &lt;tt&gt;$ £ ¥ § _ \ | [ ] ^ { } ~ Ä Å Æ Ç É Ñ Ö Ø Ü ß à ä å æ è é ì ñ ò ø ü Δ Θ Ξ Π Σ Φ Ψ Ω&lt;/tt&gt;. Cualquier otro carácter llega convertido en otro: € como coma, ê como j, ö como ¡. Marque &lt;i&gt;Enviar como Unicode&lt;/i&gt; si su texto contiene alguno de ellos; así sale tal como lo escribió.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;3. Llene la lista.&lt;/b&gt; Escriba un número y pulse &lt;i&gt;Añadir&lt;/i&gt;, o pulse &lt;i&gt;Importar&lt;/i&gt; y elija un archivo de texto o RTF con un número por línea. También puede soltar el archivo sobre la lista o pegar números en ella. Debajo de la lista se indica el resultado, y &lt;i&gt;Mostrar&lt;/i&gt; enseña las líneas que no se han usado. Cada número entra en la lista con el mensaje tal como está en ese momento. Un + inicial se convierte en 00, los guiones se omiten y un número tiene como máximo 20 cifras. &lt;i&gt;Exportar&lt;/i&gt; guarda los números de la lista en un archivo de texto.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;4. Cambie la lista.&lt;/b&gt; Haga doble clic en un destinatario para cambiar el número o su mensaje. &lt;i&gt;Modificar los mensajes seleccionados&lt;/i&gt; escribe un mensaje nuevo para todos los que haya seleccionado, y &lt;i&gt;Aplicar este mensaje a la lista&lt;/i&gt; copia el mensaje en todos los elementos, en los seleccionados o en los que no tienen mensaje. &lt;i&gt;Quitar selección&lt;/i&gt;, &lt;i&gt;Vaciar lista&lt;/i&gt; y &lt;i&gt;Restablecer&lt;/i&gt; quitan números de la lista.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;5. Decida cómo se envía.&lt;/b&gt; Con &lt;i&gt;Omitir números duplicados&lt;/i&gt; se envía una sola vez a cada número. Con &lt;i&gt;Respetar listas de exclusión&lt;/i&gt; no se envía a nadie que esté en una lista aplicada; pulse &lt;i&gt;Listas de exclusión&lt;/i&gt; para crear esas listas e indicar cuáles se aplican. &lt;i&gt;Pausa&lt;/i&gt; hace una pausa cada cierto número de mensajes. Con &lt;i&gt;Confirmar cada mensaje&lt;/i&gt;, cada uno se juzga por lo que responde el teléfono, sale en el alfabeto que necesita y nunca se envía dos veces sin preguntar; un envío interrumpido se puede continuar, e &lt;i&gt;Informes&lt;/i&gt; muestra los que usted conserva.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;6. Envíe.&lt;/b&gt; Si el mensaje de arriba todavía no está en la lista, se le pregunta si quiere copiarlo antes en ella. Los mensajes salen uno a uno, en el orden de la lista, con unos segundos entre ellos, que los teléfonos lentos necesitan. La ventana de progreso muestra por dónde va y cuenta hacia atrás las pausas; &lt;i&gt;Detener envío&lt;/i&gt; lo termina antes del mensaje siguiente o de la parte siguiente de uno largo. La lista se queda como está.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;7. Después.&lt;/b&gt; Lo que se pasó al teléfono con &lt;i&gt;Guardar los enviados&lt;/i&gt; marcado está en &lt;i&gt;Enviados&lt;/i&gt;, y con &lt;i&gt;Guardar mensajes como plantillas&lt;/i&gt; cada texto está, una sola vez, en &lt;i&gt;Plantillas&lt;/i&gt;, listo para usarlo de nuevo. Ambas ventanas eliminan lo que ya no necesite y exportan su lista como archivo de texto o como página web.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Si no se encuentra ningún teléfono&lt;/b&gt;, la pantalla anterior al asistente indica qué probar: el modo de módem del propio teléfono, el permiso de su cuenta para usar puertos serie y otros programas que ocupan el puerto. &lt;i&gt;¿Por qué no aparece mi teléfono?&lt;/i&gt;, abajo, examina cada una de estas cosas e indica qué hacer.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Qué significa «enviado».&lt;/b&gt; Con &lt;i&gt;Confirmar cada mensaje&lt;/i&gt;, un mensaje está enviado cuando la red ha acusado su recibo. Sin esa opción, cuenta como enviado cuando se escribió en el teléfono sin errores. Lo que respondan el teléfono o el operador no se tiene en cuenta: un mensaje que rechacen también figura en &lt;i&gt;Enviados&lt;/i&gt;, y un teléfono que deja de responder no termina el envío. Envíese primero el mensaje a usted mismo y ponga su propio número al final de la lista.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Si aparece «Error de conexión con el dispositivo»&lt;/b&gt;, falló la escritura en el teléfono o no se pudo dar a un mensaje su forma, y el envío terminó ahí. Lo que se había pasado hasta entonces está en &lt;i&gt;Enviados&lt;/i&gt;, si los guarda; del mensaje en el que ocurrió puede haber salido una parte o todo.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Why does my phone not show?</source>
        <translation>¿&amp;Por qué no aparece mi teléfono?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Open the &amp;guide</source>
        <translation>Abrir la &amp;guía</translation>
    </message>
    <message>
        <source>No program was found that shows the guide. It is in %1.</source>
        <translation>No se encontró ningún programa que muestre la guía. Está en %1.</translation>
    </message>
</context>
<context>
    <name>Import_Strip</name>
    <message>
        <source>0 added: the file could not be read.</source>
        <translation>Añadidos: 0. No se ha podido leer el archivo.</translation>
    </message>
    <message>
        <source>%1 added.</source>
        <translation>Añadidos: %1.</translation>
    </message>
    <message>
        <source>%1 added, 1 line not used.</source>
        <translation>Añadidos: %1; 1 línea sin usar.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %n lines not used.</source>
        <translation>
            <numerusform>Añadidos: %1; %n línea sin usar.</numerusform>
            <numerusform>Añadidos: %1; %n líneas sin usar.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1
Then it ended early.</source>
        <translation>%1
Después se interrumpió antes de tiempo.</translation>
    </message>
    <message>
        <source>0 added: there was no text that could be read.</source>
        <translation>Añadidos: 0. No había texto que se pudiera leer.</translation>
    </message>
    <message>
        <source>Show ...</source>
        <translation>Mostrar...</translation>
    </message>
    <message>
        <source>Shows what was not used, and why</source>
        <translation>Muestra lo que no se ha usado y por qué</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Takes this notice away</source>
        <translation>Quita este aviso</translation>
    </message>
    <message>
        <source>What the last import did</source>
        <translation>Resultado de la última importación</translation>
    </message>
    <message>
        <source>&amp;Show ...</source>
        <translation>M&amp;ostrar...</translation>
    </message>
    <message>
        <source>&amp;Dismiss</source>
        <translation>&amp;Descartar</translation>
    </message>
</context>
<context>
    <name>Job_Trouble</name>
    <message>
        <source>there is no such job</source>
        <translation>no existe ese envío</translation>
    </message>
    <message>
        <source>its files can not be read or written to</source>
        <translation>sus archivos no se pueden leer o no se puede escribir en ellos</translation>
    </message>
    <message>
        <source>the file is not the journal of a job</source>
        <translation>el archivo no es el diario de un envío</translation>
    </message>
    <message>
        <source>its journal was written by a newer version of the program</source>
        <translation>su diario lo escribió una versión más reciente del programa</translation>
    </message>
    <message>
        <source>its journal is damaged, so that it is unknown what was sent</source>
        <translation>su diario está dañado, así que no se sabe qué se envió</translation>
    </message>
    <message>
        <source>the list beside its journal is gone</source>
        <translation>la lista que acompañaba a su diario ha desaparecido</translation>
    </message>
    <message>
        <source>the list beside its journal is not the one that the job began with</source>
        <translation>la lista que acompaña a su diario no es aquella con la que empezó el envío</translation>
    </message>
    <message>
        <source>another program works on it</source>
        <translation>otro programa está trabajando en él</translation>
    </message>
    <message>
        <source>a job of this name exists already</source>
        <translation>ya existe un envío con este nombre</translation>
    </message>
    <message>
        <source>a job can not have so many messages</source>
        <translation>un envío no puede tener tantos mensajes</translation>
    </message>
    <message>
        <source>the disk has no room for its journal</source>
        <translation>no hay sitio en el disco para su diario</translation>
    </message>
    <message>
        <source>its journal can not be written</source>
        <translation>no se puede escribir su diario</translation>
    </message>
</context>
<context>
    <name>Kept_Receipts</name>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1: no se puede leer</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n recipients</source>
        <translation>
            <numerusform>%1: %n destinatario</numerusform>
            <numerusform>%1: %n destinatarios</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, in work</source>
        <translation>%1, en curso</translation>
    </message>
    <message>
        <source>%1, not ended</source>
        <translation>%1, sin terminar</translation>
    </message>
    <message>
        <source>Re&amp;move ...</source>
        <translation>&amp;Eliminar...</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Envío</translation>
    </message>
    <message>
        <source>Removes the list and the record of this job</source>
        <translation>Elimina la lista y el registro de este envío</translation>
    </message>
    <message>
        <source>&amp;Job:</source>
        <translation>En&amp;vío:</translation>
    </message>
</context>
<context>
    <name>Language_Menu</name>
    <message>
        <source>La&amp;nguage (from the next start on)</source>
        <translation>&amp;Idioma (desde el próximo inicio)</translation>
    </message>
    <message>
        <source>As the &amp;desktop</source>
        <translation>Como el &amp;escritorio</translation>
    </message>
</context>
<context>
    <name>List_Arrivals</name>
    <message>
        <source>&amp;Paste numbers</source>
        <translation>&amp;Pegar números</translation>
    </message>
</context>
<context>
    <name>Lists_Page</name>
    <message>
        <source>Available exclusion lists</source>
        <translation>Listas de exclusión disponibles</translation>
    </message>
    <message>
        <source>Exclude when sending SMS</source>
        <translation>Excluir al enviar SMS</translation>
    </message>
    <message>
        <source>There is no exclusion list yet.</source>
        <translation>Todavía no hay ninguna lista de exclusión.</translation>
    </message>
    <message>
        <source>Make the first list ...</source>
        <translation>Crear la primera lista...</translation>
    </message>
    <message>
        <source>No list is applied, so nobody is left out.</source>
        <translation>No se aplica ninguna lista, así que no se omite a nadie.</translation>
    </message>
</context>
<context>
    <name>Load_Num_Info</name>
    <message>
        <source>Import numbers</source>
        <translation>Importar números</translation>
    </message>
    <message>
        <source>The list already holds numbers. Do you want to remove them before the numbers of the file are added?

&quot;No&quot; keeps them and adds the new numbers behind them.</source>
        <translation>La lista ya contiene números. ¿Quiere quitarlos antes de añadir los del archivo?

Con «No» se conservan y los nuevos se añaden detrás.</translation>
    </message>
    <message>
        <source>Import nothing</source>
        <translation>No importar nada</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Empty the list first</source>
        <translation>Vaciar antes la lista</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>Keep the list and add to it</source>
        <translation>Conservar la lista y añadir a ella</translation>
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
        <translation>Mensaje largo</translation>
    </message>
    <message>
        <source>Unicode message</source>
        <translation>Mensaje Unicode</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>Main_Menu</name>
    <message>
        <source>&amp;Edit ...</source>
        <translation>&amp;Modificar...</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Lista</translation>
    </message>
    <message>
        <source>&amp;Message</source>
        <translation>Me&amp;nsaje</translation>
    </message>
    <message>
        <source>&amp;Sending</source>
        <translation>&amp;Envío</translation>
    </message>
    <message>
        <source>&amp;What was sent</source>
        <translation>&amp;Qué se ha enviado</translation>
    </message>
</context>
<context>
    <name>Message_Boxes</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
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
        <translation>Número excluido</translation>
    </message>
    <message>
        <source>No number is in this list yet. Type one above, or load a file of them.</source>
        <translation>Esta lista todavía no tiene números. Escriba uno arriba o cargue un archivo.</translation>
    </message>
</context>
<context>
    <name>Open_Export_Log</name>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>The list has been exported.</source>
        <translation>La lista se ha exportado.</translation>
    </message>
    <message>
        <source>Open the &amp;exported file now</source>
        <translation>&amp;Abrir ahora el archivo exportado</translation>
    </message>
    <message>
        <source>The file could not be opened:
this computer has no program for it.</source>
        <translation>No se ha podido abrir el archivo:
este equipo no tiene ningún programa para él.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>The file stays where it is, unopened</source>
        <translation>El archivo se queda donde está, sin abrirse</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>Phone_List_Wnd</name>
    <message>
        <source>Mobile Phone Connection Wizard</source>
        <translation>Asistente de conexión del teléfono</translation>
    </message>
    <message>
        <source>Click a device to read what it tells about itself, then select it to send your messages through it.</source>
        <translation>Haga clic en un dispositivo para leer sus datos y selecciónelo después para enviar sus mensajes con él.</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>Dispositivos encontrados</translation>
    </message>
    <message>
        <source>&amp;Why does my phone not show?</source>
        <translation>¿Por &amp;qué no aparece mi teléfono?</translation>
    </message>
    <message>
        <source>Device details</source>
        <translation>Datos del dispositivo</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>&amp;Puerto</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Device pat&amp;h</source>
        <translation>Rut&amp;a del dispositivo</translation>
    </message>
    <message>
        <source>Device path</source>
        <translation>Ruta del dispositivo</translation>
    </message>
    <message>
        <source>&amp;Manufacturer</source>
        <translation>Fa&amp;bricante</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Fabricante</translation>
    </message>
    <message>
        <source>Mo&amp;del</source>
        <translation>Mode&amp;lo</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
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
        <translation>I&amp;MSI</translation>
    </message>
    <message>
        <source>IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>&amp;Battery</source>
        <translation>Ba&amp;tería</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Si&amp;gnal</source>
        <translation>S&amp;eñal</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Señal</translation>
    </message>
    <message>
        <source>&amp;Operator</source>
        <translation>&amp;Operador</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operador</translation>
    </message>
    <message>
        <source>&amp;Revision</source>
        <translation>&amp;Revisión</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>Revisión</translation>
    </message>
    <message>
        <source>Service centre (SMSC)</source>
        <translation>Centro de mensajes (SMSC)</translation>
    </message>
    <message>
        <source>D&amp;efault number of the device</source>
        <translation>Número pre&amp;determinado del dispositivo</translation>
    </message>
    <message>
        <source>Default service centre number</source>
        <translation>Número predeterminado del centro de mensajes</translation>
    </message>
    <message>
        <source>&amp;Use a custom number instead</source>
        <translation>&amp;Usar un número personalizado</translation>
    </message>
    <message>
        <source>Custom service centre number</source>
        <translation>Número personalizado del centro de mensajes</translation>
    </message>
    <message>
        <source>Search &amp;again</source>
        <translation>&amp;Volver a buscar</translation>
    </message>
    <message>
        <source>&amp;Continue without a device</source>
        <translation>&amp;Continuar sin dispositivo</translation>
    </message>
    <message>
        <source>Se&amp;lect this device</source>
        <translation>&amp;Seleccionar dispositivo</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>señal %1</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Searching for devices ...</source>
        <translation>Buscando dispositivos...</translation>
    </message>
    <message>
        <source>No phone or modem was found. Connect one and switch it on.</source>
        <translation>No se ha encontrado ningún teléfono ni módem. Conecte uno y enciéndalo.</translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>Volver a buscar</translation>
    </message>
</context>
<context>
    <name>Plan_Page</name>
    <message>
        <source>Sho&amp;w:</source>
        <translation>&amp;Mostrar:</translation>
    </message>
    <message>
        <source>Rows to show</source>
        <translation>Filas que se muestran</translation>
    </message>
    <message>
        <source>&amp;Longest</source>
        <translation>Más lar&amp;go</translation>
    </message>
    <message>
        <source>Goes to the row with the longest message</source>
        <translation>Va a la fila con el mensaje más largo</translation>
    </message>
    <message>
        <source>Rows as they will be sent</source>
        <translation>Filas tal como se enviarán</translation>
    </message>
    <message>
        <source>%1 cannot be dialled: the row stays as it was.</source>
        <translation>%1 no se puede marcar: la fila se ha quedado como estaba.</translation>
    </message>
    <message>
        <source>All rows</source>
        <translation>Todas las filas</translation>
    </message>
    <message>
        <source>Rows left out</source>
        <translation>Filas que se dejan fuera</translation>
    </message>
    <message>
        <source>Unicode messages</source>
        <translation>Mensajes Unicode</translation>
    </message>
    <message>
        <source>Looking at the rows: %1 % ...</source>
        <translation>Examinando las filas: %1 %...</translation>
    </message>
    <message>
        <source>Looking at the rows ...</source>
        <translation>Examinando las filas...</translation>
    </message>
</context>
<context>
    <name>Plan_Rows</name>
    <message>
        <source>Row</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>Number as written</source>
        <translation>Número escrito</translation>
    </message>
    <message>
        <source>As dialled</source>
        <translation>Número marcado</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Partes</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Observación</translation>
    </message>
</context>
<context>
    <name>Plan_Words</name>
    <message>
        <source>to be sent</source>
        <translation>se enviará</translation>
    </message>
    <message>
        <source>repeated</source>
        <translation>con número repetido</translation>
    </message>
    <message>
        <source>excluded</source>
        <translation>con número excluido</translation>
    </message>
    <message>
        <source>no usable number</source>
        <translation>sin número utilizable</translation>
    </message>
    <message>
        <source>empty field</source>
        <translation>con campo vacío</translation>
    </message>
    <message>
        <source>unknown field</source>
        <translation>con campo desconocido</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>con texto demasiado largo</translation>
    </message>
    <message>
        <source>fields misplaced</source>
        <translation>con campos desplazados</translation>
    </message>
    <message>
        <source>1 message to be sent</source>
        <translation>Se enviará 1 mensaje</translation>
    </message>
    <message numerus="yes">
        <source>%n messages to be sent</source>
        <translation>
            <numerusform>Se enviará %n mensaje</numerusform>
            <numerusform>Se enviarán %n mensajes</numerusform>
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
            <numerusform>%n partes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2, %3, %4</source>
        <translation>%1, %2, %3, %4</translation>
    </message>
    <message numerus="yes">
        <source>%n left out: %1.</source>
        <translation>
            <numerusform>Se deja fuera %n: %1.</numerusform>
            <numerusform>Se dejan fuera %n: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>others</source>
        <translation>otros</translation>
    </message>
    <message>
        <source>1 message goes as Unicode</source>
        <translation>1 mensaje sale como Unicode</translation>
    </message>
    <message numerus="yes">
        <source>%n messages go as Unicode</source>
        <translation>
            <numerusform>%n mensaje sale como Unicode</numerusform>
            <numerusform>%n mensajes salen como Unicode</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, because of %2.</source>
        <translation>%1, a causa de %2.</translation>
    </message>
</context>
<context>
    <name>PleaseWait_Modeless</name>
    <message>
        <source>Please wait ...</source>
        <translation>Espere...</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>En curso</translation>
    </message>
</context>
<context>
    <name>Receipt_Wnd</name>
    <message>
        <source>Receipt</source>
        <translation>Informe de envío</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>&amp;Mostrar:</translation>
    </message>
    <message>
        <source>Messages to show</source>
        <translation>Mensajes que se muestran</translation>
    </message>
    <message>
        <source>Messages of the job</source>
        <translation>Mensajes del envío</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>E&amp;xportar</translation>
    </message>
    <message>
        <source>Write the receipt into a file</source>
        <translation>Guardar el informe en un archivo</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>As a &amp;text ...</source>
        <translation>Como &amp;texto...</translation>
    </message>
    <message>
        <source>As a web &amp;page ...</source>
        <translation>Como página &amp;web...</translation>
    </message>
    <message>
        <source>As a table for &amp;spreadsheets (CSV) ...</source>
        <translation>Como tabla para &amp;hojas de cálculo (CSV)...</translation>
    </message>
    <message>
        <source>An apostrophe is in front of each number, and of whatever else a spreadsheet would take for a formula.</source>
        <translation>Cada número lleva delante un apóstrofo, al igual que todo lo que una hoja de cálculo tomaría por una fórmula.</translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>Leyendo...</translation>
    </message>
    <message>
        <source>No receipts are kept yet.</source>
        <translation>Todavía no se conserva ningún informe de envío.</translation>
    </message>
    <message>
        <source>The job could not be removed: %1.</source>
        <translation>No se ha podido eliminar el envío: %1.</translation>
    </message>
    <message>
        <source>There is no receipt of this job: %1.</source>
        <translation>No hay informe de este envío: %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be written.</source>
        <translation>No se ha podido escribir el archivo %1.</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Guardado en %1.</translation>
    </message>
</context>
<context>
    <name>Remembered_List</name>
    <message>
        <source>Re&amp;member this list</source>
        <translation>&amp;Recordar esta lista</translation>
    </message>
    <message>
        <source>The list from the last time cannot be read.</source>
        <translation>No se puede leer la lista de la última vez.</translation>
    </message>
    <message>
        <source>Recipients from the last time: %1.</source>
        <translation>Destinatarios de la última vez: %1.</translation>
    </message>
    <message>
        <source>Not read: %1.</source>
        <translation>No leídos: %1.</translation>
    </message>
</context>
<context>
    <name>Removal_Question</name>
    <message>
        <source>Keep it</source>
        <translation>Conservar</translation>
    </message>
    <message>
        <source>Really remove the job&apos;s list and its record from this computer? Nothing more can be sent of it then, and it has no receipt any more.</source>
        <translation>¿Seguro que quiere eliminar de este equipo la lista del envío y su registro? Después ya no se podrá enviar nada de él ni habrá informe.</translation>
    </message>
    <message>
        <source>Remove for good</source>
        <translation>Eliminar definitivamente</translation>
    </message>
</context>
<context>
    <name>Row_Finder</name>
    <message>
        <source>&amp;Find ...</source>
        <translation>&amp;Buscar...</translation>
    </message>
    <message>
        <source>&amp;Sort</source>
        <translation>&amp;Ordenar</translation>
    </message>
    <message>
        <source>%1, upwards</source>
        <translation>%1, ascendente</translation>
    </message>
    <message>
        <source>%1, downwards</source>
        <translation>%1, descendente</translation>
    </message>
    <message>
        <source>As in the list</source>
        <translation>Como en la lista</translation>
    </message>
    <message>
        <source>Searching ...</source>
        <translation>Buscando...</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>Sample_Rows</name>
    <message>
        <source>%1 (number)</source>
        <translation>%1 (número)</translation>
    </message>
</context>
<context>
    <name>Send_Modeless</name>
    <message>
        <source>Sending messages</source>
        <translation>Envío de mensajes</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>Total messages :</source>
        <translation>Mensajes en total:</translation>
    </message>
    <message>
        <source>Sending to :</source>
        <translation>Enviando a:</translation>
    </message>
    <message>
        <source>Messages handled</source>
        <translation>Mensajes procesados</translation>
    </message>
    <message>
        <source>&amp;Stop Sending</source>
        <translation>&amp;Detener envío</translation>
    </message>
    <message>
        <source>about 23 h 59 min left, until 30 September 2026, 23:59</source>
        <translation>tiempo restante: aprox. 23 h 59 min, hasta el 30 de septiembre de 2026 a las 23:59</translation>
    </message>
    <message>
        <source>Sending %1 of %2</source>
        <translation>Enviando %1 de %2</translation>
    </message>
    <message>
        <source>Now :</source>
        <translation>Ahora:</translation>
    </message>
    <message>
        <source>Stopping ...</source>
        <translation>Deteniendo...</translation>
    </message>
</context>
<context>
    <name>Send_Msg_Info</name>
    <message>
        <source>Before sending</source>
        <translation>Antes de enviar</translation>
    </message>
    <message>
        <source>The message in the composer is not yet in the list. You can copy it there before the list is sent.</source>
        <translation>El mensaje redactado todavía no está en la lista. Puede copiarlo en ella antes de enviarla.</translation>
    </message>
    <message>
        <source>Every number gets the message in the composer</source>
        <translation>Todos los números reciben el mensaje redactado</translation>
    </message>
    <message>
        <source>Copy it to &amp;all numbers in the list</source>
        <translation>Copiarlo en &amp;todos los números de la lista</translation>
    </message>
    <message>
        <source>The numbers whose message is empty get the message; the others keep theirs</source>
        <translation>Los números sin mensaje reciben este; los demás conservan el suyo</translation>
    </message>
    <message>
        <source>Copy it to the numbers without a &amp;message</source>
        <translation>Copiarlo en los números sin &amp;mensaje</translation>
    </message>
    <message>
        <source>Or send each number the message that it has in the list.</source>
        <translation>O enviar a cada número el mensaje que tiene en la lista.</translation>
    </message>
    <message>
        <source>Send nothing</source>
        <translation>No enviar nada</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Send the list as it stands</source>
        <translation>Enviar la lista tal como está</translation>
    </message>
    <message>
        <source>Send as it &amp;stands</source>
        <translation>&amp;Enviar tal como está</translation>
    </message>
    <message>
        <source>Copy the message and send</source>
        <translation>Copiar el mensaje y enviar</translation>
    </message>
    <message>
        <source>C&amp;opy and send</source>
        <translation>C&amp;opiar y enviar</translation>
    </message>
    <message>
        <source>The composer is empty. If you copy it to all numbers, every message in the list becomes blank.</source>
        <translation>El mensaje redactado está vacío. Si lo copia en todos los números, todos los mensajes de la lista quedarán vacíos.</translation>
    </message>
</context>
<context>
    <name>Send_Promise</name>
    <message>
        <source>Counting ...</source>
        <translation>Contando...</translation>
    </message>
    <message>
        <source>That is much for one phone.</source>
        <translation>Es mucho para un solo teléfono.</translation>
    </message>
    <message>
        <source>What to do instead</source>
        <translation>Qué hacer en su lugar</translation>
    </message>
    <message>
        <source>Other ways ...</source>
        <translation>Otras vías...</translation>
    </message>
    <message>
        <source>Show who gets nothing ...</source>
        <translation>Ver quién no recibe nada...</translation>
    </message>
    <message>
        <source>Check before sending ...</source>
        <translation>Comprobar antes de enviar...</translation>
    </message>
</context>
<context>
    <name>Sent_Items</name>
    <message>
        <source>Sent Items</source>
        <translation>Enviados</translation>
    </message>
    <message>
        <source>&amp;Sent messages:</source>
        <translation>Mensajes &amp;enviados:</translation>
    </message>
    <message>
        <source>Total Items : 0</source>
        <translation>Elementos: 0</translation>
    </message>
    <message>
        <source>Sent messages</source>
        <translation>Mensajes enviados</translation>
    </message>
    <message>
        <source>Selected &amp;message:</source>
        <translation>&amp;Mensaje seleccionado:</translation>
    </message>
    <message>
        <source>Selected message</source>
        <translation>Mensaje seleccionado</translation>
    </message>
    <message>
        <source>&amp;Delete selected</source>
        <translation>Eliminar &amp;selección</translation>
    </message>
    <message>
        <source>Take the selected messages out of the list</source>
        <translation>Quitar de la lista los mensajes seleccionados</translation>
    </message>
    <message>
        <source>Delete a&amp;ll</source>
        <translation>Eliminar &amp;todo</translation>
    </message>
    <message>
        <source>Empty the whole list</source>
        <translation>Vaciar toda la lista</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>E&amp;xportar...</translation>
    </message>
    <message>
        <source>Write the list into a text file or a web page</source>
        <translation>Guardar la lista en un archivo de texto o una página web</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Keep the list as it is shown and close this window</source>
        <translation>Conservar la lista tal como se muestra y cerrar esta ventana</translation>
    </message>
    <message>
        <source>[ The first %1 of %2 characters ]</source>
        <translation>[ Los primeros %1 de %2 caracteres ]</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>No message is kept here yet. Those that are handed to the phone from now on will be.</source>
        <translation>Aquí todavía no se guarda ningún mensaje. Se guardarán los que se entreguen al teléfono desde ahora.</translation>
    </message>
    <message>
        <source>No message is kept here yet, and those that are sent will not be.</source>
        <translation>Aquí todavía no se guarda ningún mensaje, y los que se envíen tampoco se guardarán.</translation>
    </message>
    <message>
        <source>Keep messages from now on</source>
        <translation>Guardar los mensajes desde ahora</translation>
    </message>
</context>
<context>
    <name>Table_Page</name>
    <message>
        <source>&amp;Numbers are in:</source>
        <translation>Columna de los &amp;números:</translation>
    </message>
    <message>
        <source>Column of the numbers</source>
        <translation>Columna de los números</translation>
    </message>
    <message>
        <source>The column that holds the numbers. A click on a heading of the table chooses it, too</source>
        <translation>La columna que contiene los números. También se elige con un clic en un encabezado de la tabla</translation>
    </message>
    <message>
        <source>National numbers are &amp;of:</source>
        <translation>&amp;País de los números:</translation>
    </message>
    <message>
        <source>Country of national numbers</source>
        <translation>País de los números nacionales</translation>
    </message>
    <message>
        <source>Gets the code of this country in front of a number that has none</source>
        <translation>Antepone el prefijo de este país a los números que no lo tienen</translation>
    </message>
    <message>
        <source>The first rows</source>
        <translation>Las primeras filas</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>C&amp;odificación:</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Codificación</translation>
    </message>
    <message>
        <source>Another one where letters look wrong</source>
        <translation>Otra, si las letras se ven mal</translation>
    </message>
    <message>
        <source>&amp;Delimiter:</source>
        <translation>&amp;Delimitador:</translation>
    </message>
    <message>
        <source>Delimiter</source>
        <translation>Delimitador</translation>
    </message>
    <message>
        <source>What stands between the fields of a row</source>
        <translation>Lo que separa los campos de una fila</translation>
    </message>
    <message>
        <source>&amp;Sheet:</source>
        <translation>&amp;Hoja:</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Hoja</translation>
    </message>
    <message>
        <source>Untick this where the first row is one like the others</source>
        <translation>Desmárquela si la primera fila es como las demás</translation>
    </message>
    <message>
        <source>&amp;First row has the names</source>
        <translation>La pri&amp;mera fila tiene los nombres</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 fila</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n fila</numerusform>
            <numerusform>%n filas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 in 1 column.</source>
        <translation>%1: %2 en 1 columna.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 in %n columns.</source>
        <translation>
            <numerusform>%1: %2 en %n columna.</numerusform>
            <numerusform>%1: %2 en %n columnas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Coma</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Punto y coma</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulador</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Barra vertical</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Como están escritos</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>Leyendo %1...</translation>
    </message>
    <message>
        <source>%1 can not be used: %2.</source>
        <translation>%1 no se puede usar: %2.</translation>
    </message>
    <message>
        <source>%1 holds no rows below the names of its columns.</source>
        <translation>%1 no contiene filas debajo de los nombres de sus columnas.</translation>
    </message>
    <message>
        <source>No column looks as if it held numbers. Choose the one that does.</source>
        <translation>Ninguna columna parece contener números. Elija la que los contiene.</translation>
    </message>
    <message>
        <source>One for each person, mobile ones first</source>
        <translation>Uno por persona, primero los móviles</translation>
    </message>
    <message>
        <source>Each number of a person</source>
        <translation>Todos los números de una persona</translation>
    </message>
    <message>
        <source>The file does not tell its encoding: look whether the letters are right.</source>
        <translation>El archivo no indica su codificación: compruebe que las letras sean correctas.</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Templates</source>
        <translation>Plantillas</translation>
    </message>
    <message>
        <source>&amp;Message templates:</source>
        <translation>&amp;Plantillas de mensajes:</translation>
    </message>
    <message>
        <source>Total Items : 0</source>
        <translation>Elementos: 0</translation>
    </message>
    <message>
        <source>Message templates</source>
        <translation>Plantillas de mensajes</translation>
    </message>
    <message>
        <source>Selected &amp;template:</source>
        <translation>Plantilla &amp;seleccionada:</translation>
    </message>
    <message>
        <source>Selected template</source>
        <translation>Plantilla seleccionada</translation>
    </message>
    <message>
        <source>Add &amp;new ...</source>
        <translation>&amp;Nueva...</translation>
    </message>
    <message>
        <source>Type a new template</source>
        <translation>Escribir una plantilla nueva</translation>
    </message>
    <message>
        <source>E&amp;dit ...</source>
        <translation>&amp;Modificar...</translation>
    </message>
    <message>
        <source>Change the selected template</source>
        <translation>Cambiar la plantilla seleccionada</translation>
    </message>
    <message>
        <source>Delete &amp;selected</source>
        <translation>&amp;Eliminar selección</translation>
    </message>
    <message>
        <source>Take the selected templates out of the list</source>
        <translation>Quitar de la lista las plantillas seleccionadas</translation>
    </message>
    <message>
        <source>Delete a&amp;ll</source>
        <translation>Eliminar &amp;todo</translation>
    </message>
    <message>
        <source>Empty the whole list</source>
        <translation>Vaciar toda la lista</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>E&amp;xportar...</translation>
    </message>
    <message>
        <source>Write the list into a text file or a web page</source>
        <translation>Guardar la lista en un archivo de texto o una página web</translation>
    </message>
    <message>
        <source>&amp;Use template</source>
        <translation>&amp;Usar plantilla</translation>
    </message>
    <message>
        <source>Put the selected template into the message</source>
        <translation>Insertar en el mensaje la plantilla seleccionada</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Keep the list as it is shown and close this window</source>
        <translation>Conservar la lista tal como se muestra y cerrar esta ventana</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Plantilla</translation>
    </message>
    <message>
        <source>Templates that could not be saved the last time are in the list again. They are saved when this window closes.</source>
        <translation>Las plantillas que no se pudieron guardar la última vez están otra vez en la lista. Se guardan al cerrar esta ventana.</translation>
    </message>
    <message>
        <source>The templates stored so far can not be read. They are kept in a file of their own when this list is saved.</source>
        <translation>Las plantillas guardadas hasta ahora no se pueden leer. Se conservan en un archivo aparte al guardar esta lista.</translation>
    </message>
    <message>
        <source>Changes can not be saved at present: the folder %1 can not be written to.</source>
        <translation>Por ahora no se pueden guardar los cambios: no se puede escribir en la carpeta %1.</translation>
    </message>
    <message>
        <source>No text is kept here yet.</source>
        <translation>Aquí todavía no se guarda ningún texto.</translation>
    </message>
    <message>
        <source>Add the first template ...</source>
        <translation>Añadir la primera plantilla...</translation>
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
            <numerusform>%n destinatarios</numerusform>
        </translation>
    </message>
    <message>
        <source>1 message</source>
        <translation>1 mensaje</translation>
    </message>
    <message numerus="yes">
        <source>%n messages</source>
        <translation>
            <numerusform>%n mensaje</numerusform>
            <numerusform>%n mensajes</numerusform>
        </translation>
    </message>
    <message>
        <source>sent items</source>
        <translation>los mensajes enviados</translation>
    </message>
    <message>
        <source>templates</source>
        <translation>las plantillas</translation>
    </message>
    <message>
        <source>a receipt</source>
        <translation>el informe de envío</translation>
    </message>
    <message>
        <source>to be kept: %1</source>
        <translation>se conservarán: %1</translation>
    </message>
    <message>
        <source> and </source>
        <translation> y </translation>
    </message>
    <message>
        <source>the record goes when all is done</source>
        <translation>el registro se borra al terminar todo</translation>
    </message>
    <message>
        <source>no record will be kept</source>
        <translation>no se conservará ningún registro</translation>
    </message>
    <message>
        <source>less than a minute</source>
        <translation>menos de un minuto</translation>
    </message>
    <message>
        <source>about %1 min</source>
        <translation>aprox. %1 min</translation>
    </message>
    <message>
        <source>about %1 h %2 min</source>
        <translation>aprox. %1 h %2 min</translation>
    </message>
    <message>
        <source>about %1 h</source>
        <translation>aprox. %1 h</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>hasta las %1</translation>
    </message>
    <message>
        <source>until tomorrow, %1</source>
        <translation>hasta mañana a las %1</translation>
    </message>
    <message>
        <source>until %1, %2</source>
        <translation>hasta el %1 a las %2</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <translation>d &apos;de&apos; MMMM &apos;de&apos; yyyy</translation>
    </message>
    <message>
        <source>Nobody in the list will be sent anything.</source>
        <translation>No se enviará nada a nadie de la lista.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>tiempo restante: %1</translation>
    </message>
    <message>
        <source>%1 once it goes on</source>
        <translation>%1 desde que se reanude</translation>
    </message>
</context>
<context>
    <name>Undo_Strip</name>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>&amp;Undo the removal</source>
        <translation>&amp;Deshacer la eliminación</translation>
    </message>
    <message>
        <source>What was just removed</source>
        <translation>Lo que se acaba de quitar</translation>
    </message>
    <message>
        <source>Brings back what was removed (Ctrl+Z)</source>
        <translation>Recupera lo que se ha quitado (Ctrl+Z)</translation>
    </message>
</context>
<context>
    <name>Unfilled_Rows</name>
    <message>
        <source>1 recipient gets nothing: %1.</source>
        <translation>1 destinatario no recibirá nada: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients get nothing. Of the first, %1.</source>
        <translation>
            <numerusform>%n destinatario no recibirá nada. Motivo del primero: %1.</numerusform>
            <numerusform>%n destinatarios no recibirán nada. Motivo del primero: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no field %1: 1 recipient gets nothing.</source>
        <translation>No existe el campo %1: 1 destinatario no recibirá nada.</translation>
    </message>
    <message numerus="yes">
        <source>There is no field %1: %n recipients get nothing.</source>
        <translation>
            <numerusform>No existe el campo %1: %n destinatario no recibirá nada.</numerusform>
            <numerusform>No existe el campo %1: %n destinatarios no recibirán nada.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 recipient has no %1: it gets nothing.</source>
        <translation>1 destinatario no tiene %1: no recibirá nada.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients have no %1: they get nothing.</source>
        <translation>
            <numerusform>%n destinatario no tiene %1: no recibirá nada.</numerusform>
            <numerusform>%n destinatarios no tienen %1: no recibirán nada.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Unfinished_Strip</name>
    <message>
        <source>Sends what was not sent. What was sent is not sent again.</source>
        <translation>Envía lo que no se envió. Lo ya enviado no se envía de nuevo.</translation>
    </message>
    <message>
        <source>Rows that may have been sent ...</source>
        <translation>Filas quizá enviadas...</translation>
    </message>
    <message>
        <source>Lists them, so that you can say what is to become of each</source>
        <translation>Las enumera para que indique qué hacer con cada una</translation>
    </message>
    <message>
        <source>Receipt ...</source>
        <translation>Informe...</translation>
    </message>
    <message>
        <source>Shows what became of each message so far</source>
        <translation>Muestra el resultado de cada mensaje hasta ahora</translation>
    </message>
    <message>
        <source>Remove ...</source>
        <translation>Eliminar...</translation>
    </message>
    <message>
        <source>Removes the job&apos;s list and its record</source>
        <translation>Elimina la lista del envío y su registro</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Leaves the job as it is and says no more of it for now</source>
        <translation>Deja el envío como está y no vuelve a mencionarlo por ahora</translation>
    </message>
    <message>
        <source>Job that has not ended</source>
        <translation>Envío sin terminar</translation>
    </message>
    <message>
        <source>Receipt of the job that has not ended ...</source>
        <translation>Informe del envío sin terminar...</translation>
    </message>
    <message>
        <source>A job that began on %1 has not ended.</source>
        <translation>Un envío iniciado el %1 no ha terminado.</translation>
    </message>
    <message>
        <source>Nothing of it is left to be sent.</source>
        <translation>No queda nada de él por enviar.</translation>
    </message>
    <message>
        <source>The job %1 cannot be gone on with: %2.</source>
        <translation>El envío %1 no se puede continuar: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n más</numerusform>
            <numerusform>%n más</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Send the remaining %n</source>
        <translation>
            <numerusform>Enviar el que queda</numerusform>
            <numerusform>Enviar los %n restantes</numerusform>
        </translation>
    </message>
    <message>
        <source>Send the rest</source>
        <translation>Enviar el resto</translation>
    </message>
    <message>
        <source>The job could not be removed: %1.</source>
        <translation>No se ha podido eliminar el envío: %1.</translation>
    </message>
</context>
<context>
    <name>Unknown_Rows_Sheet</name>
    <message>
        <source>Rows that may have been sent</source>
        <translation>Filas quizá enviadas</translation>
    </message>
    <message>
        <source>It is not known whether these messages were sent. What is left as it is will not be sent again. What is sent again may arrive twice.</source>
        <translation>No se sabe si estos mensajes se enviaron. Lo que se deje como está no se enviará de nuevo. Lo que se envíe de nuevo puede llegar dos veces.</translation>
    </message>
    <message>
        <source>The selected rows:</source>
        <translation>Las filas seleccionadas:</translation>
    </message>
    <message>
        <source>&amp;Leave</source>
        <translation>De&amp;jar</translation>
    </message>
    <message>
        <source>Send &amp;again</source>
        <translation>&amp;Enviar de nuevo</translation>
    </message>
    <message>
        <source>&amp;Count as sent</source>
        <translation>&amp;Dar por enviado</translation>
    </message>
    <message>
        <source>All rows:</source>
        <translation>Todas las filas:</translation>
    </message>
    <message>
        <source>Lea&amp;ve all</source>
        <translation>Dejar &amp;todo</translation>
    </message>
    <message>
        <source>Send all a&amp;gain</source>
        <translation>En&amp;viar todo de nuevo</translation>
    </message>
    <message>
        <source>C&amp;ount all as sent</source>
        <translation>Da&amp;r todo por enviado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Keep these decisions in the record of the job</source>
        <translation>Guardar estas decisiones en el registro del envío</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Leave everything as it is</source>
        <translation>Dejarlo todo como está</translation>
    </message>
    <message>
        <source>Leave as it is</source>
        <translation>Dejar como está</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Enviar de nuevo</translation>
    </message>
    <message>
        <source>Count as sent</source>
        <translation>Dar por enviado</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Qué hacer</translation>
    </message>
    <message>
        <source>The decisions could not be kept: %1.</source>
        <translation>No se han podido guardar las decisiones: %1.</translation>
    </message>
</context>
<context>
    <name>Unused_Lines_Wnd</name>
    <message>
        <source>Lines that were not used</source>
        <translation>Líneas que no se han usado</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>No phone number</source>
        <translation>No es un número de teléfono</translation>
    </message>
    <message>
        <source>Already in the list</source>
        <translation>Ya está en la lista</translation>
    </message>
    <message>
        <source>In an exclusion list</source>
        <translation>En una lista de exclusión</translation>
    </message>
    <message>
        <source>Lines not used: %1.</source>
        <translation>Líneas sin usar: %1.</translation>
    </message>
    <message>
        <source>These are the first %1.</source>
        <translation>Estas son las primeras %1.</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>As it stood there</source>
        <translation>Tal como figuraba</translation>
    </message>
    <message>
        <source>Why it was not used</source>
        <translation>Por qué no se ha usado</translation>
    </message>
</context>
<context>
    <name>UpdateTemp</name>
    <message>
        <source>Templates</source>
        <translation>Plantillas</translation>
    </message>
    <message>
        <source>&amp;Message:</source>
        <translation>&amp;Mensaje:</translation>
    </message>
    <message>
        <source>Message of the template</source>
        <translation>Mensaje de la plantilla</translation>
    </message>
    <message>
        <source>At most 1600 characters</source>
        <translation>1600 caracteres como máximo</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>0 caracteres</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>Update_Ex_Num</name>
    <message>
        <source>Edit number</source>
        <translation>Modificar número</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Número de teléfono</translation>
    </message>
    <message>
        <source>The number as it is to stand in the exclusion list, at most 20 characters</source>
        <translation>El número como debe figurar en la lista de exclusión, de 20 caracteres como máximo</translation>
    </message>
    <message>
        <source>Number as it was</source>
        <translation>Número anterior</translation>
    </message>
    <message>
        <source>Row of the number</source>
        <translation>Fila del número</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Phone &amp;number:</source>
        <translation>&amp;Número de teléfono:</translation>
    </message>
</context>
<context>
    <name>Update_Num_SMS</name>
    <message>
        <source>Edit number and message</source>
        <translation>Modificar número y mensaje</translation>
    </message>
    <message>
        <source>Phone &amp;number:</source>
        <translation>&amp;Número de teléfono:</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Número de teléfono</translation>
    </message>
    <message>
        <source>&amp;Message:</source>
        <translation>&amp;Mensaje:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>0 caracteres</translation>
    </message>
    <message>
        <source>For this window only</source>
        <translation>Solo para esta ventana</translation>
    </message>
    <message>
        <source>&amp;Refuse a number that is in the list already</source>
        <translation>&amp;Rechazar un número que ya está en la lista</translation>
    </message>
    <message>
        <source>Refuse an &amp;excluded number</source>
        <translation>Rechazar un número e&amp;xcluido</translation>
    </message>
    <message>
        <source>Leave the recipient as it is</source>
        <translation>Dejar el destinatario como está</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Save the recipient</source>
        <translation>Guardar el destinatario</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>Update_Sel_Num_SMS</name>
    <message>
        <source>Edit selected messages</source>
        <translation>Modificar los mensajes seleccionados</translation>
    </message>
    <message>
        <source>&amp;Selected numbers:</source>
        <translation>Números &amp;seleccionados:</translation>
    </message>
    <message>
        <source>Selected numbers</source>
        <translation>Números seleccionados</translation>
    </message>
    <message>
        <source>Total Selected Numbers : 0</source>
        <translation>Números seleccionados: 0</translation>
    </message>
    <message>
        <source>New &amp;message for all of them:</source>
        <translation>&amp;Mensaje nuevo para todos ellos:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>0 caracteres</translation>
    </message>
    <message>
        <source>Leave the messages as they are</source>
        <translation>Dejar los mensajes como están</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Copy the message to the selected numbers</source>
        <translation>Copiar el mensaje en los números seleccionados</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
</context>
</TS>
