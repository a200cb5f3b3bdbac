#pragma once

#include <QString>
#include <cstdint>
#include <deque>
#include <vector>

// The messages of a list's rows in their order. Made for a million rows that have few different ones: a row takes four
// bytes, and rows that are given the same message one after the other share its text. Follows its list's thread.
class Message_List
{
public:
    /// The message at an index from 0 to the number of rows - 1; valid until it is replaced or removed.
    const QString& At(int index) const { return m_texts[m_rows.at(static_cast<std::size_t>(index))].message; }

    /// Makes room for so many more rows.
    void Expect(std::size_t more);
    /// How many rows there is room for.
    std::size_t Room() const { return m_rows.capacity(); }
    /// Appends as many rows with the message; all of them, or nothing when memory runs out.
    void Append(const QString& message, std::size_t count);
    void Remove_Last(std::size_t count);
    /// Replaces the message at an index from 0 to the number of rows - 1.
    void Replace(int index, const QString& message);
    /// Removes the rows of a sorted list of distinct indexes in one pass.
    void Remove_Rows(const std::vector<int>& rows);

private:
    static constexpr std::uint32_t None = 0xFFFF'FFFF;

    struct Text
    {
        QString message;
        std::uint32_t rows = 0;         // that have it
        std::uint32_t next_free = None; // the place of the next text that no row has, if none has this one
    };

    std::uint32_t Place_Of(const QString& message);
    void Let_Go_Of(std::uint32_t place);

    std::deque<Text> m_texts;          // each stays where it is
    std::vector<std::uint32_t> m_rows; // the place of each row's text
    std::uint32_t m_first_free = None;
    std::uint32_t m_last_given = None; // the place of the text that a row got last
};
