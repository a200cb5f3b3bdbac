#pragma once

#include <QString>

// The numbers that the number editing dialog changes one of, as it sees them. Implemented by the exclusion wizard;
// interface thread.
class Edited_Numbers
{
public:
    virtual ~Edited_Numbers() = default;

    /// Whether some entry is exactly this number.
    virtual bool Skip_Duplicate_Number(const QString& number) const = 0;
    /// Puts a number in the place of the one at a row and shows it; a row outside the list changes nothing.
    virtual void Replace_Number(int row, const QString& number) = 0;
};
