#include "device/Chosen_Device.h"
#include "engine/Job_State.h"
#include "gui/Sending_Program.h"

#include <QMessageBox>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

using testing::HasSubstr;
using testing::IsEmpty;

// Devices that are none, or not for this program, and phones that say what no phone should.

namespace {

// For as long as it lives the whole process has no more rights than anybody, where it had more.
class Rights_Of_Nobody
{
public:
    Rights_Of_Nobody()
    {
        constexpr uid_t nobody = 65534;
        const int result = m_was_root ? ::setresuid(nobody, nobody, 0) : 0;
        EXPECT_EQ(result, 0);
    }
    ~Rights_Of_Nobody()
    {
        if (!m_was_root)
            return;
        EXPECT_EQ(::setresuid(0, 0, 0), 0);
        ::prctl(PR_SET_DUMPABLE, 1); // a change of rights takes this away, and /proc/self with it
    }
    Rights_Of_Nobody(const Rights_Of_Nobody&) = delete;
    Rights_Of_Nobody& operator=(const Rights_Of_Nobody&) = delete;

private:
    const bool m_was_root = ::getuid() == 0;
};

struct Device
{
    const char* name;
    const char* path; // none: made by the test
    const char* log;  // with the path between its halves
    const char* reason;
};

const Device Devices[] = {
    {"That_Does_Not_Exist", "/dev/no-such-device", "Error opening serial port ", " - No such file or directory(2)."},
    {"In_A_Folder_That_Does_Not_Exist", "/no/such/folder/tty", "Error opening serial port ",
     " - No such file or directory(2)."},
    {"That_Is_A_Directory", "/dev", "Error opening serial port ", " - Is a directory(21)."},
    {"That_Is_A_Regular_File", nullptr, "Error setting TIOCEXCL on ", " - Inappropriate ioctl for device(25)."},
    {"That_Is_Dev_Null", "/dev/null", "Error setting TIOCEXCL on ", " - Inappropriate ioctl for device(25)."},
    {"That_Is_Dev_Zero", "/dev/zero", "Error setting TIOCEXCL on ", " - Inappropriate ioctl for device(25)."},
};

// Bytes without an end in sight.
std::string Flood(char byte, std::size_t size = 5000)
{
    return std::string(size, byte);
}

} // namespace

class Bad_Device : public Sending_Program
{
protected:
    /// A job through it does not begin, and the log says why.
    void Expect_That_It_Does_Not_Open(const std::string& path, const std::string& log_line)
    {
        Select(QString::fromStdString(path));
        Fill_The_List({}, 1);
        log.Forget();
        EXPECT_EQ(Send(), Box::Does_Not_Open);
        EXPECT_THAT(log.Joined(), HasSubstr(log_line));
    }

    /// The wizard offers every device that opens, and this one is not among them.
    void Expect_That_The_Wizard_Does_Not_List(const std::string& path)
    {
        Set_Extra_Device_Paths({QString::fromStdString(path)});
        user.When_Opens(QStringLiteral("Connection_Info"), [](QWidget& window) {
            QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("Continue_Btn")), Qt::LeftButton);
        });
        user.When_Opens(QStringLiteral("Phone_List_Wnd"), [&](QWidget& wizard) {
            EXPECT_FALSE(Wizard_Lists(QString::fromStdString(path)));
            const auto* rows = wizard.findChild<QTableView*>(QStringLiteral("idPortList"))->model();
            user.Will_Press(QStringLiteral("OK"));
            Click_In_Wizard("_Select_Btn");
            EXPECT_EQ(Boxes_Shown().back(), rows->rowCount() == 0 ? Box::List_Empty : Box::None_Selected);
            Click_In_Wizard("_Cancel_Btn");
        });
        Click("Search_All_Modem");
        EXPECT_TRUE(sel_port_bsd_str.isEmpty());
        Expect_That_All_Is_Quiet();
    }
};

class No_Device_At_All : public Bad_Device
{
public:
    using Fixture = Sending_Program;

    explicit No_Device_At_All(const Device& device) : m_device(device) {}
    void TestBody() override;

private:
    const Device& m_device;
};

void No_Device_At_All::TestBody()
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    const std::string path = m_device.path ? m_device.path : file.fileName().toStdString();
    m_lines_held = Descriptors_On(path); // standard input may be one of them
    Expect_That_It_Does_Not_Open(path, m_device.log + path + m_device.reason);
    Expect_That_The_Wizard_Does_Not_List(path);
    m_lines_held = 0;
    Expect_That_Sending_Works();
}

static const bool Devices_Registered = Register_Each<No_Device_At_All>("No_Device_At_All", "A_Path_", Devices);

TEST_F(Bad_Device, A_Port_That_Another_Program_Holds_Does_Not_Open_Until_It_Is_Let_Go)
{
    {
        m_lines_held = 1;
        const Held_Line other(phone->Path());
        ASSERT_EQ(::ioctl(other.Descriptor(), TIOCEXCL), 0);
        Expect_That_It_Does_Not_Open(phone->Path(),
                                     "Error opening serial port " + phone->Path() + " - Device or resource busy(16).");
        Expect_That_The_Wizard_Does_Not_List(phone->Path());
        ASSERT_EQ(::ioctl(other.Descriptor(), TIOCNXCL), 0);
        m_lines_held = 0;
    }
    EXPECT_THAT(phone->Heard_Bytes(), IsEmpty()) << "something was written to a port of another";
    Expect_That_The_Wizard_Takes_The_Phone();
    Expect_That_Sending_Works();
}

TEST_F(Bad_Device, A_Port_That_Another_Program_Takes_In_The_Wizard_Can_Not_Be_Selected)
{
    m_lines_held = 1;
    const Held_Line other(phone->Path());
    Visit_Wizard([&] {
        Click_The_Phone();
        EXPECT_EQ(Details(), Usual_Details());
        ASSERT_EQ(::ioctl(other.Descriptor(), TIOCEXCL), 0);
        user.Will_Press(QStringLiteral("OK"));
        Click_In_Wizard("_Select_Btn");
        EXPECT_EQ(Boxes_Shown().back(), Box::Could_Not_Open);
        ASSERT_EQ(::ioctl(other.Descriptor(), TIOCNXCL), 0);
        Click_In_Wizard("_Select_Btn");
        EXPECT_FALSE(Wizard_Is_Open());
    });
    EXPECT_EQ(sel_port_bsd_str.toStdString(), phone->Path());
    Expect_That_Sending_Works();
}

TEST_F(Bad_Device, A_Port_Without_Permission_Does_Not_Open_Until_It_Is_Given)
{
    const std::string path = phone->Path();
    struct stat before = {};
    ASSERT_EQ(::stat(path.c_str(), &before), 0);
    ASSERT_EQ(::chmod(path.c_str(), 0), 0);
    Fill_The_List({}, 1);
    Select_The_Phone();
    std::string box;
    {
        user.Will_Handle([&](QMessageBox& shown) {
            box = shown.text().toStdString();
            shown.accept();
        });
        {
            const Rights_Of_Nobody rights;
            Press_Send();
            EXPECT_TRUE(Serve_Until([] { return sms_thread_var == 0 && Workers_Running() == 0; }));
        }
        EXPECT_EQ(box, Box::Does_Not_Open);
        EXPECT_THAT(log.Joined(), HasSubstr("Error opening serial port " + path + " - Permission denied(13)."));
    }
    Expect_That_All_Is_Quiet();
    ASSERT_EQ(::chmod(path.c_str(), before.st_mode), 0);
    Expect_That_Sending_Works();
}

TEST_F(Bad_Device, The_Wizard_Says_How_To_Get_Permission_For_A_Port_And_Does_Not_List_It)
{
    const std::string path = phone->Path();
    ASSERT_EQ(::chmod(path.c_str(), 0), 0);
    QString advice;
    Set_Extra_Device_Paths({QString::fromStdString(path)});
    user.When_Opens(QStringLiteral("Connection_Info"), [&](QWidget& window) {
        for (const auto* label : window.findChildren<QLabel*>())
            advice += label->text() + u'\n';
        QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("Continue_Btn")), Qt::LeftButton);
    });
    user.When_Opens(QStringLiteral("Phone_List_Wnd"), [&](QWidget&) {
        EXPECT_FALSE(Wizard_Lists(QString::fromStdString(path)));
        Click_In_Wizard("_Cancel_Btn");
    });
    {
        const Rights_Of_Nobody rights;
        Click("Search_All_Modem");
    }
    EXPECT_THAT(advice.toStdString(), HasSubstr(path));
    Expect_That_All_Is_Quiet();
    ASSERT_EQ(::chmod(path.c_str(), 0620), 0);
    Expect_That_The_Wizard_Takes_The_Phone();
}

// ---- Phones that say what no phone should

TEST_F(Bad_Device, Five_Thousand_Bytes_Before_The_OK_Of_AT_Are_No_Modem)
{
    phone->Will_Answer("AT", Flood('x').append("\r\nOK\r\n"));
    Select_The_Phone();
    Fill_The_List();
    EXPECT_EQ(Send(), Box::No_Modem);
    EXPECT_THAT(phone->Heard(), testing::ElementsAre("AT"));
    Get_A_Phone();
    Expect_That_Sending_Works();
}

TEST_F(Bad_Device, Five_Thousand_Bytes_Behind_The_OK_Of_AT_Hold_Up_Nothing)
{
    phone->Will_Answer("AT+CSMS=0", Flood('x').insert(0, "\r\nOK\r\n"));
    Select_The_Phone();
    Fill_The_List();
    EXPECT_EQ(Send(), Box::Completed);
    EXPECT_EQ(Inbox(), Everything({}));
}

TEST_F(Bad_Device, Five_Thousand_Bytes_Unasked_Are_Logged_And_Forgotten)
{
    Select_The_Phone();
    Fill_The_List();
    phone->Set_Listeners({.m_on_part = {},
                          .m_on_message = [this](const Handset_Message&) { phone->Says(Flood('#')); },
                          .m_on_hang_up = {}});
    EXPECT_EQ(Send(), Box::Completed);
    EXPECT_EQ(Inbox(), Everything({}));
    EXPECT_THAT(log.Joined(), HasSubstr("####"));
}

TEST_F(Bad_Device, Invalid_UTF_8_Beside_The_OK_Does_No_Harm)
{
    phone->Will_Answer("AT", "\xFF\xFE\xC3(\xED\xA0\x80\r\nOK\r\n");
    Expect_That_Sending_Works();
}

TEST_F(Bad_Device, A_NUL_Beside_The_OK_Does_No_Harm)
{
    phone->Will_Answer("AT", std::string("\0\0\r\nOK\r\n\0", 9));
    Expect_That_Sending_Works();
}

TEST_F(Bad_Device, A_Phone_That_Turns_To_Garbage_After_The_First_Message_Gets_No_More_Unnoticed)
{
    phone->Set_Listeners({.m_on_part = {},
                          .m_on_message =
                              [this](const Handset_Message&) {
                                  Phone_Moods moods;
                                  moods.m_garbage = true;
                                  phone->Set_Moods(moods);
                              },
                          .m_on_hang_up = {}});
    Select_The_Phone();
    Fill_The_List();
    EXPECT_EQ(Send(), Box::Completed);
    EXPECT_THAT(Inbox(), testing::ElementsAre(Everything({}).front()));
    phone->Set_Listeners({});
    phone->Set_Moods({});
    Expect_That_Sending_Works();
}

TEST_F(Bad_Device, A_List_Of_Modes_Without_A_Number_Means_PDU_Mode)
{
    phone->Will_Answer("AT+CMGF=?", "\r\n+CMGF: both\r\n\r\nOK\r\n");
    phone->Will_Answer("AT+CSMS=0", "\r\nOK\r\n");
    Expect_That_Sending_Works();
    EXPECT_THAT(phone->Heard(), testing::Contains("AT+CMGF=0"));
}

TEST_F(Bad_Device, Details_In_Garbage_Are_Shown_As_They_Are_And_Break_Nothing)
{
    phone->Will_Answer("AT+GMI", Flood('M', 3000).insert(0, "\r\n").append("\r\n\r\nOK\r\n"));
    phone->Will_Answer("AT+CSQ", "\r\n+CSQ: nonsense\r\n\r\nOK\r\n");
    phone->Will_Answer("AT+COPS?", "\r\n+COPS: \"\r\n\r\nOK\r\n");
    phone->Will_Answer("AT+CBC", "\r\nOK\r\n");
    phone->Will_Answer("AT+GMM", "\r\nMODEL:\xFF\xFE\r\n\r\nOK\r\n");
    Visit_Wizard([this] {
        Click_The_Phone();
        const auto details = Details();
        EXPECT_EQ(details.at(0), Flood('M', 3000));
        EXPECT_EQ(details.at(1), "\xEF\xBF\xBD\xEF\xBF\xBD");
        EXPECT_EQ(details.at(4), "");
        EXPECT_EQ(details.at(5), "Low (0)");
        EXPECT_THAT(details.at(6), HasSubstr("\""));
        Click_In_Wizard("_Select_Btn");
        EXPECT_FALSE(Wizard_Is_Open());
    });
    Expect_That_Sending_Works();
}
