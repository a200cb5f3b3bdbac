#include "toolkit/Dialog_Over.h"

#include "platform/Waiting.h"

#include <QDialog>

int Run_Dialog_Over(QDialog& dialog, QWidget* over)
{
    if (dialog.parentWidget() != over)
        dialog.setParent(over, dialog.windowFlags());
    return Program_Is_Exiting() ? 0 : dialog.exec(); // an event loop that begins after the exit would never end
}
