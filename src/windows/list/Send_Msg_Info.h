#pragma once

#include "toolkit/Form_Dialog.h"

class Main_Window;

namespace Ui {
class Send_Msg_Info;
}

// Offers, before a job sends, to copy the message in Message_IS to all recipients or to those without a message. The
// shared instance belongs to Shared_Instance, or to the main window once it has been put over it; interface thread.
class Send_Msg_Info : public Working_Dialog<Send_Msg_Info, Ui::Send_Msg_Info>
{
    Q_OBJECT

public:
    static constexpr int Filled = 1;
    static constexpr int Send_As_It_Is = 0;
    static constexpr int Cancelled = -1;

    explicit Send_Msg_Info(QWidget* parent = nullptr);
    ~Send_Msg_Info() override;

    /// Runs the dialog over the main window until it ends. Returns one of the three codes; Cancelled also when the
    /// program exits meanwhile.
    int Open_Dialog(Main_Window& window);

    void Fill_To_ALL_Pressed();
    void Fill_To_Blank_Pressed();
    void OKPressed();
    void ContinuePressed() { End_With(Send_As_It_Is); }
    void CancelPressed() { End_With(Cancelled); }

private:
    void End_With(int code);

    int m_code = Cancelled;
};
