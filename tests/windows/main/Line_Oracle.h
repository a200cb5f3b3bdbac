#pragma once

#include "phone/Phone_Moods.h"

#include <QString>
#include <QStringList>
#include <vector>

// How a list goes out.
struct Line_Way
{
    bool text_mode = false;
    bool unicode = false;
    bool is_long = false;
};

struct Line_Item
{
    QString number;
    QString message;
};

// When the cable is pulled: around one of the job's writes, counted from 1.
struct Line_Pull
{
    int write = 0;         ///< 0 for never
    bool after_it = false; ///< the phone hears the write, and its answer is lost
};

enum class Line_Box
{
    No_Modem,
    Connection_Error,
    Completed
};

// What must come of a job, on both sides of the line.
struct Line_Outcome
{
    Line_Box box = Line_Box::Completed;
    QStringList commands; ///< that the phone hears
    QStringList writes;   ///< each write's text, a PDU as "PDU"
    QStringList log;      ///< the session's lines apart from what was read; a PDU as "PDU"
    QStringList inbox;    ///< as a handset shows it, "number: text"
    int parts = 0;        ///< SMS that the phone accepted
    int shown = 0;        ///< items that the progress window showed
    int recorded = 0;     ///< items with a record and a template, from the first on
    bool is_hung_up = false;
    bool is_lost = false;             ///< hung up, or reading no further: only plugging in again helps
    bool may_give_up_at_once = false; ///< whether the first answer is more than an echo is a matter of luck
};

/// What a job of these items must do with a phone in these moods, worked out from its described steps.
Line_Outcome Expected_Outcome(const Phone_Moods& moods, const Line_Way& way, const std::vector<Line_Item>& items,
                              const Line_Pull& pull = {});
