#pragma once

#include <unistd.h>

#include <utility>

namespace Handset {

/// Sole owner of a file descriptor.
class Descriptor
{
public:
    Descriptor() = default;
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Descriptor() { Close(); }

    void Close()
    {
        if (m_number >= 0)
            ::close(std::exchange(m_number, -1));
    }
    int Number() const { return m_number; }
    bool Is_Open() const { return m_number >= 0; }

private:
    int m_number = -1;
};

} // namespace Handset
