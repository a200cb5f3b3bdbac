#include "phone/Descriptor.h"
#include "toolkit/Message_Boxes.h"
#include "windows/phone/Wizard_Test.h"

#include <fcntl.h>

namespace {

const char* const Not_Working = "Selected device is not working properly.";
const char* const Could_Not_Open = "Selected device is not working properly.\nCould not open modem.\n";
const Phone_Moods Silent{.m_silent = true};

long Times_Heard(const Virtual_Phone& phone, const std::string& command = "AT+GMI")
{
    const auto heard = phone.Heard();
    return std::count(heard.begin(), heard.end(), command);
}

// Keeps the number of a phone's line from others, so that its path leads nowhere once it has hung up.
class Kept_Number
{
public:
    explicit Kept_Number(const Virtual_Phone& phone)
        : m_descriptor(::open(phone.Path().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
    {
        EXPECT_TRUE(m_descriptor.Is_Open());
    }

private:
    const Handset::Descriptor m_descriptor;
};

TEST_F(Wizard_Test, A_Click_On_A_Row_Shows_What_The_Device_Tells)
{
    const int descriptors = Phones_Descriptors();
    Run([&] {
        Probe_Row(0);
        const QString path = QString::fromStdString(m_phone.Path());
        QStringList told;
        for (const char* field : Wizard_Fields)
            told.append(Text(field));
        EXPECT_EQ(told.join(u'|'), path.mid(8) + u'|' + path +
                                       "|Corvane|Virtual Phone|490154203237518|001010123456789|85%|High (20)|Corvane "
                                       "Test|1.0|+15550009999|");
        EXPECT_EQ(Phones_Descriptors(), descriptors) << "a probe leaves none open";
    });
}

TEST_F(Wizard_Test, What_A_Device_Says_Is_Plain_Text_From_Its_Beginning)
{
    m_phone.Will_Answer("AT+GMI", "\r\n&lt;<b>Bold</b>%1\r\n\r\nOK\r\n");
    m_phone.Will_Answer("AT+GMM", "\r\n" + std::string(3000, 'm') + "\r\n\r\nOK\r\n");
    Run([&] {
        Probe_Row(0);
        EXPECT_EQ(Text("_manfacturer_edit"), "&lt;bBold/b%1"); // angle brackets are taken out of answers
        EXPECT_EQ(Text("_model_edit"), QString(3000, u'm'));
        EXPECT_EQ(Control<QLineEdit>("_model_edit").cursorPosition(), 0);
    });
}

TEST_F(Wizard_Test, The_Window_Stays_Alive_While_It_Probes_And_The_Sheet_Over_It_Keeps_Input_Away)
{
    Set_Pace(5);
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
        Search();
        m_phone.Set_Moods({.m_never_stops_talking = true});
        Set_Pace(20);
        Heartbeat heartbeat;
        Probe_Row(0);
        EXPECT_LT(heartbeat.Longest_Gap(), 0.2);
    });
    EXPECT_EQ(Times_Heard(m_phone, "AT+CSMS=?"), 0);
}

TEST_F(Wizard_Test, A_Click_Into_Empty_Space_Or_On_The_Same_Row_Keeps_The_Row_And_Probes_Once)
{
    Run([&] {
        Click_Empty_Space();
        EXPECT_EQ(Selected_Row(), -1) << "there is no row to go back to yet";
        Probe_Row(0);
        Click_Row(0);
        Click_Empty_Space();
        EXPECT_EQ(Selected_Row(), 0);
        Click_Row(0, Qt::ControlModifier); // takes the selection away
        EXPECT_EQ(Selected_Row(), 0);
        Table().clearSelection();
        EXPECT_EQ(Selected_Row(), 0);
        EXPECT_EQ(Text("_def_smsc_edit"), "+15550009999");
        Serve_Until([] { return Workers_Running() == 0; });
    });
    EXPECT_EQ(Sheets_So_Far(), 1);
    EXPECT_EQ(Times_Heard(m_phone), 1);
}

TEST_F(Wizard_Test, Another_Row_Shows_Another_Device_With_Fresh_Fields)
{
    Virtual_Phone second;
    second.Will_Answer("AT+GMI", "\r\nNOKIA\r\n\r\nOK\r\n");
    second.Will_Answer("AT+CIMI", "\r\nERROR\r\n");
    Plug_In(m_phone, second);
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
    EXPECT_EQ(Times_Heard(m_phone), 2);
}

TEST_F(Wizard_Test, Two_Rows_Picked_At_Once_Are_Probed_One_After_The_Other)
{
    const Virtual_Phone second;
    Plug_In(m_phone, second);
    Run([&] {
        Table().selectRow(0);
        Table().selectRow(1);
        ASSERT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
        EXPECT_FALSE(Sheet_Is_Shown());
        EXPECT_EQ(Text("_port_det_edit").toStdString(), second.Path());
        EXPECT_EQ(Text("_def_smsc_edit"), "+15550009999");
    });
    EXPECT_EQ(Times_Heard(m_phone) + Times_Heard(second), 2);
}

TEST_F(Wizard_Test, What_Is_Wrong_With_A_Device_Is_Told_Once_The_Sheet_Has_Gone_And_The_Wizard_Stays_Open)
{
    const Virtual_Phone silent(Silent);
    const Virtual_Phone good;
    const Kept_Number kept(m_phone);
    Plug_In(silent, m_phone, good);
    const QStringList faults = {Not_Working, Could_Not_Open, Could_Not_Open};
    QStringList told;
    for (qsizetype box = 0; box < faults.size(); ++box) {
        m_user.Will_Handle([&](QMessageBox& shown) {
            told.append(shown.text());
            EXPECT_FALSE(Sheet_Is_Shown()) << "under: " << shown.text().toStdString();
            EXPECT_EQ(shown.parentWidget(), m_window.get());
            shown.buttons().front()->click();
        });
    }
    Run([&] {
        m_phone.Hang_Up(); // since the search
        for (const int row : {0, 1}) {
            Probe_Row(row);
            ASSERT_TRUE(Serve_Until([&] { return told.size() == row + 1; }));
            EXPECT_EQ(Text("_battery_edit"), "");
        }
        Click("_Select_Btn");
        EXPECT_TRUE(m_window->isVisible());
        Probe_Row(2);
        EXPECT_EQ(Text("_manfacturer_edit"), "Corvane");
    });
    Expect_Told(faults);
}

TEST_F(Wizard_Test, What_Is_Pressed_Beside_The_Box_About_A_Device_Is_Done_And_Nothing_Waits_For_The_Box)
{
    const Virtual_Phone silent(Silent);
    Plug_In(silent, m_phone);
    bool is_over = false;
    m_user.Will_Handle([&](QMessageBox& shown) {
        // As assistive tools can, which do not mind what is in front.
        Table().selectRow(1);
        Control<QPushButton>("_Select_Btn").click();
        shown.buttons().front()->click();
        is_over = true;
    });
    m_user.Will_Press("OK");
    Run([&] {
        Click_Row(0);
        ASSERT_TRUE(Serve_Until([&] { return is_over && Text("_def_smsc_edit") == "+15550009999"; }));
        EXPECT_EQ(Text("_port_det_edit").toStdString(), m_phone.Path());
    });
    Expect_Told({Not_Working, "Default SMSC No. details should not be blanked."});
    EXPECT_TRUE(sel_port_bsd_str.isEmpty());
}

TEST_F(Wizard_Test, A_Hang_Up_During_A_Probe_Ends_It_With_What_Was_Told)
{
    const Kept_Number kept(m_phone);
    Run([&] {
        const int before = Sheets_So_Far();
        Click_Row(0);
        ASSERT_TRUE(Serve_Until([&] { return !Text("_imei_edit").isEmpty(); }));
        m_phone.Hang_Up();
        ASSERT_TRUE(Wait_For_Sheets_End(before));
        EXPECT_EQ(Text("_manfacturer_edit"), "Corvane");
        EXPECT_EQ(Text("_def_smsc_edit"), "");
        Search();
        EXPECT_EQ(Rows(), 0);
    });
}

TEST_F(Wizard_Test, A_Probe_Closes_The_Wizards_Own_Port)
{
    const Virtual_Phone other;
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
    m_phone.Set_Moods(Silent);
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
    Expect_Told({});
}

TEST_F(Wizard_Test, A_Window_Deleted_During_A_Probe_Waits_For_It)
{
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
    m_phone.Set_Moods(Silent);
    m_user.Will_Handle([](QMessageBox&) {
        Begin_Program_Exit();
        Close_Message_Boxes();
    });
    Run([&] {
        Probe_Row(0);
        EXPECT_TRUE(Serve_Until([] { return Program_Is_Exiting(); }));
        m_window->done(0);
    });
}

} // namespace
