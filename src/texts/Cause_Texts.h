#pragma once

#include "texts/Fixed_Text.h"

// Why a message was refused, for a person who knows neither modems nor networks. Each fits in a column of a table.
namespace Texts::Causes {

// The number and the recipient.
inline constexpr Fixed_Text No_Such_Number{"This number, or the service centre's, does not exist."};
inline constexpr Fixed_Text Number_Invalid{"The recipient's number is invalid."};
inline constexpr Fixed_Text Recipient_Barred{"Messages to this recipient are barred."};
inline constexpr Fixed_Text Recipient_Network{"The recipient's network is out of order."};

// The contract.
inline constexpr Fixed_Text Barred_By_Operator{"The operator has barred sending."};
inline constexpr Fixed_Text Barred_On_Card{"Sending is barred on this SIM card."};
inline constexpr Fixed_Text Not_A_Customer{"The service centre does not know this SIM card."};
inline constexpr Fixed_Text Not_Granted{"The network does not grant this service."};
inline constexpr Fixed_Text Card_Unknown{"The network does not know this SIM card."};
inline constexpr Fixed_Text Not_In_Contract{"Text messages are not part of the contract."};
inline constexpr Fixed_Text Not_Offered{"The network does not offer text messages."};
inline constexpr Fixed_Text No_Centre_Contract{"There is no contract with the service centre."};

// The network and the service centre.
inline constexpr Fixed_Text Network_Failed{"The network has failed."};
inline constexpr Fixed_Text Rejected{"The network rejects this message."};
inline constexpr Fixed_Text Congested{"The network is congested."};
inline constexpr Fixed_Text Network_Out_Of_Order{"The network is out of order."};
inline constexpr Fixed_Text Temporary_Failure{"The network has a temporary failure."};
inline constexpr Fixed_Text Centre_Congested{"The service centre is congested."};
inline constexpr Fixed_Text No_Resources{"The network has no room for messages now."};
inline constexpr Fixed_Text Unknown_Transfer{"The network has lost track of this message."};
inline constexpr Fixed_Text Between_Networks{"There is trouble between two networks."};
inline constexpr Fixed_Text Centre_Busy{"The service centre is busy."};
inline constexpr Fixed_Text Centre_Failed{"The service centre has failed."};
inline constexpr Fixed_Text Duplicate{"The service centre already has this message."};
inline constexpr Fixed_Text Networks_Own{"The network gives a reason of its own."};
inline constexpr Fixed_Text Unspecified{"The network gives no reason."};
inline constexpr Fixed_Text Centre_Not_Known{"The service centre's number is not known."};
inline constexpr Fixed_Text No_Network{"There is no network."};
inline constexpr Fixed_Text Emergency_Only{"The network allows nothing but emergency calls."};
inline constexpr Fixed_Text No_Answer_In_Time{"The network did not answer in time."};
inline constexpr Fixed_Text No_Radio{"There was no radio connection."};
inline constexpr Fixed_Text Radio_Lost{"The radio connection was lost."};

// What the message is like.
inline constexpr Fixed_Text Malformed{"The network found the message malformed."};
inline constexpr Fixed_Text Kind_Refused{"The network does not accept this kind of message."};
inline constexpr Fixed_Text Alphabet_Refused{"The network does not accept this alphabet."};
inline constexpr Fixed_Text Flash_Refused{"The network accepts no message that shows at once."};
inline constexpr Fixed_Text Command_Refused{"The network does not accept this command."};
inline constexpr Fixed_Text Validity_Refused{"The network does not keep messages for so long."};
inline constexpr Fixed_Text Rejected_By_Modem{"The modem rejects the message or its number."};

// The SIM card.
inline constexpr Fixed_Text No_Card{"There is no SIM card."};
inline constexpr Fixed_Text Wrong_Card{"This is the wrong SIM card."};
inline constexpr Fixed_Text Card_Failed{"The SIM card has failed."};
inline constexpr Fixed_Text Card_Busy{"The SIM card is busy."};
inline constexpr Fixed_Text Card_Full{"The SIM card has no room for messages."};
inline constexpr Fixed_Text Card_Stores_Nothing{"The SIM card cannot store messages."};
inline constexpr Fixed_Text Pin_Wanted{"The SIM card wants its PIN."};
inline constexpr Fixed_Text Phone_Pin_Wanted{"The phone wants the PIN that ties it to its SIM card."};
inline constexpr Fixed_Text Pin_2_Wanted{"The SIM card wants its PIN2."};
inline constexpr Fixed_Text Puk_Wanted{"The SIM card wants its PUK."};
inline constexpr Fixed_Text Puk_2_Wanted{"The SIM card wants its PUK2."};

// The phone or modem.
inline constexpr Fixed_Text Busy_With_Another{"The modem was busy with another message."};
inline constexpr Fixed_Text Phone_Full{"The phone has no room for messages."};
inline constexpr Fixed_Text Phone_Failed{"The phone has failed."};
inline constexpr Fixed_Text Reserved{"Another program has reserved the phone's messages."};
inline constexpr Fixed_Text Not_Allowed_Now{"The phone does not allow sending now."};
inline constexpr Fixed_Text Not_Supported{"The phone does not support this."};
inline constexpr Fixed_Text Memory_Failed{"The phone's memory has failed."};
inline constexpr Fixed_Text Wrong_Place{"The phone has no such place in its memory."};
inline constexpr Fixed_Text No_Acknowledgement{"The phone expects no acknowledgement."};
inline constexpr Fixed_Text Starting{"The modem is still starting."};
inline constexpr Fixed_Text Modem_Busy{"The modem is busy."};
inline constexpr Fixed_Text Unknown{"Unknown error"};
inline constexpr Fixed_Text Makers_Own{"The modem gives a reason of its own."};
inline constexpr Fixed_Text Not_Known_Here{"The modem gives a reason that is not known here."};
inline constexpr Fixed_Text No_Reason{"The modem refuses and gives no reason."};

} // namespace Texts::Causes
