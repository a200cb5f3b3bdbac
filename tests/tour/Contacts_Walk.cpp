#include "tour/Contacts_Walk.h"

#include "platform/Pace.h"
#include "tour/Story.h"
#include "tour/Windows.h"

#include <QElapsedTimer>
#include <cstdio>

using namespace Windows;

namespace {

constexpr double Most_Seconds = 180; // from the empty window to the last message, pictures included

} // namespace

// At the pace that the program ships with: nothing that a person would wait for is cut short.
void Contacts_Walk::Send_To_People(const std::function<bool(int)>& has_so_many)
{
    const double pace = Pace();
    Set_Pace(1);
    QElapsedTimer timer;
    timer.start();
    Click(Main, "Reset_Btn");
    Click(Main, "_Confirm_Chk");
    Take_Picture(Main, "empty-list");
    Retype(Main, "_messageEdit", Story::To_People);
    Click(Main, "Import_Contacts");
    Choose_File(Story::People_File, "contacts-file");
    Await_Text(Contacts, "_Words", Story::People_File + Told(": 300 rows in 3 columns.", ": 300 Zeilen in 3 Spalten."));
    Take_Picture(Contacts, "contacts-table");
    Click(Contacts, "Continue_Btn");
    Await_Text(Contacts, "_Sums", Told("298 messages to be sent, 298 parts", "298 Nachrichten zu senden, 298 Teile"));
    Take_Picture(Contacts, "contacts-rows");
    Leave(Contacts, "Add_To_List");
    Await_Text(Main, "_Import_Words",
               Told("298 added, 2 rows not used.", "298 hinzugefügt, 2 Zeilen nicht verwendet."));
    Take_Picture(Main, "contacts-added");
    Click(Main, "_sent_btn");
    constexpr int Some = 30;
    for (int received = Some; received < 298; received += Some)
        Await_Until(QString("%1 messages").arg(received), [&] { return has_so_many(received); });
    Press_In_Box("OK", Told("Message Sending Process Completed.", "Der Versand ist abgeschlossen."));
    Set_Pace(pace);
    const double seconds = static_cast<double>(timer.elapsed()) / 1000;
    printf("people   a spreadsheet of 300 rows was 298 messages on the phone in %.0f s\n", seconds);
    if (seconds > Most_Seconds)
        throw Tour_Failed(QString("the spreadsheet took %1 s").arg(seconds));
}
