#pragma once

#include "list/Number_List.h"
#include "toolkit/Form_Dialog.h"
#include "windows/list/Counted_Message.h"
#include "windows/list/Handset_Bubble.h"

#include <memory>

class Main_Window;

namespace Ui {
class Update_Num_SMS;
}

// Edits one recipient: the number, by the rules for a typed one, and the message. Its two check boxes are its own: they
// start out like the main window's and are never written back. The shared instance belongs to Shared_Instance, or to
// the main window once it has been put over it; interface thread.
class Update_Num_SMS : public Form_Dialog<Update_Num_SMS, Ui::Update_Num_SMS>
{
    Q_OBJECT

public:
    explicit Update_Num_SMS(QWidget* parent = nullptr);
    ~Update_Num_SMS() override;

    /// Runs the dialog over the main window, for the recipient at a valid index, until it ends. Returns 1 if the
    /// recipient was saved, 0 if the dialog was cancelled.
    int Open_Dialog(Main_Window& window, int row);

    void Exclusion_Chk();
    void OKPressed();
    void CancelPressed() { End_With(0); }
    void controlTextDidChange();
    void textDidChange() { m_message->textDidChange(*m_window); }

private:
    Handset_Bubble::Terms Terms_Of_Message() const;
    void End_With(int code);

    std::unique_ptr<Counted_Message> m_message;
    Number_List m_applied_exclusions; // what was read for the dialog's own check box
    Main_Window* m_window = nullptr;  // the one the dialog was last opened over
};
