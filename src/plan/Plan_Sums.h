#pragma once

#include "plan/Plan_Manner.h"
#include "plan/Row_Verdict.h"

#include <array>
#include <vector>

/// A character for which texts are written in Unicode.
struct Unicode_Cause
{
    char32_t character = 0;
    int rows = 0;

    bool operator==(const Unicode_Cause&) const = default;
};

/// A plan in figures. What is said about texts and parts is about the rows that are to be sent.
struct Plan_Sums
{
    static constexpr std::size_t Most_Causes = 20;

    int recipients = 0;
    int send = 0;
    qint64 parts = 0;
    int unicode = 0; ///< rows
    std::array<int, Row_Verdicts> by_verdict{};
    qint64 seconds = 0;                ///< at pace 1, at a guess
    std::vector<Unicode_Cause> causes; ///< the most frequent first
    int shortest_parts = 0;
    int median_parts = 0;
    int longest_parts = 0;
    int longest_row = -1; ///< the first of the most parts

    int Of(Row_Verdict verdict) const { return by_verdict[static_cast<std::size_t>(verdict)]; }
};

// Adds up the rows of a plan, in their order.
class Plan_Counter
{
public:
    void Add(int row, Row_Verdict verdict, int parts, bool is_unicode);
    /// Everything but the causes.
    Plan_Sums Sums(const Plan_Manner& manner) const;

private:
    Plan_Sums m_sums;
    std::vector<int> m_rows_by_parts;
};
