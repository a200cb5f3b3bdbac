#pragma once

#include "app/shared/Number_Index.h"

#include <QSharedData>
#include <QSharedDataPointer>
#include <QString>
#include <deque>

// The excluded numbers of all applied exclusion lists, in the order they were read, repeats included. Never written
// back. A copy costs nothing until one of the two changes. Owned by the main window; belongs to the interface thread.
class Exclusion_Set
{
public:
    Exclusion_Set();

    int Count() const;
    /// The number at an index from 0 to Count() - 1.
    const QString& At(int index) const;
    void Append(const QString& number);
    void Clear();

    /// How many entries are exactly this number. Constant time.
    int Count_Of(const QString& number) const;

private:
    struct Body : QSharedData
    {
        std::deque<QString> numbers;
        Number_Index index;
    };

    QSharedDataPointer<Body> m_body;
};
