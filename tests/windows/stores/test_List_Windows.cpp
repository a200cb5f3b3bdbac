#include "records/Sent_Item_Store.h"
#include "records/Template_Store.h"
#include "support/Heartbeat.h"
#include "support/Keys.h"
#include "windows/stores/Export_Option.h"
#include "windows/stores/Open_Export_Log.h"
#include "windows/stores/Stores_Test.h"
#include "windows/stores/UpdateTemp.h"

// What the windows of the two stores do alike.

namespace {

struct List_Of
{
    const char* name;
    const QString* path;
    QByteArray (*line)(const QByteArray& text);
    List_Window& (*window)();
    int (*open)();
    void (*create)(const QString& text);
    bool (*append)(const QString& text);
    QString (*value)(const QTableView& table, int row);
    const char* list_in_words;
    friend void PrintTo(const List_Of& list, std::ostream* out) { *out << list.name; }
};

const List_Of Both[] = {
    {
        "Sent_Items",
        &Sent_Item_Path,
        [](const QByteArray& text) { return QByteArray("\a" + text + "\vm\ad\v\n"); },
        []() -> List_Window& { return *Sent_Items::defaultInstance(); },
        [] {
            Sent_Items::defaultInstance()->Open_Sent_Item_Wnd();
            return 0;
        },
        [](const QString& text) { SENT_WND->Create_Sent_Item_List(text, "m", "d", {}); },
        [](const QString& text) {
            return Sent_Item_Store::Append({text, "m", "d", {}});
        },
        [](const QTableView& table, int row) { return SENT_WND->tableView(&table, "Number", row); },
        "nsSendListData",
    },
    {
        "Templates",
        &Templates_Path,
        [](const QByteArray& text) { return text + "\n"; },
        []() -> List_Window& { return *Templates::defaultInstance(); },
        [] { return Templates::defaultInstance()->Open_Template_Wnd(); },
        [](const QString& text) { Template_Window->Create_Template_List(text); },
        [](const QString& text) { return Template_Store::Append(text); },
        [](const QTableView& table, int row) { return Template_Window->tableView(&table, "Message", row); },
        "nsTemplateListData",
    },
};

class Each_List : public Stores_Test, public testing::WithParamInterface<List_Of>
{
protected:
    int Visit(const std::function<void()>& visit)
    {
        Expect_Visit(GetParam().window(), visit);
        return GetParam().open();
    }
    static QByteArray Lines(const QByteArrayList& texts)
    {
        QByteArray lines;
        for (const auto& text : texts)
            lines += GetParam().line(text);
        return lines;
    }
    static void Store(const QByteArray& bytes) { Write_Bytes(*GetParam().path, bytes); }
    static QByteArray Stored() { return Bytes_Of(*GetParam().path); }
};

INSTANTIATE_TEST_SUITE_P(Of, Each_List, testing::ValuesIn(Both), [](const auto& row) { return row.param.name; });

} // namespace

TEST_P(Each_List, Opens_After_One_Second_Only_Once_And_Not_When_The_Program_Exits)
{
    Set_Pace(10);
    const double pressed_at = Now_Seconds();
    double shown_at = 0;
    Visit([&] {
        shown_at = Now_Seconds();
        EXPECT_EQ(GetParam().open(), 0);
    });
    EXPECT_GE(shown_at - pressed_at, 0.1);
    const QByteArray as_no_window_writes_it = Lines({"1"}) + "\n";
    Store(as_no_window_writes_it);
    Begin_Program_Exit();
    GetParam().open();
    EXPECT_FALSE(GetParam().window().isVisible());
    EXPECT_EQ(Stored(), as_no_window_writes_it);
}

TEST_P(Each_List, An_Empty_Missing_Or_Undecodable_File_Is_An_Empty_Table_Without_A_Word)
{
    const auto expect_empty = [this] {
        EXPECT_EQ(Count_Label(), "Total Items : 0");
        EXPECT_EQ(Table().model()->rowCount(), 0);
    };
    Visit(expect_empty);
    ASSERT_TRUE(QFile::remove(*GetParam().path));
    Visit(expect_empty);
    Store(Lines({"1"}) + "\xff\n");
    Visit(expect_empty);
    EXPECT_EQ(Stored(), QByteArray());
    EXPECT_EQ(Bytes_Of(Kept_Path(*GetParam().path)), Lines({"1"}) + "\xff\n");
}

TEST_P(Each_List, Selected_Rows_Leave_It_At_Once_And_The_File_On_Close)
{
    Store(Lines({"1", "2", "3", "4", "5"}));
    Visit([this] {
        Select(1);
        Select_Also(3);
        QTest::keyPress(&Table(), Qt::Key_Control, Qt::ControlModifier);
        QTest::mouseClick(&The<QPushButton>("Clear_Sel_Btn"), Qt::LeftButton, Qt::ControlModifier);
        QTest::keyRelease(&Table(), Qt::Key_Control);
        EXPECT_EQ(Shown(), (QStringList{"1", "3", "5"}));
        EXPECT_EQ(Count_Label(), "Total Items : 3");
        EXPECT_EQ(Selected(), std::vector{0}) << "and no other, whatever keys are held";
        EXPECT_EQ(Stored(), Lines({"1", "2", "3", "4", "5"}));
    });
    EXPECT_EQ(Stored(), Lines({"1", "3", "5"}));
    Visit([this] {
        Select(0, 2);
        EXPECT_NE(Detail(), QString());
        Click("Clear_Sel_Btn");
        EXPECT_EQ(Shown(), QStringList());
        EXPECT_EQ(Count_Label(), "Total Items : 0");
        EXPECT_EQ(Detail(), QString());
    });
    EXPECT_EQ(Stored(), QByteArray());
}

TEST_P(Each_List, Clearing_All_Asks_And_Empties_It_And_The_File_At_Once)
{
    Store(Lines({"1", "2", "3"}));
    m_user.Will_Press("No");
    m_user.Will_Press("Yes");
    Visit([this] {
        Select(2);
        Click("Clear_All_Btn");
        EXPECT_EQ(Shown(), (QStringList{"1", "2", "3"}));
        Click("Clear_All_Btn");
        EXPECT_EQ(Shown(), QStringList());
        EXPECT_EQ(Count_Label(), "Total Items : 0");
        EXPECT_EQ(Detail(), QString());
        EXPECT_EQ(Stored(), QByteArray());
    });
    const QString question = "\nThis option will clear the entire list contents. Are you sure you want "
                             "to continue clearing the entire list?";
    EXPECT_EQ(m_user.Was_Shown(), (QStringList{question, question}));
    EXPECT_EQ(Stored(), QByteArray());
}

TEST_P(Each_List, What_Is_Appended_While_It_Is_Open_Is_Still_There_After_It_Closes)
{
    Store(Lines({"1", "2", "3"}));
    Visit([this] {
        EXPECT_TRUE(GetParam().append("7"));
        Clear(1);
    });
    EXPECT_EQ(Stored(), Lines({"1", "3", "7"}));
    m_user.Will_Press("Yes");
    Visit([this] {
        EXPECT_TRUE(GetParam().append("8"));
        Click("Clear_All_Btn");
        EXPECT_TRUE(GetParam().append("9"));
    });
    EXPECT_EQ(Stored(), Lines({"8", "9"}));
}

TEST_P(Each_List, Escape_And_The_Close_Button_Write_It_Too)
{
    Store(Lines({"1", "2", "3"}));
    const std::function<void()> ways[] = {[this] { QTest::keyClick(m_visited, Qt::Key_Escape); },
                                          [this] { EXPECT_TRUE(m_visited->close()); }};
    for (const auto& leave : ways) {
        Visit([&] {
            Clear(0);
            leave();
            EXPECT_FALSE(m_visited->isVisible());
        });
    }
    EXPECT_EQ(Stored(), Lines({"3"}));
}

TEST_P(Each_List, The_Delete_Key_Takes_The_Selected_Row_Out_Once_And_Alt_And_A_Nothing)
{
    Store(Lines({"1", "2", "3"}));
    Visit([this] {
        Press_Key(Qt::Key_A, Qt::AltModifier);
        EXPECT_EQ(Shown(), (QStringList{"1", "2", "3"}));
        Select(1);
        Hold_Down(Qt::Key_Delete);
        EXPECT_EQ(Shown(), (QStringList{"1", "3"}));
        EXPECT_EQ(Selected(), std::vector{0});
    });
    EXPECT_EQ(Stored(), Lines({"1", "3"}));
}

TEST_P(Each_List, The_Count_Label_Reloads_The_Table_Once_At_Exactly_Ten)
{
    Visit([this] {
        for (int i = 1; i <= 12; ++i) {
            GetParam().create(QString::number(i));
            EXPECT_EQ(Count_Label(), QString("Total Items : %1").arg(i));
            EXPECT_EQ(Table().model()->rowCount(), i < 10 ? 0 : 10);
        }
    });
}

TEST_P(Each_List, A_Long_Load_Shows_Its_First_Ten_Rows_Early)
{
    QByteArrayList texts;
    for (int i = 0; i < 500; ++i)
        texts.append(QByteArray::number(i));
    Store(Lines(texts));
    QList<int> rows_shown;
    const auto* rows = GetParam().window().findChild<QTableView*>()->model();
    QObject::connect(rows, &QAbstractItemModel::rowsInserted, rows, [&] { rows_shown.append(rows->rowCount()); });
    Visit([] {});
    EXPECT_EQ(rows_shown, (QList{10, 500}));
}

TEST_P(Each_List, A_Row_Outside_It_Is_An_Invalid_Parameter)
{
    const std::string message = "Invalid parameter not satisfying: pRowIndex >= 0 && pRowIndex < [" +
                                std::string(GetParam().list_in_words) + " count]";
    Store(Lines({"1"}));
    Visit([&] {
        for (const int row : {-1, 1})
            EXPECT_THAT([&] { GetParam().value(Table(), row); }, testing::ThrowsMessage<Invalid_Parameter>(message));
        EXPECT_EQ(GetParam().value(Table(), 0), "1");
        const QTableView other;
        EXPECT_EQ(GetParam().window().numberOfRowsInTableView(&Table()), 1);
        EXPECT_EQ(GetParam().window().numberOfRowsInTableView(&other), 0);
    });
}

TEST_F(Stores_Test, The_Interface_Thread_Goes_On_With_Its_Events_While_Many_Records_Load_Shrink_And_Are_Written)
{
    constexpr int Many = 200'000;
    Write_Bytes(Sent_Item_Path, Records(Many));
    Heartbeat heartbeat;
    double load_gap = 0;
    Visit_Sent_Items([&] {
        load_gap = heartbeat.Longest_Gap();
        EXPECT_EQ(Count_Label(), "Total Items : 200000");
        EXPECT_EQ(Table().model()->rowCount(), Many);
        Clear(0, Many / 2 - 1);
        EXPECT_EQ(Table().model()->rowCount(), Many / 2);
        EXPECT_EQ(Table().model()->index(0, 0).data().toString(), QString::number(1000 + Many / 2));
    });
    EXPECT_LT(load_gap, heartbeat.Whole() / 2);
    EXPECT_LT(heartbeat.Longest_Gap(), heartbeat.Whole() / 2);
    EXPECT_EQ(Bytes_Of(Sent_Item_Path).count('\n'), Many / 2);
}

TEST_F(Stores_Test, The_Shared_Windows_Are_Known_By_Their_Globals_And_Have_The_Colour_Of_The_Exported_Page)
{
    EXPECT_EQ(Template_Window, nullptr);
    EXPECT_EQ(Sent_Items::defaultInstance(), Sent_Items::defaultInstance());
    EXPECT_EQ(Templates::defaultInstance(), Templates::defaultInstance());
    EXPECT_EQ(SENT_WND, Sent_Items::defaultInstance());
    EXPECT_EQ(Template_Window, Templates::defaultInstance());
    EXPECT_EQ(SENT_WND->objectName(), "Sent_Items");
    EXPECT_EQ(UpdateTemp::defaultInstance()->parentWidget(), Template_Window);
    const QColor page(0xf1, 0xf4, 0xfa);
    EXPECT_EQ(In<QPlainTextEdit>(*SENT_WND, "_Mess_det_edit").palette().color(QPalette::Base), page);
    EXPECT_EQ(Export_Option::defaultInstance()->palette().color(QPalette::Window), page);
    EXPECT_EQ(Open_Export_Log::defaultInstance()->palette().color(QPalette::Window), page);
    End_Shared_Instances();
    EXPECT_EQ(SENT_WND, nullptr);
    EXPECT_EQ(Template_Window, nullptr);
}
