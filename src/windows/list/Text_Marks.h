#pragma once

#include "plan/Message_Preview.h"

class Plain_Text_Edit;

// Places of a text that is being written, marked and replaced. Interface thread.

/// Underlines these places with a wave, and no others.
void Mark_Places(Plain_Text_Edit& edit, const std::vector<Marked_Place>& places);

/// The texts that are marked, in their order; one for each mark.
QStringList Marked_Texts(const Plain_Text_Edit& edit);

/// Makes these changes, which are in the order of the text, as one step that the editor can undo. The cursor stays
/// where it is in the text.
void Change_Text(Plain_Text_Edit& edit, const std::vector<Changed_Text>& changes);
