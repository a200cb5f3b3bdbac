#include "handset/Message_Joiner.h"

#include <algorithm>

namespace Handset {

namespace {

constexpr std::size_t Most_Waiting = 256;

Handset_Message Message_Of(const Handset_Part& part)
{
    Handset_Message message;
    message.m_number = part.m_number;
    message.m_text = part.m_text;
    message.m_alphabet = part.m_alphabet;
    message.m_class = part.m_class;
    message.m_parts = part.m_parts;
    message.m_reference = part.m_reference;
    message.m_smsc = part.m_smsc;
    message.m_dcs = part.m_dcs;
    message.m_text_mode = part.m_text_mode;
    return message;
}

bool Is_Double(const std::map<int, Received_Part>& parts, const Received_Part& part)
{
    const auto held = parts.find(part.m_shown.m_part);
    return held != parts.end() && held->second.m_units == part.m_units;
}

// Joins units if the parts share an alphabet, and texts otherwise.
std::string Joined_Text(const std::map<int, Received_Part>& parts)
{
    const Alphabet alphabet = parts.begin()->second.m_alphabet;
    const bool is_of_one =
        std::all_of(parts.begin(), parts.end(), [&](const auto& entry) { return entry.second.m_alphabet == alphabet; });
    std::vector<std::uint8_t> units;
    std::string text;
    for (const auto& [number, part] : parts) {
        units.insert(units.end(), part.m_units.begin(), part.m_units.end());
        text += part.m_shown.m_text;
    }
    return is_of_one ? Shown_Text(alphabet, units) : text;
}

} // namespace

std::optional<Handset_Message> Message_Joiner::Take(const Received_Part& part)
{
    if (part.m_shown.m_reference < 0 || part.m_shown.m_parts == 1)
        return Message_Of(part.m_shown);

    const Key key{part.m_shown.m_number, part.m_shown.m_reference, part.m_shown.m_parts, part.m_wide_reference};
    const auto finished = m_finished.find(key);
    if (finished != m_finished.end()) {
        if (part.m_shown.m_part != 1 && m_sets.find(key) == m_sets.end() && Is_Double(finished->second.m_parts, part))
            return std::nullopt;
        m_finished.erase(finished);
    }

    Set& set = m_sets[key];
    if (set.m_parts.empty())
        set.m_begun = ++m_count;
    Put_In(set, part);
    if (set.m_parts.size() < std::size_t(key.m_parts)) {
        Give_Up_The_Oldest();
        return std::nullopt;
    }
    Handset_Message message = Message_Of(set.m_parts.begin()->second.m_shown);
    message.m_text = Joined_Text(set.m_parts);
    if (m_finished.size() >= Most_Waiting)
        m_finished.clear();
    m_finished[key] = std::move(set);
    m_sets.erase(key);
    return message;
}

void Message_Joiner::Put_In(Set& set, const Received_Part& part)
{
    const int number = part.m_shown.m_part;
    if (number == 1 && set.m_parts.contains(1) && !Is_Double(set.m_parts, part))
        set.m_parts.clear();
    set.m_parts[number] = part;
}

void Message_Joiner::Give_Up_The_Oldest()
{
    if (m_sets.size() <= Most_Waiting)
        return;
    m_sets.erase(std::min_element(m_sets.begin(), m_sets.end(),
                                  [](const auto& a, const auto& b) { return a.second.m_begun < b.second.m_begun; }));
}

void Message_Joiner::Forget()
{
    m_sets.clear();
    m_finished.clear();
}

} // namespace Handset
