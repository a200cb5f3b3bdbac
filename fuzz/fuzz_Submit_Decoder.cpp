#include "fuzz/Fuzz_Input.h"
#include "handset/Message_Joiner.h"
#include "handset/Submit_Decoder.h"
#include "handset/Unicode_Text.h"

#include <QByteArray>
#include <span>

// Frames of any octets, as a phone gets them, and the joining of their parts.
namespace {

constexpr std::size_t Most_Waiting = 256;

void Check_Frame(const Handset::Submit_Frame& frame, std::size_t octets)
{
    MUST(frame.m_centre_octets + frame.m_tpdu_octets == octets);
    const bool is_packed = frame.m_coding.m_alphabet == Handset::Alphabet::Gsm_7_Bit && !frame.m_coding.m_compressed;
    MUST(frame.m_units.size() <= (is_packed ? 160U : 140U));
    MUST(Is_Utf8(frame.Text()) && Is_Utf8(frame.m_number) && Is_Utf8(frame.m_smsc));
    MUST(!frame.m_concatenation || (frame.m_has_header && frame.m_concatenation->m_part >= 1 &&
                                    frame.m_concatenation->m_part <= frame.m_concatenation->m_parts));
}

Handset::Received_Part Part_Of(const Handset::Submit_Frame& frame)
{
    Handset::Received_Part part;
    part.m_shown.m_number = frame.m_number;
    part.m_shown.m_text = frame.Text();
    part.m_alphabet = frame.m_coding.m_alphabet;
    part.m_units = frame.m_units;
    if (frame.m_concatenation) {
        part.m_shown.m_part = frame.m_concatenation->m_part;
        part.m_shown.m_parts = frame.m_concatenation->m_parts;
        part.m_shown.m_reference = frame.m_concatenation->m_reference;
        part.m_wide_reference = frame.m_concatenation->m_wide;
    }
    return part;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    Handset::Message_Joiner joiner;
    while (!input.Is_At_End()) {
        // As octets where it is none of hexadecimal digits, which keep a reader's eye on the seeds.
        const QByteArray piece = input.Piece();
        Handset::Submit_Result result = Handset::Decode_Submit(piece.toStdString());
        if (!Handset::Octets_Of_Hex(piece.toStdString())) {
            MUST(!result.m_frame);
            result = Handset::Decode_Submit(piece.toHex().toStdString());
        }
        MUST(result.m_frame.has_value() == result.m_reason.empty());
        if (!result.m_frame)
            continue;
        Check_Frame(*result.m_frame, result.m_frame->m_centre_octets + result.m_frame->m_tpdu_octets);
        const auto message = joiner.Take(Part_Of(*result.m_frame));
        MUST(joiner.Waiting() <= Most_Waiting);
        MUST(!message || Is_Utf8(message->m_text));
    }
    return 0;
}
