#include "Measured_Program.h"
#include "Window_Bench.h"
#include "device/Chosen_Device.h"
#include "device/Stop_Flag.h"
#include "engine/Job_State.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "platform/Waiting.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QPlainTextEdit>
#include <QProcess>
#include <cstdlib>
#include <ctime>
#include <vector>

namespace {

constexpr double Read_Seconds = 5; // of the two reads of a message
constexpr double Seconds_After_Message = 2;
constexpr int First_Measured = 20;    // the first few messages wake everything up
constexpr double Preparing_Pace = 10; // the answers to what prepares the device are judged: they get time to come

// The handset, a process of its own: a line for the job, and a count of what came.
class Phone
{
public:
    explicit Phone(const char* program)
    {
        m_process.start(QString::fromLocal8Bit(program), {});
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(10'000))
                qFatal("the phone does not start");
        }
        sel_port_bsd_str = QString::fromLocal8Bit(m_process.readLine()).trimmed();
        sel_port_name_str = sel_port_bsd_str;
        QObject::connect(&m_process, &QProcess::readyReadStandardOutput, &m_process, [this] { Count(); });
    }

    ~Phone()
    {
        m_process.disconnect();
        m_process.terminate();
        m_process.waitForFinished();
    }
    Phone(const Phone&) = delete;
    Phone& operator=(const Phone&) = delete;

    int Messages() const { return static_cast<int>(m_arrivals.size()); }
    /// When a message came, from 1.
    double Arrival(int message) const { return m_arrivals.at(static_cast<std::size_t>(message - 1)); }

private:
    void Count()
    {
        while (m_process.canReadLine()) {
            if (m_process.readLine().contains("\"message\""))
                m_arrivals.push_back(Now_Seconds());
        }
    }

    QProcess m_process;
    std::vector<double> m_arrivals;
};

void Fill_List(Measured_Program& program, const char* numbers)
{
    program.The<QPlainTextEdit>("_messageEdit").setPlainText(QStringLiteral("Choir practice moves to Thursday, 7 pm."));
    program.Import(QString::fromLocal8Bit(numbers));
}

// Sends the list, at the given pace from the first message on, until the phone has got so many.
void Send(Measured_Program& program, const Phone& phone, double pace, int messages)
{
    const auto must_go_on = [] {
        if (sms_thread_var == 0)
            qFatal("the job has ended early");
        return false;
    };
    Set_Pace(Preparing_Pace);
    program.Click("_sent_btn");
    program.Serve_Until([&] { return phone.Messages() > 0 || must_go_on(); });
    Set_Pace(pace);
    program.Serve_Until([&] { return phone.Messages() >= messages || must_go_on(); });
}

struct Effort
{
    double seconds; // of computing
    double wake_ups;
};

Effort Effort_So_Far()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    Effort effort{static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9, 0};
    const QDir tasks(QStringLiteral("/proc/self/task"));
    const auto threads = tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const auto& thread : threads) {
        QFile status(tasks.filePath(thread + QStringLiteral("/status")));
        if (!status.open(QIODevice::ReadOnly))
            continue;
        const auto lines = status.readAll().split('\n');
        for (const auto& line : lines) {
            if (line.startsWith("voluntary_ctxt_switches:"))
                effort.wake_ups += line.mid(line.indexOf(':') + 1).trimmed().toDouble();
        }
    }
    return effort;
}

} // namespace

int Measure_Job(Measured_Program& program, char** arguments)
{
    Phone phone(arguments[0]);
    Fill_List(program, arguments[1]);
    const int messages = std::atoi(arguments[3]);
    program.Tick("_Save_Sent_Item_Chk");
    Send(program, phone, std::atof(arguments[2]), First_Measured);
    const long memory = Resident_Kilobytes();
    Heartbeat heartbeat;
    heartbeat.Begin();
    program.Serve_Until([&] { return phone.Messages() >= messages || sms_thread_var == 0; });
    program.Put("job gap", heartbeat.End());
    program.Put("job kilobytes more", static_cast<double>(Resident_Kilobytes() - memory));
    program.Put("job seconds each",
                (phone.Arrival(messages) - phone.Arrival(First_Measured)) / (messages - First_Measured));
    const int tenth = (messages - First_Measured) / 10;
    program.Put("job seconds each at first",
                (phone.Arrival(First_Measured + tenth) - phone.Arrival(First_Measured)) / tenth);
    program.Put("job seconds each at last", (phone.Arrival(messages) - phone.Arrival(messages - tenth)) / tenth);
    program.Put("described seconds each", 2 * Paced_Read_Timeout(Read_Seconds) + Paced(Seconds_After_Message));
    program.Put("count", program.Window().Recipients().Count());
    Stop_SMS_Sending_Now = 1;
    program.Serve_Until([] { return sms_thread_var == 0; });
    return 0;
}

void Measure_Rest(Measured_Program& program, double seconds)
{
    QTimer over;
    over.setSingleShot(true);
    over.start(2000); // what was begun comes to its end
    while (over.isActive())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    const Effort before = Effort_So_Far();
    const double begin = Now_Seconds();
    over.start(static_cast<int>(seconds * 1000));
    while (over.isActive())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    const Effort after = Effort_So_Far();
    const double passed = Now_Seconds() - begin;
    program.Put("percent of a core", (after.seconds - before.seconds) / passed * 100);
    program.Put("wake-ups a second", (after.wake_ups - before.wake_ups) / passed);
}

int Measure_Pause(Measured_Program& program, char** arguments)
{
    Phone phone(arguments[0]);
    Fill_List(program, arguments[1]);
    program.The<QCheckBox>("_Delayed_Delivry_Chk").click();
    program.The<QComboBox>("_delayed_msg_count_combo").setCurrentIndex(0);
    auto& pauses = program.The<QComboBox>("_delayed_time_combo");
    pauses.setCurrentIndex(pauses.count() - 1);
    Send(program, phone, Preparing_Pace, 1);
    program.Serve_Until([] { return Pause_Timer_Running.load(); });
    Set_Pace(1);
    Measure_Rest(program, std::atof(arguments[2]));
    Stop_SMS_Sending_Now = 1;
    Set_Pace(1000);
    program.Serve_Until([] { return sms_thread_var == 0; });
    return 0;
}
