#pragma once

#include <atomic>
#include <cstddef>
#include <string>

/// The fate of the calls that change files and of what is written to the phone, counted from 1 over all threads.
struct Doom
{
    enum class Way : char
    {
        None = 'n',
        Kill_Before = 'b', ///< the process is killed when it makes the call
        Kill_After = 'a',  ///< the process is killed when the call is done, before it knows
        Kill_Within = 'w', ///< like that, but a write that fills a page of the file is done up to the page's end only
        Fail_One = 'o',    ///< the call fails, for the reason given; calls on the phone's line never do
        Fail_From = 'f',   ///< it and all that follow it fail, as far as they can for this reason
        Fill_Up = 'u',     ///< it is a write that finds room for half of it; from then on the disk is full
    };
    Way way = Way::None;
    int at = 0;
    int error = 0;
    bool counts_reads = false; ///< what only reads files counts as well
};

/// What a process leaves behind for whoever watches it, in memory that both see. Texts that do not fit are cut off.
struct Last_Words
{
    template <std::size_t size>
    struct Text
    {
        std::atomic<std::size_t> length;
        char text[size];

        void Add(const std::string& more)
        {
            const std::size_t at = length.load();
            const std::size_t fitting = more.copy(text + at, size - at);
            length.store(at + fitting);
        }
        std::string All() const { return std::string(text, length.load()); }
    };

    std::atomic<int> calls; ///< how many were counted
    Text<1 << 18> made;    ///< a line for each: its name, its file's name, its bytes; "ok" once it is done, or "failed"
    Text<1 << 22> journal; ///< what the process says of itself
};

/// The fate of this process, from now on: for everything below the folder and for the phone's line at the path.
/// The program is linked so that its own calls and the toolkit's come by here first; those inside of the C library do
/// not, which are the system log's.
void Begin_Doom(const Doom& doom, const std::string& folder, const std::string& line, Last_Words& last_words);
/// No call counts or fails any longer.
void End_Doom();
