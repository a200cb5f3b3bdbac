#pragma once

#include "list/Indexed_Numbers.h"

#include <QSharedData>
#include <QSharedDataPointer>
#include <QString>

// The excluded numbers of all applied exclusion lists, in the order they were read, repeats included. Never written
// back. A copy costs nothing until one of the two changes. Owned by the main window; belongs to the interface thread.
class Exclusion_Set
{
public:
    Exclusion_Set();

    int Count() const;
    /// The number at an index from 0 to Count() - 1.
    QString At(int index) const;
    void Append(const QString& number);
    void Clear();

    /// How many entries are exactly this number. Constant time.
    int Count_Of(const QString& number) const;
    /// The same for a number of digits alone.
    int Count_Of(const Packed_Number& number) const;
    /// Tells of a number that Count_Of will soon be asked for; see Indexed_Numbers.
    void Fetch(const Packed_Number& number) const { m_body->numbers.Fetch(number); }

private:
    struct Body : QSharedData
    {
        Indexed_Numbers numbers;
    };

    QSharedDataPointer<Body> m_body;
};
