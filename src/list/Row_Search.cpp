#include "list/Row_Search.h"

#include <QStringList>
#include <QStringMatcher>
#include <algorithm>
#include <numeric>
#include <utility>

namespace {

constexpr int Rows_Between_Looks = 256;
constexpr int Comparisons_Between_Looks = 4096;

struct Stopped
{
};

// A word, and the other way in which it may be written.
class Sought_Word
{
public:
    explicit Sought_Word(const QString& word) : m_word(word, Qt::CaseInsensitive)
    {
        if (word.size() > 1 && word.startsWith(u'+'))
            m_number.emplace(QStringLiteral("00") + word.mid(1), Qt::CaseInsensitive);
    }

    bool Is_In(const QString& text) const
    {
        return m_word.indexIn(text) >= 0 || (m_number && m_number->indexIn(text) >= 0);
    }

private:
    QStringMatcher m_word;
    std::optional<QStringMatcher> m_number;
};

std::vector<Sought_Word> Words_Of(const QString& words)
{
    std::vector<Sought_Word> sought;
    const QStringList list = words.simplified().split(u' ', Qt::SkipEmptyParts);
    for (const QString& word : list)
        sought.emplace_back(word);
    return sought;
}

bool Has(const std::vector<QString>& cells, const Sought_Word& word)
{
    return std::any_of(cells.begin(), cells.end(), [&](const QString& cell) { return word.Is_In(cell); });
}

std::vector<int> Rows_With(const std::vector<Sought_Word>& words, const Row_Source& source,
                           const std::function<bool()>& is_stopped)
{
    std::vector<int> found;
    if (words.empty()) {
        found.resize(static_cast<std::size_t>(source.rows));
        std::iota(found.begin(), found.end(), 0);
        return found;
    }
    std::vector<QString> cells(static_cast<std::size_t>(source.columns));
    for (int row = 0; row < source.rows; ++row) {
        if (row % Rows_Between_Looks == 0 && is_stopped())
            throw Stopped{};
        for (int column = 0; column < source.columns; ++column)
            cells[static_cast<std::size_t>(column)] = source.cell(column, row);
        if (std::all_of(words.begin(), words.end(), [&](const Sought_Word& word) { return Has(cells, word); }))
            found.push_back(row);
    }
    return found;
}

// Many rows share one message, which need not be compared with itself.
int Compared(const QString& left, const QString& right)
{
    return left.constData() == right.constData() && left.size() == right.size()
               ? 0
               : left.compare(right, Qt::CaseInsensitive);
}

void Sort(std::vector<int>& rows, const Row_Source& source, const Row_Wish& wish,
          const std::function<bool()>& is_stopped)
{
    const auto& key = source.key ? source.key : source.cell;
    std::vector<std::pair<QString, int>> keyed;
    keyed.reserve(rows.size());
    for (const int row : rows) {
        if (keyed.size() % Rows_Between_Looks == 0 && is_stopped())
            throw Stopped{};
        keyed.emplace_back(key(wish.column, row), row);
    }
    int comparisons = 0;
    const bool is_ascending = wish.order == Qt::AscendingOrder;
    const auto is_before = [&](const auto& left, const auto& right) {
        if (++comparisons % Comparisons_Between_Looks == 0 && is_stopped())
            throw Stopped{};
        const int compared = Compared(left.first, right.first);
        return is_ascending ? compared < 0 : compared > 0;
    };
    std::stable_sort(keyed.begin(), keyed.end(), is_before);
    std::transform(keyed.begin(), keyed.end(), rows.begin(), [](const auto& one) { return one.second; });
}

} // namespace

bool Is_A_Wish(const Row_Wish& wish)
{
    return wish.column >= 0 || !wish.words.trimmed().isEmpty();
}

std::optional<std::vector<int>> Rows_Found(const Row_Source& source, const Row_Wish& wish,
                                           const std::function<bool()>& is_stopped)
{
    try {
        std::vector<int> rows = Rows_With(Words_Of(wish.words), source, is_stopped);
        if (wish.column >= 0 && wish.column < source.columns)
            Sort(rows, source, wish, is_stopped);
        return rows;
    } catch (const Stopped&) {
        return std::nullopt;
    }
}
