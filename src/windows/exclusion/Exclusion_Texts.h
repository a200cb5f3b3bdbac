#pragma once

#include <QString>

// Every fixed text of the exclusion wizard.
namespace Exclusion_Texts {

inline const QString message_info1 = QStringLiteral(
    "Exclusion List Wizard allows you to maintain the Lists of contacts or Groups, which you may need to exclude time "
    "to "
    "time when sending messages.\n\nFor Example, if you have lists of contacts of Marketing, Administration, R & D and "
    "Customer Care Team members and you want to send messages to all the teams 'Except' Administration team, you can "
    "apply exclusion rules to Administration team members contacts list.");
inline const QString message_info2 =
    QStringLiteral("\n\nGive a friendly name to your Exclusion list so that you can identify it easily.");

inline const QString Total_Numbers = QStringLiteral("Total Numbers : ");
inline const QString Current_List = QStringLiteral("Currently using exclusion list : ");

// The name of a list
inline const QString Name_Missing = QStringLiteral("Please enter exclusion list name.");
inline const QString Name_Not_Valid = QStringLiteral("Please enter a valid name.");
inline const QString Name_Not_Free = QStringLiteral("Please enter the another name.");
inline const QString Name_Exists = QStringLiteral("Entered exclusion list name already exists.");

// The numbers of a list
inline const QString No_Numbers = QStringLiteral("Exclusion number list is empty.");
inline const QString Number_Not_Valid = QStringLiteral("Please enter a valid phone number.");
inline const QString Number_Exists = QStringLiteral("Entered number already exists.");
inline const QString Not_A_File = QStringLiteral("Please select a valid file.");
inline const QString No_Number_Selected =
    QStringLiteral("Please select at least one record from the exclusion number list to continue.");
inline const QString Select_Only_One = QStringLiteral("Please select only one record to update.");

// The available and the applied lists
inline const QString None_Available = QStringLiteral("Available list is empty.");
inline const QString None_Available_Selected =
    QStringLiteral("Please select a record from the available list to continue.");
inline const QString Selected_In_Use = QStringLiteral("Selected list is already in use.");
inline const QString All_In_Use = QStringLiteral("All available lists are already in use.");
inline const QString None_Applied = QStringLiteral("Exclude when sending SMS list is empty.");
inline const QString None_Applied_Selected =
    QStringLiteral("Please select a record from Exclude when sending SMS list to continue.");

inline const QString Ask_To_Continue = QStringLiteral("\nAre you sure you want to continue");
inline const QString Ask_To_Delete = QStringLiteral("\nAre you sure you want delete the selected available list?");
inline const QString Ask_To_Go_Back = QStringLiteral(
    "\nYou have made changes in exclusion number list that have not been saved yet.\n\nDo you want to go back to "
    "previous screen without saving the exclusion number list?");
inline const QString File_Error = QStringLiteral("Error in file accessing.");

} // namespace Exclusion_Texts
