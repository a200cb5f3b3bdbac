#include "engine/Outcome_Codes.h"
#include "gui/Open_Program.h"
#include "support/Heartbeat.h"
#include "support/Keys.h"

using testing::ElementsAre;
using testing::IsEmpty;

// Finding and sorting recipients: a view of the list, on which everything works on the recipients that a person sees.
class Find : public Open_Program
{
protected:
    Find()
    {
        Set_Pace(1);
        for (const char* one : {"30 carol", "10 anna", "20 bob", "40 anna"})
            m_delegate->Create_Num_Msg_List(QString(one).left(2), QString(one).mid(3));
        m_delegate->Redisplay_Recipients();
    }
    QTableView& Table() { return The<QTableView>("idTableView"); }
    QStringList Shown_Numbers() { return Rows_Of(Table()); }
    void Seek(const QString& words)
    {
        Press_Key(Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(&The<QLineEdit>("_Find_Edit"), words);
    }
    void Sort(int column, Qt::SortOrder order = Qt::AscendingOrder)
    {
        Table().horizontalHeader()->setSortIndicator(column, order);
    }
    void Set_Outcomes(const std::vector<Row_State>& states)
    {
        Outcome_Codes codes;
        QByteArray marks;
        for (const Row_State state : states)
            marks.append(static_cast<char>(codes.Code_Of({state, {}})));
        m_delegate->Begin_Outcomes();
        m_delegate->Take_Outcomes(0, marks, codes);
    }
    /// The menu of the table, by the key for it.
    QList<QAction*> Menu_Of_Table() { return Table().actions(); }
    QAction& Entry(const char* name) { return In<QAction>(*m_delegate, name); }
};

TEST_F(Find, Nothing_Of_The_List_Changes_And_Nothing_Of_What_Is_Sent)
{
    Seek("anna");
    Sort(0, Qt::DescendingOrder);
    EXPECT_THAT(Shown_Numbers(), ElementsAre("40", "10"));
    EXPECT_EQ(The<QLabel>("_Find_Count").text(), "2 of 4");
    EXPECT_EQ(Count_Label(), "Total Numbers : 4");
    EXPECT_THAT(Numbers(), ElementsAre("30", "10", "20", "40"));
    Add("15");
    EXPECT_THAT(Numbers(), ElementsAre("30", "10", "20", "40", "15"));
    EXPECT_THAT(Shown_Numbers(), ElementsAre("40", "10"));
}

TEST_F(Find, Clear_Selected_Removes_Those_That_Are_Seen_Selected_And_Undo_Brings_Them_Back)
{
    Sort(0); // 10 20 30 40
    Select_Rows({0, 2});
    Click("Clear_Sel_Btn");
    EXPECT_THAT(Numbers(), ElementsAre("20", "40"));
    EXPECT_THAT(Shown_Numbers(), ElementsAre("20", "40"));
    EXPECT_THAT(m_delegate->Selected_Recipient_Rows(), ElementsAre(0));
    Click("Undo_Btn");
    EXPECT_THAT(Numbers(), ElementsAre("30", "10", "20", "40"));
    EXPECT_THAT(Shown_Numbers(), ElementsAre("10", "20", "30", "40"));
    Seek("anna");
    Table().selectAll();
    Click("Clear_Sel_Btn");
    EXPECT_THAT(Numbers(), ElementsAre("30", "20"));
    EXPECT_THAT(Shown_Numbers(), IsEmpty());
}

TEST_F(Find, A_Double_Click_Edits_The_Recipient_That_Was_Clicked)
{
    Sort(0, Qt::DescendingOrder); // 40 30 20 10
    Select_Rows({2});
    user.When_Opens("Update_Num_SMS", [](QWidget& editor) {
        EXPECT_EQ(In<QLineEdit>(editor, "m_num_str").text(), "20");
        In<QLineEdit>(editor, "m_num_str").setText("99");
        Press_Key(Qt::Key_Return);
    });
    m_delegate->doubleClickInTable();
    EXPECT_THAT(Numbers(), ElementsAre("30", "10", "99", "40"));
    EXPECT_THAT(Shown_Numbers(), ElementsAre("99", "40", "30", "10"));
    EXPECT_THAT(m_delegate->Selected_Recipient_Rows(), ElementsAre(2)); // it is elsewhere in the table now
}

TEST_F(Find, Messages_Of_Selected_Recipients_Are_Theirs)
{
    Seek("anna");
    Sort(0, Qt::DescendingOrder); // 40 10
    Select_Rows({0});
    user.When_Opens("Update_Sel_Num_SMS", [](QWidget& editor) {
        EXPECT_THAT(Rows_Of(*editor.findChild<QTableView*>()), ElementsAre("40"));
        static_cast<QDialog&>(editor).reject();
    });
    Click("Update_Sel_Msgs_Btn");
    EXPECT_EQ(m_delegate->Selected_Recipient_Rows(), std::vector<int>{3});
}

TEST_F(Find, Outcomes_Stand_Beside_Their_Recipients_And_Can_Be_Sorted_And_Found)
{
    Sort(0); // 10 20 30 40
    Set_Outcomes({Row_State::Refused, Row_State::Taken, Row_State::Not_Tried, Row_State::Taken});
    m_delegate->End_Outcomes();
    const QString taken = Shown(0, 2);
    EXPECT_EQ(Shown(3, 2), taken);
    EXPECT_TRUE(Shown(2, 2).contains("refused"));
    Sort(2);
    EXPECT_EQ(Shown_Numbers().size(), 4);
    Seek("refused");
    EXPECT_THAT(Shown_Numbers(), ElementsAre("30"));
    Click("Select_Not_Taken"); // all of them, so all are shown
    EXPECT_THAT(Shown_Numbers(), ElementsAre("30", "10", "20", "40"));
    EXPECT_THAT(m_delegate->Selected_Recipient_Rows(), ElementsAre(0, 2));
    EXPECT_FALSE(The<QWidget>("_Find_Strip").isVisible());
    Seek("anna");
    Click("Keep_Not_Taken");
    EXPECT_THAT(Numbers(), ElementsAre("30", "20"));
}

TEST_F(Find, Outcomes_That_Come_Are_Shown_Where_Their_Recipients_Are)
{
    Sort(0, Qt::DescendingOrder); // 40 30 20 10
    m_delegate->Begin_Outcomes();
    QSignalSpy changed(Table().model(), &QAbstractItemModel::dataChanged);
    Outcome_Codes codes;
    const QByteArray mark(1, static_cast<char>(codes.Code_Of({Row_State::Taken, {}})));
    m_delegate->Take_Outcomes(1, mark, codes); // of 10
    ASSERT_EQ(changed.size(), 1);
    EXPECT_LE(changed[0][0].toModelIndex().row(), 3);
    EXPECT_EQ(changed[0][1].toModelIndex().row(), 3);
    EXPECT_NE(Shown(3, 2), Shown(0, 2));
}

TEST_F(Find, A_Column_That_Goes_Takes_Its_Order_With_It)
{
    Set_Outcomes({Row_State::Refused, Row_State::Taken, Row_State::Taken, Row_State::Taken});
    m_delegate->End_Outcomes();
    Sort(2, Qt::DescendingOrder);
    m_delegate->Replace_Recipients(Recipient_List());
    EXPECT_EQ(Table().horizontalHeader()->sortIndicatorSection(), -1);
    Add("1");
    EXPECT_THAT(Shown_Numbers(), ElementsAre("1"));
}

TEST_F(Find, Reset_Shows_All_As_They_Stand)
{
    Seek("anna");
    Sort(0);
    Click("Reset_Btn");
    EXPECT_FALSE(The<QWidget>("_Find_Strip").isVisible());
    Click("Undo_Btn");
    EXPECT_THAT(Shown_Numbers(), ElementsAre("30", "10", "20", "40"));
}

TEST_F(Find, Copies_The_Selected_Rows_As_They_Are_Shown)
{
    Sort(0, Qt::DescendingOrder); // 40 30 20 10
    Select_Rows({1, 2});
    Table().setFocus();
    Press_Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "30\tcarol\n20\tbob\n");
    Table().clearSelection();
    Press_Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "30\tcarol\n20\tbob\n");
}

TEST_F(Find, The_Menu_Of_The_Table_Has_What_Can_Be_Done_With_Rows_Under_The_Key_For_It_Too)
{
    QStringList names;
    for (const QAction* action : Menu_Of_Table())
        names.append(action->menu() ? action->menu()->objectName() : action->objectName());
    EXPECT_THAT(names, ElementsAre("Edit_Recipient", "Copy_Rows", "Paste_Numbers", "Clear_Sel_Btn_Action", "Find_Rows",
                                   "Row_Orders"));
    Select_Rows({0});
    Table().setFocus();
    QStringList shown;
    QTimer::singleShot(0, &Table(), [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        for (const QAction* action : menu->actions())
            shown.append(action->text().remove(u'&').section(u'\t', 0, 0));
        menu->close();
    });
    QContextMenuEvent by_key(QContextMenuEvent::Keyboard, QPoint(5, 5), Table().viewport()->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(Table().viewport(), &by_key);
    EXPECT_THAT(shown, ElementsAre("Edit ...", "Copy", "Paste numbers", "Clear Selected", "Find ...", "Sort"));
    user.When_Opens("Update_Num_SMS", [](QWidget& editor) { static_cast<QDialog&>(editor).reject(); });
    Entry("Edit_Recipient").trigger();
    Entry("Clear_Sel_Btn_Action").trigger();
    EXPECT_THAT(Numbers(), ElementsAre("10", "20", "40"));
}

TEST_F(Find, A_Recipient_Added_To_A_Million_That_Are_Searched_Costs_No_Copy)
{
    constexpr int Many = 1'000'000;
    Recipient_List list = m_delegate->Recipients();
    for (int i = 0; i < Many; ++i)
        list.Append(QString::number(10'000'000'000 + i), "the same for all");
    m_delegate->Replace_Recipients(std::exchange(list, {}));
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    const void* message = &m_delegate->Recipients().Message_At(Many);
    Sort(0, Qt::DescendingOrder);
    Seek("999");
    Heartbeat heartbeat;
    Add("5");
    EXPECT_EQ(&m_delegate->Recipients().Message_At(Many), message);
    EXPECT_TRUE(Serve_Until([this] { return The<QLabel>("_Find_Count").text().contains("of"); }, 60));
    EXPECT_LT(heartbeat.Longest_Work(), 1.0);
    EXPECT_EQ(Shown(0, 0), "10000999999");
    EXPECT_EQ(m_delegate->Recipients().Numbers().At(Many + 4), "5");
}
