#pragma once

#include <QString>

// How long a message may be and how many SMS it takes. Lengths count UTF-16 units, whatever the alphabet.
namespace Composer_Rules {

inline constexpr int Most_Characters = 1600;
inline constexpr int Single_SMS_Characters = 160;
inline constexpr int Single_Unicode_SMS_Characters = 70;

/// How many characters one SMS holds, which is also the size of a part of a longer message.
int Single_SMS_Limit(bool unicode);

/// How many SMS a message of this length takes; 0 for an empty one.
int SMS_Count(int length, bool unicode);

/// The first 1600 characters.
QString Cut_To_Limit(const QString& message);

/// "%d Characters".
QString Characters_Text(int length);

struct Counter
{
    QString text;                   ///< the new counter text
    bool open_dialog_first = false; ///< the long-message dialog must run before the text is shown
};

/// The counter of a message of this length. The dialog is for a message that grows past one SMS: msg_char_value is the
/// counter text so far, which mentions SMS if the message was already long. With open_dlg off the dialog is never
/// requested.
Counter Long_SMS_Calculation(int length, const QString& msg_char_value, bool unicode, bool open_dlg);

/// The long-message dialog's text.
QString Long_SMS_Text(bool unicode);

} // namespace Composer_Rules
