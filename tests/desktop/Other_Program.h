#pragma once

#include <xcb/xcb.h>

// Another program of the desktop, as far as the X server can tell: a connection of its own. It has one window.
class Other_Program
{
public:
    Other_Program();
    ~Other_Program();
    Other_Program(const Other_Program&) = delete;
    Other_Program& operator=(const Other_Program&) = delete;

    void Show_Window(); ///< asks for it; the window manager is to do it
    bool Has_The_Keyboard() const;

private:
    xcb_connection_t* m_connection = xcb_connect(nullptr, nullptr);
    xcb_window_t m_window = xcb_generate_id(m_connection);
};
