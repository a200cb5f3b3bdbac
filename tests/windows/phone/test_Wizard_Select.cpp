#include "windows/phone/Wizard_Test.h"

TEST_F(Wizard_Test, A_Device_Selected_With_Its_Own_Centre_Becomes_The_One_To_Send_Through_Again_And_Again)
{
    const int descriptors = Phones_Descriptors();
    for (int time = 0; time < 3; ++time) {
        const int result = Run([&] {
            EXPECT_EQ(Text("_comport_edit"), "");
            Probe_Row(0);
            Cus_SMS_Num_STR = "left from before";
            if (time == 2) {
                Type_Custom_Smsc("+44-7700-900");
                Click("_cus_smsc_chk"); // which was on: another centre is not wanted after all
            }
            Click("_Select_Btn");
            EXPECT_FALSE(m_window->isVisible());
            EXPECT_EQ(Sheets_So_Far(), 2 * time + 2);
            EXPECT_EQ(Phones_Descriptors(), descriptors);
        });
        EXPECT_EQ(result, 1);
        EXPECT_EQ(sel_port_name_str, QString::fromStdString(m_phone.Path()).mid(8));
        EXPECT_EQ(sel_port_bsd_str.toStdString(), m_phone.Path());
        EXPECT_EQ(Cus_SMS_Num_STR, "");
        EXPECT_FALSE(Sheet_Is_Shown());
    }
}

TEST_F(Wizard_Test, A_Custom_Centre_That_Is_No_Number_Is_Refused_And_Another_Handed_On_Exactly_As_Typed)
{
    m_phone.Set_Moods({.m_no_smsc = true});
    m_user.Will_Press("OK");
    m_user.Will_Press("OK");
    const int result = Run([&] {
        Probe_Row(0);
        m_phone.Forget();
        for (const char* number : {"", "+44+1"}) {
            Type_Custom_Smsc(number);
            Table().setFocus();
            Click("_Select_Btn");
            EXPECT_TRUE(m_window->isVisible());
            EXPECT_EQ(m_window->focusWidget(), &Control("_cus_smsc_edit"));
        }
        EXPECT_TRUE(m_phone.Heard().empty());
        EXPECT_EQ(sel_port_bsd_str, "");
        Type_Custom_Smsc("+44-7700-900");
        Click("_Select_Btn");
    });
    Expect_Told(QStringList(2, "Please enter a valid Custom SMSC number."));
    EXPECT_EQ(result, 1);
    EXPECT_EQ(Cus_SMS_Num_STR, "+44-7700-900");
}

TEST_F(Wizard_Test, The_Check_Box_Chooses_Which_Field_Is_Enabled_And_A_Custom_Centre_Is_Cut_To_Fifty_Characters)
{
    auto& field = Control<QLineEdit>("_cus_smsc_edit");
    Run([&] {
        for (const bool is_custom : {false, true, false}) {
            EXPECT_EQ(Control("_def_smsc_edit").isEnabled(), !is_custom);
            EXPECT_EQ(field.isEnabled(), is_custom);
            Click("_cus_smsc_chk");
        }
        Type_Custom_Smsc(QString(51, u'1'));
        EXPECT_EQ(field.text(), QString(50, u'1'));
    });
}

TEST_F(Wizard_Test, A_Device_Without_A_Centre_Is_Refused_And_Its_Port_Closed_When_The_Wizard_Ends)
{
    m_phone.Set_Moods({.m_no_smsc = true});
    const int descriptors = Phones_Descriptors();
    m_user.Will_Press("OK");
    const int result = Run([&] {
        Probe_Row(0);
        EXPECT_EQ(Text("_def_smsc_edit"), "");
        Click("_Select_Btn");
        EXPECT_FALSE(Sheet_Is_Shown());
        EXPECT_EQ(Phones_Descriptors(), descriptors + 1) << "left as it is for the next try";
    });
    EXPECT_EQ(result, 0);
    Expect_Told({"Default SMSC No. details should not be blanked."});
    EXPECT_EQ(Phones_Descriptors(), descriptors);
}

TEST_F(Wizard_Test, A_Device_That_Does_Not_Send_Or_Falls_Silent_Is_Refused_And_Another_Can_Be_Selected)
{
    Virtual_Phone unfit;
    Plug_In(unfit, m_phone);
    m_user.Will_Press("OK");
    m_user.Will_Press("OK");
    const int result = Run([&] {
        Probe_Row(0);
        for (const Phone_Moods& moods : {Phone_Moods{.m_no_sms_sending = true}, Phone_Moods{.m_silent = true}}) {
            unfit.Set_Moods(moods);
            Click("_Select_Btn");
            EXPECT_TRUE(m_window->isVisible());
            EXPECT_EQ(sel_port_bsd_str, "");
        }
        Probe_Row(1);
        Click("_Select_Btn");
    });
    Expect_Told({"Selected device do not provide a modem in the computer or the modem does not support SMS sending "
                 "command.",
                 "Selected device is not working properly."});
    EXPECT_EQ(result, 1);
    EXPECT_EQ(sel_port_bsd_str.toStdString(), m_phone.Path());
}

TEST_F(Wizard_Test, The_Window_Lives_And_Takes_No_Input_While_A_Device_Is_Checked)
{
    Set_Pace(5);
    const int result = Run([&] {
        Probe_Row(0);
        Heartbeat heartbeat;
        QTimer::singleShot(300, m_window.get(), [&] {
            EXPECT_TRUE(Sheet_Is_Shown());
            Click("_Select_Btn");
            Click("_Cancel_Btn");
            Press(Qt::Key_Escape);
            m_window->close();
            EXPECT_TRUE(m_window->isVisible());
        });
        Click("_Select_Btn");
        EXPECT_LT(heartbeat.Longest_Gap(), 0.2);
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(sel_port_bsd_str.toStdString(), m_phone.Path());
}

TEST_F(Wizard_Test, The_Programs_Exit_During_A_Check_Is_Orderly)
{
    Run([&] {
        Probe_Row(0);
        Set_Pace(1);
        bool was_checking = false;
        QTimer::singleShot(200, m_window.get(), [&] {
            was_checking = Sheet_Is_Shown();
            Begin_Program_Exit();
        });
        const double begin = Now_Seconds();
        Click("_Select_Btn");
        EXPECT_LT(Now_Seconds() - begin, 5);
        EXPECT_TRUE(was_checking);
        EXPECT_FALSE(Sheet_Is_Shown());
    });
    EXPECT_EQ(sel_port_bsd_str, "");
}

TEST_F(Wizard_Test, Going_On_Without_A_Device_Leaves_Both_Texts_Empty)
{
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"the button", [&] { Click("_Cancel_Btn"); }},
        {"Escape", [&] { Press(Qt::Key_Escape); }},
        {"the close button", [&] { m_window->windowHandle()->close(); }},
    };
    for (const auto& [name, way] : ways) {
        SCOPED_TRACE(name);
        sel_port_name_str = "USB0";
        sel_port_bsd_str = "/dev/ttyUSB0";
        const int result = Run([&, way = way] {
            way();
            EXPECT_FALSE(m_window->isVisible());
        });
        EXPECT_EQ(result, 0);
        EXPECT_EQ(sel_port_name_str, "");
        EXPECT_EQ(sel_port_bsd_str, "");
    }
}
