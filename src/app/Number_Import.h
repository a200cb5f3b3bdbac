#pragma once

#include <QString>
#include <functional>

// Reads a file of phone numbers, one in each line, on a worker, and hands its lines over in batches. Owned by the main
// window; started on the interface thread, where everything handed over arrives, too.
class Number_Import
{
public:
    // What the import needs of the main window; each is called on the interface thread.
    struct Target
    {
        /// Takes in cleaned lines, in the order of the file; percent says how much of the file that makes.
        std::function<void(const QStringList& lines, int percent)> take_lines;
        /// The file could not be opened or read: nothing was taken in.
        std::function<void()> leave_unread;
        /// All lines were taken in.
        std::function<void()> finish;
        /// The import ended early, by an exception that is in the log; what was taken in stays.
        std::function<void()> break_off;
    };

    explicit Number_Import(Target target);

    /// Starts reading on a worker of its own and returns.
    void Load_NUM_Thread(const QString& path);

    /// A line as it goes to the number rules: without "\", "{", "}" and "-", trimmed; empty when it is longer than any
    /// number.
    static QString Cleaned_Line(QStringView line);

private:
    void Load_Num_Func(const QString& path) const;
    void Hand_Over_Lines(const QString& text) const;

    Target m_target;
};
