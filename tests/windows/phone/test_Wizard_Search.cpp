#include "windows/phone/Wizard_Test.h"

#include "doctor/Phone_Search.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "platform/Waiting.h"

#include <QApplication>
#include <QCursor>
#include <QGroupBox>

namespace {

const char* const Text_Fields[] = {"_comport_edit",  "_port_det_edit", "_manfacturer_edit", "_model_edit",
                                   "_imei_edit",     "_imsi_edit",     "_battery_edit",     "_signal_edit",
                                   "_operator_edit", "_revision_edit", "_def_smsc_edit",    "_cus_smsc_edit"};

TEST_F(Wizard_Test, A_Search_That_Finds_Nothing_Leaves_The_List_Empty_And_Select_Says_So)
{
    Set_Extra_Device_Paths({"/dev/null", "/nowhere/at/all"});
    m_user.Will_Press("OK");
    Run([&] {
        EXPECT_EQ(Rows(), 0);
        Click("_Select_Btn");
        EXPECT_EQ(m_window->focusWidget(), &Table());
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList(Boxed("Device list is empty.")));
}

TEST_F(Wizard_Test, Every_Port_That_Opens_Is_Listed_Silent_Ones_Too)
{
    Phone_Moods silent;
    silent.m_silent = true;
    const Virtual_Phone first;
    const Virtual_Phone second(silent);
    Set_Extra_Device_Paths(
        {QString::fromStdString(first.Path()), "/nowhere", QString::fromStdString(second.Path()), "/dev/null"});
    Run([&] {
        ASSERT_EQ(Rows(), 2);
        const auto* model = Table().model();
        EXPECT_EQ(model->index(0, 1).data().toString().toStdString(), first.Path());
        EXPECT_EQ(model->index(1, 1).data().toString().toStdString(), second.Path());
        EXPECT_EQ(model->index(0, 0).data().toString(), QString::fromStdString(first.Path()).mid(8));
        EXPECT_EQ(model->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), "Port");
        EXPECT_EQ(model->headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), "Device path");
        EXPECT_EQ(Selected_Row(), -1);
    });
    EXPECT_TRUE(first.Heard().empty()) << "a search says nothing to a device";
}

TEST_F(Wizard_Test, Select_Without_A_Row_Clicked_Asks_For_One)
{
    const Virtual_Phone phone;
    Plug_In(phone);
    m_user.Will_Press("OK");
    Run([&] {
        Click("_Select_Btn");
        EXPECT_TRUE(m_window->isVisible());
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList(Boxed("Please select device from list.")));
}

TEST_F(Wizard_Test, A_Search_Empties_The_Window_And_Forgets_The_Row)
{
    const Virtual_Phone phone;
    Plug_In(phone);
    m_user.Will_Press("OK");
    Run([&] {
        Probe_Row(0);
        Type_Custom_Smsc("+4477");
        Click("_Search_Btn");
        ASSERT_TRUE(Serve_Until([] { return ph_find_thread == 0; }));
        for (const char* field : Text_Fields)
            EXPECT_EQ(Text(field), "") << field;
        EXPECT_TRUE(Control("_def_smsc_edit").isEnabled());
        EXPECT_FALSE(Control("_cus_smsc_edit").isEnabled());
        EXPECT_EQ(Rows(), 1);
        EXPECT_EQ(Selected_Row(), -1);
        Click("_Select_Btn");
        Probe_Row(0); // the same row as before is a new one
        EXPECT_EQ(Text("_manfacturer_edit"), "Corvane");
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList(Boxed("Please select device from list.")));
}

TEST_F(Wizard_Test, Two_Presses_Of_Search_Make_One_Search)
{
    const Virtual_Phone phone;
    Plug_In(phone);
    Run([&] {
        m_calls.m_gated_path = phone.Path();
        Click("_Search_Btn");
        Click("_Search_Btn");
        ASSERT_TRUE(Serve_Until([&] { return m_calls.m_gate.Is_Somebody_Waiting(); }));
        Click("_Search_Btn");
        EXPECT_EQ(ph_find_thread, 1);
        m_calls.m_gate.Open();
        ASSERT_TRUE(Serve_Until([] { return ph_find_thread == 0; }));
        EXPECT_EQ(Rows(), 1);
    });
    EXPECT_EQ(m_finder.m_searches, 2) << "one at the opening, one for the presses";
}

TEST_F(Wizard_Test, A_Row_Clicked_During_A_Search_Is_Passed_Over_And_Can_Be_Clicked_Afterwards)
{
    const Virtual_Phone first;
    const Virtual_Phone second;
    Plug_In(first, second);
    Run([&] {
        m_calls.m_gated_path = second.Path();
        Click("_Search_Btn");
        ASSERT_TRUE(Serve_Until([&] { return m_calls.m_gate.Is_Somebody_Waiting() && Rows() == 1; }));
        Click_Row(0);
        EXPECT_EQ(Selected_Row(), 0);
        EXPECT_EQ(Text("_comport_edit"), "");
        m_calls.m_gate.Open();
        ASSERT_TRUE(Serve_Until([] { return ph_find_thread == 0; }));
        EXPECT_EQ(Rows(), 2);
        EXPECT_EQ(Selected_Row(), -1);
        EXPECT_EQ(Sheets_So_Far(), 0);
        Probe_Row(0);
        EXPECT_EQ(Text("_port_det_edit").toStdString(), first.Path());
    });
    EXPECT_FALSE(first.Heard().empty());
}

TEST_F(Wizard_Test, The_Window_Stays_Alive_While_It_Searches)
{
    const Virtual_Phone phone;
    Plug_In(phone);
    Run([&] {
        m_calls.m_gated_path = phone.Path();
        Heartbeat heartbeat;
        Click("_Search_Btn");
        const double end = Now_Seconds() + 0.5;
        Serve_Until([&] { return Now_Seconds() > end; });
        EXPECT_EQ(ph_find_thread, 1);
        m_calls.m_gate.Open();
        ASSERT_TRUE(Serve_Until([] { return ph_find_thread == 0; }));
        EXPECT_LT(heartbeat.Longest_Gap(), 0.2);
        RecordProperty("longest_gap_ms", static_cast<int>(heartbeat.Longest_Gap() * 1000));
    });
}

TEST_F(Wizard_Test, A_Search_Shows_That_It_Runs_And_An_Empty_List_Is_Not_Called_Empty_Until_It_Is_Over)
{
    const Virtual_Phone phone;
    Plug_In(phone);
    m_user.Will_Press("OK");
    m_user.Will_Press("OK");
    Run([&] {
        EXPECT_EQ(Control<QGroupBox>("device_box").title(), "Devices found")
            << "the search before the window opened is over";
        m_calls.m_gated_path = phone.Path();
        Click("_Search_Btn");
        ASSERT_TRUE(Serve_Until([&] { return m_calls.m_gate.Is_Somebody_Waiting(); }));
        EXPECT_EQ(Control<QGroupBox>("device_box").title(), "Searching for devices ...");
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::BusyCursor);
        Click("_Select_Btn");
        Set_Extra_Device_Paths({});
        m_calls.m_gate.Open();
        ASSERT_TRUE(Serve_Until([] { return ph_find_thread == 0; }));
        EXPECT_EQ(Control<QGroupBox>("device_box").title(), "Devices found");
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        Click("_Search_Btn");
        ASSERT_TRUE(Serve_Until([] { return ph_find_thread == 0; }));
        Click("_Select_Btn");
    });
    EXPECT_EQ(m_user.Was_Shown(),
              QStringList({Boxed("Still searching for devices. Please wait ..."), Boxed("Device list is empty.")}));
}

TEST_F(Wizard_Test, The_Search_Before_The_Window_Opens_Leaves_The_Interface_Alive_Too)
{
    const Virtual_Phone phone;
    Plug_In(phone);
    m_calls.m_gated_path = phone.Path();
    Heartbeat heartbeat;
    QTimer::singleShot(400, qApp, [&] {
        EXPECT_FALSE(m_window->isVisible());
        EXPECT_EQ(ph_find_thread, 1);
        EXPECT_NE(QGuiApplication::overrideCursor(), nullptr) << "nothing shows that the program is searching";
        m_calls.m_gate.Open();
    });
    Run([&] { EXPECT_EQ(ph_find_thread, 0); });
    EXPECT_LT(heartbeat.Longest_Gap(), 0.2);
    RecordProperty("longest_gap_ms", static_cast<int>(heartbeat.Longest_Gap() * 1000));
}

TEST_F(Wizard_Test, The_Window_Opens_One_Second_After_The_Search)
{
    Set_Pace(4);
    const double begin = Now_Seconds();
    double opened = 0;
    Run([&] { opened = Now_Seconds(); });
    EXPECT_GE(opened - begin, 0.25);
    EXPECT_LT(opened - begin, 2.0);
}

TEST_F(Wizard_Test, Going_On_During_A_Search_Waits_For_Its_Orderly_End)
{
    const Virtual_Phone phone;
    Plug_In(phone);
    const int result = Run([&] {
        m_calls.m_gated_path = phone.Path();
        Click("_Search_Btn");
        ASSERT_TRUE(Serve_Until([&] { return m_calls.m_gate.Is_Somebody_Waiting(); }));
        QTimer::singleShot(100, qApp, [&] {
            EXPECT_FALSE(m_window->isVisible());
            m_calls.m_gate.Open();
        });
        Click("_Cancel_Btn");
    });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(ph_find_thread, 0);
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
}

TEST_F(Wizard_Test, A_Window_Deleted_During_A_Search_Waits_For_Its_Worker)
{
    const Virtual_Phone phone;
    Plug_In(phone);
    m_calls.m_gated_path = phone.Path();
    m_window->Search_dev_Pressed();
    ASSERT_TRUE(Serve_Until([&] { return m_calls.m_gate.Is_Somebody_Waiting(); }));
    QTimer::singleShot(50, qApp, [&] { m_calls.m_gate.Open(); });
    m_window.reset();
    EXPECT_EQ(ph_find_thread, 0);
}

} // namespace
