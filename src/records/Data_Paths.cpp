#include "records/Data_Paths.h"

#include "platform/Folders_And_Files.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

QString Resource_Path;
QString Corvane_Data_Folder_Path;
QString Sent_Item_Path;
QString Templates_Path;
QString Applied_Exclusion_Path;
QString Exclusion_Folder_Path;
QString Exclusion_Index_Path;
QString Jobs_Folder_Path;
QString Settings_Path;

namespace {
constexpr unsigned Everything_Allowed = 0777;
constexpr unsigned Only_The_User = 0700;
} // namespace

QString Default_Resource_Path()
{
    const QString data_home = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return data_home + QStringLiteral("/corvane/Resources");
}

QString Settings_Beside(const QString& resource_path)
{
    return QFileInfo(resource_path).path() + QStringLiteral("/Settings.ini");
}

void Set_Data_Paths(const QString& resource_path)
{
    Resource_Path = resource_path;
    Corvane_Data_Folder_Path = Resource_Path + QStringLiteral("/CORVANE_DATA");
    Sent_Item_Path = Corvane_Data_Folder_Path + QStringLiteral("/SentItem.ZOVA");
    Templates_Path = Corvane_Data_Folder_Path + QStringLiteral("/Templates.ZOVA");
    Applied_Exclusion_Path = Corvane_Data_Folder_Path + QStringLiteral("/AppExclusion.ZOVA");
    Exclusion_Folder_Path = Corvane_Data_Folder_Path + QStringLiteral("/Exclusion");
    Exclusion_Index_Path = Exclusion_Folder_Path + QStringLiteral("/ExListIndex.ZOVA");
    Jobs_Folder_Path = Resource_Path + QStringLiteral("/Jobs");
    Settings_Path = Settings_Beside(Resource_Path);
}

bool Create_Resource_Folder()
{
    const QString private_folder = QFileInfo(Resource_Path).path();
    // A folder left accessible to others is closed again: the files in it are readable to all who get that far.
    if (!Make_Folder_If_Missing(private_folder, Only_The_User) || !Set_Permissions(private_folder, Only_The_User))
        return false;
    return Make_Folder_If_Missing(Resource_Path, Everything_Allowed) && QFileInfo(Resource_Path).isWritable();
}

void Check_Path_And_Create_Files()
{
    Make_Folder_If_Missing(Corvane_Data_Folder_Path, Everything_Allowed);
    for (const QString& path : {Sent_Item_Path, Templates_Path, Applied_Exclusion_Path})
        Make_Empty_File_If_Missing(path, Everything_Allowed);
    Make_Folder_If_Missing(Exclusion_Folder_Path, Everything_Allowed);
    Make_Empty_File_If_Missing(Exclusion_Index_Path, Everything_Allowed);
}
