#include "plan/Plan_Number.h"

#include "handset/Address.h"
#include "list/Number_File.h"
#include "list/Number_Rules.h"
#include "platform/String_Helpers.h"

#include <array>

namespace {

constexpr qsizetype Longest_Shown = 100; // of what is no number, in characters

// By the rules of tables, but what an import passes over.
Read_Number Of_Country(QStringView written, const Country* country)
{
    constexpr QStringView passed_over = u"\\{}";
    QString kept;
    for (const QChar character : written.left(Longest_Shown + 1))
        if (!passed_over.contains(character))
            kept += character;
    return Number_As_Written(kept, country);
}

} // namespace

Read_Number Number_Of_Input(QStringView written, Plan_Numbers numbers, const Country* country)
{
    if (numbers == Plan_Numbers::In_A_Table)
        return Number_As_Written(written, country);
    if (country)
        return Of_Country(written, country);
    if (numbers == Plan_Numbers::Typed)
        return {Number_Rules::Normalised_Number(written.toString()), Number_Reading::As_Written};
    return {Number_In_Line(written).Digits(), Number_Reading::As_Written};
}

std::optional<Packed_Number> Plain_Number_In(QByteArrayView utf8)
{
    if (utf8.size() > Longest_Shown)
        return std::nullopt;
    Packed_Number number;
    const bool has_plus = utf8.startsWith('+');
    if (has_plus) {
        number.Add_Digit(u'0');
        number.Add_Digit(u'0');
    }
    // Without branches: where the marks stand in a number cannot be foretold.
    std::array<char, Longest_Shown> digits;
    std::size_t count = 0;
    bool is_plain = true;
    for (const char byte : utf8.sliced(has_plus ? 1 : 0)) {
        const bool is_digit = static_cast<unsigned char>(byte - '0') <= 9;
        digits[count] = byte;
        count += is_digit ? 1 : 0;
        is_plain = is_plain & (is_digit | (byte == '-') | (byte == ' '));
    }
    if (!is_plain || count == 0)
        return std::nullopt;
    for (std::size_t place = 0; place < count; ++place)
        if (!number.Add_Digit(static_cast<char16_t>(digits[place])))
            return std::nullopt;
    return number;
}

bool Can_Be_Dialled(const QString& number)
{
    return !number.isEmpty() &&
           Handset::Fault_Of(Handset::Destination_Of(number.toStdString())) == Handset::Address_Fault::None;
}

bool Can_Be_Dialled(const Packed_Number& number)
{
    static const Packed_Number no_more_than_a_prefix = *Packed_Number::Of(u"00");
    return !number.Is_Empty() && number != no_more_than_a_prefix;
}

// Half of a pair at the cut would be no character.
QString Shown_In_Place_Of_A_Number(QStringView written)
{
    QString beginning = Trim_Str(written.left(Longest_Shown).toString());
    if (!beginning.isEmpty() && beginning.back().isHighSurrogate())
        beginning.chop(1);
    return beginning.isEmpty() ? QStringLiteral("-") : beginning;
}
