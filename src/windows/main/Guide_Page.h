#pragma once

#include <QString>

/// The page of the guide in the language that the program is read in, or else the English one, by its path: from where
/// the program is installed, or from beside the one that was built in a checkout. Empty where no guide is, as on a
/// system that keeps no documents.
QString Guide_Page();
