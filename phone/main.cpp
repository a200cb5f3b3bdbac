// corvane-phone: a virtual phone as a program of its own.

#include "phone/Descriptor.h"
#include "phone/Json_Line.h"
#include "phone/Path_Link.h"
#include "phone/Phone_Options.h"
#include "phone/Virtual_Phone.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/signalfd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <mutex>
#include <utility>

namespace {

using Handset::Descriptor;

// Standard output, written by several threads; later lines wait for the first. Ends the program when its output has
// nowhere to go.
class Output
{
public:
    void Print_First(const std::string& line)
    {
        const std::lock_guard guard(m_lock);
        Write(line + "\n" + std::exchange(m_waiting, {}));
        m_has_begun = true;
    }

    void Print(const std::string& line)
    {
        const std::lock_guard guard(m_lock);
        if (m_has_begun)
            Write(line + "\n");
        else
            m_waiting += line + "\n";
    }

    int Closed() const { return m_closed.Number(); }

private:
    void Write(const std::string& text)
    {
        if (std::fputs(text.c_str(), stdout) < 0 || std::fflush(stdout) != 0) {
            const std::uint64_t one = 1;
            [[maybe_unused]] const auto written = ::write(m_closed.Number(), &one, sizeof one);
        }
    }

    std::mutex m_lock;
    std::string m_waiting;
    bool m_has_begun = false;
    Descriptor m_closed{::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)};
};

// Makes terminating signals readable; blocks them before any thread starts, so that none takes them.
Descriptor Ending_Signals()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&signals, number);
    std::signal(SIGPIPE, SIG_IGN);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return Descriptor(::signalfd(-1, &signals, SFD_CLOEXEC));
}

bool Standard_Input_Has_Ended()
{
    std::array<char, 4096> passed_over;
    const ssize_t count = ::read(STDIN_FILENO, passed_over.data(), passed_over.size());
    return count == 0 || (count < 0 && errno != EINTR && errno != EAGAIN);
}

void Wait_For_The_End(const Descriptor& signals, const Output& output, bool until_stdin_closes)
{
    std::array<pollfd, 3> watched = {{{signals.Number(), POLLIN, 0},
                                      {output.Closed(), POLLIN, 0},
                                      {until_stdin_closes ? STDIN_FILENO : -1, POLLIN, 0}}};
    for (;;) {
        if (::poll(watched.data(), watched.size(), -1) < 0)
            continue;
        if (watched[0].revents != 0 || watched[1].revents != 0)
            return;
        if (watched[2].revents != 0 && Standard_Input_Has_Ended())
            return;
    }
}

int Run(const Handset::Phone_Options& options)
{
    const Descriptor signals = Ending_Signals();
    Output output;
    Handset::Path_Link link; // outlives the phone, whose thread renews it
    Virtual_Phone phone(options.m_moods);
    for (const auto& [command, answer] : options.m_answers)
        phone.Will_Answer(command, answer);
    Virtual_Phone::Listeners listeners{
        .m_on_part = [&](const Handset_Part& part) { output.Print(Handset::Json_Line(part)); },
        .m_on_message = [&](const Handset_Message& message) { output.Print(Handset::Json_Line(message)); },
        .m_on_hang_up = [&] { output.Print("{\"event\":\"hang-up\"}"); }};
    if (!options.m_link.empty()) {
        if (const std::string error = link.Make(options.m_link, phone.Path()); !error.empty()) {
            std::fprintf(stderr, "corvane-phone: %s\n", error.c_str());
            return 1;
        }
        listeners.m_on_new_line = [&](const std::string& path) { link.Make(options.m_link, path); };
    }
    phone.Set_Listeners(std::move(listeners));
    output.Print_First(phone.Path());
    Wait_For_The_End(signals, output, options.m_until_stdin_closes);
    return 0;
}

} // namespace

int main(int count, char** arguments)
{
    const char* pace = std::getenv("CORVANE_PACE");
    const auto options = Handset::Read_Options({arguments + 1, arguments + count}, pace ? pace : "");
    if (!options.m_error.empty()) {
        std::fprintf(stderr, "corvane-phone: %s (--help shows the options)\n", options.m_error.c_str());
        return 2;
    }
    if (options.m_help || options.m_version) {
        constexpr const char* Version = "corvane-phone " CORVANE_VERSION " (commit " CORVANE_COMMIT ")\n";
        std::fputs(options.m_help ? Handset::Help_Text().c_str() : Version, stdout);
        return 0;
    }
    try {
        return Run(options);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "corvane-phone: %s\n", error.what());
        return 1;
    }
}
