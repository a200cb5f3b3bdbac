#include "send/Message_Filling.h"

#include <gtest/gtest.h>

namespace {

struct Filling
{
    const char* message;
    const char* text;
    bool is_complete = true;
};

class Message_Filling : public testing::TestWithParam<Filling>
{
};

} // namespace

TEST_P(Message_Filling, Is_As_Written)
{
    const Filled_Message filled = Fill_Message(QString::fromUtf8(GetParam().message));
    EXPECT_EQ(filled.text.toStdString(), GetParam().text);
    EXPECT_EQ(filled.is_complete, GetParam().is_complete);
}

INSTANTIATE_TEST_SUITE_P(
    Messages, Message_Filling,
    testing::Values(Filling{"", ""}, Filling{"Plain { and } text", "Plain { and } text"},
                    Filling{"Dear {{Name|friend}}, hi", "Dear friend, hi"},
                    Filling{"Dear {{Name}}, hi", "Dear {{Name}}, hi", false}, Filling{"{{A|}}", ""},
                    Filling{"{{A| }}{{B|x}}", " x"}, Filling{"{{A|b|c}}", "b|c"}, Filling{"{{{{Name}}", "{{Name}}"},
                    Filling{"{{{{", "{{"}, Filling{"{{{{{{A|b}}}}", "{{b}}"}, Filling{"{{not closed", "{{not closed"},
                    Filling{"{{A}} {{B|c}}", "{{A}} c", false}, Filling{"a{{", "a{{"}, Filling{"{{}}", "{{}}", false}));
