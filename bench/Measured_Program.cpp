#include "Measured_Program.h"

#include "device/Stop_Flag.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "platform/Text_Files.h"
#include "platform/Waiting.h"
#include "records/Exclusion_Files.h"
#include "toolkit/Shared_Instance.h"
#include "toolkit/Window_Look.h"

#include <QCheckBox>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <cstdio>

namespace {

constexpr double Pace_Of_Measuring = 1000; // the described waits are not what is measured
constexpr double Milliseconds = 1000;      // in a second

long Kilobytes(const QByteArray& name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        qFatal("the system tells nothing of this process");
    const auto lines = status.readAll().split('\n');
    for (const auto& line : lines) {
        if (line.startsWith(name + ':'))
            return line.mid(name.size() + 1).simplified().split(' ').constFirst().toLong();
    }
    return 0;
}

void Say_Yes_To(QMessageBox& box)
{
    const auto buttons = box.buttons();
    for (auto* button : buttons) {
        if (button->text() != QLatin1String("No"))
            button->click();
    }
}

} // namespace

long Resident_Kilobytes()
{
    return Kilobytes("VmRSS");
}

long Highest_Resident_Kilobytes()
{
    return Kilobytes("VmHWM");
}

Heartbeat::Heartbeat()
{
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { Beat(); });
}

void Heartbeat::Begin()
{
    m_longest = 0;
    m_last = Now_Seconds();
    m_timer.start(1);
}

double Heartbeat::End()
{
    Beat();
    m_timer.stop();
    return m_longest * Milliseconds;
}

void Heartbeat::Beat()
{
    const double now = Now_Seconds();
    m_longest = std::max(m_longest, now - m_last);
    m_last = now;
}

Measured_Program::Measured_Program(int& argument_count, char** arguments) : m_application(argument_count, arguments)
{
    QApplication::setQuitOnLastWindowClosed(false);
    Set_Pace(Pace_Of_Measuring);
    Apply_Application_Look(*qApp);
    qApp->installEventFilter(this);
    m_delegate = std::make_unique<CorvaneAppDelegate>();
    if (!m_delegate->awakeFromNib())
        qFatal("the main window does not come up");
    m_delegate->applicationDidFinishLaunching();
    QTimer settled;
    settled.setSingleShot(true);
    settled.start(100);
    Serve_Until([&settled] { return !settled.isActive(); });
}

Measured_Program::~Measured_Program()
{
    Stop_SMS_Sending_Now = 1;
    Begin_Program_Exit();
    Finish_Workers();
    End_Shared_Instances();
    m_delegate.reset();
}

void Measured_Program::Click(const char* button)
{
    The<QPushButton>(button).click();
}

void Measured_Program::Tick(const char* check_box)
{
    The<QCheckBox>(check_box).setChecked(true);
}

void Measured_Program::Serve_Until(const std::function<bool()>& is_over)
{
    QTimer look; // so that the wait for events ends now and then
    look.start(1);
    while (!is_over())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

void Measured_Program::When_Opens(const QString& object_name, std::function<void(QWidget&)> handle)
{
    m_openings[object_name] = std::move(handle);
}

bool Measured_Program::eventFilter(QObject* watched, QEvent* event)
{
    auto* widget = event->type() == QEvent::Show ? qobject_cast<QWidget*>(watched) : nullptr;
    if (!widget || !widget->isWindow())
        return false;
    if (auto* box = qobject_cast<QMessageBox*>(widget)) {
        QTimer::singleShot(0, box, [box] { Say_Yes_To(*box); });
        return false;
    }
    const auto opening = m_openings.find(widget->objectName());
    if (opening != m_openings.end()) {
        QTimer::singleShot(0, widget, [widget, handle = opening->second] { handle(*widget); });
        m_openings.erase(opening);
    }
    return false;
}

void Measured_Program::Apply_Exclusions(const QString& path)
{
    Number_List numbers;
    const auto lines = Read_File(path).value_or(QByteArray()).split('\n');
    for (const auto& line : lines) {
        if (!line.isEmpty())
            numbers.Append(QString::fromLatin1(line));
    }
    const QString name = QStringLiteral("Measured");
    if (!Exclusion_Files::Write_List(name, numbers) || !Exclusion_Files::Write_Index({name}) ||
        !Exclusion_Files::Write_Applied({name}))
        qFatal("the exclusion list can not be written");
    The<QCheckBox>("_Exclusion_Chk").click();
    Serve_Until([&] { return m_delegate->Exclusions().Count() == numbers.Count(); });
}

double Measured_Program::Import(const QString& path)
{
    auto& send = The<QPushButton>("_sent_btn");
    const double begin = Now_Seconds();
    m_delegate->Load_NUM_Thread(path);
    Serve_Until([&send] { return send.isEnabled(); });
    return Now_Seconds() - begin;
}

void Measured_Program::Put(const std::string& step, double seconds, double longest_gap)
{
    Put(step + " seconds", seconds);
    Put(step + " gap", longest_gap);
}

void Measured_Program::Measure(const std::string& step, const std::function<void()>& work)
{
    Heartbeat heartbeat;
    heartbeat.Begin();
    const double begin = Now_Seconds();
    work();
    const double seconds = Now_Seconds() - begin;
    Put(step, seconds, heartbeat.End());
}

void Measured_Program::Print() const
{
    const char* separator = "{";
    for (const auto& [name, value] : m_results) {
        printf("%s\"%s\": %.9g", separator, name.c_str(), value);
        separator = ", ";
    }
    printf("}\n");
    fflush(stdout);
}
