#pragma once

#include "phone/Message_Memory.h"
#include "phone/Phone_Settings.h"
#include "phone/Submission.h"

#include <optional>
#include <string>
#include <string_view>

// What is said in front of the prompt of +CMGS and +CMGW (3GPP TS 27.005 3.5.1, 3.5.3, 4.3 and 4.4), and what +CMGW
// makes of the body behind it. Pure.

namespace Handset {

struct Message_Request
{
    bool m_is_draft = false; ///< to be kept, by +CMGW
    int m_announced = 0;     ///< PDU mode: TPDU octets
    std::string m_number;    ///< text mode: destination; a draft may have none
    Message_Status m_status = Message_Status::Unsent;
};

/// Nothing when the argument is invalid.
std::optional<Message_Request> Request_Of(std::string_view argument, bool is_draft, const Phone_Settings& settings);

struct Draft
{
    std::optional<Stored_Message> m_message;
    Message_Error m_error = Message_Error::Invalid_Pdu; ///< what is wrong when there is none
};

/// In PDU mode the frame as it came: one to be sent, or of a received message any that has its length. In text mode a
/// frame is made.
Draft Draft_Of(std::string_view body, const Message_Request& request, const Phone_Settings& settings);

} // namespace Handset
