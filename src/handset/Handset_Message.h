#pragma once

#include <string>

// What a handset received, as it would show it. Plain values.

/// One SMS as it was submitted: a whole message, or one part of a concatenated one.
struct Handset_Part
{
    std::string m_number;        ///< destination as the frame says it: "+" in front for the international type
    std::string m_text;          ///< UTF-8
    std::string m_alphabet;      ///< "GSM 7-bit", "8-bit" or "UCS2"
    int m_class = -1;            ///< message class 0 to 3; 0 is shown at once; -1 none
    int m_part = 1;              ///< from 1
    int m_parts = 1;             ///< 1 for a message that is not concatenated
    int m_reference = -1;        ///< concatenation reference; -1 when there is no concatenation header
    std::string m_smsc;          ///< the centre it goes through: the frame's own, else the phone's
    int m_dcs = 0;               ///< TP-DCS octet
    int m_first_octet = 0;       ///< first octet of the TPDU
    int m_protocol = 0;          ///< TP-PID
    int m_message_reference = 0; ///< what "+CMGS: <mr>" answered
    bool m_text_mode = false;    ///< submitted with +CMGF=1
    std::string m_pdu;           ///< the hexadecimal text as it came, empty in text mode
};

/// A complete message: a single SMS, or all parts of a concatenated one in their order.
struct Handset_Message
{
    std::string m_number;
    std::string m_text; ///< UTF-8; joined before decoding, so that no character is cut in two
    std::string m_alphabet;
    int m_class = -1;
    int m_parts = 1;
    int m_reference = -1;
    std::string m_smsc;
    int m_dcs = 0;
    bool m_text_mode = false;
};
