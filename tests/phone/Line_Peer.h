// The other end of a phone's line, as a program has it: opened and made raw. A value in a test; closes with it.
#pragma once

#include "phone/Descriptor.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

class Line_Peer
{
public:
    explicit Line_Peer(const std::string& path);

    bool Is_Open() const { return m_line.Is_Open(); }
    int Number() const { return m_line.Number(); }

    // True when the line took all of it at once.
    bool Says(std::string_view bytes);

    // Everything heard until this text was among it; what came until now when it does not come within the time.
    std::string Hears(std::string_view until, std::chrono::milliseconds time = std::chrono::seconds(10));

    // Says a line with CR and hears up to the end of its "OK" or error.
    std::string Asks(const std::string& command);

    bool Hears_Nothing(std::chrono::milliseconds time = std::chrono::milliseconds(40));

    // True once a read ends in 0 bytes or EIO.
    bool Is_Cut_Off(std::chrono::milliseconds time = std::chrono::seconds(10));

private:
    std::string Hears_Until(const std::function<bool(const std::string&)>& is_over, std::chrono::milliseconds time);

    // One read; nothing when the line was cut, an empty text when nothing came in time.
    std::optional<std::string> Read(std::chrono::milliseconds time);

    Handset::Descriptor m_line;
};
