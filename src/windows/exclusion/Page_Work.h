#pragma once

#include "platform/Interface_Thread.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/Window_Work.h"

#include <QScopedValueRollback>
#include <QWidget>

// Work that a page of the exclusion wizard waits for. Owned by the wizard, whose pages share it; interface thread.
class Page_Work : public Window_Work
{
public:
    using Window_Work::Window_Work;

    /// Does work on a worker and returns when it is done, while the window goes on painting. The sheet, when it is
    /// shown, is what keeps the user's clicks away; without one they wait (Held_Back) until the work is done.
    void Wait_For(const std::function<void()>& work, User_Input input = User_Input::Held_Back)
    {
        const QScopedValueRollback is_working(m_is_working, true);
        Run_On_Worker(work, input);
    }

    /// Whether files or long lists are worked on, so that the window has to stay as it is.
    bool Is_Under_Way() const { return m_is_working || Is_Sheet_Shown(); }

private:
    bool m_is_working = false;
};

/// Lets the main window, if there is one, take in anew what the applied lists hold.
inline void Refill_Main_Window()
{
    if (Main_App_wnd)
        Main_App_wnd->Fill_Exclusion_Num_List();
}
