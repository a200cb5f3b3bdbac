#include "exclusion/Excluded_Numbers.h"

#include <algorithm>

namespace {

auto Number_Of(const std::deque<QString>& numbers)
{
    return [&numbers](int row) -> const QString& { return numbers[static_cast<std::size_t>(row)]; };
}

} // namespace

Excluded_Numbers::Excluded_Numbers() : m_body(new Body) {}

int Excluded_Numbers::Count() const
{
    return static_cast<int>(m_body->numbers.size());
}

const QString& Excluded_Numbers::At(int index) const
{
    return m_body->numbers.at(static_cast<std::size_t>(index));
}

bool Excluded_Numbers::Contains(const QString& number) const
{
    return m_body->index.Look_Up(number, Number_Of(m_body->numbers)).count > 0;
}

void Excluded_Numbers::Append(const QString& number)
{
    auto& body = *m_body;
    // A copy of its own, without the spare room that the number's normalisation left behind.
    body.numbers.emplace_back(number.constData(), number.size());
    body.index.Add(static_cast<int>(body.numbers.size()) - 1, Number_Of(body.numbers));
}

void Excluded_Numbers::Replace(int index, const QString& number)
{
    auto& body = *m_body;
    body.numbers.at(static_cast<std::size_t>(index)) = number;
    body.Rebuild_Index();
}

void Excluded_Numbers::Remove_Rows(const std::vector<int>& rows)
{
    if (rows.empty())
        return;
    auto& body = *m_body;
    auto next_removed = rows.begin();
    auto kept = std::min(static_cast<std::size_t>(rows.front()), body.numbers.size());
    for (std::size_t row = kept; row < body.numbers.size(); ++row) {
        if (next_removed != rows.end() && static_cast<std::size_t>(*next_removed) == row)
            ++next_removed;
        else
            body.numbers[kept++] = std::move(body.numbers[row]);
    }
    body.numbers.resize(kept);
    body.Rebuild_Index();
}

void Excluded_Numbers::Body::Rebuild_Index()
{
    index.Clear();
    for (std::size_t row = 0; row < numbers.size(); ++row)
        index.Add(static_cast<int>(row), Number_Of(numbers));
}
