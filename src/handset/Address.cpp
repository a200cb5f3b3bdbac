#include "handset/Address.h"

#include "handset/Gsm_Alphabet.h"

namespace Handset {

namespace {

constexpr std::string_view Semi_Octets = "0123456789*#abc"; // 23.040 9.1.2.3, by their values
constexpr std::uint8_t Fill = 0x0F;
constexpr std::uint8_t International = 0x91; // 145, and 129: numbering plan E.164
constexpr std::uint8_t Unknown_Type = 0x81;

std::uint8_t Semi_Octet_Of(char digit)
{
    return std::uint8_t(Semi_Octets.find(digit));
}

// Type-of-address octet and semi-octets, the low one first; an odd count leaves a fill in the last high one.
void Append_Type_And_Digits(std::vector<std::uint8_t>& octets, const Address& address)
{
    octets.push_back(address.m_international ? International : Unknown_Type);
    const std::string& digits = address.m_digits;
    for (std::size_t at = 0; at < digits.size(); at += 2) {
        const std::uint8_t high = at + 1 < digits.size() ? Semi_Octet_Of(digits[at + 1]) : Fill;
        octets.push_back(std::uint8_t(high << 4 | Semi_Octet_Of(digits[at])));
    }
}

std::string Digits_Of(Octet_Cursor& cursor, std::span<const std::uint8_t> octets, std::size_t count, const char* field)
{
    std::string digits;
    for (const std::uint8_t octet : octets) {
        for (const std::uint8_t nibble : {std::uint8_t(octet & 0x0F), std::uint8_t(octet >> 4)}) {
            const bool is_fill = nibble == Fill;
            if (is_fill != (digits.size() == count)) {
                cursor.Fail(std::string(field) +
                            (is_fill ? ": a fill among its digits" : ": no fill behind its digits"));
                return {};
            }
            if (!is_fill)
                digits += Semi_Octets[nibble];
        }
    }
    return digits;
}

// Type-of-address octet and value; semi_octets is the count of useful ones.
std::string Type_And_Digits(Octet_Cursor& cursor, std::size_t semi_octets, const char* field)
{
    const std::uint8_t type = cursor.Octet(field);
    if (!cursor.Has_Failed() && (type & 0x80) == 0)
        cursor.Fail(std::string(field) + ": the type of address lacks its first bit");
    const auto octets = cursor.Octets((semi_octets + 1) / 2, field);
    if (cursor.Has_Failed())
        return {};
    const int type_of_number = (type >> 4) & 0x07;
    if (type_of_number == 5) // alphanumeric, in the default alphabet
        return Text_Of_Septets(Unpack_Septets(octets, 0, semi_octets * 4 / 7).value_or(std::vector<std::uint8_t>()));
    const std::string digits = Digits_Of(cursor, octets, semi_octets, field);
    return type_of_number == 1 ? "+" + digits : digits;
}

} // namespace

Address Destination_Of(std::string_view number)
{
    for (const std::string_view prefix : {"+", "00"}) {
        if (number.starts_with(prefix))
            return {std::string(number.substr(prefix.size())), true};
    }
    return {std::string(number), false};
}

Address_Fault Fault_Of(const Address& address)
{
    if (address.m_digits.empty())
        return Address_Fault::No_Digits;
    if (address.m_digits.find_first_not_of(Semi_Octets) != std::string::npos)
        return Address_Fault::Not_Digits;
    return address.m_digits.size() > Most_Address_Digits ? Address_Fault::Too_Long : Address_Fault::None;
}

// Its length counts useful semi-octets.
void Append_Party(std::vector<std::uint8_t>& octets, const Address& address)
{
    octets.push_back(std::uint8_t(address.m_digits.size()));
    Append_Type_And_Digits(octets, address);
}

// Its length counts octets, the type's included (24.011 8.2.5.2).
void Append_Service_Centre(std::vector<std::uint8_t>& octets, const Address& address)
{
    octets.push_back(std::uint8_t(1 + (address.m_digits.size() + 1) / 2));
    Append_Type_And_Digits(octets, address);
}

std::string Read_Party(Octet_Cursor& cursor, const char* field)
{
    const std::size_t semi_octets = cursor.Octet(field);
    if (!cursor.Has_Failed() && semi_octets == 0)
        cursor.Fail(std::string(field) + ": no digits");
    if (semi_octets > Most_Address_Digits)
        cursor.Fail(std::string(field) + ": more than 20 digits");
    return Type_And_Digits(cursor, semi_octets, field);
}

std::string Read_Service_Centre(Octet_Cursor& cursor)
{
    constexpr const char* field = "service centre";
    const std::size_t length = cursor.Octet(field);
    if (length == 0)
        return {};
    if (length < 2 || length > 1 + Most_Address_Digits / 2) {
        cursor.Fail(std::string(field) + ": a length that no address has");
        return {};
    }
    auto ahead = cursor; // the length does not tell an even count of digits from an odd one: the last octet does
    const auto octets = ahead.Octets(length, field);
    const bool is_odd = !octets.empty() && octets.back() >> 4 == Fill;
    return Type_And_Digits(cursor, (length - 1) * 2 - (is_odd ? 1 : 0), field);
}

} // namespace Handset
