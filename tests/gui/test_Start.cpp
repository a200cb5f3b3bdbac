#include "gui/Open_Program.h"
#include "toolkit/Main_Window.h"

using testing::ElementsAre;

class Start : public Open_Program
{
};

// Data_Paths says what it makes, with which permissions.
TEST_F(Start, What_Was_Made_At_First_Stays_And_What_Was_Deleted_Comes_Back_Empty)
{
    EXPECT_EQ(Resource_Path, qEnvironmentVariable("XDG_DATA_HOME") + "/corvane/Resources");
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "");
    Write_Bytes(Templates_Path, "kept\n");
    ASSERT_TRUE(QFile::remove(Sent_Item_Path));
    m_delegate->Check_Path_And_Create_Files();
    EXPECT_EQ(Bytes_Of(Templates_Path), "kept\n");
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), "");
}

TEST_F(Start, The_Window_Stands_In_Its_Start_State_With_Nothing_Chosen_For_A_Delay)
{
    EXPECT_EQ(Main_App_wnd, m_delegate.get());
    EXPECT_EQ(CorvaneAppDelegate::defaultInstance(), m_delegate.get());
    EXPECT_EQ(m_delegate->objectName(), "CorvaneAppDelegate");
    EXPECT_EQ(Count_Label(), "Total Numbers : 0");
    EXPECT_EQ(The<QLabel>("_Msg_char_count").text(), "0 Characters");
    const auto& type = The<QComboBox>("_Msg_TypeComboBox");
    EXPECT_EQ(type.currentIndex(), 1);
    EXPECT_EQ(type.itemText(0), "Notification");
    EXPECT_EQ(The<QLabel>("_Device_Name_Ticker").text(), "No Mobile Phone Device is selected.");
    EXPECT_TRUE(The<QPushButton>("_NO_Device_Ticker").isVisible());
    EXPECT_EQ(m_delegate->Previous_Composer_Message(), "");
    const auto& sizes = The<QComboBox>("_delayed_msg_count_combo");
    const auto& pauses = The<QComboBox>("_delayed_time_combo");
    ASSERT_EQ(sizes.count(), 19);
    ASSERT_EQ(pauses.count(), 26);
    EXPECT_EQ(sizes.itemText(6), "15");
    EXPECT_EQ(sizes.itemText(18), "1000");
    EXPECT_EQ(pauses.itemText(0), "5  Seconds");
    EXPECT_EQ(pauses.itemText(12), " 2  Minutes");
    EXPECT_EQ(pauses.itemText(25), " 1  Hour");
    for (const auto* box : {&sizes, &pauses}) {
        EXPECT_FALSE(box->isEnabled());
        EXPECT_EQ(box->currentIndex(), -1);
        EXPECT_TRUE(box->currentText().isEmpty());
        EXPECT_EQ(box->completer(), nullptr);
        EXPECT_EQ(box->insertPolicy(), QComboBox::NoInsert);
    }
}

TEST_F(Start, The_Link_That_Offers_The_Wizard_Is_Red_Bold_And_Underlined)
{
    auto& link = The<QPushButton>("_NO_Device_Ticker");
    EXPECT_TRUE(link.font().bold());
    EXPECT_TRUE(link.font().underline());
    EXPECT_EQ(link.cursor().shape(), Qt::OpenHandCursor);
    const QImage picture = link.grab().toImage();
    int red = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            red += picture.pixelColor(x, y).red() > 180 && picture.pixelColor(x, y).green() < 80 ? 1 : 0;
    EXPECT_GT(red, 200);
    EXPECT_EQ(picture.pixelColor(1, 1), QColor(241, 244, 250));
}

TEST_F(Start, Closing_The_Window_And_Answering_No_Keeps_The_Program_Running)
{
    int leaving = 0;
    QObject::connect(m_delegate.get(), &CorvaneAppDelegate::Exit_Wanted, [&leaving] { ++leaving; });
    user.Will_Press("No");
    m_delegate->close();
    EXPECT_TRUE(m_delegate->isVisible());
    user.Will_Press_Escape();
    Click("Exit_Btn");
    EXPECT_EQ(leaving, 0);
    EXPECT_THAT(user.Was_Shown(), ElementsAre("\nDo you really want to exit from 'Corvane'?",
                                              "\nDo you really want to exit from 'Corvane'?"));
    user.Will_Press("Yes");
    Click("Exit_Btn");
    EXPECT_EQ(leaving, 1);
}

TEST_F(Start, Help_Opens_Over_The_Window_And_Ends_With_OK)
{
    user.When_Opens("Help_Wnd", [](QWidget& help) {
        EXPECT_TRUE(help.isModal());
        Click_In(help, "OKPressed");
    });
    Click("Help_Btn");
}

TEST(Start_Without_A_Data_Folder, Is_Told_And_Ends)
{
    const QTemporaryDir home;
    Write_Bytes(home.filePath("corvane"), "in the way");
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    User user;
    user.Will_Press("OK");
    {
        CorvaneAppDelegate delegate;
        EXPECT_FALSE(delegate.awakeFromNib());
    }
    EXPECT_THAT(user.Was_Shown(), ElementsAre("\nCan not access Corvane Data file."));
    End_Shared_Instances();
}
