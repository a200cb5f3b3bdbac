#include "windows/phone/Wizard_Test.h"

#include "device/Chosen_Device.h"
#include "doctor/Phone_Search.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "platform/Waiting.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QTest>

namespace {

const char* const Invalid_Custom = "Please enter a valid Custom SMSC number.";

TEST_F(Wizard_Test, A_Device_Selected_With_Its_Own_Centre_Becomes_The_One_To_Send_Through)
{
    const Virtual_Phone phone;
    Plug_In(phone);
    const int before = Descriptors_Open_On(phone.Path());
    const int result = Run([&] {
        Probe_Row(0);
        Cus_SMS_Num_STR = "left from before";
        Click("_Select_Btn");
        EXPECT_FALSE(m_window->isVisible());
        EXPECT_EQ(Sheets_So_Far(), 2);
        EXPECT_EQ(Descriptors_Open_On(phone.Path()), before);
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(sel_port_name_str, QString::fromStdString(phone.Path()).mid(8));
    EXPECT_EQ(sel_port_bsd_str.toStdString(), phone.Path());
    EXPECT_EQ(Cus_SMS_Num_STR, "");
    EXPECT_FALSE(Sheet_Is_Shown());
}

TEST_F(Wizard_Test, A_Custom_Centre_Is_Handed_On_Exactly_As_Typed)
{
    Phone_Moods moods;
    moods.m_no_smsc = true;
    const Virtual_Phone phone(moods);
    Plug_In(phone);
    const int result = Run([&] {
        Probe_Row(0);
        Type_Custom_Smsc("+44-7700-900");
        Click("_Select_Btn");
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(Cus_SMS_Num_STR, "+44-7700-900");
}

TEST_F(Wizard_Test, A_Custom_Centre_That_Is_No_Number_Is_Refused_And_Its_Field_Focused)
{
    Virtual_Phone phone;
    Plug_In(phone);
    const QStringList refused = {"", "   ", "-", "+44+1", "123456789012345678901", "+44 20-7946", "12,34", "abc"};
    for (qsizetype times = 0; times < refused.size(); ++times)
        m_user.Will_Press("OK");
    Run([&] {
        Probe_Row(0);
        phone.Forget();
        for (const auto& number : refused) {
            Type_Custom_Smsc(number);
            Click("_Select_Btn");
            EXPECT_TRUE(m_window->isVisible());
            EXPECT_EQ(m_window->focusWidget(), &Control("_cus_smsc_edit"));
        }
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList(refused.size(), Boxed(Invalid_Custom)));
    EXPECT_TRUE(phone.Heard().empty());
    EXPECT_EQ(sel_port_bsd_str, "");
}

TEST_F(Wizard_Test, A_Custom_Centre_Is_Cut_To_Fifty_Characters_Typed_Or_Pasted)
{
    auto& field = Control<QLineEdit>("_cus_smsc_edit");
    Run([&] {
        Type_Custom_Smsc(QString(49, u'1'));
        QTest::keyClicks(&field, "234");
        EXPECT_EQ(field.text(), QString(49, u'1') + "2");
        field.setCursorPosition(3);
        QTest::keyClicks(&field, "9");
        EXPECT_EQ(field.text(), "1119" + QString(46, u'1'));
        EXPECT_EQ(field.cursorPosition(), 4);

        QApplication::clipboard()->setText("+44\n77\r\n00" + QString(1 << 20, u'5'));
        field.clear();
        field.paste();
        EXPECT_EQ(field.text(), "+44 77 00" + QString(41, u'5'));
    });
}

TEST_F(Wizard_Test, The_Check_Box_Chooses_Which_Field_Is_Enabled)
{
    Run([&] {
        EXPECT_TRUE(Control("_def_smsc_edit").isEnabled());
        EXPECT_FALSE(Control("_cus_smsc_edit").isEnabled());
        Click("_cus_smsc_chk");
        EXPECT_FALSE(Control("_def_smsc_edit").isEnabled());
        EXPECT_TRUE(Control("_cus_smsc_edit").isEnabled());
        Click("_cus_smsc_chk");
        EXPECT_TRUE(Control("_def_smsc_edit").isEnabled());
        EXPECT_FALSE(Control("_cus_smsc_edit").isEnabled());
    });
}

TEST_F(Wizard_Test, A_Device_Without_A_Centre_Is_Refused_And_Its_Port_Closed_When_The_Wizard_Ends)
{
    Phone_Moods moods;
    moods.m_no_smsc = true;
    const Virtual_Phone phone(moods);
    Plug_In(phone);
    const int before = Descriptors_Open_On(phone.Path());
    m_user.Will_Press("OK");
    const int result = Run([&] {
        Probe_Row(0);
        EXPECT_EQ(Text("_def_smsc_edit"), "");
        Click("_Select_Btn");
        EXPECT_FALSE(Sheet_Is_Shown());
        EXPECT_EQ(Descriptors_Open_On(phone.Path()), before + 1) << "left as it is for the next try";
    });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(m_user.Was_Shown(), QStringList(Boxed("Default SMSC No. details should not be blanked.")));
    EXPECT_EQ(Descriptors_Open_On(phone.Path()), before);
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
}

TEST_F(Wizard_Test, After_A_Refusal_Another_Device_Can_Be_Selected)
{
    Phone_Moods moods;
    moods.m_no_smsc = true;
    const Virtual_Phone without(moods);
    const Virtual_Phone with;
    Plug_In(without, with);
    m_user.Will_Press("OK");
    const int result = Run([&] {
        Probe_Row(0);
        Click("_Select_Btn");
        Probe_Row(1);
        Click("_Select_Btn");
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(sel_port_bsd_str.toStdString(), with.Path());
}

TEST_F(Wizard_Test, A_Device_That_Does_Not_Support_Sending_Gets_The_Long_Refusal)
{
    Phone_Moods moods;
    moods.m_no_sms_sending = true;
    const Virtual_Phone phone(moods);
    Plug_In(phone);
    m_user.Will_Press("OK");
    Run([&] {
        Probe_Row(0);
        Click("_Select_Btn");
        EXPECT_TRUE(m_window->isVisible());
    });
    EXPECT_EQ(m_user.Was_Shown(),
              QStringList(Boxed("Selected device do not provide a modem in the computer or the modem "
                                "does not support SMS sending command.")));
    EXPECT_EQ(sel_port_bsd_str, "");
}

TEST_F(Wizard_Test, A_Device_That_Falls_Silent_After_Its_Probe_Is_Refused)
{
    Virtual_Phone phone;
    Plug_In(phone);
    m_user.Will_Press("OK");
    Run([&] {
        Probe_Row(0);
        Phone_Moods moods;
        moods.m_silent = true;
        phone.Set_Moods(moods);
        Click("_Select_Btn");
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList(Boxed("Selected device is not working properly.")));
    EXPECT_EQ(sel_port_bsd_str, "");
}

TEST_F(Wizard_Test, The_Window_Lives_And_Takes_No_Input_While_A_Device_Is_Checked)
{
    Set_Pace(5);
    const Virtual_Phone phone;
    Plug_In(phone);
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
        RecordProperty("longest_gap_ms", static_cast<int>(heartbeat.Longest_Gap() * 1000));
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(sel_port_bsd_str.toStdString(), phone.Path());
}

TEST_F(Wizard_Test, The_Programs_Exit_During_A_Check_Is_Orderly)
{
    const Virtual_Phone phone;
    Plug_In(phone);
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
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
}

TEST_F(Wizard_Test, Going_On_Without_A_Device_Leaves_Both_Texts_Empty)
{
    const struct
    {
        const char* way;
        std::function<void()> take_it;
    } ways[] = {
        {"the button", [this] { Click("_Cancel_Btn"); }},
        {"Escape", [this] { Press(Qt::Key_Escape); }},
        {"the close button", [this] { m_window->windowHandle()->close(); }},
    };
    for (const auto& one : ways) {
        sel_port_name_str = "USB0";
        sel_port_bsd_str = "/dev/ttyUSB0";
        const int result = Run([&] {
            one.take_it();
            EXPECT_FALSE(m_window->isVisible()) << one.way;
        });
        EXPECT_EQ(result, 0) << one.way;
        EXPECT_EQ(sel_port_name_str, "") << one.way;
        EXPECT_EQ(sel_port_bsd_str, "") << one.way;
    }
}

TEST_F(Wizard_Test, The_Return_Key_Presses_No_Button)
{
    const Virtual_Phone phone;
    Plug_In(phone);
    Run([&] {
        for (const char* control : {"idPortList", "_comport_edit", "_Search_Btn", "_Select_Btn", "_Cancel_Btn"}) {
            Control(control).setFocus();
            Press(Qt::Key_Return);
            Press(Qt::Key_Enter);
            EXPECT_TRUE(m_window->isVisible()) << control;
        }
        EXPECT_EQ(ph_find_thread, 0);
    });
    EXPECT_EQ(m_finder.m_searches, 1);
}

TEST_F(Wizard_Test, The_Wizard_Can_Be_Used_Again_And_Again)
{
    const Virtual_Phone phone;
    Plug_In(phone);
    for (int time = 0; time < 3; ++time) {
        EXPECT_EQ(Run([&] {
                      EXPECT_EQ(Text("_comport_edit"), "");
                      Probe_Row(0);
                      Click("_Select_Btn");
                  }),
                  1);
    }
}

} // namespace
