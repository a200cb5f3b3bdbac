#include "doctor/Port_Notes.h"

#include "doctor/Port_Doctor.h"
#include "texts/Doctor_Texts.h"

namespace {

namespace T = Texts::Doctor;

QString State_Of(const QList<Finding>& obstacles)
{
    if (obstacles.isEmpty())
        return Sign_Of(Finding::Mark::Good) + QStringLiteral(" ") + T::Short_Free;
    const Finding& obstacle = obstacles.constFirst();
    const QString sign = Sign_Of(obstacle.mark) + QStringLiteral(" ");
    switch (obstacle.check) {
    case Finding::Check::Holder:
        return sign + T::Short_In_Use;
    case Finding::Check::Right:
        return sign + T::Short_No_Right;
    default:
        return sign + T::Short_Not_For_Messages;
    }
}

} // namespace

QHash<QString, Port_Note> Notes_To_Ports(const QStringList& paths, const System_Roots& roots)
{
    QHash<QString, Port_Note> notes;
    const QList<Service_Modem> service = Modems_Of_The_Service(roots);
    for (const QString& path : paths) {
        const Port_Facts port = Facts_Of_Port(path, roots);
        notes.insert(path, {port.Label(), State_Of(Obstacles_Of_Port(port, service, roots))});
    }
    return notes;
}
