#include "toolkit/Guarded_Application.h"
#include "toolkit/Window_Look.h"
#include "victim/Steps.h"

#include <QDir>
#include <QWidget>
#include <cstdio>
#include <iostream>
#include <sstream>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

// corvane-victim: takes orders on its input, a line each, and lives through each in a process of its own, which begins
// with the toolkit in place and nothing else. Tells of each how it ended and what its last words were.

namespace {

constexpr unsigned Longest_Life_In_Seconds = 100;

#if defined(__SANITIZE_THREAD__)
constexpr int Most_Threads = 2; // one is the sanitizer's
#else
constexpr int Most_Threads = 1;
#endif

Order Read_Order(const std::string& line)
{
    std::istringstream words(line);
    Order order;
    char disk = 0;
    char way = 0;
    words >> order.steps >> order.world >> order.phone >> order.items >> order.first >> order.pace >> disk >> way >>
        order.doom.at >> order.doom.error >> order.doom.counts_reads;
    if (!words)
        qFatal("no order: %s", line.c_str());
    order.disk = static_cast<Disk>(disk);
    order.doom.way = static_cast<Doom::Way>(way);
    return order;
}

Last_Words& Shared_Words()
{
    void* place = mmap(nullptr, sizeof(Last_Words), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (place == MAP_FAILED)
        qFatal("no memory to share");
    return *static_cast<Last_Words*>(place); // all zeros, which is how it begins
}

// A process that has several threads is not to be forked: the locks of the others would never be given back.
void Expect_One_Thread()
{
    const auto threads = QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
    if (threads > Most_Threads)
        qFatal("%d threads where there should be one", static_cast<int>(threads));
}

int Live_In_A_Child(const Order& order, Last_Words& words)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(Longest_Life_In_Seconds);
        Live(order, words);
        _exit(0);
    }
    int status = 0;
    while (child > 0 && waitpid(child, &status, 0) == -1 && errno == EINTR)
        continue;
    return status;
}

// The offscreen platform warns of each window that it can not raise.
void Print_What_Is_Serious(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

int main(int argument_count, char** arguments)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char* bus : {"DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"})
        qputenv(bus, "none:"); // where calls would not be those of another run
    qInstallMessageHandler(Print_What_Is_Serious);
    Guarded_Application application(argument_count, arguments);
    QApplication::setApplicationName(QStringLiteral("corvane"));
    Apply_Application_Look(application);
    QWidget().ensurePolished(); // so that every child finds the fonts read
    Last_Words& words = Shared_Words();
    std::string line;
    while (std::getline(std::cin, line)) {
        words.calls = 0;
        words.made.length = 0;
        words.journal.length = 0;
        Expect_One_Thread();
        const int status = Live_In_A_Child(Read_Order(line), words);
        const std::string made = words.made.All();
        const std::string journal = words.journal.All();
        std::cout << status << ' ' << words.calls << ' ' << made.size() << ' ' << journal.size() << '\n'
                  << made << journal << std::flush;
    }
    return 0;
}
