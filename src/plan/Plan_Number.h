#pragma once

#include "list/Packed_Number.h"
#include "list/Written_Number.h"

#include <QByteArrayView>

// The numbers of a plan, as its input holds them. Any thread.

/// Where numbers come from, and so how they are read.
enum class Plan_Numbers : quint8
{
    In_A_Table, ///< as people write them
    Typed,      ///< by the rules of lists; where there is a country, by those of tables
    On_A_Line   ///< the same, as an import reads lines
};

/// Reads a number.
Read_Number Number_Of_Input(QStringView written, Plan_Numbers numbers, const Country* country);

/// The same for a field of a table without a country; nothing where it takes a closer look.
std::optional<Packed_Number> Plain_Number_In(QByteArrayView utf8);

/// Whether a frame can carry it. The second is for one that consists of digits alone.
bool Can_Be_Dialled(const QString& number);
bool Can_Be_Dialled(const Packed_Number& number);

/// The beginning of what stands where a number should: something to know the row by. Never empty.
QString Shown_In_Place_Of_A_Number(QStringView written);
