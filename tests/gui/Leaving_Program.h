#pragma once

#include "app/Program.h"
#include "doctor/Phone_Search.h"
#include "gui/Sending_Program.h"

// The whole program, left at one of its awkward moments: it ends at once, and nothing of it is left.
class Leaving_Program : public testing::Test
{
protected:
    Leaving_Program() { Set_Pace(10); }

    ~Leaving_Program() override
    {
        m_program.reset();
        Forget_Program_Exit();
        Set_Extra_Device_Paths({});
        sel_port_bsd_str.clear();
        sel_port_name_str.clear();
        Set_Pace(1);
    }

    void Start(const Command_Line& command_line = {})
    {
        m_program = std::make_unique<Program>(command_line);
        EXPECT_TRUE(m_program->Start());
    }

    /// Runs the program, does what leads to the moment, and leaves when it has come.
    void Leave_When(const std::function<bool()>& is_time, const std::function<void()>& leads_there)
    {
        double left_at = 0;
        QTimer clock;
        QObject::connect(&clock, &QTimer::timeout, [&] {
            if (left_at > 0 || !is_time())
                return;
            left_at = Now_Seconds();
            m_leave();
        });
        clock.start(2);
        QTimer::singleShot(0, &clock, leads_there);
        QTimer::singleShot(20000, &clock, [this] {
            ADD_FAILURE() << "the moment to leave never came";
            m_program->Leave();
        });
        EXPECT_EQ(m_program->Run(), 0);
        m_recipients_at_the_end = m_program->Delegate().Recipients().Count();
        m_program.reset();
        EXPECT_LT(Now_Seconds() - left_at, 5);
        Expect_Nothing_Left();
    }

    virtual void Expect_Nothing_Left()
    {
        EXPECT_EQ(Workers_Running(), 0);
        EXPECT_EQ(sms_thread_var, 0);
        EXPECT_EQ(ph_find_thread, 0);
        EXPECT_THAT(QApplication::topLevelWidgets(), testing::IsEmpty());
    }

    template <typename Control>
    Control& The(const char* name)
    {
        return In<Control>(m_program->Delegate(), name);
    }
    void Click(const char* name) { QTest::mouseClick(&The<QPushButton>(name), Qt::LeftButton); }

    /// Something to ask whether a window of this name is shown.
    static std::function<bool()> Is_Shown(const char* window_name)
    {
        return [window_name] { return ::Is_Shown(window_name); };
    }
    static bool A_Box_Is_Open() { return Is_Shown("Message_Box")(); }
    static bool A_Panel_Is_Open() { return Is_File_Panel(QApplication::activeModalWidget()); }

    void Add_Recipients()
    {
        for (const char* number : {"111", "222", "333"})
            m_program->Delegate().Create_Num_Msg_List(number, "Hello");
    }

    /// Leaves in the second that passes between the press of a button and what it opens.
    void Leave_Just_After(const char* button)
    {
        Set_Pace(1);
        bool is_pressed = false;
        Leave_When([&] { return is_pressed; },
                   [&, button] {
                       is_pressed = true;
                       Click(button);
                   });
    }

    User user;
    std::unique_ptr<Program> m_program;
    std::function<void()> m_leave = [this] { m_program->Leave(); };
    int m_recipients_at_the_end = 0;
};
