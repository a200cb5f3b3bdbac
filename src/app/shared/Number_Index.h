#pragma once

#include <QHashFunctions>
#include <QStringView>
#include <vector>

// Finds the rows of a list of numbers by the number's exact text, in constant time. It stores no text of its own: the
// list is asked for a row's number (a callable from row to something that reads as QStringView). One slot of eight
// bytes a distinct number. Owned by the list; follows that list's thread.
class Number_Index
{
public:
    struct Entry
    {
        int first_row = -1; ///< the first row with the number; -1 when there is none
        int count = 0;      ///< how many rows have it
    };

    template <typename Number_Of>
    Entry Look_Up(QStringView number, const Number_Of& number_of) const
    {
        return m_slots.empty() ? Entry() : m_slots[Slot_Of(number, number_of)];
    }

    /// Takes in a row. Rows come in ascending order, so that the first one seen of a number is its first row.
    template <typename Number_Of>
    void Add(int row, const Number_Of& number_of)
    {
        if ((m_used + 1) * 3 > m_slots.size() * 2)
            Grow(number_of);
        Entry& entry = m_slots[Slot_Of(number_of(row), number_of)];
        if (entry.count++ == 0) {
            entry.first_row = row;
            ++m_used;
        }
    }

    void Clear()
    {
        m_slots.clear();
        m_slots.shrink_to_fit();
        m_used = 0;
    }

private:
    // Linear probing; the number of slots is a power of two and at most two thirds of them are used, so a free one ends
    // every search.
    template <typename Number_Of>
    std::size_t Slot_Of(QStringView number, const Number_Of& number_of) const
    {
        const std::size_t mask = m_slots.size() - 1;
        std::size_t slot = qHash(number, m_seed) & mask;
        while (m_slots[slot].count > 0 && QStringView(number_of(m_slots[slot].first_row)) != number)
            slot = (slot + 1) & mask;
        return slot;
    }

    template <typename Number_Of>
    void Grow(const Number_Of& number_of)
    {
        std::vector<Entry> old_slots(m_slots.empty() ? 64 : m_slots.size() * 2);
        old_slots.swap(m_slots);
        for (const Entry& entry : old_slots) {
            if (entry.count > 0)
                m_slots[Slot_Of(number_of(entry.first_row), number_of)] = entry;
        }
    }

    std::vector<Entry> m_slots;
    std::size_t m_used = 0;
    std::size_t m_seed = QHashSeed::globalSeed();
};
