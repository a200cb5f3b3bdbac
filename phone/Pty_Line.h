#pragma once

#include "phone/Descriptor.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace Handset {

/// The phone's end of a pseudo-terminal. Never blocks. It holds no descriptor of the other end, so that exclusive use,
/// hang-up and the last close work as on a real device. Owned by Virtual_Phone, used under its lock.
class Pty_Line
{
public:
    /// Throws std::system_error when the system gives no pseudo-terminal.
    void Open();

    /// The cable is pulled: the other end reads 0 bytes or EIO from now on.
    void Close();

    bool Is_Open() const { return m_master.Is_Open(); }
    int Number() const { return m_master.Number(); }
    const std::string& Path() const { return m_path; } // empty while closed

    bool Somebody_Has_It_Open() const;

    /// What has come, at most 4096 bytes; empty when there is nothing or the other end is closed.
    std::string Read();

    /// How many bytes went out; 0 when there is no room.
    std::size_t Write(std::string_view bytes);

    /// Whether a user who is gone, as by being killed, has left the mark of exclusive use, which keeps everybody but
    /// root out. A real port loses it with its last user; a pseudo-terminal only when it is opened anew.
    bool Is_Kept_By_Nobody() const;

    /// How many bytes the other end has not read; 0 when nobody may look, as under exclusive use.
    int Not_Read_Yet() const;

    /// Drops what the other end has not read, as a serial driver does at the last close; a pseudo-terminal would keep
    /// it for the next opener.
    void Drop_What_Was_Not_Read() const;

    /// While stopped the other end can write nothing, as under flow control. When another holds the device for itself
    /// and the phone may not reach it, bytes wait in the system's buffer instead. Returns whether the line is as asked.
    bool Stop_The_Other_End(bool stopped);

private:
    Descriptor m_master;
    std::string m_path;
    bool m_is_stopped = false;
};

} // namespace Handset
