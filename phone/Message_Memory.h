#pragma once

#include "phone/Delivery_Report.h"
#include "phone/Phone_Moods.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace Handset {

/// Message status (27.005 3.1 <stat>).
enum class Message_Status
{
    Unread,
    Read,
    Unsent,
    Sent
};

struct Stored_Message
{
    Message_Status m_status = Message_Status::Unsent;
    std::string m_pdu;       ///< with its service-centre part
    int m_tpdu_octets = 0;   ///< what PDU mode calls its length
    std::string m_text_head; ///< text mode: what stands behind <stat>
    std::string m_text;      ///< text mode: the line below; a status report has none
};

/// The phone's message storages and the commands that deal with them (3GPP TS 27.005 3.2.2 and 3.4). Answers are whole:
/// lines and OK, or a +CMS ERROR line. Owned by the phone, used under its lock.
class Message_Memory
{
public:
    Message_Memory();

    void Set_Full(bool full); ///< fills the SIM's storage with received messages, or takes those out again
    void Choose_As_At_Start();

    /// Whether the storage of received messages has no room, so that the network's are refused.
    bool Is_Full() const;

    /// The place, from 1; nothing when there is no room.
    std::optional<int> Put(const std::string& storage, Stored_Message message);
    std::optional<int> Write(Stored_Message message) { return Put(m_chosen[1], std::move(message)); }
    std::optional<int> Put(const Delivery_Report& report, const std::string& centre);

    std::string Choose(std::string_view argument);          ///< +CPMS=
    std::string List(std::string_view argument, bool text); ///< +CMGL, +CMGL=
    std::string Read(std::string_view argument, bool text); ///< +CMGR=
    std::string Delete(std::string_view argument);          ///< +CMGD=

    /// What "{storages}" and "{places}" stand for.
    std::optional<std::string> Value(std::string_view name) const;

private:
    struct Storage
    {
        int m_size = 0;
        std::map<int, Stored_Message> m_messages;
    };
    static std::string Head(const Stored_Message& message, bool text);
    static std::string Body(const Stored_Message& message, bool text);
    std::string Counts_Of(const std::string& name) const;
    Storage& Chosen() { return m_storages[m_chosen[0]]; }

    std::map<std::string, Storage> m_storages;
    std::array<std::string, 3> m_chosen; // to read and delete, to write, for received ones
    bool m_is_filled = false;
};

} // namespace Handset
