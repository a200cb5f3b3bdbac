#include "gui/Leaving_Program.h"
#include "platform/Text_Files.h"
#include "records/Data_Paths.h"

#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>

using testing::IsEmpty;

namespace {

const QByteArray Records = "\a1\vone\ad\vDelivered\n\a2\vtwo\ad\v\n";
const QByteArray Rewritten = "\a1\vone\ad\v\n\a2\vtwo\ad\v\n";
const QByteArray Texts = "one\ntwo\n" + QByteArray(1590, 'x') + '\n';

QByteArray Bytes_Of(const QString& path)
{
    return Read_File(path).value_or("unreadable");
}

// The program with two sent items and three templates, left while their windows are open or at work: each time without
// another box or dialog, and with the two files as they were unless they were being written.
class Leaving_Stores : public Leaving_Program
{
protected:
    Leaving_Stores()
    {
        Start();
        EXPECT_TRUE(Replace_File(Sent_Item_Path, Records));
        EXPECT_TRUE(Replace_File(Templates_Path, Texts));
    }

    void Expect_Files_As_They_Were()
    {
        EXPECT_EQ(Bytes_Of(Sent_Item_Path), Records);
        EXPECT_EQ(Bytes_Of(Templates_Path), Texts);
    }

    void In_Sent_Items(const std::function<void(QWidget&)>& meanwhile)
    {
        In_Window("Sent_Items", "Sent_Item_Btn", meanwhile);
    }
    void In_Templates(const std::function<void(QWidget&)>& meanwhile)
    {
        In_Window("Templates", "View_Templates_Btn", meanwhile);
    }

    static void Select(QWidget& window, int row) { window.findChild<QTableView*>()->selectRow(row); }

    QTemporaryDir m_folder;

private:
    void In_Window(const char* name, const char* button, const std::function<void(QWidget&)>& meanwhile)
    {
        user.When_Opens(name, [meanwhile](QWidget& window) {
            EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
            meanwhile(window);
        });
        Click(button);
    }
};

TEST_F(Leaving_Stores, In_The_Second_Before_A_Window_Opens)
{
    Set_Pace(1);
    bool is_asked_for = false;
    Leave_When([&] { return is_asked_for; },
               [&] {
                   is_asked_for = true;
                   Click("Sent_Item_Btn");
               });
    Expect_Files_As_They_Were();
}

TEST_F(Leaving_Stores, With_The_Sent_Items_Shown_And_Some_Deleted)
{
    bool is_deleted = false;
    Leave_When([&] { return is_deleted; },
               [&] {
                   In_Sent_Items([&](QWidget& window) {
                       Select(window, 0);
                       Click_In(window, "Clear_Sel_Btn");
                       is_deleted = true;
                   });
               });
    Expect_Files_As_They_Were();
}

TEST_F(Leaving_Stores, With_The_Question_Before_All_Is_Cleared_Open_Clears_Nothing)
{
    user.Will_Leave_It_Open();
    Leave_When(A_Box_Is_Open, [this] { In_Sent_Items([](QWidget& window) { Click_In(window, "Clear_All_Btn"); }); });
    EXPECT_EQ(user.Was_Shown().size(), 1);
    Expect_Files_As_They_Were();
}

TEST_F(Leaving_Stores, With_A_Template_Being_Edited)
{
    Leave_When(Is_Shown("UpdateTemp"), [this] {
        In_Templates([](QWidget& window) {
            Select(window, 1);
            Click_In(window, "Update_Btn");
        });
    });
    Expect_Files_As_They_Were();
}

TEST_F(Leaving_Stores, With_The_Question_About_A_Text_Too_Long_Open_Uses_Nothing)
{
    The<QPlainTextEdit>("_messageEdit").setPlainText(QString(100, u'c'));
    user.Will_Leave_It_Open();
    Leave_When(A_Box_Is_Open, [this] {
        In_Templates([this](QWidget& window) {
            Select(window, 2);
            Click_In(window, "Use_template_Btn");
            EXPECT_EQ(The<QPlainTextEdit>("_messageEdit").toPlainText().size(), 100);
        });
    });
    EXPECT_EQ(user.Was_Shown().size(), 1);
    Expect_Files_As_They_Were();
}

TEST_F(Leaving_Stores, With_The_Notice_About_A_Long_Message_Open_Over_The_Templates)
{
    Leave_When(Is_Shown("Long_SMS_Dlg"), [this] {
        In_Templates([](QWidget& window) {
            Select(window, 2);
            Click_In(window, "Use_template_Btn");
        });
    });
    Expect_Files_As_They_Were(); // written once more, and the same
}

TEST_F(Leaving_Stores, With_The_Choice_Of_An_Export_Open)
{
    Leave_When(Is_Shown("Export_Option"),
               [this] { In_Templates([](QWidget& window) { Click_In(window, "Export_Btn"); }); });
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
    Expect_Files_As_They_Were();
}

TEST_F(Leaving_Stores, With_The_Panel_Of_An_Export_Open_Writes_Nothing)
{
    user.When_Opens("Export_Option", [](QWidget& dialog) { Click_In(dialog, "OKPressed"); });
    Leave_When([] { return qobject_cast<QFileDialog*>(QApplication::activeModalWidget()) != nullptr; },
               [this] { In_Sent_Items([](QWidget& window) { Click_In(window, "Export_Btn"); }); });
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
    Expect_Files_As_They_Were();
}

TEST_F(Leaving_Stores, With_The_Offer_To_Open_An_Export_Open)
{
    const QString path = m_folder.filePath("list.txt");
    user.When_Opens("Export_Option", [](QWidget& dialog) { Click_In(dialog, "OKPressed"); });
    user.Will_Do([path](QDialog* panel) {
        qobject_cast<QFileDialog*>(panel)->selectFile(path);
        panel->accept();
    });
    Leave_When(Is_Shown("Open_Export_Log"),
               [this] { In_Sent_Items([](QWidget& window) { Click_In(window, "Export_Btn"); }); });
    EXPECT_TRUE(QFile::exists(path));
    Expect_Files_As_They_Were();
}

TEST_F(Leaving_Stores, While_The_List_Comes_In_From_A_File_That_Is_Held)
{
    std::atomic<bool> may_load{false};
    std::atomic<bool> is_held{false};
    Start_Worker("holds the file", [&] {
        const File_Lock lock(Sent_Item_Path);
        is_held = true;
        Wait_Seconds(1000); // ends with the program
        may_load = true;
    });
    ASSERT_TRUE(Serve_Until([&] { return is_held.load(); }));
    Leave_When(Is_Shown("PleaseWait_Modeless"), [this] { Click("Sent_Item_Btn"); });
    EXPECT_TRUE(may_load);
    Expect_Files_As_They_Were();
}

TEST_F(Leaving_Stores, While_The_Window_Writes_Its_List_Which_It_Still_Does)
{
    std::atomic<bool> is_held{false};
    const auto hold_the_file = [&] {
        Start_Worker("holds the file", [&] {
            const File_Lock lock(Sent_Item_Path);
            is_held = true;
            Wait_Seconds(1000);
        });
        EXPECT_TRUE(Serve_Until([&] { return is_held.load(); }));
    };
    Leave_When([&] { return is_held && Is_Shown("PleaseWait_Modeless")(); },
               [&] {
                   In_Sent_Items([&](QWidget& window) {
                       hold_the_file();
                       Click_In(window, "Cancel_Btn");
                   });
               });
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Rewritten);
}

} // namespace
