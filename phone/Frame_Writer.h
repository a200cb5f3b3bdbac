#pragma once

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <string>
#include <string_view>

namespace Handset {

/// Puts a frame together, field by field (3GPP TS 23.040 9.1 and 9.2). A value.
class Frame_Writer
{
public:
    void Put_Octet(int octet);

    /// Service-centre address in front of a frame (27.005 3.1), its length in octets; an empty one leaves it to the
    /// phone.
    void Put_Centre(std::string_view number);

    /// TP-OA, TP-DA or TP-RA (9.1.2.5): digits, "*", "#", "a" to "c" and a "+" in front.
    void Put_Address(std::string_view number);

    void Put_Time(std::time_t time); ///< TP-SCTS (9.2.3.11), in UTC
    void Put_Ucs2(std::string_view utf8);

    const std::string& Hex() const { return m_hex; }

    /// Octets behind the service-centre part: what AT commands call the length.
    std::size_t Tpdu_Octets() const { return (m_hex.size() - m_centre_digits) / 2; }

private:
    void Put_Digits(std::string_view number);

    std::string m_hex;
    std::size_t m_centre_digits = 0;
};

} // namespace Handset
