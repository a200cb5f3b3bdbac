#pragma once

#include <QString>

/// The text on one line: each line break of any kind becomes one blank, a carriage return and line feed together as
/// well.
QString On_One_Line(const QString& text);
