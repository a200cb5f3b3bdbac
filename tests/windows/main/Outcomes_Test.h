#pragma once

#include "device/Chosen_Device.h"
#include "engine/Job_State.h"
#include "gui/Open_Program.h"
#include "phone/Virtual_Phone.h"
#include "records/Data_Paths.h"
#include "support/Files.h"
#include "support/Patient_Calls.h"
#include "windows/main/Send_Modeless.h"

#include <functional>

// The open main window, a phone on its line, and the outcomes that the recipient table shows.
class Outcomes_Test : public Open_Program
{
protected:
    static constexpr int Outcome_Column = 2;

    Outcomes_Test()
    {
        Set_Pace(250); // every read lasts 20 ms
        sel_port_bsd_str = QString::fromStdString(m_phone.Path());
        sel_port_name_str = sel_port_bsd_str;
        Stop_SMS_Sending_Now = 0;
        The<QPlainTextEdit>("_messageEdit").setPlainText(QStringLiteral("Hello"));
    }

    ~Outcomes_Test() override
    {
        Stop_SMS_Sending_Now = 1;
        EXPECT_TRUE(Serve_Until([] { return sms_thread_var == 0 && Workers_Running() == 0; }));
        Before_The_Next_Answer({});
        Write_Bytes(Applied_Exclusion_Path, {});
        Set_Data_Paths({});
        sel_port_bsd_str.clear();
        sel_port_name_str.clear();
        Message_IS.clear();
        Stop_SMS_Sending_Now = 0;
        Set_Pace(1);
    }

    void Add_All(const QStringList& numbers)
    {
        for (const QString& number : numbers)
            Add(number);
    }

    void Have(const std::function<void(Phone_Moods&)>& change)
    {
        auto moods = m_phone.Moods();
        change(moods);
        m_phone.Set_Moods(moods);
    }

    /// Calls this on the job's thread after each write to the phone.
    static void Before_The_Next_Answer(std::function<void()> look)
    {
        The_Patient_Calls().Look_After_Each_Write(std::move(look));
    }

    /// How many messages the phone has been asked to take.
    qsizetype Submissions() const { return Submission_Commands().size(); }
    QStringList Submission_Commands() const
    {
        QStringList commands;
        for (const std::string& line : m_phone.Heard()) {
            if (line.starts_with("AT+CMGS="))
                commands.append(QString::fromStdString(line));
        }
        return commands;
    }

    /// Presses Send and returns when the job has ended.
    void Send()
    {
        Click("_sent_btn");
        ASSERT_TRUE(Serve_Until([] { return sms_thread_var == 0 && Workers_Running() == 0; }, 60));
    }
    /// The same, and presses OK in the one box that comes.
    void Send_With_One_Box()
    {
        user.Will_Press(QStringLiteral("OK"));
        Send();
    }

    const QAbstractItemModel& Rows() { return *The<QTableView>("idTableView").model(); }
    bool Outcomes_Are_Shown() { return Rows().columnCount() == Outcome_Column + 1; }
    QStringList Shown_Outcomes()
    {
        QStringList outcomes;
        for (int row = 0; row < Rows().rowCount(); ++row)
            outcomes.append(Shown(row, Outcome_Column));
        return outcomes;
    }

    QPushButton& Select_Button() { return The<QPushButton>("Select_Not_Taken"); }
    QPushButton& Keep_Button() { return The<QPushButton>("Keep_Not_Taken"); }

    /// Both buttons are alike: hidden, off or on.
    std::string Buttons()
    {
        const auto state = [](const QPushButton& button) {
            return !button.isVisible() ? "hidden" : button.isEnabled() ? "on" : "off";
        };
        const std::string select = state(Select_Button());
        const std::string keep = state(Keep_Button());
        return select == keep ? select : select + " and " + keep;
    }

    Virtual_Phone m_phone;
};
