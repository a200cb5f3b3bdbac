#include "handset/Message_Joiner.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace Handset;

namespace {

Received_Part Part(int part, int parts, const std::string& text, const std::string& number = "1", int reference = 0)
{
    Received_Part received;
    received.m_units.assign(text.begin(), text.end()); // letters have the same codes in the GSM alphabet
    received.m_shown.m_number = number;
    received.m_shown.m_text = text;
    received.m_shown.m_alphabet = "GSM 7-bit";
    received.m_shown.m_part = part;
    received.m_shown.m_parts = parts;
    received.m_shown.m_reference = reference;
    return received;
}

// Texts of the messages that these parts make, in the order in which they are complete.
std::vector<std::string> Joined(Message_Joiner& joiner, const std::vector<Received_Part>& parts)
{
    std::vector<std::string> texts;
    for (const auto& part : parts) {
        if (const auto message = joiner.Take(part))
            texts.push_back(message->m_text);
    }
    return texts;
}

std::vector<std::string> Joined(const std::vector<Received_Part>& parts)
{
    Message_Joiner joiner;
    return Joined(joiner, parts);
}

using Texts = std::vector<std::string>;

} // namespace

TEST(Message_Joiner, Parts_Become_Messages)
{
    auto single = Part(1, 1, "hi");
    single.m_shown.m_reference = -1;
    const struct
    {
        const char* name;
        std::vector<Received_Part> parts;
        Texts texts;
    } rows[] = {
        {"without concatenation", {single, single}, {"hi", "hi"}},
        {"of one part", {Part(1, 1, "hi"), Part(1, 1, "hi")}, {"hi", "hi"}},
        {"in order", {Part(1, 3, "a"), Part(2, 3, "b"), Part(3, 3, "c")}, {"abc"}},
        {"the last first", {Part(3, 3, "c"), Part(1, 3, "a"), Part(2, 3, "b")}, {"abc"}},
        {"backwards", {Part(2, 2, "b"), Part(1, 2, "a")}, {"ab"}},
        {"doubled", {Part(1, 2, "a"), Part(1, 2, "a"), Part(2, 2, "b"), Part(2, 2, "b")}, {"ab"}},
        {"doubled later", {Part(1, 3, "a"), Part(2, 3, "b"), Part(1, 3, "a"), Part(3, 3, "c")}, {"abc"}},
        {"a new part one begins a new message",
         {Part(1, 3, "a"), Part(2, 3, "b"), Part(1, 3, "x"), Part(2, 3, "y"), Part(3, 3, "z")},
         {"xyz"}},
        {"the same again", {Part(1, 2, "a"), Part(2, 2, "b"), Part(1, 2, "a"), Part(2, 2, "b")}, {"ab", "ab"}},
        {"sent anew with the same beginning",
         {Part(1, 3, "a"), Part(2, 3, "b"), Part(1, 3, "a"), Part(2, 3, "y"), Part(3, 3, "z")},
         {"ayz"}},
        {"a late double before the next message",
         {Part(1, 2, "a"), Part(2, 2, "b"), Part(2, 2, "b"), Part(1, 2, "x"), Part(2, 2, "y")},
         {"ab", "xy"}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Joined(row.parts), row.texts) << row.name;
}

TEST(Message_Joiner, Numbers_References_And_Totals_Are_Kept_Apart)
{
    auto wide = Part(2, 2, "w");
    wide.m_wide_reference = true;
    EXPECT_EQ(Joined({Part(1, 2, "a"), Part(2, 2, "b", "2"), Part(2, 2, "c", "1", 7), Part(2, 3, "d"), wide}), Texts{});
}

TEST(Message_Joiner, Parts_Join_As_Characters_And_Those_Of_Different_Alphabets_As_Texts)
{
    const auto unicode = [](int part, const std::string& text, const std::vector<std::uint8_t>& units) {
        auto received = Part(part, 2, text);
        received.m_alphabet = Alphabet::Ucs2;
        received.m_units = units;
        return received;
    };
    EXPECT_EQ(Joined({unicode(1, "\uFFFD", {0xD8, 0x3D}), unicode(2, "\uFFFD", {0xDE, 0x00})}), Texts{"😀"});
    EXPECT_EQ(Joined({Part(1, 2, "a"), unicode(2, "Ω", {0x03, 0xA9})}), Texts{"aΩ"});
}

TEST(Message_Joiner, The_Message_Carries_What_Its_First_Part_Says)
{
    Message_Joiner joiner;
    auto first = Part(1, 2, "a", "+49", 5);
    first.m_shown.m_class = 0;
    first.m_shown.m_smsc = "+1555";
    first.m_shown.m_dcs = 0x10;
    EXPECT_FALSE(joiner.Take(first));
    const auto message = joiner.Take(Part(2, 2, "b", "+49", 5));
    ASSERT_TRUE(message);
    EXPECT_EQ(message->m_number, "+49");
    EXPECT_EQ(message->m_class, 0);
    EXPECT_EQ(message->m_parts, 2);
    EXPECT_EQ(message->m_reference, 5);
    EXPECT_EQ(message->m_smsc, "+1555");
    EXPECT_EQ(message->m_dcs, 0x10);
    EXPECT_EQ(message->m_alphabet, "GSM 7-bit");
}

TEST(Message_Joiner, Messages_That_Are_Never_Finished_Do_Not_Pile_Up)
{
    Message_Joiner joiner;
    for (int i = 0; i < 1000; ++i)
        EXPECT_FALSE(joiner.Take(Part(1, 2, "a", std::to_string(i))));
    EXPECT_EQ(joiner.Waiting(), 256u);
    EXPECT_EQ(Joined(joiner, {Part(2, 2, "b", "0"), Part(2, 2, "b", "999")}), Texts{"ab"}) << "the oldest was given up";
}

TEST(Message_Joiner, Forgetting_Drops_What_Waits)
{
    Message_Joiner joiner;
    joiner.Take(Part(1, 2, "a"));
    joiner.Forget();
    EXPECT_EQ(joiner.Waiting(), 0u);
    EXPECT_EQ(Joined(joiner, {Part(2, 2, "b")}), Texts{});
}
