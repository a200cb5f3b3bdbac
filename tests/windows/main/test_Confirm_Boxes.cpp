#include "gui/Open_Program.h"
#include "records/Data_Paths.h"
#include "support/Files.h"

#include <QDir>

using testing::ElementsAre;

namespace {

// The boxes about sending message by message, and what the program remembers of them from start to start.
class Confirm_Boxes_Test : public Open_Program
{
protected:
    ~Confirm_Boxes_Test() override
    {
        QDir(Settings_Path).removeRecursively();
        QFile::remove(Settings_Path);
    }

    void Press_Box(const char* name) { The<QCheckBox>(name).click(); }

    /// In the order in which they stand: "x" ticked, "o" not, in brackets while it cannot be used.
    std::string Boxes()
    {
        std::string states;
        for (const char* name : {"_Confirm_Chk", "_Reports_Chk", "_Keep_Receipt_Chk", "_Remember_Confirm_Chk"}) {
            const auto& box = The<QCheckBox>(name);
            const std::string state = box.isChecked() ? "x" : "o";
            states += box.isEnabled() ? state : "(" + state + ")";
        }
        return states;
    }

    /// The program ends and is started again.
    void Start_Again()
    {
        m_delegate.reset();
        m_delegate = std::make_unique<CorvaneAppDelegate>();
        ASSERT_TRUE(m_delegate->awakeFromNib());
        m_delegate->applicationDidFinishLaunching();
    }
};

TEST_F(Confirm_Boxes_Test, Are_Off_At_First_And_Nothing_Is_Written)
{
    EXPECT_EQ(Boxes(), "o(o)(o)(o)");
    EXPECT_FALSE(m_delegate->Read_Send_Choices().confirm.confirms);
    EXPECT_FALSE(QFile::exists(Settings_Path));
}

TEST_F(Confirm_Boxes_Test, Are_Choices_Of_The_Next_Job_And_Gone_With_The_Program)
{
    Press_Box("_Confirm_Chk");
    EXPECT_EQ(Boxes(), "xooo");
    Press_Box("_Reports_Chk");
    Press_Box("_Keep_Receipt_Chk");
    EXPECT_EQ(m_delegate->Read_Send_Choices().confirm, (Confirm_Choices{true, true, true}));
    EXPECT_FALSE(QFile::exists(Settings_Path));
    Start_Again();
    EXPECT_EQ(Boxes(), "o(o)(o)(o)");
}

TEST_F(Confirm_Boxes_Test, Are_Remembered_As_They_Stand_When_That_Is_Wanted)
{
    Press_Box("_Confirm_Chk");
    Press_Box("_Remember_Confirm_Chk");
    Press_Box("_Keep_Receipt_Chk"); // also what is chosen later
    Start_Again();
    EXPECT_EQ(Boxes(), "xoxx");
    Press_Box("_Confirm_Chk");
    Start_Again();
    EXPECT_EQ(Boxes(), "o(o)(x)(x)");
    Press_Box("_Confirm_Chk");
    Press_Box("_Remember_Confirm_Chk");
    EXPECT_FALSE(QFile::exists(Settings_Path));
    Start_Again();
    EXPECT_EQ(Boxes(), "o(o)(o)(o)");
}

TEST_F(Confirm_Boxes_Test, Go_Back_To_What_Is_Remembered_With_A_Reset)
{
    Press_Box("_Confirm_Chk");
    Press_Box("_Reports_Chk");
    Click("Reset_Btn");
    EXPECT_EQ(Boxes(), "o(o)(o)(o)");
    Press_Box("_Confirm_Chk");
    Press_Box("_Keep_Receipt_Chk");
    Press_Box("_Remember_Confirm_Chk");
    Click("Reset_Btn");
    EXPECT_EQ(Boxes(), "xoxx");
}

TEST_F(Confirm_Boxes_Test, Do_Not_Say_That_They_Are_Remembered_Where_Nothing_Can_Be_Written)
{
    ASSERT_TRUE(QDir().mkpath(Settings_Path + "/a folder in its place"));
    Press_Box("_Confirm_Chk");
    Press_Box("_Remember_Confirm_Chk");
    EXPECT_EQ(Boxes(), "xooo");
    ASSERT_TRUE(QDir(Settings_Path).removeRecursively());
    Press_Box("_Remember_Confirm_Chk");
    ASSERT_TRUE(QFile::remove(Settings_Path));
    ASSERT_TRUE(QDir().mkpath(Settings_Path));
    Press_Box("_Keep_Receipt_Chk");
    EXPECT_EQ(Boxes(), "xoxo");
    Press_Box("_Remember_Confirm_Chk");
    EXPECT_EQ(Boxes(), "xoxo");
}

} // namespace
