#pragma once

#include "list/Fill_Rules.h"
#include "toolkit/Form_Dialog.h"

class Main_Window;

namespace Ui {
class Fill_Msg_In_List;
}

// Copies the message in Message_IS to all recipients, to the selected ones or to those without a message. The shared
// instance belongs to Shared_Instance, or to the main window once it has been put over it; interface thread.
class Fill_Msg_In_List : public Working_Dialog<Fill_Msg_In_List, Ui::Fill_Msg_In_List>
{
    Q_OBJECT

public:
    explicit Fill_Msg_In_List(QWidget* parent = nullptr);
    ~Fill_Msg_In_List() override;

    /// Runs the dialog over the main window until it ends. Returns 1 if it filled messages in, 0 if it was cancelled.
    int Open_Dialog(Main_Window& window);

    void Fill_To_ALL_Pressed();
    void Fill_To_Selected_Pressed();
    void Fill_To_Blank_Pressed();
    void OKPressed();
    void CancelPressed() { End_With(0); }

private:
    Fill_Rules::Choice Choice() const;
    void Show_Message_Of_First();
    bool Is_Meant(Fill_Rules::Choice choice) const;
    void End_With(int code);
};
