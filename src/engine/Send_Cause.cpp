#include "engine/Send_Cause.h"

#include "device/Cause_Words.h"
#include "platform/One_Line.h"
#include "texts/Cause_Texts.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace {

using enum Cause_Class;
using Kind = Device_Cause::Kind;
namespace T = Texts::Causes;

constexpr int Alike_In_A_Row = 3; // whatever the cause, three alike are no accident
constexpr int No_Number = -1;
constexpr int Last_Number = std::numeric_limits<int>::max();

constexpr int Usual_Stop(Cause_Class cause_class)
{
    if (cause_class == Stop || cause_class == Protocol)
        return 1;
    return cause_class == Counts_As_Sent || cause_class == Ignore ? 0 : Alike_In_A_Row;
}

constexpr Send_Cause Range(Kind kind, int first, int last, Cause_Class cause_class, Fixed_Text sentence)
{
    return {kind, first, last, cause_class, sentence, Usual_Stop(cause_class)};
}

constexpr Send_Cause Cms(int number, Cause_Class cause_class, Fixed_Text sentence)
{
    return Range(Kind::Cms, number, number, cause_class, sentence);
}

constexpr Send_Cause Cme(int number, Cause_Class cause_class, Fixed_Text sentence)
{
    return Range(Kind::Cme, number, number, cause_class, sentence);
}

constexpr Send_Cause Stopping_At(int messages, Send_Cause row)
{
    row.stops_at = messages;
    return row;
}

constexpr Send_Cause Offering_Plain(Send_Cause row)
{
    row.offers_plain = true;
    return row;
}

constexpr Send_Cause Unless_Others_Passed(Send_Cause row)
{
    row.this_number_if_others_passed = true;
    return row;
}

// The first row whose range holds the number counts; the last of each kind holds all.
constexpr Send_Cause Rows[] = {
    // 3GPP TS 24.011 annex E.2: what the network answered.
    Stopping_At(2, Cms(1, This_Number, T::No_Such_Number)),
    Cms(8, Stop, T::Barred_By_Operator),
    Cms(10, Stop, T::Barred_On_Card),
    Cms(17, Retry, T::Network_Failed),
    Stopping_At(3, Cms(21, This_Number, T::Rejected)), // an invalid number, but also no credit or a filter
    Cms(22, Retry, T::Congested),
    Cms(27, Ask, T::Recipient_Network),
    Cms(28, Stop, T::Not_A_Customer),
    Cms(29, Stop, T::Not_Granted),
    Cms(30, Stop, T::Card_Unknown),
    Cms(38, Ask, T::Network_Out_Of_Order), // for whatever goes wrong behind the network's switch
    Cms(41, Retry, T::Temporary_Failure),
    Cms(42, Retry_Slowly, T::Centre_Congested),
    Cms(47, Retry, T::No_Resources),
    Cms(50, Stop, T::Not_In_Contract),
    Cms(69, Stop, T::Not_Offered),
    Cms(81, Ask, T::Unknown_Transfer),
    Cms(95, Protocol, T::Malformed),
    Cms(96, Protocol, T::Malformed),
    Cms(97, Protocol, T::Malformed),
    Cms(98, Retry, T::Busy_With_Another),
    Cms(99, Protocol, T::Malformed),
    Cms(111, Protocol, T::Malformed),
    Cms(127, Ask, T::Between_Networks),
    // 23.040 9.2.3.22: what the service centre answered.
    Range(Kind::Cms, 128, 130, Protocol, T::Kind_Refused),
    Cms(143, Protocol, T::Kind_Refused),
    Offering_Plain(Cms(144, Protocol, T::Alphabet_Refused)),
    Offering_Plain(Cms(145, Protocol, T::Flash_Refused)),
    Offering_Plain(Cms(159, Protocol, T::Alphabet_Refused)),
    Range(Kind::Cms, 160, 161, Protocol, T::Command_Refused),
    Cms(175, Protocol, T::Command_Refused),
    Cms(176, Protocol, T::Kind_Refused),
    Cms(192, Retry, T::Centre_Busy),
    Cms(193, Stop, T::No_Centre_Contract),
    Cms(194, Retry_Slowly, T::Centre_Failed),
    Cms(195, This_Number, T::Number_Invalid),
    Cms(196, This_Number, T::Recipient_Barred),
    Cms(197, Counts_As_Sent, T::Duplicate),
    Range(Kind::Cms, 198, 199, Protocol, T::Validity_Refused),
    Cms(208, Hold, T::Card_Full),
    Cms(209, Ask, T::Card_Stores_Nothing),
    Cms(210, Ask, T::Phone_Failed),
    Cms(211, Hold, T::Phone_Full),
    Cms(212, Retry, T::Card_Busy),
    Cms(213, Ask, T::Card_Failed),
    Range(Kind::Cms, 224, 254, Ask, T::Networks_Own),
    Cms(255, Ask, T::Unspecified),
    // 27.005 3.2.5: what the device itself answered.
    Cms(300, Ask, T::Phone_Failed),
    Cms(301, Hold, T::Reserved),
    Cms(302, Hold, T::Not_Allowed_Now),
    Cms(303, Stop, T::Not_Supported),
    Unless_Others_Passed(Range(Kind::Cms, 304, 305, Protocol, T::Rejected_By_Modem)),
    Cms(310, Stop, T::No_Card),
    Cms(311, Hold, T::Pin_Wanted),
    Cms(312, Hold, T::Phone_Pin_Wanted),
    Cms(313, Stop, T::Card_Failed),
    Cms(314, Retry, T::Card_Busy),
    Cms(315, Stop, T::Wrong_Card),
    Cms(316, Stop, T::Puk_Wanted),
    Cms(317, Hold, T::Pin_2_Wanted),
    Cms(318, Stop, T::Puk_2_Wanted),
    Cms(320, Hold, T::Memory_Failed),
    Cms(321, Protocol, T::Wrong_Place),
    Cms(322, Hold, T::Phone_Full),
    Cms(330, Stop, T::Centre_Not_Known),
    Cms(331, Hold, T::No_Network),
    Cms(332, Unknown_Outcome, T::No_Answer_In_Time), // the device gave up waiting; the centre may have it
    Cms(340, Ignore, T::No_Acknowledgement),
    Cms(500, Ask, T::Unknown),
    // From 512 on: the makers' own, of which several agree on these.
    Cms(512, Ask, T::No_Radio),
    Cms(513, Unknown_Outcome, T::Radio_Lost),
    Cms(514, Retry, T::Congested),
    Cms(515, Retry, T::Starting),
    Range(Kind::Cms, 512, Last_Number, Ask, T::Makers_Own),
    Range(Kind::Cms, No_Number, Last_Number, Ask, T::Not_Known_Here),
    // 27.007 9.2, as some devices answer to messages, too.
    Cme(10, Stop, T::No_Card),
    Cme(11, Hold, T::Pin_Wanted),
    Cme(12, Stop, T::Puk_Wanted),
    Cme(13, Stop, T::Card_Failed),
    Cme(14, Retry, T::Card_Busy),
    Cme(30, Hold, T::No_Network),
    Cme(31, Unknown_Outcome, T::No_Answer_In_Time),
    Cme(32, Hold, T::Emergency_Only),
    Cme(100, Ask, T::Unknown),
    Cme(515, Retry, T::Modem_Busy),
    Range(Kind::Cme, No_Number, Last_Number, Ask, T::Not_Known_Here),
    Range(Kind::Error, No_Number, Last_Number, Ask, T::No_Reason),
    Range(Kind::Words, No_Number, Last_Number, Ask, T::Not_Known_Here),
};

const Send_Cause& Row_Of(const Device_Cause& cause)
{
    const int number = std::max(cause.number, No_Number);
    return *std::find_if(std::begin(Rows), std::end(Rows), [&](const Send_Cause& row) {
        return row.kind == cause.kind && row.first <= number && number <= row.last;
    });
}

} // namespace

const Send_Cause& Cause_Row(const Device_Cause& cause)
{
    return Row_Of(cause.kind == Kind::Words ? Numbered_Cause(cause.words).value_or(cause) : cause);
}

QString Reason_Of(const Device_Cause& cause)
{
    return cause.kind == Kind::Words ? On_One_Line(cause.words) : QString(Cause_Row(cause).sentence);
}
