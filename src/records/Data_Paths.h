#pragma once

#include <QString>

// Where the program keeps its data: <XDG_DATA_HOME>/corvane, private to the user, holds the resource folder, which
// holds the data folder and, beside it, the folder of the send jobs. Everything inside has the permissions 0777, except
// for the jobs and the settings beside it, which are the user's alone; the private folder keeps other accounts out.

// Set once at start-up by Set_Data_Paths.
extern QString Resource_Path;            ///< the application's resource folder
extern QString Corvane_Data_Folder_Path; ///< the data folder in it
extern QString Sent_Item_Path;           ///< the sent items
extern QString Templates_Path;           ///< the templates
extern QString Applied_Exclusion_Path;   ///< the names of the applied exclusion lists
extern QString Exclusion_Folder_Path;    ///< the folder of the exclusion lists
extern QString Exclusion_Index_Path;     ///< the names of all exclusion lists
extern QString Jobs_Folder_Path;         ///< the folder of the send jobs; made by the first of them
extern QString Settings_Path;            ///< what the user wants remembered; made by that wish

/// The resource folder for this user, from XDG_DATA_HOME or its default ~/.local/share. Nothing is created.
QString Default_Resource_Path();

/// Where the settings are that go with a resource folder.
QString Settings_Beside(const QString& resource_path);

/// Sets Resource_Path and every path derived from it.
void Set_Data_Paths(const QString& resource_path);

/// Creates the resource folder, and the private folder that holds it, when missing. Returns whether both exist and can
/// be written to.
bool Create_Resource_Folder();

/// Creates whatever is missing of the data folder: the folder, the three empty files, the exclusion folder and its
/// empty index. Called at start-up and before every write to the data files. Failures are left to whatever uses the
/// file.
void Check_Path_And_Create_Files();
