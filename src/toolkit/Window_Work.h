#pragma once

#include <atomic>
#include <functional>
#include <memory>

class Input_Hold;
class PleaseWait_Modeless;
class QWidget;

// Work behind a window: what takes its time runs on a worker, while the window goes on painting and nobody clicks in
// it. Owned by the window, beside its please-wait sheet, and ended by it with End before anything that the work uses
// goes. Interface thread.
class Window_Work
{
public:
    Window_Work(QWidget& window, PleaseWait_Modeless& sheet);
    ~Window_Work();
    Window_Work(const Window_Work&) = delete;
    Window_Work& operator=(const Window_Work&) = delete;

    /// The please-wait sheet over the window, when that is shown.
    void Show_Sheet();
    void Hide_Sheet();
    bool Is_Sheet_Shown() const;
    /// The same, until what this returns has gone, whichever way that is.
    [[nodiscard]] std::shared_ptr<void> Sheet();

    /// Drops the user's clicks and keys in the window until Release_Input.
    void Hold_Input();
    void Release_Input();

    /// Starts a worker for the window. An exception that leaves the work ends it and is logged.
    void Start(const char* name, std::function<void()> work);
    /// Waits, serving them, until all workers of the window have ended.
    void Await() const;
    /// The same, and gives the window free.
    void End();

private:
    QWidget& m_window;
    PleaseWait_Modeless& m_sheet;
    std::unique_ptr<Input_Hold> m_input_hold;
    std::shared_ptr<std::atomic<int>> m_running; // outlives the window in a worker that counts itself out
};
