#pragma once

#include "plan/Message_Preview.h"

// What is said of a message before it is sent. Any thread.
namespace Bubble_Words {

/// "2 parts of 153, 41 left in the last".
QString Parts(const Message_Preview& preview);

/// What arrives as another, or makes the message Unicode; the first few, and how many more there are. Empty for
/// nothing.
QString Losses(const Message_Preview& preview);

/// A character to be named: as its number where it shows nothing by itself.
QString Name_Of(const QString& character);

} // namespace Bubble_Words
