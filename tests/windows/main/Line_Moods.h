#pragma once

#include "windows/main/Line_Oracle.h"

#include <string>

// One of the virtual phone's moods under a name that reads well in a test's.
struct Line_Mood
{
    enum Where
    {
        Everywhere,
        In_Pdu_Mode,
        In_Text_Mode,
        In_Unicode_Text ///< text mode, and Unicode
    };

    const char* name;
    void (*put)(Phone_Moods& moods);
    Where where = Everywhere; ///< in which ways to send it can make a difference
    const char* topic = "";   ///< two moods of one topic exclude each other
};

// A way to send and the moods that the phone is in meanwhile.
struct Line_Combination
{
    Line_Way way;
    std::vector<const Line_Mood*> moods; ///< none for good manners

    /// For example "Pdu_Seven_Bit_Short_No_Echo_And_Unsolicited".
    std::string Name() const;
    Phone_Moods Moods() const;
};

std::string Name_Of(const Line_Way& way);
/// All eight.
std::vector<Line_Way> Line_Ways();

/// No mood and each mood alone, in every way.
std::vector<Line_Combination> Single_Moods();
/// No mood and each mood alone, in one way each, so that all ways are used.
std::vector<Line_Combination> Single_Moods_In_One_Way();
/// Every two moods that do not exclude each other, in one way each; every way gets its share.
std::vector<Line_Combination> Pairs_Of_Moods();
