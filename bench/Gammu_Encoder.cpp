#include "Gammu_Encoder.h"

#include <cstring>
#include <gammu.h>
#include <memory>
#include <stdexcept>

namespace {

constexpr std::size_t Longest_Text = 2000;
constexpr int Longest_Frame = 400;

struct Line
{
    unsigned char octets[Longest_Frame];
    char digits[2 * Longest_Frame + 1];
};

Line The_Line;

void Must_Succeed(GSM_Error error)
{
    if (error != ERR_NONE)
        throw std::runtime_error(GSM_ErrorString(error));
}

GSM_Coding_Type Coding(Gammu_Alphabet alphabet)
{
    return alphabet == Gammu_Alphabet::Ucs2 ? SMS_Coding_Unicode_No_Compression : SMS_Coding_Default_No_Compression;
}

void Address(GSM_SMSMessage& message, const char* number, const char* centre)
{
    message.PDU = SMS_Submit;
    message.SMSC.Location = 0;
    message.SMSC.Validity.Format = SMS_Validity_RelativeFormat;
    message.SMSC.Validity.Relative = SMS_VALID_Max_Time;
    EncodeUnicode(message.Number, number, std::strlen(number));
    EncodeUnicode(message.SMSC.Number, centre, std::strlen(centre));
}

// The centre, the fields and the user data, as its modem driver puts them on the line.
const char* Digits_Of(GSM_SMSMessage& message)
{
    unsigned char fields[1000];
    int length = 0;
    Must_Succeed(GSM_EncodeSMSFrame(nullptr, &message, fields, PHONE_SMSSubmit, &length, TRUE));
    // The frame begins with room of a fixed size for the centre and for the destination: the driver draws them
    // together.
    const int centre = fields[PHONE_SMSSubmit.SMSCNumber] + 1;
    const int units = fields[PHONE_SMSSubmit.TPUDL];
    const int user_data = (fields[PHONE_SMSSubmit.TPDCS] & 0x0C) == 0 ? (units * 7 + 7) / 8 : units;
    const int destination = (fields[PHONE_SMSSubmit.Number] + 1) / 2 + 1;
    unsigned char* at = The_Line.octets;
    const auto put = [&at](const unsigned char* octets, int count) {
        std::memcpy(at, octets, static_cast<std::size_t>(count));
        at += count;
    };
    put(fields + PHONE_SMSSubmit.SMSCNumber, centre);
    put(fields + PHONE_SMSSubmit.firstbyte, 1);
    put(fields + PHONE_SMSSubmit.TPMR, 1);
    put(fields + PHONE_SMSSubmit.Number, destination + 1);
    put(fields + PHONE_SMSSubmit.TPPID, 1);
    put(fields + PHONE_SMSSubmit.TPDCS, 1);
    put(fields + PHONE_SMSSubmit.TPVP, 1);
    put(fields + PHONE_SMSSubmit.TPUDL, 1);
    put(fields + PHONE_SMSSubmit.Text, user_data);
    EncodeHexBin(The_Line.digits, The_Line.octets, static_cast<std::size_t>(at - The_Line.octets));
    return The_Line.digits;
}

void Fill(GSM_SMSMessage& message, const std::string& utf8, const char* number, const char* centre,
          Gammu_Alphabet alphabet)
{
    std::memset(&message, 0, sizeof(message));
    DecodeUTF8(message.Text, utf8.c_str(), utf8.size());
    Address(message, number, centre);
    message.UDH.Type = UDH_NoUDH;
    message.Coding = Coding(alphabet);
    message.Class = -1;
    message.Length = static_cast<int>(UnicodeLength(message.Text));
}

} // namespace

const char* Gammu_Single(const std::string& utf8, const char* number, const char* centre, Gammu_Alphabet alphabet)
{
    static GSM_SMSMessage message;
    Fill(message, utf8, number, centre, alphabet);
    return Digits_Of(message);
}

struct Gammu_Prepared::Message
{
    GSM_SMSMessage message;
};

Gammu_Prepared::Gammu_Prepared(const std::string& utf8, const char* number, const char* centre, Gammu_Alphabet alphabet)
    : m_message(new Message)
{
    Fill(m_message->message, utf8, number, centre, alphabet);
}

Gammu_Prepared::~Gammu_Prepared()
{
    delete m_message;
}

const char* Gammu_Prepared::Encode()
{
    return Digits_Of(m_message->message);
}

namespace {

template <typename Take>
int For_Each_Part(const std::string& utf8, const char* number, const char* centre, Gammu_Alphabet alphabet,
                  const Take& take)
{
    static const auto parts = std::make_unique<GSM_MultiSMSMessage>();
    static const auto info = std::make_unique<GSM_MultiPartSMSInfo>();
    static unsigned char text[2 * (Longest_Text + 1)];
    DecodeUTF8(text, utf8.c_str(), utf8.size());
    GSM_ClearMultiPartSMSInfo(info.get());
    info->Class = -1;
    info->EntriesNum = 1;
    info->UnicodeCoding = alphabet == Gammu_Alphabet::Ucs2 ? TRUE : FALSE;
    info->Entries[0].ID = SMS_ConcatenatedTextLong16bit;
    info->Entries[0].Buffer = text;
    Must_Succeed(GSM_EncodeMultiPartSMS(nullptr, info.get(), parts.get()));
    for (int part = 0; part < parts->Number; ++part) {
        Address(parts->SMS[part], number, centre);
        take(Digits_Of(parts->SMS[part]));
    }
    return parts->Number;
}

} // namespace

int Gammu_Parts(const std::string& utf8, const char* number, const char* centre, Gammu_Alphabet alphabet)
{
    return For_Each_Part(utf8, number, centre, alphabet, [](const char*) {});
}

std::vector<std::string> Gammu_Part_Lines(const std::string& utf8, const char* number, const char* centre,
                                          Gammu_Alphabet alphabet)
{
    std::vector<std::string> lines;
    For_Each_Part(utf8, number, centre, alphabet, [&lines](const char* line) { lines.emplace_back(line); });
    return lines;
}
