#include "victim/Victim.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/wait.h>

namespace {

// Answers of the phone are waited for 20 ms at the least; in a slow build longer.
#if defined(__SANITIZE_THREAD__) || defined(__SANITIZE_ADDRESS__)
constexpr double Pace = 25;
#else
constexpr double Pace = 1000;
#endif

QByteArrayList Lines_Of(const QByteArray& bytes)
{
    QByteArrayList lines = bytes.split('\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

// The words behind the beginning of each line of the journal that has it, decoded.
QList<QByteArrayList> Told(const QByteArrayList& journal, const QByteArray& beginning)
{
    QList<QByteArrayList> told;
    for (const QByteArray& line : journal) {
        if (!(line + ' ').startsWith(beginning + ' '))
            continue;
        QByteArrayList words = line.mid(beginning.size() + 1).split(' ');
        words.removeAll(QByteArray());
        for (QByteArray& word : words)
            word = QByteArray::fromBase64(word);
        told.append(words);
    }
    return told;
}

} // namespace

int Ending::Done(const QByteArray& beginning) const
{
    return static_cast<int>(std::count_if(made.begin(), made.end(), [&](const QByteArray& call) {
        return call.startsWith(beginning) && call.endsWith(" ok");
    }));
}

QByteArrayList Ending::Steps() const
{
    QByteArrayList steps;
    for (const QByteArray& line : journal) {
        if (line.startsWith("boxes "))
            steps.append(line.split(' ').at(1));
    }
    return steps;
}

QStringList Ending::Boxes(const QByteArray& step) const
{
    QStringList boxes;
    for (const QByteArrayList& words : Told(journal, "boxes " + step)) {
        for (const QByteArray& box : words)
            boxes.append(QString::fromUtf8(box));
    }
    return boxes;
}

QStringList Ending::All_Boxes() const
{
    QStringList boxes;
    for (const QByteArray& step : Steps())
        boxes += Boxes(step);
    return boxes;
}

std::map<QByteArray, QByteArray> Ending::Files(const QByteArray& step) const
{
    std::map<QByteArray, QByteArray> files;
    for (const QByteArrayList& words : Told(journal, "file " + step))
        files[words.at(0)] = words.value(1);
    return files;
}

QByteArrayList Ending::Rows(const QByteArray& what) const
{
    QByteArrayList rows;
    for (const QByteArrayList& words : Told(journal, what))
        rows.append(words.value(0));
    return rows;
}

Victim::Victim()
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral(CORVANE_BUILD_DIR "/corvane-victim"), QStringList());
}

Victim::~Victim()
{
    m_process.closeWriteChannel();
    EXPECT_TRUE(m_process.waitForFinished() && m_process.exitStatus() == QProcess::NormalExit);
    EXPECT_EQ(m_process.exitCode(), 0);
}

void Victim::Await(const std::function<bool()>& is_there)
{
    while (!is_there()) {
        if (!m_process.waitForReadyRead(-1))
            qFatal("the victim does not answer");
    }
}

Ending Victim::Live(const Order& order)
{
    const Doom& doom = order.doom;
    std::ostringstream line;
    line << order.steps << ' ' << order.world << ' ' << order.phone << ' ' << order.items << ' ' << order.first << ' '
         << Pace << ' ' << static_cast<char>(order.disk) << ' ' << static_cast<char>(doom.way) << ' ' << doom.at << ' '
         << doom.error << ' ' << doom.counts_reads << '\n';
    m_process.write(line.str().c_str());
    int status = 0;
    qsizetype made = 0;
    qsizetype journal = 0;
    Ending ending;
    Await([&] { return m_process.canReadLine(); });
    std::istringstream(m_process.readLine().toStdString()) >> status >> ending.calls >> made >> journal;
    Await([&] { return m_process.bytesAvailable() >= made + journal; });
    ending.made = Lines_Of(m_process.read(made));
    ending.journal = Lines_Of(m_process.read(journal));
    ending.was_killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    ending.lived = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    EXPECT_TRUE(ending.was_killed || ending.lived) << line.str() << ": status " << status;
    return ending;
}
