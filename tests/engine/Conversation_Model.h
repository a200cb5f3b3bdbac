#pragma once

#include "engine/Row_Outcome.h"
#include "phone/Phone_Moods.h"

#include <QString>
#include <QStringList>
#include <vector>

// What a confirmed job and its phone say to each other, as the standards and the makers' manuals want it, worked out
// step by step from the manners of the phone alone. Shares no rule with the program.

/// What goes wrong with some attempts at one part of a message.
struct Planned_Trouble
{
    enum class Kind
    {
        None,
        Refused,             ///< after the message, for a cause
        Refused_At_Once,     ///< in place of the prompt, for a cause
        Refused_Though_Sent, ///< the network has it all the same
        Slow,
        Late, ///< the result comes with the next command
        Without_Result,
        Without_Reference,
        Second_Prompt,
        Pulled_At_The_Prompt, ///< and plugged in again
        Pulled_In_The_Body
    };
    Kind kind = Kind::None;
    int cause = 0; ///< an index into the table of causes
    int part = 1;
    int times = 1; ///< that many attempts at the part, the first ones
};

struct Planned_Row
{
    int parts = 1;
    bool is_ucs2 = false;
    Planned_Trouble trouble;
};

/// One generated conversation.
struct Conversation
{
    bool is_text_mode = false;
    bool has_no_prompt = false; ///< the phone never gives any
    int manner = 0;             ///< an index into the table of the phone's manners
    int stop_after = 0;         ///< a person stops the job after this row; 0 for never
    std::vector<Planned_Row> rows;

    /// The same for the same number.
    static Conversation Numbered(unsigned number);
    std::string Description() const;

    QString Number_Of(int row) const; ///< rows count from 1
    QString Text_Of(int row) const;
    QString Text_Of_Part(int row, int part) const;
};

/// What follows a message.
enum class Expected_Result
{
    Said,    ///< before anything else is written
    Silence, ///< for as long as a result is waited for
    Gone     ///< the line is
};

/// What must come of it.
struct Expected_Talk
{
    Phone_Moods moods;
    QStringList written; ///< to the line, in order: commands, "ESC", and numbers and texts of whole messages
    std::vector<Expected_Result> results; ///< of each message
    QStringList journal;                  ///< its lines without times and checksums, from the first part on
    QStringList received;                 ///< numbers and texts of the parts that the network has
    std::vector<Row_State> states;
    std::vector<int> tries;
    std::vector<int> parts_sent;
    int holds = 0;        ///< -1 where that depends on how long a plug is out
    bool is_ended = true; ///< each row is settled
    bool is_stopped_by_cause = false;
};

Expected_Talk Expected_Of(const Conversation& conversation);
