#pragma once

#include "handset/Status_Report.h"

#include <QString>
#include <optional>
#include <unordered_map>
#include <vector>

// Finds the part that a delivery report is about: of those that are still open the one with its reference and its
// number, by their last digits, since centres write numbers in other forms; of several the one whose time is nearest.
// A value; one thread at a time.
class Report_Desk
{
public:
    struct Part
    {
        int index = 0; ///< of the recipient
        int part = 1;
        int reference = 0;
        qint64 seconds = 0; ///< since 1970, when it was accepted
    };

    void Expect(const QString& number, const Part& part);
    /// The part; nothing where none fits. A report that is final for a part closes it.
    std::optional<Part> Match(const Handset::Status_Report& report);
    bool Is_Empty() const { return m_open == 0; }

private:
    std::unordered_map<quint64, std::vector<Part>> m_parts; // by reference and last digits
    std::size_t m_open = 0;
};
