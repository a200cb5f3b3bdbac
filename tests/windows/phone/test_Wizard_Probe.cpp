#include "windows/phone/Wizard_Test.h"

#include "device/Chosen_Device.h"
#include "doctor/Phone_Search.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "platform/Waiting.h"
#include "toolkit/Message_Boxes.h"

#include <QAbstractButton>
#include <QMessageBox>

namespace {

const char* const Not_Working = "Selected device is not working properly.";
const char* const Could_Not_Open = "Selected device is not working properly.\nCould not open modem.\n";

int Times_Heard(const Virtual_Phone& phone, const std::string& command)
{
    const auto heard = phone.Heard();
    return static_cast<int>(std::count(heard.begin(), heard.end(), command));
}

TEST_F(Wizard_Test, A_Click_On_A_Row_Shows_What_The_Device_Tells)
{
    const Virtual_Phone phone;
    Plug_In(phone);
    Run([&] {
        Probe_Row(0);
        EXPECT_EQ(Text("_comport_edit"), QString::fromStdString(phone.Path()).mid(8));
        EXPECT_EQ(Text("_port_det_edit").toStdString(), phone.Path());
        EXPECT_EQ(Text("_manfacturer_edit"), "Corvane");
        EXPECT_EQ(Text("_model_edit"), "Virtual Phone");
        EXPECT_EQ(Text("_imei_edit"), "490154203237518");
        EXPECT_EQ(Text("_imsi_edit"), "001010123456789");
        EXPECT_EQ(Text("_battery_edit"), "85%");
        EXPECT_EQ(Text("_signal_edit"), "High (20)");
        EXPECT_EQ(Text("_operator_edit"), "Corvane Test");
        EXPECT_EQ(Text("_revision_edit"), "1.0");
        EXPECT_EQ(Text("_def_smsc_edit"), "+15550009999");
        EXPECT_EQ(Text("_cus_smsc_edit"), "");
    });
}

TEST_F(Wizard_Test, Battery_And_Signal_Are_Put_Into_Words)
{
    const struct
    {
        int battery_status, battery_charge, signal;
        const char *battery, *shown_signal;
    } cases[] = {
        {0, 85, 8, "85%", "Low (8)"},
        {1, 40, 9, "40% ( Charging )", "Medium (9)"},
        {2, 0, 14, "Device does not have a battery connected.", "Medium (14)"},
        {3, 0, 15, "Recognized power fault.", "Good (15)"},
        {0, 100, 99, "100%", "Unknown"},
    };
    Virtual_Phone phone;
    Plug_In(phone);
    for (const auto& one : cases) {
        Phone_Moods moods;
        moods.m_battery_status = one.battery_status;
        moods.m_battery_charge = one.battery_charge;
        moods.m_signal = one.signal;
        phone.Set_Moods(moods);
        Run([&] {
            Probe_Row(0);
            EXPECT_EQ(Text("_battery_edit"), one.battery);
            EXPECT_EQ(Text("_signal_edit"), one.shown_signal);
        });
    }
}

TEST_F(Wizard_Test, A_Centre_In_Ucs2_Is_Shown_Decoded_And_What_A_Device_Says_Is_Plain_Text)
{
    Phone_Moods moods;
    moods.m_smsc_in_ucs2 = true;
    Virtual_Phone phone(moods);
    phone.Will_Answer("AT+GMI", "\r\n&lt;<b>Bold</b>%1\r\n\r\nOK\r\n");
    phone.Will_Answer("AT+GMM", "\r\n" + std::string(3000, 'm') + "\r\n\r\nOK\r\n");
    Plug_In(phone);
    Run([&] {
        Probe_Row(0);
        EXPECT_EQ(Text("_def_smsc_edit"), "+15550009999");
        EXPECT_EQ(Text("_manfacturer_edit"), "&lt;bBold/b%1"); // angle brackets are taken out of answers
        EXPECT_EQ(Text("_model_edit"), QString(3000, u'm'));
        EXPECT_EQ(Control<QLineEdit>("_model_edit").cursorPosition(), 0);
    });
}

TEST_F(Wizard_Test, The_Sheet_Stands_Over_The_Wizard_While_It_Probes_And_Keeps_Input_Away)
{
    Set_Pace(5);
    const Virtual_Phone phone;
    Plug_In(phone);
    Run([&] {
        Click_Row(0);
        ASSERT_TRUE(Serve_Until([&] { return Sheet_Is_Shown(); }));
        Click("_Select_Btn");
        Click("_Search_Btn");
        Click("_Cancel_Btn");
        Press(Qt::Key_Escape);
        m_window->windowHandle()->close();
        EXPECT_TRUE(m_window->isVisible());
        EXPECT_TRUE(Sheet_Is_Shown());
        EXPECT_EQ(ph_find_thread, 0);
        ASSERT_TRUE(Serve_Until([&] { return !Sheet_Is_Shown(); }));
        EXPECT_EQ(Text("_def_smsc_edit"), "+15550009999");
        EXPECT_TRUE(m_window->isVisible());
    });
    EXPECT_EQ(Times_Heard(phone, "AT+CSMS=?"), 0);
}

TEST_F(Wizard_Test, The_Window_Stays_Alive_While_It_Probes)
{
    Phone_Moods moods;
    moods.m_never_stops_talking = true;
    const Virtual_Phone talker(moods);
    Plug_In(talker);
    Run([&] {
        Heartbeat heartbeat;
        Probe_Row(0);
        EXPECT_LT(heartbeat.Longest_Gap(), 0.2);
        RecordProperty("longest_gap_ms", static_cast<int>(heartbeat.Longest_Gap() * 1000));
    });
}

TEST_F(Wizard_Test, Clicking_The_Same_Row_Twice_Probes_Once)
{
    const Virtual_Phone phone;
    Plug_In(phone);
    Run([&] {
        Probe_Row(0);
        Click_Row(0);
        Serve_Until([] { return Workers_Running() == 0; });
    });
    EXPECT_EQ(Sheets_So_Far(), 1);
    EXPECT_EQ(Times_Heard(phone, "AT+GMI"), 1);
}

TEST_F(Wizard_Test, A_Click_Into_Empty_Space_Keeps_The_Row)
{
    const Virtual_Phone phone;
    Plug_In(phone);
    Run([&] {
        Click_Empty_Space();
        EXPECT_EQ(Selected_Row(), -1) << "there is no row to go back to yet";
        Probe_Row(0);
        Click_Empty_Space();
        EXPECT_EQ(Selected_Row(), 0);
        Click_Row(0, Qt::ControlModifier); // takes the selection away
        EXPECT_EQ(Selected_Row(), 0);
        Table().clearSelection();
        EXPECT_EQ(Selected_Row(), 0);
        EXPECT_EQ(Text("_def_smsc_edit"), "+15550009999");
    });
    EXPECT_EQ(Times_Heard(phone, "AT+GMI"), 1);
}

TEST_F(Wizard_Test, Another_Row_Shows_Another_Device_With_Fresh_Fields)
{
    Virtual_Phone first;
    Virtual_Phone second;
    second.Will_Answer("AT+GMI", "\r\nNOKIA\r\n\r\nOK\r\n");
    second.Will_Answer("AT+CIMI", "\r\nERROR\r\n");
    Plug_In(first, second);
    Run([&] {
        Probe_Row(0);
        Type_Custom_Smsc("+4477");
        Cus_SMS_Num_STR = "left from before";
        Probe_Row(1);
        EXPECT_EQ(Text("_port_det_edit").toStdString(), second.Path());
        EXPECT_EQ(Text("_manfacturer_edit"), "NIA");
        EXPECT_EQ(Text("_imsi_edit"), "");
        EXPECT_EQ(Text("_cus_smsc_edit"), "");
        EXPECT_FALSE(Control("_cus_smsc_edit").isEnabled());
        EXPECT_TRUE(Control("_def_smsc_edit").isEnabled());
        EXPECT_EQ(Cus_SMS_Num_STR, "");
        Probe_Row(0);
        EXPECT_EQ(Text("_manfacturer_edit"), "Corvane");
    });
    EXPECT_EQ(Times_Heard(first, "AT+GMI"), 2);
}

TEST_F(Wizard_Test, Two_Rows_Picked_At_Once_Are_Probed_One_After_The_Other)
{
    const Virtual_Phone first;
    const Virtual_Phone second;
    Plug_In(first, second);
    Run([&] {
        Table().selectRow(0);
        Table().selectRow(1);
        ASSERT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
        EXPECT_FALSE(Sheet_Is_Shown());
        EXPECT_EQ(Text("_port_det_edit").toStdString(), second.Path());
        EXPECT_EQ(Text("_def_smsc_edit"), "+15550009999");
    });
    EXPECT_EQ(Times_Heard(first, "AT+GMI") + Times_Heard(second, "AT+GMI"), 2);
}

TEST_F(Wizard_Test, A_Silent_Phone_Is_Told_Of_And_The_Wizard_Stays_Open)
{
    Phone_Moods moods;
    moods.m_silent = true;
    const Virtual_Phone phone(moods);
    const Virtual_Phone good;
    Plug_In(phone, good);
    m_user.Will_Press("OK");
    Run([&] {
        Probe_Row(0);
        EXPECT_TRUE(m_window->isVisible());
        EXPECT_EQ(Text("_battery_edit"), "");
        Probe_Row(1);
        EXPECT_EQ(Text("_manfacturer_edit"), "Corvane");
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList(Boxed(Not_Working)));
}

TEST_F(Wizard_Test, What_Is_Wrong_With_A_Device_Is_Told_Once_The_Sheet_Has_Gone)
{
    Phone_Moods moods;
    moods.m_silent = true;
    const Virtual_Phone silent(moods);
    Virtual_Phone gone;
    const Kept_Number kept(gone);
    Plug_In(silent, gone);
    int boxes = 0;
    for (int told = 0; told < 2; ++told) {
        m_user.Will_Handle([&](QMessageBox& box) {
            ++boxes;
            EXPECT_FALSE(Sheet_Is_Shown()) << "under: " << box.text().toStdString();
            EXPECT_EQ(box.parentWidget(), m_window.get());
            box.buttons().front()->click();
        });
    }
    Run([&] {
        gone.Hang_Up();
        for (const int row : {0, 1}) {
            Probe_Row(row);
            ASSERT_TRUE(Serve_Until([&] { return boxes == row + 1; }));
        }
    });
}

TEST_F(Wizard_Test, A_Phone_That_Is_Gone_Since_The_Search_Cannot_Be_Opened)
{
    Virtual_Phone phone;
    const Kept_Number kept(phone);
    Plug_In(phone);
    m_user.Will_Press("OK");
    m_user.Will_Press("OK");
    Run([&] {
        phone.Hang_Up();
        Probe_Row(0);
        Click("_Select_Btn");
        EXPECT_TRUE(m_window->isVisible());
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList({Boxed(Could_Not_Open), Boxed(Could_Not_Open)}));
}

TEST_F(Wizard_Test, A_Hang_Up_During_A_Probe_Ends_It_With_What_Was_Told)
{
    Virtual_Phone phone;
    const Kept_Number kept(phone);
    Plug_In(phone);
    Run([&] {
        const int before = Sheets_So_Far();
        Click_Row(0);
        ASSERT_TRUE(Serve_Until([&] { return !Text("_imei_edit").isEmpty(); }));
        phone.Hang_Up();
        ASSERT_TRUE(Wait_For_Sheets_End(before));
        EXPECT_EQ(Text("_manfacturer_edit"), "Corvane");
        EXPECT_EQ(Text("_def_smsc_edit"), "");
        Click("_Search_Btn");
        ASSERT_TRUE(Serve_Until([] { return ph_find_thread == 0; }));
        EXPECT_EQ(Rows(), 0);
    });
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
}

TEST_F(Wizard_Test, A_Probe_Leaves_No_Descriptor_Open)
{
    const Virtual_Phone phone;
    Plug_In(phone);
    const int before = Descriptors_Open_On(phone.Path());
    Run([&] {
        Probe_Row(0);
        EXPECT_EQ(Descriptors_Open_On(phone.Path()), before);
    });
}

TEST_F(Wizard_Test, A_Probe_Closes_The_Wizards_Own_Port)
{
    const Virtual_Phone phone;
    const Virtual_Phone other;
    Plug_In(phone);
    const QString path = QString::fromStdString(other.Path());
    Run([&] {
        m_window->initPort(path);
        const auto own = m_window->Own_Port();
        ASSERT_TRUE(own);
        EXPECT_TRUE(own->isOpen());
        m_window->initPort(path);
        EXPECT_EQ(m_window->Own_Port(), own) << "the same path opens once";
        Probe_Row(0);
        EXPECT_FALSE(own->isOpen());
        EXPECT_FALSE(m_window->Own_Port());
        m_window->initPort("/dev/null");
        EXPECT_FALSE(m_window->Own_Port());
    });
}

TEST_F(Wizard_Test, The_Programs_Exit_During_A_Probe_Is_Orderly)
{
    Set_Pace(1);
    Phone_Moods moods;
    moods.m_silent = true;
    const Virtual_Phone phone(moods);
    Plug_In(phone);
    double begin = 0;
    Run([&] {
        Click_Row(0);
        ASSERT_TRUE(Serve_Until([&] { return Sheet_Is_Shown(); }));
        begin = Now_Seconds();
        Begin_Program_Exit();
        m_window->done(0);
    });
    EXPECT_LT(Now_Seconds() - begin, 5);
    EXPECT_FALSE(Sheet_Is_Shown());
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    EXPECT_EQ(m_user.Was_Shown(), QStringList());
}

TEST_F(Wizard_Test, A_Window_Deleted_During_A_Probe_Waits_For_It)
{
    const Virtual_Phone phone;
    Plug_In(phone);
    m_window->show();
    m_window->Search_dev_Pressed();
    ASSERT_TRUE(Serve_Until([&] { return ph_find_thread == 0; }));
    Table().selectRow(0);
    ASSERT_TRUE(Serve_Until([&] { return Sheet_Is_Shown(); }));
    m_window.reset();
    EXPECT_FALSE(Sheet_Is_Shown());
}

TEST_F(Wizard_Test, A_Message_Left_Open_From_A_Probe_Closes_At_The_Programs_Exit)
{
    Phone_Moods moods;
    moods.m_silent = true;
    const Virtual_Phone phone(moods);
    Plug_In(phone);
    m_user.Will_Handle([](QMessageBox&) {
        Begin_Program_Exit();
        Close_Message_Boxes();
    });
    Run([&] {
        Probe_Row(0);
        EXPECT_TRUE(Serve_Until([] { return Program_Is_Exiting(); }));
        m_window->done(0);
    });
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
}

} // namespace
