#pragma once

/// While it lives the system refuses this program a thread: the one that is asked for as number first, counted from 1,
/// and, where it is told so, every one after it. One at a time; any thread may ask.
class Refused_Threads
{
public:
    enum class And_Later
    {
        Are_Given,
        Are_Refused
    };

    explicit Refused_Threads(int first, And_Later later = And_Later::Are_Given);
    ~Refused_Threads();
    Refused_Threads(const Refused_Threads&) = delete;
    Refused_Threads& operator=(const Refused_Threads&) = delete;

    /// How many threads were asked for so far.
    int Asked_For() const;
};

/// The threads that this program is given while it lives do nothing until it ends, or for 20 seconds: what they are to
/// do is not over before anybody has looked. One at a time; any thread may ask.
class Late_Threads
{
public:
    Late_Threads();
    ~Late_Threads();
    Late_Threads(const Late_Threads&) = delete;
    Late_Threads& operator=(const Late_Threads&) = delete;
};
