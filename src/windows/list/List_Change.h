#pragma once

#include "list/Recipient_List.h"

#include <functional>
#include <memory>

class Main_Window;
class QDialog;

// What the dialogs of the recipient list have in common. Interface thread only.

/// Changes a copy of the recipients on a worker and puts it in the list's place. The caller keeps the user away
/// meanwhile: with a sheet, or by input that waits.
void Change_Recipients(Main_Window& window, const std::function<void(Recipient_List&)>& change);

/// Runs a dialog over the main window until it ends, and returns its code; not at all, with 0, once the program exits.
int Run_Over(Main_Window& window, QDialog& dialog);

/// The please-wait sheet of a dialog, until what this returns has gone, whichever way that is.
template <typename Dialog>
std::shared_ptr<void> Please_Wait(Dialog& dialog)
{
    dialog.Show_Create_Modeless();
    return {&dialog, [&dialog](void* /*unused*/) { dialog.Hide_Destroy_Modeless(); }};
}
