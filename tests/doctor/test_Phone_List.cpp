#include "doctor/Phone_List.h"

#include <gmock/gmock.h>

namespace {

TEST(Phone_List, A_Device_Is_Called_By_Its_Path_From_The_Ninth_Character_Or_By_Its_File_Name)
{
    const struct
    {
        const char* path;
        const char* name;
    } cases[] = {
        {"/dev/cu.Phone-1", "Phone-1"},
        {"/dev/ttyUSB0", "USB0"},
        {"/dev/ttyACM12", "ACM12"},
        {"/dev/rfcomm0", "omm0"},
        {"/dev/pts/7", "/7"},
        {"/dev/tty", "tty"},
        {"/dev/x", "x"},
        {"/dev/abc  \t", "abc  \t"},
        {"/tmp/a/phone/link", "link"},
        {"/device/tty1", "tty1"},
        {"relative/port", "port"},
        {"/dev/cu. name ", "name"},
        {"/dev/serial/by-id/x", "ial/by-id/x"},
        {"", ""},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Phone_List::Display_Name(one.path), one.name) << one.path;
}

TEST(Phone_List, A_Row_Holds_Its_Four_Values_Under_Their_Keys_With_The_Name_Trimmed)
{
    Phone_List list;
    EXPECT_TRUE(list.Create_Port_List(" USB0\n", "/dev/ttyUSB0 ", "free", "490154203237518"));
    ASSERT_EQ(list.Count(), 1);
    EXPECT_EQ(list.Value("COM_PORT", 0), "USB0");
    EXPECT_EQ(list.Value("PORT_DETAL", 0), "/dev/ttyUSB0 ");
    EXPECT_EQ(list.Value("PORT_STATUS", 0), "free");
    EXPECT_EQ(list.Value("IMEI", 0), "490154203237518");
    EXPECT_EQ(list.Name(0), "USB0");
    EXPECT_EQ(list.Path(0), "/dev/ttyUSB0 ");
}

TEST(Phone_List, A_Name_Of_Blanks_Alone_Adds_Nothing)
{
    Phone_List list;
    EXPECT_FALSE(list.Create_Port_List(" \t\n", "/dev/ttyUSB0", "", ""));
    EXPECT_FALSE(list.Create_Port_List("", "/dev/ttyUSB0", "", ""));
    EXPECT_EQ(list.Count(), 0);
}

TEST(Phone_List, A_Row_Or_Key_That_Is_Not_There_Shows_Nothing)
{
    Phone_List list;
    list.Create_Port_List("USB0", "/dev/ttyUSB0", "", "");
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
