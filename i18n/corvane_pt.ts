<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>Answer_Cleaning</name>
    <message>
        <source>Device does not have a battery connected.</source>
        <translation>O dispositivo não tem bateria conectada.</translation>
    </message>
    <message>
        <source>%1% ( Charging )</source>
        <translation>%1% (a carregar)</translation>
    </message>
    <message>
        <source>Recognized power fault.</source>
        <translation>Foi detetada uma falha de energia.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baixo</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Médio</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bom</translation>
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
        <translation>&amp;Claro</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Escuro</translation>
    </message>
    <message>
        <source>&amp;High contrast</source>
        <translation>&amp;Alto contraste</translation>
    </message>
    <message>
        <source>&amp;As the desktop</source>
        <translation>Como o &amp;sistema</translation>
    </message>
</context>
<context>
    <name>Bubble_Words</name>
    <message>
        <source>%1 is lost</source>
        <translation>%1 perde-se</translation>
    </message>
    <message>
        <source>%1 arrives as a blank</source>
        <translation>%1 chega como um espaço</translation>
    </message>
    <message>
        <source>%1 arrives as %2</source>
        <translation>%1 chega como %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>mais %n</numerusform>
            <numerusform>mais %n</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>%1 makes this message Unicode</source>
        <translation>%1 obriga a enviar esta mensagem como Unicode</translation>
    </message>
    <message>
        <source>%1 make this message Unicode</source>
        <translation>%1 obrigam a enviar esta mensagem como Unicode</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n parts instead of %2.</source>
        <translation>
            <numerusform>%1: %n parte em vez de %2.</numerusform>
            <numerusform>%1: %n partes em vez de %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 part of %1, %2 left</source>
        <translation>1 parte de %1, restam %2</translation>
    </message>
    <message numerus="yes">
        <source>%n parts of %1, %2 left in the last</source>
        <translation>
            <numerusform>%n parte de %1, restam %2 na última</numerusform>
            <numerusform>%n partes de %1, restam %2 na última</numerusform>
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
        <translation>Não foi encontrado nenhum telefone nem modem por USB ou Bluetooth. Ligue-o e conecte-o como se explica acima; pode demorar alguns segundos a aparecer. Já um modem conectado a uma porta série do próprio computador é sempre apresentado, como ttyS0 ou outro ttyS, se a sua conta tiver permissão para a abrir.</translation>
    </message>
    <message>
        <source>Your account may not open %1. Only the system&apos;s administrator can allow it.</source>
        <translation>A sua conta não tem permissão para abrir %1. Só o administrador do sistema a pode dar.</translation>
    </message>
    <message>
        <source>Your account may not open %1. Members of this group may: %2. Join it with this command, then log out and in again:</source>
        <translation>A sua conta não tem permissão para abrir %1. Os membros deste grupo têm: %2. Junte-se a ele com este comando, termine a sessão e volte a iniciá-la:</translation>
    </message>
    <message>
        <source>The service ModemManager is running and may hold the device&apos;s port. If the device is not found or does not answer, stop the service until the next start of the computer:</source>
        <translation>O serviço ModemManager está em execução e pode estar a ocupar a porta do dispositivo. Se o dispositivo não for encontrado ou não responder, pare o serviço até ao próximo arranque do computador:</translation>
    </message>
</context>
<context>
    <name>Connection_Info</name>
    <message>
        <source>Connect your mobile phone</source>
        <translation>Conecte o seu telefone</translation>
    </message>
    <message>
        <source>Corvane sends your messages through a mobile phone or GSM modem connected to this computer. Before the search begins, switch the device on and let the computer use it as a modem:</source>
        <translation>O Corvane envia as suas mensagens através de um telefone ou de um modem GSM conectado a este computador. Antes de começar a procura, ligue o dispositivo e permita que o computador o use como modem:</translation>
    </message>
    <message>
        <source>With a USB cable</source>
        <translation>Com um cabo USB</translation>
    </message>
    <message>
        <source>Plug the cable in and unlock the phone. When it asks what the connection is for, choose the modem or data mode – phones call it “Modem”, “PC connection”, “COM port” or “Tethering as a modem” – and not “Charging” or “File transfer”. A GSM modem or USB stick is ready some seconds after it has been plugged in.</source>
        <translation>Conecte o cabo e desbloqueie o telefone. Quando ele perguntar para que serve a conexão, escolha o modo de modem ou de dados – os telefones chamam-lhe “Modem”, “Conexão ao PC”, “Porta COM” ou “Modem USB” – e não “Carregar” nem “Transferência de ficheiros”. Um modem GSM ou USB fica pronto alguns segundos depois de conectado.</translation>
    </message>
    <message>
        <source>With Bluetooth</source>
        <translation>Por Bluetooth</translation>
    </message>
    <message>
        <source>Pair the phone in your desktop’s Bluetooth settings, then bind a serial port to it in a terminal, with the phone’s own address in place of the one shown:</source>
        <translation>Emparelhe o telefone nas configurações de Bluetooth do sistema e associe-lhe depois uma porta série num terminal, com o endereço do seu telefone em vez do que é mostrado:</translation>
    </message>
    <message>
        <source>Command that binds a serial port</source>
        <translation>Comando que associa uma porta série</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Neste computador</translation>
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
        <translation>Adicionados: %1.</translation>
    </message>
    <message>
        <source>%1 added, 1 row not used.</source>
        <translation>Adicionados: %1; 1 linha não usada.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %n rows not used.</source>
        <translation>
            <numerusform>Adicionados: %1; %n linha não usada.</numerusform>
            <numerusform>Adicionados: %1; %n linhas não usadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Guardado em %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be written.</source>
        <translation>Não foi possível escrever o ficheiro %1.</translation>
    </message>
    <message>
        <source>1 row was not sent: %1.</source>
        <translation>1 linha não foi enviada: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows were not sent. Of the first, %1.</source>
        <translation>
            <numerusform>%n linha não foi enviada. Motivo da primeira: %1.</numerusform>
            <numerusform>%n linhas não foram enviadas. Motivo da primeira: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nobody is on the list yet.</source>
        <translation>Ainda não há ninguém na lista.</translation>
    </message>
    <message>
        <source>Add contacts from a spreadsheet, CSV or vCard file ...</source>
        <translation>Adicionar contactos de uma folha de cálculo, CSV ou vCard...</translation>
    </message>
</context>
<context>
    <name>Contact_Source</name>
    <message>
        <source>The clipboard</source>
        <translation>A área de transferência</translation>
    </message>
</context>
<context>
    <name>Contacts_Wnd</name>
    <message>
        <source>Another file ...</source>
        <translation>Outro ficheiro...</translation>
    </message>
    <message>
        <source>Choose another file</source>
        <translation>Escolher outro ficheiro</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Voltar</translation>
    </message>
    <message>
        <source>Back to the columns and the country</source>
        <translation>Voltar às colunas e ao país</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>Look at what is made of each row</source>
        <translation>Ver o que resulta de cada linha</translation>
    </message>
    <message>
        <source>&amp;Add to list</source>
        <translation>&amp;Adicionar à lista</translation>
    </message>
    <message>
        <source>Add the rows that can be used to the list, with the message as it stands</source>
        <translation>Adicionar à lista as linhas utilizáveis, com a mensagem tal como está</translation>
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
        <translation>Verificar antes de enviar</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>não há memória suficiente</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
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
        <translation>Nenhum telefone selecionado.</translation>
    </message>
    <message>
        <source>Click here to start Mobile Phone Connection Wizard.</source>
        <translation>Clique aqui para abrir o assistente de conexão do telefone.</translation>
    </message>
    <message>
        <source>Find the phones and modems attached to this computer and pick one</source>
        <translation>Procurar os telefones e modems conectados a este computador e escolher um</translation>
    </message>
    <message>
        <source>Connection &amp;Wizard ...</source>
        <translation>Assistente de &amp;conexão...</translation>
    </message>
    <message>
        <source>Choose the normal type of message, and select those whose message was not taken. Nothing is sent: keep only those, and then press Send</source>
        <translation>Escolher o tipo normal de mensagem e selecionar os destinatários cuja mensagem não foi aceite. Nada é enviado: mantenha só esses e clique depois em Enviar</translation>
    </message>
    <message>
        <source>Choose normal text messages</source>
        <translation>Usar mensagens de texto normais</translation>
    </message>
    <message>
        <source>Recipients</source>
        <translation>Destinatários</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Número de telefone</translation>
    </message>
    <message>
        <source>for example +447700900123</source>
        <translation>por exemplo, +447700900123</translation>
    </message>
    <message>
        <source>Add the number with the message as it stands</source>
        <translation>Adicionar o número com a mensagem tal como está</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Adicionar</translation>
    </message>
    <message>
        <source>Add the numbers of a text or RTF file, one in each line, with the message as it stands. A file can also be dropped on the list, and numbers can be pasted into it</source>
        <translation>Adicionar os números de um ficheiro de texto ou RTF, um por linha, com a mensagem tal como está. Também pode largar um ficheiro sobre a lista, ou colar números nela</translation>
    </message>
    <message>
        <source>&amp;Import ...</source>
        <translation>I&amp;mportar...</translation>
    </message>
    <message>
        <source>Add the contacts of a spreadsheet, a CSV or a vCard file, with their names and other fields, after a look at what is made of them</source>
        <translation>Adicionar os contactos de uma folha de cálculo, de um ficheiro CSV ou de um vCard, com os nomes e outros campos, depois de ver o que resulta deles</translation>
    </message>
    <message>
        <source>Contacts ...</source>
        <translation>Contactos...</translation>
    </message>
    <message>
        <source>Total Numbers : 0</source>
        <translation>Total de números: 0</translation>
    </message>
    <message>
        <source>Write the numbers of the list into a text file</source>
        <translation>Guardar os números da lista num ficheiro de texto</translation>
    </message>
    <message>
        <source>Ex&amp;port ...</source>
        <translation>E&amp;xportar...</translation>
    </message>
    <message>
        <source>Clear S&amp;elected</source>
        <translation>&amp;Remover seleção</translation>
    </message>
    <message>
        <source>&amp;Clear All</source>
        <translation>Esva&amp;ziar lista</translation>
    </message>
    <message>
        <source>Select the recipients whose message was refused or not tried. One that may have been sent, was written or got no answer is not among them, since it may have arrived</source>
        <translation>Selecionar os destinatários cuja mensagem foi recusada ou não chegou a ser tentada. Ficam de fora as que talvez tenham sido enviadas, as escritas e as que não tiveram resposta, pois podem ter chegado</translation>
    </message>
    <message>
        <source>Select those not taken</source>
        <translation>Selecionar não aceites</translation>
    </message>
    <message>
        <source>Remove all recipients from the list but those whose message was refused or not tried. Nothing is sent</source>
        <translation>Remover da lista todos os destinatários, exceto aqueles cuja mensagem foi recusada ou não chegou a ser tentada. Nada é enviado</translation>
    </message>
    <message>
        <source>Keep only those</source>
        <translation>Manter só esses</translation>
    </message>
    <message>
        <source>Look at what became of each message of the last job that was confirmed, and export that</source>
        <translation>Ver e exportar o que aconteceu a cada mensagem do último envio confirmado</translation>
    </message>
    <message>
        <source>Receipt ...</source>
        <translation>Relatório...</translation>
    </message>
    <message>
        <source>Excluded numbers</source>
        <translation>Números excluídos</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>&amp;Message for the numbers you add:</source>
        <translation>Mensagem para os números &amp;que adicionar:</translation>
    </message>
    <message>
        <source>Put a field into the message. Everybody gets it with the value of their own</source>
        <translation>Inserir um campo na mensagem. Cada destinatário recebe-a com o seu próprio valor</translation>
    </message>
    <message>
        <source>Insert field</source>
        <translation>Inserir campo</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>0 caracteres</translation>
    </message>
    <message>
        <source>Write one new message for the recipients selected in the list</source>
        <translation>Escrever uma nova mensagem para os destinatários selecionados na lista</translation>
    </message>
    <message>
        <source>Edit the
messages of
selected items</source>
        <translation>Editar as
mensagens
selecionadas</translation>
    </message>
    <message>
        <source>Copy the message above to all, the selected or the blank items of the list</source>
        <translation>Copiar a mensagem acima para todos os itens da lista, para os selecionados ou para os que não têm mensagem</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Envio</translation>
    </message>
    <message>
        <source>Message &amp;type:</source>
        <translation>&amp;Tipo de mensagem:</translation>
    </message>
    <message>
        <source>Message type</source>
        <translation>Tipo de mensagem</translation>
    </message>
    <message>
        <source>A notification shows at once on the handset and is not stored</source>
        <translation>Uma notificação aparece de imediato no telefone e não fica guardada nele</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Notificação</translation>
    </message>
    <message>
        <source>Text message</source>
        <translation>Mensagem de texto</translation>
    </message>
    <message>
        <source>Needed for every text with characters that Help does not list, such as € ê ő ö ù or emoji: they arrive as others without it. 70 characters fit one message instead of 160</source>
        <translation>Necessário para todos os textos com caracteres que a Ajuda não indica, como € ê ő ö ù ou emojis: sem isto, chegam transformados noutros. Numa mensagem cabem 70 caracteres em vez de 160</translation>
    </message>
    <message>
        <source>Send as &amp;Unicode</source>
        <translation>Enviar como &amp;Unicode</translation>
    </message>
    <message>
        <source>Refuse a number that the list has already, and send to each number once</source>
        <translation>Recusar os números que já estão na lista e enviar uma só vez para cada número</translation>
    </message>
    <message>
        <source>S&amp;kip duplicate numbers</source>
        <translation>Ignorar números &amp;duplicados</translation>
    </message>
    <message>
        <source>Refuse the numbers of the applied exclusion lists, and never send to them</source>
        <translation>Recusar os números das listas de exclusão aplicadas e nunca lhes enviar nada</translation>
    </message>
    <message>
        <source>Heed the exc&amp;lusion lists</source>
        <translation>Respeitar &amp;listas de exclusão</translation>
    </message>
    <message>
        <source>Keep lists of numbers that are not to be sent to</source>
        <translation>Manter listas de números para os quais não se deve enviar</translation>
    </message>
    <message>
        <source>Exclusi&amp;on Lists ...</source>
        <translation>Listas de exclusã&amp;o...</translation>
    </message>
    <message>
        <source>Keep a record of every message that was handed to the phone</source>
        <translation>Manter um registo de cada mensagem passada ao telefone</translation>
    </message>
    <message>
        <source>Sa&amp;ve sent items</source>
        <translation>&amp;Guardar enviadas</translation>
    </message>
    <message>
        <source>Look at the records of messages handed to the phone</source>
        <translation>Ver o registo das mensagens passadas ao telefone</translation>
    </message>
    <message>
        <source>Sent Items ...</source>
        <translation>Enviadas...</translation>
    </message>
    <message>
        <source>Keep the text of every message that was handed to the phone, once</source>
        <translation>Guardar, uma só vez, o texto de cada mensagem passada ao telefone</translation>
    </message>
    <message>
        <source>Save messa&amp;ges as templates</source>
        <translation>Guardar mensagen&amp;s como modelos</translation>
    </message>
    <message>
        <source>Keep texts that are used again, and put one into the message</source>
        <translation>Guardar textos usados com frequência e inserir um deles na mensagem</translation>
    </message>
    <message>
        <source>Templates ...</source>
        <translation>Modelos...</translation>
    </message>
    <message>
        <source>Send each message as soon as the phone or network has answered for the one before it, in the alphabet that its text needs, and never a second time unasked. A record of the job is kept until it is finished</source>
        <translation>Enviar cada mensagem assim que o telefone ou a rede tenha respondido à anterior, no alfabeto de que o texto precisa, e nunca uma segunda vez sem perguntar. É mantido um registo do envio até este terminar</translation>
    </message>
    <message>
        <source>Con&amp;firm each message</source>
        <translation>Con&amp;firmar cada mensagem</translation>
    </message>
    <message>
        <source>Look at the receipts that were kept</source>
        <translation>Ver os relatórios de envio conservados</translation>
    </message>
    <message>
        <source>Receipts ...</source>
        <translation>Relatórios...</translation>
    </message>
    <message>
        <source>Ask the network to report what was delivered, and wait up to a minute for that at the end. Some networks charge for reports, and some never send any</source>
        <translation>Pedir à rede que informe o que foi entregue e esperar por isso até um minuto no fim. Algumas redes cobram por estes relatórios e outras nunca os enviam</translation>
    </message>
    <message>
        <source>Ask for delivery reports</source>
        <translation>Pedir relatórios de entrega</translation>
    </message>
    <message>
        <source>Keep the record of a finished job, with every number and message, instead of removing it</source>
        <translation>Conservar o registo de um envio terminado, com todos os números e mensagens, em vez de o apagar</translation>
    </message>
    <message>
        <source>Keep the receipt</source>
        <translation>Conservar o relatório</translation>
    </message>
    <message>
        <source>Have these boxes ticked as they are now, whenever the program starts</source>
        <translation>Ter estas caixas marcadas como agora sempre que o programa iniciar</translation>
    </message>
    <message>
        <source>Remember these choices</source>
        <translation>Lembrar estas opções</translation>
    </message>
    <message>
        <source>Pause after each batch of messages</source>
        <translation>Fazer uma pausa após cada grupo de mensagens</translation>
    </message>
    <message>
        <source>&amp;Delay: after</source>
        <translation>&amp;Pausa: após</translation>
    </message>
    <message>
        <source>Messages before each pause</source>
        <translation>Mensagens antes de cada pausa</translation>
    </message>
    <message>
        <source>How many messages are sent before each pause</source>
        <translation>Quantas mensagens são enviadas antes de cada pausa</translation>
    </message>
    <message numerus="yes">
        <source>messages wait</source>
        <translation>
            <numerusform>mensagem, esperar</numerusform>
            <numerusform>mensagens, esperar</numerusform>
        </translation>
    </message>
    <message>
        <source>Length of each pause</source>
        <translation>Duração de cada pausa</translation>
    </message>
    <message>
        <source>How long each pause lasts</source>
        <translation>Quanto tempo dura cada pausa</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>Choose light or dark colours, or those with the highest contrast</source>
        <translation>Escolher cores claras ou escuras, ou as de maior contraste</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Empty the list, the fields and the options</source>
        <translation>Esvaziar a lista e os campos, e redefinir as opções</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>R&amp;edefinir</translation>
    </message>
    <message>
        <source>What serves better for long lists, and how to hand this one over</source>
        <translation>O que é melhor para listas longas, e como transferir esta</translation>
    </message>
    <message>
        <source>Other ways ...</source>
        <translation>Outras vias...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Sa&amp;ir</translation>
    </message>
    <message>
        <source>Look at each message as it will be sent, what is left out and why. Nothing is sent</source>
        <translation>Ver cada mensagem como será enviada, o que fica de fora e porquê. Nada é enviado</translation>
    </message>
    <message>
        <source>Check before sending ...</source>
        <translation>Verificar antes de enviar...</translation>
    </message>
    <message>
        <source>Send each recipient&apos;s message</source>
        <translation>Enviar a cada destinatário a sua mensagem</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>En&amp;viar</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Excluded number</source>
        <translation>Número excluído</translation>
    </message>
    <message>
        <source>1 recipient removed.</source>
        <translation>1 destinatário removido.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients removed.</source>
        <translation>
            <numerusform>%n destinatário removido.</numerusform>
            <numerusform>%n destinatários removidos.</numerusform>
        </translation>
    </message>
    <message>
        <source>List, fields and options were reset.</source>
        <translation>A lista, os campos e as opções foram redefinidos.</translation>
    </message>
    <message>
        <source>Everything that can be done here, with its keys</source>
        <translation>Tudo o que se pode fazer aqui, com os atalhos</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>What the program does, in short, and how to use it</source>
        <translation>Em resumo, o que o programa faz e como se usa</translation>
    </message>
    <message>
        <source>End the program, after a question</source>
        <translation>Sair do programa, depois de uma pergunta</translation>
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
        <translation>Não foi possível iniciar o telefone virtual: %1: %2</translation>
    </message>
</context>
<context>
    <name>Desktop_Help</name>
    <message>
        <source>Messages are being sent</source>
        <translation>A enviar mensagens</translation>
    </message>
    <message>
        <source>Sending waits</source>
        <translation>O envio está em espera</translation>
    </message>
    <message>
        <source>Sending has ended</source>
        <translation>O envio terminou</translation>
    </message>
</context>
<context>
    <name>Doctor_Wnd</name>
    <message>
        <source>Why does my phone not show?</source>
        <translation>Porque não aparece o meu telefone?</translation>
    </message>
    <message>
        <source>This looks at the ports of this computer and asks the devices on them. Nothing is sent, and no PIN is tried.</source>
        <translation>Aqui são examinadas as portas deste computador e consultados os dispositivos nelas. Nada é enviado e nenhum PIN é experimentado.</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>O que foi encontrado</translation>
    </message>
    <message>
        <source>Looking</source>
        <translation>A examinar</translation>
    </message>
    <message>
        <source>No phone at hand?</source>
        <translation>Sem telefone à mão?</translation>
    </message>
    <message>
        <source>Try the program with a virtual phone: nothing is really sent.</source>
        <translation>Experimente o programa com um telefone virtual: nada é enviado de verdade.</translation>
    </message>
    <message>
        <source>Use the &amp;virtual phone</source>
        <translation>Usar o telefone &amp;virtual</translation>
    </message>
    <message>
        <source>Look &amp;again</source>
        <translation>Ver de &amp;novo</translation>
    </message>
    <message>
        <source>Copy &amp;report</source>
        <translation>Copiar &amp;relatório</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Looking at what is connected ...</source>
        <translation>A examinar o que está conectado...</translation>
    </message>
    <message>
        <source>Asking %1 ...</source>
        <translation>A consultar %1...</translation>
    </message>
    <message>
        <source>A device is there that could send.</source>
        <translation>Há um dispositivo que poderia enviar.</translation>
    </message>
    <message>
        <source>No device could send. What helps stands above.</source>
        <translation>Nenhum dispositivo poderia enviar. Acima indica-se o que ajuda.</translation>
    </message>
    <message>
        <source>The report is copied. It holds no numbers and no texts of messages.</source>
        <translation>O relatório foi copiado. Não contém números nem textos de mensagens.</translation>
    </message>
</context>
<context>
    <name>Exclusion_Trouble</name>
    <message>
        <source>The file that says which exclusion lists are applied
can not be read: no number is excluded.</source>
        <translation>Não é possível ler o ficheiro que indica as listas de exclusão
aplicadas: nenhum número é excluído.</translation>
    </message>
    <message>
        <source>The exclusion list %1
can not be used: its numbers are not excluded.</source>
        <translation>A lista de exclusão %1
não pode ser usada: os seus números não são excluídos.</translation>
    </message>
    <message>
        <source>The exclusion lists %1
can not be used: their numbers are not excluded.</source>
        <translation>As listas de exclusão %1
não podem ser usadas: os seus números não são excluídos.</translation>
    </message>
    <message>
        <source>The exclusion lists %1 and %2 more
can not be used: their numbers are not excluded.</source>
        <translation>As listas de exclusão %1 e mais %2
não podem ser usadas: os seus números não são excluídos.</translation>
    </message>
</context>
<context>
    <name>Exclusion_Wizard</name>
    <message>
        <source>Exclusion List Wizard</source>
        <translation>Assistente de listas de exclusão</translation>
    </message>
    <message>
        <source>Available exclusion lists</source>
        <translation>Listas de exclusão disponíveis</translation>
    </message>
    <message>
        <source>Apply the selected lists</source>
        <translation>Aplicar as listas selecionadas</translation>
    </message>
    <message>
        <source>Exclude the numbers of the selected lists when sending</source>
        <translation>Excluir os números das listas selecionadas ao enviar</translation>
    </message>
    <message>
        <source>&amp;Apply  ›</source>
        <translation>&amp;Aplicar  ›</translation>
    </message>
    <message>
        <source>Apply all lists</source>
        <translation>Aplicar todas as listas</translation>
    </message>
    <message>
        <source>Exclude the numbers of all lists when sending</source>
        <translation>Excluir os números de todas as listas ao enviar</translation>
    </message>
    <message>
        <source>Apply a&amp;ll  »</source>
        <translation>Aplicar &amp;todas  »</translation>
    </message>
    <message>
        <source>Remove the selected applied lists</source>
        <translation>Remover as listas aplicadas selecionadas</translation>
    </message>
    <message>
        <source>Do not exclude the numbers of the selected lists any more</source>
        <translation>Deixar de excluir os números das listas selecionadas</translation>
    </message>
    <message>
        <source>‹  &amp;Remove</source>
        <translation>‹  &amp;Remover</translation>
    </message>
    <message>
        <source>Remove all applied lists</source>
        <translation>Remover todas as listas aplicadas</translation>
    </message>
    <message>
        <source>Do not exclude the numbers of any list any more</source>
        <translation>Deixar de excluir os números de qualquer lista</translation>
    </message>
    <message>
        <source>«  Re&amp;move all</source>
        <translation>«  Re&amp;mover todas</translation>
    </message>
    <message>
        <source>Lists to exclude when sending SMS</source>
        <translation>Listas a excluir ao enviar SMS</translation>
    </message>
    <message>
        <source>Make a new exclusion list</source>
        <translation>Criar uma lista de exclusão</translation>
    </message>
    <message>
        <source>Add &amp;New ...</source>
        <translation>&amp;Nova lista...</translation>
    </message>
    <message>
        <source>Edit the numbers of the selected list</source>
        <translation>Editar os números da lista selecionada</translation>
    </message>
    <message>
        <source>&amp;Update ...</source>
        <translation>&amp;Editar...</translation>
    </message>
    <message>
        <source>Delete the selected lists and their numbers</source>
        <translation>Eliminar as listas selecionadas e os seus números</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Keep the lists on the right as those to exclude when sending</source>
        <translation>Manter as listas da direita como as que são excluídas ao enviar</translation>
    </message>
    <message>
        <source>&amp;Save Applied</source>
        <translation>Guardar aplicada&amp;s</translation>
    </message>
    <message>
        <source>Exclusion list name</source>
        <translation>Nome da lista de exclusão</translation>
    </message>
    <message>
        <source>A name for the list, at most 50 characters</source>
        <translation>Um nome para a lista, com 50 caracteres no máximo</translation>
    </message>
    <message>
        <source>Administration team</source>
        <translation>Equipa da administração</translation>
    </message>
    <message>
        <source>File of numbers</source>
        <translation>Ficheiro de números</translation>
    </message>
    <message>
        <source>A text or rich-text file with one number a line</source>
        <translation>Um ficheiro de texto simples ou formatado com um número por linha</translation>
    </message>
    <message>
        <source>Pick the file</source>
        <translation>Escolher o ficheiro</translation>
    </message>
    <message>
        <source>Bro&amp;wse ...</source>
        <translation>&amp;Procurar...</translation>
    </message>
    <message>
        <source>Add the numbers of the file to the list</source>
        <translation>Adicionar à lista os números do ficheiro</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>Carre&amp;gar</translation>
    </message>
    <message>
        <source>or</source>
        <translation>ou</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Número de telefone</translation>
    </message>
    <message>
        <source>A phone number, at most 20 characters</source>
        <translation>Um número de telefone, com 20 caracteres no máximo</translation>
    </message>
    <message>
        <source>Add the number to the list</source>
        <translation>Adicionar o número à lista</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>A&amp;dicionar</translation>
    </message>
    <message>
        <source>Numbers of the list</source>
        <translation>Números da lista</translation>
    </message>
    <message>
        <source>Total Numbers : 0</source>
        <translation>Total de números: 0</translation>
    </message>
    <message>
        <source>Edit the selected number</source>
        <translation>Editar o número selecionado</translation>
    </message>
    <message>
        <source>Remove the selected numbers from the list</source>
        <translation>Remover da lista os números selecionados</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remover</translation>
    </message>
    <message>
        <source>Close; applied lists that were not saved are forgotten</source>
        <translation>Fechar; as listas aplicadas que não foram guardadas são descartadas</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Voltar</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>Segu&amp;inte</translation>
    </message>
    <message>
        <source>Save the list</source>
        <translation>Guardar a lista</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>C&amp;oncluir</translation>
    </message>
    <message>
        <source>Close; a list that was not finished is forgotten</source>
        <translation>Fechar; uma lista não concluída é descartada</translation>
    </message>
    <message>
        <source>Exclusion &amp;list name:</source>
        <translation>Nome da lista de e&amp;xclusão:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Exemplo:</translation>
    </message>
    <message>
        <source>Numbers from a f&amp;ile:</source>
        <translation>Números de um &amp;ficheiro:</translation>
    </message>
    <message>
        <source>One &amp;number:</source>
        <translation>&amp;Um número:</translation>
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
        <translation>Em que formato pretende exportar a lista?</translation>
    </message>
    <message>
        <source>&amp;Text file</source>
        <translation>Ficheiro de &amp;texto</translation>
    </message>
    <message>
        <source>Plain text, with a line between the entries</source>
        <translation>Texto simples, com uma linha entre as entradas</translation>
    </message>
    <message>
        <source>&amp;HTML page</source>
        <translation>Página &amp;HTML</translation>
    </message>
    <message>
        <source>A table that a web browser shows</source>
        <translation>Uma tabela que se vê num navegador</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
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
        <translation>%1 e mais %2</translation>
    </message>
    <message>
        <source>Save with fields ...</source>
        <translation>Guardar com campos...</translation>
    </message>
    <message>
        <source>Write the list with its messages and fields into a table that can be opened again</source>
        <translation>Guardar a lista com as suas mensagens e campos numa tabela que pode voltar a ser aberta</translation>
    </message>
    <message>
        <source>Fields of the list</source>
        <translation>Campos da lista</translation>
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
%1 já existe.

Quer substituir o ficheiro?</translation>
    </message>
</context>
<context>
    <name>Fill_Msg_In_List</name>
    <message>
        <source>Fill message into list</source>
        <translation>Copiar mensagem para a lista</translation>
    </message>
    <message>
        <source>Copy the message in the composer to:</source>
        <translation>Copiar a mensagem escrita para:</translation>
    </message>
    <message>
        <source>Every number gets the message in the composer</source>
        <translation>Todos os números recebem a mensagem escrita</translation>
    </message>
    <message>
        <source>&amp;All numbers in the list</source>
        <translation>&amp;Todos os números da lista</translation>
    </message>
    <message>
        <source>The numbers selected in the list get the message; the others keep theirs</source>
        <translation>Os números selecionados na lista recebem a mensagem; os outros ficam com a sua</translation>
    </message>
    <message>
        <source>The &amp;selected numbers</source>
        <translation>Os números &amp;selecionados</translation>
    </message>
    <message>
        <source>The numbers whose message is empty get the message; the others keep theirs</source>
        <translation>Os números sem mensagem recebem esta; os outros ficam com a sua</translation>
    </message>
    <message>
        <source>The numbers without a &amp;message</source>
        <translation>Os números sem &amp;mensagem</translation>
    </message>
    <message>
        <source>Leave the list as it is</source>
        <translation>Deixar a lista como está</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Copy the message</source>
        <translation>Copiar a mensagem</translation>
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
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Show all rows again (Escape)</source>
        <translation>Mostrar de novo todas as linhas (Esc)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Procurar:</translation>
    </message>
    <message>
        <source>Only rows with all these words are shown. The list, and what is sent, stay as they are</source>
        <translation>Só se mostram as linhas com todas estas palavras. A lista e o que é enviado não mudam</translation>
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
        <translation>Este número, ou o do centro de mensagens, não existe.</translation>
    </message>
    <message>
        <source>The recipient&apos;s number is invalid.</source>
        <translation>O número do destinatário não é válido.</translation>
    </message>
    <message>
        <source>Messages to this recipient are barred.</source>
        <translation>As mensagens para este destinatário estão bloqueadas.</translation>
    </message>
    <message>
        <source>The recipient&apos;s network is out of order.</source>
        <translation>A rede do destinatário está fora de serviço.</translation>
    </message>
    <message>
        <source>The operator has barred sending.</source>
        <translation>A operadora bloqueou o envio.</translation>
    </message>
    <message>
        <source>Sending is barred on this SIM card.</source>
        <translation>O envio está bloqueado neste cartão SIM.</translation>
    </message>
    <message>
        <source>The service centre does not know this SIM card.</source>
        <translation>O centro de mensagens não conhece este cartão SIM.</translation>
    </message>
    <message>
        <source>The network does not grant this service.</source>
        <translation>A rede não permite este serviço.</translation>
    </message>
    <message>
        <source>The network does not know this SIM card.</source>
        <translation>A rede não conhece este cartão SIM.</translation>
    </message>
    <message>
        <source>Text messages are not part of the contract.</source>
        <translation>As mensagens de texto não fazem parte do contrato.</translation>
    </message>
    <message>
        <source>The network does not offer text messages.</source>
        <translation>A rede não oferece mensagens de texto.</translation>
    </message>
    <message>
        <source>There is no contract with the service centre.</source>
        <translation>Não há contrato com o centro de mensagens.</translation>
    </message>
    <message>
        <source>The network has failed.</source>
        <translation>A rede falhou.</translation>
    </message>
    <message>
        <source>The network rejects this message.</source>
        <translation>A rede rejeita esta mensagem.</translation>
    </message>
    <message>
        <source>The network is congested.</source>
        <translation>A rede está congestionada.</translation>
    </message>
    <message>
        <source>The network is out of order.</source>
        <translation>A rede está fora de serviço.</translation>
    </message>
    <message>
        <source>The network has a temporary failure.</source>
        <translation>A rede tem uma falha temporária.</translation>
    </message>
    <message>
        <source>The service centre is congested.</source>
        <translation>O centro de mensagens está congestionado.</translation>
    </message>
    <message>
        <source>The network has no room for messages now.</source>
        <translation>A rede não tem agora espaço para mensagens.</translation>
    </message>
    <message>
        <source>The network has lost track of this message.</source>
        <translation>A rede perdeu o rasto desta mensagem.</translation>
    </message>
    <message>
        <source>There is trouble between two networks.</source>
        <translation>Há problemas entre duas redes.</translation>
    </message>
    <message>
        <source>The service centre is busy.</source>
        <translation>O centro de mensagens está ocupado.</translation>
    </message>
    <message>
        <source>The service centre has failed.</source>
        <translation>O centro de mensagens falhou.</translation>
    </message>
    <message>
        <source>The service centre already has this message.</source>
        <translation>O centro de mensagens já tem esta mensagem.</translation>
    </message>
    <message>
        <source>The network gives a reason of its own.</source>
        <translation>A rede indica um motivo próprio.</translation>
    </message>
    <message>
        <source>The network gives no reason.</source>
        <translation>A rede não indica o motivo.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number is not known.</source>
        <translation>O número do centro de mensagens não é conhecido.</translation>
    </message>
    <message>
        <source>There is no network.</source>
        <translation>Não há rede.</translation>
    </message>
    <message>
        <source>The network allows nothing but emergency calls.</source>
        <translation>A rede só permite chamadas de emergência.</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>A rede não respondeu a tempo.</translation>
    </message>
    <message>
        <source>There was no radio connection.</source>
        <translation>Não havia ligação de rádio.</translation>
    </message>
    <message>
        <source>The radio connection was lost.</source>
        <translation>A ligação de rádio perdeu-se.</translation>
    </message>
    <message>
        <source>The network found the message malformed.</source>
        <translation>A rede considerou a mensagem malformada.</translation>
    </message>
    <message>
        <source>The network does not accept this kind of message.</source>
        <translation>A rede não aceita este tipo de mensagem.</translation>
    </message>
    <message>
        <source>The network does not accept this alphabet.</source>
        <translation>A rede não aceita este alfabeto.</translation>
    </message>
    <message>
        <source>The network accepts no message that shows at once.</source>
        <translation>A rede não aceita mensagens que aparecem de imediato.</translation>
    </message>
    <message>
        <source>The network does not accept this command.</source>
        <translation>A rede não aceita este comando.</translation>
    </message>
    <message>
        <source>The network does not keep messages for so long.</source>
        <translation>A rede não guarda mensagens durante tanto tempo.</translation>
    </message>
    <message>
        <source>The modem rejects the message or its number.</source>
        <translation>O modem rejeita a mensagem ou o seu número.</translation>
    </message>
    <message>
        <source>There is no SIM card.</source>
        <translation>Não há cartão SIM.</translation>
    </message>
    <message>
        <source>This is the wrong SIM card.</source>
        <translation>Este não é o cartão SIM certo.</translation>
    </message>
    <message>
        <source>The SIM card has failed.</source>
        <translation>O cartão SIM falhou.</translation>
    </message>
    <message>
        <source>The SIM card is busy.</source>
        <translation>O cartão SIM está ocupado.</translation>
    </message>
    <message>
        <source>The SIM card has no room for messages.</source>
        <translation>O cartão SIM não tem espaço para mensagens.</translation>
    </message>
    <message>
        <source>The SIM card cannot store messages.</source>
        <translation>O cartão SIM não consegue guardar mensagens.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN.</source>
        <translation>O cartão SIM pede o PIN.</translation>
    </message>
    <message>
        <source>The phone wants the PIN that ties it to its SIM card.</source>
        <translation>O telefone pede o PIN que o associa ao seu cartão SIM.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN2.</source>
        <translation>O cartão SIM pede o PIN2.</translation>
    </message>
    <message>
        <source>The SIM card wants its PUK.</source>
        <translation>O cartão SIM pede o PUK.</translation>
    </message>
    <message>
        <source>The SIM card wants its PUK2.</source>
        <translation>O cartão SIM pede o PUK2.</translation>
    </message>
    <message>
        <source>The modem was busy with another message.</source>
        <translation>O modem estava ocupado com outra mensagem.</translation>
    </message>
    <message>
        <source>The phone has no room for messages.</source>
        <translation>O telefone não tem espaço para mensagens.</translation>
    </message>
    <message>
        <source>The phone has failed.</source>
        <translation>O telefone falhou.</translation>
    </message>
    <message>
        <source>Another program has reserved the phone&apos;s messages.</source>
        <translation>Outro programa reservou as mensagens do telefone.</translation>
    </message>
    <message>
        <source>The phone does not allow sending now.</source>
        <translation>O telefone não permite enviar agora.</translation>
    </message>
    <message>
        <source>The phone does not support this.</source>
        <translation>O telefone não suporta isto.</translation>
    </message>
    <message>
        <source>The phone&apos;s memory has failed.</source>
        <translation>A memória do telefone falhou.</translation>
    </message>
    <message>
        <source>The phone has no such place in its memory.</source>
        <translation>O telefone não tem essa posição na memória.</translation>
    </message>
    <message>
        <source>The phone expects no acknowledgement.</source>
        <translation>O telefone não espera nenhuma confirmação.</translation>
    </message>
    <message>
        <source>The modem is still starting.</source>
        <translation>O modem ainda está a iniciar.</translation>
    </message>
    <message>
        <source>The modem is busy.</source>
        <translation>O modem está ocupado.</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Erro desconhecido</translation>
    </message>
    <message>
        <source>The modem gives a reason of its own.</source>
        <translation>O modem indica um motivo próprio.</translation>
    </message>
    <message>
        <source>The modem gives a reason that is not known here.</source>
        <translation>O modem indica um motivo que aqui não é conhecido.</translation>
    </message>
    <message>
        <source>The modem refuses and gives no reason.</source>
        <translation>O modem recusa sem indicar o motivo.</translation>
    </message>
    <message>
        <source>The device is gone. Waiting until it is back.</source>
        <translation>O dispositivo desapareceu. À espera de que volte.</translation>
    </message>
    <message>
        <source>The device does not answer. Waiting until it does.</source>
        <translation>O dispositivo não responde. À espera de que responda.</translation>
    </message>
    <message>
        <source>Still waiting for the network.</source>
        <translation>Ainda à espera da rede.</translation>
    </message>
    <message>
        <source>Waiting for delivery reports.</source>
        <translation>À espera dos relatórios de entrega.</translation>
    </message>
    <message>
        <source>The device was not ready in time.</source>
        <translation>O dispositivo não ficou pronto a tempo.</translation>
    </message>
    <message>
        <source>The job&apos;s journal cannot be written, so nothing more is sent</source>
        <translation>Não é possível escrever o diário do envio, por isso nada mais é enviado</translation>
    </message>
    <message>
        <source>Several messages in a row ended alike, so nothing more is sent</source>
        <translation>Várias mensagens seguidas terminaram da mesma forma, por isso nada mais é enviado</translation>
    </message>
    <message>
        <source>Not every message was sent. The list says what became of each.</source>
        <translation>Nem todas as mensagens foram enviadas. A lista indica o que aconteceu a cada uma.</translation>
    </message>
    <message>
        <source>The device takes no text messages.</source>
        <translation>O dispositivo não aceita mensagens de texto.</translation>
    </message>
    <message>
        <source>Those not taken may pass as normal text messages.</source>
        <translation>As não aceites podem talvez passar como mensagens de texto normais.</translation>
    </message>
    <message>
        <source>The device gave no prompt.</source>
        <translation>O dispositivo não pediu o texto.</translation>
    </message>
    <message>
        <source>The device gave no result in time.</source>
        <translation>O dispositivo não deu um resultado a tempo.</translation>
    </message>
    <message>
        <source>The device said OK but gave no reference.</source>
        <translation>O dispositivo respondeu OK, mas sem referência.</translation>
    </message>
    <message>
        <source>The device&apos;s result may be that of an earlier message.</source>
        <translation>O resultado do dispositivo pode ser o de uma mensagem anterior.</translation>
    </message>
    <message>
        <source>The device was gone before its result.</source>
        <translation>O dispositivo desapareceu antes do resultado.</translation>
    </message>
    <message>
        <source>The program ended before the result.</source>
        <translation>O programa terminou antes do resultado.</translation>
    </message>
    <message>
        <source>Somebody has counted it as sent.</source>
        <translation>Alguém a deu como enviada.</translation>
    </message>
    <message>
        <source>The number cannot be dialled.</source>
        <translation>Não é possível marcar o número.</translation>
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
        <translation>Não foi encontrado nenhum telefone nem modem por USB ou Bluetooth.</translation>
    </message>
    <message>
        <source>Switch it on, connect it, and on a phone choose the modem or data mode. It takes some seconds until it appears.</source>
        <translation>Ligue-o, conecte-o e, se for um telefone, escolha nele o modo de modem ou de dados. Demora alguns segundos a aparecer.</translation>
    </message>
    <message>
        <source>There is no device at %1.</source>
        <translation>Não há nenhum dispositivo em %1.</translation>
    </message>
    <message>
        <source>Plug it in again, or look under which name it appears now.</source>
        <translation>Conecte-o de novo, ou veja com que nome aparece agora.</translation>
    </message>
    <message>
        <source>%1 is connected as a network card. In this mode it has no port for messages.</source>
        <translation>%1 está conectado como placa de rede. Neste modo não tem porta para mensagens.</translation>
    </message>
    <message>
        <source>Switch it to its modem mode with the maker&apos;s own program or page, or use another modem.</source>
        <translation>Mude-o para o modo de modem com o programa ou a página do fabricante, ou use outro modem.</translation>
    </message>
    <message>
        <source>%1 is connected as a disc. In this mode it has no port for messages.</source>
        <translation>%1 está conectado como disco. Neste modo não tem porta para mensagens.</translation>
    </message>
    <message>
        <source>Install the program that switches such sticks, then unplug the stick and plug it in again:</source>
        <translation>Instale o programa que muda o modo destes modems USB; depois, desconecte o seu e volte a conectá-lo:</translation>
    </message>
    <message>
        <source>%1 is for positions (GPS), not for messages.</source>
        <translation>%1 serve para a posição (GPS), não para mensagens.</translation>
    </message>
    <message>
        <source>%1 is for the maker&apos;s diagnostics, not for messages.</source>
        <translation>%1 serve para os diagnósticos do fabricante, não para mensagens.</translation>
    </message>
    <message>
        <source>%1 is for sound, not for messages.</source>
        <translation>%1 serve para o som, não para mensagens.</translation>
    </message>
    <message>
        <source>This system&apos;s settings say that %1 is no modem&apos;s port.</source>
        <translation>Segundo as configurações deste sistema, %1 não é a porta de um modem.</translation>
    </message>
    <message>
        <source>Use another port of the same device.</source>
        <translation>Use outra porta do mesmo dispositivo.</translation>
    </message>
    <message>
        <source>Your account may not open %1.</source>
        <translation>A sua conta não tem permissão para abrir %1.</translation>
    </message>
    <message>
        <source>Members of the group %1 may. Join it with this command, then log out and in again:</source>
        <translation>Os membros do grupo %1 têm. Junte-se a ele com este comando, termine a sessão e volte a iniciá-la:</translation>
    </message>
    <message>
        <source>Only the system&apos;s administrator can allow it.</source>
        <translation>Só o administrador do sistema o pode permitir.</translation>
    </message>
    <message>
        <source>%1 is in use by %2 (process %3).</source>
        <translation>%1 está a ser usado por %2 (processo %3).</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 está a ser usado por outro programa.</translation>
    </message>
    <message>
        <source>End that program, and look again.</source>
        <translation>Termine esse programa e veja de novo.</translation>
    </message>
    <message>
        <source>%1 is in use by ModemManager, the system&apos;s modem service.</source>
        <translation>%1 está a ser usado pelo ModemManager, o serviço de modems do sistema.</translation>
    </message>
    <message>
        <source>Stop the service until the next start of the computer:</source>
        <translation>Pare o serviço até ao próximo arranque do computador:</translation>
    </message>
    <message>
        <source>%1 cannot be opened (%2).</source>
        <translation>Não é possível abrir %1 (%2).</translation>
    </message>
    <message>
        <source>Unplug the device, wait ten seconds and plug it in again.</source>
        <translation>Desconecte o dispositivo, espere dez segundos e volte a conectá-lo.</translation>
    </message>
    <message>
        <source>%1 answers.</source>
        <translation>%1 responde.</translation>
    </message>
    <message>
        <source>%1 does not answer as a modem.</source>
        <translation>%1 não responde como um modem.</translation>
    </message>
    <message>
        <source>Unplug the device, wait ten seconds and plug it in again. On a phone, choose the modem or data mode.</source>
        <translation>Desconecte o dispositivo, espere dez segundos e volte a conectá-lo. Se for um telefone, escolha nele o modo de modem ou de dados.</translation>
    </message>
    <message>
        <source>Nothing answers on %1, a serial socket of the computer itself.</source>
        <translation>Nada responde em %1, uma porta série do próprio computador.</translation>
    </message>
    <message>
        <source>If a modem is connected there, switch it on and look at its cable.</source>
        <translation>Se houver um modem conectado aí, ligue-o e verifique o cabo.</translation>
    </message>
    <message>
        <source>The SIM card is ready.</source>
        <translation>O cartão SIM está pronto.</translation>
    </message>
    <message>
        <source>The device does not say whether its SIM card is ready.</source>
        <translation>O dispositivo não indica se o seu cartão SIM está pronto.</translation>
    </message>
    <message>
        <source>The SIM card wants its PIN. Tries left: %1.</source>
        <translation>O cartão SIM pede o PIN. Tentativas restantes: %1.</translation>
    </message>
    <message>
        <source>Put the card into a phone and enter the PIN there, or turn its question for the PIN off. No PIN is tried here.</source>
        <translation>Coloque o cartão num telefone e introduza aí o PIN, ou desative o pedido do PIN. Aqui nenhum PIN é experimentado.</translation>
    </message>
    <message>
        <source>The SIM card is blocked and wants its PUK.</source>
        <translation>O cartão SIM está bloqueado e pede o PUK.</translation>
    </message>
    <message>
        <source>The SIM card is blocked and wants its PUK. Tries left: %1.</source>
        <translation>O cartão SIM está bloqueado e pede o PUK. Tentativas restantes: %1.</translation>
    </message>
    <message>
        <source>Put the card into a phone and enter the PUK there. The operator gives it to you.</source>
        <translation>Coloque o cartão num telefone e introduza aí o PUK, que a operadora lhe fornece.</translation>
    </message>
    <message>
        <source>The device wants a code that ties it to a card or an operator.</source>
        <translation>O dispositivo pede um código que o associa a um cartão ou a uma operadora.</translation>
    </message>
    <message>
        <source>Use the card it was sold with, or ask the seller to unlock it.</source>
        <translation>Use o cartão com que foi vendido, ou peça ao vendedor que o desbloqueie.</translation>
    </message>
    <message>
        <source>There is no SIM card in the device.</source>
        <translation>Não há cartão SIM no dispositivo.</translation>
    </message>
    <message>
        <source>Put a card in, the right way round, and plug the device in again.</source>
        <translation>Coloque um cartão na posição correta e volte a conectar o dispositivo.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read.</source>
        <translation>Não é possível ler o cartão SIM.</translation>
    </message>
    <message>
        <source>Take the card out, wipe its contacts and put it in again, or try it in a phone.</source>
        <translation>Retire o cartão, limpe os contactos e coloque-o de novo, ou experimente-o num telefone.</translation>
    </message>
    <message>
        <source>The SIM card is still being read.</source>
        <translation>O cartão SIM ainda está a ser lido.</translation>
    </message>
    <message>
        <source>Wait half a minute and look again. If it stays so, plug the device in again.</source>
        <translation>Espere meio minuto e veja de novo. Se continuar assim, desconecte o dispositivo e volte a conectá-lo.</translation>
    </message>
    <message>
        <source>The device is registered with its network.</source>
        <translation>O dispositivo está registado na sua rede.</translation>
    </message>
    <message>
        <source>The device is registered with a foreign network (roaming).</source>
        <translation>O dispositivo está registado noutra rede (roaming).</translation>
    </message>
    <message>
        <source>Messages can be sent; ask your operator what they cost abroad.</source>
        <translation>É possível enviar mensagens; pergunte à sua operadora quanto custam no estrangeiro.</translation>
    </message>
    <message>
        <source>The network lets the device make emergency calls alone.</source>
        <translation>A rede só permite ao dispositivo chamadas de emergência.</translation>
    </message>
    <message>
        <source>The network does not accept the SIM card.</source>
        <translation>A rede não aceita o cartão SIM.</translation>
    </message>
    <message>
        <source>Ask the operator whether the card is active, and try it in a phone.</source>
        <translation>Pergunte à operadora se o cartão está ativo e experimente-o num telefone.</translation>
    </message>
    <message>
        <source>The device is looking for a network.</source>
        <translation>O dispositivo está à procura de rede.</translation>
    </message>
    <message>
        <source>Wait a minute, or move the device or its aerial to a window, and look again.</source>
        <translation>Espere um minuto, ou aproxime o dispositivo ou a sua antena de uma janela, e veja de novo.</translation>
    </message>
    <message>
        <source>The device is not registered with a network and looks for none.</source>
        <translation>O dispositivo não está registado em nenhuma rede nem a procura.</translation>
    </message>
    <message>
        <source>Switch its radio on (no flight mode), or plug the device in again.</source>
        <translation>Ative o rádio (sem modo de avião), ou desconecte o dispositivo e volte a conectá-lo.</translation>
    </message>
    <message>
        <source>The device does not say whether it has a network.</source>
        <translation>O dispositivo não indica se tem rede.</translation>
    </message>
    <message>
        <source>Send one message to yourself before you send to others.</source>
        <translation>Envie uma mensagem a si próprio antes de enviar aos outros.</translation>
    </message>
    <message>
        <source>The signal is strong enough (%1 dBm).</source>
        <translation>O sinal é suficiente (%1 dBm).</translation>
    </message>
    <message>
        <source>The signal is weak (%1 dBm).</source>
        <translation>O sinal é fraco (%1 dBm).</translation>
    </message>
    <message>
        <source>Move the device or its aerial to a window.</source>
        <translation>Aproxime o dispositivo ou a sua antena de uma janela.</translation>
    </message>
    <message>
        <source>The device does not say how strong the signal is.</source>
        <translation>O dispositivo não indica a intensidade do sinal.</translation>
    </message>
    <message>
        <source>A service centre for messages is stored.</source>
        <translation>Há um centro de mensagens guardado.</translation>
    </message>
    <message>
        <source>No service centre for messages is stored.</source>
        <translation>Não há nenhum centro de mensagens guardado.</translation>
    </message>
    <message>
        <source>What is stored as the service centre for messages is no number.</source>
        <translation>O que está guardado como centro de mensagens não é um número.</translation>
    </message>
    <message>
        <source>Ask the operator for its number, and give it as a custom number in the wizard.</source>
        <translation>Peça o número à operadora e indique-o no assistente como número personalizado.</translation>
    </message>
    <message>
        <source>The device does not say which service centre for messages it has.</source>
        <translation>O dispositivo não indica que centro de mensagens tem.</translation>
    </message>
    <message>
        <source>The device takes messages to be sent.</source>
        <translation>O dispositivo aceita mensagens para enviar.</translation>
    </message>
    <message>
        <source>The device takes no messages to be sent.</source>
        <translation>O dispositivo não aceita mensagens para enviar.</translation>
    </message>
    <message>
        <source>Use another port of the device, or another device.</source>
        <translation>Use outra porta do dispositivo, ou outro dispositivo.</translation>
    </message>
    <message>
        <source>free</source>
        <translation>livre</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>em uso</translation>
    </message>
    <message>
        <source>no right</source>
        <translation>sem permissão</translation>
    </message>
    <message>
        <source>not for messages</source>
        <translation>não é para mensagens</translation>
    </message>
    <message>
        <source>Why a phone does not show: what was looked at</source>
        <translation>Porque não aparece um telefone: o que foi examinado</translation>
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
        <translation>não tentada</translation>
    </message>
    <message>
        <source>written</source>
        <translation>escrita</translation>
    </message>
    <message>
        <source>taken by the phone</source>
        <translation>aceite pelo telefone</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>enviada</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>recusada</translation>
    </message>
    <message>
        <source>partly taken</source>
        <translation>aceite em parte</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>sem resposta</translation>
    </message>
    <message>
        <source>may have been sent</source>
        <translation>talvez enviada</translation>
    </message>
    <message>
        <source>skipped: excluded</source>
        <translation>ignorada: número excluído</translation>
    </message>
    <message>
        <source>skipped: repeated</source>
        <translation>ignorada: número repetido</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>ignorada</translation>
    </message>
    <message>
        <source>skipped: invalid number</source>
        <translation>ignorada: número inválido</translation>
    </message>
    <message>
        <source>skipped: not filled</source>
        <translation>ignorada: campos por preencher</translation>
    </message>
    <message>
        <source>skipped: </source>
        <translation>ignorada: </translation>
    </message>
    <message>
        <source>CME </source>
        <translation>CME </translation>
    </message>
    <message>
        <source>an earlier row has its number</source>
        <translation>uma linha anterior tem o seu número</translation>
    </message>
    <message>
        <source>the list has its number already</source>
        <translation>a lista já tem o seu número</translation>
    </message>
    <message>
        <source>its number is in an exclusion list</source>
        <translation>o seu número está numa lista de exclusão</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>não é possível escrever %1</translation>
    </message>
    <message>
        <source>%1 is not used</source>
        <translation>%1 não é usado</translation>
    </message>
    <message>
        <source>it holds an earlier hand-over</source>
        <translation>contém uma transferência anterior</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Relatório de envio</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Envio</translation>
    </message>
    <message>
        <source>Began</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>Cartão SIM</translation>
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
        <translation>termina em </translation>
    </message>
    <message>
        <source>ended</source>
        <translation>terminado</translation>
    </message>
    <message>
        <source>not ended</source>
        <translation>não terminado</translation>
    </message>
    <message>
        <source>Recipients</source>
        <translation>Destinatários</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviadas</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Recusadas</translation>
    </message>
    <message>
        <source>May have been sent</source>
        <translation>Talvez enviadas</translation>
    </message>
    <message>
        <source>Not tried</source>
        <translation>Não tentadas</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Ignoradas</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Entregues</translation>
    </message>
    <message>
        <source>Still trying</source>
        <translation>Pendentes</translation>
    </message>
    <message>
        <source>Not delivered</source>
        <translation>Não entregues</translation>
    </message>
    <message>
        <source>No report</source>
        <translation>Sem relatório</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensagem</translation>
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
        <translation>sem relatório</translation>
    </message>
    <message>
        <source>Some of its parts were sent.</source>
        <translation>Algumas das suas partes foram enviadas.</translation>
    </message>
    <message>
        <source>The list of the job can no longer be read.</source>
        <translation>A lista do envio já não pode ser lida.</translation>
    </message>
    <message>
        <source>a placeholder is empty</source>
        <translation>um campo está vazio</translation>
    </message>
    <message>
        <source>a placeholder is unknown</source>
        <translation>um campo não existe</translation>
    </message>
    <message>
        <source>wrong number of columns</source>
        <translation>número de colunas errado</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>demasiado longa</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>não existe tal ficheiro</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>não é um ficheiro</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes, or may not be read</source>
        <translation>tem mais de %1 bytes ou não há permissão para o ler</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vazio</translation>
    </message>
    <message>
        <source>it is no text: line %1 holds characters that no list has</source>
        <translation>não é texto: a linha %1 contém caracteres impróprios de uma lista</translation>
    </message>
    <message>
        <source>it is %1, and no list</source>
        <translation>é %1, não uma lista</translation>
    </message>
    <message>
        <source>a PDF document</source>
        <translation>um documento PDF</translation>
    </message>
    <message>
        <source>a program</source>
        <translation>um programa</translation>
    </message>
    <message>
        <source>a compressed file</source>
        <translation>um ficheiro comprimido</translation>
    </message>
    <message>
        <source>a picture</source>
        <translation>uma imagem</translation>
    </message>
    <message>
        <source>a web page</source>
        <translation>uma página web</translation>
    </message>
    <message>
        <source>an XML document</source>
        <translation>um documento XML</translation>
    </message>
    <message>
        <source>an archive</source>
        <translation>um pacote de ficheiros</translation>
    </message>
    <message>
        <source>it is rich text; its numbers can be imported under a name that ends in .rtf</source>
        <translation>é texto formatado; os seus números podem ser importados com um nome terminado em .rtf</translation>
    </message>
    <message>
        <source>it is a spreadsheet or an archive, and no list of numbers alone</source>
        <translation>é uma folha de cálculo ou um pacote de ficheiros, não uma simples lista de números</translation>
    </message>
    <message>
        <source>it holds contacts, and not numbers alone</source>
        <translation>contém contactos, e não apenas números</translation>
    </message>
    <message>
        <source>it is a spreadsheet in an old format; saved as .xlsx, .ods or CSV it can be read</source>
        <translation>é uma folha de cálculo num formato antigo; guardada como .xlsx, .ods ou CSV, pode ser lida</translation>
    </message>
    <message>
        <source>it is encrypted; saved without a password it can be read</source>
        <translation>está cifrado; guardado sem palavra-passe, pode ser lido</translation>
    </message>
    <message>
        <source>it holds more than can be read</source>
        <translation>contém mais do que é possível ler</translation>
    </message>
    <message>
        <source>row %1 has more than %2 fields</source>
        <translation>a linha %1 tem mais de %2 campos</translation>
    </message>
    <message>
        <source>its first row holds the number %1, and no names of columns</source>
        <translation>a primeira linha contém o número %1, e não os nomes das colunas</translation>
    </message>
    <message>
        <source>the encoding &quot;%1&quot; is not known</source>
        <translation>a codificação “%1” não é conhecida</translation>
    </message>
    <message>
        <source>it is not encoded in %1</source>
        <translation>não está codificado em %1</translation>
    </message>
    <message>
        <source>it mixes UTF-8 with another encoding; line %1 is not UTF-8</source>
        <translation>mistura UTF-8 com outra codificação; a linha %1 não é UTF-8</translation>
    </message>
    <message>
        <source>the quote that opens in line %1 is never closed</source>
        <translation>as aspas que se abrem na linha %1 nunca se fecham</translation>
    </message>
    <message>
        <source>it has no sheets</source>
        <translation>não tem folhas</translation>
    </message>
    <message>
        <source>it has no sheet &quot;%1&quot;; its sheets are %2</source>
        <translation>não tem a folha “%1”; as suas folhas são %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e mais %1</translation>
    </message>
    <message>
        <source>it is damaged, or only a part of it</source>
        <translation>está danificado ou incompleto</translation>
    </message>
    <message>
        <source>the contact that begins in line %1 has no end</source>
        <translation>o contacto que começa na linha %1 não termina</translation>
    </message>
    <message>
        <source>%1 fields where %2 have names</source>
        <translation>%1 campos onde há nomes para %2</translation>
    </message>
    <message>
        <source>text follows a closing quote</source>
        <translation>há texto depois das aspas de fecho</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 está vazio</translation>
    </message>
    <message>
        <source>%1 is unknown</source>
        <translation>%1 não existe</translation>
    </message>
    <message>
        <source>its text is empty</source>
        <translation>o seu texto está vazio</translation>
    </message>
    <message>
        <source>its text is too long</source>
        <translation>o seu texto é demasiado longo</translation>
    </message>
    <message>
        <source>national, taken as one of %1</source>
        <translation>nacional, considerado como número de %1</translation>
    </message>
    <message>
        <source>the code of %1 was put in front</source>
        <translation>foi acrescentado o indicativo de %1</translation>
    </message>
    <message>
        <source>its first 0 may have been lost; taken as one of %1</source>
        <translation>pode ter perdido o primeiro 0; considerado como número de %1</translation>
    </message>
    <message>
        <source>its + may have been lost; taken as an international one of %1</source>
        <translation>pode ter perdido o +; considerado como número internacional de %1</translation>
    </message>
    <message>
        <source>there is no number</source>
        <translation>não há número</translation>
    </message>
    <message>
        <source>a spreadsheet has rounded it; its digits are lost</source>
        <translation>uma folha de cálculo arredondou-o; perderam-se algarismos</translation>
    </message>
    <message>
        <source>it is no number</source>
        <translation>não é um número</translation>
    </message>
    <message>
        <source>these are several numbers</source>
        <translation>são vários números</translation>
    </message>
    <message>
        <source>it has too few digits</source>
        <translation>tem poucos algarismos</translation>
    </message>
    <message>
        <source>it has too many digits</source>
        <translation>tem demasiados algarismos</translation>
    </message>
    <message>
        <source>no country has its code</source>
        <translation>nenhum país tem o seu indicativo</translation>
    </message>
    <message>
        <source>Please enter a valid phone number.</source>
        <translation>Introduza um número de telefone válido.</translation>
    </message>
    <message>
        <source>Entered number already exists.</source>
        <translation>O número introduzido já está na lista.</translation>
    </message>
    <message>
        <source>Entered number is in exclusion list.</source>
        <translation>O número introduzido está numa lista de exclusão.</translation>
    </message>
    <message>
        <source>Please select only one record to update.</source>
        <translation>Selecione um único item para editar.</translation>
    </message>
    <message>
        <source>Please enter some text message.</source>
        <translation>Escreva uma mensagem de texto.</translation>
    </message>
    <message>
        <source>Error in file accessing.</source>
        <translation>Erro ao aceder ao ficheiro.</translation>
    </message>
    <message>
        <source>
This option will clear the entire list contents. Are you sure you want to continue clearing the entire list?</source>
        <translation>
Todo o conteúdo da lista vai ser apagado. Tem a certeza de que quer continuar?</translation>
    </message>
    <message>
        <source>Total Numbers : </source>
        <translation>Total de números: </translation>
    </message>
    <message>
        <source>Can not access Corvane Data file.</source>
        <translation>Não é possível aceder ao ficheiro de dados do Corvane.</translation>
    </message>
    <message>
        <source>
Do you really want to exit from &apos;Corvane&apos;?</source>
        <translation>
Quer mesmo sair do Corvane?</translation>
    </message>
    <message>
        <source>No Mobile Phone Device is selected.</source>
        <translation>Nenhum telefone selecionado.</translation>
    </message>
    <message>
        <source>No Mobile Phone Device is selected. Click here to start Mobile Phone Connection Wizard.</source>
        <translation>Nenhum telefone selecionado. Clique aqui para abrir o assistente de conexão do telefone.</translation>
    </message>
    <message>
        <source>Apply this<byte value="xd"/>
message to<byte value="xd"/>
list items</source>
        <translation>Aplicar esta<byte value="xd"/>
mensagem<byte value="xd"/>
à lista</translation>
    </message>
    <message>
        <source>Phone numbers-Messages list is empty.</source>
        <translation>A lista de números e mensagens está vazia.</translation>
    </message>
    <message>
        <source>Please select at least one record from the phone numbers-messages list to continue.</source>
        <translation>Selecione pelo menos um item da lista de números e mensagens para continuar.</translation>
    </message>
    <message>
        <source>Either file is corrupted or selected file contains invalid characters.

OR

Recipient number is skipped because of using &apos;Skip Dulicate Numbers&apos; or &apos;Exclusion List&apos; option.</source>
        <translation>O ficheiro está danificado ou contém caracteres inválidos.

OU

O número do destinatário foi ignorado devido à opção “Ignorar números duplicados” ou a uma lista de exclusão.</translation>
    </message>
    <message>
        <source>The last action has ended early because of an unexpected error. Please look what has been done, and try again.</source>
        <translation>A última ação terminou antes do tempo devido a um erro inesperado. Verifique o que foi feito e tente de novo.</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to all numbers in the list.

Do you want to continue?</source>
        <translation>A mensagem escrita vai ser copiada para todos os números da lista.

Quer continuar?</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to the selected numbers in the list. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>A mensagem escrita vai ser copiada para os números selecionados da lista. As mensagens dos outros números não mudam.

Quer continuar?</translation>
    </message>
    <message>
        <source>This action will copy the message of composer box to the blank list items. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>A mensagem escrita vai ser copiada para os itens da lista que não têm mensagem. As mensagens dos outros números não mudam.

Quer continuar?</translation>
    </message>
    <message>
        <source>There is no blank message in the phone numbers-messages list.</source>
        <translation>Não há mensagens vazias na lista de números e mensagens.</translation>
    </message>
    <message>
        <source>This action will copy the above message to the selected numbers in the list. The messages of rest of the numbers remain unchanged.

Do you want to continue?</source>
        <translation>A mensagem acima vai ser copiada para os números selecionados da lista. As mensagens dos outros números não mudam.

Quer continuar?</translation>
    </message>
    <message>
        <source>Total Selected Numbers : </source>
        <translation>Números selecionados: </translation>
    </message>
    <message>
        <source>Either Mobile Device is not connected properly or No Mobile Phone Device is selected.

Please use Mobile Phone Connection Wizard for finding device or establishing connection.</source>
        <translation>O dispositivo não está bem conectado ou nenhum telefone está selecionado.

Use o assistente de conexão do telefone para procurar o dispositivo ou estabelecer a conexão.</translation>
    </message>
    <message>
        <source>Please insert entered number to the list.</source>
        <translation>Adicione à lista o número introduzido.</translation>
    </message>
    <message>
        <source>No values have been selected in &apos;Delayed Delivery Options&apos;.</source>
        <translation>Não foi escolhido nenhum valor nas opções de pausa.</translation>
    </message>
    <message>
        <source>
You have composed no text message yet for any of the contacts in the entire list. This action will send blank message to all the contacts in list.

Are you sure you want to continue?</source>
        <translation>
Ainda não escreveu nenhuma mensagem para os contactos da lista. Todos os contactos vão receber uma mensagem vazia.

Tem a certeza de que quer continuar?</translation>
    </message>
    <message>
        <source>
Selected device is not working properly. Please use Mobile Phone Connection Wizard for finding device or establishing connection.</source>
        <translation>
O dispositivo selecionado não funciona corretamente. Use o assistente de conexão do telefone para procurar o dispositivo ou estabelecer a conexão.</translation>
    </message>
    <message>
        <source>Selected device is not working properly.Could not initialize modem.
</source>
        <translation>O dispositivo selecionado não funciona corretamente. Não foi possível iniciar o modem.
</translation>
    </message>
    <message>
        <source>Device Connection Error!</source>
        <translation>Erro de conexão com o dispositivo</translation>
    </message>
    <message>
        <source>Message Sending Process Completed.</source>
        <translation>Envio de mensagens concluído.</translation>
    </message>
    <message>
        <source>The messages could not be sent, because the computer is too busy to start another task. Please close other programs and try again.</source>
        <translation>Não foi possível enviar as mensagens porque o computador está demasiado ocupado para iniciar outra tarefa. Feche outros programas e tente de novo.</translation>
    </message>
    <message>
        <source>Sending has ended early because of an unexpected error. The sent items show which messages were sent.</source>
        <translation>O envio terminou antes do tempo devido a um erro inesperado. A lista de mensagens enviadas mostra quais saíram.</translation>
    </message>
    <message>
        <source>Initializing mobile phone device to send sms ...</source>
        <translation>A preparar o telefone para enviar SMS...</translation>
    </message>
    <message>
        <source>
Terminating the current process will stop sending text messages to the remaining contact. Are you sure you want to continue?</source>
        <translation>
Se parar o processo, não serão enviadas mensagens aos restantes contactos. Tem a certeza de que quer continuar?</translation>
    </message>
    <message>
        <source> is Excluded.</source>
        <translation> está excluído.</translation>
    </message>
    <message>
        <source> is Skipped.</source>
        <translation> é ignorado.</translation>
    </message>
    <message>
        <source> Message</source>
        <translation> em curso</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Hour %2 Minute %3 Seconds.</source>
        <translation>Em pausa: %1 h %2 min %3 s.</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Minute %2 Seconds.</source>
        <translation>Em pausa: %1 min %2 s.</translation>
    </message>
    <message>
        <source>Pausing the process for %1 Seconds.</source>
        <translation>Em pausa: %1 s.</translation>
    </message>
    <message>
        <source>%1 Characters</source>
        <translation>%1 caracteres</translation>
    </message>
    <message>
        <source>%1 Characters (Each Message will now consume %2)</source>
        <translation>%1 caracteres (cada mensagem ocupa agora %2)</translation>
    </message>
    <message>
        <source>Your current message is exceeding the typical SMS Length of 160 Characters. Messages of more than 160 characters will be delivered in multiple messages of 160 characters to each recipient.

Either shorten the length of your existing text message or click OK to continue anyway by delivering each message in multiple parts of 160 characters.</source>
        <translation>A sua mensagem ultrapassa o tamanho habitual de um SMS, 160 caracteres. As mensagens com mais de 160 caracteres são entregues a cada destinatário em várias mensagens de 160 caracteres.

Encurte o texto ou clique em OK para continuar e entregar cada mensagem em várias partes de 160 caracteres.</translation>
    </message>
    <message>
        <source>Your current message is exceeding the typical Unicode SMS (non-English text SMS) Length of 70 Characters. Messages of more than 70 characters will be delivered in multiple messages of 70 characters to each recipient.

Either shorten the length of your existing text message or click OK to continue anyway by delivering each message in multiple parts of 70 characters.</source>
        <translation>A sua mensagem ultrapassa o tamanho habitual de um SMS Unicode (noutros alfabetos), 70 caracteres. As mensagens com mais de 70 caracteres são entregues a cada destinatário em várias mensagens de 70 caracteres.

Encurte o texto ou clique em OK para continuar e entregar cada mensagem em várias partes de 70 caracteres.</translation>
    </message>
    <message>
        <source>Total Items : </source>
        <translation>Total de itens: </translation>
    </message>
    <message>
        <source>Sent items list is empty.</source>
        <translation>A lista de mensagens enviadas está vazia.</translation>
    </message>
    <message>
        <source>Please select at least one record from the sent items list to continue.</source>
        <translation>Selecione pelo menos um item da lista de mensagens enviadas para continuar.</translation>
    </message>
    <message>
        <source>Templates list is empty.</source>
        <translation>A lista de modelos está vazia.</translation>
    </message>
    <message>
        <source>Templates items list is empty.</source>
        <translation>A lista de modelos está vazia.</translation>
    </message>
    <message>
        <source>Templates number list is empty.</source>
        <translation>A lista de modelos está vazia.</translation>
    </message>
    <message>
        <source>Please select at least one record from the templates list to continue.</source>
        <translation>Selecione pelo menos um item da lista de modelos para continuar.</translation>
    </message>
    <message>
        <source>Add Templates</source>
        <translation>Novo modelo</translation>
    </message>
    <message>
        <source>Update Templates</source>
        <translation>Editar modelo</translation>
    </message>
    <message>
        <source>Number	: %1<byte value="xd"/>
<byte value="xd"/>
Message	: %2<byte value="xd"/>
<byte value="xd"/>
Date:	 %3</source>
        <translation>Número	: %1<byte value="xd"/>
<byte value="xd"/>
Mensagem	: %2<byte value="xd"/>
<byte value="xd"/>
Data:	 %3</translation>
    </message>
    <message>
        <source>Please type template message.</source>
        <translation>Escreva a mensagem do modelo.</translation>
    </message>
    <message>
        <source>Entered template already exists.</source>
        <translation>Já existe um modelo com esse texto.</translation>
    </message>
    <message>
        <source>Maximum characters limit is 1600.<byte value="xd"/>
<byte value="xd"/>
Press &apos;Yes to continue to composer window and it will show first 1600 characters of your message otherwise press &apos;No&apos;&apos;</source>
        <translation>O limite é de 1600 caracteres.<byte value="xd"/>
<byte value="xd"/>
Clique em “Sim” para inserir na mensagem os primeiros 1600 caracteres, ou em “Não” para não o fazer.</translation>
    </message>
    <message>
        <source>Exclusion List Wizard allows you to maintain the Lists of contacts or Groups, which you may need to exclude time to time when sending messages.

For Example, if you have lists of contacts of Marketing, Administration, R &amp; D and Customer Care Team members and you want to send messages to all the teams &apos;Except&apos; Administration team, you can apply exclusion rules to Administration team members contacts list.</source>
        <translation>Este assistente permite-lhe manter as listas de contactos ou grupos que queira excluir de vez em quando ao enviar mensagens.

Por exemplo, se tiver listas de contactos das equipas de marketing, administração, investigação e apoio ao cliente e quiser enviar mensagens a todas as equipas, menos à da administração, pode aplicar a exclusão à lista de contactos dessa equipa.</translation>
    </message>
    <message>
        <source>

Give a friendly name to your Exclusion list so that you can identify it easily.</source>
        <translation>

Dê à sua lista de exclusão um nome que a torne fácil de reconhecer.</translation>
    </message>
    <message>
        <source>Currently using exclusion list : </source>
        <translation>Lista de exclusão em uso: </translation>
    </message>
    <message>
        <source>Please enter exclusion list name.</source>
        <translation>Escreva o nome da lista de exclusão.</translation>
    </message>
    <message>
        <source>Please enter a valid name.</source>
        <translation>Escreva um nome válido.</translation>
    </message>
    <message>
        <source>Please enter the another name.</source>
        <translation>Escreva outro nome.</translation>
    </message>
    <message>
        <source>Entered exclusion list name already exists.</source>
        <translation>Já existe uma lista de exclusão com esse nome.</translation>
    </message>
    <message>
        <source>Exclusion number list is empty.</source>
        <translation>A lista de números excluídos está vazia.</translation>
    </message>
    <message>
        <source>Please select a valid file.</source>
        <translation>Selecione um ficheiro válido.</translation>
    </message>
    <message>
        <source>Please select at least one record from the exclusion number list to continue.</source>
        <translation>Selecione pelo menos um item da lista de números excluídos para continuar.</translation>
    </message>
    <message>
        <source>Available list is empty.</source>
        <translation>Não há listas disponíveis.</translation>
    </message>
    <message>
        <source>Please select a record from the available list to continue.</source>
        <translation>Selecione uma das listas disponíveis para continuar.</translation>
    </message>
    <message>
        <source>Selected list is already in use.</source>
        <translation>A lista selecionada já está em uso.</translation>
    </message>
    <message>
        <source>All available lists are already in use.</source>
        <translation>Todas as listas disponíveis já estão em uso.</translation>
    </message>
    <message>
        <source>Exclude when sending SMS list is empty.</source>
        <translation>Não há listas a excluir ao enviar SMS.</translation>
    </message>
    <message>
        <source>Please select a record from Exclude when sending SMS list to continue.</source>
        <translation>Selecione uma das listas a excluir ao enviar SMS para continuar.</translation>
    </message>
    <message>
        <source>
Are you sure you want to continue</source>
        <translation>
Tem a certeza de que quer continuar?</translation>
    </message>
    <message>
        <source>
Are you sure you want delete the selected available list?</source>
        <translation>
Tem a certeza de que quer eliminar a lista disponível selecionada?</translation>
    </message>
    <message>
        <source>
You have made changes in exclusion number list that have not been saved yet.

Do you want to go back to previous screen without saving the exclusion number list?</source>
        <translation>
Há alterações por guardar na lista de números excluídos.

Quer voltar ao passo anterior sem guardar a lista?</translation>
    </message>
    <message>
        <source>Device list is empty.</source>
        <translation>A lista de dispositivos está vazia.</translation>
    </message>
    <message>
        <source>Still searching for devices. Please wait ...</source>
        <translation>A procura de dispositivos ainda decorre. Aguarde...</translation>
    </message>
    <message>
        <source>Please select device from list.</source>
        <translation>Selecione um dispositivo da lista.</translation>
    </message>
    <message>
        <source>Please enter a valid Custom SMSC number.</source>
        <translation>Introduza um número SMSC personalizado válido.</translation>
    </message>
    <message>
        <source>Selected device is not working properly.
Could not open modem.
</source>
        <translation>O dispositivo selecionado não funciona corretamente.
Não foi possível abrir o modem.
</translation>
    </message>
    <message>
        <source>Selected device is not working properly.</source>
        <translation>O dispositivo selecionado não funciona corretamente.</translation>
    </message>
    <message>
        <source>Default SMSC No. details should not be blanked.</source>
        <translation>O número SMSC predefinido não pode ficar vazio.</translation>
    </message>
    <message>
        <source>Custom SMSC No. details should not be blanked.</source>
        <translation>O número SMSC personalizado não pode ficar vazio.</translation>
    </message>
    <message>
        <source>Selected device do not provide a modem in the computer or the modem does not support SMS sending command.</source>
        <translation>O dispositivo selecionado não oferece um modem ao computador, ou o seu modem não suporta o comando de envio de SMS.</translation>
    </message>
    <message>
        <source>passed on, but not confirmed</source>
        <translation>transmitida, mas não confirmada</translation>
    </message>
    <message>
        <source>replaced by a newer message</source>
        <translation>substituída por uma mensagem mais recente</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>concluída</translation>
    </message>
    <message>
        <source>completed, with a code of the network&apos;s own</source>
        <translation>concluída, com um código próprio da rede</translation>
    </message>
    <message>
        <source>the network is congested</source>
        <translation>a rede está congestionada</translation>
    </message>
    <message>
        <source>the phone is busy</source>
        <translation>o telefone está ocupado</translation>
    </message>
    <message>
        <source>the phone does not answer</source>
        <translation>o telefone não responde</translation>
    </message>
    <message>
        <source>rejected for now</source>
        <translation>rejeitada por agora</translation>
    </message>
    <message>
        <source>the connection is too poor</source>
        <translation>a ligação é demasiado fraca</translation>
    </message>
    <message>
        <source>an error in the phone</source>
        <translation>um erro no telefone</translation>
    </message>
    <message>
        <source>a reason of the network&apos;s own</source>
        <translation>um motivo próprio da rede</translation>
    </message>
    <message>
        <source>an error between the networks</source>
        <translation>um erro entre as redes</translation>
    </message>
    <message>
        <source>the phone cannot take it</source>
        <translation>o telefone não a pode receber</translation>
    </message>
    <message>
        <source>the phone refused it</source>
        <translation>o telefone recusou-a</translation>
    </message>
    <message>
        <source>the number cannot be reached</source>
        <translation>não é possível contactar o número</translation>
    </message>
    <message>
        <source>the networks do not work together</source>
        <translation>as redes não são compatíveis entre si</translation>
    </message>
    <message>
        <source>it was not delivered in time</source>
        <translation>não foi entregue a tempo</translation>
    </message>
    <message>
        <source>deleted by the sender</source>
        <translation>eliminada pelo remetente</translation>
    </message>
    <message>
        <source>deleted by the service centre</source>
        <translation>eliminada pelo centro de mensagens</translation>
    </message>
    <message>
        <source>the service centre has no such message</source>
        <translation>o centro de mensagens não tem essa mensagem</translation>
    </message>
    <message>
        <source>rejected</source>
        <translation>rejeitada</translation>
    </message>
    <message>
        <source>the network was congested</source>
        <translation>a rede estava congestionada</translation>
    </message>
    <message>
        <source>the phone was busy</source>
        <translation>o telefone estava ocupado</translation>
    </message>
    <message>
        <source>the phone did not answer</source>
        <translation>o telefone não respondeu</translation>
    </message>
    <message>
        <source>the connection was too poor</source>
        <translation>a ligação era demasiado fraca</translation>
    </message>
    <message>
        <source>delivered</source>
        <translation>entregue</translation>
    </message>
    <message>
        <source>still trying</source>
        <translation>pendente</translation>
    </message>
    <message>
        <source>not delivered</source>
        <translation>não entregue</translation>
    </message>
    <message>
        <source>%1 speaks QMI or MBIM, and no AT commands.</source>
        <translation>%1 usa QMI ou MBIM, e não comandos AT.</translation>
    </message>
    <message>
        <source>Use a port of the device that takes AT commands, or another modem.</source>
        <translation>Utilize uma porta do dispositivo que aceite comandos AT, ou outro modem.</translation>
    </message>
    <message>
        <source>%1 takes AT commands, but is no serial port.</source>
        <translation>%1 aceita comandos AT, mas não é uma porta série.</translation>
    </message>
    <message>
        <source>Use a serial port of the device, or another modem.</source>
        <translation>Utilize uma porta série do dispositivo, ou outro modem.</translation>
    </message>
    <message>
        <source>The signal is strong enough (%1 %).</source>
        <translation>O sinal é suficiente (%1%).</translation>
    </message>
    <message>
        <source>The signal is weak (%1 %).</source>
        <translation>O sinal é fraco (%1%).</translation>
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
        <translation>Outras vias de envio</translation>
    </message>
    <message>
        <source>One phone hands over between 4 and 20 messages a minute, and mobile operators may block a SIM card that sends like a machine. For more than about 1000 messages a day, or a job of more than four hours, something else does better.</source>
        <translation>Um telefone passa entre 4 e 20 mensagens por minuto, e as operadoras podem bloquear um cartão SIM que envia como uma máquina. Para mais de cerca de 1000 mensagens por dia, ou para um envio de mais de quatro horas, outra solução serve melhor.</translation>
    </message>
    <message>
        <source>Several modems</source>
        <translation>Vários modems</translation>
    </message>
    <message>
        <source>The free program smstools sends the messages of one folder with as many modems as are attached, each with a SIM card of its own. Hand the messages over here, and then move the files in the folder &quot;spool&quot; into the folder &quot;outgoing&quot; of smstools.</source>
        <translation>O programa livre smstools envia as mensagens de uma pasta com tantos modems quantos estiverem conectados, cada um com o seu próprio cartão SIM. Transfira aqui as mensagens e mova depois os ficheiros da pasta “spool” para a pasta “outgoing” do smstools.</translation>
    </message>
    <message>
        <source>A provider&apos;s gateway</source>
        <translation>O gateway de um fornecedor</translation>
    </message>
    <message>
        <source>Companies that send messages for others take a table of numbers and texts, at a price for each message. Many of them can also show a name as the sender, and see to replies and to people who want no more messages. Hand the messages over here, and then give the provider the file &quot;list.csv&quot;.</source>
        <translation>As empresas que enviam mensagens por conta de outros aceitam uma tabela de números e textos, com um preço por mensagem. Muitas podem também mostrar um nome como remetente e tratar das respostas e de quem não quer mais mensagens. Transfira aqui as mensagens e entregue depois ao fornecedor o ficheiro “list.csv”.</translation>
    </message>
    <message>
        <source>Writes the numbers and texts, just as they would be sent now, into a folder. Nothing is sent.</source>
        <translation>Escreve os números e os textos numa pasta, tal como seriam enviados agora. Nada é enviado.</translation>
    </message>
    <message>
        <source>Hand over to a &amp;folder ...</source>
        <translation>Transferir para &amp;uma pasta...</translation>
    </message>
    <message>
        <source>The main window says no more that a list is much for one phone</source>
        <translation>A janela principal deixa de avisar quando uma lista é muito para um só telefone</translation>
    </message>
    <message>
        <source>Do not &amp;tell again</source>
        <translation>Não &amp;avisar mais</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Not handed over: %1 (%2).</source>
        <translation>Não transferido: %1 (%2).</translation>
    </message>
    <message>
        <source>Stopped. What is in the folder is not whole: remove it before it is used.</source>
        <translation>Interrompido. O que está na pasta está incompleto: remova-o antes que seja usado.</translation>
    </message>
    <message>
        <source>Handed over: one message, in %1. Nothing was sent.</source>
        <translation>Transferido: uma mensagem, em %1. Nada foi enviado.</translation>
    </message>
    <message numerus="yes">
        <source>Handed over: %n messages, in %1. Nothing was sent.</source>
        <translation>
            <numerusform>Transferido: %n mensagem, em %1. Nada foi enviado.</numerusform>
            <numerusform>Transferido: %n mensagens, em %1. Nada foi enviado.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recipients left out: %1.</source>
        <translation>Destinatários deixados de fora: %1.</translation>
    </message>
    <message>
        <source>There is nobody in the list.</source>
        <translation>Não há ninguém na lista.</translation>
    </message>
    <message>
        <source>Writing ...</source>
        <translation>A escrever...</translation>
    </message>
    <message>
        <source>Writing %1 of %2 ...</source>
        <translation>A escrever %1 de %2...</translation>
    </message>
    <message>
        <source>Not handed over: the system gives the program no further thread.</source>
        <translation>Não transferido: o sistema não concede mais nenhuma linha de execução ao programa.</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Parar</translation>
    </message>
</context>
<context>
    <name>Handset_Bubble</name>
    <message>
        <source>Preview</source>
        <translation>Pré-visualização</translation>
    </message>
    <message>
        <source>As it arrives by a device that takes whole frames; one that knows text mode alone may change more</source>
        <translation>Tal como chega através de um dispositivo que aceita tramas completas; um que só conhece o modo de texto pode alterar mais</translation>
    </message>
    <message>
        <source>On the handset:</source>
        <translation>No telefone:</translation>
    </message>
    <message>
        <source>What the handset shows</source>
        <translation>O que o telefone mostra</translation>
    </message>
    <message>
        <source>Ticks the box of that name: every character arrives, and fewer fit one message</source>
        <translation>Marca a caixa com o mesmo nome: todos os caracteres chegam, e cabem menos em cada mensagem</translation>
    </message>
    <message>
        <source>Send as Unicode</source>
        <translation>Enviar como Unicode</translation>
    </message>
    <message>
        <source>Wherever it stands in this message; undo takes it back</source>
        <translation>Em toda esta mensagem; pode desfazer</translation>
    </message>
    <message>
        <source>Every marked character that something similar can stand in for; undo takes it back</source>
        <translation>Todos os caracteres marcados que têm um substituto parecido; pode desfazer</translation>
    </message>
    <message>
        <source>Replace all</source>
        <translation>Substituir tudo</translation>
    </message>
    <message>
        <source>Cyrillic in Latin letters, Greek in the capitals that 7-bit messages have; undo takes it back</source>
        <translation>Cirílico em letras latinas e grego nas maiúsculas que as mensagens de 7 bits têm; pode desfazer</translation>
    </message>
    <message>
        <source>Write in other letters</source>
        <translation>Escrever noutras letras</translation>
    </message>
    <message>
        <source>On the handset of %1</source>
        <translation>No telefone de %1</translation>
    </message>
    <message>
        <source>On the handset</source>
        <translation>No telefone</translation>
    </message>
    <message>
        <source>%1, at once and not kept:</source>
        <translation>%1, de imediato e sem ficar guardada:</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 gets nothing: %2.</source>
        <translation>%1 não recebe nada: %2.</translation>
    </message>
    <message>
        <source>%1 gets nothing: the message is too long.</source>
        <translation>%1 não recebe nada: a mensagem é demasiado longa.</translation>
    </message>
    <message>
        <source>%1 &quot;Send as Unicode&quot; in the main window keeps them.</source>
        <translation>%1 A opção “Enviar como Unicode” da janela principal conserva-os.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Remover %1</translation>
    </message>
    <message>
        <source>Replace %1 by a blank</source>
        <translation>Substituir %1 por espaço</translation>
    </message>
    <message>
        <source>Replace %1 by %2</source>
        <translation>Substituir %1 por %2</translation>
    </message>
</context>
<context>
    <name>Help_Wnd</name>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
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
        <translation>&lt;h3&gt;De uma lista de números às mensagens enviadas&lt;/h3&gt;
&lt;p&gt;&lt;b&gt;1. Escolha o telefone.&lt;/b&gt; Conecte o telefone ou o modem por USB ou Bluetooth, clique em &lt;i&gt;Assistente de conexão&lt;/i&gt;, clique na porta dele na lista, veja o que ele diz de si e clique em &lt;i&gt;Selecionar dispositivo&lt;/i&gt;.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;2. Escreva a mensagem.&lt;/b&gt; A contagem por baixo indica quantos caracteres tem e quantos SMS lhe custará cada destinatário. Num SMS cabem 160 caracteres, ou 70 se marcar &lt;i&gt;Enviar como Unicode&lt;/i&gt;. Uma mensagem tem no máximo 1600 caracteres. O tipo &lt;i&gt;Notificação&lt;/i&gt; aparece de imediato no telefone e não fica guardado nele.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Que caracteres chegam.&lt;/b&gt; Sem &lt;i&gt;Enviar como Unicode&lt;/i&gt;, estes chegam tal como os escreveu: A a Z, a a z, 0 a 9, o espaço, a quebra de linha e &lt;tt&gt;! &quot; # % &amp;amp; &apos; ( ) * + , - . / : ; &amp;lt; = &amp;gt; ?&lt;/tt&gt;. Se o seu dispositivo não conhecer apenas o modo de texto, também &lt;tt&gt;@ ¤ Γ&lt;/tt&gt; e, num texto de até 150 caracteres (os parênteses retos, as chavetas, ^ ~ \ e | contam a dobrar), ainda &lt;tt&gt;$ £ ¥ § _ \ | [ ] ^ { } ~ Ä Å Æ Ç É Ñ Ö Ø Ü ß à ä å æ è é ì ñ ò ø ü Δ Θ Ξ Π Σ Φ Ψ Ω&lt;/tt&gt;. Todos os outros chegam transformados: € como vírgula, ê como j, ö como ¡. Marque &lt;i&gt;Enviar como Unicode&lt;/i&gt; se o texto tiver algum deles; assim sai tal como o escreveu.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;3. Preencha a lista.&lt;/b&gt; Escreva um número e clique em &lt;i&gt;Adicionar&lt;/i&gt;, ou clique em &lt;i&gt;Importar&lt;/i&gt; e escolha um ficheiro de texto ou RTF com um número por linha. Também pode largar o ficheiro sobre a lista ou colar números nela. Por baixo da lista indica-se o resultado, e &lt;i&gt;Mostrar&lt;/i&gt; apresenta as linhas que não foram usadas. Cada número entra na lista com a mensagem tal como está nesse momento. Um + inicial passa a 00, os hífenes são omitidos e um número tem no máximo 20 algarismos. &lt;i&gt;Exportar&lt;/i&gt; guarda os números da lista num ficheiro de texto.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;4. Altere a lista.&lt;/b&gt; Faça duplo clique num destinatário para alterar o número ou a sua mensagem. &lt;i&gt;Editar as mensagens selecionadas&lt;/i&gt; escreve uma nova mensagem para todos os que selecionou, e &lt;i&gt;Aplicar esta mensagem à lista&lt;/i&gt; copia a mensagem para todos os itens, para os selecionados ou para os que não têm mensagem. &lt;i&gt;Remover seleção&lt;/i&gt;, &lt;i&gt;Esvaziar lista&lt;/i&gt; e &lt;i&gt;Redefinir&lt;/i&gt; retiram números da lista.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;5. Defina como se envia.&lt;/b&gt; Com &lt;i&gt;Ignorar números duplicados&lt;/i&gt;, cada número recebe uma só vez. Com &lt;i&gt;Respeitar listas de exclusão&lt;/i&gt;, nada é enviado a quem está numa lista aplicada; clique em &lt;i&gt;Listas de exclusão&lt;/i&gt; para criar essas listas e indicar quais se aplicam. &lt;i&gt;Pausa&lt;/i&gt; faz uma pausa após cada grupo de mensagens. Com &lt;i&gt;Confirmar cada mensagem&lt;/i&gt;, cada uma é avaliada pelo que o telefone responde, sai no alfabeto de que precisa e nunca é enviada duas vezes sem perguntar; um envio interrompido pode ser continuado, e &lt;i&gt;Relatórios&lt;/i&gt; mostra os que conservar.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;6. Envie.&lt;/b&gt; Se a mensagem acima ainda não estiver na lista, o programa pergunta se deve ser copiada primeiro para lá. As mensagens saem uma a uma, pela ordem da lista, com alguns segundos entre elas, de que os telefones lentos precisam. A janela de progresso mostra em que ponto está e faz a contagem decrescente das pausas; &lt;i&gt;Parar envio&lt;/i&gt; termina-o antes da mensagem seguinte ou da parte seguinte de uma mensagem longa. A lista fica como está.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;7. Depois.&lt;/b&gt; O que foi passado ao telefone com &lt;i&gt;Guardar enviadas&lt;/i&gt; marcado está em &lt;i&gt;Enviadas&lt;/i&gt; e, com &lt;i&gt;Guardar mensagens como modelos&lt;/i&gt;, cada texto está, uma só vez, em &lt;i&gt;Modelos&lt;/i&gt;, pronto a ser usado de novo. Ambas as janelas eliminam o que já não é preciso e exportam a sua lista como ficheiro de texto ou página web.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Se nenhum telefone for encontrado&lt;/b&gt;, a página antes do assistente indica o que experimentar: o modo de modem do próprio telefone, a permissão da sua conta para usar portas série e outros programas que ocupam a porta. &lt;i&gt;Porque não aparece o meu telefone?&lt;/i&gt;, em baixo, examina cada uma destas coisas e diz o que ajuda.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;O que significa “enviada”.&lt;/b&gt; Com &lt;i&gt;Confirmar cada mensagem&lt;/i&gt;, uma mensagem está enviada quando a rede acusou a sua receção. Sem isso, conta como enviada quando foi escrita no telefone sem erros. O que o telefone ou a operadora respondem não é avaliado: uma mensagem que recusem também está em &lt;i&gt;Enviadas&lt;/i&gt;, e um telefone que deixa de responder não termina o envio. Envie primeiro a mensagem a si próprio e ponha o seu número no fim da lista.&lt;/p&gt;
&lt;p&gt;&lt;b&gt;Se aparecer “Erro de conexão com o dispositivo”&lt;/b&gt;, a escrita no telefone falhou, ou não foi possível dar forma a uma mensagem, e o envio terminou aí. O que tinha sido passado até então está em &lt;i&gt;Enviadas&lt;/i&gt;, se as guardar; da mensagem em que aconteceu pode ter saído uma parte ou tudo.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Why does my phone not show?</source>
        <translation>&amp;Porque não aparece o meu telefone?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open the &amp;guide</source>
        <translation>Abrir o &amp;guia</translation>
    </message>
    <message>
        <source>No program was found that shows the guide. It is in %1.</source>
        <translation>Não foi encontrado nenhum programa que mostre o guia. Está em %1.</translation>
    </message>
</context>
<context>
    <name>Import_Strip</name>
    <message>
        <source>0 added: the file could not be read.</source>
        <translation>Adicionados: 0. Não foi possível ler o ficheiro.</translation>
    </message>
    <message>
        <source>%1 added.</source>
        <translation>Adicionados: %1.</translation>
    </message>
    <message>
        <source>%1 added, 1 line not used.</source>
        <translation>Adicionados: %1; 1 linha não usada.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %n lines not used.</source>
        <translation>
            <numerusform>Adicionados: %1; %n linha não usada.</numerusform>
            <numerusform>Adicionados: %1; %n linhas não usadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1
Then it ended early.</source>
        <translation>%1
Depois, foi interrompido antes do fim.</translation>
    </message>
    <message>
        <source>0 added: there was no text that could be read.</source>
        <translation>Adicionados: 0. Não havia texto que pudesse ser lido.</translation>
    </message>
    <message>
        <source>Show ...</source>
        <translation>Mostrar...</translation>
    </message>
    <message>
        <source>Shows what was not used, and why</source>
        <translation>Mostra o que não foi usado e porquê</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Takes this notice away</source>
        <translation>Retira este aviso</translation>
    </message>
    <message>
        <source>What the last import did</source>
        <translation>Resultado da última importação</translation>
    </message>
    <message>
        <source>&amp;Show ...</source>
        <translation>Mos&amp;trar...</translation>
    </message>
    <message>
        <source>&amp;Dismiss</source>
        <translation>Fec&amp;har</translation>
    </message>
</context>
<context>
    <name>Job_Trouble</name>
    <message>
        <source>there is no such job</source>
        <translation>não existe tal envio</translation>
    </message>
    <message>
        <source>its files can not be read or written to</source>
        <translation>não é possível ler os seus ficheiros ou escrever neles</translation>
    </message>
    <message>
        <source>the file is not the journal of a job</source>
        <translation>o ficheiro não é o diário de um envio</translation>
    </message>
    <message>
        <source>its journal was written by a newer version of the program</source>
        <translation>o seu diário foi escrito por uma versão mais recente do programa</translation>
    </message>
    <message>
        <source>its journal is damaged, so that it is unknown what was sent</source>
        <translation>o seu diário está danificado, por isso não se sabe o que foi enviado</translation>
    </message>
    <message>
        <source>the list beside its journal is gone</source>
        <translation>a lista junto ao seu diário desapareceu</translation>
    </message>
    <message>
        <source>the list beside its journal is not the one that the job began with</source>
        <translation>a lista junto ao seu diário não é aquela com que o envio começou</translation>
    </message>
    <message>
        <source>another program works on it</source>
        <translation>outro programa está a trabalhar nele</translation>
    </message>
    <message>
        <source>a job of this name exists already</source>
        <translation>já existe um envio com este nome</translation>
    </message>
    <message>
        <source>a job can not have so many messages</source>
        <translation>um envio não pode ter tantas mensagens</translation>
    </message>
    <message>
        <source>the disk has no room for its journal</source>
        <translation>não há espaço no disco para o seu diário</translation>
    </message>
    <message>
        <source>its journal can not be written</source>
        <translation>não é possível escrever o seu diário</translation>
    </message>
</context>
<context>
    <name>Kept_Receipts</name>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1: não pode ser lido</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n recipients</source>
        <translation>
            <numerusform>%1: %n destinatário</numerusform>
            <numerusform>%1: %n destinatários</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, in work</source>
        <translation>%1, em curso</translation>
    </message>
    <message>
        <source>%1, not ended</source>
        <translation>%1, não terminado</translation>
    </message>
    <message>
        <source>Re&amp;move ...</source>
        <translation>&amp;Remover...</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Envio</translation>
    </message>
    <message>
        <source>Removes the list and the record of this job</source>
        <translation>Remove a lista e o registo deste envio</translation>
    </message>
    <message>
        <source>&amp;Job:</source>
        <translation>En&amp;vio:</translation>
    </message>
</context>
<context>
    <name>Language_Menu</name>
    <message>
        <source>La&amp;nguage (from the next start on)</source>
        <translation>&amp;Idioma (a partir do próximo início)</translation>
    </message>
    <message>
        <source>As the &amp;desktop</source>
        <translation>Como o &amp;sistema</translation>
    </message>
</context>
<context>
    <name>List_Arrivals</name>
    <message>
        <source>&amp;Paste numbers</source>
        <translation>Co&amp;lar números</translation>
    </message>
</context>
<context>
    <name>Lists_Page</name>
    <message>
        <source>Available exclusion lists</source>
        <translation>Listas de exclusão disponíveis</translation>
    </message>
    <message>
        <source>Exclude when sending SMS</source>
        <translation>Excluir ao enviar SMS</translation>
    </message>
    <message>
        <source>There is no exclusion list yet.</source>
        <translation>Ainda não há nenhuma lista de exclusão.</translation>
    </message>
    <message>
        <source>Make the first list ...</source>
        <translation>Criar a primeira lista...</translation>
    </message>
    <message>
        <source>No list is applied, so nobody is left out.</source>
        <translation>Nenhuma lista é aplicada, por isso ninguém é excluído.</translation>
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
        <translation>A lista já contém números. Quer removê-los antes de adicionar os do ficheiro?

“Não” conserva-os e adiciona os novos a seguir.</translation>
    </message>
    <message>
        <source>Import nothing</source>
        <translation>Não importar nada</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Empty the list first</source>
        <translation>Esvaziar primeiro a lista</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>Keep the list and add to it</source>
        <translation>Conservar a lista e acrescentar-lhe os novos</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
</context>
<context>
    <name>Long_SMS_Dlg</name>
    <message>
        <source>Long message</source>
        <translation>Mensagem longa</translation>
    </message>
    <message>
        <source>Unicode message</source>
        <translation>Mensagem Unicode</translation>
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
        <translation>&amp;Editar...</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Lista</translation>
    </message>
    <message>
        <source>&amp;Message</source>
        <translation>&amp;Mensagem</translation>
    </message>
    <message>
        <source>&amp;Sending</source>
        <translation>En&amp;vio</translation>
    </message>
    <message>
        <source>&amp;What was sent</source>
        <translation>&amp;O que foi enviado</translation>
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
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
</context>
<context>
    <name>Numbers_Page</name>
    <message>
        <source>Excluded number</source>
        <translation>Número excluído</translation>
    </message>
    <message>
        <source>No number is in this list yet. Type one above, or load a file of them.</source>
        <translation>Esta lista ainda não tem números. Escreva um acima ou carregue um ficheiro.</translation>
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
        <translation>A lista foi exportada.</translation>
    </message>
    <message>
        <source>Open the &amp;exported file now</source>
        <translation>&amp;Abrir agora o ficheiro exportado</translation>
    </message>
    <message>
        <source>The file could not be opened:
this computer has no program for it.</source>
        <translation>Não foi possível abrir o ficheiro:
este computador não tem nenhum programa para ele.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>The file stays where it is, unopened</source>
        <translation>O ficheiro fica onde está, sem ser aberto</translation>
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
        <translation>Assistente de conexão do telefone</translation>
    </message>
    <message>
        <source>Click a device to read what it tells about itself, then select it to send your messages through it.</source>
        <translation>Clique num dispositivo para ler o que ele diz de si e selecione-o depois para enviar através dele as suas mensagens.</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>Dispositivos encontrados</translation>
    </message>
    <message>
        <source>&amp;Why does my phone not show?</source>
        <translation>Por&amp;que não aparece o meu telefone?</translation>
    </message>
    <message>
        <source>Device details</source>
        <translation>Dados do dispositivo</translation>
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
        <translation>Ca&amp;minho do dispositivo</translation>
    </message>
    <message>
        <source>Device path</source>
        <translation>Caminho do dispositivo</translation>
    </message>
    <message>
        <source>&amp;Manufacturer</source>
        <translation>&amp;Fabricante</translation>
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
        <translation>Si&amp;nal</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Sinal</translation>
    </message>
    <message>
        <source>&amp;Operator</source>
        <translation>&amp;Operadora</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operadora</translation>
    </message>
    <message>
        <source>&amp;Revision</source>
        <translation>&amp;Revisão</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>Revisão</translation>
    </message>
    <message>
        <source>Service centre (SMSC)</source>
        <translation>Centro de mensagens (SMSC)</translation>
    </message>
    <message>
        <source>D&amp;efault number of the device</source>
        <translation>Número pre&amp;definido do dispositivo</translation>
    </message>
    <message>
        <source>Default service centre number</source>
        <translation>Número predefinido do centro de mensagens</translation>
    </message>
    <message>
        <source>&amp;Use a custom number instead</source>
        <translation>&amp;Usar um número personalizado</translation>
    </message>
    <message>
        <source>Custom service centre number</source>
        <translation>Número personalizado do centro de mensagens</translation>
    </message>
    <message>
        <source>Search &amp;again</source>
        <translation>Procurar de no&amp;vo</translation>
    </message>
    <message>
        <source>&amp;Continue without a device</source>
        <translation>&amp;Continuar sem dispositivo</translation>
    </message>
    <message>
        <source>Se&amp;lect this device</source>
        <translation>S&amp;elecionar dispositivo</translation>
    </message>
    <message>
        <source>signal %1</source>
        <translation>sinal %1</translation>
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
        <translation>A procurar dispositivos...</translation>
    </message>
    <message>
        <source>No phone or modem was found. Connect one and switch it on.</source>
        <translation>Não foi encontrado nenhum telefone nem modem. Ligue um e acenda-o.</translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>Procurar de novo</translation>
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
        <translation>Linhas a mostrar</translation>
    </message>
    <message>
        <source>&amp;Longest</source>
        <translation>Mais &amp;longa</translation>
    </message>
    <message>
        <source>Goes to the row with the longest message</source>
        <translation>Vai para a linha com a mensagem mais longa</translation>
    </message>
    <message>
        <source>Rows as they will be sent</source>
        <translation>Linhas tal como serão enviadas</translation>
    </message>
    <message>
        <source>%1 cannot be dialled: the row stays as it was.</source>
        <translation>%1 não pode ser marcado: a linha ficou como estava.</translation>
    </message>
    <message>
        <source>All rows</source>
        <translation>Todas as linhas</translation>
    </message>
    <message>
        <source>Rows left out</source>
        <translation>Linhas deixadas de fora</translation>
    </message>
    <message>
        <source>Unicode messages</source>
        <translation>Mensagens Unicode</translation>
    </message>
    <message>
        <source>Looking at the rows: %1 % ...</source>
        <translation>A examinar as linhas: %1 %...</translation>
    </message>
    <message>
        <source>Looking at the rows ...</source>
        <translation>A examinar as linhas...</translation>
    </message>
</context>
<context>
    <name>Plan_Rows</name>
    <message>
        <source>Row</source>
        <translation>Linha</translation>
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
        <translation>Mensagem</translation>
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
        <translation>Observação</translation>
    </message>
</context>
<context>
    <name>Plan_Words</name>
    <message>
        <source>to be sent</source>
        <translation>será enviada</translation>
    </message>
    <message>
        <source>repeated</source>
        <translation>com número repetido</translation>
    </message>
    <message>
        <source>excluded</source>
        <translation>com número excluído</translation>
    </message>
    <message>
        <source>no usable number</source>
        <translation>sem número utilizável</translation>
    </message>
    <message>
        <source>empty field</source>
        <translation>com campo vazio</translation>
    </message>
    <message>
        <source>unknown field</source>
        <translation>com campo desconhecido</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>com texto demasiado longo</translation>
    </message>
    <message>
        <source>fields misplaced</source>
        <translation>com campos deslocados</translation>
    </message>
    <message>
        <source>1 message to be sent</source>
        <translation>1 mensagem a enviar</translation>
    </message>
    <message numerus="yes">
        <source>%n messages to be sent</source>
        <translation>
            <numerusform>%n mensagem a enviar</numerusform>
            <numerusform>%n mensagens a enviar</numerusform>
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
            <numerusform>%n de fora: %1.</numerusform>
            <numerusform>%n de fora: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>others</source>
        <translation>outros</translation>
    </message>
    <message>
        <source>1 message goes as Unicode</source>
        <translation>1 mensagem segue como Unicode</translation>
    </message>
    <message numerus="yes">
        <source>%n messages go as Unicode</source>
        <translation>
            <numerusform>%n mensagem segue como Unicode</numerusform>
            <numerusform>%n mensagens seguem como Unicode</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, because of %2.</source>
        <translation>%1, por causa de %2.</translation>
    </message>
</context>
<context>
    <name>PleaseWait_Modeless</name>
    <message>
        <source>Please wait ...</source>
        <translation>Aguarde...</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>Em curso</translation>
    </message>
</context>
<context>
    <name>Receipt_Wnd</name>
    <message>
        <source>Receipt</source>
        <translation>Relatório de envio</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>&amp;Mostrar:</translation>
    </message>
    <message>
        <source>Messages to show</source>
        <translation>Mensagens a mostrar</translation>
    </message>
    <message>
        <source>Messages of the job</source>
        <translation>Mensagens do envio</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>E&amp;xportar</translation>
    </message>
    <message>
        <source>Write the receipt into a file</source>
        <translation>Guardar o relatório num ficheiro</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>As a &amp;text ...</source>
        <translation>Como &amp;texto...</translation>
    </message>
    <message>
        <source>As a web &amp;page ...</source>
        <translation>Como &amp;página web...</translation>
    </message>
    <message>
        <source>As a table for &amp;spreadsheets (CSV) ...</source>
        <translation>Como tabela para folhas de &amp;cálculo (CSV)...</translation>
    </message>
    <message>
        <source>An apostrophe is in front of each number, and of whatever else a spreadsheet would take for a formula.</source>
        <translation>Há um apóstrofo antes de cada número e de tudo o que uma folha de cálculo tomaria por uma fórmula.</translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>A ler...</translation>
    </message>
    <message>
        <source>No receipts are kept yet.</source>
        <translation>Ainda não há relatórios de envio conservados.</translation>
    </message>
    <message>
        <source>The job could not be removed: %1.</source>
        <translation>Não foi possível remover o envio: %1.</translation>
    </message>
    <message>
        <source>There is no receipt of this job: %1.</source>
        <translation>Não há relatório deste envio: %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be written.</source>
        <translation>Não foi possível escrever o ficheiro %1.</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Guardado em %1.</translation>
    </message>
</context>
<context>
    <name>Remembered_List</name>
    <message>
        <source>Re&amp;member this list</source>
        <translation>Le&amp;mbrar esta lista</translation>
    </message>
    <message>
        <source>The list from the last time cannot be read.</source>
        <translation>Não é possível ler a lista da última vez.</translation>
    </message>
    <message>
        <source>Recipients from the last time: %1.</source>
        <translation>Destinatários da última vez: %1.</translation>
    </message>
    <message>
        <source>Not read: %1.</source>
        <translation>Não lidos: %1.</translation>
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
        <translation>Quer mesmo remover deste computador a lista do envio e o seu registo? Depois nada mais dele poderá ser enviado, nem haverá relatório.</translation>
    </message>
    <message>
        <source>Remove for good</source>
        <translation>Remover de vez</translation>
    </message>
</context>
<context>
    <name>Row_Finder</name>
    <message>
        <source>&amp;Find ...</source>
        <translation>&amp;Procurar...</translation>
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
        <translation>Como na lista</translation>
    </message>
    <message>
        <source>Searching ...</source>
        <translation>A procurar...</translation>
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
        <translation>Envio de mensagens</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>Em curso</translation>
    </message>
    <message>
        <source>Total messages :</source>
        <translation>Total de mensagens:</translation>
    </message>
    <message>
        <source>Sending to :</source>
        <translation>A enviar para:</translation>
    </message>
    <message>
        <source>Messages handled</source>
        <translation>Mensagens processadas</translation>
    </message>
    <message>
        <source>&amp;Stop Sending</source>
        <translation>&amp;Parar envio</translation>
    </message>
    <message>
        <source>about 23 h 59 min left, until 30 September 2026, 23:59</source>
        <translation>tempo restante: cerca de 23 h 59 min, até 30 de setembro de 2026, 23:59</translation>
    </message>
    <message>
        <source>Sending %1 of %2</source>
        <translation>A enviar %1 de %2</translation>
    </message>
    <message>
        <source>Now :</source>
        <translation>Agora:</translation>
    </message>
    <message>
        <source>Stopping ...</source>
        <translation>A parar...</translation>
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
        <translation>A mensagem escrita ainda não está na lista. Pode copiá-la para lá antes de a lista ser enviada.</translation>
    </message>
    <message>
        <source>Every number gets the message in the composer</source>
        <translation>Todos os números recebem a mensagem escrita</translation>
    </message>
    <message>
        <source>Copy it to &amp;all numbers in the list</source>
        <translation>Copiá-la para &amp;todos os números da lista</translation>
    </message>
    <message>
        <source>The numbers whose message is empty get the message; the others keep theirs</source>
        <translation>Os números sem mensagem recebem esta; os outros ficam com a sua</translation>
    </message>
    <message>
        <source>Copy it to the numbers without a &amp;message</source>
        <translation>Copiá-la para os números sem &amp;mensagem</translation>
    </message>
    <message>
        <source>Or send each number the message that it has in the list.</source>
        <translation>Ou enviar a cada número a mensagem que tem na lista.</translation>
    </message>
    <message>
        <source>Send nothing</source>
        <translation>Não enviar nada</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Send the list as it stands</source>
        <translation>Enviar a lista tal como está</translation>
    </message>
    <message>
        <source>Send as it &amp;stands</source>
        <translation>&amp;Enviar tal como está</translation>
    </message>
    <message>
        <source>Copy the message and send</source>
        <translation>Copiar a mensagem e enviar</translation>
    </message>
    <message>
        <source>C&amp;opy and send</source>
        <translation>C&amp;opiar e enviar</translation>
    </message>
    <message>
        <source>The composer is empty. If you copy it to all numbers, every message in the list becomes blank.</source>
        <translation>A mensagem escrita está vazia. Se a copiar para todos os números, todas as mensagens da lista ficam vazias.</translation>
    </message>
</context>
<context>
    <name>Send_Promise</name>
    <message>
        <source>Counting ...</source>
        <translation>A contar...</translation>
    </message>
    <message>
        <source>That is much for one phone.</source>
        <translation>É muito para um só telefone.</translation>
    </message>
    <message>
        <source>What to do instead</source>
        <translation>O que fazer em vez disso</translation>
    </message>
    <message>
        <source>Other ways ...</source>
        <translation>Outras vias...</translation>
    </message>
    <message>
        <source>Show who gets nothing ...</source>
        <translation>Ver quem não recebe nada...</translation>
    </message>
    <message>
        <source>Check before sending ...</source>
        <translation>Verificar antes de enviar...</translation>
    </message>
</context>
<context>
    <name>Sent_Items</name>
    <message>
        <source>Sent Items</source>
        <translation>Mensagens enviadas</translation>
    </message>
    <message>
        <source>&amp;Sent messages:</source>
        <translation>Mensagens &amp;enviadas:</translation>
    </message>
    <message>
        <source>Total Items : 0</source>
        <translation>Total de itens: 0</translation>
    </message>
    <message>
        <source>Sent messages</source>
        <translation>Mensagens enviadas</translation>
    </message>
    <message>
        <source>Selected &amp;message:</source>
        <translation>&amp;Mensagem selecionada:</translation>
    </message>
    <message>
        <source>Selected message</source>
        <translation>Mensagem selecionada</translation>
    </message>
    <message>
        <source>&amp;Delete selected</source>
        <translation>Eliminar &amp;seleção</translation>
    </message>
    <message>
        <source>Take the selected messages out of the list</source>
        <translation>Retirar da lista as mensagens selecionadas</translation>
    </message>
    <message>
        <source>Delete a&amp;ll</source>
        <translation>Eliminar &amp;tudo</translation>
    </message>
    <message>
        <source>Empty the whole list</source>
        <translation>Esvaziar toda a lista</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>E&amp;xportar...</translation>
    </message>
    <message>
        <source>Write the list into a text file or a web page</source>
        <translation>Guardar a lista num ficheiro de texto ou numa página web</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Keep the list as it is shown and close this window</source>
        <translation>Guardar a lista tal como é mostrada e fechar esta janela</translation>
    </message>
    <message>
        <source>[ The first %1 of %2 characters ]</source>
        <translation>[ Os primeiros %1 de %2 caracteres ]</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>No message is kept here yet. Those that are handed to the phone from now on will be.</source>
        <translation>Ainda não há mensagens guardadas aqui. Passam a ser guardadas as que forem entregues ao telefone a partir de agora.</translation>
    </message>
    <message>
        <source>No message is kept here yet, and those that are sent will not be.</source>
        <translation>Ainda não há mensagens guardadas aqui, e as que forem enviadas não serão guardadas.</translation>
    </message>
    <message>
        <source>Keep messages from now on</source>
        <translation>Guardar as mensagens a partir de agora</translation>
    </message>
</context>
<context>
    <name>Table_Page</name>
    <message>
        <source>&amp;Numbers are in:</source>
        <translation>Coluna dos &amp;números:</translation>
    </message>
    <message>
        <source>Column of the numbers</source>
        <translation>Coluna dos números</translation>
    </message>
    <message>
        <source>The column that holds the numbers. A click on a heading of the table chooses it, too</source>
        <translation>A coluna que contém os números. Um clique num cabeçalho da tabela também a escolhe</translation>
    </message>
    <message>
        <source>National numbers are &amp;of:</source>
        <translation>&amp;País dos números:</translation>
    </message>
    <message>
        <source>Country of national numbers</source>
        <translation>País dos números nacionais</translation>
    </message>
    <message>
        <source>Gets the code of this country in front of a number that has none</source>
        <translation>Acrescenta o indicativo deste país a um número que não o tem</translation>
    </message>
    <message>
        <source>The first rows</source>
        <translation>As primeiras linhas</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>C&amp;odificação:</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Codificação</translation>
    </message>
    <message>
        <source>Another one where letters look wrong</source>
        <translation>Outra, se as letras parecerem erradas</translation>
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
        <translation>O que separa os campos de uma linha</translation>
    </message>
    <message>
        <source>&amp;Sheet:</source>
        <translation>&amp;Folha:</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Folha</translation>
    </message>
    <message>
        <source>Untick this where the first row is one like the others</source>
        <translation>Desmarque se a primeira linha for como as outras</translation>
    </message>
    <message>
        <source>&amp;First row has the names</source>
        <translation>A pri&amp;meira linha tem os nomes</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 linha</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n linha</numerusform>
            <numerusform>%n linhas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 in 1 column.</source>
        <translation>%1: %2 em 1 coluna.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 in %n columns.</source>
        <translation>
            <numerusform>%1: %2 em %n coluna.</numerusform>
            <numerusform>%1: %2 em %n colunas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Vírgula</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Ponto e vírgula</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulação</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Barra vertical</translation>
    </message>
    <message>
        <source>As written</source>
        <translation>Como estão escritos</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>A ler %1...</translation>
    </message>
    <message>
        <source>%1 can not be used: %2.</source>
        <translation>%1 não pode ser usado: %2.</translation>
    </message>
    <message>
        <source>%1 holds no rows below the names of its columns.</source>
        <translation>%1 não contém linhas abaixo dos nomes das colunas.</translation>
    </message>
    <message>
        <source>No column looks as if it held numbers. Choose the one that does.</source>
        <translation>Nenhuma coluna parece conter números. Escolha a que os contém.</translation>
    </message>
    <message>
        <source>One for each person, mobile ones first</source>
        <translation>Um por pessoa, primeiro os móveis</translation>
    </message>
    <message>
        <source>Each number of a person</source>
        <translation>Todos os números de uma pessoa</translation>
    </message>
    <message>
        <source>The file does not tell its encoding: look whether the letters are right.</source>
        <translation>O ficheiro não indica a sua codificação: verifique se as letras estão certas.</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Templates</source>
        <translation>Modelos</translation>
    </message>
    <message>
        <source>&amp;Message templates:</source>
        <translation>&amp;Modelos de mensagens:</translation>
    </message>
    <message>
        <source>Total Items : 0</source>
        <translation>Total de itens: 0</translation>
    </message>
    <message>
        <source>Message templates</source>
        <translation>Modelos de mensagens</translation>
    </message>
    <message>
        <source>Selected &amp;template:</source>
        <translation>Modelo &amp;selecionado:</translation>
    </message>
    <message>
        <source>Selected template</source>
        <translation>Modelo selecionado</translation>
    </message>
    <message>
        <source>Add &amp;new ...</source>
        <translation>&amp;Novo...</translation>
    </message>
    <message>
        <source>Type a new template</source>
        <translation>Escrever um novo modelo</translation>
    </message>
    <message>
        <source>E&amp;dit ...</source>
        <translation>E&amp;ditar...</translation>
    </message>
    <message>
        <source>Change the selected template</source>
        <translation>Alterar o modelo selecionado</translation>
    </message>
    <message>
        <source>Delete &amp;selected</source>
        <translation>&amp;Eliminar seleção</translation>
    </message>
    <message>
        <source>Take the selected templates out of the list</source>
        <translation>Retirar da lista os modelos selecionados</translation>
    </message>
    <message>
        <source>Delete a&amp;ll</source>
        <translation>Eliminar &amp;tudo</translation>
    </message>
    <message>
        <source>Empty the whole list</source>
        <translation>Esvaziar toda a lista</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>E&amp;xportar...</translation>
    </message>
    <message>
        <source>Write the list into a text file or a web page</source>
        <translation>Guardar a lista num ficheiro de texto ou numa página web</translation>
    </message>
    <message>
        <source>&amp;Use template</source>
        <translation>&amp;Usar modelo</translation>
    </message>
    <message>
        <source>Put the selected template into the message</source>
        <translation>Inserir na mensagem o modelo selecionado</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Keep the list as it is shown and close this window</source>
        <translation>Guardar a lista tal como é mostrada e fechar esta janela</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Templates that could not be saved the last time are in the list again. They are saved when this window closes.</source>
        <translation>Os modelos que não puderam ser guardados da última vez estão de novo na lista. São guardados quando esta janela fechar.</translation>
    </message>
    <message>
        <source>The templates stored so far can not be read. They are kept in a file of their own when this list is saved.</source>
        <translation>Os modelos guardados até agora não podem ser lidos. São conservados num ficheiro à parte quando esta lista for guardada.</translation>
    </message>
    <message>
        <source>Changes can not be saved at present: the folder %1 can not be written to.</source>
        <translation>De momento não é possível guardar alterações: não se pode escrever na pasta %1.</translation>
    </message>
    <message>
        <source>No text is kept here yet.</source>
        <translation>Ainda não há textos guardados aqui.</translation>
    </message>
    <message>
        <source>Add the first template ...</source>
        <translation>Adicionar o primeiro modelo...</translation>
    </message>
</context>
<context>
    <name>Time_Words</name>
    <message>
        <source>1 recipient</source>
        <translation>1 destinatário</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients</source>
        <translation>
            <numerusform>%n destinatário</numerusform>
            <numerusform>%n destinatários</numerusform>
        </translation>
    </message>
    <message>
        <source>1 message</source>
        <translation>1 mensagem</translation>
    </message>
    <message numerus="yes">
        <source>%n messages</source>
        <translation>
            <numerusform>%n mensagem</numerusform>
            <numerusform>%n mensagens</numerusform>
        </translation>
    </message>
    <message>
        <source>sent items</source>
        <translation>mensagens enviadas</translation>
    </message>
    <message>
        <source>templates</source>
        <translation>modelos</translation>
    </message>
    <message>
        <source>a receipt</source>
        <translation>relatório de envio</translation>
    </message>
    <message>
        <source>to be kept: %1</source>
        <translation>a conservar: %1</translation>
    </message>
    <message>
        <source> and </source>
        <translation> e </translation>
    </message>
    <message>
        <source>the record goes when all is done</source>
        <translation>o registo é apagado quando tudo terminar</translation>
    </message>
    <message>
        <source>no record will be kept</source>
        <translation>não será conservado nenhum registo</translation>
    </message>
    <message>
        <source>less than a minute</source>
        <translation>menos de um minuto</translation>
    </message>
    <message>
        <source>about %1 min</source>
        <translation>cerca de %1 min</translation>
    </message>
    <message>
        <source>about %1 h %2 min</source>
        <translation>cerca de %1 h %2 min</translation>
    </message>
    <message>
        <source>about %1 h</source>
        <translation>cerca de %1 h</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>até às %1</translation>
    </message>
    <message>
        <source>until tomorrow, %1</source>
        <translation>até amanhã às %1</translation>
    </message>
    <message>
        <source>until %1, %2</source>
        <translation>até %1, %2</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <translation>d &apos;de&apos; MMMM &apos;de&apos; yyyy</translation>
    </message>
    <message>
        <source>Nobody in the list will be sent anything.</source>
        <translation>Nada será enviado a ninguém da lista.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>tempo restante: %1</translation>
    </message>
    <message>
        <source>%1 once it goes on</source>
        <translation>%1 depois de retomado</translation>
    </message>
</context>
<context>
    <name>Undo_Strip</name>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>&amp;Undo the removal</source>
        <translation>&amp;Desfazer a remoção</translation>
    </message>
    <message>
        <source>What was just removed</source>
        <translation>O que acabou de ser removido</translation>
    </message>
    <message>
        <source>Brings back what was removed (Ctrl+Z)</source>
        <translation>Recupera o que foi removido (Ctrl+Z)</translation>
    </message>
</context>
<context>
    <name>Unfilled_Rows</name>
    <message>
        <source>1 recipient gets nothing: %1.</source>
        <translation>1 destinatário não recebe nada: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients get nothing. Of the first, %1.</source>
        <translation>
            <numerusform>%n destinatário não recebe nada. Motivo do primeiro: %1.</numerusform>
            <numerusform>%n destinatários não recebem nada. Motivo do primeiro: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no field %1: 1 recipient gets nothing.</source>
        <translation>Não existe o campo %1: 1 destinatário não recebe nada.</translation>
    </message>
    <message numerus="yes">
        <source>There is no field %1: %n recipients get nothing.</source>
        <translation>
            <numerusform>Não existe o campo %1: %n destinatário não recebe nada.</numerusform>
            <numerusform>Não existe o campo %1: %n destinatários não recebem nada.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 recipient has no %1: it gets nothing.</source>
        <translation>1 destinatário não tem %1: não recebe nada.</translation>
    </message>
    <message numerus="yes">
        <source>%n recipients have no %1: they get nothing.</source>
        <translation>
            <numerusform>%n destinatário não tem %1: não recebe nada.</numerusform>
            <numerusform>%n destinatários não têm %1: não recebem nada.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Unfinished_Strip</name>
    <message>
        <source>Sends what was not sent. What was sent is not sent again.</source>
        <translation>Envia o que não foi enviado. O que já foi enviado não é enviado de novo.</translation>
    </message>
    <message>
        <source>Rows that may have been sent ...</source>
        <translation>Linhas talvez enviadas...</translation>
    </message>
    <message>
        <source>Lists them, so that you can say what is to become of each</source>
        <translation>Apresenta-as para que indique o que fazer com cada uma</translation>
    </message>
    <message>
        <source>Receipt ...</source>
        <translation>Relatório...</translation>
    </message>
    <message>
        <source>Shows what became of each message so far</source>
        <translation>Mostra o que aconteceu até agora a cada mensagem</translation>
    </message>
    <message>
        <source>Remove ...</source>
        <translation>Remover...</translation>
    </message>
    <message>
        <source>Removes the job&apos;s list and its record</source>
        <translation>Remove a lista do envio e o seu registo</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Mais tarde</translation>
    </message>
    <message>
        <source>Leaves the job as it is and says no more of it for now</source>
        <translation>Deixa o envio como está e, por agora, não volta a mencioná-lo</translation>
    </message>
    <message>
        <source>Job that has not ended</source>
        <translation>Envio não terminado</translation>
    </message>
    <message>
        <source>Receipt of the job that has not ended ...</source>
        <translation>Relatório do envio não terminado...</translation>
    </message>
    <message>
        <source>A job that began on %1 has not ended.</source>
        <translation>Um envio iniciado em %1 não terminou.</translation>
    </message>
    <message>
        <source>Nothing of it is left to be sent.</source>
        <translation>Dele já não resta nada por enviar.</translation>
    </message>
    <message>
        <source>The job %1 cannot be gone on with: %2.</source>
        <translation>O envio %1 não pode ser continuado: %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>mais %n</numerusform>
            <numerusform>mais %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Send the remaining %n</source>
        <translation>
            <numerusform>Enviar a restante</numerusform>
            <numerusform>Enviar as %n restantes</numerusform>
        </translation>
    </message>
    <message>
        <source>Send the rest</source>
        <translation>Enviar o resto</translation>
    </message>
    <message>
        <source>The job could not be removed: %1.</source>
        <translation>Não foi possível remover o envio: %1.</translation>
    </message>
</context>
<context>
    <name>Unknown_Rows_Sheet</name>
    <message>
        <source>Rows that may have been sent</source>
        <translation>Linhas talvez enviadas</translation>
    </message>
    <message>
        <source>It is not known whether these messages were sent. What is left as it is will not be sent again. What is sent again may arrive twice.</source>
        <translation>Não se sabe se estas mensagens foram enviadas. O que ficar como está não será enviado de novo. O que for enviado de novo pode chegar duas vezes.</translation>
    </message>
    <message>
        <source>The selected rows:</source>
        <translation>As linhas selecionadas:</translation>
    </message>
    <message>
        <source>&amp;Leave</source>
        <translation>&amp;Deixar</translation>
    </message>
    <message>
        <source>Send &amp;again</source>
        <translation>&amp;Enviar de novo</translation>
    </message>
    <message>
        <source>&amp;Count as sent</source>
        <translation>Dar &amp;como enviada</translation>
    </message>
    <message>
        <source>All rows:</source>
        <translation>Todas as linhas:</translation>
    </message>
    <message>
        <source>Lea&amp;ve all</source>
        <translation>Deixar &amp;todas</translation>
    </message>
    <message>
        <source>Send all a&amp;gain</source>
        <translation>En&amp;viar todas de novo</translation>
    </message>
    <message>
        <source>C&amp;ount all as sent</source>
        <translation>Da&amp;r todas como enviadas</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Keep these decisions in the record of the job</source>
        <translation>Guardar estas decisões no registo do envio</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Leave everything as it is</source>
        <translation>Deixar tudo como está</translation>
    </message>
    <message>
        <source>Leave as it is</source>
        <translation>Deixar como está</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Enviar de novo</translation>
    </message>
    <message>
        <source>Count as sent</source>
        <translation>Dar como enviada</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>O que fazer</translation>
    </message>
    <message>
        <source>The decisions could not be kept: %1.</source>
        <translation>Não foi possível guardar as decisões: %1.</translation>
    </message>
</context>
<context>
    <name>Unused_Lines_Wnd</name>
    <message>
        <source>Lines that were not used</source>
        <translation>Linhas não usadas</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>No phone number</source>
        <translation>Não é um número de telefone</translation>
    </message>
    <message>
        <source>Already in the list</source>
        <translation>Já está na lista</translation>
    </message>
    <message>
        <source>In an exclusion list</source>
        <translation>Numa lista de exclusão</translation>
    </message>
    <message>
        <source>Lines not used: %1.</source>
        <translation>Linhas não usadas: %1.</translation>
    </message>
    <message>
        <source>These are the first %1.</source>
        <translation>Estas são as primeiras %1.</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>As it stood there</source>
        <translation>Tal como estava escrita</translation>
    </message>
    <message>
        <source>Why it was not used</source>
        <translation>Porque não foi usada</translation>
    </message>
</context>
<context>
    <name>UpdateTemp</name>
    <message>
        <source>Templates</source>
        <translation>Modelos</translation>
    </message>
    <message>
        <source>&amp;Message:</source>
        <translation>&amp;Mensagem:</translation>
    </message>
    <message>
        <source>Message of the template</source>
        <translation>Mensagem do modelo</translation>
    </message>
    <message>
        <source>At most 1600 characters</source>
        <translation>1600 caracteres no máximo</translation>
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
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>Update_Ex_Num</name>
    <message>
        <source>Edit number</source>
        <translation>Editar número</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Número de telefone</translation>
    </message>
    <message>
        <source>The number as it is to stand in the exclusion list, at most 20 characters</source>
        <translation>O número tal como deve estar na lista de exclusão, com 20 caracteres no máximo</translation>
    </message>
    <message>
        <source>Number as it was</source>
        <translation>Número anterior</translation>
    </message>
    <message>
        <source>Row of the number</source>
        <translation>Linha do número</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Phone &amp;number:</source>
        <translation>&amp;Número de telefone:</translation>
    </message>
</context>
<context>
    <name>Update_Num_SMS</name>
    <message>
        <source>Edit number and message</source>
        <translation>Editar número e mensagem</translation>
    </message>
    <message>
        <source>Phone &amp;number:</source>
        <translation>&amp;Número de telefone:</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Número de telefone</translation>
    </message>
    <message>
        <source>&amp;Message:</source>
        <translation>&amp;Mensagem:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>0 caracteres</translation>
    </message>
    <message>
        <source>For this window only</source>
        <translation>Só para esta janela</translation>
    </message>
    <message>
        <source>&amp;Refuse a number that is in the list already</source>
        <translation>&amp;Recusar um número que já está na lista</translation>
    </message>
    <message>
        <source>Refuse an &amp;excluded number</source>
        <translation>Recusar um número e&amp;xcluído</translation>
    </message>
    <message>
        <source>Leave the recipient as it is</source>
        <translation>Deixar o destinatário como está</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Save the recipient</source>
        <translation>Guardar o destinatário</translation>
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
        <translation>Editar mensagens selecionadas</translation>
    </message>
    <message>
        <source>&amp;Selected numbers:</source>
        <translation>Números &amp;selecionados:</translation>
    </message>
    <message>
        <source>Selected numbers</source>
        <translation>Números selecionados</translation>
    </message>
    <message>
        <source>Total Selected Numbers : 0</source>
        <translation>Números selecionados: 0</translation>
    </message>
    <message>
        <source>New &amp;message for all of them:</source>
        <translation>Nova &amp;mensagem para todos eles:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>0 Characters</source>
        <translation>0 caracteres</translation>
    </message>
    <message>
        <source>Leave the messages as they are</source>
        <translation>Deixar as mensagens como estão</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Copy the message to the selected numbers</source>
        <translation>Copiar a mensagem para os números selecionados</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
</context>
</TS>
