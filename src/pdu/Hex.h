#pragma once

#include <QString>

/// The number as upper-case hexadecimal without leading zeros: "0", "5", "1F", "3A9". A negative number is taken as its
/// 32-bit two's complement. Any thread.
QString Hex(int n);
