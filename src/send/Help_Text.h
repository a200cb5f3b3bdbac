#pragma once

#include <QString>

/// What --help shows, without a line end.
QString Help_Text();
