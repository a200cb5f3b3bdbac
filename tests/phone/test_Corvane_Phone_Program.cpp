// corvane-phone as a program: started as a child, its output read, ended by signal or by its input.
#include "phone/Phone_Talk.h"
#include "support/Strict_Json.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <linux/capability.h>
#include <poll.h>
#include <spawn.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>

#include <array>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace fs = std::filesystem;
using Handset::Descriptor;
using testing::MatchesRegex;

extern char** environ;

namespace {

struct Pipe
{
    Pipe()
    {
        std::array<int, 2> ends{-1, -1};
        EXPECT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
        m_out = Descriptor(ends[0]);
        m_in = Descriptor(ends[1]);
    }
    Descriptor m_out; // to read from
    Descriptor m_in;  // to write to
};

// A running corvane-phone; killed and waited for when the test ends before it does.
class Phone_Program
{
public:
    explicit Phone_Program(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.begin(), CORVANE_BUILD_DIR "/corvane-phone");
        std::vector<char*> pointers;
        for (auto& argument : arguments)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, m_input.m_out.Number(), STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&actions, m_output.m_in.Number(), STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions, m_errors.m_in.Number(), STDERR_FILENO);
        EXPECT_EQ(::posix_spawn(&m_child, pointers[0], &actions, nullptr, pointers.data(), environ), 0);
        posix_spawn_file_actions_destroy(&actions);
        m_input.m_out.Close();
        m_output.m_in.Close();
        m_errors.m_in.Close();
    }

    ~Phone_Program()
    {
        if (m_child > 0) {
            ::kill(m_child, SIGKILL);
            ::waitpid(m_child, nullptr, 0);
        }
    }

    std::string Line() { return Line_Of(m_output.m_out); }
    std::string Error_Line() { return Line_Of(m_errors.m_out); }

    // Everything up to the end of its output.
    std::string Rest()
    {
        std::string rest;
        for (std::string line = Line(); !line.empty(); line = Line())
            rest += line + "\n";
        return rest;
    }

    void Signal(int number) const { ::kill(m_child, number); }
    void Close_Input() { m_input.m_in.Close(); }
    void Close_Output() { m_output.m_out.Close(); }

    // Exit status; -1 when a signal ended it. Waits for the end.
    int Exit_Status()
    {
        int status = 0;
        ::waitpid(std::exchange(m_child, 0), &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    bool Is_Running() const { return ::waitpid(m_child, nullptr, WNOHANG) == 0; }

private:
    static std::string Line_Of(const Descriptor& pipe)
    {
        std::string line;
        pollfd asked{pipe.Number(), POLLIN, 0};
        char letter = 0;
        while (::poll(&asked, 1, 20'000) == 1 && ::read(pipe.Number(), &letter, 1) == 1 && letter != '\n')
            line += letter;
        return line;
    }

    Pipe m_input;
    Pipe m_output;
    Pipe m_errors;
    pid_t m_child = 0;
};

void Send(Line_Peer& peer, const std::string& length, const std::string& pdu)
{
    peer.Says("AT+CMGS=" + length + "\r\n");
    peer.Hears("> ");
    peer.Says(pdu + "\x1A\r\n");
}

// Gone with what is in it when the test ends.
struct Own_Folder
{
    Own_Folder()
    {
        std::string pattern = (fs::temp_directory_path() / "phone-XXXXXX").string();
        m_path = ::mkdtemp(pattern.data());
    }
    ~Own_Folder() { fs::remove_all(m_path); }
    Own_Folder(const Own_Folder&) = delete;
    Own_Folder& operator=(const Own_Folder&) = delete;

    fs::path m_path;
};

// Exclusive use does not keep root out, but this thread and what it starts from now on.
void Be_Kept_Out_Like_An_Ordinary_Account()
{
    ::prctl(PR_CAPBSET_DROP, CAP_SYS_ADMIN); // refused to whoever has never had it
    __user_cap_header_struct of_this_thread{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, 2> rights{};
    EXPECT_EQ(::syscall(SYS_capget, &of_this_thread, rights.data()), 0);
    rights[0].effective &= ~(1u << CAP_SYS_ADMIN);
    rights[0].permitted &= ~(1u << CAP_SYS_ADMIN);
    EXPECT_EQ(::syscall(SYS_capset, &of_this_thread, rights.data()), 0);
}

} // namespace

TEST(Corvane_Phone_Program, Its_First_Line_Is_The_Path_Of_Its_Line_And_It_Stays_Without_Input)
{
    Phone_Program program({});
    program.Close_Input();
    const std::string path = program.Line();
    EXPECT_TRUE(path.starts_with("/dev/pts/")) << path;
    Line_Peer peer(path);
    EXPECT_EQ(peer.Asks("AT"), "AT\r" + Ok);
    EXPECT_TRUE(program.Is_Running());
    program.Signal(SIGTERM);
    EXPECT_EQ(program.Exit_Status(), 0);
    EXPECT_TRUE(peer.Is_Cut_Off());
}

TEST(Corvane_Phone_Program, Every_Part_And_Message_Is_A_Line)
{
    Phone_Program program({"--no-echo"});
    Line_Peer peer(program.Line());
    Send(peer, "19", Hello);
    EXPECT_EQ(Read_Json_Object(program.Line()).at("pdu").m_text, Hello);
    const auto message = Read_Json_Object(program.Line());
    EXPECT_EQ(message.at("event").m_text, "message");
    EXPECT_EQ(message.at("text").m_text, "hello");
    Send(peer, "23", "0051000B915155001032F40018FF09060804000002010048");
    Send(peer, "23", "0051000B915155001032F40018FF09060804000002020069");
    EXPECT_EQ(Read_Json_Object(program.Line()).at("part").m_number, 1);
    EXPECT_EQ(Read_Json_Object(program.Line()).at("part").m_number, 2);
    EXPECT_EQ(Read_Json_Object(program.Line()).at("text").m_text, "Hi");
    program.Signal(SIGINT);
    EXPECT_EQ(program.Rest(), "");
    EXPECT_EQ(program.Exit_Status(), 0);
}

TEST(Corvane_Phone_Program, It_Ends_With_Its_Input_Where_That_Is_Asked)
{
    Phone_Program program({"--until-stdin-closes"});
    EXPECT_NE(program.Line(), "");
    EXPECT_TRUE(program.Is_Running());
    program.Close_Input();
    EXPECT_EQ(program.Exit_Status(), 0);
}

TEST(Corvane_Phone_Program, It_Ends_When_Nobody_Reads_Its_Output_Any_More)
{
    Phone_Program program({});
    Line_Peer peer(program.Line());
    program.Close_Output();
    Send(peer, "19", Hello);
    EXPECT_EQ(program.Exit_Status(), 0);
}

TEST(Corvane_Phone_Program, A_Link_Leads_To_Its_Line_And_Goes_With_It)
{
    const Own_Folder folder;
    const std::string link = (folder.m_path / "modem").string();
    {
        Phone_Program program({"--link", link});
        const std::string path = program.Line();
        EXPECT_EQ(fs::read_symlink(link), path);
        program.Signal(SIGTERM);
        EXPECT_EQ(program.Exit_Status(), 0);
    }
    EXPECT_FALSE(fs::exists(fs::symlink_status(link)));
}

class Left_Line : public testing::TestWithParam<bool>
{
};

INSTANTIATE_TEST_SUITE_P(, Left_Line, testing::Bool(),
                         [](const auto& which) { return which.param ? "Ordinary" : "As_It_Is"; });

// Closing without giving back exclusive use is what becomes of a program that is killed.
TEST_P(Left_Line, A_Link_Leads_To_A_New_Line_When_The_Old_One_Was_Left_In_Exclusive_Use)
{
    std::thread([is_ordinary = GetParam()] {
        if (is_ordinary)
            Be_Kept_Out_Like_An_Ordinary_Account();
        const Own_Folder folder;
        const std::string link = (folder.m_path / "modem").string();
        Phone_Program program({"--link", link});
        const std::string path = program.Line();
        EXPECT_EQ(Line_Peer(link).Asks("ATE0"), "ATE0\r" + Ok);
        {
            Line_Peer peer(link);
            EXPECT_EQ(peer.Asks("AT"), Ok);
            EXPECT_EQ(fs::read_symlink(link), path) << "the first gave it back";
            EXPECT_EQ(::ioctl(peer.Number(), TIOCEXCL), 0);
            EXPECT_FALSE(is_ordinary && Line_Peer(link).Is_Open());
        }
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        std::error_code none_yet;
        for (fs::path now = path; now.empty() || now == path; now = fs::read_symlink(link, none_yet)) {
            ASSERT_LT(std::chrono::steady_clock::now(), end) << "the old line is still the phone's";
            std::this_thread::yield();
        }
        Line_Peer next(link);
        ASSERT_TRUE(next.Is_Open());
        EXPECT_EQ(Send_Hello(next), With_Ok("+CMGS: 0"));
        EXPECT_EQ(Read_Json_Object(program.Line()).at("event").m_text, "part");
    }).join();
}

TEST(Corvane_Phone_Program, Moods_And_Rows_Are_Options)
{
    Phone_Program program(
        {"--no-echo", "--signal", "7", "--answer", "AT+CMGF=?", "\\r\\nOK\\r\\n", "--hang-up-at", "1"});
    Line_Peer peer(program.Line());
    EXPECT_EQ(peer.Asks("AT+CSQ"), With_Ok("+CSQ: 7,99"));
    EXPECT_EQ(peer.Asks("AT+CMGF=?"), Ok);
    peer.Says("AT+CMGS=19\r");
    EXPECT_TRUE(peer.Is_Cut_Off());
    EXPECT_EQ(program.Line(), "{\"event\":\"hang-up\"}");
    program.Signal(SIGHUP);
    EXPECT_EQ(program.Exit_Status(), 0);
}

TEST(Corvane_Phone_Program, An_Unknown_Option_And_A_Link_That_Cannot_Be_Made_Are_Told_In_One_Line)
{
    const struct
    {
        std::vector<std::string> arguments;
        const char* error;
        int status;
    } rows[] = {
        {{"--loud"}, "corvane-phone: unknown option: --loud (--help shows the options)", 2},
        {{"--link", "/proc/none/modem"}, "corvane-phone: /proc/none/modem: No such file or directory", 1},
    };
    for (const auto& row : rows) {
        Phone_Program program(row.arguments);
        EXPECT_EQ(program.Error_Line(), row.error);
        EXPECT_EQ(program.Error_Line(), "");
        EXPECT_EQ(program.Rest(), "");
        EXPECT_EQ(program.Exit_Status(), row.status);
    }
}

TEST(Corvane_Phone_Program, Help_And_Version_Are_Shown)
{
    Phone_Program help({"--help"});
    EXPECT_EQ(help.Line(), "Usage: corvane-phone [option]...");
    Phone_Program version({"--version"});
    EXPECT_THAT(version.Line(),
                MatchesRegex("corvane-phone [0-9]+\\.[0-9]+\\.[0-9]+ \\(commit ([0-9a-f]+|unknown)\\)"));
    EXPECT_EQ(version.Exit_Status(), 0);
}
