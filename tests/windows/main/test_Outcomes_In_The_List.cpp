#include "engine/Outcome_Codes.h"
#include "engine/Outcome_Words.h"
#include "list/Recipient_List.h"
#include "toolkit/Whole_Text_Delegate.h"
#include "windows/main/Outcomes_Test.h"

#include <QAccessible>
#include <QHeaderView>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QToolTip>

using testing::ElementsAre;

namespace {

const Row_Outcome Refused{Row_State::Refused, {Device_Cause::Kind::Cms, 500, {}}};

// Outcomes as a job would hand them over, and what becomes of them and of the table when the list changes.
class Outcomes_In_The_List : public Outcomes_Test
{
protected:
    void Take(int first_row, const std::vector<Row_Outcome>& outcomes)
    {
        QByteArray marks;
        for (const Row_Outcome& outcome : outcomes)
            marks.append(static_cast<char>(m_codes.Code_Of(outcome)));
        m_delegate->Take_Outcomes(first_row, marks, m_codes);
    }

    /// A job with the numbers from 1 on has ended like this.
    void Have_Outcomes(const std::vector<Row_Outcome>& outcomes)
    {
        for (std::size_t row = 1; row <= outcomes.size(); ++row)
            Add(QString::number(row));
        m_delegate->Begin_Outcomes();
        Take(0, outcomes);
        m_delegate->End_Outcomes();
    }

    static std::vector<Row_Outcome> One_Of_Each_State()
    {
        std::vector<Row_Outcome> outcomes;
        for (int state = 0; state <= static_cast<int>(Row_State::Invalid_Number); ++state)
            outcomes.push_back({static_cast<Row_State>(state), {}});
        return outcomes;
    }

    static QStringList In_Words(const std::vector<Row_Outcome>& outcomes)
    {
        QStringList words;
        for (const Row_Outcome& outcome : outcomes)
            words.append(Signed_Outcome(outcome));
        return words;
    }

    QHeaderView& Headings() { return *The<QTableView>("idTableView").horizontalHeader(); }

    void Expect_The_Table_As_It_Was_Before_Any_Job()
    {
        EXPECT_FALSE(Outcomes_Are_Shown());
        EXPECT_EQ(Buttons(), "hidden");
        QCoreApplication::processEvents();
        EXPECT_EQ(Headings().count(), 2);
        EXPECT_TRUE(Headings().stretchLastSection());
        EXPECT_EQ(Headings().sectionSize(0), m_number_width);
        EXPECT_EQ(Headings().length(), The<QTableView>("idTableView").viewport()->width());
    }

    void SetUp() override
    {
        QCoreApplication::processEvents();
        m_number_width = Headings().sectionSize(0);
    }

    Outcome_Codes m_codes;
    int m_number_width = 0;
};

TEST_F(Outcomes_In_The_List, Never_Offer_A_Message_Again_That_May_Have_Arrived)
{
    Have_Outcomes(One_Of_Each_State());
    EXPECT_EQ(Shown_Outcomes(), In_Words(One_Of_Each_State()));
    Click("Select_Not_Taken");
    EXPECT_THAT(m_delegate->Selected_Recipient_Rows(),
                ElementsAre(static_cast<int>(Row_State::Not_Tried), static_cast<int>(Row_State::Refused)));
    Click("Keep_Not_Taken");
    EXPECT_THAT(Shown_Outcomes(), ElementsAre("· not tried", "✗ refused"));
}

TEST_F(Outcomes_In_The_List, Select_Whole_Rows_And_No_Others)
{
    Have_Outcomes({{Row_State::Sent, {}}, Refused, Refused, {Row_State::Sent, {}}, {}});
    Select_Rows({0, 1, 3});
    Click("Select_Not_Taken");
    const auto& selection = *The<QTableView>("idTableView").selectionModel();
    for (int row = 0; row < 5; ++row) {
        for (int column = 0; column <= Outcome_Column; ++column)
            EXPECT_EQ(selection.isSelected(Rows().index(row, column)), row == 1 || row == 2 || row == 4) << row;
    }
    EXPECT_EQ(selection.currentIndex(), Rows().index(1, 0));
}

TEST_F(Outcomes_In_The_List, Follow_Their_Recipients_When_Others_Are_Removed)
{
    Have_Outcomes({{Row_State::Sent, {}}, Refused, {Row_State::Written, {}}, {Row_State::No_Answer, {}}});
    Select_Rows({0, 2});
    Click("Clear_Sel_Btn");
    EXPECT_THAT(Shown_Outcomes(), ElementsAre("✗ refused (500: unknown error)", "? no answer"));
    EXPECT_EQ(Buttons(), "on");
    Select_Rows({0});
    Click("Clear_Sel_Btn");
    EXPECT_THAT(Shown_Outcomes(), ElementsAre("? no answer"));
    EXPECT_EQ(Buttons(), "off");
}

TEST_F(Outcomes_In_The_List, Are_That_A_New_Or_Changed_Recipient_Was_Not_Tried)
{
    Have_Outcomes({{Row_State::Sent, {}}, {Row_State::Sent, {}}, {Row_State::Sent, {}}});
    EXPECT_EQ(Buttons(), "off");
    m_delegate->Replace_Recipient(0, QStringLiteral("1"), QStringLiteral("Hello")); // as it was
    EXPECT_EQ(Buttons(), "off");
    m_delegate->Replace_Recipient(1, QStringLiteral("22"), QStringLiteral("Hello"));
    EXPECT_THAT(Shown_Outcomes(), ElementsAre("✓ sent", "· not tried", "✓ sent"));
    EXPECT_EQ(Buttons(), "on");
    Select_Rows({1});
    Click("Clear_Sel_Btn");
    EXPECT_EQ(Buttons(), "off");
    Add(QStringLiteral("4"));
    EXPECT_THAT(Shown_Outcomes(), ElementsAre("✓ sent", "✓ sent", "· not tried"));
    EXPECT_EQ(Buttons(), "on");
    Recipient_List list = m_delegate->Recipients();
    list.Set_Messages({0, 1}, QStringLiteral("Other"));
    m_delegate->Replace_Recipients(std::move(list));
    EXPECT_THAT(Shown_Outcomes(), ElementsAre("· not tried", "· not tried", "· not tried"));
}

TEST_F(Outcomes_In_The_List, Go_With_The_List)
{
    for (const char* way : {"Clear_All_Btn", "Reset_Btn", "Clear_Sel_Btn"}) {
        SCOPED_TRACE(way);
        Have_Outcomes({Refused, {Row_State::Sent, {}}});
        EXPECT_TRUE(Outcomes_Are_Shown());
        if (way == std::string("Clear_All_Btn"))
            user.Will_Press(QStringLiteral("Yes"));
        Select_Rows({0, 1});
        Click(way);
        ASSERT_EQ(m_delegate->Recipients().Count(), 0);
        Expect_The_Table_As_It_Was_Before_Any_Job();
        Add(QStringLiteral("1"));
        Expect_The_Table_As_It_Was_Before_Any_Job();
        Click("Reset_Btn");
    }
}

struct Change
{
    const char* name;
    void (*change)(CorvaneAppDelegate& main);
};

const Change Changes[] = {
    {"Another_List", [](CorvaneAppDelegate& main) { main.Replace_Recipients({}); }},
    {"A_Copy", [](CorvaneAppDelegate& main) { main.Replace_Recipients(main.Recipients()); }},
    {"A_New_Recipient",
     [](CorvaneAppDelegate& main) { main.Create_Num_Msg_List(QStringLiteral("9"), QStringLiteral("Hello")); }},
    {"A_Changed_Recipient",
     [](CorvaneAppDelegate& main) { main.Replace_Recipient(0, QStringLiteral("9"), QStringLiteral("Hello")); }},
    {"A_Reset", [](CorvaneAppDelegate& main) { main.Reset_Btn(); }},
};

TEST_F(Outcomes_In_The_List, Are_Given_Up_When_The_List_Changes_Under_A_Job)
{
    for (const Change& change : Changes) {
        SCOPED_TRACE(change.name);
        Click("Reset_Btn");
        Add_All({"1", "2", "3"});
        m_delegate->Begin_Outcomes();
        Take(0, {{Row_State::Sent, {}}});
        EXPECT_THAT(Shown_Outcomes(), ElementsAre("✓ sent", "· not tried", "· not tried"));
        change.change(*m_delegate);
        Expect_The_Table_As_It_Was_Before_Any_Job();
        Take(1, {{Row_State::Sent, {}}, {Row_State::Sent, {}}});
        m_delegate->End_Outcomes();
        Expect_The_Table_As_It_Was_Before_Any_Job();
    }
}

// As the real job hands them over, and with a copy that was taken before some of them came.
TEST_F(Outcomes_In_The_List, Of_A_Real_Job_Are_Given_Up_When_An_Older_Copy_Of_The_List_Comes_Back)
{
    Add_All({"111", "222", "333"});
    Recipient_List copy;
    Before_The_Next_Answer([&] {
        if (Submissions() == 1 && copy.Count() == 0)
            Run_On_Interface_Thread([&] { copy = m_delegate->Recipients(); });
        if (Submissions() == 2 && copy.Count() > 0)
            Run_On_Interface_Thread([&] { m_delegate->Replace_Recipients(std::exchange(copy, {})); });
    });
    Send_With_One_Box();
    EXPECT_EQ(m_phone.Inbox().size(), 3U);
    Expect_The_Table_As_It_Was_Before_Any_Job();
}

TEST_F(Outcomes_In_The_List, Have_A_Column_That_Is_Wide_Enough_For_Them)
{
    Have_Outcomes(One_Of_Each_State());
    QCoreApplication::processEvents();
    EXPECT_EQ(Headings().sectionSize(0), m_number_width);
    EXPECT_EQ(Headings().length(), The<QTableView>("idTableView").viewport()->width());
    EXPECT_GE(Headings().sectionSize(1), The<QTableView>("idTableView").fontMetrics().averageCharWidth() * 10);
    for (int row = 0; row < Rows().rowCount(); ++row)
        EXPECT_GE(Headings().sectionSize(Outcome_Column),
                  The<QTableView>("idTableView").sizeHintForIndex(Rows().index(row, Outcome_Column)).width())
            << qPrintable(Shown(row, Outcome_Column));
    EXPECT_LE(m_delegate->minimumSizeHint().width(), 1024);
    EXPECT_LE(m_delegate->minimumSizeHint().height(), 700);
}

TEST_F(Outcomes_In_The_List, Are_Read_To_Nobody_As_A_Sign)
{
    auto* told = QAccessible::queryAccessibleInterface(&The<QTableView>("idTableView"))->tableInterface();
    Add(QStringLiteral("1"));
    EXPECT_EQ(told->columnCount(), 2);
    m_delegate->Begin_Outcomes();
    Take(0, {Refused});
    m_delegate->End_Outcomes();
    EXPECT_EQ(told->columnCount(), 3);
    EXPECT_EQ(told->columnDescription(Outcome_Column), QStringLiteral("Outcome"));
    EXPECT_EQ(told->cellAt(0, Outcome_Column)->text(QAccessible::Name), QStringLiteral("refused (500: unknown error)"));
    EXPECT_EQ(told->cellAt(0, 0)->text(QAccessible::Name), QStringLiteral("1"));
}

TEST_F(Outcomes_In_The_List, Are_Shown_Whole_By_A_Tool_Tip_Where_The_Column_Is_Too_Narrow)
{
    const QString words = QStringLiteral("the card in this phone has no room for another message at present");
    Have_Outcomes({{Row_State::Refused, {Device_Cause::Kind::Words, -1, words}}});
    auto& table = The<QTableView>("idTableView");
    const QPoint place = table.visualRect(Rows().index(0, Outcome_Column)).center();
    QHelpEvent event(QEvent::ToolTip, place, table.viewport()->mapToGlobal(place));
    QApplication::sendEvent(table.viewport(), &event);
    EXPECT_EQ(QToolTip::text(), Tool_Tip_Of(QStringLiteral("✗ refused (") + words + u')'));
    QToolTip::hideText();
}

// Whoever paints more than the rows that have changed is told of more than those.
TEST_F(Outcomes_In_The_List, Repaint_The_Rows_That_Changed_And_No_Others)
{
    Add_All({"1", "2", "3", "4", "5"});
    m_delegate->Begin_Outcomes();
    QSignalSpy changes(&Rows(), &QAbstractItemModel::dataChanged);
    Take(1, {{Row_State::Sent, {}}, {Row_State::Sent, {}}});
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes.first().at(0).toModelIndex(), Rows().index(1, Outcome_Column));
    EXPECT_EQ(changes.first().at(1).toModelIndex(), Rows().index(2, Outcome_Column));
    m_delegate->End_Outcomes();
    EXPECT_EQ(changes.size(), 1);
}

} // namespace
