#pragma once

#include "platform/Descriptor.h"
#include "records/Job_Row.h"
#include "records/Job_Trouble.h"

#include <QByteArray>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// Gives the rows of a job one after the other, and then nothing.
using Next_Job_Row = std::function<std::optional<Job_Row>()>;

// The frozen list of a job, open. Keeps only where each row stands in the file, and reads a row back when it is asked
// for: a million rows take sixteen megabytes. A value that no thread changes.
class Job_List
{
public:
    struct Written
    {
        Job_Trouble trouble = Job_Trouble::None;
        int rows = 0;
        int parts = 0;     ///< of the rows that are not skipped
        QByteArray sha256; ///< of the file, in hexadecimal
    };
    /// Writes a new list to an open, empty file and brings it to the disk.
    static Written Write(const Descriptor& file, const QString& id, const Job_Options& options,
                         const Next_Job_Row& next_row);

    struct Opened
    {
        std::shared_ptr<const Job_List> list; ///< none when there is trouble
        Job_Trouble trouble = Job_Trouble::None;
    };
    /// Opens the list of the job with this id, if it is the one with this checksum.
    static Opened Open(const QString& path, const QString& id, QByteArrayView sha256);

    const Job_Options& Options() const { return m_options; }
    int Row_Count() const { return static_cast<int>(m_rows.size()); }
    /// The parts of the rows that are not skipped.
    int Part_Count() const { return m_parts; }

    // Rows count from 1.
    int Parts_Of(int row) const;
    /// How many parts all rows before it have, including those that are skipped.
    int Parts_Before(int row) const { return Entry_Of(row).parts_before; }
    int Parts_Of_All() const { return m_parts_of_all; }
    bool Is_Skipped(int row) const { return Entry_Of(row).is_skipped; }
    /// Reads a row back; nothing when it cannot be read any more.
    std::optional<Job_Row> Row(int row) const;

private:
    struct Entry
    {
        qint64 begin = 0;
        int parts_before = 0;
        bool is_skipped = false;
    };
    class Scan;

    const Entry& Entry_Of(int row) const { return m_rows[static_cast<std::size_t>(row - 1)]; }

    Descriptor m_file;
    Job_Options m_options;
    std::vector<Entry> m_rows;
    qint64 m_rows_end = 0; // where the line after the last row begins
    int m_parts = 0;
    int m_parts_of_all = 0;
};
