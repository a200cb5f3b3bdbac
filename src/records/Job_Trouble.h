#pragma once

#include <QString>

/// Why a job's journal cannot be made, read or gone on with.
enum class Job_Trouble
{
    None,
    Missing,       ///< there is no such job
    Unreadable,    ///< one of its files cannot be read or written to
    Not_A_Journal, ///< the file is something else
    Newer,         ///< a later version of the program wrote it
    Damaged,       ///< before its end, or it contradicts itself
    List_Missing,  ///< the list beside the journal is gone
    List_Changed,  ///< the list is another than that of the header
    In_Use,        ///< another program works on it
    Exists,        ///< a job of this id has been begun before
    Too_Large,     ///< more rows or parts than a job can have, or a row that none can have
    No_Room,       ///< the disk is full
    Not_Written,   ///< the disk or the folder takes nothing
};

/// The trouble in one sentence without its full stop, to be put behind the job's name; empty for none.
QString Job_Trouble_Sentence(Job_Trouble trouble);
