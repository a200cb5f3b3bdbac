#pragma once

#include <QString>
#include <vector>

// What the user guide and the help window write about characters that go out without Unicode, read from their own
// sources, so that it can be held against what the encoder does.

struct Written_Lists
{
    QString everywhere;        // with the letters, the digits, the blank and the line break, which stand in words
    QString but_for_text_mode; // unless the device knows text mode only
    QString in_a_short_text;   // the same, and in a short text
};

struct Typed_And_Shown
{
    QString typed;
    QString shown;
};

Written_Lists Lists_In_The_Guide();
Written_Lists Lists_In_The_Help_Window();

// The guide's table whose second row begins so, one entry a column.
std::vector<Typed_And_Shown> Changes_In_The_Guide(const QString& second_row);
