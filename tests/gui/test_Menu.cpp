#include "gui/Open_Program.h"
#include "support/Keys.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;

// The main window's menu and the keys for what stands in it.
class Menu : public Open_Program
{
protected:
    QAction& Action_Of(const char* button) { return *The<QPushButton>(button).findChild<QAction*>(); }
    /// What stands in the menu and those below it, in order, but for what is not there now.
    QList<QAction*> Shown_In(QMenu& menu)
    {
        QList<QAction*> shown;
        Q_EMIT menu.aboutToShow();
        const auto actions = menu.actions();
        for (QAction* action : actions) {
            if (action->menu())
                shown += Shown_In(*action->menu());
            else if (action->isVisible() && !action->isSeparator())
                shown += action;
        }
        return shown;
    }
    QStringList Words_In_Menu()
    {
        QStringList words;
        for (const QAction* action : Shown_In(In<QMenu>(*m_delegate, "Main_Menu"))) {
            const QString keys = action->shortcut().toString(QKeySequence::PortableText);
            words.append(action->text().remove(u'&') + (keys.isEmpty() ? QString() : u' ' + keys));
        }
        return words;
    }
    void Press(QKeyCombination keys, const char* focus = "idTableView")
    {
        The<QWidget>(focus).setFocus();
        Press_Key(keys.key(), keys.keyboardModifiers());
    }
};

TEST_F(Menu, Has_All_That_Can_Be_Done_With_Its_Keys)
{
    EXPECT_THAT(Words_In_Menu(),
                ElementsAre("Add", "Import ... Ctrl+O", "Contacts ... Ctrl+Shift+O", "Export ...", "Find ... Ctrl+F",
                            "Number, upwards", "Number, downwards", "Message, upwards", "Message, downwards",
                            "As in the list", "Undo the removal Ctrl+Z", "Clear Selected", "Clear All",
                            "Remember this list", "Apply this message to list items",
                            "Edit the messages of selected items", "Templates ...", "Connection Wizard ...",
                            "Exclusion Lists ...", "Check before sending ...", "Send Ctrl+Return", "Receipts ...",
                            "Sent Items ...", "Reset", "Help F1", "Exit Ctrl+Q"));
    m_delegate->Create_Num_Msg_List("1", "one");
    m_delegate->Begin_Outcomes();
    m_delegate->End_Outcomes();
    EXPECT_TRUE(Serve_Until([this] { return The<QWidget>("Other_Ways_Btn").isVisible(); }));
    EXPECT_THAT(Words_In_Menu(), IsSupersetOf({"Select those not taken", "Keep only those", "Other ways ..."}));
}

TEST_F(Menu, An_Entry_Can_Be_Chosen_When_Its_Button_Can_Be_Pressed)
{
    EXPECT_FALSE(Action_Of("Select_Not_Taken").isVisible());
    EXPECT_TRUE(Action_Of("_sent_btn").isEnabled());
    The<QWidget>("_sent_btn").setEnabled(false); // as during an import
    EXPECT_FALSE(Action_Of("_sent_btn").isEnabled());
    Press(Qt::CTRL | Qt::Key_Return);
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
    The<QWidget>("_sent_btn").setEnabled(true);
    user.Will_Press("OK");
    Action_Of("_sent_btn").trigger();
    EXPECT_EQ(user.Was_Shown().size(), 1);
}

TEST_F(Menu, Keys_Press_The_Button_Whatever_Has_The_Focus)
{
    const struct
    {
        QKeyCombination keys;
        const char* opens;
    } windows[] = {{Qt::CTRL | Qt::Key_O, "File_Panel"},
                   {Qt::CTRL | Qt::SHIFT | Qt::Key_O, "File_Panel"},
                   {Qt::Key_F1, "Help_Wnd"}};
    for (const char* focus : {"_numberEdit", "_messageEdit", "idTableView", "Reset_Btn"}) {
        for (const auto& [keys, opens] : windows) {
            bool has_opened = false;
            user.Will_Do([&, opens = opens](QDialog* window) {
                has_opened = window->inherits(opens == QByteArray("File_Panel") ? "QFileDialog" : opens);
                window->reject();
            });
            Press(keys, focus);
            EXPECT_TRUE(has_opened) << opens << " from " << focus;
        }
        user.Will_Press("No");
        Press(Qt::CTRL | Qt::Key_Q, focus);
        EXPECT_EQ(user.Was_Shown().constLast(), "\nDo you really want to exit from 'Corvane'?") << focus;
        for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
            user.Will_Press("OK");
            const auto shown_before = user.Was_Shown().size();
            Press(Qt::CTRL | key, focus);
            EXPECT_EQ(user.Was_Shown().size(), shown_before + 1) << focus; // that there is nothing to send
        }
    }
    EXPECT_EQ(The<QPlainTextEdit>("_messageEdit").toPlainText(), "");
}

TEST_F(Menu, Ctrl_Q_Leaves_When_The_Question_Is_Answered_With_Yes)
{
    QSignalSpy wanted(m_delegate.get(), &CorvaneAppDelegate::Exit_Wanted);
    user.Will_Press("Yes");
    Press(Qt::CTRL | Qt::Key_Q);
    EXPECT_EQ(wanted.size(), 1);
}

TEST_F(Menu, Keys_Do_Nothing_Where_A_Click_Does_Nothing)
{
    m_delegate->Hold_Input(); // a job is being prepared
    for (const QKeyCombination keys :
         {Qt::CTRL | Qt::Key_O, Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Q, QKeyCombination(Qt::Key_F1)})
        Press(keys);
    Click("Exit_Btn");
    m_delegate->Release_Input();
    user.Will_Handle([&](QMessageBox& box) { // nor under a box
        for (const QKeyCombination keys : {Qt::CTRL | Qt::Key_O, Qt::CTRL | Qt::Key_Q, QKeyCombination(Qt::Key_F1)})
            Press(keys);
        box.reject();
    });
    user.Will_Do([&](QDialog* help) { // nor under a window
        Press(Qt::Key_F1);
        Press(Qt::CTRL | Qt::Key_Q);
        help->reject();
    });
    Click("Help_Btn");
    Click("Clear_Sel_Btn");
    m_delegate->Show_Create_Modeless(); // nor under a sheet
    Press(Qt::CTRL | Qt::Key_Q);
    m_delegate->Hide_Destroy_Modeless();
    EXPECT_EQ(user.Was_Shown().size(), 1);
}

TEST_F(Menu, Keys_That_Are_Held_Down_Do_Not_Answer_What_They_Open)
{
    int repeats = 0;
    user.Will_Handle([&](QMessageBox& box) {
        for (; repeats < 5; ++repeats) {
            for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) {
                QKeyEvent repeat(type, Qt::Key_Return, Qt::ControlModifier, {}, true);
                QApplication::sendEvent(&Window_In_Front(), &repeat);
            }
        }
        EXPECT_TRUE(box.isVisible());
        Press_Key(Qt::Key_Return); // which was let go
    });
    The<QWidget>("idTableView").setFocus();
    QTest::keyPress(&Window_In_Front(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(repeats, 5);
    EXPECT_EQ(user.Was_Shown().size(), 1);
}

TEST_F(Menu, Tool_Tips_Tell_The_Keys)
{
    EXPECT_THAT(The<QWidget>("_sent_btn").toolTip().toStdString(), testing::EndsWith("(Ctrl+Return)"));
    EXPECT_THAT(The<QWidget>("Exit_Btn").toolTip().toStdString(), testing::EndsWith("(Ctrl+Q)"));
    EXPECT_THAT(The<QWidget>("Help_Btn").toolTip().toStdString(), testing::EndsWith("(F1)"));
}

TEST_F(Menu, What_Was_Removed_Comes_Back_By_Keys_From_Every_Button)
{
    m_delegate->Create_Num_Msg_List("1", "one");
    m_delegate->Redisplay_Recipients();
    EXPECT_FALSE(In<QAction>(*m_delegate, "Undo_Removal").isEnabled());
    Select_Rows({0});
    Click("Clear_Sel_Btn");
    EXPECT_THAT(Numbers(), IsEmpty());
    Press(Qt::CTRL | Qt::Key_Z, "_messageEdit"); // there they are for what was typed
    EXPECT_THAT(Numbers(), IsEmpty());
    Press(Qt::CTRL | Qt::Key_Z, "Clear_Sel_Btn");
    EXPECT_THAT(Numbers(), ElementsAre("1"));
}
