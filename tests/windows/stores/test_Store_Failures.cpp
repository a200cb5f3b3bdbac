#include "platform/Text_Files.h"
#include "records/Data_Paths.h"
#include "records/Sent_Item_Store.h"
#include "records/Template_Store.h"
#include "windows/stores/Store_Globals.h"
#include "windows/stores/Stores_Test.h"

#include <new>

namespace {

const QByteArray Two_Records = "\a1\vone\ad\v\n\a2\vtwo\ad\v\n";

// Sent items for which the memory of a worker does not suffice, at one of its steps.
class Sent_Items_Short_Of_Memory : public Sent_Items
{
public:
    bool m_fails_to_load = false;
    bool m_fails_to_remove = false;
    bool m_fails_to_clear = false;
    bool m_fails_to_rewrite = false;

protected:
    void LoadItems() override
    {
        Sent_Items::LoadItems();
        Fail_If(m_fails_to_load);
    }
    void Remove_Rows(const std::vector<int>& rows) override
    {
        Run_On_Worker([this] { Fail_If(m_fails_to_remove); });
        Sent_Items::Remove_Rows(rows);
    }
    void Clear_File() override
    {
        Fail_If(m_fails_to_clear);
        Sent_Items::Clear_File();
    }
    std::function<bool()> Rewriting() override
    {
        return [this, rewrite = Sent_Items::Rewriting()] {
            Fail_If(m_fails_to_rewrite);
            return rewrite();
        };
    }
    Export_Content Content_To_Export(int mode) const override
    {
        auto content = Sent_Items::Content_To_Export(mode);
        content.piece = [](qsizetype) -> QByteArray { throw std::bad_alloc(); };
        return content;
    }

private:
    static void Fail_If(bool is_short)
    {
        if (is_short)
            throw std::bad_alloc();
    }
};

class Store_Failures : public Stores_Test
{
protected:
    Store_Failures() { Write_Bytes(Sent_Item_Path, Two_Records); }

    static QByteArray Stored() { return Bytes_Of(Sent_Item_Path); }
    QString Count_Label() const { return The<QLabel>("_sent_list_count").text(); }
    /// Nothing holds the window back: no sheet stands over it, and it takes input.
    void Expect_Window_At_Hand() const
    {
        const auto windows = QApplication::topLevelWidgets();
        for (const QWidget* window : windows) {
            EXPECT_FALSE(window->isVisible() && window->objectName() == QStringLiteral("PleaseWait_Modeless"));
        }
    }

    Sent_Items_Short_Of_Memory m_items;
};

} // namespace

TEST_F(Store_Failures, A_Rewrite_That_Runs_Out_Of_Memory_Is_Passed_Over_And_The_Window_Closes)
{
    m_items.m_fails_to_rewrite = true;
    Visit(m_items, [this] {
        Select(0);
        Click("Clear_Sel_Btn");
    });
    EXPECT_FALSE(m_items.isVisible());
    EXPECT_EQ(Stored(), Two_Records);
    Expect_Window_At_Hand();
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Store_Failures, A_File_That_Can_Not_Be_Cleared_For_Want_Of_Memory_Still_Empties_The_List)
{
    m_items.m_fails_to_clear = true;
    m_user.Will_Press("Yes");
    Visit(m_items, [this] {
        Click("Clear_All_Btn");
        EXPECT_EQ(Count_Label(), QStringLiteral("Total Items : 0"));
        Expect_Window_At_Hand();
        EXPECT_EQ(Stored(), Two_Records);
    });
    EXPECT_EQ(Stored(), QByteArray()) << "closing writes the empty list";
}

TEST_F(Store_Failures, Records_That_Can_Not_Be_Removed_For_Want_Of_Memory_Stay)
{
    m_items.m_fails_to_remove = true;
    Visit(m_items, [this] {
        Select(1);
        Click("Clear_Sel_Btn");
        EXPECT_EQ(Shown(), (QStringList{"1", "2"}));
        EXPECT_EQ(Count_Label(), QStringLiteral("Total Items : 2"));
        Expect_Window_At_Hand();
    });
    EXPECT_EQ(Stored(), Two_Records);
}

TEST_F(Store_Failures, A_Load_That_Runs_Out_Of_Memory_Lets_The_Window_Go_And_Its_List_Is_Not_Written)
{
    m_items.m_fails_to_load = true;
    m_user.Will_Press("OK");
    Visit(m_items, [this] {
        Expect_Window_At_Hand();
        EXPECT_EQ(Count_Label(), QStringLiteral("Total Items : 0"));
        EXPECT_EQ(Shown(), QStringList());
        Click("Clear_Sel_Btn");
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{QStringLiteral("\nSent items list is empty.")});
    EXPECT_EQ(Stored(), Two_Records);
    m_items.m_fails_to_load = false;
    Visit(m_items, [this] { EXPECT_EQ(Shown(), (QStringList{"1", "2"})); });
}

TEST_F(Store_Failures, An_Export_That_Runs_Out_Of_Memory_Is_An_Error)
{
    m_user.Will_Press("OK");
    m_user.When_Opens("Export_Option", [](QWidget& dialog) { Click_In(dialog, "OKPressed"); });
    Visit(m_items, [this] {
        Will_Save_As(m_folder.Beside("list"));
        Click("Export_Btn");
        Expect_Window_At_Hand();
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{QStringLiteral("\nError in file accessing.")});
    EXPECT_EQ(Stored(), Two_Records);
}

TEST_F(Store_Failures, On_A_Full_Disk_The_Old_Whole_Stays_And_Nothing_Is_Said)
{
    const QByteArray large = "\a3\v" + QByteArray(100'000, 'x') + "\ad\v\n";
    Write_Bytes(Sent_Item_Path, Two_Records + large);
    Visit_Sent_Items([&] {
        Select(0);
        Click("Clear_Sel_Btn");
        const Full_Disk full_disk(50'000);
        Click("Cancel_Btn");
    });
    EXPECT_EQ(Stored(), Two_Records + large);
    EXPECT_FALSE(QFile::exists(Replacement_Path(Sent_Item_Path)));
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Store_Failures, A_Record_Or_Template_For_Which_The_Disk_Has_No_Room_Leaves_Nothing_Of_It)
{
    Write_Bytes(Templates_Path, "one\n");
    {
        const Full_Disk full_disk(static_cast<rlim_t>(Two_Records.size()) + 20);
        EXPECT_FALSE(Sent_Item_Store::Append({"3", QString(1000, u'x'), "d", {}}));
        EXPECT_FALSE(Template_Store::Append(QString(1000, u'x')));
    }
    EXPECT_EQ(Stored(), Two_Records);
    EXPECT_EQ(Bytes_Of(Templates_Path), QByteArray("one\n"));
    EXPECT_TRUE(Template_Store::Append(QString(1000, u'x'))) << "what was not stored is no duplicate";
}
