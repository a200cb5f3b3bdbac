#pragma once

#include "device/Chosen_Device.h"
#include "device/MFCSMS.h"
#include "device/Stop_Flag.h"
#include "engine/Job_State.h"
#include "phone/Virtual_Phone.h"
#include "platform/Pace.h"
#include "support/Data_Folder.h"
#include "support/In_Windows.h"
#include "support/Window_For_Tests.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/Shared_Instance.h"
#include "windows/main/Send_Modeless.h"
#include "windows/main/Send_Runner.h"
#include "windows/main/Watched_Calls.h"
#include "windows/main/Watched_Progress.h"

#include <stdexcept>

inline const QString Completed = "\nMessage Sending Process Completed.";
inline const QString Connection_Error = "\nDevice Connection Error!";
inline const QString No_Modem = "\nSelected device is not working properly.Could not initialize modem.\n";
inline const QString Does_Not_Open = "\n\nSelected device is not working properly. Please use Mobile Phone Connection "
                                     "Wizard for finding device or establishing connection.";
inline const QString List_Is_Empty = "\nPhone numbers-Messages list is empty.";
inline const QString Stop_Sending = "\nTerminating the current process will stop sending text messages to the "
                                    "remaining contact. Are you sure you want to continue?";

// A main window, a phone on its line, and the person who presses Send.
class Sending_Test : public testing::Test
{
protected:
    static constexpr double Usual_Pace = 50;

    explicit Sending_Test(const Phone_Moods& moods = {})
        : m_phone(moods), m_session(m_calls), m_progress(Progress_Window()), m_runner(m_window, m_session, m_progress)
    {
        Set_Pace(Usual_Pace);
        sel_port_bsd_str = QString::fromStdString(m_phone.Path());
        Cus_SMS_Num_STR.clear();
        Message_IS.clear();
        Stop_SMS_Sending_Now = 0;
    }

    ~Sending_Test() override
    {
        Finish_Workers();
        Forget_Program_Exit();
        End_Shared_Instances();
        sel_port_bsd_str.clear();
        Set_Pace(1);
    }

    void Add(const QString& number, const QString& message = "Hello") { m_window.m_recipients.Append(number, message); }
    void Add_Each(const QStringList& numbers, const QString& message = "Hello")
    {
        for (const QString& number : numbers)
            Add(number, message);
    }

    /// Takes a number into an exclusion list that is applied.
    void Exclude(const QString& number)
    {
        m_window.m_exclusions.Append(number);
        QByteArray numbers;
        for (int index = 0; index < m_window.m_exclusions.Count(); ++index)
            numbers += m_window.m_exclusions.At(index).toUtf8() + '\n';
        Write_Bytes(Applied_Exclusion_Path, "Excluded\n");
        Write_Bytes(Path_Of_List("Excluded"), numbers);
    }
    void Exclude_Nobody()
    {
        m_window.m_exclusions.Clear();
        Write_Bytes(Applied_Exclusion_Path, {});
    }

    void Pause_After_Each(const char* batch_size, const char* pause)
    {
        m_window.m_choices.delayed_delivery = true;
        m_window.m_choices.batch_size = batch_size;
        m_window.m_choices.pause_choice = pause;
    }

    /// The phone's moods are changed so from now on.
    void Put(const std::function<void(Phone_Moods&)>& change)
    {
        auto moods = m_phone.Moods();
        change(moods);
        m_phone.Set_Moods(moods);
    }

    /// Something happens at this step of the job, on its thread.
    void At_Step(const QString& awaited, const std::function<void()>& happens)
    {
        m_progress.m_at_step = [=](const QString& step) {
            if (step == awaited)
                happens();
        };
    }

    /// The same before the k-th write that begins so.
    void Before_Write(const QByteArray& beginning, int which, const std::function<void()>& happens)
    {
        m_calls.m_before_write = [=, seen = std::make_shared<int>(0)](const QByteArray& bytes) {
            if (bytes.startsWith(beginning) && ++*seen == which)
                happens();
        };
    }
    [[noreturn]] static void Raise() { throw std::runtime_error("the line broke"); }

    /// Presses Send and returns when the job has ended.
    void Send()
    {
        m_runner.Send_SMS_Btn();
        Wait_For_The_End();
    }

    /// The same, with OK (Yes to the stop question) pressed in these boxes; no others may open.
    void Send_And_Read(const QStringList& boxes)
    {
        const auto read_before = m_user.Was_Shown().size();
        for (const QString& box : boxes)
            m_user.Will_Press(box == Stop_Sending ? "Yes" : "OK");
        Send();
        EXPECT_EQ(m_user.Was_Shown().mid(read_before), boxes);
    }

    void Wait_For_The_End(double seconds = 60)
    {
        ASSERT_TRUE(Serve_Until([] { return sms_thread_var == 0 && Workers_Running() == 0; }, seconds));
        Expect_Everything_Tidy();
    }

    /// Whichever way a job ends: the port closed and cleared, nothing shown, nothing running, the main window free.
    void Expect_Everything_Tidy()
    {
        EXPECT_EQ(sms_thread_var, 0);
        EXPECT_EQ(m_session.port(), nullptr);
        EXPECT_EQ(m_calls.Still_Open(), 0);
        EXPECT_EQ(m_calls.Closed_Twice(), 0);
        EXPECT_FALSE(Progress_Window().isVisible());
        EXPECT_FALSE(In_Progress_Window<QTimer>("msend_modTimer").isActive());
        EXPECT_FALSE(m_window.Is_Held());
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }

    static Send_Modeless& Progress_Window() { return *Send_Modeless::defaultInstance(); }

    template <typename Control>
    static Control& In_Progress_Window(const char* name)
    {
        return In<Control>(Progress_Window(), name);
    }

    /// Presses the stop button, from the job's thread, and returns when the question has been answered.
    static void Press_Stop()
    {
        Run_On_Interface_Thread([] { In_Progress_Window<QPushButton>("_stop_btn").click(); });
    }

    /// The same, but returns when the question is open.
    static void Open_Stop_Question()
    {
        Post_To_Interface_Thread(&Progress_Window(), [] { In_Progress_Window<QPushButton>("_stop_btn").click(); });
        Run_On_Interface_Thread([] { EXPECT_NE(QApplication::activeModalWidget(), &Progress_Window()); });
    }

    /// The composer's text will be offered for the list, and one of these buttons pressed.
    void Will_Answer_The_Offer(const char* button) { Will_Click_In(m_user, "Send_Msg_Info", button); }

    /// Numbers and texts as the handset shows them, "number: text".
    QStringList Received() const
    {
        QStringList messages;
        for (const auto& message : m_phone.Inbox())
            messages.append(QString::fromStdString(message.m_number + ": " + message.m_text));
        return messages;
    }

    /// The line of a message in the sent items, with a date of today.
    static QByteArray Record(const QString& number, const QString& message)
    {
        return ("\a" + number + "\v" + message + "\a" + Today().toString("dd/MM/yyyy") + "\v\n").toUtf8();
    }

    Data_Folder m_data;
    User m_user;
    Virtual_Phone m_phone;
    Window_For_Tests m_window;
    Watched_Calls m_calls;
    MFCSMS m_session;
    Watched_Progress m_progress;
    Send_Runner m_runner;
};
