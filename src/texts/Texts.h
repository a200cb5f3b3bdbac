#pragma once

#include "texts/Fixed_Text.h"

// The program's fixed texts: what boxes say and ask and how labels begin, each once, grouped by the window that shows
// it. They are meant to be exactly so, including odd spellings and leading blank lines. No code reads one of them
// back to learn what the program is doing.

// Shared by several windows.
namespace Texts {

inline constexpr Fixed_Text Not_A_Number{"Please enter a valid phone number."};
inline constexpr Fixed_Text Number_Exists{"Entered number already exists."};
inline constexpr Fixed_Text Number_Excluded{"Entered number is in exclusion list."};
inline constexpr Fixed_Text Select_Only_One{"Please select only one record to update."};
inline constexpr Fixed_Text Message_Missing{"Please enter some text message."};
inline constexpr Fixed_Text File_Error{"Error in file accessing."};
inline constexpr Fixed_Text Clear_All{"\nThis option will clear the entire list contents. Are you sure you want to "
                                      "continue clearing the entire list?"};
inline constexpr Fixed_Text Total_Numbers{"Total Numbers : "};

} // namespace Texts

// The main window and its recipient list.
namespace Texts::Main {

inline constexpr Fixed_Text No_Data{"Can not access Corvane Data file."};
inline constexpr Fixed_Text Exit{"\nDo you really want to exit from 'Corvane'?"};
inline constexpr Fixed_Text No_Device{"No Mobile Phone Device is selected."};
inline constexpr Fixed_Text Choose_Device{
    "No Mobile Phone Device is selected. Click here to start Mobile Phone Connection Wizard."};
inline constexpr Fixed_Text Apply_To_List{"Apply this\r\nmessage to\r\nlist items"};
inline constexpr Fixed_Text List_Empty{"Phone numbers-Messages list is empty."};
inline constexpr Fixed_Text None_Selected{
    "Please select at least one record from the phone numbers-messages list to continue."};
inline constexpr Fixed_Text Nothing_Imported{
    "Either file is corrupted or selected file contains invalid characters.\n\nOR\n\nRecipient number is skipped "
    "because of using 'Skip Dulicate Numbers' or 'Exclusion List' option."};
inline constexpr Fixed_Text Something_Broke{
    "The last action has ended early because of an unexpected error. Please look what has been done, and try again."};

} // namespace Texts::Main

// The dialogs that fill in the messages of the list.
namespace Texts::Fill {

inline constexpr Fixed_Text All{
    "This action will copy the message of composer box to all numbers in the list.\n\nDo you want to continue?"};
inline constexpr Fixed_Text Selected{
    "This action will copy the message of composer box to the selected numbers in the list. The messages of rest of "
    "the numbers remain unchanged.\n\nDo you want to continue?"};
inline constexpr Fixed_Text Blank{
    "This action will copy the message of composer box to the blank list items. The messages of rest of the numbers "
    "remain unchanged.\n\nDo you want to continue?"};
inline constexpr Fixed_Text None_Blank{"There is no blank message in the phone numbers-messages list."};
inline constexpr Fixed_Text Typed_Message{
    "This action will copy the above message to the selected numbers in the list. The messages of rest of the numbers "
    "remain unchanged.\n\nDo you want to continue?"};
inline constexpr Fixed_Text Selected_Numbers{"Total Selected Numbers : "};

} // namespace Texts::Fill

// A send job, from the press of Send onwards.
namespace Texts::Sending {

inline constexpr Fixed_Text No_Device{
    "Either Mobile Device is not connected properly or No Mobile Phone Device is selected.\n\nPlease use Mobile Phone "
    "Connection Wizard for finding device or establishing connection."};
inline constexpr Fixed_Text Number_Left_Over{"Please insert entered number to the list."};
inline constexpr Fixed_Text No_Delivery_Values{"No values have been selected in 'Delayed Delivery Options'."};
inline constexpr Fixed_Text Blank_Messages{
    "\nYou have composed no text message yet for any of the contacts in the entire list. This action will send blank "
    "message to all the contacts in list.\n\nAre you sure you want to continue?"};
inline constexpr Fixed_Text Does_Not_Open{
    "\nSelected device is not working properly. Please use Mobile Phone Connection Wizard for finding device or "
    "establishing connection."};
inline constexpr Fixed_Text No_Modem{"Selected device is not working properly.Could not initialize modem.\n"};
inline constexpr Fixed_Text Connection_Error{"Device Connection Error!"};
inline constexpr Fixed_Text Completed{"Message Sending Process Completed."};
inline constexpr Fixed_Text Not_Started{"The messages could not be sent, because the computer is too busy to start "
                                        "another task. Please close other programs and try again."};
inline constexpr Fixed_Text Broken_Off{"Sending has ended early because of an unexpected error. The sent items show "
                                       "which messages were sent."};
inline constexpr Fixed_Text Preparing{"Initializing mobile phone device to send sms ..."};
inline constexpr Fixed_Text Stop{"\nTerminating the current process will stop sending text messages to the remaining "
                                 "contact. Are you sure you want to continue?"};
inline constexpr Fixed_Text Is_Excluded{" is Excluded."};
inline constexpr Fixed_Text Is_Skipped{" is Skipped."};
inline constexpr Fixed_Text Of_Messages{" Message"};

} // namespace Texts::Sending

// How long a pause of a job is. The numbers are whole.
namespace Texts::Pause {

inline constexpr Fixed_Text Hours{"Pausing the process for %1 Hour %2 Minute %3 Seconds."};
inline constexpr Fixed_Text Minutes{"Pausing the process for %1 Minute %2 Seconds."};
inline constexpr Fixed_Text Seconds{"Pausing the process for %1 Seconds."};

} // namespace Texts::Pause

// The notice of a message that has grown past one SMS.
namespace Texts::Long_Message {

// %2 is a number and the letters SMS, which every language has.
inline constexpr Fixed_Text Characters{"%1 Characters"};
inline constexpr Fixed_Text Several{"%1 Characters (Each Message will now consume %2)"};

inline constexpr Fixed_Text Plain{
    "Your current message is exceeding the typical SMS Length of 160 Characters. Messages of more than 160 characters "
    "will be delivered in multiple messages of 160 characters to each recipient.\n\nEither shorten the length of your "
    "existing text message or click OK to continue anyway by delivering each message in multiple parts of 160 "
    "characters."};
inline constexpr Fixed_Text Unicode{
    "Your current message is exceeding the typical Unicode SMS (non-English text SMS) Length of 70 Characters. "
    "Messages of more than 70 characters will be delivered in multiple messages of 70 characters to each "
    "recipient.\n\nEither shorten the length of your existing text message or click OK to continue anyway by "
    "delivering each message in multiple parts of 70 characters."};

} // namespace Texts::Long_Message

// The sent items and the templates.
namespace Texts::Stores {

inline constexpr Fixed_Text Total_Items{"Total Items : "};
inline constexpr Fixed_Text Sent_Items_Empty{"Sent items list is empty."};
inline constexpr Fixed_Text No_Sent_Item_Selected{
    "Please select at least one record from the sent items list to continue."};
inline constexpr Fixed_Text Templates_Empty{"Templates list is empty."};
inline constexpr Fixed_Text Templates_Empty_At_Clear_All{"Templates items list is empty."};
inline constexpr Fixed_Text Templates_Empty_At_Update{"Templates number list is empty."};
inline constexpr Fixed_Text No_Template_Selected{
    "Please select at least one record from the templates list to continue."};
inline constexpr Fixed_Text Add_Templates{"Add Templates"};
inline constexpr Fixed_Text Update_Templates{"Update Templates"};
inline constexpr Fixed_Text Sent_Item{"Number\t: %1\r\n\r\nMessage\t: %2\r\n\r\nDate:\t %3"};
inline constexpr Fixed_Text Template_Missing{"Please type template message."};
inline constexpr Fixed_Text Template_Exists{"Entered template already exists."};
// The quotation marks do not pair up; that is how the text reads.
inline constexpr Fixed_Text Template_Too_Long{
    "Maximum characters limit is 1600.\r\n\r\nPress 'Yes to continue to composer window and it will show first 1600 "
    "characters of your message otherwise press 'No''"};

} // namespace Texts::Stores

// The exclusion-list wizard.
namespace Texts::Exclusion {

inline constexpr Fixed_Text message_info1{
    "Exclusion List Wizard allows you to maintain the Lists of contacts or Groups, which you may need to exclude time "
    "to time when sending messages.\n\nFor Example, if you have lists of contacts of Marketing, Administration, R & D "
    "and Customer Care Team members and you want to send messages to all the teams 'Except' Administration team, you "
    "can apply exclusion rules to Administration team members contacts list."};
inline constexpr Fixed_Text message_info2{
    "\n\nGive a friendly name to your Exclusion list so that you can identify it easily."};
inline constexpr Fixed_Text Current_List{"Currently using exclusion list : "};

inline constexpr Fixed_Text Name_Missing{"Please enter exclusion list name."};
inline constexpr Fixed_Text Name_Not_Valid{"Please enter a valid name."};
inline constexpr Fixed_Text Name_Not_Free{"Please enter the another name."};
inline constexpr Fixed_Text Name_Exists{"Entered exclusion list name already exists."};

inline constexpr Fixed_Text No_Numbers{"Exclusion number list is empty."};
inline constexpr Fixed_Text Not_A_File{"Please select a valid file."};
inline constexpr Fixed_Text No_Number_Selected{
    "Please select at least one record from the exclusion number list to continue."};

inline constexpr Fixed_Text None_Available{"Available list is empty."};
inline constexpr Fixed_Text None_Available_Selected{"Please select a record from the available list to continue."};
inline constexpr Fixed_Text Selected_In_Use{"Selected list is already in use."};
inline constexpr Fixed_Text All_In_Use{"All available lists are already in use."};
inline constexpr Fixed_Text None_Applied{"Exclude when sending SMS list is empty."};
inline constexpr Fixed_Text None_Applied_Selected{
    "Please select a record from Exclude when sending SMS list to continue."};

inline constexpr Fixed_Text Ask_To_Continue{"\nAre you sure you want to continue"};
inline constexpr Fixed_Text Ask_To_Delete{"\nAre you sure you want delete the selected available list?"};
inline constexpr Fixed_Text Ask_To_Go_Back{
    "\nYou have made changes in exclusion number list that have not been saved yet.\n\nDo you want to go back to "
    "previous screen without saving the exclusion number list?"};

} // namespace Texts::Exclusion

// The phone wizard, and what it finds when it probes a device.
namespace Texts::Phone {

inline constexpr Fixed_Text List_Empty{"Device list is empty."};
inline constexpr Fixed_Text Still_Searching{"Still searching for devices. Please wait ..."};
inline constexpr Fixed_Text None_Selected{"Please select device from list."};
inline constexpr Fixed_Text Custom_Smsc_Invalid{"Please enter a valid Custom SMSC number."};
inline constexpr Fixed_Text Could_Not_Open{"Selected device is not working properly.\nCould not open modem.\n"};
inline constexpr Fixed_Text Not_Working{"Selected device is not working properly."};
inline constexpr Fixed_Text Default_Smsc_Blank{"Default SMSC No. details should not be blanked."};
inline constexpr Fixed_Text Custom_Smsc_Blank{"Custom SMSC No. details should not be blanked."};
inline constexpr Fixed_Text No_Sending{
    "Selected device do not provide a modem in the computer or the modem does not support SMS sending command."};

} // namespace Texts::Phone
