#pragma once

#include "toolkit/Window_Work.h"

#include <QDialog>
#include <memory>

class Main_Window;
class PleaseWait_Modeless;

namespace Ui {
class Send_Msg_Info;
}

// Offers, before a job sends, to copy the message in Message_IS to all recipients or to those without a message. The
// shared instance belongs to Shared_Instance, or to the main window once it has been put over it; interface thread.
class Send_Msg_Info : public QDialog
{
    Q_OBJECT

public:
    static constexpr int Filled = 1;
    static constexpr int Send_As_It_Is = 0;
    static constexpr int Cancelled = -1;

    explicit Send_Msg_Info(QWidget* parent = nullptr);
    ~Send_Msg_Info() override;

    static Send_Msg_Info* defaultInstance();

    /// Runs the dialog over the main window until it ends. Returns one of the three codes; Cancelled also when the
    /// program exits meanwhile.
    int Open_Dialog(Main_Window& window);

    void Fill_To_ALL_Pressed();
    void Fill_To_Blank_Pressed();
    void OKPressed();
    void ContinuePressed();
    void CancelPressed();
    void Show_Create_Modeless();
    void Hide_Destroy_Modeless();

    void reject() override; ///< Escape and the close button: as Cancel

private:
    void End_With(int code);

    const std::unique_ptr<Ui::Send_Msg_Info> m_ui;
    std::unique_ptr<PleaseWait_Modeless> plz_wait_Window;
    Window_Work m_work;
    Main_Window* m_window = nullptr; // the one the dialog was last opened over
    int m_code = Cancelled;
};
