#pragma once

#include <QObject>
#include <QString>

class QCheckBox;
class QLabel;
class QPlainTextEdit;

// The message being written: keeps the text area within its limit, counts characters and SMS below it, and warns when
// the message grows past one SMS. Works on the main window's own controls; owned by the main window, which forwards
// their events; interface thread.
class Composer : public QObject
{
    Q_OBJECT

public:
    Composer(QPlainTextEdit* message_edit, QLabel* character_count, QCheckBox* unicode_check,
             QObject* parent = nullptr);

    /// The text as it was entered, at most 1600 characters: lines end in "\n", and a no-break space remains one.
    QString Text() const;
    /// How many characters the text has, without copying it.
    int Length() const;
    bool Is_Unicode() const;

    /// Sets the text, cut to its first 1600 characters. Does not count as typing: no dialog opens, and refreshing the
    /// counter is up to the caller.
    void Set_Text(const QString& text);
    /// How many characters are selected.
    int Selection_Length() const;
    /// Replaces the selection by a text, or inserts it at the cursor, cuts the whole to its first 1600 characters and
    /// updates the counter, with the long-message dialog if it is due.
    void Use_Text(const QString& text);
    /// Clears the text and the counter.
    void Clear();
    /// Updates the counter for the present text; open_dlg allows the long-message dialog.
    void Refresh_Counter(bool open_dlg);

    /// The counter text for a length, see Composer_Rules. First runs the long-message dialog if it is allowed and due.
    QString Long_SMS_Calculation(int length, const QString& msg_char_value, bool open_dlg);

    /// The text changed. What Set_Text does is not such a change.
    void textDidChange();
    /// The user switched Unicode on or off.
    void Unicode_Chk() { Refresh_Counter(true); }

private:
    void Cut_To_Limit();

    QPlainTextEdit* _messageEdit;
    QLabel* _Msg_char_count;
    QCheckBox* _Unicode_SMS_Chk;
    bool m_is_changing_text = false;
    bool m_is_showing_dialog = false;
};
