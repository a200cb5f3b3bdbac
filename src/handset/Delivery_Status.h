#pragma once

#include <cstdint>
#include <string_view>

// What TP-ST in a status report means (3GPP TS 23.040 9.2.3.15). Pure.

namespace Handset {

enum class Delivery
{
    Delivered,
    Still_Trying, ///< another report follows
    Not_Delivered ///< for good
};

struct Delivery_Status
{
    Delivery m_delivery;
    std::string_view m_reason; ///< a few words; empty when there is nothing to say beyond the delivery
};

/// Every octet has a meaning: the network's own codes and reserved ones have that of their block.
Delivery_Status Delivery_Status_Of(std::uint8_t status);

/// "delivered", "still trying" or "not delivered".
std::string_view Name_Of(Delivery delivery);

} // namespace Handset
