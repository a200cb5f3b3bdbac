#include "fuzz/Fuzz_Input.h"
#include "phone/Json_Line.h"
#include "phone/Phone_Mind.h"

#include <QJsonDocument>
#include <QJsonObject>

// The virtual phone hears any bytes, in one write and byte by byte: it makes the same of both, and what it prints of
// them is one line of JSON each.
namespace {

constexpr qsizetype Long_Talk = 32 * 1024;

Phone_Moods Moods_Of(unsigned first, unsigned second)
{
    Phone_Moods moods;
    moods.m_no_echo = (first & 1) != 0;
    moods.m_echo_only = (first & 2) != 0;
    moods.m_silent = (first & 4) != 0;
    moods.m_pdu_only = (first & 8) != 0;
    moods.m_text_only = (first & 16) != 0;
    moods.m_no_smsc = (first & 32) != 0;
    moods.m_smsc_in_ucs2 = (first & 64) != 0;
    moods.m_undefined_identity = (first & 128) != 0;
    moods.m_no_prompt = (second & 1) != 0;
    moods.m_unsolicited = (second & 2) != 0;
    moods.m_cr_only = (second & 4) != 0;
    moods.m_garbage = (second & 8) != 0;
    if ((second & 16) != 0)
        moods.m_cms_error_at[1] = 500;
    moods.m_hang_up_at = (second & 32) != 0 ? 2 : 0;
    moods.m_hang_up_in_body_at = (second & 64) != 0 ? 1 : 0;
    moods.m_stop_reading_at = (second & 128) != 0 ? 2 : 0;
    return moods;
}

// Everything that can be told from outside.
struct Account
{
    std::string said;
    std::string taken;
    std::vector<std::string> lines;
    std::vector<std::string> printed;
    bool hangs_up = false;
    bool operator==(const Account&) const = default;
};

void Check_Json(const std::string& printed, const std::string& text)
{
    QJsonParseError error;
    const QJsonDocument json = QJsonDocument::fromJson(QByteArray::fromStdString(printed), &error);
    MUST(error.error == QJsonParseError::NoError && json.isObject());
    MUST(json.object()[QStringLiteral("text")].toString() == QString::fromStdString(text));
    MUST(printed.find_first_of("\r\n") == std::string::npos);
}

void Note(Account& account, const Handset::Happenings& happenings)
{
    for (const Handset::Utterance& said : happenings.m_said)
        account.said += said.m_bytes;
    account.taken += happenings.m_bytes;
    account.lines.insert(account.lines.end(), happenings.m_lines.begin(), happenings.m_lines.end());
    account.hangs_up = account.hangs_up || happenings.m_hangs_up;
    for (const Handset::Arrival& arrival : happenings.m_arrivals) {
        account.printed.push_back(Handset::Json_Line(arrival.m_part));
        MUST(Is_Utf8(arrival.m_part.m_text));
        Check_Json(account.printed.back(), arrival.m_part.m_text);
        if (!arrival.m_message)
            continue;
        account.printed.push_back(Handset::Json_Line(*arrival.m_message));
        MUST(Is_Utf8(arrival.m_message->m_text));
        Check_Json(account.printed.back(), arrival.m_message->m_text);
    }
}

Account Account_Of(const Phone_Moods& moods, const std::string& bytes, std::size_t in_a_write)
{
    Handset::Phone_Mind mind(moods);
    Account account;
    for (std::size_t at = 0; at < bytes.size() && !account.hangs_up; at += in_a_write) {
        mind.Take(std::string_view(bytes).substr(at, in_a_write));
        Note(account, mind.Take_Happenings());
        if (mind.Has_Stopped_Reading())
            break;
    }
    MUST(account.taken.size() <= bytes.size() && bytes.starts_with(account.taken));
    return account;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    const unsigned first = input.Octet();
    const Phone_Moods moods = Moods_Of(first, input.Octet());
    const std::string bytes = input.Document(Long_Talk).toStdString();
    const Account account = Account_Of(moods, bytes, std::max<std::size_t>(1, bytes.size()));
    if (bytes.size() < std::size_t{Long_Talk} / 8)
        MUST(account == Account_Of(moods, bytes, 1));
    return 0;
}
