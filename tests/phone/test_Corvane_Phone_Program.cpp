// corvane-phone as a program: started as a child, its output read, ended by signal or by its input.
#include "phone/Phone_Talk.h"
#include "support/Strict_Json.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <string>
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
    std::string pattern = (fs::temp_directory_path() / "phone-XXXXXX").string();
    const fs::path folder = ::mkdtemp(pattern.data());
    const std::string link = (folder / "modem").string();
    {
        Phone_Program program({"--link", link});
        const std::string path = program.Line();
        EXPECT_EQ(fs::read_symlink(link), path);
        program.Signal(SIGTERM);
        EXPECT_EQ(program.Exit_Status(), 0);
    }
    EXPECT_FALSE(fs::exists(fs::symlink_status(link)));
    fs::remove_all(folder);
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
