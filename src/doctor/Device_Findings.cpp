#include "doctor/Device_Findings.h"

#include "doctor/Small_Files.h"
#include "texts/Doctor_Texts.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace {

using Check = Finding::Check;
using Mark = Finding::Mark;
namespace T = Texts::Doctor;

QString Filled(const Fixed_Text& text, const QString& value)
{
    return QString(text).arg(value);
}

Finding About_Opening(const Port_Facts& port, int error)
{
    if (error == EBUSY)
        return {Check::Holder, Mark::Bad, port.path, Filled(T::Held_By_Somebody, port.Name()), T::End_Program};
    if (error == ENOENT || error == ENODEV || error == ENXIO)
        return {Check::Port, Mark::Bad, port.path, Filled(T::No_Such_Port, Short_Path(port.path)), T::Plug_In_Again};
    return {Check::Answer, Mark::Bad, port.path,
            QString(T::Does_Not_Open).arg(port.Name(), QString::fromLocal8Bit(std::strerror(error))), T::Unplug};
}

Finding About_Silence(const Port_Facts& port)
{
    if (port.place == Port_Facts::Place::Mainboard)
        return {Check::Answer, Mark::Note, port.path, Filled(T::Silent_Socket, Short_Path(port.path)),
                T::Only_If_There_Is_A_Modem};
    return {Check::Answer, Mark::Bad, port.path, Filled(T::Silent, port.Name()), T::Wake_Up};
}

Finding About_Answer(const Port_Facts& port, const Device_State& state)
{
    Port_Facts named = port;
    if (port.Label().isEmpty())
        named.product = state.label;
    return {Check::Answer, Mark::Good, port.path, Filled(T::Answers, named.Name())};
}

QString With_Tries(const Device_State& state, const Fixed_Text& with, const Fixed_Text& without)
{
    return state.tries ? Filled(with, QString::number(*state.tries)) : QString(without);
}

Finding About_Card(const Device_State& state)
{
    const auto bad = [](const QString& sentence, const Fixed_Text& remedy) {
        return Finding{Check::Card, Mark::Bad, {}, sentence, remedy};
    };
    switch (state.card) {
    case Sim_State::Ready:
        return {Check::Card, Mark::Good, {}, T::Card_Ready};
    case Sim_State::Pin_Needed:
        return bad(With_Tries(state, T::Card_Pin_Tries, T::Card_Pin), T::Enter_Pin);
    case Sim_State::Puk_Needed:
        return bad(With_Tries(state, T::Card_Puk_Tries, T::Card_Puk), T::Enter_Puk);
    case Sim_State::Locked:
        return bad(T::Card_Locked, T::Use_Its_Card);
    case Sim_State::Missing:
        return bad(T::Card_Missing, T::Put_In);
    case Sim_State::Failed:
        return bad(T::Card_Failed, T::Clean_Card);
    case Sim_State::Busy:
        return bad(T::Card_Busy, T::Wait_For_Card);
    case Sim_State::Unknown:
        break;
    }
    return {Check::Card, Mark::Note, {}, T::Card_Unknown, T::Send_To_Yourself};
}

Finding About_Network(Device_State::Network network)
{
    using Network = Device_State::Network;
    const auto finding = [](Mark mark, const Fixed_Text& sentence, const Fixed_Text& remedy) {
        return Finding{Check::Network, mark, {}, sentence, remedy};
    };
    switch (network) {
    case Network::Home:
        return {Check::Network, Mark::Good, {}, T::Home};
    case Network::Roaming:
        return finding(Mark::Note, T::Roaming, T::Mind_The_Price);
    case Network::Emergency_Calls:
        return finding(Mark::Bad, T::Emergency_Calls, T::Ask_Operator);
    case Network::Denied:
        return finding(Mark::Bad, T::Denied, T::Ask_Operator);
    case Network::Searching:
        return finding(Mark::Bad, T::Searching, T::Better_Place);
    case Network::Not_Searching:
        return finding(Mark::Bad, T::Not_Searching, T::Switch_Radio_On);
    case Network::Unknown:
        break;
    }
    return finding(Mark::Note, T::Network_Unknown, T::Send_To_Yourself);
}

// 3GPP TS 27.007, 8.5: 0 is -113 dBm or less, 31 is -51 dBm or more. In percent it is as much of 31.
Finding About_Signal(const Device_State& state)
{
    constexpr int Weakest = -113;
    constexpr int Step = 2;
    constexpr int Fair = 5;
    constexpr int Fair_Percent = 16;
    const auto finding = [](int strength, bool is_fair, const Fixed_Text& good, const Fixed_Text& weak) -> Finding {
        const QString number = QString::number(strength);
        if (is_fair)
            return {Check::Signal, Mark::Good, {}, Filled(good, number)};
        return {Check::Signal, Mark::Note, {}, Filled(weak, number), T::Move_It};
    };
    if (state.signal)
        return finding(Weakest + Step * *state.signal, *state.signal >= Fair, T::Signal, T::Weak_Signal);
    if (state.signal_percent)
        return finding(*state.signal_percent, *state.signal_percent >= Fair_Percent, T::Signal_Percent,
                       T::Weak_Signal_Percent);
    return {Check::Signal, Mark::Note, {}, T::Signal_Unknown, T::Send_To_Yourself};
}

Finding About_Centre(Device_State::Centre centre)
{
    switch (centre) {
    case Device_State::Centre::Set:
        return {Check::Centre, Mark::Good, {}, T::Centre_Set};
    case Device_State::Centre::Empty:
        return {Check::Centre, Mark::Bad, {}, T::Centre_Empty, T::Give_Centre};
    case Device_State::Centre::Odd:
        return {Check::Centre, Mark::Bad, {}, T::Centre_Odd, T::Give_Centre};
    case Device_State::Centre::Unknown:
    case Device_State::Centre::Not_Asked:
        break;
    }
    return {Check::Centre, Mark::Note, {}, T::Centre_Unknown, T::Send_To_Yourself};
}

Finding About_Messages(bool takes_any)
{
    if (takes_any)
        return {Check::Messages, Mark::Good, {}, T::Takes_Messages};
    return {Check::Messages, Mark::Bad, {}, T::No_Messages, T::Use_Another_Device};
}

} // namespace

QList<Finding> Findings_About_Device(const Port_Facts& port, const Device_State& state)
{
    if (state.line == Device_State::Line::Closed)
        return {About_Opening(port, state.error)};
    if (state.line == Device_State::Line::Silent)
        return {About_Silence(port)};
    return QList<Finding>{About_Answer(port, state)} + Findings_About_Card_And_Network(port.path, state);
}

QList<Finding> Findings_About_Card_And_Network(const QString& path, const Device_State& state)
{
    QList<Finding> findings{About_Card(state)};
    if (state.is_whole) {
        findings += {About_Network(state.network), About_Signal(state)};
        if (state.centre != Device_State::Centre::Not_Asked)
            findings += About_Centre(state.centre);
        findings += About_Messages(state.takes_messages);
    }
    for (Finding& finding : findings)
        finding.port = path;
    return findings;
}

bool Is_In_Order(const QList<Finding>& findings)
{
    return std::none_of(findings.begin(), findings.end(),
                        [](const Finding& finding) { return finding.mark == Finding::Mark::Bad; });
}
