#include "engine/Outcome_Codes.h"
#include "gui/Remembering_Program.h"
#include "windows/stores/Sent_Items.h"

// Columns have the widths again that a person has dragged them to.
class Column_Widths_Again : public Remembered_Things
{
protected:
    static constexpr char Key[] = "Windows/Columns/CorvaneAppDelegate.idTableView";

    QHeaderView& Headings() { return *The<QTableView>("idTableView").horizontalHeader(); }
    int Width(int column) { return Headings().sectionSize(column); }
    int Width_Of_All()
    {
        int width = 0;
        for (int column = 0; column < Headings().count(); ++column)
            width += Width(column);
        return width;
    }
    /// As a hand does it with the mouse.
    static void Drag_End_Of(QHeaderView& headings, int column, int by)
    {
        QWidget& ground = *headings.viewport();
        const QPoint end(headings.sectionViewportPosition(column) + headings.sectionSize(column) - 1,
                         ground.height() / 2);
        const auto send = [&](QEvent::Type type, QPoint place, Qt::MouseButton button, Qt::MouseButtons held) {
            QMouseEvent event(type, place, ground.mapToGlobal(place), button, held, Qt::NoModifier);
            QApplication::sendEvent(&ground, &event);
        };
        send(QEvent::MouseButtonPress, end, Qt::LeftButton, Qt::LeftButton);
        for (const int way : {by / 2, by})
            send(QEvent::MouseMove, end + QPoint(way, 0), Qt::NoButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, end + QPoint(by, 0), Qt::LeftButton, Qt::NoButton);
    }
    void Drag(int column, int by) { Drag_End_Of(Headings(), column, by); }
    void Let_A_Job_Begin()
    {
        Window().Create_Num_Msg_List("1", "one");
        Window().Begin_Outcomes();
        QCoreApplication::processEvents();
    }
    QString Kept() const { return Settings_File(Settings_Path).Word_At(Key); }
};

TEST_F(Column_Widths_Again, Of_The_List_As_It_Was_Left_And_Nothing_Is_Kept_Of_What_The_Program_Does)
{
    const int usual = Width(0);
    Headings().resizeSection(0, usual + 20);
    Leave_And_Begin_Again();
    EXPECT_EQ(Width(0), usual);
    EXPECT_FALSE(QFile::exists(Settings_Path));
    Drag(0, 50);
    EXPECT_EQ(Width(0), usual + 50);
    Leave_And_Begin_Again();
    EXPECT_EQ(Width(0), usual + 50);
    EXPECT_EQ(Width_Of_All(), Headings().viewport()->width()) << "the messages take what is left";
    Drag(0, -30);
    Leave_And_Begin_Again();
    EXPECT_EQ(Width(0), usual + 20);
}

TEST_F(Column_Widths_Again, Outcomes_Come_With_Their_Usual_Width_Until_A_Hand_Gives_Them_Another)
{
    Let_A_Job_Begin();
    const int usual = Width(2);
    Leave_And_Begin_Again();
    Drag(0, 25);
    const int number = Width(0);
    Leave_And_Begin_Again();
    Let_A_Job_Begin();
    EXPECT_EQ(Headings().count(), 3);
    EXPECT_EQ(Width(2), usual);
    EXPECT_EQ(Width(0), number);
    EXPECT_EQ(Width_Of_All(), Headings().viewport()->width());
    Drag(2, -15);
    EXPECT_EQ(Width(2), usual - 15);
    Window().End_Outcomes();
    Leave_And_Begin_Again();
    EXPECT_EQ(Headings().count(), 2);
    EXPECT_EQ(Width(0), number);
    Let_A_Job_Begin();
    EXPECT_EQ(Width(2), usual - 15);
    EXPECT_EQ(Width(0), number);
    EXPECT_EQ(Width_Of_All(), Headings().viewport()->width());
    Window().Replace_Recipients({});
    EXPECT_EQ(Headings().count(), 2);
    EXPECT_EQ(Width(0), number);
    EXPECT_EQ(Width_Of_All(), Headings().viewport()->width());
}

TEST_F(Column_Widths_Again, Nonsense_Is_Ignored_And_Hides_No_Column)
{
    const int usual = Width(0);
    const QString as_wide_as_the_table = QStringLiteral("0=%1").arg(Headings().viewport()->width());
    Leave();
    for (const QString& word :
         {as_wide_as_the_table, QStringLiteral("0=0"), QStringLiteral("0=1"), QStringLiteral("0=-50"),
          QStringLiteral("0=90000"), QStringLiteral("0=1e2"), QStringLiteral("0=99999999999999999999"),
          QStringLiteral("0"), QStringLiteral("="), QStringLiteral("200"), QStringLiteral("0=200=200"),
          QStringLiteral("x=200"), QStringLiteral("-1=200"), QStringLiteral("99=200"), QStringLiteral("0=200 nonsense"),
          QStringLiteral("0=200,1=5"), QString(5000, u'7'), QStringLiteral("1=1 2=1")}) {
        EXPECT_TRUE(Settings_File(Settings_Path).Put_Word(Key, word));
        Begin();
        EXPECT_EQ(Width(0), usual) << word.left(40).toStdString();
        Let_A_Job_Begin();
        for (int column = 0; column < 3; ++column)
            EXPECT_GE(Width(column), Headings().minimumSectionSize()) << word.left(40).toStdString();
        EXPECT_EQ(Width_Of_All(), Headings().viewport()->width()) << word.left(40).toStdString();
        Leave();
    }
}

TEST_F(Column_Widths_Again, What_Has_No_Room_Waits_For_A_Wider_Window_Unless_A_Hand_Has_Another_Wish)
{
    const int usual = Width(0);
    const int wide = Headings().viewport()->width();
    Leave();
    EXPECT_TRUE(Settings_File(Settings_Path).Put_Word(Key, QStringLiteral("0=%1").arg(wide)));
    Begin();
    EXPECT_EQ(Width(0), usual);
    const QSize size = Window().size();
    Window().resize(size + QSize(600, 0));
    QCoreApplication::processEvents();
    EXPECT_EQ(Width(0), wide);
    Window().resize(size);
    QCoreApplication::processEvents();
    EXPECT_EQ(Width(0), usual);
    Drag(0, 10);
    EXPECT_EQ(Kept(), QStringLiteral("0=%1").arg(usual + 10));
    Window().resize(size + QSize(600, 0));
    QCoreApplication::processEvents();
    EXPECT_EQ(Width(0), usual + 10);
}

TEST_F(Column_Widths_Again, Of_The_Sent_Items_As_Well)
{
    constexpr int date = 2;
    const auto width_of_date = [] {
        return In<QTableView>(*Sent_Items::defaultInstance(), "idSendList").horizontalHeader()->sectionSize(date);
    };
    const auto visit =
        [this](const std::function<void(QWidget&)>& steps) { // in the running program, which is left then
            bool is_done = false;
            When_Filled(user, "Sent_Items", [&](QWidget& window) {
                steps(window);
                Click_In(window, "Cancel_Btn");
                is_done = true;
            });
            Leave_When([&] { return is_done; }, [this] { Click("Sent_Item_Btn"); });
        };
    int usual = 0;
    visit([&](QWidget& window) {
        usual = width_of_date();
        Drag_End_Of(*In<QTableView>(window, "idSendList").horizontalHeader(), date, 33);
    });
    Begin();
    int again = 0;
    visit([&](QWidget&) { again = width_of_date(); });
    EXPECT_EQ(again, usual + 33);
}
