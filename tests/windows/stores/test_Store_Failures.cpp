#include "windows/stores/Stores_Test.h"

#include <new>

const QByteArray Two_Records = "\a1\vone\ad\v\n\a2\vtwo\ad\v\n";

// Sent items for which the memory of a worker does not suffice, at one of its steps.
class Sent_Items_Short_Of_Memory : public Sent_Items
{
public:
    enum Step
    {
        None,
        Load,
        Remove,
        Clear,
        Rewrite
    };
    Step m_failing = None;

protected:
    void LoadItems() override
    {
        Sent_Items::LoadItems();
        Fail_At(Load);
    }
    void Remove_Rows(const std::vector<int>& rows) override
    {
        Run_On_Worker([this] { Fail_At(Remove); });
        Sent_Items::Remove_Rows(rows);
    }
    void Clear_File() override
    {
        Fail_At(Clear);
        Sent_Items::Clear_File();
    }
    std::function<bool()> Rewriting() override
    {
        return [this, rewrite = Sent_Items::Rewriting()] {
            Fail_At(Rewrite);
            return rewrite();
        };
    }

private:
    void Fail_At(Step step) const
    {
        if (step == m_failing)
            throw std::bad_alloc();
    }
};

class Store_Failures : public Stores_Test
{
protected:
    Store_Failures() { Write_Bytes(Sent_Item_Path, Two_Records); }

    static QByteArray Stored() { return Bytes_Of(Sent_Item_Path); }
    /// Nothing holds the window back: no sheet stands over it, and it takes input.
    static void Expect_Window_At_Hand() { EXPECT_FALSE(Is_Shown("PleaseWait_Modeless")); }

    Sent_Items_Short_Of_Memory m_items;
};

TEST_F(Store_Failures, A_Step_That_Runs_Out_Of_Memory_Is_Passed_Over_And_The_Window_Goes_On)
{
    const struct
    {
        Sent_Items_Short_Of_Memory::Step failing;
        const char* button;
        QStringList shown;
        QByteArray stored;
    } cases[] = {{m_items.Remove, "Clear_Sel_Btn", {"1", "2"}, Two_Records},
                 {m_items.Rewrite, "Clear_Sel_Btn", {"2"}, Two_Records},
                 {m_items.Clear, "Clear_All_Btn", {}, ""}}; // closing writes the empty list
    m_user.Will_Press("Yes");
    for (const auto& each : cases) {
        SCOPED_TRACE(each.failing);
        m_items.m_failing = each.failing;
        Visit(m_items, [&] {
            Select(0);
            Click(each.button);
            EXPECT_EQ(Shown(), each.shown);
            EXPECT_EQ(Count_Label(), QString("Total Items : %1").arg(each.shown.size()));
            EXPECT_EQ(Stored(), Two_Records);
            Expect_Window_At_Hand();
        });
        EXPECT_EQ(Stored(), each.stored);
        Expect_Window_At_Hand();
    }
}

TEST_F(Store_Failures, A_Load_That_Runs_Out_Of_Memory_Lets_The_Window_Go_And_Its_List_Is_Not_Written)
{
    m_items.m_failing = m_items.Load;
    Visit(m_items, [this] {
        Expect_Window_At_Hand();
        EXPECT_EQ(Count_Label(), "Total Items : 0");
        EXPECT_EQ(Shown(), QStringList());
        Expect_Told("Clear_Sel_Btn", "\nSent items list is empty.");
    });
    EXPECT_EQ(Stored(), Two_Records);
    m_items.m_failing = m_items.None;
    Visit(m_items, [this] { EXPECT_EQ(Shown(), (QStringList{"1", "2"})); });
}
