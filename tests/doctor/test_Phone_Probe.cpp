#include "doctor/Phone_Probe.h"

#include "device/MFCSMS.h"
#include "device/Moods.h"
#include "phone/Virtual_Phone.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "platform/Waiting.h"
#include "support/Files.h"
#include "support/Own_Seconds.h"

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

    // What the display was told, the fault included.
    QStringList Read_Details(const QString& path)
    {
        m_display.m_events.clear();
        Run_On_Worker([&] {
            const QString fault = Phone_Probe(m_session, m_display).Read_Details(path);
            if (!fault.isEmpty())
                m_display.m_events.append(fault);
        });
        return m_display.m_events;
    }
    QStringList Read_Details(const Virtual_Phone& phone) { return Read_Details(QString::fromStdString(phone.Path())); }

    bool Check(const QString& path, const Chosen_Centre& centre)
    {
        bool is_fit = false;
        m_display.m_events.clear();
        Run_On_Worker([&] { is_fit = Phone_Probe(m_session, m_display).Check_For_Sending(path, centre); });
        return is_fit;
    }
    bool Check(const Virtual_Phone& phone, const Chosen_Centre& centre)
    {
        return Check(QString::fromStdString(phone.Path()), centre);
    }

    bool Port_Is_Open() const { return m_session.port() && m_session.port()->isOpen(); }

    MFCSMS m_session;
    Written_Display m_display;
    const Chosen_Centre m_default_centre{false, "+15550009999", ""};
};

TEST_F(Phone_Probe_Test, Reading_The_Details_Is_One_Connection_Check_And_Ten_Queries)
{
    Virtual_Phone phone;
    m_display.m_on_value = [this](Phone_Value) { EXPECT_EQ(m_session.port()->readTimeout(), 1.0); };
    EXPECT_EQ(Read_Details(phone), QStringList());
    EXPECT_EQ(phone.Heard(), Lines("AT", "AT", "AT+GMI", "AT+GMM", "AT+CGSN", "AT+CIMI", "AT+CBC", "AT+CSQ", "AT+COPS?",
                                   "AT+GMR", "AT+CSCA?"));
    EXPECT_EQ(m_display.m_values.Text(Phone_Value::Manufacturer), "Corvane");
    EXPECT_EQ(m_display.m_values.Text(Phone_Value::Default_Smsc), "+15550009999");
    EXPECT_EQ(m_display.m_last, static_cast<int>(Phone_Value::Default_Smsc));
    EXPECT_FALSE(m_session.port());
}

TEST_F(Phone_Probe_Test, A_Selection_Asks_For_Support_And_Keeps_The_Link_Open_Between_Messages)
{
    Virtual_Phone phone;
    EXPECT_TRUE(Check(phone, m_default_centre));
    EXPECT_EQ(phone.Heard(), Lines("AT", "AT", "AT+CSMS=?", "AT+CMGS=?", "AT", "AT+CMMS=2"));
    EXPECT_EQ(m_display.m_events, QStringList({"sheet up", "sheet down"}));
    EXPECT_FALSE(m_session.port());
}

TEST_F(Phone_Probe_Test, What_Cannot_Be_Opened_As_A_Device_Is_Told_So)
{
    Virtual_Phone phone;
    const QString held = QString::fromStdString(phone.Path());
    KVSerialPort other(held, "other", "other");
    ASSERT_TRUE(other.openExclusively());
    const QTemporaryDir folder;
    Write_Bytes(folder.filePath("file"), {});
    for (const QString& path :
         {held, folder.filePath("missing"), folder.filePath("file"), folder.path(), QString("/dev/null"), QString()}) {
        EXPECT_EQ(Read_Details(path), QStringList(Could_Not_Open)) << path.toStdString();
        EXPECT_FALSE(Check(path, m_default_centre));
        EXPECT_EQ(m_display.m_events, QStringList(Could_Not_Open)) << path.toStdString();
    }
    other.close();
}

TEST_F(Phone_Probe_Test, A_Device_That_Is_Silent_Or_Noisy_Is_Not_Working_And_Its_Port_Is_Closed)
{
    Phone_Moods noisy = Mood(&Phone_Moods::m_garbage);
    noisy.m_no_echo = true;
    for (const Phone_Moods& moods : {Mood(&Phone_Moods::m_silent), noisy}) {
        Virtual_Phone phone(moods);
        EXPECT_EQ(Read_Details(phone), QStringList(Not_Working));
        EXPECT_FALSE(m_session.port());

        EXPECT_FALSE(Check(phone, m_default_centre));
        EXPECT_EQ(m_display.m_events, QStringList({"sheet up", "sheet down", Not_Working}));
        EXPECT_FALSE(m_session.port());
    }
}

TEST_F(Phone_Probe_Test, A_Device_That_Only_Echoes_Is_Connected_And_Tells_Nothing)
{
    Virtual_Phone phone(Mood(&Phone_Moods::m_echo_only));
    EXPECT_EQ(Read_Details(phone), QStringList());
    EXPECT_EQ(m_display.m_values.Text(Phone_Value::Battery), "Device does not have a battery connected.");
    for (const auto value :
         {Phone_Value::Manufacturer, Phone_Value::Imei, Phone_Value::Signal, Phone_Value::Default_Smsc})
        EXPECT_EQ(m_display.m_values.Text(value), "");
}

TEST_F(Phone_Probe_Test, Without_A_Centre_Or_The_Support_The_Check_Ends_And_Leaves_The_Port_Open)
{
    Virtual_Phone phone(Mood(&Phone_Moods::m_no_sms_sending));
    EXPECT_FALSE(Check(phone, {false, "", "+4477"}));
    EXPECT_EQ(m_display.m_events,
              QStringList({"sheet up", "sheet down", "Default SMSC No. details should not be blanked."}));
    EXPECT_FALSE(Check(phone, {true, "+15550009999", ""}));
    EXPECT_EQ(m_display.m_events.last(), "Custom SMSC No. details should not be blanked.");
    EXPECT_EQ(phone.Heard(), Lines("AT", "AT")); // before the support is asked for
    EXPECT_TRUE(Port_Is_Open());
    phone.Forget();
    EXPECT_FALSE(Check(phone, m_default_centre));
    EXPECT_EQ(m_display.m_events, QStringList({"sheet up", "sheet down", No_Sending}));
    EXPECT_EQ(phone.Heard(), Lines("AT", "AT", "AT+CSMS=?", "AT+CMGS=?"));
    EXPECT_TRUE(Port_Is_Open());
}

TEST_F(Phone_Probe_Test, A_Port_Left_Open_Is_Used_Again_For_Its_Own_Device_Only_And_Opened_Anew_When_Closed)
{
    Virtual_Phone one;
    Virtual_Phone other;
    EXPECT_FALSE(Check(one, {}));
    const auto left_open = m_session.port();
    ASSERT_TRUE(left_open);
    EXPECT_FALSE(Check(one, {}));
    EXPECT_EQ(m_session.port(), left_open);

    one.Forget();
    EXPECT_TRUE(Check(other, m_default_centre));
    EXPECT_FALSE(left_open->isOpen());
    EXPECT_TRUE(one.Heard().empty());
    EXPECT_EQ(other.Heard().size(), 6U);

    EXPECT_FALSE(Check(one, {}));
    m_session.port()->close();
    EXPECT_TRUE(Check(one, m_default_centre));
}

TEST_F(Phone_Probe_Test, A_Device_That_Vanishes_While_It_Is_Asked_Leaves_The_Rest_Untold)
{
    for (const auto last :
         {Phone_Value::Manufacturer, Phone_Value::Imei, Phone_Value::Battery, Phone_Value::Revision}) {
        Virtual_Phone phone;
        m_display.m_on_value = [&](Phone_Value value) {
            if (value == last)
                phone.Hang_Up();
        };
        EXPECT_EQ(Read_Details(phone), QStringList());
        EXPECT_EQ(m_display.m_last, static_cast<int>(last));
        EXPECT_FALSE(m_session.port());
    }
}

TEST_F(Phone_Probe_Test, The_Programs_Exit_Ends_A_Probe_At_Once)
{
    Set_Pace(1);
    Virtual_Phone phone(Mood(&Phone_Moods::m_silent));
    Begin_Program_Exit();
    const Stopwatch watch;
    Read_Details(phone);
    EXPECT_LT(watch.Lasted_For_The_Thread(), 0.9); // a single read would last one second
    Forget_Program_Exit();
}

} // namespace
