#include "list/Fill_Rules.h"

#include <gmock/gmock.h>

using Fill_Rules::Choice;
using Fill_Rules::Has_Blank_Message;
using Fill_Rules::Rows_To_Fill;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

Recipient_List List_With(const QStringList& messages)
{
    Recipient_List list;
    for (const QString& message : messages)
        list.Append(QString("1"), message);
    return list;
}

TEST(Fill_Rules, All_Means_Every_Row_And_Selected_The_Selected_Ones_That_The_List_Has)
{
    const Recipient_List list = List_With({"a", "", "b"});
    EXPECT_THAT(Rows_To_Fill(list, Choice::All, {1}), ElementsAre(0, 1, 2));
    EXPECT_THAT(Rows_To_Fill({}, Choice::All, {}), IsEmpty());
    EXPECT_THAT(Rows_To_Fill(list, Choice::Selected, {0, 2}), ElementsAre(0, 2));
    EXPECT_THAT(Rows_To_Fill(list, Choice::Selected, {-1, 2, 3}), ElementsAre(2));
    EXPECT_THAT(Rows_To_Fill(list, Choice::Selected, {}), IsEmpty());
}

TEST(Fill_Rules, Blank_Means_An_Empty_Message_And_Not_One_Of_Spaces)
{
    EXPECT_THAT(Rows_To_Fill(List_With({"", "a", "", " ", "\n"}), Choice::Blank, {1}), ElementsAre(0, 2));
    EXPECT_FALSE(Has_Blank_Message(List_With({"a", " ", "\n", "\u00A0"})));
    EXPECT_TRUE(Has_Blank_Message(List_With({"a", " ", ""})));
    EXPECT_FALSE(Has_Blank_Message({}));
}

} // namespace
