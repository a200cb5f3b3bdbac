#include "toolkit/Dialog_Over.h"

#include "platform/Waiting.h"
#include "toolkit/Main_Window.h"

#include <QDialog>

void Put_Over(QDialog& dialog, QWidget* over)
{
    if (dialog.parentWidget() != over)
        dialog.setParent(over, dialog.windowFlags()); // which hides it
}

void Put_Over_Main_Window(QDialog& dialog)
{
    if (Main_App_wnd)
        Put_Over(dialog, Main_App_wnd->Window());
}

int Run_Dialog_Over(QDialog& dialog, QWidget* over)
{
    Put_Over(dialog, over);
    return Program_Is_Exiting() ? 0 : dialog.exec(); // an event loop that begins after the exit would never end
}
