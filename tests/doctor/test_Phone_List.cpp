#include "doctor/Phone_List.h"

#include <gmock/gmock.h>

namespace {

TEST(Phone_List, A_Device_Is_Called_By_Its_Path_From_The_Ninth_Character_Or_By_Its_File_Name)
{
    const std::vector<std::pair<QStringView, QStringView>> rows = {{u"/dev/cu.Phone-1", u"Phone-1"},
                                                                   {u"/dev/ttyUSB0", u"USB0"},
                                                                   {u"/dev/ttyACM12", u"ACM12"},
                                                                   {u"/dev/rfcomm0", u"omm0"},
                                                                   {u"/dev/pts/7", u"/7"},
                                                                   {u"/dev/tty", u"tty"},
                                                                   {u"/dev/x", u"x"},
                                                                   {u"/dev/abc  \t", u"abc  \t"},
                                                                   {u"/tmp/a/phone/link", u"link"},
                                                                   {u"/device/tty1", u"tty1"},
                                                                   {u"relative/port", u"port"},
                                                                   {u"/dev/cu. name ", u"name"},
                                                                   {u"/dev/serial/by-id/x", u"ial/by-id/x"},
                                                                   {u"", u""}};
    for (const auto& [path, name] : rows)
        EXPECT_EQ(Phone_List::Display_Name(path.toString()), name) << path.toString().toStdString();
}

TEST(Phone_List, A_Row_Holds_Its_Four_Values_Under_Their_Keys_With_The_Name_Trimmed_And_Nothing_Else)
{
    Phone_List list;
    EXPECT_FALSE(list.Create_Port_List(" \t\n", "/dev/ttyUSB0", "", "")) << "a name of blanks alone";
    EXPECT_FALSE(list.Create_Port_List("", "/dev/ttyUSB0", "", ""));
    EXPECT_TRUE(list.Create_Port_List(" USB0\n", "/dev/ttyUSB0 ", "free", "490154203237518"));
    ASSERT_EQ(list.Count(), 1);
    EXPECT_EQ(list.Value("COM_PORT", 0), "USB0");
    EXPECT_EQ(list.Value("PORT_DETAL", 0), "/dev/ttyUSB0 ");
    EXPECT_EQ(list.Value("PORT_STATUS", 0), "free");
    EXPECT_EQ(list.Value("IMEI", 0), "490154203237518");
    EXPECT_EQ(list.Name(0), "USB0");
    EXPECT_EQ(list.Path(0), "/dev/ttyUSB0 ");

    // A row or key that is not there shows nothing.
    for (const int row : {-1, 1, 1000000})
        EXPECT_EQ(list.Value("COM_PORT", row), "") << row;
    EXPECT_EQ(list.Value("com_port", 0), "");
    EXPECT_EQ(list.Name(Phone_List::No_Row), "");
    EXPECT_TRUE(list.Is_Row(0));
    EXPECT_FALSE(list.Is_Row(1));
    EXPECT_FALSE(list.Is_Row(Phone_List::No_Row));
    list.Clear();
    EXPECT_FALSE(list.Is_Row(0));
}

} // namespace
