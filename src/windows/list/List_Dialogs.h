#pragma once

class Main_Window;

// How the main window and the send job open the dialogs of the recipient list: each function checks its dialog's
// conditions, runs it and applies its result. Interface thread only; each returns when its dialog has ended.

/// Takes the composer's text, cut to 1600 characters, into Message_IS and offers to copy it to recipients. Refused,
/// with a message, when the list or the composer is empty.
void Open_Fill_Dialog(Main_Window& window);

/// Offers one new message for the selected recipients. Refused, with a message, when there are none.
void Open_Update_Selected(Main_Window& window);

/// Edits the recipient of a row; does nothing for a row that the list does not have.
void Open_Edit_Dialog(Main_Window& window, int row);

/// Offers to copy Message_IS to recipients before sending to them. Returns 1 if it was copied, 0 if the list is to be
/// sent unchanged, and any other code if nothing is to be sent.
int Ask_Send_Msg_Info(Main_Window& window);
