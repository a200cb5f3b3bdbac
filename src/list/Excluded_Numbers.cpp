#include "list/Excluded_Numbers.h"

Excluded_Numbers::Excluded_Numbers() : m_body(new Body) {}

int Excluded_Numbers::Count() const
{
    return m_body->numbers.Count();
}

QString Excluded_Numbers::At(int index) const
{
    return m_body->numbers.At(index);
}

bool Excluded_Numbers::Contains(const QString& number) const
{
    return m_body->numbers.Look_Up(number).count > 0;
}

void Excluded_Numbers::Append(const QString& number)
{
    m_body->numbers.Append(number);
}

void Excluded_Numbers::Replace(int index, const QString& number)
{
    m_body->numbers.Replace(index, number);
}

void Excluded_Numbers::Remove_Rows(const std::vector<int>& rows)
{
    if (!rows.empty())
        m_body->numbers.Remove_Rows(rows);
}
