#pragma once

#include "records/Program_Settings.h"

class QMenu;

/// Adds a menu of the languages that the program can be read in to another menu. What is chosen is remembered, and
/// holds from the next start on.
void Add_Language_Menu(QMenu& menu, const Program_Settings& settings);
