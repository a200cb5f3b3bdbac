#include "gui/Sending_Program.h"
#include "support/Keys.h"

using testing::ElementsAre;
using testing::ElementsAreArray;

// The list is sent, and not what is shown of it.
class Sending_A_View : public Sending_Program
{
protected:
    QTableView& Table() { return The<QTableView>("idTableView"); }
    QStringList Shown_Numbers() { return Rows_Of(Table()); }
    void Click_Heading(int column)
    {
        QHeaderView& headings = *Table().horizontalHeader();
        QTest::mouseClick(
            headings.viewport(), Qt::LeftButton, {},
            QPoint(headings.sectionViewportPosition(column) + headings.sectionSize(column) / 2, headings.height() / 2));
    }
    void Seek(const QString& words)
    {
        Press_Key(Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(&The<QLineEdit>("_Find_Edit"), words);
    }
};

TEST_F(Sending_A_View, Sorted_And_Found_Recipients_Are_A_View_And_Everybody_Gets_The_Message_In_The_Lists_Order)
{
    Select_The_Phone();
    Fill_The_List();
    const QStringList in_the_list = Numbers();
    Click_Heading(0);
    Click_Heading(0); // downwards
    EXPECT_THAT(Shown_Numbers(), ElementsAre(in_the_list[2], in_the_list[1], in_the_list[0]));
    Seek("7700");
    EXPECT_EQ(Shown_Numbers().size(), 3);
    The<QLineEdit>("_Find_Edit").clear();
    QTest::keyClicks(&The<QLineEdit>("_Find_Edit"), "456");
    EXPECT_THAT(Shown_Numbers(), ElementsAre(in_the_list[1]));
    EXPECT_EQ(Count_Label(), "Total Numbers : 3");

    EXPECT_EQ(Send(), Box::Completed);
    EXPECT_THAT(Inbox(), ElementsAreArray(Everything({})));
    EXPECT_EQ(Numbers(), in_the_list);
    EXPECT_THAT(Shown_Numbers(), ElementsAre(in_the_list[1])) << "the view stays";
    const QString outcome = Shown(0, 2);
    EXPECT_FALSE(outcome.isEmpty());

    QTest::keyClick(&The<QLineEdit>("_Find_Edit"), Qt::Key_Escape);
    EXPECT_THAT(Shown_Numbers(), ElementsAre(in_the_list[2], in_the_list[1], in_the_list[0]));
    EXPECT_EQ(Shown(1, 2), outcome);
}

TEST_F(Sending_A_View, A_View_That_Shows_Nobody_Is_Sent_To_All)
{
    Select_The_Phone();
    Fill_The_List({}, 2);
    Seek("nobody");
    EXPECT_THAT(Shown_Numbers(), testing::IsEmpty());
    EXPECT_EQ(Send(), Box::Completed);
    auto first_two = Everything({});
    first_two.pop_back();
    EXPECT_THAT(Inbox(), ElementsAreArray(first_two));
}
