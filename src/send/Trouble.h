#pragma once

#include <QString>

/// What scripts go by.
namespace Exit_Status {
inline constexpr int Done = 0;
inline constexpr int Not_All_Sent = 1;
inline constexpr int Unusable_Input = 2; ///< or arguments; nothing was sent
inline constexpr int No_Device = 3;      ///< that can send; nothing was sent
inline constexpr int Stopped = 4;
} // namespace Exit_Status

/// Why the program cannot do what it was asked to. A value; none as long as what is empty.
struct Trouble
{
    QString what;
    QString why;
    int status = Exit_Status::Unusable_Input;

    explicit operator bool() const { return !what.isEmpty(); }
    /// "corvane-send: what (why)", without a line end.
    QString Line() const;
};
