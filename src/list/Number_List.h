#pragma once

#include "list/Indexed_Numbers.h"

#include <QSharedData>
#include <QSharedDataPointer>

// A list of numbers in order, repeats included, that finds each in constant time; made for a million of them. A copy
// costs nothing until one of the two changes, which is how a worker takes its snapshot. Follows its owner's thread.
class Number_List
{
public:
    Number_List() : m_body(new Body) {}

    int Count() const { return m_body->numbers.Count(); }
    /// The number at an index from 0 to Count() - 1.
    QString At(int index) const { return m_body->numbers.At(index); }
    /// How many entries are exactly this number. Here and below a Number is a text or a Packed_Number.
    template <typename Number>
    int Count_Of(const Number& number) const
    {
        return m_body->numbers.Look_Up(number).count;
    }
    template <typename Number>
    bool Contains(const Number& number) const
    {
        return Count_Of(number) > 0;
    }
    /// The first index with exactly this number; -1 when there is none.
    int First_Index_Of(const QString& number) const { return m_body->numbers.Look_Up(number).first_row; }
    /// Announces a number that will soon be looked up; see Indexed_Numbers.
    void Fetch(const Packed_Number& number) const { m_body->numbers.Fetch(number); }

    /// Makes room for so many more, where it is known how many will come.
    void Expect(std::size_t more) { m_body->numbers.Expect(more); }
    /// Appends a number, even one already present; or a span of packed ones.
    template <typename Number>
    void Append(const Number& number)
    {
        m_body->numbers.Append(number);
    }
    /// Replaces the number at an index from 0 to Count() - 1.
    void Replace(int index, const QString& number) { m_body->numbers.Replace(index, number); }
    /// Removes the rows of a sorted list of distinct indexes in one pass.
    void Remove_Rows(const std::vector<int>& rows)
    {
        if (!rows.empty())
            m_body->numbers.Remove_Rows(rows);
    }
    void Clear() { m_body = new Body; }

private:
    struct Body : QSharedData
    {
        Indexed_Numbers numbers;
    };

    QSharedDataPointer<Body> m_body;
};
