#include "list/Exclusion_Set.h"

Exclusion_Set::Exclusion_Set() : m_body(new Body) {}

int Exclusion_Set::Count() const
{
    return m_body->numbers.Count();
}

QString Exclusion_Set::At(int index) const
{
    return m_body->numbers.At(index);
}

void Exclusion_Set::Append(const QString& number)
{
    m_body->numbers.Append(number);
}

void Exclusion_Set::Clear()
{
    m_body = new Body;
}

int Exclusion_Set::Count_Of(const QString& number) const
{
    return m_body->numbers.Look_Up(number).count;
}

int Exclusion_Set::Count_Of(const Packed_Number& number) const
{
    return m_body->numbers.Look_Up(number).count;
}
