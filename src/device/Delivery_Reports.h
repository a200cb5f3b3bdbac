#pragma once

#include "device/At_Conversation.h"

#include <QList>
#include <QString>

/// Asks a device for delivery reports and gathers those that come, as they were said: on the line or, where the device
/// puts them into a memory first, from there. Belongs to a session; its thread.
class Delivery_Reports
{
public:
    explicit Delivery_Reports(At_Conversation& conversation);

    /// Whether the device takes any way of saying reports. The maker is the device's own word.
    bool Ask_For(const QString& maker);
    /// Reads those that lie in the device's memory and takes them out of it.
    void Fetch_Stored();
    /// What has come since; the oldest first.
    QList<Raw_Report> Take() { return std::exchange(m_reports, {}); }

private:
    struct Place
    {
        QByteArray m_memory;
        int m_index = 0;
    };

    void Take_In(const Raw_Report& report);
    void Fetch(const Place& place);

    At_Conversation& m_conversation;
    QList<Raw_Report> m_reports;
    QList<Place> m_stored;
};
