#include "toolkit/Asked_For_Focus.h"

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <QWindow>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <xcb/xcb.h>

namespace {

xcb_atom_t Atom(xcb_connection_t* connection, const char* name)
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

// Filters the toolkit's own requests out of what comes from the X server while one of the program's windows has the
// keyboard: the window that gets it next learns so from the server itself. While none has it, a request is left to the
// toolkit, which may have missed that the server's focus is already there.
class Asked_For_Focus_Filter : public QAbstractNativeEventFilter
{
public:
    explicit Asked_For_Focus_Filter(xcb_connection_t* connection)
        : m_active_window(Atom(connection, "_NET_ACTIVE_WINDOW"))
    {
    }

    bool nativeEventFilter(const QByteArray& event_type, void* message, qintptr* /*result*/) override
    {
        if (event_type != "xcb_generic_event_t")
            return false;
        constexpr int without_sender = 0x7f;
        if ((static_cast<xcb_generic_event_t*>(message)->response_type & without_sender) != XCB_CLIENT_MESSAGE)
            return false;
        return static_cast<xcb_client_message_event_t*>(message)->type == m_active_window &&
               QGuiApplication::focusWindow();
    }

private:
    xcb_atom_t m_active_window;
};

} // namespace

void Pass_Over_Asked_For_Focus()
{
    static std::unique_ptr<Asked_For_Focus_Filter> filter;
    const auto* x_server = qApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* connection = x_server ? x_server->connection() : nullptr; // null on other platforms
    if (!connection)
        return;
    if (!filter)
        filter = std::make_unique<Asked_For_Focus_Filter>(connection);
    qApp->installNativeEventFilter(filter.get());
}
