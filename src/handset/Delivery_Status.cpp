#include "handset/Delivery_Status.h"

#include <algorithm>
#include <iterator>

namespace Handset {

namespace {

struct Row
{
    std::uint8_t m_last; ///< of the codes that the row is for; the first follows on the row before
    Delivery m_delivery;
    std::string_view m_reason;
};

// Reserved codes count as "service rejected", where their block has it. The block from 0x60 on is of temporary errors
// that the centre has given up over: nothing follows.
constexpr Row Rows[] = {
    {0x00, Delivery::Delivered, ""},
    {0x01, Delivery::Delivered, "passed on, but not confirmed"},
    {0x02, Delivery::Delivered, "replaced by a newer message"},
    {0x0F, Delivery::Delivered, "completed"},
    {0x1F, Delivery::Delivered, "completed, with a code of the network's own"},
    {0x20, Delivery::Still_Trying, "the network is congested"},
    {0x21, Delivery::Still_Trying, "the phone is busy"},
    {0x22, Delivery::Still_Trying, "the phone does not answer"},
    {0x23, Delivery::Still_Trying, "rejected for now"},
    {0x24, Delivery::Still_Trying, "the connection is too poor"},
    {0x25, Delivery::Still_Trying, "an error in the phone"},
    {0x2F, Delivery::Still_Trying, "rejected for now"},
    {0x3F, Delivery::Still_Trying, "a reason of the network's own"},
    {0x40, Delivery::Not_Delivered, "an error between the networks"},
    {0x41, Delivery::Not_Delivered, "the phone cannot take it"},
    {0x42, Delivery::Not_Delivered, "the phone refused it"},
    {0x43, Delivery::Not_Delivered, "the number cannot be reached"},
    {0x44, Delivery::Not_Delivered, "the connection is too poor"},
    {0x45, Delivery::Not_Delivered, "the networks do not work together"},
    {0x46, Delivery::Not_Delivered, "it was not delivered in time"},
    {0x47, Delivery::Not_Delivered, "deleted by the sender"},
    {0x48, Delivery::Not_Delivered, "deleted by the service centre"},
    {0x49, Delivery::Not_Delivered, "the service centre has no such message"},
    {0x4F, Delivery::Not_Delivered, "rejected"},
    {0x5F, Delivery::Not_Delivered, "a reason of the network's own"},
    {0x60, Delivery::Not_Delivered, "the network was congested"},
    {0x61, Delivery::Not_Delivered, "the phone was busy"},
    {0x62, Delivery::Not_Delivered, "the phone did not answer"},
    {0x63, Delivery::Not_Delivered, "rejected"},
    {0x64, Delivery::Not_Delivered, "the connection was too poor"},
    {0x65, Delivery::Not_Delivered, "an error in the phone"},
    {0x6F, Delivery::Not_Delivered, "rejected"},
    {0x7F, Delivery::Not_Delivered, "a reason of the network's own"},
    {0xFF, Delivery::Not_Delivered, "rejected"},
};

} // namespace

Delivery_Status Delivery_Status_Of(std::uint8_t status)
{
    const auto row = std::find_if(std::begin(Rows), std::end(Rows),
                                  [&](const Row& candidate) { return status <= candidate.m_last; });
    return {row->m_delivery, row->m_reason};
}

std::string_view Name_Of(Delivery delivery)
{
    switch (delivery) {
    case Delivery::Delivered:
        return "delivered";
    case Delivery::Still_Trying:
        return "still trying";
    case Delivery::Not_Delivered:
        break;
    }
    return "not delivered";
}

} // namespace Handset
