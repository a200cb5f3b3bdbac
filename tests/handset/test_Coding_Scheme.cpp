#include "handset/Coding_Scheme.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace Handset;

namespace {

struct Row
{
    int m_dcs;
    Alphabet m_alphabet;
    int m_class;
    bool m_compressed, m_to_be_deleted, m_waiting;
};

constexpr Alphabet Gsm = Alphabet::Gsm_7_Bit;
constexpr Alphabet Eight = Alphabet::Eight_Bit;
constexpr Alphabet Ucs2 = Alphabet::Ucs2;

// 3GPP TS 23.038 4
constexpr Row Rows[] = {
    {0x00, Gsm, -1, false, false, false},  {0x01, Gsm, -1, false, false, false}, // class bits without their flag
    {0x03, Gsm, -1, false, false, false},  {0x04, Eight, -1, false, false, false},
    {0x08, Ucs2, -1, false, false, false}, {0x0C, Gsm, -1, false, false, false}, // a reserved alphabet
    {0x10, Gsm, 0, false, false, false},   {0x11, Gsm, 1, false, false, false},
    {0x12, Gsm, 2, false, false, false},   {0x13, Gsm, 3, false, false, false},
    {0x14, Eight, 0, false, false, false}, {0x18, Ucs2, 0, false, false, false},
    {0x1B, Ucs2, 3, false, false, false},  {0x20, Gsm, -1, true, false, false},
    {0x38, Ucs2, 0, true, false, false},   {0x40, Gsm, -1, false, true, false},
    {0x58, Ucs2, 0, false, true, false},   {0x80, Gsm, -1, false, false, false}, // reserved groups
    {0xBF, Gsm, -1, false, false, false},  {0xC0, Gsm, -1, false, false, true},
    {0xC8, Gsm, -1, false, false, true},   {0xD8, Gsm, -1, false, false, true},
    {0xE8, Ucs2, -1, false, false, true},  {0xF0, Gsm, 0, false, false, false},
    {0xF1, Gsm, 1, false, false, false},   {0xF4, Eight, 0, false, false, false},
    {0xF7, Eight, 3, false, false, false},
};

} // namespace

TEST(Coding_Scheme, Every_Group_Says_Its_Alphabet_Class_And_Flags)
{
    for (const Row& row : Rows) {
        const auto scheme = Coding_Scheme_Of(std::uint8_t(row.m_dcs));
        EXPECT_EQ(scheme.m_octet, row.m_dcs);
        EXPECT_EQ(std::tie(scheme.m_alphabet, scheme.m_class, scheme.m_compressed, scheme.m_to_be_deleted,
                           scheme.m_waiting_indication),
                  std::tie(row.m_alphabet, row.m_class, row.m_compressed, row.m_to_be_deleted, row.m_waiting))
            << row.m_dcs;
    }
}

TEST(Coding_Scheme, Alphabets_Have_Names_And_Show_Their_Units)
{
    EXPECT_EQ(Name_Of(Gsm), "GSM 7-bit");
    EXPECT_EQ(Name_Of(Eight), "8-bit");
    EXPECT_EQ(Name_Of(Ucs2), "UCS2");
    EXPECT_EQ(Shown_Text(Gsm, {0x00, 0x41}), "@A");
    EXPECT_EQ(Shown_Text(Eight, {0xFC, 0x41}), "üA");
    EXPECT_EQ(Shown_Text(Ucs2, {0x00, 0xFC}), "ü");
}
