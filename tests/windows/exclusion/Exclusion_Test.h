#pragma once

#include "platform/Pace.h"
#include "support/Data_Folder.h"
#include "support/Heartbeat.h"
#include "support/In_Windows.h"
#include "support/Window_For_Tests.h"
#include "toolkit/List_Tables.h"
#include "toolkit/Window_Look.h"
#include "windows/exclusion/Exclusion_Wizard.h"

#include <set>

inline const char* const Info_1 =
    "Exclusion List Wizard allows you to maintain the Lists of contacts or Groups, which you may need to exclude time "
    "to time when sending messages.\n\nFor Example, if you have lists of contacts of Marketing, Administration, R & D "
    "and Customer Care Team members and you want to send messages to all the teams 'Except' Administration team, you "
    "can apply exclusion rules to Administration team members contacts list.";
inline const char* const Info_2 = "\n\nGive a friendly name to your Exclusion list so that you can identify it easily.";
inline const char* const Back_Question =
    "\nYou have made changes in exclusion number list that have not been saved yet.\n\nDo you want to go back to "
    "previous screen without saving the exclusion number list?";
inline const char* const Continue_Question = "\nAre you sure you want to continue";
inline const char* const Delete_Question = "\nAre you sure you want delete the selected available list?";
inline const char* const File_Error = "\nError in file accessing.";
inline const char* const Select_One = "\nPlease select only one record to update.";

using Names = std::set<std::string>;

// The controls that the screens of the wizard show.
inline const Names Info = {"m_st_msg_gp_box", "m_st_msg"};
inline const Names First_Screen = {"m_exclusion_list", "m_applied_axclusion_list", "m_addlist_btn", "m_addAll_list_btn",
                                   "m_dellist_btn",    "m_delall_list_btn",        "m_addnew_btn",  "m_update_btn",
                                   "m_delete_btn",     "m_saveapplied_btn",        "m_cancel_btn"};
inline const Names Name_Fields = {"m_ex_list_name", "m_ex_list_name_edit", "m_ex_list_name_eg",
                                  "m_ex_list_name_eg_val"};
inline const Names Numbers_Screen = {
    "m_loadfile_label",      "m_loadfile_edit", "m_OR_label",       "m_browse_btn",  "m_load_btn",
    "m_st_num_count",        "m_add_num_btn",   "m_update_num_btn", "m_del_num_btn", "m_final_screen_box",
    "m_st_curr_use_ex_list", "m_loadnum_label", "m_loadnum_edit",   "m_ex_num_list"};
inline const Names Wizard_Buttons = {"m_back_btn", "m_next_btn", "m_finish_btn", "m_cancel2_btn"};

inline Names Together(std::initializer_list<Names> groups)
{
    Names all;
    for (const auto& group : groups)
        all.insert(group.begin(), group.end());
    return all;
}

inline const Names On_First_Screen = Together({Info, First_Screen});
inline const Names On_Name_Screen = Together({Info, Name_Fields, {"m_back_btn", "m_next_btn", "m_cancel2_btn"}});
inline const Names On_Numbers_Screen = Together({Numbers_Screen, {"m_back_btn", "m_finish_btn", "m_cancel2_btn"}});

// The exclusion wizard on the offscreen screen, over a main window without controls, and a person who clicks in it.
class Exclusion_Test : public testing::Test
{
protected:
    Exclusion_Test()
    {
        Apply_Application_Look(*qApp);
        Set_Pace(200);
        Forget_Program_Exit();
        m_window = std::make_unique<Exclusion_Wizard>();
    }
    ~Exclusion_Test() override
    {
        m_window.reset();
        Finish_Workers();
        Set_Pace(1);
    }

    /// Opens the wizard, does the steps once its lists are in, and closes it when it is still open then.
    void Run(const std::function<void()>& steps)
    {
        m_user.When_Opens("Exclusion_Wizard", [this, steps](QWidget&) {
            EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
            steps();
            if (m_window->isVisible())
                m_window->Cancel_Btn();
        });
        m_window->Open_Exclusion_Wnd();
    }

    template <typename Type = QWidget>
    Type& Control(const char* name) const
    {
        return In<Type>(*m_window, name);
    }
    QString Text(const char* name) const { return Control<QLineEdit>(name).text(); }
    QString Label(const char* name) const { return Control<QLabel>(name).text(); }
    void Type(const char* name, const QString& text) const { Control<QLineEdit>(name).setText(text); }
    QWidget* Focused() const { return m_window->focusWidget(); }

    QTableView& Available() const { return Control<QTableView>("m_exclusion_list"); }
    QTableView& Applied() const { return Control<QTableView>("m_applied_axclusion_list"); }
    QTableView& Numbers() const { return Control<QTableView>("m_ex_num_list"); }

    // What the person does, as events of the window system, which modal windows hold back.
    void Click(const char* name, Qt::KeyboardModifiers keys = {}) const
    {
        ASSERT_TRUE(Control(name).isVisible()) << name;
        Click_Middle_Of(Control(name), keys);
    }
    /// While Control is held down, as the keyboard says, too.
    void Click_Holding_Control(const char* name) const
    {
        QTest::keyPress(m_window.get(), Qt::Key_Control, Qt::ControlModifier);
        Click(name, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::keyboardModifiers(), Qt::ControlModifier);
        QTest::keyRelease(m_window.get(), Qt::Key_Control);
    }
    static void Click_Row(const QTableView& table, int row, Qt::KeyboardModifiers keys = {})
    {
        Click_At(*table.viewport(), Middle_Of(table, row), keys);
    }
    static void Double_Click_Row(const QTableView& table, int row)
    {
        QTest::mouseDClick(table.window()->windowHandle(), Qt::LeftButton, {},
                           table.viewport()->mapTo(table.window(), Middle_Of(table, row)));
    }

    struct Box
    {
        QString text;
        const char* answer = "OK";
    };
    /// Does the step, which must show exactly these boxes, and answers them.
    void Expect_Boxes(const std::function<void()>& step, const std::vector<Box>& boxes)
    {
        const auto before = m_user.Was_Shown().size();
        QStringList texts;
        for (const Box& box : boxes) {
            texts.append(box.text);
            m_user.Will_Press(box.answer);
        }
        step();
        EXPECT_EQ(m_user.Was_Shown().mid(before), texts);
    }
    void Expect_Boxes(const char* button, const std::vector<Box>& boxes)
    {
        SCOPED_TRACE(button);
        Expect_Boxes([this, button] { Click(button); }, boxes);
    }
    /// Does the step, which must show exactly this box, and expects the focus on a control afterwards.
    void Expect_Told(const std::function<void()>& step, const char* text, const char* focused)
    {
        Expect_Boxes(step, {{text}});
        EXPECT_EQ(Focused(), &Control(focused)) << text;
    }
    void Expect_Told(const char* button, const char* text, const char* focused)
    {
        SCOPED_TRACE(button);
        Expect_Told([this, button] { Click(button); }, text, focused);
    }

    /// The names of the wizard's controls that are shown.
    Names Shown() const
    {
        Names shown;
        for (const auto& name : Together({Info, First_Screen, Name_Fields, Numbers_Screen, Wizard_Buttons})) {
            if (Control(name.c_str()).isVisible())
                shown.insert(name);
        }
        return shown;
    }
    bool Is_On_First_Screen() const { return m_window->isVisible() && Available().isVisible(); }
    bool Is_On_Numbers_Screen() const { return Numbers().isVisible(); }
    void Expect_First_Screen() const
    {
        EXPECT_EQ(Shown(), On_First_Screen);
        EXPECT_EQ(Label("m_st_msg"), Info_1);
        EXPECT_EQ(Focused(), &Available());
    }
    void Expect_Counts(int adding, int updating) const
    {
        EXPECT_EQ(add_count, adding);
        EXPECT_EQ(update_count, updating);
    }

    /// From the first screen to the numbers of a new list, where this one is added, if one is given.
    void Begin_New_List(const QString& name, const char* number = nullptr) const
    {
        Click("m_addnew_btn");
        Type("m_ex_list_name_edit", name);
        Click("m_next_btn");
        ASSERT_TRUE(Is_On_Numbers_Screen());
        if (number)
            Add_Number(number);
    }
    /// From the first screen to the numbers of the list in a row, where this one is added, if one is given.
    void Edit_List(int row, const char* number = nullptr) const
    {
        Click_Row(Available(), row);
        Click("m_update_btn");
        ASSERT_TRUE(Is_On_Numbers_Screen());
        if (number)
            Add_Number(number);
    }
    void Add_Number(const QString& number) const
    {
        Type("m_loadnum_edit", number);
        Click("m_add_num_btn");
    }
    /// Presses a button and says Yes.
    void Agree_To(const char* button) { Expect_Boxes(button, {{Continue_Question, "Yes"}}); }
    void Finish() { Agree_To("m_finish_btn"); }

    Data_Folder m_data;
    Window_For_Tests m_main_window;
    User m_user;
    std::unique_ptr<Exclusion_Wizard> m_window;
};
