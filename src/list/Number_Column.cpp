#include "list/Number_Column.h"

#include "list/Written_Number.h"

#include <algorithm>
#include <array>

namespace {

constexpr int Fewest_Digits = 7;
constexpr int Fewest_Digits_By_Name = 3;
constexpr int Most_Digits = 20;

constexpr std::array<const char16_t*, 14> Names_Of_Numbers{u"phone",  u"mobil",  u"cell", u"number",   u"tel",
                                                           u"msisdn", u"handy",  u"gsm",  u"celular",  u"numero",
                                                           u"número", u"nummer", u"sms",  u"recipient"};

bool Is_Digit(char byte)
{
    return byte >= '0' && byte <= '9';
}

// 2026-12-24, 24.12.2026 and 24/12/26: three groups with the same mark between them, the year first or last.
bool Is_A_Date(QByteArrayView field)
{
    std::array<int, 3> digits{};
    std::size_t group = 0;
    char mark = 0;
    for (const char byte : field) {
        if (Is_Digit(byte))
            ++digits[group];
        else if ((byte == '.' || byte == '/' || byte == '-') && (mark == 0 || byte == mark) && ++group < digits.size())
            mark = byte;
        else
            return false;
    }
    const auto is_short = [](int count) { return count == 1 || count == 2; };
    const bool has_year_first = digits[0] == 4 && (field.startsWith("19") || field.startsWith("20"));
    return group == 2 && is_short(digits[1]) &&
           ((has_year_first && is_short(digits[2])) || (is_short(digits[0]) && (digits[2] == 4 || digits[2] == 2)));
}

// 1234567.89
bool Is_An_Amount(QByteArrayView field)
{
    const qsizetype dot = field.lastIndexOf('.');
    return dot >= 0 && dot + 3 >= field.size() && !field.endsWith(".0") &&
           std::all_of(field.begin(), field.begin() + dot, Is_Digit) &&
           std::all_of(field.begin() + dot + 1, field.end(), Is_Digit);
}

bool Is_Plain(QByteArrayView field)
{
    return std::all_of(field.begin(), field.end(), [](char byte) {
        return (byte >= '(' && byte <= '9' && byte != '*' && byte != ',') || byte == ' ';
    });
}

// A number holds no letters, but for links and what a spreadsheet has rounded. Spares most names their reading.
bool Is_Worth_Reading(QByteArrayView field)
{
    const auto letters = std::count_if(field.begin(), field.end(), [](char byte) {
        return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
    });
    return letters == 0 || (letters == 1 && Is_Digit(field.front())) || field.contains(':');
}

bool Is_Called_A_Number(const QString& name)
{
    const QString compared = Compared_Column_Name(name);
    return compared == QLatin1String("to") ||
           std::any_of(Names_Of_Numbers.begin(), Names_Of_Numbers.end(),
                       [&](const char16_t* each) { return compared.contains(QStringView(each)); });
}

bool Holds_Numbers(const Contact_Table& table, int column, int fewest_digits)
{
    int numbers = 0;
    int others = 0;
    for (int row = 0; row < table.Row_Count(); ++row) {
        const QByteArrayView field = table.Bytes_At(row, column);
        if (Looks_Like_A_Number(field, fewest_digits))
            ++numbers;
        else if (!field.trimmed().isEmpty())
            ++others;
    }
    return numbers > others;
}

} // namespace

std::vector<int> Number_Columns(const Contact_Table& table)
{
    if (table.Column_Count() == 1)
        return {0};
    std::vector<int> found;
    for (int column = 0; column < table.Column_Count(); ++column)
        if (Holds_Numbers(table, column, Fewest_Digits))
            found.push_back(column);
    if (!found.empty())
        return found;
    for (int column = 0; column < table.Column_Count(); ++column)
        if (Is_Called_A_Number(table.Columns()[column]) && Holds_Numbers(table, column, Fewest_Digits_By_Name))
            found.push_back(column);
    return found;
}

bool Looks_Like_A_Number(QByteArrayView field, int fewest_digits)
{
    const QByteArrayView trimmed = field.trimmed();
    if (trimmed.isEmpty() || trimmed.size() > 100)
        return false;
    if (!Is_Plain(trimmed)) {
        if (!Is_Worth_Reading(trimmed))
            return false;
        const Read_Number read = Number_As_Written(QString::fromUtf8(trimmed), nullptr);
        return read.reading == Number_Reading::Rounded || read.number.size() >= fewest_digits;
    }
    const auto digits = std::count_if(trimmed.begin(), trimmed.end(), Is_Digit);
    return digits >= fewest_digits && digits <= Most_Digits && trimmed.front() != '-' && !Is_A_Date(trimmed) &&
           !Is_An_Amount(trimmed);
}
