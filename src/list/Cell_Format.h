#pragma once

#include <QByteArray>
#include <string_view>
#include <vector>

// How a spreadsheet shows a number: a number format of ECMA-376 part 1, 18.8.30 and 18.8.31. Numbers with zeros in
// front, phone numbers, amounts, percentages, dates and times are shown as there; names of days and months in English,
// and dates that follow the machine's own custom as 2026-12-24. A value; any thread.
class Cell_Format
{
public:
    /// That of plain numbers: up to fifteen digits, without an exponent unless there are more before the point.
    Cell_Format() = default;
    explicit Cell_Format(std::string_view code);
    /// One of those that have a number alone.
    static Cell_Format Built_In(int number);

    /// In UTF-8. Days are counted from 1904 on where a workbook says so, else from 1900.
    QByteArray Shown(double value, bool counts_from_1904) const;
    /// Whether it is that of plain numbers.
    bool Is_Plain() const { return m_sections.empty(); }

private:
    struct Piece
    {
        enum Kind
        {
            Literal,
            Digit, ///< 0, # or ?
            Point,
            Percent,
            Date ///< y, m, d, h, s or AM/PM, as often as it stands there
        };
        Kind kind = Literal;
        QByteArray text;
    };

    struct Section
    {
        std::vector<Piece> pieces;
        char compares = 0; ///< < > = l (at most) or g (at least); 0 for nothing
        double compared = 0;
        bool is_date = false;
        bool is_plain = false;
        bool has_thousands = false;
        int whole_digits = 0; ///< places before the point
        int scale = 0;        ///< powers of a thousand
    };

    static Section Section_Of(std::string_view code);
    static void Take_Bracket(std::string_view inside, Section& section);
    static void Tell_Minutes(Section& section);
    const Section& Section_For(double& value) const;
    static QByteArray Number_In(const Section& section, double value);
    static QByteArray Date_In(const Section& section, double value, bool counts_from_1904);

    std::vector<Section> m_sections;
};

/// A plain number as a spreadsheet shows it where there is room.
QByteArray Plain_Number(double value);
