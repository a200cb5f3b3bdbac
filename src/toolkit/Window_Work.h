#pragma once

#include <atomic>
#include <functional>
#include <memory>

class Input_Hold;
class PleaseWait_Modeless;
class QWidget;

// Work behind a window: what takes time runs on a worker, while the window keeps painting and takes no clicks. Owned by
// the window, beside its please-wait sheet; the window calls End before anything that the work uses goes. Interface
// thread.
class Window_Work
{
public:
    Window_Work(QWidget& window, PleaseWait_Modeless& sheet);
    ~Window_Work();
    Window_Work(const Window_Work&) = delete;
    Window_Work& operator=(const Window_Work&) = delete;

    /// The please-wait sheet over the window, if that is shown.
    void Show_Sheet();
    void Hide_Sheet();
    bool Is_Sheet_Shown() const;
    /// The same for as long as the returned object lives, however that ends.
    [[nodiscard]] std::shared_ptr<void> Sheet();

    /// Drops clicks and keys in the window until Release_Input.
    void Hold_Input();
    void Release_Input();

    /// Starts a worker for the window. An uncaught exception ends the work and is logged.
    void Start(const char* name, std::function<void()> work);
    /// The same for work that had better not be done than on the interface thread. Whether it was begun.
    bool Start_If_Possible(const char* name, std::function<void()> work);
    /// Whether a worker of the window has not ended yet.
    bool Is_Running() const { return *m_running > 0; }
    /// Waits, while serving them, until all workers of the window have ended.
    void Await() const;
    /// The same, and releases the window.
    void End();

private:
    std::function<void()> Counted(std::function<void()> work);

    QWidget& m_window;
    PleaseWait_Modeless& m_sheet;
    std::unique_ptr<Input_Hold> m_input_hold;
    std::shared_ptr<std::atomic<int>> m_running; // outlives the window in a worker, which decrements it when it ends
};
