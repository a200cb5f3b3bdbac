#include "device/Answer_Lines.h"

#include <gmock/gmock.h>

namespace {

struct Spoken
{
    const char* name;
    std::vector<QByteArray> pieces;
    std::vector<QByteArray> lines;
    bool has_prompt;
};

std::ostream& operator<<(std::ostream& out, const Spoken& row)
{
    return out << row.name;
}

class Answer_Lines_Test : public testing::TestWithParam<Spoken>
{
};

} // namespace

TEST_P(Answer_Lines_Test, Lines_And_Prompts_Come_As_They_Were_Meant)
{
    Answer_Lines lines;
    std::vector<QByteArray> heard;
    for (const QByteArray& piece : GetParam().pieces) {
        lines.Take(piece);
        while (const auto line = lines.Next())
            heard.push_back(*line);
    }
    EXPECT_EQ(heard, GetParam().lines);
    EXPECT_EQ(lines.Take_Prompt(), GetParam().has_prompt);
    EXPECT_FALSE(lines.Take_Prompt()) << "it was taken";
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Answer_Lines_Test,
    testing::Values(Spoken{"Nothing", {}, {}, false}, Spoken{"An_Answer", {"\r\nOK\r\n"}, {"OK"}, false},
                    Spoken{"Byte_By_Byte", {"\r", "\n", "O", "K", "\r"}, {"OK"}, false},
                    Spoken{"No_End_Yet", {"\r\n+CMGS: 1"}, {}, false},
                    Spoken{"Line_Feeds_Alone", {"A\n\nB\n"}, {"A", "B"}, false},
                    Spoken{"A_Prompt", {"\r\n> "}, {}, true}, Spoken{"A_Bare_Prompt", {">"}, {}, true},
                    Spoken{"A_Prompt_After_The_Echo", {"AT+CMGS=18\r\r\n> "}, {"AT+CMGS=18"}, true},
                    Spoken{"A_Prompt_With_A_Line_End", {"\r\n>\r\n"}, {">"}, false},
                    Spoken{"Text_After_The_Sign", {"\r\n> 00"}, {}, false},
                    Spoken{"White_Space_Around_A_Line", {"\r\n  +CMS ERROR: 500 \r\n"}, {"+CMS ERROR: 500"}, false}),
    [](const auto& row) { return row.param.name; });

TEST(Answer_Lines_Limits, A_Line_Without_End_Is_Cut_And_The_Next_Is_Whole)
{
    Answer_Lines lines;
    for (int piece = 0; piece < 1000; ++piece) {
        lines.Take(QByteArray(1000, 'x'));
        EXPECT_EQ(lines.Next(), std::nullopt);
    }
    lines.Take("\r\nOK\r\n");
    EXPECT_EQ(lines.Next().value().size(), Answer_Lines::Longest_Line);
    EXPECT_EQ(lines.Next(), "OK");
}
