#pragma once

#include "toolkit/Sleep_Inhibitor.h"

#include <memory>

// What the desktop's services are asked for while a job runs. What is not there is done without, and nothing is told
// about it. Each call may take some seconds where a service does not answer; for one worker at a time.
class Desktop_Services
{
public:
    /// desktop_id: the name of the program's desktop entry, without its ending.
    Desktop_Services(Desktop_Buses buses, QString desktop_id);

    void Keep_Awake(const QString& reason);
    void Let_Sleep();
    /// How far the job is, on the program's icon, from 0 to 1; Hide_Progress takes it away.
    void Show_Progress(double done);
    void Hide_Progress();
    /// A notification, in place of the one before. The text is plain.
    void Notify(const QString& title, const QString& text);
    void Withdraw_Notification();

private:
    Desktop_Bus* Session();
    void Tell_Launcher(const QVariantMap& values);

    const Desktop_Buses m_buses;
    const QString m_desktop_id;
    // Stays open between jobs: some desktops take a program's notifications away with its connection.
    std::unique_ptr<Desktop_Bus> m_session;
    Sleep_Inhibitor m_inhibitor;
    uint m_notification = 0; // none
};
