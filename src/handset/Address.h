#pragma once

#include "handset/Octet_Cursor.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Numbers in frames (3GPP TS 23.040 9.1.2.5): read as text, "+" in front for the international type, and written from
// what a list holds. Pure.

namespace Handset {

/// A number as a frame carries it.
struct Address
{
    std::string m_digits;         ///< 0 to 9, "*", "#", "a", "b", "c"
    bool m_international = false; ///< type 145 rather than 129

    bool operator==(const Address&) const = default;
};

constexpr std::size_t Most_Address_Digits = 20; ///< 23.040 9.1.2.5: twelve octets with length and type

/// A number as a person or a list writes it: with "+" or "00" in front it is an international one, without them.
Address Destination_Of(std::string_view number);

enum class Address_Fault
{
    None,
    No_Digits,
    Too_Long,
    Not_Digits ///< a character that has no semi-octet (9.1.2.3)
};

Address_Fault Fault_Of(const Address& address);

/// TP-DA (9.2.3.8) of an address without a fault.
void Append_Party(std::vector<std::uint8_t>& octets, const Address& address);

/// The service-centre part in front of a frame (27.005 3.1), of an address without a fault.
void Append_Service_Centre(std::vector<std::uint8_t>& octets, const Address& address);

/// TP-DA or TP-RA, with which a failure begins its reason by the name of the field. An alphanumeric one is its text.
std::string Read_Party(Octet_Cursor& cursor, const char* field);

/// Empty when the frame leaves the centre to the phone.
std::string Read_Service_Centre(Octet_Cursor& cursor);

} // namespace Handset
