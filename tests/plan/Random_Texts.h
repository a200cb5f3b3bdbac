#pragma once

#include <QString>
#include <random>

// Texts as nobody would write them, to hold a preview against what arrives: all alphabets, and what may stand at a
// part's end. The same ones in every run.
class Random_Texts
{
public:
    /// Of 1 to 1600 UTF-16 units.
    QString Next();

private:
    int Below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_chance); }
    int Length();
    QString Character(int kind);

    std::mt19937 m_chance{20260722}; // NOLINT(cert-msc51-cpp): the same texts each time
};
