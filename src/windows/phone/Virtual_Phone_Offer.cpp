#include "windows/phone/Virtual_Phone_Offer.h"

#include "device/Device_Paths.h"
#include "toolkit/Demo_Phone.h"
#include "toolkit/Shared_Instance.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPointer>

namespace {

QString Program_Path()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/corvane-phone");
}

// Never shown: the phone ends with the program's windows.
class Owner : public QWidget
{
};

QPointer<Demo_Phone> The_Phone;

} // namespace

bool Virtual_Phone_Offer::Is_Installed()
{
    return QFileInfo(Program_Path()).isExecutable();
}

QString Virtual_Phone_Offer::Start()
{
    if (The_Phone && QFileInfo::exists(The_Phone->Path()))
        return {};
    delete The_Phone;
    The_Phone = new Demo_Phone(Shared_Instance<Owner>::Get());
    const QString path = The_Phone->Start(Program_Path());
    if (path.isEmpty()) {
        const QString error = The_Phone->Error();
        delete The_Phone;
        return error;
    }
    Set_Extra_Device_Paths(Extra_Device_Paths() + QStringList(path));
    return {};
}

QString Virtual_Phone_Offer::Path()
{
    return The_Phone ? The_Phone->Path() : QString();
}
