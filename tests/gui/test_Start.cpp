#include "gui/Open_Program.h"
#include "platform/Waiting.h"
#include "records/Data_Paths.h"
#include "toolkit/Main_Window.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <sys/stat.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

unsigned Mode_Of(const QString& path)
{
    struct stat status = {};
    stat(QFile::encodeName(path).constData(), &status);
    return status.st_mode & 07777;
}

} // namespace

class Start : public Open_Program
{
};

TEST_F(Start, A_First_Start_Creates_The_Data_Folder_And_Its_Empty_Files)
{
    const QString home = qEnvironmentVariable("XDG_DATA_HOME");
    EXPECT_EQ(Resource_Path, home + QStringLiteral("/corvane/Resources"));
    EXPECT_EQ(Corvane_Data_Folder_Path, Resource_Path + QStringLiteral("/CORVANE_DATA"));
    EXPECT_EQ(Mode_Of(home + QStringLiteral("/corvane")), 0700U);
    for (const QString& folder : {Resource_Path, Corvane_Data_Folder_Path, Exclusion_Folder_Path}) {
        EXPECT_TRUE(QFileInfo(folder).isDir()) << qPrintable(folder);
        EXPECT_EQ(Mode_Of(folder), 0777U) << qPrintable(folder);
    }
    for (const QString& file : {Sent_Item_Path, Templates_Path, Applied_Exclusion_Path, Exclusion_Index_Path}) {
        EXPECT_TRUE(QFileInfo(file).isFile()) << qPrintable(file);
        EXPECT_EQ(QFileInfo(file).size(), 0) << qPrintable(file);
        EXPECT_EQ(Mode_Of(file), 0777U) << qPrintable(file);
    }
    EXPECT_THAT(QDir(Corvane_Data_Folder_Path).entryList(QDir::Files, QDir::Name),
                ElementsAre(QStringLiteral("AppExclusion.ZOVA"), QStringLiteral("SentItem.ZOVA"),
                            QStringLiteral("Templates.ZOVA")));
    EXPECT_EQ(Exclusion_Index_Path, Corvane_Data_Folder_Path + QStringLiteral("/Exclusion/ExListIndex.ZOVA"));
}

TEST_F(Start, What_Is_There_Stays_And_What_Was_Deleted_Comes_Back_Empty)
{
    QFile templates(Templates_Path);
    ASSERT_TRUE(templates.open(QIODevice::WriteOnly));
    templates.write("kept\n");
    templates.close();
    ASSERT_TRUE(QFile::remove(Sent_Item_Path));
    m_delegate->Check_Path_And_Create_Files();
    EXPECT_EQ(QFileInfo(Templates_Path).size(), 5);
    EXPECT_TRUE(QFileInfo(Sent_Item_Path).isFile());
    EXPECT_EQ(QFileInfo(Sent_Item_Path).size(), 0);
}

TEST_F(Start, The_Window_Stands_In_Its_Start_State)
{
    EXPECT_EQ(Main_App_wnd, m_delegate.get());
    EXPECT_EQ(CorvaneAppDelegate::defaultInstance(), m_delegate.get());
    EXPECT_EQ(m_delegate->objectName(), QStringLiteral("CorvaneAppDelegate"));
    EXPECT_EQ(Count_Label(), QStringLiteral("Total Numbers : 0"));
    EXPECT_EQ(The<QLabel>("_Msg_char_count").text(), QStringLiteral("0 Characters"));
    const auto& type = The<QComboBox>("_Msg_TypeComboBox");
    EXPECT_EQ(type.currentIndex(), 1);
    EXPECT_EQ(type.itemText(0), QStringLiteral("Notification"));
    EXPECT_EQ(The<QLabel>("_Device_Name_Ticker").text(), QStringLiteral("No Mobile Phone Device is selected."));
    EXPECT_TRUE(The<QPushButton>("_NO_Device_Ticker").isVisible());
    EXPECT_TRUE(m_delegate->Previous_Composer_Message().isEmpty());
}

TEST_F(Start, The_Delayed_Delivery_Boxes_Have_Their_Items_And_Nothing_Selected)
{
    const auto& sizes = The<QComboBox>("_delayed_msg_count_combo");
    const auto& pauses = The<QComboBox>("_delayed_time_combo");
    ASSERT_EQ(sizes.count(), 19);
    ASSERT_EQ(pauses.count(), 26);
    EXPECT_EQ(sizes.itemText(6), QStringLiteral("15"));
    EXPECT_EQ(sizes.itemText(18), QStringLiteral("1000"));
    EXPECT_EQ(pauses.itemText(0), QStringLiteral("5  Seconds"));
    EXPECT_EQ(pauses.itemText(12), QStringLiteral(" 2  Minutes"));
    EXPECT_EQ(pauses.itemText(25), QStringLiteral(" 1  Hour"));
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
    user.Will_Press(QStringLiteral("No"));
    m_delegate->close();
    EXPECT_TRUE(m_delegate->isVisible());
    user.Will_Press_Escape();
    Click("Exit_Btn");
    EXPECT_EQ(leaving, 0);
    EXPECT_THAT(user.Was_Shown(), ElementsAre(QStringLiteral("\nDo you really want to exit from 'Corvane'?"),
                                              QStringLiteral("\nDo you really want to exit from 'Corvane'?")));
    user.Will_Press(QStringLiteral("Yes"));
    Click("Exit_Btn");
    EXPECT_EQ(leaving, 1);
}

TEST_F(Start, Help_Opens_Over_The_Window_And_Ends_With_OK)
{
    bool was_modal = false;
    user.When_Opens(QStringLiteral("Help_Wnd"), [&](QWidget& help) {
        was_modal = help.isModal();
        QTest::mouseClick(help.findChild<QPushButton*>(QStringLiteral("OKPressed")), Qt::LeftButton);
    });
    Click("Help_Btn");
    EXPECT_TRUE(was_modal);
}

TEST(Start_Without_A_Data_Folder, Is_Told_And_Ends)
{
    const QTemporaryDir home;
    const QString in_the_way = home.filePath(QStringLiteral("corvane"));
    QFile file(in_the_way);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    User user;
    user.Will_Press(QStringLiteral("OK"));
    {
        CorvaneAppDelegate delegate;
        EXPECT_FALSE(delegate.awakeFromNib());
    }
    EXPECT_THAT(user.Was_Shown(), ElementsAre(QStringLiteral("\nCan not access Corvane Data file.")));
    End_Shared_Instances();
}
