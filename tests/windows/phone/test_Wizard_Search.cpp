#include "windows/phone/Wizard_Test.h"

TEST_F(Wizard_Test, Every_Port_That_Opens_Is_Listed_Silent_Ones_Too_And_Select_Asks_For_One)
{
    const Virtual_Phone silent(Phone_Moods{.m_silent = true});
    const QString first = QString::fromStdString(m_phone.Path());
    const QString second = QString::fromStdString(silent.Path());
    Set_Extra_Device_Paths({first, "/nowhere", second, "/dev/null"});
    m_user.Will_Press("OK");
    Run([&] {
        ASSERT_EQ(Rows(), 2);
        const auto* model = Table().model();
        EXPECT_EQ(model->index(0, 1).data().toString(), first);
        EXPECT_EQ(model->index(1, 1).data().toString(), second);
        EXPECT_EQ(model->index(0, 0).data().toString(), first.mid(8));
        EXPECT_EQ(model->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), "Port");
        EXPECT_EQ(model->headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), "Device path");
        EXPECT_EQ(Selected_Row(), -1);
        Click("_Select_Btn");
        EXPECT_TRUE(m_window->isVisible());
    });
    Expect_Told({"Please select device from list."});
    EXPECT_TRUE(m_phone.Heard().empty()) << "a search says nothing to a device";
}

TEST_F(Wizard_Test, A_Search_Empties_The_Window_And_Forgets_The_Row)
{
    m_user.Will_Press("OK");
    Run([&] {
        Probe_Row(0);
        Type_Custom_Smsc("+4477");
        Search();
        for (const char* field : Wizard_Fields)
            EXPECT_EQ(Text(field), "") << field;
        EXPECT_TRUE(Control("_def_smsc_edit").isEnabled());
        EXPECT_FALSE(Control("_cus_smsc_edit").isEnabled());
        EXPECT_EQ(Rows(), 1);
        EXPECT_EQ(Selected_Row(), -1);
        Click("_Select_Btn");
        Probe_Row(0); // the same row as before is a new one
        EXPECT_EQ(Text("_manfacturer_edit"), "Corvane");
    });
    Expect_Told({"Please select device from list."});
}

TEST_F(Wizard_Test, Two_Presses_Of_Search_Make_One_Search)
{
    Run([&] {
        Begin_Search(m_phone, 2);
        Click("_Search_Btn");
        EXPECT_EQ(ph_find_thread, 1);
        End_Search();
        EXPECT_EQ(Rows(), 1);
    });
    EXPECT_EQ(m_finder.m_searches, 2) << "one at the opening, one for the presses";
}

TEST_F(Wizard_Test, A_Row_Clicked_During_A_Search_Is_Passed_Over_And_Can_Be_Clicked_Afterwards)
{
    const Virtual_Phone second;
    Plug_In(m_phone, second);
    Run([&] {
        Begin_Search(second);
        ASSERT_TRUE(Serve_Until([&] { return Rows() == 1; }));
        Click_Row(0);
        EXPECT_EQ(Selected_Row(), 0);
        EXPECT_EQ(Text("_comport_edit"), "");
        End_Search();
        EXPECT_EQ(Rows(), 2);
        EXPECT_EQ(Selected_Row(), -1);
        EXPECT_EQ(Sheets_So_Far(), 0);
        Probe_Row(0);
        EXPECT_EQ(Text("_port_det_edit").toStdString(), m_phone.Path());
    });
    EXPECT_FALSE(m_phone.Heard().empty());
}

TEST_F(Wizard_Test, A_Search_Shows_That_It_Runs_And_An_Empty_List_Is_Not_Called_Empty_Until_It_Is_Over)
{
    m_user.Will_Press("OK");
    m_user.Will_Press("OK");
    Run([&] {
        const auto& box = Control<QGroupBox>("device_box");
        EXPECT_EQ(box.title(), "Devices found") << "the search before the window opened is over";
        Begin_Search(m_phone);
        EXPECT_EQ(box.title(), "Searching for devices ...");
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::BusyCursor);
        Click("_Select_Btn");
        Set_Extra_Device_Paths({});
        End_Search();
        EXPECT_EQ(box.title(), "Devices found");
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        Search();
        EXPECT_EQ(Rows(), 0);
        Click("_Select_Btn");
        EXPECT_EQ(m_window->focusWidget(), &Table());
    });
    Expect_Told({"Still searching for devices. Please wait ...", "Device list is empty."});
}

TEST_F(Wizard_Test, A_Search_Leaves_The_Interface_Alive_Before_The_Window_Opens_And_In_It)
{
    m_calls.m_gated_path = m_phone.Path();
    Heartbeat heartbeat;
    QTimer::singleShot(400, qApp, [&] {
        EXPECT_FALSE(m_window->isVisible());
        EXPECT_EQ(ph_find_thread, 1);
        EXPECT_NE(QGuiApplication::overrideCursor(), nullptr) << "nothing shows that the program is searching";
        m_calls.m_gate.Open();
    });
    Run([&] {
        EXPECT_EQ(ph_find_thread, 0);
        m_calls.m_gate.Shut();
        Begin_Search(m_phone);
        const double end = Now_Seconds() + 0.5;
        Serve_Until([&] { return Now_Seconds() > end; });
        EXPECT_EQ(ph_find_thread, 1);
        End_Search();
    });
    EXPECT_LT(heartbeat.Longest_Gap(), 0.2);
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
    const int result = Run([&] {
        Begin_Search(m_phone);
        QTimer::singleShot(100, qApp, [&] {
            EXPECT_FALSE(m_window->isVisible());
            m_calls.m_gate.Open();
        });
        Click("_Cancel_Btn");
    });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(ph_find_thread, 0);
}

TEST_F(Wizard_Test, A_Window_Deleted_During_A_Search_Waits_For_Its_Worker)
{
    m_calls.m_gated_path = m_phone.Path();
    m_window->Search_dev_Pressed();
    ASSERT_TRUE(Serve_Until([&] { return m_calls.m_gate.Is_Somebody_Waiting(); }));
    QTimer::singleShot(50, qApp, [&] { m_calls.m_gate.Open(); });
    m_window.reset();
    EXPECT_EQ(ph_find_thread, 0);
}

TEST_F(Wizard_Test, An_Empty_List_Says_So_Once_The_Search_Is_Over_And_Offers_Another)
{
    Set_Extra_Device_Paths({});
    EXPECT_EQ(Run([this] {
                  const auto& step = Control("Search_Again_Here");
                  EXPECT_TRUE(step.isVisible());
                  EXPECT_EQ(Table().accessibleDescription(),
                            "No phone or modem was found. Connect one and switch it on.");
                  Plug_In(m_phone);
                  m_calls.m_gated_path = m_phone.Path();
                  Click("Search_Again_Here");
                  EXPECT_TRUE(Serve_Until([this] { return m_calls.m_gate.Is_Somebody_Waiting(); }));
                  EXPECT_FALSE(step.isVisible()) << "nobody knows yet";
                  End_Search();
                  EXPECT_EQ(Rows(), 1);
                  EXPECT_FALSE(step.isVisible());
              }),
              0);
}
