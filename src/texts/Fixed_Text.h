#pragma once

#include <QString>

// A text that the user reads, as it was written in English. It turns into a QString by itself where one is asked for.
// A value that lives as long as the program; any thread.
class Fixed_Text
{
public:
    /// Takes a literal of UTF-8, and keeps no copy of it.
    constexpr explicit Fixed_Text(const char* english) : m_english(english) {}

    operator QString() const; // NOLINT(google-explicit-constructor): it stands for a text

private:
    const char* m_english;
};
