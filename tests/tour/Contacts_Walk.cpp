#include "tour/Contacts_Walk.h"

#include "tour/Story.h"
#include "tour/Windows.h"

using namespace Windows;

void Contacts_Walk::Send_To_People(const std::function<bool(int)>& has_so_many)
{
    Click(Main, "Reset_Btn");
    Click(Main, "_Confirm_Chk");
    Take_Picture(Main, "empty-list");
    Retype(Main, "_messageEdit", Story::To_People);
    Click(Main, "Import_Contacts");
    Choose_File(Story::People_File, "contacts-file");
    Await_Text(Contacts, "_Words", Story::People_File + ": 300 rows in 3 columns.");
    Take_Picture(Contacts, "contacts-table");
    Click(Contacts, "Continue_Btn");
    Await_Text(Contacts, "_Sums", "298 messages to be sent, 298 parts");
    Take_Picture(Contacts, "contacts-rows");
    Leave(Contacts, "Add_To_List");
    Await_Text(Main, "_Import_Words", "298 added, 2 rows not used.");
    Take_Picture(Main, "contacts-added");
    Click(Main, "_sent_btn");
    constexpr int Some = 30;
    for (int received = Some; received < 298; received += Some)
        Await_Until(QString("%1 messages").arg(received), [&] { return has_so_many(received); });
    Press_In_Box("OK", "Message Sending Process Completed.");
}
