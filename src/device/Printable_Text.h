#pragma once

// Serves MFCSMS::LogString, which nothing in the program calls.

#include <QByteArray>

/// The printable form of bytes: printable ASCII as it is, tab, line feed, carriage return and escape as \t, \n, \r and
/// \e, every other byte as a backslash and three octal digits.
QByteArray Printable_Text(const QByteArray& bytes);
