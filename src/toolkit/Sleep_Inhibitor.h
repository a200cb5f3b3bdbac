#pragma once

#include "toolkit/Desktop_Bus.h"

#include <QDBusUnixFileDescriptor>

// Keeps the computer from going to sleep by itself: through the login service, which gives a descriptor and lets the
// computer sleep when that is closed, or through one of the session's services, which goes by the connection. Either
// way the death of the program ends it, too. For a worker.
class Sleep_Inhibitor
{
public:
    /// Asks one service after the other until one agrees. session may be none. A second call before Release does
    /// nothing.
    void Hold(const QString& system_bus, Desktop_Bus* session, const QString& reason);
    /// session is the one given to Hold, or none once it has been closed.
    void Release(Desktop_Bus* session);

private:
    void Hold_By_Session(Desktop_Bus& session, const QString& reason);

    QDBusUnixFileDescriptor m_lock; // the login service's
    int m_service = -1;             // of the session, in the table of them
    uint m_cookie = 0;              // what that one has given
};
