#pragma once

#include <QByteArray>
#include <optional>

/// Cuts what a device says into lines, whatever they end in, and knows the prompt of a message, which no line end
/// follows. A value; any thread.
class Answer_Lines
{
public:
    /// A device that never ends a line costs no more than this; what follows is lost up to the line's end.
    static constexpr qsizetype Longest_Line = 4096;

    void Take(QByteArrayView bytes);

    /// The next whole line without white space at its ends; blank lines are passed over. Nothing when the rest is not
    /// ended yet.
    std::optional<QByteArray> Next();

    /// Whether the line that is not ended yet is a prompt, ">" and blanks alone; it is taken then. A prompt that a line
    /// end follows comes as the line ">".
    bool Take_Prompt();

    void Forget();

private:
    QByteArray m_bytes;
    qsizetype m_begin = 0; // of what has not been handed out
};
