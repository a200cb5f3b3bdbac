#pragma once

#include "list/Recipient_List.h"

#include <QString>

/// Writes the numbers of a recipient list into a text file: a banner, then each number on a line of its own, in UTF-8.
/// What stands at the path is replaced; a file that could be written only in part stays as it is. Returns whether all
/// of it is written. May be called from any thread.
bool Write_Contact_List(const QString& path, const Recipient_List& list);
