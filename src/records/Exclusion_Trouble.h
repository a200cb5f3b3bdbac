#pragma once

#include <QString>

namespace Exclusion_Files {
struct Applied_Numbers;
}

/// What the user should know about applied exclusion lists that exclude nobody, in one sentence; an empty text when all
/// is well. Long names are shortened, and many of them left out.
QString Exclusion_Trouble(const Exclusion_Files::Applied_Numbers& applied);
