#include "records/Data_Paths.h"
#include "support/Keys.h"
#include "windows/stores/Stores_Test.h"

// The windows of the stores with the keyboard alone.

namespace {

const QStringList Two_Left = {QStringLiteral("1"), QStringLiteral("3")};

class Store_Keys : public Stores_Test
{
protected:
    static void Three_Templates() { Write_Bytes(Templates_Path, "1\n2\n3\n"); }
    static void Three_Sent_Items() { Write_Bytes(Sent_Item_Path, "\a1\vm\ad\v\n\a2\vm\ad\v\n\a3\vm\ad\v\n"); }
};

} // namespace

TEST_F(Store_Keys, F2_And_Return_Edit_The_Selected_Template)
{
    Three_Templates();
    QStringList seen;
    Visit_Templates([&] {
        int row = 0;
        for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}) {
            Select(row++);
            m_user.When_Opens("UpdateTemp", [&](QWidget& dialog) {
                EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Update Templates"));
                seen.append(In<QPlainTextEdit>(dialog, "m_templ_msg_str").toPlainText());
                Press_Key(Qt::Key_Escape);
            });
            Press_Key(key);
        }
        EXPECT_EQ(seen, Shown());
    });
    EXPECT_EQ(seen.size(), 3);
}

TEST_F(Store_Keys, The_Keys_Of_The_Templates_Say_What_The_Buttons_Say)
{
    Visit_Templates([&] {
        for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Delete}) {
            m_user.Will_Press("OK");
            Press_Key(key);
            Expect_Focus_On_Table();
        }
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList({QStringLiteral("\nTemplates number list is empty."),
                                               QStringLiteral("\nTemplates list is empty.")}));
}

TEST_F(Store_Keys, Delete_Takes_The_Selected_Rows_Out_Of_Each_List_Once)
{
    Three_Templates();
    Three_Sent_Items();
    const auto delete_the_second = [&] {
        Select(1);
        Held_Key held(Qt::Key_Delete);
        held.Press();
        EXPECT_TRUE(Serve_Until([&] { return held.Repeats() >= 10; }));
        EXPECT_EQ(Shown(), Two_Left);
        EXPECT_EQ(Selected(), QList<int>{0});
    };
    Visit_Templates(delete_the_second);
    Visit_Sent_Items(delete_the_second);
    EXPECT_EQ(Bytes_Of(Templates_Path), QByteArray("1\n3\n"));
}

TEST_F(Store_Keys, Alt_And_A_Deletes_Nothing)
{
    Three_Templates();
    Three_Sent_Items();
    const auto press = [&] {
        Press_Key(Qt::Key_A, Qt::AltModifier);
        EXPECT_EQ(Shown().size(), 3);
    };
    Visit_Templates(press);
    Visit_Sent_Items(press);
    EXPECT_EQ(m_user.Was_Shown(), QStringList()); // not even asked
}
