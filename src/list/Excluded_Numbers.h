#pragma once

#include "list/Indexed_Numbers.h"

#include <QSharedData>
#include <QSharedDataPointer>
#include <QString>
#include <vector>

// The numbers of the exclusion list that is being created or edited, in their order. Made for a million of them: a copy
// costs nothing until one of the two changes, which is how a worker gets its own. Owned by the exclusion wizard;
// belongs to the interface thread.
class Excluded_Numbers
{
public:
    Excluded_Numbers();

    int Count() const;
    /// The number at an index from 0 to Count() - 1.
    QString At(int index) const;
    /// Whether some entry is exactly this number. Constant time.
    bool Contains(const QString& number) const;

    /// Takes a number in at the end, one that is there already too.
    void Append(const QString& number);
    /// Puts another number in the place of the one at an index from 0 to Count() - 1.
    void Replace(int index, const QString& number);
    /// Removes the rows of a sorted list of distinct indexes in one pass.
    void Remove_Rows(const std::vector<int>& rows);

private:
    struct Body : QSharedData
    {
        Indexed_Numbers numbers;
    };

    QSharedDataPointer<Body> m_body;
};
