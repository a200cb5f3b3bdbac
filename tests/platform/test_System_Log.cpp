#include "platform/System_Log.h"
#include "platform/Waiting.h"

#include <QRegularExpression>
#include <QStringList>
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
        Write_System_Log(QStringLiteral("<- OK"));
    std::exit(0); // whose end is not held up either
}

[[noreturn]] void Log_More_Than_Waits_And_Count_What_Arrives()
{
    const Stopped_Terminal terminal;
    constexpr int Lines = 200'000;
    for (int i = 0; i < Lines; ++i)
        Write_System_Log(QStringLiteral("line"));
    const QString shown = QString::fromUtf8(terminal.Read_All());
    const auto passed_over = QRegularExpression(QStringLiteral("(\\d+) log lines were passed over\\.")).match(shown);
    const auto arrived = shown.count(QStringLiteral("line\r\n"));
    const bool are_all_told = arrived + passed_over.captured(1).toLongLong() == Lines;
    std::_Exit(passed_over.hasMatch() && arrived >= 65536 && are_all_told ? 0 : 1);
}

[[noreturn]] void Log_One_Line_And_End()
{
    const Stopped_Terminal terminal;
    Write_System_Log(QStringLiteral("100 %s %n of it\n"));
    Flush_System_Log();
    std::_Exit(terminal.Read_All() == "100 %s %n of it\r\n" ? 0 : 1);
}

// Each in a process of its own, started afresh, because the log looks for its terminal once.
class System_Log_Process : public testing::Test
{
protected:
    System_Log_Process() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

} // namespace

TEST(System_Log, Control_Characters_Are_Made_Visible)
{
    struct Case
    {
        QString line;
        QByteArray printable;
    };
    const Case cases[]{
        {QStringLiteral("plain"), "plain"},
        {QString(), ""},
        {QStringLiteral("ends\r\n"), "ends"},
        {QStringLiteral("ends\n\r\n\n"), "ends"},
        {QStringLiteral("\n\n"), ""},
        {QStringLiteral("two\nlines"), "two\\x0alines"},
        {QStringLiteral("AT\rOK\t"), "AT\\x0dOK\\x09"},
        {QStringLiteral("\x1b[2J"), "\\x1b[2J"},
        {QStringLiteral("a\x7f"), "a\\x7f"},
        {QString(QChar(u'\0')) + QLatin1String("b"), "\\x00b"},
        {QString(QChar(0x9b)) + QLatin1String("31m"), "\\x9b31m"},
        {QStringLiteral("grün %s %n 100%"), "gr\xC3\xBCn %s %n 100%"},
        {QStringLiteral("😀"), "\xF0\x9F\x98\x80"},
        {QString(QChar(0xD83D)), "?"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(Printable_Log_Line(each.line).toStdString(), each.printable.toStdString());
}

TEST(System_Log, A_Listener_Hears_Every_Line_As_It_Was_Written_Until_It_Is_Taken_Away)
{
    QStringList heard;
    Set_Log_Listener([&](const QString& line) { heard += line; });
    Write_System_Log(QStringLiteral("one\n"));
    std::thread worker([] { Write_System_Log(QStringLiteral("%s two")); });
    worker.join();
    Set_Log_Listener({});
    Write_System_Log(QStringLiteral("three"));
    EXPECT_EQ(heard.join(u'|'), QLatin1String("one\n|%s two"));
}

TEST(System_Log, Threads_Log_Side_By_Side)
{
    int heard = 0;
    Set_Log_Listener([&](const QString&) { ++heard; });
    std::vector<std::thread> threads;
    threads.reserve(8);
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([] {
            for (int k = 0; k < 1000; ++k)
                Write_System_Log(QStringLiteral("side by side"));
        });
    }
    for (auto& thread : threads)
        thread.join();
    Flush_System_Log();
    Set_Log_Listener({});
    EXPECT_EQ(heard, 8000);
}

TEST_F(System_Log_Process, The_Text_Is_Never_A_Format)
{
    EXPECT_EXIT(Log_One_Line_And_End(), testing::ExitedWithCode(0), "");
}

TEST_F(System_Log_Process, A_Million_Lines_Hold_Nobody_Up)
{
    const double start = Now_Seconds();
    EXPECT_EXIT(Log_A_Million_Lines_To_A_Stopped_Terminal(), testing::ExitedWithCode(0), "");
    // Waiting for the terminal would take for ever; this is for a slow machine under a sanitizer.
    EXPECT_LT(Now_Seconds() - start, 120);
}

TEST_F(System_Log_Process, What_Was_Passed_Over_Is_Counted)
{
    EXPECT_EXIT(Log_More_Than_Waits_And_Count_What_Arrives(), testing::ExitedWithCode(0), "");
}
