#pragma once

#include "device/At_Conversation.h"
#include "handset/Status_Report.h"

#include <QList>
#include <QString>
#include <optional>

class Device_Memory;

/// Where a report lies in a device.
struct Report_Place
{
    QByteArray m_memory;
    int m_index = 0;

    bool operator==(const Report_Place&) const = default;
};

/// A delivery report that a device has told.
struct Told_Report
{
    Handset::Status_Report m_report;
    std::optional<Report_Place> m_place; ///< where it lies still; none where it came on the line
};

/// Asks a device for delivery reports and gathers those that come: on the line or, where the device puts them into a
/// memory, from there. What lies in a memory stays there until it is deleted. Belongs to a session; its thread.
class Delivery_Reports
{
public:
    explicit Delivery_Reports(At_Conversation& conversation);

    /// Whether the device takes any way of saying reports. The maker is the device's own word.
    bool Ask_For(const QString& maker);
    /// What has come since, the oldest first, and what has been announced to lie in a memory.
    QList<Told_Report> Take();
    /// All that lie in the memory for reports; none where there is no such memory.
    QList<Told_Report> Read_Memory(bool is_text_mode);
    void Delete(const QList<Report_Place>& places);

private:
    void Take_In(const Raw_Report& report);
    void Fetch(const Report_Place& place, Device_Memory& memory);

    At_Conversation& m_conversation;
    QList<Told_Report> m_reports;
    QList<Report_Place> m_announced;
};
