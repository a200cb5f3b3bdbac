#pragma once

#include <QPointer>
#include <QWidget>
#include <vector>

// The windows that exist once in the whole program. Each is made when first requested and deleted by
// End_Shared_Instances, or earlier by the window it was put over; after that a request makes it anew. Interface thread.

inline std::vector<QPointer<QWidget>> Shared_Windows;

template <class Window>
class Shared_Instance
{
public:
    static Window* Get()
    {
        if (!The_Window) {
            The_Window = new Window;
            Shared_Windows.emplace_back(The_Window);
        }
        return The_Window;
    }

private:
    static inline QPointer<Window> The_Window;
};

/// Deletes every shared window, newest first. Called before the application object goes.
inline void End_Shared_Instances()
{
    while (!Shared_Windows.empty()) {
        const auto window = Shared_Windows.back();
        Shared_Windows.pop_back();
        delete window.data();
    }
}
