#include "app/shared/Exclusion_Set.h"

namespace {

auto Number_Of(const std::deque<QString>& numbers)
{
    return [&numbers](int row) -> const QString& { return numbers[static_cast<std::size_t>(row)]; };
}

} // namespace

Exclusion_Set::Exclusion_Set() : m_body(new Body) {}

int Exclusion_Set::Count() const
{
    return static_cast<int>(m_body->numbers.size());
}

const QString& Exclusion_Set::At(int index) const
{
    return m_body->numbers.at(static_cast<std::size_t>(index));
}

void Exclusion_Set::Append(const QString& number)
{
    auto& body = *m_body;
    body.numbers.emplace_back(number.constData(), number.size());
    body.index.Add(static_cast<int>(body.numbers.size()) - 1, Number_Of(body.numbers));
}

void Exclusion_Set::Clear()
{
    m_body = new Body;
}

int Exclusion_Set::Count_Of(const QString& number) const
{
    return m_body->index.Look_Up(number, Number_Of(m_body->numbers)).count;
}
