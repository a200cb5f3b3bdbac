#pragma once

#include <QByteArray>

// Standard output, a line at a time. That it takes no more lines keeps no message from being sent: it is said at the
// end. One thread at a time.
class Output
{
public:
    /// Writes the line, which comes without its end, at once.
    void Line(const QByteArray& line);
    /// Shows a text in place of the one before, on a terminal; does nothing elsewhere.
    void Show(const QByteArray& text);
    /// Why lines were lost, an errno; 0 when none was.
    int Error() const { return m_error; }

private:
    void Write(const QByteArray& bytes);

    bool m_shows = false; // a text without an end is on the terminal
    int m_error = 0;
};
