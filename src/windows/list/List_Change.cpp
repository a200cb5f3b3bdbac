#include "windows/list/List_Change.h"

#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "toolkit/Main_Window.h"

#include <QDialog>

void Change_Recipients(Main_Window& window, const std::function<void(Recipient_List&)>& change)
{
    Recipient_List recipients = window.Recipients();
    Run_On_Worker([&] { change(recipients); });
    window.Replace_Recipients(std::move(recipients));
}

int Run_Over(Main_Window& window, QDialog& dialog)
{
    if (dialog.parentWidget() != window.Window())
        dialog.setParent(window.Window(), dialog.windowFlags());
    return Program_Is_Exiting() ? 0 : dialog.exec();
}
