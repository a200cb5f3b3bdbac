#pragma once

#include <QString>

class Main_Window;
class QLabel;
class QPlainTextEdit;

// The message field of a dialog and the counter below it: keeps the text within its limit and counts it by the main
// window's rules. Works on the dialog's own controls; owned by the dialog, which forwards their events; interface
// thread.
class Counted_Message
{
public:
    Counted_Message(QPlainTextEdit& message, QLabel& counter);

    /// Shows a message and its count; no dialog opens.
    void Show(const QString& message, Main_Window& window);
    void Clear();
    /// The first 1600 characters.
    QString Text() const;

    /// The user changed the text: cuts it and counts it afresh, with the long-message dialog if it is due. What Show
    /// and Clear do is not such a change.
    void textDidChange(Main_Window& window);

private:
    void Put_Text(const QString& text);

    QPlainTextEdit& m_message;
    QLabel& m_counter;
    bool m_is_changing_text = false;
};
