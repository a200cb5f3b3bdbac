#pragma once

#include <cerrno>
#include <unistd.h>
#include <utility>

/// Repeats a system call while a signal interrupts it, and returns its answer.
template <typename Call>
auto Uninterrupted(Call call)
{
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

// A file descriptor with one owner, closed when it goes out of scope.
class Descriptor
{
public:
    Descriptor() = default;
    /// Takes over what open() or the like returned; -1 stands for none.
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Descriptor() { Close(); }

    bool Is_Open() const { return m_number >= 0; }
    int Number() const { return m_number; }

    /// Returns false when the system reports a failure. Never tried twice: whatever close() says, the number may
    /// already belong to another file.
    bool Close()
    {
        const int number = std::exchange(m_number, -1);
        return number < 0 || close(number) == 0;
    }

private:
    int m_number = -1;
};
