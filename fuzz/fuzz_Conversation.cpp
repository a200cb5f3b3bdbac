#include "device/MFCSMS.h"
#include "fuzz/Fuzz_Input.h"
#include "fuzz/Scripted_Line.h"
#include "list/Number_Rules.h"
#include "phone/Phone_Mind.h"

#include <algorithm>
#include <vector>

// The program's session sends any message to the virtual phone, in any of the manners that lose nothing; what the phone
// has then is what was sent.
namespace {

constexpr qsizetype In_A_Single_7_Bit = 160;
constexpr qsizetype In_A_Single_Ucs2 = 70;
constexpr qsizetype In_A_7_Bit_Part = 152;

struct Message
{
    QString number;
    QString text;
    bool is_flash;
    bool is_unicode;
    bool is_text_mode;
};

Phone_Moods Moods_Of(unsigned choices)
{
    Phone_Moods moods;
    moods.m_no_echo = (choices & 1) != 0;
    moods.m_prompt_without_blank = (choices & 2) != 0;
    moods.m_unsolicited = (choices & 4) != 0;
    moods.m_cr_only = (choices & 8) != 0;
    moods.m_no_prompt = (choices & 16) != 0;
    return moods;
}

class Phone_On_The_Line
{
public:
    explicit Phone_On_The_Line(const Phone_Moods& moods) : m_mind(moods) {}

    void Hear(Scripted_Line& line, const std::string& bytes)
    {
        m_mind.Take(bytes);
        const Handset::Happenings happenings = m_mind.Take_Happenings();
        std::string said;
        for (const Handset::Utterance& utterance : happenings.m_said)
            said += utterance.m_bytes;
        line.Say(said);
        for (const Handset::Arrival& arrival : happenings.m_arrivals)
            if (arrival.m_message)
                m_messages.push_back(*arrival.m_message);
    }

    const std::vector<Handset_Message>& Messages() const { return m_messages; }

private:
    Handset::Phone_Mind m_mind;
    std::vector<Handset_Message> m_messages;
};

bool Is_Plain(QChar character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z') ||
           (character >= u'0' && character <= u'9') || character == u' ' || character == u'.' || character == u'\n';
}

// What the phone is to show, all messages one behind the other.
QString Expected_Text(const Message& message)
{
    const QString& text = message.text;
    if (message.is_text_mode && message.is_unicode) {
        QString shown; // a pair that stands across the end of a part goes out as two halves
        for (qsizetype first = 0; first == 0 || first < text.size(); first += In_A_Single_Ucs2)
            shown += With_Whole_Pairs(text.mid(first, In_A_Single_Ucs2));
        return shown;
    }
    if (message.is_unicode)
        return With_Whole_Pairs(text);
    const bool is_one_short = text.size() % In_A_7_Bit_Part % 8 == 7;
    const bool is_long = !message.is_text_mode && text.size() > In_A_Single_7_Bit;
    return is_long && is_one_short ? text + u'@' : text;
}

void Send(const Message& message, const Phone_Moods& moods)
{
    Phone_On_The_Line phone(moods);
    Scripted_Line line([&](Scripted_Line& line_in_use, const std::string& heard) { phone.Hear(line_in_use, heard); });
    MFCSMS session(line);
    line.Put_Under(session);
    MUST(session.PDU_or_Text_SMS(-1) == 1);
    MUST(session.Check_Msg_Sending_Supported(-1));
    if (message.is_text_mode) {
        MUST(session.Prepare_Modem_For_Text_SMS(-1));
        MUST(session.Send_Text_SMS(-1, message.number, message.text, {}, message.is_flash, message.is_unicode));
    } else {
        MUST(session.Prepare_Modem_For_PDU_SMS(-1));
        MUST(session.Send_PDU_SMS(-1, message.number, message.text, {}, message.is_flash, message.is_unicode));
    }

    QString shown;
    for (const Handset_Message& arrived : phone.Messages()) {
        shown += QString::fromStdString(arrived.m_text);
        MUST(arrived.m_class == (message.is_flash ? 0 : -1));
        // In text mode with hexadecimal on, digits that could be hexadecimal are read as such.
        MUST((message.is_text_mode && message.is_unicode) || arrived.m_number == message.number.toStdString());
    }
    // Escaped characters count as one where a message is measured and as two on the air: with them it can come out too
    // long for a phone, which then refuses it.
    const bool is_plain = std::all_of(message.text.begin(), message.text.end(), Is_Plain);
    if (message.is_unicode || is_plain)
        MUST(!phone.Messages().empty() && shown == Expected_Text(message));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    const unsigned choices = input.Octet();
    const Phone_Moods moods = Moods_Of(input.Octet());
    Message message{
        Number_Rules::Normalised_Number(input.Text()), {}, (choices & 1) != 0, (choices & 2) != 0, (choices & 4) != 0};
    if (message.number.isEmpty())
        return 0;
    message.text = Fuzz_Input::Text_Of(input.Rest()).repeated((choices & 8) != 0 ? 20 : 1).left(1600);
    Send(message, moods);
    return 0;
}
