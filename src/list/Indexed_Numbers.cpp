#include "list/Indexed_Numbers.h"

#include "platform/Large_Pages.h"

#include <algorithm>
#include <array>
#include <bit>

// Room is made before anything changes: if memory runs out, the list stays as it was.
void Indexed_Numbers::Append(const Packed_Number& number)
{
    Make_Room(1);
    m_numbers.push_back(number);
    Add_To_Index(Count() - 1);
}

void Indexed_Numbers::Append(std::span<const Packed_Number> numbers)
{
    Make_Room(numbers.size());
    const int first = Count();
    m_numbers.insert(m_numbers.end(), numbers.begin(), numbers.end());
    Add_To_Index(first, numbers);
}

void Indexed_Numbers::Replace(int index, const QString& number)
{
    Packed_Number& present = m_numbers.at(static_cast<std::size_t>(index));
    const Packed_Number packed = m_texts.Pack(number);
    if (present == packed)
        return;
    Make_Room_In_Index(1);
    Remove_From_Index(index);
    present = packed;
    Add_To_Index(index);
}

void Indexed_Numbers::Remove_Rows(const std::vector<int>& rows)
{
    if (rows.empty())
        return;
    Remove_Rows_From(m_numbers, rows);
    Rebuild_Index();
}

Indexed_Numbers::Entry Indexed_Numbers::Look_Up(const QString& number) const
{
    const auto packed = m_texts.Packed(number);
    return packed ? Look_Up(*packed) : Entry();
}

Indexed_Numbers::Entry Indexed_Numbers::Look_Up(const Packed_Number& number) const
{
    return m_slots.empty() ? Entry() : m_slots[Slot_Of(number, number.Hash(m_seed))].entry;
}

void Indexed_Numbers::Fetch(const Packed_Number& number) const
{
    if (!m_slots.empty())
        __builtin_prefetch(&m_slots[Home_Of(number.Hash(m_seed))]);
}

// ------------------------------------------------------------------------------------------------------- the index

// Linear probing; the number of slots is a power of two and at most two thirds of them are used, so every search ends
// at a free one.
std::size_t Indexed_Numbers::Slot_With(std::uint32_t hash, std::size_t from) const
{
    std::size_t slot = from;
    while (m_slots[slot].entry.count > 0 && m_slots[slot].hash != hash)
        slot = Next(slot);
    return slot;
}

std::size_t Indexed_Numbers::Slot_Of(const Packed_Number& number, std::uint32_t hash, std::size_t from) const
{
    std::size_t slot = Slot_With(hash, from);
    while (m_slots[slot].entry.count > 0 && Number_At(m_slots[slot].entry.first_row) != number)
        slot = Slot_With(hash, Next(slot));
    return slot;
}

void Indexed_Numbers::Make_Room(std::size_t more)
{
    Make_Room_In(m_numbers, more);
    Make_Room_In_Index(more);
}

void Indexed_Numbers::Make_Room_In_Index(std::size_t more)
{
    constexpr std::size_t Fewest_Slots = 64;
    const std::size_t fewest = (m_used_slots + more) * 3 / 2 + 1;
    if (fewest > m_slots.size())
        Grow_Index(std::max(Fewest_Slots, std::bit_ceil(fewest)));
}

void Indexed_Numbers::Add_To_Index(int row)
{
    const std::uint32_t hash = Number_At(row).Hash(m_seed);
    Count_In(m_slots[Slot_Of(Number_At(row), hash)], row, hash);
}

// Three steps for each row, other rows between them, so that many wait for the memory together: a slot is fetched, then
// the row that it may name, and then the number is counted.
void Indexed_Numbers::Add_To_Index(int first, std::span<const Packed_Number> numbers)
{
    struct Place
    {
        std::uint32_t hash = 0;
        std::size_t slot = 0;
    };
    constexpr std::size_t Rows_Between = 12;
    std::array<Place, 32> places; // of the rows under way
    const auto place_of = [&](std::size_t row) -> Place& { return places[row % places.size()]; };
    const std::size_t end = numbers.size();
    for (std::size_t row = 0; row < end + 2 * Rows_Between; ++row) {
        if (row < end) {
            const std::uint32_t hash = numbers[row].Hash(m_seed);
            place_of(row) = {hash, Home_Of(hash)};
            __builtin_prefetch(&m_slots[Home_Of(hash)], 1);
        }
        if (const std::size_t found = row - Rows_Between; found < end) {
            Place& place = place_of(found);
            place.slot = Slot_With(place.hash, place.slot);
            if (m_slots[place.slot].entry.count > 0)
                __builtin_prefetch(&Number_At(m_slots[place.slot].entry.first_row));
        }
        if (const std::size_t counted = row - 2 * Rows_Between; counted < end) {
            const Place& place = place_of(counted);
            Slot& slot = m_slots[Slot_Of(numbers[counted], place.hash, place.slot)];
            Count_In(slot, first + static_cast<int>(counted), place.hash);
        }
    }
}

void Indexed_Numbers::Count_In(Slot& slot, int row, std::uint32_t hash)
{
    if (slot.entry.count++ == 0) {
        slot.entry.first_row = row;
        slot.hash = hash;
        ++m_used_slots;
    } else {
        slot.entry.first_row = std::min(slot.entry.first_row, row);
    }
}

void Indexed_Numbers::Remove_From_Index(int row)
{
    const Packed_Number& number = Number_At(row);
    const std::size_t slot = Slot_Of(number, number.Hash(m_seed));
    Entry& entry = m_slots[slot].entry;
    if (--entry.count == 0) {
        Free(slot);
        --m_used_slots;
    } else if (entry.first_row == row) {
        const auto next = std::find(m_numbers.begin() + row + 1, m_numbers.end(), number);
        entry.first_row = static_cast<int>(next - m_numbers.begin());
    }
}

// Following entries that are not in their home slot move up, so that no search ends too early.
void Indexed_Numbers::Free(std::size_t slot)
{
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t next = Next(slot); m_slots[next].entry.count > 0; next = Next(next)) {
        const std::size_t away_from_home = (next - Home_Of(m_slots[next].hash)) & mask;
        if (away_from_home >= ((next - slot) & mask)) {
            m_slots[slot] = m_slots[next];
            slot = next;
        }
    }
    m_slots[slot] = {};
}

void Indexed_Numbers::Grow_Index(std::size_t count)
{
    std::vector<Slot> old_slots;
    old_slots.reserve(count);
    Prefer_Large_Pages(old_slots.data(), count * sizeof(Slot));
    old_slots.resize(count);
    old_slots.swap(m_slots);
    for (const Slot& old : old_slots) {
        if (old.entry.count == 0)
            continue;
        std::size_t slot = Home_Of(old.hash);
        while (m_slots[slot].entry.count > 0)
            slot = Next(slot);
        m_slots[slot] = old;
    }
}

void Indexed_Numbers::Rebuild_Index()
{
    constexpr int Rows_At_A_Time = 4096; // no room for more is made than different numbers need
    std::vector<Slot>().swap(m_slots);
    m_used_slots = 0;
    std::vector<Packed_Number> numbers;
    for (int first = 0; first < Count(); first += Rows_At_A_Time) {
        const int end = std::min(Count(), first + Rows_At_A_Time);
        numbers.assign(m_numbers.begin() + first, m_numbers.begin() + end);
        Make_Room_In_Index(numbers.size());
        Add_To_Index(first, numbers);
    }
}
