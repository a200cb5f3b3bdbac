#include "tour/Confirmed_Walk.h"

#include "tour/Story.h"
#include "tour/Windows.h"

using namespace Windows;

void Confirmed_Walk::Send_Until_One_Hangs(const QString& phone_path)
{
    Click(Main, "_NO_Device_Ticker");
    Click(Connection, "Continue_Btn");
    Click_Row_With(Phone_Wizard, "idPortList", phone_path);
    Await_Text(Phone_Wizard, "_port_det_edit", phone_path);
    Leave(Phone_Wizard, "_Select_Btn");
    Retype(Main, "_messageEdit", Story::With_A_Price);
    Await_Text(Main, "_messageEdit", Story::With_A_Price);
    for (const QString& number : Story::Second_List) {
        Type(Main, "_numberEdit", number);
        Click(Main, "Add_Number");
        Await_Until("the number field to be empty", [&] { return Text_Of(Main, "_numberEdit").isEmpty(); });
    }
    Click(Main, "_Confirm_Chk");
    Click(Main, "_Keep_Receipt_Chk");
    Take_Picture(Main, "confirm-each");
    Click(Main, "_sent_btn");
    Await_Text(Progress, "_current_send_msg", Told("There is no network", "Es ist kein Netz da"));
    Take_Picture(Progress, "held");
    Await_Text(Progress, "_curr_msg_cnt", "5 / 6");
    Await_Text(Progress, "_current_send_msg",
               Told("Still waiting for the network.", "Noch wird auf das Netz gewartet."));
    Take_Picture_With_What_Is_Over(Main, "waiting-for-network");
}

void Confirmed_Walk::Go_On_With_The_Job()
{
    Await_Text(Main, "_Strip_Words", Told("A job that began on ", "Ein Auftrag vom "));
    Take_Picture(Main, "unfinished-job");
    Click(Main, "Go_On_Btn");
    Click_Row_With(Unknown_Rows, "_Rows", Story::Silent_Member);
    Click(Unknown_Rows, "Count_As_Sent_Btn");
    Click_Row_With(Unknown_Rows, "_Rows", Story::Killed_Member);
    Click(Unknown_Rows, "Send_Again_Btn");
    Take_Picture(Unknown_Rows, "may-have-been-sent");
    Leave(Unknown_Rows, "OKPressed");
    Press_In_Box("OK", Told("Not every message was sent. The list says what became of each.",
                            "Nicht jede Nachricht wurde gesendet. Die Liste sagt, was aus jeder wurde."));
    Await_Input(Main, "Show_Receipt");
    Take_Picture(Main, "outcomes");
    Click(Main, "Show_Receipt");
    Await_Text(Receipt, "_Sums", Told("Recipients: 6.", "Empfänger: 6."));
    Take_Picture(Receipt, "receipt");
    Leave(Receipt, "Close_Btn");
}
