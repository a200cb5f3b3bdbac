#pragma once

#include "list/Country_Codes.h"
#include "list/Table_File.h"
#include "plan/Plan_Manner.h"
#include "send/Trouble.h"

#include <QStringList>

/// What corvane-send was asked for. A value.
struct Arguments
{
    enum class Task
    {
        Send,
        Dry_Run,
        Hand_Over,
        Resume,
        List_Jobs,
        Doctor, ///< look why no device shows or can send
        Show_Version,
        Show_Help
    };
    Task task = Task::Send;

    QStringList numbers;   ///< each --to
    QString numbers_file;  ///< "-" for standard input; empty for none
    QString table_file;    ///< empty for none
    QString number_column; ///< of the table; empty for the one that holds numbers
    Table_Choices table_choices;
    const Country* country = nullptr; ///< whose code national numbers get; null to leave them as written
    QString message;
    QString message_file;      ///< in place of the message; empty for none
    QStringList exclude_files; ///< of numbers that get nothing
    bool skip_duplicates = false;

    Job_Alphabet_Choice alphabet = Job_Alphabet_Choice::Auto; ///< never that with fixed waits
    bool flash = false;

    QStringList devices; ///< empty for the one modem that answers
    QString service_centre;

    bool fixed_waits = false;
    int report_seconds = -1; ///< -1: no delivery reports
    int batch = 0;           ///< messages before each pause; 0 for no pauses
    int pause_seconds = 0;

    QString hand_over_folder;
    QString journal_folder; ///< empty for the one in the data folder
    bool keeps_no_journal = false;
    QString job; ///< to go on with
    bool sends_unknown = false;
    int hold_seconds = 600;
    bool keeps_journal = false; ///< of a job that has ended

    bool json = false;

    Plan_Manner Manner() const;
};

struct Read_Arguments_Result
{
    Arguments arguments;
    Trouble trouble; ///< of the first mistake
};

/// Reads the arguments, the program's own name first. Needs no application object.
Read_Arguments_Result Read_Arguments(const QStringList& arguments);
