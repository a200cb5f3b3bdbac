#pragma once

#include "texts/Fixed_Text.h"

// What a job that confirms each message says.
namespace Texts::Confirmed {

// Why it waits.
inline constexpr Fixed_Text Device_Is_Gone{"The device is gone. Waiting until it is back."};
inline constexpr Fixed_Text Device_Is_Silent{"The device does not answer. Waiting until it does."};
inline constexpr Fixed_Text Waiting_For_Network{"Still waiting for the network."};
inline constexpr Fixed_Text Waiting_For_Reports{"Waiting for delivery reports."};

// Why it ends.
inline constexpr Fixed_Text Waited_Too_Long{"The device was not ready in time."};
inline constexpr Fixed_Text Not_Recorded{"The job's journal cannot be written, so nothing more is sent"};
inline constexpr Fixed_Text Three_Alike{"Several messages in a row ended alike, so nothing more is sent"};
inline constexpr Fixed_Text Not_All_Sent{"Not every message was sent. The list says what became of each."};
inline constexpr Fixed_Text No_Messages{"The device takes no text messages."};

// What can be done about it.
inline constexpr Fixed_Text Plain_May_Pass{"Those not taken may pass as normal text messages."};

// Why a message was not sent, may have been, or counts as sent.
inline constexpr Fixed_Text No_Prompt{"The device gave no prompt."};
inline constexpr Fixed_Text No_Result{"The device gave no result in time."};
inline constexpr Fixed_Text No_Reference{"The device said OK but gave no reference."};
inline constexpr Fixed_Text Not_Told_Apart{"The device's result may be that of an earlier message."};
inline constexpr Fixed_Text Line_Lost{"The device was gone before its result."};
inline constexpr Fixed_Text Broken_Off{"The program ended before the result."};
inline constexpr Fixed_Text Counted_As_Sent{"Somebody has counted it as sent."};
inline constexpr Fixed_Text Number_Invalid{"The number cannot be dialled."};

} // namespace Texts::Confirmed
