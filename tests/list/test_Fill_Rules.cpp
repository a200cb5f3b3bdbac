#include "list/Fill_Rules.h"

#include <gmock/gmock.h>

using Fill_Rules::Choice;
using Fill_Rules::Rows_To_Fill;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

Recipient_List List_With(const QStringList& messages)
{
    Recipient_List list;
    for (const QString& message : messages)
        list.Append(QStringLiteral("1"), message);
    return list;
}

} // namespace

TEST(Fill_Rules, All_Means_Every_Row)
{
    EXPECT_THAT(Rows_To_Fill(List_With({"a", "", "b"}), Choice::All, {1}), ElementsAre(0, 1, 2));
    EXPECT_THAT(Rows_To_Fill({}, Choice::All, {}), IsEmpty());
}

TEST(Fill_Rules, Selected_Means_The_Selected_Rows_That_The_List_Has)
{
    EXPECT_THAT(Rows_To_Fill(List_With({"a", "", "b"}), Choice::Selected, {0, 2}), ElementsAre(0, 2));
    EXPECT_THAT(Rows_To_Fill(List_With({"a", "", "b"}), Choice::Selected, {-1, 2, 3}), ElementsAre(2));
    EXPECT_THAT(Rows_To_Fill(List_With({"a", "", "b"}), Choice::Selected, {}), IsEmpty());
}

TEST(Fill_Rules, Blank_Means_The_Rows_With_An_Empty_Message)
{
    EXPECT_THAT(Rows_To_Fill(List_With({"", "a", "", " ", "\n"}), Choice::Blank, {1}), ElementsAre(0, 2));
}

TEST(Fill_Rules, A_Message_Of_Spaces_Is_Not_Blank)
{
    EXPECT_FALSE(Fill_Rules::Has_Blank_Message(List_With({"a", " ", "\n", "\u00A0"})));
    EXPECT_TRUE(Fill_Rules::Has_Blank_Message(List_With({"a", " ", ""})));
    EXPECT_FALSE(Fill_Rules::Has_Blank_Message({}));
}
