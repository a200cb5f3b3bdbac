#pragma once

#include "device/Serial_Calls.h"

#include <QByteArray>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <string>

class MFCSMS;

// A serial line without a device: what is written goes to whoever plays the peer, what the peer says can be read at
// once, and nothing is ever waited for. Made for one run of a target; its thread only.
class Scripted_Line : public Serial_Calls
{
public:
    /// Hears every write; says its answer through Say, Hang_Up and Break.
    using Peer = std::function<void(Scripted_Line& line, const std::string& heard)>;

    explicit Scripted_Line(Peer peer) : m_peer(std::move(peer)) {}

    void Say(const std::string& bytes); ///< one read gives no more than these
    void Hang_Up() { m_waiting.emplace_back(); }
    void Break() { m_is_broken = true; }

    /// Gives the session a port on this line, open.
    void Put_Under(MFCSMS& session);

    int Open(const char* path, int flags) override;
    int Close(int descriptor) override;
    int Get_Status_Flags(int descriptor) override;
    int Set_Status_Flags(int descriptor, int flags) override;
    int Lock_Exclusively(int descriptor) override;
    int Control(int descriptor, unsigned long request, void* argument) override;
    int Get_Attributes(int descriptor, termios& attributes) override;
    int Set_Attributes(int descriptor, const termios& attributes) override;
    int Flush(int descriptor, int queue) override;
    int Send_Break(int descriptor) override;
    ssize_t Read(int descriptor, void* buffer, std::size_t size) override;
    ssize_t Write(int descriptor, const void* bytes, std::size_t size) override;
    Line_Event Wait(int descriptor, short events, double seconds, int wake_descriptor) override;

private:
    Peer m_peer;
    std::deque<std::string> m_waiting; // an empty one is the line's end
    bool m_is_broken = false;
};
