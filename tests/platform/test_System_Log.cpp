#include "platform/System_Log.h"

#include "platform/Log_Line.h"
#include "platform/Waiting.h"
#include "support/Log_Lines.h"

#include <QRegularExpression>
#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <thread>
#include <unistd.h>

namespace {

// A terminal that shows nothing, until it is read, and stops taking bytes when the little room in it is full.
class Stopped_Terminal
{
public:
    Stopped_Terminal() : m_screen(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        if (m_screen < 0 || grantpt(m_screen) != 0 || unlockpt(m_screen) != 0)
            std::_Exit(90);
        const int keyboard = open(ptsname(m_screen), O_RDWR | O_NOCTTY | O_CLOEXEC);
        if (keyboard < 0 || dup2(keyboard, STDERR_FILENO) < 0)
            std::_Exit(91);
    }

    /// Everything that is written within the silence that a second is.
    QByteArray Read_All() const
    {
        QByteArray all;
        char block[65536];
        while (Wait_For_Descriptor(m_screen, POLLIN, 1) == Line_Event::Ready) {
            const auto size = read(m_screen, block, sizeof block);
            if (size <= 0)
                break;
            all.append(block, size);
        }
        return all;
    }

private:
    int m_screen;
};

[[noreturn]] void Log_A_Million_Lines_To_A_Stopped_Terminal()
{
    const Stopped_Terminal terminal;
    for (int i = 0; i < 1'000'000; ++i)
        Write_System_Log(u"<- OK");
    std::exit(0); // whose end is not held up either
}

[[noreturn]] void Log_More_Than_Waits_And_Count_What_Arrives()
{
    const Stopped_Terminal terminal;
    constexpr int Lines = 200'000;
    for (int i = 0; i < Lines; ++i)
        Write_System_Log(u"line");
    const QString shown = QString::fromUtf8(terminal.Read_All());
    const auto passed_over = QRegularExpression("(\\d+) log lines were passed over\\.").match(shown);
    const auto arrived = shown.count("line\r\n");
    const bool are_all_told = arrived + passed_over.captured(1).toLongLong() == Lines;
    std::_Exit(passed_over.hasMatch() && arrived >= 65536 && are_all_told ? 0 : 1);
}

[[noreturn]] void Log_One_Line_And_End()
{
    const Stopped_Terminal terminal;
    Write_System_Log(u"100 %s %n of it\n");
    Flush_System_Log();
    std::_Exit(terminal.Read_All() == "100 %s %n of it\r\n" ? 0 : 1);
}

} // namespace

TEST(System_Log, Control_Characters_Are_Made_Visible)
{
    const std::pair<QString, const char*> lines[]{
        {"plain", "plain"},
        {"", ""},
        {"ends\r\n", "ends"},
        {"ends\n\r\n\n", "ends"},
        {"\n\n", ""},
        {"two\nlines", "two\\x0alines"},
        {"AT\rOK\t", "AT\\x0dOK\\x09"},
        {"\x1b[2J", "\\x1b[2J"},
        {"a\x7f", "a\\x7f"},
        {QString(QChar(u'\0')) + "b", "\\x00b"},
        {QString(QChar(0x9b)) + "31m", "\\x9b31m"},
        {"grün %s %n 100%", "gr\xC3\xBCn %s %n 100%"},
        {"😀", "\xF0\x9F\x98\x80"},
        {QChar(0xD83D), "?"},
    };
    for (const auto& [line, printable] : lines)
        EXPECT_EQ(Printable_Log_Line(line), printable);
}

TEST(System_Log, A_Listener_Hears_Every_Line_As_It_Was_Written_Until_It_Is_Taken_Away)
{
    QStringList heard;
    Set_Log_Listener([&](const QString& line) { heard += line; });
    Write_System_Log(u"one\n");
    std::jthread([] { Write_System_Log(u"%s two"); }).join();
    Show_NSLog_Message(u"100 %d %1");
    Set_Log_Listener({});
    Write_System_Log(u"three");
    EXPECT_EQ(heard.join(u'|'), "one\n|%s two|100 %d %1");
}

TEST(System_Log, Threads_Log_Side_By_Side)
{
    const Log_Lines log;
    {
        std::vector<std::jthread> threads;
        for (int i = 0; i < 8; ++i)
            threads.emplace_back([] {
                for (int k = 0; k < 1000; ++k)
                    Write_System_Log(u"side by side");
            });
    }
    Flush_System_Log();
    EXPECT_EQ(log.Count("side by side"), 8000);
}

// Each in a process of its own, started afresh, because the log looks for its terminal once.
TEST(System_Log, Its_Text_Is_Never_A_Format_A_Million_Lines_Hold_Nobody_Up_And_What_Was_Passed_Over_Is_Counted)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(Log_One_Line_And_End(), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(Log_More_Than_Waits_And_Count_What_Arrives(), testing::ExitedWithCode(0), "");
    const double start = Now_Seconds();
    EXPECT_EXIT(Log_A_Million_Lines_To_A_Stopped_Terminal(), testing::ExitedWithCode(0), "");
    // Waiting for the terminal would take for ever; this is for a slow machine under a sanitizer.
    EXPECT_LT(Now_Seconds() - start, 120);
}
