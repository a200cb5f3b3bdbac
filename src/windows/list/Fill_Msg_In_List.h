#pragma once

#include "list/Fill_Rules.h"
#include "toolkit/Window_Work.h"

#include <QDialog>
#include <memory>

class Main_Window;
class PleaseWait_Modeless;

namespace Ui {
class Fill_Msg_In_List;
}

// Copies the message in Message_IS to all recipients, to the selected ones or to those without a message. The shared
// instance belongs to Shared_Instance, or to the main window once it has been put over it; interface thread.
class Fill_Msg_In_List : public QDialog
{
    Q_OBJECT

public:
    explicit Fill_Msg_In_List(QWidget* parent = nullptr);
    ~Fill_Msg_In_List() override;

    static Fill_Msg_In_List* defaultInstance();

    /// Runs the dialog over the main window until it ends. Returns 1 if it filled messages in, 0 if it was cancelled.
    int Open_Dialog(Main_Window& window);

    void Fill_To_ALL_Pressed();
    void Fill_To_Selected_Pressed();
    void Fill_To_Blank_Pressed();
    void OKPressed();
    void CancelPressed();
    void Show_Create_Modeless();
    void Hide_Destroy_Modeless();

    void reject() override; ///< Escape and the close button: as Cancel

private:
    Fill_Rules::Choice Choice() const;
    bool Is_Meant(Fill_Rules::Choice choice) const;
    void End_With(int code);

    const std::unique_ptr<Ui::Fill_Msg_In_List> m_ui;
    std::unique_ptr<PleaseWait_Modeless> plz_wait_Window;
    Window_Work m_work;
    Main_Window* m_window = nullptr; // the one the dialog was last opened over
};
