#include "device/Cause_Words.h"

#include <algorithm>
#include <iterator>

namespace {

using Kind = Device_Cause::Kind;

struct Row
{
    Kind kind;
    int number;
    const char* words;
};

constexpr Row Rows[] = {
    // 3GPP TS 24.011 annex E.2.
    {Kind::Cms, 1, "unassigned (unallocated) number"},
    {Kind::Cms, 1, "unassigned number"},
    {Kind::Cms, 8, "operator determined barring"},
    {Kind::Cms, 10, "call barred"},
    {Kind::Cms, 17, "network failure"},
    {Kind::Cms, 21, "short message transfer rejected"},
    {Kind::Cms, 22, "memory capacity exceeded"},
    {Kind::Cms, 27, "destination out of service"},
    {Kind::Cms, 27, "destination out of order"},
    {Kind::Cms, 28, "unidentified subscriber"},
    {Kind::Cms, 29, "facility rejected"},
    {Kind::Cms, 30, "unknown subscriber"},
    {Kind::Cms, 38, "network out of order"},
    {Kind::Cms, 41, "temporary failure"},
    {Kind::Cms, 42, "congestion"},
    {Kind::Cms, 47, "resources unavailable, unspecified"},
    {Kind::Cms, 47, "resources unavailable"},
    {Kind::Cms, 50, "requested facility not subscribed"},
    {Kind::Cms, 69, "requested facility not implemented"},
    {Kind::Cms, 81, "invalid short message transfer reference value"},
    {Kind::Cms, 95, "invalid message, unspecified"},
    {Kind::Cms, 95, "semantically incorrect message"},
    {Kind::Cms, 96, "invalid mandatory information"},
    {Kind::Cms, 97, "message type non-existent or not implemented"},
    {Kind::Cms, 98, "message not compatible with short message protocol state"},
    {Kind::Cms, 99, "information element non-existent or not implemented"},
    {Kind::Cms, 111, "protocol error, unspecified"},
    {Kind::Cms, 127, "interworking, unspecified"},
    // 23.040 9.2.3.22.
    {Kind::Cms, 128, "telematic interworking not supported"},
    {Kind::Cms, 129, "short message type 0 not supported"},
    {Kind::Cms, 130, "cannot replace short message"},
    {Kind::Cms, 143, "unspecified TP-PID error"},
    {Kind::Cms, 144, "data coding scheme (alphabet) not supported"},
    {Kind::Cms, 145, "message class not supported"},
    {Kind::Cms, 159, "unspecified TP-DCS error"},
    {Kind::Cms, 160, "command cannot be actioned"},
    {Kind::Cms, 161, "command unsupported"},
    {Kind::Cms, 175, "unspecified TP-command error"},
    {Kind::Cms, 176, "TPDU not supported"},
    {Kind::Cms, 192, "SC busy"},
    {Kind::Cms, 193, "no SC subscription"},
    {Kind::Cms, 194, "SC system failure"},
    {Kind::Cms, 195, "invalid SME address"},
    {Kind::Cms, 196, "destination SME barred"},
    {Kind::Cms, 197, "SM rejected-duplicate SM"},
    {Kind::Cms, 198, "TP-VPF not supported"},
    {Kind::Cms, 199, "TP-VP not supported"},
    {Kind::Cms, 208, "SIM SMS storage full"},
    {Kind::Cms, 209, "no SMS storage capability in SIM"},
    {Kind::Cms, 210, "error in MS"},
    {Kind::Cms, 212, "SIM application toolkit busy"},
    {Kind::Cms, 213, "SIM data download error"},
    {Kind::Cms, 255, "unspecified error cause"},
    // 27.005 3.2.5, and what 27.007 9.2 calls the same.
    {Kind::Cms, 300, "ME failure"},
    {Kind::Cms, 300, "phone failure"},
    {Kind::Cms, 301, "SMS service of ME reserved"},
    {Kind::Cms, 302, "operation not allowed"},
    {Kind::Cms, 303, "operation not supported"},
    {Kind::Cms, 303, "COMMAND NOT SUPPORT"},
    {Kind::Cms, 304, "invalid PDU mode parameter"},
    {Kind::Cms, 305, "invalid text mode parameter"},
    {Kind::Cms, 310, "SIM not inserted"},
    {Kind::Cms, 311, "SIM PIN required"},
    {Kind::Cms, 312, "PH-SIM PIN required"},
    {Kind::Cms, 313, "SIM failure"},
    {Kind::Cms, 314, "SIM busy"},
    {Kind::Cms, 315, "SIM wrong"},
    {Kind::Cms, 316, "SIM PUK required"},
    {Kind::Cms, 317, "SIM PIN2 required"},
    {Kind::Cms, 318, "SIM PUK2 required"},
    {Kind::Cms, 320, "memory failure"},
    {Kind::Cms, 321, "invalid memory index"},
    {Kind::Cms, 321, "invalid index"},
    {Kind::Cms, 322, "memory full"},
    {Kind::Cms, 330, "SMSC address unknown"},
    {Kind::Cms, 331, "no network service"},
    {Kind::Cms, 332, "network timeout"},
    {Kind::Cms, 340, "no +CNMA acknowledgement expected"},
    {Kind::Cms, 500, "unknown error"},
    {Kind::Cms, 500, "unknown"},
    // 27.007 9.2 alone.
    {Kind::Cme, 32, "network not allowed - emergency calls only"},
};

// Small letters and digits alone, so that manners of writing do not matter.
QString Bare(const QString& words)
{
    QString bare;
    for (const QChar unit : words) {
        if (unit.isLetterOrNumber())
            bare += unit.toLower();
    }
    return bare.replace(QLatin1String("usim"), QLatin1String("sim"));
}

} // namespace

std::optional<Device_Cause> Numbered_Cause(const QString& words)
{
    const QString bare = Bare(words);
    const auto row = std::find_if(std::begin(Rows), std::end(Rows),
                                  [&](const Row& known) { return Bare(QLatin1String(known.words)) == bare; });
    if (row == std::end(Rows))
        return std::nullopt;
    return Device_Cause{row->kind, row->number, {}};
}
