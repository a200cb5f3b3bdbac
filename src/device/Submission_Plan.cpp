#include "device/Submission_Plan.h"

#include "device/Submission_Rules.h"

namespace {

Pdu_Frame Measured(const QString& pdu, const Outgoing_Message& message)
{
    if (pdu.isEmpty())
        return {};
    return {pdu.toUtf8(), Submit_Length(pdu, message.m_smsc)};
}

Submission_Plan Plan_Parts(const Outgoing_Message& message, const PDU::Report& report)
{
    const PDU encoder(report);
    const int parts = Pdu_Part_Count(message.m_text.size(), message.m_is_unicode);
    Submission_Plan plan{false, parts, {}};
    for (int part = 1; part <= parts; ++part) {
        const QString pdu = encoder.Encode_UDH_PDU(message.m_text, message.m_number, message.m_smsc, 0, true,
                                                   message.m_is_flash, parts, part, message.m_is_unicode);
        plan.m_frames.push_back(Measured(pdu, message));
        if (!plan.m_frames.back().Is_Made())
            break;
    }
    return plan;
}

} // namespace

std::optional<Pdu_Frame> Single_Frame(const Outgoing_Message& message, const PDU::Report& report)
{
    if (!May_Be_Single(message.m_text.size(), message.m_is_unicode))
        return std::nullopt;
    const QString pdu = PDU(report).EncodePDU(message.m_text, message.m_number, message.m_smsc, 0, true,
                                              message.m_is_flash, message.m_is_unicode);
    const Pdu_Frame frame = Measured(pdu, message);
    if (frame.Is_Made() && frame.m_length >= Too_Long_For_One)
        return std::nullopt;
    return frame;
}

int Parts_In_Pdu_Mode(const Outgoing_Message& message)
{
    return Single_Frame(message, {}) ? 1 : Pdu_Part_Count(message.m_text.size(), message.m_is_unicode);
}

Submission_Plan Plan_Pdu(const Outgoing_Message& message, const PDU::Report& report)
{
    if (const auto single = Single_Frame(message, report))
        return {true, 1, {*single}};
    return Plan_Parts(message, report);
}
