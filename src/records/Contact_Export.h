#pragma once

#include "list/Recipient_List.h"

#include <QString>

/// Writes the numbers of a recipient list to a text file: a banner, then one number per line, in UTF-8. Whatever is at
/// the path is replaced; a file that could be written only in part stays as it is. Returns whether all of it was
/// written. May be called from any thread.
bool Write_Contact_List(const QString& path, const Recipient_List& list);
