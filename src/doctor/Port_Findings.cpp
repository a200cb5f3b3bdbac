#include "doctor/Port_Findings.h"

#include "doctor/Small_Files.h"
#include "texts/Doctor_Texts.h"

namespace {

using Check = Finding::Check;
using Mark = Finding::Mark;
namespace T = Texts::Doctor;

const Fixed_Text& Words_Of(Port_Use use)
{
    switch (use) {
    case Port_Use::Positions:
        return T::For_Positions;
    case Port_Use::Diagnostics:
        return T::For_Diagnostics;
    case Port_Use::Sound:
        return T::For_Sound;
    case Port_Use::Packets:
        return T::For_Packets;
    case Port_Use::Left_Alone:
        return T::Left_Alone;
    default:
        return T::Found;
    }
}

} // namespace

Finding Port_Findings::On_No_Port()
{
    return {Check::Port, Mark::Bad, {}, T::No_Port, T::Plug_In};
}

Finding Port_Findings::On_Missing_Port(const QString& path)
{
    return {Check::Port, Mark::Bad, path, QString(T::No_Such_Port).arg(Short_Path(path)), T::Plug_In_Again};
}

Finding Port_Findings::On_Other_Mode(const Device_In_Another_Mode& device)
{
    if (device.mode == Device_In_Another_Mode::Mode::Network_Card)
        return {Check::Port, Mark::Bad, {}, QString(T::Network_Card).arg(device.label), T::Leave_Network_Card};
    return {Check::Port, Mark::Bad, {}, QString(T::Storage).arg(device.label), T::Leave_Storage, T::Install_Switch};
}

Finding Port_Findings::On_Use(const Port_Facts& port)
{
    Finding finding{Check::Port, Mark::Good, port.path, QString(Words_Of(port.use)).arg(port.Name())};
    if (!May_Take_Commands(port.use)) {
        finding.mark = Mark::Note;
        finding.remedy = port.use == Port_Use::Packets ? T::Needs_Commands : T::Use_Another_Port;
    }
    return finding;
}

Finding Port_Findings::On_Missing_Right(const Port_Facts& port, const Connection_Facts::Barred_Port& barred)
{
    Finding finding{Check::Right, Mark::Bad, port.path, QString(T::Barred).arg(port.Name()), T::Ask_Administrator};
    if (!barred.group.isEmpty()) {
        finding.remedy = QString(T::Join_Group).arg(barred.group);
        finding.command = QString(T::Join_Command).arg(barred.group);
    }
    return finding;
}

Finding Port_Findings::On_Holder(const Port_Facts& port, const Port_Holder& holder)
{
    const bool is_known = holder.process > 0 && !holder.program.isEmpty();
    return {Check::Holder, Mark::Bad, port.path,
            is_known ? QString(T::Held_By).arg(port.Name(), holder.program, QString::number(holder.process))
                     : QString(T::Held_By_Somebody).arg(port.Name()),
            T::End_Program};
}

Finding Port_Findings::On_Service(const Port_Facts& port)
{
    return {Check::Holder,   Mark::Bad,      port.path, QString(T::Held_By_Service).arg(port.Name()),
            T::Stop_Service, T::Stop_Command};
}

Finding Port_Findings::On_Wwan_Port(const Port_Facts& port)
{
    if (!May_Take_Commands(port.use))
        return On_Use(port);
    return {Check::Port, Mark::Note, port.path, QString(T::No_Serial_Port).arg(port.Name()), T::Needs_Serial_Port};
}
