#include "list/Table_File.h"
#include "windows/list/Dialogs_Test.h"

namespace {

QString Shown_In(const QDialog& dialog)
{
    QCoreApplication::processEvents();
    return Exact_Text(In<QPlainTextEdit>(dialog, "_Shown_Text"));
}

} // namespace

// The dialogs that write messages say what becomes of them, too, in the way that the main window stands.
class Bubble_Of_One : public Dialogs_Test
{
protected:
    Bubble_Of_One() : Dialogs_Test("Update_Num_SMS", [this] { Open_Edit_Dialog(m_window, 0); }) {}
};

TEST_F(Bubble_Of_One, Shows_And_Replaces_What_Is_Written)
{
    Add("447700900100", "10 €");
    m_window.m_choices.confirm.confirms = true;
    EXPECT_EQ(Run([&] {
                  EXPECT_EQ(Shown_In(*m_dialog), "10 €");
                  EXPECT_EQ(In<QLabel>("_Part_Count").text(), "1 part of 160, 155 left");
                  Paste_Message("“10 €”");
                  EXPECT_EQ(Shown_In(*m_dialog), "“10 €”");
                  EXPECT_EQ(In<QLabel>("_Bubble_Words").text(), "“ (1) and ” (1) make this message Unicode.");
                  EXPECT_FALSE(In<QPushButton>("Send_As_Unicode").isVisible()) << "it is the main window's to choose";
                  Click("Replace_All");
                  EXPECT_EQ(Shown_In(*m_dialog), "\"10 €\"");
                  Click("OKPressed");
              }),
              1);
    EXPECT_EQ(List(), QStringList{"447700900100: \"10 €\""});
}

TEST_F(Bubble_Of_One, Is_Gone_With_The_Text)
{
    Add("447700900100", "abc");
    Run([&] {
        EXPECT_EQ(Shown_In(*m_dialog), "abc");
        In<QPlainTextEdit>("m_msg_str").clear();
        QCoreApplication::processEvents();
        EXPECT_FALSE(In<QWidget>("_Bubble").isVisible());
        Click("CancelPressed");
    });
}

TEST_F(Bubble_Of_One, Goes_To_The_Number_That_Is_Written_In_The_Manner_Of_The_Main_Window)
{
    const auto table =
        std::make_shared<const Contact_Table>(Table_Of_Bytes("Number,Name\n447700900100,Ann\n", "a.csv", {}).table);
    m_window.m_recipients.Append_From_Table(table->Field(0, 0), QStringLiteral("{{Name}}: 10 €"), table, 0);
    Run([&] {
        EXPECT_EQ(Shown_In(*m_dialog), "Ann: 10 ,");
        EXPECT_EQ(In<QLabel>("_Bubble_Words").text(),
                  "€ arrives as ,. \"Send as Unicode\" in the main window keeps them.");
        Type_Number("447700900199");
        QCoreApplication::processEvents();
        EXPECT_EQ(In<QLabel>("_Bubble_Caption").text(), "On the handset of 447700900199:");
        Click("CancelPressed");
    });
    m_window.m_choices.unicode = true;
    Run([&] {
        EXPECT_EQ(Shown_In(*m_dialog), "Ann: 10 €");
        EXPECT_EQ(In<QLabel>("_Bubble_Words").text(), "");
        EXPECT_EQ(In<QLabel>("_Part_Count").text(), "1 part of 69, 60 left");
        Click("CancelPressed");
    });
}

class Bubble_Of_Selected : public Dialogs_Test
{
protected:
    Bubble_Of_Selected() : Dialogs_Test("Update_Sel_Num_SMS", [this] { Open_Update_Selected(m_window); }) {}
};

TEST_F(Bubble_Of_Selected, Fills_In_The_Fields_Of_The_First)
{
    const auto table = std::make_shared<const Contact_Table>(
        Table_Of_Bytes("Number,Name\n447700900100,Ann\n447700900101,Bob\n", "a.csv", {}).table);
    for (int row = 0; row < 2; ++row)
        m_window.m_recipients.Append_From_Table(table->Field(row, 0), QString(), table, row);
    m_window.m_selected_rows = {1};
    Run([&] {
        Type_Message("Dear {{Name}}");
        EXPECT_EQ(Shown_In(*m_dialog), "Dear Bob");
        Click("CancelPressed");
    });
}

class Bubble_Of_A_Filling : public Dialogs_Test
{
protected:
    Bubble_Of_A_Filling() : Dialogs_Test("Fill_Msg_In_List", [this] { Open_Fill_Dialog(m_window); }) {}
};

TEST_F(Bubble_Of_A_Filling, Shows_The_Message_And_Offers_Nothing)
{
    Add("447700900100");
    m_window.m_choices.composer_text = "10 €";
    Run([&] {
        EXPECT_EQ(Shown_In(*m_dialog), "10 ,");
        EXPECT_EQ(In<QLabel>("_Bubble_Words").text(),
                  "€ arrives as ,. \"Send as Unicode\" in the main window keeps them.");
        EXPECT_FALSE(In<QWidget>("bubble_help").isVisible());
        Click("CancelPressed");
    });
}

TEST_F(Bubble_Of_A_Filling, Is_That_Of_The_First_Who_Would_Get_The_Message)
{
    const auto table = std::make_shared<const Contact_Table>(
        Table_Of_Bytes("Number,Name\n447700900100,Ann\n447700900101,Bob\n447700900102,Cem\n", "a.csv", {}).table);
    for (int row = 0; row < 3; ++row)
        m_window.m_recipients.Append_From_Table(table->Field(row, 0), row == 1 ? QString() : QStringLiteral("x"), table,
                                                row);
    m_window.m_selected_rows = {2};
    m_window.m_choices.composer_text = "Dear {{Name}}";
    Run([&] {
        EXPECT_EQ(Shown_In(*m_dialog), "Dear Ann");
        Pick("_fill_msg_selected");
        EXPECT_EQ(Shown_In(*m_dialog), "Dear Cem");
        Pick("_fill_msg_blank");
        EXPECT_EQ(Shown_In(*m_dialog), "Dear Bob");
        Pick("_fill_msg_all");
        EXPECT_EQ(Shown_In(*m_dialog), "Dear Ann");
        Click("CancelPressed");
    });
}
