#include "doctor/Phone_Probe.h"

#include "device/MFCSMS.h"
#include "phone/Virtual_Phone.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "platform/Waiting.h"
#include "support/Own_Seconds.h"

#include <QDir>
#include <QTemporaryDir>
#include <functional>
#include <gmock/gmock.h>

namespace {

const char* const Could_Not_Open = "Selected device is not working properly.\nCould not open modem.\n";
const char* const Not_Working = "Selected device is not working properly.";
const char* const No_Sending =
    "Selected device do not provide a modem in the computer or the modem does not support SMS sending command.";

// Writes down what a probe shows, in order; what a value is shown for may make the phone do something.
class Written_Display : public Probe_Display
{
public:
    void Show_Create_Modeless() override { m_events.append("sheet up"); }
    void Hide_Destroy_Modeless() override { m_events.append("sheet down"); }
    void Tell_About_Device(const QString& text) override { m_events.append(text); }
    void Set_Phone_Value(Phone_Value value, const QString& text) override
    {
        m_values.Set_Phone_Value(value, text);
        m_last = static_cast<int>(value);
        if (m_on_value)
            m_on_value(value);
    }

    QStringList m_events;
    Phone_Values m_values;
    int m_last = -1;
    std::function<void(Phone_Value)> m_on_value;
};

class Phone_Probe_Test : public testing::Test
{
protected:
    Phone_Probe_Test() { Set_Pace(20); }
    ~Phone_Probe_Test() override
    {
        Phone_Probe::Let_Go_Of_Port(m_session);
        Finish_Workers();
        Set_Pace(1);
    }

    void Read_Details(const std::string& path)
    {
        Run_On_Worker([&] {
            const QString fault = Phone_Probe(m_session, m_display).Read_Details(QString::fromStdString(path));
            if (!fault.isEmpty())
                m_display.m_events.append(fault);
        });
    }

    bool Check(const std::string& path, const Chosen_Centre& centre)
    {
        bool is_fit = false;
        Run_On_Worker([&] {
            is_fit = Phone_Probe(m_session, m_display).Check_For_Sending(QString::fromStdString(path), centre);
        });
        return is_fit;
    }

    bool Port_Is_Open() const { return m_session.port() && m_session.port()->isOpen(); }

    MFCSMS m_session;
    Written_Display m_display;
    const Chosen_Centre m_default_centre{false, "+15550009999", ""};
};

TEST_F(Phone_Probe_Test, Reading_The_Details_Is_One_Connection_Check_And_Ten_Queries)
{
    Virtual_Phone phone;
    Read_Details(phone.Path());
    EXPECT_EQ(phone.Heard(), Lines("AT", "AT", "AT+GMI", "AT+GMM", "AT+CGSN", "AT+CIMI", "AT+CBC", "AT+CSQ", "AT+COPS?",
                                   "AT+GMR", "AT+CSCA?"));
    EXPECT_EQ(m_display.m_events, QStringList());
    EXPECT_EQ(m_display.m_values.Text(Phone_Value::Manufacturer), "Corvane");
    EXPECT_EQ(m_display.m_values.Text(Phone_Value::Default_Smsc), "+15550009999");
    EXPECT_FALSE(m_session.port());
}

TEST_F(Phone_Probe_Test, A_Selection_Asks_For_Support_And_Keeps_The_Link_Open_Between_Messages)
{
    Virtual_Phone phone;
    EXPECT_TRUE(Check(phone.Path(), m_default_centre));
    EXPECT_EQ(phone.Heard(), Lines("AT", "AT", "AT+CSMS=?", "AT+CMGS=?", "AT", "AT+CMMS=2"));
    EXPECT_EQ(m_display.m_events, QStringList({"sheet up", "sheet down"}));
    EXPECT_FALSE(m_session.port());
}

TEST_F(Phone_Probe_Test, The_Read_Timeout_Is_One_Second)
{
    Virtual_Phone phone;
    m_display.m_on_value = [this](Phone_Value) { EXPECT_EQ(m_session.port()->readTimeout(), 1.0); };
    Read_Details(phone.Path());
    EXPECT_EQ(m_display.m_last, static_cast<int>(Phone_Value::Default_Smsc));
}

TEST_F(Phone_Probe_Test, What_Cannot_Be_Opened_As_A_Device_Is_Told_So)
{
    const QTemporaryDir folder;
    const QString file_path = folder.filePath("file");
    QFile file(file_path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    for (const QString& path :
         {folder.filePath("missing"), file_path, folder.path(), QString("/dev/null"), QString()}) {
        m_display.m_events.clear();
        Read_Details(path.toStdString());
        EXPECT_EQ(m_display.m_events, QStringList(Could_Not_Open)) << path.toStdString();
        m_display.m_events.clear();
        EXPECT_FALSE(Check(path.toStdString(), m_default_centre));
        EXPECT_EQ(m_display.m_events, QStringList(Could_Not_Open)) << path.toStdString();
    }
}

TEST_F(Phone_Probe_Test, A_Port_Held_By_Another_Program_Cannot_Be_Opened)
{
    Virtual_Phone phone;
    KVSerialPort other(QString::fromStdString(phone.Path()), "other", "other");
    ASSERT_TRUE(other.openExclusively());
    Read_Details(phone.Path());
    EXPECT_EQ(m_display.m_events, QStringList(Could_Not_Open));
    other.close();
}

TEST_F(Phone_Probe_Test, A_Silent_Device_Is_Not_Working_And_Its_Port_Is_Closed)
{
    Phone_Moods moods;
    moods.m_silent = true;
    Virtual_Phone phone(moods);
    Read_Details(phone.Path());
    EXPECT_EQ(m_display.m_events, QStringList(Not_Working));
    EXPECT_FALSE(m_session.port());

    m_display.m_events.clear();
    EXPECT_FALSE(Check(phone.Path(), m_default_centre));
    EXPECT_EQ(m_display.m_events, QStringList({"sheet up", "sheet down", Not_Working}));
    EXPECT_FALSE(m_session.port());
}

TEST_F(Phone_Probe_Test, Noise_Is_No_Answer)
{
    Phone_Moods moods;
    moods.m_garbage = true;
    moods.m_no_echo = true;
    Virtual_Phone phone(moods);
    Read_Details(phone.Path());
    EXPECT_EQ(m_display.m_events, QStringList(Not_Working));
}

TEST_F(Phone_Probe_Test, A_Device_That_Only_Echoes_Is_Connected_And_Tells_Nothing)
{
    Phone_Moods moods;
    moods.m_echo_only = true;
    Virtual_Phone phone(moods);
    Read_Details(phone.Path());
    EXPECT_EQ(m_display.m_events, QStringList());
    EXPECT_EQ(m_display.m_values.Text(Phone_Value::Battery), "Device does not have a battery connected.");
    for (const auto value :
         {Phone_Value::Manufacturer, Phone_Value::Imei, Phone_Value::Signal, Phone_Value::Default_Smsc})
        EXPECT_EQ(m_display.m_values.Text(value), "");
}

TEST_F(Phone_Probe_Test, Without_A_Centre_The_Check_Ends_Before_The_Support_Is_Asked_For)
{
    Virtual_Phone phone;
    EXPECT_FALSE(Check(phone.Path(), {false, "", "+4477"}));
    EXPECT_EQ(m_display.m_events,
              QStringList({"sheet up", "sheet down", "Default SMSC No. details should not be blanked."}));
    EXPECT_FALSE(Check(phone.Path(), {true, "+15550009999", ""}));
    EXPECT_EQ(m_display.m_events.last(), "Custom SMSC No. details should not be blanked.");
    EXPECT_EQ(phone.Heard(), Lines("AT", "AT"));
    EXPECT_TRUE(Port_Is_Open());
}

TEST_F(Phone_Probe_Test, A_Device_That_Does_Not_Send_Is_Refused_And_Its_Port_Left_Open)
{
    Phone_Moods moods;
    moods.m_no_sms_sending = true;
    Virtual_Phone phone(moods);
    EXPECT_FALSE(Check(phone.Path(), m_default_centre));
    EXPECT_EQ(m_display.m_events, QStringList({"sheet up", "sheet down", No_Sending}));
    EXPECT_EQ(phone.Heard(), Lines("AT", "AT", "AT+CSMS=?", "AT+CMGS=?"));
    EXPECT_TRUE(Port_Is_Open());
}

TEST_F(Phone_Probe_Test, A_Port_Left_Open_Is_Used_Again_For_Its_Own_Device_Only)
{
    Virtual_Phone one;
    Virtual_Phone other;
    EXPECT_FALSE(Check(one.Path(), {}));
    const auto left_open = m_session.port();
    ASSERT_TRUE(left_open);

    EXPECT_FALSE(Check(one.Path(), {}));
    EXPECT_EQ(m_session.port(), left_open);

    one.Forget();
    EXPECT_TRUE(Check(other.Path(), m_default_centre));
    EXPECT_FALSE(left_open->isOpen());
    EXPECT_TRUE(one.Heard().empty());
    EXPECT_EQ(other.Heard().size(), 6U);
}

TEST_F(Phone_Probe_Test, A_Port_That_Was_Closed_Meanwhile_Is_Opened_Anew)
{
    Virtual_Phone phone;
    EXPECT_FALSE(Check(phone.Path(), {}));
    m_session.port()->close();
    EXPECT_TRUE(Check(phone.Path(), m_default_centre));
}

TEST_F(Phone_Probe_Test, A_Device_That_Vanishes_While_It_Is_Asked_Leaves_The_Rest_Untold)
{
    for (const auto last :
         {Phone_Value::Manufacturer, Phone_Value::Imei, Phone_Value::Battery, Phone_Value::Revision}) {
        Virtual_Phone phone;
        m_display.m_last = -1;
        m_display.m_on_value = [&](Phone_Value value) {
            if (value == last)
                phone.Hang_Up();
        };
        Read_Details(phone.Path());
        EXPECT_EQ(m_display.m_last, static_cast<int>(last));
        EXPECT_FALSE(m_session.port());
    }
    EXPECT_EQ(m_display.m_events, QStringList());
}

TEST_F(Phone_Probe_Test, The_Programs_Exit_Ends_A_Probe_At_Once)
{
    Set_Pace(1);
    Phone_Moods moods;
    moods.m_silent = true;
    Virtual_Phone phone(moods);
    Begin_Program_Exit();
    const Stopwatch watch;
    Read_Details(phone.Path());
    EXPECT_LT(watch.Lasted_For_The_Thread(), 0.9); // a single read would last one second
    Forget_Program_Exit();
}

} // namespace
