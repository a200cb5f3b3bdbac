#include "toolkit/X_Server_Focus.h"

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>
#include <xcb/xcb.h>

namespace {

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

xcb_atom_t Atom(xcb_connection_t* connection, const char* name)
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

// Filters the toolkit's own requests out of what comes from the X server while one of the program's windows has the
// keyboard: the window that gets it next learns so from the server itself. While none has it, a request is left to the
// toolkit, which may have missed that the server's focus is already there.
class Asked_For_Focus_Filter : public QAbstractNativeEventFilter
{
public:
    explicit Asked_For_Focus_Filter(xcb_atom_t active_window) : m_active_window(active_window) {}

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

// Knows which window had the keyboard last, and asks for the one below when that one has taken it along.
class Taken_Along_Focus : public QObject
{
public:
    Taken_Along_Focus(QObject* parent, xcb_connection_t* connection, xcb_atom_t active_window)
        : QObject(parent), m_connection(connection), m_active_window(active_window)
    {
        m_time_for_the_manager.setSingleShot(true);
        m_time_for_the_manager.setInterval(200);
        connect(&m_time_for_the_manager, &QTimer::timeout, this, &Taken_Along_Focus::Take_Back);
        connect(qApp, &QGuiApplication::focusWindowChanged, this, &Taken_Along_Focus::Follow);
    }

private:
    void Follow(QWindow* window)
    {
        if (!window)
            return;
        if (!m_had_it.empty() && m_had_it.front())
            m_had_it.front()->disconnect(&m_time_for_the_manager);
        connect(window, &QWindow::visibleChanged, &m_time_for_the_manager, qOverload<>(&QTimer::start));
        connect(window, &QObject::destroyed, &m_time_for_the_manager, qOverload<>(&QTimer::start));
        m_had_it.clear();
        for (; window; window = window->transientParent())
            m_had_it.emplace_back(window);
    }

    void Take_Back()
    {
        if (Is_Shown(QGuiApplication::focusWindow()) || !Has_Nobody_The_Keyboard())
            return;
        const auto below = std::find_if(m_had_it.begin(), m_had_it.end(), Is_Shown);
        if (below != m_had_it.end())
            (*below)->requestActivate();
    }

    static bool Is_Shown(const QPointer<QWindow>& window) { return window && window->isVisible(); }

    // The window manager names a window that is not on the screen, or none. Without a manager nothing is named.
    bool Has_Nobody_The_Keyboard() const
    {
        const auto asked =
            xcb_get_property(m_connection, 0, xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root,
                             m_active_window, XCB_ATOM_WINDOW, 0, 1);
        const Owned<xcb_get_property_reply_t> named(xcb_get_property_reply(m_connection, asked, nullptr), &std::free);
        if (!named || xcb_get_property_value_length(named.get()) != sizeof(xcb_window_t))
            return false;
        const xcb_window_t window = *static_cast<xcb_window_t*>(xcb_get_property_value(named.get()));
        const Owned<xcb_get_window_attributes_reply_t> state(
            xcb_get_window_attributes_reply(m_connection, xcb_get_window_attributes(m_connection, window), nullptr),
            &std::free);
        return !state || state->map_state != XCB_MAP_STATE_VIEWABLE;
    }

    QTimer m_time_for_the_manager;
    xcb_connection_t* m_connection;
    xcb_atom_t m_active_window;
    std::vector<QPointer<QWindow>> m_had_it; // what had the keyboard, and the windows that it lies over
};

} // namespace

void Mend_X_Server_Focus()
{
    static std::unique_ptr<Asked_For_Focus_Filter> filter;
    static QPointer<QObject> taken_along;
    const auto* x_server = qApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* connection = x_server ? x_server->connection() : nullptr; // null on other platforms
    if (!connection)
        return;
    const xcb_atom_t active_window = Atom(connection, "_NET_ACTIVE_WINDOW");
    if (!filter)
        filter = std::make_unique<Asked_For_Focus_Filter>(active_window);
    qApp->installNativeEventFilter(filter.get());
    if (!taken_along)
        taken_along = new Taken_Along_Focus(qApp, connection, active_window);
}
