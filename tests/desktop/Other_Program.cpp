#include "desktop/Other_Program.h"

#include <cstdlib>
#include <memory>

Other_Program::Other_Program()
{
    const xcb_window_t screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, screen, 0, 0, 200, 100, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
}

Other_Program::~Other_Program()
{
    xcb_disconnect(m_connection);
}

void Other_Program::Show_Window()
{
    xcb_map_window(m_connection, m_window);
    xcb_flush(m_connection);
}

bool Other_Program::Has_The_Keyboard() const
{
    const std::unique_ptr<xcb_get_input_focus_reply_t, decltype(&std::free)> focus(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr), &std::free);
    return focus && focus->focus == m_window;
}
