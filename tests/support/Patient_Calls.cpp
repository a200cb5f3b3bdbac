#include "support/Patient_Calls.h"

#include "phone/Virtual_Phone.h"
#include "platform/Waiting.h"
#include "support/Own_Seconds.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <sys/ioctl.h>
#include <thread>
#include <unistd.h>
#include <utility>

using namespace std::chrono_literals;

namespace {

// Empty when it is no terminal, or one whose other end has gone.
std::string Path_Of(int descriptor)
{
    std::array<char, 64> path{};
    return ttyname_r(descriptor, path.data(), path.size()) == 0 ? path.data() : std::string();
}

// As long as the shortest read whose answer is judged, so that what comes too late still does.
std::chrono::milliseconds A_Read()
{
    constexpr double longest = 0.1;
    return std::chrono::milliseconds(static_cast<int>(std::min(Paced_Read_Timeout(1), longest) * 1000));
}

int Not_Read_Yet(int descriptor)
{
    int waiting = 0;
    ioctl(descriptor, FIONREAD, &waiting);
    return waiting;
}

constexpr int Full_Line = 4095; // as much as a terminal keeps for its reader

} // namespace

ssize_t Patient_Calls::Read(int descriptor, void* buffer, size_t size)
{
    const auto taken = Serial_Calls::Read(descriptor, buffer, size);
    const std::lock_guard guard(m_lock);
    m_taken[descriptor] += taken > 0 ? static_cast<long>(taken) : 0;
    return taken;
}

ssize_t Patient_Calls::Write(int descriptor, const void* bytes, size_t size)
{
    const std::string path = Path_Of(descriptor);
    const auto said_before = Virtual_Phone::Said_On(path);
    const long on_the_way = said_before ? Arrived(descriptor) - static_cast<long>(*said_before) : 0;
    const auto written = Serial_Calls::Write(descriptor, bytes, size);
    const int error = errno;
    if (said_before && written > 0) {
        const double begin = Own_Seconds();
        Wait_For_What_Is_Said(descriptor, path, on_the_way);
        const std::lock_guard guard(m_lock);
        m_patience += Own_Seconds() - begin;
    }
    if (const auto look = The_Look())
        look();
    errno = error;
    return written;
}

double Patient_Calls::Patience()
{
    const std::lock_guard guard(m_lock);
    return m_patience;
}

void Patient_Calls::Look_After_Each_Write(std::function<void()> look)
{
    const std::lock_guard guard(m_lock);
    m_look = std::move(look);
}

std::function<void()> Patient_Calls::The_Look()
{
    const std::lock_guard guard(m_lock);
    return m_look;
}

// What has come to this end of the line, read or not yet.
long Patient_Calls::Arrived(int descriptor)
{
    const std::lock_guard guard(m_lock);
    return m_taken[descriptor] + Not_Read_Yet(descriptor);
}

// What goes out on one end of a pseudo-terminal is on its way for a moment before it can be read at the other.
void Patient_Calls::Wait_For_What_Is_Said(int descriptor, const std::string& path, long on_the_way)
{
    const double end = Now_Seconds() + 10;
    const auto said = Virtual_Phone::Said_On(path, A_Read());
    while (said && Arrived(descriptor) < static_cast<long>(*said) + on_the_way && Now_Seconds() < end &&
           Not_Read_Yet(descriptor) < Full_Line && Virtual_Phone::Said_On(path))
        std::this_thread::sleep_for(50us);
}

Patient_Calls& The_Patient_Calls()
{
    static Patient_Calls calls;
    return calls;
}

// The linker puts this in the place of Real_Serial_Calls().
extern "C" Serial_Calls& __wrap__Z17Real_Serial_Callsv() // NOLINT: the linker's name
{
    return The_Patient_Calls();
}
