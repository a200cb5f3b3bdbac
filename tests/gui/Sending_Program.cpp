#include "gui/Sending_Program.h"

#include "doctor/Phone_Search.h"
#include "toolkit/Plain_Text_Edit.h"
#include "windows/main/Send_Modeless.h"
#include "windows/phone/Phone_List_Wnd.h"

#include <filesystem>
#include <iostream>

namespace {

// Reads of one second last 20 ms at the first pace, and so do reads of five seconds at the second.
constexpr double Preparing_Pace = 50;
constexpr double Sending_Pace = 250;

const QStringList& Numbers_Sent_To()
{
    static const QStringList numbers = {"00447700900123", "07700900456", "07700900789"};
    return numbers;
}

QString Short_Text(bool unicode)
{
    return unicode ? "Репетиция в четверг в 19:00 \U0001F3B5" : "Choir practice moves to Thursday, 7 pm.";
}

// Grows the short text past one SMS: to 200 characters, or to 100 of Unicode.
QString Long_Text(bool unicode)
{
    const QString sentence = unicode ? " Приносите ноты." : " Please bring your notes.";
    QString text = Short_Text(unicode);
    while (text.size() < (unicode ? 100 : 200))
        text += sentence;
    return text.left(unicode ? 100 : 200);
}

std::string As_Shown(const Handset_Message& message)
{
    return message.m_number + " (" + message.m_alphabet + ", class " + std::to_string(message.m_class) + ", " +
           std::to_string(message.m_parts) + (message.m_text_mode ? " by text" : " by PDU") + "): " + message.m_text;
}

// As a handset shows a message of so many parts.
std::string Message_Shown(int recipient, const QString& text, const Way& way, int parts = 1)
{
    Handset_Message message;
    message.m_number = Numbers_Sent_To().at(recipient).toStdString();
    message.m_text = text.toStdString();
    message.m_alphabet = way.m_unicode ? "UCS2" : "GSM 7-bit";
    message.m_class = way.m_flash ? 0 : -1;
    message.m_parts = parts;
    message.m_text_mode = way.m_text_mode;
    return As_Shown(message);
}

template <typename Control>
Control& In_Wizard(const char* name)
{
    return In<Control>(*Phone_List_Wnd::defaultInstance(), name);
}

bool Progress_Is_Shown()
{
    return Send_Modeless::defaultInstance()->isVisible();
}

} // namespace

Sending_Program::Sending_Program()
{
    Slow_Down(1);
    Select(QString());
    Cus_SMS_Num_STR.clear();
    Stop_SMS_Sending_Now = 0;
    Get_A_Phone();
    qApp->installEventFilter(this);
}

Sending_Program::~Sending_Program()
{
    phone.reset(); // a job that a failed test left behind ends now
    Stop_SMS_Sending_Now = 1;
    EXPECT_TRUE(Serve_Until([] { return sms_thread_var == 0 && Workers_Running() == 0; }));
    Set_Extra_Device_Paths({});
    Select(QString());
    Cus_SMS_Num_STR.clear();
    if (HasFailure()) {
        for (const auto& line : log.All())
            std::cout << "log: " << line << std::endl;
    }
}

void Sending_Program::Slow_Down(double factor)
{
    m_preparing_pace = Preparing_Pace / factor;
    m_sending_pace = Sending_Pace / factor;
    Set_Pace(m_preparing_pace);
}

// The first message is about to go out when the stop button can be pressed.
bool Sending_Program::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && watched->objectName() == "PleaseWait_Modeless")
        ++m_sheets;
    if (event->type() == QEvent::EnabledChange && watched->objectName() == "_stop_btn" &&
        static_cast<QPushButton*>(watched)->isEnabled())
        Set_Pace(m_sending_pace);
    return false;
}

void Sending_Program::Get_A_Phone(const Phone_Moods& moods)
{
    phone = std::make_unique<Virtual_Phone>(moods);
}

void Sending_Program::Plug_In_Again()
{
    phone->Set_Moods({});
    phone->Plug_In_Again();
    phone->Forget();
}

void Sending_Program::Select(const QString& path)
{
    sel_port_bsd_str = path;
    sel_port_name_str = path;
    m_path = path.toStdString();
}

void Sending_Program::Fill_The_List(const Way& way, int items)
{
    Click("Reset_Btn");
    if (way.m_unicode)
        The<QCheckBox>("_Unicode_SMS_Chk").click();
    if (way.m_flash)
        The<QComboBox>("_Msg_TypeComboBox").setCurrentIndex(0);
    const QString short_text = Short_Text(way.m_unicode);
    Paste(short_text);
    for (const QString& number : Numbers_Sent_To().mid(0, std::min(items, Items - 1)))
        Add(number);
    if (items < Items)
        return;
    Will_Click_In(user, "Long_SMS_Dlg", "OKPressed");
    Paste(Long_Text(way.m_unicode).mid(short_text.size()));
    Add(Numbers_Sent_To().at(2));
    ASSERT_EQ(m_delegate->Recipients().Count(), Items);
}

void Sending_Program::Paste(const QString& text)
{
    auto& area = The<QPlainTextEdit>("_messageEdit");
    area.setFocus();
    QApplication::clipboard()->setText(text);
    QTest::keyClick(&area, Qt::Key_V, Qt::ControlModifier);
}

// The last text written is not the first one, which the list was begun with: it is offered for the whole list.
void Sending_Program::Press_Send()
{
    if (Exact_Text(The<QPlainTextEdit>("_messageEdit")) != m_delegate->Previous_Composer_Message())
        Will_Click_In(user, "Send_Msg_Info", "ContinuePressed");
    Click("_sent_btn");
}

std::string Sending_Program::Send()
{
    std::string text;
    user.Will_Handle([&](QMessageBox& box) {
        text = box.text().toStdString();
        Expect_Progress_As_It_Should_Be(text);
        QTest::mouseClick(box.findChild<QAbstractButton*>(), Qt::LeftButton);
    });
    Press_Send();
    EXPECT_EQ(sms_thread_var, 1);
    EXPECT_TRUE(Serve_Until([] { return sms_thread_var == 0 && Workers_Running() == 0; }, 60)) << "the job hangs";
    Set_Pace(m_preparing_pace);
    Expect_That_All_Is_Quiet();
    return text;
}

// Hidden before the word that all is done, shown while something is wrong, and not there yet when nothing opened.
void Sending_Program::Expect_Progress_As_It_Should_Be(const std::string& box)
{
    EXPECT_EQ(sms_thread_var, 1);
    EXPECT_EQ(Progress_Is_Shown(), box == Box::Connection_Error || box == Box::No_Modem) << box;
}

void Sending_Program::Expect_That_Sending_Works()
{
    phone->Forget();
    Select_The_Phone();
    Fill_The_List({}, 1);
    EXPECT_EQ(Send(), Box::Completed);
    EXPECT_THAT(Inbox(), testing::ElementsAre(Everything({}).front()));
}

std::vector<std::string> Sending_Program::Inbox() const
{
    std::vector<std::string> messages;
    for (const auto& message : phone->Inbox())
        messages.push_back(As_Shown(message));
    return messages;
}

std::vector<std::string> Sending_Program::Everything(const Way& way)
{
    const QString short_text = Short_Text(way.m_unicode);
    const QString long_text = Long_Text(way.m_unicode);
    const int cut = way.m_unicode ? 70 : 160;
    if (!way.m_text_mode)
        return {Message_Shown(0, short_text, way), Message_Shown(1, short_text, way),
                Message_Shown(2, long_text, way, 2)};
    return {Message_Shown(0, short_text, way), Message_Shown(1, short_text, way),
            Message_Shown(2, long_text.left(cut), way), Message_Shown(2, long_text.mid(cut), way)};
}

void Sending_Program::Expect_That_All_Is_Quiet()
{
    EXPECT_EQ(sms_thread_var, 0);
    EXPECT_EQ(ph_find_thread, 0);
    EXPECT_FALSE(Progress_Is_Shown());
    EXPECT_FALSE(Send_Modeless::defaultInstance()->findChild<QTimer*>("msend_modTimer")->isActive());
    EXPECT_EQ(m_delegate->Session().port(), nullptr);
    // The phone itself opens its line for a moment, to drop what nobody read; what leaks here stays open.
    EXPECT_TRUE(Serve_Until([this] { return Descriptors_On(m_path) == m_lines_held; }, 10)) << m_path;
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    auto& field = The<QLineEdit>("_numberEdit");
    Click_Middle_Of(field);
    QTest::keyClick(m_delegate->windowHandle(), Qt::Key_7);
    EXPECT_EQ(field.text(), "7");
    field.clear();
}

std::vector<std::string> Sending_Program::Boxes_Shown() const
{
    std::vector<std::string> texts;
    for (const QString& text : user.Was_Shown())
        texts.push_back(text.toStdString());
    return texts;
}

// ---- The wizard

void Sending_Program::Visit_Wizard(const std::function<void()>& steps)
{
    m_path = phone->Path();
    Set_Extra_Device_Paths({QString::fromStdString(m_path)});
    Will_Click_In(user, "Connection_Info", "Continue_Btn");
    user.When_Opens("Phone_List_Wnd", [this, steps](QWidget&) {
        steps();
        if (Wizard_Is_Open())
            Click_In_Wizard("_Cancel_Btn");
        EXPECT_FALSE(Wizard_Is_Open());
    });
    Click("Search_All_Modem");
    Set_Extra_Device_Paths({});
    Expect_That_All_Is_Quiet();
    const QString ticker = The<QLabel>("_Device_Name_Ticker").text();
    EXPECT_EQ(ticker, sel_port_bsd_str.isEmpty() ? "No Mobile Phone Device is selected." : sel_port_bsd_str.mid(8));
}

bool Sending_Program::Wizard_Is_Open()
{
    return Phone_List_Wnd::defaultInstance()->isVisible();
}

QModelIndex Sending_Program::Row_Of(const QString& path)
{
    return Row_With(In_Wizard<QTableView>("idPortList"), path, 1);
}

void Sending_Program::Click_The_Phone()
{
    auto& table = In_Wizard<QTableView>("idPortList");
    const QModelIndex row = Row_Of(QString::fromStdString(m_path));
    m_sheets = 0;
    ASSERT_TRUE(row.isValid()) << "the wizard does not list " << m_path;
    Click_At(*table.viewport(), table.visualRect(row).center());
    EXPECT_TRUE(Serve_Until([this] { return m_sheets > 0 && Workers_Running() == 0; })) << "no probe comes to its end";
}

void Sending_Program::Click_In_Wizard(const char* button)
{
    auto& control = In_Wizard<QAbstractButton>(button);
    Click_At(control, QPoint(12, control.height() / 2));
}

void Sending_Program::Type_Custom_Smsc(const QString& number)
{
    Click_In_Wizard("_cus_smsc_chk");
    auto& field = In_Wizard<QLineEdit>("_cus_smsc_edit");
    Click_Middle_Of(field);
    QTest::keyClicks(&field, number);
}

std::vector<std::string> Sending_Program::Details()
{
    std::vector<std::string> details;
    for (const char* name : {"_manfacturer_edit", "_model_edit", "_imei_edit", "_imsi_edit", "_battery_edit",
                             "_signal_edit", "_operator_edit", "_revision_edit", "_def_smsc_edit"})
        details.push_back(In_Wizard<QLineEdit>(name).text().toStdString());
    return details;
}

std::vector<std::string> Sending_Program::Usual_Details()
{
    return {"Corvane",      "Virtual Phone", "490154203237518", "001010123456789", "85%", "High (20)",
            "Corvane Test", "1.0",           "+15550009999"};
}

void Sending_Program::Expect_That_The_Wizard_Takes_The_Phone()
{
    Visit_Wizard([this] {
        Click_The_Phone();
        EXPECT_EQ(Details(), Usual_Details());
        Click_In_Wizard("_Select_Btn");
        EXPECT_FALSE(Wizard_Is_Open());
    });
    EXPECT_EQ(sel_port_bsd_str.toStdString(), phone->Path());
}

int Descriptors_On(const std::string& path)
{
    if (path.empty())
        return 0;
    int count = 0;
    for (const auto& descriptor : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code gone;
        const std::string target = std::filesystem::read_symlink(descriptor.path(), gone);
        count += target == path || target == path + " (deleted)" ? 1 : 0;
    }
    return count;
}
