#pragma once

#include "engine/Send_Choices.h"
#include "list/Number_List.h"
#include "list/Recipient_List.h"

#include <QString>
#include <vector>

class Outcome_Codes;
struct Confirmed_End;
class QByteArray;
class QWidget;

namespace Exclusion_Files {
struct Applied_Numbers;
}

// The main window as the rooms below it see it: dialogs and the send job call back through this class and never know
// the real one. Owned by the program's start; every operation belongs to the interface thread.
class Main_Window
{
public:
    enum class Field
    {
        Number,
        Composer,
        Recipient_Table,
        Batch_Size,
        Pause_Choice
    };

    virtual ~Main_Window() = default;

    /// The window itself, to put dialogs over.
    virtual QWidget* Window() = 0;
    virtual void Focus(Field field) = 0;
    /// Shows the text, and then puts the focus where what it says can be mended.
    void Tell_And_Focus(const QString& text, Field field);

    virtual const Recipient_List& Recipients() const = 0;
    virtual const Number_List& Exclusions() const = 0;
    /// Replaces the list by a changed copy and redraws the recipient table. Code that changes many recipients changes a
    /// copy on a worker, since the list itself belongs to the interface thread.
    virtual void Replace_Recipients(Recipient_List recipients) = 0;
    /// Replaces one recipient and redraws the recipient table; the cost does not depend on the length of the list.
    virtual void Replace_Recipient(int row, const QString& number, const QString& message) = 0;
    /// Redraws the recipient table from the list.
    virtual void Redisplay_Recipients() = 0;
    /// The rows selected in the recipient table, in ascending order.
    virtual std::vector<int> Selected_Recipient_Rows() const = 0;
    /// Rebuilds the exclusion set from the applied lists if the exclusion check box is on; otherwise does nothing.
    virtual void Fill_Exclusion_Num_List() = 0;
    /// Uses what was read of the applied lists as the exclusion set, and reports lists that cannot be used.
    virtual void Take_Exclusions(const Exclusion_Files::Applied_Numbers& applied) = 0;
    /// The numbers of the applied lists as they are now, whatever the exclusion check box says. The exclusion set does
    /// not change.
    virtual Number_List Read_Applied_Exclusions() = 0;

    /// Answers yes for an invalid number; see Number_Rules.
    virtual bool Check_Ph_Number(const QString& number, bool test_flag) const = 0;
    virtual bool Check_Duplicate_Number(const QString& number) const = 0;
    virtual bool Check_Exclusion_Number(const QString& number) const = 0;
    /// Whether no recipient has a message and the composer is empty too.
    virtual bool Blank_Msg_Chk() const = 0;

    virtual Send_Choices Read_Send_Choices() const = 0;

    // A window that has no place for outcomes leaves them alone.

    /// A job begins with the list as it is. From now on the recipient table shows what became of each recipient's
    /// message, at first that it was not tried. If the list changes before the job ends, it is not shown any more.
    virtual void Begin_Outcomes() {}
    /// What became of as many recipients of that list, from a row on: codes that these Outcome_Codes gave.
    virtual void Take_Outcomes(int /*first_row*/, const QByteArray& /*marks*/, const Outcome_Codes& /*codes*/) {}
    /// The job has ended.
    virtual void End_Outcomes() {}
    /// It was one that confirmed each message. After End_Outcomes; the job still counts as running.
    virtual void Confirmed_Job_Ended(const Confirmed_End& /*end*/) {}

    /// The counter text for a message of this length; first runs the long-message dialog if that is allowed and due.
    virtual QString Long_SMS_Calculation(int length, const QString& msg_char_value, bool open_dlg) = 0;
    /// How many characters the composer holds, and how many of them are selected.
    virtual int Composer_Length() const = 0;
    virtual int Composer_Selection_Length() const = 0;
    /// Replaces the composer's selection by a text, or inserts it at the cursor, cuts the whole to 1600 characters and
    /// counts it afresh, with the long-message dialog if it is due.
    virtual void Use_In_Composer(const QString& text) = 0;
    /// Replaces the composer's text, cut to 1600 characters; no dialog opens and the counter stays as it is.
    virtual void Set_Composer_Text(const QString& text) = 0;
    /// The composer text that was last copied to the list, or last offered before sending.
    virtual QString Previous_Composer_Message() const = 0;
    virtual void Set_Previous_Composer_Message(const QString& message) = 0;

    /// Until released, clicks and keys in the main window are dropped.
    virtual void Hold_Input() = 0;
    virtual void Release_Input() = 0;
};

extern Main_Window* Main_App_wnd; ///< the main window, through which dialogs call back; set at start-up
