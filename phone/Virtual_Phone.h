#pragma once

#include "handset/Handset_Message.h"
#include "phone/Lines.h"
#include "phone/Phone_Moods.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Handset {
class Phone_Works;
}

/// A GSM phone on a pseudo-terminal, after 3GPP TS 27.005 and 27.007: the peer of the tests and the demo's handset.
/// Starts at once; its own worker thread serves the line and is joined by the destructor. Any thread.
class Virtual_Phone
{
public:
    /// Throws std::system_error when the system gives no pseudo-terminal.
    explicit Virtual_Phone(Phone_Moods moods = {});
    ~Virtual_Phone();
    Virtual_Phone(const Virtual_Phone&) = delete;
    Virtual_Phone& operator=(const Virtual_Phone&) = delete;

    /// The path to open, for example /dev/pts/7; empty while the phone is hung up. The line comes up as any terminal
    /// does, with echo and line editing; the opener makes it raw.
    std::string Path() const;

    /// From now on this command line gets exactly these bytes (besides the echo), and nothing else happens: an
    /// overridden AT+CMGS=... leads to no prompt. Blanks and case outside quotes do not matter. A command that ends in
    /// "*" stands for every command that begins so; an exact row wins over it.
    void Will_Answer(std::string command, std::string answer);

    /// Unsolicited bytes, as given, now. Lost when nobody has the line open, as on a cable.
    void Says(std::string bytes);

    /// Command lines heard, without CR and LF, in order; blank lines and message bodies are not among them.
    std::vector<std::string> Heard() const;

    /// Every byte that came, in order, bodies and line ends too (the newest megabytes of them).
    std::string Heard_Bytes() const;

    /// True when nothing was heard since the last Heard() or Heard_Bytes() and nothing comes for this long.
    bool Is_Silent(int milliseconds = 50) const;

    /// How many bytes have gone out, counting what falls due within this time; answers due later are not waited for.
    std::uint64_t Said(std::chrono::milliseconds within = {}) const;

    /// The same for the phone of this process whose line it is; nothing when there is none. Serves the line on the
    /// caller's thread, so that a writer does not depend on the phone's thread being scheduled.
    static std::optional<std::uint64_t> Said_On(const std::string& path, std::chrono::milliseconds within = {});

    /// Whether anybody has the line open.
    bool Somebody_Is_There() const;

    /// Clears what was heard, the inbox, the parts and half-received messages, and counts messages from 1 again.
    void Forget();

    std::vector<Handset_Part> Parts() const;
    std::vector<Handset_Message> Inbox() const;

    /// True as soon as the inbox holds n messages, false when the time is over.
    bool Wait_For_Messages(std::size_t n, std::chrono::milliseconds time) const;

    /// Pulls the cable: the other end reads 0 bytes or EIO. Also done by the moods that hang up.
    void Hang_Up();
    bool Is_Hung_Up() const;

    /// Opens a new pseudo-terminal, like a phone plugged in again, and returns its path. Settings made by commands are
    /// reset.
    std::string Plug_In_Again();

    void Set_Moods(Phone_Moods moods);
    Phone_Moods Moods() const;

    /// Called on the phone's thread without its lock. Any may be empty.
    struct Listeners
    {
        std::function<void(const Handset_Part&)> m_on_part;
        std::function<void(const Handset_Message&)> m_on_message;
        std::function<void()> m_on_hang_up; ///< a mood hung up
        /// Gets the path of a new line. Who listens to it gets one when a user is gone without giving back exclusive
        /// use, as when it was killed: that would keep others out of the old line for good.
        std::function<void(const std::string&)> m_on_new_line = {};
    };
    void Set_Listeners(Listeners listeners);

private:
    std::shared_ptr<Handset::Phone_Works> m_works;
};
