#pragma once

#include <QByteArray>

// What submission writes, expects and logs in both modes.

inline constexpr char Expect_Ok[] = "\r\nOK\r\n";
inline constexpr char Expect_Prompt[] = ">\r\n";
inline constexpr char Terminator[] = "\x1A\r\n"; ///< ends a message's body (3GPP TS 27.005, 3.1)
inline constexpr char Cancel[] = "\x1B";         ///< cancels one
inline constexpr double Seconds_Between_Parts = 2;

/// Logs which part of how many is being sent.
void Log_Part(int part, int parts);
