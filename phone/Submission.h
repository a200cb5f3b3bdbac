#pragma once

#include "handset/Message_Joiner.h"
#include "phone/Phone_Settings.h"

#include <optional>
#include <string>
#include <string_view>

// Decodes what follows the prompt of AT+CMGS (3GPP TS 27.005 3.5.1 and 4.3). Pure.

namespace Handset {

/// +CMS ERROR values of 27.005 3.2.5.
enum class Message_Error
{
    Not_Supported = 303,
    Invalid_Pdu = 304,
    Invalid_Text = 305,
    No_Centre = 330
};

/// What followed the prompt of AT+CMGS, decoded: a part as a handset shows it, or an error.
struct Submission
{
    std::optional<Received_Part> m_part;
    Message_Error m_error = Message_Error::Invalid_Pdu; ///< what is wrong when there is no part
};

/// PDU mode: body is hexadecimal, line ends and blanks passed over; announced is the count of TPDU octets in
/// AT+CMGS=<length>.
Submission Submission_Of_Pdu(std::string_view body, int announced, const Phone_Settings& settings);

/// Text mode, after +CSMP and +CSCS. The body is read as
/// - 8-bit data: hexadecimal octets, whatever the character set;
/// - UCS2: hexadecimal UTF-16 with "UCS2" or "HEX" set;
/// - default alphabet: hexadecimal septets, two digits each, with "HEX" set, and hexadecimal UTF-16 with "UCS2" set;
/// - otherwise text: UTF-8 where it is well formed, else ISO 8859-1, whichever character set is current.
Submission Submission_Of_Text(std::string_view body, const std::string& number, const Phone_Settings& settings);

} // namespace Handset
