#include "phone/Phone_Voice.h"

#include "phone/Delivery_Report.h"
#include "phone/Phone_Settings.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Handset {

namespace {

constexpr std::array Status_Lines = {"\r\nRING\r\n", "\r\n+CMTI: \"SM\",1\r\n", "\r\n+CREG: 1\r\n"};

// Neither an answer nor text: control characters, a NUL, invalid UTF-8.
constexpr char Noise_Bytes[] = "\x80\xFE\xC3(\x00\x07~\xED\xA0\x80\x9F\x01}\xFF\r\n\xF8\x88{\x00\xC0\xAF^\x1F\xFF";
constexpr std::string_view Noise(Noise_Bytes, sizeof Noise_Bytes - 1);

// A report for a message that nobody sent.
std::string Delivery_Line()
{
    constexpr std::time_t some_day = 1'795'000'000; // in 2026
    const Frame_Writer frame = Frame_Of({"+15550007777", 251, 0, some_day, some_day}, "+15550009999");
    return "+CDS: " + std::to_string(frame.Tpdu_Octets()) + "\r\n" + frame.Hex();
}

} // namespace

void Phone_Voice::Answer(std::string_view text, std::chrono::milliseconds later)
{
    Answer_As_Given(With_Line_Ends(With_Lines_Between(text)), later);
}

void Phone_Voice::Answer_As_Given(std::string_view bytes, std::chrono::milliseconds later)
{
    Utterance answer{std::string(bytes), m_moods.m_answer_delay_ms + int(later.count())};
    if (m_moods.m_one_answer_behind)
        std::swap(answer, m_kept_back);
    m_said.push_back(std::move(answer));
    if (m_moods.m_unsolicited)
        Say(Status_Line());
}

void Phone_Voice::Make_Noise()
{
    Answer_As_Given(Noise);
}

void Phone_Voice::Prompt()
{
    if (m_moods.m_no_prompt)
        return;
    std::string prompt = m_moods.m_prompt_without_blank ? "\r\n>" : "\r\n> ";
    if (m_moods.m_prompt_with_line_end)
        prompt = "\r\n>\r\n";
    m_said.push_back({With_Line_Ends(With_Lines_Between(prompt)), m_moods.m_late_prompt_ms});
}

std::string Phone_Voice::Status_Line()
{
    return With_Line_Ends(Status_Lines.at(m_status_count++ % Status_Lines.size()));
}

std::vector<Utterance> Phone_Voice::Take_Said()
{
    return std::exchange(m_said, {});
}

std::string Phone_Voice::With_Lines_Between(std::string_view text)
{
    const auto& lines = m_moods.m_between_lines;
    std::string said;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool begins_a_line = text[at] != '\r' && text[at] != '\n' && (at == 0 || text[at - 1] == '\n');
        if (begins_a_line && !lines.empty())
            said += lines[m_between_count++ % lines.size()] + "\r\n\r\n";
        said += text[at];
    }
    return said;
}

std::string Phone_Voice::With_Line_Ends(std::string_view text) const
{
    std::string said(text);
    if (m_moods.m_cr_only)
        std::erase(said, '\n');
    return said;
}

std::vector<std::string> Unsolicited_Lines(std::string_view names)
{
    static const std::vector<std::pair<std::string_view, std::string>> known = {
        {"ring", "RING"},     {"cmti", "+CMTI: \"SM\",1"}, {"creg", "+CREG: 1,\"1A2B\",\"C3D4\""},
        {"rssi", "^RSSI:18"}, {"cds", Delivery_Line()},
    };
    std::vector<std::string> lines;
    for (const std::string_view name : Arguments_Of(names == "all" ? "ring,cmti,creg,rssi,cds" : names)) {
        const auto row = std::find_if(known.begin(), known.end(), [&](const auto& one) { return one.first == name; });
        if (row == known.end())
            return {};
        lines.push_back(row->second);
    }
    return lines;
}

} // namespace Handset
