#pragma once

#include "app/shared/Exclusion_Set.h"
#include "app/shared/Recipient_List.h"

#include <QString>

class QWidget;

// What the main window's controls say at the moment a send job begins, copied once so that the job never reads a
// widget.
struct Send_Choices
{
    QString number_text;   ///< what still stands in the number field, as typed
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
};

// The main window as the rooms below it see it: dialogs and the send job call back through this class and never know
// the real one. Owned by the program's start; every operation belongs to the interface thread.
class Main_Window
{
public:
    enum class Field
    {
        Number,
        Recipient_Table,
        Batch_Size,
        Pause_Choice
    };

    virtual ~Main_Window() = default;

    /// The window itself, to put dialogs over.
    virtual QWidget* Window() = 0;
    virtual void Focus(Field field) = 0;

    virtual const Recipient_List& Recipients() const = 0;
    virtual const Exclusion_Set& Exclusions() const = 0;
    /// Redraws the recipient table from the list.
    virtual void Redisplay_Recipients() = 0;

    /// Answers yes for an invalid number; see Number_Rules.
    virtual bool Check_Ph_Number(const QString& number, bool test_flag) const = 0;
    /// Whether no recipient has a message and the composer is empty as well.
    virtual bool Blank_Msg_Chk() const = 0;

    virtual Send_Choices Read_Send_Choices() const = 0;
    /// The composer text that was last taken into the list, or last offered before sending.
    virtual QString Previous_Composer_Message() const = 0;
    virtual void Set_Previous_Composer_Message(const QString& message) = 0;

    /// From now on, until released, clicks and keys in the main window are dropped.
    virtual void Hold_Input() = 0;
    virtual void Release_Input() = 0;
};
