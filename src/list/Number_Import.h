#pragma once

#include "list/Import_Report.h"
#include "list/Number_List.h"
#include "list/Recipient_List.h"

#include <QString>
#include <functional>
#include <optional>
#include <vector>

// Reads phone numbers, one per line, from a file or a text, and adds those that may join to a list of recipients: all
// on a worker, on a list of its own, which is handed over whole. Owned by the main window; started on the interface
// thread, where everything handed over arrives as well.
class Number_Import
{
public:
    // What to import, and what to check it against: captured once, when the import begins.
    struct Order
    {
        QString path;
        Recipient_List recipients; ///< those already in the list
        Number_List exclusions;
        QString message; ///< given to every imported number
        bool skip_duplicates = false;
        bool heed_exclusions = false;
        std::optional<QString> text = std::nullopt; ///< the lines, if they come from no file
    };

    // What the import needs from the main window; all are called on the interface thread.
    struct Target
    {
        /// Reports how many recipients there are so far, and how much of the file has been read.
        std::function<void(int count, int percent)> show_progress;
        /// Takes over the recipients: when the first of them can be shown, and when no more will come. What is left in
        /// the argument is released on the worker.
        std::function<void(Recipient_List& recipients)> take_over;
        /// The file could not be opened or read: nothing was imported.
        std::function<void()> leave_unread;
        /// All lines were imported.
        std::function<void()> finish;
        /// The import ended early by an exception, which is in the log; what was imported stays.
        std::function<void()> break_off;
        /// What became of the lines; after the last take_over, and before one of the three ends above. May be left out.
        std::function<void(const Import_Report& report)> report = nullptr;
    };

    /// The first recipients are shown when there are exactly this many.
    static constexpr int First_Shown = 10;

    explicit Number_Import(Target target);

    /// Starts reading on a worker of its own and returns.
    void Load_NUM_Thread(Order order);

private:
    struct Line
    {
        QStringView text;
        Packed_Number number;
    };

    void Load_Num_Func(Order& order) const;
    void Take_In_Lines(Order& order, const QString& text, Import_Report& report) const;
    void Take_In(Order& order, const std::vector<Line>& lines, Import_Report& report) const;
    void Hand_Over(Recipient_List& recipients) const;
    void Tell(Import_Report& report, Import_Report::End end) const;

    Target m_target;
};
