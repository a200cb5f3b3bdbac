#pragma once

#include "plan/Row_Preview.h"

#include <optional>

/// How a text differs from what its frames show, where each of its UTF-16 units has gone into the frames by itself, as
/// one septet or as an escape with a code: the described manner in 7 bits. A character that has become an escape, and
/// changes the one that follows it, is named with that one. Nothing where the frames cannot be of that kind.
std::optional<std::vector<Changed_Text>> Changes_By_Septets(const QString& text, const QByteArrayList& frames);
