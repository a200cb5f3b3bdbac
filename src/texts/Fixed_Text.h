#pragma once

#include <QString>

// A text that the user reads, kept in its original English. Converts to a QString on its own where one is needed, in
// the language that the user reads. A value that lives as long as the program; any thread.
class Fixed_Text
{
public:
    /// Takes a UTF-8 literal, and keeps no copy of it.
    constexpr explicit Fixed_Text(const char* english) : m_english(english) {}

    operator QString() const; // NOLINT(google-explicit-constructor): it stands for a text

private:
    const char* m_english;
};
