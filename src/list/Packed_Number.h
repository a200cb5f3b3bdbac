#pragma once

#include <QHash>
#include <QString>
#include <array>
#include <cstdint>
#include <deque>
#include <optional>

// A number of a list in twelve bytes: up to twenty digits of four bits each. A value; any thread. Two numbers of the
// same list are equal exactly when their texts are.
class Packed_Number
{
public:
    Packed_Number() = default; ///< the empty text

    /// The number for a text of at most twenty digits 0 to 9; nothing for any other text.
    static std::optional<Packed_Number> Of(QStringView text);

    /// The number of at most sixteen digits, four bits for each, which hold one more than it; the last in the lowest.
    static Packed_Number Of_Digits(std::uint64_t digits)
    {
        Packed_Number number;
        number.m_words = {static_cast<std::uint32_t>(digits), static_cast<std::uint32_t>(digits >> 32), 0};
        return number;
    }

    /// Appends a digit. Answers no, and changes nothing, when there are twenty already.
    bool Add_Digit(char16_t digit)
    {
        if (m_words[2] >= 0x1000)
            return false;
        m_words[2] = m_words[2] << 4 | m_words[1] >> 28;
        m_words[1] = m_words[1] << 4 | m_words[0] >> 28;
        m_words[0] = m_words[0] << 4 | static_cast<std::uint32_t>(digit - u'0' + 1); // so that no digit is zero
        return true;
    }
    /// The text of a number that consists of digits alone.
    QString Digits() const;
    bool Is_Empty() const { return m_words[0] == 0 && m_words[2] == 0; }

    std::uint32_t Hash(std::uint64_t seed) const
    {
        std::uint64_t mixed = (std::uint64_t{m_words[1]} << 32 | m_words[0]) ^ seed;
        mixed = (mixed ^ mixed >> 32 ^ std::uint64_t{m_words[2]} << 17) * 0x9E3779B97F4A7C15U;
        mixed = (mixed ^ mixed >> 32) * 0xD6E8FEB86659FD93U;
        return static_cast<std::uint32_t>(mixed >> 32);
    }

    bool operator==(const Packed_Number& other) const
    {
        return m_words[0] == other.m_words[0] && m_words[1] == other.m_words[1] && m_words[2] == other.m_words[2];
    }

private:
    friend class Number_Texts;

    std::array<std::uint32_t, 3> m_words{}; // the last digit is in the lowest bits of the first word
};

// Packs the numbers of one list and returns their texts. The few that do not consist of digits alone are kept here,
// each once. Owned by the list; follows that list's thread.
class Number_Texts
{
public:
    /// Packs any text, and keeps it when it does not consist of digits alone.
    Packed_Number Pack(const QString& text);
    /// The packed number of a text that may have been packed here; nothing when it cannot have been.
    std::optional<Packed_Number> Packed(const QString& text) const;
    /// The text of a number that was packed here or consists of digits alone.
    QString Text_Of(const Packed_Number& number) const;

private:
    static Packed_Number Odd(std::uint32_t place);

    std::deque<QString> m_odd;
    QHash<QString, std::uint32_t> m_places;
};
