#pragma once

#include "list/Packed_Number.h"

#include <QHashFunctions>
#include <span>
#include <vector>

// A list of numbers that finds rows by the exact text of their number in constant time. Made for a million: a number
// takes twelve bytes, and twelve more plus its share of free room in the index. All the program's lists are built on
// it; each follows its list's thread.
class Indexed_Numbers
{
public:
    struct Entry
    {
        int first_row = -1; ///< the first row with the number; -1 when there is none
        int count = 0;      ///< how many rows have it
    };

    int Count() const { return static_cast<int>(m_numbers.size()); }
    /// The number at an index from 0 to Count() - 1.
    QString At(int index) const { return m_texts.Text_Of(m_numbers.at(static_cast<std::size_t>(index))); }

    /// Makes room for so many more, so that it need not be made step by step.
    void Expect(std::size_t more) { Make_Room(more); }
    /// Appends a number, even one already present; all of it, or nothing when memory runs out.
    void Append(const QString& number) { Append(m_texts.Pack(number)); }
    /// The same for a number that consists of digits alone.
    void Append(const Packed_Number& number);
    /// The same for many in their order, whose look-ups overlap.
    void Append(std::span<const Packed_Number> numbers);
    /// Replaces the number at an index from 0 to Count() - 1. Constant time, except when it is the first of several
    /// equal ones: the list is then searched for the next.
    void Replace(int index, const QString& number);
    /// Removes the rows of a sorted list of distinct indexes in one pass.
    void Remove_Rows(const std::vector<int>& rows);

    Entry Look_Up(const QString& number) const;
    /// The same for a number that consists of digits alone.
    Entry Look_Up(const Packed_Number& number) const;
    /// Brings what a look-up of the number will read first into the processor's cache. With many look-ups, fetch the
    /// next ones ahead, since each would otherwise wait for the memory in turn.
    void Fetch(const Packed_Number& number) const;

private:
    struct Slot
    {
        Entry entry;
        std::uint32_t hash = 0; // rules out nearly every other number without a look at its row
    };

    const Packed_Number& Number_At(int row) const { return m_numbers[static_cast<std::size_t>(row)]; }
    std::size_t Slot_With(std::uint32_t hash, std::size_t from) const;
    std::size_t Slot_Of(const Packed_Number& number, std::uint32_t hash, std::size_t from) const;
    std::size_t Slot_Of(const Packed_Number& number, std::uint32_t hash) const
    {
        return Slot_Of(number, hash, Home_Of(hash));
    }
    std::size_t Home_Of(std::uint32_t hash) const { return hash & (m_slots.size() - 1); }
    std::size_t Next(std::size_t slot) const { return (slot + 1) & (m_slots.size() - 1); }
    void Make_Room(std::size_t more);
    void Make_Room_In_Index(std::size_t more);
    void Count_In(Slot& slot, int row, std::uint32_t hash);
    void Add_To_Index(int row);
    void Add_To_Index(int first, std::span<const Packed_Number> numbers);
    void Remove_From_Index(int row);
    void Free(std::size_t slot);
    void Grow_Index(std::size_t count);
    void Rebuild_Index();

    std::vector<Packed_Number> m_numbers;
    Number_Texts m_texts;
    std::vector<Slot> m_slots;
    std::size_t m_used_slots = 0;
    std::uint64_t m_seed = QHashSeed::globalSeed();
};

/// Removes the rows of a sorted list of distinct indexes from a list, in one pass.
template <typename List>
void Remove_Rows_From(List& list, const std::vector<int>& rows)
{
    if (rows.empty() || static_cast<std::size_t>(rows.front()) >= static_cast<std::size_t>(list.size()))
        return;
    auto next_removed = rows.begin();
    auto kept = list.begin() + rows.front();
    int number = rows.front();
    for (auto row = kept; row != list.end(); ++row, ++number) {
        if (next_removed != rows.end() && *next_removed == number)
            ++next_removed;
        else
            *kept++ = std::move(*row);
    }
    list.erase(kept, list.end());
}
