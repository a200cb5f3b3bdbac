#pragma once

#include "send/Trouble.h"

#include <QStringView>

// The files that the input comes from. Blocking; one thread.

/// A file's text, or why there is none.
struct Input_Text
{
    QString text;
    Trouble trouble;
};

/// A list of numbers, as the desktop program imports it; "-" is standard input, up to its end.
Input_Text Read_Numbers_File(const QString& path);

/// A message in UTF-8, without a byte-order mark and the last line's end.
Input_Text Read_Message_File(const QString& path);

/// Whether a line of a list of numbers holds nothing at all.
bool Is_Blank_Line(QStringView line);
