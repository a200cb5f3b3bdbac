#pragma once

#include "records/Program_Settings.h"

#include <QString>

// The state of the main window's controls at the moment a send job begins, copied once so that the job never reads a
// widget.
struct Send_Choices
{
    QString number_text;   ///< what is still in the number field, as typed
    QString composer_text; ///< raw, at most 1600 characters
    QString batch_size;    ///< the two delayed-delivery boxes, as shown
    QString pause_choice;
    bool delayed_delivery = false;
    bool exclusion = false;
    bool skip_duplicates = false;
    bool save_sent_items = false;
    bool save_templates = false;
    bool unicode = false;
    bool flash = false;
    Confirm_Choices confirm;
};
