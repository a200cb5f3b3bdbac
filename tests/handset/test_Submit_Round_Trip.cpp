#include "handset/Gsm_Alphabet.h"
#include "handset/Message_Joiner.h"
#include "handset/Submit_Decoder.h"
#include "handset/Submit_Encoder.h"
#include "handset/Utf16.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

using namespace Handset;

namespace {

const std::u16string Smile = u"\U0001F600";

// What the handset shows of one frame that has arrived.
Received_Part Received(const Submit_Frame& frame)
{
    Received_Part part;
    part.m_shown.m_number = frame.m_number;
    part.m_shown.m_text = frame.Text();
    part.m_alphabet = frame.m_coding.m_alphabet;
    part.m_units = frame.m_units;
    if (frame.m_concatenation) {
        part.m_shown.m_reference = frame.m_concatenation->m_reference;
        part.m_shown.m_part = frame.m_concatenation->m_part;
        part.m_shown.m_parts = frame.m_concatenation->m_parts;
    }
    return part;
}

// Sends the message to a handset, looks at every frame on its way, and returns what the handset shows of the whole.
std::string Shown(const Submit_Request& request)
{
    const auto sent = Encode_Submit(request);
    EXPECT_EQ(sent.m_frames.size(), sent.m_parts.size());
    Message_Joiner joiner;
    std::string shown;
    for (std::size_t i = 0; i < sent.m_frames.size(); ++i) {
        const auto arrived = Decode_Submit(sent.m_frames[i].m_hex);
        EXPECT_EQ(arrived.m_reason, "");
        if (!arrived.m_frame)
            return "no frame";
        const Submit_Frame& frame = *arrived.m_frame;
        EXPECT_EQ(frame.m_tpdu_octets, sent.m_frames[i].m_tpdu_octets);
        EXPECT_EQ(frame.m_concatenation.has_value(), sent.m_frames.size() > 1);
        if (frame.m_concatenation) {
            EXPECT_EQ(frame.m_concatenation->m_reference, request.m_reference);
            EXPECT_EQ(frame.m_concatenation->m_part, int(i) + 1);
        }
        const Text_Part& part = sent.m_parts[i];
        const auto stretch = std::u16string_view(request.m_text).substr(part.m_first, part.m_length);
        EXPECT_EQ(frame.Text(), Utf8_Of(Written_Text(stretch, frame.m_coding.m_alphabet))) << "part " << i + 1;
        if (const auto message = joiner.Take(Received(frame)))
            shown += message->m_text;
    }
    return shown;
}

std::string Shown(const std::u16string& text)
{
    Submit_Request request;
    request.m_destination = Destination_Of("00447700900102");
    request.m_text = text;
    request.m_reference = std::uint8_t(text.size());
    return Shown(request);
}

std::u16string Characters_Of_Both_Tables()
{
    std::u16string all;
    for (std::size_t code = 0; code < Gsm_Default_Table.size(); ++code) {
        if (code != Gsm_Escape)
            all += char16_t(Gsm_Default_Table.at(code));
    }
    for (const auto& row : Gsm_Extension_Table)
        all += char16_t(row.m_character);
    return all;
}

} // namespace

TEST(Submit_Round_Trip, Every_Character_Of_Both_Tables_Arrives_At_Every_Place_Of_An_Octet)
{
    for (const char16_t character : Characters_Of_Both_Tables()) {
        for (std::size_t before = 0; before < 9; ++before) {
            const std::u16string text = before * std::u16string(u"x") + character;
            EXPECT_EQ(Shown(text), Utf8_Of(text));
        }
    }
}

TEST(Submit_Round_Trip, Every_Length_Around_The_Cuts_Arrives)
{
    for (std::size_t length = 0; length <= 470; ++length) {
        const std::u16string text = length * std::u16string(u"@");
        EXPECT_EQ(Shown(text), Utf8_Of(text)) << length;
    }
    for (std::size_t length = 0; length <= 210; ++length) {
        const std::u16string text = length * std::u16string(u"\u00E7");
        EXPECT_EQ(Shown(text), Utf8_Of(text)) << length;
    }
}

TEST(Submit_Round_Trip, An_Emoji_Or_An_Extension_Arrives_At_Every_Offset)
{
    for (std::size_t before = 0; before <= 160; ++before) {
        for (const std::size_t behind : {0, 1, 69, 100}) {
            const std::u16string text = before * std::u16string(u"a") + Smile + behind * std::u16string(u"b");
            EXPECT_EQ(Shown(text), Utf8_Of(text)) << before << " " << behind;
        }
    }
    for (std::size_t before = 140; before <= 320; ++before) {
        for (const std::size_t behind : {0, 1, 200}) {
            const std::u16string text = before * std::u16string(u"a") + u"\u20AC[" + behind * std::u16string(u"b");
            EXPECT_EQ(Shown(text), Utf8_Of(text)) << before << " " << behind;
        }
    }
}

TEST(Submit_Round_Trip, Thousands_Of_Texts_Arrive_As_They_Were_Written)
{
    std::mt19937 random(42);
    const std::u16string tables = Characters_Of_Both_Tables();
    for (int round = 0; round < 4000; ++round) {
        const bool is_plain = round % 2 == 0;
        std::u16string text;
        const std::size_t count = random() % 400;
        for (std::size_t i = 0; i < count; ++i) {
            const auto kind = is_plain ? 0 : random() % 10;
            if (kind == 9)
                text += Smile;
            else if (kind >= 6)
                text += char16_t(1 + random() % 0xD7FF);
            else
                text += tables[random() % tables.size()];
        }
        EXPECT_EQ(Shown(text), Utf8_Of(text));
    }
}

TEST(Submit_Round_Trip, A_Forced_Alphabet_Shows_What_The_Changes_Say)
{
    std::mt19937 random(7);
    for (int round = 0; round < 1000; ++round) {
        Submit_Request request;
        request.m_destination = Destination_Of("*100#");
        request.m_choice = round % 2 == 0 ? Alphabet_Choice::Gsm_7_Bit : Alphabet_Choice::Ucs2;
        const std::size_t count = random() % 400;
        for (std::size_t i = 0; i < count; ++i)
            request.m_text += random() % 3 == 0 ? char16_t(random()) : u'{'; // any unit, surrogates too
        const Alphabet alphabet = Alphabet_For(request.m_text, request.m_choice);
        std::u16string expected = request.m_text;
        const auto changes = Changed_Characters(request.m_text, alphabet);
        for (auto change = changes.rbegin(); change != changes.rend(); ++change)
            expected.replace(change->m_at, change->m_from.size(), change->m_to);
        EXPECT_EQ(Shown(request), Utf8_Of(expected));
    }
}
