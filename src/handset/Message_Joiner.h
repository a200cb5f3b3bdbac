#pragma once

#include "handset/Coding_Scheme.h"
#include "handset/Handset_Message.h"
#include "handset/Submit_Decoder.h"

#include <compare>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Handset {

/// A part as it was shown, with the units it was decoded from and what its header says.
struct Received_Part
{
    Handset_Part m_shown;
    Alphabet m_alphabet = Alphabet::Gsm_7_Bit;
    std::vector<std::uint8_t> m_units;
    bool m_wide_reference = false;
};

/// Puts concatenated messages together (3GPP TS 23.040 9.2.3.24.1). Owned by the phone, used under its lock. Parts may
/// be duplicated and out of order. Some senders use one reference for every message, so a part 1 that differs from the
/// one held begins a new message and drops the old one.
class Message_Joiner
{
public:
    /// Returns the message that this part completes; a message that is not concatenated at once.
    std::optional<Handset_Message> Take(const Received_Part& part);

    void Forget();

    /// How many messages wait for parts: at most 256, beyond which the oldest is dropped.
    std::size_t Waiting() const { return m_sets.size(); }

private:
    struct Key
    {
        std::string m_number;
        int m_reference;
        int m_parts;
        bool m_wide;
        auto operator<=>(const Key&) const = default;
    };
    struct Set
    {
        std::map<int, Received_Part> m_parts;
        unsigned long m_begun = 0;
    };

    void Put_In(Set& set, const Received_Part& part);
    void Give_Up_The_Oldest();

    std::map<Key, Set> m_sets;
    std::map<Key, Set> m_finished; // last complete one of each key, so that a late duplicate begins nothing
    unsigned long m_count = 0;
};

} // namespace Handset
