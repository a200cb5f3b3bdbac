#include "gui/Sending_Program.h"

#include "device/Device_Paths.h"
#include "sending/Send_Modeless.h"
#include "wizard/Phone_List_Wnd.h"

#include <QClipboard>
#include <QDir>
#include <QMessageBox>
#include <QTimer>
#include <QWindow>
#include <fcntl.h>
#include <unistd.h>

namespace {

#if defined(__SANITIZE_THREAD__) || defined(__SANITIZE_ADDRESS__)
constexpr double Brisk = 20;
#else
constexpr double Brisk = 200;
#endif

const QStringList& Numbers_Sent_To()
{
    static const QStringList numbers = {QStringLiteral("00447700900123"), QStringLiteral("07700900456"),
                                        QStringLiteral("07700900789")};
    return numbers;
}

QString Short_Text(bool unicode)
{
    return unicode ? QStringLiteral("Репетиция в четверг в 19:00 \U0001F3B5")
                   : QStringLiteral("Choir practice moves to Thursday, 7 pm.");
}

// Grows the short text past one SMS: to 200 characters, or to 100 of Unicode.
QString Long_Text(bool unicode)
{
    const QString sentence = unicode ? QStringLiteral(" Приносите ноты.") : QStringLiteral(" Please bring your notes.");
    QString text = Short_Text(unicode);
    while (text.size() < (unicode ? 100 : 200))
        text += sentence;
    return text.left(unicode ? 100 : 200);
}

QString As_Shown(const QString& number, const QString& text, const Way& way, int parts)
{
    return QStringLiteral("%1 %2 class %3 in %4 by %5: ")
               .arg(number, way.m_unicode ? QStringLiteral("UCS2") : QStringLiteral("GSM 7-bit"))
               .arg(way.m_flash ? 0 : -1)
               .arg(parts)
               .arg(way.m_text_mode ? QStringLiteral("text") : QStringLiteral("PDU")) +
           text;
}

void Click_On(QWidget& control, const QPoint& place)
{
    QTest::mouseClick(control.window()->windowHandle(), Qt::LeftButton, {}, control.mapTo(control.window(), place));
}

template <typename Control>
Control& In_Wizard(const char* name)
{
    auto* control = Phone_List_Wnd::defaultInstance()->findChild<Control*>(QLatin1String(name));
    if (!control)
        qFatal("there is no %s in the wizard", name);
    return *control;
}

bool Progress_Is_Shown()
{
    return Send_Modeless::defaultInstance()->isVisible();
}

} // namespace

Sending_Program::Sending_Program()
{
    Set_Pace(Brisk);
    Select(QString());
    Cus_SMS_Num_STR.clear();
    Stop_SMS_Sending_Now = 0;
    Get_A_Phone();
}

Sending_Program::~Sending_Program()
{
    phone.reset(); // a job that a failed test left behind ends now
    Stop_SMS_Sending_Now = 1;
    EXPECT_TRUE(Serve_Until([] { return sms_thread_var == 0 && Workers_Running() == 0; }));
    Set_Extra_Device_Paths({});
    Select(QString());
    Cus_SMS_Num_STR.clear();
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

void Sending_Program::Fill_The_List(const Way& way)
{
    Click("Reset_Btn");
    if (way.m_unicode)
        The<QCheckBox>("_Unicode_SMS_Chk").click();
    if (way.m_flash)
        The<QComboBox>("_Msg_TypeComboBox").setCurrentIndex(0);
    const QString short_text = Short_Text(way.m_unicode);
    Paste(short_text);
    Add(Numbers_Sent_To().at(0));
    Add(Numbers_Sent_To().at(1));
    user.When_Opens(QStringLiteral("Long_SMS_Dlg"), [](QWidget& dialog) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("OKPressed")), Qt::LeftButton);
    });
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

QString Sending_Program::Send()
{
    const auto boxes_before = user.Was_Shown().size();
    user.Will_Handle([this](QMessageBox& box) {
        Expect_Progress_As_It_Should_Be(box.text());
        QTest::mouseClick(box.findChild<QAbstractButton*>(), Qt::LeftButton);
    });
    Click("_sent_btn");
    EXPECT_EQ(sms_thread_var, 1);
    EXPECT_TRUE(Serve_Until([] { return sms_thread_var == 0 && Workers_Running() == 0; }, 30)) << "the job hangs";
    Expect_That_All_Is_Quiet();
    const auto boxes = user.Was_Shown().mid(boxes_before);
    EXPECT_EQ(boxes.size(), 1);
    return boxes.join(u'|');
}

// Hidden before the word that all is done, shown while something is wrong, and not there yet when nothing opened.
void Sending_Program::Expect_Progress_As_It_Should_Be(const QString& box)
{
    EXPECT_EQ(sms_thread_var, 1);
    const bool is_expected = box == QLatin1String(Box::Connection_Error) || box == QLatin1String(Box::No_Modem);
    EXPECT_EQ(Progress_Is_Shown(), is_expected) << qPrintable(box);
}

void Sending_Program::Expect_That_Sending_Works(const Way& way)
{
    phone->Forget();
    Select_The_Phone();
    Fill_The_List(way);
    EXPECT_EQ(Send(), QLatin1String(Box::Completed));
    EXPECT_EQ(Inbox(), Everything(way));
}

QStringList Sending_Program::Inbox() const
{
    QStringList messages;
    for (const auto& message : phone->Inbox()) {
        const Way way{message.m_text_mode, message.m_alphabet == "UCS2", message.m_class == 0};
        messages.append(As_Shown(QString::fromStdString(message.m_number), QString::fromStdString(message.m_text), way,
                                 message.m_parts));
    }
    return messages;
}

QStringList Sending_Program::Everything(const Way& way)
{
    const auto& numbers = Numbers_Sent_To();
    const QString short_text = Short_Text(way.m_unicode);
    const QString long_text = Long_Text(way.m_unicode);
    QStringList messages = {As_Shown(numbers.at(0), short_text, way, 1), As_Shown(numbers.at(1), short_text, way, 1)};
    if (!way.m_text_mode)
        return messages << As_Shown(numbers.at(2), long_text, way, 2);
    const int cut = way.m_unicode ? 70 : 160;
    return messages << As_Shown(numbers.at(2), long_text.left(cut), way, 1)
                    << As_Shown(numbers.at(2), long_text.mid(cut), way, 1);
}

void Sending_Program::Expect_That_All_Is_Quiet()
{
    EXPECT_EQ(sms_thread_var, 0);
    EXPECT_EQ(ph_find_thread, 0);
    EXPECT_FALSE(Progress_Is_Shown());
    EXPECT_FALSE(
        Send_Modeless::defaultInstance()->findChild<QTimer*>(QStringLiteral("msend_modTimer"))->isActive());
    EXPECT_EQ(m_delegate->Session().port(), nullptr);
    EXPECT_EQ(Descriptors_On(m_path), m_lines_held) << m_path;
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    auto& field = The<QLineEdit>("_numberEdit");
    Click_On(field, field.rect().center());
    QTest::keyClick(m_delegate->windowHandle(), Qt::Key_7);
    EXPECT_EQ(field.text(), QStringLiteral("7"));
    field.clear();
}

// ---- The wizard

void Sending_Program::Visit_Wizard(const std::function<void()>& steps)
{
    m_path = phone->Path();
    Set_Extra_Device_Paths({QString::fromStdString(m_path)});
    user.When_Opens(QStringLiteral("Connection_Info"), [](QWidget& window) {
        QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("Continue_Btn")), Qt::LeftButton);
    });
    user.When_Opens(QStringLiteral("Phone_List_Wnd"), [this, steps](QWidget&) {
        steps();
        if (Wizard_Is_Open())
            Click_In_Wizard("_Cancel_Btn");
        EXPECT_FALSE(Wizard_Is_Open());
    });
    Click("Search_All_Modem");
    Set_Extra_Device_Paths({});
    Expect_That_All_Is_Quiet();
    const QString ticker = The<QLabel>("_Device_Name_Ticker").text();
    EXPECT_EQ(ticker, sel_port_bsd_str.isEmpty() ? QStringLiteral("No Mobile Phone Device is selected.")
                                                 : sel_port_bsd_str.mid(8));
}

bool Sending_Program::Wizard_Is_Open()
{
    return Phone_List_Wnd::defaultInstance()->isVisible();
}

QModelIndex Sending_Program::Row_Of(const QString& path)
{
    const auto* rows = In_Wizard<QTableView>("idPortList").model();
    const auto found = rows->match(rows->index(0, 1), Qt::DisplayRole, path, 1, Qt::MatchExactly);
    return found.isEmpty() ? QModelIndex() : found.constFirst();
}

bool Sending_Program::Wizard_Lists(const QString& path)
{
    return Row_Of(path).isValid();
}

void Sending_Program::Click_The_Phone()
{
    auto& table = In_Wizard<QTableView>("idPortList");
    const QModelIndex row = Row_Of(QString::fromStdString(m_path));
    ASSERT_TRUE(row.isValid()) << "the wizard does not list " << m_path;
    Click_On(*table.viewport(), table.visualRect(row).center());
    EXPECT_GT(Workers_Running(), 0) << "a click on the row starts no probe";
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
}

void Sending_Program::Click_In_Wizard(const char* button)
{
    auto& control = In_Wizard<QAbstractButton>(button);
    Click_On(control, QPoint(12, control.height() / 2));
}

void Sending_Program::Type_Custom_Smsc(const QString& number)
{
    Click_In_Wizard("_cus_smsc_chk");
    auto& field = In_Wizard<QLineEdit>("_cus_smsc_edit");
    Click_On(field, field.rect().center());
    QTest::keyClicks(&field, number);
}

QStringList Sending_Program::Details()
{
    QStringList details;
    for (const char* name : {"_manfacturer_edit", "_model_edit", "_imei_edit", "_imsi_edit", "_battery_edit",
                             "_signal_edit", "_operator_edit", "_revision_edit", "_def_smsc_edit"})
        details.append(In_Wizard<QLineEdit>(name).text());
    return details;
}

QStringList Sending_Program::Usual_Details()
{
    return {QStringLiteral("Corvane"),         QStringLiteral("Virtual Phone"), QStringLiteral("490154203237518"),
            QStringLiteral("001010123456789"), QStringLiteral("85%"),           QStringLiteral("High (20)"),
            QStringLiteral("Corvane Test"),    QStringLiteral("1.0"),           QStringLiteral("+15550009999")};
}

void Sending_Program::Expect_That_The_Wizard_Takes_The_Phone()
{
    Visit_Wizard([this] {
        Click_The_Phone();
        EXPECT_EQ(Details(), Usual_Details());
        Click_In_Wizard("_Select_Btn");
        EXPECT_FALSE(Wizard_Is_Open());
    });
    EXPECT_EQ(sel_port_bsd_str, QString::fromStdString(phone->Path()));
}

// ---- What the tests hold in their own hands

Cable_Puller::Cable_Puller(Virtual_Phone& phone, std::function<bool()> is_time)
    : m_thread([&phone, is_time = std::move(is_time)](const std::stop_token& given_up) {
          while (!given_up.stop_requested()) {
              if (is_time()) {
                  phone.Hang_Up();
                  return;
              }
              phone.Is_Silent(20);
          }
      })
{
}

Cable_Puller::~Cable_Puller() = default;

Held_Line::Held_Line(const std::string& path)
    : m_descriptor(::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
{
    EXPECT_NE(m_descriptor, -1) << path;
}

Held_Line::~Held_Line()
{
    ::close(m_descriptor);
}

int Descriptors_On(const std::string& path)
{
    int count = 0;
    const QDir descriptors(QStringLiteral("/proc/self/fd"));
    const auto entries = descriptors.entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot);
    for (const auto& entry : entries) {
        std::array<char, 256> target{};
        const auto link = descriptors.filePath(entry).toLocal8Bit();
        if (path.empty() || ::readlink(link.constData(), target.data(), target.size() - 1) < 0)
            continue;
        count += target.data() == path || target.data() == path + " (deleted)" ? 1 : 0;
    }
    return count;
}
