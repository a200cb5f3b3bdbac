#pragma once

#include "pdu/PDU.h"

#include <optional>
#include <vector>

// What a message becomes in PDU mode, worked out before any of it is written. Any thread.

struct Outgoing_Message
{
    QString m_text;
    QString m_number;
    QString m_smsc; ///< the service centre; empty for the device's own
    bool m_is_flash = false;
    bool m_is_unicode = false;
};

/// One SMS-SUBMIT with its service-centre part.
struct Pdu_Frame
{
    QByteArray m_digits; ///< hexadecimal, as the line takes it; empty where the encoder could not make the frame
    int m_length = 0;    ///< the octets that AT+CMGS announces

    bool Is_Made() const { return !m_digits.isEmpty(); }
};

/// The frames of a message in their order, one for each part; a frame that could not be made is the last.
struct Submission_Plan
{
    bool m_is_single = false;
    int m_parts = 1;
    std::vector<Pdu_Frame> m_frames;
};

/// The frame of a message that goes out as a single one; nothing where it takes parts. report takes the encoder's
/// diagnostics.
std::optional<Pdu_Frame> Single_Frame(const Outgoing_Message& message, const PDU::Report& report);

/// How many parts it takes: those of its plan, which is made only as far as that needs.
int Parts_In_Pdu_Mode(const Outgoing_Message& message);

Submission_Plan Plan_Pdu(const Outgoing_Message& message, const PDU::Report& report);
