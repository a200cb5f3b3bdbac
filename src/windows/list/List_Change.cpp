#include "windows/list/List_Change.h"

#include "platform/Interface_Thread.h"
#include "toolkit/Main_Window.h"

void Change_Recipients(Main_Window& window, const std::function<void(Recipient_List&)>& change)
{
    Recipient_List recipients = window.Recipients();
    Run_On_Worker([&] { change(recipients); });
    window.Replace_Recipients(std::move(recipients));
}
