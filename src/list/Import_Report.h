#pragma once

#include "list/Number_Judge.h"
#include "list/Packed_Number.h"

#include <QList>
#include <QString>
#include <QStringView>
#include <array>

// What became of the lines that numbers were taken from: how many numbers were added, how many lines were not used, and
// why. The first of the latter are kept as they stood, as many as a person may want to look at. A line of white space
// alone counts for nothing. Filled line by line by whoever takes the numbers; copying it costs nothing. Follows its
// owner's thread.
class Import_Report
{
public:
    static constexpr int Most_Noted = 10'000; ///< lines that are kept
    static constexpr int Longest_Noted = 100; ///< characters of such a line

    struct Unused_Line
    {
        int line = 0; ///< counted from 1, blank ones as well
        Number_Verdict reason = Number_Verdict::Not_Valid;
        QString text; ///< without white space at its ends, and cut
        bool is_cut = false;
    };

    enum class End
    {
        Complete,
        Unread, ///< there was nothing to take lines from
        Early   ///< by an exception; what was added until then stays
    };

    /// Judges the number of the next line, and notes the line if it is not to be used. Whoever adds the number says so.
    bool Accepts(QStringView line, const Packed_Number& number, const Number_Terms& terms)
    {
        ++m_lines;
        const auto verdict = number.Is_Empty() ? Number_Verdict::Not_Valid : Judge_Valid_Number(number, terms);
        if (verdict == Number_Verdict::Accepted)
            return true;
        Note_Unused(line, verdict);
        return false;
    }
    void Count_Added() { ++m_added; }
    void Set_End(End end) { m_end = end; }

    int Added() const { return m_added; }
    /// How many lines were not used, for one reason or for any.
    int Unused(Number_Verdict reason) const { return m_unused[static_cast<std::size_t>(reason)]; }
    int Unused() const;
    /// The first of these, in their order.
    const QList<Unused_Line>& Noted() const { return m_noted; }
    End Ended() const { return m_end; }

private:
    void Note_Unused(QStringView line, Number_Verdict reason);

    int m_lines = 0;
    int m_added = 0;
    std::array<int, 4> m_unused{}; // for each verdict
    QList<Unused_Line> m_noted;
    End m_end = End::Complete;
};
