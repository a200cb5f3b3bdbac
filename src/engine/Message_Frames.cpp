#include "engine/Message_Frames.h"

#include "platform/Utf16_Units.h"

namespace {

using Handset::Alphabet;
using Handset::Alphabet_Choice;

Alphabet_Choice Choice_Of(Job_Alphabet_Choice choice)
{
    switch (choice) {
    case Job_Alphabet_Choice::Gsm:
        return Alphabet_Choice::Gsm_7_Bit;
    case Job_Alphabet_Choice::Unicode:
        return Alphabet_Choice::Ucs2;
    case Job_Alphabet_Choice::Auto:
        break;
    }
    return Alphabet_Choice::Fitting;
}

Alphabet Alphabet_Of(const Job_Row& row)
{
    return row.alphabet == Job_Alphabet::Ucs2 ? Alphabet::Ucs2 : Alphabet::Gsm_7_Bit;
}

Handset::Address Destination_Of(const QString& number)
{
    return Handset::Destination_Of(number.toStdString());
}

std::vector<Handset::Text_Part> Cut(const QString& text, Alphabet alphabet, bool is_text_mode)
{
    return is_text_mode ? Handset::Cut_Text_Apart(Units_Of(text), alphabet)
                        : Handset::Cut_Text(Units_Of(text), alphabet);
}

std::vector<Part_To_Send> Pdu_Parts(const Job_Row& row, const QString& service_centre, bool asks_for_report)
{
    Handset::Submit_Request request;
    request.m_destination = Destination_Of(row.number);
    request.m_service_centre = service_centre.toStdString();
    request.m_text = std::u16string(Units_Of(row.text));
    request.m_choice = row.alphabet == Job_Alphabet::Ucs2 ? Alphabet_Choice::Ucs2 : Alphabet_Choice::Gsm_7_Bit;
    request.m_flash = row.message_class == 0;
    request.m_status_report = asks_for_report;
    request.m_reference = static_cast<std::uint8_t>(row.reference);
    std::vector<Part_To_Send> parts;
    for (const auto& frame : Handset::Encode_Submit(request).m_frames)
        parts.push_back({"AT+CMGS=" + QByteArray::number(static_cast<qulonglong>(frame.m_tpdu_octets)),
                         QByteArray::fromStdString(frame.m_hex)});
    return parts;
}

// In the character set "UCS2" the number is written like the text.
std::vector<Part_To_Send> Text_Parts(const Job_Row& row)
{
    const auto destination = Destination_Of(row.number);
    const QString digits = QString::fromStdString(destination.m_digits);
    const QByteArray command = "AT+CMGS=\"" +
                               QByteArray::fromStdString(Handset::Text_Mode_Body(Units_Of(digits), Alphabet::Ucs2)) +
                               "\"," + (destination.m_international ? "145" : "129");
    std::vector<Part_To_Send> parts;
    for (const auto& part : Cut(row.text, Alphabet_Of(row), true))
        parts.push_back({command, QByteArray::fromStdString(Handset::Text_Mode_Body(
                                      Units_Of(row.text).substr(part.m_first, part.m_length), Alphabet_Of(row)))});
    return parts;
}

} // namespace

Job_Row Frozen_Row(int source_row, const QString& number, const QString& text, Job_Alphabet_Choice choice,
                   bool is_flash, int reference, bool is_text_mode)
{
    Job_Row row;
    row.source_row = source_row;
    row.number = number;
    row.text = text;
    const Alphabet alphabet = Handset::Alphabet_For(Units_Of(text), Choice_Of(choice));
    row.alphabet = alphabet == Alphabet::Ucs2 ? Job_Alphabet::Ucs2 : Job_Alphabet::Gsm;
    row.message_class = is_flash ? 0 : -1;
    row.parts = static_cast<int>(Cut(text, alphabet, is_text_mode).size());
    row.reference = row.parts > 1 && !is_text_mode ? reference & 0xFF : -1;
    if (Handset::Fault_Of(Destination_Of(number)) != Handset::Address_Fault::None) {
        row.skipped = QString::fromLatin1(Invalid_Number);
        row.parts = 0;
    }
    return row;
}

std::vector<Part_To_Send> Parts_Of(const Job_Row& row, const QString& service_centre, bool asks_for_report,
                                   bool is_text_mode)
{
    return is_text_mode ? Text_Parts(row) : Pdu_Parts(row, service_centre, asks_for_report);
}

int Data_Coding_Of(const Job_Row& row)
{
    return Handset::Data_Coding_Of(Alphabet_Of(row), row.message_class == 0);
}
