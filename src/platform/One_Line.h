#pragma once

#include <QString>

/// The text on one line: every kind of line break in it as one blank, a carriage return and line feed together as one.
QString On_One_Line(const QString& text);
