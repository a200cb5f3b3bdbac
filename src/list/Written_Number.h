#pragma once

#include "list/Country_Codes.h"

// Numbers as people write them, in tables above all: with blanks, dots, brackets and slashes, with "+", "00" or "(0)",
// as links, in the digits of other scripts, and as spreadsheets spoil them. Any thread.

/// What was made of a written number.
enum class Number_Reading
{
    As_Written,    ///< its digits as they stood
    International, ///< it says its country itself
    National,      ///< the country's code stands in place of its prefix
    Code_Added,    ///< the country's code was put in front
    Zero_Missing,  ///< the same, and the 0 that people there begin with was missing: a spreadsheet drops it
    Plus_Missing,  ///< taken as international, as its length shows: a spreadsheet drops the "+" and zeros
    // It cannot be used:
    Empty,
    Rounded, ///< such as 1.7E+10, by a spreadsheet
    Not_A_Number,
    Several,
    Too_Short,
    Too_Long,
    Unknown_Code ///< no country has it
};

struct Read_Number
{
    QString number; ///< as lists hold it, with 00 for a "+"; empty when it cannot be used
    Number_Reading reading = Number_Reading::Empty;
};

/// Reads a written number. A national one gets the code of the country; without a country it stays as it is, but for
/// what stands between its digits.
Read_Number Number_As_Written(QStringView written, const Country* country);

/// What was made of it, in words; empty where nothing but what stood between the digits has changed. The country is the
/// one that it was read with.
QString Words_For_Reading(Number_Reading reading, const Country* country);
