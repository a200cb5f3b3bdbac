#pragma once

#include <QObject>
#include <QString>

class QCheckBox;
class QLabel;
class QPlainTextEdit;

// The message being written: keeps the text area within its limit, counts characters and SMS under it, and warns when
// the message grows past one SMS. Works on the main window's own controls; owned by the main window, which hands on
// what happens to them; interface thread.
class Composer : public QObject
{
    Q_OBJECT

public:
    Composer(QPlainTextEdit* message_edit, QLabel* character_count, QCheckBox* unicode_check,
             QObject* parent = nullptr);

    /// The text as it was entered, at most 1600 characters: lines end in "\n", a no-break space stays one.
    QString Text() const;
    /// How many characters the text has, without copying it.
    int Length() const;
    bool Is_Unicode() const;

    /// Puts a text there, cut to its first 1600 characters. Not typing: no dialog opens and the counter stays for the
    /// caller to refresh.
    void Set_Text(const QString& text);
    /// How many characters are selected.
    int Selection_Length() const;
    /// Puts a text in the place of the selection, or at the cursor, cuts the whole to its first 1600 characters and
    /// writes the counter, with the long-message dialog when it is due.
    void Use_Text(const QString& text);
    /// Empties the text and the counter.
    void Clear();
    /// Writes the counter for the present text; open_dlg allows the long-message dialog.
    void Refresh_Counter(bool open_dlg);

    /// The counter text for a length, see Composer_Rules. Runs the long-message dialog first when it is allowed and
    /// due.
    QString Long_SMS_Calculation(int length, const QString& msg_char_value, bool open_dlg);

    /// The text changed. What Set_Text does is no change of this kind.
    void textDidChange();
    /// The user switched Unicode on or off.
    void Unicode_Chk();

private:
    void Cut_To_Limit();

    QPlainTextEdit* _messageEdit;
    QLabel* _Msg_char_count;
    QCheckBox* _Unicode_SMS_Chk;
    bool m_is_changing_text = false;
    bool m_is_showing_dialog = false;
};
