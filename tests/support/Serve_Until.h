#pragma once

#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"

#include <QCoreApplication>
#include <QTimer>

/// Serves events on the interface thread until is_over answers yes. Returns false when that takes longer than the given
/// real seconds, which only a failing test does.
template <typename Is_Over>
bool Serve_Until(const Is_Over& is_over, double seconds = 20)
{
    const double end = Now_Seconds() + seconds;
    // Begun inside a posted event, it would not come to those that lay behind that one in the queue.
    Wake_Interface_Thread();
    QTimer heartbeat; // so that the wait for events ends now and then
    heartbeat.start(5);
    while (!is_over()) {
        if (Now_Seconds() > end)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    return true;
}
