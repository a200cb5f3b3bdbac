#include "send/Send_Test.h"

#include <QDir>
#include <QElapsedTimer>
#include <QThread>
#include <csignal>

namespace {

constexpr int Patience = 20'000; // milliseconds
constexpr char Program[] = CORVANE_BUILD_DIR "/corvane-send";

QList<QJsonObject> Objects_Of(const QByteArray& output)
{
    QList<QJsonObject> objects;
    for (const QByteArray& line : output.split('\n'))
        if (line.startsWith('{'))
            objects.append(QJsonDocument::fromJson(line).object());
    return objects;
}

} // namespace

QList<QJsonObject> Ended_Run::Of(const char* event) const
{
    QList<QJsonObject> found;
    for (const QJsonObject& line : lines)
        if (line.value("event") == QLatin1String(event))
            found.append(line);
    return found;
}

std::vector<std::string> Ended_Run::Outcomes() const
{
    std::map<int, std::vector<std::string>> by_row;
    int last = 0;
    for (const QJsonObject& line : Of("outcome")) {
        const int row = line.value("row").toInt();
        by_row[row].push_back(line.value("outcome").toString().toStdString());
        last = std::max(last, row);
    }
    std::vector<std::string> outcomes;
    for (int row = 1; row <= last; ++row)
        outcomes.push_back(by_row[row].size() == 1 ? by_row[row].front() : "?");
    return outcomes;
}

QJsonObject Ended_Run::Outcome(int row) const
{
    for (const QJsonObject& line : Of("outcome"))
        if (line.value("row") == row)
            return line;
    return {};
}

Running_Send::Running_Send(const QStringList& arguments, const QProcessEnvironment& environment,
                           const QByteArray& input)
{
    m_process.setProcessEnvironment(environment);
    m_process.start(QLatin1String(Program), arguments);
    EXPECT_TRUE(m_process.waitForStarted());
    m_process.write(input);
    m_process.closeWriteChannel();
}

Running_Send::~Running_Send()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

bool Running_Send::Says(const char* event)
{
    QElapsedTimer clock;
    clock.start();
    const QByteArray words = QByteArray("\"event\":\"") + event + '"';
    while (!m_output.contains(words) && clock.elapsed() < Patience) {
        m_process.waitForReadyRead(100);
        m_output += m_process.readAllStandardOutput();
    }
    return m_output.contains(words);
}

void Running_Send::Send_Signal(int number) const
{
    ::kill(static_cast<pid_t>(m_process.processId()), number);
}

Ended_Run Running_Send::Wait()
{
    EXPECT_TRUE(m_process.waitForFinished(60'000));
    m_output += m_process.readAllStandardOutput();
    return {m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1, Objects_Of(m_output),
            m_output.toStdString(), m_process.readAllStandardError().toStdString()};
}

Send_Test::Send_Test() : m_environment(QProcessEnvironment::systemEnvironment())
{
    m_environment.insert(QStringLiteral("XDG_DATA_HOME"), m_folder.path());
    m_environment.insert(QStringLiteral("CORVANE_PACE"), QStringLiteral("5"));
}

QStringList Send_Test::With_Device(const QStringList& arguments) const
{
    return QStringList{"--json", "--device", QString::fromStdString(m_phone.Path())} + arguments;
}

Ended_Run Send_Test::Run(const QStringList& arguments, const QByteArray& input) const
{
    return Running_Send(arguments, m_environment, input).Wait();
}

std::unique_ptr<Running_Send> Send_Test::Start(const QStringList& arguments) const
{
    return std::make_unique<Running_Send>(With_Device(arguments), m_environment);
}

QStringList Send_Test::To_So_Many(int count) const
{
    QStringList arguments{"--message", "Hello"};
    for (int i = 0; i < count; ++i)
        arguments += {"--to", QStringLiteral("+4477009001%1").arg(i, 2, 10, QLatin1Char('0'))};
    return arguments;
}

QString Send_Test::Write(const QString& name, const QByteArray& bytes) const
{
    Write_Bytes(Path(name), bytes);
    return Path(name);
}

QStringList Send_Test::Unfinished() const
{
    QStringList jobs;
    for (const QJsonObject& line : Run({"--list-jobs", "--json"}).Of("unfinished"))
        jobs.append(line.value("job").toString());
    return jobs;
}

bool Send_Test::Soon(const std::function<bool()>& is_true)
{
    QElapsedTimer clock;
    clock.start();
    while (!is_true() && clock.elapsed() < Patience)
        QThread::msleep(5);
    return is_true();
}

std::size_t Send_Test::Submissions_Heard() const
{
    std::size_t count = 0;
    for (const std::string& line : m_phone.Heard())
        count += line.starts_with("AT+CMGS=") ? 1 : 0;
    return count;
}

std::vector<std::string> Send_Test::Texts() const
{
    std::vector<std::string> texts;
    for (const Handset_Message& message : m_phone.Inbox())
        texts.push_back(message.m_text);
    return texts;
}

void Send_Test::Cms(std::map<int, int> errors)
{
    Phone_Moods moods;
    moods.m_cms_error_at = std::move(errors);
    m_phone.Set_Moods(moods);
}
