#include "phone/Message_Memory.h"

#include "phone/Phone_Settings.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Handset {

namespace {

constexpr const char* Ok = "\r\nOK\r\n";
constexpr const char* Wrong_Place = "\r\n+CMS ERROR: 321\r\n";
constexpr const char* Not_Allowed = "\r\n+CMS ERROR: 302\r\n";
constexpr const char* Reports = "SR";
constexpr int All = 4; // of +CMGL and of the flag of +CMGD
constexpr std::array Status_Names = {"REC UNREAD", "REC READ", "STO UNSENT", "STO SENT", "ALL"};

std::string With_Ok(const std::string& line)
{
    return "\r\n" + line + "\r\n" + Ok;
}

// A number in PDU mode, a name in quotes in text mode (27.005 3.4.2 and 4.1); unread ones where nothing is said.
std::optional<int> Status_Asked_For(std::string_view argument, bool text)
{
    if (argument.empty())
        return 0;
    if (!text) {
        const auto number = Number_Of(argument);
        return number && *number <= All ? number : std::nullopt;
    }
    const auto name = std::find(Status_Names.begin(), Status_Names.end(), Unquoted(argument).value_or(""));
    return name == Status_Names.end() ? std::nullopt : std::optional(int(name - Status_Names.begin()));
}

// Flags 1 to 4 of +CMGD (27.005 3.5.4) take read ones, and sent, unsent and unread ones with them.
bool Is_Taken_By(int flag, Message_Status status)
{
    constexpr std::array order = {Message_Status::Read, Message_Status::Sent, Message_Status::Unsent,
                                  Message_Status::Unread};
    const auto last = order.begin() + flag;
    return std::find(order.begin(), last, status) != last;
}

// "Hi" from +15550001234.
Stored_Message Received_Message()
{
    return {Message_Status::Unread, "00040B915155001032F400006211220120000002C834", 21,
            "\"+15550001234\",,\"26/11/22,10:02:00+00\"", "Hi"};
}

} // namespace

Message_Memory::Message_Memory()
{
    m_storages["SM"].m_size = 20;
    m_storages["ME"].m_size = 50;
    m_storages[Reports].m_size = 20;
    Choose_As_At_Start();
}

void Message_Memory::Choose_As_At_Start()
{
    m_chosen = {"SM", "SM", "SM"};
}

void Message_Memory::Set_Full(bool full)
{
    if (full == m_is_filled)
        return;
    m_is_filled = full;
    Storage& card = m_storages["SM"];
    if (full) {
        while (Put("SM", Received_Message())) {
        }
        return;
    }
    std::erase_if(card.m_messages, [](const auto& row) { return row.second.m_pdu == Received_Message().m_pdu; });
}

bool Message_Memory::Is_Full() const
{
    const Storage& storage = m_storages.at(m_chosen[2]);
    return int(storage.m_messages.size()) >= storage.m_size;
}

std::optional<int> Message_Memory::Put(const std::string& storage_name, Stored_Message message)
{
    Storage& storage = m_storages[storage_name];
    for (int place = 1; place <= storage.m_size; ++place) {
        if (storage.m_messages.try_emplace(place, message).second)
            return place;
    }
    return std::nullopt;
}

std::optional<int> Message_Memory::Put(const Delivery_Report& report, const std::string& centre)
{
    const Frame_Writer frame = Frame_Of(report, centre);
    return Put(Reports, {Message_Status::Unread, frame.Hex(), int(frame.Tpdu_Octets()), Text_Line_Of(report), {}});
}

// Messages are not written to, nor received in, the storage of reports.
std::string Message_Memory::Choose(std::string_view argument)
{
    const auto names = Arguments_Of(argument);
    auto chosen = m_chosen;
    if (names.size() > chosen.size())
        return Not_Allowed;
    for (std::size_t at = 0; at < names.size(); ++at) {
        const std::string name(Unquoted(names[at]).value_or(names[at]));
        if (!m_storages.contains(name) || (at > 0 && name == Reports))
            return Not_Allowed;
        chosen[at] = name;
    }
    m_chosen = chosen;
    return With_Ok("+CPMS: " + Counts_Of(m_chosen[0]) + "," + Counts_Of(m_chosen[1]) + "," + Counts_Of(m_chosen[2]));
}

std::string Message_Memory::List(std::string_view argument, bool text)
{
    const auto status = Status_Asked_For(argument, text);
    if (!status)
        return Not_Allowed;
    std::string answer;
    for (auto& [place, message] : Chosen().m_messages) {
        if (*status != All && int(message.m_status) != *status)
            continue;
        answer += "+CMGL: " + std::to_string(place) + "," + Head(message, text) + "\r\n" + Body(message, text);
        if (message.m_status == Message_Status::Unread)
            message.m_status = Message_Status::Read;
    }
    return answer.empty() ? Ok : "\r\n" + answer + Ok;
}

std::string Message_Memory::Read(std::string_view argument, bool text)
{
    const auto found = Chosen().m_messages.find(Number_Of(argument).value_or(0));
    if (found == Chosen().m_messages.end())
        return Wrong_Place;
    Stored_Message& message = found->second;
    std::string answer = "\r\n+CMGR: " + Head(message, text) + "\r\n" + Body(message, text) + Ok;
    if (message.m_status == Message_Status::Unread)
        message.m_status = Message_Status::Read;
    return answer;
}

std::string Message_Memory::Delete(std::string_view argument)
{
    const auto arguments = Arguments_Of(argument);
    const int place = Number_Of(arguments.front()).value_or(0);
    const auto flag = arguments.size() == 2 ? Number_Of(arguments[1]) : std::optional(0);
    if (arguments.size() > 2 || !flag || *flag > All || (*flag == 0 && (place < 1 || place > Chosen().m_size)))
        return Wrong_Place;
    if (*flag == 0)
        Chosen().m_messages.erase(place);
    else
        std::erase_if(Chosen().m_messages, [&](const auto& row) { return Is_Taken_By(*flag, row.second.m_status); });
    return Ok;
}

std::optional<std::string> Message_Memory::Value(std::string_view name) const
{
    if (name == "storages") {
        std::string list;
        for (const auto& chosen : m_chosen)
            list += (list.empty() ? "\"" : ",\"") + chosen + "\"," + Counts_Of(chosen);
        return list;
    }
    if (name == "places") {
        std::string list;
        for (const auto& [place, message] : m_storages.at(m_chosen[0]).m_messages)
            list += (list.empty() ? "" : ",") + std::to_string(place);
        return list;
    }
    return std::nullopt;
}

std::string Message_Memory::Head(const Stored_Message& message, bool text)
{
    if (text)
        return std::string("\"") + Status_Names.at(std::size_t(message.m_status)) + "\"," + message.m_text_head;
    return std::to_string(int(message.m_status)) + ",," + std::to_string(message.m_tpdu_octets);
}

std::string Message_Memory::Body(const Stored_Message& message, bool text)
{
    const std::string& body = text ? message.m_text : message.m_pdu;
    return body.empty() ? std::string() : body + "\r\n";
}

std::string Message_Memory::Counts_Of(const std::string& name) const
{
    const Storage& storage = m_storages.at(name);
    return std::to_string(storage.m_messages.size()) + "," + std::to_string(storage.m_size);
}

} // namespace Handset
