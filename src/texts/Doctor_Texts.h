#pragma once

#include "texts/Fixed_Text.h"

// What a look at ports and devices brings out: one plain sentence and one remedy each. %1 and so on are filled in.
namespace Texts::Doctor {

inline constexpr Fixed_Text Good{"OK"};
inline constexpr Fixed_Text Note{"Note"};
inline constexpr Fixed_Text Bad{"Problem"};

// Whether there is a port.
inline constexpr Fixed_Text Found{"%1 is connected."};
inline constexpr Fixed_Text No_Port{"No phone or modem was found on USB or Bluetooth."};
inline constexpr Fixed_Text Plug_In{
    "Switch it on, connect it, and on a phone choose the modem or data mode. It takes some seconds until it appears."};
inline constexpr Fixed_Text No_Such_Port{"There is no device at %1."};
inline constexpr Fixed_Text Plug_In_Again{"Plug it in again, or look under which name it appears now."};
inline constexpr Fixed_Text Network_Card{
    "%1 is connected as a network card. In this mode it has no port for messages."};
inline constexpr Fixed_Text Leave_Network_Card{
    "Switch it to its modem mode with the maker's own program or page, or use another modem."};
inline constexpr Fixed_Text Storage{"%1 is connected as a disc. In this mode it has no port for messages."};
inline constexpr Fixed_Text Leave_Storage{
    "Install the program that switches such sticks, then unplug the stick and plug it in again:"};
inline constexpr Fixed_Text Install_Switch{"sudo apt install usb-modeswitch"};
inline constexpr Fixed_Text For_Positions{"%1 is for positions (GPS), not for messages."};
inline constexpr Fixed_Text For_Diagnostics{"%1 is for the maker's diagnostics, not for messages."};
inline constexpr Fixed_Text For_Sound{"%1 is for sound, not for messages."};
inline constexpr Fixed_Text Left_Alone{"This system's settings say that %1 is no modem's port."};
inline constexpr Fixed_Text Use_Another_Port{"Use another port of the same device."};
inline constexpr Fixed_Text For_Packets{"%1 speaks QMI or MBIM, and no AT commands."};
inline constexpr Fixed_Text Needs_Commands{"Use a port of the device that takes AT commands, or another modem."};
inline constexpr Fixed_Text No_Serial_Port{"%1 takes AT commands, but is no serial port."};
inline constexpr Fixed_Text Needs_Serial_Port{"Use a serial port of the device, or another modem."};

// The right to open it.
inline constexpr Fixed_Text Barred{"Your account may not open %1."};
inline constexpr Fixed_Text Join_Group{
    "Members of the group %1 may. Join it with this command, then log out and in again:"};
inline constexpr Fixed_Text Join_Command{"sudo usermod -aG %1 $USER"};
inline constexpr Fixed_Text Ask_Administrator{"Only the system's administrator can allow it."};

// Another program that has it.
inline constexpr Fixed_Text Held_By{"%1 is in use by %2 (process %3)."};
inline constexpr Fixed_Text Held_By_Somebody{"%1 is in use by another program."};
inline constexpr Fixed_Text End_Program{"End that program, and look again."};
inline constexpr Fixed_Text Held_By_Service{"%1 is in use by ModemManager, the system's modem service."};
inline constexpr Fixed_Text Stop_Service{"Stop the service until the next start of the computer:"};
inline constexpr Fixed_Text Stop_Command{"sudo systemctl stop ModemManager"};

// Whether it answers.
inline constexpr Fixed_Text Does_Not_Open{"%1 cannot be opened (%2)."};
inline constexpr Fixed_Text Unplug{"Unplug the device, wait ten seconds and plug it in again."};
inline constexpr Fixed_Text Answers{"%1 answers."};
inline constexpr Fixed_Text Silent{"%1 does not answer as a modem."};
inline constexpr Fixed_Text Wake_Up{
    "Unplug the device, wait ten seconds and plug it in again. On a phone, choose the modem or data mode."};
inline constexpr Fixed_Text Silent_Socket{"Nothing answers on %1, a serial socket of the computer itself."};
inline constexpr Fixed_Text Only_If_There_Is_A_Modem{
    "If a modem is connected there, switch it on and look at its cable."};

// The SIM card.
inline constexpr Fixed_Text Card_Ready{"The SIM card is ready."};
inline constexpr Fixed_Text Card_Unknown{"The device does not say whether its SIM card is ready."};
inline constexpr Fixed_Text Card_Pin{"The SIM card wants its PIN."};
inline constexpr Fixed_Text Card_Pin_Tries{"The SIM card wants its PIN. Tries left: %1."};
inline constexpr Fixed_Text Enter_Pin{
    "Put the card into a phone and enter the PIN there, or turn its question for the PIN off. No PIN is tried here."};
inline constexpr Fixed_Text Card_Puk{"The SIM card is blocked and wants its PUK."};
inline constexpr Fixed_Text Card_Puk_Tries{"The SIM card is blocked and wants its PUK. Tries left: %1."};
inline constexpr Fixed_Text Enter_Puk{
    "Put the card into a phone and enter the PUK there. The operator gives it to you."};
inline constexpr Fixed_Text Card_Locked{"The device wants a code that ties it to a card or an operator."};
inline constexpr Fixed_Text Use_Its_Card{"Use the card it was sold with, or ask the seller to unlock it."};
inline constexpr Fixed_Text Card_Missing{"There is no SIM card in the device."};
inline constexpr Fixed_Text Put_In{"Put a card in, the right way round, and plug the device in again."};
inline constexpr Fixed_Text Card_Failed{"The SIM card cannot be read."};
inline constexpr Fixed_Text Clean_Card{
    "Take the card out, wipe its contacts and put it in again, or try it in a phone."};
inline constexpr Fixed_Text Card_Busy{"The SIM card is still being read."};
inline constexpr Fixed_Text Wait_For_Card{
    "Wait half a minute and look again. If it stays so, plug the device in again."};

// The network.
inline constexpr Fixed_Text Home{"The device is registered with its network."};
inline constexpr Fixed_Text Roaming{"The device is registered with a foreign network (roaming)."};
inline constexpr Fixed_Text Mind_The_Price{"Messages can be sent; ask your operator what they cost abroad."};
inline constexpr Fixed_Text Emergency_Calls{"The network lets the device make emergency calls alone."};
inline constexpr Fixed_Text Denied{"The network does not accept the SIM card."};
inline constexpr Fixed_Text Ask_Operator{"Ask the operator whether the card is active, and try it in a phone."};
inline constexpr Fixed_Text Searching{"The device is looking for a network."};
inline constexpr Fixed_Text Better_Place{
    "Wait a minute, or move the device or its aerial to a window, and look again."};
inline constexpr Fixed_Text Not_Searching{"The device is not registered with a network and looks for none."};
inline constexpr Fixed_Text Switch_Radio_On{"Switch its radio on (no flight mode), or plug the device in again."};
inline constexpr Fixed_Text Network_Unknown{"The device does not say whether it has a network."};
inline constexpr Fixed_Text Send_To_Yourself{"Send one message to yourself before you send to others."};

// The signal.
inline constexpr Fixed_Text Signal{"The signal is strong enough (%1 dBm)."};
inline constexpr Fixed_Text Weak_Signal{"The signal is weak (%1 dBm)."};
inline constexpr Fixed_Text Signal_Percent{"The signal is strong enough (%1 %)."};
inline constexpr Fixed_Text Weak_Signal_Percent{"The signal is weak (%1 %)."};
inline constexpr Fixed_Text Move_It{"Move the device or its aerial to a window."};
inline constexpr Fixed_Text Signal_Unknown{"The device does not say how strong the signal is."};

// The service centre.
inline constexpr Fixed_Text Centre_Set{"A service centre for messages is stored."};
inline constexpr Fixed_Text Centre_Empty{"No service centre for messages is stored."};
inline constexpr Fixed_Text Centre_Odd{"What is stored as the service centre for messages is no number."};
inline constexpr Fixed_Text Give_Centre{
    "Ask the operator for its number, and give it as a custom number in the wizard."};
inline constexpr Fixed_Text Centre_Unknown{"The device does not say which service centre for messages it has."};

// Messages.
inline constexpr Fixed_Text Takes_Messages{"The device takes messages to be sent."};
inline constexpr Fixed_Text No_Messages{"The device takes no messages to be sent."};
inline constexpr Fixed_Text Use_Another_Device{"Use another port of the device, or another device."};

// Beside a port in a list.
inline constexpr Fixed_Text Short_Free{"free"};
inline constexpr Fixed_Text Short_In_Use{"in use"};
inline constexpr Fixed_Text Short_No_Right{"no right"};
inline constexpr Fixed_Text Short_Not_For_Messages{"not for messages"};

// The report that can be copied.
inline constexpr Fixed_Text Report_Title{"Why a phone does not show: what was looked at"};
inline constexpr Fixed_Text Hidden_Number{"(number left out)"};

} // namespace Texts::Doctor
