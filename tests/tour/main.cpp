#include "app/Demo_Phone.h"
#include "app/Program.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "tour/Visitor.h"

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QTemporaryDir>
#include <cstdio>
#include <thread>

// A walk through the real program with the virtual phone: its windows are clicked and typed into as a person would,
// each is photographed, a list is sent, and what the phone received is held against what was written. Exit status 0
// only when it is the same. Usage: corvane-tour <picture folder>

namespace {

struct Message
{
    QString number;
    QString text;

    bool operator==(const Message&) const = default;
};

const QString Main = QStringLiteral("CorvaneAppDelegate");
const QString Wizard = QStringLiteral("Phone_List_Wnd");
const QString Progress = QStringLiteral("Send_Modeless");

const QString Short_Text =
    QStringLiteral("Choir practice moves to Thursday at 7 pm, same room. Please bring the blue folder!");
const QString Long_Text_End =
    QStringLiteral(" The concert is on Saturday the 12th: doors open at 6, we sing at 7:30, and there "
                   "is soup afterwards for everyone who helps with the chairs.");

void Choose_The_Phone(Visitor& visitor, const QString& phone_path)
{
    visitor.Take_Picture(Main, QStringLiteral("01-main-window"));
    visitor.Click(Main, QStringLiteral("_NO_Device_Ticker"));
    visitor.Take_Picture(QStringLiteral("Connection_Info"), QStringLiteral("02-connection-info"));
    visitor.Click(QStringLiteral("Connection_Info"), QStringLiteral("Continue_Btn"));
    visitor.Await(Wizard);
    visitor.Click_Row_With(Wizard, QStringLiteral("idPortList"), phone_path);
    visitor.Take_Picture(QStringLiteral("PleaseWait_Modeless"), QStringLiteral("03-please-wait"));
    visitor.Await_Gone(QStringLiteral("PleaseWait_Modeless"));
    visitor.Take_Picture(Wizard, QStringLiteral("04-device-details"));
    visitor.Click(Wizard, QStringLiteral("_Select_Btn"));
    visitor.Await_Gone(Wizard);
}

void Add_Number(Visitor& visitor, const QString& number)
{
    visitor.Type(Main, QStringLiteral("_numberEdit"), number);
    visitor.Click(Main, QStringLiteral("Add_Number"));
    visitor.Await_Until(QStringLiteral("the number field to be empty"),
                        [&] { return visitor.Text_Of(Main, QStringLiteral("_numberEdit")).isEmpty(); });
}

std::vector<Message> Fill_The_List(Visitor& visitor)
{
    const QString long_text = Short_Text + Long_Text_End;
    visitor.Type(Main, QStringLiteral("_messageEdit"), Short_Text);
    Add_Number(visitor, QStringLiteral("+44 7700 900123").remove(u' '));
    Add_Number(visitor, QStringLiteral("0770-090-0456"));
    visitor.Type(Main, QStringLiteral("_messageEdit"), Long_Text_End);
    visitor.Take_Picture(QStringLiteral("Long_SMS_Dlg"), QStringLiteral("05-long-message"));
    visitor.Click(QStringLiteral("Long_SMS_Dlg"), QStringLiteral("OKPressed"));
    visitor.Await_Gone(QStringLiteral("Long_SMS_Dlg"));
    Add_Number(visitor, QStringLiteral("07700900789"));
    visitor.Take_Picture(Main, QStringLiteral("06-list-filled"));
    return {{QStringLiteral("00447700900123"), Short_Text},
            {QStringLiteral("07700900456"), Short_Text},
            {QStringLiteral("07700900789"), long_text}};
}

void Send_The_List(Visitor& visitor)
{
    visitor.Click(Main, QStringLiteral("_sent_btn"));
    visitor.Take_Picture(Progress, QStringLiteral("07-preparing"));
    visitor.Await_Until(QStringLiteral("the second message"), [] {
        const auto windows = QApplication::topLevelWidgets();
        for (const auto* window : windows) {
            const auto* label = window->findChild<QLabel*>(QStringLiteral("_curr_msg_cnt"));
            if (window->objectName() == Progress && label && label->text().startsWith(QStringLiteral("2 /")))
                return true;
        }
        return false;
    });
    visitor.Take_Picture(Progress, QStringLiteral("08-sending"));
    visitor.Take_Picture_With_What_Is_Over(Main, QStringLiteral("09-sending-over-main-window"));
    const QString result = visitor.Text_Of_Box();
    visitor.Take_Picture(QStringLiteral("Message_Box"), QStringLiteral("10-completed"));
    printf("box      %s\n", qPrintable(result.trimmed()));
    visitor.Press_In_Box(QStringLiteral("OK"));
    if (result != QStringLiteral("\nMessage Sending Process Completed."))
        throw Tour_Failed(QStringLiteral("the job ended with: ") + result);
}

void Look_At_The_Rest(Visitor& visitor)
{
    visitor.Click(Main, QStringLiteral("Help_Btn"));
    visitor.Take_Picture(QStringLiteral("Help_Wnd"), QStringLiteral("11-help"));
    visitor.Click(QStringLiteral("Help_Wnd"), QStringLiteral("OKPressed"));
    visitor.Await_Gone(QStringLiteral("Help_Wnd"));
    visitor.Click(Main, QStringLiteral("Exit_Btn"));
    visitor.Take_Picture(QStringLiteral("Message_Box"), QStringLiteral("12-exit-question"));
}

// Collects what the phone prints; the phone prints a line for each part, and one for each complete message.
void Collect(std::vector<Message>& inbox, const QByteArray& line)
{
    const auto object = QJsonDocument::fromJson(line).object();
    if (object.value(QStringLiteral("event")) == QStringLiteral("message"))
        inbox.push_back(
            {object.value(QStringLiteral("number")).toString(), object.value(QStringLiteral("text")).toString()});
}

int Walk(Visitor& visitor, const QString& phone_path, const std::vector<Message>& inbox)
{
    try {
        Choose_The_Phone(visitor, phone_path);
        const auto written = Fill_The_List(visitor);
        Send_The_List(visitor);
        visitor.Await_Until(QStringLiteral("the phone to have everything"),
                            [&] { return inbox.size() >= written.size(); });
        if (inbox != written)
            throw Tour_Failed(QStringLiteral("the phone received something else than was written"));
        Look_At_The_Rest(visitor);
    } catch (const std::exception& failure) {
        printf("FAILED   %s\n", failure.what());
        return 1;
    }
    printf("The phone received exactly the %zu messages that were written.\n", inbox.size());
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        fprintf(stderr, "Usage: corvane-tour <picture folder>\n");
        return 2;
    }
    const QTemporaryDir data_home;
    qputenv("XDG_DATA_HOME", data_home.path().toUtf8());
    Set_Pace(10);
    const QString pace_error = Take_Pace_From_Environment();
    if (!pace_error.isEmpty()) {
        fprintf(stderr, "corvane-tour: %s\n", qPrintable(pace_error));
        return 2;
    }
    QApplication application(argc, argv);
    Command_Line command_line;
    command_line.demo = true;
    Program program(command_line);
    if (!program.Start())
        return 1;

    std::vector<Message> inbox;
    QObject::connect(program.Phone_Of_The_Demo(), &Demo_Phone::Printed, &application,
                     [&inbox](const QByteArray& line) { Collect(inbox, line); });
    int status = 1;
    std::thread walk([&, folder = QString::fromLocal8Bit(argv[1])] {
        Visitor visitor(folder);
        status = Walk(visitor, program.Phone_Of_The_Demo()->Path(), inbox);
        Run_On_Interface_Thread([&] { program.Leave(); });
    });
    program.Run();
    walk.join();
    return status;
}
