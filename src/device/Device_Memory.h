#pragma once

#include "device/At_Conversation.h"

#include <optional>

/// The device's memory to read and delete in (the first of +CPMS; 3GPP TS 27.005, 3.2.2), chosen for a while: the end
/// of this object puts the device's own choice back. Belongs to one who talks to a device; its thread.
class Device_Memory
{
public:
    explicit Device_Memory(At_Conversation& conversation);
    ~Device_Memory();
    Device_Memory(const Device_Memory&) = delete;
    Device_Memory& operator=(const Device_Memory&) = delete;

    /// How many places the memory has, 0 where the device does not say; nothing where it has no such memory, or does
    /// not say which one it would have to be given back.
    std::optional<int> Choose(const QByteArray& memory);

private:
    At_Conversation& m_conversation;
    QByteArray m_own; // in quotes; empty where the device does not say
    QByteArray m_chosen;
};
