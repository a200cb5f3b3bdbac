#pragma once

#include "engine/Row_Outcome.h"

#include <QColor>

/// Of the words for an outcome, which say it with a sign, too; in the look that the program has by now.
QColor Colour_Of(Row_State state);
