#include "records/Program_Settings.h"

#include "records/Store_Files.h"

#include <QDir>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace {

const Confirm_Choices All{true, true, true};
const Confirm_Choices One{true, false, false};

class Remembered_Settings : public testing::Test
{
protected:
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath("Settings.ini");
    Program_Settings m_settings{m_path};
};

TEST_F(Remembered_Settings, Are_None_At_First_And_Nothing_Is_Written)
{
    EXPECT_EQ(m_settings.Remembered(), std::nullopt);
    EXPECT_TRUE(m_settings.Forget());
    EXPECT_THAT(QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), testing::IsEmpty());
}

TEST_F(Remembered_Settings, Come_Back_As_They_Were_And_Belong_To_The_User_Alone)
{
    for (const Confirm_Choices& choices : {All, One, Confirm_Choices{}}) {
        ASSERT_TRUE(m_settings.Remember(choices));
        EXPECT_EQ(Program_Settings(m_path).Remembered(), choices);
        EXPECT_EQ(Permissions_Of(m_path), 0600U);
    }
    EXPECT_THAT(QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                testing::ElementsAre("Settings.ini"));
}

TEST_F(Remembered_Settings, Go_With_Their_File)
{
    ASSERT_TRUE(m_settings.Remember(All));
    EXPECT_TRUE(m_settings.Forget());
    EXPECT_FALSE(QFile::exists(m_path));
    EXPECT_EQ(m_settings.Remembered(), std::nullopt);
}

TEST_F(Remembered_Settings, Leave_What_Others_Have_Written_In_The_File)
{
    Write_Bytes(m_path, "[Other]\nName=7\n");
    EXPECT_EQ(m_settings.Remembered(), std::nullopt);
    ASSERT_TRUE(m_settings.Remember(One));
    EXPECT_EQ(m_settings.Remembered(), One);
    EXPECT_TRUE(m_settings.Forget());
    EXPECT_THAT(Bytes_Of(m_path).toStdString(), testing::HasSubstr("Name=7"));
    EXPECT_EQ(m_settings.Remembered(), std::nullopt);
}

TEST_F(Remembered_Settings, An_Appearance_Is_Remembered_Beside_The_Others_And_Forgotten_Alone)
{
    EXPECT_EQ(m_settings.Appearance(), "");
    ASSERT_TRUE(m_settings.Choose_Appearance("Dark"));
    EXPECT_EQ(m_settings.Remembered(), std::nullopt);
    EXPECT_EQ(Permissions_Of(m_path), 0600U);
    ASSERT_TRUE(m_settings.Remember(All));
    EXPECT_EQ(Program_Settings(m_path).Appearance(), "Dark");
    EXPECT_TRUE(m_settings.Forget());
    EXPECT_EQ(m_settings.Appearance(), "Dark");
    EXPECT_TRUE(m_settings.Choose_Appearance({}));
    EXPECT_EQ(m_settings.Appearance(), "");
    EXPECT_FALSE(QFile::exists(m_path));
}

TEST_F(Remembered_Settings, A_Notice_Is_Wanted_Until_It_Is_Not_And_The_File_Goes_With_The_Last_Wish)
{
    EXPECT_TRUE(m_settings.Wants_Notice("One"));
    EXPECT_TRUE(m_settings.Want_Notice("One", true));
    EXPECT_FALSE(QFile::exists(m_path));
    ASSERT_TRUE(m_settings.Want_Notice("One", false));
    EXPECT_EQ(Permissions_Of(m_path), 0600U);
    EXPECT_FALSE(Program_Settings(m_path).Wants_Notice("One"));
    EXPECT_TRUE(m_settings.Wants_Notice("Other"));
    EXPECT_EQ(m_settings.Remembered(), std::nullopt);
    ASSERT_TRUE(m_settings.Remember(One));
    EXPECT_FALSE(m_settings.Wants_Notice("One"));
    EXPECT_TRUE(m_settings.Want_Notice("One", true));
    EXPECT_EQ(m_settings.Remembered(), One);
    EXPECT_TRUE(m_settings.Want_Notice("One", false));
    EXPECT_TRUE(m_settings.Forget());
    EXPECT_FALSE(m_settings.Wants_Notice("One"));
    EXPECT_TRUE(m_settings.Want_Notice("One", true));
    EXPECT_FALSE(QFile::exists(m_path));
}

TEST_F(Remembered_Settings, A_Notice_Is_Wanted_Where_The_File_Is_Of_No_Use)
{
    Write_Bytes(m_path, QByteArray("\x00\xFF[=", 4));
    EXPECT_TRUE(m_settings.Wants_Notice("One"));
    QFile::remove(m_path);
    ASSERT_TRUE(QDir().mkdir(m_path));
    EXPECT_TRUE(m_settings.Wants_Notice("One"));
    EXPECT_FALSE(m_settings.Want_Notice("One", false));
}

TEST_F(Remembered_Settings, Are_Written_Although_A_Killed_Program_Left_Its_Lock)
{
    Write_Bytes(m_path + ".lock", "not a lock at all");
    EXPECT_TRUE(m_settings.Remember(All));
    EXPECT_EQ(m_settings.Remembered(), All);
}

TEST_F(Remembered_Settings, Are_Not_Written_Where_No_File_Can_Be)
{
    Write_Bytes(m_folder.filePath("in the way"), "a file");
    const Program_Settings nowhere(m_folder.filePath("in the way/Settings.ini"));
    EXPECT_FALSE(nowhere.Remember(All));
    EXPECT_EQ(nowhere.Remembered(), std::nullopt);
    for (const char* in_the_way : {"Settings.ini", "Settings.ini.lock"}) {
        ASSERT_TRUE(QDir(m_folder.path()).mkdir(in_the_way));
        EXPECT_FALSE(m_settings.Remember(All)) << in_the_way;
        EXPECT_EQ(m_settings.Remembered(), std::nullopt) << in_the_way;
        ASSERT_TRUE(QDir(m_folder.path()).rmdir(in_the_way));
    }
}

TEST_F(Remembered_Settings, Are_Not_Read_From_A_Pipe_Which_Would_Never_End)
{
    ASSERT_EQ(mkfifo(qPrintable(m_path), 0600), 0);
    EXPECT_EQ(m_settings.Remembered(), std::nullopt);
    EXPECT_FALSE(m_settings.Remember(All));
    EXPECT_FALSE(m_settings.Forget());
}

struct Case
{
    const char* name;
    QByteArray bytes;
};

void PrintTo(const Case& row, std::ostream* stream)
{
    *stream << row.name;
}

class Foreign_Settings : public testing::TestWithParam<Case>
{
};

TEST_P(Foreign_Settings, Are_As_None_And_Are_Written_Over)
{
    const QTemporaryDir folder;
    const Program_Settings settings(folder.filePath("Settings.ini"));
    Write_Bytes(folder.filePath("Settings.ini"), GetParam().bytes);
    EXPECT_EQ(settings.Remembered(), std::nullopt);
    if (settings.Remember(All))
        EXPECT_EQ(settings.Remembered(), All);
    else
        EXPECT_EQ(Bytes_Of(folder.filePath("Settings.ini")), GetParam().bytes);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Each, Foreign_Settings, testing::Values(
    Case{"Empty", ""},
    Case{"One_Missing", "[Confirming]\nConfirmEachMessage=true\nKeepReceipt=true\n"},
    Case{"Another_Word", "[Confirming]\nConfirmEachMessage=maybe\nAskForReports=true\nKeepReceipt=true\n"},
    Case{"A_List", "[Confirming]\nConfirmEachMessage=true, false\nAskForReports=true\nKeepReceipt=true\n"},
    Case{"An_Object", "[Confirming]\nConfirmEachMessage=@Variant(\\0\\0\\0\\x7f)\nAskForReports=true\nKeepReceipt=true\n"},
    Case{"No_Settings_At_All", QByteArray("\0\xff[[[==\n]\x80", 10)},
    Case{"Cut_Off", "[Confirming]\nConfirmEach"},
    Case{"Too_Large", QByteArray(1 << 17, 'x')}),
    [](const auto& row) { return std::string(row.param.name); });
// clang-format on

} // namespace
