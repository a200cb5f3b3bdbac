#include "victim/Victim.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Answers of the phone are waited for 20 ms at the least; in a slow build longer.
#if defined(__SANITIZE_THREAD__) || defined(__SANITIZE_ADDRESS__)
constexpr double Pace = 25;
#else
constexpr double Pace = 1000;
#endif

QByteArray Read_Exactly(FILE* file, std::size_t size)
{
    QByteArray bytes(static_cast<qsizetype>(size), Qt::Uninitialized);
    if (fread(bytes.data(), 1, size, file) != size)
        qFatal("the victim's words break off");
    return bytes;
}

QByteArrayList Lines_Of(const QByteArray& bytes)
{
    QByteArrayList lines = bytes.split('\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

} // namespace

int Ending::Done(const QByteArray& beginning) const
{
    return static_cast<int>(std::count_if(made.begin(), made.end(), [&](const QByteArray& call) {
        return call.startsWith(beginning) && call.endsWith(" ok");
    }));
}

QStringList Ending::Boxes(const QByteArray& step) const
{
    QStringList boxes;
    for (const QByteArray& line : journal) {
        if (line.startsWith("boxes " + step + ' ')) {
            const QByteArray words = QByteArray::fromBase64(line.mid(line.lastIndexOf(' ') + 1));
            if (!words.isEmpty())
                boxes += QString::fromUtf8(words).split(u'|');
        }
    }
    return boxes;
}

QStringList Ending::All_Boxes() const
{
    QStringList boxes;
    for (const QByteArray& line : journal) {
        const QByteArray words = QByteArray::fromBase64(line.mid(line.lastIndexOf(' ') + 1));
        if (line.startsWith("boxes ") && !words.isEmpty())
            boxes += QString::fromUtf8(words).split(u'|');
    }
    return boxes;
}

std::map<QByteArray, QByteArray> Ending::Files(const QByteArray& step) const
{
    std::map<QByteArray, QByteArray> files;
    for (const QByteArray& line : journal) {
        if (!line.startsWith("file " + step + ' '))
            continue;
        const QByteArrayList words = line.mid(6 + step.size()).split(' ');
        files[QByteArray::fromBase64(words.at(0))] = QByteArray::fromBase64(words.at(1));
    }
    return files;
}

QStringList Ending::Rows(const QByteArray& what) const
{
    QStringList rows;
    for (const QByteArray& line : journal) {
        if (line.startsWith(what + ' '))
            rows.append(QString::fromUtf8(QByteArray::fromBase64(line.mid(what.size() + 1))));
    }
    return rows;
}

Victim::Victim()
{
    int orders[2];
    int answers[2];
    if (pipe2(orders, O_CLOEXEC) != 0 || pipe2(answers, O_CLOEXEC) != 0)
        qFatal("no pipes");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, orders[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, answers[1], STDOUT_FILENO);
    char program[] = CORVANE_BUILD_DIR "/corvane-victim";
    char* const arguments[] = {program, nullptr};
    if (posix_spawn(&m_process, program, &actions, nullptr, arguments, environ) != 0)
        qFatal("no %s", program);
    posix_spawn_file_actions_destroy(&actions);
    close(orders[0]);
    close(answers[1]);
    m_orders = fdopen(orders[1], "w");
    m_answers = fdopen(answers[0], "r");
}

Victim::~Victim()
{
    fclose(m_orders);
    fclose(m_answers);
    int status = 0;
    while (waitpid(m_process, &status, 0) == -1 && errno == EINTR)
        continue;
    EXPECT_EQ(status, 0);
}

Ending Victim::Live(const QString& world, const Errand& errand)
{
    const Doom& doom = errand.doom;
    fprintf(m_orders, "%s %s %s %d %d %g %c %c %d %d %d\n", errand.steps, qPrintable(world), errand.phone.c_str(),
            errand.items, errand.first, Pace, errand.disk, static_cast<char>(doom.way), doom.at, doom.error,
            doom.counts_reads ? 1 : 0);
    fflush(m_orders);
    Ending ending;
    std::size_t made = 0;
    std::size_t journal = 0;
    if (fscanf(m_answers, "%d %d %zu %zu", &ending.status, &ending.calls, &made, &journal) != 4 ||
        fgetc(m_answers) != '\n')
        qFatal("the victim does not answer");
    ending.made = Lines_Of(Read_Exactly(m_answers, made));
    ending.journal = Lines_Of(Read_Exactly(m_answers, journal));
    ending.was_killed = WIFSIGNALED(ending.status) && WTERMSIG(ending.status) == SIGKILL;
    ending.lived = WIFEXITED(ending.status) && WEXITSTATUS(ending.status) == 0;
    EXPECT_TRUE(ending.was_killed || ending.lived)
        << errand.steps << ", call " << doom.at << ": status " << ending.status;
    return ending;
}
