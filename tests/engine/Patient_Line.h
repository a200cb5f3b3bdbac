#pragma once

#include "device/Serial_Calls.h"
#include "phone/Virtual_Phone.h"

#include <cstdint>
#include <functional>

/// How many bytes a phone has heard and said.
struct Line_Counts
{
    std::uint64_t heard = 0;
    std::uint64_t said = 0;
};

/// Serves the phone's line, and waits for what it says a moment later.
Line_Counts Counts_Of(const Virtual_Phone& phone);

// The system's calls on a phone's line, where a time-out means that the phone has nothing to say: a wait ends in vain
// only when all that was written has been heard, and all that was said to it has been read. So at a fast pace no answer
// is lost to a busy machine. For one line, and one thread.
class Patient_Line : public Serial_Calls
{
public:
    /// Asks for the counts of the phone at the other end.
    explicit Patient_Line(std::function<Line_Counts()> ask) : m_ask(std::move(ask)) {}

    int Open(const char* path, int flags) override;
    ssize_t Read(int descriptor, void* buffer, size_t size) override;
    ssize_t Write(int descriptor, const void* bytes, size_t size) override;
    Line_Event Wait(int descriptor, short events, double seconds, int wake_descriptor) override;

protected:
    /// Since the line was opened.
    std::uint64_t Bytes_Read() const { return m_now.said; }
    std::uint64_t Bytes_Written() const { return m_now.heard; }

private:
    bool Is_More_To_Come();

    std::function<Line_Counts()> m_ask;
    Line_Counts m_begin; // when it was opened
    Line_Counts m_now;   // what has been written and read at this end since
};
