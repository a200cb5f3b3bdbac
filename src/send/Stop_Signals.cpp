#include "send/Stop_Signals.h"

#include "platform/Waiting.h"
#include "send/Trouble.h"

#include <csignal>
#include <sys/signalfd.h>
#include <system_error>
#include <unistd.h>

namespace {

sigset_t The_Signals()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    return signals;
}

} // namespace

void Stop_Signals::Keep_From_Threads()
{
    const sigset_t signals = The_Signals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    std::signal(SIGPIPE, SIG_IGN); // who reads the lines may go, and the messages are sent all the same
}

Stop_Signals::Stop_Signals(Stop_Flag& stop) : m_stop(stop)
{
    const sigset_t signals = The_Signals();
    m_signals = Descriptor(signalfd(-1, &signals, SFD_CLOEXEC));
    try {
        m_thread = std::thread([this] { Serve(); });
    } catch (const std::system_error&) { // rather a program that a signal kills than one that none ends
        pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
    }
}

Stop_Signals::~Stop_Signals()
{
    if (!m_thread.joinable())
        return;
    m_is_ending = true;
    pthread_kill(m_thread.native_handle(), SIGTERM); // NOLINT: the thread reads it, and ends by itself
    m_thread.join();
}

void Stop_Signals::Sending_Begins()
{
    m_is_sending = true;
    if (Is_Asked())
        m_stop = 1;
}

void Stop_Signals::Serve()
{
    signalfd_siginfo signal{};
    while (Uninterrupted([&] { return read(m_signals.Number(), &signal, sizeof signal); }) == sizeof signal) {
        if (m_is_ending)
            return;
        Take_One();
    }
}

void Stop_Signals::Take_One()
{
    const int count = ++m_count;
    if (count > 2)
        _exit(Exit_Status::Stopped);
    m_stop = 1;
    if (!m_is_sending || count == 2)
        Begin_Program_Exit();
}
